// The shape of a window or a button: a region, and the pictures that are shown in it.
#pragma once
#include "library/values/ColorDepth.h"
#include "library/values/StoredPicture.h"
#include "rtl/Persistent.h"
#include "vcl/Bitmap.h"
#include "vcl/Region.h"

class TVRXRegionMask : public TOwnedPersistent {
  VRX_CLASS(TVRXRegionMask)
 public:
  explicit TVRXRegionMask(TPersistent* owner = nullptr) : TOwnedPersistent(owner) {}

  // Whatever was built; no bytes when there is no region.
  const QByteArray& RegionData() const { return regionData_; }
  // Throws EInvalidRegion for bytes that are not region data, and changes nothing then.
  void SetRegionData(const QByteArray& data);
  const TRegion& Region() const { return region_; }
  // The same without going through bytes; an empty one is no region.
  void SetRegion(TRegion region);
  bool HasRegion() const { return !regionData_.isEmpty(); }

  // Null without a picture. State 0 and 1 are a button's, up and down.
  const QImage& BorderPicture() const { return border_.Image(); }
  const QImage& StatePicture(int state) const { return states_[state].Image(); }
  // The same with all the colours that are known of them, whatever the depth leaves.
  const QImage& FullBorderPicture() const { return border_.FullImage(); }
  const QImage& FullStatePicture(int state) const { return states_[state].FullImage(); }
  void SetBorderPicture(const TBitmap& picture);
  void SetStatePicture(int state, const TBitmap& picture);

  bool Compress() const { return compress_; }
  void SetCompress(bool v);
  TVRXColorDepth ColorDepth() const { return colorDepth_; }
  void SetColorDepth(TVRXColorDepth v);

  // What a control shows: the picture of the state or, without one, the border picture, transparent outside
  // of the region. Null when there is no region or no picture. Made once and kept until something changes.
  const QImage& Shown(int state) const;
  // The size of Shown, without decoding anything; empty when that is null.
  QSize ShownSize(int state) const;

  // Makes what is stored, as StoredPicture does.
  bool Encode(const TGoOn& goOn) const { return EncodeAll({&border_, &states_[0], &states_[1]}, goOn); }
  bool NeedsTime() const { return border_.NeedsTime() || states_[0].NeedsTime() || states_[1].NeedsTime(); }

  void Assign(const TPersistent* source) override;

 private:
  QByteArray BorderBytes() const { return border_.Bytes(); }
  void SetBorderBytes(const QByteArray& v) { SetBytes(border_, v); }
  QByteArray FirstBytes() const { return states_[0].Bytes(); }
  void SetFirstBytes(const QByteArray& v) { SetBytes(states_[0], v); }
  QByteArray SecondBytes() const { return states_[1].Bytes(); }
  void SetSecondBytes(const QByteArray& v) { SetBytes(states_[1], v); }
  void SetBytes(StoredPicture& picture, const QByteArray& v);
  void DoChanged() override;
  void StorageChanged();

  QByteArray regionData_;
  TRegion region_;
  StoredPicture border_, states_[2];
  mutable QImage shown_[2];
  mutable bool shownValid_[2] = {false, false};
  bool compress_ = false;
  TVRXColorDepth colorDepth_ = TVRXColorDepth::spfDefault;
};
