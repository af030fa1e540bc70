// The in-place editor of the inspector's current row: a field, a drop-down list when there are values to
// choose from, an ellipsis when there is a dialog, and under it the reason when a value was refused.
#pragma once
#include <QWidget>

class QKeyEvent;
class QLabel;
class QLineEdit;
class QToolButton;

class ValueEditor : public QWidget {
  Q_OBJECT
 public:
  explicit ValueEditor(QWidget* parent);
  struct Setup {
    QString name;  // the row's path
    QString text;
    std::function<QStringList()> values;  // asked for when somebody wants to see them; null: none ever
    bool mixed = false;                   // the components differ; the text is empty
    bool readOnly = false;
    bool bold = false;  // the value is not the default
    bool dialog = false;
    int limit = 255;  // of what can be typed
    std::function<QIcon(const QString&)> iconOf;
  };
  // Shows a row's value. With `keepTyping` what was typed and the reason under it stay.
  void Show(const Setup& setup, bool keepTyping = false);
  QLineEdit* Field() const { return field_; }
  QToolButton* DropButton() const { return drop_; }
  QToolButton* EllipsisButton() const { return ellipsis_; }
  // Whether something was typed that is not applied yet.
  bool IsChanged() const;
  // A text as if it had been typed.
  void SetTyped(const QString& text);
  // Shows why the value was refused; empty hides it.
  void SetProblem(const QString& reason);
  QString Problem() const;
  void Restore();

 signals:
  void Entered(const QString& text);  // Enter on a changed text, or a value chosen from the list
  void Moved(int rows);               // to a row above or below, after applying
  void Opened(bool open);             // the row's own rows
  void Left();                        // Escape when there is nothing to restore
  void FocusLost();
  void DialogWanted();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void OpenList();
  bool Override(QKeyEvent& key);
  bool KeyPressed(QKeyEvent& key);
  bool DoubleClicked();
  Setup setup_;
  QLineEdit* field_;
  QToolButton* drop_;
  QToolButton* ellipsis_;
  QLabel* problem_;
};
