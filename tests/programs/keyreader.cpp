// keyreader [--tell] [--child] [TITLE]: a window of the X window system that tells which keys it gets, a line
// each. With --child the keyboard goes to a window in the window, as in most programs.
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <string>

namespace {
std::string Held(unsigned state) {
  std::string held;
  if (state & ShiftMask) held += " Shift";
  if (state & LockMask) held += " Lock";
  if (state & ControlMask) held += " Control";
  if (state & Mod1Mask) held += " Alt";
  return held;
}
}  // namespace

int main(int argc, char** argv) {
  const char* title = "Key reader";
  bool tell = false, child = false;
  for (int i = 1; i < argc; ++i) {
    if (!std::strcmp(argv[i], "--tell"))
      tell = true;
    else if (!std::strcmp(argv[i], "--child"))
      child = true;
    else
      title = argv[i];
  }
  Display* display = XOpenDisplay(nullptr);
  if (!display) return 1;
  const Window window =
      XCreateSimpleWindow(display, DefaultRootWindow(display), 10, 10, 200, 100, 0, 0, 0xFFFFFF);
  const Window inner = child ? XCreateSimpleWindow(display, window, 0, 0, 50, 50, 0, 0, 0xFF) : window;
  XChangeProperty(display, window, XInternAtom(display, "_NET_WM_NAME", False),
                  XInternAtom(display, "UTF8_STRING", False), 8, PropModeReplace,
                  reinterpret_cast<const unsigned char*>(title), static_cast<int>(std::strlen(title)));
  const long process = getpid();
  XChangeProperty(display, window, XInternAtom(display, "_NET_WM_PID", False), XA_CARDINAL, 32,
                  PropModeReplace, reinterpret_cast<const unsigned char*>(&process), 1);
  XSelectInput(display, window, KeyPressMask | KeyReleaseMask | ExposureMask | FocusChangeMask);
  if (child) {
    XSelectInput(display, inner, KeyPressMask | KeyReleaseMask);
    XMapWindow(display, inner);
  }
  XMapWindow(display, window);
  bool ready = false;
  for (;;) {
    XEvent event;
    XNextEvent(display, &event);
    if (event.type == MappingNotify) XRefreshKeyboardMapping(&event.xmapping);
    if (event.type == FocusIn && child) XSetInputFocus(display, inner, RevertToParent, CurrentTime);
    if (event.type == Expose && !ready) {
      ready = true;
      if (tell) std::puts("ready");
    }
    if (event.type == KeyPress || event.type == KeyRelease) {
      char text[32];
      KeySym symbol = NoSymbol;
      XLookupString(&event.xkey, text, sizeof text, &symbol, nullptr);
      const char* name = XKeysymToString(symbol);
      if (tell)
        std::printf("%s %s%s\n", event.type == KeyPress ? "down" : "up", name ? name : "?",
                    Held(event.xkey.state).c_str());
    }
    std::fflush(stdout);
  }
}
