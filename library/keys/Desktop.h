// The windows and the keyboard of the running desktop, as far as sending keys needs them. Everything here may
// take its time and throws ESendKeysError.
#pragma once
#include <QString>
#include <memory>
#include <vector>

class QByteArray;

struct TVRXDesktopWindow {
  std::uint64_t Id = 0;
  QString Caption;           // its first 255 letters
  std::int64_t Process = 0;  // 0: it does not say
};

class IDesktop {
 public:
  virtual ~IDesktop() = default;
  // Those with a caption, as the desktop has them in order.
  virtual std::vector<TVRXDesktopWindow> Windows() = 0;
  // Asks for the keyboard to go to the window. Whether it went there HasKeyboard tells, sooner or later.
  virtual void Activate(std::uint64_t window) = 0;
  virtual bool HasKeyboard(std::uint64_t window) = 0;
  // Whether the keyboard is at any window of the program that the window belongs to.
  virtual bool ProgramHasKeyboard(std::uint64_t window) = 0;
  // Keys that a person holds, and a capitals lock, would change what is sent. Returns whether the lock was
  // on.
  virtual bool ReleaseHeldKeys(bool lockToo) = 0;
  // Keys are named as in TVRXKeyStep. `milliseconds` go by behind each.
  virtual void Press(const QByteArray& key, int milliseconds) = 0;
  virtual void Hold(const QByteArray& key, int milliseconds) = 0;
  virtual void Release(const QByteArray& key, int milliseconds) = 0;
};
