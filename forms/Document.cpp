#include "forms/Document.h"

#include <cstring>

#include "forms/BinaryReader.h"
#include "forms/BinaryWriter.h"
#include "forms/Encoding.h"
#include "forms/PlainValues.h"
#include "forms/TextChars.h"
#include "forms/TextReader.h"
#include "forms/TextWriter.h"

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
  child->parent = nullptr;
  return child;
}

void Object::Insert(int childIndex, std::unique_ptr<Object> child) {
  child->parent = this;
  const auto at = std::min(static_cast<std::size_t>(std::max(childIndex, 0)), children.size());
  children.insert(children.begin() + static_cast<std::ptrdiff_t>(at), std::move(child));
}

Document::Document() = default;
Document::~Document() = default;
Document::Document(Document&&) noexcept = default;
Document& Document::operator=(Document&&) noexcept = default;

Format Document::Detect(QByteArrayView bytes) {
  if (bytes.startsWith("TPF0")) return Format::Binary;
  if (!bytes.isEmpty() && static_cast<unsigned char>(bytes[0]) == 0xFF) return Format::Resource;
  return Format::Text;
}

Document Document::Parse(QByteArray bytes, const Dialect& hint) {
  if (bytes.size() > MaxFileSize)
    throw EFormError(QStringLiteral("The form is larger than %1 MB").arg(MaxFileSize >> 20), {});
  Document doc;
  doc.dialect_ = hint;
  doc.format_ = Detect(bytes);
  doc.source_ = std::move(bytes);
  if (doc.format_ == Format::Text) {
    TextReader reader(doc.source_);
    try {
      reader.ReadDocument(doc);
    } catch (const std::bad_alloc&) {
      ThrowOutOfMemory(LocationOf(doc.source_, reader.Offset()));
    }
  } else {
    const std::size_t at = StreamOffset(doc.source_);
    // The two families of streams disagree about one code; the other reading may fit, too.
    const auto takeOther = [&](bool mustEndAlike) {
      Document other;
      other.dialect_ = hint;
      other.format_ = doc.format_;
      other.source_ = doc.source_;
      try {
        BinaryReader(other.source_, at, true).ReadDocument(other);
      } catch (const EFormError&) {
        return false;
      }
      if (mustEndAlike && other.trailer_.begin != doc.trailer_.begin) return false;
      doc = std::move(other);
      return true;
    };
    BinaryReader reader(doc.source_, at, false);
    try {
      reader.ReadDocument(doc);
    } catch (const EFormError&) {
      if (!takeOther(false)) throw;
      reader = BinaryReader(doc.source_, at, true);
    } catch (const std::bad_alloc&) {
      ThrowOutOfMemory({reader.Offset(), 0, 0});
    }
    // A string of two units is as long as a double, but hardly any double begins with its length.
    if (reader.SawDouble()) takeOther(true);
  }
  doc.DescribeCodePage();
  return doc;
}

Document Document::ParseObjects(QByteArray text) {
  if (text.size() > MaxFileSize)
    throw EFormError(QStringLiteral("The text is larger than %1 MB").arg(MaxFileSize >> 20), {});
  Document doc;
  doc.source_ = std::move(text);
  TextReader reader(doc.source_);
  try {
    reader.ReadObjects(doc);
  } catch (const std::bad_alloc&) {
    ThrowOutOfMemory(LocationOf(doc.source_, reader.Offset()));
  }
  return doc;
}

Document Document::Create(QByteArray rootClass, QByteArray rootName, const Dialect& style) {
  Document doc;
  doc.dialect_ = style;
  doc.root_ = std::make_unique<Object>();
  doc.root_->className = std::move(rootClass);
  doc.root_->name = std::move(rootName);
  return doc;
}

void Document::DescribeCodePage() {
  if (format_ == Format::Text && utf8_) return;
  const Property* charset = root_->Find("Font.Charset");
  if (!charset) return;
  const Value v = Read(*charset);
  if (v.type == ValueType::Ident) codePage_ = CodePageOfCharset(v.bytes);
}

QByteArrayView Document::Slice(Span span) const {
  return QByteArrayView(source_).sliced(span.begin, span.end - span.begin);
}

void Document::Read(const Property& property, Value& out) const {
  if (const Value* edited = property.Edited()) {
    out = *edited;
  } else if (format_ == Format::Text) {
    const QByteArrayView text = SourceText(property);
    if (!text.isEmpty() && PlainValue(text.begin(), text.end(), &out)) return;
    const QByteArrayView whole(source_.constData(), text.end());
    TextReader(whole, OffsetOf(text)).ReadValue(&out);
  } else {
    BinaryReader(source_, OffsetOf(property.SourceValue()), lclStream_).ReadValue(&out);
  }
}

QByteArrayView Document::SourceText(const Property& property) const {
  return format_ == Format::Text && property.FromSource() ? property.SourceValue() : QByteArrayView();
}

Value Document::Read(const Property& property) const {
  Value v;
  Read(property, v);
  return v;
}

