#include "ClassWalk.h"

#include "dclstd/StandardEditors.h"
#include "forms/TextWriter.h"
#include "library_design/pVRXCommon.h"
#include "package/registration/VRX_RegMain.h"
#include "rtl/ClassRegistry.h"
#include "rtl/Collection.h"
#include "rtl/Exceptions.h"
#include "rtl/PropAccess.h"
#include "rtl/PropText.h"
#include "rtl/Strings.h"
#include "rtl/ValueList.h"
#include "vcl/GroupBox.h"
#include "vcl/PictureFile.h"
#include "vcl/Region.h"

DesignRegistry& Registrations() {
  static DesignRegistry registry;
  [[maybe_unused]] static const bool once = [] {
    RegisterStandard(registry);
    ORLENVOKITEDITOROPTIONS = 0xFF;  // the variants, too
    const RegistrationScope scope(registry, nullptr, {});
    VRX_RegMain::Register();
    return true;
  }();
  return registry;
}

std::vector<std::string> ConcreteClasses() {
  Registrations();
  std::vector<std::string> names;
  for (const TClass* cls : RegisteredClasses())
    if (!cls->IsAbstract() && cls->InheritsFrom(TComponent::StaticClass()))
      names.push_back(cls->ClassName().toStdString());
  return names;
}

Stage::Stage(const TClass& cls) : form(new TForm(nullptr)) {
  form->SetName(QStringLiteral("Form1"));
  form->SetStreamClassName("TForm1");
  subject = form.get();
  if (!cls.InheritsFrom(TForm::StaticClass())) {
    subject = cls.NewComponent(form.get());
    subject->SetName(QStringLiteral("Subject"));
    subject->SetParentComponent(form.get());
  }
  // So that there is something to choose.
  if (auto* group = As<TChoiceGroup>(subject))
    for (int i = 0; i < 12; ++i) group->Get(TChoiceGroup::Items)->Add(QString::number(i));
  // From here on: a caption that follows the name is not the default.
  form->SetDesigning(true);
  subject->SetDesigning(true);
}

namespace {
void Collect(TPersistent& instance, const QByteArray& prefix, QByteArrayList& paths) {
  if (As<TStrings>(&instance)) paths << prefix + "Strings";
  for (const TPropInfo* prop : instance.ClassType().Properties()) {
    if (prop->Name == "Name" && prefix.isEmpty()) continue;
    if (!prop->IsPart()) {
      paths << prefix + prop->Name;
    } else if (TPersistent* part = GetObjectProp(instance, *prop)) {
      if (As<TCollection>(part) || As<TValueList>(part))
        paths << prefix + prop->Name;
      else
        Collect(*part, prefix + prop->Name + '.', paths);
    }
  }
}

const forms::Document& Paper() {
  static const forms::Document document = forms::Document::Create("TPaper", "Paper");
  return document;
}
}  // namespace

QByteArrayList ValuePaths(TPersistent& instance) {
  QByteArrayList paths;
  Collect(instance, {}, paths);
  return paths;
}

QByteArray ValueText(TComponent& subject, const QByteArray& path) {
  const forms::PropertyTarget target = forms::FindTarget(subject, path);
  if (!target.prop) return static_cast<TStrings*>(target.instance)->Text().toUtf8();
  const auto value = forms::ValueOf(*target.instance, *target.prop, Paper());
  return value ? forms::ValueToText(*value) : GetPropText(*target.instance, *target.prop).toUtf8();
}

bool IsReadOnly(TComponent& subject, const QByteArray& path) {
  static const QHash<TAlign, QByteArrayList> decided{{TAlign::alTop, {"Left", "Top", "Width"}},
                                                     {TAlign::alBottom, {"Left", "Top", "Width"}},
                                                     {TAlign::alLeft, {"Left", "Top", "Height"}},
                                                     {TAlign::alRight, {"Left", "Top", "Height"}},
                                                     {TAlign::alClient, {"Left", "Top", "Width", "Height"}}};
  if (const auto* control = As<TControl>(&subject); control && decided.value(control->Align()).contains(path))
    return true;
  const forms::PropertyTarget target = forms::FindTarget(subject, path);
  return target.prop && target.prop->ReadOnly;
}

