// Pictures with fewer colours, and the bitmap files that hold them.
//
// What each depth leaves of a picture, and how a pixel is stored when nothing compresses it:
//   spfDefault  all colours                                                        24 bits
//   spfMono     black and white, by the brightness                                 1 bit
//   spf4bit     16 colours: its own when there are no more, else the nearest of
//               the platform's 16                                                  4 bits
//   spf8bit     256 colours: its own when there are no more, else 8 levels of red
//               and green and 4 of blue                                            8 bits
//   spf16bit    32 levels of red and blue and 64 of green                          16 bits, 5-6-5
// Reducing a picture twice changes nothing more. Transparency stays as it is.
#pragma once
#include <QByteArray>
#include <QImage>

#include "rtl/TypeInfo.h"

// How many colours the pictures are stored with; the names are those of pixel formats.
enum class TVRXColorDepth : std::uint8_t { spfDefault, spfMono, spf4bit, spf8bit, spf16bit };
VRX_ENUM(TVRXColorDepth, {"spfDefault", "spfMono", "spf4bit", "spf8bit", "spf16bit"})

// As QImage::Format_RGB32 or ARGB32.
QImage WithDepth(const QImage& image, TVRXColorDepth depth);
// A bitmap file of a picture without transparency that has the colours of the depth already.
QByteArray BitmapOfDepth(const QImage& reduced, TVRXColorDepth depth);
// The picture that was read from such a file. Readers leave the levels of 16 bits short of white; here they
// get the values that they had before they were stored. Other pictures stay as they are.
QImage WithFullLevels(const QImage& read, const QByteArray& bytes);
