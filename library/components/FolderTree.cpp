#include "library/components/FolderTree.h"

#include <QtWidgets>

FolderTree::FolderTree(const QString& folder, const Offer& offer)
    : tree_(new QTreeView), line_(new QLineEdit(folder)), model_(new QFileSystemModel(tree_)) {
  setObjectName(QStringLiteral("folders"));
  tree_->setObjectName(QStringLiteral("tree"));
  line_->setObjectName(QStringLiteral("directory"));
  QDir::Filters filter = QDir::Dirs | QDir::NoDotAndDotDot | QDir::Drives;
  if (offer.hidden) filter |= QDir::Hidden;
  if (offer.files) filter |= QDir::Files;
  model_->setFilter(filter);
  model_->setReadOnly(false);
  model_->setRootPath(offer.root.isEmpty() ? QDir::rootPath() : offer.root);
  tree_->setModel(model_);
  // Nobody renames a folder by mistake.
  tree_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tree_->setHeaderHidden(true);
  for (int column = 1; column < model_->columnCount(); ++column) tree_->hideColumn(column);
  tree_->header()->setStretchLastSection(false);
  tree_->setTextElideMode(Qt::ElideNone);
  tree_->setMinimumSize(320, 240);
  for (QWidget* part :
       {static_cast<QWidget*>(tree_), tree_->viewport(), static_cast<QWidget*>(tree_->verticalScrollBar()),
        static_cast<QWidget*>(tree_->horizontalScrollBar())})
    part->installEventFilter(this);
  if (!offer.root.isEmpty()) tree_->setRootIndex(model_->index(offer.root));
  // A path that is none is looked for as far as it goes; the line has it as it is.
  QString shown = folder;
  while (!offer.files && !shown.isEmpty() && !QFileInfo(shown).isDir() && QFileInfo(shown).path() != shown)
    shown = QFileInfo(shown).path();
  if (const QModelIndex at = model_->index(shown); at.isValid()) {
    tree_->setCurrentIndex(at);
    sought_ = at;
  }
  // Folders come as they are read, and are put in order afterwards.
  for (const auto signal : {&QTreeView::expanded, &QTreeView::collapsed})
    connect(tree_, signal, this, [this] { FitSoon(); });
  connect(model_, &QFileSystemModel::rowsInserted, this, [this] { FitSoon(); });
  connect(model_, &QFileSystemModel::layoutChanged, this, [this] { FitSoon(); });
  connect(model_, &QFileSystemModel::directoryLoaded, this, [this] { FitSoon(); });
  connect(tree_->selectionModel(), &QItemSelectionModel::currentChanged, line_,
          [this](const QModelIndex& row) {
            sought_ = QPersistentModelIndex();
            Show(row);
          });
  connect(model_, &QFileSystemModel::fileRenamed, line_, [this] { Show(tree_->currentIndex()); });
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(6);
  column->addWidget(tree_, 1);
  column->addWidget(line_);
  line_->setVisible(offer.line);
  setFocusProxy(offer.line ? static_cast<QWidget*>(line_) : tree_);
}

QString FolderTree::Folder() const { return line_->text(); }

void FolderTree::Show(const QModelIndex& row) {
  line_->setText(model_->isDir(row) ? model_->filePath(row) : QFileInfo(model_->filePath(row)).path());
}

void FolderTree::FitSoon() {
  if (!std::exchange(fits_, false)) return;
  QTimer::singleShot(0, this, [this] {
    fits_ = true;
    FitColumn();
    if (sought_.isValid()) ScrollTo(sought_);
  });
}

void FolderTree::FitColumn() {
  tree_->resizeColumnToContents(0);
  if (const int room = tree_->viewport()->width(); tree_->columnWidth(0) < room)
    tree_->setColumnWidth(0, room);
}

void FolderTree::ScrollTo(const QModelIndex& row) {
  auto* across = tree_->horizontalScrollBar();
  const int before = across->value();
  tree_->scrollTo(row, QAbstractItemView::PositionAtCenter);
  // That looks at the column, which is in sight wherever it is scrolled to.
  across->setValue(before);
  const QRect name = tree_->visualRect(row);
  const int left = name.left() - tree_->indentation();
  const int right = name.left() + std::min(name.width(), tree_->sizeHintForIndex(row).width());
  across->setValue(before + std::min(left, std::max(0, right - tree_->viewport()->width())));
}

bool FolderTree::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::Resize:
      FitSoon();
      break;
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
      sought_ = QPersistentModelIndex();
      break;
    default:
      break;
  }
  return QWidget::eventFilter(watched, event);
}

QString FolderTree::MakeFolder() {
  const QDir above(Folder());
  if (Folder().isEmpty() || !above.exists())
    return tr("There is no folder \"%1\" that a new one could stand in. Pick one in the tree first.")
        .arg(Folder());
  const QString first = tr("New Folder");
  QString name = first;
  for (int i = 2; above.exists(name); ++i) name = QStringLiteral("%1 %2").arg(first).arg(i);
  const QModelIndex made = model_->mkdir(model_->index(above.path()), name);
  if (!made.isValid())
    return tr("No folder can be made in \"%1\". Pick one that you may write to.").arg(above.path());
  tree_->setCurrentIndex(made);
  FitColumn();
  ScrollTo(made);
  tree_->edit(made);
  return {};
}
