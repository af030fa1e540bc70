// Fields for a line of text.
#pragma once
#include "vcl/Control.h"

enum class TBorderStyle : std::uint8_t { bsNone, bsSingle };
VRX_ENUM(TBorderStyle, {"bsNone", "bsSingle"})
enum class TEditCharCase : std::uint8_t { ecNormal, ecUpperCase, ecLowerCase };
VRX_ENUM(TEditCharCase, {"ecNormal", "ecUpperCase", "ecLowerCase"})
enum class TEchoMode : std::uint8_t { emNormal, emNone, emPassword };
VRX_ENUM(TEchoMode, {"emNormal", "emNone", "emPassword"})
enum class TPasswordChar : char16_t {};
template <>
struct TypeInfoOf<TPasswordChar> {
  static const TTypeInfo& Get();
};

class TCustomEdit : public TWinControl {
  VRX_CLASS(TCustomEdit)
 public:
  explicit TCustomEdit(TComponent* owner);

  // What is in the field: the text of the control.
  const QString& Text() const { return Caption(); }
  void SetText(const QString& v) { SetCaption(v); }

  static constexpr TKept<TAlignment> Alignment{"Alignment", TAlignment::taLeftJustify};
  static constexpr TKept<bool> AutoSelect{"AutoSelect", true};
  static constexpr TKept<TBorderStyle> BorderStyle{"BorderStyle", TBorderStyle::bsSingle};
  static constexpr TKept<TEditCharCase> CharCase{"CharCase", TEditCharCase::ecNormal};
  static constexpr TKept<TEchoMode> EchoMode{"EchoMode", TEchoMode::emNormal};
  static constexpr TKept<bool> HideSelection{"HideSelection", true};
  static constexpr TKept<int> MaxLength{"MaxLength", 0};
  static constexpr TKept<bool> NumbersOnly{"NumbersOnly", false};
  static constexpr TKept<bool> OEMConvert{"OEMConvert", false};
  static constexpr TKept<TPasswordChar> PasswordChar{"PasswordChar"};
  static constexpr TKept<bool> ReadOnly{"ReadOnly", false};
  static constexpr TKept<QString> TextHint{"TextHint"};

  void Paint(TCanvas& canvas) override;

 protected:
  QSize AutoSizeHint() const override;
  // The text as it is shown: in the case and with the password character that the properties say.
  virtual QString ShownText() const;
  virtual int TextFlags() const;
  // Paints the frame and the ground; what is left is for the content.
  QRect PaintGround(TCanvas& canvas) const;
};

class TEdit : public TCustomEdit {
  VRX_CLASS(TEdit)
 public:
  using TCustomEdit::TCustomEdit;
};

// Takes only what the mask allows; the literals of the mask are shown where the text has none yet.
class TMaskEdit : public TCustomEdit {
  VRX_CLASS(TMaskEdit)
 public:
  using TCustomEdit::TCustomEdit;
  static constexpr TKept<QString> EditMask{"EditMask"};

 protected:
  QString ShownText() const override;
};
