#include "package/styles/StyleTree.h"

#include <algorithm>
#include <optional>

#include "library/values/FaceStates.h"
#include "rtl/ClassRegistry.h"
#include "rtl/PropAccess.h"

namespace {
using Node = TVRXStyleNode;
using enum TVRXStyleMessage;
const QString KindName = QStringLiteral("_StyleKind"), KindType = QStringLiteral("Integer");

bool IsNamed(const QString& name) { return name.startsWith(u'.'); }
bool IsClass(const QString& name) { return name.startsWith(u'T'); }
}  // namespace

TVRXStyleKind VRXStyleKindOf(const QString& name) {
  if (VRXIsStateStyle(name)) return TVRXStyleKind::State;
  return IsNamed(name) ? TVRXStyleKind::Named : TVRXStyleKind::Class;
}

QString TVRXStyleNode::StylePath() const {
  QString path;
  for (const Node* at = Style(); !at->IsRoot(); at = at->Parent) path = VRXStylePath(at->Name, path);
  return path.endsWith(VRXStyleSeparator) ? path.chopped(1) : path;
}
Node* TVRXStyleNode::Child(const QString& name, bool property) const {
  for (const auto& child : Children)
    if (child->IsProperty() == property && child->Name == name) return child.get();
  return nullptr;
}
bool TVRXStyleNode::IsWithin(const Node& other) const {
  for (const Node* at = this; at; at = at->Parent)
    if (at == &other) return true;
  return false;
}

TVRXStyleTree::TVRXStyleTree(TVRXStyleManager& manager, TVRXPropList& registry, TVRXShowStyleBox show)
    : manager_(manager), registry_(registry), show_(std::move(show)) {
  Rebuild();
}

// --- Building

namespace {
void SortBelow(Node& node) {
  for (const auto& child : node.Children) SortBelow(*child);
  std::stable_sort(node.Children.begin(), node.Children.end(), [](const auto& a, const auto& b) {
    return VRXStyleBefore({a->Name, !a->Children.empty()}, {b->Name, !b->Children.empty()});
  });
}
Node& Append(Node& parent, const QString& name, TVRXStyleKind kind) {
  auto node = std::make_unique<Node>();
  node->Name = name;
  node->Kind = kind;
  node->Parent = &parent;
  parent.Children.push_back(std::move(node));
  return *parent.Children.back();
}
}  // namespace

void TVRXStyleTree::Rebuild() {
  if (root_) Removing(*root_);
  auto old = std::move(root_);
  root_ = std::make_unique<Node>();
  root_->Name = QString::fromLatin1(VRXDefaultStyle);
  for (const auto& [path, values] : manager_.Styles().All()) {
    Node* at = root_.get();
    // Substyles stand behind their style, so what there is of the path is the last of each level.
    for (const QString& name : path.split(VRXStyleSeparator)) {
      Node* last = at->Children.empty() ? nullptr : at->Children.back().get();
      at =
          last && !last->IsProperty() && last->Name == name ? last : &Append(*at, name, VRXStyleKindOf(name));
    }
    for (const auto& [key, value] : values) {
      if (key.Name == KindName) continue;
      Node& property = Append(*at, key.Name, TVRXStyleKind::Property);
      property.TypeName = key.TypeName;
      property.Item = ItemOf(property);
    }
  }
  SortBelow(*root_);
  ChildrenChanged(*root_);
}

Node* TVRXStyleTree::Find(const QString& stylePath) const {
  Node* at = root_.get();
  if (!stylePath.isEmpty())
    for (const QString& name : stylePath.split(VRXStyleSeparator))
      if (at) at = at->Child(name, false);
  return at;
}

TVRXPropListItem* TVRXStyleTree::ItemOf(const Node& property) const {
  const QString name = property.Name.section(u'.', -1);
  const QString parent = property.Name.contains(u'.') ? property.Name.section(u'.', -2, -2) : QString();
  if (parent.isEmpty())
    if (auto* item = registry_.FindItemByNameAndClassName(name, FindAncestorStyle(property.Parent), {});
        item && item->Parent.isEmpty() && item->TypeName == property.TypeName)
      return item;
  return registry_.FindItemByNameAndTypeName(name, property.TypeName, parent);
}

void TVRXStyleTree::Sort(Node& parent) {
  std::stable_sort(parent.Children.begin(), parent.Children.end(), [](const auto& a, const auto& b) {
    return VRXStyleBefore({a->Name, !a->Children.empty()}, {b->Name, !b->Children.empty()});
  });
  ChildrenChanged(parent);
}
// A style with children stands elsewhere than one without.
void TVRXStyleTree::SortAround(Node& node) {
  Sort(node);
  if (node.Parent) Sort(*node.Parent);
}

