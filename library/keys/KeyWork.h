// What can be done to the desktop. Everything waits for what it does, and throws ESendKeysError, also when it
// is told to stop.
#pragma once
#include <functional>
#include <optional>

#include "library/keys/Desktop.h"
#include "library/keys/KeyMacro.h"

class KeyWork {
 public:
  // Waits for so many milliseconds, or less when the work is to stop: true then.
  using Pause = std::function<bool(int milliseconds)>;
  explicit KeyWork(Pause pause) : pause_(std::move(pause)) {}

  std::vector<TVRXDesktopWindow> Windows() { return Desktop().Windows(); }
  // Starts the program and waits for its window. `patience` is in milliseconds.
  TVRXDesktopWindow Shell(const QString& file, int patience);
  // The window of that caption, else one whose caption begins so, gets the keyboard and is what keys are sent
  // to from then on.
  void AppActivate(const QString& caption, int patience);
  struct Sending {
    int delay = 0;           // milliseconds behind each key
    int patience = 0;        // milliseconds until the keyboard is where it should be
    bool keepTarget = true;  // stops when it goes to another program
  };
  void Send(const TVRXKeySteps& steps, const Sending& how);

  // After a failure the next work begins anew.
  void Forget() { desktop_.reset(); }

 private:
  IDesktop& Desktop();
  void Wait(int milliseconds);
  // Asks again and again; false when the time is over.
  bool WaitFor(int patience, const std::function<bool()>& fact);
  void RequireTarget(const Sending& how, int sent, int all);

  Pause pause_;
  std::unique_ptr<IDesktop> desktop_;
  std::optional<TVRXDesktopWindow> target_;
};

// The one that is meant by a caption: the same, else the same but for the case of letters, else a beginning,
// with its case or without. Null for none.
const TVRXDesktopWindow* VRXFindWindow(const std::vector<TVRXDesktopWindow>& windows, const QString& caption);
