#include "designer/ValueEditor.h"

#include <QtWidgets>

namespace {
bool IsRedo(const QKeyEvent& key) {
  return key.matches(QKeySequence::Redo) || key.keyCombination() == (Qt::CTRL | Qt::Key_Y);
}
}  // namespace

ValueEditor::ValueEditor(QWidget* parent) : QWidget(parent) {
  setAutoFillBackground(true);
  field_ = new QLineEdit(this);
  field_->setFrame(false);
  field_->setObjectName(QStringLiteral("valueField"));
  field_->setAccessibleName(tr("Value"));
  field_->setFocusPolicy(Qt::ClickFocus);  // the list is the stop of the Tab key
  field_->installEventFilter(this);
  drop_ = new QToolButton(this);
  drop_->setArrowType(Qt::DownArrow);
  drop_->setObjectName(QStringLiteral("valueDrop"));
  drop_->setAccessibleName(tr("Choose a value"));
  ellipsis_ = new QToolButton(this);
  ellipsis_->setText(QStringLiteral("\u2026"));
  ellipsis_->setObjectName(QStringLiteral("valueEllipsis"));
  ellipsis_->setAccessibleName(tr("Open the editor"));
  for (QToolButton* button : {drop_, ellipsis_}) {
    button->setFocusPolicy(Qt::NoFocus);
    button->setFixedWidth(20);
  }
  auto* box = new QHBoxLayout(this);
  box->setContentsMargins(0, 0, 0, 0);
  box->setSpacing(0);
  box->addWidget(field_, 1);
  box->addWidget(drop_);
  box->addWidget(ellipsis_);
  for (QWidget* w : std::initializer_list<QWidget*>{field_, drop_, ellipsis_})
    w->setSizePolicy(w->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);

  problem_ = new QLabel(parent);
  problem_->setObjectName(QStringLiteral("valueProblem"));
  problem_->setWordWrap(true);
  problem_->setMargin(5);
  problem_->setAutoFillBackground(true);
  problem_->setBackgroundRole(QPalette::Window);  // not the list's
  problem_->setForegroundRole(QPalette::WindowText);
  problem_->setFrameShape(QFrame::Box);
  problem_->hide();

  connect(drop_, &QToolButton::clicked, this, &ValueEditor::OpenList);
  connect(ellipsis_, &QToolButton::clicked, this, &ValueEditor::DialogWanted);
  connect(field_, &QLineEdit::textEdited, this, [this] { SetProblem({}); });
}

void ValueEditor::Show(const Setup& setup, bool keepTyping) {
  const bool sameRow = setup.name == setup_.name && !isHidden();
  setup_ = setup;
  field_->setAccessibleName(setup.name);
  field_->setReadOnly(setup.readOnly);
  QFont font = this->font();
  font.setBold(setup.bold);
  field_->setFont(font);
  // Even the same limit makes the field forget that somebody typed.
  if (field_->maxLength() != setup.limit) {
    const bool typed = field_->isModified();
    field_->setMaxLength(setup.limit);
    field_->setModified(typed);
  }
  if (!keepTyping) {
    SetProblem({});
    // The cursor stays when there is nothing new to show.
    if (!sameRow || field_->text() != setup.text || field_->isModified()) {
      field_->setText(setup.text);
      field_->setCursorPosition(0);
      if (field_->hasFocus()) field_->selectAll();
    }
  }
  drop_->setVisible(setup.values != nullptr);
  ellipsis_->setVisible(setup.dialog);
  show();
  raise();
}

// Of differing values none is shown: emptying all of them shows in nothing but the typing.
bool ValueEditor::IsChanged() const {
  return !field_->isReadOnly() && field_->isModified() && (setup_.mixed || field_->text() != setup_.text);
}

void ValueEditor::SetTyped(const QString& text) {
  if (field_->text() == text) return;
  field_->setText(text);
  field_->setModified(true);
}

void ValueEditor::Restore() {
  field_->setText(setup_.text);
  field_->selectAll();
  SetProblem({});
}

QString ValueEditor::Problem() const { return !problem_->isHidden() ? problem_->text() : QString(); }

void ValueEditor::SetProblem(const QString& reason) {
  problem_->setVisible(!reason.isEmpty());
  field_->setAccessibleDescription(reason);
  if (reason.isEmpty()) return;
  QPalette p = palette();
  const bool dark = p.color(QPalette::Window).lightness() < 128;
  p.setColor(QPalette::Window, dark ? QColor(0x4A, 0x22, 0x22) : QColor(0xFD, 0xE8, 0xE6));
  p.setColor(QPalette::WindowText, dark ? QColor(0xFF, 0xC9, 0xC4) : QColor(0x8C, 0x1D, 0x18));
  problem_->setPalette(p);
  problem_->setText(reason);
  const int width = std::max(this->width(), std::min(260, parentWidget()->width()));
  problem_->setFixedWidth(width);
  problem_->adjustSize();
  const int left = std::max(0, geometry().right() + 1 - width);
  const bool below = geometry().bottom() + problem_->height() + 2 < parentWidget()->height();
  problem_->move(left, below ? geometry().bottom() + 2 : geometry().top() - problem_->height() - 2);
  problem_->raise();
}

