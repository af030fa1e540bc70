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
  // Where the control stands while the view is larger; in the middle at first.
  void SetPlace(Qt::Alignment place);
  // The control always has the size of the view; off at first.
  void SetFillView(bool fill);

  void ControlChanged(TControl& control) override;
  QSize sizeHint() const override;
  // Never less than the whole control, so that it is scrolled to instead of being cut.
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  QPoint Origin() const;
  void Fill();
  TControl* control_ = nullptr;
  QSize shown_;
  Qt::Alignment place_ = Qt::AlignCenter;
  bool fill_ = false;
};
