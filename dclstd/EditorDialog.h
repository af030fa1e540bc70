// The base of editor dialogs: a fixed window with settings on the left and a preview and the
// buttons on the right. The code that shows a dialog owns it.
#pragma once
#include <vector>

#include "dclstd/ModalDialog.h"

class QGridLayout;
class QLabel;
class QPushButton;
class QScrollArea;
class QVBoxLayout;
class ControlView;

constexpr int DefaultPreviewWidth = 198;

class EditorDialog : public ModalDialog {
  Q_OBJECT
 public:
  // The client area is at least `clientSize`, and more where font or language need it.
  EditorDialog(const QString& caption, QSize clientSize, QWidget* parent = nullptr,
               int previewWidth = DefaultPreviewWidth);

 protected:
  // A row of the settings: label, control and, behind it, an optional button.
  void AddRow(const QString& label, QWidget* control, QWidget* button = nullptr);
  void AddWide(QWidget* widget);
  // The quiet surface the preview stands on.
  void SetPreview(QWidget* preview);
  // A control in its real size, at its place on the surface; what does not fit is scrolled to.
  void SetPreview(ControlView* preview, Qt::Alignment place);
  QPushButton* AddButton(const QString& text);
  // OK and Cancel close the dialog with their results.
  void AddOk(QPushButton* button);
  void AddCancel(QPushButton* button);
  void SetTabSequence(const std::vector<QWidget*>& widgets);
  // Something between the preview and the buttons.
  void AddBelowPreview(QWidget* widget);
  // To be called when all controls are there. A fixed dialog has just the size it needs; in the others the
  // room for the preview can be changed.
  void FinishLayout(bool fixed = true);

 private:
  QSize clientSize_;
  QGridLayout* grid_;
  QVBoxLayout* previewBox_;
  QWidget* right_;
  QVBoxLayout* buttons_;
};

// A box that scrolls when the widget in it is larger; the ground is what is around it.
QScrollArea* ScrollBoxOf(QWidget* widget, QWidget* parent);
