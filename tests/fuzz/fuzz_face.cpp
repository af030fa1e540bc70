// Fuzz target: a file of a face controller.
#include "library/values/FaceObjects.h"
#include "rtl/Exceptions.h"
#include "tests/fuzz/Target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  for (const bool withStates : {true, false}) {
    TVRXCFCSettingObjects settings;
    TVRXCFCStateObjects states;
    TVRXCFCStateObjects* const all = withStates ? &states : nullptr;
    settings.AddObject(TVRXCFCSettingObjectKind::okBevel);
    const QByteArray before = VRXFaceText(settings, all);
    try {
      VRXReadFaceText(bytes, settings, all);
    } catch (const Exception&) {
      Require(VRXFaceText(settings, all) == before, "what is refused changes nothing");
      continue;
    }
    const QByteArray once = VRXFaceText(settings, all);
    VRXReadFaceText(once, settings, all);
    Require(VRXFaceText(settings, all) == once, "what was written is read as it was");
  }
  return 0;
}
