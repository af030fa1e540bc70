#include "library/components/ObjectDialog.h"

#include <QMimeDatabase>
#include <QtWidgets>

#include "vcl/Prompts.h"

const TClass& TVRXFormInsertObjectDialog::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXFormInsertObjectDialog>("TVRXFormInsertObjectDialog", TVRXBaseDialog::StaticClass())
          .Published(AsIcon)
          .Doc(QStringLiteral("Whether the object is shown as an icon instead of its content."))
          .Published(FileName)
          .Doc(QStringLiteral("The file that becomes the object."))
          .Published(Link)
          .Doc(QStringLiteral("Whether the document refers to the file instead of holding a copy."))
          .Published(ObjectType)
          .Doc(QStringLiteral("The kind of object that is made new."))
          .Published(ObjectTypes)
          .Doc(QStringLiteral("The kinds that are offered; those that the system knows when there are none."))
          .Published(Options)
          .Doc(QStringLiteral("What the person is asked for."))
          .Published(Source)
          .Doc(QStringLiteral("Whether the object is made new or comes from a file."))
          .ClassDoc(
              QStringLiteral("Asks for an object to put into a document, new or from a file."),
              "pen line 1.5 brush fill box 3 4 18 16 2 path 3 8 21 8 box 5.5 10.5 7.5 7.5 0 pen accent 1.8 "
              "path 19 14.2 10 14.2 path 12.6 11.6 10 14.2 12.6 16.8"));
  return cls;
}

QStringList TVRXFormInsertObjectDialog::Kinds() const {
  QStringList kinds = Get(ObjectTypes)->Lines();
  if (!kinds.isEmpty()) return kinds;
  // What has an ending of its own is a document; the others are parts of the system's own order.
  for (const QMimeType& type : QMimeDatabase().allMimeTypes())
    if (!type.suffixes().isEmpty()) kinds << type.comment();
  kinds.removeDuplicates();
  std::sort(kinds.begin(), kinds.end(),
            [](const QString& a, const QString& b) { return QString::localeAwareCompare(a, b) < 0; });
  return kinds;
}

namespace {
template <class W>
W* Named(W* widget, const char* name) {
  widget->setObjectName(QLatin1StringView(name));
  return widget;
}

// Where the object comes from, and below it what there is to say about that.
struct ObjectPage : QWidget {
  ObjectPage(const QStringList& kinds, TVRXInsertObjectOptions options) {
    using enum TVRXInsertObjectOption;
    types->addItems(kinds);
    types->setMinimumSize(320, 160);
    auto* fileRow = new QWidget;
    auto* grid = new QGridLayout(fileRow);
    auto* label = new QLabel(tr("Fi&le:"));
    label->setBuddy(file);
    auto* browse = Named(new QPushButton(tr("&Browse...")), "browse");
    browse->setAutoDefault(false);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(label, 0, 0);
    grid->addWidget(file, 0, 1);
    grid->addWidget(browse, 0, 2);
    grid->addWidget(link, 1, 1);
    grid->setRowStretch(2, 1);
    grid->setColumnStretch(1, 1);
    auto* pages = new QStackedWidget;
    pages->addWidget(types);
    pages->addWidget(fileRow);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(6);
    column->addWidget(create);
    column->addWidget(fromFile);
    column->addWidget(pages, 1);
    column->addWidget(asIcon);
    link->setVisible(options.Contains(ioLink));
    asIcon->setVisible(options.Contains(ioAsIcon));
    // With one source there is nothing to choose.
    const bool both = options.Contains(ioNew) && options.Contains(ioFile);
    create->setVisible(both);
    fromFile->setVisible(both);
    connect(fromFile, &QRadioButton::toggled, pages,
            [pages](bool on) { pages->setCurrentIndex(on ? 1 : 0); });
    connect(browse, &QPushButton::clicked, this, [this] {
      const QString name = Prompts().OpenFileName(window(), tr("Object"), file->text(), tr("All files (*)"));
      if (!name.isEmpty()) file->setText(name);
    });
  }
  QString WhyNot() const {
    if (create->isChecked())
      return types->currentRow() >= 0 ? QString() : tr("No kind of object is picked. Pick one in the list.");
    if (file->text().isEmpty()) return tr("No file is given. Type the name of one, or press Browse.");
    return QFileInfo(file->text()).isFile()
               ? QString()
               : tr("There is no file \"%1\". Type the name of one, or press Browse.").arg(file->text());
  }
  QRadioButton* create = Named(new QRadioButton(tr("Create &new")), "create");
  QRadioButton* fromFile = Named(new QRadioButton(tr("Create from &file")), "fromFile");
  QListWidget* types = Named(new QListWidget, "types");
  QLineEdit* file = Named(new QLineEdit, "file");
  QCheckBox* link = Named(new QCheckBox(tr("Lin&k to the file")), "link");
  QCheckBox* asIcon = Named(new QCheckBox(tr("&Display as icon")), "asIcon");
};
}  // namespace

TVRXBaseDialog::Content TVRXFormInsertObjectDialog::MakeContent() {
  using enum TVRXInsertObjectOption;
  const TVRXInsertObjectOptions options = Get(Options);
  auto* page = new ObjectPage(Kinds(), options);
  const bool file =
      options.Contains(ioFile) && (!options.Contains(ioNew) || Get(Source) == TVRXObjectSource::osFile);
  (file ? page->fromFile : page->create)->setChecked(true);
  page->file->setText(Get(FileName));
  page->link->setChecked(Get(Link));
  page->asIcon->setChecked(Get(AsIcon));
  const auto found = page->types->findItems(Get(ObjectType), Qt::MatchExactly);
  page->types->setCurrentItem(found.isEmpty() ? page->types->item(0) : found.first());
  page->setFocusProxy(file ? static_cast<QWidget*>(page->file) : page->types);
  QObject::connect(page->types, &QListWidget::itemDoubleClicked, page, [page] { VRXConfirmDialog(*page); });
  return {page,
          [this, page] {
            const bool fromFile = page->fromFile->isChecked();
            Set(Source, fromFile ? TVRXObjectSource::osFile : TVRXObjectSource::osNew);
            // What was not asked for stays.
            if (fromFile) {
              Set(FileName, page->file->text());
              Set(Link, page->link->isChecked());
            } else if (const auto* type = page->types->currentItem()) {
              Set(ObjectType, type->text());
            }
            Set(AsIcon, page->asIcon->isChecked());
          },
          true, QObject::tr("Insert Object"), [page] { return page->WhyNot(); }};
}
