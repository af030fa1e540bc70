// Keystroke macros. A character is the key that types it; "+", "^" and "%" hold Shift, Control and Alt for
// the next key or for a group in parentheses; "~" is Enter; "{NAME}" is a key without a character, "{x}" any
// one character as it is, and "{NAME 10}" or "{x 10}" that key ten times. A line break is Enter, a tab Tab.
#pragma once
#include <QByteArray>
#include <QList>
#include <QStringList>

#include "rtl/Exceptions.h"

// A macro that cannot be read, or keys that did not arrive.
class ESendKeysError : public Exception {
 public:
  using Exception::Exception;
};
class EKeyMacroError : public ESendKeysError {
 public:
  EKeyMacroError(qsizetype place, const QString& text);
  const qsizetype Place;  // in the macro, from 0 on
};

enum class TVRXKeyAction : std::uint8_t { Press, Hold, Release };
struct TVRXKeyStep {
  TVRXKeyAction Action = TVRXKeyAction::Press;
  QByteArray Key;  // as the X window system names it: "Return", "U0041" for a character
  int Count = 1;   // how often it is pressed
  bool operator==(const TVRXKeyStep&) const = default;
};
using TVRXKeySteps = QList<TVRXKeyStep>;

// What is to be done with the keys, one after the other. Every key that is held is released again. Throws
// EKeyMacroError.
TVRXKeySteps VRXReadKeyMacro(const QString& macro);
// How many keys that presses.
int VRXKeyCount(const TVRXKeySteps& steps);

struct TVRXSupportedKey {
  QString Key, Description;
};
// Every key that has a text of its own in macros, in the order in which they are explained.
const QList<TVRXSupportedKey>& VRXSupportedKeys();
