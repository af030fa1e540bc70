// The binary form: a "TPF0" stream, bare or wrapped as a resource.
#pragma once
#include "forms/FormTree.h"

namespace forms {

class BinaryReader {
 public:
  // `lclStream`: code 21 is a UTF-16 string instead of a double.
  BinaryReader(QByteArrayView bytes, std::size_t at, bool lclStream);

  void ReadDocument(FormTree& tree);
  void ReadValue(Value* out, int depth = 0);
  // Whether code 21 was met and read as a double.
  bool SawDouble() const { return sawDouble_; }
  // Where the reader stands.
  std::size_t Offset() const { return static_cast<std::size_t>(p_ - begin_); }

 private:
  std::unique_ptr<Object> ReadObject(FormTree& tree, int depth);
  unsigned char Byte();
  QByteArrayView Take(std::size_t count, const char* what);
  QByteArrayView ShortString(const char* what);
  std::uint64_t LittleEndian(int bytes);
  std::int64_t TaggedInteger(ValueType type);
  QByteArrayView LongData(std::size_t unit, const char* what);
  void ReadList(Value* out, int depth);
  void ReadCollection(Value* out, int depth);
  std::size_t Left() const { return static_cast<std::size_t>(end_ - p_); }
  [[noreturn]] void Fail(const QString& text) const;
  void Charge(std::int64_t pieceCost);

  const char* begin_;
  const char* p_;
  const char* end_;
  bool lclStream_;
  bool sawDouble_ = false;
  Budget budget_;
};

// Offset of "TPF0" in a resource-wrapped file; 0 for a bare stream. Refuses anything else.
std::size_t StreamOffset(QByteArrayView bytes);

}  // namespace forms
