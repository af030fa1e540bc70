// vrx describe: what classes publish.
#include <QJsonArray>
#include <QJsonDocument>

#include "cli/Commands.h"
#include "cli/ComponentsPage.h"
#include "cli/DescribeDialogs.h"
#include "cli/Suggest.h"
#include "ide/ClassDescription.h"
#include "rtl/Exceptions.h"
#include "rtl/Printable.h"

namespace {
const QString kComma = QStringLiteral(", ");

// --- JSON

QJsonValue TextOrNull(const QString& text) { return text.isEmpty() ? QJsonValue() : QJsonValue(text); }

QJsonObject ToJson(const PropertyDescription& p) {
  return {{QStringLiteral("name"), p.name},
          {QStringLiteral("type"), p.type},
          {QStringLiteral("kind"), p.kind},
          {QStringLiteral("default"), p.defaultText ? QJsonValue(*p.defaultText) : QJsonValue()},
          {QStringLiteral("stored"), p.stored},
          {QStringLiteral("doc"), p.doc},
          {QStringLiteral("editor"), TextOrNull(p.editor)},
          {QStringLiteral("attributes"), QJsonArray::fromStringList(p.attributes)},
          {QStringLiteral("values"), QJsonArray::fromStringList(p.values)}};
}
QJsonArray ToJson(const std::vector<PropertyDescription>& properties) {
  QJsonArray all;
  for (const PropertyDescription& p : properties) all << ToJson(p);
  return all;
}
QJsonObject ToJson(const ClassDescription& c) {
  return {{QStringLiteral("class"), c.name},
          {QStringLiteral("ancestors"), QJsonArray::fromStringList(c.ancestors)},
          {QStringLiteral("page"), TextOrNull(c.page)},
          {QStringLiteral("doc"), c.doc},
          {QStringLiteral("editor"), TextOrNull(c.editor)},
          {QStringLiteral("verbs"), QJsonArray::fromStringList(c.verbs)},
          {QStringLiteral("properties"), ToJson(c.properties)},
          {QStringLiteral("events"), ToJson(c.events)}};
}
template <class Json>
void PrintJson(Console& console, const Json& json) {
  console.out << QString::fromUtf8(QJsonDocument(json).toJson());
}

// --- Text

void PrintLine(Console& console, const char* label, const QString& text) {
  if (text.isEmpty()) return;
  console.out << QString::fromLatin1(label).leftJustified(12) << Printable(text) << '\n';
}
void PrintDoc(Console& console, const QString& doc, const char* indent) {
  if (!doc.isEmpty()) console.out << indent << Printable(doc.simplified()) << '\n';
}

void Print(Console& console, const char* title, const std::vector<PropertyDescription>& properties) {
  if (properties.empty()) return;
  console.out << '\n' << title << " (" << properties.size() << "):\n";
  for (const PropertyDescription& p : properties) {
    console.out << "  " << Printable(p.name) << ": " << Printable(p.type);
    if (p.defaultText && !p.defaultText->isEmpty()) console.out << " = " << Printable(*p.defaultText);
    console.out << '\n';
    PrintDoc(console, p.doc, "      ");
  }
}

void Print(Console& console, const ClassDescription& c) {
  console.out << Printable(c.name) << '\n';
  PrintDoc(console, c.doc, "  ");
  console.out << '\n';
  PrintLine(console, "Page:", c.page);
  PrintLine(console, "Ancestors:", c.ancestors.join(kComma));
  PrintLine(console, "Editor:", c.editor);
  PrintLine(console, "Verbs:", c.verbs.join(kComma));
  Print(console, "Properties", c.properties);
  Print(console, "Events", c.events);
}

void Print(Console& console, const QString& path, const PropertyDescription& p) {
  console.out << Printable(path) << ": " << Printable(p.type) << '\n';
  PrintDoc(console, p.doc, "  ");
  console.out << '\n';
  PrintLine(console, "Kind:", p.kind);
  PrintLine(console, "Default:", p.defaultText.value_or(QString()));
  PrintLine(console, "Stored:", p.stored);
  PrintLine(console, "Editor:", p.editor.isEmpty() ? QStringLiteral("none, inspectors hide it") : p.editor);
  PrintLine(console, "Attributes:", p.attributes.join(kComma));
  PrintLine(console, "Values:", p.values.join(kComma));
}

// --- What is asked for

const TClass& ClassNamed(const QString& name) {
  QStringList known;
  for (const TClass* cls : DescribedClasses(Host())) {
    known << QString::fromLatin1(cls->ClassName());
    if (name.compare(known.last(), Qt::CaseInsensitive) == 0) return *cls;
  }
  throw Exception(QStringLiteral("There is no class \"%1\".").arg(name) + DidYouMean(name, known));
}

const TPropInfo& PropertyNamed(const TClass& cls, const QString& name) {
  QStringList known;
  for (const TPropInfo* prop : cls.Properties()) {
    if (prop->Visibility != TPropVisibility::Published) continue;
    known << QString::fromLatin1(prop->Name);
    if (name.compare(known.last(), Qt::CaseInsensitive) == 0) return *prop;
  }
  throw Exception(
      QStringLiteral("%1 has no property \"%2\".").arg(QString::fromLatin1(cls.ClassName()), name) +
      DidYouMean(name, known));
}

void DescribeProperty(Console& console, const TClass& whole, const QStringList& path, bool json) {
  const TClass* cls = &whole;
  QStringList names{QString::fromLatin1(cls->ClassName())};
  for (qsizetype i = 1; i < path.size(); ++i) {
    const TPropInfo& prop = PropertyNamed(*cls, path[i]);
    names << QString::fromLatin1(prop.Name);
    if (i + 1 == path.size()) {
      const ClassDescription of = Describe(*cls, Host());
      const auto& all = prop.IsEvent() ? of.events : of.properties;
      const auto p =
          std::find_if(all.begin(), all.end(), [&](const auto& d) { return d.name == names.last(); });
      return json ? PrintJson(console, ToJson(*p)) : Print(console, names.join(u'.'), *p);
    }
    if (!prop.PropType->ClassType)
      throw Exception(QStringLiteral("%1 is no object and has no properties.").arg(names.join(u'.')));
    cls = &prop.PropType->ClassType();
  }
}

void DescribeAll(Console& console, bool json) {
  QJsonArray all;
  for (const TClass* cls : DescribedClasses(Host())) {
    if (json) {
      all << ToJson(Describe(*cls, Host()));
      continue;
    }
    console.out << Printable(QString::fromLatin1(cls->ClassName()));
    if (!cls->Description().isEmpty()) console.out << ": " << Printable(cls->Description().simplified());
    console.out << '\n';
  }
  if (json) PrintJson(console, all);
}
}  // namespace

