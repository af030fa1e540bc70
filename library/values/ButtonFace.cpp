#include "library/values/ButtonFace.h"

#include "rtl/Class.h"

const TClass& TVRXButtonFace::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXButtonFace>("TVRXButtonFace", TPersistent::StaticClass())
          .Streamed("UpPicture", &TVRXButtonFace::Bytes<0>, &TVRXButtonFace::SetBytes<0>)
          .Streamed("DownPicture", &TVRXButtonFace::Bytes<1>, &TVRXButtonFace::SetBytes<1>)
          .Streamed("DisabledPicture", &TVRXButtonFace::Bytes<2>, &TVRXButtonFace::SetBytes<2>));
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

void TVRXButtonFace::SetPictures(const TVRXMaskedPicture& up, const TVRXMaskedPicture& down,
                                 const TVRXMaskedPicture& disabled) {
  Changing();
  const TVRXMaskedPicture* const all[] = {&up, &down, &disabled};
  for (std::size_t i = 0; i < 3; ++i) pictures_[i].SetImage(Composed(*all[i]));
  Changed();
}

bool TVRXButtonFace::Encode(const TGoOn& goOn) const {
  return EncodeAll({&pictures_[0], &pictures_[1], &pictures_[2]}, goOn);
}
bool TVRXButtonFace::NeedsTime() const {
  return std::any_of(pictures_.begin(), pictures_.end(), [](const auto& p) { return p.NeedsTime(); });
}

void TVRXButtonFace::Assign(const TPersistent* source) {
  const auto* face = As<TVRXButtonFace>(source);
  if (!face) return TOwnedPersistent::Assign(source);
  if (face == this) return;
  Changing();
  pictures_ = face->pictures_;
  Changed();
}
