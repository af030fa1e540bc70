// The in-place editor of the inspector's current row: a field, a drop-down list when there are values to
// choose from, an ellipsis when there is a dialog, and under it the reason when a value was refused.
#pragma once
#include <QWidget>

class QFrame;
class QLabel;
class QLineEdit;
class QToolButton;

class ValueEditor : public QWidget {
  Q_OBJECT
 public:
  explicit ValueEditor(QWidget* parent);
  struct Setup {
    QString text;
    QStringList values;
    bool readOnly = false;
    bool dialog = false;
    std::function<QIcon(const QString&)> iconOf;
  };
  void Show(const Setup& setup);
  QLineEdit* Field() const { return field_; }
  QToolButton* DropButton() const { return drop_; }
  QToolButton* EllipsisButton() const { return ellipsis_; }
  bool IsChanged() const;
  // Shows why the value was refused; empty hides it.
  void SetProblem(const QString& reason);
  QString Problem() const;
  void Restore();

 signals:
  void Entered(const QString& text);  // Enter, or a value chosen from the list
  void Moved(int rows);               // up or down, after applying
  void DialogWanted();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void OpenList();
  Setup setup_;
  QLineEdit* field_;
  QToolButton* drop_;
  QToolButton* ellipsis_;
  QLabel* problem_;
};
