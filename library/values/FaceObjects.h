// What a face controller is made of: named setting objects (fonts, fills, colours ...), and for each
// combination of states which of them apply. Both keep their values by name, so that nothing hangs on the
// order in which a form or a file tells them.
#pragma once
#include <QHash>

#include "library/values/Bevels.h"
#include "library/values/BitmapEffect.h"
#include "library/values/FaceStates.h"
#include "library/values/Fill.h"
#include "library/values/Font3D.h"
#include "rtl/Strings.h"
#include "vcl/Brush.h"

enum class TVRXCFCSettingObjectKind : std::uint8_t {
  okNone,
  okFont,
  okFont3D,
  okFontFx,
  okFillObject,
  okBitmapEffect,
  okBevel,
  okColor,
  okBrush,
  okStyle
};
VRX_ENUM(TVRXCFCSettingObjectKind, {"okNone", "okFont", "okFont3D", "okFontFx", "okFillObject",
                                    "okBitmapEffect", "okBevel", "okColor", "okBrush", "okStyle"})
constexpr std::size_t VRXSettingKindCount = 10;

class TVRXColorObject : public TKeptPart {
  VRX_CLASS(TVRXColorObject)
 public:
  using TKeptPart::TKeptPart;
  static constexpr TKept<TColor> Color{"Color", clBtnFace};
};

// The name of a style that a control has in a state.
class TVRXStateStyle : public TKeptPart {
  VRX_CLASS(TVRXStateStyle)
 public:
  using TKeptPart::TKeptPart;
  static constexpr TKept<QString> StyleName{"StyleName"};
  void SetStyleName(const QString& name) { Set(StyleName, name); }
};

class TVRXCFCSettingObject : public TCollectionItem {
  VRX_CLASS(TVRXCFCSettingObject)
 public:
  using TCollectionItem::TCollectionItem;
  using Kinds = TVRXCFCSettingObjectKind;
  static constexpr TKept<Kinds> Kind{"Kind", Kinds::okNone};
  static constexpr TKept<QString> ObjName{"ObjName"};
  // What a file of a later version says of it, line by line.
  static constexpr TKept<QString> Foreign{"Foreign"};
  static constexpr TKept<TFont*> Font{"Font"};
  static constexpr TKept<TVRXFont3D*> Font3D{"Font3D"};
  static constexpr TKept<TVRXFxCaption*> FontFx{"FontFX"};
  static constexpr TKept<TVRXFillObject*> FillObject{"FillObject"};
  static constexpr TKept<TVRXBitmapEffect*> BitmapEffect{"BitmapEffect"};
  static constexpr TKept<TVRXBevel*> Bevel{"Bevel"};
  static constexpr TKept<TVRXColorObject*> ColorObject{"ColorObject"};
  static constexpr TKept<TBrush*> Brush{"Brush"};
  static constexpr TKept<TVRXStateStyle*> Style{"Style"};

  // Of its kind; null for a kind that nobody knows.
  TPersistent* Object() const;
  QString DisplayName() const override { return Get(ObjName); }

 private:
  friend class TVRXCFCSettingObjects;
  template <Kinds K>
  bool Is() const {
    return Get(Kind) == K;
  }
  QString former_;  // the name that states know, until they hear of the new one
};

class TVRXCFCSettingObjects : public TCollection {
  VRX_CLASS(TVRXCFCSettingObjects)
 public:
  explicit TVRXCFCSettingObjects(TPersistent* owner = nullptr)
      : TCollection(TVRXCFCSettingObject::StaticClass(), owner) {}

  TVRXCFCSettingObject* Setting(int index) const { return static_cast<TVRXCFCSettingObject*>(Item(index)); }
  TPersistent* Items(int index) const { return Setting(index)->Object(); }
  QString NameOfObject(const TPersistent* object) const;
  // -1 when there is none. Names are compared without regard to case. Of several objects of a name the first
  // is meant: what happens to the others is nothing to states.
  int IndexOf(const QString& name) const;
  int IndexOfObject(const TPersistent* object) const;
  // States go on with the old name until they are told to synchronise theirs.
  void SetObjName(int index, const QString& name);
  // The name that an object had when states heard of it last; empty when it has that still.
  QString NewNameOf(const QString& former) const;
  void ForgetFormerNames();
  // With a name of its own; its index.
  int AddObject(TVRXCFCSettingObjectKind kind);
  void Clear();

