// The dialogs that a program opens: a component keeps how one begins.
#pragma once
#include "rtl/Strings.h"
#include "vcl/Colors.h"
#include "vcl/Font.h"

enum class TOpenOption : std::uint8_t {
  ofReadOnly,
  ofOverwritePrompt,
  ofHideReadOnly,
  ofNoChangeDir,
  ofShowHelp,
  ofNoValidate,
  ofAllowMultiSelect,
  ofExtensionDifferent,
  ofPathMustExist,
  ofFileMustExist,
  ofCreatePrompt,
  ofShareAware,
  ofNoReadOnlyReturn,
  ofNoTestFileCreate,
  ofNoNetworkButton,
  ofNoLongNames,
  ofOldStyleDialog,
  ofNoDereferenceLinks,
  ofEnableIncludeNotify,
  ofEnableSizing,
  ofDontAddToRecent,
  ofForceShowHidden,
  ofViewDetail,
  ofAutoPreview
};
VRX_ENUM(TOpenOption,
         {"ofReadOnly",         "ofOverwritePrompt",    "ofHideReadOnly",        "ofNoChangeDir",
          "ofShowHelp",         "ofNoValidate",         "ofAllowMultiSelect",    "ofExtensionDifferent",
          "ofPathMustExist",    "ofFileMustExist",      "ofCreatePrompt",        "ofShareAware",
          "ofNoReadOnlyReturn", "ofNoTestFileCreate",   "ofNoNetworkButton",     "ofNoLongNames",
          "ofOldStyleDialog",   "ofNoDereferenceLinks", "ofEnableIncludeNotify", "ofEnableSizing",
          "ofDontAddToRecent",  "ofForceShowHidden",    "ofViewDetail",          "ofAutoPreview"})
using TOpenOptions = TSet<TOpenOption>;
VRX_SET(TOpenOptions, TOpenOption)
enum class TOpenOptionEx : std::uint8_t { ofExNoPlacesBar };
VRX_ENUM(TOpenOptionEx, {"ofExNoPlacesBar"})
using TOpenOptionsEx = TSet<TOpenOptionEx>;
VRX_SET(TOpenOptionsEx, TOpenOptionEx)

enum class TColorDialogOption : std::uint8_t {
  cdFullOpen,
  cdPreventFullOpen,
  cdShowHelp,
  cdSolidColor,
  cdAnyColor
};
VRX_ENUM(TColorDialogOption, {"cdFullOpen", "cdPreventFullOpen", "cdShowHelp", "cdSolidColor", "cdAnyColor"})
using TColorDialogOptions = TSet<TColorDialogOption>;
VRX_SET(TColorDialogOptions, TColorDialogOption)

enum class TFontDialogDevice : std::uint8_t { fdScreen, fdPrinter, fdBoth };
VRX_ENUM(TFontDialogDevice, {"fdScreen", "fdPrinter", "fdBoth"})
enum class TFontDialogOption : std::uint8_t {
  fdAnsiOnly,
  fdTrueTypeOnly,
  fdEffects,
  fdFixedPitchOnly,
  fdForceFontExist,
  fdNoFaceSel,
  fdNoOEMFonts,
  fdNoSimulations,
  fdNoSizeSel,
  fdNoStyleSel,
  fdNoVectorFonts,
  fdShowHelp,
  fdWysiwyg,
  fdLimitSize,
  fdScalableOnly,
  fdApplyButton
};
VRX_ENUM(TFontDialogOption,
         {"fdAnsiOnly", "fdTrueTypeOnly", "fdEffects", "fdFixedPitchOnly", "fdForceFontExist", "fdNoFaceSel",
          "fdNoOEMFonts", "fdNoSimulations", "fdNoSizeSel", "fdNoStyleSel", "fdNoVectorFonts", "fdShowHelp",
          "fdWysiwyg", "fdLimitSize", "fdScalableOnly", "fdApplyButton"})
