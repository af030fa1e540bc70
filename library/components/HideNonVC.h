// Hides the icons of a form's non-visual components in the designer, and what its editor works with.
#pragma once
#include "rtl/HiddenIcon.h"

class TVRXHideNonVC;

// Whoever wants to know what comes to the form of such a component. One that is told of nothing more takes
// itself off.
class INewComponentHandler {
 public:
  virtual ~INewComponentHandler() = default;
  // Another component has come to the form; it may be half made.
  virtual void NewComponent(TVRXHideNonVC& component) = 0;
  // The component is being freed, and calls no more.
  virtual void HideComponentFreed(TVRXHideNonVC& component) = 0;
};

class TVRXHideNonVC : public TComponent {
  VRX_CLASS(TVRXHideNonVC)
 public:
  explicit TVRXHideNonVC(TComponent* owner);
  ~TVRXHideNonVC() override;
  static constexpr TKept<bool> RememberPosition{"RememberPosition", false};

  // Null takes the present one off.
  void SetNewComponentHandler(INewComponentHandler* handler) { handler_ = handler; }
  INewComponentHandler* NewComponentHandler() const { return handler_; }
  void Notification(TComponent* component, TOperation operation) override;

 private:
  INewComponentHandler* handler_ = nullptr;
};

// The position word of a component whose icon is hidden.
constexpr std::int32_t defHideX = HiddenIconWord;
// Whether it has an icon that can be hidden: no control, nothing that stands inside of another component, and
// not the one that hides.
bool VRXCheckValidComponent(const TComponent& component, const TVRXHideNonVC* hideComponent);
// The icon goes from the form's surface, or comes back, at once; what is shown follows from the position
// word.
void VRXRemoveContainer(TComponent& form, TComponent& component);
void VRXShowContainer(TComponent& form, TComponent& component);

// Hides one that is shown: its position goes into its Tag where it is to be remembered. Nothing otherwise.
void VRXHideIcon(TComponent& form, TComponent& component, bool remember);
// Shows one that is hidden, where its Tag says when positions are remembered, else in the corner of the form.
void VRXShowIcon(TComponent& form, TComponent& component, bool remember);
