#include "designintf/PartPath.h"

#include <algorithm>

#include "rtl/Collection.h"
#include "rtl/PropAccess.h"

PartPath::PartPath(TPersistent& object) {
  TPersistent* at = &object;
  for (; at && !As<TComponent>(at); at = at->GetOwner()) {
    if (const auto* item = As<TCollectionItem>(at)) {
      steps_.push_back({nullptr, item->Index()});
    } else if (TPersistent* owner = at->GetOwner()) {
      const auto& properties = owner->ClassType().Properties();
      const auto it = std::find_if(properties.begin(), properties.end(), [&](const TPropInfo* p) {
        return p->IsPart() && GetObjectProp(*owner, *p) == at;
      });
      if (it == properties.end()) return;
      steps_.push_back({*it, 0});
    }
  }
  component_ = As<TComponent>(at);
  std::reverse(steps_.begin(), steps_.end());
}

TPersistent* PartPath::Find() const {
  TPersistent* at = component_;
  for (const Step& step : steps_) {
    if (!at) return nullptr;
    if (step.property) {
      at = GetObjectProp(*at, *step.property);
    } else {
      const auto* collection = As<TCollection>(at);
      at = collection && step.index < collection->Count() ? collection->Item(step.index) : nullptr;
    }
  }
  return at;
}

QString PartPath::Text() const {
  QString text = component_ ? component_->Name() : QString();
  for (const Step& step : steps_)
    text += step.property ? u'.' + QString::fromLatin1(step.property->Name)
                          : QStringLiteral("[%1]").arg(step.index);
  return text;
}
