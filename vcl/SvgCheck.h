// Drawings are texts that can name files and addresses. One that a person loads is a picture of its own or it
// is none: whatever it would fetch from elsewhere is refused before it is drawn.
#pragma once
#include <QByteArray>

// Whether the bytes look like a drawing, plain or compressed.
bool IsSvg(QByteArrayView bytes);
// The plain text of the drawing. Throws EInvalidPicture, `what` at the start of the sentence, when it refers
// to anything outside, holds a drawing or a damaged picture inside, or cannot be read.
QByteArray SelfContainedSvg(const QByteArray& bytes, const QString& what);
