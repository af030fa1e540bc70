#include "bench/Measure.h"

#include <malloc.h>
#include <time.h>

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <cstdio>

namespace {
// A field of the process status, in bytes.
double StatusField(const char* name) {
  QFile file(QStringLiteral("/proc/self/status"));
  if (!file.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray& line : file.readAll().split('\n'))
    if (line.startsWith(name))
      return line.mid(static_cast<qsizetype>(qstrlen(name))).simplified().split(' ').first().toDouble() *
             1024;
  return 0;
}
}  // namespace

double Stopwatch::Now() {
  timespec time{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_nsec);
}

MemoryPeak::MemoryPeak() {
  malloc_trim(0);
  // Lets the peak start anew where the system allows it; elsewhere it has not been passed yet either.
  QFile clear(QStringLiteral("/proc/self/clear_refs"));
  if (clear.open(QIODevice::WriteOnly)) clear.write("5");
  clear.close();
  before_ = StatusField("VmRSS:");
}

double MemoryPeak::Growth() const { return StatusField("VmHWM:") - before_; }

double Median(QList<double> values) {
  if (values.isEmpty()) return 0;
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

Results RunApart(const QStringList& task, int runs) {
  QMap<QString, QList<double>> all;
  for (int i = 0; i < runs; ++i) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), task);
    if (!process.waitForFinished(-1) || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0)
      qFatal("The task \"%s\" failed", qPrintable(task.join(u' ')));
    for (const QByteArray& line : process.readAllStandardOutput().split('\n'))
      if (const qsizetype space = line.indexOf(' '); space > 0)
        all[QString::fromLatin1(line.first(space))] << line.mid(space + 1).toDouble();
  }
  Results medians;
  for (auto it = all.cbegin(); it != all.cend(); ++it) medians[it.key()] = Median(it.value());
  return medians;
}

void Report(const char* name, double value) { printf("%s %.1f\n", name, value); }
