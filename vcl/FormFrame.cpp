#include "vcl/FormFrame.h"

#include <QApplication>
#include <QPainterPath>

#include "vcl/FormColors.h"
#include "vcl/FormDecor.h"
#include "vcl/MenuLook.h"
#include "vcl/ShownText.h"
#include "vcl/Theme.h"

namespace {
using Decors = std::vector<TFormDecor*>;

void PaintTitleBar(const TForm& form, const Decors& decors, QPainter& p, bool active) {
  QMargins m = form.FrameMargins();
  m.setTop(m.top() - form.MenuBarHeight());
  if (m.isNull()) return;  // a menu only
  const QRect outer(QPoint(0, 0), form.OuterSize());
  const QPalette palette = FormPalette();
  const QColor edge = palette.color(QPalette::Mid);
  QColor bar = palette.color(QPalette::Window);
  bar = IsDark(palette) ? bar.lighter(active ? 135 : 115) : bar.darker(active ? 112 : 104);
  QPainterPath shape;
  shape.addRoundedRect(QRectF(outer).adjusted(0.5, 0.5, -0.5, 6), 6, 6);
  p.setRenderHint(QPainter::Antialiasing);
  p.setClipRect(outer, Qt::IntersectClip);
  p.setPen(edge);
  p.setBrush(bar);
  p.drawPath(shape);
  TCanvas canvas(p);
  QPainterPath barOnly;
  barOnly.addRect(0, 0, outer.width(), m.top());
  for (const TFormDecor* decor : decors) decor->PaintTitle(canvas, shape & barOnly, active);
  p.setPen(edge);
  p.setBrush(bar);
  p.setRenderHint(QPainter::Antialiasing, false);
  p.drawRect(outer.adjusted(0, m.top(), -1, -1));

  // Buttons, from the right.
  const QRect row(m.left(), 0, outer.width() - m.left() - m.right(), m.top());
  int x = row.right() + 1;
  const QColor ink = palette.color(active ? QPalette::Active : QPalette::Disabled, QPalette::WindowText);
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(QPen(ink, 1.2));
  p.setBrush(Qt::NoBrush);
  const TBorderIcons icons = form.BorderIcons();
  if (icons.Contains(TBorderIcon::biSystemMenu)) {
    const bool full = form.BorderStyle() != TFormBorderStyle::bsDialog &&
                      form.BorderStyle() != TFormBorderStyle::bsToolWindow &&
                      form.BorderStyle() != TFormBorderStyle::bsSizeToolWin;
    const auto next = [&] {
      x -= 28;
      return QRectF(x + 9.5, m.top() / 2.0 - 4.5, 9, 9);
    };
    const QRectF close = next();
    p.drawLine(close.topLeft(), close.bottomRight());
    p.drawLine(close.topRight(), close.bottomLeft());
    if (full && icons.Contains(TBorderIcon::biMaximize)) p.drawRect(next());
    if (full && icons.Contains(TBorderIcon::biMinimize)) {
      const QRectF r = next();
      p.drawLine(QPointF(r.left(), r.center().y()), QPointF(r.right(), r.center().y()));
    }
  }
  QRect text(row.left() + 2, 0, std::max(0, x - row.left() - 6), m.top());
  for (const TFormDecor* decor : decors) {
    p.save();
    text = decor->PaintTitleItems(canvas, text, ink);
    p.restore();
  }
  for (const TFormDecor* decor : decors)
    if (decor->PaintCaption(canvas, text, row, form.Caption(), active)) return;
  QFont font = QApplication::font();
  font.setPixelSize(12);
  p.setFont(font);
  p.setPen(ink);
  p.drawText(text, Qt::AlignVCenter | Qt::AlignLeft,
             p.fontMetrics().elidedText(ShownText(form.Caption()), Qt::ElideRight, text.width()));
}

void PaintMenuBar(const TForm& form, QPainter& painter) {
  const TMainMenu* menu = form.ShownMenu();
  if (!menu || form.MenuBarHeight() == 0) return;
  const QMargins m = form.FrameMargins();
  painter.save();
  painter.translate(m.left(), m.top() - form.MenuBarHeight());
  TMenuLook look(*menu, form.ClientWidth());
  look.Paint(painter, {});
  painter.restore();
}
}  // namespace

void PaintFormWindow(TForm& form, QPainter& painter, bool active) {
  const Decors decors = TFormDecor::Of(form);
  TCanvas canvas(painter);
  const QRect window(QPoint(0, 0), form.OuterSize());
  QPainterPath outline;
  for (const TFormDecor* decor : decors)
    if (outline.isEmpty()) outline = decor->Outline(window);
  const bool cut = !outline.isEmpty();
  if (!cut) outline.addRect(window);
  for (const TFormDecor* decor : decors) {
    painter.save();
    decor->PaintAround(canvas, outline, active);
    painter.restore();
  }
  painter.save();
  if (cut) painter.setClipPath(outline, Qt::IntersectClip);
  painter.save();
  if (!form.FrameMargins().isNull()) {
    painter.fillRect(window.adjusted(0, form.FrameMargins().top(), 0, 0),
                     FormPalette().color(QPalette::Window));
    PaintTitleBar(form, decors, painter, active);
  }
  painter.restore();
  PaintMenuBar(form, painter);
  painter.save();
  const QMargins m = form.FrameMargins();
  painter.translate(m.left(), m.top());
  painter.setClipRect(form.ClientRect(), Qt::IntersectClip);
  PaintControl(form, painter);
  painter.restore();
  painter.restore();
  for (const TFormDecor* decor : decors) {
    painter.save();
    decor->PaintBorder(canvas, outline, active);
    painter.restore();
  }
}

QImage RenderForm(TForm& form, double scale) {
  QMargins around;
  for (const TFormDecor* decor : TFormDecor::Of(form)) around = around | decor->Around(true);
  const QSize outer = form.OuterSize().grownBy(around);
  const QSize size(std::max(1, qRound(outer.width() * scale)), std::max(1, qRound(outer.height() * scale)));
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  if (image.isNull()) return image;
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::TextAntialiasing);
  painter.scale(scale, scale);
  painter.translate(around.left(), around.top());
  PaintFormWindow(form, painter, true);
  return image;
}
