// Pictures from files, for dialogs and commands, and from the bytes of a form.
//
// Bytes come from strangers. Everything is decoded from memory by the one decoder that the first bytes ask
// for, so that no picture can name a file or an address that would be opened.
#pragma once
#include "vcl/Bitmap.h"
#include "vcl/PictureHead.h"
#include "vcl/PixelPicture.h"

// Any format of the list that the toolkit reads; the picture is turned upright when it says that it lies.
// Only regular files are opened, and drawings that refer to anything outside are refused.
TBitmap LoadPicture(const QString& file);
// The same for icons: all that are in an icon file, in its order; of another file the one picture.
QList<QImage> LoadIcons(const QString& file);
// A picture that a form keeps (BMP, PNG), as QImage::Format_ARGB32 or RGB32. Throws EInvalidPicture,
// std::bad_alloc when memory is short.
QImage ImageFromBytes(const QByteArray& bytes);
QByteArray PictureToBytes(const QImage& image, const char* format);
// For file dialogs: all readable formats first, then every file.
QString PictureFilter();
