#include "designintf/Package.h"

#include <QJsonArray>

namespace {
QStringList Strings(const QJsonValue& value) {
  QStringList list;
  for (const QJsonValue& v : value.toArray()) list << v.toString();
  return list;
}
}  // namespace

TPackageRecord TPackageRecord::FromJson(const QJsonObject& o) {
  TPackageRecord r;
  r.Name = o.value(QStringLiteral("name")).toString();
  r.Description = o.value(QStringLiteral("description")).toString();
  const QStringList flags = Strings(o.value(QStringLiteral("flags")));
  r.NeverBuild = flags.contains(QStringLiteral("never-build"));
  r.DesignOnly = flags.contains(QStringLiteral("design-only"));
  r.RunOnly = flags.contains(QStringLiteral("run-only"));
  r.Requires = Strings(o.value(QStringLiteral("requires")));
  r.Provides = Strings(o.value(QStringLiteral("provides")));
  for (const QJsonValue& v : o.value(QStringLiteral("contains")).toArray()) {
    const QJsonObject unit = v.toObject();
    const QStringList unitFlags = Strings(unit.value(QStringLiteral("flags")));
    r.Contains.push_back({v.isString() ? v.toString() : unit.value(QStringLiteral("unit")).toString(),
                          unitFlags.contains(QStringLiteral("main-unit")),
                          unitFlags.contains(QStringLiteral("package-unit"))});
  }
  return r;
}

QJsonObject TPackageRecord::ToJson() const {
  QJsonObject o;
  QJsonArray flags;
  if (NeverBuild) flags << QStringLiteral("never-build");
  if (DesignOnly) flags << QStringLiteral("design-only");
  if (RunOnly) flags << QStringLiteral("run-only");
  QJsonArray contains;
  for (const TPackageUnit& unit : Contains) {
    QJsonArray unitFlags;
    if (unit.MainUnit) unitFlags << QStringLiteral("main-unit");
    if (unit.PackageUnit) unitFlags << QStringLiteral("package-unit");
    contains << QJsonObject{{QStringLiteral("unit"), unit.Name}, {QStringLiteral("flags"), unitFlags}};
  }
  o[QStringLiteral("name")] = Name;
  o[QStringLiteral("description")] = Description;
  o[QStringLiteral("flags")] = flags;
  o[QStringLiteral("requires")] = QJsonArray::fromStringList(Requires);
  o[QStringLiteral("contains")] = contains;
  if (!Provides.isEmpty()) o[QStringLiteral("provides")] = QJsonArray::fromStringList(Provides);
  return o;
}
