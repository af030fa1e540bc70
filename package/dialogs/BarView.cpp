#include "package/dialogs/BarView.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QRubberBand>
#include <QWheelEvent>
#include <utility>

BarView::BarView(TVRXButtonBar& bar, TVRXButtonBarPopupMenu& menu, QWidget* parent)
    : ControlView(&bar, parent),
      bar_(bar),
      menu_(menu),
      mark_(new QRubberBand(QRubberBand::Rectangle, this)) {
  SetFillView(true);
  setFocusPolicy(Qt::StrongFocus);
}
// A field that goes reports what was typed.
BarView::~BarView() { EndRename(false); }

void BarView::OpenSection(int index) {
  if (index < 0 || index >= bar_.SectionCount() || index == bar_.CurrentIndex()) return;
  bar_.Open(index);
  emit SectionChanged();
}
void BarView::SelectItem(int index) {
  const TVRXBarSection* section = bar_.Current();
  if (!section || index < 0 || index >= section->ItemCount()) return;
  bar_.Set(TVRXButtonBar::ItemIndex, index);
  bar_.ScrollIntoView(index);
  emit ItemClicked(index);
}
void BarView::Scroll(int steps) {
  bar_.ScrollTo(bar_.TopItem() + steps * bar_.Get(TVRXButtonBar::ScrollStep));
}
void BarView::Select(const TVRXBarPlace& place) {
  if (place.What == TVRXBarPlace::Section) OpenSection(place.Index);
  if (place.What == TVRXBarPlace::Item) SelectItem(place.Index);
}

void BarView::mousePressEvent(QMouseEvent* event) {
  EndRename(true);
  const TVRXBarPlace place = bar_.PlaceAt(event->position().toPoint());
  Select(place);
  if (event->button() != Qt::LeftButton) return;
  pressed_ = place;
  from_ = event->pos();
  direction_ = place.What == TVRXBarPlace::ScrollUp ? -1 : place.What == TVRXBarPlace::ScrollDown ? 1 : 0;
  if (direction_ == 0) return;
  Scroll(direction_);
  constexpr std::uint32_t least = 10, most = 10'000;
  scrolling_.start(static_cast<int>(std::clamp(bar_.Get(TVRXButtonBar::ScrollDelay), least, most)), this);
}

bool BarView::IsUpright() const {
  return bar_.Get(TVRXButtonBar::Orientation) == TVRXBarOrientation::boVertical;
}
QRect BarView::RectOf(TVRXBarPlace::Kind what, int index) const {
  return what == TVRXBarPlace::Section ? bar_.SectionRect(index) : bar_.ItemRect(index);
}

// Before the first of its kind whose middle lies behind the point; what cannot be seen is not dropped among.
int BarView::DropIndex(QPoint point) const {
  const bool sections = pressed_.What == TVRXBarPlace::Section;
  const TVRXBarSection* open = bar_.Current();
  const int count = sections ? bar_.SectionCount() : open ? open->ItemCount() : 0;
  int behind = pressed_.Index;
  for (int i = sections ? 0 : bar_.TopItem(); i < count; ++i) {
    const QRect rect = RectOf(pressed_.What, i);
    if (rect.isEmpty() && (!sections || i > bar_.CurrentIndex())) break;
    if (rect.isEmpty()) continue;
    if (IsUpright() ? point.y() < rect.center().y() : point.x() < rect.center().x()) return i;
    behind = i + 1;
  }
  return behind;
}

