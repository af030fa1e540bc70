#include "ide/FormSession.h"

#include <QScopeGuard>

#include "designintf/ComponentEditor.h"
#include "designintf/DesignWindow.h"
#include "forms/FormFile.h"
#include "designintf/VerbTitle.h"
#include "rtl/Exceptions.h"
#include "rtl/PropAccess.h"

FormSession::FormSession(forms::Document document, FileOnDisk file, DesignRegistry& registry)
    : form_(std::move(document), file.Name(), registry, *this), file_(std::move(file)) {}

FormSession::~FormSession() {
  if (!GetRoot()) return;
  Form().SetHost(nullptr);
  NotifyDesign([this](IDesignNotification& n) { n.DesignerClosed(this); });
}

std::unique_ptr<FormSession> FormSession::Opened(std::unique_ptr<FormSession> session) {
  session->Make();
  session->selection_.Set({}, session->Form());
  NotifyDesign([&](IDesignNotification& n) { n.DesignerOpened(session.get()); });
  return session;
}

std::unique_ptr<FormSession> FormSession::FromBytes(QByteArray bytes, const QString& fileName,
                                                    DesignRegistry& registry) {
  forms::Document document = forms::Document::Parse(bytes, forms::DialectOfName(fileName));
  FileOnDisk file(fileName, std::move(bytes));  // the bytes are shared with the document
  return Opened(
      std::unique_ptr<FormSession>(new FormSession(std::move(document), std::move(file), registry)));
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
  return Opened(std::unique_ptr<FormSession>(new FormSession(std::move(document), {}, registry)));
}

void FormSession::Make() {
  form_.Make(!undo_.IsEmpty());
  Form().SetHost(this);
}

void FormSession::Rebuild() {
  SettleStray();
  if (recorder_) {
    // The components are in use by whatever goes on.
    rebuildWanted_ = true;
    return;
  }
  {
    const std::vector<forms::Object*> selected = form_.ObjectsOf(selection_.Components());
    const auto reselect = qScopeGuard([&] { selection_.Set(form_.ComponentsOf(selected), form_.Root()); });
    selection_.Clear();
    Make();
  }
  Announce({.structure = true});
  emit SelectionChanged();
}

void FormSession::FindAgain() {
  SettleStray();
  if (recorder_) return;
  form_.FindAgain();
  emit FindingsChanged();
}

void FormSession::Came(TComponent& component) {
  NotifyDesign([&](IDesignNotification& n) { n.ItemInserted(this, &component); });
}

void FormSession::Going(TComponent& component) {
  NotifyDesign([&](IDesignNotification& n) { n.ItemDeleted(this, &component); });
  selection_.Drop(component, Form());
}

// --- Files

void FormSession::Save() {
  file_.Write(BytesToSave());
  Saved();
}

void FormSession::SaveAs(const QString& fileName) {
  file_.WriteAs(fileName, BytesToSave());
  Saved();
}

void FormSession::Saved() {
  undo_.MarkSaved();
  emit ModifiedChanged();
}

// --- Selection

void FormSession::Select(const std::vector<TComponent*>& components) {
  selection_.Set(components, Form());
  TellSelection();
}

void FormSession::TellSelection() {
  emit SelectionChanged();
  const TDesignerSelections list = GetSelections();
  NotifyDesign([&](IDesignNotification& n) { n.SelectionChanged(this, list); });
}

QString FormSession::SelectedPartsText() const {
  const std::vector<PartPath> parts = selection_.Parts();
  if (parts.empty()) return {};
  if (parts.size() > 1)
    return tr("%n items of %1", nullptr, static_cast<int>(parts.size())).arg(parts[0].Component()->Name());
  return QStringLiteral("%1: %2").arg(parts[0].Text(),
                                      QString::fromUtf8(parts[0].Find()->ClassType().ClassName()));
}

void FormSession::SelectComponent(TPersistent* instance) { SetSelections({instance}); }

void FormSession::SetSelections(const TDesignerSelections& list) {
  selection_.SetParts(list, Form());
  TellSelection();
}

// --- Names and methods

QString FormSession::GetRootClassName() const { return QString::fromUtf8(Form().StreamClassName()); }

void FormSession::GetComponentNames(const TClass& cls, const TGetStrProc& proc) const {
  for (const TComponent* c : AllComponents())
    if (c->InheritsFrom(cls) && !c->Name().isEmpty()) proc(c->Name());
}

void FormSession::GetMethods(const TTypeInfo& eventType, const TGetStrProc& proc) const {
  QStringList handlers;
  for (const TComponent* c : AllComponents())
    for (const TPropInfo* p : c->ClassType().Properties())
      if (p->IsEvent() && p->PropType->Name == eventType.Name)
        if (const QString handler = GetMethodProp(*c, *p); !handler.isEmpty() && !handlers.contains(handler))
          handlers << handler;
  for (const QString& handler : handlers) proc(handler);
}

bool FormSession::MethodExists(const QString& name) const {
  for (const TComponent* c : AllComponents())
    for (const TPropInfo* p : c->ClassType().Properties())
      if (p->IsEvent() && GetMethodProp(*c, *p).compare(name, Qt::CaseInsensitive) == 0) return true;
  return false;
}

void FormSession::ShowMethod(const QString& name) { emit HandlerShown(name); }

void FormSession::Edit(TComponent& component) {
  const auto editor = Registry().GetComponentEditor(&component, this);
  // A double click is the first verb, unless it is about a property.
  QString text;
  if (!dynamic_cast<const TDefaultEditor*>(editor.get()))
    text = VerbTitle(AskPackage([&] { return Registry().CallOf(component, "GetVerb"); }, QString(),
                                [&] { return editor->GetVerb(0); }));
  if (text.isEmpty()) text = tr("Edit %1").arg(component.Name());
  Run(text, {&component}, [&, call = Registry().CallOf(component, "Edit")] {
    PackageCall([&] { return call; }, [&] { editor->Edit(); });
  });
}
