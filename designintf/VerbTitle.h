// What the command of a verb is called.
#pragma once
#include <QString>

// As the menu shows it, without the mark of its key.
inline QString VerbTitle(QString caption) { return caption.remove(u'&'); }
