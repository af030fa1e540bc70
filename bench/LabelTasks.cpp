#include "bench/LabelTasks.h"

#include <QPainter>
#include <functional>

#include "bench/Measure.h"
#include "library/controls/GraphicLabel.h"

namespace {
constexpr QSize Size(400, 100);
constexpr int Repeats = 20;

double TimeOf(const std::function<void(QPainter&)>& paint) {
  QImage image(Size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::white);
  QPainter painter(&image);
  const Stopwatch watch;
  for (int i = 0; i < Repeats; ++i) paint(painter);
  return watch.Elapsed();
}
}  // namespace

void MeasureGraphicLabel(const QString&, const QString&) {
  TVRXGraphicLabel label(nullptr);
  label.SetAutoSize(false);
  label.SetBounds(0, 0, Size.width(), Size.height());
  label.SetCaption(QStringLiteral("The quick brown fox"));
  label.Set(TVRXGraphicLabel::Stretch, true);
  label.FontFX()->SetStyle(TVRX3DTextStyle::tdShadow);
  label.FontFX()->SetDepth(1, 3);
  const auto ours = [&](QPainter& p) { PaintControl(label, p); };
  const auto slowest = [&] {
    double most = 0;
    auto found = TVRXTransform::tmNone;
    for (int t = 0; t <= static_cast<int>(TVRXTransform::tmHalfmoon); ++t) {
      label.SetTransform(static_cast<TVRXTransform>(t));
      TimeOf(ours);
      const double time = TimeOf(ours);
      if (time > most) most = time, found = static_cast<TVRXTransform>(t);
    }
    return found;
  };
  label.SetTransform(slowest());
  const QPainterPath outline = label.Outline();
  const auto plain = [&](QPainter& p) {
    p.setRenderHint(QPainter::Antialiasing);
    p.fillPath(outline, Qt::black);
  };
  TimeOf(ours), TimeOf(plain);
  constexpr int Rounds = 15;
  Pairs pairs;
  for (int i = 0; i < Rounds; ++i) {
    const double time = TimeOf(ours);
    pairs.Add(time, TimeOf(plain));
  }
  Report("label", pairs);
}
