// Texts that a property suggests: the inspector lists them, and any other can still be typed.
#pragma once
#include <QStringList>

class TPersistent;

// For all texts of this property's name; the object is the one that has it, and nothing is suggested with an
// empty list. Packages take theirs back (null) before they go.
using TTextChoices = QStringList (*)(const TPersistent& object);
void RegisterTextChoices(const QByteArray& property, TTextChoices choices);
QStringList TextChoicesOf(const TPersistent& object, const QByteArray& property);
