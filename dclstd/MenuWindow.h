// A menu built as it looks: captions are typed where they will stand.
#pragma once
#include "dclstd/ComponentWindow.h"
#include "vcl/MenuLook.h"

class QLineEdit;
class MenuCanvas;

class MenuWindow : public ComponentWindow {
  Q_OBJECT
 public:
  using Place = TMenuLook::Place;
  MenuWindow(IDesigner& designer, TMenu& menu);

  TMenu& Menu() const;
  // Where typing goes: an item, or the place behind the last one of a level.
  const Place& Current() const { return current_; }
  // The item that makes room while one in front of it is typed.
  Place Gap() const { return inserting_ ? current_ : Place{}; }
  void GoTo(const Place& place);
  // Begins a caption: of the current item, or of a new one at the current place.
  void BeginCaption(const QString& text);
  // In front of the current item.
  void InsertItem();
  void DeleteItem();
  // What is below the current item, or would be.
  void OpenSubmenu();
  void MoveItem(int by);
  // In front of what stands there, or behind the last one.
  void MoveItemTo(TMenuItem& item, const Place& place);

  void SelectionChanged(IDesigner* designer, const TDesignerSelections& list) override;
  void ItemDeleted(IDesigner* designer, TPersistent* item) override;

  MenuCanvas* canvas = nullptr;
  QLineEdit* caption = nullptr;  // over the place that is typed into
  QToolButton *insert = nullptr, *remove = nullptr, *submenu = nullptr, *up = nullptr, *down = nullptr;

 protected:
  void Load() override;
  bool Rebound() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  friend class MenuCanvas;
  void SetCurrent(const Place& place);
  void GoToStart();
  void Tell();
  bool CanvasKey(int key, bool control, const QString& text);
  void Walk(int key);
  void WalkAlong(int by);
  void EndCaption(bool keep);
  TMenuItem& AddItem(const QString& text, int index);
  QString NameFor(const QString& text) const;
  void EnableButtons();
  static TMenuItem* Neighbour(const Place& place, int by);

  Place current_;
  bool inserting_ = false;  // the caption is that of a new item in front of the current one
  bool typing_ = false;
  QString itemName_, levelName_;  // of the current place
  bool telling_ = false;
};

// What is seen of the menu, and the mouse on it.
class MenuCanvas : public QWidget {
  Q_OBJECT
 public:
  explicit MenuCanvas(MenuWindow& window);
  TMenuLook Look() const;
  // Of a place, in coordinates of this widget.
  QRect RectOf(const TMenuLook::Place& place) const;
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  TMenuLook::Place At(QPoint point) const;
  MenuWindow& window_;
  QPoint pressed_;
  TMenuItem* dragged_ = nullptr;
  TMenuLook::Place target_;
};
