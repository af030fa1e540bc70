#include <QPainterPath>

#include "library/controls/ButtonBar.h"
#include "vcl/DesignMarks.h"
#include "vcl/ItemPainting.h"
#include "vcl/ShownText.h"

namespace {
// A picture no larger than the room, keeping its shape.
void PaintPicture(TCanvas& canvas, const QRect& room, const QImage& image, bool enabled) {
  if (image.isNull() || room.isEmpty()) return;
  QPainter& p = canvas.Painter();
  const QSize size = image.width() > room.width() || image.height() > room.height()
                         ? image.size().scaled(room.size(), Qt::KeepAspectRatio)
                         : image.size();
  const QRect place(room.left() + (room.width() - size.width()) / 2,
                    room.top() + (room.height() - size.height()) / 2, size.width(), size.height());
  p.save();
  p.setOpacity(enabled ? 1 : 0.4);
  p.setRenderHint(QPainter::SmoothPixmapTransform);
  p.drawImage(place, image);
  p.restore();
}
QImage PictureOf(const TVRXBarItem& item, bool small, const TCustomImageList* list) {
  if (const TGlyph* glyph = item.Glyph(small)) return glyph->Transparent();
  return list ? list->Image(item.Get(TVRXBarItem::ImageIndex)) : QImage();
}
}  // namespace

void TVRXButtonBar::Paint(TCanvas& canvas) {
  const Shape s = Measure();
  QPainter& p = canvas.Painter();
  if (!Get(Transparent)) {
    canvas.FillRect(ClientRect(), Color());
    QPainterPath area;
    area.addRect(s.room);
    if (!s.room.isEmpty()) FillObject()->Draw(canvas, area, Get(LargeImageList));
  }
  if (IsKept(&BevelPart)) Bevel()->Draw(canvas, ClientRect());
  if (s.room.isEmpty()) return;
  p.save();
  p.setClipRect(s.room, Qt::IntersectClip);
  for (int i = s.first; i <= s.last; ++i) PaintHeading(canvas, HeadingRect(s, i), i, s);
  if (s.current >= 0)
    PaintItems(canvas, s);
  else if (IsDesigning())
    PaintEmpty(canvas, s);
  p.restore();
}

void TVRXButtonBar::PaintHeading(TCanvas& canvas, const QRect& rect, int index, const Shape& s) const {
  if (rect.isEmpty()) return;
  const TVRXBarSection& section = Sections()->At(index);
  TPartStates states = PartStates();
  if (index == s.current) states.Include(TPartState::Down);
  if (!Get(TransparentButtons)) PaintButton(canvas, rect, states, {}, Font());
  QPainter& p = canvas.Painter();
  p.save();
  p.setClipRect(rect, Qt::IntersectClip);
  // In a horizontal bar the text runs upwards.
  QRect text(0, 0, rect.width(), rect.height());
  p.translate(rect.topLeft());
  if (!Down()) {
    p.translate(0, rect.height());
    p.rotate(-90);
    text = text.transposed();
  }
  text.adjust(6, 1, -6, -1);
  const QImage image =
      Get(SmallImageList) ? Get(SmallImageList)->Image(section.Get(TVRXBarSection::ListIndex)) : QImage();
  if (!image.isNull()) {
    const QRect room(text.left(), text.top(), std::min(image.width(), text.height()), text.height());
    PaintPicture(canvas, room, image, Enabled());
    text.setLeft(room.right() + 5);
  }
  PaintPlainText(canvas, text, Qt::AlignHCenter, section.Get(TVRXBarSection::Caption), *Font(), Enabled());
  p.restore();
}

