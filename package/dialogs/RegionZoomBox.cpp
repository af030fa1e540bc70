#include "package/dialogs/RegionZoomBox.h"

#include <QMouseEvent>
#include <QPainter>

ZoomBox::ZoomBox(QWidget* parent) : QWidget(parent) {
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  setFixedSize(sizeHint());
}

void ZoomBox::ShowPart(const TBitmap& picture, QPoint origin) {
  for (int row = 0; row < Cells; ++row)
    for (int column = 0; column < Cells; ++column)
      cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] =
          picture.Pixel(origin.x() + column, origin.y() + row);
  filled_ = true;
  update();
}

void ZoomBox::Clear() {
  filled_ = false;
  update();
}

QRect ZoomBox::CellRect(int column, int row) const {
  const auto edge = [](int index, int side) { return index * side / Cells; };
  return {QPoint(edge(column, width()), edge(row, height())),
          QPoint(edge(column + 1, width()) - 1, edge(row + 1, height()) - 1)};
}

std::optional<TColor> ZoomBox::ColorAt(QPoint place) const {
  if (!filled_ || !rect().contains(place)) return std::nullopt;
  for (int row = 0; row < Cells; ++row)
    for (int column = 0; column < Cells; ++column)
      if (CellRect(column, row).contains(place))
        return cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
  return std::nullopt;
}

void ZoomBox::paintEvent(QPaintEvent*) {
  QPainter p(this);
  // Empty, it is a part of the dialog; only what it shows has colours of its own.
  p.fillRect(rect(), parentWidget()->palette().color(QPalette::Base));
  for (int row = 0; filled_ && row < Cells; ++row)
    for (int column = 0; column < Cells; ++column)
      p.fillRect(CellRect(column, row),
                 ToQColor(cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]));
  p.setPen(palette().color(QPalette::Mid));
  p.drawRect(rect().adjusted(0, 0, -1, -1));
}

void ZoomBox::mousePressEvent(QMouseEvent* event) { emit MouseDown(event->button(), event->pos()); }
void ZoomBox::mouseMoveEvent(QMouseEvent* event) { emit MouseMove(event->pos()); }
