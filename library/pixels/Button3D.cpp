#include "library/pixels/Button3D.h"

#include <bit>
#include <cstring>

#include "library/pixels/BevelMasks.h"
#include "library/pixels/PixelMask.h"
#include "rtl/Exceptions.h"
#include "vcl/PictureHead.h"

bool VRX3DEffectAbort = false;

namespace {
using Word = BevelMasks::Word;
constexpr Word EvenColumns = 0x5555555555555555u;
// The bits of a row with x + y odd.
constexpr Word OddBits(int y) { return y % 2 == 0 ? ~EvenColumns : EvenColumns; }

void Put(std::uint32_t* row, Word bits, std::uint32_t pixel) {
  for (; bits; bits &= bits - 1) row[std::countr_zero(bits)] = pixel;
}
}  // namespace

bool VRXMakeBmpSemiTransparent(TBitmap& bitmap, TColor colorOdd, TColor keyColor, TColor colorEven) {
  const auto key = ExactPixelOf(keyColor);
  if (!key) return true;
  const std::uint32_t odd = PixelOf(colorOdd), even = PixelOf(colorEven);
  std::vector<Word> mask(WordsFor(bitmap.Width()));
  for (int y = 0; y < bitmap.Height() && !mask.empty(); ++y) {
    MatchPixel(bitmap.Row(y), bitmap.Width(), *key, mask.data());
    std::uint32_t* row = nullptr;
    for (std::size_t w = 0; w < mask.size(); ++w) {
      if (!mask[w]) continue;
      if (!row) row = bitmap.WritableRow(y);
      Put(row + w * 64, mask[w] & OddBits(y), odd);
      Put(row + w * 64, mask[w] & ~OddBits(y), even);
    }
  }
  return true;
}

namespace {
// Tells a progress control of a scan, pixel by pixel, and whether it was broken off.
class ScanProgress {
 public:
  ScanProgress(IVRXProgress* progress, int width, int height, int passes)
      : progress_(width > 0 ? progress : nullptr), width_(width), height_(height), passes_(passes) {}
  // A row of a pass is scanned. False when the run is to end.
  bool Row(int pass, int y) {
    if (!progress_) return true;
    // After its first pixel the row's percentage is known; the others change nothing.
    if (!Process(pending_ + 1)) return false;
    pending_ = width_ - 1;
    const std::int64_t percent =
        RoundHalfEven(100 * (std::int64_t{pass - 1} * height_ + y), std::int64_t{height_} * passes_);
    if (percent != last_) progress_->Report(static_cast<int>(percent), 1);
    last_ = percent;
    return true;
  }
  bool End() { return !progress_ || pending_ == 0 || Process(pending_); }

 private:
  bool Process(std::int64_t pixels) {
    progress_->ProcessMessages(pixels);
    return !VRX3DEffectAbort;
  }
  IVRXProgress* progress_;
  std::int64_t width_, pending_ = 0, last_ = 0;
  int height_, passes_;
};

struct Inks {
  std::uint32_t Background, Light, Shadow, Disabled, Bevel;
};

int Enlarged(int side, int bevelWidth) {
  const std::int64_t result = std::int64_t{side} + 2 * std::int64_t{bevelWidth};
  if (result > INT32_MAX)
    throw Exception(QStringLiteral("A bevel of %1 pixels is too wide for a picture.").arg(bevelWidth));
  return static_cast<int>(std::max<std::int64_t>(result, 0));
}

// Row y of a picture whose content lies at (offset, offset) on the background.
void FillRow(std::uint32_t* to, int width, int y, const TBitmap& content, int offset,
             std::uint32_t background) {
  const int source = y - offset;
  if (source < 0 || source >= content.Height() || content.Empty()) {
    std::fill_n(to, width, background);
    return;
  }
  const int from = std::max(offset, 0), end = std::min(width, content.Width() + offset);
  std::fill(to, to + from, background);
  if (from < end)
    std::memcpy(to + from, content.Row(source) + (from - offset), static_cast<std::size_t>(end - from) * 4);
  std::fill(to + std::max(from, end), to + width, background);
}

class Drawing {
 public:
  Drawing(const TBitmap& content, int bevelWidth, const Inks& inks, bool hasKey)
      : content_(content),
        bevelWidth_(bevelWidth),
        width_(Enlarged(content.Width(), bevelWidth)),
        height_(Enlarged(content.Height(), bevelWidth)),
        inks_(inks),
        masks(width_, height_, hasKey) {}

  // Gets room for the results: that of the earlier ones when they may be given up and have the size.
  void MakeRoom(TBitmap& oldUp, TBitmap& oldDown, TBitmap& oldDisabled, bool giveUp) {
    const auto fits = [this](const TBitmap& b) {
      return b.Width() == width_ && b.Height() == height_ && b.Image().isDetached();
    };
    if (giveUp && fits(oldUp) && fits(oldDown) && fits(oldDisabled) && &oldUp != &oldDown &&
        &oldUp != &oldDisabled && &oldDown != &oldDisabled) {
      up.Swap(oldUp);
      down.Swap(oldDown);
      disabled.Swap(oldDisabled);
      return;
    }
    for (TBitmap* own : {&up, &down, &disabled}) *own = TBitmap::Uninitialized(width_, height_);
  }

