#include "designer/PalettePane.h"

#include <QtWidgets>

#include "designer/SearchField.h"
#include "designintf/ComponentIcons.h"

namespace {
const TClass* ClassOf(const QObject* button) {
  return static_cast<const TClass*>(button->property("class").value<void*>());
}
QString NameOf(const TClass& cls) { return QString::fromLatin1(cls.ClassName()); }

// How well a class fits a search: 0 is the name itself, with or without its T; -1 not at all.
int FitOf(const TClass& cls, const QString& wanted) {
  const QString name = NameOf(cls);
  const qsizetype at = name.indexOf(wanted, 0, Qt::CaseInsensitive);
  if (at < 0) return -1;
  if (at <= 1 && at + wanted.size() == name.size()) return 0;
  return at <= 1 ? 1 : 2;
}
}  // namespace

PalettePane::PalettePane(const DesignRegistry& registry, QWidget* parent)
    : QWidget(parent), registry_(registry) {
  search_ = new SearchField(tr("Find a component..."), tr("Find a component"));
  search_->setObjectName(QStringLiteral("paletteSearch"));
  search_->setToolTip(tr("Enter places the first one found, Down goes to the buttons"));
  search_->setFixedWidth(180);
  search_->installEventFilter(this);
  pages_ = new QTabBar;
  pages_->setExpanding(false);
  pages_->setDrawBase(false);
  pages_->setUsesScrollButtons(true);
  pages_->setAccessibleName(tr("Pages of the palette"));
  auto* buttons = new QWidget;
  row_ = new QHBoxLayout(buttons);
  row_->setContentsMargins(0, 0, 0, 0);
  row_->setSpacing(2);
  group_ = new QButtonGroup(this);
  group_->setExclusive(true);
  arrow_ = new QToolButton;
  arrow_->setIcon(
      QIcon::fromTheme(QStringLiteral("edit-select"), QIcon::fromTheme(QStringLiteral("cursor-arrow"))));
  if (arrow_->icon().isNull()) arrow_->setText(QStringLiteral("\u2196"));
  arrow_->setToolTip(tr("Select"));
  arrow_->setAccessibleName(tr("Select"));
  arrow_->setIconSize(QSize(24, 24));
  arrow_->setCheckable(true);
  arrow_->setAutoRaise(true);
  arrow_->setChecked(true);
  arrow_->installEventFilter(this);
  group_->addButton(arrow_);
  row_->addWidget(arrow_);
  notice_ = new QLabel;
  notice_->setMargin(6);
  notice_->hide();
  row_->addWidget(notice_);
  row_->addStretch(1);
  // More buttons than fit are scrolled; they never widen the window.
  scroll_ = new QScrollArea;
  scroll_->setWidget(buttons);
  scroll_->setWidgetResizable(true);
  scroll_->setFrameShape(QFrame::NoFrame);
  buttons->setAutoFillBackground(false);
  scroll_->viewport()->setAutoFillBackground(false);
  scroll_->setFocusPolicy(Qt::NoFocus);
  scroll_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroll_->setFixedHeight(arrow_->sizeHint().height());
  scroll_->viewport()->installEventFilter(this);
  auto* strip = new QHBoxLayout;
  strip->setSpacing(0);
  strip->addWidget(ScrollButton(Qt::LeftArrow, tr("Scroll left"), -1));
  strip->addWidget(scroll_, 1);
  strip->addWidget(ScrollButton(Qt::RightArrow, tr("Scroll right"), 1));
  auto* top = new QHBoxLayout;
  top->addWidget(search_);
  top->addWidget(pages_, 1);
  auto* box = new QVBoxLayout(this);
  box->setContentsMargins(8, 4, 8, 4);
  box->setSpacing(4);
  box->addLayout(top);
  box->addLayout(strip);
  connect(arrow_, &QToolButton::clicked, this, [this] { emit ToolChosen(nullptr, false); });
  connect(search_, &QLineEdit::textChanged, this, &PalettePane::ShowPage);
  connect(pages_, &QTabBar::currentChanged, this, &PalettePane::ShowPage);
  connect(pages_, &QTabBar::tabBarClicked, search_, &QLineEdit::clear);
  Reload();
}