using TFontDialogOptions = TSet<TFontDialogOption>;
VRX_SET(TFontDialogOptions, TFontDialogOption)

enum class TPrintDialogOption : std::uint8_t {
  poPrintToFile,
  poPageNums,
  poSelection,
  poWarning,
  poHelp,
  poDisablePrintToFile
};
VRX_ENUM(TPrintDialogOption,
         {"poPrintToFile", "poPageNums", "poSelection", "poWarning", "poHelp", "poDisablePrintToFile"})
using TPrintDialogOptions = TSet<TPrintDialogOption>;
VRX_SET(TPrintDialogOptions, TPrintDialogOption)
enum class TPrintRange : std::uint8_t { prAllPages, prSelection, prPageNums };
VRX_ENUM(TPrintRange, {"prAllPages", "prSelection", "prPageNums"})

enum class TPageSetupDialogOption : std::uint8_t {
  psoDefaultMinMargins,
  psoDisableMargins,
  psoDisableOrientation,
  psoDisablePagePainting,
  psoDisablePaper,
  psoDisablePrinter,
  psoMargins,
  psoMinMargins,
  psoShowHelp,
  psoWarning,
  psoNoNetworkButton
};
VRX_ENUM(TPageSetupDialogOption,
         {"psoDefaultMinMargins", "psoDisableMargins", "psoDisableOrientation", "psoDisablePagePainting",
          "psoDisablePaper", "psoDisablePrinter", "psoMargins", "psoMinMargins", "psoShowHelp", "psoWarning",
          "psoNoNetworkButton"})
using TPageSetupDialogOptions = TSet<TPageSetupDialogOption>;
VRX_SET(TPageSetupDialogOptions, TPageSetupDialogOption)
enum class TPageMeasureUnits : std::uint8_t { pmDefault, pmMillimeters, pmInches };
VRX_ENUM(TPageMeasureUnits, {"pmDefault", "pmMillimeters", "pmInches"})

enum class TFindOption : std::uint8_t {
  frDown,
  frFindNext,
  frHideMatchCase,
  frHideWholeWord,
  frHideUpDown,
  frMatchCase,
  frDisableMatchCase,
  frDisableUpDown,
  frDisableWholeWord,
  frReplace,
  frReplaceAll,
  frWholeWord,
  frShowHelp,
  frEntireScope,
  frHideEntireScope,
  frPromptOnReplace,
  frHidePromptOnReplace,
  frButtonsAtBottom
};
VRX_ENUM(TFindOption,
         {"frDown", "frFindNext", "frHideMatchCase", "frHideWholeWord", "frHideUpDown", "frMatchCase",
          "frDisableMatchCase", "frDisableUpDown", "frDisableWholeWord", "frReplace", "frReplaceAll",
          "frWholeWord", "frShowHelp", "frEntireScope", "frHideEntireScope", "frPromptOnReplace",
          "frHidePromptOnReplace", "frButtonsAtBottom"})
using TFindOptions = TSet<TFindOption>;
VRX_SET(TFindOptions, TFindOption)

class TCommonDialog : public TComponent {
  VRX_CLASS(TCommonDialog)
 public:
  using TComponent::TComponent;
};

// A dialog that adds nothing to what its ancestor keeps but properties.
#define VRX_DIALOG(Type, Base) \
  class Type : public Base {   \
    VRX_CLASS(Type)            \
   public:                     \
    using Base::Base;          \
  };

class TOpenDialog : public TCommonDialog {
  VRX_CLASS(TOpenDialog)
 public:
  using TCommonDialog::TCommonDialog;
  static constexpr TKept<QString> DefaultExt{"DefaultExt"};
  static constexpr TKept<QString> FileName{"FileName"};
  static constexpr TKept<QString> Filter{"Filter"};
  static constexpr TKept<int> FilterIndex{"FilterIndex", 1};
  static constexpr TKept<QString> InitialDir{"InitialDir"};
  static constexpr TKept<TOpenOptions> Options{"Options",
                                               {TOpenOption::ofHideReadOnly, TOpenOption::ofEnableSizing}};
  static constexpr TKept<QString> Title{"Title"};
};
VRX_DIALOG(TSaveDialog, TOpenDialog)
VRX_DIALOG(TOpenPictureDialog, TOpenDialog)
VRX_DIALOG(TSavePictureDialog, TOpenPictureDialog)

