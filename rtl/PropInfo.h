// One published property: its name, type, accessors, default and stored rule.
#pragma once
#include <functional>
#include <memory>
#include <optional>

#include "rtl/TypeInfo.h"

class TPersistent;

// Type-erased accessors, one family per way a value travels. Set is only called with values that the type
// information accepts.
struct TPropAccess {
  virtual ~TPropAccess() = default;
};
struct TOrdAccess : TPropAccess {  // integers, characters, enumerations, sets (as bits), 64-bit integers
  virtual std::int64_t Get(const TPersistent& instance) const = 0;
  virtual void Set(TPersistent& instance, std::int64_t value) const = 0;
};
struct TFloatAccess : TPropAccess {  // currency travels as its value, not scaled
  virtual long double Get(const TPersistent& instance) const = 0;
  virtual void Set(TPersistent& instance, long double value) const = 0;
};
struct TStrAccess : TPropAccess {
  virtual QString Get(const TPersistent& instance) const = 0;
  virtual void Set(TPersistent& instance, const QString& value) const = 0;
};
struct TObjectAccess : TPropAccess {
  virtual TPersistent* Get(const TPersistent& instance) const = 0;
  virtual void Set(TPersistent& instance, TPersistent* value) const = 0;
};
// Binary data that is streamed under a name but shown nowhere ("Picture.Data").
struct TBinaryAccess : TPropAccess {
  virtual QByteArray Get(const TPersistent& instance) const = 0;
  virtual void Set(TPersistent& instance, const QByteArray& value) const = 0;
};
struct TMethodAccess : TPropAccess {};  // handler names live in the component, keyed by the access object

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
  // Extra rule that can keep the property out of the form file; empty means no extra rule.
  std::function<bool(const TPersistent&)> Stored;
  // A sentence for the inspector's description line; may be empty.
  QString Description;

  TTypeKind Kind() const { return PropType->Kind; }
  bool IsEvent() const { return PropType->Kind == TTypeKind::tkMethod; }
  bool IsOrdinal() const;
};
