// Large pictures take their time to be compressed for storing.
#pragma once
#include <functional>

namespace encoding {
using Report = std::function<bool(int percent)>;
bool Shown(const std::function<bool(const Report&)>& encode);
}  // namespace encoding

// Compresses what is still to be compressed in a value with pictures. That is shown, and can be cancelled:
// false then.
template <class Value>
bool Encoded(const Value& value) {
  return !value.NeedsTime() ||
         encoding::Shown([&](const encoding::Report& report) { return value.Encode(report); });
}
