#include "designer/Desk.h"

#include <QScrollBar>
#include <QWheelEvent>

#include "designer/FormSurface.h"

Desk::Desk(FormSurface& surface) : surface_(surface) {
  setWidget(&surface);
  setWidgetResizable(true);
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);  // the surface has it
}

void Desk::SetZoom(double factor) { ZoomAbout(viewport()->rect().center(), factor); }

// `point` is the viewport's.
void Desk::ZoomAbout(QPoint point, double factor) {
  constexpr double NearlyOne = 0.05;
  const double before = surface_.Zoom();
  const QPointF on = surface_.mapFrom(viewport(), point);
  const QPoint scrolled(horizontalScrollBar()->value(), verticalScrollBar()->value());
  surface_.SetZoom(std::abs(factor - 1) < NearlyOne ? 1 : factor);
  // The bars know the new size when the surface has it.
  surface_.resize(surface_.sizeHint().expandedTo(viewport()->size()));
  const QPoint to = scrolled + (on * (surface_.Zoom() / before) - on).toPoint();
  horizontalScrollBar()->setValue(to.x());
  verticalScrollBar()->setValue(to.y());
  emit Zoomed();
}

void Desk::wheelEvent(QWheelEvent* event) {
  if (!(event->modifiers() & Qt::ControlModifier)) return QScrollArea::wheelEvent(event);
  event->accept();
  constexpr double Notch = 120;
  const double notches = event->angleDelta().y() / Notch;
  if (notches != 0 && !surface_.IsDragging())
    ZoomAbout(event->position().toPoint(), surface_.Zoom() * std::pow(ZoomStep, notches));
}
