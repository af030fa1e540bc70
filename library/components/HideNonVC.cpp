#include "library/components/HideNonVC.h"

#include "vcl/Control.h"

const TClass& TVRXHideNonVC::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXHideNonVC>("TVRXHideNonVC", TComponent::StaticClass())
          .Published(RememberPosition)
          .Doc(QStringLiteral("Whether a hidden component's Tag keeps where its icon stood."))
          .ClassDoc(QStringLiteral("Hides the icons of non-visual components on the form being designed."),
                    "pen line 1.5 brush fill box 3 3 12 12 2 pen line 1.5 dots brush none box 10 10 11 11 2 "
                    "pen accent 2 path 4.5 20.5 20.5 4.5"));
  return cls;
}

// An owner tells those that it has in free notification what comes to it.
TVRXHideNonVC::TVRXHideNonVC(TComponent* owner) : TComponent(owner) {
  if (owner) owner->FreeNotification(this);
}

TVRXHideNonVC::~TVRXHideNonVC() {
  if (INewComponentHandler* handler = std::exchange(handler_, nullptr)) handler->HideComponentFreed(*this);
}

void TVRXHideNonVC::Notification(TComponent* component, TOperation operation) {
  TComponent::Notification(component, operation);
  if (operation == TOperation::opInsert && handler_ && component != this) handler_->NewComponent(*this);
}

bool VRXCheckValidComponent(const TComponent& component, const TVRXHideNonVC* hideComponent) {
  return &component != hideComponent && !As<TControl>(&component) && component.Owner() &&
         component.GetParentComponent() == component.Owner();
}

namespace {
void PaintAnew(TComponent& form) {
  if (auto* control = As<TControl>(&form)) control->Invalidate();
}
}  // namespace

void VRXRemoveContainer(TComponent& form, TComponent&) { PaintAnew(form); }
void VRXShowContainer(TComponent& form, TComponent&) { PaintAnew(form); }

void VRXHideIcon(TComponent& form, TComponent& component, bool remember) {
  if (HasHiddenIcon(component)) return;
  if (remember) component.SetTag(component.DesignInfo());
  component.SetDesignInfo(defHideX);
  VRXRemoveContainer(form, component);
}

void VRXShowIcon(TComponent& form, TComponent& component, bool remember) {
  if (!HasHiddenIcon(component)) return;
  std::int32_t word = 0;
  if (remember && component.Tag() != 0) {
    word = static_cast<std::int32_t>(component.Tag());
    component.SetTag(0);
  }
  // A Tag that somebody else has set may say anything.
  component.SetDesignInfo(word == defHideX ? 0 : word);
  VRXShowContainer(form, component);
}
