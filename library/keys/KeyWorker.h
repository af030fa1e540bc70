// Works on the desktop beside the thread that asks: starts programs, looks for windows, sends keys. What is
// asked for is done in turn; nobody waits for it but who wants to.
#pragma once
#include <functional>
#include <memory>

#include "library/keys/KeyWork.h"

class KeyWorker {
 public:
  KeyWorker();
  // What is under way stops at the next key; who asked is told nothing any more.
  ~KeyWorker();
  KeyWorker(const KeyWorker&) = delete;
  KeyWorker& operator=(const KeyWorker&) = delete;

  using Work = std::function<void(KeyWork&)>;
  // With what it failed by; empty when it did not.
  using Done = std::function<void(const QString& error)>;
  // `done` is called in the thread of the application, from its event loop.
  void Begin(Work work, Done done);
  // Waits, and throws what it failed by.
  void Do(const Work& work);
  // Drops what has not begun and stops what has.
  void Stop();
  bool IsBusy() const;

 private:
  struct State;
  static void Run(const std::shared_ptr<State>& state);
  std::shared_ptr<State> state_;
};
