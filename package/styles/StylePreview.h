// Shows a control of a class with a style applied, on a panel.
#pragma once
#include <QFrame>

#include "vcl/ControlView.h"

class TVRXStyleManager;

class StylePreview : public QFrame {
  Q_OBJECT
 public:
  explicit StylePreview(QWidget* parent);
  ~StylePreview() override;

  // A new control of the class, or none: for names without a class, for what is no control, and for classes
  // that are only there to be inherited from.
  void ShowControl(const QString& className);
  TControl* Control() const { return control_.get(); }
  // Gives the control what the style says; the control is as new before.
  void ApplyStyle(const TVRXStyleManager& manager, const QString& stylePath, bool cascade);

  void SetThemed(bool on);
  void SetAligned(bool on);
  void SetGround(bool on);
  ControlView* View() const { return view_; }
  QSize sizeHint() const override { return {300, 110}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Make();
  void Arrange();
  ControlView* view_;
  QString className_;
  std::unique_ptr<TControl> control_;
  bool themed_ = false, aligned_ = false, ground_ = true;
};
