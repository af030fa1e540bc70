#include "library/keys/XDesktop.h"

#include <QByteArray>
#include <QObject>
#include <deque>
#include <span>

#include "library/keys/KeyMacro.h"
#include "library/keys/XErrors.h"

// Last: its macros are named like anybody's.
extern "C" {
#include <xdo.h>
}
#include <X11/Xatom.h>
#include <X11/keysym.h>

namespace {
useconds_t Microseconds(int milliseconds) { return static_cast<useconds_t>(milliseconds) * 1000; }

class XDesktop final : public IDesktop {
 public:
  XDesktop();
  ~XDesktop() override;
  XDesktop(const XDesktop&) = delete;
  XDesktop& operator=(const XDesktop&) = delete;

  std::vector<TVRXDesktopWindow> Windows() override;
  void Activate(std::uint64_t window) override;
  bool HasKeyboard(std::uint64_t window) override;
  bool ProgramHasKeyboard(std::uint64_t window) override;
  bool ReleaseHeldKeys(bool lockToo) override;
  void Press(const QByteArray& key, int milliseconds) override;
  void Hold(const QByteArray& key, int milliseconds) override;
  void Release(const QByteArray& key, int milliseconds) override;

 private:
  // A property of a window; nothing when it has none.
  struct Value {
    QByteArray bytes;
    Atom type = None;
    int format = 0;
  };
  Atom AtomOf(const char* name) const { return XInternAtom(display_, name, False); }
  Value Read(Window window, Atom property, long most) const;
  std::vector<unsigned long> Numbers(Window window, const char* property) const;
  QString CaptionOf(Window window) const;
  std::int64_t ProcessOf(Window window) const;
  std::vector<Window> Children(Window window) const;
  std::vector<Window> Tops() const;
  bool IsShown(Window window) const;
  Window Focused() const;
  // The window itself and those it stands in, up to the root, which is left out.
  std::vector<Window> Line(Window window) const;
  bool IsManaged() const { return !Numbers(root_, "_NET_SUPPORTING_WM_CHECK").empty(); }
  void Check(int result, const QByteArray& key) const;
  // A key that no key of the keyboard types gets one that types nothing yet, until nobody works on the
  // desktop any more: a program may look late at what a key means.
  KeyCode BorrowKey(KeySym symbol);
  void Give(KeyCode code, KeySym symbol);
  void LearnKeys();

