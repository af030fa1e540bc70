// What somebody may have meant by a name that is not there.
#pragma once
#include <QStringList>

// " Did you mean A, B or C?": the nearest of the names; empty when none is near.
QString DidYouMean(const QString& wanted, const QStringList& names);
