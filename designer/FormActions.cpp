#include "designer/FormActions.h"

#include <QtWidgets>

namespace {
QIcon IconOf(const char* name) { return *name ? QIcon::fromTheme(QLatin1StringView(name)) : QIcon(); }
}  // namespace

FormActions::FormActions(QWidget& window) : QObject(&window) {
  for (const ActionGroupRow& group : ActionGroups()) {
    if (!*group.title) continue;
    auto* menu = new QMenu(group.Text(), &window);
    menu->setIcon(IconOf(group.icon));
    menus_.emplace_back(group.group, menu);
  }
  for (const ActionRow& row : ActionTable()) {
    auto* action = new QAction(IconOf(row.icon), row.Text(), &window);
    action->setObjectName(QLatin1StringView(row.id));
    action->setShortcuts(QKeySequence::listFromString(QLatin1StringView(row.shortcuts)));
    action->setToolTip(row.Title());
    if (row.group != ActionGroup::Undo) action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(action, &QAction::triggered, this, [this, &row] { emit Wanted(row); });
    actions_.emplace_back(&row, action);
    if (QMenu* menu = MenuOf(row.group)) menu->addAction(action);
  }
}

QMenu* FormActions::MenuOf(ActionGroup group) const {
  for (const auto& [of, menu] : menus_)
    if (of == group) return menu;
  return nullptr;
}

void FormActions::WorkIn(QWidget& widget) {
  for (const auto& [row, action] : actions_)
    if (row->group != ActionGroup::Undo) widget.addAction(action);
}

void FormActions::AddTo(QMenu& menu, std::initializer_list<ActionGroup> groups) const {
  bool apart = !menu.isEmpty();
  for (const ActionGroup group : groups) {
    QMenu* own = MenuOf(group);
    // Menus stand together, other groups for themselves.
    if (!own || apart) menu.addSeparator();
    apart = !own;
    if (own) menu.addMenu(own);
    for (const auto& [row, action] : actions_)
      if (!own && row->group == group) menu.addAction(action);
  }
}

void FormActions::AddTo(QToolBar& bar) const {
  const QMenu* last = nullptr;
  std::optional<ActionGroup> group;
  for (const auto& [row, action] : actions_) {
    if (!row->inToolBar) continue;
    QMenu* menu = MenuOf(row->group);
    if (group != row->group && !(last && (menu || row->group == ActionGroup::Grid))) bar.addSeparator();
    group = row->group;
    if (!menu) {
      bar.addAction(action);
    } else if (menu != last) {
      bar.addAction(menu->menuAction());
      auto* button = qobject_cast<QToolButton*>(bar.widgetForAction(menu->menuAction()));
      button->setPopupMode(QToolButton::InstantPopup);
      last = menu;
    }
  }
}

void FormActions::AddTo(std::vector<CommandEntry>& rows) const {
  for (const auto& [row, action] : actions_)
    rows.push_back(EntryOf(*action, row->object ? action->text().remove(u'&') : row->Title()));
}

void FormActions::Update(const FormSession* session) {
  for (const auto& [row, action] : actions_) {
    const QString reason = session ? row->whyNot(*session) : tr("Open a form first.");
    action->setEnabled(reason.isEmpty());
    action->setStatusTip(reason);
    action->setText(session ? row->TextFor(*session) : row->Text());
  }
  for (const auto& [group, menu] : menus_) {
    const auto entries = menu->actions();
    menu->menuAction()->setEnabled(
        std::any_of(entries.begin(), entries.end(), [](const QAction* a) { return a->isEnabled(); }));
  }
}

QString DesktopClipboard::Text() const { return QGuiApplication::clipboard()->text(); }
void DesktopClipboard::SetText(const QString& text) { QGuiApplication::clipboard()->setText(text); }
