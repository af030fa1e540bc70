#include <QJsonArray>
#include <QJsonDocument>

#include "cli/Commands.h"
#include "designintf/DesignRegistry.h"
#include "ide/PackageManager.h"
#include "rtl/Printable.h"

namespace {
void PrintJson(QTextStream& out, const QJsonDocument& json) {
  out << QString::fromUtf8(json.toJson());
  out.flush();
}

QString ClassNameOf(const TClass* cls) {
  return cls ? QString::fromLatin1(cls->ClassName()) : QStringLiteral("nil");
}

QJsonArray ClassNames(const std::vector<const TClass*>& classes) {
  QJsonArray names;
  for (const TClass* cls : classes) names << QString::fromLatin1(cls->ClassName());
  return names;
}

QJsonValue NullableClass(const TClass* cls) {
  return cls ? QJsonValue(QString::fromLatin1(cls->ClassName())) : QJsonValue(QJsonValue::Null);
}

QJsonObject RowToJson(const TRegistration& r) {
  QJsonObject o{{QStringLiteral("procedure"), QString::fromLatin1(r.Procedure)}};
  const auto set = [&o](const char* key, QJsonValue value) {
    o.insert(QString::fromLatin1(key), std::move(value));
  };
  switch (r.Kind) {
    case TRegistrationKind::Components:
      set("call", QStringLiteral("RegisterComponents"));
      set("page", r.PageOrCategory);
      set("classes", ClassNames(r.Classes));
      break;
    case TRegistrationKind::Actions:
      set("call", QStringLiteral("RegisterActions"));
      set("category", r.PageOrCategory);
      set("classes", ClassNames(r.Classes));
      set("class", QJsonValue::Null);  // the resource class
      break;
    case TRegistrationKind::ComponentEditor:
      set("call", QStringLiteral("RegisterComponentEditor"));
      set("class", NullableClass(r.ComponentClass));
      set("editor", QString::fromLatin1(r.ComponentEditor->Name));
      break;
    case TRegistrationKind::PropertyEditor:
      set("call", QStringLiteral("RegisterPropertyEditor"));
      set("type", QString::fromLatin1(r.PropertyType->Name));
      set("class", NullableClass(r.ComponentClass));
      set("name", QString::fromLatin1(r.PropertyName));
      set("editor", r.PropertyEditor ? QJsonValue(QString::fromLatin1(r.PropertyEditor->Name))
                                     : QJsonValue(QJsonValue::Null));
      break;
    case TRegistrationKind::Category:
      set("call", QStringLiteral("RegisterPropertiesInCategory"));
      set("category", r.PageOrCategory);
      set("class", NullableClass(r.ComponentClass));
      set("properties", QJsonArray::fromStringList(r.Properties));
      break;
  }
  return o;
}

QString RowToText(const TRegistration& r) {
  QStringList names;
  for (const TClass* cls : r.Classes) names << ClassNameOf(cls);
  const QString list = u'[' + names.join(QStringLiteral(", ")) + u']';
  switch (r.Kind) {
    case TRegistrationKind::Components:
      return QStringLiteral("RegisterComponents \"%1\" %2").arg(r.PageOrCategory, list);
    case TRegistrationKind::Actions:
      return QStringLiteral("RegisterActions \"%1\" %2 nil").arg(r.PageOrCategory, list);
    case TRegistrationKind::ComponentEditor:
      return QStringLiteral("RegisterComponentEditor %1 -> %2")
          .arg(ClassNameOf(r.ComponentClass), QString::fromLatin1(r.ComponentEditor->Name));
    case TRegistrationKind::PropertyEditor:
      return QStringLiteral("RegisterPropertyEditor %1 %2 \"%3\" -> %4")
          .arg(QString::fromLatin1(r.PropertyType->Name), ClassNameOf(r.ComponentClass),
               QString::fromLatin1(r.PropertyName),
               r.PropertyEditor ? QString::fromLatin1(r.PropertyEditor->Name) : QStringLiteral("nil"));
    case TRegistrationKind::Category:
      return QStringLiteral("RegisterPropertiesInCategory \"%1\" %2 [%3]")
          .arg(r.PageOrCategory, ClassNameOf(r.ComponentClass), r.Properties.join(QStringLiteral(", ")));
  }
  return {};
}
}  // namespace

