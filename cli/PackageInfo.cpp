#include <QJsonArray>
#include <QJsonDocument>

#include "cli/Commands.h"
#include "designintf/DesignIntf.h"
#include "ide/PackageManager.h"

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

int PackageCommand(const QStringList& list, Console& console) {
  const Arguments args = ParseArguments(list, {}, {QStringLiteral("--json")});
  if (!args.values.isEmpty()) throw UsageError{QStringLiteral("no argument is expected")};
  const TPackageRecord record =
      PackageManager(PackageManager::DefaultFolders()).ReadRecord(PackageManager::DefaultPackage());
  if (args.Has(QStringLiteral("--json"))) {
    PrintJson(console.out, QJsonDocument(record.ToJson()));
    return ExitOk;
  }
  const auto yes = [](bool b) { return b ? "yes" : "no"; };
  console.out << "Package:      " << record.Name << "\nDescription:  " << record.Description
              << "\nNever build:  " << yes(record.NeverBuild) << "\nDesign only:  " << yes(record.DesignOnly)
              << "\nRun only:     " << yes(record.RunOnly) << "\nRequires (" << record.Requires.size()
              << "):\n";
  for (const QString& name : record.Requires) console.out << "  " << name << '\n';
  console.out << "Contains (" << record.Contains.size() << "):\n";
  for (const TPackageUnit& unit : record.Contains)
    console.out << "  " << unit.Name << (unit.MainUnit ? " (main unit, package unit)" : "") << '\n';
  console.out.flush();
  return ExitOk;
}

int RegistrationsCommand(const QStringList& list, Console& console) {
  const Arguments args = ParseArguments(list, {}, {QStringLiteral("--labeled"), QStringLiteral("--json")});
  if (!args.values.isEmpty()) throw UsageError{QStringLiteral("no argument is expected")};
  LoadClasses(console, args.Has(QStringLiteral("--labeled")));
  QJsonArray rows;
  QByteArray procedure;
  for (const TRegistration& r : Registrations()) {
    if (!r.Package) continue;  // the host's own
    rows << RowToJson(r);
    if (args.Has(QStringLiteral("--json"))) continue;
    if (r.Procedure != procedure) console.out << (procedure = r.Procedure) << '\n';
    console.out << "  " << RowToText(r) << '\n';
  }
  if (args.Has(QStringLiteral("--json"))) PrintJson(console.out, QJsonDocument(rows));
  console.out.flush();
  return rows.isEmpty() ? ExitFindings : ExitOk;
}
