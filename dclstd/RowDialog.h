// A dialog made of rows. A row is a control with its name, label and hint, and the published property of the
// edited value that it shows and changes; range and entries come from the type of the property:
//
//   Preview(test, "Shows the current settings.");
//   Edits(*test->LED());
//   Row(edhs, "edhs", "HorzSize", "&HorzSize:", "How wide a letter is.").Changes(&TLEDDlg::edchange);
//   Row(cmbb, "cmbb", "ActiveColor", "&Color:").WithButton(bt1, "bt1", &TLEDDlg::btn);
//   Row(chk, "chk", "DisabledDigits", "&DisabledDigits");
//   Buttons({ok, "ok"}, {Button1, "Button1"}, {reset, "reset"});
//   Finish();
//
// A row without a handler writes its value and shows what was kept. Loading never writes: a value that a
// control cannot show stays until somebody changes that control.
#pragma once
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <deque>
#include <vector>

#include "dclstd/ModalDialog.h"
#include "dclstd/RowKinds.h"
#include "dclstd/SpinEdit.h"
#include "rtl/TypeInfo.h"

class QGridLayout;
class QLayout;
class RowDialog;

template <class W>
class RowOf {
 public:
  RowOf(RowDialog& dialog, W& control) : dialog_(dialog), control_(control) {}
  // The handler takes the control or nothing.
  template <class D, class... S>
  RowOf Changes(void (D::*handler)(S...));
  // The small button behind a colour that opens its dialog.
  template <class D, class... S>
  RowOf WithButton(QToolButton*& button, const char* name, void (D::*handler)(S...), const char* hint = "");
  // Of a drop-down list that shows no property. A list of things to do shows none of them.
  RowOf Items(const QStringList& texts);
  RowOf Items(const TTypeInfo& enumeration);
  // Other limits than those of the property's type.
  RowOf Range(int minimum, int maximum, int length) {
    control_.SetLimits(minimum, maximum, length);
    return *this;
  }
  RowOf Length(int length);
  // A check box of one element of a set.
  RowOf Element(int element);
  // In the line of another one instead of below.
  RowOf Beside(QWidget* other);

 private:
  RowDialog& dialog_;
  W& control_;
};

class RowDialog : public ModalDialog {
  Q_OBJECT
 public:
  RowDialog(const QString& caption, QWidget* parent) : ModalDialog(caption, parent) {}
  ~RowDialog() override;

  // What is edited: a copy, until somebody takes it from here.
  TPersistent& Value() const { return *value_; }
  // Some edit what is no published value.
  bool HasValue() const { return value_ != nullptr; }
  // Everything takes the IDE's theme but what has colours of its own.
  virtual bool NeedTheme(const QWidget& control) const;
  // The IDE's theme and custom colours. All lists of colours share these, and closing saves them.
  virtual void FormCreate();
  void FormClose() override;
  // A new value in place of the edited one.
  virtual void resetClick();
  // What is still to be done after OK, before the value is taken. False: it is not.
  virtual bool Confirmed() { return true; }

 protected:
  void Edits(TPersistent& value) { value_ = &value; }
  // Where the next rows stand: label, control, button.
  void RowsInto(QGridLayout& grid) { grid_ = &grid; }
  // Makes the control. "Font.Color" is a property of a part. Without a property it is the dialog that loads
  // the control and hears of its changes.
  template <class W>
  RowOf<W> Row(W*& control, const char* name, const char* property, const char* label,
               const char* hint = "") {
    control = new W(this);
    AddRow(*control, name, property, label, hint);
    return {*this, *control};
  }
  // A button that does something; where it stands is up to the dialog.
  template <class D, class... S>
  void Button(QPushButton*& button, const char* name, const char* text, void (D::*handler)(S...),
              const char* hint = "") {
    button = NewButton(name, text, hint);
    OnClick(button, Call(handler, button));
  }
  // Buttons that end the dialog, or bring the defaults back.
  void OkButton(QPushButton*& button, const char* name, const char* text = "OK");
  void CancelButton(QPushButton*& button, const char* name, const char* text = "Cancel");
  void ResetButton(QPushButton*& button, const char* name, const char* text = "Reset");
  // The line below everything: buttons at its left, and those that end the dialog at its right.
  static QLayout* ButtonLine(const std::vector<QPushButton*>& ends,
                             const std::vector<QPushButton*>& left = {});
  // Something between the rows, under the controls.
  void Wide(const std::vector<QWidget*>& beside);
  // A quiet remark there.
  void Note(const char* text, const char* name = "note");
  // Parts that keep the colours they have.
  void OwnColors(const std::vector<const QWidget*>& widgets) {
    own_.insert(own_.end(), widgets.begin(), widgets.end());
  }
  // The focus comes here after what has been added so far; rows and buttons do that themselves.
  void Follows(QWidget* widget) { order_.push_back(widget); }
  // To be called when all controls are there.
  void SetTabSequence();
  // The same, for a dialog that can be made larger: the content, beside it a column of buttons, and at the
  // end of that those that end the dialog.
  void FinishBeside(QLayout* content, const std::vector<QPushButton*>& buttons,
                    const std::vector<QPushButton*>& ends, QSize size);

