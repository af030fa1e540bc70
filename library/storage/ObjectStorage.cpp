#include "library/storage/ObjectStorage.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include "library/values/ValueText.h"
#include "rtl/Exceptions.h"
#include "rtl/PropAccess.h"
#include "rtl/PropText.h"
#include "rtl/SettingsFormat.h"

using StorageItem = TVRXPropertyStorageItem;

const TClass& TVRXPropertyStorageItem::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXPropertyStorageItem>("TVRXPropertyStorageItem", TCollectionItem::StaticClass())
          .Published(ComponentName)
          .Doc(QStringLiteral("The component, or the form itself."))
          .Published(Name)
          .Doc(QStringLiteral("The property that is kept.")));
  return cls;
}
const TClass& TVRXPropertyStorage::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXPropertyStorage>("TVRXPropertyStorage", TCollection::StaticClass()));
  return cls;
}
const TClass& TVRXObjectStorage::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXObjectStorage>("TVRXObjectStorage", TComponent::StaticClass())
          .Published(Active)
          .Doc(QStringLiteral("Whether anything is saved and loaded."))
          .Published(FileName)
          .Doc(QStringLiteral("The settings file. Without a folder it is in that of the program's settings, "
                              "without a name it is \"storage.ini\"."))
          .Published(Section)
          .Doc(QStringLiteral("The part of the file that is the form's; without a name the form's name."))
          .Published(StoredPropsPart)
          .Doc(QStringLiteral("The properties that are kept."))
          .ClassDoc(QStringLiteral("Keeps chosen properties of the form's components from one run to the "
                                   "next."),
                    "pen line 1.5 brush fill box 2.5 3.5 13 9 1.5 pen none brush line box 5 6 8 1.6 0 box 5 "
                    "9 5 1.6 0 pen line 1.5 brush fill box 10.5 13.5 11 7.5 1.5 pen accent 2 path 16 5.5 "
                    "19.5 5.5 19.5 10.5 path 17.3 8.5 19.5 10.8 21.7 8.5 pen accent 1.5 path 13.5 17.3 18.5 "
                    "17.3"));
  return cls;
}

TVRXObjectStorage::TVRXObjectStorage(TComponent* owner) : TComponent(owner) {
  if (owner) owner->FreeNotification(this);
}

void TVRXObjectStorage::ComponentRenamed(TComponent& component, const QString& oldName) {
  if (component.Name().isEmpty() || (&component != Owner() && component.Owner() != Owner())) return;
  for (int i = 0; i < StoredProps()->Count(); ++i) {
    StorageItem& item = *StoredProps()->Items(i);
    if (item.Get(StorageItem::ComponentName).compare(oldName, Qt::CaseInsensitive) == 0)
      item.Set(StorageItem::ComponentName, component.Name());
  }
}

StorageItem* TVRXPropertyStorage::Add(const QString& component, const QString& property) {
  const TUpdateLock lock(*this);
  auto* item = static_cast<StorageItem*>(TCollection::Add());
  item->Set(StorageItem::ComponentName, component);
  item->Set(StorageItem::Name, property);
  return item;
}

QString TVRXObjectStorage::UsedFile() const {
  const QString name = Get(FileName).isEmpty() ? QStringLiteral("storage.ini") : Get(FileName);
  return QFileInfo(name).isAbsolute()
             ? name
             : QDir(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation)).filePath(name);
}
QString TVRXObjectStorage::UsedSection() const {
  if (!Get(Section).isEmpty()) return Get(Section);
  return Owner() && !Owner()->Name().isEmpty() ? Owner()->Name() : QStringLiteral("Form");
}

TComponent* TVRXObjectStorage::Find(const QString& component) const {
  TComponent* const form = Owner();
  if (!form) return nullptr;
  return form->Name().compare(component, Qt::CaseInsensitive) == 0 ? form : form->FindComponent(component);
}

namespace {
// A text in the file is a text, a reference a name; all else says what it is in its own way.
QString Written(const TPersistent& object, const TPropInfo& prop) {
  if (prop.Is<QString>() || prop.Is<TReference>()) return GetPropText(object, prop);
  return ValueTextOf(object, prop);
}
// What of the text nobody knew.
QStringList Read(TPersistent& object, const TPropInfo& prop, const QString& text) {
  QStringList foreign;
  if (prop.Is<QString>() || prop.Is<TReference>())
    SetPropText(object, prop, text);
  else if (ReadValueText(object, prop, text, &foreign) == TValueRead::Foreign)
    foreign << text;
  return foreign;
}

// The key of a value: neither sign of a path may be in it.
QString Plain(QString text) { return text.replace(u'/', u'_').replace(u'\\', u'_'); }

class Pass {
 public:
  Pass(const TVRXObjectStorage& storage, bool load)
      : load_(load), section_(Plain(storage.UsedSection())), file_(storage.UsedFile(), SettingsFormat()) {}

  void Value(TComponent* component, const StorageItem& item) {
    const QString name = item.DisplayName();
    if (!component)
      return Left(name, QStringLiteral("there is no component %1").arg(item.Get(StorageItem::ComponentName)));
    const TPropInfo* prop = component->ClassType().FindProp(item.Get(StorageItem::Name).toLatin1());
    if (!prop || prop->Visibility != TPropVisibility::Published || prop->IsEvent())
      return Left(name, QStringLiteral("%1 has no property of that name")
                            .arg(QString::fromLatin1(component->StreamClassName())));
    const QString key = section_ + u'/' + Plain(name);
    try {
      if (!load_) return file_.setValue(key, Written(*component, *prop));
      if (!file_.contains(key))
        return Left(name, QStringLiteral("%1 has no value of it").arg(file_.fileName()));
      for (const QString& line : Read(*component, *prop, file_.value(key).toString()))
        Left(name, QStringLiteral("\"%1\" means nothing to it").arg(line.left(80)));
    } catch (const std::exception& error) {
      Left(name, ExceptionMessage(error));
    }
  }
  void Flush() {
    file_.sync();
    if (file_.status() != QSettings::NoError)
      throw Exception(QStringLiteral("The settings cannot be written to %1. Please check that the file and "
                                     "its folder may be written.")
                          .arg(file_.fileName()));
  }
  QStringList left;

 private:
  void Left(const QString& name, const QString& why) {
    left << (load_ ? QStringLiteral("%1 is not loaded: %2.") : QStringLiteral("%1 is not saved: %2."))
                .arg(name, why.endsWith(u'.') ? why.chopped(1) : why);
  }
  bool load_;
  QString section_;
  QSettings file_;
};
}  // namespace

QStringList TVRXObjectStorage::Save() const {
  if (!Get(Active)) return {};
  QDir().mkpath(QFileInfo(UsedFile()).path());
  Pass pass(*this, false);
  for (int i = 0; i < StoredProps()->Count(); ++i) {
    const StorageItem& item = *StoredProps()->Items(i);
    pass.Value(Find(item.Get(StorageItem::ComponentName)), item);
  }
  pass.Flush();
  return pass.left;
}

QStringList TVRXObjectStorage::Load() {
  if (!Get(Active)) return {};
  const QFileInfo file(UsedFile());
  if (file.exists() && !(file.isFile() && file.isReadable()))
    return {QStringLiteral("Nothing is loaded: %1 cannot be read.").arg(file.filePath())};
  Pass pass(*this, true);
  for (int i = 0; i < StoredProps()->Count(); ++i) {
    const StorageItem& item = *StoredProps()->Items(i);
    pass.Value(Find(item.Get(StorageItem::ComponentName)), item);
  }
  return pass.left;
}
