// The component palette: a page for every registered page, a search over all of them.
//
// A click takes a tool up, for one placing or, with Shift, for several; a double-click and Enter place one
// component at once.
#pragma once
#include <QWidget>

#include "designintf/DesignRegistry.h"

class QButtonGroup;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QScrollArea;
class QTabBar;
class QToolButton;

class PalettePane : public QWidget {
  Q_OBJECT
 public:
  explicit PalettePane(const DesignRegistry& registry, QWidget* parent = nullptr);
  // Reads the registered pages anew.
  void Reload();
  // Shows the arrow as chosen.
  void SelectArrow();
  // Puts the tool down.
  void PutDown();
  // The button of a class on the page that is shown; null when it is on another one.
  QToolButton* ButtonOf(const QByteArray& className) const;
  QLineEdit& Search() { return *search_; }
  // What is said when a search finds nothing; empty when it finds something.
  QString Notice() const;

 signals:
  void ToolChosen(const TClass* cls, bool keep);  // null: the arrow; keep: for several placings
  void AddWanted(const TClass& cls);              // at once
  void Left();                                    // Escape when there is nothing to take back

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QToolButton* ScrollButton(Qt::ArrowType arrow, const QString& name, int direction);
  void ShowPage();
  void AddButton(const TClass& cls, const QString& page);
  void Place(const QToolButton& button);
  bool SearchKey(int key);
  bool ButtonKey(QToolButton& button, int key);
  void Focus(qsizetype index);

  QLineEdit* search_;
  QTabBar* pages_;
  QScrollArea* scroll_;
  QHBoxLayout* row_;
  QLabel* notice_;
  QButtonGroup* group_;
  QToolButton* arrow_;
  std::vector<QToolButton*> buttons_;  // of all pages
  std::vector<QToolButton*> shown_;
  const DesignRegistry& registry_;
};
