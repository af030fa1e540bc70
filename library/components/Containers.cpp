#include "library/components/Containers.h"

#include <algorithm>

#include "rtl/Exceptions.h"

const TClass& TVRXContainerComponent::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXContainerComponent>("TVRXContainerComponent", TComponent::StaticClass())
          .Published(Items)
          .Doc(QStringLiteral("What it holds to begin with, the oldest first."))
          .Published(MaxCount)
          .Doc(QStringLiteral("How many it takes at most; 0 for any number."))
          .Published(Overflow)
          .Doc(QStringLiteral("What happens to a text that there is no room for."))
          .Event("OnChange"));
  return cls;
}

const TClass& TVRXStackComponent::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXStackComponent>("TVRXStackComponent", TVRXContainerComponent::StaticClass())
          .ClassDoc(
              QStringLiteral("Holds texts of which the newest is taken first."),
              "pen line 1.5 brush fill box 4 17 16 4 1 box 4 12 16 4 1 box 4 7 16 4 1 pen accent 2 path "
              "12 1.5 12 5.5 path 9.8 3.7 12 1.5 14.2 3.7"));
  return cls;
}

const TClass& TVRXQueueComponent::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXQueueComponent>("TVRXQueueComponent", TVRXContainerComponent::StaticClass())
          .ClassDoc(QStringLiteral("Holds texts of which the oldest is taken first."),
                    "pen line 1.5 brush fill box 5.5 5 3.6 14 1 box 10.2 5 3.6 14 1 box 14.9 5 3.6 14 1 pen "
                    "accent 2 path 2 12 4 12 path 20 12 22 12 path 20.4 10 22.2 12 20.4 14"));
  return cls;
}

const TClass& TVRXListComponent::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXListComponent>("TVRXListComponent", TVRXContainerComponent::StaticClass())
          .Published(CaseSensitive)
          .Doc(QStringLiteral("Whether capital letters make another text."))
          .Published(Duplicates)
          .Doc(QStringLiteral("What happens to a text that is in the list already."))
          .Published(Sorted)
          .Doc(QStringLiteral("Whether texts that come find their place in the order."))
          .ClassDoc(QStringLiteral("Holds texts in an order, which can be found and taken anywhere."),
                    "pen line 1.5 brush fill box 4 3 16 18 2 pen accent 2 path 7 8 8 8 path 7 12 8 12 path 7 "
                    "16 8 16 pen line 1.5 path 11 8 17 8 path 11 12 17 12 path 11 16 15 16"));
  return cls;
}

const QStringList& TVRXContainerComponent::Lines() const {
  static const QStringList none;
  return IsKept(&Items) ? Get(Items)->Lines() : none;
}

void TVRXContainerComponent::Clear() {
  if (!IsEmpty()) SetLines({});
}

bool TVRXContainerComponent::MakeRoom() {
  const int most = Get(MaxCount);
  if (most <= 0 || Count() < most) return true;
  if (Get(Overflow) == TVRXOverflow::ovIgnore) return false;
  if (Get(Overflow) == TVRXOverflow::ovRaise)
    throw EComponentError(
        QStringLiteral("%1 holds %2 texts already, as many as it takes.").arg(Name()).arg(most));
  SetLines(Lines().mid(Count() - most + 1));
  return true;
}

const QString& TVRXContainerComponent::Read(int index) const {
  if (IsEmpty()) throw EComponentError(QStringLiteral("%1 is empty.").arg(Name()));
  if (index < 0 || index >= Count())
    throw EComponentError(
        QStringLiteral("%1 has no text %2: it holds %3.").arg(Name()).arg(index).arg(Count()));
  return Lines()[index];
}

QString TVRXContainerComponent::TakeAt(int index) {
  QString text = Read(index);
  QStringList lines = Lines();
  lines.removeAt(index);
  SetLines(lines);
  return text;
}

bool TVRXStackComponent::Push(const QString& text) {
  if (!MakeRoom()) return false;
  SetLines(Lines() + QStringList{text});
  return true;
}

bool TVRXQueueComponent::Enqueue(const QString& text) {
  if (!MakeRoom()) return false;
  SetLines(Lines() + QStringList{text});
  return true;
}

// --- The list

Qt::CaseSensitivity TVRXListComponent::Sensitivity() const {
  return Get(CaseSensitive) ? Qt::CaseSensitive : Qt::CaseInsensitive;
}

bool TVRXListComponent::IsBefore(const QString& a, const QString& b) const {
  return a.compare(b, Sensitivity()) < 0;
}

int TVRXListComponent::IndexOf(const QString& text) const {
  const QStringList& lines = Lines();
  const auto it = std::find_if(lines.begin(), lines.end(),
                               [&](const QString& line) { return line.compare(text, Sensitivity()) == 0; });
  return it == lines.end() ? -1 : static_cast<int>(it - lines.begin());
}

int TVRXListComponent::Add(const QString& text) { return Insert(Count(), text); }

// The place counts in the list as it was: where room is made, the oldest in it are its first.
int TVRXListComponent::Insert(int index, const QString& text) {
  if (index < 0 || index > Count())
    throw EComponentError(
        QStringLiteral("%1 has no place %2: it holds %3.").arg(Name()).arg(index).arg(Count()));
  if (Get(Duplicates) != TVRXDuplicates::dpAccept && IndexOf(text) >= 0) {
    if (Get(Duplicates) == TVRXDuplicates::dpIgnore) return -1;
    throw EComponentError(QStringLiteral("%1 holds \"%2\" already.").arg(Name(), text));
  }
  const int before = Count();
  if (!MakeRoom()) return -1;
  index = std::max(0, index - (before - Count()));
  QStringList lines = Lines();
  if (Get(Sorted))
    index = static_cast<int>(
        std::upper_bound(lines.begin(), lines.end(), text,
                         [&](const QString& a, const QString& b) { return IsBefore(a, b); }) -
        lines.begin());
  lines.insert(index, text);
  SetLines(lines);
  return index;
}

void TVRXListComponent::Sort() {
  QStringList lines = Lines();
  std::stable_sort(lines.begin(), lines.end(),
                   [&](const QString& a, const QString& b) { return IsBefore(a, b); });
  if (lines != Lines()) SetLines(lines);
}
