// A button bar that works: sections open, items are selected, renamed in their place, and its menu opens.
#pragma once
#include <QBasicTimer>

#include "library/components/ButtonBarPopupMenu.h"
#include "vcl/ControlView.h"

class QLineEdit;
class QMenu;
class QRubberBand;

class BarView : public ControlView {
  Q_OBJECT
 public:
  // Both outlive the view.
  BarView(TVRXButtonBar& bar, TVRXButtonBarPopupMenu& menu, QWidget* parent);
  ~BarView() override;

  // -1: the open section, or the selected item. The text is typed where it stands.
  void RenSection(int index = -1);
  void RenItem(int index = -1);
  QLineEdit* Editor() const { return editor_; }
  // The bar's menu as it is now; the caller owns it.
  std::unique_ptr<QMenu> MakeMenu();

 signals:
  void SectionChanged();
  // Or another one is the selected one now; -1 for none.
  void ItemClicked(int item);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Select(const TVRXBarPlace& place);
  void OpenSection(int index);
  void SelectItem(int index);
  void Scroll(int steps);
  void Run(TVRXBarCommand command);
  // To another place in the order: headings among headings, items among those of their section.
  void Move(const TVRXBarPlace& what, int to);
  void MoveBy(bool section, int by);
  QRect RectOf(TVRXBarPlace::Kind what, int index) const;
  bool IsUpright() const;
  int DropIndex(QPoint point) const;
  void EndDrag();
  void Rename(const QRect& place, const QString& text, std::function<void(const QString&)> take);
  void EndRename(bool keep);

  TVRXButtonBar& bar_;
  TVRXButtonBarPopupMenu& menu_;
  QLineEdit* editor_ = nullptr;
  std::function<void(const QString&)> take_;
  QBasicTimer scrolling_;
  int direction_ = 0;
  TVRXBarPlace pressed_;  // what is dragged, or may be
  QPoint from_;
  bool dragging_ = false;
  QRubberBand* mark_;
};
