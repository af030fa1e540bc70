// Editor dialogs: a window with rows of settings on the left and a preview and the buttons on the right. The
// code that shows a dialog owns it.
#pragma once
#include "dclstd/RowDialog.h"
#include "vcl/ControlView.h"

class QScrollArea;
class QVBoxLayout;

// A box that scrolls when the widget in it is larger; the ground is what is around it.
QScrollArea* ScrollBoxOf(QWidget* widget, QWidget* parent);

constexpr int DefaultPreviewWidth = 198;

class EditorDialog : public RowDialog {
  Q_OBJECT
 public:
  // The client area is at least `clientSize`, and more where font or language need it.
  EditorDialog(const QString& caption, QSize clientSize, QWidget* parent = nullptr,
               int previewWidth = DefaultPreviewWidth);
  ~EditorDialog() override;

  ControlView* testView = nullptr;  // what the preview is seen in

 protected:
  // The control that shows the edited value; the dialog owns it. It fills the quiet surface it stands on.
  template <class C>
  void Preview(C*& control, const char* hint = "") {
    TakePreview(control = new C(nullptr), hint);
    FillPreview();
  }
  // In its real size, at its place there; what does not fit is scrolled to.
  template <class C>
  void Preview(C*& control, const char* hint, Qt::Alignment place) {
    TakePreview(control = new C(nullptr), hint);
    ScrollPreview(place);
  }
  // Anything else.
  void SetPreview(QWidget* preview);
  // Something between the preview and the buttons, side by side.
  void AddBelowPreview(const std::vector<QWidget*>& beside);
  // All of the rows.
  QWidget& SettingsPanel() const { return *settings_; }

  struct NamedButton {
    QPushButton*& button;
    const char* name;
  };
  // OK and Cancel close the dialog with their results; Reset brings the defaults back.
  void Buttons(NamedButton ok, NamedButton cancel);
  void Buttons(NamedButton ok, NamedButton cancel, NamedButton reset);
  // To be called when all controls are there. A fixed dialog has just the size it needs; in the others the
  // room for the preview can be changed.
  void Finish(bool fixed = true);

 private:
  void TakePreview(TControl* control, const char* hint);
  void FillPreview();
  void ScrollPreview(Qt::Alignment place);

  std::unique_ptr<TControl> preview_;
  QSize clientSize_;
  QWidget* settings_;
  QVBoxLayout* previewBox_;
  QWidget* right_;
  QVBoxLayout* buttons_;
};