// At the ends of the row, while there are more buttons than fit.
QToolButton* PalettePane::ScrollButton(Qt::ArrowType arrow, const QString& name, int direction) {
  auto* button = new QToolButton;
  button->setArrowType(arrow);
  button->setAutoRaise(true);
  button->setAutoRepeat(true);
  button->setFocusPolicy(Qt::NoFocus);
  button->setAccessibleName(name);
  button->setToolTip(name);
  button->setFixedSize(18, arrow_->sizeHint().height());
  button->hide();
  QScrollBar* bar = scroll_->horizontalScrollBar();
  connect(bar, &QScrollBar::rangeChanged, button, [this, button](int, int) {
    const int room = scroll_->width() + (button->isHidden() ? 0 : 2 * button->width());
    button->setVisible(scroll_->widget()->minimumSizeHint().width() > room);
  });
  connect(button, &QToolButton::clicked, bar,
          [bar, direction] { bar->setValue(bar->value() + direction * 3 * bar->singleStep()); });
  return button;
}

void PalettePane::Reload() {
  PutDown();  // its class may be gone
  const QString was = pages_->tabText(pages_->currentIndex());
  shown_.clear();
  for (QToolButton* button : std::exchange(buttons_, {})) delete button;
  {
    const QSignalBlocker quiet(pages_);
    while (pages_->count()) pages_->removeTab(0);
    for (const TPalettePage& page : registry_.PalettePages()) {
      pages_->addTab(page.Name);
      if (page.Name == was) pages_->setCurrentIndex(pages_->count() - 1);
      for (const TClass* cls : page.Classes) AddButton(*cls, page.Name);
    }
  }
  ShowPage();
}

void PalettePane::AddButton(const TClass& cls, const QString& page) {
  auto* button = new QToolButton(row_->parentWidget());
  button->setObjectName(NameOf(cls));
  button->setAccessibleName(NameOf(cls));
  button->setIcon(ComponentIcon(cls));
  button->setIconSize(QSize(24, 24));
  button->setCheckable(true);
  button->setAutoRaise(true);
  QString hint = QStringLiteral("<b>%1</b><br>%2").arg(NameOf(cls), page.toHtmlEscaped());
  if (!cls.Description().isEmpty()) hint += QStringLiteral("<br>") + cls.Description().toHtmlEscaped();
  button->setToolTip(hint + QStringLiteral("<br><i>%1</i>").arg(tr("Shift+click places several")));
  button->setAccessibleDescription(cls.Description());
  button->setProperty("class", QVariant::fromValue(static_cast<void*>(const_cast<TClass*>(&cls))));
  button->setProperty("page", page);
  button->installEventFilter(this);
  button->hide();
  group_->addButton(button);
  buttons_.push_back(button);
  connect(button, &QToolButton::clicked, this, [button, this] {
    emit ToolChosen(ClassOf(button), QApplication::keyboardModifiers() & Qt::ShiftModifier);
  });
}

