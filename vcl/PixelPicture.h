// Pictures decoded from memory, by the one decoder that the first bytes ask for.
#pragma once
#include <QByteArray>
#include <QImage>
#include <QStringList>

// Any format but drawings. `what` names the picture at the start of a sentence. Throws EInvalidPicture,
// std::bad_alloc when memory is short.
QImage PixelPictureFromBytes(const QByteArray& bytes, const QString& what);
// Of a format that is known already.
QImage DecodedPicture(const QByteArray& bytes, const char* format, const QString& what);
// Every picture of an icon file, in its order; of others the one that it has.
QList<QImage> PixelPicturesFromBytes(const QByteArray& bytes, const QString& what);
// The endings of files that can be read here.
QStringList PictureEndings();
