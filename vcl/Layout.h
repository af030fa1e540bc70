// How a container places what stands inside it: along its edges (Align), and at a distance from them
// (Anchors).
//
// Layout works by difference. Coordinates that a form file gives are right, even where this machine would
// place things elsewhere: a class that nobody knows, another window frame, a font that is not installed. So
// an edit moves a control by what the layout after it differs from the layout before it, both computed here.
// Where a control stands exactly as computed, that is the ordinary layout.
#pragma once
#include <QMargins>
#include <QRect>
#include <vector>

#include "rtl/TypeInfo.h"

class TControl;

enum class TAlign : std::uint8_t { alNone, alTop, alBottom, alLeft, alRight, alClient, alCustom };
enum class TAnchorKind : std::uint8_t { akLeft, akTop, akRight, akBottom };
using TAnchors = TSet<TAnchorKind>;
VRX_ENUM(TAlign, {"alNone", "alTop", "alBottom", "alLeft", "alRight", "alClient", "alCustom"})
VRX_ENUM(TAnchorKind, {"akLeft", "akTop", "akRight", "akBottom"})
VRX_SET(TAnchors, TAnchorKind)

constexpr TAnchors DefaultAnchors{TAnchorKind::akLeft, TAnchorKind::akTop};

// One of the controls in a container, and what the layout wants for it. Sizes may be negative when there is
// no room.
struct Placement {
  TControl* control = nullptr;  // only compared
  QRect stands;                 // where the control is
  TAlign align = TAlign::alNone;
  TAnchors anchors = DefaultAnchors;
  bool takesPart = true;  // what is not shown has no strip
  QMargins margins;       // kept free around what is aligned
  int left = 0, top = 0, width = 0, height = 0;
  // Whether the edge of the container decides the value; else the control's own stays, moved by what its
  // anchors say.
  bool ownsWidth = true, ownsHeight = true, ownsPlace = true;
  bool anchored = false;
};
using Placements = std::vector<Placement>;  // back to front

// Computes what the layout wants in a container with that client area, of which what is aligned leaves the
// insets free. `before`: the placements before a change, which decide the order of what only changed its
// size.
void Arrange(Placements& all, const QRect& client, const QMargins& insets = {},
             const Placements* before = nullptr);
// A control that its container stands at a place of its own choice, with the size it has.
void PlaceAt(Placement& p, QPoint place);
// The bounds of each of `after` when a change has led there from `before`.
std::vector<QRect> BoundsAfter(const Placements& before, const Placements& after, const QRect& room);

// A value computed before and after: moved by the difference, and exactly the new one where the old one stood
// as computed. With `size` no result is below zero.
int MovedByDifference(int stands, int before, int after, bool size);
