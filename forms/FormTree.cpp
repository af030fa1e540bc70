#include "forms/FormTree.h"

#include <algorithm>

namespace forms {

Property::Property(QByteArrayView name, QByteArrayView node, const char* value) : name_(name.data()) {
  const auto at = [](const char* p) { return reinterpret_cast<std::uintptr_t>(p); };
  const std::uintptr_t lead = at(name.data()) - at(node.data());
  const std::uintptr_t gap = at(value) - at(name.end());
  const auto nameSize = static_cast<std::uint64_t>(name.size());
  const auto valueSize = static_cast<std::uint64_t>(node.end() - value);
  // A name outside of the node gives a lead or a gap that is far too large.
  if (lead > 0xFFFFu || nameSize > 0xFFu || gap > 0xFFu || valueSize > 0x7FFFFFFFu)
    Keep({name.size(), node, {value, node.end()}, nullptr});
  else
    rest_ = valueSize << 33 | std::uint64_t{gap} << 25 | nameSize << 17 | std::uint64_t{lead} << 1 | ShortBit;
}

Property::Property(QByteArrayView internedName, Value value, QByteArrayView lead)
    : name_(internedName.data()) {
  Keep({internedName.size(), lead, {}, std::make_unique<Value>(std::move(value))});
}

void Property::Keep(Parts parts) {
  rest_ = reinterpret_cast<std::uintptr_t>(std::make_unique<Parts>(std::move(parts)).release());
}

void Property::Free() {
  const std::unique_ptr<const Parts> parts(&Whole());
  rest_ = ShortBit;
}

Property* Object::Find(QByteArrayView path) {
  for (Property& p : properties)
    if (p.Name().size() == path.size() && p.Name().compare(path, Qt::CaseInsensitive) == 0) return &p;
  return nullptr;
}
const Property* Object::Find(QByteArrayView path) const { return const_cast<Object*>(this)->Find(path); }

bool Object::IsWritten() const {
  return !implied || !properties.empty() || position ||
         std::any_of(children.begin(), children.end(), [](const auto& child) { return child->IsWritten(); });
}

std::vector<const Origin*> Object::Origins() const {
  std::vector<const Origin*> origins;
  for (const Origin* o = origin.get(); o; o = o->object->origin.get()) origins.push_back(o);
  std::reverse(origins.begin(), origins.end());
  return origins;
}

bool Object::Says(QByteArrayView path) const { return Find(path) || (origin && origin->object->Says(path)); }

int Object::IndexInParent() const {
  if (!parent) return -1;
  for (std::size_t i = 0; i < parent->children.size(); ++i)
    if (parent->children[i].get() == this) return static_cast<int>(i);
  return -1;
}

int Object::Levels() const {
  int below = 0;
  for (const auto& child : children) below = std::max(below, child->Levels());
  return below + 1;
}

Object& Object::AddChild(QByteArray childClass, QByteArray childName) {
  auto child = std::make_unique<Object>();
  child->className = std::move(childClass);
  child->name = std::move(childName);
  child->parent = this;
  children.push_back(std::move(child));
  return *children.back();
}

std::unique_ptr<Object> Object::Take(int childIndex) {
  const auto it = children.begin() + childIndex;
  auto child = std::move(*it);
  children.erase(it);
  child->sourceLevel = static_cast<std::int16_t>(child->SourceLevel());
  child->parent = nullptr;
  return child;
}

void Object::Insert(int childIndex, std::unique_ptr<Object> child) {
  child->parent = this;
  const auto at = std::min(static_cast<std::size_t>(std::max(childIndex, 0)), children.size());
  children.insert(children.begin() + static_cast<std::ptrdiff_t>(at), std::move(child));
}

QByteArrayView FormTree::Intern(QByteArrayView name) {
  for (const QByteArray& known : interned)
    if (known == name) return known;
  interned.push_back(name.toByteArray());
  return interned.back();
}

}  // namespace forms
