#include "library/values/RegionMask.h"

#include "rtl/Class.h"

const TClass& TVRXRegionMask::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXRegionMask>("TVRXRegionMask", TPersistent::StaticClass())
          .Published("ColorDepth", &TVRXRegionMask::ColorDepth, &TVRXRegionMask::SetColorDepth,
                     TVRXColorDepth::spfDefault)
          .Doc(QStringLiteral("How many colors the pictures are stored with."))
          .Published("Compress", &TVRXRegionMask::Compress, &TVRXRegionMask::SetCompress, false)
          .Doc(QStringLiteral("Stores the pictures compressed."))
          .Streamed("RegionData", &TVRXRegionMask::RegionData, &TVRXRegionMask::SetRegionData)
          .Streamed("BorderPicture", &TVRXRegionMask::BorderBytes, &TVRXRegionMask::SetBorderBytes)
          .Streamed("FirstPicture", &TVRXRegionMask::FirstBytes, &TVRXRegionMask::SetFirstBytes)
          .Streamed("SecondPicture", &TVRXRegionMask::SecondBytes, &TVRXRegionMask::SetSecondBytes));
  return cls;
}

void TVRXRegionMask::DoChanged() {
  shownValid_[0] = shownValid_[1] = false;
  TOwnedPersistent::DoChanged();
}

void TVRXRegionMask::SetRegionData(const QByteArray& data) {
  if (data == regionData_) return;
  TRegion region = data.isEmpty() ? TRegion() : TRegion::FromData(data);
  Changing();
  region_ = std::move(region);
  regionData_ = data;
  Changed();
}

void TVRXRegionMask::SetRegion(TRegion region) {
  region.RequireStorable();
  QByteArray data = region.Empty() ? QByteArray() : region.ToData();
  if (data == regionData_) return;
  Changing();
  region_ = std::move(region);
  regionData_ = std::move(data);
  Changed();
}

void TVRXRegionMask::SetBorderPicture(const TBitmap& picture) {
  Changing();
  border_.SetImage(picture.Image());
  Changed();
}
void TVRXRegionMask::SetStatePicture(int state, const TBitmap& picture) {
  Changing();
  states_[state].SetImage(picture.Image());
  Changed();
}

void TVRXRegionMask::SetBytes(StoredPicture& picture, const QByteArray& v) {
  if (picture.Bytes() == v) return;
  Changing();
  picture.SetBytes(v);
  Changed();
}

void TVRXRegionMask::SetCompress(bool v) {
  if (compress_ == v) return;
  Changing();
  compress_ = v;
  StorageChanged();
}
void TVRXRegionMask::SetColorDepth(TVRXColorDepth v) {
  if (colorDepth_ == v) return;
  Changing();
  colorDepth_ = v;
  StorageChanged();
}
void TVRXRegionMask::StorageChanged() {
  for (StoredPicture* p : {&border_, &states_[0], &states_[1]}) p->SetStorage(compress_, colorDepth_);
  Changed();
}

QSize TVRXRegionMask::ShownSize(int state) const {
  if (region_.Empty()) return {};
  return states_[state].Empty() ? border_.Size() : states_[state].Size();
}

const QImage& TVRXRegionMask::Shown(int state) const {
  QImage& shown = shown_[state];
  if (std::exchange(shownValid_[state], true)) return shown;
  shown = QImage();
  if (ShownSize(state).isEmpty()) return shown;
  const QImage& picture = states_[state].Empty() ? BorderPicture() : StatePicture(state);
  const QImage source = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
  shown = QImage(source.size(), QImage::Format_ARGB32_Premultiplied);
  shown.fill(Qt::transparent);
  for (const TRect& r : region_.Rects()) {
    const int left = std::max(r.Left, 0), right = std::min(r.Right, source.width());
    if (left >= right) continue;
    for (int y = std::max(r.Top, 0); y < std::min(r.Bottom, source.height()); ++y)
      std::copy_n(reinterpret_cast<const QRgb*>(source.constScanLine(y)) + left, right - left,
                  reinterpret_cast<QRgb*>(shown.scanLine(y)) + left);
  }
  return shown;
}

void TVRXRegionMask::Assign(const TPersistent* source) {
  const auto* mask = As<TVRXRegionMask>(source);
  if (!mask) return TOwnedPersistent::Assign(source);
  if (mask == this) return;
  Changing();
  regionData_ = mask->regionData_;
  region_ = mask->region_;
  border_ = mask->border_;
  states_[0] = mask->states_[0];
  states_[1] = mask->states_[1];
  compress_ = mask->compress_;
  colorDepth_ = mask->colorDepth_;
  Changed();
}
