// Types for a person: sends the keys of a macro (library/keys/KeyMacro.h) to the window of another program.
#pragma once
#include "library/keys/KeyWorker.h"
#include "rtl/Component.h"

class TVRXSendKeys : public TComponent {
  VRX_CLASS(TVRXSendKeys)
 public:
  using TComponent::TComponent;
  static constexpr TKept<int> Delay{"Delay", 12};
  static constexpr TKept<bool> KeepTarget{"KeepTarget", true};
  static constexpr TKept<QString> Keys{"Keys"};
  static constexpr TKept<bool> RaiseException{"RaiseException", false};
  static constexpr TKept<int> Timeout{"Timeout", 5000};
  static constexpr TKept<QString> WindowCaption{"WindowCaption"};

  // These wait for what they do, SendKeys only when it is told to. Whether it was done; with RaiseException
  // they throw ESendKeysError when it was not. Mistakes of a macro are found before anything is sent.
  bool Shell(const QString& file);
  bool AppActivate(const QString& caption);
  bool SendKeys(const QString& text, bool wait);
  // Why the last of them failed; empty when it did not.
  const QString& LastError() const { return lastError_; }
  // The program that Shell started last, and its window.
  const QString& AppFileName() const { return fileName_; }
  const QString& AppCaption() const { return caption_; }

  // These return at once. `done` hears from the event loop, with the reason when it failed, unless the
  // component is freed before.
  using Done = KeyWorker::Done;
  void BeginShell(const QString& file, Done done);
  // To the window, and keys for it. Throws EKeyMacroError.
  void BeginSend(const QString& caption, const QString& text, Done done);
  using WindowsDone = std::function<void(const QStringList& captions, const QString& error)>;
  void BeginWindows(WindowsDone done);
  bool IsBusy() const { return worker_ && worker_->IsBusy(); }
  void Stop();

 private:
  KeyWorker& Worker();
  KeyWork::Sending How() const;
  bool Try(const std::function<void()>& action);
  std::unique_ptr<KeyWorker> worker_;
  QString fileName_, caption_, lastError_;
};
