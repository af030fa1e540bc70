#include "vcl/Dialogs.h"

#include "rtl/Class.h"
#include "rtl/Strings.h"
#include "vcl/DialogParts.h"
#include "vcl/Font.h"
#include "vcl/Grid.h"

namespace {
// What each dialog keeps, as a component or inside of an action.
TClassBuilder CommonRows(TClassBuilder b) {
  return std::move(b)
      .Passive("Ctl3D", true)
      .StreamedPassive("Height", 0)
      .Passive("HelpContext", 0)
      .StreamedPassive("Width", 0)
      .Event("OnClose")
      .Event("OnShow");
}
TClassBuilder OpenRows(TClassBuilder b) {
  using enum TOpenOption;
  return std::move(b)
      .Published(TOpenDialog::DefaultExt)
      .Doc(QStringLiteral("Added to a name that has no extension."))
      .Published(TOpenDialog::FileName)
      .Published(TOpenDialog::Filter)
      .Doc(QStringLiteral("Pairs of name and pattern: \"Texts|*.txt|All files|*\"."))
      .Published(TOpenDialog::FilterIndex)
      .Published(TOpenDialog::InitialDir)
      .Published(TOpenDialog::Options)
      .OtherDefault(TOpenOptions{ofEnableSizing, ofViewDetail})
      .Passive("OptionsEx", TOpenOptionsEx{})
      .Published(TOpenDialog::Title)
      .Event("OnCanClose", "TCloseQueryEvent")
      .Event("OnFolderChange")
      .Event("OnIncludeItem", "TIncludeItemEvent")
      .Event("OnSelectionChange")
      .Event("OnTypeChange");
}
TClassBuilder ColorRows(TClassBuilder b) {
  return std::move(b)
      .Published(TColorDialog::Color)
      .Published(TColorDialog::CustomColors)
      .Doc(QStringLiteral("Colors of one's own, as \"ColorA=FFFFFF\", to \"ColorP\"."))
      .Passive("Options", TColorDialogOptions{})
      .Published(TColorDialog::Title);
}
TClassBuilder PrintRows(TClassBuilder b) {
  return std::move(b).PublishedAll(TPrintDialog::Collate, TPrintDialog::Copies, TPrintDialog::FromPage,
                                   TPrintDialog::MaxPage, TPrintDialog::MinPage, TPrintDialog::Options,
                                   TPrintDialog::PrintRange, TPrintDialog::PrintToFile, TPrintDialog::Title,
                                   TPrintDialog::ToPage);
}
TClassBuilder PageSetupRows(TClassBuilder b) {
  using D = TPageSetupDialog;
  return std::move(b)
      .PublishedAll(D::MarginBottom, D::MarginLeft, D::MarginRight, D::MarginTop, D::MinMarginBottom,
                    D::MinMarginLeft, D::MinMarginRight, D::MinMarginTop, D::Options, D::PageHeight,
                    D::PageWidth, D::Title, D::Units)
      .Event("OnDrawEnvelope", "TPaintPageEvent")
      .Event("OnDrawFullPage", "TPaintPageEvent")
      .Event("OnDrawGreekText", "TPaintPageEvent")
      .Event("OnDrawMargin", "TPaintPageEvent")
      .Event("OnDrawMinMargin", "TPaintPageEvent")
      .Event("OnDrawRetAddress", "TPaintPageEvent");
}
TClassBuilder FindRows(TClassBuilder b) {
  return std::move(b)
      .Passive<QString>("FindText")
      .Passive("Options", TFindOptions{TFindOption::frDown})
      .Passive<QString>("Title")
      .Event("OnFind");
}
TClassBuilder ReplaceRows(TClassBuilder b) {
  return std::move(b).Passive<QString>("ReplaceText").Event("OnReplace");
}
TClassBuilder FontRows(TClassBuilder b) {
  return std::move(b)
      .PublishedAll(TFontDialog::MaxFontSize, TFontDialog::MinFontSize, TFontDialog::Options,
                    TFontDialog::PreviewText, TFontDialog::Title)
      .Event("OnApply", "TFDApplyEvent");
}
}  // namespace

