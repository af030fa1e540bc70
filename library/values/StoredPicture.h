// A picture that is part of a value and is kept in the form file.
//
// The bytes of the file are kept as they came until the picture or the way to store it is changed.
#pragma once
#include <QByteArray>
#include <QImage>

enum class TVRXColorDepth : std::uint8_t;

class StoredPicture {
 public:
  // As it is shown: with the colours that the way of storing leaves. Null when there is no picture.
  const QImage& Image() const;
  // With all the colours that are known of it.
  const QImage& FullImage() const { return full_; }
  void SetImage(const QImage& image);
  // BMP with the bits that the depth has, or PNG when compressed or transparent. Empty when there is no
  // picture.
  QByteArray Bytes() const;
  // Throws EInvalidPicture and changes nothing when they are not a picture.
  void SetBytes(const QByteArray& bytes);
  void SetStorage(bool compress, TVRXColorDepth depth);

 private:
  QImage full_;  // before any reduction
  mutable QImage shown_;
  mutable QByteArray bytes_;
  mutable bool shownStale_ = false, bytesStale_ = false;  // they do not belong to full_ yet
  bool compress_ = false;
  TVRXColorDepth depth_{};
};
