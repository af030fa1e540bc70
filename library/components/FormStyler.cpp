#include "library/components/FormStyler.h"

#include "rtl/PropAccess.h"

const TClass& TVRXFormStyler::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXFormStyler>("TVRXFormStyler", TFormDecor::StaticClass())
          .Published(Alignment)
          .Published(Caption)
          .Doc(QStringLiteral("The caption, when it is not the form's."))
          .Published(Enabled)
          .Doc(QStringLiteral("Whether it changes the title bar."))
          .Published(EndColor)
          .Doc(QStringLiteral("Color of the title bar's end while the form is active."))
          .Published("Font", &TVRXFormStyler::Font, &TVRXFormStyler::SetFont)
          .StoredIf(&TVRXFormStyler::FontStored)
          .Published(Font3DPart)
          .Doc(QStringLiteral("Light and shadow of the caption's letters."))
          .Published(InactiveColor)
          .Doc(QStringLiteral("Color of the title bar while another form is active."))
          .Published(InactiveEndColor)
          .Doc(QStringLiteral("Color of the title bar's end while another form is active."))
          .Published("Options", &TVRXFormStyler::Options, &TVRXFormStyler::SetOptions, DefaultOptions)
          .Doc(QStringLiteral("What is done to the title bar."))
          .Published(StartColor)
          .Doc(QStringLiteral("Color of the title bar while the form is active."))
          .Event("OnDrawCaption")
          .ClassDoc(
              QStringLiteral("Gives the form's title bar colors and its caption a font."),
              "pen line 1.5 brush fill box 3 4 18 16 2 pen none brush accent box 3.75 4.75 16.5 5 0 pen "
              "line 1.8 path 8.5 18 12 11.5 15.5 18 path 10 16 14 16"));
  return cls;
}

TVRXFormStyler::TVRXFormStyler(TComponent* owner) : TFormDecor(owner), font_(std::make_unique<TFont>(this)) {}

bool TVRXFormStyler::FontStored() const {
  static const TFont plain;
  return !SameValues(*font_, plain);
}

void TVRXFormStyler::PaintTitle(TCanvas& canvas, const QPainterPath& bar, bool active) const {
  if (!Get(Enabled)) return;
  const QRectF rect = bar.boundingRect();
  QLinearGradient colors(rect.topLeft(), rect.topRight());
  const QColor start = ToQColor(Get(active ? StartColor : InactiveColor));
  const bool runs =
      Has(active ? TVRXFormStylerOption::foActiveGradient : TVRXFormStylerOption::foInactiveGradient);
  colors.setColorAt(0, start);
  colors.setColorAt(1, runs ? ToQColor(Get(active ? EndColor : InactiveEndColor)) : start);
  canvas.Painter().fillPath(bar, colors);
}

bool TVRXFormStyler::PaintCaption(TCanvas& canvas, const QRect& room, const QRect& bar,
                                  const QString& caption, bool active) const {
  if (!Get(Enabled)) return false;
  // A handler draws it.
  if (Has(TVRXFormStylerOption::foDrawCaptionEvent)) return true;
  TFont font;
  font.Assign(Font());
  if (Has(TVRXFormStylerOption::foUseDefaultFont)) {
    const TFont usual;
    font.Assign(&usual);
  }
  const QRect place = Has(TVRXFormStylerOption::foAdjustRect) ? room : bar;
  const QString text = Has(TVRXFormStylerOption::foUseFormCaption) ? caption : Get(Caption);
  QPainter& p = canvas.Painter();
  p.save();
  p.setClipRect(place, Qt::IntersectClip);
  Font3D()->Draw(canvas, place, AlignmentFlag(Get(Alignment)) | Qt::AlignVCenter | Qt::TextSingleLine, text,
                 font, true, Get(active ? StartColor : InactiveColor));
  p.restore();
  return true;
}
