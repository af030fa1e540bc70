// Named styles by path: sets of property values that controls take over. What style managers keep.
//
// A path is the names from the first level down, joined by "|"; substyles stand directly behind their style.
// A value belongs to a property path ("Font.Color") and the name of its type. Errors: Exception, and nothing
// is changed.
#pragma once
#include <QByteArray>
#include <QStringList>
#include <map>
#include <variant>

// Texts (of characters and sets, too), integers (ordinals of enumerations, too), floats, and what pictures
// are stored as.
using TVRXStyleValue = std::variant<QString, std::int64_t, long double, QByteArray>;

struct TVRXStyleKey {
  QString Name, TypeName;
  bool operator==(const TVRXStyleKey&) const = default;
  bool operator<(const TVRXStyleKey& other) const {
    return Name != other.Name ? Name < other.Name : TypeName < other.TypeName;
  }
};

class TVRXStyles {
 public:
  using Values = std::map<TVRXStyleKey, TVRXStyleValue>;
  struct PathOrder {
    bool operator()(const QString& a, const QString& b) const;
  };
  using Paths = std::map<QString, Values, PathOrder>;

  const Paths& All() const { return paths_; }
  bool IsEmpty() const { return paths_.empty(); }
  // Null when there is no such style, or no such value in it.
  const Values* Find(const QString& path) const;
  const TVRXStyleValue* Find(const QString& path, const TVRXStyleKey& key) const;
  // Whether a style or a substyle of it has this path.
  bool Has(const QString& path) const;

  // A style that may have no values; nothing when it is there.
  void Add(const QString& path);
  // All of the others, over what is there.
  void Merge(const TVRXStyles& others);
  // Makes the style when there is none.
  void Write(const QString& path, const TVRXStyleKey& key, TVRXStyleValue value);
  bool Erase(const QString& path, const TVRXStyleKey& key);
  // With the substyles. False when there is nothing of the path.
  bool EraseStyle(const QString& path);
  bool Rename(const QString& oldPath, const QString& newPath);
  bool operator==(const TVRXStyles&) const = default;

  // As the lines of a file, and back; blocks of later versions are kept. Reading throws with line and reason.
  QStringList Lines() const;
  static TVRXStyles FromLines(const QStringList& lines);
  QByteArray Text() const;
  static TVRXStyles FromText(const QByteArray& text);
  // From and to a file, which is replaced as a whole or stays. Messages name it.
  static TVRXStyles Load(const QString& fileName);
  void Save(const QString& fileName) const;

 private:
  friend class VRXStyleReader;
  Paths paths_;
};

inline constexpr QChar VRXStyleSeparator = u'|';
// "a|b" and "c" -> "a|b|c"; the root is the empty path.
QString VRXStylePath(const QString& parent, const QString& name);
QString VRXStyleName(const QString& path);
QString VRXParentStyle(const QString& path);
// The path's styles from the first level down, itself last.
QStringList VRXStyleLine(const QString& path);
bool VRXIsStateStyle(const QString& name);
bool VRXIsValidStyleName(const QString& name);
