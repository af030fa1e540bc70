// Small editors of single values: one of several names, a text, a setting.
#pragma once
#include "dclstd/RowDialog.h"

class QListWidget;
class TComponent;
class TPersistent;

// Lets the user choose the value of an enumeration, or the elements of a set, that the object publishes. It
// is written when the user confirms another one, and the result is true then.
bool VRXCPSelectValueDialog(TPersistent& object, const char* property);
// A caption in a field of its own.
bool VRXCPGetCaption(QString& caption);
// Any value as text; what is none of its type is told, and the dialog stays open.
bool VRXCPGetSettingEditor(TPersistent& object, const char* property);

class TVRXSelectValueDlg : public RowDialog {
  Q_OBJECT
 public:
  explicit TVRXSelectValueDlg(QWidget* owner = nullptr);
  // Of a set each name can be checked.
  void SetNames(const QString& property, const QStringList& names, bool set, std::int64_t value);
  std::int64_t Chosen() const;

  QLabel* about;
  QListWidget* names;
  QPushButton *ok, *cancel;

 private:
  bool set_ = false;
};

class TVRXTextDlg : public RowDialog {
  Q_OBJECT
 public:
  explicit TVRXTextDlg(QWidget* owner = nullptr);
  // `take` is called on OK and throws when the text cannot be taken.
  void SetText(const QString& title, const QString& text, std::function<void(const QString&)> take);

  QLineEdit* text;
  QLabel* problem;
  QPushButton *ok, *cancel;

 private:
  void okClick();
  void textChange();
  std::function<void(const QString&)> take_;
};
