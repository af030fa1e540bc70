#include "tests/fuzz/FormFuzz.h"

#include <optional>

namespace formfuzz {

namespace {
using forms::Document;
using forms::EFormError;
using forms::Format;

std::optional<Document> TryParse(const QByteArray& bytes) {
  try {
    return Document::Parse(bytes);
  } catch (const EFormError& e) {
    Require(e.Where().offset <= static_cast<std::size_t>(bytes.size()), "an error points into the input");
    return {};
  }
}

std::optional<QByteArray> TryWriteAs(const Document& doc, Format format) {
  try {
    return doc.WriteAs(format);
  } catch (const EFormError& e) {
    // Streams may hold names that are no words, texts paths that are too long for a stream.
    const bool known = format == Format::Text
                           ? e.Text().contains(QStringLiteral("cannot be written as text"))
                           : e.Text().contains(QStringLiteral("255")) ||
                                 e.Text().contains(QStringLiteral("cannot name a resource"));
    Require(known, "a form can be written in the other forms unless a name forbids it");
    return {};
  } catch (const Exception& e) {
    const bool isTemplate =
        e.Message().contains(QStringLiteral("form template")) && doc.Source().contains("{$");
    Require(isTemplate && format != Format::Text, "only templates have no binary form");
    return {};
  }
}

// Text, then stream, then text again: nothing changes any more.
void CheckStable(const QByteArray& text) {
  const auto once = TryParse(text);
  Require(once.has_value(), "text that was written can be read");
  const auto stream = TryWriteAs(*once, Format::Binary);
  if (!stream) return;
  const auto fromStream = TryParse(*stream);
  Require(fromStream.has_value(), "a stream that was written can be read");
  const auto again = TryWriteAs(*fromStream, Format::Text);
  Require(again.has_value(), "a stream that was made from text has a text");
  const auto last = TryParse(*again);
  Require(last.has_value(), "text that was written can be read");
  const auto lastStream = TryWriteAs(*last, Format::Binary);
  Require(lastStream && TryParse(*lastStream)->WriteAs(Format::Text) == *again, "conversions come to rest");
}

void CheckRemoval(Document doc, std::size_t which) {
  forms::Object* object = &doc.Root();
  while (!object->children.empty() && which % 3) {
    object = object->children[which % object->children.size()].get();
    which /= 3;
  }
  if (object->properties.empty()) return;
  const std::size_t count = object->properties.size();
  object->properties.erase(object->properties.begin() + static_cast<std::ptrdiff_t>(which % count));
  const auto again = TryParse(doc.Write());
  Require(again.has_value(), "a form without one of its properties can be read");
  Require(
      doc.SourceFormat() != Format::Text || object->parent || again->Root().properties.size() == count - 1,
      "removing a property removes one property");
}
}  // namespace

void Check(const QByteArray& bytes) {
  auto doc = TryParse(bytes);
  if (!doc) return;
  Require(doc->Write() == bytes, "an untouched form is written as it stood");
  for (const Format format : {Format::Text, Format::Binary, Format::Resource}) {
    if (format == doc->SourceFormat()) continue;
    const auto written = TryWriteAs(*doc, format);
    if (!written) continue;
    Require(TryParse(*written).has_value(), "a form can be read in every form it was written in");
    if (format == Format::Text) CheckStable(*written);
  }
  if (doc->SourceFormat() == Format::Text) {
    const QByteArray text = doc->ObjectText(doc->Root());
    CheckStable(text);
  }
  std::size_t hash = 5381;
  for (const char c : bytes) hash = hash * 33 + static_cast<unsigned char>(c);
  CheckRemoval(std::move(*doc), hash);
}

}  // namespace formfuzz
