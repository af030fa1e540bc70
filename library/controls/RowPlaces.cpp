#include "library/controls/RowPlaces.h"

#include <algorithm>

void StandAsBefore(const std::vector<Placement*>& row, const std::vector<const Placement*>& before,
                   bool down) {
  const auto beside = [down](const Placement& p) {
    return down ? p.stands.top() - p.top : p.stands.left() - p.left;
  };
  for (std::size_t i = 0; i < std::min(row.size(), before.size()); ++i) {
    const auto own = std::find_if(before.begin(), before.end(),
                                  [&](const Placement* p) { return p->control == row[i]->control; });
    if (own == before.end()) continue;
    (down ? row[i]->top : row[i]->left) += beside(*before[i]) - beside(**own);
  }
}
