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
  doc.tree_.dialect = hint;
  doc.tree_.format = Detect(bytes);
  doc.tree_.source = std::move(bytes);
  if (doc.tree_.format == Format::Text) {
    TextReader reader(doc.tree_.source);
    try {
      reader.ReadDocument(doc.tree_);
    } catch (const std::bad_alloc&) {
      ThrowOutOfMemory(LocationOf(doc.tree_.source, reader.Offset()));
    }
  } else {
    const std::size_t at = StreamOffset(doc.tree_.source);
    // The two families of streams disagree about one code; the other reading may fit, too.
    const auto takeOther = [&](bool mustEndAlike) {
      Document other;
      other.tree_.dialect = hint;
      other.tree_.format = doc.tree_.format;
      other.tree_.source = doc.tree_.source;
      try {
        BinaryReader(other.tree_.source, at, true).ReadDocument(other.tree_);
      } catch (const EFormError&) {
        return false;
      }
      if (mustEndAlike && other.tree_.trailer.begin != doc.tree_.trailer.begin) return false;
      doc = std::move(other);
      return true;
    };
    BinaryReader reader(doc.tree_.source, at, false);
    try {
      reader.ReadDocument(doc.tree_);
    } catch (const EFormError&) {
      if (!takeOther(false)) throw;
      reader = BinaryReader(doc.tree_.source, at, true);
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
  doc.tree_.source = std::move(text);
  TextReader reader(doc.tree_.source);
  try {
    reader.ReadObjects(doc.tree_);
  } catch (const std::bad_alloc&) {
    ThrowOutOfMemory(LocationOf(doc.tree_.source, reader.Offset()));
  }
  return doc;
}

Document Document::Create(QByteArray rootClass, QByteArray rootName, const Dialect& style) {
  Document doc;
  doc.tree_.dialect = style;
  doc.tree_.root = std::make_unique<Object>();
  doc.tree_.root->className = std::move(rootClass);
  doc.tree_.root->name = std::move(rootName);
  return doc;
}

void Document::DescribeCodePage() {
  if (tree_.format == Format::Text && tree_.utf8) return;
  const Property* charset = tree_.root->Find("Font.Charset");
  if (!charset) return;
  const Value v = Read(*charset);
  if (v.type == ValueType::Ident) codePage_ = CodePageOfCharset(v.bytes);
}

QByteArrayView Document::Slice(Span span) const {
  return QByteArrayView(tree_.source).sliced(span.begin, span.end - span.begin);
}

void Document::Read(const Property& property, Value& out) const {
  if (const Value* edited = property.Edited()) {
    out = *edited;
  } else if (tree_.format == Format::Text) {
    const QByteArrayView text = SourceText(property);
    if (!text.isEmpty() && PlainValue(text.begin(), text.end(), &out)) return;
    const QByteArrayView whole(tree_.source.constData(), text.end());
    TextReader(whole, OffsetOf(text)).ReadValue(&out);
  } else {
    BinaryReader(tree_.source, OffsetOf(property.SourceValue()), tree_.lclStream).ReadValue(&out);
  }
}

QByteArrayView Document::SourceText(const Property& property) const {
  return tree_.format == Format::Text && property.FromSource() ? property.SourceValue() : QByteArrayView();
}

Value Document::Read(const Property& property) const {
  Value v;
  Read(property, v);
  return v;
}

Location Document::Where(const Property& property) const {
  if (!property.FromSource()) return {};
  const std::size_t at = OffsetOf(property.SourceValue());
  return tree_.format == Format::Text ? locator_.At(tree_.source, at) : Location{at, 0, 0};
}

Location Document::Where(const Object& object) const {
  if (!object.FromSource()) return {};
  if (tree_.format != Format::Text) return {object.header.begin, 0, 0};
  std::size_t at = object.header.begin;
  while (at < object.header.end && std::strchr(" \t\r\n", tree_.source[static_cast<qsizetype>(at)])) ++at;
  return locator_.At(tree_.source, at);
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
  if (v.type == ValueType::WString && tree_.format == Format::Text && tree_.dialect.literalHighBytes) {
    v.bytes = text.toUtf8();
    v.wide.clear();
    v.type = v.bytes.size() <= 255 ? ValueType::String : ValueType::LString;
  }
  return v;
}

Property Document::MakeProperty(QByteArrayView name, Value value, const Property* replaced) {
  QByteArrayView lead;
  if (replaced && tree_.format == Format::Text) {
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
  return Property(tree_.Intern(name), std::move(value), lead);
}

// What has come to another depth is indented like its new neighbours.
void Document::WriteTextObject(TextWriter& out, const Object& object, int level, int sourceLevel) const {
  if (object.sourceLevel >= 0) sourceLevel = object.sourceLevel;
  const int moved = object.FromSource() ? level - sourceLevel : 0;
  if (object.FromSource() && !object.headerChanged) {
    out.Copy(Slice(object.header), moved);
  } else {
    out.FreshLine();
    out.ObjectHeader(object, level);
  }
  for (const Property& p : object.properties) {
    out.Copy(p.Node(), moved);
    if (const Value* edited = p.Edited()) {
      out.FreshLine();
      out.PropertyLine(p.Name(), *edited, level + 1);
    }
  }
  for (const auto& child : object.children)
    if (child->IsWritten()) WriteTextObject(out, *child, level + 1, sourceLevel + 1);
  if (object.FromSource()) {
    out.Copy(Slice(object.footer), moved);
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
  for (const auto& child : object.children)
    if (child->IsWritten()) WriteBinaryObject(out, *child, copy);
  out.Byte(0);
}

QByteArray Document::Write() const {
  if (tree_.format == Format::Text) {
    TextWriter out(tree_.dialect);
    out.Reserve(tree_.source.size());
    out.Copy(Slice(tree_.before));
    WriteTextObject(out, *tree_.root, 0, 0);
    out.Raw(Slice(tree_.trailer));
    return std::move(out).Result();
  }
  BinaryWriter out(tree_.lclStream);
  WriteBinaryObject(out, *tree_.root, true);
  const QByteArray stream = std::move(out).Result();
  // A renamed class renames the resource.
  if (tree_.format == Format::Resource && tree_.root->headerChanged)
    return ResourceHeader(tree_.root->className, static_cast<std::size_t>(stream.size()) + 4) + "TPF0" +
           stream;
  QByteArray head = Slice(tree_.before).toByteArray();
  const auto before = static_cast<qsizetype>(tree_.before.end);
  if (tree_.format == Format::Resource && stream != Slice({tree_.before.end, tree_.trailer.begin})) {
    const auto size =
        static_cast<std::size_t>(stream.size() + 4 + (tree_.source.size() - tree_.trailer.begin));
    for (int i = 0; i < 4; ++i) head[before - 8 + i] = static_cast<char>(size >> (8 * i));
  }
  return head + stream + Slice(tree_.trailer).toByteArray();
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
  for (const auto& child : object.children)
    if (child->IsWritten()) WriteDecodedText(doc, out, *child, level + 1);
  out.ObjectFooter(level);
}
}  // namespace

QByteArray Document::ObjectText(const Object& object) const {
  TextWriter out(tree_.dialect);
  WriteDecodedText(*this, out, object, 0);
  return std::move(out).Result();
}

// What follows the root's end is kept by copying, which only the form's own kind of file can do. Padding and
// the end mark of old text files are nothing.
void Document::RequireOneRoot() const {
  const QByteArrayView rest = Slice(tree_.trailer);
  const std::string_view padding =
      tree_.format == Format::Text ? std::string_view(" \t\r\n\0\x1A", 6) : std::string_view("\0", 1);
  const std::size_t skipped =
      std::string_view(rest.data(), static_cast<std::size_t>(rest.size())).find_first_not_of(padding);
  if (skipped == std::string_view::npos) return;
  const std::size_t at = tree_.trailer.begin + skipped;
  const QByteArrayView behind = rest.sliced(static_cast<qsizetype>(skipped));
  if (tree_.format != Format::Text) {
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
      locator_.At(tree_.source, at));
}

QByteArray Document::WriteAs(Format format) const {
  if (format == tree_.format) return Write();
  if (tree_.isTemplate)
    throw Exception(QStringLiteral("This is a form template with {$...} lines; it has no binary form."));
  if (format == Format::Text) return ObjectText(*tree_.root);
  BinaryWriter out(tree_.lclStream);
  out.Raw("TPF0");
  WriteBinaryObject(out, *tree_.root, tree_.format != Format::Text);
  const QByteArray stream = std::move(out).Result();
  if (format == Format::Binary) return stream;
  return ResourceHeader(tree_.root->className, static_cast<std::size_t>(stream.size())) + stream;
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
    if (!child->IsWritten()) continue;
    copy->children.push_back(Detached(*child, target));
    copy->children.back()->parent = copy.get();
  }
  return copy;
}

}  // namespace forms
