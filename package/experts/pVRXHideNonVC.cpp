#include "package/experts/pVRXHideNonVC.h"

#include <QtWidgets>

#include "designintf/ComponentVerbs.h"
#include "designintf/IdeTheme.h"
#include "rtl/Exceptions.h"
#include "vcl/Colors.h"
#include "vcl/Prompts.h"
#include "vcl/Theme.h"

namespace {
// The last one is there to be used, unless it is on its way out, too.
QList<QPointer<TVRXHideNonVCfrm>>& Windows() {
  static QList<QPointer<TVRXHideNonVCfrm>> windows;
  return windows;
}

// The outermost one of the window that is worked in: its keys (undo, save) work here, too.
QWidget* ApplicationWindow() {
  QWidget* window = QApplication::activeWindow();
  while (window && window->parentWidget()) window = window->parentWidget()->window();
  return window;
}
}  // namespace

// Sorted by its text, as lists are read: a capital letter is no other letter.
struct TVRXHideNonVCfrm::Entry : QListWidgetItem {
  explicit Entry(TComponent& c) : component(&c) { Show(); }
  // True when it is still what it was; the rest is for the eye.
  void Show() {
    if (const QString now = BuildAddString(*component); now != text()) setText(now);
    const QVariant ink =
        HasHiddenIcon(*component) ? QVariant(qApp->palette().brush(QPalette::PlaceholderText)) : QVariant();
    if (data(Qt::ForegroundRole) != ink) setData(Qt::ForegroundRole, ink);
  }
  bool operator<(const QListWidgetItem& other) const override {
    const int order = text().compare(other.text(), Qt::CaseInsensitive);
    return order != 0 ? order < 0 : text() < other.text();
  }
  TComponent* component;  // null once it is gone
};

TVRXHideNonVCfrm::~TVRXHideNonVCfrm() {
  if (component_) component_->SetNewComponentHandler(nullptr);
}

// --- The one window

TVRXHideNonVCfrm* TVRXHideNonVCfrm::Instance() {
  TVRXHideNonVCfrm* last = Windows().isEmpty() ? nullptr : Windows().last();
  return last && !last->released_ ? last : nullptr;
}

void TVRXHideNonVCfrm::Free() {
  for (const auto& window : std::exchange(Windows(), {})) delete window;
}

TVRXHideNonVCfrm& TVRXHideNonVCfrm::Open(TVRXHideNonVC& component, IDesigner& designer,
                                         const DesignRegistry* registry) {
  if (!Instance()) {
    Windows().removeAll(nullptr);
    Windows() << new TVRXHideNonVCfrm(ApplicationWindow());
  }
  TVRXHideNonVCfrm& window = *Instance();
  window.registry_ = registry;
  window.SetDesigner(&designer);
  window.SetComponent(&component);
  window.Initialize();
  window.show();
  window.raise();
  window.activateWindow();
  window.cbList->setFocus();
  window.UpdateSelection();
  return window;
}

// Nothing is asked of the form any more, which may be gone before the window is.
void TVRXHideNonVCfrm::Release() {
  released_ = true;
  UnregisterDesignNotification(this);
  SetComponent(nullptr);
  SetDesigner(nullptr);
  hide();
  deleteLater();
}

void TVRXHideNonVCfrm::SetComponent(TVRXHideNonVC* component) {
  if (component_ == component) return;
  if (component_) component_->SetNewComponentHandler(nullptr);
  component_ = component;
  newComponentPending_ = false;
  if (component_) component_->SetNewComponentHandler(this);
  UpdateCaption();
  Initialize();
}

void TVRXHideNonVCfrm::UpdateCaption() {
  name_ = component_ ? component_->Name() : QString();
  const QString caption = Form() ? Form()->Name() + u'.' + name_ : QString();
  if (caption != windowTitle()) setWindowTitle(caption);
}

// --- The list

