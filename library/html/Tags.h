// The tags of a markup: where they end and what stands in them.
#pragma once
#include <QString>
#include <optional>

namespace html {

enum class TagKind { B, I, U, S, Font, Br, P, Hr, Img, A, Ul, Ol, Li, Sub, Sup };

struct Tag {
  TagKind kind{};
  bool closing = false;
  qsizetype attributes = 0, end = 0;  // where the attributes start, and behind the ">"
};
// A known tag at a "<"; nothing where it is a letter like others. A tag has no "<" outside of quotes; so all
// attempts at a text together read it three times at most.
std::optional<Tag> TagAt(const QString& markup, qsizetype at);

// The value of an attribute, the first of that name; null when it is not there. Entities are left as they
// are.
QString Attribute(const QString& markup, const Tag& tag, QLatin1String name);

}  // namespace html
