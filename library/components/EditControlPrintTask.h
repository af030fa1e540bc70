// Prints what is in an edit, on as many pages as it takes.
#pragma once
#include "library/values/TextPages.h"
#include "vcl/Edit.h"

class QIODevice;

class TVRXEditControlPrintTask : public TComponent {
  VRX_CLASS(TVRXEditControlPrintTask)
 public:
  explicit TVRXEditControlPrintTask(TComponent* owner);
  static constexpr TKept<TCustomEdit*> EditControl{"EditControl"};
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
  static constexpr TKept<bool> UseControlFont{"UseControlFont", true};
  static constexpr TKept<bool> WordWrap{"WordWrap", true};

  // For pages that do not have the edit's own.
  TFont* Font() const { return font_.get(); }
  void SetFont(const TFont* v) { font_->Assign(v); }

  // What will be printed, a password as the edit shows it.
  QStringList Lines() const;
  // Those lines, and how they stand on pages.
  TVRXTextPages Pages() const;

  // Returns the number of pages. Throws EComponentError when there is no edit or the device takes nothing.
  int Print(QPagedPaintDevice& device) const;
  int PrintToPdf(QIODevice& device) const;
  // To the printer of the program (PrinterSetup.h).
  int PrintToPrinter() const;

 private:
  const TFont& PrintFont() const;
  std::unique_ptr<TFont> font_;
};
