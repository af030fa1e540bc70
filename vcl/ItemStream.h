// Reading and writing the bytes in which form files keep the items of lists and trees.
//
// Several layouts exist, and most do not say which one they are. They are told apart by what fits: a layout
// is right when the bytes end exactly where its last item does. Bytes come from strangers: nothing is
// allocated for what is not there.
#pragma once
#include <QByteArray>
#include <QString>
#include <QtEndian>
#include <optional>

// How a text stands in the stream.
enum class TStreamText : std::uint8_t {
  Short,   // its length in one byte, then bytes
  Wide,    // its length in one byte, then UTF-16
  Counted  // its length in four bytes, then UTF-8
};

// From the front. What is not there makes Fits() false, and numbers zero from then on.
class TItemReader {
 public:
  explicit TItemReader(QByteArrayView bytes) : rest_(bytes) {}
  std::int32_t Number() { return Little<std::int32_t>(); }
  std::int16_t Small() { return Little<std::int16_t>(); }
  std::uint8_t Byte() { return Little<std::uint8_t>(); }
  QString Text(TStreamText kind);
  // A number in so many bytes, 8 at most.
  quint64 Bits(qsizetype count) {
    quint64 bits = 0;
    const QByteArrayView bytes = Take(count);
    for (qsizetype i = bytes.size(); i-- > 0;) bits = bits << 8 | static_cast<std::uint8_t>(bytes[i]);
    return bits;
  }
  bool Fits() const { return fits_; }
  bool AtEnd() const { return fits_ && rest_.isEmpty(); }
  qsizetype Left() const { return rest_.size(); }

 private:
  QByteArrayView Take(qsizetype count);
  template <class T>
  T Little() {
    const QByteArrayView bytes = Take(sizeof(T));
    return fits_ ? qFromLittleEndian<T>(bytes.data()) : T{};
  }
  QByteArrayView rest_;
  bool fits_ = true;
};

class TItemWriter {
 public:
  void Number(std::int32_t v) { Little(v); }
  void Small(std::int16_t v) { Little(v); }
  void Byte(std::uint8_t v) { Little(v); }
  // A text that is too long for its length byte is cut.
  void Text(TStreamText kind, const QString& text);
  void Bits(qsizetype count, quint64 bits) {
    for (; count > 0; --count, bits >>= 8) Byte(static_cast<std::uint8_t>(bits));
  }
  void PutNumberAt(qsizetype place, std::int32_t v) { qToLittleEndian(v, bytes_.data() + place); }
  const QByteArray& Bytes() const { return bytes_; }

 private:
  template <class T>
  void Little(T v) {
    char bytes[sizeof(T)];
    qToLittleEndian(v, bytes);
    bytes_.append(bytes, sizeof(T));
  }
  QByteArray bytes_;
};
