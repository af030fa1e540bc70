// Fields for a line of text with a label of their own.
#pragma once
#include "vcl/Edit.h"
#include "vcl/Labeled.h"

class TLabeledEdit : public Labeled<TEdit> {
  VRX_CLASS(TLabeledEdit)
 public:
  using Labeled::Labeled;
};
