// Fuzz target: the pictures of forms, and the check of drawings that a person loads.
#include "library/values/StoredPicture.h"
#include "tests/fuzz/Target.h"
#include "vcl/PictureFile.h"
#include "vcl/SvgCheck.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // What decoders have to say about such pictures is said by exceptions.
  static const auto quiet =
      qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  Q_UNUSED(quiet)
  const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const QByteArray lean = LeanPng(bytes);
  Require(lean.size() <= bytes.size() && LeanPng(lean) == lean, "a lean picture stays as it is");
  CheckStored(bytes);
  CheckDrawing(bytes);
  return 0;
}