void BarView::mouseMoveEvent(QMouseEvent* event) {
  if (!event->buttons().testFlag(Qt::LeftButton)) return;
  if (pressed_.What != TVRXBarPlace::Section && pressed_.What != TVRXBarPlace::Item) return;
  dragging_ |= (event->pos() - from_).manhattanLength() >= QApplication::startDragDistance();
  if (!dragging_) return;
  constexpr int line = 3;
  const int before = DropIndex(event->pos());
  QRect rect = RectOf(pressed_.What, before);
  const bool atEnd = rect.isEmpty();
  if (atEnd) rect = RectOf(pressed_.What, before - 1);
  if (IsUpright())
    rect = QRect(rect.left(), (atEnd ? rect.bottom() + 1 : rect.top()) - line / 2, rect.width(), line);
  else
    rect = QRect((atEnd ? rect.right() + 1 : rect.left()) - line / 2, rect.top(), line, rect.height());
  mark_->setGeometry(rect);
  mark_->show();
}

void BarView::EndDrag() {
  pressed_ = {};
  dragging_ = false;
  mark_->hide();
}

void BarView::mouseReleaseEvent(QMouseEvent* event) {
  scrolling_.stop();
  const TVRXBarPlace what = pressed_;
  const int before = dragging_ ? DropIndex(event->pos()) : what.Index;
  const bool drops = dragging_ && event->button() == Qt::LeftButton;
  EndDrag();
  if (drops) Move(what, before > what.Index ? before - 1 : before);
}

void BarView::Move(const TVRXBarPlace& what, int to) {
  if (what.Index == to) return;
  if (what.What == TVRXBarPlace::Section) return bar_.MoveSection(what.Index, to);
  bar_.MoveItem(what.Index, to);
  SelectItem(bar_.Get(TVRXButtonBar::ItemIndex));
}
void BarView::MoveBy(bool section, int by) {
  const TVRXBarSection* open = bar_.Current();
  if (!open) return;
  const int from = section ? bar_.CurrentIndex() : bar_.Get(TVRXButtonBar::ItemIndex), to = from + by;
  if (from < 0 || to < 0 || to >= (section ? bar_.SectionCount() : open->ItemCount())) return;
  Move({section ? TVRXBarPlace::Section : TVRXBarPlace::Item, from}, to);
}
void BarView::timerEvent(QTimerEvent* event) {
  if (event->timerId() == scrolling_.timerId()) Scroll(direction_);
}

void BarView::wheelEvent(QWheelEvent* event) {
  EndRename(true);
  Scroll(event->angleDelta().y() < 0 ? 1 : -1);
  event->accept();
}

void BarView::keyPressEvent(QKeyEvent* event) {
  const int item = bar_.Get(TVRXButtonBar::ItemIndex), section = bar_.CurrentIndex();
  const bool moves = event->modifiers().testFlag(Qt::ControlModifier);
  switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Left:
      return moves ? MoveBy(item < 0, -1) : SelectItem(item - 1);
    case Qt::Key_Down:
    case Qt::Key_Right:
      return moves ? MoveBy(item < 0, 1) : SelectItem(item + 1);
    case Qt::Key_PageUp:
      return moves ? MoveBy(true, -1) : OpenSection(section - 1);
    case Qt::Key_PageDown:
      return moves ? MoveBy(true, 1) : OpenSection(section + 1);
    case Qt::Key_Delete:
      for (const TVRXButtonBarPopupMenu::Entry& entry : menu_.Entries(bar_))
        if (entry.Command == TVRXBarCommand::bcDeleteItem && entry.Enabled) Run(entry.Command);
      return;
    case Qt::Key_Escape:
      // While something is dragged, it is for that.
      if (dragging_) return EndDrag();
      return ControlView::keyPressEvent(event);
    case Qt::Key_F2:
      return item >= 0 ? RenItem() : RenSection();
    default:
      ControlView::keyPressEvent(event);
  }
}

// The frame of the selected item is all that there is to be seen of the focus.
void BarView::focusInEvent(QFocusEvent* event) {
  ControlView::focusInEvent(event);
  if (event->reason() != Qt::MouseFocusReason && bar_.Get(TVRXButtonBar::ItemIndex) < 0) SelectItem(0);
}
void BarView::resizeEvent(QResizeEvent* event) {
  EndRename(true);
  ControlView::resizeEvent(event);
}

