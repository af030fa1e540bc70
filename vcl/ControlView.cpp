#include "vcl/ControlView.h"

#include <QPainter>
#include <QStyle>
#include <utility>

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

void ControlView::ControlChanged(TControl&) {
  if (const QSize now = sizeHint(); now != std::exchange(shown_, now)) updateGeometry();
  update();
}

QSize ControlView::sizeHint() const {
  return control_ && !fill_ ? control_->BoundsRect().size() : QSize(80, 40);
}

void ControlView::SetPlace(Qt::Alignment place) {
  place_ = place;
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

// While nothing is shown, nobody hears of a new size.
void ControlView::showEvent(QShowEvent*) { updateGeometry(); }

// From the left and the top when there is no room, so that the start of a text is never cut.
QPoint ControlView::Origin() const {
  const QSize size = control_->BoundsRect().size();
  return QStyle::alignedRect(layoutDirection(), place_, size, rect().united({QPoint(0, 0), size})).topLeft();
}

void ControlView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), FormPalette().color(QPalette::Window));
  if (!control_) return;
  painter.translate(Origin());
  painter.setClipRect(QRect(QPoint(0, 0), control_->BoundsRect().size()));
  PaintControl(*control_, painter);
}
