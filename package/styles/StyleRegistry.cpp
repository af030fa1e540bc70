#include "package/styles/StyleRegistry.h"

#include <algorithm>

#include "rtl/ClassRegistry.h"
#include "rtl/Strings.h"
#include "vcl/Bitmap.h"
#include "vcl/ImageList.h"
#include "vcl/Picture.h"

namespace {
bool Less(const std::unique_ptr<TVRXPropListItem>& a, const std::unique_ptr<TVRXPropListItem>& b) {
  return a->Name.compare(b->Name, Qt::CaseInsensitive) < 0;
}

bool IsStylable(TTypeKind kind) {
  using enum TTypeKind;
  return kind == tkInteger || kind == tkChar || kind == tkEnumeration || kind == tkFloat ||
         kind == tkString || kind == tkSet || kind == tkClass;
}
// The class of a property's value; null for what is no object.
const TClass* ValueClass(const TPropInfo& prop) {
  return prop.Kind() == TTypeKind::tkClass && prop.PropType->ClassType ? &prop.PropType->ClassType()
                                                                       : nullptr;
}
bool IsPersistent(const TClass* cls) { return cls && cls->InheritsFrom(TPersistent::StaticClass()); }
bool IsLeftOut(const TClass* cls) {
  return IsPersistent(cls) &&
         (cls->InheritsFrom(TImageList::StaticClass()) || cls->InheritsFrom(TStrings::StaticClass()));
}
bool IsPicture(const TClass* cls) { return cls == &TBitmap::StaticClass() || cls == &TIcon::StaticClass(); }

// Never destroyed: a program that ends with the package loaded unloads it after its own objects are gone.
std::unique_ptr<TVRXPropList>& TheRegistry() {
  static auto& registry = *new std::unique_ptr<TVRXPropList>;
  return registry;
}
bool& FirstRunDone() {
  static bool done = false;
  return done;
}

constexpr const char* Excluded[] = {"About",
                                    "Action",
                                    "Anchors",
                                    "Autosize",
                                    "ButtonCaption",
                                    "Buttons",
                                    "Cancel",
                                    "CharCase",
                                    "Constraints",
                                    "CustomColors",
                                    "DockSite",
                                    "DragKind",
                                    "DropDownMenu",
                                    "Default",
                                    "DefaultExt",
                                    "Enabled",
                                    "ExampleText",
                                    "FaceController",
                                    "FontList",
                                    "ForceMaskCheck",
                                    "HelpContext",
                                    "Hint",
                                    "MaxLength",
                                    "Name:TComponentName",
                                    "ImageList",
                                    "Increment",
                                    "InitialDir",
                                    "IniKey",
                                    "IniLink",
                                    "Items",
                                    "LargeIncrement",
                                    "Lines:TVRXMemoStrings",
                                    "Lines:TStrings",
                                    "Layout",
                                    "MaxValue",
                                    "MinValue",
                                    "OEMConvert",
                                    "Orientation",
                                    "Owner",
                                    "Parent",
                                    "ParentSection",
                                    "PasswordChar",
                                    "PopupMenu",
                                    "Position",
                                    "Prompt",
                                    "TimeOffset",
                                    "TabOrder",
                                    "TabStop",
                                    "Tag",
                                    "Text",
                                    "StartFolder",
                                    "StyleManager",
                                    "Style:string",
                                    "Stringlist",
                                    "Value"};
}  // namespace

TVRXPropList::TVRXPropList() {
  constexpr std::size_t room = 3000;
  items_.reserve(room);
}
TVRXPropList::~TVRXPropList() { UnRegisterClasses(this); }

void TVRXPropList::Sort() const {
  if (!std::exchange(sorted_, true)) std::stable_sort(items_.begin(), items_.end(), Less);
}

void TVRXPropList::Forget() {
  byName_.clear();
  entered_ = 0;
  seen_.clear();
  exact_.clear();
}

