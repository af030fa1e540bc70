#include "vcl/TabOrder.h"

#include <algorithm>

#include "vcl/Control.h"

void GiveLastTabOrder(TWinControl& control) {
  int last = -1, others = 0;
  for (const TControl* c : control.Parent()->Controls())
    if (const auto* other = As<TWinControl>(c); other && other != &control) {
      last = std::max(last, other->TabOrder());
      ++others;
    }
  control.SetTabOrder(std::min<int>(std::max(last + 1, others), INT16_MAX));
}
