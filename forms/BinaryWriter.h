// Writes the binary form.
#pragma once
#include "forms/FormTree.h"

namespace forms {

class BinaryWriter {
 public:
  explicit BinaryWriter(bool lclStream = false) : lclStream_(lclStream) {}
  void ObjectHeader(const Object& object);
  void ShortString(QByteArrayView text);
  void WriteValue(const Value& value);
  void Byte(unsigned value) { out_.append(static_cast<char>(value)); }
  void Raw(QByteArrayView bytes) { out_.append(bytes); }
  QByteArray Result() && { return std::move(out_); }

 private:
  void LittleEndian(std::uint64_t value, int bytes);
  void TaggedInteger(std::int64_t value, ValueType type);
  QByteArray out_;
  bool lclStream_;
};

// Everything before "TPF0" in a resource-wrapped file.
QByteArray ResourceHeader(QByteArrayView rootClass, std::size_t streamSize);

}  // namespace forms
