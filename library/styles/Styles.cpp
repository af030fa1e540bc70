#include "library/styles/Styles.h"

#include <QRegularExpression>
#include <cmath>

#include "library/values/FaceStates.h"
#include "rtl/Exceptions.h"

namespace {
const QString DefaultStyle = QStringLiteral("(Default)");

void RequirePath(const QString& path) {
  for (const QString& name : path.split(VRXStyleSeparator))
    if (name.isEmpty() || name == DefaultStyle)
      throw Exception(QStringLiteral("\"%1\" is no path of a style: every name in it needs a text, and the "
                                     "default style is no part of it.")
                          .arg(path));
}
void RequireKey(const TVRXStyleKey& key) {
  static const QRegularExpression name(QStringLiteral("^[A-Za-z0-9_]+(\\.[A-Za-z0-9_]+)*\\z")),
      type(QStringLiteral("^[A-Za-z0-9_]+\\z"));
  if (!name.match(key.Name).hasMatch())
    throw Exception(QStringLiteral("\"%1\" is no path of a property.").arg(key.Name));
  if (!type.match(key.TypeName).hasMatch())
    throw Exception(QStringLiteral("\"%1\" is no name of a type.").arg(key.TypeName));
}
char16_t Rank(QChar c) { return c == VRXStyleSeparator ? u'\0' : c.unicode(); }
}  // namespace

bool TVRXStyles::PathOrder::operator()(const QString& a, const QString& b) const {
  return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                      [](QChar x, QChar y) { return Rank(x) < Rank(y); });
}

const TVRXStyles::Values* TVRXStyles::Find(const QString& path) const {
  const auto it = paths_.find(path);
  return it == paths_.end() ? nullptr : &it->second;
}
const TVRXStyleValue* TVRXStyles::Find(const QString& path, const TVRXStyleKey& key) const {
  const Values* values = Find(path);
  const auto it = values ? values->find(key) : Values::const_iterator();
  return values && it != values->end() ? &it->second : nullptr;
}

namespace {
// The styles of a path and below it: they stand together.
template <class Paths>
auto Below(Paths& paths, const QString& path) {
  const QString inside = path + VRXStyleSeparator;
  auto first = paths.lower_bound(path), last = first;
  while (last != paths.end() && (last->first == path || last->first.startsWith(inside))) ++last;
  return std::pair(first, last);
}
}  // namespace

bool TVRXStyles::Has(const QString& path) const {
  const auto [first, last] = Below(paths_, path);
  return first != last;
}

void TVRXStyles::Write(const QString& path, const TVRXStyleKey& key, TVRXStyleValue value) {
  RequirePath(path);
  RequireKey(key);
  if (const auto* number = std::get_if<long double>(&value); number && !std::isfinite(*number))
    throw Exception(QStringLiteral("%1 cannot be what is no number.").arg(key.Name));
  paths_[path].insert_or_assign(key, std::move(value));
}

void TVRXStyles::Add(const QString& path) {
  RequirePath(path);
  paths_.try_emplace(path);
}

void TVRXStyles::Merge(const TVRXStyles& others) {
  for (const auto& [path, values] : others.paths_)
    for (auto& mine = paths_[path]; const auto& [key, value] : values) mine.insert_or_assign(key, value);
}

bool TVRXStyles::Erase(const QString& path, const TVRXStyleKey& key) {
  const auto it = paths_.find(path);
  return it != paths_.end() && it->second.erase(key) > 0;
}

bool TVRXStyles::EraseStyle(const QString& path) {
  const auto [first, last] = Below(paths_, path);
  if (first == last) return false;
  paths_.erase(first, last);
  return true;
}

bool TVRXStyles::Rename(const QString& oldPath, const QString& newPath) {
  if (oldPath == newPath || !Has(oldPath)) return false;
  RequirePath(newPath);
  if (newPath.startsWith(oldPath + VRXStyleSeparator))
    throw Exception(QStringLiteral("The style %1 cannot be moved into itself.").arg(oldPath));
  if (Has(newPath)) throw Exception(QStringLiteral("There is a style %1 already.").arg(newPath));
  const auto [first, last] = Below(paths_, oldPath);
  std::vector<Paths::node_type> moved;
  for (auto it = first; it != last;) moved.push_back(paths_.extract(it++));
  for (auto& node : moved) {
    node.key() = newPath + node.key().mid(oldPath.size());
    paths_.insert(std::move(node));
  }
  return true;
}

QString VRXStylePath(const QString& parent, const QString& name) {
  return parent.isEmpty() ? name : parent + VRXStyleSeparator + name;
}
QString VRXStyleName(const QString& path) { return path.section(VRXStyleSeparator, -1); }
QString VRXParentStyle(const QString& path) {
  return path.left(std::max<qsizetype>(path.lastIndexOf(VRXStyleSeparator), 0));
}
QStringList VRXStyleLine(const QString& path) {
  QStringList line;
  for (QString at = path; !at.isEmpty(); at = VRXParentStyle(at)) line.prepend(at);
  return line;
}
bool VRXIsStateStyle(const QString& name) {
  return std::any_of(StateStyleNames.begin(), StateStyleNames.end(),
                     [&](const char* state) { return name == QLatin1StringView(state); });
}
bool VRXIsValidStyleName(const QString& name) {
  // Names of classes are identifiers; others may have blanks and hyphens inside.
  static const QRegularExpression cls(QStringLiteral("^T\\w*\\z"),
                                      QRegularExpression::UseUnicodePropertiesOption),
      other(QStringLiteral("^\\.?[^\\W](([-\\w ]*)[-\\w])?\\z"),
            QRegularExpression::UseUnicodePropertiesOption);
  constexpr qsizetype most = 255;
  return name.size() <= most && (name.startsWith(u'T') ? cls : other).match(name).hasMatch();
}
