#include "designer/InspectorPane.h"

#include <QtWidgets>

#include "designer/ComponentBox.h"
#include "designer/RowDelegate.h"
#include "designer/RowSelection.h"
#include "designer/SearchField.h"
#include "designer/ValueEditor.h"
#include "designintf/BasicEditors.h"

using enum TPropertyAttribute;

namespace {
constexpr qsizetype LongestTyped = 32767;

// The rows have the keys while one of them is edited.
class RowsView : public QTreeView {
 protected:
  void initViewItemOption(QStyleOptionViewItem* option) const override {
    QTreeView::initViewItemOption(option);
    if (isAncestorOf(QApplication::focusWidget())) option->state |= QStyle::State_Active;
  }
};
}  // namespace

InspectorPane::InspectorPane(QWidget* parent) : QWidget(parent) {
  components_ = new ComponentBox;
  components_->setObjectName(QStringLiteral("componentBox"));
  tabs_ = new QTabBar;
  tabs_->addTab(tr("Properties"));
  tabs_->addTab(tr("Events"));
  tabs_->setExpanding(false);
  tabs_->setDrawBase(false);
  tabs_->setAccessibleName(tr("Pages of the inspector"));
  filter_ = new SearchField(tr("Filter..."), tr("Filter of the inspector"));
  auto* grouped = new QToolButton;
  grouped->setText(tr("Categories"));
  grouped->setCheckable(true);
  grouped->setAutoRaise(true);
  grouped->setToolTip(tr("Groups the rows by category instead of by name"));
  view_ = new RowsView;
  view_->setObjectName(QStringLiteral("inspector"));
  view_->setModel(&model_);
  delete view_->selectionModel();
  view_->setSelectionModel(new RowSelection(
      &model_, [this] { return !hiding_ && Commit(); }, view_));
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
  nothing_ = new QLabel;
  nothing_->setObjectName(QStringLiteral("nothingFits"));
  nothing_->setAccessibleName(tr("No match"));
  nothing_->setWordWrap(true);
  nothing_->setMargin(6);
  nothing_->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
  nothing_->hide();
  editor_ = new ValueEditor(view_->viewport());
  editor_->hide();
  BuildLayout(grouped);

  for (QObject* o : std::initializer_list<QObject*>{view_, view_->viewport(), filter_})
    o->installEventFilter(this);
  connect(tabs_, &QTabBar::currentChanged, this, &InspectorPane::ShowPage);
  connect(filter_, &QLineEdit::textChanged, &model_, &InspectorModel::SetFilter);
  connect(nothing_, &QLabel::linkActivated, this, [this] {
    filter_->clear();
    filter_->setFocus();
  });
  revert_ = new QAction(tr("Revert to &inherited"), this);
  revert_->setObjectName(QStringLiteral("revertToInherited"));
  revert_->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Backspace));
  revert_->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  addAction(revert_);
  connect(revert_, &QAction::triggered, this, &InspectorPane::RevertToInherited);
  connect(grouped, &QToolButton::toggled, this, [this, grouped](bool on) { Group(*grouped, on); });
  ConnectRows();
}

