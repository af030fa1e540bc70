#include "rtl/Class.h"

#include <cstring>

#include "rtl/Exceptions.h"
#include "rtl/StoredRule.h"

namespace {
unsigned char Fold(char c) { return static_cast<unsigned char>(c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : c); }

std::uint32_t FoldedHash(QByteArrayView name) {
  std::uint32_t h = 2166136261u;  // FNV-1a
  for (char c : name) h = (h ^ Fold(c)) * 16777619u;
  return h;
}

bool SameName(QByteArrayView a, QByteArrayView b) {
  if (a.size() != b.size()) return false;
  const auto size = static_cast<std::size_t>(a.size());
  return size == 0 || std::memcmp(a.data(), b.data(), size) == 0 ||  // nearly always written as declared
         std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return Fold(x) == Fold(y); });
}
}  // namespace

TClass::TClass(TClassBuilder&& b)
    : name_(std::move(b.name_)),
      parent_(b.parent_),
      description_(std::move(b.description_)),
      icon_(b.icon_),
      makeComponent_(b.makeComponent_),
      makePersistent_(b.makePersistent_),
      makeItem_(b.makeItem_),
      own_(std::move(b.own_)) {
  BuildTables();
}
TClass::~TClass() = default;

void TClass::BuildTables() {
  std::vector<const TPropInfo*> streamed;
  if (parent_)
    for (const TPropInfo* p : parent_->published_)
      (p->Visibility == TPropVisibility::Published ? published_ : streamed).push_back(p);
  for (const auto& prop : own_) {
    if (prop->Visibility == TPropVisibility::Declared) continue;
    const auto same = [&](const TPropInfo* p) { return SameName(p->Name, prop->Name); };
    auto& list = prop->Visibility == TPropVisibility::Published ? published_ : streamed;
    if (&list == &published_) std::erase_if(streamed, same);  // publishing takes it over
    if (const auto it = std::find_if(list.begin(), list.end(), same); it != list.end())
      *it = prop.get();
    else
      list.push_back(prop.get());
  }
  published_.insert(published_.end(), streamed.begin(), streamed.end());
  std::size_t size = 8;
  while (size < published_.size() * 2) size *= 2;
  hash_.assign(size, nullptr);
  for (const TPropInfo* p : published_) {
    std::size_t i = FoldedHash(p->Name) & (size - 1);
    while (hash_[i]) i = (i + 1) & (size - 1);
    hash_[i] = p;
  }
}

QByteArrayView TClass::Icon() const {
  const TClass* c = this;
  while (!c->icon_ && c->parent_) c = c->parent_;
  return c->icon_;
}

bool TClass::InheritsFrom(const TClass& other) const {
  for (const TClass* c = this; c; c = c->parent_)
    if (c == &other) return true;
  return false;
}

const TPropInfo* TClass::FindProp(QByteArrayView name) const {
  const std::size_t mask = hash_.size() - 1;
  for (std::size_t i = FoldedHash(name) & mask; hash_[i]; i = (i + 1) & mask)
    if (SameName(hash_[i]->Name, name)) return hash_[i];
  return nullptr;
}

const TPropInfo& TClass::GetProp(QByteArrayView name) const {
  if (const TPropInfo* p = FindProp(name)) return *p;
  throw EPropertyError(
      QStringLiteral("%1 has no property \"%2\".").arg(QString::fromLatin1(name_), QString::fromUtf8(name)));
}

const TPropInfo* TClass::FindAny(QByteArrayView name) const {
  for (const TClass* c = this; c; c = c->parent_)
    for (auto it = c->own_.rbegin(); it != c->own_.rend(); ++it)
      if (SameName((*it)->Name, name)) return it->get();
  return nullptr;
}

void TClass::RefuseToMake() const {
  throw EComponentError(
      QStringLiteral("%1 cannot be created here: it is an abstract class or of another kind.")
          .arg(QString::fromLatin1(name_)));
}

TComponent* TClass::NewComponent(TComponent* owner) const {
  if (!makeComponent_) RefuseToMake();
  return makeComponent_(owner);
}

