// What a field shows below itself when it is opened. A designer shows it while the field alone is selected
// and nothing on the form would be hidden by it.
#pragma once
#include <QRect>

class TCanvas;

class IDropDown {
 public:
  virtual ~IDropDown() = default;
  // In pixels at 96 dpi; empty when there is nothing to open.
  virtual QSize DropDownSize() const = 0;
  // Inside of the rectangle, which may be of another size.
  virtual void PaintDropDown(TCanvas& canvas, const QRect& rect) const = 0;
};
