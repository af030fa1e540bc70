#include "library/components/HiTimer.h"

const TClass& TVRXHiTimer::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXHiTimer>("TVRXHiTimer", TComponent::StaticClass())
          .Passive("Enabled", true)
          .Doc(QStringLiteral("Whether it counts."))
          .Passive("Interval", 1000u)
          .Doc(QStringLiteral("Milliseconds between two events."))
          .Event("OnTimer")
          .ClassDoc(
              QStringLiteral("Raises an event at regular intervals, exact to the millisecond."),
              "pen line 1.5 brush fill oval 4 5 16 16 path 10 2.5 14 2.5 path 12 6.5 12 8 path 18.5 13 17 "
              "13 path 5.5 13 7 13 pen accent 2 path 12 13 16 9.5"));
  return cls;
}
