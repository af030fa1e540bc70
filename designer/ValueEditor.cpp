#include "designer/ValueEditor.h"

#include <QtWidgets>

ValueEditor::ValueEditor(QWidget* parent) : QWidget(parent) {
  setAutoFillBackground(true);
  field_ = new QLineEdit(this);
  field_->setFrame(false);
  field_->setObjectName(QStringLiteral("valueField"));
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

void ValueEditor::Show(const Setup& setup) {
  setup_ = setup;
  SetProblem({});
  field_->setReadOnly(setup.readOnly);
  field_->setText(setup.text);
  field_->setCursorPosition(0);
  drop_->setVisible(!setup.values.isEmpty());
  ellipsis_->setVisible(setup.dialog);
  show();
  raise();
}

bool ValueEditor::IsChanged() const { return !field_->isReadOnly() && field_->text() != setup_.text; }

void ValueEditor::Restore() {
  field_->setText(setup_.text);
  field_->selectAll();
  SetProblem({});
}

QString ValueEditor::Problem() const { return problem_->isVisible() ? problem_->text() : QString(); }

void ValueEditor::SetProblem(const QString& reason) {
  problem_->setVisible(!reason.isEmpty());
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

void ValueEditor::resizeEvent(QResizeEvent*) {
  if (problem_->isVisible()) SetProblem(problem_->text());
}

void ValueEditor::hideEvent(QHideEvent*) { problem_->hide(); }

void ValueEditor::OpenList() {
  QMenu menu(this);
  menu.setObjectName(QStringLiteral("valueList"));
  auto* list = new QListWidget(&menu);
  list->setFrameShape(QFrame::NoFrame);
  list->setIconSize(QSize(28, 14));
  list->setMouseTracking(true);
  for (const QString& value : setup_.values) {
    auto* item = new QListWidgetItem(value, list);
    if (setup_.iconOf) item->setIcon(setup_.iconOf(value));
    if (value == field_->text()) list->setCurrentItem(item);
  }
  const int rows = static_cast<int>(std::min<qsizetype>(setup_.values.size(), 14));
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
  if (watched != field_ ||
      (event->type() != QEvent::KeyPress && event->type() != QEvent::MouseButtonDblClick))
    return QWidget::eventFilter(watched, event);
  if (event->type() == QEvent::MouseButtonDblClick) {
    // A double-click opens the dialog, or moves to the next value.
    if (setup_.dialog) {
      emit DialogWanted();
      return true;
    }
    if (!setup_.values.isEmpty()) {
      const qsizetype at = setup_.values.indexOf(field_->text());
      emit Entered(setup_.values[(at + 1) % setup_.values.size()]);
      return true;
    }
    return false;
  }
  const auto* key = static_cast<QKeyEvent*>(event);
  switch (key->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (key->modifiers() & Qt::ControlModifier && setup_.dialog)
        emit DialogWanted();
      else
        emit Entered(field_->text());
      return true;
    case Qt::Key_Escape:
      Restore();
      return true;
    case Qt::Key_Up:
      emit Moved(-1);
      return true;
    case Qt::Key_Down:
      if (key->modifiers() & Qt::AltModifier && !setup_.values.isEmpty())
        OpenList();
      else
        emit Moved(1);
      return true;
    default:
      return false;
  }
}