Node& TVRXStyleTree::Insert(Node& parent, const QString& name, TVRXStyleKind kind, const QString& typeName) {
  Node& node = Append(parent, name, kind);
  node.TypeName = typeName;
  if (node.IsProperty()) node.Item = ItemOf(node);
  return node;
}
Node& TVRXStyleTree::InsertStyle(Node& parent, const QString& name) {
  Node& node = Insert(parent, name, VRXStyleKindOf(name));
  WriteKind(node);
  return node;
}
void TVRXStyleTree::WriteKind(const Node& style) {
  manager_.WritePropValue(style.StylePath(), KindName, std::int64_t{static_cast<int>(style.Kind)}, KindType);
}

// A style that was only a part of paths stays when what made it one is gone.
void TVRXStyleTree::KeepInStore(const Node& style) {
  if (!style.IsRoot() && !manager_.Styles().Has(style.StylePath())) WriteKind(style);
}

std::unique_ptr<Node> TVRXStyleTree::TakeOut(Node& node) {
  auto& children = node.Parent->Children;
  const auto it =
      std::find_if(children.begin(), children.end(), [&](const auto& child) { return child.get() == &node; });
  auto taken = std::move(*it);
  children.erase(it);
  return taken;
}
void TVRXStyleTree::PutIn(Node& parent, std::unique_ptr<Node> node) {
  node->Parent = &parent;
  parent.Children.push_back(std::move(node));
}

// --- Rules

bool TVRXStyleTree::Refuse(TVRXStyleMessage message, const QStringList& names) const {
  show_(VRXStyleBox(message, names));
  return false;
}
bool TVRXStyleTree::Allowed(const Refusal& refusal) const {
  if (refusal) show_(*refusal);
  return !refusal;
}

TVRXStyleTree::Refusal TVRXStyleTree::Placement(const Node* target, const QString& name) {
  for (; target; target = target->Parent) {
    if (VRXIsStateStyle(target->Name)) return VRXStyleBox(StateHasNoSubstyles);
    if (VRXIsStateStyle(name)) continue;
    if (!IsNamed(name) && !IsClass(name)) return {};
    if (name == target->Name) return VRXStyleBox(SameNameAbove);
    if (IsNamed(name)) continue;
    const TClass* own = FindClass(name.toLatin1());
    const TClass* above = FindClass(target->Name.toLatin1());
    if (own && above && !own->InheritsFrom(*above))
      return VRXStyleBox(NotInherited, {name, target->Name, QString::fromLatin1(own->ClassName()),
                                        QString::fromLatin1(above->ClassName())});
  }
  return {};
}
bool TVRXStyleTree::IsValidStylePlacement(const Node* target, const QString& name, QString& message) {
  const Refusal refusal = Placement(target, name);
  message = refusal ? refusal->Text : QString();
  return !refusal;
}

TVRXStyleTree::Refusal TVRXStyleTree::SubStyles(const Node& node) {
  for (const auto& child : node.Children) {
    if (child->IsProperty()) continue;
    if (auto refusal = Placement(&node, child->Name)) return refusal;
    if (auto refusal = SubStyles(*child)) return refusal;
  }
  return {};
}
bool TVRXStyleTree::AllSubStylesValid(const Node& node, QString& message) {
  const Refusal refusal = SubStyles(node);
  message = refusal ? refusal->Text : QString();
  return !refusal;
}

QString TVRXStyleTree::FindAncestorStyle(const Node* node) {
  for (; node; node = node->Parent)
    if (!node->IsProperty() && IsClass(node->Name)) return node->Name;
  return {};
}

// --- Styles

Node* TVRXStyleTree::AddStyle(Node* at, const QString& name, bool withStates) {
  Node& target = Target(at);
  if (!manager_.IsValidStyleName(name)) return Refuse(InvalidName), nullptr;
  if (target.Child(name, false)) return Refuse(SubstyleExists, {name}), nullptr;
  if (!Allowed(Placement(&target, name))) return nullptr;
  Node& style = InsertStyle(target, name);
  if (withStates && style.Kind == TVRXStyleKind::Class) AddStateStyles(style);
  SortAround(target);
  return &style;
}

Node* TVRXStyleTree::DropClass(const QString& className, Node* at, bool groupedByType, bool withStates) {
  if (groupedByType) return Refuse(NoComponentClass), nullptr;
  return AddStyle(at, className, withStates);
}

bool TVRXStyleTree::AddStateStyles(Node& style) {
  bool added = false;
  for (const char* state : StateStyleNames) {
    const QString name = QString::fromLatin1(state);
    if (style.Child(name, false)) continue;
    InsertStyle(style, name);
    added = true;
  }
  if (added) SortAround(style);
  return added;
}