// The reason stays under the field.
void ValueEditor::moveEvent(QMoveEvent*) { SetProblem(Problem()); }
void ValueEditor::resizeEvent(QResizeEvent*) { SetProblem(Problem()); }

void ValueEditor::hideEvent(QHideEvent*) { problem_->hide(); }

void ValueEditor::OpenList() {
  QMenu menu(this);
  menu.setObjectName(QStringLiteral("valueList"));
  auto* list = new QListWidget(&menu);
  list->setFrameShape(QFrame::NoFrame);
  list->setIconSize(QSize(28, 14));
  list->setMouseTracking(true);
  const QStringList values = setup_.values();
  for (const QString& value : values) {
    auto* item = new QListWidgetItem(value, list);
    if (setup_.iconOf) item->setIcon(setup_.iconOf(value));
    if (value == field_->text()) list->setCurrentItem(item);
  }
  if (values.isEmpty()) (new QListWidgetItem(tr("(none)"), list))->setFlags(Qt::NoItemFlags);
  const int rows = std::clamp(list->count(), 1, 14);
  list->setFixedSize(std::max(width(), list->sizeHintForColumn(0) + 30),
                     rows * std::max(18, list->sizeHintForRow(0)) + 4);
  auto* action = new QWidgetAction(&menu);
  action->setDefaultWidget(list);
  menu.addAction(action);
  const auto choose = [&](QListWidgetItem* item) {
    menu.close();
    emit Entered(item->text());
  };
  connect(list, &QListWidget::itemClicked, this, choose);
  connect(list, &QListWidget::itemActivated, this, choose);
  connect(list, &QListWidget::itemEntered, list,
          [list](QListWidgetItem* item) { list->setCurrentItem(item); });
  QTimer::singleShot(0, list, [list] {
    list->setFocus();
    if (list->currentItem()) list->scrollToItem(list->currentItem());
  });
  menu.exec(mapToGlobal(QPoint(0, height())));
}

bool ValueEditor::eventFilter(QObject* watched, QEvent* event) {
  if (watched != field_) return QWidget::eventFilter(watched, event);
  switch (event->type()) {
    case QEvent::ShortcutOverride:
      return Override(static_cast<QKeyEvent&>(*event));
    case QEvent::KeyPress:
      return KeyPressed(static_cast<QKeyEvent&>(*event));
    case QEvent::MouseButtonDblClick:
      return DoubleClicked();
    case QEvent::FocusOut: {
      const Qt::FocusReason why = static_cast<QFocusEvent*>(event)->reason();
      if (why != Qt::PopupFocusReason && why != Qt::ActiveWindowFocusReason && why != Qt::MenuBarFocusReason)
        emit FocusLost();
      return false;
    }
    default:
      return false;
  }
}

// A double-click opens the dialog, or moves to the next value.
bool ValueEditor::DoubleClicked() {
  if (setup_.dialog) {
    emit DialogWanted();
    return true;
  }
  const QStringList values = setup_.values ? setup_.values() : QStringList();
  if (values.isEmpty()) return false;
  emit Entered(values[(values.indexOf(field_->text()) + 1) % values.size()]);
  return true;
}

// A field takes undo and redo for itself always. Here they belong to the typing while there is any, else to
// the form.
bool ValueEditor::Override(QKeyEvent& key) {
  const bool undo = key.matches(QKeySequence::Undo) && !IsChanged();
  const bool redo = IsRedo(key) && !field_->isRedoAvailable();
  if (undo || redo) key.ignore();
  return undo || redo;
}

bool ValueEditor::KeyPressed(QKeyEvent& key) {
  if (key.matches(QKeySequence::Undo)) {
    // A text that came back with its row has no typing to undo.
    if (IsChanged() && field_->isUndoAvailable()) return false;
    if (IsChanged()) Restore();
    return true;
  }
  if (IsRedo(key)) {
    field_->redo();
    return true;
  }
  switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (key.modifiers() & Qt::ControlModifier && setup_.dialog)
        emit DialogWanted();
      else if (IsChanged())
        emit Entered(field_->text());
      else
        field_->selectAll();
      return true;
    case Qt::Key_Escape:
      if (IsChanged() || !Problem().isEmpty())
        Restore();
      else
        emit Left();
      return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      if (key.modifiers() & Qt::ControlModifier) return false;
      emit Moved(key.key() == Qt::Key_Tab ? 1 : -1);
      return true;
    case Qt::Key_Up:
      emit Moved(-1);
      return true;
    case Qt::Key_Down:
      if (key.modifiers() & Qt::AltModifier && setup_.values)
        OpenList();
      else
        emit Moved(1);
      return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
      // Where nothing can be typed, as in any tree.
      if (!field_->isReadOnly() || key.modifiers() & ~Qt::KeypadModifier) return false;
      emit Opened(key.key() == Qt::Key_Right);
      return true;
    default:
      return false;
  }
}
