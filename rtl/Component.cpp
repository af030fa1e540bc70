#include "rtl/Component.h"

#include "rtl/Exceptions.h"
#include "rtl/NameFollower.h"
#include "rtl/PropAccess.h"
#include "rtl/StreamedContent.h"

TDesignPoint DesignPointOf(std::int32_t word) {
  const auto bits = static_cast<std::uint32_t>(word);
  return {static_cast<std::int16_t>(bits & 0xFFFFu), static_cast<std::int16_t>(bits >> 16)};
}

std::int32_t DesignWordOf(TDesignPoint p) {
  return static_cast<std::int32_t>((static_cast<std::uint32_t>(static_cast<std::uint16_t>(p.Top)) << 16) |
                                   static_cast<std::uint16_t>(p.Left));
}

bool IsValidIdent(QStringView name) {
  if (name.isEmpty() || name.size() > 255) return false;
  const auto letter = [](QChar c) { return c == u'_' || (c.unicode() < 128 && c.isLetter()); };
  const auto digit = [](QChar c) { return c >= u'0' && c <= u'9'; };
  return letter(name[0]) &&
         std::all_of(name.begin(), name.end(), [&](QChar c) { return letter(c) || digit(c); });
}

const TClass& TComponent::StaticClass() {
  static const TTypeInfo nameType = StringType("TComponentName");
  static const TTypeInfo tagType = OrdinalType("NativeInt", INT64_MIN, INT64_MAX);
  static const TClass cls(
      DescribeClass<TComponent>("TComponent", TPersistent::StaticClass())
          .Streamed("Left", &TComponent::DesignLeft, &TComponent::SetDesignLeft, 0)
          .StoredIf(&TComponent::HasDesignPosition)
          .Streamed("Top", &TComponent::DesignTop, &TComponent::SetDesignTop, 0)
          .StoredIf(&TComponent::HasDesignPosition)
          .Published("Name", &TComponent::Name, &TComponent::SetName)
          .Type(nameType)
          .NeverStored()
          .Doc(QStringLiteral("The name that code and other components use; unique on the form."))
          .Published("Tag", &TComponent::Tag, &TComponent::SetTag, 0)
          .Type(tagType)
          .Doc(QStringLiteral("A number for your own use.")));
  return cls;
}

TComponent::TComponent(TComponent* owner) {
  if (owner) owner->InsertComponent(this);
}

void TComponent::operator delete(TComponent* component, std::destroying_delete_t) {
  component->TellOfRemoval();
  void* const memory = dynamic_cast<void*>(component);
  component->~TComponent();
  ::operator delete(memory);
}

// Not in the header, where the compiler would take the pair for another one than it is.
void* TComponent::operator new(std::size_t size) { return ::operator new(size); }
void TComponent::operator delete(void* memory) noexcept { ::operator delete(memory); }

void TComponent::TellOfRemoval() {
  destroying_ = true;
  for (TComponent* c : std::exchange(freeNotifies_, TNotifyList()))
    c->Notification(this, TOperation::opRemove);
}

TComponent::~TComponent() {
  TellOfRemoval();
  while (!components_.empty()) {
    TComponent* last = components_.back();
    RemoveComponent(last);
    delete last;
  }
  if (owner_) owner_->RemoveComponent(this);
}

std::vector<TComponent*> TComponent::GetChildren() const {
  std::vector<TComponent*> result;
  for (TComponent* c : components_)
    if (!c->HasParent()) result.push_back(c);
  return result;
}

TComponent* TComponent::FindComponent(const QString& name) const {
  return names_ && !name.isEmpty() ? names_->value({name}) : nullptr;
}

int TComponent::ComponentIndex() const {
  if (!owner_) return -1;
  const auto& all = owner_->components_;
  return static_cast<int>(std::find(all.begin(), all.end(), this) - all.begin());
}

void TComponent::InsertComponent(TComponent* component) {
  if (component->owner_ == this) return;
  if (!component->name_.isEmpty() && FindComponent(component->name_))
    throw EComponentError(
        QStringLiteral("A component named \"%1\" already exists on %2.").arg(component->name_, name_));
  if (component->owner_) component->owner_->RemoveComponent(component);
  components_.push_back(component);
  component->owner_ = this;
  component->designing_ = component->designing_ || designing_;
  EnterName(*component);
  ComponentListed(*component, TOperation::opInsert);
  // Whoever asked this one for its free notification hears of what comes, too; the list may change meanwhile.
  if (loading_ || freeNotifies_.begin() == freeNotifies_.end()) return;
  const std::vector<TComponent*> asked(freeNotifies_.begin(), freeNotifies_.end());
  for (TComponent* c : asked) c->Notification(component, TOperation::opInsert);
}

void TComponent::DoChanging() {
  if (!loading_ && !destroying_) ComponentChanging(*this);
}

void TComponent::ComponentChanging(TComponent& component) {
  if (owner_) owner_->ComponentChanging(component);
}

void TComponent::ComponentListed(TComponent& component, TOperation operation) {
  if (owner_) owner_->ComponentListed(component, operation);
}

