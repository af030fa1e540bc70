#include "library_design/ProgressBar.h"

#include <QCoreApplication>
#include <QPainter>

#include "rtl/Clock.h"

TVRXProgressBar::TVRXProgressBar(int segments, QWidget* parent) : QWidget(parent), segments_(segments) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void TVRXProgressBar::SetPercent(int percent) {
  if (percent == percent_) return;
  percent_ = percent;
  update();
}

void TVRXProgressBar::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
  p.setPen(palette().color(QPalette::Mid));
  p.setBrush(palette().color(QPalette::Base));
  p.drawRoundedRect(frame, 2, 2);
  const QRectF room = frame.adjusted(2, 2, -2, -2);
  const double part = std::clamp(percent_, 0, 100) / 100.0;
  p.setPen(Qt::NoPen);
  p.setBrush(palette().color(QPalette::Active, QPalette::Highlight));  // what runs is not disabled
  if (segments_ == 0) {
    p.drawRect(QRectF(room.topLeft(), QSizeF(room.width() * part, room.height())));
    return;
  }
  const double step = room.width() / segments_;
  const int shown = percent_ > 0 ? static_cast<int>(std::ceil(part * segments_ - 1e-9)) : 0;
  for (int i = 0; i < shown; ++i)
    p.drawRect(QRectF(room.left() + i * step + 0.5, room.top(), std::max(1.0, step - 1.5), room.height()));
}

namespace {
std::int64_t& Interval() {
  static std::int64_t interval = RunProgress::UsualInterval;
  return interval;
}
}  // namespace

RunProgress::RunProgress(TVRXProgressBar& bar) : bar_(bar), lastEvents_(ClockMilliseconds()) {}

void RunProgress::SetInterval(std::int64_t milliseconds) { Interval() = milliseconds; }

void RunProgress::Report(int percent, std::int64_t) { bar_.SetPercent(percent); }

void RunProgress::ProcessMessages(std::int64_t) {
  if (ClockMilliseconds() - lastEvents_ < Interval()) return;
  QCoreApplication::processEvents();
  lastEvents_ = ClockMilliseconds();
}

// So few that they take about the usual interval at most, so many that asking costs nothing.
std::int64_t RunProgress::Unwatched(std::int64_t times) const {
  constexpr std::int64_t Few = std::int64_t{1} << 22;
  return Interval() == 0 ? 1 : std::min(times, Few);
}
