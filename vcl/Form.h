// Forms: the root of what is designed. A form's children live in its client area; the frame around it is
// drawn with fixed measures, so that sizes in form files mean the same everywhere.
#pragma once
#include <functional>

#include "vcl/Control.h"
#include "vcl/ControlScrollBar.h"
#include "vcl/Menu.h"
#include "vcl/Picture.h"

// What a root stands for. Only a form has a window frame; a data module holds no controls.
enum class TFormKind : std::uint8_t { Form, Frame, DataModule };
enum class TBorderIcon : std::uint8_t { biSystemMenu, biMinimize, biMaximize, biHelp };
using TBorderIcons = TSet<TBorderIcon>;
enum class TFormBorderStyle : std::uint8_t {
  bsNone,
  bsSingle,
  bsSizeable,
  bsDialog,
  bsToolWindow,
  bsSizeToolWin
};
enum class TFormStyle : std::uint8_t { fsNormal, fsMDIChild, fsMDIForm, fsStayOnTop };
enum class TPosition : std::uint8_t {
  poDesigned,
  poDefault,
  poDefaultPosOnly,
  poDefaultSizeOnly,
  poScreenCenter,
  poDesktopCenter,
  poMainFormCenter,
  poOwnerFormCenter
};
enum class TWindowState : std::uint8_t { wsNormal, wsMinimized, wsMaximized };

VRX_ENUM(TBorderIcon, {"biSystemMenu", "biMinimize", "biMaximize", "biHelp"})
VRX_SET(TBorderIcons, TBorderIcon)
VRX_ENUM(TFormBorderStyle, {"bsNone", "bsSingle", "bsSizeable", "bsDialog", "bsToolWindow", "bsSizeToolWin"})
VRX_ENUM(TFormStyle, {"fsNormal", "fsMDIChild", "fsMDIForm", "fsStayOnTop"})
VRX_ENUM(TPosition, {"poDesigned", "poDefault", "poDefaultPosOnly", "poDefaultSizeOnly", "poScreenCenter",
                     "poDesktopCenter", "poMainFormCenter", "poOwnerFormCenter"})
VRX_ENUM(TWindowState, {"wsNormal", "wsMinimized", "wsMaximized"})

enum class TDefaultMonitor : std::uint8_t { dmDesktop, dmPrimary, dmMainForm, dmActiveForm };
VRX_ENUM(TDefaultMonitor, {"dmDesktop", "dmPrimary", "dmMainForm", "dmActiveForm"})
enum class TPopupMode : std::uint8_t { pmNone, pmAuto, pmExplicit };
VRX_ENUM(TPopupMode, {"pmNone", "pmAuto", "pmExplicit"})
enum class TPrintScale : std::uint8_t { poNone, poProportional, poPrintToFit };
VRX_ENUM(TPrintScale, {"poNone", "poProportional", "poPrintToFit"})
enum class TRoundedCorners : std::uint8_t { rcDefault, rcOff, rcOn, rcSmall };
VRX_ENUM(TRoundedCorners, {"rcDefault", "rcOff", "rcOn", "rcSmall"})
enum class TShowInTaskBar : std::uint8_t { stDefault, stAlways, stNever };
VRX_ENUM(TShowInTaskBar, {"stDefault", "stAlways", "stNever"})

// How far the frame's glass reaches into the form.
class TGlassFrame : public TKeptPart {
  VRX_CLASS(TGlassFrame)
 public:
  using TKeptPart::TKeptPart;
};

class TForm : public TWinControl {
  VRX_CLASS(TForm)
 public:
  explicit TForm(TComponent* owner);
  static constexpr TKept<TWinControl*> ActiveControl{"ActiveControl"};
  static constexpr TKept<TControlScrollBar*> HorzScrollBar{"HorzScrollBar"};
  static constexpr TKept<TIcon*> Icon{"Icon"};
  static constexpr TKept<QString> LCLVersion{"LCLVersion"};
  static constexpr TKept<TMainMenu*> Menu{"Menu"};
  static constexpr TKept<TControlScrollBar*> VertScrollBar{"VertScrollBar"};

  // The form's own class, a descendant that only the form file names ("TControlPanel").
  QByteArray StreamClassName() const override;
  void SetStreamClassName(QByteArray name) { streamClass_ = std::move(name); }

  TFormKind Kind() const { return kind_; }
  // Keeps the client area.
  void SetKind(TFormKind v);

