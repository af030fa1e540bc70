#include "vcl/FormDecor.h"

#include "vcl/Control.h"

namespace {
// What a form keeps of them, so that nobody looks through all of its components to paint it.
class TFormDecorList : public TKeptPart {
  VRX_CLASS(TFormDecorList)
 public:
  using TKeptPart::TKeptPart;
  std::vector<TFormDecor*> all;
};
const TClass& TFormDecorList::StaticClass() {
  static const TClass cls(DescribeClass<TFormDecorList>("TFormDecorList", TPersistent::StaticClass()));
  return cls;
}
constexpr TKept<TFormDecorList*> Decors{"Decors"};
}  // namespace

const TClass& TFormDecor::StaticClass() {
  static const TClass cls(DescribeClass<TFormDecor>("TFormDecor", TComponent::StaticClass()));
  return cls;
}

TFormDecor::TFormDecor(TComponent* owner) : TComponent(owner) {
  if (owner) owner->Get(Decors)->all.push_back(this);
  RepaintForm();
}

// A form that is being freed still keeps its list, as the last of what it is.
TFormDecor::~TFormDecor() {
  if (Owner()) std::erase(Owner()->Get(Decors)->all, this);
}

std::vector<TFormDecor*> TFormDecor::Of(const TWinControl& form) {
  if (!form.IsKept(&Decors)) return {};
  std::vector<TFormDecor*> all = form.Get(Decors)->all;
  std::erase_if(all, [&](const TFormDecor* d) { return d->Owner() != &form; });
  if (all.size() > 1)
    std::sort(all.begin(), all.end(),
              [](const auto* a, const auto* b) { return a->ComponentIndex() < b->ComponentIndex(); });
  return all;
}

void TFormDecor::RepaintForm() const {
  if (auto* form = As<TWinControl>(Owner()); form && !IsLoading()) form->Invalidate();
}

void TFormDecor::DoChanged() {
  TComponent::DoChanged();
  RepaintForm();
}
