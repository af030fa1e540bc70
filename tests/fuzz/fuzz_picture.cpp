// Fuzz target: the pictures of forms, and the check of drawings that a person loads.
#include "library/values/StoredPicture.h"
#include "tests/fuzz/Target.h"
#include "vcl/PictureFile.h"
#include "vcl/SvgCheck.h"

namespace {
void CheckStored(const QByteArray& bytes) {
  TPictureHead head;
  try {
    head = StoredPictureHead(bytes, bytes.size());
  } catch (const EInvalidPicture&) {
    try {
      StoredPicture().SetBytes(bytes);
    } catch (const EInvalidPicture&) {
      return;
    }
    Require(bytes.isEmpty(), "what has no head is refused");
    return;
  }
  Require(IsStoredPicture(bytes), "only the formats of forms have a head");
  constexpr std::int64_t QuickEnough = 1 << 20;
  if (head.DecodedBytes() > QuickEnough) return;
  StoredPicture picture;
  try {
    picture.SetBytes(bytes);
  } catch (const EInvalidPicture&) {
    Require(picture.Empty() && picture.Bytes().isEmpty(), "a refused picture changes nothing");
    return;
  }
  Require(picture.Bytes() == bytes, "the bytes stay as they came");
  Require(picture.Size() == head.size && picture.Image().size() == head.size, "the head tells the size");
  StoredPicture copy;
  copy.SetImage(picture.Image());
  const QByteArray written = copy.Bytes();
  copy.SetBytes(written);
  Require(copy.Image() == picture.Image(), "what is written is read again");
}

void CheckDrawing(const QByteArray& bytes) {
  if (!IsSvg(bytes)) return;
  try {
    const QByteArray text = SelfContainedSvg(bytes, QStringLiteral("It"));
    Require(SelfContainedSvg(text, QStringLiteral("It")) == text, "a plain drawing is its own text");
  } catch (const EInvalidPicture& e) {
    Require(e.Message().startsWith(QStringLiteral("It")), "a refusal names the drawing");
  }
}
}  // namespace

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
