#include "bench/Pictures.h"

#include <QPainter>
#include <QRandomGenerator>

namespace {
TBitmap Noise(int width, int height) {
  TBitmap picture = TBitmap::Uninitialized(width, height);
  const std::uint32_t background = PixelOf(clFuchsia);
  std::uint64_t state = 12345;
  for (int y = 0; y < height; ++y) {
    std::uint32_t* row = picture.WritableRow(y);
    for (int x = 0; x < width; ++x) {
      state = state * 6364136223846793005u + 1442695040888963407u;
      const auto bits = static_cast<std::uint32_t>(state >> 33);
      row[x] = bits & 1u ? background : 0xFF000000u | (bits >> 1 & 0xFFFFFFu);
    }
  }
  return picture;
}

void DrawBlobs(QPainter& p, int width, int height, QRandomGenerator& random) {
  p.setPen(Qt::NoPen);
  for (int i = 0; i < 60; ++i) {
    const double radius = random.bounded(height / 12) + height / 24.0;
    const QPointF centre(random.bounded(width), random.bounded(height));
    QRadialGradient shade(centre, radius);
    shade.setColorAt(0, QColor::fromHsv(random.bounded(360), 200, 255));
    shade.setColorAt(1, QColor::fromHsv(random.bounded(360), 200, 80));
    p.setBrush(shade);
    p.drawEllipse(centre, radius, radius);
  }
}

void DrawText(QPainter& p, int width, int height, QRandomGenerator& random) {
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPixelSize(16);
  p.setFont(font);
  p.setPen(Qt::black);
  for (int y = 16; y < height; y += 20) {
    QString line;
    for (int i = 0; i < width / 8; ++i) line += QChar(u'a' + random.bounded(26));
    p.drawText(4, y, line);
  }
}
}  // namespace

TBitmap MakePicture(PictureKind kind, int width, int height) {
  if (kind == PictureKind::Noise) return Noise(width, height);
  TBitmap picture(width, height);
  picture.Fill(clFuchsia);
  QPainter painter(&picture.WritableImage());
  painter.setRenderHint(QPainter::Antialiasing);
  QRandomGenerator random(7);
  (kind == PictureKind::Blobs ? DrawBlobs : DrawText)(painter, width, height, random);
  return picture;
}