  int Width() const { return width_; }
  int Height() const { return height_; }

  // Marks what equals a pixel in the enlarged picture, which holds `source` on `margin`, as bits of the
  // plane.
  void Mark(BevelMasks::Plane& plane, const TBitmap& source, std::uint32_t pixel, bool margin) {
    const std::size_t words = masks.Words();
    if (words == 0) return;
    std::vector<std::uint32_t> row(static_cast<std::size_t>(width_));
    for (int y = 0; y < height_; ++y) {
      FillRow(row.data(), width_, y, source, bevelWidth_, margin ? pixel : ~pixel);
      MatchPixel(row.data(), width_, pixel, plane.Row(y));
    }
  }

  // One row of the three results, after the last pass that writes to it.
  void DrawRow(int y) {
    if (width_ == 0) return;
    std::uint32_t* to = up.WritableRow(y);
    FillRow(to, width_, y, content_, bevelWidth_, inks_.Background);
    Ink(to, masks.Light.Row(y), inks_.Light);
    Ink(to, masks.Shadow.Row(y), inks_.Shadow);
    Ink(to, masks.Bevel.Row(y), inks_.Bevel);
    std::uint32_t* grey = disabled.WritableRow(y);
    std::memcpy(grey, to, static_cast<std::size_t>(width_) * 4);
    const Word *light = masks.Light.Row(y), *shadow = masks.Shadow.Row(y), *bevel = masks.Bevel.Row(y);
    const Word* background = masks.Background.Row(y);
    for (std::size_t w = 0; w < masks.Words(); ++w) {
      // The content is what was not background from the start.
      const Word content = masks.Valid(w) & ~(background[w] | light[w] | shadow[w] | bevel[w]);
      Put(grey + w * 64, content & OddBits(y), inks_.Disabled);
    }
    std::uint32_t* pressed = down.WritableRow(y);
    FillRow(pressed, width_, y, content_, bevelWidth_ + 1, inks_.Background);
    Ink(pressed, masks.DownLight.Row(y), inks_.Light);
    Ink(pressed, masks.DownShadow.Row(y), inks_.Shadow);
    Ink(pressed, masks.DownBevel.Row(y), inks_.Bevel);
  }

 private:
  void Ink(std::uint32_t* row, const Word* bits, std::uint32_t pixel) {
    for (std::size_t w = 0; w < masks.Words(); ++w) Put(row + w * 64, bits[w], pixel);
  }

  const TBitmap& content_;
  int bevelWidth_, width_, height_;
  Inks inks_;

 public:
  TBitmap up, down, disabled;
  BevelMasks masks;
};
}  // namespace

void RequireButton3DSize(const QString& what, const TBitmap& source, int bevelWidth) {
  RequirePictureSize(what, std::int64_t{source.Width()} + 2 * bevelWidth,
                     std::int64_t{source.Height()} + 2 * bevelWidth);
}

void VRXDrawButton3D(const TBitmap& source, TBitmap& up, TBitmap& down, TBitmap& disabled, TColor transparent,
                     TColor light, TColor shadow, TColor disabledColor, TColor semiSecond, TColor semiKey,
                     TColor bevel, bool semiTransparent, int bevelWidth, IVRXProgress* progress) {
  if (bevelWidth < -1) return;
  // The source may be one of the results.
  TBitmap original, content;
  original.Assign(&source);
  content.Assign(&source);
  if (semiTransparent) VRXMakeBmpSemiTransparent(content, transparent, semiKey, semiSecond);

  const Inks inks{PixelOf(transparent), PixelOf(light), PixelOf(shadow), PixelOf(disabledColor),
                  PixelOf(bevel)};
  const auto background = ExactPixelOf(transparent), key = ExactPixelOf(semiKey);
  const bool hasKey = semiTransparent && key;
  Drawing drawing(content, bevelWidth, inks, hasKey);
  drawing.MakeRoom(up, down, disabled, progress == nullptr);
  // A transparent colour that equals no pixel leaves no background.
  if (background) drawing.Mark(drawing.masks.Background, content, *background, true);
  if (hasKey) drawing.Mark(drawing.masks.Key, original, *key, false);

  const BevelMasks::Invisible invisible{inks.Light == background, inks.Shadow == background,
                                        inks.Bevel == background};
  const int passes = bevelWidth + 2;
  ScanProgress scan(progress, drawing.Width(), drawing.Height(), passes);
  for (int pass = 1; pass <= passes; ++pass) {
    using enum BevelMasks::PassKind;
    drawing.masks.Pass(pass <= bevelWidth ? Rings : pass == bevelWidth + 1 ? Outline : Final, invisible);
    for (int y = 0; y < drawing.Height(); ++y) {
      if (pass == passes) drawing.DrawRow(y);
      if (!scan.Row(pass, y)) return;
    }
  }
  if (!scan.End()) return;
  up = std::move(drawing.up);
  down = std::move(drawing.down);
  disabled = std::move(drawing.disabled);
}
