// How C++ types travel as property values, and which type information belongs to them.
#pragma once
#include <concepts>

#include "rtl/PropValue.h"

class TComponent;
class TPersistent;

// What an object keeps by property (rtl/Kept.h): the name, and the value that it has when none is kept.
template <class T>
struct TKept {
  const char* Name;
  T Default{};
};
template <>
struct TKept<QString> {
  const char* Name;
};
template <>
struct TKept<THandler> {
  const char* Name;
};

namespace rtl_detail {
template <class T>
using Bare = std::remove_cvref_t<T>;

template <class T>
constexpr bool IsObject = std::is_pointer_v<T>&& std::derived_from<std::remove_pointer_t<T>, TPersistent>;

// The alternative of TPropValue that a C++ type travels as.
template <class T>
constexpr auto Alternative() {
  if constexpr (IsObject<T>)
    return std::conditional_t<std::is_base_of_v<TComponent, std::remove_pointer_t<T>>, TReference, TPart>();
  else if constexpr (std::same_as<T, QString> || std::same_as<T, QByteArray> || std::same_as<T, THandler>)
    return T();
  else if constexpr (std::is_floating_point_v<T> || std::same_as<T, TCurrency> || std::same_as<T, TDateTime>)
    return 0.0L;
  else
    return std::int64_t{0};
}
template <class T>
using Wire = decltype(Alternative<T>());

template <class T>
Wire<T> ToWire(const T& v) {
  if constexpr (std::same_as<T, TCurrency>)
    return static_cast<long double>(v.Scaled) / 10000.0L;
  else if constexpr (std::same_as<T, TDateTime>)
    return v.Days;
  else if constexpr (IsObject<T>)
    return {v};
  else if constexpr (requires { v.Bits(); })
    return static_cast<std::int64_t>(v.Bits());
  else
    return static_cast<Wire<T>>(v);
}
template <class T>
decltype(auto) FromWire(const Wire<T>& v) {
  if constexpr (std::same_as<T, TCurrency>)
    return TCurrency{static_cast<std::int64_t>(v < 0 ? v * 10000.0L - 0.5L : v * 10000.0L + 0.5L)};
  else if constexpr (std::same_as<T, TDateTime>)
    return TDateTime{static_cast<double>(v)};
  else if constexpr (IsObject<T>)
    return static_cast<T>(v.Object);
  else if constexpr (requires { T::FromBits(0); })
    return T::FromBits(static_cast<std::uint64_t>(v));
  else if constexpr (std::same_as<T, Wire<T>>)
    return (v);
  else
    return static_cast<T>(v);
}

template <class T>
const TTypeInfo& TypeOf() {
  if constexpr (IsObject<T>)
    return std::remove_pointer_t<T>::StaticTypeInfo();
  else
    return TypeInfoOf<T>::Get();
}
}  // namespace rtl_detail