QString TVRXHideNonVCfrm::BuildAddString(const TComponent& component) {
  return component.Name() + QStringLiteral(" [") + QString::fromUtf8(component.StreamClassName()) + u']';
}
QString TVRXHideNonVCfrm::GetAddStringName(const QString& text) {
  return text.left(text.indexOf(u'[')).trimmed();
}

TVRXHideNonVCfrm::Entry* TVRXHideNonVCfrm::EntryAt(int row) const {
  return static_cast<Entry*>(cbList->item(row));
}

TVRXHideNonVCfrm::Entry* TVRXHideNonVCfrm::EntryOf(const TPersistent* component) const {
  for (int row = 0; row < cbList->count(); ++row)
    if (EntryAt(row)->component == component) return EntryAt(row);
  return nullptr;
}

TVRXHideNonVCfrm::Entry* TVRXHideNonVCfrm::Focused() const {
  auto* entry = static_cast<Entry*>(cbList->currentItem());
  return entry && entry->component ? entry : nullptr;
}

void TVRXHideNonVCfrm::AddEntry(TComponent& component) { cbList->addItem(new Entry(component)); }

void TVRXHideNonVCfrm::Initialize() {
  {
    const QScopedValueRollback loading(loading_, true);
    cbList->clear();
    if (Form())
      for (TComponent* c : Form()->Components())
        if (VRXCheckValidComponent(*c, component_)) AddEntry(*c);
  }
  CheckButtonStates();
  CheckInfo();
}

// What is still there keeps its place in the selection. True when some came or went.
bool TVRXHideNonVCfrm::UpdateEntries() {
  const QScopedValueRollback loading(loading_, true);
  bool other = false;
  QSet<const TComponent*> listed;
  std::vector<Entry*> entries;
  for (int row = 0; row < cbList->count(); ++row) entries.push_back(EntryAt(row));
  for (Entry* entry : entries) {
    if (!entry->component || !VRXCheckValidComponent(*entry->component, component_)) {
      delete entry;
      other = true;
    } else {
      listed.insert(entry->component);
      entry->Show();
    }
  }
  for (TComponent* c : Form()->Components())
    if (!listed.contains(c) && VRXCheckValidComponent(*c, component_)) {
      AddEntry(*c);
      other = true;
    }
  return other;
}

void TVRXHideNonVCfrm::CheckInfo() {
  struct State {
    const char* text;
    TColor color;
  };
  constexpr State none{"---", TColor{0}}, hidden{"[Hidden]", TColor{128}},
      visible{"[Visible]", TColor{8388608}};
  const Entry* entry = Focused();
  const State& state = !component_ || !entry ? none : HasHiddenIcon(*entry->component) ? hidden : visible;
  d->setText(QLatin1StringView(state.text));
  QColor ink = ToQColor(state.color);
  // As far from a dark ground as it is from a light one.
  if (IsDark(palette())) ink = QColor::fromHslF(ink.hslHueF(), ink.hslSaturationF(), 1 - ink.lightnessF());
  QPalette colors = palette();
  colors.setColor(QPalette::WindowText, ink);
  d->setPalette(colors);
}

void TVRXHideNonVCfrm::CheckButtonStates() {
  const bool any = cbList->count() > 0;
  const bool selected = !cbList->selectedItems().isEmpty();
  for (QPushButton* button : {btHide, btShow, btDelete}) button->setEnabled(selected);
  for (QPushButton* button : {btHideAll, btshowall}) button->setEnabled(any);
}

// --- Selection

std::vector<TComponent*> TVRXHideNonVCfrm::GetSelected() const {
  std::vector<TComponent*> selected;
  for (int row = 0; row < cbList->count(); ++row)
    if (const Entry* entry = EntryAt(row); entry->isSelected() && entry->component)
      selected.push_back(entry->component);
  return selected;
}

void TVRXHideNonVCfrm::SelectAll() {
  const QScopedValueRollback loading(loading_, true);
  cbList->selectAll();
}
void TVRXHideNonVCfrm::SelectNone() {
  const QScopedValueRollback loading(loading_, true);
  cbList->clearSelection();
}

