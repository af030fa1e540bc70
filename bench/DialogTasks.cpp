#include "bench/DialogTasks.h"

#include <QCoreApplication>
#include <QStandardItemModel>

#include "bench/Measure.h"
#include "package/dialogs/pVRXDateListEditorDlg.h"

namespace {
constexpr int Count = 100'000;

double TimeOf(const std::function<void()>& run) {
  const Stopwatch watch;
  run();
  return watch.Elapsed();
}
}  // namespace

void MeasureDates(const QString&, const QString&) {
  TVRXDateList list;
  for (int i = 0; i < Count; ++i) list.AddDate({20'000 + i / 3.0}, QStringLiteral("Entry %1").arg(i));
  const auto open = [&] {
    TVRXDateListEditorDlg dialog(nullptr);
    dialog.Lines().SetEntries(list.Entries());
    dialog.show();
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
  };
  QList<QStringList> texts;
  {
    DateLines lines;
    lines.SetEntries(list.Entries());
    for (int row = 0; row < Count; ++row) {
      const TVRXDateLine line = lines.Line(row);
      texts.append({line.Date, line.Time, line.Description});
    }
  }
  const auto fill = [&] {
    QStandardItemModel model;
    for (const QStringList& row : texts) {
      QList<QStandardItem*> items;
      for (const QString& text : row) items << new QStandardItem(text);
      model.appendRow(items);
    }
  };
  open(), fill();
  constexpr int Rounds = 7;
  Pairs pairs;
  for (int i = 0; i < Rounds; ++i) {
    const double ours = TimeOf(open);
    pairs.Add(ours, TimeOf(fill));
  }
  Report("dates", pairs);
}
