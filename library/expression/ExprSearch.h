// Finding texts in texts, in time that grows with both together and never with their product.
#pragma once
#include <QString>
#include <functional>

namespace expression {

// Calls `found` with each place, from left to right and without overlap, until it says false. An empty text
// is found nowhere.
void Search(QStringView text, QStringView what, const std::function<bool(qsizetype)>& found);
// -1 when it is not there.
qsizetype FirstPlace(QStringView text, QStringView what, qsizetype from = 0);

}  // namespace expression
