// A text with links in it, written as "<a href=...>text</a>".
#pragma once
#include "vcl/Control.h"

class TCustomLinkLabel : public TWinControl {
  VRX_CLASS(TCustomLinkLabel)
 public:
  explicit TCustomLinkLabel(TComponent* owner);
  static constexpr TKept<TAlignment> Alignment{"Alignment", TAlignment::taLeftJustify};

  // A piece of the text, and whether it is a link.
  struct Piece {
    QString text;
    bool link;
  };
  std::vector<Piece> Pieces() const;
  void Paint(TCanvas& canvas) override;

 protected:
  QSize AutoSizeHint() const override;
};

class TLinkLabel : public TCustomLinkLabel {
  VRX_CLASS(TLinkLabel)
 public:
  using TCustomLinkLabel::TCustomLinkLabel;
};
