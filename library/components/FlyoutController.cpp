#include "library/components/FlyoutController.h"

#include <algorithm>
#include <cmath>

#include "rtl/Clock.h"
#include "rtl/Exceptions.h"

const TClass& TVRXFlyoutController::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXFlyoutController>("TVRXFlyoutController", TComponent::StaticClass())
          .Published(Control)
          .Doc(QStringLiteral("What slides."))
          .Published(Delay)
          .Doc(QStringLiteral("Milliseconds until it begins to slide."))
          .Published(Duration)
          .Doc(QStringLiteral("Milliseconds that it takes to slide."))
          .Published(Enabled)
          .Doc(QStringLiteral("Whether it slides at all; else it stays out."))
          .Published(HandleSize)
          .Doc(QStringLiteral("So much of it stays in sight."))
          .Published(Pinned)
          .Doc(QStringLiteral("Whether it stays out."))
          .Published(Side)
          .Doc(QStringLiteral("The edge that it slides out from."))
          .Event("OnClose")
          .Event("OnOpen")
          .ClassDoc(
              QStringLiteral("Lets a panel slide out from an edge of the form."),
              "pen line 1.5 brush fill box 2.5 4 19 16 2 path 2.5 8 21.5 8 brush accent+50 box 2.5 8 8 12 1 "
              "pen accent 2 brush none path 12.5 14 19 14 path 16.5 11.5 19 14 16.5 16.5"));
  return cls;
}

double TVRXFlyoutController::OutAfter(std::int64_t milliseconds, bool came, double from) const {
  if (Get(Pinned) || !Get(Enabled)) return 1;
  const int delay = std::max(0, Get(Delay)), duration = std::max(0, Get(Duration));
  const double slid = milliseconds < delay ? 0
                      : duration == 0      ? 1
                                           : static_cast<double>(milliseconds - delay) / duration;
  return came ? std::min(1.0, from + slid) : std::max(0.0, from - slid);
}

QRect TVRXFlyoutController::PlaceAt(double out, QSize parent) const {
  using enum TVRXFlyoutSide;
  const TWinControl* control = Get(Control);
  if (!control) return {};
  QRect r = control->BoundsRect();
  const TVRXFlyoutSide side = Get(Side);
  const bool across = side == fsLeft || side == fsRight;
  const int size = across ? r.width() : r.height();
  const int handle = std::clamp(Get(HandleSize), 0, size);
  const int seen = handle + static_cast<int>(std::lround((size - handle) * std::clamp(out, 0.0, 1.0)));
  if (side == fsLeft) r.moveLeft(seen - size);
  if (side == fsTop) r.moveTop(seen - size);
  if (side == fsRight) r.moveLeft(parent.width() - seen);
  if (side == fsBottom) r.moveTop(parent.height() - seen);
  return r;
}

void TVRXFlyoutController::Start(Moved moved) {
  Stop();
  if (IsDesigning())
    throw EComponentError(
        QStringLiteral("%1 slides when the form runs, not while it is designed.").arg(Name()));
  const TWinControl* control = Get(Control);
  if (!control || !control->Parent())
    throw EComponentError(
        QStringLiteral("%1 has no control that could slide. Give it one that stands on a form.").arg(Name()));
  homeOf_ = nullptr;
  moved_ = std::move(moved);
  running_ = true;
  over_ = false;
  from_ = 0;
  since_ = ClockMilliseconds();
  open_ = Out() > 0;
  Slide();
}

void TVRXFlyoutController::Stop() {
  timer_.Cancel();
  if (!std::exchange(running_, false)) return;
  if (TWinControl* control = Get(Control))
    control->SetBounds(home_.left(), home_.top(), home_.width(), home_.height());
}

double TVRXFlyoutController::Out() const { return OutAfter(ClockMilliseconds() - since_, over_, from_); }

void TVRXFlyoutController::PointerAt(std::optional<QPoint> place) {
  const TWinControl* control = Get(Control);
  if (!running_ || !control) return;
  const bool over = place && control->BoundsRect().contains(*place);
  if (over == over_) return;
  // It turns where it is.
  from_ = Out();
  over_ = over;
  since_ = ClockMilliseconds();
  Slide();
}

void TVRXFlyoutController::Slide() {
  TWinControl* control = Get(Control);
  if (!running_ || !control || !control->Parent()) return;
  if (std::exchange(homeOf_, control) != control) home_ = control->BoundsRect();
  const double out = shown_ = Out();
  const QRect place = PlaceAt(out, control->Parent()->ClientRect().size());
  control->SetBounds(place.left(), place.top(), place.width(), place.height());
  constexpr int frame = 16;
  const bool fixed = Get(Pinned) || !Get(Enabled);
  if (!fixed && out != (over_ ? 1 : 0)) timer_.Wait(frame);
  const bool settled = out <= 0 || out >= 1;
  if (!settled || open_ == (out >= 1)) return;
  open_ = out >= 1;
  // Who hears of it may free the component.
  const Moved moved = moved_;
  if (moved) moved(open_);
}

void TVRXFlyoutController::DoChanged() {
  TComponent::DoChanged();
  // It goes on from where it is.
  from_ = shown_;
  since_ = ClockMilliseconds();
  Slide();
}
