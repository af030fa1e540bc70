// Icons of component classes: drawn, so that they are sharp at every size and follow the theme.
//
// A class names its icon where it describes itself (TClassBuilder::ClassDoc), as a drawing on a field of 24
// by 24, word by word. The accent is that of the palette page that the class is on:
//   pen INK [WIDTH [dots]]   brush INK       line, fill or accent, which suit the theme; accent+50, that much
//                                            nearer to the ground; #rrggbb; none
//   box X Y W H RADIUS       oval X Y W H
//   path X Y X Y ...         shape X Y X Y ...      open and closed
//   text X Y SIZE WORD       around that point
#pragma once
#include <QGuiApplication>
#include <QIcon>
#include <QPalette>

#include "rtl/Class.h"

// The icon of the class or its nearest ancestor; a plain component symbol when none has one.
QIcon ComponentIcon(const TClass& cls);
// Of a drawing that outlives the icon.
QIcon DrawnIcon(QByteArrayView drawing);
// The same as a picture of `pixels` by `pixels`, readable on what `palette` paints.
QPixmap ComponentPixmap(const TClass& cls, int pixels, qreal devicePixelRatio = 1,
                        const QPalette& palette = QGuiApplication::palette());
// The first word of a drawing that is none of these; empty when all are.
QByteArray UnknownWordOf(QByteArrayView drawing);