namespace {
bool SetAnotherOrdinal(TPersistent& instance, const TPropInfo& prop, unsigned turn) {
  const TTypeInfo& type = *prop.PropType;
  const std::int64_t now = GetOrdProp(instance, prop);
  std::vector<std::int64_t> candidates;
  if (type.Kind == TTypeKind::tkEnumeration) {
    for (std::int64_t v = type.MinValue; v <= type.MaxValue; ++v) candidates.push_back(v);
  } else if (type.Kind == TTypeKind::tkSet) {
    for (int i = 0; i < type.CompType->Elements.size(); ++i)
      candidates.push_back(now ^ (std::int64_t{1} << i));
  } else {
    // Near ones, so that a size stays a size.
    candidates = {now + 1, now - 1, now + 7};
  }
  std::erase_if(candidates,
                [&](std::int64_t v) { return v == now || v < type.MinValue || v > type.MaxValue; });
  if (candidates.empty()) return false;
  // Some are refused because of what other values are.
  for (std::size_t i = 0; i < candidates.size(); ++i) {
    try {
      SetOrdProp(instance, prop, candidates[(turn + i) % candidates.size()]);
      return true;
    } catch (const EPropertyError&) {
    }
  }
  return false;
}

// Bytes of the kind that the property takes: a picture or region data.
bool SetAnotherBinary(TPersistent& instance, const TPropInfo& prop, unsigned turn) {
  const int side = static_cast<int>(turn % 1000) + 2;
  QImage picture(side, 3, QImage::Format_RGB32);
  picture.fill(Qt::red);
  for (const QByteArray& bytes : {PictureToBytes(picture, "PNG"), TRegion(TRect{0, 0, side, 5}).ToData()}) {
    try {
      SetBinaryProp(instance, prop, bytes);
      return true;
    } catch (const EInvalidPicture&) {
    } catch (const EInvalidRegion&) {
    }
  }
  return false;
}

bool SetAnotherReference(Stage& stage, TPersistent& instance, const TPropInfo& prop) {
  for (const std::string& name : ConcreteClasses()) {
    const TClass& cls = GetClass(name);
    if (cls.InheritsFrom(TForm::StaticClass()) || !cls.InheritsFrom(prop.PropType->ClassType())) continue;
    TComponent* target = cls.NewComponent(stage.form.get());
    target->SetName(QStringLiteral("Target%1").arg(target->ComponentIndex()));
    target->SetParentComponent(stage.form.get());
    SetObjectProp(instance, prop, target);
    return true;
  }
  return false;
}
}  // namespace

bool SetAnother(Stage& stage, const QByteArray& path, unsigned turn) {
  const forms::PropertyTarget target = forms::FindTarget(*stage.subject, path);
  const QString number = QString::number(turn % 1000);
  if (!target.prop) {
    static_cast<TStrings*>(target.instance)
        ->SetLines({QStringLiteral("a line"), number, QStringLiteral("\u00DCber")});
    return true;
  }
  TPersistent& instance = *target.instance;
  const TPropInfo& prop = *target.prop;
  switch (prop.Kind()) {
    case TTypeKind::tkFloat:
      SetFloatProp(instance, prop, GetFloatProp(instance, prop) + 1.5L);
      return true;
    case TTypeKind::tkString:
      SetStrProp(instance, prop, QStringLiteral("it's \u20AC & ") + number);
      return true;
    case TTypeKind::tkMethod:
      SetMethodProp(instance, prop, QStringLiteral("Handler") + number);
      return true;
    case TTypeKind::tkUnknown:
      return SetAnotherBinary(instance, prop, turn);
    case TTypeKind::tkClass:
      if (IsComponentRef(prop)) return SetAnotherReference(stage, instance, prop);
      if (auto* list = As<TValueList>(GetObjectProp(instance, prop)))
        list->SetItems({std::int64_t{turn % 1000}, QStringLiteral("it's a text")});
      else
        static_cast<TCollection*>(GetObjectProp(instance, prop))->Add();
      return true;
    default:
      return SetAnotherOrdinal(instance, prop, turn);
  }
}
