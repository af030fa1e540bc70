#include "library/components/IconDialog.h"

#include <QtWidgets>

#include "vcl/PictureFile.h"
#include "vcl/Prompts.h"

const TClass& TVRXFormChangeIconDialog::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXFormChangeIconDialog>("TVRXFormChangeIconDialog", TVRXBaseDialog::StaticClass())
          .Published(FileName)
          .Doc(QStringLiteral("The file that it begins with, and that the icon was picked of."))
          .Published(IconIndex)
          .Doc(QStringLiteral("Which icon of the file; 0 is the first."))
          .Published(InitialDir)
          .Doc(QStringLiteral("Where files are looked for while there is none."))
          .ClassDoc(
              QStringLiteral("Asks for one of the icons of a file."),
              "pen line 1.5 brush fill box 3 4 18 16 2 path 3 8 21 8 box 5.5 10.5 4 4 1 box 5.5 16 4 2 1 "
              "pen accent 1.8 shape 14.5 10 15.6 12.6 18.4 12.8 16.3 14.6 17 17.4 14.5 15.9 12 17.4 12.7 "
              "14.6 "
              "10.6 12.8 13.4 12.6"));
  return cls;
}

QImage TVRXFormChangeIconDialog::Icon() const { return LoadIcons(Get(FileName)).value(Get(IconIndex)); }

namespace {
// A line for the file, its icons below.
struct IconPage : QWidget {
  explicit IconPage(const QString& name, const QString& initialDir)
      : file(new QLineEdit(name)), initial(initialDir) {
    file->setObjectName(QStringLiteral("file"));
    icons->setObjectName(QStringLiteral("icons"));
    icons->setViewMode(QListView::IconMode);
    icons->setMovement(QListView::Static);
    icons->setResizeMode(QListView::Adjust);
    icons->setIconSize({48, 48});
    icons->setSpacing(6);
    icons->setMinimumSize(340, 190);
    problem->setObjectName(QStringLiteral("problem"));
    problem->setTextFormat(Qt::PlainText);
    problem->setWordWrap(true);
    auto* label = new QLabel(tr("&File:"));
    label->setBuddy(file);
    auto* browse = new QPushButton(tr("&Browse..."));
    browse->setObjectName(QStringLiteral("browse"));
    browse->setAutoDefault(false);
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(file, 1);
    row->addWidget(browse);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(6);
    column->addLayout(row);
    column->addWidget(icons, 1);
    column->addWidget(problem);
    setFocusProxy(file);
    connect(file, &QLineEdit::textChanged, this, [this] { Load(); });
    connect(browse, &QPushButton::clicked, this, [this] { Browse(); });
    Load();
  }
  void Browse() {
    const QString start = file->text().isEmpty() ? initial : file->text();
    const QString name = Prompts().OpenFileName(window(), tr("Icons"), start, PictureFilter());
    if (!name.isEmpty()) file->setText(name);
  }
  void Load() {
    icons->clear();
    QString why;
    if (!file->text().isEmpty()) {
      try {
        const QList<QImage> images = LoadIcons(file->text());
        for (const QImage& image : images)
          new QListWidgetItem(QIcon(QPixmap::fromImage(image)),
                              QStringLiteral("%1 \u00D7 %2").arg(image.width()).arg(image.height()), icons);
      } catch (const std::exception& error) {
        why = ExceptionMessage(error);
      }
    }
    icons->setCurrentRow(0);
    problem->setText(why);
    problem->setVisible(!why.isEmpty());
  }
  // What is wrong with the file stands below it: the person goes on there.
  bool ShowProblem() {
    if (problem->text().isEmpty()) return false;
    file->setFocus();
    file->selectAll();
    return true;
  }
  QString WhyNot() const {
    if (icons->currentRow() >= 0) return {};
    return file->text().isEmpty() ? tr("No file is given. Type the name of one, or press Browse.")
                                  : tr("No icon is picked. Pick one in the list.");
  }
  QLineEdit* file;
  QListWidget* icons = new QListWidget;
  QLabel* problem = new QLabel;
  QString initial;
};
}  // namespace

TVRXBaseDialog::Content TVRXFormChangeIconDialog::MakeContent() {
  auto* page = new IconPage(Get(FileName), Get(InitialDir));
  if (Get(IconIndex) > 0 && Get(IconIndex) < page->icons->count()) page->icons->setCurrentRow(Get(IconIndex));
  QObject::connect(page->icons, &QListWidget::itemDoubleClicked, page, [page] { VRXConfirmDialog(*page); });
  return {page,
          [this, page] {
            Set(FileName, page->file->text());
            Set(IconIndex, page->icons->currentRow());
          },
          true,
          QObject::tr("Change Icon"),
          [page] { return page->WhyNot(); },
          [page] { return page->ShowProblem(); }};
}
