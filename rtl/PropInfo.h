// One published property: its name, type, accessors, default and stored rule.
#pragma once
#include <functional>
#include <memory>
#include <optional>

#include "rtl/PropValue.h"
#include "rtl/TypeInfo.h"

// How a value is read from an instance and written to it, with the type erased. What is written must be of
// the alternative that is read, and within what the type information accepts.
class TPropAccess {
 public:
  virtual ~TPropAccess() = default;
  virtual TPropValue Read(const TPersistent& instance) const = 0;
  virtual void Write(TPersistent& instance, const TPropValue& value) const = 0;
  // Zero, empty or null.
  virtual TPropValue Nothing() const = 0;
  // A part that nobody has asked this instance for yet; it is at its default.
  virtual bool IsUntouched(const TPersistent&) const { return false; }
  std::size_t Alternative() const { return alternative_; }

 protected:
  explicit TPropAccess(std::size_t alternative) : alternative_(alternative) {}

 private:
  std::size_t alternative_;
};

// The same with the type known, for those who ask for one: without a TPropValue in between.
template <class T>
class TAccess : public TPropAccess {
 public:
  using Arg = std::conditional_t<std::is_class_v<T>, const T&, T>;
  virtual T Get(const TPersistent& instance) const = 0;
  virtual void Set(TPersistent& instance, Arg value) const = 0;
  TPropValue Read(const TPersistent& instance) const final { return Get(instance); }
  void Write(TPersistent& instance, const TPropValue& value) const final {
    Set(instance, std::get<T>(value));
  }
  TPropValue Nothing() const final { return T{}; }

 protected:
  TAccess() : TPropAccess(AlternativeOf<T>) {}
};

enum class TPropVisibility : std::uint8_t {
  Declared,   // known to the class and its descendants, not published
  Published,  // streamed and shown
  Streamed,   // streamed only: positions of non-visual components, raw data
};

class TPropInfo {
 public:
  QByteArray Name;
  const TTypeInfo* PropType = nullptr;
  std::shared_ptr<const TPropAccess> Access;
  TPropVisibility Visibility = TPropVisibility::Published;
  bool ReadOnly = false;
  // Ordinal default; a property equal to it is not stored. None: always stored.
  std::optional<std::int64_t> Default;
  // The default that holds on forms of the other family of frameworks, where it is another one.
  std::optional<std::int64_t> OtherDefault;
  // Extra rule that can keep the property out of the form file; empty means no extra rule.
  std::function<bool(const TPersistent&)> Stored;
  // A sentence for the inspector's description line; may be empty.
  QString Description;

  // Kinds tell how a value is shown and edited; what it is is told by the alternative.
  TTypeKind Kind() const { return PropType->Kind; }
  template <class T>
  bool Is() const {
    return Access->Alternative() == AlternativeOf<T>;
  }
  bool IsOrdinal() const { return Is<std::int64_t>(); }
  bool IsEvent() const { return Is<THandler>(); }
  bool IsPart() const { return Is<TPart>(); }
  // What can be given another value: parts are changed in themselves.
  bool IsWritable() const { return !ReadOnly || IsPart(); }
};
