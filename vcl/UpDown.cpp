#include "vcl/UpDown.h"

#include "rtl/Class.h"
#include "rtl/Exceptions.h"
#include "vcl/Painters.h"
#include "vcl/PropertyGroups.h"

const TClass& TUpDown::StaticClass() {
  static const TClass cls(
      DescribeClass<TUpDown>("TUpDown", TWinControl::StaticClass())
          .PublishAll("Anchors", "Enabled", Hints, Placement, Direction, Windowed, Help, Styling, "TabStop",
                      "OnContextPopup", "OnMouseDown", "OnMouseEnter", "OnMouseLeave", "OnMouseMove",
                      "OnMouseUp", FocusEvents, WheelEvents)
          .Published("Associate", &TUpDown::Associate, &TUpDown::SetAssociate)
          .Doc(QStringLiteral("The field whose number the arrows change."))
          .PublishedAll(AlignButton, Orientation)
          .Published("Max", &TUpDown::MaxOf, &TUpDown::SetMax, 100)
          .Published("Min", &TUpDown::MinOf, &TUpDown::SetMin, 0)
          .Published("Position", &TUpDown::PositionOf, &TUpDown::SetPosition, 0)
          .Passive("ArrowKeys", true)
          .Passive("Flat", false)
          .Passive("Increment", 1)
          .Passive("MinRepeatInterval", std::uint8_t{100})
          .Passive("Thousands", true)
          .Passive("Wrap", false)
          .Event("OnChanging", "TUDChangingEvent")
          .Event("OnChangingEx", "TUDChangingEventEx")
          .Event("OnClick", "TUDClickEvent")
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("Arrows that count the number in a field up and down."),
              "pen line 1.5 brush fill box 6.5 3 11 18 2 path 6.5 12 17.5 12 pen accent 2 brush none path "
              "9.5 9 12 6.5 14.5 9 path 9.5 15 12 17.5 14.5 15"));
  return cls;
}

TUpDown::TUpDown(TComponent* owner) : TRangedControl(owner) { SetBounds(0, 0, 17, 25); }

void TUpDown::SetAssociate(TWinControl* v) {
  if (v == Associate()) return;
  if (v == this) throw EPropertyError(QStringLiteral("%1 cannot be its own field.").arg(Name()));
  const TUpdateLock once(*this);
  SetReference(*this, field_, v);
  Changed();
  if (!v || IsLoading() || IsLayoutFrozen() || v->Parent() != Parent()) return;
  const bool right = Get(AlignButton) == TUDAlignButton::udRight;
  SetBounds(right ? v->Left() + v->Width() : v->Left() - Width(), v->Top(), Width(), v->Height());
}

void TUpDown::Paint(TCanvas& canvas) {
  PaintSpinButtons(canvas, ClientRect(), PartStates(),
                   Get(Orientation) == TUDOrientation::udVertical ? Qt::Vertical : Qt::Horizontal);
}