namespace {
// The package to tell about.
QString PackageArgument(const Arguments& args) {
  if (args.values.size() > 1) throw UsageError{QStringLiteral("one PACKAGE is expected, not several")};
  return args.values.value(0);
}

void PrintList(QTextStream& out, const QString& title, const QStringList& lines) {
  out << '\n' << title << " (" << lines.size() << "):\n";
  if (lines.isEmpty()) out << "  none\n";
  for (const QString& line : lines) out << "  " << Printable(line) << '\n';
}

QString CallName(TRegistrationKind kind) {
  switch (kind) {
    case TRegistrationKind::Components:
      return QStringLiteral("RegisterComponents");
    case TRegistrationKind::Actions:
      return QStringLiteral("RegisterActions");
    case TRegistrationKind::ComponentEditor:
      return QStringLiteral("RegisterComponentEditor");
    case TRegistrationKind::PropertyEditor:
      return QStringLiteral("RegisterPropertyEditor");
    case TRegistrationKind::Category:
      return QStringLiteral("RegisterPropertiesInCategory");
  }
  return {};
}

void PrintRows(QTextStream& out, const QString& package, const std::vector<const TRegistration*>& rows) {
  std::map<TRegistrationKind, int> kinds;
  std::map<QByteArray, int> units;
  for (const TRegistration* r : rows) {
    ++kinds[r->Kind];
    ++units[r->Procedure];
  }
  QStringList calls;
  for (const auto& [kind, count] : kinds) calls << QStringLiteral("%1 %2").arg(count).arg(CallName(kind));
  out << "Package " << Printable(package) << ": " << rows.size() << " registrations in " << units.size()
      << " units\n";
  if (!calls.isEmpty()) out << calls.join(QStringLiteral(", ")) << '\n';
  QByteArray unit;
  for (const TRegistration* r : rows) {
    if (r->Procedure != unit) {
      unit = r->Procedure;
      out << '\n' << Printable(QString::fromUtf8(unit)) << " (" << units[unit] << "):\n";
    }
    out << "  " << Printable(RowToText(*r)) << '\n';
  }
}
}  // namespace

int PackageCommand(const QStringList& list, Console& console) {
  const Arguments args = ParseArguments(list, {}, {QStringLiteral("--json")});
  const QString wanted = PackageArgument(args);
  PackageManager packages(PackageManager::DefaultFolders(), Host());
  const TPackageRecord record =
      packages.ReadRecord(wanted.isEmpty() ? PackageManager::DefaultPackage() : wanted);
  for (const QString& warning : packages.Warnings())
    console.Tell(QStringLiteral("vrx package: warning: ") + warning);
  if (args.Has(QStringLiteral("--json"))) {
    PrintJson(console.out, QJsonDocument(record.ToJson()));
    return ExitOk;
  }
  QStringList flags, units;
  if (record.NeverBuild) flags << QStringLiteral("never build");
  if (record.DesignOnly) flags << QStringLiteral("design only");
  if (record.RunOnly) flags << QStringLiteral("run only");
  for (const TPackageUnit& unit : record.Contains) {
    QStringList roles;
    if (unit.MainUnit) roles << QStringLiteral("main unit");
    if (unit.PackageUnit) roles << QStringLiteral("package unit");
    units << (roles.isEmpty() ? unit.Name
                              : QStringLiteral("%1 (%2)").arg(unit.Name, roles.join(QStringLiteral(", "))));
  }
  console.out << "Package:      " << Printable(record.Name)
              << "\nDescription:  " << Printable(record.Description) << "\nFlags:        "
              << (flags.isEmpty() ? QStringLiteral("none") : flags.join(QStringLiteral(", "))) << '\n';
  PrintList(console.out, QStringLiteral("Requires"), record.Requires);
  PrintList(console.out, QStringLiteral("Contains"), units);
  if (!record.Provides.isEmpty()) PrintList(console.out, QStringLiteral("Provides"), record.Provides);
  console.out.flush();
  return ExitOk;
}

int RegistrationsCommand(const QStringList& list, Console& console) {
  const Arguments args = ParseArguments(list, {}, {QStringLiteral("--labeled"), QStringLiteral("--json")});
  const QString package = LoadClasses(console, args.Has(QStringLiteral("--labeled")), PackageArgument(args));
  std::vector<const TRegistration*> rows;
  for (const TRegistration& r : Host().Rows())
    if (r.Package && Host().PackageName(r.Package) == package) rows.push_back(&r);
  if (args.Has(QStringLiteral("--json"))) {
    QJsonArray json;
    for (const TRegistration* r : rows) json << RowToJson(*r);
    PrintJson(console.out, QJsonDocument(json));
  } else if (!package.isEmpty()) {
    PrintRows(console.out, package, rows);
  }
  console.out.flush();
  if (!package.isEmpty() && rows.empty())
    console.Tell(QStringLiteral("vrx registrations: package %1 registers nothing").arg(package));
  return rows.empty() ? ExitFindings : ExitOk;
}
