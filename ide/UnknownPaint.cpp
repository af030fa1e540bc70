// What stand-ins look like: like the common controls, flat and in quiet lines, so that a foreign form can be
// recognised and nobody takes them for the real ones.
#include <QPainterPath>

#include "ide/Unknown.h"
#include "vcl/FormColors.h"
#include "vcl/ShownText.h"

namespace {
using enum TStandInLook;

constexpr int Mark = 13;  // side of a check box
constexpr int HeaderHeight = 20;

QColor Line() { return FormPalette().color(QPalette::Mid); }

void Box(QPainter& p, const QRectF& r, const QColor& fill, double radius = 2) {
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(QPen(Line(), 1));
  p.setBrush(fill);
  p.drawRoundedRect(r.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

// A small angle, pointing down (1) or up (-1).
void Arrow(QPainter& p, QPointF at, int direction) {
  p.setPen(QPen(FormPalette().color(QPalette::Dark), 1.3));
  p.setBrush(Qt::NoBrush);
  const QPointF points[] = {at + QPointF(-3.5, -1.75 * direction), at + QPointF(0, 1.75 * direction),
                            at + QPointF(3.5, -1.75 * direction)};
  p.drawPolyline(points, 3);
}

void CheckMark(QPainter& p, const QRectF& r, bool round, bool set) {
  const QPalette palette = FormPalette();
  Box(p, r, palette.color(QPalette::Base), round ? r.width() / 2 : 2);
  if (!set) return;
  p.setPen(Qt::NoPen);
  p.setBrush(palette.color(QPalette::WindowText));
  if (round) return p.drawEllipse(r.center(), 3, 3);
  p.setPen(QPen(palette.color(QPalette::WindowText), 1.6));
  const QPointF tick[] = {
      {r.left() + 3, r.top() + 6.5}, {r.left() + 5.5, r.top() + 9}, {r.right() - 2.5, r.top() + 4}};
  p.drawPolyline(tick, 3);
}
}  // namespace

void TUnknownControl::PaintText(TCanvas& canvas, const QRect& area, int flags, const QString& text) const {
  if (area.width() <= 0 || area.height() <= 0) return;
  // What a field or a list holds has no marks.
  static constexpr auto Holders = {Field, Combo, Spin, Memo, List, Grid};
  const bool holds = std::find(Holders.begin(), Holders.end(), standIn_.look) != Holders.end();
  canvas.TextRect(area, flags | (holds ? 0 : Qt::TextShowMnemonic), text, *Font(), Enabled());
}

// Name and class, when there is nothing else to tell the control by and they fit.
void TUnknownControl::PaintQuiet(TCanvas& canvas) const {
  if (!Controls().empty()) return;
  QPainter& p = canvas.Painter();
  QFont font = ToQFont(*Font());
  font.setPixelSize(std::min(font.pixelSize(), 12));
  p.setFont(font);
  p.setPen(FormPalette().color(QPalette::PlaceholderText));
  const QRect room = PaintExtent().adjusted(5, 2, -5, -2);
  const QString cls = QString::fromUtf8(streamClass_);
  for (const QString& text : {Name().isEmpty() ? cls : QStringLiteral("%1: %2").arg(Name(), cls), cls})
    if (p.fontMetrics().horizontalAdvance(text) <= room.width() &&
        p.fontMetrics().height() <= room.height() + 4) {
      p.drawText(room, Qt::AlignCenter, text);
      return;
    }
}

std::vector<QRect> TUnknownControl::TabRects() const {
  std::vector<QRect> rects;
  const QFontMetrics metrics(ToQFont(*Font()));
  int x = 2;
  const auto add = [&](const QString& text) {
    const int width = metrics.horizontalAdvance(ShownText(text)) + 20;
    rects.emplace_back(x, 0, width, TabHeight);
    x += width;
  };
  const auto pages = Pages();
  for (const TUnknownControl* page : pages) add(page->Caption().isEmpty() ? page->Name() : page->Caption());
  if (pages.empty())
    for (const QString& text : standIn_.items) add(text);
  return rects;
}

TUnknownControl* TUnknownControl::PageAt(QPoint point) const {
  if (standIn_.look != Tabs) return nullptr;
  const auto pages = Pages();
  const auto rects = TabRects();
  for (std::size_t i = 0; i < pages.size(); ++i)
    if (rects[i].contains(point)) return pages[i];
  return nullptr;
}

void TUnknownControl::PaintTabs(TCanvas& canvas) const {
  const QPalette palette = FormPalette();
  QPainter& p = canvas.Painter();
  Box(p, QRectF(PaintExtent()).adjusted(0, TabHeight - 1, 0, 0), palette.color(QPalette::Window), 0);
  const auto pages = Pages();
  const auto rects = TabRects();
  for (std::size_t i = 0; i < rects.size(); ++i) {
    const bool front =
        pages.empty() ? static_cast<int>(i) == std::max(0, standIn_.index) : pages[i] == FrontPage();
    const QRect r = rects[i].adjusted(0, front ? 0 : 2, 0, 0);
    Box(p, QRectF(r).adjusted(0, 0, 0, front ? 4 : 0),
        palette.color(front ? QPalette::Window : QPalette::Button), 3);
    if (front) p.fillRect(r.adjusted(1, TabHeight - 1, -1, 6), palette.color(QPalette::Window));
    const QString text = pages.empty()                   ? standIn_.items[static_cast<qsizetype>(i)]
                         : pages[i]->Caption().isEmpty() ? pages[i]->Name()
                                                         : pages[i]->Caption();
    PaintText(canvas, r, Qt::AlignCenter, text);
  }
}

// The items of a group of radio buttons or check boxes, column by column.
void TUnknownControl::PaintChoices(TCanvas& canvas, const QRect& area, bool exclusive) const {
  const int count = static_cast<int>(standIn_.items.size());
  if (count == 0) return;
  const int columns = std::min(standIn_.columns, count), rows = (count + columns - 1) / columns;
  for (int i = 0; i < count; ++i) {
    const QRect cell(area.left() + i / rows * area.width() / columns,
                     area.top() + i % rows * area.height() / rows, area.width() / columns,
                     area.height() / rows);
    CheckMark(canvas.Painter(), QRectF(cell.left(), cell.center().y() - Mark / 2, Mark, Mark), exclusive,
              exclusive && i == standIn_.index);
    PaintText(canvas, cell.adjusted(Mark + 5, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, standIn_.items[i]);
  }
}

// What it is made of; true when that shows all there is to show.
bool TUnknownControl::PaintSurface(TCanvas& canvas) const {
  const QPalette palette = FormPalette();
  QPainter& p = canvas.Painter();
  const QRect r = PaintExtent();
  const QString text = Caption().isEmpty() ? standIn_.text : Caption();
  const QColor base = standIn_.color ? ToQColor(*standIn_.color) : palette.color(QPalette::Base);
  const bool tall = r.height() > 2 * QFontMetrics(ToQFont(*Font())).height() + 4;
  constexpr int Middle = Qt::AlignLeft | Qt::AlignVCenter;
  switch (standIn_.look) {
    case Label:
      if (standIn_.color) p.fillRect(r, base);
      PaintText(canvas, r, Qt::AlignLeft | Qt::AlignTop | (tall ? Qt::TextWordWrap : 0), text);
      return !text.isEmpty();
    case Check:
    case Radio:
      CheckMark(p, QRectF(1, (r.height() - Mark) / 2, Mark, Mark), standIn_.look == Radio, standIn_.checked);
      PaintText(canvas, r.adjusted(Mark + 5, 0, 0, 0), Middle, text);
      return true;
    case Button:
      Box(p, r, palette.color(QPalette::Button), 3);
      PaintText(canvas, r, Qt::AlignCenter, text);
      return !text.isEmpty();
    case Field:
    case Combo:
    case Spin: {
      Box(p, r, base);
      const int knob = standIn_.look == Field ? 0 : 18;
      if (knob > 0 && r.width() > 2 * knob) {
        const QPointF at(r.right() - knob / 2.0, r.top() + r.height() / 2.0);
        if (standIn_.look == Combo) Arrow(p, at, 1);
        if (standIn_.look == Spin) Arrow(p, at - QPointF(0, 4), -1), Arrow(p, at + QPointF(0, 4), 1);
      }
      PaintText(canvas, r.adjusted(5, 1, -knob - 3, -1), tall ? Qt::AlignLeft | Qt::AlignTop : Middle, text);
      return !text.isEmpty();
    }
    case Memo:
    case List:
    case Grid: {
      Box(p, r, base);
      const bool headed = !standIn_.headers.empty();
      if (headed || standIn_.look == Grid) PaintHeader(canvas);
      const QString lines = standIn_.look == List ? standIn_.items.join(u'\n') : text;
      PaintText(canvas, r.adjusted(5, 3 + (headed ? HeaderHeight : 0), -4, -3), Qt::AlignLeft | Qt::AlignTop,
                lines);
      return headed || !lines.isEmpty();
    }
    case Group:
    case RadioGroup:
    case CheckGroup: {
      const int title = QFontMetrics(ToQFont(*Font())).height();
      Box(p, QRectF(r).adjusted(0, title / 2.0, 0, 0), standIn_.color ? base : QColor(Qt::transparent));
      if (!text.isEmpty()) {
        const int width =
            std::min(r.width() - 12, QFontMetrics(ToQFont(*Font())).horizontalAdvance(ShownText(text)) + 6);
        const QRect label(7, 0, width, title);
        p.fillRect(label, ToQColor(Color()));
        PaintText(canvas, label.adjusted(3, 0, 0, 0), Middle, text);
      }
      if (standIn_.look != Group)
        PaintChoices(canvas, r.adjusted(10, title + 2, -6, -4), standIn_.look == RadioGroup);
      return true;
    }
    case Tabs:
      PaintTabs(canvas);
      return !standIn_.items.isEmpty();
    case Page:
      p.fillRect(r, standIn_.color ? base : palette.color(QPalette::Window));
      return true;
    case ToolBar:
    case StatusBar:
      p.fillRect(r, palette.color(QPalette::Window));
      p.setPen(Line());
      if (standIn_.look == ToolBar) p.drawLine(r.bottomLeft(), r.bottomRight());
      if (standIn_.look == StatusBar) {
        p.drawLine(r.topLeft(), r.topRight());
        if (!standIn_.headers.empty() && text.isEmpty()) {
          PaintPanels(canvas);
          return true;
        }
      }
      PaintText(canvas, r.adjusted(5, 1, -4, 0), Middle, text);
      return !text.isEmpty();
    case Slider: {
      const bool upright = r.height() > r.width();
      const QRectF groove = upright ? QRectF(r.center().x() - 1, 4, 4, r.height() - 8)
                                    : QRectF(4, r.center().y() - 1, r.width() - 8, 4);
      Box(p, groove, palette.color(QPalette::Button));
      Box(p, upright ? QRectF(r.center().x() - 6, 8, 14, 10) : QRectF(8, r.center().y() - 6, 10, 14),
          palette.color(QPalette::Button), 3);
      return true;
    }
    case Progress:
      Box(p, r, base);
      p.fillRect(QRectF(r).adjusted(2, 2, -2 - r.width() * 0.6, -2), palette.color(QPalette::Midlight));
      return true;
    case Splitter:
      p.fillRect(r, palette.color(QPalette::Midlight));
      return true;
    case Divider: {
      const int width = text.isEmpty() ? 0 : TextExtent(text, *Font(), Qt::TextShowMnemonic).width() + 6;
      PaintText(canvas, r, Middle, text);
      p.setPen(Line());
      p.drawLine(r.left() + width, r.center().y(), r.right(), r.center().y());
      return true;
    }
    case Buttons:
      PaintButtons(canvas);
      return true;
    case Panel:
    case Plain:
    case Image:
    case Component:
      break;
  }
  if (standIn_.picture && !standIn_.picture->Image().isNull()) {
    p.drawImage(r.topLeft(), standIn_.picture->Image());
    return true;
  }
  QColor fill = palette.color(QPalette::WindowText);
  fill.setAlpha(standIn_.look == Panel ? 0 : 10);
  Box(p, r, standIn_.color ? base : fill, 1);
  PaintText(canvas, r, Qt::AlignCenter, Controls().empty() ? text : Caption());
  return !text.isEmpty();
}

// The heads of the columns, and the first lines of a grid below.
void TUnknownControl::PaintHeader(TCanvas& canvas) const {
  QPainter& p = canvas.Painter();
  const QRect r = PaintExtent();
  const bool grid = standIn_.look == Grid;
  const int bottom = std::min(r.height() - 1, grid ? 3 * HeaderHeight : HeaderHeight);
  p.fillRect(QRect(1, 1, r.width() - 2, std::min(HeaderHeight, r.height() - 2)),
             FormPalette().color(QPalette::Button));
  p.setPen(Line());
  for (int y = HeaderHeight; y <= bottom; y += HeaderHeight) p.drawLine(0, y, r.right(), y);
  int x = 0;
  const auto column = [&](const QString& text, int width) {
    PaintText(canvas, QRect(x + 5, 0, width - 6, HeaderHeight).intersected(r),
              Qt::AlignLeft | Qt::AlignVCenter, text);
    x += width;
    p.setPen(Line());
    if (x < r.width()) p.drawLine(x, 0, x, bottom);
  };
  for (const TStandInColumn& c : standIn_.headers) column(c.text, c.width);
  constexpr int Usual = 64;
  while (grid && standIn_.headers.empty() && x < r.width()) column({}, Usual);
}

// The panels of a bar; the last one reaches to its end.
void TUnknownControl::PaintPanels(TCanvas& canvas) const {
  const QRect r = ClientRect().adjusted(0, 1, 0, 0);
  int x = 0;
  for (const TStandInColumn& panel : standIn_.headers) {
    const bool last = &panel == &standIn_.headers.back();
    const QRect cell = QRect(x, r.top(), last ? r.width() - x : panel.width, r.height()).intersected(r);
    PaintText(canvas, cell.adjusted(5, 0, -4, 0), Qt::AlignLeft | Qt::AlignVCenter, panel.text);
    x += panel.width;
    canvas.Painter().setPen(Line());
    if (!last && x < r.width()) canvas.Painter().drawLine(x, r.top() + 3, x, r.bottom() - 2);
  }
}

void TUnknownControl::PaintButtons(TCanvas& canvas) const {
  constexpr int Gap = 6, Most = 75, Tall = 25;
  const QRect r = PaintExtent();
  const int count = static_cast<int>(standIn_.items.size());
  if (count == 0) return;
  const int width = std::min(Most, (r.width() - Gap) / count - Gap), height = std::min(Tall, r.height() - 2);
  if (width < 4 || height < 4) return;
  int x = r.right() + 1 - count * (width + Gap);
  for (const QString& caption : standIn_.items) {
    const QRect button(x, r.center().y() - height / 2, width, height);
    Box(canvas.Painter(), button, FormPalette().color(QPalette::Button), 3);
    PaintText(canvas, button, Qt::AlignCenter, caption);
    x += width + Gap;
  }
}

// A folded corner says that nobody knows the class.
void TUnknownControl::PaintMark(TCanvas& canvas) const {
  constexpr int Side = 6, Least = 3 * Side;
  const QRect r = PaintExtent();
  if (r.width() < Least || r.height() < 2 * Side) return;
  QPainter& p = canvas.Painter();
  const QPoint corner(r.right() + 1, 0);
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(Qt::NoPen);
  p.setBrush(FormPalette().color(QPalette::PlaceholderText));
  p.drawPolygon(QPolygon{{corner - QPoint(Side, 0), corner, corner + QPoint(0, Side)}});
}

void TUnknownControl::Paint(TCanvas& canvas) {
  if (!PaintSurface(canvas)) PaintQuiet(canvas);
  PaintMark(canvas);
}