const TClass& TCommonDialog::StaticClass() {
  static const TClass cls(
      CommonRows(DescribeClass<TCommonDialog>("TCommonDialog", TComponent::StaticClass())));
  return cls;
}

const TClass& TOpenDialog::StaticClass() {
  static const TClass cls(
      OpenRows(DescribeClass<TOpenDialog>("TOpenDialog", TCommonDialog::StaticClass()))
          .ClassDoc(QStringLiteral("Asks for a file to open."),
                    "pen line 1.5 brush fill path 3.5 19.5 3.5 5.5 9 5.5 11 8 18.5 8 18.5 11 pen accent 1.8 "
                    "brush none path 3.5 19.5 6.5 11 21 11 18 19.5 3.5 19.5"));
  return cls;
}

const TClass& TSaveDialog::StaticClass() {
  static const TClass cls(
      DescribeClass<TSaveDialog>("TSaveDialog", TOpenDialog::StaticClass())
          .ClassDoc(
              QStringLiteral("Asks for the name of a file to save."),
              "pen line 1.5 brush fill box 4 4 16 16 1 pen accent 1.8 brush none box 8 4 8 5 0 box 7 13 "
              "10 7 0"));
  return cls;
}

const TClass& TOpenPictureDialog::StaticClass() {
  static const TClass cls(
      DescribeClass<TOpenPictureDialog>("TOpenPictureDialog", TOpenDialog::StaticClass())
          .ClassDoc(QStringLiteral("Asks for a picture to open, and shows it."),
                    "pen line 1.5 brush fill path 3.5 19.5 3.5 5.5 9 5.5 11 8 20.5 8 20.5 19.5 3.5 19.5 pen "
                    "accent 1.8 brush none path 6 17 10 12.5 13 15.5 15.5 13 18 16"));
  return cls;
}

const TClass& TSavePictureDialog::StaticClass() {
  static const TClass cls(
      DescribeClass<TSavePictureDialog>("TSavePictureDialog", TOpenPictureDialog::StaticClass())
          .ClassDoc(
              QStringLiteral("Asks for the name of a picture to save."),
              "pen line 1.5 brush fill box 4 4 16 16 1 box 8 4 8 4 0 pen accent 1.8 brush none path 6.5 "
              "17.5 10 13 12.5 15.5 14.5 13.5 17.5 17"));
  return cls;
}

const TClass& TColorDialog::StaticClass() {
  static const TClass cls(
      ColorRows(DescribeClass<TColorDialog>("TColorDialog", TCommonDialog::StaticClass()))
          .ClassDoc(
              QStringLiteral("The system's dialog for a color."),
              "pen line 1.5 brush fill oval 3.5 4.5 17 15 pen none brush accent oval 6.5 10 3 3 oval 10 "
              "6.5 3 3 oval 14.5 8 3 3 pen line 1.5 brush none oval 13.5 13 3.5 3"));
  return cls;
}

const TClass& TFontDialog::StaticClass() {
  static const TClass cls(
      FontRows(DescribeClass<TFontDialog>("TFontDialog", TCommonDialog::StaticClass())
                   .Passive("Device", TFontDialogDevice::fdScreen)
                   .Published("Font", &TFontDialog::Font, &TFontDialog::SetFont))
          .ClassDoc(
              QStringLiteral("The system's dialog for a font."),
              "pen line 1.5 brush fill box 3.5 3.5 17 17 1 pen accent 2 brush none path 8 17 12 7 16 17 "
              "path 9.5 13.5 14.5 13.5"));
  return cls;
}

const TClass& TPrinterSetupDialog::StaticClass() {
  static const TClass cls(
      DescribeClass<TPrinterSetupDialog>("TPrinterSetupDialog", TCommonDialog::StaticClass())
          .ClassDoc(QStringLiteral("Asks for a printer and how it is set up."),
                    "pen line 1.5 brush fill box 3.5 9 17 8 1 box 7 3.5 10 5.5 0 pen accent 1.8 path 7 20.5 "
                    "17 20.5 pen line 1.5 path 17 12 18 12"));
  return cls;
}

