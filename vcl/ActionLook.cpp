#include "vcl/ActionLook.h"

#include "vcl/Action.h"

TActionLook LookOf(const TControl& control, bool checked) {
  TActionLook look{control.Caption(), control.Enabled(), checked};
  const auto* action = As<TCustomAction>(control.Get(TControl::Action));
  if (!action) return look;
  if (look.caption.isEmpty()) look.caption = action->Get(TCustomAction::Caption);
  look.enabled = look.enabled && action->Get(TCustomAction::Enabled);
  look.checked = look.checked || action->Get(TCustomAction::Checked);
  return look;
}
