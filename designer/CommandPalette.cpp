#include "designer/CommandPalette.h"

#include <QtWidgets>

#include "designer/CommandRowDelegate.h"
#include "designer/CommandSearch.h"
#include "designer/DesignerSettings.h"
#include "designer/SearchField.h"

namespace {
constexpr int RowsInSight = 12, KeptInMind = 20;
constexpr char Recent[] = "RecentCommands";

QStringList RecentCommands() { return DesignerSetting(Recent).split(u';', Qt::SkipEmptyParts); }

void NoteUsed(const QString& id) {
  QStringList ids = RecentCommands();
  ids.removeAll(id);
  ids.prepend(id);
  KeepDesignerSetting(Recent, ids.mid(0, KeptInMind).join(u';'));
}
}  // namespace

CommandEntry EntryOf(QAction& action, const QString& title) {
  return {action.objectName(),
          title,
          action.shortcut().toString(QKeySequence::NativeText),
          action.icon(),
          action.isEnabled() ? QString() : action.statusTip(),
          [&action] { action.trigger(); }};
}

// The rows that fit what is typed, the best first; of equal ones those that can be done.
class CommandListModel : public QAbstractListModel {
 public:
  CommandListModel(const std::vector<CommandEntry>& rows, QObject* parent)
      : QAbstractListModel(parent), rows_(rows) {}
  void Filter(const QString& typed) {
    beginResetModel();
    struct Hit {
      std::pair<int, bool> order;
      const CommandEntry* row;
    };
    std::vector<Hit> hits;
    for (const CommandEntry& row : rows_)
      if (const auto misfit = Misfit(row.title, typed))
        hits.push_back({{*misfit, !typed.isEmpty() && !row.reason.isEmpty()}, &row});
    std::stable_sort(hits.begin(), hits.end(), [](const Hit& a, const Hit& b) { return a.order < b.order; });
    shown_.clear();
    for (const Hit& hit : hits) shown_.push_back(hit.row);
    endResetModel();
  }
  const CommandEntry& At(const QModelIndex& index) const {
    return *shown_[static_cast<std::size_t>(index.row())];
  }
  int rowCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(shown_.size());
  }
  QVariant data(const QModelIndex& index, int role) const override {
    const CommandEntry& row = At(index);
    switch (role) {
      case Qt::DisplayRole:
        return row.title;
      case Qt::DecorationRole:
        return row.icon;
      case Qt::AccessibleDescriptionRole:
        return row.reason.isEmpty() ? row.keys : row.reason;
      case CommandRowDelegate::KeysRole:
        return row.keys;
      case CommandRowDelegate::ReasonRole:
        return row.reason;
      default:
        return {};
    }
  }

 private:
  const std::vector<CommandEntry>& rows_;
  std::vector<const CommandEntry*> shown_;
};

CommandPalette::CommandPalette(QWidget& window, std::vector<CommandEntry> rows)
    : QFrame(&window, Qt::Popup), rows_(std::move(rows)) {
  setObjectName(QStringLiteral("commandPalette"));
  setAttribute(Qt::WA_DeleteOnClose);
  setFrameShape(QFrame::StyledPanel);
  setAccessibleName(tr("Commands"));
  const QStringList recent = RecentCommands();
  const auto age = [&](const CommandEntry& row) {
    const qsizetype at = recent.indexOf(row.id);
    return at < 0 ? recent.size() : at;
  };
  std::stable_sort(rows_.begin(), rows_.end(),
                   [&](const CommandEntry& a, const CommandEntry& b) { return age(a) < age(b); });
  field_ = new SearchField(tr("What do you want to do?"), tr("Search commands"));
  field_->setMinimumHeight(28);
  field_->installEventFilter(this);
  model_ = new CommandListModel(rows_, this);
  list_ = new QListView;
  list_->setModel(model_);
  list_->setItemDelegate(new CommandRowDelegate(list_));
  list_->setFrameShape(QFrame::NoFrame);
  list_->setFocusPolicy(Qt::NoFocus);
  list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list_->setMouseTracking(true);
  list_->setAccessibleName(tr("Commands"));
  connect(list_, &QListView::clicked, this, &CommandPalette::RunCurrent);
  connect(list_, &QListView::entered, list_, &QListView::setCurrentIndex);
  connect(field_, &QLineEdit::textChanged, this, &CommandPalette::Filter);
  auto* box = new QVBoxLayout(this);
  box->setContentsMargins(8, 8, 8, 8);
  box->setSpacing(8);
  box->addWidget(field_);
  box->addWidget(list_);
  Filter();
  const int width = std::min(560, window.width() - 32);
  const int rowHeight = list_->sizeHintForRow(0);
  list_->setFixedHeight(RowsInSight * rowHeight);
  setFixedWidth(width);
  adjustSize();
  move(window.mapToGlobal(QPoint((window.width() - width) / 2, std::min(72, window.height() / 10))));
  show();
  field_->setFocus();
}

void CommandPalette::Filter() {
  model_->Filter(field_->text());
  list_->setCurrentIndex(model_->index(0, 0));
  list_->scrollToTop();
}

void CommandPalette::Move(int step) {
  const int count = model_->rowCount({});
  if (count == 0) return;
  const int now = list_->currentIndex().row();
  // One step past the end comes in again at the other end.
  const int next = std::abs(step) == 1 ? (now + step + count) % count : std::clamp(now + step, 0, count - 1);
  list_->setCurrentIndex(model_->index(next, 0));
}

bool CommandPalette::eventFilter(QObject* object, QEvent* event) {
  if (object != field_ || event->type() != QEvent::KeyPress) return QFrame::eventFilter(object, event);
  switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Up:
      Move(-1);
      return true;
    case Qt::Key_Down:
      Move(1);
      return true;
    case Qt::Key_PageUp:
      Move(1 - RowsInSight);
      return true;
    case Qt::Key_PageDown:
      Move(RowsInSight - 1);
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      RunCurrent();
      return true;
    case Qt::Key_Escape:
      close();
      return true;
    default:
      return QFrame::eventFilter(object, event);
  }
}

// It is gone before the command runs, which may open something itself. What cannot be done stays in sight
// with its reason.
void CommandPalette::RunCurrent() {
  const QModelIndex current = list_->currentIndex();
  if (!current.isValid() || !model_->At(current).reason.isEmpty()) return;
  const CommandEntry& row = model_->At(current);
  NoteUsed(row.id);
  QMetaObject::invokeMethod(parentWidget(), row.run, Qt::QueuedConnection);
  close();
}