const TClass& TPrintDialog::StaticClass() {
  static const TClass cls(
      PrintRows(DescribeClass<TPrintDialog>("TPrintDialog", TCommonDialog::StaticClass()))
          .ClassDoc(
              QStringLiteral("Asks what to print, and how often."),
              "pen line 1.5 brush fill box 3.5 9 17 7 1 box 7 3.5 10 5.5 0 pen accent 1.8 box 7 13.5 10 "
              "7 0 path 9 17 15 17"));
  return cls;
}

const TClass& TPageSetupDialog::StaticClass() {
  static const TClass cls(
      PageSetupRows(DescribeClass<TPageSetupDialog>("TPageSetupDialog", TCommonDialog::StaticClass()))
          .ClassDoc(QStringLiteral("The system's dialog for paper and margins."),
                    "pen line 1.5 brush fill box 5 3.5 14 17 0 pen accent 1.5 brush none box 8 6.5 8 11 0"));
  return cls;
}

const TClass& TFindDialog::StaticClass() {
  static const TClass cls(
      FindRows(DescribeClass<TFindDialog>("TFindDialog", TCommonDialog::StaticClass()))
          .ClassDoc(QStringLiteral("Asks for a text to look for."),
                    "pen line 1.5 brush fill oval 4 4 11 11 pen accent 2.4 path 14 14 20 20"));
  return cls;
}

const TClass& TReplaceDialog::StaticClass() {
  static const TClass cls(
      ReplaceRows(DescribeClass<TReplaceDialog>("TReplaceDialog", TFindDialog::StaticClass()))
          .ClassDoc(
              QStringLiteral("Asks for a text to look for and one to put in its place."),
              "pen line 1.5 brush fill oval 3.5 3.5 9 9 pen line 2 path 11.5 11.5 14.5 14.5 pen accent 2 "
              "path 6 20 20 20 path 17 17 20 20 17 22.5"));
  return cls;
}

namespace {
template <class T>
TClassBuilder Part(const char* name) {
  return CommonRows(DescribeClass<T>(name, TPersistent::StaticClass()));
}
}  // namespace

const TClass& TOpenDialogPart::StaticClass() {
  static const TClass cls(OpenRows(Part<TOpenDialogPart>("TOpenDialogPart")));
  return cls;
}
const TClass& TColorDialogPart::StaticClass() {
  static const TClass cls(ColorRows(Part<TColorDialogPart>("TColorDialogPart")));
  return cls;
}
const TClass& TFontDialogPart::StaticClass() {
  static const TClass cls(FontRows(Part<TFontDialogPart>("TFontDialogPart")
                                       .Passive("Device", TFontDialogDevice::fdScreen)
                                       .Passive<TFontChanges*>("Font")));
  return cls;
}
const TClass& TPrinterSetupDialogPart::StaticClass() {
  static const TClass cls(Part<TPrinterSetupDialogPart>("TPrinterSetupDialogPart"));
  return cls;
}
const TClass& TPrintDialogPart::StaticClass() {
  static const TClass cls(PrintRows(Part<TPrintDialogPart>("TPrintDialogPart")));
  return cls;
}
const TClass& TPageSetupDialogPart::StaticClass() {
  static const TClass cls(PageSetupRows(Part<TPageSetupDialogPart>("TPageSetupDialogPart")));
  return cls;
}
const TClass& TFindDialogPart::StaticClass() {
  static const TClass cls(FindRows(Part<TFindDialogPart>("TFindDialogPart")));
  return cls;
}
const TClass& TReplaceDialogPart::StaticClass() {
  static const TClass cls(ReplaceRows(FindRows(Part<TReplaceDialogPart>("TReplaceDialogPart"))));
  return cls;
}
