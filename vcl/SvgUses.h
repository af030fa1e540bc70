// How much a drawing draws: "use" elements draw others again, and those may hold "use" elements themselves,
// so that a few lines can ask for more than anybody could wait for.
#pragma once
#include <QHash>
#include <QStringList>

class SvgUses {
 public:
  void Open(const QString& id);
  void Close();
  // The element that was opened last draws the one of that id.
  void Use(const QString& id);
  // Elements that are drawn in all, counted up to `limit`; an element that draws itself is endless.
  std::int64_t Drawn(std::int64_t limit) const;

 private:
  struct Part {
    std::int64_t elements = 0;
    QStringList uses;
  };
  std::int64_t Of(const QString& id, std::int64_t limit, QHash<QString, std::int64_t>& known) const;

  QHash<QString, Part> parts_;   // by id; the whole drawing has none
  QStringList open_{QString()};  // ids from the outermost to the innermost element
};
