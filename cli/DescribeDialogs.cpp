#include "cli/DescribeDialogs.h"

#include <QDialog>
#include <QJsonArray>
#include <QJsonDocument>

#include "dclstd/DialogDescription.h"
#include "designintf/DesignRegistry.h"
#include "rtl/Printable.h"

namespace {
QJsonValue Number(const std::optional<int>& number) { return number ? QJsonValue(*number) : QJsonValue(); }

QJsonObject ToJson(const ControlDescription& c) {
  return {{QStringLiteral("name"), c.name},
          {QStringLiteral("kind"), c.kind},
          {QStringLiteral("text"), c.text},
          {QStringLiteral("label"), c.label},
          {QStringLiteral("hint"), c.hint},
          {QStringLiteral("items"), QJsonArray::fromStringList(c.items)},
          {QStringLiteral("minimum"), Number(c.minimum)},
          {QStringLiteral("maximum"), Number(c.maximum)},
          {QStringLiteral("tab"), Number(c.tab)},
          {QStringLiteral("enabled"), c.enabled},
          {QStringLiteral("visible"), c.visible}};
}

// A line for the control itself, and one for whatever else there is to say.
void Print(QTextStream& out, const ControlDescription& c) {
  const auto quoted = [](QString text) {
    text.replace(u'\r', QStringLiteral("\\r")).replace(u'\n', QStringLiteral("\\n"));
    return u'"' + text + u'"';
  };
  QStringList words{c.name + QStringLiteral(": ") + c.kind};
  if (!c.text.isEmpty()) words << quoted(c.text);
  if (!c.label.isEmpty()) words << QStringLiteral("label ") + quoted(c.label);
  if (c.minimum) words << QStringLiteral("%1 to %2").arg(*c.minimum).arg(*c.maximum);
  if (c.tab) words << QStringLiteral("tab %1").arg(*c.tab);
  if (!c.enabled) words << QStringLiteral("disabled");
  if (!c.visible) words << QStringLiteral("hidden");
  out << "  " << Printable(words.join(QStringLiteral(", "))) << '\n';
  if (!c.hint.isEmpty()) out << "      hint: " << Printable(quoted(c.hint)) << '\n';
  if (!c.items.isEmpty()) out << "      items: " << Printable(c.items.join(QStringLiteral(", "))) << '\n';
}
}  // namespace

int DescribeDialogs(const Arguments& args, Console& console) {
  if (args.values.size() > 1) throw UsageError{QStringLiteral("one PACKAGE is expected, not several")};
  // The designer's own dialogs belong to no package.
  const bool own = args.values.value(0) == QStringLiteral("standard");
  const QString package = LoadClasses(console, false, own ? QString() : args.values.value(0));
  const bool json = args.Has(QStringLiteral("--json"));
  QJsonArray dialogs;
  bool failed = false;
  for (const TDialogRegistration& entry : Host().Dialogs()) {
    if (own ? entry.Package != nullptr : !entry.Package || Host().PackageName(entry.Package) != package)
      continue;
    try {
      const std::unique_ptr<QDialog> dialog = Host().Open(entry);
      const QString caption = dialog->windowTitle();
      if (!json)
        console.out << (dialogs.isEmpty() ? "" : "\n") << Printable(QString::fromLatin1(entry.Name)) << " \""
                    << Printable(caption) << "\"\n";
      QJsonArray controls;
      for (const ControlDescription& control : DescribeControls(*dialog)) {
        controls << ToJson(control);
        if (!json) Print(console.out, control);
      }
      dialogs << QJsonObject{{QStringLiteral("dialog"), QString::fromLatin1(entry.Name)},
                             {QStringLiteral("caption"), caption},
                             {QStringLiteral("controls"), controls}};
    } catch (const EPackageError& e) {
      failed = true;
      console.Tell(QStringLiteral("vrx describe: ") + e.Message());
    }
  }
  if (json) console.out << QString::fromUtf8(QJsonDocument(dialogs).toJson());
  console.out.flush();
  if (!package.isEmpty() && dialogs.isEmpty() && !failed)
    console.Tell(QStringLiteral("vrx describe: package %1 has no dialogs").arg(package));
  return failed || dialogs.isEmpty() ? ExitFindings : ExitOk;
}
