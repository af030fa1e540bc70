// A field for a text with formats. The form holds its plain lines.
#pragma once
#include "vcl/Memo.h"

class TCustomRichEdit : public TCustomMemo {
  VRX_CLASS(TCustomRichEdit)
 public:
  using TCustomMemo::TCustomMemo;
};

class TRichEdit : public TCustomRichEdit {
  VRX_CLASS(TRichEdit)
 public:
  using TCustomRichEdit::TCustomRichEdit;
};
