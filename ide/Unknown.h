// Stand-ins for classes that no loaded package has. They keep their place on the surface; everything else
// about them stays in the document.
#pragma once
#include "vcl/Control.h"

class TUnknownControl : public TWinControl {
  VRX_CLASS(TUnknownControl)
 public:
  explicit TUnknownControl(TComponent* owner);
  QByteArray StreamClassName() const override { return streamClass_; }
  void SetStreamClassName(QByteArray name) { streamClass_ = std::move(name); }
  // A frame with the name and the class.
  void Paint(TCanvas& canvas) override;

 private:
  QByteArray streamClass_;
};

class TUnknownComponent : public TComponent {
  VRX_CLASS(TUnknownComponent)
 public:
  using TComponent::TComponent;
  QByteArray StreamClassName() const override { return streamClass_; }
  void SetStreamClassName(QByteArray name) { streamClass_ = std::move(name); }

 private:
  QByteArray streamClass_;
};

bool IsUnknown(const TComponent& component);
