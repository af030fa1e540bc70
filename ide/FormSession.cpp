#include "ide/FormSession.h"

#include <QFileInfo>

#include "designintf/ComponentEditor.h"
#include "designintf/DesignWindow.h"
#include "forms/FormFile.h"
#include "ide/PendingCommand.h"
#include "ide/PictureBudget.h"
#include "ide/StandIns.h"
#include "rtl/ClassRegistry.h"
#include "rtl/Exceptions.h"

namespace {
TComponent* MakeRoot(const forms::Object& object, bool sizeIsClient, TComponent* owner) {
  auto* form = new TForm(owner);
  form->SetKind(KindOfRoot(object));
  form->SetSizeIsClient(sizeIsClient);
  form->SetSizeInherited(object.kind == forms::ObjectKind::Inherited);
  form->SetStreamClassName(QByteArray(object.className.constData(), object.className.size()));
  return form;
}
}  // namespace

FormSession::FormSession(forms::Document document, DesignRegistry& registry)
    : registry_(registry), document_(std::move(document)) {}

FormSession::~FormSession() {
  if (root_) {
    root_->SetHost(nullptr);
    NotifyDesign([this](IDesignNotification& n) { n.DesignerClosed(this); });
  }
}

std::unique_ptr<FormSession> FormSession::FromBytes(QByteArray bytes, const QString& fileName,
                                                    DesignRegistry& registry) {
  std::unique_ptr<FormSession> session(
      new FormSession(forms::Document::Parse(bytes, forms::DialectOfName(fileName)), registry));
  session->fileName_ = fileName;
  session->onDisk_ = std::move(bytes);  // shared with the document
  session->Build();
  NotifyDesign([&](IDesignNotification& n) { n.DesignerOpened(session.get()); });
  return session;
}

std::unique_ptr<FormSession> FormSession::Open(const QString& fileName, DesignRegistry& registry) {
  return FromBytes(forms::ReadFile(fileName), fileName, registry);
}

std::unique_ptr<FormSession> FormSession::NewForm(const QString& name, DesignRegistry& registry) {
  forms::Document document = forms::Document::Create("T" + name.toUtf8(), name.toUtf8());
  TForm form(nullptr);
  form.SetDesigning(true);
  form.SetName(name);
  form.SetCaption(name);
  form.SetStreamClassName("T" + name.toUtf8());
  form.SetClientWidth(480);
  form.SetClientHeight(320);
  forms::DescribeComponent(form, document, document.Root());
  std::unique_ptr<FormSession> session(new FormSession(std::move(document), registry));
  session->Build();
  NotifyDesign([&](IDesignNotification& n) { n.DesignerOpened(session.get()); });
  return session;
}

forms::FormReader FormSession::MakeReader(forms::Document& document, forms::ObjectMap& map) const {
  forms::FormReader reader(document, map);
  reader.SetDesigning(true);
  reader.SetRootMaker([lcl = document.Style().lcl](const forms::Object& object, TComponent* owner) {
    return MakeRoot(object, lcl, owner);
  });
  reader.SetCreator([&registry = registry_](const TClass& cls, TComponent* owner) {
    return PackageCall([&] { return registry.ConstructorOf(cls); }, [&] { return cls.NewComponent(owner); });
  });
  reader.SetUnknownMaker([&document](const forms::Object& object, TComponent* owner) {
    return MakeStandIn(document, object, owner);
  });
  return reader;
}

void FormSession::Build() {
  RequirePictureBudget(document_, !commands_.empty());
  map_.Clear();
  forms::FormReader reader = MakeReader(document_, map_);
  auto root = reader.ReadRoot();
  root_.reset(static_cast<TForm*>(root.release()));
  findings_ = reader.Findings();
  NoteDangling(findings_);
  root_->SetHost(this);
  if (selection_.empty()) selection_ = {root_.get()};
}

void FormSession::Rebuild() {
  SettleStray();
  if (pending_) {
    // The components are in use by whatever goes on.
    rebuildWanted_ = true;
    return;
  }
  const std::vector<forms::Object*> selected = SelectedObjects();
  root_->SetHost(nullptr);
  selection_.clear();
  root_.reset();
  Build();
  selection_ = ComponentsOf(selected);
  Announce({.structure = true});
  emit SelectionChanged();
}

std::vector<TComponent*> FormSession::AllComponents() const {
  std::vector<TComponent*> all;
  const std::function<void(const forms::Object&)> collect = [&](const forms::Object& object) {
    if (TComponent* c = map_.ComponentOf(object)) all.push_back(c);
    for (const auto& child : object.children) collect(*child);
  };
  collect(document_.Root());
  return all;
}

// --- Files

