// What a reader learns about a class on the way: where the properties of a file lead, which one follows
// which, and what the values mean that come again and again. Forms repeat themselves, so nearly every
// property is found by a comparison and most named values need no second look-up.
#pragma once
#include <array>
#include <vector>

#include "forms/Binding.h"

namespace forms {

class KnownProperty {
 public:
  KnownProperty(QByteArrayView path, const TPropInfo* holder, const PropertyTarget& target);

  QByteArrayView Path() const { return path_; }
  // Where the path leads in this component; not found when its part is of another class than the one noted.
  PropertyTarget TargetIn(TComponent& component) const;
  bool LeadsTo(const PropertyTarget& target) const { return target.prop == prop_; }
  // Gives the property a value by its text in the file. False when the general way must be taken.
  bool Apply(TPersistent& instance, QByteArrayView text);
  // The name of the component that a reference is given by its text; empty when the general way must be
  // taken.
  QByteArrayView Referenced(QByteArrayView text) const;
  // The text stood for this ordinal.
  void Learn(QByteArrayView text, std::int64_t ordinal);
  bool IsOrdinal() const { return ordinal_; }

 private:
  friend class ClassNotes;
  // A text that was met last or before it.
  template <class T>
  struct Meaning {
    QByteArrayView text;
    T value{};
  };
  bool ApplyOrdinal(TPersistent& instance, QByteArrayView text);
  const QString& TextOf(QByteArrayView ascii);

  QByteArrayView path_;
  const TPropInfo* holder_;  // the property that holds the part; null: the component's own property
  const TClass* part_;
  const TPropInfo* prop_;
  bool ordinal_;
  std::size_t next_ = 0;  // which one followed last
  std::array<Meaning<std::int64_t>, 4> ordinals_;
  std::size_t oldest_ = 0;
  std::array<Meaning<QString>, 2> strings_;
  int newStrings_ = 0;  // in a row
};

class ClassNotes {
 public:
  // The properties of a component come in the order of the file.
  void Begin() { at_ = NoneYet; }
  // Null when the path is not known.
  KnownProperty* Find(QByteArrayView path);
  // Null for a path that is not worth noting.
  KnownProperty* Add(QByteArrayView path, TComponent& component, const PropertyTarget& target);

 private:
  static constexpr std::size_t NoneYet = ~std::size_t{0};
  void StepTo(std::size_t place);

  std::vector<KnownProperty> known_;
  std::size_t first_ = 0;
  std::size_t at_ = NoneYet;
};

}  // namespace forms