void TVRXHideNonVCfrm::BeginUpdate() { selections_.clear(); }
void TVRXHideNonVCfrm::SelectAdd(TComponent& component) { selections_.push_back(&component); }
void TVRXHideNonVCfrm::SelectOne(TComponent& component) {
  BeginUpdate();
  SelectAdd(component);
  EndUpdate();
}

// The designer's echo is not taken for a choice of the person's.
void TVRXHideNonVCfrm::EndUpdate() {
  const TDesignerSelections list = std::exchange(selections_, {});
  if (!Designer()) return;
  const QScopedValueRollback updating(updatingSelection_, true);
  if (list.size() == 1)
    Designer()->SelectComponent(list.front());
  else
    Designer()->SetSelections(list);
}

void TVRXHideNonVCfrm::UpdateSelection() {
  if (component_) {
    const std::vector<TComponent*> selected = GetSelected();
    BeginUpdate();
    for (TComponent* c : selected) SelectAdd(*c);
    EndUpdate();
  }
  CheckButtonStates();
  CheckInfo();
}

void TVRXHideNonVCfrm::DoSelectAll() {
  SelectAll();
  UpdateSelection();
}

void TVRXHideNonVCfrm::SelectionChanged(IDesigner* designer, const TDesignerSelections& list) {
  if (updatingSelection_ || !component_ || designer != Designer() || !isVisible()) return;
  SelectNone();
  {
    const QScopedValueRollback loading(loading_, true);
    QSet<const TPersistent*> wanted;
    for (const TPersistent* object : list)
      if (const auto* c = As<TComponent>(object); c && VRXCheckValidComponent(*c, component_))
        wanted.insert(c);
    bool first = true;
    for (int row = 0; row < cbList->count() && !wanted.isEmpty(); ++row) {
      Entry* entry = EntryAt(row);
      if (!wanted.contains(entry->component)) continue;
      if (std::exchange(first, false)) cbList->setCurrentItem(entry, QItemSelectionModel::NoUpdate);
      entry->setSelected(true);
    }
  }
  CheckButtonStates();
  CheckInfo();
}

// Of what the list could select, but for one that is going.
bool TVRXHideNonVCfrm::SelectsTheSame(const TPersistent* without) const {
  if (!Designer()) return true;
  QSet<const TPersistent*> there, here;
  for (const TPersistent* object : Designer()->GetSelections())
    if (object != without && EntryOf(object)) there.insert(object);
  for (const TPersistent* object : GetSelected()) here.insert(object);
  return there == here;
}

void TVRXHideNonVCfrm::Activated() {
  if (!updatingSelection_ && Designer()) UpdateSelection();
}

// --- What is done to the form

void TVRXHideNonVCfrm::Do(const QString& text, const std::function<void()>& action) {
  if (!Designer() || !component_) return;
  try {
    Designer()->Perform(text, action);
  } catch (const std::exception& error) {
    Prompts().Warn(this, windowTitle(), ExceptionMessage(error));
  }
}

namespace {
QString StepText(const char* one, const char* several, const std::vector<TComponent*>& components) {
  return components.size() == 1 ? TVRXHideNonVCfrm::tr(one).arg(components[0]->Name())
                                : TVRXHideNonVCfrm::tr(several, nullptr, static_cast<int>(components.size()));
}
}  // namespace

void TVRXHideNonVCfrm::HideSelection() {
  const std::vector<TComponent*> selected = GetSelected();
  if (selected.empty()) return;
  Do(StepText("Hide %1", "Hide %n components", selected), [&] {
    for (TComponent* c : selected) VRXHideIcon(*Designer()->GetRoot(), *c, Remembers());
  });
}