bool TVRXStyleTree::Rename(Node& style, const QString& name) {
  if (style.IsProperty() || style.IsRoot()) return false;
  if (name == style.Name) return true;
  if (!manager_.IsValidStyleName(name)) return Refuse(InvalidName);
  if (style.Parent->Child(name, false)) return Refuse(SubstyleExists, {name});
  if (!Allowed(Placement(style.Parent, name))) return false;
  const QString oldName = style.Name, oldPath = style.StylePath();
  style.Name = name;
  // What stands below it must be able to stand below the new name, too.
  const Refusal below = SubStyles(style);
  if (below) style.Name = oldName;
  if (!Allowed(below)) return false;
  manager_.RenameStyle(oldPath, style.StylePath());
  style.Kind = VRXStyleKindOf(name);
  WriteKind(style);
  NodeChanged(style);
  Sort(*style.Parent);
  return true;
}

bool TVRXStyleTree::Delete(Node* node, bool confirm) {
  if (!node) return Refuse(NothingSelected);
  if (node->IsRoot()) return Refuse(CannotDeleteDefault);
  const bool property = node->IsProperty();
  if (confirm && !show_(VRXStyleBox(property ? DeleteProperty : DeleteStyle, {node->Name}))) return false;
  Node& parent = *node->Parent;
  if (property)
    manager_.EraseProperty(node->StylePath(), node->Name, node->TypeName);
  else
    manager_.EraseStyle(node->StylePath());
  Removing(*node);
  TakeOut(*node);
  KeepInStore(parent);
  SortAround(parent);
  return true;
}

bool TVRXStyleTree::Drop(Node& dragged, Node* at, bool copy) {
  if (dragged.IsRoot()) return Refuse(CannotMoveDefault);
  Node& target = Target(at);
  return dragged.IsProperty() ? DropOwnProperty(dragged, target, copy) : DropStyle(dragged, target);
}

bool TVRXStyleTree::DropStyle(Node& style, Node& target) {
  if (target.IsWithin(style)) return Refuse(OwnSubstyle);
  if (target.Child(style.Name, false)) return Refuse(SubstyleExists, {style.Name});
  if (!Allowed(Placement(&target, style.Name))) return false;
  Node& before = *style.Parent;
  const QString oldPath = style.StylePath();
  style.Parent = &target;
  const Refusal below = SubStyles(style);
  style.Parent = &before;
  if (!Allowed(below)) return false;
  PutIn(target, TakeOut(style));
  manager_.RenameStyle(oldPath, style.StylePath());
  KeepInStore(before);
  SortAround(before);
  SortAround(target);
  return true;
}

// --- Properties

bool TVRXStyleTree::MayHave(const Node& target, const QString& path) const {
  const QString cls = FindAncestorStyle(&target);
  if (cls.isEmpty() || registry_.FindItemByNameAndClassName(path.section(u'.', 0, 0), cls, {})) return true;
  return show_(VRXStyleBox(NoSuchProperty, {cls, path}));
}

bool TVRXStyleTree::DropProperty(const TVRXPropListItem& item, const QString& path, Node* at) {
  Node& target = Target(at);
  if (target.IsRoot()) return false;  // it is no style that could keep a value
  if (!VRXIsExpandable(item)) {
    if (target.Child(path, true)) return Refuse(PropertyIncluded, {path});
    if (!MayHave(target, path)) return false;
    Insert(target, path, TVRXStyleKind::Property, item.TypeName);
    SortAround(target);
    return true;
  }
  std::vector<const TVRXPropListItem*> lacking;
  for (const TVRXPropListItem* part : registry_.ItemsOfClass(item.TypeName, item.Name))
    if (part->Kind != TTypeKind::tkClass && !target.Child(path + u'.' + part->Name, true))
      lacking.push_back(part);
  if (lacking.empty() || !MayHave(target, path)) return false;
  for (const TVRXPropListItem* part : lacking)
    Insert(target, path + u'.' + part->Name, TVRXStyleKind::Property, part->TypeName);
  SortAround(target);
  return true;
}

bool TVRXStyleTree::DropOwnProperty(Node& property, Node& target, bool copy) {
  if (target.IsRoot()) return false;
  if (target.Child(property.Name, true)) return Refuse(PropertyIncluded, {property.Name});
  const TVRXStyleValue* value = Value(property);
  if (!value) return Refuse(UndefinedValue);
  if (!MayHave(target, property.Name)) return false;
  manager_.WritePropValue(target.StylePath(), property.Name, TVRXStyleValue(*value), property.TypeName);
  if (copy) {
    Insert(target, property.Name, TVRXStyleKind::Property, property.TypeName);
  } else {
    Node& before = *property.Parent;
    manager_.EraseProperty(before.StylePath(), property.Name, property.TypeName);
    PutIn(target, TakeOut(property));
    property.Item = ItemOf(property);
    SortAround(before);
  }
  SortAround(target);
  return true;
}

