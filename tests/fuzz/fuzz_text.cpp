// Fuzz target: the reader of text forms.
#include "tests/fuzz/FormFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  if (forms::Document::Detect(bytes) == forms::Format::Text) formfuzz::Check(bytes);
  return 0;
}
