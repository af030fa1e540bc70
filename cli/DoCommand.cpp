#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "cli/Commands.h"
#include "cli/OpenForm.h"
#include "forms/FormFile.h"
#include "ide/operations/Actions.h"
#include "rtl/Exceptions.h"

namespace {
// A file in place of the desktop's clipboard, read and written when an action asks.
class FileClipboard : public IClipboard {
 public:
  explicit FileClipboard(QString file) : file_(std::move(file)) {}
  QString Text() const override {
    if (taken_.isNull()) return QString::fromUtf8(forms::ReadFile(file_));
    return taken_;
  }
  void SetText(const QString& text) override { taken_ = text; }
  // What was copied last, when everything has gone well.
  void Write() const {
    if (!taken_.isNull()) forms::WriteFile(file_, taken_.toUtf8());
  }

 private:
  QString file_;
  QString taken_;
};

const ActionRow& ActionOf(const QString& id) {
  if (const ActionRow* row = FindAction(id)) return *row;
  throw UsageError{QStringLiteral("there is no action \"%1\"; vrx actions lists them").arg(id)};
}
}  // namespace

int ActionsCommand(const QStringList& list, Console& console) {
  const Arguments args = ParseArguments(list, {}, {QStringLiteral("--json")});
  if (!args.values.isEmpty()) throw UsageError{QStringLiteral("actions takes no arguments")};
  QJsonArray all;
  for (const ActionRow& row : ActionTable()) {
    if (args.Has(QStringLiteral("--json")))
      all.append(QJsonObject{{QStringLiteral("id"), QLatin1StringView(row.id)},
                             {QStringLiteral("text"), row.Title()},
                             {QStringLiteral("shortcut"), QLatin1StringView(row.shortcuts)},
                             {QStringLiteral("icon"), QLatin1StringView(row.icon)}});
    else
      console.out << QString::fromLatin1(row.id).leftJustified(18) << ' ' << row.Title() << '\n';
  }
  if (args.Has(QStringLiteral("--json"))) console.out << QJsonDocument(all).toJson();
  console.out.flush();
  return ExitOk;
}

int DoCommand(const QStringList& list, Console& console) {
  const QString select = QStringLiteral("--select"), board = QStringLiteral("--clipboard"),
                output = QStringLiteral("-o");
  const Arguments args = ParseArguments(list, {select, board, output}, {});
  if (args.values.size() < 2) throw UsageError{QStringLiteral("FORM and ACTION are needed")};
  std::vector<const ActionRow*> rows;
  for (const QString& id : args.values.mid(1)) rows.push_back(&ActionOf(id));
  LoadClasses(console);
  const auto session = OpenForm(args.values[0]);
  std::vector<TComponent*> selected;
  for (const QString& name : args.options.value(select).split(u',', Qt::SkipEmptyParts)) {
    QByteArray rest;
    selected.push_back(&ComponentOf(*session, name, rest));
    if (!rest.isEmpty())
      throw Exception(QStringLiteral("%1 has no component named \"%2\"").arg(args.values[0], name.trimmed()));
  }
  session->Select(selected);
  FileClipboard clipboard(args.options.value(board, QStringLiteral("-")));
  ActionContext context{*session, clipboard};
  const QByteArray before = session->Bytes();
  for (const ActionRow* row : rows) {
    try {
      RunAction(*row, context);
    } catch (const Exception& e) {
      throw Exception(QStringLiteral("%1: %2").arg(QString::fromLatin1(row->id), e.Message()));
    }
  }
  if (args.Has(output) || session->Bytes() != before)
    WriteForm(*session, args.options.value(output, args.values[0]));
  clipboard.Write();
  return ExitOk;
}
