// What a new component of a class looks like.
#pragma once
#include <QImage>

#include "designintf/DesignRegistry.h"

// Classes that have a picture: those of the palette and, without a page, the other visible ones.
std::vector<TPalettePage> PagesOfPictures(const DesignRegistry& registry);
// Alone on a form, as the designer places it; what changes how its form looks on a form with its frame; what
// is not visible as its icon. In the forms' colors.
QImage PictureOf(const TClass& cls, DesignRegistry& registry, double scale);
