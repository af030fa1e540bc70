// Buttons whose whole look is pictures, one for each state.
#pragma once
#include "library/values/ButtonFace.h"
#include "vcl/Control.h"

class TVRXFaceLook;

class TVRXCustom3DButton : public TGraphicControl {
  VRX_CLASS(TVRXCustom3DButton)
 public:
  explicit TVRXCustom3DButton(TComponent* owner);
  ~TVRXCustom3DButton() override;

  TVRX3DButtonFace* ButtonFace() const { return face_.get(); }
  void SetButtonFace(const TVRX3DButtonFace* v) { face_->Assign(v); }
  // The pictures of the three states with their masks; they are copied.
  void Set3DPics(const TVRXMaskedPicture& up, const TVRXMaskedPicture& down,
                 const TVRXMaskedPicture& disabled) {
    face_->SetPictures(up, down, disabled);
  }
  // Shown pressed.
  bool Down() const { return down_; }
  void SetDown(bool v);

  void Paint(TCanvas& canvas) override;

 protected:
  QSize AutoSizeHint() const override;

 private:
  void PaintPlain(TCanvas& canvas, const TVRXFaceLook& look);
  std::unique_ptr<TVRX3DButtonFace> face_;
  bool down_ = false;
};

class TVRX3DEffectButton : public TVRXCustom3DButton {
  VRX_CLASS(TVRX3DEffectButton)
 public:
  using TVRXCustom3DButton::TVRXCustom3DButton;
};
