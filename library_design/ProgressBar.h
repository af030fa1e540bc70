// Shows how far a run is.
#pragma once
#include <QWidget>

#include "library/pixels/Progress.h"

class TVRXProgressBar : public QWidget {
  Q_OBJECT
 public:
  // In so many segments; 0 is one growing bar.
  explicit TVRXProgressBar(int segments, QWidget* parent = nullptr);
  int Percent() const { return percent_; }
  void SetPercent(int percent);
  QSize sizeHint() const override { return {160, 16}; }
  QSize minimumSizeHint() const override { return {60, 16}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int segments_;
  int percent_ = 0;
};

// Shows a run of the pixel routines on a bar and lets events be handled meanwhile, so often that nobody
// notices and so rarely that it costs nothing.
class RunProgress : public IVRXProgress {
 public:
  static constexpr std::int64_t UsualInterval = 15;  // milliseconds
  explicit RunProgress(TVRXProgressBar& bar);
  // How long a run goes on until events are handled again; 0 handles them after every step. For all runs.
  static void SetInterval(std::int64_t milliseconds);
  void Report(int percent, std::int64_t times) override;
  void ProcessMessages(std::int64_t times) override;
  std::int64_t Unwatched(std::int64_t times) const override;

 private:
  TVRXProgressBar& bar_;
  std::int64_t lastEvents_;
};
