#include "library/keys/XKeyGrab.h"

#include <QObject>
#include <QPointer>
#include <QSocketNotifier>

#include "library/keys/XErrors.h"

// Last: its macros are named like anybody's.
#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/keysym.h>

namespace {
struct Range {
  std::uint16_t first, last;  // virtual keys
  KeySym symbol;              // of the first
};
constexpr Range Keys[] = {
    {'A', 'Z', XK_a},
    {'0', '9', XK_0},
    {0x70, 0x87, XK_F1},
    {0x60, 0x69, XK_KP_0},
    {0x08, 0x08, XK_BackSpace},
    {0x09, 0x09, XK_Tab},
    {0x0D, 0x0D, XK_Return},
    {0x1B, 0x1B, XK_Escape},
    {0x20, 0x20, XK_space},
    {0x21, 0x22, XK_Page_Up},
    {0x23, 0x23, XK_End},
    {0x24, 0x24, XK_Home},
    {0x25, 0x28, XK_Left},
    {0x2D, 0x2D, XK_Insert},
    {0x2E, 0x2E, XK_Delete},
    {0x6A, 0x6B, XK_KP_Multiply},
    {0x6D, 0x6D, XK_KP_Subtract},
    {0x6F, 0x6F, XK_KP_Divide},
    {0xBA, 0xBA, XK_semicolon},
    {0xBB, 0xBB, XK_equal},
    {0xBC, 0xBE, XK_comma},
    {0xBF, 0xBF, XK_slash},
    {0xC0, 0xC0, XK_grave},
    {0xDB, 0xDD, XK_bracketleft},
    {0xDE, 0xDE, XK_apostrophe},
};
KeySym SymbolOf(std::uint16_t virtualKey) {
  for (const Range& range : Keys)
    if (virtualKey >= range.first && virtualKey <= range.last)
      return range.symbol + static_cast<KeySym>(virtualKey - range.first);
  return NoSymbol;
}

// The bit of the modifiers under which the keyboard has a key.
unsigned MaskOf(Display* display, KeySym symbol, unsigned usual) {
  const KeyCode code = XKeysymToKeycode(display, symbol);
  XModifierKeymap* map = XGetModifierMapping(display);
  unsigned mask = usual;
  for (int bit = 0; code != 0 && bit < 8; ++bit)
    for (int i = 0; i < map->max_keypermod; ++i)
      if (map->modifiermap[bit * map->max_keypermod + i] == code) mask = 1u << bit;
  XFreeModifiermap(map);
  return mask;
}
}  // namespace

class XKeyGrab::Connection {
 public:
  Connection(TShortCut key, std::function<void()> pressed);
  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

 private:
  void Open();
  void Close();
  void Grab();
  void Release();
  void Read();
  // Every press counts, whatever locks are on.
  template <class F>
  void WithLocks(F&& act) const {
    for (const unsigned locks : {0u, unsigned{LockMask}, numLock_, LockMask | numLock_})
      act(modifiers_ | locks);
  }

  const TShortCut key_;
  std::function<void()> pressed_;
  Display* display_ = nullptr;
  QPointer<QSocketNotifier> notifier_;
  int code_ = 0;
  unsigned modifiers_ = 0, numLock_ = 0;
  bool down_ = false;
};

XKeyGrab::Connection::Connection(TShortCut key, std::function<void()> pressed)
    : key_(key), pressed_(std::move(pressed)) {
  Open();
  try {
    Grab();
  } catch (...) {
    Close();
    throw;
  }
  notifier_ = new QSocketNotifier(ConnectionNumber(display_), QSocketNotifier::Read);
  QObject::connect(notifier_, &QSocketNotifier::activated, notifier_, [this] { Read(); });
}

// What is still to be read of it goes with it. The notifier may be what calls.
XKeyGrab::Connection::~Connection() {
  notifier_->setEnabled(false);
  notifier_->deleteLater();
  Release();
  Close();
}

void XKeyGrab::Connection::Close() {
  // Closing waits for the errors of what was asked last.
  XCloseDisplay(display_);
  XErrors::Leave(display_);
}

void XKeyGrab::Connection::Open() {
  const QByteArray name = qgetenv("DISPLAY");
  if (name.isEmpty())
    throw EHotKeyError(QObject::tr("This session has no X display (DISPLAY is not set). %1 can be had in a "
                                   "session of the X window system only.")
                           .arg(ShortCutToText(key_)));
  display_ = XOpenDisplay(name.constData());
  if (!display_)
    throw EHotKeyError(
        QObject::tr("The X display \"%1\" cannot be opened. %2 can be had in a session of the X "
                    "window system only.")
            .arg(QString::fromLocal8Bit(name), ShortCutToText(key_)));
  XErrors::Take(display_);
  // Without it a key that is held is released and pressed all the time.
  XkbSetDetectableAutoRepeat(display_, True, nullptr);
}

void XKeyGrab::Connection::Grab() {
  const auto word = static_cast<std::uint16_t>(key_);
  const KeySym symbol = SymbolOf(word & 0xFF);
  code_ = symbol == NoSymbol ? 0 : XKeysymToKeycode(display_, symbol);
  if (code_ == 0)
    throw EHotKeyError(
        QObject::tr("The keyboard has no key for %1. Choose another one.").arg(ShortCutToText(key_)));
  numLock_ = MaskOf(display_, XK_Num_Lock, Mod2Mask);
  modifiers_ = 0;
  if (word & scShift) modifiers_ |= ShiftMask;
  if (word & scCtrl) modifiers_ |= ControlMask;
  if (word & scAlt) modifiers_ |= MaskOf(display_, XK_Alt_L, Mod1Mask);
  XErrors::First(display_);
  WithLocks([this](unsigned mask) {
    XGrabKey(display_, code_, mask, DefaultRootWindow(display_), False, GrabModeAsync, GrabModeAsync);
  });
  XSync(display_, False);
  if (XErrors::First(display_) == 0) return;
  Release();
  throw EHotKeyError(QObject::tr("%1 is taken already, here or by another program. Choose another key, or free that one.")
                         .arg(ShortCutToText(key_)));
}

void XKeyGrab::Connection::Release() {
  WithLocks([this](unsigned mask) { XUngrabKey(display_, code_, mask, DefaultRootWindow(display_)); });
  XSync(display_, False);
}

void XKeyGrab::Connection::Read() {
  int presses = 0;
  while (XPending(display_) > 0) {
    XEvent event;
    XNextEvent(display_, &event);
    if (event.type == MappingNotify) XRefreshKeyboardMapping(&event.xmapping);
    if (event.type == KeyPress && !std::exchange(down_, true)) ++presses;
    if (event.type == KeyRelease) down_ = false;
  }
  // A server that is gone is no news any more.
  if (XErrors::IsLost(display_)) notifier_->setEnabled(false);
  const QPointer<QSocketNotifier> notifier = notifier_;
  const auto call = pressed_;
  // Who hears of it may free what called.
  for (; presses > 0 && notifier && notifier->isEnabled(); --presses) call();
}

XKeyGrab::XKeyGrab(TShortCut key, std::function<void()> pressed)
    : connection_(std::make_unique<Connection>(key, std::move(pressed))) {}
XKeyGrab::~XKeyGrab() = default;
