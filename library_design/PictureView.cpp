#include "library_design/PictureView.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScrollArea>

PictureView::PictureView(QWidget* parent) : QWidget(parent) { setMouseTracking(true); }

void PictureView::SetPicture(const TBitmap& picture) {
  picture_.Assign(&picture);
  updateGeometry();
  update();
}

QSize PictureView::sizeHint() const { return {picture_.Width(), picture_.Height()}; }

QPoint PictureView::Origin() const {
  return {std::max(0, (width() - picture_.Width()) / 2), std::max(0, (height() - picture_.Height()) / 2)};
}

void PictureView::paintEvent(QPaintEvent* event) {
  if (picture_.Empty()) return;
  QPainter painter(this);
  const QRect part = event->rect().intersected(QRect(Origin(), sizeHint()));
  painter.drawImage(part.topLeft(), picture_.Image(), part.translated(-Origin()));
}

void PictureView::mousePressEvent(QMouseEvent* event) {
  emit MouseDown(event->button(), PixelAt(event->pos()));
}
void PictureView::mouseMoveEvent(QMouseEvent* event) { emit MouseMove(PixelAt(event->pos())); }

QWidget* ScrollBoxOf(PictureView* view, QWidget* parent) {
  auto* box = new QScrollArea(parent);
  box->setFrameShape(QFrame::NoFrame);
  box->setWidgetResizable(true);
  box->setWidget(view);
  // Scrolled contents have a ground of their own otherwise.
  view->setAutoFillBackground(false);
  box->viewport()->setAutoFillBackground(false);
  return box;
}