void TVRXHideNonVCfrm::ShowSelection() {
  const std::vector<TComponent*> selected = GetSelected();
  if (selected.empty()) return;
  Do(StepText("Show %1", "Show %n components", selected), [&] {
    for (TComponent* c : selected) VRXShowIcon(*Designer()->GetRoot(), *c, Remembers());
  });
}

// By the designer, which knows what stands inside of them and what must not go.
void TVRXHideNonVCfrm::DeleteSelection() {
  const std::vector<TComponent*> selected = GetSelected();
  if (selected.empty()) return;
  const QScopedValueRollback updating(updatingSelection_, true);
  Do(StepText("Delete %1", "Delete %n components", selected), [&] {
    Designer()->SetSelections(TDesignerSelections(selected.rbegin(), selected.rend()));
    Designer()->DeleteSelection();
  });
}

// --- What happens to the form

// The entry of one that goes while a new one is pending stays in the list until that is put right; nothing
// leads to the component any more.
void TVRXHideNonVCfrm::ItemDeleted(IDesigner* designer, TPersistent* item) {
  if (designer != Designer()) return;
  if (item == component_ && component_) {
    if (!newComponentPending_) Release();
    return;
  }
  Entry* entry = EntryOf(item);
  if (!entry) return;
  if (newComponentPending_) {
    entry->component = nullptr;
    return;
  }
  {
    const QScopedValueRollback loading(loading_, true);
    delete entry;
  }
  if (!updatingSelection_ && isVisible() && !SelectsTheSame(item)) return UpdateSelection();
  CheckButtonStates();
  CheckInfo();
}

// Closed, it only follows its component: opened again, it lists anew.
void TVRXHideNonVCfrm::ItemsModified(IDesigner* designer) {
  if (!designer || designer != Designer()) return;
  newComponentPending_ = false;
  if (!component_) {
    auto* again = name_.isEmpty() ? nullptr : As<TVRXHideNonVC>(designer->GetComponent(name_));
    if (!again) return Release();
    SetComponent(again);
    return SelectionChanged(designer, designer->GetSelections());
  }
  UpdateCaption();
  if (!isVisible()) return;
  // What has come may have been selected before it was listed.
  if (UpdateEntries()) SelectionChanged(designer, designer->GetSelections());
  CheckButtonStates();
  CheckInfo();
}

void TVRXHideNonVCfrm::DesignerClosed(IDesigner* designer) {
  if (designer && designer == Designer()) Release();
}

// --- The menu

void TVRXHideNonVCfrm::BuildMenu() {
  popMenu->clear();
  const Entry* entry = Focused();
  if (!entry || !Designer() || !registry_) return;
  TComponent* const component = entry->component;
  IDesigner* const designer = Designer();
  const auto perform = [designer](const QString& text, const std::function<void()>& action) {
    designer->Perform(text, action);
  };
  int index = -1;
  for (const Verb& verb : VerbsOf(*registry_, *component, *designer, perform)) {
    ++index;
    if (!verb.run) {
      popMenu->addSeparator()->setData(index);
      continue;
    }
    QAction* action = popMenu->addAction(verb.text);
    action->setData(index);
    action->setEnabled(verb.problem.isEmpty());
    if (!verb.problem.isEmpty()) action->setToolTip(verb.problem);
    connect(action, &QAction::triggered, this, [this, component, designer, run = verb.run] {
      if (designer != Designer() || !EntryOf(component)) return;
      try {
        run();
      } catch (const std::exception& error) {
        Prompts().Warn(this, windowTitle(), ExceptionMessage(error));
      }
    });
  }
}

// --- What menus do here

TEditStates TVRXHideNonVCfrm::GetEditState() const {
  TEditStates states;
  if (cbList->count() > 0) states.Include(TEditState::esCanSelectAll);
  if (!GetSelected().empty()) states.Include(TEditState::esCanDelete);
  return states;
}

void TVRXHideNonVCfrm::EditAction(TEditAction action) {
  if (action == TEditAction::eaDelete) btDelete->click();
  if (action == TEditAction::eaSelectAll) DoSelectAll();
}
