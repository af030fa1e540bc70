// Fuzz target: the reader of streams and resources. Anything else is read as a stream without its signature.
#include "tests/fuzz/FormFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const bool text = forms::Document::Detect(bytes) == forms::Format::Text;
  formfuzz::Check(text ? "TPF0" + bytes : bytes);
  return 0;
}
