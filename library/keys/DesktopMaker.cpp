#include "library/keys/DesktopMaker.h"

#include <mutex>

#include "library/keys/XDesktop.h"

namespace {
std::mutex Guard;
TDesktopMaker Maker;
}  // namespace

std::unique_ptr<IDesktop> OpenDesktop() {
  TDesktopMaker maker;
  {
    const std::lock_guard lock(Guard);
    maker = Maker;
  }
  return maker ? maker() : OpenXDesktop();
}

void SetDesktopMaker(TDesktopMaker maker) {
  const std::lock_guard lock(Guard);
  Maker = std::move(maker);
}
