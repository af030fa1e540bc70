// Headings above columns, with markup (docs/html-subset.md).
#pragma once
#include "vcl/HeaderControl.h"

class TVRXHTMLHeaderControl : public THeaderControl {
  VRX_CLASS(TVRXHTMLHeaderControl)
 public:
  using THeaderControl::THeaderControl;

 protected:
  void PaintSectionText(TCanvas& canvas, const QRect& rect, const THeaderSection& section) const override;
};
