// The nodes of a form file: what readers fill, writers write and the document keeps.
//
// Every node remembers the span of the source it came from. The spans of neighbouring nodes touch, so that an
// untouched document is written by copying. A changed node is written anew, in the style of its file.
#pragma once
#include <deque>
#include <memory>
#include <utility>
#include <vector>

#include "forms/FormError.h"
#include "forms/Limits.h"
#include "forms/Value.h"

namespace forms {

enum class Format : std::uint8_t { Text, Binary, Resource };

struct Span {
  std::uint32_t begin = 0;
  std::uint32_t end = 0;
  bool Empty() const { return begin == end; }
};

// One "Name = value". Cheap, for a form has many: the value is decoded only when somebody asks, and the usual
// one is its name's address and a few lengths. Views lead into the source, which the document keeps.
class Property {
 public:
  Property() = default;
  // A property of the source: its node, and the value that ends with the node. The name is in the node or
  // interned by the document.
  Property(QByteArrayView name, QByteArrayView node, const char* value);
  // A property that is not in the source. The name is interned by the document; `lead` are the blank lines of
  // the source that stand above it.
  Property(QByteArrayView internedName, Value value, QByteArrayView lead);
  Property(Property&& other) noexcept : name_(other.name_), rest_(std::exchange(other.rest_, ShortBit)) {}
  Property& operator=(Property&& other) noexcept {
    std::swap(name_, other.name_);
    std::swap(rest_, other.rest_);
    return *this;
  }
  ~Property() {
    if (!IsShort()) Free();
  }

  QByteArrayView Name() const { return {name_, IsShort() ? NameSize() : Whole().nameSize}; }
  bool FromSource() const { return IsShort() || !Whole().edited; }
  // The whole node in the source; of an edited property, the blank lines above it.
  QByteArrayView Node() const {
    if (!IsShort()) return Whole().node;
    const char* node = name_ - LeadSize();
    return {node, LeadSize() + NameSize() + GapSize() + ValueSize()};
  }
  // From the value to the end of the node: a text node may have blanks behind the value.
  QByteArrayView SourceValue() const {
    if (!IsShort()) return Whole().value;
    return {name_ + NameSize() + GapSize(), ValueSize()};
  }
  const Value* Edited() const { return IsShort() ? nullptr : Whole().edited.get(); }

 private:
  // What does not fit: edited values, names that are not in their node, unusual lengths.
  struct Parts {
    qsizetype nameSize = 0;
    QByteArrayView node, value;
    std::unique_ptr<Value> edited;
  };
  static constexpr std::uint64_t ShortBit = 1;
  bool IsShort() const { return rest_ & ShortBit; }
  qsizetype LeadSize() const { return rest_ >> 1 & 0xFFFFu; }
  qsizetype NameSize() const { return rest_ >> 17 & 0xFFu; }
  qsizetype GapSize() const { return rest_ >> 25 & 0xFFu; }
  qsizetype ValueSize() const { return static_cast<qsizetype>(rest_ >> 33); }
  const Parts& Whole() const { return *reinterpret_cast<const Parts*>(static_cast<std::uintptr_t>(rest_)); }
  void Keep(Parts parts);
  void Free();

  const char* name_ = nullptr;
  // From the lowest bit: ShortBit; the number of characters above and before the name (16 bits), in the name
  // (8), between name and value (8), from the value to the end of the node (31). Without ShortBit, the
  // address of the parts, which is even.
  std::uint64_t rest_ = ShortBit;
};

enum class ObjectKind : std::uint8_t { Object, Inherited, Inline };

class Document;
class Object;
// What an inherited object or a frame is by the file that it comes from, which outlives it.
struct Origin {
  const Document* document = nullptr;
  const Object* object = nullptr;
};

class Object {
 public:
  ObjectKind kind = ObjectKind::Object;
  QByteArray name;
  QByteArray className;
  std::optional<std::int64_t> position;  // "[n]" behind the class: place among the parent's children
  std::vector<Property> properties;
  std::vector<std::unique_ptr<Object>> children;
  Object* parent = nullptr;

  // The source of "object Name: Class" and of "end"; empty for an object that is not in the source.
  Span header;
  Span footer;
  bool headerChanged = false;
  // How deep the source has it, once it has been taken from there; else -1, and it stands where it stood.
  std::int16_t sourceLevel = -1;

  std::unique_ptr<Origin> origin;  // none when nobody knows it
  // It is there because its origin is; it is written once something in it differs from that.
  bool implied = false;
  bool IsWritten() const;
  // The origins, the first ancestor first.
  std::vector<const Origin*> Origins() const;
  // Whether it or one of its origins has the property.
  bool Says(QByteArrayView path) const;
  // What stands in a frame has names of its own.
  bool IsFrame() const { return kind == ObjectKind::Inline || (origin && origin->object->IsFrame()); }

  bool FromSource() const { return !header.Empty(); }
  // The property of that path (no regard to case), or null.
  Property* Find(QByteArrayView path);
  const Property* Find(QByteArrayView path) const;
  int IndexInParent() const;
  // Of nested objects, this one included.
  int Levels() const;
  int SourceLevel() const { return sourceLevel >= 0 ? sourceLevel : parent ? parent->SourceLevel() + 1 : 0; }
  // A new last child.
  Object& AddChild(QByteArray childClass, QByteArray childName);
  std::unique_ptr<Object> Take(int childIndex);
  void Insert(int childIndex, std::unique_ptr<Object> child);
};

// How a file writes what can be written in several ways; read off the file itself.
struct Dialect {
  bool lcl = false;               // closing brackets on lines of their own, '' for apostrophes, Cls[3]
  bool fixedFloats = true;        // 18 decimals instead of 15 significant digits
  bool literalHighBytes = false;  // non-ASCII as UTF-8 instead of #n
  QByteArray eol = "\n";
  bool foreignWords = false;  // values may have names that only another framework knows
};

struct FormTree {
  QByteArray source;
  Format format = Format::Text;
  std::unique_ptr<Object> root;
  Span before;   // byte-order mark, or resource header and signature
  Span trailer;  // what follows the root's end
  Dialect dialect;
  bool utf8 = true;
  bool isTemplate = false;  // has conditional lines, which only the text form can hold
  bool lclStream = false;   // code 21 is a string
  std::deque<QByteArray> interned;

  // The name, kept as long as the tree.
  QByteArrayView Intern(QByteArrayView name);
};

}  // namespace forms
