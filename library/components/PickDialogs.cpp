#include "library/components/PickDialogs.h"

#include <QtWidgets>

#include "library/components/FolderTree.h"
#include "vcl/Prompts.h"

const TClass& TVRXWindowListDlg::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXWindowListDlg>("TVRXWindowListDlg", TVRXBaseDialog::StaticClass())
          .Published(AllowClose)
          .Doc(QStringLiteral("Whether windows can be closed in the list."))
          .Published(ShowHidden)
          .Doc(QStringLiteral("Lists windows that are not shown, too; the one that is picked is shown."))
          .Published(Sorted)
          .Doc(QStringLiteral("By caption; else the window that was opened first comes first."))
          .ClassDoc(
              QStringLiteral("Lists the windows of the program; the one that is picked comes to the front."),
              "pen line 1.5 brush fill box 3 4 18 16 2 path 3 8 21 8 box 10.5 10 8 5.5 0 pen accent 1.6 box "
              "6 12.5 8 5.5 0 path 6 14.3 14 14.3"));
  return cls;
}

const TClass& TVRXFormFolderDialog::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXFormFolderDialog>("TVRXFormFolderDialog", TVRXBaseDialog::StaticClass())
          .Published(Folder)
          .Doc(QStringLiteral("The folder that it begins with, and that was picked."))
          .Published(Options)
          .Doc(QStringLiteral("What it shows beside the tree, and whether a folder must exist."))
          .Published(RootFolder)
          .Doc(QStringLiteral(
              "Only what is inside of this folder can be picked; everything when it is empty."))
          .ClassDoc(
              QStringLiteral("Asks for a folder, which can be made on the way."),
              "pen line 1.5 brush fill box 3 4 18 16 2 path 3 8 21 8 pen accent 1.6 path 6 17.8 6 11 9.5 11 "
              "11 12.6 18 12.6 18 17.8 6 17.8 path 12 13.9 12 16.7 path 10.6 15.3 13.4 15.3"));
  return cls;
}

namespace {
using Windows = QList<QPointer<QWindow>>;

// In the order in which they were opened.
Windows WindowsToList(bool hiddenToo, bool sorted) {
  Windows windows;
  for (QWindow* window : QGuiApplication::topLevelWindows()) {
    const bool lasting = window->type() == Qt::Window || window->type() == Qt::Dialog;
    if (lasting && !window->title().isEmpty() && (hiddenToo || window->isVisible())) windows << window;
  }
  if (sorted)
    std::stable_sort(windows.begin(), windows.end(), [](const auto& a, const auto& b) {
      return QString::localeAwareCompare(a->title(), b->title()) < 0;
    });
  return windows;
}

void BringToFront(QWindow& window) {
  if (window.windowStates() & Qt::WindowMinimized)
    window.setWindowStates(window.windowStates() & ~Qt::WindowMinimized);
  window.show();
  window.raise();
  window.requestActivate();
}
}  // namespace

TVRXBaseDialog::Content TVRXWindowListDlg::MakeContent() {
  auto* both = new QWidget;
  auto* list = new QListWidget;
  list->setObjectName(QStringLiteral("windows"));
  list->setMinimumSize(280, 160);
  const auto windows = std::make_shared<Windows>(WindowsToList(Get(ShowHidden), Get(Sorted)));
  for (const auto& window : *windows) new QListWidgetItem(window->icon(), window->title(), list);
  list->setCurrentRow(std::max(0, static_cast<int>(windows->indexOf(QGuiApplication::focusWindow()))));
  QObject::connect(list, &QListWidget::itemDoubleClicked, both, [both] { VRXConfirmDialog(*both); });
  auto* row = new QHBoxLayout(both);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(list, 1);
  if (Get(AllowClose)) {
    auto* close = new QPushButton(QObject::tr("&Close Window"));
    close->setObjectName(QStringLiteral("close"));
    close->setAutoDefault(false);
    row->addWidget(close, 0, Qt::AlignTop);
    const auto enable = [list, close] { close->setEnabled(list->currentRow() >= 0); };
    enable();
    QObject::connect(list, &QListWidget::currentRowChanged, close, enable);
    QObject::connect(close, &QPushButton::clicked, list, [list, windows, preview = IsPreview()] {
      const int at = list->currentRow();
      // A window may refuse, and stays in the list then.
      if (const auto window = windows->value(at); window && !preview && !window->close()) return;
      windows->removeAt(at);
      delete list->takeItem(at);
    });
  }
  both->setFocusProxy(list);
  return {both,
          [this, list, windows] {
            const QPointer<QWindow> window = windows->value(list->currentRow());
            picked_ = window ? window->title() : QString();
            if (window) BringToFront(*window);
          },
          true, QObject::tr("Windows"),
          [list] {
            return list->currentRow() >= 0 ? QString()
                                           : QObject::tr("There is no window to go to. Press Cancel.");
          }};
}

QString TVRXFormFolderDialog::WhyNot(const QString& folder) const {
  if (folder.isEmpty()) return QObject::tr("No folder is picked. Pick one in the tree.");
  if (Get(Options).Contains(TVRXFolderOption::foMustExist) && !QFileInfo(folder).isDir())
    return QObject::tr("There is no folder \"%1\". Pick one in the tree.").arg(folder);
  const QString root = Get(RootFolder);
  if (root.isEmpty()) return {};
  const QString way = QDir(root).relativeFilePath(folder);
  if (way == u".." || way.startsWith(u"../"))
    return QObject::tr("The folder \"%1\" is not inside of \"%2\". Pick one in the tree.").arg(folder, root);
  return {};
}

TVRXBaseDialog::Content TVRXFormFolderDialog::MakeContent() {
  using enum TVRXFolderOption;
  const TVRXFolderOptions options = Get(Options);
  auto* folders = new FolderTree(Get(Folder), {.root = Get(RootFolder),
                                               .hidden = options.Contains(foShowHidden),
                                               .files = options.Contains(foShowFiles),
                                               .line = options.Contains(foEditLine)});
  if (options.Contains(foNewFolder)) {
    auto* make = new QPushButton(QObject::tr("&New Folder"));
    make->setObjectName(QStringLiteral("newFolder"));
    make->setAutoDefault(false);
    if (IsPreview()) {
      make->setEnabled(false);
      make->setToolTip(QObject::tr("A preview makes no folders."));
    }
    folders->layout()->addWidget(make);
    folders->layout()->setAlignment(make, Qt::AlignLeft);
    QObject::connect(make, &QPushButton::clicked, folders, [folders] {
      if (const QString why = folders->MakeFolder(); !why.isEmpty())
        Prompts().Warn(folders->window(), folders->window()->windowTitle(), why);
    });
  }
  return {folders, [this, folders] { Set(Folder, folders->Folder()); }, true,
          QObject::tr("Browse for Folder"), [this, folders] { return WhyNot(folders->Folder()); }};
}
