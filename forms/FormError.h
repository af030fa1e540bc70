// What went wrong in a form file, and exactly where.
#pragma once
#include <vector>

#include "rtl/Exceptions.h"

namespace forms {

// A place in a source: lines and columns count from 1. Binary sources have line 0 and the byte offset only.
struct Location {
  std::size_t offset = 0;
  int line = 0;
  int column = 0;
};

// The place of a byte offset in a text. Columns count characters when the line is UTF-8, else bytes.
Location LocationOf(QByteArrayView text, std::size_t offset);

// There is not enough memory for a form; said like any other trouble with it, with its place.
[[noreturn]] void ThrowOutOfMemory(Location where);
// The same for many places of one text: what was counted once is not counted again.
class Locator {
 public:
  Location At(QByteArrayView text, std::size_t offset);

 private:
  std::vector<Location> passed_;  // in steps of one size
};

class EFormError : public Exception {
 public:
  EFormError(const QString& text, Location where);
  const Location& Where() const { return where_; }
  // The message without the place.
  const QString& Text() const { return text_; }

 private:
  QString text_;
  Location where_;
};

}  // namespace forms
