// A field that shows the chosen one of several texts with markup (docs/html-subset.md).
#pragma once
#include "library/html/HtmlText.h"
#include "vcl/ComboBox.h"

class TVRXHTMLComboBox : public TCustomComboBox {
  VRX_CLASS(TVRXHTMLComboBox)
 public:
  explicit TVRXHTMLComboBox(TComponent* owner);
  static constexpr TKept<TCustomImageList*> Images{"Images"};

 protected:
  QSize AutoSizeHint() const override;
  void PaintField(TCanvas& canvas, const QRect& inside) override;
};
