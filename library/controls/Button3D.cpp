#include "library/controls/Button3D.h"

#include "library/controls/Faced.h"
#include "vcl/PropertyGroups.h"

const TClass& TVRXCustom3DButton::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXCustom3DButton>("TVRXCustom3DButton", TGraphicControl::StaticClass())
          .Icon("pen line 1.3 brush fill box 3 5 18 14 2 pen accent 1.6 path 5.5 16.5 5.5 7.5 18.5 7.5 "
                "pen none brush accent oval 9 10 6.5 6")
          .Declared("ButtonFace", &TVRXCustom3DButton::ButtonFace, &TVRXCustom3DButton::SetButtonFace)
          .Doc(QStringLiteral("The pictures of the button: up, down and disabled."))
          .Declared("Down", &TVRXCustom3DButton::Down, &TVRXCustom3DButton::SetDown, false)
          .Doc(QStringLiteral("Shows the button pressed.")));
  return cls;
}

const TClass& TVRX3DEffectButton::StaticClass() {
  static const TClass cls(
      VRXWithFace(DescribeClass<TVRX3DEffectButton>("TVRX3DEffectButton", TVRXCustom3DButton::StaticClass())
                      .PublishAll(Placing)
                      .Publish("AutoSize", false)
                      .PublishAll("ButtonFace", "Caption", "Down", "Enabled"))
          .PublishAll("Font", "ParentFont", Hints, "Visible", MouseEvents)
          .ClassDoc(QStringLiteral("A button made of pictures with a 3D effect.")));
  return cls;
}

TVRXCustom3DButton::TVRXCustom3DButton(TComponent* owner)
    : TGraphicControl(owner), face_(std::make_unique<TVRX3DButtonFace>(this)) {
  captionFollowsName_ = true;
  SetBounds(0, 0, 145, 32);
}
TVRXCustom3DButton::~TVRXCustom3DButton() = default;

void TVRXCustom3DButton::SetDown(bool v) { Change(down_, v); }

QSize TVRXCustom3DButton::AutoSizeHint() const {
  return face_->Empty() ? QSize(Width(), Height()) : face_->Size();
}

void TVRXCustom3DButton::Paint(TCanvas& canvas) {
  const TVRX3DButtonState state = !Enabled() ? TVRX3DButtonState::Disabled
                                  : down_    ? TVRX3DButtonState::Down
                                             : TVRX3DButtonState::Up;
  const TVRXFaceLook look = VRXFaceOf(*this);
  const QImage picture = look.Picture(face_->Picture(state));
  if (picture.isNull()) return PaintPlain(canvas, look);
  canvas.Painter().drawImage((Width() - picture.width()) / 2, (Height() - picture.height()) / 2, picture);
}

// Until it has pictures it looks like any button.
void TVRXCustom3DButton::PaintPlain(TCanvas& canvas, const TVRXFaceLook& look) {
  canvas.FillRect(ClientRect(), clBtnFace);
  const QRect outline = canvas.Frame3D(ClientRect(), cl3DDkShadow, cl3DDkShadow, 1);
  const QRect inside = down_ ? canvas.Frame3D(outline, clBtnShadow, clBtnHighlight, 2)
                             : canvas.Frame3D(outline, clBtnHighlight, clBtnShadow, 2);
  look.PaintGround(canvas, inside);
  canvas.TextRect(inside.translated(down_, down_), Qt::AlignCenter | Qt::TextShowMnemonic, Caption(),
                  look.Font(*Font()), look.HasLetters(Enabled()));
}
