// Controls that show one page of several at a time.
#pragma once
#include <QPoint>

class TControl;
class TComponent;
class TWinControl;

class IBook {
 public:
  virtual ~IBook() = default;
  virtual bool HasPage(const TControl& control) const = 0;
  // Null when there is none.
  virtual TControl* FrontPage() const = 0;
  // The page whose tab is there, or null.
  virtual TControl* PageAt(QPoint point) const = 0;
  // Brings the page to the front for the moment; no value changes.
  virtual void ShowPage(const TControl& page) = 0;
  // The pages anew into their places, after some came or went.
  virtual void PlacePages() = 0;

  // Where pages stand that are not in front: out of sight, in their own size, so that nothing on them moves.
  static constexpr int OutOfSight = -30000;
};

// All books in the container and in what stands in it.
void ArrangePages(TWinControl& root);
// Brings every page that the component stands on to the front.
void RevealPages(const TComponent& component);
