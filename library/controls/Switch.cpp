#include "library/controls/Switch.h"

#include "library/controls/Faced.h"
#include "rtl/Exceptions.h"
#include "vcl/PropertyGroups.h"

const TClass& TVRXCustomSwitch::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXCustomSwitch>("TVRXCustomSwitch", TWinControl::StaticClass())
          .Icon("pen line 1.5 brush fill box 2.5 7 19 10 5 pen none brush accent oval 12.5 8.5 7 7")
          .Declared(BevelPart)
          .Doc(QStringLiteral("The frame around the switch."))
          .Declared(CaptionCheckedPart)
          .Doc(QStringLiteral("The text of the switch that is on."))
          .Declared(CaptionUnCheckedPart)
          .Doc(QStringLiteral("The text of the switch that is off."))
          .Declared(Checked)
          .Doc(QStringLiteral("Whether the switch is on."))
          .Declared(ColorChecked)
          .Doc(QStringLiteral("Color of the switch that is on."))
          .Declared(ColorUnChecked)
          .Doc(QStringLiteral("Color of the switch that is off."))
          .Declared(Transparent)
          .Doc(QStringLiteral("Lets what is behind the switch show through around it.")));
  return cls;
}

namespace {
constexpr const char* TwoStates[] = {"Bevel",       "CaptionChecked", "CaptionUnChecked", "Checked",
                                     "Color",       "ColorChecked",   "ColorUnChecked",   "Enabled",
                                     "ParentColor", "TabOrder",       "Transparent",      "Visible"};
}  // namespace

const TClass& TVRXSwitch::StaticClass() {
  static const TClass cls(VRXWithFace(DescribeClass<TVRXSwitch>("TVRXSwitch", TVRXCustomSwitch::StaticClass())
                                          .PublishAll(Placing, TwoStates))
                              .PublishAll(Hints)
                              .Publish("TabStop", true)
                              .PublishAll(MouseEvents, KeyEvents, FocusEvents)
                              .ClassDoc(QStringLiteral("A knob that slides to switch something on.")));
  return cls;
}

const TClass& TVRXWSwitch::StaticClass() {
  static const TClass cls(
      VRXWithFace(DescribeClass<TVRXWSwitch>("TVRXWSwitch", TVRXCustomSwitch::StaticClass())
                      .PublishAll(Placing, TwoStates))
          .PublishAll(Hints)
          .Publish("TabStop", true)
          .PublishAll(MouseEvents, KeyEvents, FocusEvents)
          .ClassDoc(QStringLiteral("A lever that leans to one of two states."),
                    "pen line 1.5 brush fill box 2.5 12 19 8 2 pen line 2.4 path 12 15 16.5 6.5 pen none "
                    "brush accent oval 13.5 2.5 6 6"));
  return cls;
}

TVRXCustomSwitch::TVRXCustomSwitch(TComponent* owner) : TWinControl(owner) { tabStop_ = true; }

const TKept<TColor>& TVRXCustomSwitch::ColorOf(int index) {
  if (index != 0 && index != 1) throw EPropertyError(QStringLiteral("A switch has no color %1.").arg(index));
  return index == 0 ? ColorChecked : ColorUnChecked;
}

TColor TVRXCustomSwitch::PresentColor() const {
  return Enabled() ? StateColor(Get(Checked) ? 0 : 1) : clBtnFace;
}

void TVRXCustomSwitch::Paint(TCanvas& canvas) {
  const TVRXFaceLook look = VRXFaceOf(*this);
  if (!Get(Transparent)) canvas.FillRect(ClientRect(), Color());
  look.PaintGround(canvas, ClientRect());
  const QRect room = look.Bevel(*Bevel()).Draw(canvas, ClientRect());
  if (room.width() < 4 || room.height() < 4) return;
  QPainter& p = canvas.Painter();
  p.save();
  p.setClipRect(room, Qt::IntersectClip);
  p.setRenderHint(QPainter::Antialiasing);
  PaintSwitch(canvas, room);
  p.restore();
}

namespace {
// Dark on a light form and light on a dark one.
QPen Line() { return QPen(ToQColor(clWindowText), 1); }
// A button of metal.
void PaintKnob(QPainter& p, const QRectF& r, bool enabled) {
  QLinearGradient metal(r.topLeft(), r.bottomLeft());
  metal.setColorAt(0, ToQColor(clBtnHighlight));
  metal.setColorAt(1, ToQColor(enabled ? clBtnShadow : clBtnFace));
  p.setPen(Line());
  p.setBrush(metal);
  p.drawEllipse(r);
}
}  // namespace

TVRXSwitch::TVRXSwitch(TComponent* owner) : TVRXCustomSwitch(owner) { SetBounds(0, 0, 96, 24); }

void TVRXSwitch::PaintSwitch(TCanvas& canvas, const QRect& room) {
  const TVRXCaption& text = Get(Checked) ? *CaptionChecked() : *CaptionUnChecked();
  // Twice as wide as high; a third of the room is for the text.
  const double height = std::min<double>(room.height() - 2, room.width() / 3.0);
  const QRectF groove(room.left() + 1.5, room.top() + (room.height() - height) / 2 + 0.5, 2 * height - 1,
                      height - 1);
  QPainter& p = canvas.Painter();
  p.setPen(Line());
  p.setBrush(ToQColor(PresentColor()));
  p.drawRoundedRect(groove, groove.height() / 2, groove.height() / 2);
  QRectF knob(groove.topLeft(), QSizeF(groove.height(), groove.height()));
  if (Get(Checked)) knob.moveRight(groove.right());
  PaintKnob(p, knob.adjusted(2, 2, -2, -2), Enabled());
  constexpr int Gap = 4;
  text.Draw(canvas, room.adjusted(static_cast<int>(groove.right()) - room.left() + Gap, 0, 0, 0), Enabled(),
            Color());
}

TVRXWSwitch::TVRXWSwitch(TComponent* owner) : TVRXCustomSwitch(owner) { SetBounds(0, 0, 96, 40); }

void TVRXWSwitch::PaintSwitch(TCanvas& canvas, const QRect& room) {
  const bool on = Get(Checked);
  const double side = std::min<double>(room.height(), room.width() / 2.0);
  const QPointF foot(room.left() + room.width() / 2.0, room.top() + room.height() / 2.0 + side / 4);
  const double lean = (on ? 1 : -1) * side / 4;
  QPainter& p = canvas.Painter();
  const QRectF plate(foot.x() - side / 2 + 1.5, foot.y() - side / 8 + 0.5, side - 3, side / 3);
  p.setPen(Line());
  p.setBrush(ToQColor(PresentColor()));
  p.drawRoundedRect(plate, 2, 2);
  const QPointF tip(foot.x() + lean, foot.y() - side / 2);
  p.setPen(QPen(ToQColor(Enabled() ? clWindowText : clGrayText), std::max(2.0, side / 8), Qt::SolidLine,
                Qt::RoundCap));
  p.drawLine(foot, tip);
  const double radius = side / 7;
  PaintKnob(p, QRectF(tip.x() - radius, tip.y() - radius, 2 * radius, 2 * radius), Enabled());
  const int half = static_cast<int>(side / 2);
  const int middle = room.left() + room.width() / 2;
  CaptionUnChecked()->Draw(canvas,
                           QRect(QPoint(room.left(), room.top()), QPoint(middle - half - 1, room.bottom())),
                           Enabled() && !on, Color());
  CaptionChecked()->Draw(canvas, QRect(QPoint(middle + half, room.top()), room.bottomRight()),
                         Enabled() && on, Color());
}
