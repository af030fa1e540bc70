// A text whose letters are bent into a form, filled as an area is, and drawn with light and shadow.
#pragma once
#include "library/values/Fill.h"
#include "library/values/FontFx.h"
#include "library/values/TextTransform.h"
#include "vcl/Control.h"
#include "vcl/ImageList.h"
#include "vcl/Label.h"

class TVRXGraphicLabel : public TGraphicControl {
  VRX_CLASS(TVRXGraphicLabel)
 public:
  explicit TVRXGraphicLabel(TComponent* owner);
  static constexpr TKept<TAlignment> Alignment{"Alignment", TAlignment::taCenter};
  // How strong the form is: 0 leaves the text as it is, 10000 is the most.
  static constexpr TKept<int> Factor{"Factor", 5000};
  static constexpr TKept<TVRXFillObject*> FillPart{"FillObject"};
  static constexpr TKept<TVRXFxCaption*> FontFXPart{"FontFX"};
  static constexpr TKept<TCustomImageList*> ImageList{"ImageList"};
  static constexpr TKept<TTextLayout> Layout{"Layout", TTextLayout::tlCenter};
  // Of the line around the letters, which has the font's colour; 0 is none.
  static constexpr TKept<std::uint8_t> OutlineWidth{"OutlineWidth", 1};
  static constexpr TKept<TVRXPerspective> Perspective{"Perspective", TVRXPerspective::tpFrog};
  static constexpr TKept<int> PerspectiveDepth{"PerspectiveDepth", 50};
  // Fills the control; else the letters have their size, or less where there is no room for it.
  static constexpr TKept<bool> Stretch{"Stretch", false};
  static constexpr TKept<std::int16_t> Toggle{"Toggle", 30};
  static constexpr TKept<TVRXTransAttrs> TransAttr{"TransAttr", TVRXTransAttrs{}};
  static constexpr TKept<TVRXTransform> Transform{"Transform", TVRXTransform::tmWave};
  static constexpr TKept<bool> Transparent{"Transparent", true};

  TVRXFillObject* FillObject() const { return Get(FillPart); }
  TVRXFxCaption* FontFX() const { return Get(FontFXPart); }

  // Setters as editors use them.
  void SetTransform(TVRXTransform v) { Set(Transform, v); }
  void SetPerspective(TVRXPerspective v) { Set(Perspective, v); }
  void SetToggle(std::int16_t v) { Set(Toggle, v); }
  void SetTransAttr(TVRXTransAttrs v) { Set(TransAttr, v); }
  // 2 is the factor, 4 the depth of the perspective.
  void SetInteger(int selector, int value);
  // 1 is AutoSize.
  void SetBoolean(int selector, bool value);

  // The letters as they stand in the control.
  QPainterPath Outline() const;
  void Paint(TCanvas& canvas) override;

 protected:
  QSize AutoSizeHint() const override;

 private:
  // Everything that the outline follows from.
  struct TBent {
    QString text;
    TVRXLetterStyle letters;
    TVRXTextForm form;
    double angle = 0;
    bool operator==(const TBent&) const = default;
  };
  TBent Current() const;
  const QPainterPath& Letters() const;
  QRectF Room() const;
  QMarginsF Around() const;

  // Made when it is asked for, and anew when it would be another one.
  mutable TBent bent_;
  mutable QPainterPath letters_;
};
