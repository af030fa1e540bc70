// Buttons that show a picture of an image list in each of their states, and the component that gives several
// of them the same pictures.
#pragma once
#include "library/components/ImageListContainer.h"
#include "library/controls/Faced.h"
#include "library/values/MMButtonFace.h"
#include "vcl/GlyphButton.h"

class TVRXMMButtonFaceController : public TComponent {
  VRX_CLASS(TVRXMMButtonFaceController)
 public:
  using TComponent::TComponent;
  static constexpr TKept<TVRXMMButtonFace*> FacePart{"ButtonFace"};
  static constexpr TKept<TCustomImageList*> ButtonFaceImageList{"ButtonFaceImageList"};

  TVRXButtonFaceIndices GetButtonFaceIndices() const { return Get(FacePart)->Indices(); }
  void SetButtonFaceIndices(const TVRXButtonFaceIndices& face) { Get(FacePart)->SetIndices(face); }
  // The colour that is left out of the pictures has to be looked for anew.
  void SetTransCol();
};

class TVRXCustomMMButton : public TGraphicControl {
  VRX_CLASS(TVRXCustomMMButton)
 public:
  explicit TVRXCustomMMButton(TComponent* owner);
  static constexpr TKept<TVRXMMButtonFace*> FacePart{"ButtonFace"};
  // In place of the button's own face and list.
  static constexpr TKept<TVRXMMButtonFaceController*> ButtonFaceController{"ButtonFaceController"};
  static constexpr TKept<TCustomImageList*> ButtonFaceImageList{"ButtonFaceImageList"};
  static constexpr TKept<bool> Checked{"Checked", false};
  static constexpr TKept<bool> Down{"Down", false};
  static constexpr TKept<bool> Flat{"Flat", false};
  static constexpr TKept<TButtonLayout> Layout{"Layout", TButtonLayout::blGlyphLeft};
  static constexpr TKept<int> Margin{"Margin", -1};
  static constexpr TKept<bool> ShowCaption{"ShowCaption", true};
  static constexpr TKept<int> Spacing{"Spacing", 4};

  TVRXButtonFaceIndices GetButtonFaceIndices() const { return Get(FacePart)->Indices(); }
  void SetButtonFaceIndices(const TVRXButtonFaceIndices& face) { Get(FacePart)->SetIndices(face); }
  void SetTransCol() { Invalidate(); }
  // Leaves the colour of the lower left pixel out of pictures that have nothing transparent.
  bool Transparent() const { return transparent_; }
  void SetTransparent(bool v) { Change(transparent_, v); }

  TVRXButtonState State() const;
  // Of that state; where it has none, of the state that comes nearest. Null when nothing is left.
  QImage PictureOf(TVRXButtonState state) const;
  void Paint(TCanvas& canvas) override;

 protected:
  QSize AutoSizeHint() const override;
  bool transparent_ = false;

  // What is to be painted now: the picture, and whether it is the state's own.
  struct TShown {
    QImage picture;
    bool own = false;
  };
  TShown Shown() const;
  void PaintContent(TCanvas& canvas, const QRect& rect, const TShown& shown, const TVRXFaceLook& look) const;

 private:
  const TCustomImageList* Pictures() const;
  QImage OwnPicture(TVRXButtonState state) const;
};

class TVRXMMButton : public TVRXCustomMMButton {
  VRX_CLASS(TVRXMMButton)
 public:
  using TVRXCustomMMButton::TVRXCustomMMButton;
};

// Its area is what the picture shows; until it has one, an oval that is filled.
class TVRXCustomShapeButton : public TVRXCustomMMButton {
  VRX_CLASS(TVRXCustomShapeButton)
 public:
  explicit TVRXCustomShapeButton(TComponent* owner);
  static constexpr TKept<TVRXShapeFill*> ShapeFillPart{"ShapeFill"};
  static constexpr TKept<TCustomImageList*> ShapeFillImageList{"ShapeFillImageList"};

  TVRXShapeFill* ShapeFill() const { return Get(ShapeFillPart); }
  // Where a mouse would press the button.
  QRegion Area() const;
  bool Contains(QPoint point) const { return Area().contains(point); }
  void Paint(TCanvas& canvas) override;

 protected:
  QSize AutoSizeHint() const override;

 private:
  QRect PicturePlace(const QImage& picture) const;
};

class TVRXShapeButton : public TVRXCustomShapeButton {
  VRX_CLASS(TVRXShapeButton)
 public:
  using TVRXCustomShapeButton::TVRXCustomShapeButton;
};
