#include "vcl/ControlView.h"

#include <QMouseEvent>
#include <QPainter>
#include <cmath>

#include "vcl/FormColors.h"

ControlView::ControlView(TControl* control, QWidget* parent) : QWidget(parent) { SetControl(control); }

ControlView::~ControlView() { SetControl(nullptr); }

void ControlView::SetControl(TControl* control) {
  if (control_) control_->SetHost(nullptr);
  control_ = control;
  if (control_) control_->SetHost(this);
  Fill();
  updateGeometry();
  update();
}

void ControlView::ControlChanged(TControl&) { update(); }

QSize ControlView::sizeHint() const {
  return control_ && !fill_ ? control_->BoundsRect().size() : QSize(80, 40);
}

void ControlView::SetShrinkToFit(bool shrink) {
  shrink_ = shrink;
  update();
}

void ControlView::SetFillView(bool fill) {
  fill_ = fill;
  Fill();
}

void ControlView::Fill() {
  if (fill_ && control_) control_->SetBounds(0, 0, width(), height());
}

void ControlView::resizeEvent(QResizeEvent*) { Fill(); }

double ControlView::Scale() const {
  if (!shrink_ || !control_ || control_->Width() == 0 || control_->Height() == 0) return 1;
  return std::min({1.0, static_cast<double>(width()) / control_->Width(),
                   static_cast<double>(height()) / control_->Height()});
}

// Centred while there is room, else from the left so that the start of a text is never cut.
QPointF ControlView::Origin() const {
  const QSizeF size = QSizeF(control_->BoundsRect().size()) * Scale();
  return {std::max(0.0, std::floor((width() - size.width()) / 2)),
          std::max(0.0, std::floor((height() - size.height()) / 2))};
}

void ControlView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), FormPalette().color(QPalette::Window));
  if (!control_) return;
  painter.translate(Origin());
  painter.scale(Scale(), Scale());
  painter.setClipRect(QRect(QPoint(0, 0), control_->BoundsRect().size()));
  PaintControl(*control_, painter);
}

void ControlView::mouseReleaseEvent(QMouseEvent* event) {
  if (control_ &&
      QRectF(Origin(), QSizeF(control_->BoundsRect().size()) * Scale()).contains(event->position()))
    emit Clicked();
}
