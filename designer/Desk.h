// The part of the surface that is in sight. Zooming keeps a point of the form where it is on the screen.
#pragma once
#include <QScrollArea>

class FormSurface;

class Desk : public QScrollArea {
  Q_OBJECT
 public:
  explicit Desk(FormSurface& surface);
  // About the middle of what is in sight.
  void SetZoom(double factor);
  static constexpr double ZoomStep = 1.25;

 signals:
  void Zoomed();

 protected:
  // With Ctrl: zooms about the pointer.
  void wheelEvent(QWheelEvent* event) override;

 private:
  void ZoomAbout(QPoint point, double factor);
  FormSurface& surface_;
};
