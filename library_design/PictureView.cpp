#include "library_design/PictureView.h"

#include <QMouseEvent>
#include <QPainter>

PictureView::PictureView(QWidget* parent) : QWidget(parent) { setMouseTracking(true); }

void PictureView::SetPicture(const TBitmap& picture) {
  picture_.Assign(&picture);
  shown_ = picture.Image();
  updateGeometry();
  update();
}

void PictureView::SetImage(const QImage& image) {
  picture_ = TBitmap();
  shown_ = image;
  updateGeometry();
  update();
}

QSize PictureView::sizeHint() const { return shown_.size(); }

QPoint PictureView::Origin() const {
  return {std::max(0, (width() - shown_.width()) / 2), std::max(0, (height() - shown_.height()) / 2)};
}

void PictureView::paintEvent(QPaintEvent* event) {
  if (shown_.isNull()) return;
  QPainter painter(this);
  const QRect part = event->rect().intersected(QRect(Origin(), sizeHint()));
  painter.drawImage(part.topLeft(), shown_, part.translated(-Origin()));
}

void PictureView::mousePressEvent(QMouseEvent* event) {
  emit MouseDown(event->button(), PixelAt(event->pos()));
}
void PictureView::mouseMoveEvent(QMouseEvent* event) { emit MouseMove(PixelAt(event->pos())); }
