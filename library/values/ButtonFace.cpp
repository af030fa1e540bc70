#include "library/values/ButtonFace.h"

#include "rtl/Class.h"

const TClass& TVRXButtonFace::StaticClass() {
  static const TClass cls(DescribeClass<TVRXButtonFace>("TVRXButtonFace", TPersistent::StaticClass()));
  return cls;
}

const TClass& TVRX3DButtonFace::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRX3DButtonFace>("TVRX3DButtonFace", TVRXButtonFace::StaticClass())
          .Streamed("UpPicture", &TVRX3DButtonFace::Bytes<0>, &TVRX3DButtonFace::SetBytes<0>)
          .Streamed("DownPicture", &TVRX3DButtonFace::Bytes<1>, &TVRX3DButtonFace::SetBytes<1>)
          .Streamed("DisabledPicture", &TVRX3DButtonFace::Bytes<2>, &TVRX3DButtonFace::SetBytes<2>));
  return cls;
}

TVRXMaskedPicture VRXBmpCreateMasksExt(const TBitmap& source, TColor transparent) {
  const auto key = ExactPixelOf(transparent);
  const std::uint32_t black = PixelOf(clBlack), white = PixelOf(clWhite);
  TVRXMaskedPicture result;
  result.Picture.Assign(&source);
  result.Mask = TBitmap::Uninitialized(source.Width(), source.Height());
  if (source.Empty()) return result;
  for (int y = 0; y < source.Height(); ++y) {
    std::uint32_t* picture = result.Picture.WritableRow(y);
    std::uint32_t* mask = result.Mask.WritableRow(y);
    for (int x = 0; x < source.Width(); ++x) {
      const bool out = key && picture[x] == *key;
      mask[x] = out ? white : black;
      if (out) picture[x] = black;
    }
  }
  return result;
}

namespace {
QImage Composed(const TVRXMaskedPicture& masked) {
  if (masked.Picture.Empty()) return {};
  QImage image = masked.Picture.Image().convertToFormat(QImage::Format_ARGB32);
  const std::uint32_t white = PixelOf(clWhite);
  for (int y = 0; y < std::min(image.height(), masked.Mask.Height()); ++y) {
    auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < std::min(image.width(), masked.Mask.Width()); ++x)
      if (masked.Mask.Row(y)[x] == white) row[x] = 0;
  }
  return image;
}
}  // namespace

void TVRX3DButtonFace::SetPictures(const TVRXMaskedPicture& up, const TVRXMaskedPicture& down,
                                   const TVRXMaskedPicture& disabled) {
  Changing();
  const TVRXMaskedPicture* const all[] = {&up, &down, &disabled};
  for (std::size_t i = 0; i < 3; ++i) pictures_[i].SetImage(Composed(*all[i]));
  Changed();
}

bool TVRX3DButtonFace::Encode(const TGoOn& goOn) const {
  return EncodeAll({&pictures_[0], &pictures_[1], &pictures_[2]}, goOn);
}
bool TVRX3DButtonFace::NeedsTime() const {
  return std::any_of(pictures_.begin(), pictures_.end(), [](const auto& p) { return p.NeedsTime(); });
}

void TVRX3DButtonFace::Assign(const TPersistent* source) {
  const auto* face = As<TVRX3DButtonFace>(source);
  if (!face) return TVRXButtonFace::Assign(source);
  if (face == this) return;
  Changing();
  pictures_ = face->pictures_;
  Changed();
}