void TVRXButtonBar::PaintItems(TCanvas& canvas, const Shape& s) const {
  const TVRXBarSection& section = *Current();
  QPainter& p = canvas.Painter();
  p.save();
  p.setClipRect(Strip(s, s.begin, s.end - s.begin), Qt::IntersectClip);
  const int top = std::clamp(topItem_, 0, MostTop(s));
  for (int i = top; i < section.ItemCount(); ++i) {
    const QRect rect = RectOfItem(s, i);
    if (rect.isNull()) break;
    PaintItem(canvas, rect, section.Items()->At(i), i == Get(ItemIndex));
  }
  p.restore();
  for (const bool down : {false, true})
    if (const QRect arrow = ArrowRect(s, down); !arrow.isEmpty())
      PaintArrowButton(
          canvas, arrow, PartStates(),
          Down() ? (down ? Qt::DownArrow : Qt::UpArrow) : (down ? Qt::RightArrow : Qt::LeftArrow));
}

void TVRXButtonBar::PaintItem(TCanvas& canvas, const QRect& rect, const TVRXBarItem& item,
                              bool selected) const {
  const TVRXBarSection& section = *Current();
  const bool own = !section.Get(TVRXBarSection::ParentFont), small = section.Get(TVRXBarSection::SmallImages);
  const bool enabled = Enabled() && item.Get(TVRXBarItem::Enabled);
  const bool filled = selected && Get(FillSelectedItem);
  TFont font;
  font.Assign(own ? section.Font() : Font());
  if (filled) font.SetColor(clHighlightText);
  const int line = TextExtent(QStringLiteral("Ag"), font).height();
  const QString caption = item.Get(TVRXBarItem::Caption);
  const QImage image = PictureOf(item, small, Get(small ? SmallImageList : LargeImageList));

  QRect body = rect.adjusted(4, 2, -4, -2);
  if (!small) {
    // Around picture and text, not from edge to edge.
    const int wide = std::min(body.width(), std::max(TextExtent(ShownText(caption), font).width() + 12, 48));
    body = QRect(body.left() + (body.width() - wide) / 2, body.top(), wide, body.height());
  }
  if (filled) canvas.FillRect(body, clHighlight);
  if (selected) {
    using enum TVRXBarFocusStyle;
    const auto style = Get(FocusStyle);
    if (style == fsFrame) PaintFocus(canvas, body);
    if (style == fsRaised) canvas.Frame3D(body, clBtnHighlight, clBtnShadow, 1);
    if (style == fsLowered) canvas.Frame3D(body, clBtnShadow, clBtnHighlight, 1);
  }
  QRect text = body.adjusted(3, 1, -3, -1);
  if (small) {
    const int side = image.isNull() ? 0 : std::min(image.width(), text.height());
    PaintPicture(canvas, QRect(text.left(), text.top(), side, text.height()), image, enabled);
    if (side > 0) text.setLeft(text.left() + side + 5);
  } else if (!image.isNull()) {
    PaintPicture(canvas, text.adjusted(0, 0, 0, -line - 2), image, enabled);
    text.setTop(text.bottom() - line + 1);
  }
  const TVRXFont3D* effect = own ? (section.IsKept(&TVRXBarSection::Font3DPart) ? section.Font3D() : nullptr)
                                 : (IsKept(&Font3DPart) ? Font3D() : nullptr);
  const int place = small ? Qt::AlignLeft : Qt::AlignHCenter;
  if (effect && effect->Get(TVRXFont3D::Style) != TVRX3DTextStyle::tdNone)
    effect->DrawEffect(canvas, text, place | Qt::AlignVCenter | Qt::TextSingleLine, ShownText(caption), font);
  PaintPlainText(canvas, text, place, caption, font, enabled);
}

// On the form a bar without sections shows what it is for; when the program runs it is just empty.
void TVRXButtonBar::PaintEmpty(TCanvas& canvas, const Shape& s) const {
  const int length = Down() ? s.room.height() : s.room.width();
  for (const int from : {0, length - 2 * s.heading, length - s.heading})
    PaintDesignFrame(canvas, Strip(s, from, s.heading).adjusted(1, 1, -1, -1));
  constexpr int side = 32;
  const QRect middle = Strip(s, s.heading, length - 3 * s.heading);
  PaintDesignFrame(canvas, QRect(middle.center() - QPoint(side / 2, side / 2), QSize(side, side)));
  PaintDesignName(canvas, Strip(s, 0, s.heading), *this);
}
