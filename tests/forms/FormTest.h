// Short cuts for tests of form files.
#pragma once
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "forms/Document.h"
#include "forms/FormFile.h"
#include "forms/TextWriter.h"

namespace formtest {

using forms::Dialect;
using forms::Document;
using forms::EFormError;
using forms::Format;
using forms::Object;
using forms::ObjectKind;
using forms::Property;
using forms::Value;
using forms::ValueType;

inline QByteArray ReadBytes(const QString& fileName) {
  QFile file(fileName);
  if (!file.open(QIODevice::ReadOnly)) {
    ADD_FAILURE() << "cannot read " << fileName.toStdString();
    return {};
  }
  return file.readAll();
}

// A form of one object with one property P.
inline QByteArray FormWith(const QByteArray& value) { return "object A: T\n  P = " + value + "\nend\n"; }

// The value read from a file and the value read on its own must agree.
inline Value ValueOf(const QByteArray& text) {
  const Document doc = Document::Parse(FormWith(text));
  Value alone = forms::TextToValue(text);
  EXPECT_TRUE(doc.Read(doc.Root().properties.at(0)) == alone) << text.toStdString();
  return alone;
}

// A stream of one object with one property P, whose value's code and data are given.
inline QByteArray StreamWith(const QByteArray& value) {
  return QByteArray(
             "TPF0\x01T\x01"
             "A\x01P",
             10) +
         value + QByteArray(2, '\0');
}
// Bytes from hex digits, blanks allowed.
inline QByteArray Hex(const char* digits) { return QByteArray::fromHex(digits); }

// The bytes of P's value in the binary form of a text.
inline QByteArray Encoded(const QByteArray& text) {
  const QByteArray stream = Document::Parse(FormWith(text)).WriteAs(Format::Binary);
  EXPECT_TRUE(stream.startsWith(StreamWith({}).first(10)));
  return stream.mid(10, stream.size() - 12);
}
// The text of a binary value in the given style.
inline QByteArray Shown(const QByteArray& value, const Dialect& style = {}) {
  const Document doc = Document::Parse(StreamWith(value), style);
  return forms::ValueToText(doc.Read(doc.Root().properties.at(0)), style);
}

inline Dialect Vcl() { return {}; }
inline Dialect Lcl() {
  Dialect d;
  d.lcl = true;
  d.fixedFloats = false;
  return d;
}

// Lines with their ends.
inline QByteArrayList Lines(const QByteArray& text) {
  QByteArrayList lines;
  qsizetype start = 0;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i] != '\n') continue;
    lines.append(text.mid(start, i + 1 - start));
    start = i + 1;
  }
  if (start < text.size()) lines.append(text.mid(start));
  return lines;
}

// What is left of two texts when the lines they share at both ends are taken off.
struct Difference {
  QByteArray before;
  QByteArray after;
};
inline Difference DifferenceOf(const QByteArray& before, const QByteArray& after) {
  QByteArrayList a = Lines(before), b = Lines(after);
  while (!a.isEmpty() && !b.isEmpty() && a.first() == b.first()) a.removeFirst(), b.removeFirst();
  while (!a.isEmpty() && !b.isEmpty() && a.last() == b.last()) a.removeLast(), b.removeLast();
  return {a.join(), b.join()};
}

inline Property& PropertyOf(Object& object, const char* path) {
  Property* p = object.Find(path);
  if (!p) throw Exception(QStringLiteral("no property ") + QLatin1StringView(path));
  return *p;
}
inline void Replace(Document& doc, Object& object, const char* path, Value value) {
  PropertyOf(object, path) = doc.MakeProperty(path, std::move(value));
}
inline void Remove(Object& object, const char* path) {
  object.properties.erase(object.properties.begin() + (&PropertyOf(object, path) - object.properties.data()));
}
inline void InsertAt(Document& doc, Object& object, std::size_t place, const char* path, Value value) {
  object.properties.insert(object.properties.begin() + static_cast<std::ptrdiff_t>(place),
                           doc.MakeProperty(path, std::move(value)));
}

inline QString DataFolder() { return QStringLiteral(VRX_SOURCE_DIR "/tests/forms/data"); }

}  // namespace formtest
