// The faces of buttons: what a button shows in each of its states.
#pragma once
#include <array>

#include "library/values/StoredPicture.h"
#include "rtl/Kept.h"
#include "vcl/Bitmap.h"

enum class TVRX3DButtonState : std::uint8_t { Up, Down, Disabled };

// What all of them are edited as.
class TVRXButtonFace : public TKeptPart {
  VRX_CLASS(TVRXButtonFace)
 public:
  using TKeptPart::TKeptPart;
};

// A picture, black where it is transparent, and its mask: white there, black elsewhere.
struct TVRXMaskedPicture {
  TBitmap Picture, Mask;
};
// Splits a picture into one with its transparent colour out of it and the mask of that.
TVRXMaskedPicture VRXBmpCreateMasksExt(const TBitmap& source, TColor transparent);

// The pictures of a three-dimensional button.
class TVRX3DButtonFace : public TVRXButtonFace {
  VRX_CLASS(TVRX3DButtonFace)
 public:
  using TVRXButtonFace::TVRXButtonFace;

  // Transparent where the mask is white; null when there is none.
  const QImage& Picture(TVRX3DButtonState state) const {
    return pictures_[static_cast<std::size_t>(state)].Image();
  }
  void SetPictures(const TVRXMaskedPicture& up, const TVRXMaskedPicture& down,
                   const TVRXMaskedPicture& disabled);
  bool Empty() const { return pictures_[0].Empty(); }
  // Of the picture, without decoding it.
  QSize Size() const { return pictures_[0].Size(); }
  // Makes what is stored, as StoredPicture does.
  bool Encode(const TGoOn& goOn) const;
  bool NeedsTime() const;
  void Assign(const TPersistent* source) override;

 private:
  template <int I>
  QByteArray Bytes() const {
    return pictures_[I].Bytes();
  }
  template <int I>
  void SetBytes(const QByteArray& v) {
    if (Bytes<I>() == v) return;
    Changing();
    pictures_[I].SetBytes(v);
    Changed();
  }
  std::array<StoredPicture, 3> pictures_;
};
