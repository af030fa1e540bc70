#include "vcl/Nested.h"

#include <algorithm>

#include "rtl/Class.h"
#include "rtl/Exceptions.h"

const TClass& TNestedComponent::StaticClass() {
  static const TClass cls(DescribeClass<TNestedComponent>("TNestedComponent", TComponent::StaticClass()));
  return cls;
}

TNestedComponent::~TNestedComponent() {
  // What somebody else owns stays alive, outside.
  for (TNestedComponent* c : std::exchange(nested_, {})) c->around_ = nullptr;
  if (around_) std::erase(around_->nested_, this);
}

void TNestedComponent::SetAround(TNestedComponent* around) {
  if (around == around_) return;
  for (const TNestedComponent* c = around; c; c = c->around_)
    if (c == this) throw EComponentError(QStringLiteral("%1 cannot be put into itself.").arg(Name()));
  if (around && !around->TakesNested(*this))
    throw EComponentError(QStringLiteral("%1 (%2) does not take %3 (%4).")
                              .arg(around->Name(), QString::fromUtf8(around->ClassType().ClassName()), Name(),
                                   QString::fromUtf8(ClassType().ClassName())));
  Changing();
  if (around_) std::erase(around_->nested_, this);
  around_ = around;
  if (around_) around_->nested_.push_back(this);
  Changed();
}

int TNestedComponent::NestedIndex() const {
  if (!around_) return -1;
  const auto it = std::find(around_->nested_.begin(), around_->nested_.end(), this);
  return static_cast<int>(it - around_->nested_.begin());
}

void TNestedComponent::SetNestedIndex(int index) {
  const int from = NestedIndex();
  if (from < 0 || from == index || index < 0 || index >= static_cast<int>(around_->nested_.size())) return;
  Changing();
  auto& all = around_->nested_;
  all.erase(all.begin() + from);
  all.insert(all.begin() + index, this);
  Changed();
}

TComponent* TNestedComponent::GetParentComponent() const {
  return around_ ? around_ : TComponent::GetParentComponent();
}

void TNestedComponent::SetParentComponent(TComponent* parent) {
  auto* around = As<TNestedComponent>(parent);
  SetAround(around && around->TakesNested(*this) ? around : nullptr);
}

std::vector<TComponent*> TNestedComponent::GetChildren() const {
  std::vector<TComponent*> result(nested_.begin(), nested_.end());
  const std::vector<TComponent*> others = TComponent::GetChildren();
  result.insert(result.end(), others.begin(), others.end());
  return result;
}
