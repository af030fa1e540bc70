#include "library/values/FaceObjects.h"

#include "rtl/Exceptions.h"
#include "rtl/PropAccess.h"
#include "rtl/PropText.h"

namespace {
using TSetting = TVRXCFCSettingObject;
using enum TVRXCFCSettingObjectKind;

template <const auto& Property>
TPersistent* PartOf(const TSetting& item) {
  return item.Get(Property);
}
struct KindRow {
  const char* name;  // of new objects, with a number
  const TClass& (*cls)();
  TPersistent* (*object)(const TSetting& item);
};
constexpr std::array<KindRow, VRXSettingKindCount> Rows{{
    {"Object", nullptr, nullptr},
    {"Font", &TFont::StaticClass, &PartOf<TSetting::Font>},
    {"Font3D", &TVRXFont3D::StaticClass, &PartOf<TSetting::Font3D>},
    {"FontFx", &TVRXFxCaption::StaticClass, &PartOf<TSetting::FontFx>},
    {"FillObject", &TVRXFillObject::StaticClass, &PartOf<TSetting::FillObject>},
    {"BitmapEffect", &TVRXBitmapEffect::StaticClass, &PartOf<TSetting::BitmapEffect>},
    {"Bevel", &TVRXBevel::StaticClass, &PartOf<TSetting::Bevel>},
    {"Color", &TVRXColorObject::StaticClass, &PartOf<TSetting::ColorObject>},
    {"Brush", &TBrush::StaticClass, &PartOf<TSetting::Brush>},
    {"Style", &TVRXStateStyle::StaticClass, &PartOf<TSetting::Style>},
}};
bool SameName(const QString& a, const QString& b) { return a.compare(b, Qt::CaseInsensitive) == 0; }
}  // namespace

const TClass& TVRXColorObject::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXColorObject>("TVRXColorObject", TPersistent::StaticClass()).Published(Color));
  return cls;
}
const TClass& TVRXStateStyle::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXStateStyle>("TVRXStateStyle", TPersistent::StaticClass()).Published(StyleName));
  return cls;
}

// --- Setting objects

const TClass& TVRXCFCSettingObject::StaticClass() {
  using C = TVRXCFCSettingObject;
  static const TClass cls(DescribeClass<C>("TVRXCFCSettingObject", TCollectionItem::StaticClass())
                              .Published(Kind)
                              .Published(ObjName)
                              .Published(BitmapEffect)
                              .StoredIf(&C::Is<okBitmapEffect>)
                              .Published(Bevel)
                              .StoredIf(&C::Is<okBevel>)
                              .Published(Brush)
                              .StoredIf(&C::Is<okBrush>)
                              .Published(ColorObject)
                              .StoredIf(&C::Is<okColor>)
                              .Published(FillObject)
                              .StoredIf(&C::Is<okFillObject>)
                              .Published(Font)
                              .StoredIf(&C::Is<okFont>)
                              .Published(Font3D)
                              .StoredIf(&C::Is<okFont3D>)
                              .Published(FontFx)
                              .StoredIf(&C::Is<okFontFx>)
                              .Published(Style)
                              .StoredIf(&C::Is<okStyle>)
                              .Streamed(Foreign));
  return cls;
}

TPersistent* TVRXCFCSettingObject::Object() const {
  const KindRow& row = Rows[static_cast<std::size_t>(Get(Kind))];
  return row.object ? row.object(*this) : nullptr;
}

const TClass& TVRXCFCSettingObjects::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXCFCSettingObjects>("TVRXCFCSettingObjects", TCollection::StaticClass()));
  return cls;
}

QString TVRXCFCSettingObjects::NameOfObject(const TPersistent* object) const {
  const int index = IndexOfObject(object);
  return index < 0 ? QString() : Setting(index)->Get(TSetting::ObjName);
}

int TVRXCFCSettingObjects::IndexOf(const QString& name) const {
  const QString key = name.toCaseFolded();
  // Between BeginUpdate and EndUpdate places may have changed without a word.
  for (const bool again : {false, true}) {
    if (again) places_.clear();
    // Backwards, so that the first of a name is the one that is found.
    if (places_.isEmpty())
      for (int i = Count() - 1; i >= 0; --i)
        places_.insert(Setting(i)->Get(TSetting::ObjName).toCaseFolded(), i);
    const int place = places_.value(key, -1);
    if (place < 0) return -1;
    if (place < Count() && Setting(place)->Get(TSetting::ObjName).toCaseFolded() == key) return place;
  }
  return -1;
}

void TVRXCFCSettingObjects::DoChanged() {
  places_.clear();
  TCollection::DoChanged();
}

int TVRXCFCSettingObjects::IndexOfObject(const TPersistent* object) const {
  for (int i = 0; object && i < Count(); ++i)
    if (Items(i) == object) return i;
  return -1;
}

void TVRXCFCSettingObjects::SetObjName(int index, const QString& name) {
  TSetting* const setting = Setting(index);
  const QString before = setting->Get(TSetting::ObjName);
  if (setting->former_.isEmpty() && IndexOf(before) == index) setting->former_ = before;
  setting->Set(TSetting::ObjName, name);
}

QString TVRXCFCSettingObjects::NewNameOf(const QString& former) const {
  for (int i = 0; i < Count(); ++i)
    if (!Setting(i)->former_.isEmpty() && SameName(Setting(i)->former_, former))
      return Setting(i)->Get(TSetting::ObjName);
  return {};
}

