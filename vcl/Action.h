// Actions: what a command shows wherever it is offered, and the lists that hold them.
#pragma once
#include "rtl/Strings.h"
#include "vcl/ControlTypes.h"
#include "vcl/ImageList.h"
#include "vcl/Nested.h"
#include "vcl/ShortCut.h"

enum class TActionListState : std::uint8_t { asNormal, asSuspended, asSuspendedEnabled };
VRX_ENUM(TActionListState, {"asNormal", "asSuspended", "asSuspendedEnabled"})

class TBasicAction : public TNestedComponent {
  VRX_CLASS(TBasicAction)
 public:
  using TNestedComponent::TNestedComponent;
};

class TContainedAction : public TBasicAction {
  VRX_CLASS(TContainedAction)
 public:
  using TBasicAction::TBasicAction;
  static constexpr TKept<QString> Category{"Category"};
};

class TCustomAction : public TContainedAction {
  VRX_CLASS(TCustomAction)
 public:
  using TContainedAction::TContainedAction;
  static constexpr TKept<QString> Caption{"Caption"};
  static constexpr TKept<bool> Checked{"Checked", false};
  static constexpr TKept<bool> Enabled{"Enabled", true};
  static constexpr TKept<QString> Hint{"Hint"};
  static constexpr TKept<int> ImageIndex{"ImageIndex", -1};
  static constexpr TKept<TShortCut> ShortCut{"ShortCut"};
  static constexpr TKept<bool> Visible{"Visible", true};
};

class TAction : public TCustomAction {
  VRX_CLASS(TAction)
 public:
  using TCustomAction::TCustomAction;
};

class TActionList : public TNestedComponent {
  VRX_CLASS(TActionList)
 public:
  using TNestedComponent::TNestedComponent;
  static constexpr TKept<TCustomImageList*> Images{"Images"};

 protected:
  bool TakesNested(const TNestedComponent& other) const override { return As<TContainedAction>(&other); }
};
