#include "designer/ComponentBox.h"

#include <QWheelEvent>

ComponentBox::ComponentBox(QWidget* parent) : QComboBox(parent) {
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName(tr("Component"));
  setModel(&components_);
  connect(this, &QComboBox::activated, this, [this](int row) {
    if (TComponent* c = components_.ComponentAt(components_.index(row, 0)))
      components_.Session()->Select({c});
  });
  connect(&components_, &QAbstractItemModel::modelReset, this, &ComponentBox::ShowSelection);
}

void ComponentBox::SetSession(FormSession* session) {
  if (components_.Session()) disconnect(components_.Session(), nullptr, this, nullptr);
  components_.SetSession(session);
  if (session) connect(session, &FormSession::SelectionChanged, this, &ComponentBox::ShowSelection);
}

// Several components are no entry of the list, and neither are items inside of one.
void ComponentBox::ShowSelection() {
  const FormSession* session = components_.Session();
  const auto selected = session ? session->SelectedComponents() : std::vector<TComponent*>();
  QString text = session ? session->SelectedPartsText() : QString();
  const bool listed = selected.size() == 1 && text.isEmpty();
  if (text.isEmpty() && selected.size() > 1)
    text = tr("%n components", nullptr, static_cast<int>(selected.size()));
  setPlaceholderText(text);
  setCurrentIndex(listed ? components_.IndexOf(*selected[0]).row() : -1);
}

// The wheel changes only what has the focus.
void ComponentBox::wheelEvent(QWheelEvent* event) {
  if (hasFocus())
    QComboBox::wheelEvent(event);
  else
    event->ignore();
}
