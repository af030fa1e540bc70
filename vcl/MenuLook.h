// Menus as they look: a bar, and the drop-downs that are open. The origin is the bar's top left corner, or
// that of the outermost drop-down of a menu without a bar.
#pragma once
#include <QRect>
#include <vector>

#include "vcl/Menu.h"

class QPainter;

struct TMenuCell {
  TMenuItem* Item = nullptr;  // null: the place behind the last one
  QRect Rect;
};
// What stands in a menu or in one of its items.
struct TMenuPane {
  TNestedComponent* Level = nullptr;
  bool Bar = false;
  QRect Rect;
  std::vector<TMenuCell> Cells;
};

class TMenuLook {
 public:
  // A place: in a pane the item, or the place behind its last one.
  struct Place {
    TNestedComponent* Level = nullptr;
    TMenuItem* Item = nullptr;
    bool operator==(const Place&) const = default;
  };
  static constexpr int LeastTyped = 120;  // the width of a field in which a caption is typed
  // The bar of a main menu in a form of that width, the one drop-down of any other menu. Items that are not
  // visible at run time have no room; neither have places for new ones.
  TMenuLook(const TMenu& menu, int width);
  // As it is designed, with everything in it and a place for one more in every pane; in front of the item at
  // `gap` there is an empty place, too.
  static TMenuLook Designed(const TMenu& menu, int width, const Place& gap = {nullptr, nullptr});
  // Also shows the drop-downs down to the place, and what is below the item there.
  void Open(const Place& place);

  const std::vector<TMenuPane>& Panes() const { return panes_; }
  // The last pane lies on top. A place without a level is none.
  Place At(QPoint point) const;
  // Empty for what is not to be seen. Without an item the first place that has none.
  QRect RectOf(const Place& place) const;
  QSize Size() const;
  // `current` is marked.
  void Paint(QPainter& painter, const Place& current) const;
  // Only what lies above the form.
  void PaintDropDowns(QPainter& painter, const Place& current) const;

 private:
  TMenuLook(const TMenu& menu, int width, bool designed, const Place& gap);
  std::vector<TMenuItem*> ItemsOf(const TNestedComponent& level) const;
  void AddBar(int width);
  void AddDropDown(TNestedComponent& level, QPoint at);
  QSize CellSize(const TMenuItem* item) const;
  bool IsGap(const TNestedComponent& level, const TMenuItem* item) const {
    return gap_.Level == &level && gap_.Item == item;
  }
  void PaintPane(QPainter& painter, const TMenuPane& pane, const Place& current) const;
  void PaintItem(QPainter& painter, const TMenuPane& pane, const TMenuCell& cell, bool current) const;

  TMenu& menu_;
  bool designed_;
  Place gap_;
  std::vector<TMenuPane> panes_;
};

// 0 when there is nothing in it to be shown.
int MenuBarHeight(const TMainMenu& menu, int width);
// The menu in which an item stands, however deep; null for none.
TMenu* MenuOf(const TComponent& component);
