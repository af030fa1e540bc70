#include "library/components/FaceController.h"

#include <algorithm>

using enum TVRXCFCSettingObjectKind;

const TClass& TVRXFaceController::StaticClass() {
  using C = TVRXFaceController;
  static const TClass cls(
      DescribeClass<C>("TVRXFaceController", TComponent::StaticClass())
          .Published(DesignStates)
          .Doc(QStringLiteral("States that controls show in the designer besides those they are in."))
          .Streamed("SettingObjects", &C::SettingObjects, nullptr)
          .Streamed("States", &C::States, nullptr)
          .Streamed("Foreign", &C::Foreign, &C::SetForeign)
          .ClassDoc(QStringLiteral("Gives controls another look in each of their states."),
                    "pen line 1.5 brush fill box 2.5 3.5 12 7 1.5 brush none box 9.5 13.5 12 7 1.5 "
                    "pen accent 2 path 6 7 11 7 pen none brush accent+50 box 11 15 9 4 0.5 "
                    "pen accent 1.5 path 6 13 6 17 path 4 15 6 17 8 15"));
  return cls;
}

TVRXFaceController::TVRXFaceController(TComponent* owner)
    : TComponent(owner),
      settings_(std::make_unique<TVRXCFCSettingObjects>(this)),
      states_(std::make_unique<TVRXCFCStateObjects>(this)) {
  states_->SetSettings(settings_.get());
}
TVRXFaceController::~TVRXFaceController() = default;

void TVRXFaceController::RemoveSettingObject(int index) {
  const TUpdateLock lock(*this);
  const QString name = settings_->Setting(index)->Get(TVRXCFCSettingObject::ObjName);
  const bool meant = settings_->IndexOf(name) == index;
  settings_->Delete(index);
  if (meant) states_->RemoveName(name);
}

void TVRXFaceController::LoadFromFile(const QString& fileName) {
  const TUpdateLock lock(*this);
  VRXLoadFace(fileName, *settings_, states_.get());
}
void TVRXFaceController::SaveToFile(const QString& fileName) const {
  VRXSaveFace(fileName, *settings_, states_.get());
}

TVRXFaceLook TVRXFaceController::LookIn(TVRXStateKinds kinds) const {
  std::vector<const TVRXCFCStateObject*> fitting;
  for (int i = 0; i < states_->Count(); ++i) {
    const TVRXCFCStateObject* state = states_->Items(i);
    if ((state->Get(TVRXCFCStateObject::Kind).Bits() & ~kinds.Bits()) == 0) fitting.push_back(state);
  }
  std::stable_sort(fitting.begin(), fitting.end(), [](const auto* a, const auto* b) {
    return VRXRankOf(a->Get(TVRXCFCStateObject::Kind)) < VRXRankOf(b->Get(TVRXCFCStateObject::Kind));
  });
  TVRXFaceLook look;
  for (const TVRXCFCStateObject* state : fitting)
    for (int i = 0; i < state->Count(); ++i)
      if (const TPersistent* object = state->Items(i)) {
        const TVRXCFCSettingObjectKind kind = VRXCFCGetSettingsKindObject(object);
        look.objects_[static_cast<std::size_t>(kind)] = object;
        if (kind == okFont)
          look.fontOfDisabled_ = state->Get(TVRXCFCStateObject::Kind).Contains(TVRXStateKind::skDisabled);
      }
  return look;
}

void TVRXFaceLook::Take(TVRXCFCSettingObjectKind kind, std::shared_ptr<const TPersistent> object,
                        bool forDisabled) {
  objects_[static_cast<std::size_t>(kind)] = object.get();
  if (kind == okFont) fontOfDisabled_ = forDisabled;
  own_.push_back(std::move(object));
}

TColor TVRXFaceLook::Color(TColor own) const {
  const auto* color = static_cast<const TVRXColorObject*>(Of(okColor));
  return color ? color->Get(TVRXColorObject::Color) : own;
}

QImage TVRXFaceLook::Picture(const QImage& picture) const {
  const auto* effect = static_cast<const TVRXBitmapEffect*>(Of(okBitmapEffect));
  return effect ? effect->Apply(picture) : picture;
}

bool TVRXFaceLook::HasGround() const { return Of(okColor) || Of(okBrush) || Of(okFillObject); }

// What is in front lies over what is behind: a hatched brush shows the colour between its lines.
void TVRXFaceLook::PaintGround(TCanvas& canvas, const QPainterPath& area) const {
  QPainter& p = canvas.Painter();
  if (Of(okColor)) p.fillPath(area, ToQColor(Color(clNone)));
  if (const auto* brush = static_cast<const TBrush*>(Of(okBrush))) p.fillPath(area, ToQBrush(*brush));
  if (const auto* fill = static_cast<const TVRXFillObject*>(Of(okFillObject)))
    fill->Draw(canvas, area, nullptr);
}
void TVRXFaceLook::PaintGround(TCanvas& canvas, const QRect& rect) const {
  QPainterPath area;
  area.addRect(rect);
  PaintGround(canvas, area);
}