const TVRXStyleValue* TVRXStyleTree::Value(const Node& property) const {
  return manager_.Styles().Find(property.StylePath(), {property.Name, property.TypeName});
}
void TVRXStyleTree::SetValue(Node& property, TVRXStyleValue value) {
  manager_.WritePropValue(property.StylePath(), property.Name, std::move(value), property.TypeName);
  NodeChanged(property);
}
void TVRXStyleTree::ClearValue(Node& property) {
  manager_.EraseProperty(property.StylePath(), property.Name, property.TypeName);
  NodeChanged(property);
}

namespace {
// Of a value whose property nobody has registered, as far as it tells itself.
TTypeKind KindOfValue(const TVRXStyleValue* value) {
  using enum TTypeKind;
  if (!value) return tkUnknown;
  if (std::holds_alternative<std::int64_t>(*value)) return tkInteger;
  if (std::holds_alternative<long double>(*value)) return tkFloat;
  if (std::holds_alternative<QByteArray>(*value)) return tkClass;
  return std::holds_alternative<QString>(*value) ? tkString : tkUnknown;
}
}  // namespace

TTypeKind TVRXStyleTree::KindOf(const Node& property) const {
  return property.Item ? property.Item->Kind : KindOfValue(Value(property));
}
const TTypeInfo* TVRXStyleTree::TypeOf(const Node& property) const {
  return property.Item ? property.Item->Type : nullptr;
}
TVRXStyleEditor TVRXStyleTree::EditorOf(const Node& property) const {
  return VRXStyleEditorOf(KindOf(property), property.TypeName);
}
QString TVRXStyleTree::DisplayValue(const Node& property) const {
  return VRXDisplayValue(Value(property), KindOf(property), property.TypeName, TypeOf(property));
}

// --- Classes and components

bool TVRXStyleTree::AddComponent(const QString& className) {
  const TClass* cls = FindClass(className.trimmed().toLatin1());
  if (!cls) return Refuse(NoSuchClass, {className});
  RegisterStyleMgrFamily(*cls, registry_);
  return true;
}

bool TVRXStyleTree::CreateStyles(const QString& className, const std::vector<const TComponent*>& components) {
  if (className.isEmpty()) return Refuse(NoClassSelected);
  if (components.empty()) return false;
  const auto write = [&](const QString& path, TVRXStyleKind kind) {
    manager_.WritePropValue(path, KindName, std::int64_t{static_cast<int>(kind)}, KindType);
  };
  write(className, TVRXStyleKind::Class);
  for (const TComponent* component : components) {
    const QString name = u'.' + component->Name(), path = VRXStylePath(className, name);
    write(path, VRXStyleKindOf(name));
    SavePropsToStyle(*component, path);
  }
  Rebuild();
  return true;
}

void TVRXStyleTree::SavePropsToStyle(const TComponent& component, const QString& stylePath) {
  SaveProps(component, stylePath, QString::fromLatin1(component.ClassType().ClassName()), {}, {}, 0);
}

// What is as every component of the class has it is left out, and so is what is a component's own.
void TVRXStyleTree::SaveProps(const TComponent& component, const QString& stylePath, const QString& className,
                              const QString& parent, const QString& prefix, int depth) {
  static const QStringList own{QStringLiteral("Name"),  QStringLiteral("Left"),   QStringLiteral("Top"),
                               QStringLiteral("Width"), QStringLiteral("Height"), QStringLiteral("Caption")};
  constexpr int deepest = 6;
  const TPersistent* at = &component;
  for (const QString& name : prefix.split(u'.', Qt::SkipEmptyParts)) {
    const TPropInfo* prop = at->ClassType().FindProp(name.toLatin1());
    if (!prop || !prop->IsPart()) return;
    at = GetObjectProp(*at, *prop);
  }
  for (const TVRXPropListItem* item : registry_.ItemsOfClass(className, parent)) {
    const TPropInfo* prop = at->ClassType().FindProp(item->Name.toLatin1());
    if (!prop || (depth == 0 && own.contains(item->Name)) || !IsStoredProp(*at, *prop)) continue;
    const QString path = prefix + item->Name;
    if (VRXIsExpandable(*item)) {
      if (depth < deepest && prop->IsPart())
        SaveProps(component, stylePath, item->TypeName, item->Name, path + u'.', depth + 1);
    } else if (const auto value = VRXStyleValueOf(component, path)) {
      manager_.WritePropValue(stylePath, path, *value, item->TypeName);
    }
  }
}
