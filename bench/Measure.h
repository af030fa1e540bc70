// What is needed to measure: time, memory, processes of their own.
#pragma once
#include <QMap>
#include <QStringList>
#include <chrono>

class Stopwatch {
 public:
  // Nanoseconds since the start.
  double Elapsed() const {
    return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - start_).count();
  }

 private:
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
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
