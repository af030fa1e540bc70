#include "library/keys/XErrors.h"

#include <X11/Xlib.h>

#include <algorithm>
#include <mutex>
#include <utility>
#include <vector>

namespace {
struct Ours {
  Display* display;
  int error = 0;
  bool lost = false;
};
std::mutex Guard;
std::vector<Ours> Displays;
XErrorHandler Others = nullptr;
XIOErrorHandler LostOthers = nullptr;

// With the guard held.
Ours* Find(Display* display) {
  const auto it = std::find_if(Displays.begin(), Displays.end(),
                               [display](const Ours& o) { return o.display == display; });
  return it == Displays.end() ? nullptr : &*it;
}

int Handle(Display* display, XErrorEvent* event) {
  XErrorHandler others;
  {
    const std::lock_guard lock(Guard);
    if (Ours* ours = Find(display)) {
      if (ours->error == 0) ours->error = event->error_code;
      return 0;
    }
    others = Others;
  }
  return others ? others(display, event) : 0;
}
int HandleLost(Display* display) {
  XIOErrorHandler others;
  {
    const std::lock_guard lock(Guard);
    if (Ours* ours = Find(display)) {
      ours->lost = true;
      return 0;
    }
    others = LostOthers;
  }
  return others ? others(display) : 0;
}
void GoOn(Display*, void*) {}
}  // namespace

void XErrors::Take(_XDisplay* display) {
  static const XErrorHandler before = XSetErrorHandler(&Handle);
  // A server that goes away answers nothing from then on; programs need not go with it.
  static const XIOErrorHandler lostBefore = XSetIOErrorHandler(&HandleLost);
  XSetIOErrorExitHandler(display, &GoOn, nullptr);
  const std::lock_guard lock(Guard);
  Others = before;
  LostOthers = lostBefore;
  Displays.push_back({display});
}
void XErrors::Leave(_XDisplay* display) {
  const std::lock_guard lock(Guard);
  std::erase_if(Displays, [display](const Ours& o) { return o.display == display; });
}
int XErrors::First(_XDisplay* display) {
  const std::lock_guard lock(Guard);
  Ours* const ours = Find(display);
  return ours ? std::exchange(ours->error, 0) : 0;
}
bool XErrors::IsLost(_XDisplay* display) {
  const std::lock_guard lock(Guard);
  const Ours* const ours = Find(display);
  return ours && ours->lost;
}
