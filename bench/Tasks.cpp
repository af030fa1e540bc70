#include "bench/Tasks.h"

#include <QFile>
#include <QUiLoader>

#include "bench/Measure.h"
#include "dclstd/StandardEditors.h"
#include "ide/FormSession.h"
#include "ide/PackageManager.h"

namespace {
void LoadClasses() {
  static DesignRegistry registry;
  RegisterStandard(registry);
  static PackageManager packages(PackageManager::DefaultFolders(), registry);
  packages.Load(PackageManager::DefaultPackage());
}

std::unique_ptr<FormSession> OpenWarm(const QString& file, const QString& warmUp) {
  LoadClasses();
  FormSession::Open(warmUp);
  return FormSession::Open(file);
}

std::unique_ptr<QWidget> LoadUi(QUiLoader& loader, const QString& name) {
  QFile file(name);
  if (!file.open(QIODevice::ReadOnly)) qFatal("Cannot read %s", qPrintable(name));
  return std::unique_ptr<QWidget>(loader.load(&file));
}
}  // namespace

void MeasureFormLoad(const QString& file, const QString& warmUp) {
  LoadClasses();
  FormSession::Open(warmUp);
  const MemoryPeak memory;
  const Stopwatch time;
  const auto session = FormSession::Open(file);
  Report("time", time.Elapsed());
  Report("memory", memory.Growth());
  Report("count", static_cast<double>(session->AllComponents().size()) - 1);
  if (!session->Findings().empty()) qFatal("%s", qPrintable(session->Findings()[0].text));
}

void MeasureUiLoad(const QString& file, const QString& warmUp) {
  QUiLoader loader;
  LoadUi(loader, warmUp);
  const MemoryPeak memory;
  const Stopwatch time;
  const auto widget = LoadUi(loader, file);
  Report("time", time.Elapsed());
  Report("memory", memory.Growth());
  // QLCDNumber and the others have no children of their own here.
  Report("count", static_cast<double>(widget->findChildren<QWidget*>().size()));
}

void MeasureFormSave(const QString& file, const QString& warmUp) {
  const auto session = OpenWarm(file, warmUp);
  QList<double> times;
  for (int i = 0; i < 9; ++i) {
    const Stopwatch time;
    const QByteArray bytes = session->Bytes();
    times << time.Elapsed();
    if (bytes.size() != session->Document().Source().size()) qFatal("The form is not written as it was read");
  }
  Report("time", Median(times));
}

void MeasureEdit(const QString& file, const QString& warmUp) {
  const auto session = OpenWarm(file, warmUp);
  std::vector<TControl*> touched;
  const std::vector<TComponent*> all = session->AllComponents();
  for (int i = 1; i <= 50; ++i)
    if (auto* control = As<TControl>(all[all.size() * static_cast<std::size_t>(i) / 51]))
      touched.push_back(control);
  QList<double> edits, undos;
  for (int round = 0; round < 40; ++round) {
    for (TControl* control : touched) {
      const QString text = QStringLiteral("Round %1").arg(round);
      const Stopwatch edit;
      session->Run(QStringLiteral("Change"), {control}, [&] { control->SetHint(text); });
      edits << edit.Elapsed();
      const Stopwatch undo;
      session->Undo();
      undos << undo.Elapsed();
    }
  }
  Report("edit", Median(edits));
  Report("undo", Median(undos));
}

void MeasureModified(const QString& file, const QString& warmUp) {
  const auto session = OpenWarm(file, warmUp);
  QList<double> times;
  for (int round = 0; round < 9; ++round) {
    const Stopwatch time;
    session->Run(QStringLiteral("Demo"), {}, [&] { session->Modified(); });
    times << time.Elapsed();
  }
  if (session->CanUndo()) qFatal("A command that changed nothing was kept");
  Report("modified", Median(times));
}
