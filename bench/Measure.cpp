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

std::pair<double, double> Pairs::Minima() const {
  double a = 1e300, b = 1e300;
  for (const auto& [first, second] : pairs_) {
    a = std::min(a, first);
    b = std::min(b, second);
  }
  return {a, b};
}

double Pairs::OfMinima() const {
  const auto [a, b] = Minima();
  return a / b;
}
double Pairs::MoreOfMinima() const {
  const auto [a, b] = Minima();
  return a - b;
}
double Pairs::MedianMore() const {
  QList<double> more;
  for (const auto& [first, second] : pairs_) more << first - second;
  return Median(more);
}

double Pairs::MedianRatio() const {
  QList<double> ratios;
  for (const auto& [first, second] : pairs_) ratios << first / second;
  return Median(ratios);
}

Results Results::RunApart(const QStringList& task, const QString& program) {
  QProcess process;
  process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  process.start(program.isEmpty() ? QCoreApplication::applicationFilePath() : program, task);
  if (!process.waitForFinished(-1) || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
    qFatal("The task \"%s\" failed", qPrintable(task.join(u' ')));
  Results results;
  for (const QByteArray& line : process.readAllStandardOutput().split('\n')) {
    const QByteArrayList words = line.split(' ');
    for (qsizetype i = 1; i < words.size(); ++i) results.numbers_[words[0]] << words[i].toDouble();
  }
  return results;
}

double Results::Value(const char* name) const { return numbers_.value(QByteArray(name)).value(0); }

Pairs Results::ThePairs(const char* name) const {
  const QList<double> numbers = numbers_.value(QByteArray(name));
  Pairs pairs;
  for (qsizetype i = 0; i + 1 < numbers.size(); i += 2) pairs.Add(numbers[i], numbers[i + 1]);
  return pairs;
}

void Report(const char* name, double value) { printf("%s %.1f\n", name, value); }
void Report(const char* name, const Pairs& pairs) {
  printf("%s", name);
  for (const auto& [a, b] : pairs.All()) printf(" %.1f %.1f", a, b);
  printf("\n");
}