  // The control with its label.
  void ShowRow(QWidget* control, bool visible);
  // Whether Return in a field is for the default button just now.
  virtual bool ReturnConfirms() const { return true; }
  void keyPressEvent(QKeyEvent* event) override;

  // Takes the value of a row's control.
  void Write(const QWidget* control);
  // The same, and shows what was kept of it once the dialog is active.
  void Apply(const QWidget* control);
  void LoadControls() override;

 private:
  template <class W>
  friend class RowOf;
  struct RowState {
    QWidget* control;
    TPersistent* of;  // the value or a part of it
    RowProperty property;
    std::function<void()> changed;
  };
  template <class D, class W, class... S>
  std::function<void()> Call(void (D::*handler)(S...), [[maybe_unused]] W* sender) {
    auto* const dialog = static_cast<D*>(this);
    if constexpr (sizeof...(S) == 0)
      return [dialog, handler] { (dialog->*handler)(); };
    else
      return [dialog, handler, sender] { (dialog->*handler)(sender); };
  }
  void AddRow(QWidget& control, const char* name, const char* property, const char* label, const char* hint);
  RowState& StateOf(const QWidget* control);
  QPushButton* NewButton(const char* name, const char* text, const char* hint);
  void OnClick(QPushButton* button, std::function<void()> handler);
  void OnClick(QToolButton* button, std::function<void()> handler);
  void AddColorButton(QToolButton*& button, const QWidget& control, const char* name, const char* hint);
  void PutBeside(QWidget& control, QWidget& other);
  static void SetItems(QComboBox& combo, const QStringList& texts);
  static QStringList NamesOf(const TTypeInfo& enumeration);

  TPersistent* value_ = nullptr;
  QGridLayout* grid_ = nullptr;
  std::deque<RowState> rows_;
  std::vector<QWidget*> order_;
  std::vector<const QWidget*> own_;
};

template <class W>
template <class D, class... S>
RowOf<W> RowOf<W>::Changes(void (D::*handler)(S...)) {
  dialog_.StateOf(&control_).changed = dialog_.Call(handler, &control_);
  return *this;
}
template <class W>
template <class D, class... S>
RowOf<W> RowOf<W>::WithButton(QToolButton*& button, const char* name, void (D::*handler)(S...),
                              const char* hint) {
  dialog_.AddColorButton(button, control_, name, hint);
  dialog_.OnClick(button, dialog_.Call(handler, button));
  return *this;
}
template <class W>
RowOf<W> RowOf<W>::Items(const QStringList& texts) {
  RowDialog::SetItems(control_, texts);
  return *this;
}
template <class W>
RowOf<W> RowOf<W>::Items(const TTypeInfo& enumeration) {
  return Items(RowDialog::NamesOf(enumeration));
}
template <class W>
RowOf<W> RowOf<W>::Length(int length) {
  int most = 1;
  for (int i = 0; i < length; ++i) most *= 10;
  return Range(control_.minimum(), std::min(control_.maximum(), most - 1), length);
}
template <class W>
RowOf<W> RowOf<W>::Element(int element) {
  dialog_.StateOf(&control_).property.Element = element;
  return *this;
}
template <class W>
RowOf<W> RowOf<W>::Beside(QWidget* other) {
  dialog_.PutBeside(control_, *other);
  return *this;
}