std::unique_ptr<QMenu> BarView::MakeMenu() {
  auto menu = std::make_unique<QMenu>();
  for (const TVRXButtonBarPopupMenu::Entry& entry : menu_.Entries(bar_)) {
    if (entry.BeginsGroup) menu->addSeparator();
    QAction* action = menu->addAction(entry.Text);
    action->setEnabled(entry.Enabled);
    action->setCheckable(entry.Command == TVRXBarCommand::bcLargeImages ||
                         entry.Command == TVRXBarCommand::bcSmallImages);
    action->setChecked(entry.Checked);
    connect(action, &QAction::triggered, this, [this, command = entry.Command] { Run(command); });
  }
  return menu;
}

void BarView::Run(TVRXBarCommand command) {
  if (command == TVRXBarCommand::bcRenameSection) return RenSection();
  if (command == TVRXBarCommand::bcRenameItem) return RenItem();
  const TVRXBarSection* const open = bar_.Current();
  const int items = open ? open->ItemCount() : 0;
  TVRXButtonBarPopupMenu::Execute(bar_, command);
  if (bar_.Current() != open)
    emit SectionChanged();
  else if (open && open->ItemCount() != items)
    emit ItemClicked(bar_.Get(TVRXButtonBar::ItemIndex));
}

void BarView::contextMenuEvent(QContextMenuEvent* event) {
  EndRename(true);
  if (event->reason() == QContextMenuEvent::Mouse) Select(bar_.PlaceAt(event->pos()));
  QMenu* menu = MakeMenu().release();
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->popup(event->globalPos());
  event->accept();
}

void BarView::RenSection(int index) {
  if (index < 0) index = bar_.CurrentIndex();
  if (index < 0 || index >= bar_.SectionCount()) return;
  Rename(bar_.SectionRect(index), bar_.Sections()->At(index).Get(TVRXBarSection::Caption),
         [this, index](const QString& text) { bar_.RenSection(index, text); });
}
void BarView::RenItem(int index) {
  const TVRXBarSection* section = bar_.Current();
  if (index < 0) index = bar_.Get(TVRXButtonBar::ItemIndex);
  if (!section || index < 0 || index >= section->ItemCount()) return;
  bar_.ScrollIntoView(index);
  const QRect place = bar_.ItemRect(index);
  const int height = fontMetrics().height() + 8;
  const QRect line(place.left() + 4, place.bottom() - height, place.width() - 8, height);
  Rename(section->Get(TVRXBarSection::SmallImages) ? place : line,
         section->Items()->At(index).Get(TVRXBarItem::Caption),
         [this, index](const QString& text) { bar_.RenItem(index, text); });
}

void BarView::Rename(const QRect& place, const QString& text, std::function<void(const QString&)> take) {
  EndRename(true);
  if (place.isEmpty()) return;
  take_ = std::move(take);
  editor_ = new QLineEdit(text, this);
  editor_->setMaxLength(INT_MAX);
  editor_->setText(text);
  editor_->setGeometry(place);
  editor_->installEventFilter(this);
  editor_->selectAll();
  editor_->show();
  editor_->setFocus();
}

void BarView::EndRename(bool keep) {
  QLineEdit* const editor = std::exchange(editor_, nullptr);
  if (!editor) return;
  const bool focused = editor->hasFocus();
  if (keep && editor->isModified()) take_(editor->text());
  editor->removeEventFilter(this);
  editor->hide();
  editor->deleteLater();
  if (focused) setFocus(Qt::OtherFocusReason);
}

// Return and Escape are for the name, not for the dialog.
bool BarView::eventFilter(QObject* watched, QEvent* event) {
  if (watched != editor_) return ControlView::eventFilter(watched, event);
  if (event->type() == QEvent::FocusOut) EndRename(true);
  if (event->type() != QEvent::KeyPress) return false;
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Escape) return false;
  EndRename(key != Qt::Key_Escape);
  return true;
}
