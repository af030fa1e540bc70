// Texts are measured and drawn as far as anybody could see them.
#pragma once
#include <QString>

// The text, or its beginning when it is longer than any picture of a form can show: laying out a caption of
// 100 million characters takes a long time and changes no pixel.
QString ShownText(const QString& text);