class TColorDialog : public TCommonDialog {
  VRX_CLASS(TColorDialog)
 public:
  using TCommonDialog::TCommonDialog;
  static constexpr TKept<TColor> Color{"Color", clBlack};
  static constexpr TKept<TStrings*> CustomColors{"CustomColors"};
  static constexpr TKept<QString> Title{"Title"};
};

VRX_DIALOG(TPrinterSetupDialog, TCommonDialog)

class TPrintDialog : public TCommonDialog {
  VRX_CLASS(TPrintDialog)
 public:
  using TCommonDialog::TCommonDialog;
  static constexpr TKept<bool> Collate{"Collate", false};
  static constexpr TKept<int> Copies{"Copies", 0};
  static constexpr TKept<int> FromPage{"FromPage", 0};
  static constexpr TKept<int> MaxPage{"MaxPage", 0};
  static constexpr TKept<int> MinPage{"MinPage", 0};
  static constexpr TKept<TPrintDialogOptions> Options{"Options", {}};
  static constexpr TKept<TPrintRange> PrintRange{"PrintRange", TPrintRange::prAllPages};
  static constexpr TKept<bool> PrintToFile{"PrintToFile", false};
  static constexpr TKept<QString> Title{"Title"};
  static constexpr TKept<int> ToPage{"ToPage", 0};
};

// Sizes are hundredths of a millimetre or thousandths of an inch.
class TPageSetupDialog : public TCommonDialog {
  VRX_CLASS(TPageSetupDialog)
 public:
  using TCommonDialog::TCommonDialog;
  static constexpr TKept<int> MarginBottom{"MarginBottom", 0};
  static constexpr TKept<int> MarginLeft{"MarginLeft", 0};
  static constexpr TKept<int> MarginRight{"MarginRight", 0};
  static constexpr TKept<int> MarginTop{"MarginTop", 0};
  static constexpr TKept<int> MinMarginBottom{"MinMarginBottom", 0};
  static constexpr TKept<int> MinMarginLeft{"MinMarginLeft", 0};
  static constexpr TKept<int> MinMarginRight{"MinMarginRight", 0};
  static constexpr TKept<int> MinMarginTop{"MinMarginTop", 0};
  static constexpr TKept<TPageSetupDialogOptions> Options{"Options",
                                                          {TPageSetupDialogOption::psoDefaultMinMargins}};
  static constexpr TKept<int> PageHeight{"PageHeight", 0};
  static constexpr TKept<int> PageWidth{"PageWidth", 0};
  static constexpr TKept<QString> Title{"Title"};
  static constexpr TKept<TPageMeasureUnits> Units{"Units", TPageMeasureUnits::pmDefault};
};

VRX_DIALOG(TFindDialog, TCommonDialog)
VRX_DIALOG(TReplaceDialog, TFindDialog)

// Its font is always written, as that of a control that has one of its own.
class TFontDialog : public TCommonDialog {
  VRX_CLASS(TFontDialog)
 public:
  using TCommonDialog::TCommonDialog;
  static constexpr TKept<int> MaxFontSize{"MaxFontSize", 0};
  static constexpr TKept<int> MinFontSize{"MinFontSize", 0};
  static constexpr TKept<TFontDialogOptions> Options{"Options", {TFontDialogOption::fdEffects}};
  static constexpr TKept<QString> PreviewText{"PreviewText"};
  static constexpr TKept<QString> Title{"Title"};
  TFont* Font() const { return font_.get(); }
  void SetFont(const TFont* v) { font_->Assign(v); }

 private:
  std::unique_ptr<TFont> font_ = std::make_unique<TFont>(this);
};