bool TVRXPropList::IsThere(const QString& name, const QString& className, const QString& parent) {
  const auto key = [](const QString& n, const QString& c, const QString& p) {
    return n.toLower() + QChar(0) + c + QChar(0) + p;
  };
  if (exact_.isEmpty())
    for (const auto& item : items_) exact_.insert(key(item->Name, item->ClassName, item->Parent));
  const qsizetype before = exact_.size();
  exact_.insert(key(name, className, parent));
  return exact_.size() == before;
}

void TVRXPropList::AddProperty(std::unique_ptr<TVRXPropListItem> item) {
  // What a class brings is looked for among what stands here already.
  foreign_ = true;
  Forget();
  sorted_ = false;
  items_.push_back(std::move(item));
}
TVRXPropListItem* TVRXPropList::GetItems(int index) const {
  Sort();
  return items_.at(static_cast<std::size_t>(index)).get();
}
void TVRXPropList::SetItems(int index, std::unique_ptr<TVRXPropListItem> item) {
  Sort();
  items_.at(static_cast<std::size_t>(index)) = std::move(item);
  sorted_ = false;
  foreign_ = true;
  Forget();
}

const std::vector<TVRXPropListItem*>& TVRXPropList::Named(const QString& name) const {
  static const std::vector<TVRXPropListItem*> none;
  if (entered_ != items_.size()) {
    Sort();
    byName_.clear();
    for (const auto& item : items_) byName_[item->Name.toLower()].push_back(item.get());
    entered_ = items_.size();
  }
  const auto it = byName_.constFind(name.toLower());
  return it == byName_.constEnd() ? none : *it;
}

TVRXPropListItem* TVRXPropList::FindItemByName(const QString& name) const {
  const auto& items = Named(name);
  return items.empty() ? nullptr : items.front();
}
TVRXPropListItem* TVRXPropList::FindItemByNameAndClassName(const QString& name, const QString& className,
                                                           const QString& parent) const {
  for (TVRXPropListItem* item : Named(name))
    if (item->ClassName == className && (parent.isEmpty() || item->Parent == parent)) return item;
  return nullptr;
}
TVRXPropListItem* TVRXPropList::FindItemByNameAndTypeName(const QString& name, const QString& typeName,
                                                          const QString& parent) const {
  for (TVRXPropListItem* item : Named(name))
    if (item->TypeName == typeName && (parent.isEmpty() || item->Parent == parent)) return item;
  return nullptr;
}

std::vector<TVRXPropListItem*> TVRXPropList::ItemsOf(const QString& name) const { return Named(name); }

namespace {
template <class F>
std::vector<TVRXPropListItem*> Where(const std::vector<std::unique_ptr<TVRXPropListItem>>& items, F fits) {
  std::vector<TVRXPropListItem*> found;
  for (const auto& item : items)
    if (fits(*item)) found.push_back(item.get());
  return found;
}
template <class F>
QStringList Names(const std::vector<std::unique_ptr<TVRXPropListItem>>& items, F name) {
  QSet<QString> seen;
  for (const auto& item : items)
    if (const QString text = name(*item); !text.isEmpty()) seen.insert(text);
  QStringList all(seen.begin(), seen.end());
  all.sort(Qt::CaseInsensitive);
  return all;
}
}  // namespace

std::vector<TVRXPropListItem*> TVRXPropList::ItemsOfClass(const QString& className,
                                                          const QString& parent) const {
  Sort();
  return Where(items_, [&](const auto& i) { return i.ClassName == className && i.Parent == parent; });
}
std::vector<TVRXPropListItem*> TVRXPropList::ItemsOfType(const QString& typeName) const {
  Sort();
  return Where(items_, [&](const auto& i) { return i.TypeName == typeName; });
}
QStringList TVRXPropList::ClassNames() const {
  return Names(items_, [](const auto& i) { return i.Parent.isEmpty() ? i.ClassName : QString(); });
}
QStringList TVRXPropList::TypeNames() const {
  return Names(items_, [](const auto& i) { return i.TypeName; });
}

