// Pictures of the standard controls, as form files keep them.
//
// The bytes are those of the file until another picture is put in their place. They are decoded when the
// picture is shown; what cannot be (metafiles, damage) is kept all the same and shows nothing. TPicture
// writes the class of its picture in front (and some designers the length after it), TGlyph the length alone.
#pragma once
#include <QImage>

#include "rtl/Persistent.h"

class TPicture : public TOwnedPersistent {
  VRX_CLASS(TPicture)
 public:
  explicit TPicture(TPersistent* owner = nullptr) : TOwnedPersistent(owner) {}

  // QImage::Format_ARGB32 or RGB32; null when there is none or it cannot be shown.
  const QImage& Image() const;
  // Why it cannot be shown; empty when it can, or when there is none.
  const QString& Problem() const;
  bool Empty() const { return data_.isEmpty(); }
  // The class that the file gives the picture ("TBitmap"); empty for none.
  QByteArray GraphicClass() const;
  // Takes a picture over as a file of the format holds it (PNG, JPEG, BMP, ICO, GIF). Throws EInvalidPicture
  // and changes nothing when it is none of them.
  void SetFileBytes(const QByteArray& bytes);
  // The picture as a file, without what forms put in front.
  QByteArray FileBytes() const;
  void Clear() { SetData({}); }

  // As the form file has it.
  const QByteArray& Data() const { return data_; }
  void SetData(const QByteArray& bytes);

  void Assign(const TPersistent* source) override;

 protected:
  enum class Framing : std::uint8_t { ClassName, Length, None };
  TPicture(TPersistent* owner, Framing framing) : TOwnedPersistent(owner), framing_(framing) {}

 private:
  void Decode() const;

  QByteArray data_;
  mutable QImage image_;
  mutable QString problem_;
  mutable bool decoded_ = false;
  Framing framing_ = Framing::ClassName;
};

// The picture of a button: always a bitmap; `NumGlyphs` of the button says how many states stand side by
// side.
class TGlyph : public TPicture {
  VRX_CLASS(TGlyph)
 public:
  explicit TGlyph(TPersistent* owner = nullptr) : TPicture(owner, Framing::Length) {}
  // Its lower left pixel says which colour is transparent, as buttons have it.
  QImage Transparent() const;
};

// The icon of a form: the file as it is, or the length and the file.
class TIcon : public TPicture {
  VRX_CLASS(TIcon)
 public:
  explicit TIcon(TPersistent* owner = nullptr) : TPicture(owner, Framing::None) {}
};

// The bytes of a picture inside of what a form keeps: behind a class name, a length or both, or nothing.
QByteArrayView PictureInside(QByteArrayView data);
