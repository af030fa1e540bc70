#include "vcl/Form.h"

#include "vcl/FormDecor.h"
#include "vcl/MenuLook.h"
#include "vcl/PropertyGroups.h"

const TClass& TGlassFrame::StaticClass() {
  static const TClass cls(DescribeClass<TGlassFrame>("TGlassFrame", TPersistent::StaticClass())
                              .Passive("Enabled", false)
                              .Passive("Left", 0)
                              .Passive("Top", 0)
                              .Passive("Right", 0)
                              .Passive("Bottom", 0)
                              .Passive("SheetOfGlass", false));
  return cls;
}

const TClass& TForm::StaticClass() {
  static const TClass cls(
      DescribeClass<TForm>("TForm", TWinControl::StaticClass())
          .Published("Width", &TForm::FrameWidth, &TForm::SetFrameWidth)
          .StoredIf(&TForm::WidthStored)
          .Doc(QStringLiteral("Width with the frame."))
          .Published("Height", &TForm::FrameHeight, &TForm::SetFrameHeight)
          .StoredIf(&TForm::HeightStored)
          .Doc(QStringLiteral("Height with the frame."))
          .Published(
              "BorderIcons", &TForm::BorderIcons, &TForm::SetBorderIcons,
              TBorderIcons{TBorderIcon::biSystemMenu, TBorderIcon::biMinimize, TBorderIcon::biMaximize})
          .Doc(QStringLiteral("Buttons of the title bar."))
          .Published("BorderStyle", &TForm::BorderStyle, &TForm::SetBorderStyle, TFormBorderStyle::bsSizeable)
          .Publish("Caption")
          .Published("ClientHeight", &TForm::ClientHeight, &TForm::SetClientHeight)
          .StoredIf(&TForm::ClientHeightStored)
          .Doc(QStringLiteral("Height inside the frame."))
          .Published("ClientWidth", &TForm::ClientWidth, &TForm::SetClientWidth)
          .StoredIf(&TForm::ClientWidthStored)
          .Doc(QStringLiteral("Width inside the frame."))
          .PublishAll(Look)
          .Published("FormStyle", &TForm::FormStyle, &TForm::SetFormStyle, TFormStyle::fsNormal)
          .Published("KeyPreview", &TForm::KeyPreview, &TForm::SetKeyPreview, false)
          .Doc(QStringLiteral("The form sees keys before its controls."))
          .Published("PixelsPerInch", &TForm::PixelsPerInch, &TForm::SetPixelsPerInch)
          .Published("Position", &TForm::Position, &TForm::SetPosition, TPosition::poDesigned)
          .Doc(QStringLiteral("Where the form appears on the screen."))
          .Published(Menu)
          .Doc(QStringLiteral("The menu below the title bar."))
          .PublishAll("ShowHint")
          .Publish("Visible", false)
          .Published("WindowState", &TForm::WindowState, &TForm::SetWindowState, TWindowState::wsNormal)
          .Event("OnActivate")
          .PublishAll("OnClick")
          .Event("OnClose", "TCloseEvent")
          .Event("OnCloseQuery", "TCloseQueryEvent")
          .Event("OnCreate")
          .PublishAll("OnDblClick")
          .Event("OnDeactivate")
          .Event("OnDestroy")
          .Event("OnHide")
          .PublishAll(KeyEvents, MouseButtonEvents)
          .Event("OnPaint")
          .PublishAll("OnResize")
          .Event("OnShow")
          .PublishAll(Placing, Placement, Direction, Dragging, Help, Styling, WheelEvents, Docking, Container,
                      DragEvents, FocusEvents, "AutoSize", "Ctl3D", "DoubleBuffered", "ParentDoubleBuffered",
                      "PopupMenu", "TabOrder", "TabStop", "OnCanResize", "OnChangeBounds",
                      "OnConstrainedResize", "OnMouseEnter", "OnMouseLeave", "OnUTF8KeyPress")
          .Passive("ParentColor", false)
          .Passive("ParentFont", false)
          .Passive("ParentShowHint", true)
          .PublishedAll(ActiveControl, HorzScrollBar, Icon, LCLVersion, VertScrollBar)
          .Passive("AllowDropFiles", false)
          .Passive("AlphaBlend", false)
          .Passive("AlphaBlendValue", std::uint8_t{255})
          .Passive("AutoScroll", true)
          .Passive("BorderWidth", 0)
          .Passive("DefaultMonitor", TDefaultMonitor::dmActiveForm)
          .Passive("DesignTimePPI", 96)
          .Passive<TGlassFrame*>("GlassFrame")
          .Passive<QString>("HelpFile")
          .Passive<TMenuItem*>("ObjectMenuItem")
          .Passive("OldCreateOrder", false)
          .Passive("PopupMode", TPopupMode::pmNone)
          .Passive<TComponent*>("PopupParent")
          .Passive("PrintScale", TPrintScale::poProportional)
          .Passive("RoundedCorners", TRoundedCorners::rcDefault)
          .Passive("Scaled", true)
          .Passive("ScreenSnap", false)
          .Passive<QString>("SessionProperties")
          .Passive("ShowInTaskBar", TShowInTaskBar::stDefault)
          .Passive("SnapBuffer", 10)
          .Passive("TransparentColor", false)
          .Passive("TransparentColorValue", clBlack)
          .Passive<TMenuItem*>("WindowMenu")
          .Event("OnAfterMonitorDpiChanged", "TMonitorDpiChangedEvent")
          .Event("OnAlignInsertBefore", "TAlignInsertBeforeEvent")
          .Event("OnAlignPosition", "TAlignPositionEvent")
          .Event("OnBeforeMonitorDpiChanged", "TMonitorDpiChangedEvent")
          .Event("OnDropFiles", "TDropFilesEvent")
          .Event("OnHelp", "THelpEvent")
          .Event("OnShortCut", "TShortCutEvent")
          .Event("OnShowHint", "TControlShowHintEvent")
          .Event("OnWindowStateChange")
          .StreamedPassive("DesignLeft", 0)
          .StreamedPassive("DesignTop", 0)
          .StreamedPassive("HorizontalOffset", 0)
          .StreamedPassive("PPI", 96)
          .StreamedPassive("TextHeight", 0)
          .StreamedPassive("TextWidth", 0)
          .StreamedPassive("VerticalOffset", 0)
          .ClassDoc(
              QStringLiteral("A window of the application."),
              "pen line 1.5 brush fill box 3 4 18 16 2 pen none brush accent box 3.75 4.75 16.5 3.5 0"));
  return cls;
}

