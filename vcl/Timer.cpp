#include "vcl/Timer.h"

const TClass& TTimer::StaticClass() {
  static const TClass cls(DescribeClass<TTimer>("TTimer", TComponent::StaticClass())
                              .Published("Enabled", &TTimer::Enabled, &TTimer::SetEnabled, true)
                              .Published("Interval", &TTimer::Interval, &TTimer::SetInterval, 1000)
                              .Doc(QStringLiteral("Milliseconds between two events."))
                              .Event("OnTimer")
                              .ClassDoc(QStringLiteral("Raises an event at regular intervals."),
                                        "pen line 1.5 brush fill oval 4 5 16 16 path 10 2.5 14 2.5 "
                                        "pen accent 2 path 12 8.5 12 13 15.5 15"));
  return cls;
}
