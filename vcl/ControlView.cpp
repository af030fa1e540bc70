#include "vcl/ControlView.h"

#include <QMouseEvent>
#include <QPainter>

ControlView::ControlView(TControl* control, QWidget* parent) : QWidget(parent) { SetControl(control); }

ControlView::~ControlView() { SetControl(nullptr); }

void ControlView::SetControl(TControl* control) {
  if (control_) control_->SetHost(nullptr);
  control_ = control;
  if (control_) control_->SetHost(this);
  updateGeometry();
  update();
}

void ControlView::ControlChanged(TControl&) { update(); }

QSize ControlView::sizeHint() const { return control_ ? control_->BoundsRect().size() : QSize(80, 40); }

// Centred while there is room, else from the left so that the start of a text is never cut.
QPoint ControlView::Origin() const {
  const QSize size = control_->BoundsRect().size();
  return {std::max(0, (width() - size.width()) / 2), std::max(0, (height() - size.height()) / 2)};
}

void ControlView::paintEvent(QPaintEvent*) {
  if (!control_) return;
  QPainter painter(this);
  painter.translate(Origin());
  painter.setClipRect(QRect(QPoint(0, 0), control_->BoundsRect().size()));
  PaintControl(*control_, painter);
}

void ControlView::mouseReleaseEvent(QMouseEvent* event) {
  if (control_ && QRect(Origin(), control_->BoundsRect().size()).contains(event->pos())) emit Clicked();
}
