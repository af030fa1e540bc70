// Texts as outlines that are bent into a form: wave, arch, stairs and so on, and seen from above or below.
// Outlines are exact at any size: what is bent are the curves of the letters, not points or pixels of them.
#pragma once
#include "library/values/TextLetters.h"
#include "rtl/TypeInfo.h"

enum class TVRXTransform : std::uint8_t {
  tmWave,
  tmNone,
  tmHalfcircle,
  tmArrow,
  tmSpeaker,
  tmInvSpeaker,
  tmFly,
  tmChair,
  tmStairs,
  tmInvStairs,
  tmBuckled,
  tmEnterprise,
  tmLNoseUp,
  tmLNoseDown,
  tmRNoseUp,
  tmRNoseDown,
  tmCube,
  tmHalfmoon
};
VRX_ENUM(TVRXTransform, {"tmWave", "tmNone", "tmHalfcircle", "tmArrow", "tmSpeaker", "tmInvSpeaker", "tmFly",
                         "tmChair", "tmStairs", "tmInvStairs", "tmBuckled", "tmEnterprise", "tmLNoseUp",
                         "tmLNoseDown", "tmRNoseUp", "tmRNoseDown", "tmCube", "tmHalfmoon"})
// Seen from below or from above.
enum class TVRXPerspective : std::uint8_t { tpFrog, tpBird };
VRX_ENUM(TVRXPerspective, {"tpFrog", "tpBird"})
enum class TVRXTransAttr : std::uint8_t { taPerspective, taToggled, taAutoToggled, taEqualLetters };
VRX_ENUM(TVRXTransAttr, {"taPerspective", "taToggled", "taAutoToggled", "taEqualLetters"})
using TVRXTransAttrs = TSet<TVRXTransAttr>;
VRX_SET(TVRXTransAttrs, TVRXTransAttr)

struct TVRXTextForm {
  TVRXTransform Transform = TVRXTransform::tmNone;
  int Factor = 0;  // from 0, plain, to 10000, as strong as it can be
  TVRXTransAttrs Attributes;
  int Toggle = 0;  // percent of the height by which every second letter is lifted
  TVRXPerspective Perspective = TVRXPerspective::tpFrog;
  int PerspectiveDepth = 0;  // percent by which the far side is smaller than the near one
  bool operator==(const TVRXTextForm&) const = default;
};
constexpr int VRXStrongestFactor = 10000;
constexpr int VRXDeepestPerspective = 1000;

QPainterPath VRXTransformed(const TVRXLetters& letters, const TVRXTextForm& form);