void TVRXCFCSettingObjects::ForgetFormerNames() {
  for (int i = 0; i < Count(); ++i) Setting(i)->former_.clear();
}

int TVRXCFCSettingObjects::AddObject(TVRXCFCSettingObjectKind kind) {
  const QString base = QString::fromLatin1(Rows[static_cast<std::size_t>(kind)].name);
  int number = 1;
  while (IndexOf(base + QString::number(number)) >= 0) ++number;
  const TUpdateLock lock(*this);
  auto* setting = static_cast<TSetting*>(Add());
  setting->Set(TSetting::Kind, kind);
  setting->Set(TSetting::ObjName, base + QString::number(number));
  return Count() - 1;
}

void TVRXCFCSettingObjects::Clear() {
  const TUpdateLock lock(*this);
  SetForeignBlocks({});
  TCollection::Clear();
}

void TVRXCFCSettingObjects::Assign(const TPersistent* source) {
  const TUpdateLock lock(*this);
  TCollection::Assign(source);
  if (const auto* other = As<TVRXCFCSettingObjects>(source)) SetForeignBlocks(other->foreign_);
}

void TVRXCFCSettingObjects::LoadFromFile(const QString& fileName) { VRXLoadFace(fileName, *this, nullptr); }
void TVRXCFCSettingObjects::SaveToFile(const QString& fileName) const {
  VRXSaveFace(fileName, *this, nullptr);
}

TVRXCFCSettingObjectKind VRXCFCGetSettingsKindObject(const TPersistent* object) {
  for (std::size_t i = 1; object && i < Rows.size(); ++i)
    if (&object->ClassType() == &Rows[i].cls()) return static_cast<TVRXCFCSettingObjectKind>(i);
  return okNone;
}

QString VRXCFCDescriptionOf(const TPersistent& object) {
  if (const auto* fill = As<TVRXFillObject>(&object)) return fill->Description();
  QStringList parts;
  for (const TPropInfo* prop : object.ClassType().Properties()) {
    const bool says = prop->Is<QString>() || prop->IsOrdinal();
    // What has a style or a kind says which, also the one that it begins with.
    const bool kind = prop->Kind() == TTypeKind::tkEnumeration && prop->PropType->Elements.size() > 2;
    if (!says || (prop->IsOrdinal() && !kind && !IsStoredProp(object, *prop))) continue;
    const QString value = GetPropText(object, *prop);
    const bool alone = object.ClassType().Properties().size() == 1;
    if (!value.isEmpty()) parts << (alone ? value : QString::fromLatin1(prop->Name) + u' ' + value);
  }
  if (const auto* color = As<TVRXColorObject>(&object))
    return ColorToString(color->Get(TVRXColorObject::Color));
  return parts.join(QStringLiteral(", "));
}

// --- States

const TClass& TVRXCFCStateObject::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXCFCStateObject>("TVRXCFCStateObject", TCollectionItem::StaticClass())
          .Published(Kind)
          .Published(Objects)
          .Streamed(Foreign));
  return cls;
}
const TClass& TVRXCFCStateObjects::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXCFCStateObjects>("TVRXCFCStateObjects", TCollection::StaticClass()));
  return cls;
}

TVRXCFCSettingObjects* TVRXCFCStateObject::Settings() const {
  return static_cast<TVRXCFCStateObjects*>(Collection())->Settings();
}

const QStringList& TVRXCFCStateObject::Names() const {
  static const QStringList none;
  return IsKept(&Objects) ? Get(Objects)->Lines() : none;
}
void TVRXCFCStateObject::SetNames(const QStringList& names) {
  if (names != Names()) Get(Objects)->SetLines(names);
}

TPersistent* TVRXCFCStateObject::Items(int index) const {
  const TVRXCFCSettingObjects* settings = Settings();
  const int at = settings ? settings->IndexOf(Names().value(index)) : -1;
  return at < 0 ? nullptr : settings->Items(at);
}

void TVRXCFCStateObject::Add(const TPersistent* object, bool once) {
  const TVRXCFCSettingObjects* settings = Settings();
  if (!settings || settings->IndexOfObject(object) < 0) return;
  const QString name = settings->NameOfObject(object);
  if (settings->Items(settings->IndexOf(name)) != object)
    throw Exception(QStringLiteral("Another object is named \"%1\", too, and states would use that one. Give "
                                   "this object another name first.")
                        .arg(name));
  if (!once || !Names().contains(name, Qt::CaseInsensitive)) SetNames(Names() + QStringList{name});
}

void TVRXCFCStateObject::Delete(int index) {
  QStringList names = Names();
  if (index < 0 || index >= names.size()) return;
  names.removeAt(index);
  SetNames(names);
}

void TVRXCFCStateObjects::SynchronizeNames() {
  if (!settings_) return;
  const TUpdateLock lock(*this);
  for (int i = 0; i < Count(); ++i) {
    QStringList names = Items(i)->Names();
    for (QString& name : names)
      if (const QString now = settings_->NewNameOf(name); !now.isEmpty()) name = now;
    Items(i)->SetNames(names);
  }
  settings_->ForgetFormerNames();
}

void TVRXCFCStateObjects::RemoveName(const QString& name) {
  const TUpdateLock lock(*this);
  for (int i = 0; i < Count(); ++i) {
    QStringList names = Items(i)->Names();
    names.removeIf([&](const QString& other) { return SameName(other, name); });
    Items(i)->SetNames(names);
  }
}