void TVRXPropList::ExcludeProperty(const QString& name) {
  excluded_.insert(name.toUpper());
  if (name.contains(u':')) typed_.insert(name.toUpper().section(u':', 0, 0));
  words_.clear();
}

QStringList TVRXPropList::ExcludedNames() const {
  QStringList names(excluded_.begin(), excluded_.end());
  names.sort();
  return names;
}

void TVRXPropList::Clear() {
  items_.clear();
  sorted_ = true;
  foreign_ = false;
  seenNames_.clear();
  Forget();
}

TVRXPropList::Word TVRXPropList::WordOf(const QByteArray& name) {
  auto it = words_.find(name);
  if (it == words_.end()) {
    const QString text = QString::fromLatin1(name);
    it = words_.insert(name, {text, PropertyExcluded(text), typed_.contains(text.toUpper())});
  }
  return *it;
}

void TVRXPropList::Register(const TClass& cls, const QString& parent) {
  // A class that reaches itself is left where it is.
  if (seen_.contains({&cls, parent})) return;
  seen_.insert({&cls, parent});
  if (!FindClass(cls.ClassName())) RegisterClass(cls, this);
  const bool nothing = !parent.isEmpty() && PropertyExcluded(parent);
  if (nothing) return;
  const QString className = WordOf(cls.ClassName()).text;
  const bool again = seenNames_.contains({className, parent});
  seenNames_.insert({className, parent});
  for (const TPropInfo* prop : cls.Properties()) {
    if (prop->Visibility != TPropVisibility::Published || !IsStylable(prop->Kind())) continue;
    const TClass* const value = ValueClass(*prop);
    if (IsLeftOut(value)) continue;
    const auto [name, excluded, typed] = WordOf(prop->Name);
    if (excluded || (typed && PropertyExcluded(name + u':' + QString::fromLatin1(prop->PropType->Name))))
      continue;
    if (!(foreign_ || again) || !IsThere(name, className, parent)) {
      items_.push_back(std::make_unique<TVRXPropListItem>(TVRXPropListItem{
          name, prop->Kind(), WordOf(prop->PropType->Name).text, className, parent, prop->PropType}));
      sorted_ = false;
    }
    if (IsPersistent(value) && !IsPicture(value)) Register(*value, name);
  }
}

void RegisterStyleMgrClass(const TClass& cls, const QString& parent, TVRXPropList& list) {
  list.Register(cls, parent);
}
void RegisterStyleMgrFamily(const TClass& cls, TVRXPropList& list) {
  const TClass* at = &cls;
  for (int i = 0; at && i < 3; ++i, at = at->ClassParent()) RegisterStyleMgrClass(*at, {}, list);
}
void RegisterStyleMgrForm(const TComponent& root, const TComponent* manager, TVRXPropList& list) {
  const TClass* last = nullptr;
  for (const TComponent* component : root.Components())
    if (component != manager && std::exchange(last, &component->ClassType()) != last)
      RegisterStyleMgrFamily(component->ClassType(), list);
}

void VRXCreateStyleRegistry() {
  if (!TheRegistry()) TheRegistry() = std::make_unique<TVRXPropList>();
}
TVRXPropList& VRXStyleRegistry() {
  VRXCreateStyleRegistry();
  return *TheRegistry();
}
void VRXFreeStyleRegistry() {
  TheRegistry().reset();
  FirstRunDone() = false;
}

std::span<const char* const> VRXExcludedStyleProperties() { return Excluded; }
void VRXExcludeStylePropertiesOnce() {
  if (std::exchange(FirstRunDone(), true)) return;
  for (const char* name : Excluded) VRXStyleRegistry().ExcludeProperty(QString::fromLatin1(name));
}
