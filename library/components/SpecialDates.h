// Days that are not like others: holidays, dates to remember.
#pragma once
#include <QDate>
#include <QStringList>

#include "library/values/DateList.h"
#include "rtl/Component.h"

class TVRXSpecialDates : public TComponent {
  VRX_CLASS(TVRXSpecialDates)
 public:
  using TComponent::TComponent;
  static constexpr TKept<TVRXDateList*> DatesPart{"Dates"};
  TVRXDateList* Dates() const { return Get(DatesPart); }

  // What there is to say of the day, in the order of the list; nothing of a day like others.
  QStringList On(const QDate& day) const;
};
