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
// The shortest of several runs, after one that is not counted.
template <class F>
double Shortest(int runs, F&& run) {
  run();
  double shortest = 1e300;
  for (int i = 0; i < runs; ++i) {
    const Stopwatch time;
    run();
    shortest = std::min(shortest, time.Elapsed());
  }
  return shortest;
}

double CopyTime(std::size_t bytes) {
  std::vector<char> from(bytes, 1), to(bytes, 2);
  return Shortest(9, [&] {
    std::memcpy(to.data(), from.data(), bytes);
    asm volatile("" : : "r"(to.data()) : "memory");
  });
}

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
double PixmanTime(const TBitmap& picture) {
  const std::uint32_t background = PixelOf(clFuchsia);
  return Shortest(2, [&] {
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
  });
}
#endif

void MeasureRegion(const TBitmap& picture, double copy) {
  std::optional<TRegion> region;
  const double one = Shortest(7, [&] { region = CreateRgnFromBitmap2(picture, {clFuchsia}, 100, nullptr); });
  Report("region", one / copy);
  QRandomGenerator random(3);
  std::vector<TColor> many(500);
  for (TColor& color : many) color = TColor(random.generate() & 0xFFFFFFu);
  many[250] = clFuchsia;
  Report("many", Shortest(5, [&] { CreateRgnFromBitmap2(picture, many, 100, nullptr); }) / one);
#if defined(VRX_HAVE_PIXMAN)
  Report("pixman", PixmanTime(picture) / one);
#endif
  // The point-by-point painting that the border is defined by, without its reports and its writes.
  TBitmap painted;
  painted.Assign(&picture);
  const double border = Shortest(3, [&] {
    PaintRGNBorder2(painted, &*region, TRegionBorder::SingleRaised, {.Scale = 50, .Offset = 50}, nullptr);
  });
  const TRect box = region->Bounds();
  std::int64_t edges = 0;
  const Stopwatch time;
  for (int x = box.Left; x <= box.Right; ++x)
    for (int y = box.Top; y <= box.Bottom; ++y) {
      const bool in = region->Contains(x, y);
      edges += in != region->Contains(x - 1, y);
      edges += in != region->Contains(x, y - 1);
    }
  const double points = time.Elapsed();
  if (edges == 0) qFatal("The region has no edge");
  Report("border", points / border);
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
  const double four = CopyTime(4 * bytes);
  const double plain = Shortest(5, [&] { draw(2, nullptr); });
  TimedProgress progress;
  Report("button", plain / four);
  Report("progress", Shortest(5, [&] { draw(2, &progress); }) / plain);
  Report("wide", Shortest(3, [&] { draw(20, nullptr); }) / plain);
}
}  // namespace

void MeasurePixels(const QString& kind, const QString& size) {
  const QStringList kinds{QStringLiteral("noise"), QStringLiteral("blobs"), QStringLiteral("text")};
  const QStringList sides = size.split(u'x');
  const TBitmap picture = MakePicture(static_cast<PictureKind>(kinds.indexOf(kind)), sides.value(0).toInt(),
                                      sides.value(1).toInt());
  MeasureRegion(picture, CopyTime(static_cast<std::size_t>(picture.Width()) *
                                  static_cast<std::size_t>(picture.Height()) * 3));
  MeasureButton(picture);
}
