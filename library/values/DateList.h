// Moments with what there is to say of each. A form keeps a text for each: "2024-12-24 18:00:00;Christmas".
#pragma once
#include <QList>

#include "rtl/ValueList.h"

struct TVRXDateEntry {
  TDateTime Moment;
  QString Description;
  // How the file writes the moment; written again as long as it says so.
  QString Written{};
  bool operator==(const TVRXDateEntry& other) const {
    return Moment == other.Moment && Description == other.Description;
  }
};

class TVRXDateList : public TValueList {
  VRX_CLASS(TVRXDateList)
 public:
  using TValueList::TValueList;

  int Count() const { return static_cast<int>(Items().size()); }
  // Throws EConvertError when what a file keeps there begins with no date.
  TVRXDateEntry Entry(int index) const;
  QList<TVRXDateEntry> Entries() const;
  // Behind the others.
  void AddDate(TDateTime moment, const QString& description) { AddEntry({moment, description}); }
  void AddEntry(const TVRXDateEntry& entry);
  void Clear() { SetItems({}); }
};