void FormSession::Save() { Write(fileName_, &onDisk_); }
void FormSession::SaveAs(const QString& fileName) { Write(fileName, nullptr); }

DiskState FormSession::StateOnDisk() const {
  if (fileName_ == QStringLiteral("-")) return DiskState::Same;
  if (!QFileInfo::exists(fileName_)) return DiskState::Gone;
  return forms::ReadFile(fileName_) == onDisk_ ? DiskState::Same : DiskState::Changed;
}

void FormSession::Write(const QString& fileName, const QByteArray* expected) {
  SettleStray();
  QByteArray bytes = Bytes();
  RequireReadable(bytes.size());
  forms::WriteFile(fileName, bytes, expected);
  onDisk_ = std::move(bytes);
  fileName_ = fileName;
  clean_ = position_;
  emit ModifiedChanged();
}

// --- Selection

std::vector<forms::Object*> FormSession::SelectedObjects() const {
  std::vector<forms::Object*> objects;
  for (const TComponent* c : selection_)
    if (forms::Object* o = map_.ObjectOf(*c)) objects.push_back(o);
  return objects;
}

std::vector<TComponent*> FormSession::ComponentsOf(const std::vector<forms::Object*>& objects) const {
  std::vector<TComponent*> components;
  for (const forms::Object* o : objects)
    if (TComponent* c = map_.ComponentOf(*o)) components.push_back(c);
  if (components.empty()) components.push_back(root_.get());
  return components;
}

void FormSession::Select(const std::vector<TComponent*>& components) {
  std::vector<TComponent*> wanted = components;
  if (wanted.empty()) wanted = {root_.get()};
  // The form is selected alone.
  if (wanted.size() > 1) std::erase(wanted, static_cast<TComponent*>(root_.get()));
  selection_ = wanted;
  emit SelectionChanged();
  const TDesignerSelections list = GetSelections();
  NotifyDesign([&](IDesignNotification& n) { n.SelectionChanged(this, list); });
}

bool FormSession::IsSelected(const TComponent& component) const {
  return std::find(selection_.begin(), selection_.end(), &component) != selection_.end();
}

void FormSession::SelectComponent(TPersistent* instance) { SetSelections({instance}); }

void FormSession::SetSelections(const TDesignerSelections& list) {
  std::vector<TComponent*> components;
  for (TPersistent* p : list)
    if (auto* c = As<TComponent>(p)) components.push_back(c);
  Select(components);
}

TDesignerSelections FormSession::GetSelections() const { return {selection_.begin(), selection_.end()}; }

// --- Names and methods

QString FormSession::GetRootClassName() const { return QString::fromUtf8(root_->StreamClassName()); }

QString FormSession::UniqueName(const QString& baseName) const {
  QString base = baseName;
  if (base.size() > 1 && base.startsWith(u'T') && base[1].isUpper()) base.remove(0, 1);
  for (int i = 1;; ++i) {
    const QString name = base + QString::number(i);
    if (!root_->FindComponent(name) && root_->Name().compare(name, Qt::CaseInsensitive) != 0) return name;
  }
}

TComponent* FormSession::GetComponent(const QString& name) const {
  return root_->Name().compare(name, Qt::CaseInsensitive) == 0 ? root_.get() : root_->FindComponent(name);
}

void FormSession::GetComponentNames(const TClass& cls, const TGetStrProc& proc) const {
  for (const TComponent* c : AllComponents())
    if (c->InheritsFrom(cls) && !c->Name().isEmpty()) proc(c->Name());
}

void FormSession::GetMethods(const TTypeInfo& eventType, const TGetStrProc& proc) const {
  QStringList handlers;
  for (const TComponent* c : AllComponents())
    for (const TPropInfo* p : c->ClassType().Properties())
      if (p->IsEvent() && p->PropType->Name == eventType.Name)
        if (const QString handler = c->MethodName(*p->Access);
            !handler.isEmpty() && !handlers.contains(handler))
          handlers << handler;
  for (const QString& handler : handlers) proc(handler);
}

bool FormSession::MethodExists(const QString& name) const {
  for (const TComponent* c : AllComponents())
    for (const TPropInfo* p : c->ClassType().Properties())
      if (p->IsEvent() && c->MethodName(*p->Access).compare(name, Qt::CaseInsensitive) == 0) return true;
  return false;
}

void FormSession::ShowMethod(const QString& name) { emit HandlerShown(name); }

void FormSession::Edit(TComponent& component) {
  const auto editor = registry_.GetComponentEditor(&component, this);
  Run(tr("Edit %1").arg(component.Name()), {&component}, [&, call = registry_.CallOf(component, "Edit")] {
    PackageCall([&] { return call; }, [&] { editor->Edit(); });
  });
}

void FormSession::ControlChanged(TControl& control) { emit RepaintNeeded(control); }
