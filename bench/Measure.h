// What is needed to measure: time, memory, processes of their own.
#pragma once
#include <QMap>
#include <QStringList>

// Processor time of this process: what else the machine does counts less than with a clock on the wall. The
// files that are read are in the system's cache.
class Stopwatch {
 public:
  // Nanoseconds since the start.
  double Elapsed() const { return Now() - start_; }

 private:
  static double Now();
  double start_ = Now();
};

// Peak of the resident memory above what was resident at the start, in bytes.
class MemoryPeak {
 public:
  MemoryPeak();
  double Growth() const;

 private:
  double before_;
};

double Median(QList<double> values);

// Runs this program again with a task and collects what it reports, `runs` times; medians by name.
using Results = QMap<QString, double>;
Results RunApart(const QStringList& task, int runs);
// Reports one result from inside a task.
void Report(const char* name, double value);
