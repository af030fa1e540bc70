#include "designer/InspectorPane.h"

#include <QtWidgets>

#include "designer/ValueEditor.h"
#include "designintf/ComponentIcons.h"
#include "rtl/Clock.h"

using enum TPropertyAttribute;

namespace {
// Names in plain, values that differ from the default in bold, booleans with a box.
class RowDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  static QRect BoxRect(const QRect& cell) { return {cell.left() + 4, cell.center().y() - 6, 13, 13}; }

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyleOptionViewItem o = option;
    initStyleOption(&o, index);
    const bool category = index.data(InspectorModel::IsCategoryRole).toBool();
    if (category) {
      o.font.setBold(true);
      o.backgroundBrush = o.palette.brush(QPalette::AlternateBase);
    } else if (index.column() == 1 && index.data(InspectorModel::NotDefaultRole).toBool()) {
      o.font.setBold(true);
    }
    if (index.column() == 1 && index.data(InspectorModel::IsBooleanRole).toBool() && !o.text.isEmpty()) {
      const QString text = std::exchange(o.text, QString());
      o.widget->style()->drawControl(QStyle::CE_ItemViewItem, &o, painter, o.widget);
      QStyleOptionButton box;
      box.rect = BoxRect(o.rect);
      box.palette = o.palette;
      box.state =
          QStyle::State_Enabled | (text == QStringLiteral("True") ? QStyle::State_On : QStyle::State_Off);
      o.widget->style()->drawPrimitive(QStyle::PE_IndicatorCheckBox, &box, painter, o.widget);
      painter->save();
      painter->setFont(o.font);
      painter->setPen(
          o.palette.color(o.state & QStyle::State_Selected ? QPalette::HighlightedText : QPalette::Text));
      painter->drawText(o.rect.adjusted(22, 0, 0, 0), Qt::AlignVCenter, text);
      painter->restore();
    } else {
      o.widget->style()->drawControl(QStyle::CE_ItemViewItem, &o, painter, o.widget);
    }
    painter->save();
    painter->setPen(o.palette.color(QPalette::Midlight)
                        .lighter(o.palette.color(QPalette::Base).lightness() > 128 ? 118 : 80));
    painter->drawLine(o.rect.bottomLeft(), o.rect.bottomRight());
    if (index.column() == 0 && !category) painter->drawLine(o.rect.topRight(), o.rect.bottomRight());
    painter->restore();
  }
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return {QStyledItemDelegate::sizeHint(option, index).width(),
            std::max(22, option.fontMetrics.height() + 6)};
  }
};
}  // namespace

