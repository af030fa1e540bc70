#include "vcl/Form.h"

const TClass& TForm::StaticClass() {
  static const TClass cls(
      DescribeClass<TForm>("TForm", TWinControl::StaticClass())
          .Published("Width", &TForm::FrameWidth, &TForm::SetFrameWidth)
          .StoredIf(&TForm::FrameSizeStored)
          .Doc(QStringLiteral("Width with the frame."))
          .Published("Height", &TForm::FrameHeight, &TForm::SetFrameHeight)
          .StoredIf(&TForm::FrameSizeStored)
          .Doc(QStringLiteral("Height with the frame."))
          .Published(
              "BorderIcons", &TForm::BorderIcons, &TForm::SetBorderIcons,
              TBorderIcons{TBorderIcon::biSystemMenu, TBorderIcon::biMinimize, TBorderIcon::biMaximize})
          .Doc(QStringLiteral("Buttons of the title bar."))
          .Published("BorderStyle", &TForm::BorderStyle, &TForm::SetBorderStyle, TFormBorderStyle::bsSizeable)
          .Publish("Caption")
          .Published("ClientHeight", &TForm::ClientHeight, &TForm::SetClientHeight)
          .StoredIf(&TForm::ClientSizeStored)
          .Doc(QStringLiteral("Height inside the frame."))
          .Published("ClientWidth", &TForm::ClientWidth, &TForm::SetClientWidth)
          .StoredIf(&TForm::ClientSizeStored)
          .Doc(QStringLiteral("Width inside the frame."))
          .PublishAll("Color", "Enabled", "Font")
          .Published("FormStyle", &TForm::FormStyle, &TForm::SetFormStyle, TFormStyle::fsNormal)
          .Published("KeyPreview", &TForm::KeyPreview, &TForm::SetKeyPreview, false)
          .Doc(QStringLiteral("The form sees keys before its controls."))
          .Published("PixelsPerInch", &TForm::PixelsPerInch, &TForm::SetPixelsPerInch)
          .Published("Position", &TForm::Position, &TForm::SetPosition, TPosition::poDesigned)
          .Doc(QStringLiteral("Where the form appears on the screen."))
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
          .PublishAll("OnKeyDown", "OnKeyPress", "OnKeyUp", "OnMouseDown", "OnMouseMove", "OnMouseUp")
          .Event("OnPaint")
          .PublishAll("OnResize")
          .Event("OnShow")
          .ClassDoc(QStringLiteral("A window of the application.")));
  return cls;
}

TForm::TForm(TComponent* owner) : TWinControl(owner) {
  captionFollowsName_ = true;
  parentColor_ = false;
  SetVisible(false);
  SetBounds(0, 0, 320 + FrameMargins().left() + FrameMargins().right(),
            240 + FrameMargins().top() + FrameMargins().bottom());
}

QByteArray TForm::StreamClassName() const {
  return streamClass_.isEmpty() ? ClassType().ClassName() : streamClass_;
}

QMargins TForm::FrameMargins() const {
  if (kind_ != TFormKind::Form || borderStyle_ == TFormBorderStyle::bsNone) return {};
  const bool small =
      borderStyle_ == TFormBorderStyle::bsToolWindow || borderStyle_ == TFormBorderStyle::bsSizeToolWin;
  return {8, small ? 25 : 31, 8, 8};
}

int TForm::ClientWidth() const {
  return std::max(0, Width() - FrameMargins().left() - FrameMargins().right());
}
int TForm::ClientHeight() const {
  return std::max(0, Height() - FrameMargins().top() - FrameMargins().bottom());
}

void TForm::SetClientWidth(int v) {
  if (IsLoading()) loadClientWidth_ = v;
  SetBounds(Left(), Top(), v + FrameMargins().left() + FrameMargins().right(), Height());
}
void TForm::SetClientHeight(int v) {
  if (IsLoading()) loadClientHeight_ = v;
  SetBounds(Left(), Top(), Width(), v + FrameMargins().top() + FrameMargins().bottom());
}
void TForm::SetBounds(int left, int top, int width, int height) {
  const QMargins m = IsLoading() ? QMargins() : FrameMargins();
  TWinControl::SetBounds(left, top, std::max(width, m.left() + m.right()),
                         std::max(height, m.top() + m.bottom()));
}
void TForm::SetFrameWidth(int v) {
  if (IsLoading()) frameSizeStored_ = true;
  SetBounds(Left(), Top(), v, Height());
}
void TForm::SetFrameHeight(int v) {
  if (IsLoading()) frameSizeStored_ = true;
  SetBounds(Left(), Top(), Width(), v);
}

void TForm::SetKind(TFormKind v) {
  KeepClientSize([&] { kind_ = v; });
}
void TForm::SetBorderStyle(TFormBorderStyle v) {
  KeepClientSize([&] { borderStyle_ = v; });
}
void TForm::KeepClientSize(const std::function<void()>& change) {
  const QSize client(ClientWidth(), ClientHeight());
  change();
  const QMargins m = FrameMargins();
  SetBounds(Left(), Top(), client.width() + m.left() + m.right(), client.height() + m.top() + m.bottom());
  Changed();
}

void TForm::BeginLoading() {
  TWinControl::BeginLoading();
  loadClientWidth_ = loadClientHeight_ = -1;
  frameSizeStored_ = false;
}

void TForm::Loaded() {
  // The client size wins over the size with the frame, whatever order the file has them in.
  if (loadClientWidth_ >= 0) SetClientWidth(loadClientWidth_);
  if (loadClientHeight_ >= 0) SetClientHeight(loadClientHeight_);
  TWinControl::Loaded();
}

void TForm::Paint(TCanvas& canvas) {
  canvas.FillRect(ClientRect(), kind_ == TFormKind::DataModule ? clWindow : Color());
}
