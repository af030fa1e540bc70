// The surface a form is designed on: the form drawn as a window on a desk, with handles, rubber band and the
// icons of components that are not controls. Zoom never changes the form.
#pragma once
#include <QPointer>
#include <QWidget>
#include <optional>

#include "designintf/ComponentTile.h"
#include "ide/Tiles.h"
#include "vcl/MenuLook.h"

class FormSurface : public QWidget {
  Q_OBJECT
 public:
  explicit FormSurface(QWidget* parent = nullptr);
  void SetSession(FormSession* session);

  void SetZoom(double factor);
  double Zoom() const { return zoom_; }
  static constexpr int Grid = 8;
  static constexpr int IconSize = ComponentTileSize;
  static constexpr int Desk = 24;  // room around the form

  // The class that the next click places; null for the arrow. One that is kept, and one that is placed with
  // Shift, is there for the click after that, too.
  void SetTool(const TClass* cls, bool keep = false);
  const TClass* Tool() const { return tool_; }
  bool KeepsTool() const { return keepTool_; }
  // Whether the mouse is about something that counts in widget coordinates.
  bool IsDragging() const { return action_ != Action::None; }

  // Places in widget coordinates, for views and tests.
  QRect WidgetRect(const TComponent& component) const;
  TComponent* ComponentAt(QPoint widgetPoint) const;
  QSize sizeHint() const override;

 signals:
  void ToolUsed();
  void ToolChanged();
  void Message(const QString& text);  // something could not be done
  void Notice(const QString& text);   // something to know, told quietly
  void ContextMenuWanted(const QPoint& globalPos);
  void InspectorWanted();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  bool event(QEvent* event) override;

 private:
  enum class Action { None, Press, Move, Resize, Band, Place };
  struct Start {
    TComponent* component;
    QRect rect;
  };
  void Guarded(const std::function<void()>& action);
  TControl* DeepestAt(QPoint formPoint) const;
  QRect Shown(const QRect& formRect) const;
  QPoint ToForm(QPoint widgetPoint) const;  // client coordinates of the form
  QPoint ClientOrigin() const;              // of the form's client area, in unzoomed surface coordinates
  static bool HasIcon(const TComponent& component) { return !As<TControl>(&component); }
  QRect FormRectOf(const TComponent& component) const;
  int HandleAt(QPoint widgetPoint) const;
  std::vector<QRect> Handles() const;
  void Drag(QPoint widgetPoint, bool fine);
  void TakeTab(TComponent& hit, QPoint formPoint);
  void FinishDrag();
  bool FinishOverContainer();
  void FindTarget(QPoint widgetPoint);
  std::vector<TComponent*> Movable() const;
  std::vector<TComponent*> DraggedControls() const;
  void CancelDrag();
  void PlaceTool(const QRect& formRect, bool keep);
  void SelectBand(const QRect& formRect, bool add);
  void Nudge(int dx, int dy, bool resize);
  void SetRect(TComponent& component, const QRect& rect);
  void WalkSelection(int step);
  void PaintGrid(QPainter& p, const QRect& sight) const;
  void PaintIcons(QPainter& p, const QRect& sight) const;
  void PaintSelection(QPainter& p);
  // The form's menu, open down to the selected item; its origin in client coordinates is above the client
  // area.
  std::optional<TMenuLook> OpenMenu() const;
  TMenuLook::Place SelectedInMenu() const;
  QPoint MenuOrigin() const;
  void PaintMenu(QPainter& p) const;
  // Where the only selected component, a field, shows what drops down from it, in client coordinates; empty
  // for none, where it would hide another component, and while something is dragged.
  QRect DropDownRect() const;
  bool HidesOthers(const QRect& formRect, const TControl& field) const;
  void PaintDropDown(QPainter& p) const;
  void PaintDrag(QPainter& p) const;
  void UpdateSize();
  void TakeChange(const FormChange& change);
  void ListIcons();
  void Touch(const TControl& control);
  QRect FrameRect(const TComponent& component) const;
  void UpdateFrames();
  void UpdateCursor(QPoint widgetPoint);

  QPointer<FormSession> session_;
  double zoom_ = 1;
  const TClass* tool_ = nullptr;
  bool keepTool_ = false;
  Action action_ = Action::None;
  int handle_ = -1;
  QPoint pressed_;
  QPoint current_;
  std::vector<Start> starts_;       // what is dragged
  TComponent* grabbed_ = nullptr;   // the one under the pointer when the drag began
  TWinControl* target_ = nullptr;   // another container that what is dragged would go to
  QString refusal_;                 // why it cannot
  std::vector<TComponent*> icons_;  // what has a tile
  QRegion frames_;                  // where the selection is painted
  bool menuOpen_ = false;           // as it was painted
};
