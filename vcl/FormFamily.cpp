#include "vcl/FormFamily.h"

#include "vcl/Form.h"

bool StandsOnClientSizedForm(const TPersistent& object) {
  bool told = false;
  for (const TPersistent* p = &object; p; p = p->GetOwner())
    if (const auto* form = As<TForm>(p))
      told |= form->SizeIsClient() || !form->Get(TForm::LCLVersion).isEmpty();
  return told;
}
