// Lets a panel slide out from an edge of its form, and back.
#pragma once
#include <optional>

#include "rtl/DueTimer.h"
#include "vcl/Control.h"

enum class TVRXFlyoutSide : std::uint8_t { fsLeft, fsTop, fsRight, fsBottom };
VRX_ENUM(TVRXFlyoutSide, {"fsLeft", "fsTop", "fsRight", "fsBottom"})

class TVRXFlyoutController : public TComponent {
  VRX_CLASS(TVRXFlyoutController)
 public:
  explicit TVRXFlyoutController(TComponent* owner) : TComponent(owner) {}
  static constexpr TKept<TWinControl*> Control{"Control"};
  // In milliseconds: before it begins to slide, and until it has slid.
  static constexpr TKept<int> Delay{"Delay", 250};
  static constexpr TKept<int> Duration{"Duration", 150};
  static constexpr TKept<bool> Enabled{"Enabled", true};
  static constexpr TKept<int> HandleSize{"HandleSize", 8};
  static constexpr TKept<bool> Pinned{"Pinned", false};
  static constexpr TKept<TVRXFlyoutSide> Side{"Side", TVRXFlyoutSide::fsLeft};

  // How far it is out, from 0 to 1, so many milliseconds after the pointer came (or went), when it was `from`
  // then. One that is pinned or not enabled is always out.
  double OutAfter(std::int64_t milliseconds, bool came, double from) const;
  double OutAfter(std::int64_t milliseconds, bool came) const {
    return OutAfter(milliseconds, came, came ? 0 : 1);
  }
  // Where the control stands in a parent of that size when it is so far out: on its side, with the handle in
  // sight when it is not out at all.
  QRect PlaceAt(double out, QSize parent) const;

  // From now on the control slides; until Stop, which puts it back where it stood. `moved` hears when it is
  // open, and when it is closed. Throws EComponentError while the form is being designed, and without a
  // control that stands in another one.
  using Moved = std::function<void(bool open)>;
  void Start(Moved moved = {});
  void Stop();
  bool IsRunning() const { return running_; }
  // Where the pointer is in the control's parent; nowhere when it has left.
  void PointerAt(std::optional<QPoint> place);
  // How far it is out now.
  double Out() const;

 protected:
  void DoChanged() override;

 private:
  void Slide();
  bool running_ = false, over_ = false, open_ = false;
  double from_ = 0, shown_ = 0;
  std::int64_t since_ = 0;
  QRect home_;
  const TWinControl* homeOf_ = nullptr;
  Moved moved_;
  TDueTimer timer_{[this] { Slide(); }};
};