InspectorPane::InspectorPane(QWidget* parent) : QWidget(parent) {
  components_ = new QComboBox;
  components_->setObjectName(QStringLiteral("componentBox"));
  components_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  components_->setAccessibleName(tr("Component"));
  tabs_ = new QTabBar;
  tabs_->addTab(tr("Properties"));
  tabs_->addTab(tr("Events"));
  tabs_->setExpanding(false);
  tabs_->setDrawBase(false);
  filter_ = new QLineEdit;
  filter_->setPlaceholderText(tr("Filter..."));
  filter_->setClearButtonEnabled(true);
  auto* grouped = new QToolButton;
  grouped->setText(tr("Categories"));
  grouped->setCheckable(true);
  grouped->setAutoRaise(true);
  grouped->setToolTip(tr("Groups the rows by category instead of by name"));
  view_ = new QTreeView;
  view_->setObjectName(QStringLiteral("inspector"));
  view_->setModel(&model_);
  view_->setItemDelegate(new RowDelegate(view_));
  view_->setHeaderHidden(true);
  view_->setRootIsDecorated(true);
  view_->setIndentation(14);
  view_->setUniformRowHeights(true);
  view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  view_->setExpandsOnDoubleClick(false);
  view_->setContextMenuPolicy(Qt::CustomContextMenu);
  view_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  view_->header()->setSectionResizeMode(QHeaderView::Interactive);
  view_->header()->setStretchLastSection(true);
  view_->header()->resizeSection(0, 140);
  view_->setAccessibleName(tr("Properties"));
  description_ = new QLabel;
  description_->setWordWrap(true);
  description_->setMinimumHeight(40);
  description_->setMargin(6);
  description_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  description_->setForegroundRole(QPalette::WindowText);
  editor_ = new ValueEditor(view_->viewport());
  editor_->hide();

  auto* top = new QHBoxLayout;
  top->addWidget(tabs_);
  top->addStretch(1);
  top->addWidget(grouped);
  auto* box = new QVBoxLayout(this);
  box->setContentsMargins(6, 6, 6, 0);
  box->setSpacing(4);
  box->addWidget(components_);
  box->addLayout(top);
  box->addWidget(filter_);
  box->addWidget(view_, 1);
  box->addWidget(description_);

  view_->installEventFilter(this);
  view_->viewport()->installEventFilter(this);
  connect(tabs_, &QTabBar::currentChanged, this, [this](int tab) { model_.ShowEvents(tab == 1); });
  connect(filter_, &QLineEdit::textChanged, &model_, &InspectorModel::SetFilter);
  connect(grouped, &QToolButton::toggled, &model_, &InspectorModel::GroupByCategory);
  connect(&model_, &QAbstractItemModel::modelAboutToBeReset, this, &InspectorPane::RememberExpanded);
  connect(&model_, &QAbstractItemModel::modelReset, this, &InspectorPane::RestoreExpanded);
  connect(&model_, &QAbstractItemModel::dataChanged, this, &InspectorPane::RefreshEditor);
  connect(view_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          &InspectorPane::CurrentChanged);
  connect(view_, &QTreeView::expanded, this, [this](const QModelIndex& i) {
    expanded_.insert(i.data(InspectorModel::PathRole).toString());
    PlaceEditor();
  });
  connect(view_, &QTreeView::collapsed, this, [this](const QModelIndex& i) {
    expanded_.remove(i.data(InspectorModel::PathRole).toString());
    PlaceEditor();
  });
  connect(view_, &QTreeView::customContextMenuRequested, this, &InspectorPane::ShowMenu);
  connect(view_->verticalScrollBar(), &QScrollBar::valueChanged, this, &InspectorPane::PlaceEditor);
  connect(view_->header(), &QHeaderView::sectionResized, this, &InspectorPane::PlaceEditor);
  connect(editor_, &ValueEditor::Entered, this, [this](const QString& text) {
    if (Apply(text)) editor_->Field()->selectAll();
  });
  connect(editor_, &ValueEditor::DialogWanted, this, &InspectorPane::OpenDialog);
  connect(editor_, &ValueEditor::Moved, this, [this](int rows) {
    if (editor_->IsChanged() && !Apply(editor_->Field()->text())) return;
    const QModelIndex at = view_->currentIndex();
    const QModelIndex next = rows < 0 ? view_->indexAbove(at) : view_->indexBelow(at);
    if (next.isValid()) view_->setCurrentIndex(next);
    FocusValue();
  });
  connect(components_, &QComboBox::activated, this, [this](int i) {
    if (session_)
      if (TComponent* c = session_->GetComponent(components_->itemData(i).toString())) session_->Select({c});
  });
}

void InspectorPane::SetSession(FormSession* session) {
  if (session_) disconnect(session_, nullptr, this, nullptr);
  session_ = session;
  model_.SetSession(session);
  if (session_) {
    connect(session_, &FormSession::SelectionChanged, this, &InspectorPane::FillComponents);
    connect(session_, &FormSession::StructureChanged, this, &InspectorPane::FillComponents);
    connect(session_, &FormSession::FormChanged, this, &InspectorPane::FillComponents);
  }
  FillComponents();
}

void InspectorPane::FillComponents() {
  components_->clear();
  if (!session_) return;
  const auto selected = session_->SelectedComponents();
  if (selected.size() > 1)
    components_->addItem(tr("%n components", nullptr, static_cast<int>(selected.size())), QString());
  for (const TComponent* c : session_->AllComponents()) {
    if (c->Name().isEmpty()) continue;
    components_->addItem(ComponentIcon(c->ClassType()),
                         QStringLiteral("%1: %2").arg(c->Name(), QString::fromUtf8(c->StreamClassName())),
                         c->Name());
    if (selected.size() == 1 && c == selected[0]) components_->setCurrentIndex(components_->count() - 1);
  }
}

