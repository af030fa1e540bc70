#include "library/components/SpecialDates.h"

#include "rtl/Class.h"
#include "rtl/DateText.h"

const TClass& TVRXSpecialDates::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXSpecialDates>("TVRXSpecialDates", TComponent::StaticClass())
          .Published(DatesPart)
          .Doc(QStringLiteral("The dates, each with its time of day and a description."))
          .ClassDoc(
              QStringLiteral("Dates that are not like others, and what there is to say of them."),
              "pen line 1.5 brush fill box 3.5 4.5 17 16 2 path 3.5 9 20.5 9 path 8 2.5 8 6.5 path 16 2.5 "
              "16 6.5 pen accent 1.6 brush none shape 12 10.5 13.4 13.6 16.6 13.9 14.2 16 15 19 12 17.4 9 "
              "19 9.8 16 7.4 13.9 10.6 13.6"));
  return cls;
}

QStringList TVRXSpecialDates::On(const QDate& day) const {
  QStringList descriptions;
  for (const TVRXDateEntry& entry : Dates()->Entries())
    if (SplitDateTime(entry.Moment).date() == day) descriptions << entry.Description;
  return descriptions;
}
