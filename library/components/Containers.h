// Components that hold texts for a program: a stack, a queue and a list. What they begin with is on the form.
#pragma once
#include "rtl/Strings.h"

// What happens to a text that there is no room for.
enum class TVRXOverflow : std::uint8_t { ovRaise, ovIgnore, ovDropOldest };
VRX_ENUM(TVRXOverflow, {"ovRaise", "ovIgnore", "ovDropOldest"})

class TVRXContainerComponent : public TComponent {
  VRX_CLASS(TVRXContainerComponent)
 public:
  using TComponent::TComponent;
  // From the oldest to the newest.
  static constexpr TKept<TStrings*> Items{"Items"};
  static constexpr TKept<int> MaxCount{"MaxCount", 0};
  static constexpr TKept<TVRXOverflow> Overflow{"Overflow", TVRXOverflow::ovRaise};

  int Count() const { return static_cast<int>(Lines().size()); }
  bool IsEmpty() const { return Lines().isEmpty(); }
  void Clear();

 protected:
  const QStringList& Lines() const;
  void SetLines(const QStringList& lines) { Get(Items)->SetLines(lines); }
  // Makes room for one more, as Overflow says. False: it is not to come in. Throws EComponentError.
  bool MakeRoom();
  // Throws EComponentError where there is nothing.
  const QString& Read(int index) const;
  QString TakeAt(int index);
};

class TVRXStackComponent : public TVRXContainerComponent {
  VRX_CLASS(TVRXStackComponent)
 public:
  using TVRXContainerComponent::TVRXContainerComponent;
  bool Push(const QString& text);
  const QString& Peek() const { return Read(Count() - 1); }
  QString Pop() { return TakeAt(Count() - 1); }
};

class TVRXQueueComponent : public TVRXContainerComponent {
  VRX_CLASS(TVRXQueueComponent)
 public:
  using TVRXContainerComponent::TVRXContainerComponent;
  bool Enqueue(const QString& text);
  const QString& Peek() const { return Read(0); }
  QString Dequeue() { return TakeAt(0); }
};

enum class TVRXDuplicates : std::uint8_t { dpAccept, dpIgnore, dpRaise };
VRX_ENUM(TVRXDuplicates, {"dpAccept", "dpIgnore", "dpRaise"})

class TVRXListComponent : public TVRXContainerComponent {
  VRX_CLASS(TVRXListComponent)
 public:
  using TVRXContainerComponent::TVRXContainerComponent;
  static constexpr TKept<bool> CaseSensitive{"CaseSensitive", false};
  static constexpr TKept<TVRXDuplicates> Duplicates{"Duplicates", TVRXDuplicates::dpAccept};
  static constexpr TKept<bool> Sorted{"Sorted", false};

  // Where it came to stand; -1 when it did not come in. A sorted list finds the place itself.
  int Add(const QString& text);
  int Insert(int index, const QString& text);
  const QString& Item(int index) const { return Read(index); }
  // The first that is the same; -1 for none.
  int IndexOf(const QString& text) const;
  void Delete(int index) { TakeAt(index); }
  void Sort();

 private:
  Qt::CaseSensitivity Sensitivity() const;
  bool IsBefore(const QString& a, const QString& b) const;
};
