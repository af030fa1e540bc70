// The widget that shows a control, in dialogs and previews: on a form's face, in the forms' colour scheme.
#pragma once
#include <QWidget>

#include "vcl/Control.h"

class ControlView : public QWidget, public IControlHost {
  Q_OBJECT
 public:
  // Shows `control`, which must outlive the view or be taken away with SetControl(nullptr).
  explicit ControlView(TControl* control, QWidget* parent = nullptr);
  ~ControlView() override;
  void SetControl(TControl* control);
  TControl* Control() const { return control_; }
  // A control larger than the view is drawn smaller instead of being cut; off at first.
  void SetShrinkToFit(bool shrink);
  // The control always has the size of the view; off at first.
  void SetFillView(bool fill);
  double Scale() const;

  void ControlChanged(TControl& control) override;
  QSize sizeHint() const override;

 signals:
  void Clicked();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QPointF Origin() const;
  void Fill();
  TControl* control_ = nullptr;
  bool shrink_ = false, fill_ = false;
};