  xdo_t* xdo_ = nullptr;
  Display* display_ = nullptr;
  Window root_ = None;
  std::vector<KeyCode> spare_;
  std::deque<std::pair<KeySym, KeyCode>> borrowed_;  // in the order of borrowing
};

XDesktop::XDesktop() {
  const QByteArray name = qgetenv("DISPLAY");
  if (name.isEmpty())
    throw ESendKeysError(QObject::tr(
        "This session has no X display (DISPLAY is not set). Keys can be sent in a session of the X "
        "window system only."));
  display_ = XOpenDisplay(name.constData());
  if (!display_)
    throw ESendKeysError(
        QObject::tr("The X display \"%1\" cannot be opened. Keys can be sent in a session of the "
                    "X window system only.")
            .arg(QString::fromLocal8Bit(name)));
  int opcode, event, error;
  const bool takesKeys = XQueryExtension(display_, "XTEST", &opcode, &event, &error);
  if (takesKeys) xdo_ = xdo_new_with_opened_display(display_, name.constData(), True);
  if (!xdo_) {
    XCloseDisplay(display_);
    throw ESendKeysError(
        QObject::tr("The X display \"%1\" lets no program send keys.").arg(QString::fromLocal8Bit(name)));
  }
  xdo_->quiet = True;
  root_ = DefaultRootWindow(display_);
  XErrors::Take(display_);
}

XDesktop::~XDesktop() {
  for (const auto& [symbol, code] : borrowed_) Give(code, NoSymbol);
  // Closing waits for the errors of what was asked last.
  Display* const display = display_;
  xdo_free(xdo_);
  XErrors::Leave(display);
}

XDesktop::Value XDesktop::Read(Window window, Atom property, long most) const {
  Value value;
  unsigned long items = 0, rest = 0;
  unsigned char* data = nullptr;
  if (XGetWindowProperty(display_, window, property, 0, most, False, AnyPropertyType, &value.type,
                         &value.format, &items, &rest, &data) != Success ||
      !data)
    return {};
  // Numbers of 32 bits come as those of the machine.
  const std::size_t size = value.format == 32 ? sizeof(long) : static_cast<std::size_t>(value.format) / 8;
  value.bytes = QByteArray(reinterpret_cast<char*>(data), static_cast<qsizetype>(items * size));
  XFree(data);
  return value;
}

std::vector<unsigned long> XDesktop::Numbers(Window window, const char* property) const {
  constexpr long most = 0x10000;
  const Value value = Read(window, AtomOf(property), most);
  if (value.format != 32) return {};
  const auto* first = reinterpret_cast<const unsigned long*>(value.bytes.constData());
  return {first, first + value.bytes.size() / static_cast<qsizetype>(sizeof(long))};
}

QString XDesktop::CaptionOf(Window window) const {
  constexpr qsizetype letters = 255;
  constexpr long words = 1024;  // enough for that many in any encoding
  Value value = Read(window, AtomOf("_NET_WM_NAME"), words);
  if (value.bytes.isEmpty()) value = Read(window, XA_WM_NAME, words);
  const bool latin = value.type == XA_STRING;
  return (latin ? QString::fromLatin1(value.bytes) : QString::fromUtf8(value.bytes)).left(letters);
}

std::int64_t XDesktop::ProcessOf(Window window) const {
  const auto numbers = Numbers(window, "_NET_WM_PID");
  return numbers.empty() ? 0 : static_cast<std::int64_t>(numbers.front());
}

std::vector<Window> XDesktop::Children(Window window) const {
  Window root, parent;
  Window* all = nullptr;
  unsigned count = 0;
  if (!XQueryTree(display_, window, &root, &parent, &all, &count) || !all) return {};
  std::vector<Window> children(all, all + count);
  XFree(all);
  return children;
}

bool XDesktop::IsShown(Window window) const {
  XWindowAttributes attributes;
  return XGetWindowAttributes(display_, window, &attributes) && attributes.map_state == IsViewable &&
         !attributes.override_redirect;
}

// Those that the window manager knows. Without one, what stands on the root.
std::vector<Window> XDesktop::Tops() const {
  const auto listed = Numbers(root_, "_NET_CLIENT_LIST");
  if (!listed.empty()) return {listed.begin(), listed.end()};
  std::vector<Window> tops;
  for (const Window window : Children(root_)) {
    if (!IsShown(window)) continue;
    // An older window manager puts frames around them.
    const auto inside = Children(window);
    const auto framed =
        std::find_if(inside.begin(), inside.end(), [&](Window w) { return !Numbers(w, "WM_STATE").empty(); });
    tops.push_back(framed == inside.end() ? window : *framed);
  }
  return tops;
}

std::vector<TVRXDesktopWindow> XDesktop::Windows() {
  std::vector<TVRXDesktopWindow> windows;
  for (const Window window : Tops()) {
    const QString caption = CaptionOf(window);
    if (!caption.isEmpty()) windows.push_back({window, caption, ProcessOf(window)});
  }
  return windows;
}

void XDesktop::Activate(std::uint64_t window) {
  if (IsManaged()) {
    xdo_activate_window(xdo_, window);
  } else if (IsShown(window)) {
    xdo_raise_window(xdo_, window);
    xdo_focus_window(xdo_, window);
  }
}

Window XDesktop::Focused() const {
  Window window = None;
  int revert;
  XGetInputFocus(display_, &window, &revert);
  return window == PointerRoot || window == root_ ? None : window;
}

std::vector<Window> XDesktop::Line(Window window) const {
  std::vector<Window> line;
  while (window != None && window != root_) {
    line.push_back(window);
    Window root, parent = None;
    Window* all = nullptr;
    unsigned count;
    if (!XQueryTree(display_, window, &root, &parent, &all, &count)) break;
    if (all) XFree(all);
    window = parent;
  }
  return line;
}

bool XDesktop::HasKeyboard(std::uint64_t window) {
  const auto line = Line(Focused());
  return std::find(line.begin(), line.end(), window) != line.end();
}

bool XDesktop::ProgramHasKeyboard(std::uint64_t window) {
  const auto line = Line(Focused());
  if (std::find(line.begin(), line.end(), window) != line.end()) return true;
  const std::int64_t process = ProcessOf(window);
  // All windows that a program makes over one connection have numbers of one range.
  const auto range = [](std::uint64_t w) { return w >> 21; };
  return std::any_of(line.begin(), line.end(), [&](Window w) {
    return range(w) == range(window) || (process != 0 && ProcessOf(w) == process);
  });
}

bool XDesktop::ReleaseHeldKeys(bool lockToo) {
  charcodemap_t* held = nullptr;
  int count = 0;
  xdo_get_active_modifiers(xdo_, &held, &count);
  if (count > 0) xdo_send_keysequence_window_list_do(xdo_, CURRENTWINDOW, held, count, False, nullptr, 0);
  free(held);
  const bool locked = lockToo && (xdo_get_input_state(xdo_) & LockMask) != 0;
  if (locked) Press("Caps_Lock", 0);
  return locked;
}

void XDesktop::LearnKeys() {
  int first, last, each;
  XDisplayKeycodes(display_, &first, &last);
  KeySym* symbols = XGetKeyboardMapping(display_, static_cast<KeyCode>(first), last - first + 1, &each);
  if (!symbols) return;
  for (int code = first; code <= last; ++code) {
    const KeySym* const own = symbols + static_cast<std::ptrdiff_t>(code - first) * each;
    if (std::all_of(own, own + each, [](KeySym s) { return s == NoSymbol; }))
      spare_.push_back(static_cast<KeyCode>(code));
  }
  XFree(symbols);
}

void XDesktop::Give(KeyCode code, KeySym symbol) {
  // The same with Shift and without.
  KeySym both[] = {symbol, symbol};
  XChangeKeyboardMapping(display_, code, 2, both, 1);
  XSync(display_, False);
}

KeyCode XDesktop::BorrowKey(KeySym symbol) {
  for (const auto& [of, code] : borrowed_)
    if (of == symbol) return code;
  if (spare_.empty() && borrowed_.empty()) LearnKeys();
  KeyCode code = 0;
  if (!spare_.empty()) {
    code = spare_.back();
    spare_.pop_back();
  } else if (!borrowed_.empty()) {
    code = borrowed_.front().second;
    borrowed_.pop_front();
  }
  if (code == 0) return 0;
  borrowed_.emplace_back(symbol, code);
  Give(code, symbol);
  return code;
}

void XDesktop::Check(int result, const QByteArray& key) const {
  if (result != XDO_SUCCESS)
    throw ESendKeysError(
        QObject::tr("The X display does not take the key \"%1\".").arg(QString::fromLatin1(key)));
}

void XDesktop::Press(const QByteArray& named, int milliseconds) {
  // Not every keyboard has the key; programs take the other one as well.
  const bool lacksHelp = named == "Help" && XKeysymToKeycode(display_, XK_Help) == 0;
  const QByteArray key = lacksHelp ? QByteArrayLiteral("F1") : named;
  const KeySym symbol = XStringToKeysym(key.constData());
  const bool borrowed =
      std::any_of(borrowed_.begin(), borrowed_.end(), [symbol](const auto& b) { return b.first == symbol; });
  if (symbol != NoSymbol && (borrowed || XKeysymToKeycode(display_, symbol) == 0))
    if (const KeyCode code = BorrowKey(symbol)) {
      charcodemap_t entry{0, code, symbol, 0, 0, 0};
      int held = 0;
      for (const int down : {1, 0})
        Check(xdo_send_keysequence_window_list_do(xdo_, CURRENTWINDOW, &entry, 1, down, &held,
                                                  Microseconds(milliseconds) / 2),
              key);
      return;
    }
  // Half of it passes before the key is released.
  Check(xdo_send_keysequence_window(xdo_, CURRENTWINDOW, key.constData(), Microseconds(milliseconds) / 2),
        key);
}
void XDesktop::Hold(const QByteArray& key, int milliseconds) {
  Check(xdo_send_keysequence_window_down(xdo_, CURRENTWINDOW, key.constData(), Microseconds(milliseconds)),
        key);
}
void XDesktop::Release(const QByteArray& key, int milliseconds) {
  Check(xdo_send_keysequence_window_up(xdo_, CURRENTWINDOW, key.constData(), Microseconds(milliseconds)),
        key);
}
}  // namespace

std::unique_ptr<IDesktop> OpenXDesktop() { return std::make_unique<XDesktop>(); }