TForm::TForm(TComponent* owner) : TWinControl(owner) {
  captionFollowsName_ = true;
  parentColor_ = false;
  SetVisible(false);
  frameExtra_ = OwnFrame();
  SetBounds(0, 0, 320 + frameExtra_.width(), 240 + frameExtra_.height());
}

QByteArray TForm::StreamClassName() const {
  return streamClass_.isEmpty() ? ClassType().ClassName() : streamClass_;
}

TMainMenu* TForm::ShownMenu() const { return kind_ == TFormKind::Form ? Get(Menu) : nullptr; }

int TForm::MenuBarHeight() const {
  const TMainMenu* menu = ShownMenu();
  return menu ? ::MenuBarHeight(*menu, ClientWidth()) : 0;
}

QMargins TForm::FrameMargins() const { return WindowFrame() + QMargins(0, MenuBarHeight(), 0, 0); }

QMargins TForm::WindowFrame() const {
  if (kind_ != TFormKind::Form || borderStyle_ == TFormBorderStyle::bsNone) return {};
  const bool small =
      borderStyle_ == TFormBorderStyle::bsToolWindow || borderStyle_ == TFormBorderStyle::bsSizeToolWin;
  return {8, small ? 25 : 31, 8, 8};
}

QSize TForm::OwnFrame() const {
  const QMargins m = WindowFrame();
  return {m.left() + m.right(), m.top() + m.bottom()};
}

QSize TForm::OuterSize() const {
  return QSize(ClientWidth(), ClientHeight()) + OwnFrame() + QSize(0, MenuBarHeight());
}

int TForm::ClientWidth() const { return std::max(0, Width() - frameExtra_.width()); }
int TForm::ClientHeight() const { return std::max(0, Height() - frameExtra_.height()); }

void TForm::SetClientWidth(int v) {
  if (IsLoading())
    across_.client = std::max(v, 0);
  else
    SetBounds(Left(), Top(), v + frameExtra_.width(), Height());
}
void TForm::SetClientHeight(int v) {
  if (IsLoading())
    down_.client = std::max(v, 0);
  else
    SetBounds(Left(), Top(), Width(), v + frameExtra_.height());
}
void TForm::SetFrameWidth(int v) {
  if (IsLoading())
    across_.frame = std::max(v, 0);
  else
    SetBounds(Left(), Top(), v, Height());
}
void TForm::SetFrameHeight(int v) {
  if (IsLoading())
    down_.frame = std::max(v, 0);
  else
    SetBounds(Left(), Top(), Width(), v);
}

