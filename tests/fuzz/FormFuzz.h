// What must hold for any bytes that a reader of forms is given.
#pragma once
#include "forms/Document.h"
#include "tests/fuzz/Target.h"

namespace formfuzz {

// Ends the program when something does not hold.
void Check(const QByteArray& bytes);

}  // namespace formfuzz
