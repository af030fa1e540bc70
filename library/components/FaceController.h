// Gives controls another look in each of their states: a list of named setting objects, and states that say
// which of them apply. Controls refer to the controller; one serves any number of them.
#pragma once
#include <memory>

#include "library/values/FaceObjects.h"
#include "rtl/Component.h"

// The objects that apply to a control, one of each kind at most.
class TVRXFaceLook {
 public:
  const TFont& Font(const TFont& own) const { return Or(TVRXCFCSettingObjectKind::okFont, own); }
  const TVRXFont3D& Font3D(const TVRXFont3D& own) const {
    return Or(TVRXCFCSettingObjectKind::okFont3D, own);
  }
  const TVRXFxCaption& FontFx(const TVRXFxCaption& own) const {
    return Or(TVRXCFCSettingObjectKind::okFontFx, own);
  }
  const TVRXBevel& Bevel(const TVRXBevel& own) const { return Or(TVRXCFCSettingObjectKind::okBevel, own); }
  TColor Color(TColor own) const;
  // Whether letters have the colour of their font: of what is disabled only where the look has one for that.
  bool HasLetters(bool enabled) const { return enabled || fontOfDisabled_; }
  // With the effect of the look, if there is one.
  QImage Picture(const QImage& picture) const;
  // Whether it says what the control stands on: a fill, a brush or a colour.
  bool HasGround() const;
  // Paints that; nothing when it says nothing.
  void PaintGround(TCanvas& canvas, const QPainterPath& area) const;
  void PaintGround(TCanvas& canvas, const QRect& rect) const;
  // Takes an object of its own in the place of what it has of the kind. Letters of what is disabled have the
  // colour of a font that is meant for them.
  void Take(TVRXCFCSettingObjectKind kind, std::shared_ptr<const TPersistent> object, bool forDisabled);
  // What the look has for a kind; null for nothing.
  const TPersistent* Of(TVRXCFCSettingObjectKind kind) const {
    return objects_[static_cast<std::size_t>(kind)];
  }

 private:
  friend class TVRXFaceController;
  template <class T>
  const T& Or(TVRXCFCSettingObjectKind kind, const T& own) const {
    const auto* object = static_cast<const T*>(Of(kind));
    return object ? *object : own;
  }
  std::array<const TPersistent*, VRXSettingKindCount> objects_{};
  std::vector<std::shared_ptr<const TPersistent>> own_;
  bool fontOfDisabled_ = false;
};

class TVRXFaceController : public TComponent {
  VRX_CLASS(TVRXFaceController)
 public:
  explicit TVRXFaceController(TComponent* owner);
  ~TVRXFaceController() override;
  // States that controls show in the designer besides those they are in: there no mouse is over them.
  static constexpr TKept<TVRXStateKinds> DesignStates{"DesignStates", {}};

  TVRXCFCSettingObjects* SettingObjects() const { return settings_.get(); }
  TVRXCFCStateObjects* States() const { return states_.get(); }
  // The index of the new object.
  int AddSettingObject(TVRXCFCSettingObjectKind kind) { return settings_->AddObject(kind); }
  // From the states, too.
  void RemoveSettingObject(int index);

  // Settings and states. What cannot be read throws with line and reason, and everything stays as it was.
  void LoadFromFile(const QString& fileName);
  void SaveToFile(const QString& fileName) const;

  // Of all states whose kinds the control is in, each with what it has; of two objects of a kind that of the
  // state that says more.
  TVRXFaceLook LookIn(TVRXStateKinds kinds) const;

 private:
  const QString& Foreign() const { return settings_->ForeignBlocks(); }
  void SetForeign(const QString& blocks) { settings_->SetForeignBlocks(blocks); }
  std::unique_ptr<TVRXCFCSettingObjects> settings_;
  std::unique_ptr<TVRXCFCStateObjects> states_;
};
