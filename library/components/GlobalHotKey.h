// A key that reaches the program whatever window is in front.
#pragma once
#include <functional>

#include "rtl/Component.h"
#include "vcl/ShortCut.h"

class XKeyGrab;

class TVRXGlobalHotKey : public TComponent {
  VRX_CLASS(TVRXGlobalHotKey)
 public:
  explicit TVRXGlobalHotKey(TComponent* owner);
  ~TVRXGlobalHotKey() override;
  static constexpr TKept<bool> Enabled{"Enabled", true};
  static constexpr TKept<TShortCut> HotKey{"HotKey"};

  // Why the key would not do: none, or one that everybody types. Empty when it would.
  QString Problem() const;

  // From now on `pressed` hears of the key, until Stop or the end of the component; while it is not enabled
  // the key is everybody's. Throws EHotKeyError (library/keys/XKeyGrab.h) where the key cannot be had, and
  // while the form is being designed.
  using Pressed = std::function<void()>;
  void Start(Pressed pressed);
  void Stop();
  // Whether the key is ours now.
  bool HasKey() const { return grab_ != nullptr; }
  // Why it is not, after another key was asked for while it was running.
  const QString& LastError() const { return lastError_; }

 protected:
  void DoChanged() override;

 private:
  void Take();
  Pressed pressed_;
  std::unique_ptr<XKeyGrab> grab_;
  TShortCut taken_{};
  QString lastError_;
};
