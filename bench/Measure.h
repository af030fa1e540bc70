// What is needed to measure: time, memory, processes of their own.
#pragma once
#include <QList>
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

// Two things measured in turns (A B A B ...), so that what else the machine does meets both alike.
class Pairs {
 public:
  void Add(double a, double b) { pairs_.append({a, b}); }
  void Add(const Pairs& others) { pairs_ += others.pairs_; }
  const QList<std::pair<double, double>>& All() const { return pairs_; }
  // The smallest A to the smallest B: what the least disturbed of both say.
  double OfMinima() const;
  // The median of the ratios of the pairs.
  double MedianRatio() const;
  // How much more A is than B: of both minima, and the median of the pairs.
  double MoreOfMinima() const;
  double MedianMore() const;

 private:
  std::pair<double, double> Minima() const;
  QList<std::pair<double, double>> pairs_;
};

// Runs this program again, or another one, with a task and collects the numbers that it reports, by name.
class Results {
 public:
  static Results RunApart(const QStringList& task, const QString& program = {});
  bool Has(const char* name) const { return numbers_.contains(QByteArray(name)); }
  double Value(const char* name) const;
  Pairs ThePairs(const char* name) const;

 private:
  QMap<QByteArray, QList<double>> numbers_;
};
// Reports one result from inside a task.
void Report(const char* name, double value);
void Report(const char* name, const Pairs& pairs);
