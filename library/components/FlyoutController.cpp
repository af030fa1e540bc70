#include "library/components/FlyoutController.h"

#include <algorithm>
#include <cmath>

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

double TVRXFlyoutController::OutAfter(int milliseconds, bool came) const {
  if (Get(Pinned) || !Get(Enabled)) return 1;
  const int delay = std::max(0, Get(Delay)), duration = std::max(0, Get(Duration));
  const double slid = milliseconds < delay ? 0
                      : duration == 0      ? 1
                                      : std::min(1.0, static_cast<double>(milliseconds - delay) / duration);
  return came ? slid : 1 - slid;
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