void InspectorPane::RememberExpanded() {
  currentPath_ = view_->currentIndex().data(InspectorModel::PathRole).toString();
  editor_->hide();
  filling_ = true;
}

void InspectorPane::RestoreExpanded() {
  for (const QString& path : std::as_const(expanded_))
    if (const QModelIndex i = model_.IndexOfPath(path); i.isValid()) view_->setExpanded(i, true);
  // Categories are open unless somebody closed them.
  for (int row = 0; row < model_.rowCount(); ++row)
    if (const QModelIndex i = model_.index(row, 0); i.data(InspectorModel::IsCategoryRole).toBool())
      view_->setExpanded(i, true);
  filling_ = false;
  if (!currentPath_.isEmpty()) ShowProperty(currentPath_);
  PlaceEditor();
}

bool InspectorPane::ShowProperty(const QString& path) {
  const QModelIndex index = model_.IndexOfPath(path);
  if (!index.isValid()) return false;
  for (QModelIndex p = index.parent(); p.isValid(); p = p.parent()) view_->setExpanded(p, true);
  view_->setCurrentIndex(index);
  view_->scrollTo(index);
  return true;
}

void InspectorPane::FocusValue() {
  if (!view_->currentIndex().isValid() && model_.rowCount() > 0) view_->setCurrentIndex(model_.index(0, 0));
  PlaceEditor();
  if (editor_->isVisible()) {
    editor_->Field()->setFocus();
    editor_->Field()->selectAll();
  } else {
    view_->setFocus();
  }
}

void InspectorPane::CurrentChanged(const QModelIndex& now, const QModelIndex& before) {
  if (filling_ || returning_) return;
  // Leaving a row applies what was typed; a refused value keeps the row.
  if (before.isValid() && editor_->isVisible() && editor_->IsChanged()) {
    // A refusal makes the rows anew, so the path is asked for before.
    const QString path = before.data(InspectorModel::PathRole).toString();
    const QString reason = model_.SetValueText(before, editor_->Field()->text());
    if (!reason.isEmpty()) {
      QMetaObject::invokeMethod(
          this,
          [this, path, reason] {
            returning_ = true;
            ShowProperty(path);
            returning_ = false;
            PlaceEditor();
            editor_->SetProblem(reason);
            editor_->Field()->setFocus();
          },
          Qt::QueuedConnection);
      return;
    }
  }
  const QModelIndex row = now.siblingAtColumn(0);
  description_->setText(row.data(InspectorModel::DescriptionRole).toString());
  editor_->hide();
  RefreshEditor();
}

void InspectorPane::RefreshEditor() {
  if (filling_ || returning_) return;
  const QModelIndex row = view_->currentIndex().siblingAtColumn(0);
  const TPropertyEditor* property = model_.EditorAt(row);
  if (!property) return editor_->hide();
  const TPropertyAttributes a = property->GetAttributes();
  ValueEditor::Setup setup;
  setup.text = model_.ValueText(row);
  setup.values = model_.ValueList(row);
  setup.readOnly =
      a.Contains(paReadOnly) || a.Contains(paDisplayReadOnly) ||
              (property->GetPropInfo().ReadOnly && property->GetPropType().Kind != TTypeKind::tkClass) ||
              property->GetPropType().Kind == TTypeKind::tkClass
          ? !a.Contains(paValueList)
          : false;
  setup.dialog = a.Contains(paDialog);
  setup.iconOf = [property](const QString& v) { return property->GetValueIcon(v); };
  editor_->Field()->setMaxLength(property->GetEditLimit());
  editor_->Show(setup);
  PlaceEditor();
}

// Over the value cell of the current row.
void InspectorPane::PlaceEditor() {
  const QModelIndex row = view_->currentIndex().siblingAtColumn(1);
  if (!model_.EditorAt(row.siblingAtColumn(0))) return editor_->hide();
  const QRect cell = view_->visualRect(row);
  if (cell.isEmpty()) return editor_->hide();
  QRect place = cell.adjusted(0, 0, 0, -1);
  // The box or the swatch in front of a value stays in sight.
  if (row.data(InspectorModel::IsBooleanRole).toBool()) place.setLeft(place.left() + 20);
  editor_->setGeometry(place);
  if (!editor_->isVisible()) editor_->show();
}