// The buttons stay; the page or the search says which are shown, the search in which order too.
void PalettePane::ShowPage() {
  const QString wanted = search_->text().trimmed();
  const QString page = pages_->tabText(pages_->currentIndex());
  std::vector<std::pair<int, QToolButton*>> fits;
  for (QToolButton* button : buttons_)
    if (wanted.isEmpty() ? button->property("page") == page : FitOf(*ClassOf(button), wanted) >= 0)
      fits.emplace_back(wanted.isEmpty() ? 0 : FitOf(*ClassOf(button), wanted), button);
  std::stable_sort(fits.begin(), fits.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
  scroll_->setUpdatesEnabled(false);
  for (QToolButton* button : shown_) {
    row_->removeWidget(button);
    button->hide();
  }
  shown_.clear();
  for (const auto& [fit, button] : fits) {
    row_->insertWidget(static_cast<int>(shown_.size()) + 1, button);
    button->show();
    shown_.push_back(button);
  }
  notice_->setText(tr("Nothing found for \u201c%1\u201d").arg(wanted));
  notice_->setVisible(shown_.empty() && !wanted.isEmpty());
  scroll_->horizontalScrollBar()->setValue(0);
  scroll_->setUpdatesEnabled(true);
}

QString PalettePane::Notice() const { return notice_->isHidden() ? QString() : notice_->text(); }

void PalettePane::SelectArrow() { arrow_->setChecked(true); }

void PalettePane::PutDown() {
  SelectArrow();
  emit ToolChosen(nullptr, false);
}

QToolButton* PalettePane::ButtonOf(const QByteArray& className) const {
  const auto it = std::find_if(shown_.begin(), shown_.end(), [&](const QToolButton* b) {
    return b->objectName() == QString::fromLatin1(className);
  });
  return it == shown_.end() ? nullptr : *it;
}

// One component at once; a tool that the first click took up is put down.
void PalettePane::Place(const QToolButton& button) {
  PutDown();
  emit AddWanted(*ClassOf(&button));
}

// --- Keyboard and mouse

void PalettePane::Focus(qsizetype index) {
  if (index < 0 || index >= static_cast<qsizetype>(shown_.size())) return;
  QToolButton* button = shown_[static_cast<std::size_t>(index)];
  button->setFocus(Qt::TabFocusReason);
  scroll_->ensureWidgetVisible(button, 8, 0);
}

bool PalettePane::SearchKey(int key) {
  const bool found = !search_->text().trimmed().isEmpty() && !shown_.empty();
  switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (found) Place(*shown_.front());
      return true;
    case Qt::Key_Down:
      Focus(0);
      return true;
    case Qt::Key_Escape:
      if (search_->text().isEmpty())
        emit Left();
      else
        search_->clear();
      return true;
    default:
      return false;
  }
}

bool PalettePane::ButtonKey(QToolButton& button, int key) {
  const qsizetype at = std::find(shown_.begin(), shown_.end(), &button) - shown_.begin();
  const auto count = static_cast<qsizetype>(shown_.size());
  switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (ClassOf(&button))
        Place(button);
      else
        PutDown();
      return true;
    case Qt::Key_Left:
      if (at == 0 || &button == arrow_)
        arrow_->setFocus(Qt::TabFocusReason);
      else
        Focus(at - 1);
      return true;
    case Qt::Key_Right:
      Focus(&button == arrow_ ? 0 : at + 1);
      return true;
    case Qt::Key_Home:
      Focus(0);
      return true;
    case Qt::Key_End:
      Focus(count - 1);
      return true;
    case Qt::Key_Up:
      search_->setFocus(Qt::TabFocusReason);
      return true;
    case Qt::Key_Down:
      return true;
    case Qt::Key_Escape:
      emit Left();
      return true;
    default:
      return false;
  }
}

bool PalettePane::eventFilter(QObject* watched, QEvent* event) {
  auto* button = qobject_cast<QToolButton*>(watched);
  if (event->type() == QEvent::MouseButtonDblClick && button && ClassOf(button)) {
    Place(*button);
    return true;
  }
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (watched == search_ ? SearchKey(key) : button && ButtonKey(*button, key)) return true;
  }
  // A row is scrolled by any wheel.
  if (event->type() == QEvent::Wheel && watched == scroll_->viewport()) {
    const QPoint turned = static_cast<QWheelEvent*>(event)->angleDelta();
    QScrollBar* bar = scroll_->horizontalScrollBar();
    bar->setValue(bar->value() - (turned.y() ? turned.y() : turned.x()) / 2);
    return true;
  }
  return QWidget::eventFilter(watched, event);
}