void InspectorPane::BuildLayout(QToolButton* grouped) {
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
  box->addWidget(nothing_);
  box->addWidget(view_, 1);
  box->addWidget(description_);
  QWidget* order[] = {components_, tabs_, grouped, filter_, nothing_, view_};
  for (std::size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
}

void InspectorPane::ConnectRows() {
  connect(&model_, &QAbstractItemModel::modelAboutToBeReset, this, &InspectorPane::RememberRows);
  connect(&model_, &QAbstractItemModel::modelReset, this, &InspectorPane::RestoreRows);
  connect(&model_, &QAbstractItemModel::dataChanged, this, &InspectorPane::ValuesChanged);
  connect(view_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          &InspectorPane::CurrentChanged);
  connect(view_, &QTreeView::expanded, this, [this](const QModelIndex& i) {
    if (filling_) return;
    const QString path = i.data(InspectorModel::PathRole).toString();
    closedCategories_.remove(path);
    // What the filter opens is closed again with it.
    if (filter_->text().isEmpty()) expanded_.insert(path);
    PlaceEditor();
  });
  connect(view_, &QTreeView::collapsed, this, &InspectorPane::Closed);
  connect(view_, &QTreeView::customContextMenuRequested, this, &InspectorPane::ShowMenu);
  connect(view_->verticalScrollBar(), &QScrollBar::valueChanged, this, &InspectorPane::PlaceEditor);
  connect(view_->header(), &QHeaderView::sectionResized, this, &InspectorPane::PlaceEditor);
  connect(editor_, &ValueEditor::Entered, this, [this](const QString& text) {
    if (Apply(text)) editor_->Field()->selectAll();
  });
  connect(editor_, &ValueEditor::DialogWanted, this, &InspectorPane::OpenDialog);
  connect(editor_, &ValueEditor::Moved, this, &InspectorPane::Walk);
  connect(editor_, &ValueEditor::Opened, this, &InspectorPane::OpenRow);
  connect(editor_, &ValueEditor::Left, this, [this] { view_->setFocus(); });
  connect(editor_, &ValueEditor::FocusLost, this, &InspectorPane::Commit);
  connect(editor_->Field(), &QLineEdit::textChanged, this, &InspectorPane::Typing);
}

void InspectorPane::SetSession(FormSession* session) {
  model_.SetSession(session);
  components_->SetSession(session);
}

// --- Pages

void InspectorPane::ShowPage(int page) {
  if (!Commit()) {
    const QSignalBlocker quiet(tabs_);
    tabs_->setCurrentIndex(page_);
    return FocusValue();
  }
  view_->setAccessibleName(tabs_->tabText(page));
  model_.ShowEvents(page == 1);
}

void InspectorPane::Group(QToolButton& grouped, bool on) {
  if (!Commit()) {
    const QSignalBlocker quiet(&grouped);
    grouped.setChecked(!on);
    return FocusValue();
  }
  const QString path = places_[static_cast<std::size_t>(page_)].path;
  model_.GroupByCategory(on);
  if (!on) {
    ShowProperty(path.section(u'.', 1));
    return;
  }
  for (int row = 0; row < model_.rowCount(); ++row)
    if (ShowProperty(model_.index(row, 0).data().toString() + u'.' + path)) return;
}

// --- Rows that are made anew

void InspectorPane::RememberRows() {
  filling_ = true;
  const QModelIndex row = CurrentRow();
  places_[static_cast<std::size_t>(page_)].scroll = view_->verticalScrollBar()->value();
  inSight_ = !row.isValid() || view_->viewport()->rect().intersects(view_->visualRect(row));
  if (row.isValid() && !applying_ && !editor_->isHidden() && editor_->IsChanged())
    unfinished_ = {model_.Components(), row.data(InspectorModel::PathRole).toString(),
                   editor_->Field()->text(), editor_->Problem()};
}

void InspectorPane::OpenHits(const QModelIndex& parent) {
  for (int row = 0; row < model_.rowCount(parent); ++row) {
    const QModelIndex i = model_.index(row, 0, parent);
    if (!i.data(InspectorModel::IsAboveRole).toBool()) continue;
    view_->setExpanded(i, true);
    OpenHits(i);
  }
}

void InspectorPane::TellWhenNothingFits() {
  const bool nothing = !filter_->text().isEmpty() && model_.rowCount() == 0 && !model_.Components().empty();
  nothing_->setVisible(nothing);
  if (!nothing) return;
  const QString text =
      (tabs_->currentIndex() == 0 ? tr("No property matches \"%1\".") : tr("No event matches \"%1\"."));
  nothing_->setText(text.arg(filter_->text().toHtmlEscaped()) +
                    QStringLiteral(" <a href=\"clear\">%1</a>").arg(tr("Clear the filter")));
}

void InspectorPane::RestoreRows() {
  TellWhenNothingFits();
  for (const QString& path : std::as_const(expanded_))
    if (const QModelIndex i = model_.IndexOfPath(path); i.isValid()) view_->setExpanded(i, true);
  // Categories are open unless somebody closed them.
  for (int row = 0; row < model_.rowCount(); ++row)
    if (const QModelIndex i = model_.index(row, 0); i.data(InspectorModel::IsCategoryRole).toBool())
      view_->setExpanded(i, !closedCategories_.contains(i.data().toString()));
  if (!filter_->text().isEmpty()) OpenHits({});
  page_ = tabs_->currentIndex();
  const Place& place = places_[static_cast<std::size_t>(page_)];
  if (const QModelIndex row = model_.IndexOfPath(place.path); row.isValid()) view_->setCurrentIndex(row);
  view_->doItemsLayout();
  view_->verticalScrollBar()->setValue(place.scroll);
  if (inSight_ && CurrentRow().isValid()) view_->scrollTo(CurrentRow());
  filling_ = false;
  ShowValue();
  RestoreUnfinished();
}

// The typing goes on in its row. When the row is gone, the person hears that the value stayed.
void InspectorPane::RestoreUnfinished() {
  const auto was = std::exchange(unfinished_, std::nullopt);
  if (!was) return;
  if (was->components == model_.Components() &&
      was->path == CurrentRow().data(InspectorModel::PathRole).toString()) {
    editor_->SetTyped(was->text);
    return editor_->SetProblem(was->problem);
  }
  if (model_.Components().empty()) return;
  emit Message(was->problem.isEmpty() ? tr("%1 was not changed.").arg(was->path)
                                      : tr("%1 was not changed: %2").arg(was->path, was->problem));
}

// --- The current row

QModelIndex InspectorPane::CurrentRow() const { return view_->currentIndex().siblingAtColumn(0); }

bool InspectorPane::ShowProperty(const QString& path) {
  const QPersistentModelIndex index = model_.IndexOfPath(path);
  if (!index.isValid()) return false;
  view_->setCurrentIndex(index);
  if (CurrentRow() != index) return false;
  for (QModelIndex p = CurrentRow().parent(); p.isValid(); p = p.parent()) view_->setExpanded(p, true);
  view_->scrollTo(CurrentRow());
  PlaceEditor();
  return true;
}

void InspectorPane::FocusValue() {
  if (!CurrentRow().isValid() && model_.rowCount() > 0) view_->setCurrentIndex(model_.index(0, 0));
  if (CurrentRow().isValid()) view_->scrollTo(CurrentRow());
  PlaceEditor();
  if (!editor_->isHidden()) {
    editor_->Field()->setFocus();
    editor_->Field()->selectAll();
  } else {
    view_->setFocus();
  }
}

void InspectorPane::CurrentChanged() {
  if (filling_) return;
  places_[static_cast<std::size_t>(page_)].path = CurrentRow().data(InspectorModel::PathRole).toString();
  ShowValue();
}

void InspectorPane::ValuesChanged(const QModelIndex& first, const QModelIndex& last) {
  const QModelIndex row = CurrentRow();
  if (filling_ || applying_ || row.parent() != first.parent()) return;
  if (row.row() >= first.row() && row.row() <= last.row()) ShowValue(editor_->IsChanged());
}

// Why the file's value is refused comes first.
void InspectorPane::TellDescription() {
  QStringList parts{CurrentRow().data(InspectorModel::ProblemRole).toString(),
                    CurrentRow().data(InspectorModel::DescriptionRole).toString()};
  parts.removeAll(QString());
  description_->setText(parts.join(u'\n'));
}

void InspectorPane::ShowValue(bool keepTyping) {
  const QModelIndex row = CurrentRow();
  TellDescription();
  const TPropertyEditor* property = model_.EditorAt(row);
  if (!property) return HideEditor();
  const auto a =
      AskEditor(*property, "GetAttributes", TPropertyAttributes(), [&] { return property->GetAttributes(); });
  // Editors of objects serve other values, too, and take no text for them either.
  const bool isObject = property->GetPropType().Kind == TTypeKind::tkClass ||
                        dynamic_cast<const TClassProperty*>(property) != nullptr;
  const bool fixed =
      a.Contains(paReadOnly) || a.Contains(paDisplayReadOnly) || isObject || property->GetPropInfo().ReadOnly;
  ValueEditor::Setup setup;
  setup.name = row.data(InspectorModel::PathRole).toString();
  setup.text = model_.ValueText(row);
  setup.bold = row.data(InspectorModel::NotDefaultRole).toBool();
  setup.mixed = property->PropCount() > 1 &&
                !AskEditor(*property, "AllEqual", true, [&] { return property->AllEqual(); });
  if (a.Contains(paValueList)) setup.values = [this] { return model_.ValueList(CurrentRow()); };
  setup.readOnly = fixed && !a.Contains(paValueList);
  setup.dialog = a.Contains(paDialog);
  // A field for one line would take minutes to lay this out.
  if (setup.text.size() > LongestTyped) {
    setup.text = InspectorModel::Shortened(setup.text);
    setup.readOnly = true;
  }
  // A longer value that is there already is not cut off.
  setup.limit = std::max(AskEditor(*property, "GetEditLimit", 0, [&] { return property->GetEditLimit(); }),
                         static_cast<int>(setup.text.size()));
  setup.iconOf = [this](const QString& v) {
    const TPropertyEditor* current = model_.EditorAt(CurrentRow());
    if (!current) return QIcon();
    return AskEditor(*current, "GetValueIcon", QIcon(), [&] { return current->GetValueIcon(v); });
  };
  editor_->Show(setup, keepTyping);
  PlaceEditor();
}

// The focus stays in the inspector when there is no value to edit any more. The list would take its first row
// with it.
void InspectorPane::HideEditor() {
  const QScopedValueRollback<bool> quiet(filling_, true), stay(hiding_, true);
  if (editor_->isAncestorOf(QApplication::focusWidget())) view_->setFocus();
  editor_->hide();
}

// Over the value cell of the current row.
void InspectorPane::PlaceEditor() {
  if (filling_) return;
  const QModelIndex cell = view_->currentIndex().siblingAtColumn(1);
  const QRect rect = view_->visualRect(cell);
  if (!model_.EditorAt(CurrentRow()) || rect.isEmpty()) return HideEditor();
  QRect place = rect.adjusted(0, 0, 0, -1);
  // The box in front of a value stays in sight.
  if (cell.data(InspectorModel::IsBooleanRole).toBool()) place.setLeft(place.left() + 20);
  editor_->setGeometry(place);
  editor_->show();
}

// --- Values

bool InspectorPane::Commit() {
  if (filling_ || applying_ || editor_->isHidden() || !editor_->IsChanged()) return true;
  return Apply(editor_->Field()->text());
}

bool InspectorPane::Apply(const QString& text) {
  QString reason;
  {
    const QScopedValueRollback<bool> applying(applying_, true);
    reason = model_.SetValueText(CurrentRow(), text);
  }
  if (reason.isEmpty()) {
    ShowValue();
    return true;
  }
  editor_->SetTyped(text);
  editor_->SetProblem(reason);
  return false;
}

void InspectorPane::OpenDialog() {
  if (!Commit()) return FocusValue();
  const QString reason = model_.RunDialog(CurrentRow());
  ShowValue();
  if (!reason.isEmpty()) editor_->SetProblem(reason);
}

void InspectorPane::ShowMenu(const QPoint& pos) {
  const QModelIndex row = view_->indexAt(pos).siblingAtColumn(0);
  if (!model_.EditorAt(row)) return;
  view_->setCurrentIndex(row);
  if (CurrentRow() != row) return FocusValue();
  QMenu menu(this);
  menu.addAction(tr("&Reset to default"), this,
                 [&] {
                   const QString reason = model_.Reset(CurrentRow());
                   ShowValue();
                   if (!reason.isEmpty()) editor_->SetProblem(reason);
                 })
      ->setEnabled(row.data(InspectorModel::NotDefaultRole).toBool());
  menu.addAction(revert_);
  revert_->setEnabled(row.data(InspectorModel::CanRevertRole).toBool());
  menu.addAction(tr("&Copy value"), this,
                 [&] { QApplication::clipboard()->setText(model_.ValueText(CurrentRow())); });
  menu.addAction(tr("Copy &name"), this, [&] {
    QApplication::clipboard()->setText(CurrentRow().data(InspectorModel::PathRole).toString());
  });
  menu.exec(view_->viewport()->mapToGlobal(pos));
  revert_->setEnabled(true);  // the key asks when it is pressed
}

void InspectorPane::RevertToInherited() {
  if (!CurrentRow().isValid() || !Commit()) return FocusValue();
  if (!CurrentRow().data(InspectorModel::CanRevertRole).toBool())
    return emit Message(tr("%1 is what the ancestor form says, or there is none.")
                            .arg(CurrentRow().data(InspectorModel::PathRole).toString()));
  const QString reason = model_.RevertToInherited(CurrentRow());
  ShowValue();
  if (!reason.isEmpty()) editor_->SetProblem(reason);
}
