// Files that something happened to: bytes changed, lost, doubled.
#pragma once
#include <QByteArray>
#include <random>

class Mutations {
 public:
  Mutations(QByteArray text, unsigned seed) : text_(std::move(text)), random_(seed) {}
  // One to three things happened to it.
  QByteArray Next() {
    QByteArray bytes = text_;
    for (auto n = Below(3); n >= 0; --n) {
      const qsizetype at = Below(bytes.size());
      switch (Below(4)) {
        case 0:
          bytes[at] = static_cast<char>(random_());
          break;
        case 1:
          bytes.remove(at, Below(9));
          break;
        case 2:
          bytes.insert(at, text_.mid(Below(text_.size()), Below(40)));
          break;
        default:
          bytes[at] = static_cast<char>(bytes[at] ^ (1 << Below(8)));
      }
    }
    return bytes;
  }

 private:
  qsizetype Below(qsizetype n) { return static_cast<qsizetype>(random_() % static_cast<std::size_t>(n)); }
  QByteArray text_;
  std::mt19937 random_;
};