Location Document::Where(const Property& property) const {
  if (!property.FromSource()) return {};
  const std::size_t at = OffsetOf(property.SourceValue());
  return format_ == Format::Text ? locator_.At(source_, at) : Location{at, 0, 0};
}

Location Document::Where(const Object& object) const {
  if (!object.FromSource()) return {};
  if (format_ != Format::Text) return {object.header.begin, 0, 0};
  std::size_t at = object.header.begin;
  while (at < object.header.end && std::strchr(" \t\r\n", source_[static_cast<qsizetype>(at)])) ++at;
  return locator_.At(source_, at);
}

QString Document::Decode(const Value& value) const {
  switch (value.type) {
    case ValueType::WString:
    case ValueType::UString:
      return value.wide;
    case ValueType::UTF8String:
      return QString::fromUtf8(value.bytes);
    default:
      return DecodeBytes(value.bytes, codePage_);
  }
}

Value Document::MakeText(const QString& text) const {
  Value v = Value::Text(text);
  if (v.type == ValueType::WString && format_ == Format::Text && dialect_.literalHighBytes) {
    v.bytes = text.toUtf8();
    v.wide.clear();
    v.type = v.bytes.size() <= 255 ? ValueType::String : ValueType::LString;
  }
  return v;
}

QByteArrayView Document::Intern(QByteArrayView name) {
  for (const QByteArray& known : interned_)
    if (known == name) return known;
  interned_.push_back(name.toByteArray());
  return interned_.back();
}

Property Document::MakeProperty(QByteArrayView name, Value value, const Property* replaced) {
  QByteArrayView lead;
  if (replaced && format_ == Format::Text) {
    lead = replaced->Node();
    if (replaced->FromSource()) {
      const QByteArrayView node = lead;
      // The name starts its line; what stands above are blank lines and directives.
      const qsizetype nameAt = replaced->Name().data() - node.data();
      const bool inNode = nameAt >= 0 && nameAt < node.size();
      const qsizetype newline = inNode ? node.first(nameAt).lastIndexOf('\n') : -1;
      lead = node.first(newline + 1);
    }
  }
  return Property(Intern(name), std::move(value), lead);
}

void Document::WriteTextObject(TextWriter& out, const Object& object, int level) const {
  if (object.FromSource() && !object.headerChanged) {
    out.Copy(Slice(object.header));
  } else {
    out.FreshLine();
    out.ObjectHeader(object, level);
  }
  for (const Property& p : object.properties) {
    out.Copy(p.Node());
    if (const Value* edited = p.Edited()) {
      out.FreshLine();
      out.PropertyLine(p.Name(), *edited, level + 1);
    }
  }
  for (const auto& child : object.children) WriteTextObject(out, *child, level + 1);
  if (object.FromSource()) {
    out.Copy(Slice(object.footer));
  } else {
    out.FreshLine();
    out.ObjectFooter(level);
  }
}

// `copy`: nodes from the source are copied; otherwise every value is encoded anew.
void Document::WriteBinaryObject(BinaryWriter& out, const Object& object, bool copy) const {
  if (copy && object.FromSource() && !object.headerChanged)
    out.Raw(Slice(object.header));
  else
    out.ObjectHeader(object);
  Value v;
  for (const Property& p : object.properties) {
    if (copy && p.FromSource()) {
      out.Raw(p.Node());
      continue;
    }
    out.ShortString(p.Name());
    Read(p, v);
    out.WriteValue(v);
  }
  out.Byte(0);
  for (const auto& child : object.children) WriteBinaryObject(out, *child, copy);
  out.Byte(0);
}

QByteArray Document::Write() const {
  if (format_ == Format::Text) {
    TextWriter out(dialect_);
    out.Reserve(source_.size());
    out.Copy(Slice(before_));
    WriteTextObject(out, *root_, 0);
    out.Raw(Slice(trailer_));
    return std::move(out).Result();
  }
  BinaryWriter out(lclStream_);
  WriteBinaryObject(out, *root_, true);
  const QByteArray stream = std::move(out).Result();
  // A renamed class renames the resource.
  if (format_ == Format::Resource && root_->headerChanged)
    return ResourceHeader(root_->className, static_cast<std::size_t>(stream.size()) + 4) + "TPF0" + stream;
  QByteArray head = Slice(before_).toByteArray();
  const auto before = static_cast<qsizetype>(before_.end);
  if (format_ == Format::Resource && stream != Slice({before_.end, trailer_.begin})) {
    const auto size = static_cast<std::size_t>(stream.size() + 4 + (source_.size() - trailer_.begin));
    for (int i = 0; i < 4; ++i) head[before - 8 + i] = static_cast<char>(size >> (8 * i));
  }
  return head + stream + Slice(trailer_).toByteArray();
}

