// What must hold for any bytes that a reader of forms is given.
#pragma once
#include <cstdint>

#include "forms/Document.h"

namespace formfuzz {

// Ends the program when something does not hold.
void Check(const QByteArray& bytes);

}  // namespace formfuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
