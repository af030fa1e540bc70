// The lossless tree of a form file. It knows nothing of components: whatever a file holds stays here and is
// written back as it stood, byte for byte, until something is changed on purpose.
#pragma once
#include "forms/FormTree.h"

namespace forms {

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
  // Form text of any number of objects, one behind the other, as a clipboard carries it: they are the
  // children of a nameless root. Errors: EFormError with the place; no object at all is one.
  static Document ParseObjects(QByteArray text);
  // A new document with one root object; written in the style, if one is given.
  static Document Create(QByteArray rootClass, QByteArray rootName, const Dialect& style = {});

  Format SourceFormat() const { return tree_.format; }
  Object& Root() { return *tree_.root; }
  const Object& Root() const { return *tree_.root; }
  const Dialect& Style() const { return tree_.dialect; }
  QByteArrayView Source() const { return tree_.source; }
  bool Utf8() const { return tree_.utf8; }

  // The value, decoded.
  Value Read(const Property& property) const;
  void Read(const Property& property, Value& out) const;
  // The value as it stands in a text, with what is left of its line; empty when it is not from a text.
  QByteArrayView SourceText(const Property& property) const;
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
  // Another form than its own holds one root and nothing behind it. EFormError, with the place, when there is
  // more.
  void RequireOneRoot() const;
  // The text of one object, as the clipboard carries it.
  QByteArray ObjectText(const Object& object) const;

  // Severs an object from the source, so that it can stand at another depth or in another document. Texts
  // keep their meaning there.
  std::unique_ptr<Object> Detached(const Object& object, Document& target) const;

 private:
  void CarryStrings(Value& value, const Document& target) const;
  void WriteTextObject(class TextWriter& out, const Object& object, int level, int sourceLevel) const;
  void WriteBinaryObject(class BinaryWriter& out, const Object& object, bool copy) const;
  void DescribeCodePage();
  QByteArrayView Slice(Span span) const;
  std::size_t OffsetOf(QByteArrayView piece) const {
    return static_cast<std::size_t>(piece.data() - tree_.source.constData());
  }

  FormTree tree_;
  QByteArray codePage_;  // of 8-bit strings that are not UTF-8 ("windows-1251"), from the form's font charset
  mutable Locator locator_;
};

}  // namespace forms