void TComponent::ReserveNames(qsizetype count) {
  if (!names_) names_ = std::make_unique<QHash<TNameKey, TComponent*>>();
  names_->reserve(count);
}

void TComponent::EnterName(TComponent& component) {
  if (component.name_.isEmpty()) return;
  if (!names_) names_ = std::make_unique<QHash<TNameKey, TComponent*>>();
  names_->insert({component.name_}, &component);
}

void TComponent::LeaveName(TComponent& component) {
  if (names_ && !component.name_.isEmpty()) names_->remove({component.name_});
}

void TComponent::RemoveComponent(TComponent* component) {
  const auto it = std::find(components_.rbegin(), components_.rend(), component);
  if (it == components_.rend()) return;
  ComponentListed(*component, TOperation::opRemove);
  components_.erase(std::next(it).base());
  component->owner_ = nullptr;
  LeaveName(*component);
}

void TComponent::SetName(const QString& name) {
  if (name == name_) return;
  if (!name.isEmpty() && !IsValidIdent(name))
    throw EComponentError(
        QStringLiteral("\"%1\" is not a valid component name: use letters, digits and underscores, starting "
                       "with a letter or underscore.")
            .arg(name));
  const auto taken = [&](const TComponent& scope) {
    const TComponent* found = scope.FindComponent(name);
    return found && found != this;
  };
  const bool ownersName = owner_ && name.compare(owner_->name_, Qt::CaseInsensitive) == 0;
  if (!name.isEmpty() && (taken(*this) || ownersName || (owner_ && taken(*owner_))))
    throw EComponentError(QStringLiteral("A component named \"%1\" already exists.").arg(name));
  // Whoever refers to it writes its name.
  Changing();
  for (TComponent* holder : freeNotifies_) holder->Changing();
  if (owner_) owner_->LeaveName(*this);
  const QString oldName = std::exchange(name_, name);
  if (owner_) owner_->EnterName(*this);
  NameChanged(oldName);
  if (oldName.isEmpty()) return;
  std::vector<TComponent*> asked(freeNotifies_.begin(), freeNotifies_.end());
  if (owner_) asked.insert(asked.end(), owner_->freeNotifies_.begin(), owner_->freeNotifies_.end());
  for (TComponent* c : asked)
    if (auto* follower = As<INameFollower>(c)) follower->ComponentRenamed(*this, oldName);
}

void TComponent::NameChanged(const QString&) {}

void TComponent::FreeNotification(TComponent* component) {
  // Both sides know of each other, so that whoever goes first leaves no dangling pointer.
  if (freeNotifies_.Insert(component)) component->freeNotifies_.Insert(this);
}

void TComponent::RemoveFreeNotification(TComponent* component) {
  if (freeNotifies_.Remove(component)) component->freeNotifies_.Remove(this);
}

namespace {
// Calls `visit(instance, property)` for every reference of the object and of its parts, until it says true.
template <class Visit>
bool VisitReferences(TPersistent& instance, const Visit& visit) {
  for (const TPropInfo* prop : instance.ClassType().Properties()) {
    if (IsComponentRef(*prop)) {
      if (visit(instance, *prop)) return true;
    } else if (prop->IsPart() && !prop->Access->IsUntouched(instance)) {
      TPersistent* part = GetObjectProp(instance, *prop);
      if (part && VisitReferences(*part, visit)) return true;
    }
  }
  const auto* content = As<IStreamedContent>(&instance);
  for (int i = 0; TPersistent* part = content ? content->ContentPart(i) : nullptr; ++i)
    if (VisitReferences(*part, visit)) return true;
  return false;
}
}  // namespace

bool TComponent::RefersTo(const TComponent& other) const {
  return VisitReferences(const_cast<TComponent&>(*this), [&](TPersistent& instance, const TPropInfo& prop) {
    return GetObjectProp(instance, prop) == &other;
  });
}

void TComponent::Notification(TComponent* component, TOperation operation) {
  if (operation != TOperation::opRemove) return;
  freeNotifies_.Remove(component);
  if (destroying_) return;
  VisitReferences(*this, [&](TPersistent& instance, const TPropInfo& prop) {
    if (GetObjectProp(instance, prop) == component) SetObjectProp(instance, prop, nullptr);
    return false;
  });
}

void TComponent::ReferenceChanged(TPersistent* before, TPersistent* after) {
  auto *was = As<TComponent>(before), *now = As<TComponent>(after);
  if (was && !RefersTo(*was) && !was->RefersTo(*this)) was->RemoveFreeNotification(this);
  if (now) now->FreeNotification(this);
}

void TComponent::SetDesignLeft(int left) {
  SetDesignInfo(DesignWordOf({static_cast<std::int16_t>(left), DesignPointOf(designInfo_).Top}));
}
void TComponent::SetDesignTop(int top) {
  SetDesignInfo(DesignWordOf({DesignPointOf(designInfo_).Left, static_cast<std::int16_t>(top)}));
}
