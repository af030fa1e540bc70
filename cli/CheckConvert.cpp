#include "cli/Commands.h"
#include "forms/FormFile.h"
#include "ide/FormSession.h"
#include "rtl/Exceptions.h"

using namespace forms;

namespace {
void PrintFinding(QTextStream& out, const QString& file, const Location& where, const char* severity,
                  const QString& text) {
  // A binary form has no lines; its one line is counted in bytes.
  const int line = where.line > 0 ? where.line : 1;
  const auto column = where.line > 0 ? static_cast<std::size_t>(where.column) : where.offset + 1;
  out << file << ':' << line << ':' << column << ": " << severity << ": " << text << '\n';
}
}  // namespace

int CheckCommand(const QStringList& list, Console& console) {
  const Arguments args = ParseArguments(list, {}, {QStringLiteral("--strict")});
  if (args.values.isEmpty()) throw UsageError{QStringLiteral("a form file is missing")};
  LoadClasses(console);
  const bool strict = args.Has(QStringLiteral("--strict"));
  bool bad = false;
  for (const QString& file : args.values) {
    try {
      const auto session = FormSession::Open(file);
      for (const Finding& f : session->Findings()) {
        static constexpr const char* names[] = {"note", "warning", "error"};
        const Severity severity = f.unknownName && strict ? Severity::Error : f.severity;
        PrintFinding(console.out, file, f.where, names[static_cast<int>(severity)], f.text);
        bad = bad || severity != Severity::Note;
      }
    } catch (const EFormError& e) {
      PrintFinding(console.out, file, e.Where(), "error", e.Text());
      bad = true;
    } catch (const Exception& e) {
      PrintFinding(console.out, file, {0, 1, 1}, "error", e.Message());
      bad = true;
    } catch (const std::bad_alloc& e) {
      PrintFinding(console.out, file, {0, 1, 1}, "error", ExceptionMessage(e));
      bad = true;
    }
  }
  console.out.flush();
  return bad ? ExitFindings : ExitOk;
}

int ConvertCommand(const QStringList& list, Console&) {
  const Arguments args = ParseArguments(list, {QStringLiteral("--to")}, {});
  if (args.values.size() != 2) throw UsageError{QStringLiteral("IN and OUT are needed")};
  const QString to = args.options.value(QStringLiteral("--to"));
  static const QHash<QString, Format> formats{{QStringLiteral("text"), Format::Text},
                                              {QStringLiteral("binary"), Format::Binary},
                                              {QStringLiteral("resource"), Format::Resource}};
  if (args.Has(QStringLiteral("--to")) && !formats.contains(to))
    throw UsageError{QStringLiteral("--to takes text, binary or resource, not \"%1\"").arg(to)};
  const QString in = args.values[0];
  try {
    const QByteArray bytes = ReadFile(in);
    const Document document = Document::Parse(bytes, DialectOfName(args.values[1]));
    const Format target = to.isEmpty()
                              ? (document.SourceFormat() == Format::Text ? Format::Resource : Format::Text)
                              : formats[to];
    WriteFile(args.values[1], document.WriteAs(target), SameFile(in, args.values[1]) ? &bytes : nullptr);
  } catch (const EFormError& e) {
    throw Exception(QStringLiteral("%1: %2").arg(in, e.Message()));
  }
  return ExitOk;
}