  // The menu that the form shows below its title bar; null for none.
  TMainMenu* ShownMenu() const;
  // How much of the frame's top is its bar.
  int MenuBarHeight() const;

  // The frame as it is drawn: title bar, menu bar and borders, in pixels.
  QMargins FrameMargins() const;
  // The client area with the frame around it.
  QSize OuterSize() const;
  // By how much Width and Height exceed the client area. Other makers' frames have other measures: where the
  // form file tells both sizes, or shows the client area by what is aligned in it, that holds.
  // In some form files Width and Height are the client area's. To be said before the form is loaded.
  void SetSizeIsClient(bool v);
  bool SizeIsClient() const { return sizeIsClient_; }
  bool IsOfOtherFamily() const override;
  // A size that the form file does not give is the ancestor's, which nobody knows: the first one that is
  // given moves nothing. To be said before the form is loaded.
  void SetSizeInherited(bool v) { sizeInherited_ = v; }
  QRect ClientRect() const override { return {0, 0, ClientWidth(), ClientHeight()}; }
  int ClientWidth() const;
  int ClientHeight() const;
  void SetClientWidth(int v);
  void SetClientHeight(int v);

  TBorderIcons BorderIcons() const { return borderIcons_; }
  void SetBorderIcons(TBorderIcons v) { Change(borderIcons_, v); }
  TFormBorderStyle BorderStyle() const { return borderStyle_; }
  // Keeps the client area.
  void SetBorderStyle(TFormBorderStyle v);
  TFormStyle FormStyle() const { return formStyle_; }
  void SetFormStyle(TFormStyle v) { Change(formStyle_, v); }
  bool KeyPreview() const { return keyPreview_; }
  void SetKeyPreview(bool v) { Change(keyPreview_, v); }
  TPosition Position() const { return position_; }
  void SetPosition(TPosition v) { Change(position_, v); }
  TWindowState WindowState() const { return windowState_; }
  void SetWindowState(TWindowState v) { Change(windowState_, v); }
  int PixelsPerInch() const { return pixelsPerInch_; }
  void SetPixelsPerInch(int v) { Change(pixelsPerInch_, v); }

  // No smaller than its frame.
  void SetBounds(int left, int top, int width, int height) override;
  bool AcceptsControls() const override { return kind_ != TFormKind::DataModule; }
  // The client area only; whoever shows the form draws the frame.
  void Paint(TCanvas& canvas) override;
  void BeginLoading() override;
  void Loaded() override;

 private:
  // Along one axis: what the form file gives, -1 for nothing.
  struct LoadedSize {
    int frame = -1, client = -1;
    bool Unknown() const { return frame < 0 && client < 0; }
  };
  bool FrameStored(const LoadedSize& s) const {
    return s.frame >= 0 || ((sizeIsClient_ || kind_ != TFormKind::Form) && s.client < 0);
  }
  bool ClientStored(const LoadedSize& s) const { return s.client >= 0 || !FrameStored(s); }
  bool WidthStored() const { return FrameStored(across_); }
  bool HeightStored() const { return FrameStored(down_); }
  bool ClientWidthStored() const { return ClientStored(across_); }
  bool ClientHeightStored() const { return ClientStored(down_); }
  void KeepClientSize(const std::function<void()>& change);
  int FrameWidth() const { return Width(); }
  int FrameHeight() const { return Height(); }
  void SetFrameWidth(int v);
  void SetFrameHeight(int v);
  // Without the menu bar, which is added outside of the sizes that the form file gives.
  QMargins WindowFrame() const;
  QSize OwnFrame() const;
  QSize ShownFrame() const;
  void TakeLoadedSize();

  QByteArray streamClass_;
  TFormKind kind_ = TFormKind::Form;
  TBorderIcons borderIcons_{TBorderIcon::biSystemMenu, TBorderIcon::biMinimize, TBorderIcon::biMaximize};
  TFormBorderStyle borderStyle_ = TFormBorderStyle::bsSizeable;
  TFormStyle formStyle_ = TFormStyle::fsNormal;
  TPosition position_ = TPosition::poDesigned;
  TWindowState windowState_ = TWindowState::wsNormal;
  bool keyPreview_ = false;
  bool sizeIsClient_ = false;
  bool sizeInherited_ = false;
  QSize frameExtra_;
  LoadedSize across_, down_;
  int pixelsPerInch_ = 96;
};
