// PNGs of pictures so large that writing them takes seconds: in strips, on all cores, with a say in it.
#pragma once
#include <QImage>
#include <functional>

// Percent done so far; false ends the work.
using TGoOn = std::function<bool(int percent)>;

// Smaller pictures are written by the toolkit, quickly enough and smaller by a bit.
constexpr std::int64_t LargePicturePixels = std::int64_t{1} << 22;
inline bool IsLargePicture(const QSize& size) {
  return std::int64_t{size.width()} * size.height() >= LargePicturePixels;
}

// `goOn` is asked on the calling thread, at least once. No bytes when it ended the work.
QByteArray LargePng(const QImage& image, const TGoOn& goOn = {});
