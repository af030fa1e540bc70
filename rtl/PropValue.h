// The value of a published property, whatever its kind: what is read, compared, copied and written back.
#pragma once
#include <QByteArray>
#include <QString>
#include <cstdint>
#include <variant>

class TPersistent;

struct THandler {  // an event's
  QString Name;
  bool operator==(const THandler&) const = default;
};
struct TReference {  // to a component that lives elsewhere; null for none
  TPersistent* Object = nullptr;
  bool operator==(const TReference&) const = default;
};
struct TPart {  // a value object of the instance's own: taking it over copies what is in it
  TPersistent* Object = nullptr;
  bool operator==(const TPart&) const = default;
};

// Ordinals (sets as bits); floating-point numbers (currency as its value, not scaled); texts; handlers;
// references; parts; data that is streamed under a name but shown nowhere ("Picture.Data").
using TPropValue = std::variant<std::int64_t, long double, QString, THandler, TReference, TPart, QByteArray>;

namespace rtl_detail {
template <class T, class... A>
constexpr std::size_t IndexIn(const std::variant<A...>*) {
  std::size_t index = 0;
  static_cast<void>(((std::is_same_v<T, A> || (++index, false)) || ...));
  return index;
}
}  // namespace rtl_detail

// Which alternative of TPropValue a type is.
template <class T>
constexpr std::size_t AlternativeOf = rtl_detail::IndexIn<T>(static_cast<const TPropValue*>(nullptr));

// One function for each alternative, for std::visit.
template <class... F>
struct ForEach : F... {
  using F::operator()...;
};
template <class... F>
ForEach(F...) -> ForEach<F...>;