bool InspectorPane::Apply(const QString& text) {
  const QModelIndex row = view_->currentIndex().siblingAtColumn(0);
  const QString reason = model_.SetValueText(row, text);
  if (reason.isEmpty()) {
    RefreshEditor();
    return true;
  }
  editor_->Field()->setText(text);
  editor_->SetProblem(reason);
  return false;
}

void InspectorPane::OpenDialog() {
  const QString reason = model_.RunDialog(view_->currentIndex().siblingAtColumn(0));
  RefreshEditor();
  if (!reason.isEmpty()) editor_->SetProblem(reason);
}

void InspectorPane::ShowMenu(const QPoint& pos) {
  const QModelIndex row = view_->indexAt(pos).siblingAtColumn(0);
  if (!model_.EditorAt(row)) return;
  view_->setCurrentIndex(row);
  QMenu menu(this);
  menu.addAction(tr("&Reset to default"), this,
                 [&] {
                   if (const QString reason = model_.Reset(row); !reason.isEmpty())
                     editor_->SetProblem(reason);
                 })
      ->setEnabled(row.data(InspectorModel::NotDefaultRole).toBool());
  menu.addAction(tr("&Copy value"), this, [&] { QApplication::clipboard()->setText(model_.ValueText(row)); });
  menu.addAction(tr("Copy &name"), this,
                 [&] { QApplication::clipboard()->setText(row.data(InspectorModel::PathRole).toString()); });
  menu.exec(view_->viewport()->mapToGlobal(pos));
}

// Typing in the name column goes to the property that starts so.
void InspectorPane::JumpTo(const QString& typed) {
  for (int row = 0; row < model_.rowCount(); ++row) {
    const QModelIndex i = model_.index(row, 0);
    if (i.data().toString().startsWith(typed, Qt::CaseInsensitive)) {
      view_->setCurrentIndex(i);
      view_->scrollTo(i);
      return;
    }
  }
}

bool InspectorPane::eventFilter(QObject* watched, QEvent* event) {
  if (watched == view_->viewport() && event->type() == QEvent::Resize) PlaceEditor();
  if (watched == view_->viewport() && event->type() == QEvent::MouseButtonRelease) {
    const auto* mouse = static_cast<QMouseEvent*>(event);
    const QModelIndex cell = view_->indexAt(mouse->pos());
    if (cell.column() == 1 && mouse->button() == Qt::LeftButton) {
      if (cell.data(InspectorModel::IsBooleanRole).toBool() &&
          RowDelegate::BoxRect(view_->visualRect(cell)).adjusted(-3, -3, 3, 3).contains(mouse->pos())) {
        view_->setCurrentIndex(cell.siblingAtColumn(0));
        Apply(model_.ValueText(cell.siblingAtColumn(0)) == QStringLiteral("True") ? QStringLiteral("False")
                                                                                  : QStringLiteral("True"));
      }
      FocusValue();
    }
  }
  if (watched == view_->viewport() && event->type() == QEvent::MouseButtonDblClick) {
    const QModelIndex row = view_->indexAt(static_cast<QMouseEvent*>(event)->pos()).siblingAtColumn(0);
    if (model_.hasChildren(row)) view_->setExpanded(row, !view_->isExpanded(row));
    return true;
  }
  if (watched == view_ && event->type() == QEvent::KeyPress) {
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_F2 || key->key() == Qt::Key_Tab) {
      FocusValue();
      return true;
    }
    if (const QString text = key->text(); !text.isEmpty() && text[0].isLetter()) {
      // A pause starts a new name.
      const std::int64_t now = ClockMilliseconds();
      if (now - lastTyped_ > 1000) typed_.clear();
      lastTyped_ = now;
      JumpTo(typed_ += text);
      return true;
    }
  }
  return QWidget::eventFilter(watched, event);
}
