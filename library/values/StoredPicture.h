// A picture that is part of a value and is kept in the form file.
//
// The bytes of the file are kept as they came until the picture or the way to store it is changed.
#pragma once
#include <QByteArray>
#include <QImage>

#include "vcl/LargePng.h"

enum class TVRXColorDepth : std::uint8_t;

class StoredPicture {
 public:
  // As it is shown: with the colours that the way of storing leaves. Null when there is no picture.
  const QImage& Image() const;
  // With all the colours that are known of it.
  const QImage& FullImage() const;
  // Both without decoding anything.
  bool Empty() const { return size_.isEmpty(); }
  QSize Size() const { return size_; }
  // Throws EInvalidPicture and changes nothing when it is larger than what can be read again.
  void SetImage(const QImage& image);
  // BMP with the bits that the depth has, or PNG when compressed or transparent. Empty when there is no
  // picture.
  QByteArray Bytes() const;
  // Makes the bytes now instead of when somebody asks for them, which can take seconds for a large picture.
  // False when `goOn` ended it.
  bool Encode(const TGoOn& goOn) const;
  bool NeedsTime() const { return stale_ && IsLargePicture(size_); }
  // Throws EInvalidPicture and changes nothing when they are not a picture. They are decoded to know that;
  // what is decoded is kept only once somebody asks for the image, for most pictures of a form are not shown.
  void SetBytes(const QByteArray& bytes);
  void SetStorage(bool compress, TVRXColorDepth depth);

 private:
  QSize size_;
  mutable QImage full_;  // before any reduction
  mutable QImage shown_;
  mutable QByteArray bytes_;
  mutable bool reduced_ = true;   // shown_ belongs to full_
  mutable bool stale_ = false;    // bytes_ do not belong to full_ yet
  mutable bool decoded_ = false;  // full_ belongs to the bytes that were set
  bool compress_ = false;
  TVRXColorDepth depth_{};
  void Decode() const;
  void Reduce() const;
};
// One after the other, with the percentage of all of them.
bool EncodeAll(std::initializer_list<const StoredPicture*> pictures, const TGoOn& goOn);
