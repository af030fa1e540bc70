// The component palette: a page for every registered page, a search over all of them.
#pragma once
#include <QWidget>

#include "rtl/Class.h"

class QButtonGroup;
class QHBoxLayout;
class QLineEdit;
class QTabBar;
class QToolButton;

class PalettePane : public QWidget {
  Q_OBJECT
 public:
  explicit PalettePane(QWidget* parent = nullptr);
  // Reads the registered pages anew.
  void Reload();
  void SelectArrow();
  QToolButton* ButtonOf(const QByteArray& className) const;

 signals:
  void ToolChosen(const TClass* cls);  // null: the arrow
  void AddWanted(const TClass& cls);   // a double-click

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ShowPage();
  void AddButton(const TClass& cls, const QString& page);
  QLineEdit* search_;
  QTabBar* pages_;
  QWidget* buttons_;
  QHBoxLayout* row_;
  QButtonGroup* group_;
  QToolButton* arrow_;
};