TPersistent* TClass::NewItem(TCollection* collection) const {
  if (!makeItem_) RefuseToMake();
  return makeItem_(collection);
}

TClassBuilder::TClassBuilder(QByteArray name, const TClass* parent)
    : name_(std::move(name)), parent_(parent) {}
TClassBuilder::TClassBuilder(TClassBuilder&&) noexcept = default;
TClassBuilder::~TClassBuilder() = default;

void TClassBuilder::AddInfo(TPropVisibility visibility, const char* name, const TTypeInfo& type,
                            std::shared_ptr<const TPropAccess> access, bool readOnly,
                            std::optional<std::int64_t> def) {
  auto info = std::make_unique<TPropInfo>();
  info->Name = name;
  info->PropType = &type;
  info->Access = std::move(access);
  info->Visibility = visibility;
  info->ReadOnly = readOnly;
  info->Default = def;
  own_.push_back(std::move(info));
}

namespace {
const TTypeInfo& EventType(const char* name) {
  static std::vector<std::unique_ptr<TTypeInfo>> types;
  for (const auto& t : types)
    if (t->Name == name) return *t;
  types.push_back(std::make_unique<TTypeInfo>(MethodType(name)));
  return *types.back();
}
}  // namespace

void TClassBuilder::AddEvent(TPropVisibility visibility, const char* name, const char* type) {
  if (!makeEvent_) qFatal("%s keeps nothing and cannot have the event \"%s\"", name_.constData(), name);
  AddInfo(visibility, name, EventType(type), makeEvent_(name), false, {});
}

TClassBuilder&& TClassBuilder::Event(const char* name, const char* type) && {
  AddEvent(TPropVisibility::Published, name, type);
  return std::move(*this);
}

TClassBuilder&& TClassBuilder::DeclaredEvent(const char* name, const char* type) && {
  AddEvent(TPropVisibility::Declared, name, type);
  return std::move(*this);
}

void TClassBuilder::RepublishWith(const char* name, std::optional<std::int64_t> def) {
  const TPropInfo* inherited = parent_ ? parent_->FindAny(name) : nullptr;
  if (!inherited) qFatal("%s publishes \"%s\", which no ancestor declares", name_.constData(), name);
  auto info = std::make_unique<TPropInfo>(*inherited);
  info->Visibility = TPropVisibility::Published;
  if (def) {
    info->Default = def;
    info->OtherDefault.reset();
  }
  own_.push_back(std::move(info));
}

TClassBuilder&& TClassBuilder::Publish(const char* name) && {
  RepublishWith(name, {});
  return std::move(*this);
}

TClassBuilder&& TClassBuilder::Alphabetical() && {
  std::stable_sort(own_.begin(), own_.end(), [](const auto& a, const auto& b) {
    return a->IsEvent() != b->IsEvent() ? b->IsEvent() : a->Name.compare(b->Name, Qt::CaseInsensitive) < 0;
  });
  return std::move(*this);
}

bool NeverStoredRule(const TPersistent&) { return false; }
bool IsNeverStored(const TPropInfo& prop) {
  const auto* rule = prop.Stored.target<bool (*)(const TPersistent&)>();
  return !prop.IsWritable() || (rule && *rule == &NeverStoredRule);
}

TClassBuilder&& TClassBuilder::NeverStored() && {
  Last().Stored = &NeverStoredRule;
  return std::move(*this);
}

TClassBuilder&& TClassBuilder::Type(const TTypeInfo& type) && {
  Last().PropType = &type;
  return std::move(*this);
}

TClassBuilder&& TClassBuilder::Doc(QString sentence) && {
  Last().Description = std::move(sentence);
  return std::move(*this);
}

TClassBuilder&& TClassBuilder::ClassDoc(QString sentence, const char* icon) && {
  description_ = std::move(sentence);
  if (icon) icon_ = icon;
  return std::move(*this);
}

TClassBuilder&& TClassBuilder::Icon(const char* drawing) && {
  icon_ = drawing;
  return std::move(*this);
}