void TForm::SetBounds(int left, int top, int width, int height) {
  width = std::max(width, frameExtra_.width());
  height = std::max(height, frameExtra_.height());
  if (sizeInherited_ && !IsLoading() && !IsLayoutFrozen()) {
    const bool across = width != Width() && across_.Unknown(), down = height != Height() && down_.Unknown();
    TControl::SetBounds(Left(), Top(), across ? width : Width(), down ? height : Height());
    const bool client = kind_ == TFormKind::Form && !sizeIsClient_;
    if (across) (client ? across_.client : across_.frame) = client ? ClientWidth() : Width();
    if (down) (client ? down_.client : down_.frame) = client ? ClientHeight() : Height();
  }
  TWinControl::SetBounds(left, top, width, height);
}

bool TForm::IsOfOtherFamily() const {
  return sizeIsClient_ || !Get(LCLVersion).isEmpty() || TWinControl::IsOfOtherFamily();
}

void TForm::SetSizeIsClient(bool v) {
  sizeIsClient_ = v;
  const QSize client(ClientWidth(), ClientHeight());
  frameExtra_ = v ? QSize(0, 0) : OwnFrame();
  SetBounds(Left(), Top(), client.width() + frameExtra_.width(), client.height() + frameExtra_.height());
}

void TForm::SetKind(TFormKind v) {
  KeepClientSize([&] { kind_ = v; });
}
void TForm::SetBorderStyle(TFormBorderStyle v) {
  if (borderStyle_ == v) return;
  KeepClientSize([&] { borderStyle_ = v; });
}
void TForm::KeepClientSize(const std::function<void()>& change) {
  const QSize client(ClientWidth(), ClientHeight()), before = OwnFrame();
  Changing();
  const LayoutChange inside(this);
  change();
  if (!IsLoading() && !sizeIsClient_) {
    frameExtra_ = {MovedByDifference(frameExtra_.width(), before.width(), OwnFrame().width(), true),
                   MovedByDifference(frameExtra_.height(), before.height(), OwnFrame().height(), true)};
    SetBounds(Left(), Top(), client.width() + frameExtra_.width(), client.height() + frameExtra_.height());
  }
  Changed();
}

void TForm::BeginLoading() {
  TWinControl::BeginLoading();
  across_ = down_ = {};
}

// The frame that the form was made with, where the file tells only the size with it: what is aligned shows
// the client area; else the measures that were usual when files told no client size.
QSize TForm::ShownFrame() const {
  if (OwnFrame().isNull()) return OwnFrame();
  constexpr QSize usual(8, 27), most(32, 80);
  int right = -1, bottom = -1;
  for (const TControl* c : Controls()) {
    const TAlign a = c->Align();
    if (a == TAlign::alNone || a == TAlign::alCustom) continue;
    if (a != TAlign::alLeft) right = std::max(right, c->Left() + c->Width());
    if (a != TAlign::alTop) bottom = std::max(bottom, c->Top() + c->Height());
  }
  const auto shown = [](int size, int extent, int limit, int otherwise) {
    return extent > 0 && extent <= size && size - extent <= limit ? size - extent : otherwise;
  };
  return {shown(across_.frame, right, most.width(), usual.width()),
          shown(down_.frame, bottom, most.height(), usual.height())};
}

void TForm::TakeLoadedSize() {
  const QSize client(ClientWidth(), ClientHeight());
  const QSize own = sizeIsClient_ ? QSize(0, 0) : OwnFrame();
  const QSize shown = sizeIsClient_ ? QSize(0, 0) : ShownFrame();
  const auto extra = [](const LoadedSize& s, int ownFrame, int shownFrame) {
    if (s.frame < 0) return ownFrame;
    return s.client < 0 ? shownFrame : s.frame - s.client;
  };
  frameExtra_ = {extra(across_, own.width(), shown.width()), extra(down_, own.height(), shown.height())};
  const auto size = [](const LoadedSize& s, int present, int frame) {
    return s.frame >= 0 ? s.frame : (s.client >= 0 ? s.client : present) + frame;
  };
  SetBounds(Left(), Top(), size(across_, client.width(), frameExtra_.width()),
            size(down_, client.height(), frameExtra_.height()));
}

void TForm::Loaded() {
  TakeLoadedSize();
  TWinControl::Loaded();
}

void TForm::Paint(TCanvas& canvas) {
  for (const TFormDecor* decor : TFormDecor::Of(*this))
    if (decor->PaintGround(canvas, ClientRect())) return;
  canvas.FillRect(ClientRect(), kind_ == TFormKind::DataModule ? clWindow : Color());
}
