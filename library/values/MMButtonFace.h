// Faces made of pictures of an image list, one for each state of a button.
#pragma once
#include "library/values/ButtonFace.h"
#include "rtl/ValueList.h"

enum class TVRXButtonState : std::uint8_t {
  bsUp,
  bsDown,
  bsMouseOver,
  bsDisabled,
  bsFocused,
  bsChecked,
  bsCheckedDown,
  bsCheckedOver,
  bsCheckedDisabled
};
VRX_ENUM(TVRXButtonState, {"bsUp", "bsDown", "bsMouseOver", "bsDisabled", "bsFocused", "bsChecked",
                           "bsCheckedDown", "bsCheckedOver", "bsCheckedDisabled"})
constexpr std::size_t VRXButtonStateCount = 9;

// Which list of an image-list container, from 1 on, and which picture of it, from 0 on. Nothing but zeros: no
// picture. A plain image list is a container of one.
struct TVRXButtonFaceIndex {
  std::uint16_t ListIndex = 0, ImageIndex = 0;
  bool operator==(const TVRXButtonFaceIndex&) const = default;
};
using TVRXButtonFaceIndices = std::array<TVRXButtonFaceIndex, VRXButtonStateCount>;

void VRXMMInitFace(TVRXButtonFaceIndices& face);
void VRXMMCopyFace(const TVRXButtonFaceIndices& from, TVRXButtonFaceIndices& to);
// Gives the pictures of bsUp and bsDown to the other states; with `hot` that of bsMouseOver, too, which else
// is one of the others.
void VRXMMSynchronize(TVRXButtonFaceIndices& face, bool hot);

class TVRXMMButtonFace : public TVRXButtonFace {
  VRX_CLASS(TVRXMMButtonFace)
 public:
  using TVRXButtonFace::TVRXButtonFace;
  // A pair of numbers for each state; what is missing is zero.
  static constexpr TKept<TValueList*> Numbers{"Indices"};

  TVRXButtonFaceIndices Indices() const;
  void SetIndices(const TVRXButtonFaceIndices& indices);
};
