// What one form may cost whoever reads it. Strangers write forms, too: a few megabytes of tiny pieces must
// not become gigabytes. Everything is counted while the source is checked, before anything is made from it.
#pragma once
#include <QtGlobal>
#include <cstdint>

namespace forms {

constexpr int MaxDepth = 400;                            // of objects and of values: readers call themselves
constexpr qsizetype MaxFileSize = qsizetype{512} << 20;  // bytes: places in a source are 32-bit numbers

// What the pieces take in memory, as readers and components keep them. A form of 100,000 components with
// thirty properties each comes to two thirds of the whole.
namespace cost {
constexpr std::int64_t Object = 640;     // its node and the component
constexpr std::int64_t Property = 32;    // its node, and its share of what is found to say about it
constexpr std::int64_t Element = 200;    // of a list: a decoded value; a value in a collection's item, too
constexpr std::int64_t Item = 64;        // of a collection
constexpr std::int64_t SetElement = 32;  // a name
constexpr std::int64_t StringPart = 16;  // a piece in quotes, a character code
}  // namespace cost
constexpr std::int64_t MaxFormMemory = std::int64_t{256} << 20;

// Adds up the pieces of one form.
class Budget {
 public:
  // False when there are too many.
  bool Take(std::int64_t pieceCost) { return (used_ += pieceCost) <= MaxFormMemory; }

 private:
  std::int64_t used_ = 0;
};

}  // namespace forms
