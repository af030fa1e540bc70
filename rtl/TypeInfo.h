// Type information of published properties: kind, type name and, for enumerations and sets, element names.
//
// A C++ type is tied to its description by specialising TypeInfoOf<T>; VRX_ENUM and VRX_SET do that in one
// line. Distinct C++ types are used for distinct property types (TColor is not int), because editors are
// registered by type.
#pragma once
#include <QByteArray>
#include <QByteArrayList>
#include <QString>
#include <array>
#include <cstdint>
#include <type_traits>

class TClass;
class TPersistent;

enum class TTypeKind : std::uint8_t {
  tkUnknown,
  tkInteger,
  tkChar,
  tkEnumeration,
  tkFloat,
  tkString,
  tkSet,
  tkClass,
  tkMethod,
  tkInt64,
};

enum class TFloatType : std::uint8_t { ftSingle, ftDouble, ftExtended, ftCurrency, ftDateTime };

struct TTypeInfo {
  TTypeKind Kind = TTypeKind::tkUnknown;
  QByteArray Name;
  // Ordinal kinds: the smallest and largest value that a property of the type accepts.
  std::int64_t MinValue = 0;
  std::int64_t MaxValue = 0;
  // Enumerations: names in ordinal order, starting at ordinal 0.
  QByteArrayList Elements{};
  // Sets: the enumeration of the elements.
  const TTypeInfo* CompType = nullptr;
  TFloatType FloatType = TFloatType::ftDouble;
  // Class kinds: the described class. A function, because classes describe themselves on first use.
  const TClass& (*ClassType)() = nullptr;

  // Ordinal of an element name compared without regard to case; -1 when there is none.
  int IndexOfElement(QByteArrayView name) const;
};

TTypeInfo OrdinalType(QByteArray name, std::int64_t min, std::int64_t max);
TTypeInfo EnumType(QByteArray name, QByteArrayList elements);
TTypeInfo SetType(QByteArray name, const TTypeInfo& elements);
TTypeInfo FloatTypeInfo(QByteArray name, TFloatType type);
TTypeInfo StringType(QByteArray name);
TTypeInfo MethodType(QByteArray name);

// A set of enumeration elements; bit n is element n.
template <class E>
class TSet {
 public:
  constexpr TSet() = default;
  constexpr TSet(std::initializer_list<E> elements) {
    for (E e : elements) bits_ |= Bit(e);
  }
  static constexpr TSet FromBits(std::uint64_t bits) {
    TSet s;
    s.bits_ = bits;
    return s;
  }
  constexpr bool Contains(E e) const { return (bits_ & Bit(e)) != 0; }
  constexpr void Include(E e) { bits_ |= Bit(e); }
  constexpr std::uint64_t Bits() const { return bits_; }
  constexpr bool operator==(const TSet&) const = default;

 private:
  static constexpr std::uint64_t Bit(E e) { return std::uint64_t{1} << static_cast<unsigned>(e); }
  std::uint64_t bits_ = 0;
};

struct TCurrency {  // money: an integer of 1/10000 units
  std::int64_t Scaled = 0;
  constexpr bool operator==(const TCurrency&) const = default;
};
struct TDateTime {  // days since 1899-12-30, the fraction is the time of day
  double Days = 0;
  constexpr bool operator==(const TDateTime&) const = default;
};

template <class T>
struct TypeInfoOf;  // specialise: static const TTypeInfo& Get();

#define VRX_TYPE_INFO(Type, Expression)        \
  template <>                                  \
  struct TypeInfoOf<Type> {                    \
    static const TTypeInfo& Get() {            \
      static const TTypeInfo info{Expression}; \
      return info;                             \
    }                                          \
  };

#define VRX_ENUM(Type, ...) VRX_TYPE_INFO(Type, EnumType(#Type, QByteArrayList __VA_ARGS__))
#define VRX_SET(SetName, Element) VRX_TYPE_INFO(SetName, SetType(#SetName, TypeInfoOf<Element>::Get()))

VRX_TYPE_INFO(int, OrdinalType("Integer", INT32_MIN, INT32_MAX))
VRX_TYPE_INFO(std::int8_t, OrdinalType("ShortInt", INT8_MIN, INT8_MAX))
VRX_TYPE_INFO(std::uint8_t, OrdinalType("Byte", 0, UINT8_MAX))
VRX_TYPE_INFO(std::int16_t, OrdinalType("SmallInt", INT16_MIN, INT16_MAX))
VRX_TYPE_INFO(std::uint16_t, OrdinalType("Word", 0, UINT16_MAX))
VRX_TYPE_INFO(std::uint32_t, OrdinalType("Cardinal", 0, UINT32_MAX))
VRX_TYPE_INFO(bool, EnumType("Boolean", {"False", "True"}))
VRX_TYPE_INFO(double, FloatTypeInfo("Double", TFloatType::ftDouble))
VRX_TYPE_INFO(float, FloatTypeInfo("Single", TFloatType::ftSingle))
VRX_TYPE_INFO(TCurrency, FloatTypeInfo("Currency", TFloatType::ftCurrency))
VRX_TYPE_INFO(TDateTime, FloatTypeInfo("TDateTime", TFloatType::ftDateTime))
VRX_TYPE_INFO(QString, StringType("string"))
VRX_TYPE_INFO(QByteArray, TTypeInfo{.Name = "binary"})

template <>
struct TypeInfoOf<std::int64_t> {
  static const TTypeInfo& Get();
};
