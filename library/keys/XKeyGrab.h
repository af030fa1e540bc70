// A key of the whole X session: whoever has the keyboard, its presses come here and to nobody else.
#pragma once
#include <functional>
#include <memory>

#include "rtl/Exceptions.h"
#include "vcl/ShortCut.h"

// A key cannot be had; the text says which, why, and what to do.
class EHotKeyError : public Exception {
 public:
  using Exception::Exception;
};

class XKeyGrab {
 public:
  // `pressed` hears from the event loop, once for each press, however long that lasts; it may free this one.
  // Throws EHotKeyError where there is no X display, no such key, or another program has it.
  XKeyGrab(TShortCut key, std::function<void()> pressed);
  // The key is everybody's again.
  ~XKeyGrab();
  XKeyGrab(const XKeyGrab&) = delete;
  XKeyGrab& operator=(const XKeyGrab&) = delete;

 private:
  class Connection;
  std::unique_ptr<Connection> connection_;
};
