// The lossless tree of a form file. It knows nothing of components: whatever a file holds stays here and is
// written back as it stood, byte for byte, until something is changed on purpose.
//
// Every node remembers the span of the source it came from. The spans of neighbouring nodes touch, so that an
// untouched document is written by copying. A changed node is written anew, in the style of its file.
#pragma once
#include <deque>
#include <memory>
#include <vector>

#include "forms/FormError.h"
#include "forms/Value.h"

namespace forms {

class Document;

enum class Format : std::uint8_t { Text, Binary, Resource };

struct Span {
  std::uint32_t begin = 0;
  std::uint32_t end = 0;
  bool Empty() const { return begin == end; }
};

// One "Name = value". Cheap, for a form has many: the value is decoded only when somebody asks.
class Property {
 public:
  Property() = default;
  // A property of the source. The name is in the source or interned by the document.
  Property(QByteArrayView name, Span node, std::uint32_t valueBegin)
      : name_(name.data()),
        nameSize_(static_cast<std::uint32_t>(name.size())),
        node_(node),
        valueBegin_(valueBegin) {}
  // A property that is not in the source. The name is interned by the document; `lead` are the blank lines of
  // the source that stand above it.
  Property(QByteArrayView internedName, Value value, Span lead)
      : name_(internedName.data()),
        nameSize_(static_cast<std::uint32_t>(internedName.size())),
        node_(lead),
        edited_(std::make_unique<Value>(std::move(value))) {}

  QByteArrayView Name() const { return {name_, static_cast<qsizetype>(nameSize_)}; }
  bool FromSource() const { return !edited_; }
  // The whole node in the source; of an edited property, the blank lines above it.
  Span Node() const { return node_; }
  // From the value to the end of the node: a text node may have blanks behind the value.
  Span SourceValue() const { return {valueBegin_, node_.end}; }
  const Value* Edited() const { return edited_.get(); }

 private:
  const char* name_ = nullptr;
  std::uint32_t nameSize_ = 0;
  Span node_;
  std::uint32_t valueBegin_ = 0;
  std::unique_ptr<Value> edited_;
};

enum class ObjectKind : std::uint8_t { Object, Inherited, Inline };

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

  bool FromSource() const { return !header.Empty(); }
  // The property of that path (no regard to case), or null.
  Property* Find(QByteArrayView path);
  const Property* Find(QByteArrayView path) const;
  int IndexInParent() const;
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
};

class Document {
 public:
  Document();
  ~Document();
  Document(Document&&) noexcept;
  Document& operator=(Document&&) noexcept;

  // Reads any of the three forms. `dialectHint` is used where the content shows no style of its own.
  // Errors: EFormError with the place.
  static Document Parse(QByteArray bytes, const Dialect& dialectHint = {});
  static Format Detect(QByteArrayView bytes);
  // A new document with one root object.
  static Document Create(QByteArray rootClass, QByteArray rootName);

  Format SourceFormat() const { return format_; }
  Object& Root() { return *root_; }
  const Object& Root() const { return *root_; }
  const Dialect& Style() const { return dialect_; }
  QByteArrayView Source() const { return source_; }
  bool Utf8() const { return utf8_; }
  // Name of the code page of 8-bit strings that are not UTF-8 ("windows-1251"), from the form's font charset.
  const QByteArray& CodePage() const { return codePage_; }

  // The value, decoded.
  Value Read(const Property& property) const;
  void Read(const Property& property, Value& out) const;
  // The place of the property's value, or of an object's header.
  Location Where(const Property& property) const;
  Location Where(const Object& object) const;

  // Text of a string value: the file's code page for byte strings.
  QString Decode(const Value& value) const;

  // A string value the way this file keeps strings.
  Value MakeText(const QString& text) const;
  // A property that carries `value` and is not from the source.
  // It can take over the blank lines above the one that it replaces.
  Property MakeProperty(QByteArrayView name, Value value, const Property* replaced = nullptr);

  // The document in its own form: untouched parts are copied.
  QByteArray Write() const;
  // The document in another form. Asking for its own form is the same as Write().
  QByteArray WriteAs(Format format) const;
  // The text of one object, as the clipboard carries it.
  QByteArray ObjectText(const Object& object) const;

  // Severs an object from the source, so that it can stand at another depth or in another document.
  std::unique_ptr<Object> Detached(const Object& object, Document& target) const;

 private:
  void WriteTextObject(class TextWriter& out, const Object& object, int level) const;
  void WriteBinaryObject(class BinaryWriter& out, const Object& object, bool copy) const;
  void DescribeCodePage();
  QByteArrayView Slice(Span span) const;

  friend class TextReader;
  friend class BinaryReader;
  QByteArrayView Intern(QByteArrayView name);

  QByteArray source_;
  Format format_ = Format::Text;
  std::unique_ptr<Object> root_;
  Span before_;   // byte-order mark, or resource header and signature
  Span trailer_;  // what follows the root's end
  Dialect dialect_;
  bool utf8_ = true;
  bool template_ = false;   // has conditional lines, which only the text form can hold
  bool lclStream_ = false;  // code 21 is a string
  QByteArray codePage_;
  std::deque<QByteArray> interned_;
};

constexpr int MaxDepth = 400;                            // nesting of objects and of values
constexpr qsizetype MaxFileSize = qsizetype{512} << 20;  // bytes

}  // namespace forms
