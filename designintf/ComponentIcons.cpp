#include "designintf/ComponentIcons.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <map>

#include "vcl/Theme.h"

namespace {
std::map<const TClass*, TIconPainter>& Painters() {
  static std::map<const TClass*, TIconPainter> painters;
  return painters;
}

void DrawPlain(QPainter& p, const TIconInk& ink) {
  p.setPen(QPen(ink.Line, 1.5));
  p.setBrush(ink.Fill);
  p.drawRoundedRect(QRectF(4, 4, 16, 16), 3, 3);
  p.setPen(Qt::NoPen);
  p.setBrush(ink.Accent);
  p.drawEllipse(QRectF(9, 9, 6, 6));
}

void Draw(const TClass& cls, QPainter& painter, const QRectF& rect, const QPalette& palette,
          QIcon::Mode mode = QIcon::Normal) {
  TIconInk ink;
  const bool dark = IsDark(palette);
  ink.Line = dark ? QColor(0xC8, 0xCD, 0xD6) : QColor(0x4A, 0x52, 0x5E);
  ink.Fill = dark ? QColor(0x4A, 0x51, 0x5C) : QColor(0xFF, 0xFF, 0xFF);
  ink.Accent = palette.color(QPalette::Highlight);
  if (mode == QIcon::Selected) {
    // On a ground of the accent.
    ink.Line = ink.Accent = palette.color(QPalette::HighlightedText);
    ink.Fill = ink.Line;
    ink.Fill.setAlpha(50);
  }
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(rect.topLeft());
  painter.scale(rect.width() / 24, rect.height() / 24);
  const TIconPainter* found = nullptr;
  for (const TClass* c = &cls; c && !found; c = c->ClassParent())
    if (const auto it = Painters().find(c); it != Painters().end()) found = &it->second;
  if (found)
    (*found)(painter, ink);
  else
    DrawPlain(painter, ink);
  painter.restore();
}

// Draws when it is shown, so that a change of theme needs no new icons.
class Engine : public QIconEngine {
 public:
  explicit Engine(const TClass& cls) : cls_(cls) {}
  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    Draw(cls_, *painter, rect, QApplication::palette(), mode);
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    Draw(cls_, p, QRectF(QPointF(0, 0), size), QApplication::palette(), mode);
    return pixmap;
  }
  QIconEngine* clone() const override { return new Engine(cls_); }

 private:
  const TClass& cls_;
};
}  // namespace

void RegisterComponentIcon(const TClass& cls, TIconPainter painter) { Painters()[&cls] = std::move(painter); }

QIcon ComponentIcon(const TClass& cls) { return QIcon(new Engine(cls)); }

QPixmap ComponentPixmap(const TClass& cls, int pixels, qreal ratio, const QPalette& palette) {
  QPixmap pixmap(QSize(pixels, pixels) * ratio);
  pixmap.setDevicePixelRatio(ratio);
  pixmap.fill(Qt::transparent);
  QPainter p(&pixmap);
  Draw(cls, p, QRectF(0, 0, pixels, pixels), palette);
  return pixmap;
}