namespace {
// Names may be anything in a stream, but text that could not be read again must not be written.
[[noreturn]] void RefuseName(const char* what, const QByteArray& name, Location where) {
  throw EFormError(QStringLiteral("%1 \"%2\" cannot be written as text")
                       .arg(QLatin1StringView(what), QString::fromLatin1(name)),
                   where);
}

void CheckValue(const Value& v, Location where) {
  if (v.type == ValueType::Ident && !IsPath(v.bytes)) RefuseName("The identifier", v.bytes, where);
  for (const QByteArray& element : v.elements)
    if (!IsPath(element) || element.contains('.')) RefuseName("The set element", element, where);
  for (const Value& item : v.items) CheckValue(item, where);
  for (const CollectionItem& item : v.collection) {
    for (const NamedValue& p : item.properties) {
      if (!IsPropertyPath(p.path)) RefuseName("The property name", p.path, where);
      CheckValue(p.value, where);
    }
  }
}

void WriteDecodedText(const Document& doc, TextWriter& out, const Object& object, int level) {
  if (!object.name.isEmpty() && !IsHeaderName(object.name))
    RefuseName("The component name", object.name, doc.Where(object));
  if (!IsHeaderName(object.className)) RefuseName("The class name", object.className, doc.Where(object));
  out.ObjectHeader(object, level);
  Value v;
  for (const Property& p : object.properties) {
    if (!IsPropertyPath(p.Name())) RefuseName("The property name", p.Name().toByteArray(), doc.Where(p));
    doc.Read(p, v);
    CheckValue(v, doc.Where(p));
    out.PropertyLine(p.Name(), v, level + 1);
  }
  for (const auto& child : object.children) WriteDecodedText(doc, out, *child, level + 1);
  out.ObjectFooter(level);
}
}  // namespace

QByteArray Document::ObjectText(const Object& object) const {
  TextWriter out(dialect_);
  WriteDecodedText(*this, out, object, 0);
  return std::move(out).Result();
}

// What follows the root's end is kept by copying, which only the form's own kind of file can do. Padding and
// the end mark of old text files are nothing.
void Document::RequireOneRoot() const {
  const QByteArrayView rest = Slice(trailer_);
  const std::string_view padding =
      format_ == Format::Text ? std::string_view(" \t\r\n\0\x1A", 6) : std::string_view("\0", 1);
  const std::size_t skipped =
      std::string_view(rest.data(), static_cast<std::size_t>(rest.size())).find_first_not_of(padding);
  if (skipped == std::string_view::npos) return;
  const std::size_t at = trailer_.begin + skipped;
  const QByteArrayView behind = rest.sliced(static_cast<qsizetype>(skipped));
  if (format_ != Format::Text) {
    // Readers of streams stop after the root, so writers were free to leave anything there.
    if (behind.startsWith("TPF0"))
      throw EFormError(QStringLiteral("A second form stands behind the first; only one can be converted"),
                       {at, 0, 0});
    return;
  }
  const auto wordEnd = std::find_if_not(behind.begin(), behind.end(), IsIdentChar);
  const QByteArrayView word(behind.begin(), wordEnd);
  const bool object = Is(word, "object") || Is(word, "inherited") || Is(word, "inline");
  throw EFormError(
      object ? QStringLiteral("A second root object stands behind the first; only one can be converted")
             : QStringLiteral("Something stands behind the end of the form; it would be lost"),
      locator_.At(source_, at));
}

QByteArray Document::WriteAs(Format format) const {
  if (format == format_) return Write();
  if (template_)
    throw Exception(QStringLiteral("This is a form template with {$...} lines; it has no binary form."));
  if (format == Format::Text) return ObjectText(*root_);
  BinaryWriter out(lclStream_);
  out.Raw("TPF0");
  WriteBinaryObject(out, *root_, format_ != Format::Text);
  const QByteArray stream = std::move(out).Result();
  if (format == Format::Binary) return stream;
  return ResourceHeader(root_->className, static_cast<std::size_t>(stream.size())) + stream;
}

// Strings that mean something only with this document's code page, or that the other one writes in another
// way.
void Document::CarryStrings(Value& v, const Document& target) const {
  const auto high = [](QChar c) { return c.unicode() > 127; };
  const bool bytes = v.type == ValueType::String || v.type == ValueType::LString;
  if (bytes || v.type == ValueType::WString)
    if (const QString text = Decode(v); std::any_of(text.begin(), text.end(), high))
      v = target.MakeText(text);
  for (Value& item : v.items) CarryStrings(item, target);
  for (CollectionItem& item : v.collection)
    for (NamedValue& p : item.properties) CarryStrings(p.value, target);
}

std::unique_ptr<Object> Document::Detached(const Object& object, Document& target) const {
  const auto owned = [](const QByteArray& b) { return QByteArray(b.constData(), b.size()); };
  auto copy = std::make_unique<Object>();
  copy->kind = object.kind;
  copy->name = owned(object.name);
  copy->className = owned(object.className);
  copy->position = object.position;
  for (const Property& p : object.properties) {
    Value value = Read(p);
    value.Own();
    if (this != &target) CarryStrings(value, target);
    copy->properties.push_back(target.MakeProperty(p.Name(), std::move(value)));
  }
  for (const auto& child : object.children) {
    copy->children.push_back(Detached(*child, target));
    copy->children.back()->parent = copy.get();
  }
  return copy;
}

}  // namespace forms
