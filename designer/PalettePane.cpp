#include "designer/PalettePane.h"

#include <QtWidgets>

#include "designintf/ComponentIcons.h"
#include "designintf/DesignIntf.h"

namespace {
const TClass* ClassOf(const QObject* button) {
  return static_cast<const TClass*>(button->property("class").value<void*>());
}
}  // namespace

PalettePane::PalettePane(QWidget* parent) : QWidget(parent) {
  search_ = new QLineEdit;
  search_->setPlaceholderText(tr("Find a component..."));
  search_->setClearButtonEnabled(true);
  search_->setFixedWidth(180);
  pages_ = new QTabBar;
  pages_->setExpanding(false);
  pages_->setDrawBase(false);
  pages_->setUsesScrollButtons(true);
  buttons_ = new QWidget;
  row_ = new QHBoxLayout(buttons_);
  row_->setContentsMargins(0, 0, 0, 0);
  row_->setSpacing(2);
  group_ = new QButtonGroup(this);
  group_->setExclusive(true);
  auto* top = new QHBoxLayout;
  top->addWidget(search_);
  top->addWidget(pages_, 1);
  auto* box = new QVBoxLayout(this);
  box->setContentsMargins(8, 4, 8, 4);
  box->setSpacing(4);
  box->addLayout(top);
  box->addWidget(buttons_);
  connect(search_, &QLineEdit::textChanged, this, &PalettePane::ShowPage);
  connect(pages_, &QTabBar::currentChanged, this, &PalettePane::ShowPage);
  Reload();
}

void PalettePane::Reload() {
  const QString was = pages_->tabText(pages_->currentIndex());
  const QSignalBlocker quiet(pages_);
  while (pages_->count()) pages_->removeTab(0);
  for (const TPalettePage& page : PalettePages()) {
    pages_->addTab(page.Name);
    if (page.Name == was) pages_->setCurrentIndex(pages_->count() - 1);
  }
  ShowPage();
}

void PalettePane::ShowPage() {
  while (QLayoutItem* item = row_->takeAt(0)) {
    delete item->widget();
    delete item;
  }
  arrow_ = new QToolButton;
  arrow_->setIcon(
      QIcon::fromTheme(QStringLiteral("edit-select"), QIcon::fromTheme(QStringLiteral("cursor-arrow"))));
  if (arrow_->icon().isNull()) arrow_->setText(QStringLiteral("\u2196"));
  arrow_->setToolTip(tr("Select"));
  arrow_->setIconSize(QSize(24, 24));
  arrow_->setCheckable(true);
  arrow_->setAutoRaise(true);
  arrow_->setChecked(true);
  group_->addButton(arrow_);
  row_->addWidget(arrow_);
  connect(arrow_, &QToolButton::clicked, this, [this] { emit ToolChosen(nullptr); });
  const QString wanted = search_->text().trimmed();
  for (const TPalettePage& page : PalettePages())
    for (const TClass* cls : page.Classes)
      if (wanted.isEmpty() ? page.Name == pages_->tabText(pages_->currentIndex())
                           : QString::fromLatin1(cls->ClassName()).contains(wanted, Qt::CaseInsensitive))
        AddButton(*cls, page.Name);
  row_->addStretch(1);
}

void PalettePane::AddButton(const TClass& cls, const QString& page) {
  auto* button = new QToolButton;
  button->setObjectName(QString::fromLatin1(cls.ClassName()));
  button->setAccessibleName(QString::fromLatin1(cls.ClassName()));
  button->setIcon(ComponentIcon(cls));
  button->setIconSize(QSize(24, 24));
  button->setCheckable(true);
  button->setAutoRaise(true);
  QString hint =
      QStringLiteral("<b>%1</b><br>%2").arg(QString::fromLatin1(cls.ClassName()), page.toHtmlEscaped());
  if (!cls.Description().isEmpty()) hint += QStringLiteral("<br>") + cls.Description().toHtmlEscaped();
  button->setToolTip(hint);
  button->setProperty("class", QVariant::fromValue(static_cast<void*>(const_cast<TClass*>(&cls))));
  button->installEventFilter(this);
  group_->addButton(button);
  row_->addWidget(button);
  connect(button, &QToolButton::clicked, this, [this, button] { emit ToolChosen(ClassOf(button)); });
}

void PalettePane::SelectArrow() { arrow_->setChecked(true); }

QToolButton* PalettePane::ButtonOf(const QByteArray& className) const {
  return buttons_->findChild<QToolButton*>(QString::fromLatin1(className));
}

bool PalettePane::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonDblClick)
    if (const TClass* cls = ClassOf(watched)) {
      emit AddWanted(*cls);
      SelectArrow();
      return true;
    }
  return QWidget::eventFilter(watched, event);
}
