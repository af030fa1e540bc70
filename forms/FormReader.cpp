#include "forms/FormReader.h"

#include "forms/ForeignWords.h"
#include "forms/KeptValues.h"
#include "rtl/ClassRegistry.h"
#include "rtl/ContentProblem.h"
#include "rtl/PropAccess.h"

namespace forms {

namespace {
QString ObjectTitle(const Object& object) {
  return object.name.isEmpty() ? QString::fromUtf8(object.className)
                               : QString::fromUtf8(object.name + ": " + object.className);
}
qsizetype CountObjects(const Object& object) {
  qsizetype n = 1;
  for (const auto& child : object.children) n += CountObjects(*child);
  return n;
}
}  // namespace

// What is wrong with an origin is told where that is opened.
void FormReader::Report(Severity severity, Location where, QString text, bool unknownName) {
  if (from_ != &document_) return;
  findings_.push_back({severity, where, std::move(text), unknownName});
}

void FormReader::ReportRefused(Severity severity, const Object& object, const Property& property,
                               QString text) {
  if (from_ != &document_) return;
  Report(severity, document_.Where(property), std::move(text));
  findings_.back().object = &object;
  findings_.back().property = property.Name().toByteArray();
}

TComponent* FormReader::Create(Object& object, TComponent* owner) {
  auto it = classes_.find(object.className);
  if (it == classes_.end()) it = classes_.insert(object.className, FindClass(object.className));
  const TClass* cls = *it;
  standIn_ = !cls || cls->IsAbstract();
  if (!standIn_) try {
      if (TComponent* made = create_ ? create_(*cls, object, owner) : cls->NewComponent(owner)) return made;
      standIn_ = true;
      return makeUnknown_(object, owner);
    } catch (const Exception& e) {
      if (!makeUnknown_) throw;
      standIn_ = true;
      Report(Severity::Error, document_.Where(object),
             QStringLiteral("%1 cannot be made: %2").arg(ObjectTitle(object), e.Message()));
      return makeUnknown_(object, owner);
    }
  // What comes from another file is told where that is opened, and the class of a frame is known by its file.
  if (!object.implied && !(object.origin && object.IsFrame()))
    Report(Severity::Note, document_.Where(object),
           QStringLiteral("class %1 is unknown; %2 is kept as it is")
               .arg(QString::fromUtf8(object.className), ObjectTitle(object)),
           true);
  return makeUnknown_ ? makeUnknown_(object, owner) : nullptr;
}

std::unique_ptr<TComponent> FormReader::ReadRoot() {
  try {
    return MakeRoot(document_.Root());
  } catch (const std::bad_alloc&) {
    // What was made so far is gone again, so there is room for saying it.
    value_ = Value();
    findings_ = {};
    ThrowOutOfMemory(atProperty_ ? document_.Where(*atProperty_)
                     : atObject_ ? document_.Where(*atObject_)
                                 : document_.Where(document_.Root()));
  }
}

std::unique_ptr<TComponent> FormReader::MakeRoot(Object& object) {
  const qsizetype count = CountObjects(object);
  map_.Reserve(count);
  std::unique_ptr<TComponent> root(makeRoot_ ? makeRoot_(object, nullptr) : Create(object, nullptr));
  if (!root) return nullptr;
  root->SetDesigning(designing_);
  root->ReserveNames(count);
  ReadInto(object, *root, root.get());
  Finish(*root);
  return root;
}

TComponent* FormReader::ReadChild(Object& object, TComponent& owner, TComponent& parent) {
  TComponent* component = Create(object, &owner);
  if (!component) return nullptr;
  component->BeginLoading();
  TakeFamilyDefaults(*component);
  component->SetParentComponent(&parent);
  ReadInto(object, *component, &owner);
  if (!object.parent || object.parent == map_.ObjectOf(parent)) {
    // Only the outermost call resolves references, when all names are there.
    if (!parent.IsLoading()) Finish(owner);
  }
  return component;
}

void FormReader::ReadInto(Object& object, TComponent& component, TComponent* owner) {
  // One note tells of an unknown class; its properties are not listed one by one.
  const bool reportUnknown = !std::exchange(standIn_, false);
  atObject_ = &object;
  atProperty_ = nullptr;
  if (!component.IsLoading()) component.BeginLoading();
  loading_.push_back(&component);
  map_.Add(component, object);
  try {
    // A template's %NAME% becomes a name when the template is used.
    if (!object.name.contains('%')) component.SetName(QString::fromUtf8(object.name));
  } catch (const Exception& e) {
    Report(Severity::Error, document_.Where(object), e.Message());
  }
  ReadOrigins(object, component);
  ReadProperties(object, component, reportUnknown);
  // What stands inside an inline object has names of its own: a frame owns its components.
  const bool scope = object.IsFrame() && object.parent;
  for (const auto& child : object.children) ReadChild(*child, scope ? component : *owner, component);
}

template <class F>
void FormReader::Guarded(const Property& property, const Object& object, F read, bool data) {
  const bool own = from_ == &document_;  // nothing is told of an origin
  try {
    read();
  } catch (const EUnknownName& e) {
    if (own) ReportName(e, property, object);
  } catch (const Exception& e) {
    if (!own) return;
    ReportRefused(Severity::Error, object, property,
                  QStringLiteral("%1: %2").arg(ObjectTitle(object), e.Message()));
    findings_.back().refusedData = data;
  }
}

void FormReader::ReadOrigins(const Object& object, TComponent& component) {
  for (const Origin* origin : object.Origins()) {
    from_ = origin->document;
    ReadProperties(*origin->object, component, false);
  }
  from_ = &document_;
}

void FormReader::ReadProperties(const Object& object, TComponent& component, bool reportUnknown) {
  const bool own = from_ == &document_;
  ClassNotes& notes = notes_[&component.ClassType()];
  notes.Begin();
  for (const Property& p : object.properties) {
    KnownProperty* known = notes.Find(p.Name());
    PropertyTarget target = known ? known->TargetIn(component) : PropertyTarget{};
    if (!target.Found()) {
      target = FindTarget(component, p.Name());
      if (target.Found() && !known) known = notes.Add(p.Name(), component, target);
    }
    if (own) atProperty_ = &p;
    if (!target.Found()) {
      if (!reportUnknown) continue;  // nothing of an origin, either
      ReportUnknown(p.Name(), p, object);
      continue;
    }
    target.path = p.Name();
    Guarded(
        p, object, [&] { Apply(known, target, p); }, target.prop && target.prop->Is<QByteArray>());
    if (own && target.prop && target.prop->IsPart()) ReportUnread(target, p, object);
    if (own && !target.prop) ReportContent(target, p, object);
    for (auto r = pending_.rbegin(); r != pending_.rend() && !r->holder; ++r) {
      r->holder = &component;
      r->source = own ? &p : nullptr;
    }
  }
}

void FormReader::ReportUnknown(QByteArrayView name, const Property& property, const Object& object) {
  Report(Severity::Note, document_.Where(property),
         QStringLiteral("%1 of %2 is unknown; it is kept as it is")
             .arg(QString::fromUtf8(name), ObjectTitle(object)),
         true);
}

void FormReader::ReportUnread(const PropertyTarget& target, const Property& property, const Object& object) {
  for (const UnreadValue& unread : UnreadValues(target))
    if (unread.refused)
      Guarded(property, object, [&] { std::rethrow_exception(unread.refused); });
    else
      ReportUnknown(unread.path, property, object);
}

void FormReader::ReportContent(const PropertyTarget& target, const Property& property, const Object& object) {
  const auto* content = As<IContentProblem>(target.instance);
  const QString problem = content ? content->ContentProblem() : QString();
  if (!problem.isEmpty())
    ReportRefused(Severity::Error, object, property,
                  QStringLiteral("%1: %2").arg(ObjectTitle(object), problem));
}

// A name that another framework gives to a value is no mistake in a file of that framework.
void FormReader::ReportName(const EUnknownName& e, const Property& property, const Object& object) {
  const WordHome home = HomeOfWord(e.Type(), e.Word());
  const bool foreign = document_.Style().foreignWords;
  if (foreign && home == WordHome::Lcl) return;
  if (foreign || home != WordHome::Nowhere) {
    ReportRefused(
        Severity::Note, object, property,
        QStringLiteral("%1: %2 is %3, which is unknown here; it is kept as it is")
            .arg(ObjectTitle(object), QString::fromUtf8(property.Name()), QString::fromUtf8(e.Word())));
    findings_.back().unknownName = true;
    return;
  }
  ReportRefused(Severity::Error, object, property,
                QStringLiteral("%1: %2").arg(ObjectTitle(object), e.Message()));
}

void FormReader::Apply(KnownProperty* known, const PropertyTarget& target, const Property& property) {
  // A part of another class than the one noted has its own properties.
  if (known && !known->LeadsTo(target)) known = nullptr;
  const QByteArrayView text = known ? from_->SourceText(property) : QByteArrayView();
  if (known && known->Apply(*target.instance, text)) return;
  if (known)
    if (const QByteArrayView name = known->Referenced(text); !name.isEmpty())
      return AddReference(pending_, target, name);
  from_->Read(property, value_);
  if (known && known->IsOrdinal()) {
    const std::int64_t ordinal = OrdinalOf(target, value_);
    SetOrdProp(*target.instance, *target.prop, ordinal);
    known->Learn(text, ordinal);
  } else {
    ApplyValue(target, value_, *from_, pending_);
  }
}

void FormReader::Finish(TComponent& root) {
  for (const PendingReference& p : ResolveReferences(root, std::exchange(pending_, {})))
    if (p.source)
      ReportRefused(Severity::Warning, *map_.ObjectOf(*p.holder), *p.source,
                    QStringLiteral("%1.%2 refers to %3")
                        .arg(p.holder->Name(), QString::fromUtf8(p.source->Name()), WhyUnresolved(p)));
  for (TComponent* c : std::exchange(loading_, {})) c->Loaded();
}

}  // namespace forms
