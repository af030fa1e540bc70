#include "ide/operations/HiddenIcons.h"

#include <algorithm>

#include "ide/Tiles.h"
#include "ide/operations/Places.h"
#include "rtl/HiddenIcon.h"

std::vector<TComponent*> SelectedHiddenIcons(const FormSession& session) {
  auto selected = session.SelectedComponents();
  std::erase_if(selected, [](const TComponent* c) { return !HasHiddenIcon(*c); });
  return selected;
}

namespace {
// In rows as wide as the form, from its corner on.
QRect FreePlace(const std::vector<QRect>& taken, QRect tile, int width) {
  constexpr int gap = 8;
  const int step = tile.width() + gap;
  tile.moveTo(gap, gap);
  const auto covers = [&](const QRect& other) { return other.intersects(tile); };
  while (std::any_of(taken.begin(), taken.end(), covers)) {
    tile.translate(step, 0);
    if (tile.right() >= width) tile.moveTo(gap, tile.top() + step);
  }
  return tile;
}
}  // namespace

void ShowHiddenIcons(FormSession& session, const QString& text) {
  const auto hidden = SelectedHiddenIcons(session);
  std::vector<QRect> taken;
  for (const TComponent* c : session.Form().Components())
    if (HasTile(session, *c)) taken.push_back(TileRect(*c));
  const int width = DeskSize(session).width();
  session.Run(text, hidden, [&] {
    for (TComponent* c : hidden) {
      taken.push_back(FreePlace(taken, TileRect(*c), width));
      SetPlace(*c, taken.back());
    }
  });
}
