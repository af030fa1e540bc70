#include "library/controls/DropDownBox.h"

#include "library/controls/Faced.h"
#include "rtl/PropAccess.h"
#include "vcl/DesignMarks.h"
#include "vcl/FormColors.h"
#include "vcl/ItemPainting.h"
#include "vcl/PropertyGroups.h"

const TClass& TVRXCustomDropDownBox::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXCustomDropDownBox>("TVRXCustomDropDownBox", TCustomEdit::StaticClass())
          .Declared(ButtonWidth)
          .Doc(QStringLiteral("Width of the button that opens the field; 0 is none."))
          .Declared(DropDownHeight)
          .Doc(QStringLiteral("Height of what drops down; 0 is what it needs."))
          .Declared(DropDownWidth)
          .Doc(QStringLiteral("Width of what drops down; 0 is what it needs, and at least the field's."))
          .DeclaredEvent("OnCloseUp")
          .DeclaredEvent("OnDropDown"));
  return cls;
}

TClassBuilder TVRXCustomDropDownBox::AsBox(TClassBuilder b) {
  return VRXWithFace(std::move(b))
      .PublishAll(Placing, Lettering, Hints, "Alignment", "BorderStyle", "ButtonWidth", "DropDownHeight",
                  "DropDownWidth", "PopupMenu", "ReadOnly", "TabOrder", "TextHint", "Visible", MouseEvents,
                  KeyEvents, FocusEvents, "OnChange", "OnCloseUp", "OnDropDown")
      .Publish("AutoSize", true)
      .Publish("Color", clWindow)
      .Publish("ParentColor", false)
      .Publish("TabStop", true)
      .Alphabetical();
}

TVRXCustomDropDownBox::TVRXCustomDropDownBox(TComponent* owner) : TCustomEdit(owner) {
  SetBounds(0, 0, 144, 23);
}

QRect TVRXCustomDropDownBox::KnobRect() const {
  const int width = HasKnob() ? std::clamp(Get(ButtonWidth), 0, std::max(Width(), 0)) : 0;
  const QRect all = ClientRect();
  return width > 0 ? QRect(all.right() - width, all.top() + 1, width, all.height() - 2) : QRect();
}

void TVRXCustomDropDownBox::Paint(TCanvas& canvas) {
  TPartStates states = PartStates();
  if (Get(ReadOnly)) states.Include(TPartState::ReadOnly);
  QRect inside = ClientRect();
  const bool framed = Get(BorderStyle) == TBorderStyle::bsSingle;
  if (framed) inside = PaintListFrame(canvas, inside, states);
  // The frame brings the usual ground, that of a disabled and of a read-only field, too.
  const TVRXFaceLook look = VRXFaceOf(*this);
  if (!framed || Color() != clWindow) canvas.FillRect(inside, Color());
  look.PaintGround(canvas, inside);
  if (const QRect knob = KnobRect(); !knob.isEmpty()) {
    PaintKnob(canvas, knob);
    inside.setRight(knob.left() - 1);
  }
  inside.adjust(4, 0, -2, 0);
  canvas.Painter().save();
  canvas.Painter().setClipRect(inside, Qt::IntersectClip);
  PaintText(canvas, PaintMark(canvas, inside));
  canvas.Painter().restore();
}

void TVRXCustomDropDownBox::PaintKnob(TCanvas& canvas, const QRect& rect) const {
  PaintDropButton(canvas, rect, PartStates());
}

void TVRXCustomDropDownBox::PaintText(TCanvas& canvas, const QRect& room) const {
  const QString text = ShownText();
  const QString hint = Get(TextHint);
  const TVRXFaceLook look = VRXFaceOf(*this);
  const int alignment = AlignmentFlag(Get(Alignment));
  PaintPlainText(canvas, room, alignment, text.isEmpty() ? hint : text, look.Font(*Font()),
                 look.HasLetters(Enabled()) && !text.isEmpty());
  if (text.isEmpty() && hint.isEmpty())
    PaintDesignName(canvas, room, *this, Qt::Alignment::fromInt(alignment) | Qt::AlignVCenter);
}

int TVRXCustomDropDownBox::RowsHeight(int rows) const {
  return std::clamp(rows, 1, 30) * TextExtent(QStringLiteral("Wg"), *Font()).height() + 4;
}

void TVRXCustomDropDownBox::TakeLook(TControl& control) const {
  control.SetFont(Font());
  control.SetBounds(0, 0, Width(), control.Height());
}

void TVRXCustomDropDownBox::TakeValue(TControl& control, const char* name) const {
  SetProp(control, control.ClassType().GetProp(name), GetProp(*this, ClassType().GetProp(name)));
}

QSize TVRXCustomDropDownBox::DropDownSize() const {
  const auto control = MakeDropDown();
  if (!control) return {};
  constexpr int most = 2000;
  const int width = Get(DropDownWidth), height = Get(DropDownHeight);
  return QSize(width > 0 ? width : std::max(control->Width(), Width()),
               height > 0 ? height : control->Height())
      .boundedTo({most, most});
}

void TVRXCustomDropDownBox::PaintDropDown(TCanvas& canvas, const QRect& rect) const {
  const auto control = MakeDropDown();
  if (!control || rect.isEmpty()) return;
  control->SetAutoSize(false);
  control->SetBounds(0, 0, rect.width(), rect.height());
  canvas.Painter().save();
  canvas.Painter().setClipRect(rect, Qt::IntersectClip);
  canvas.Painter().translate(rect.topLeft());
  PaintControl(*control, canvas.Painter());
  canvas.Painter().restore();
  canvas.Frame3D(rect, clGrayText, clGrayText, 1);  // what it lies on may look the same
}

void PaintKnobWith(TCanvas& canvas, const QRect& rect, TPartStates states,
                   void (*drawing)(QPainter&, const QRectF&)) {
  PaintButton(canvas, rect, states, {}, nullptr);
  constexpr double Side = 11;
  QRectF place(0, 0, Side, Side);
  place.moveCenter(QRectF(rect).center());
  place.moveTopLeft(place.topLeft().toPoint());
  QPainter& p = canvas.Painter();
  p.save();
  p.setClipRect(rect, Qt::IntersectClip);
  p.setPen(FormPalette().color(states.Contains(TPartState::Disabled) ? QPalette::Disabled : QPalette::Active,
                               QPalette::ButtonText));
  p.setBrush(Qt::NoBrush);
  drawing(p, place);
  p.restore();
}
