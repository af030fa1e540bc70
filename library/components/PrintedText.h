// What components that print a text on pages publish alike, and the pages that come of it.
#pragma once
#include "library/values/TextPages.h"
#include "rtl/Component.h"
#include "vcl/Font.h"

class TVRXPrintedText : public TComponent {
 public:
  using TComponent::TComponent;
  static constexpr TKept<QString> FooterText{"FooterText"};
  static constexpr TKept<QString> HeaderText{"HeaderText"};
  static constexpr TKept<bool> LineNumbers{"LineNumbers", false};
  // In millimetres.
  static constexpr TKept<int> MarginBottom{"MarginBottom", 20};
  static constexpr TKept<int> MarginLeft{"MarginLeft", 20};
  static constexpr TKept<int> MarginRight{"MarginRight", 20};
  static constexpr TKept<int> MarginTop{"MarginTop", 20};
  static constexpr TKept<TVRXPrintOrientation> Orientation{"Orientation", TVRXPrintOrientation::poPortrait};
  static constexpr TKept<bool> ShowPageNumbers{"ShowPageNumbers", true};
  static constexpr TKept<QString> Title{"Title"};
  static constexpr TKept<bool> WordWrap{"WordWrap", true};
  TFont* Font() const { return font_.get(); }
  void SetFont(const TFont* v) { font_->Assign(v); }

 protected:
  // These lines in this font, as the properties say.
  TVRXTextPages PagesOf(const QStringList& lines, const TFont& font) const;

 private:
  std::unique_ptr<TFont> font_ = std::make_unique<TFont>(this);
};

// Adds all of it to what the class publishes, and says when its font is the one that counts.
TClassBuilder VRXWithPrintedText(TClassBuilder builder, const QString& fontDoc);
