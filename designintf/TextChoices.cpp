#include "designintf/TextChoices.h"

#include <QHash>

namespace {
QHash<QByteArray, TTextChoices>& Registered() {
  static QHash<QByteArray, TTextChoices> choices;
  return choices;
}
}  // namespace

void RegisterTextChoices(const QByteArray& property, TTextChoices choices) {
  if (choices)
    Registered().insert(property, choices);
  else
    Registered().remove(property);
}

QStringList TextChoicesOf(const TPersistent& object, const QByteArray& property) {
  const TTextChoices choices = Registered().value(property);
  return choices ? choices(object) : QStringList();
}