  // What files of later versions hold beside the objects, line by line.
  const QString& ForeignBlocks() const { return foreign_; }
  void SetForeignBlocks(const QString& blocks) { Change(foreign_, blocks); }

  // The settings alone. What cannot be read throws with line and reason, and everything stays as it was.
  void LoadFromFile(const QString& fileName);
  void SaveToFile(const QString& fileName) const;

  void Assign(const TPersistent* source) override;
  void ClearContent() override { Clear(); }

 protected:
  void DoChanged() override;

 private:
  QString foreign_;
  mutable QHash<QString, int> places_;  // by name in small letters; made when somebody asks
};

TVRXCFCSettingObjectKind VRXCFCGetSettingsKindObject(const TPersistent* object);
// One line that says how a library object is: its style or kind, and what else is not as it begins.
QString VRXCFCDescriptionOf(const TPersistent& object);

class TVRXCFCStateObject : public TCollectionItem {
  VRX_CLASS(TVRXCFCStateObject)
 public:
  using TCollectionItem::TCollectionItem;
  static constexpr TKept<TVRXStateKinds> Kind{"Kind", {}};
  static constexpr TKept<TStrings*> Objects{"Objects"};
  static constexpr TKept<QString> Foreign{"Foreign"};

  TVRXCFCStateKind getKind() const { return VRXCFCKindOf(Get(Kind)); }
  void setKind(const TVRXCFCStateKind& kind) { Set(Kind, VRXKindsOf(kind)); }

  // Names of the objects that apply, in order.
  const QStringList& Names() const;
  int Count() const { return static_cast<int>(Names().size()); }
  // Null when the settings have no object of that name.
  TPersistent* Items(int index) const;
  // `once`: an object that is there already is not added again. Throws Exception for one whose name means
  // another object.
  void Add(const TPersistent* object, bool once);
  void Delete(int index);
  QString DisplayName() const override { return VRXCFCGetStateDescription(getKind()); }

 private:
  friend class TVRXCFCStateObjects;
  TVRXCFCSettingObjects* Settings() const;
  void SetNames(const QStringList& names);
};

class TVRXCFCStateObjects : public TCollection {
  VRX_CLASS(TVRXCFCStateObjects)
 public:
  explicit TVRXCFCStateObjects(TPersistent* owner = nullptr)
      : TCollection(TVRXCFCStateObject::StaticClass(), owner) {}
  // Where the names lead to.
  void SetSettings(TVRXCFCSettingObjects* settings) { settings_ = settings; }
  TVRXCFCSettingObjects* Settings() const { return settings_; }

  TVRXCFCStateObject* Items(int index) const { return static_cast<TVRXCFCStateObject*>(Item(index)); }
  TVRXCFCStateObject* Add() { return static_cast<TVRXCFCStateObject*>(TCollection::Add()); }
  // Takes over the names that objects have got.
  void SynchronizeNames();
  void RemoveName(const QString& name);

 private:
  TVRXCFCSettingObjects* settings_ = nullptr;
};

// Settings and, where they are given, states as the text of a file, and back. Reading throws Exception with
// line and reason and changes nothing then; else everything is replaced.
QByteArray VRXFaceText(const TVRXCFCSettingObjects& settings, const TVRXCFCStateObjects* states);
void VRXReadFaceText(const QByteArray& text, TVRXCFCSettingObjects& settings, TVRXCFCStateObjects* states);
// The same from and to a file, which is replaced as a whole or stays. Messages name it.
void VRXLoadFace(const QString& fileName, TVRXCFCSettingObjects& settings, TVRXCFCStateObjects* states);
void VRXSaveFace(const QString& fileName, const TVRXCFCSettingObjects& settings,
                 const TVRXCFCStateObjects* states);
