#include "designer/ComponentBox.h"

#include <QWheelEvent>

#include "designintf/ComponentIcons.h"

ComponentBox::ComponentBox(QWidget* parent) : QComboBox(parent) {
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName(tr("Component"));
  connect(this, &QComboBox::activated, this, [this](int i) {
    const QString name = itemData(i).toString();
    if (session_ && !name.isEmpty())
      if (TComponent* c = session_->GetComponent(name)) session_->Select({c});
  });
}

void ComponentBox::SetSession(FormSession* session) {
  if (session_) disconnect(session_, nullptr, this, nullptr);
  session_ = session;
  if (session_) {
    connect(session_, &FormSession::SelectionChanged, this, &ComponentBox::Refresh);
    connect(session_, &FormSession::StructureChanged, this, &ComponentBox::Fill);
    connect(session_, &FormSession::FormChanged, this, &ComponentBox::Refresh);
  }
  Fill();
}

void ComponentBox::Fill() {
  clear();
  if (!session_) return;
  for (const TComponent* c : session_->AllComponents())
    if (!c->Name().isEmpty()) addItem(ComponentIcon(c->ClassType()), QString(), c->Name());
  Refresh();
}

// Names and selection may have changed; the list stays. What stands for several components comes last.
void ComponentBox::Refresh() {
  const auto selected = session_->SelectedComponents();
  int at = 0, current = -1;
  for (const TComponent* c : session_->AllComponents()) {
    if (c->Name().isEmpty()) continue;
    if (at >= count() || itemData(at).toString().isEmpty()) return Fill();
    if (itemText(at).isEmpty() || itemData(at) != c->Name()) {
      setItemText(at, QStringLiteral("%1: %2").arg(c->Name(), QString::fromUtf8(c->StreamClassName())));
      setItemData(at, c->Name());
    }
    if (c == selected[0]) current = at;
    ++at;
  }
  while (count() > at) removeItem(at);
  if (selected.size() > 1) {
    addItem(tr("%n components", nullptr, static_cast<int>(selected.size())), QString());
    current = at;
  }
  setCurrentIndex(current);
}

// The wheel changes only what has the focus.
void ComponentBox::wheelEvent(QWheelEvent* event) {
  if (hasFocus())
    QComboBox::wheelEvent(event);
  else
    event->ignore();
}