int DescribeCommand(const QStringList& list, Console& console) {
  const QString dialogs = QStringLiteral("--dialogs"), page = QStringLiteral("--page"),
                json = QStringLiteral("--json");
  const Arguments args = ParseArguments(list, {}, {dialogs, page, json});
  if (args.Has(dialogs)) return DescribeDialogs(args, console);
  if (args.values.size() > 1)
    throw UsageError{QStringLiteral("one CLASS or CLASS.PROPERTY is expected, not several")};
  if (LoadClasses(console, true).isEmpty()) return ExitFindings;
  const QStringList path = args.values.value(0).split(u'.');
  if (args.Has(page)) {
    if (!args.values.isEmpty() || args.Has(json)) throw UsageError{QStringLiteral("--page stands alone")};
    console.out << ComponentsPage(Host());
  } else if (args.values.isEmpty()) {
    DescribeAll(console, args.Has(json));
  } else if (path.size() > 1) {
    DescribeProperty(console, ClassNamed(path[0]), path, args.Has(json));
  } else if (args.Has(json)) {
    PrintJson(console, ToJson(Describe(ClassNamed(path[0]), Host())));
  } else {
    Print(console, Describe(ClassNamed(path[0]), Host()));
  }
  console.out.flush();
  return ExitOk;
}
