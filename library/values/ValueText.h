// Values of an object as lines of text ("Bitmap.Data = ...", "Style = [fsBold]") and back, for files that
// people and later versions may have written.
#pragma once
#include <QStringList>

class TPersistent;
class TPropInfo;

// A text in quotes, on one line, and back. False for what is no such text.
QString QuotedText(const QString& text);
bool UnquotedText(QStringView quoted, QString& text);

// What is not at its default, in the order of the properties.
QStringList ValueLines(const TPersistent& object);

// One value, and back: a part's is its lines, that of a list of texts the texts in quotes.
QString ValueTextOf(const TPersistent& object, const TPropInfo& prop);

enum class TValueRead {
  Taken,
  Foreign,  // well-formed, but nothing that this object knows
};
// One such line, which changes the object. Throws Exception with what is wrong; the object is then unchanged.
TValueRead ReadValueLine(TPersistent& object, QStringView line);
// A text that ValueTextOf made. A part takes all of it or, when it throws, nothing; what of its lines is
// foreign goes to `foreign`.
TValueRead ReadValueText(TPersistent& object, const TPropInfo& prop, const QString& text,
                         QStringList* foreign = nullptr);
