#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "cli/Commands.h"
#include "designintf/PackageCall.h"
#include "forms/FormFile.h"
#include "ide/FormSession.h"
#include "rtl/Exceptions.h"
#include "rtl/Printable.h"

using namespace forms;

namespace {
void PrintFinding(QTextStream& out, const QString& file, const Location& where, const char* severity,
                  const QString& text) {
  // A binary form has no lines; its one line is counted in bytes.
  const int line = where.line > 0 ? where.line : 1;
  const auto column = where.line > 0 ? static_cast<std::size_t>(where.column) : where.offset + 1;
  out << Printable(file) << ':' << line << ':' << column << ": " << severity << ": " << Printable(text)
      << '\n';
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
      try {
        session->Document().RequireOneRoot();
      } catch (const EFormError& e) {
        // It is kept, but nobody sees it, and no other kind of file can hold it.
        PrintFinding(console.out, file, e.Where(), "warning", e.Text());
        bad = true;
      }
    } catch (const EFormError& e) {
      PrintFinding(console.out, file, e.Where(), "error", e.Text());
      bad = true;
    } catch (...) {
      PrintFinding(console.out, file, {0, 1, 1}, "error", CurrentExceptionMessage());
      bad = true;
    }
  }
  console.out.flush();
  return bad ? ExitFindings : ExitOk;
}

namespace {
bool HasText(const QByteArray& bytes) {
  return Document::Detect(bytes) == Format::Text && bytes.contains('\n');
}

QByteArray Head(const QString& name) {
  constexpr qint64 Enough = 4096;
  QFile file(name);
  // Only files: opening a pipe would wait.
  return QFileInfo(name).isFile() && file.open(QIODevice::ReadOnly) ? file.read(Enough) : QByteArray();
}

// The line ends of new text: those of the file that it replaces, else those of most forms beside it, else
// what such files usually have.
QByteArray UsualLineEnd(const QString& fileName) {
  const bool dfm = fileName.endsWith(QStringLiteral(".dfm"), Qt::CaseInsensitive);
  if (fileName == QStringLiteral("-")) return "\n";
  if (const QByteArray old = Head(fileName); HasText(old)) return old.contains("\r\n") ? "\r\n" : "\n";
  constexpr int Neighbours = 16;
  const QFileInfo info(fileName);
  int crlf = 0, lf = 0;
  if (!info.suffix().isEmpty())
    for (const QFileInfo& other :
         info.dir().entryInfoList({QStringLiteral("*.") + info.suffix()}, QDir::Files, QDir::Name)) {
      const QByteArray head = Head(other.filePath());
      if (HasText(head)) ++(head.contains("\r\n") ? crlf : lf);
      if (crlf + lf == Neighbours) break;
    }
  if (crlf != lf) return crlf > lf ? "\r\n" : "\n";
  return dfm ? "\r\n" : "\n";
}

// No string of a form's text holds a line end, so every one of them ends a line.
QByteArray WithLineEnds(QByteArray text, const QByteArray& eol) {
  text.replace("\r\n", "\n").replace('\r', '\n');
  return eol == "\n" ? text : text.replace("\n", eol);
}
}  // namespace

int ConvertCommand(const QStringList& list, Console&) {
  const Arguments args = ParseArguments(list, {QStringLiteral("--to"), QStringLiteral("--eol")}, {});
  if (args.values.size() != 2) throw UsageError{QStringLiteral("IN and OUT are needed")};
  const QString to = args.options.value(QStringLiteral("--to"));
  static const QHash<QString, Format> formats{{QStringLiteral("text"), Format::Text},
                                              {QStringLiteral("binary"), Format::Binary},
                                              {QStringLiteral("resource"), Format::Resource}};
  if (args.Has(QStringLiteral("--to")) && !formats.contains(to))
    throw UsageError{QStringLiteral("--to takes text, binary or resource, not \"%1\"").arg(to)};
  static const QHash<QString, QByteArray> ends{{QStringLiteral("lf"), "\n"},
                                               {QStringLiteral("crlf"), "\r\n"}};
  const QString eol = args.options.value(QStringLiteral("--eol"));
  if (args.Has(QStringLiteral("--eol")) && !ends.contains(eol))
    throw UsageError{QStringLiteral("--eol takes lf or crlf, not \"%1\"").arg(eol)};
  const QString in = args.values[0], out = args.values[1];
  try {
    const QByteArray bytes = ReadFile(in);
    const Document document = Document::Parse(bytes, DialectOfName(out));
    const Format target = to.isEmpty()
                              ? (document.SourceFormat() == Format::Text ? Format::Resource : Format::Text)
                              : formats[to];
    if (target != Format::Text && !eol.isEmpty())
      throw UsageError{QStringLiteral("--eol is for text; the result is not text")};
    if (target != document.SourceFormat()) document.RequireOneRoot();
    QByteArray result = document.WriteAs(target);
    if (target == Format::Text && (!eol.isEmpty() || document.SourceFormat() != Format::Text))
      result = WithLineEnds(std::move(result), eol.isEmpty() ? UsualLineEnd(out) : ends[eol]);
    WriteFile(out, result, SameFile(in, out) ? &bytes : nullptr);
  } catch (const EFormError& e) {
    throw Exception(QStringLiteral("%1: %2").arg(in, e.Message()));
  }
  return ExitOk;
}
