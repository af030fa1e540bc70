#include "library/components/TitleItems.h"

#include <QGuiApplication>

#include "vcl/ShownText.h"

const TClass& TVRXSysMenu::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXSysMenu>("TVRXSysMenu", TFormDecor::StaticClass())
          .Published(Enabled)
          .Doc(QStringLiteral("Whether the form has the menu."))
          .Published(GlyphPart)
          .Doc(QStringLiteral("The picture that opens the menu."))
          .Published(ItemsPart)
          .Doc(QStringLiteral("What the menu offers beside the usual; \"-\" is a line."))
          .Published(ShowIcon)
          .Doc(QStringLiteral("Whether the title bar shows the picture."))
          .Event("OnItemClick")
          .ClassDoc(QStringLiteral("Adds items to the menu of the form's title bar."),
                    "pen line 1.5 brush fill box 3 4 18 16 2 path 3 9 21 9 pen none brush accent box 5 5.5 3 "
                    "2 0 pen "
                    "line 1.4 brush fill box 5 10.5 10 8 0 path 7 13 13 13 path 7 16 13 16"));
  return cls;
}

const TClass& TVRXCaptionButton::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXCaptionButton>("TVRXCaptionButton", TCollectionItem::StaticClass())
          .Published(Caption)
          .Doc(QStringLiteral("The text of a button without a picture."))
          .Published(Enabled)
          .Passive<QString>("Hint")
          .Published(ImageIndex)
          .Doc(QStringLiteral("The button's picture in the image list; -1 is none."))
          .Published(Visible)
          .Published(Width)
          .Doc(QStringLiteral("Width in pixels."))
          .Event("OnClick"));
  return cls;
}
const TClass& TVRXCaptionButtonList::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXCaptionButtonList>("TVRXCaptionButtonList", TCollection::StaticClass()));
  return cls;
}

const TClass& TVRXCaptionButtons::StaticClass() {
  static const TClass cls(DescribeClass<TVRXCaptionButtons>("TVRXCaptionButtons", TFormDecor::StaticClass())
                              .Published(ButtonsPart)
                              .Doc(QStringLiteral("The buttons, from the left to the right."))
                              .Published(Enabled)
                              .Doc(QStringLiteral("Whether the form has the buttons."))
                              .Published(ImageList)
                              .Doc(QStringLiteral("Pictures of the buttons."))
                              .ClassDoc(QStringLiteral("Adds buttons to the form's title bar."),
                                        "pen line 1.5 brush fill box 3 4 18 16 2 path 3 10 21 10 pen none "
                                        "brush accent box 10 5.75 2.8 2.8 "
                                        "0 box 13.8 5.75 2.8 2.8 0 box 17.4 5.75 2.8 2.8 0"));
  return cls;
}

TVRXSysMenu::TVRXSysMenu(TComponent* owner) : TFormDecor(owner) {}
TVRXCaptionButtons::TVRXCaptionButtons(TComponent* owner) : TFormDecor(owner) {}

// At the left: the picture, and a mark that a menu opens there.
QRect TVRXSysMenu::PaintTitleItems(TCanvas& canvas, const QRect& room, const QColor& ink) const {
  if (!Get(Enabled) || !Get(ShowIcon)) return room;
  constexpr int Side = 16;
  QPainter& p = canvas.Painter();
  const QRect at(room.left(), room.top() + (room.height() - Side) / 2, Side, Side);
  const QImage& image = Glyph()->Image();
  p.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  p.setPen(QPen(ink, 1.2));
  if (image.isNull())
    for (const int y : {5, 8, 11}) p.drawLine(at.topLeft() + QPoint(3, y), at.topLeft() + QPoint(13, y));
  else
    p.drawImage(at, image);
  int right = at.right() + 4;
  if (Items()->Count() > 0) {
    p.setBrush(ink);
    p.setPen(Qt::NoPen);
    const double y = at.center().y();
    p.drawPolygon(QPolygonF({QPointF(right, y - 1), QPointF(right + 6, y - 1), QPointF(right + 3, y + 3)}));
    right += 9;
  }
  return room.adjusted(std::min(room.width(), right - room.left()), 0, 0, 0);
}

// At the right, beside the window's own.
QRect TVRXCaptionButtons::PaintTitleItems(TCanvas& canvas, const QRect& room, const QColor& ink) const {
  if (!Get(Enabled)) return room;
  QPainter& p = canvas.Painter();
  QRect left = room;
  p.setRenderHint(QPainter::Antialiasing);
  for (int i = Buttons()->Count() - 1; i >= 0; --i) {
    const auto& button = static_cast<const TVRXCaptionButton&>(*Buttons()->Item(i));
    const int width = std::max(0, button.Get(TVRXCaptionButton::Width));
    if (!button.Get(TVRXCaptionButton::Visible) || width > left.width()) continue;
    const QRect place(left.right() + 1 - width, left.top(), width, left.height());
    left.setWidth(left.width() - width - 2);
    p.setOpacity(button.Get(TVRXCaptionButton::Enabled) ? 1 : 0.4);
    const QRectF box = QRectF(place).adjusted(1.5, 5.5, -1.5, -5.5);
    p.setPen(QPen(ink, 1));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(box, 2, 2);
    const auto* images = Get(ImageList);
    const QImage image = images ? images->Image(button.Get(TVRXCaptionButton::ImageIndex)) : QImage();
    if (!image.isNull()) {
      const QSizeF size = QSizeF(image.size()).scaled(box.size() - QSizeF(2, 2), Qt::KeepAspectRatio);
      p.drawImage(QRectF(box.center() - QPointF(size.width() / 2, size.height() / 2), size), image);
      continue;
    }
    QFont font = QGuiApplication::font();
    font.setPixelSize(11);
    p.setFont(font);
    p.drawText(box, Qt::AlignCenter | Qt::TextSingleLine, ShownText(button.Get(TVRXCaptionButton::Caption)));
  }
  return left;
}
