// How a container places what stands inside it: along its edges (Align), and at a distance from them
// (Anchors).
//
// Layout works by difference. Coordinates that a form file gives are right, even where this machine would
// place things elsewhere: a class that nobody knows, another window frame, a font that is not installed. So
// an edit moves a control by what the layout after it differs from the layout before it, both computed here.
// Where a control stands exactly as computed, that is the ordinary layout.
#pragma once
#include <QRect>
#include <vector>

class TControl;
class TWinControl;

// What the layout of a container wants for one of its children. Sizes may be negative when there is no room.
struct Placement {
  TControl* control = nullptr;
  QRect stands;  // where the control is
  int left = 0, top = 0, width = 0, height = 0;
  // Whether the edge of the container decides the value; else the control's own stays, moved by what its
  // anchors say.
  bool ownsWidth = true, ownsHeight = true, ownsPlace = true;
  bool anchored = false;
};

// Stands around a change of a container or of what is in it: its size, or a child's bounds, alignment,
// visibility, place in the order, coming and going. At the end everything is moved by the difference. Changes
// inside of each other are one. Does nothing while the container is loaded, freed, or its layout frozen.
class LayoutChange {
 public:
  explicit LayoutChange(TWinControl* container);
  ~LayoutChange();
  LayoutChange(const LayoutChange&) = delete;
  LayoutChange& operator=(const LayoutChange&) = delete;

 private:
  TWinControl* container_ = nullptr;  // null: nothing to do
  std::vector<Placement> before_;
  int exceptions_ = 0;
};

// A value computed before and after: moved by the difference, and exactly the new one where the old one stood
// as computed. With `size` no result is below zero.
int MovedByDifference(int stands, int before, int after, bool size);
