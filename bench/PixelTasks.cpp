#include "bench/PixelTasks.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QStringList>
#include <cstring>

#include "bench/Measure.h"
#include "bench/Pictures.h"
#include "library/pixels/Button3D.h"
#include "library/pixels/RegionFromBitmap.h"

#if defined(VRX_HAVE_PIXMAN)
#include <pixman.h>
#endif

namespace {
template <class F>
double TimeOf(F&& run) {
  const Stopwatch time;
  run();
  return time.Elapsed();
}

// Both in turns, after one run of each that is not counted.
template <class A, class B>
Pairs InTurns(int rounds, A&& a, B&& b) {
  a();
  b();
  Pairs pairs;
  for (int i = 0; i < rounds; ++i) {
    const double first = TimeOf(a);
    pairs.Add(first, TimeOf(b));
  }
  return pairs;
}

// Copies so many bytes.
class Copying {
 public:
  explicit Copying(std::size_t bytes) : from_(bytes, 1), to_(bytes, 2) {}
  void operator()() {
    std::memcpy(to_.data(), from_.data(), from_.size());
    asm volatile("" : : "r"(to_.data()) : "memory");
  }

 private:
  std::vector<char> from_, to_;
};

// Lets events be handled as often as a dialog does.
class TimedProgress : public IVRXProgress {
 public:
  TimedProgress() { since_.start(); }
  void Report(int percent, std::int64_t) override { last = percent; }
  void ProcessMessages(std::int64_t) override {
    if (since_.elapsed() < 15) return;
    QCoreApplication::processEvents();
    since_.restart();
  }
  int last = 0;

 private:
  QElapsedTimer since_;
};

#if defined(VRX_HAVE_PIXMAN)
// The mask is made from the pixels, as whoever has a picture must.
void RunPixman(const TBitmap& picture) {
  const std::uint32_t background = PixelOf(clFuchsia);
  pixman_image_t* mask = pixman_image_create_bits(PIXMAN_a1, picture.Width(), picture.Height(), nullptr, 0);
  std::uint32_t* bits = pixman_image_get_data(mask);
  const int stride = pixman_image_get_stride(mask) / 4;
  for (int y = 0; y < picture.Height(); ++y) {
    const std::uint32_t* row = picture.Row(y);
    for (int x = 0; x < picture.Width(); x += 32) {
      std::uint32_t word = 0;
      for (int i = 0; i < 32 && x + i < picture.Width(); ++i)
        word |= std::uint32_t{row[x + i] != background} << i;
      bits[y * stride + x / 32] = word;
    }
  }
  pixman_region32_t region;
  pixman_region32_init_from_image(&region, mask);
  pixman_region32_fini(&region);
  pixman_image_unref(mask);
}
#endif

void MeasureRegion(const TBitmap& picture) {
  std::optional<TRegion> region;
  const auto one = [&] { region = CreateRgnFromBitmap2(picture, {clFuchsia}, 100, nullptr); };
  one();
  // What must be read and what must be written.
  const auto pixels = static_cast<std::size_t>(picture.Width()) * static_cast<std::size_t>(picture.Height());
  Copying copyPixels(pixels * sizeof(std::uint32_t)), copyRects(region->Rects().size_bytes());
  Report("region", InTurns(9, one, [&] {
           copyPixels();
           copyRects();
         }));
  QRandomGenerator random(3);
  std::vector<TColor> many(500);
  for (TColor& color : many) color = TColor(random.generate() & 0xFFFFFFu);
  many[250] = clFuchsia;
  Report("many", InTurns(
                     9, [&] { region = CreateRgnFromBitmap2(picture, many, 100, nullptr); }, one));
#if defined(VRX_HAVE_PIXMAN)
  Report("pixman", InTurns(
                       5, [&] { RunPixman(picture); }, one));
#endif
  // The point-by-point painting that the border is defined by, without its reports and its writes.
  TBitmap painted;
  painted.Assign(&picture);
  const TRect box = region->Bounds();
  std::int64_t edges = 0;
  const auto points = [&] {
    for (int x = box.Left; x <= box.Right; ++x)
      for (int y = box.Top; y <= box.Bottom; ++y) {
        const bool in = region->Contains(x, y);
        edges += in != region->Contains(x - 1, y);
        edges += in != region->Contains(x, y - 1);
      }
  };
  const auto border = [&] {
    PaintRGNBorder2(painted, &*region, TRegionBorder::SingleRaised, {.Scale = 50, .Offset = 50}, nullptr);
  };
  border();
  Pairs times;
  for (int i = 0; i < 2; ++i) {
    const double slow = TimeOf(points);
    for (int k = 0; k < 2; ++k) times.Add(slow, TimeOf(border));
  }
  Report("border", times);
  if (edges == 0) qFatal("The region has no edge");
}

void MeasureButton(const TBitmap& picture) {
  TBitmap up, down, disabled;
  const auto draw = [&](int bevel, IVRXProgress* progress) {
    VRX3DEffectAbort = false;
    VRXDrawButton3D(picture, up, down, disabled, clFuchsia, clWhite, clGray, clWhite, clNone, clNone, clBlack,
                    false, bevel, progress);
  };
  const auto bytes =
      static_cast<std::size_t>(picture.Width() + 4) * static_cast<std::size_t>(picture.Height() + 4) * 4;
  const auto plain = [&] { draw(2, nullptr); };
  Report("button", InTurns(9, plain, Copying(4 * bytes)));
  TimedProgress progress;
  Report("progress", InTurns(
                         5, [&] { draw(2, &progress); }, plain));
  // Pictures of the size of the run before are used again; each side has its own here.
  Pairs wide;
  for (int i = 0; i < 5; ++i) {
    draw(20, nullptr);
    const double large = TimeOf([&] { draw(20, nullptr); });
    plain();
    wide.Add(large, TimeOf(plain));
  }
  Report("wide", wide);
}
}  // namespace

void MeasurePixels(const QString& kind, const QString& size) {
  const QStringList kinds{QStringLiteral("noise"), QStringLiteral("blobs"), QStringLiteral("text")};
  const QStringList sides = size.split(u'x');
  const TBitmap picture = MakePicture(static_cast<PictureKind>(kinds.indexOf(kind)), sides.value(0).toInt(),
                                      sides.value(1).toInt());
  MeasureRegion(picture);
  MeasureButton(picture);
}
