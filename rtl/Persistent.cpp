#include "rtl/Persistent.h"

#include "rtl/Class.h"
#include "rtl/Exceptions.h"

TPersistent::~TPersistent() = default;

const TClass& TPersistent::StaticClass() {
  static const TClass cls(TClassBuilder("TPersistent", nullptr));
  return cls;
}

const TTypeInfo& TPersistent::StaticTypeInfo() {
  static const TTypeInfo info{
      .Kind = TTypeKind::tkClass, .Name = "TPersistent", .ClassType = &TPersistent::StaticClass};
  return info;
}

bool TPersistent::InheritsFrom(const TClass& cls) const { return ClassType().InheritsFrom(cls); }

// A descendant may have made the property read-only, or of another kind.
void TPersistent::Take(const TPropInfo& prop, const TPropValue& value) {
  const auto* part = std::get_if<TPart>(&value);
  const bool absent = part && !part->Object;
  if (prop.IsWritable() && prop.Access->Alternative() == value.index() && !absent)
    prop.Access->Write(*this, value);
}

void TPersistent::Assign(const TPersistent* source) {
  if (source == this) return;
  const TClass& own = ClassType();
  if (!source || !(own.InheritsFrom(source->ClassType()) || source->InheritsFrom(own)))
    throw EConvertError(
        QStringLiteral("Cannot assign %1 to %2.")
            .arg(source ? QString::fromLatin1(source->ClassType().ClassName()) : QStringLiteral("nil"),
                 QString::fromLatin1(own.ClassName())));
  const TUpdateLock lock(*this);
  const TClass& common = own.InheritsFrom(source->ClassType()) ? source->ClassType() : own;
  for (const TPropInfo* prop : common.Properties())
    if (const TPropInfo* target = own.FindProp(prop->Name); target && AssignsProperty(*target))
      if (!prop->Access->IsUntouched(*source) || !target->Access->IsUntouched(*this))
        Take(*target, prop->Access->Read(*source));
}

void TPersistent::Changed() {
  if (updateLock_ > 0) {
    changePending_ = true;
    return;
  }
  DoChanged();
}

void TPersistent::EndUpdate() {
  if (--updateLock_ > 0) return;
  changeTold_ = false;
  if (!changePending_) return;
  changePending_ = false;
  DoChanged();
}

void TPersistent::DoChanged() {
  if (TPersistent* owner = GetOwner()) owner->PartChanged(*this);
}

void TPersistent::DoChanging() {
  if (TPersistent* owner = GetOwner()) owner->PartChanging(*this);
}

void TPersistent::PartChanging(TPersistent&) { Changing(); }

void TPersistent::PartChanged(TPersistent&) { Changed(); }
