#include "library/controls/LabelFill.h"

#include "vcl/ImageList.h"
#include "vcl/PropertyGroups.h"
#include "vcl/ShownText.h"

const TClass& TVRXCustomLabelFill::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXCustomLabelFill>("TVRXCustomLabelFill", TVRXCustomLabel::StaticClass())
          .Declared(BrushBackColor)
          .Doc(QStringLiteral("Color between the lines of a hatch; clNone leaves it to the fill."))
          .Declared(FillPart)
          .Doc(QStringLiteral("What the letters are filled with."))
          .Declared(ImageList)
          .Doc(QStringLiteral("Pictures to fill with.")));
  return cls;
}

const TClass& TVRXLabelFill::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXLabelFill>("TVRXLabelFill", TVRXCustomLabelFill::StaticClass())
          .PublishAll(Placing, "Alignment")
          .Publish("AutoSize", true)
          .PublishAll("Bevel", "BrushBackColor", "Caption", Look, "FillObject", "Font3D", Hints, "ImageList",
                      "Layout", ParentLook, "ShowAccelChar", "Transparent", "Visible", MouseEvents)
          .ClassDoc(
              QStringLiteral("A text whose letters are filled with a gradient, a hatch or a bitmap."),
              "pen line 1.2 brush accent shape 4 20 10.5 4 13.5 4 20 20 16.5 20 15 16 9 16 7.5 20 brush fill "
              "shape 10 13 12 8 14 13"));
  return cls;
}

namespace {
// The outlines of the letters, line by line, "&" marking a letter where that is asked for.
QPainterPath LettersOf(const QString& caption, const QFont& font, const QRect& rect, int flags) {
  QString text = ShownText(caption);
  if (flags & Qt::TextShowMnemonic) {
    text.replace(QStringLiteral("&&"), QString(QChar(u'\1')));
    text.remove(u'&').replace(u'\1', u'&');
  }
  const QFontMetricsF metrics(font);
  const QStringList lines = text.split(u'\n');
  const double height = metrics.lineSpacing() * static_cast<double>(lines.size());
  double y = rect.top() + metrics.ascent();
  if (flags & Qt::AlignVCenter) y += (rect.height() - height) / 2;
  if (flags & Qt::AlignBottom) y += rect.height() - height;
  QPainterPath path;
  path.setFillRule(Qt::WindingFill);
  for (const QString& line : lines) {
    const double room = rect.width() - metrics.horizontalAdvance(line);
    const double x = rect.left() + (flags & Qt::AlignHCenter ? room / 2 : flags & Qt::AlignRight ? room : 0);
    path.addText(x, y, font, line);
    y += metrics.lineSpacing();
  }
  return path;
}
}  // namespace

// The colors of a fill are those of a ground; letters that somebody puts on a form are there to be read.
void TVRXLabelFill::NameChanged(const QString& oldName) {
  TVRXCustomLabelFill::NameChanged(oldName);
  if (!oldName.isEmpty() || !IsDesigning() || IsLoading()) return;
  FillObject()->Set(TVRXFillObject::Color, clHighlight);
  FillObject()->Set(TVRXFillObject::EndColor, clWindowText);
}

void TVRXCustomLabelFill::PaintText(TCanvas& canvas, const QRect& rect) {
  if (!Enabled()) return TVRXCustomLabel::PaintText(canvas, rect);
  Font3D()->DrawEffect(canvas, rect, TextFlags(), Caption(), *Font());
  const QPainterPath letters =
      LettersOf(Caption(), ToQFont(*Font()), rect.marginsRemoved(Font3D()->Room()), TextFlags());
  if (letters.isEmpty()) return;
  if (Get(BrushBackColor) == clNone || FillObject()->Get(TVRXFillObject::Kind) != TVRXFillKind::fkHatch)
    return FillObject()->Draw(canvas, letters, Get(ImageList));
  TVRXFillObject fill;
  fill.Assign(FillObject());
  fill.Set(TVRXFillObject::EndColor, Get(BrushBackColor));
  fill.Draw(canvas, letters, nullptr);
}
