#include "ide/BoundsCheck.h"

#include <QCoreApplication>

#include "rtl/Exceptions.h"
#include "rtl/PropAccess.h"

namespace {
QString Translated(const char* text) { return QCoreApplication::translate("BoundsCheck", text); }
}  // namespace

bool DecidesBounds(const TControl& control) {
  return control.Align() != TAlign::alNone || (control.Parent() && control.Parent()->PlacesControls());
}

QString WhatDecidesBounds(const TControl& control) {
  if (control.Parent() && control.Parent()->PlacesControls())
    return Translated("%1 decides the place of what stands in it.").arg(control.Parent()->Name());
  static const QHash<TAlign, const char*> parts{{TAlign::alTop, "place and width"},
                                                {TAlign::alBottom, "place and width"},
                                                {TAlign::alLeft, "place and height"},
                                                {TAlign::alRight, "place and height"},
                                                {TAlign::alClient, "place and size"}};
  return Translated("%1 is aligned (Align = %2): %3 decides its %4.")
      .arg(control.Name(),
           QString::fromLatin1(TypeInfoOf<TAlign>::Get().Elements[static_cast<int>(control.Align())]),
           control.Parent() ? control.Parent()->Name() : QString(),
           Translated(parts.value(control.Align(), "place and size")));
}

bool IsBoundsProperty(QByteArrayView name) {
  static constexpr QByteArrayView names[] = {"Left", "Top", "Width", "Height", "ClientWidth", "ClientHeight"};
  return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

void RequireBoundsTaken(const TPersistent& instance, const TPropInfo& prop, std::int64_t wanted) {
  const auto* control = As<TControl>(&instance);
  static const QByteArrayList sizes{"Width", "Height", "ClientWidth", "ClientHeight"};
  if (control && wanted < 0 && sizes.contains(prop.Name))
    throw EPropertyError(
        Translated("%1 of %2 cannot be %3: no control is smaller than nothing. Use 0 or more.")
            .arg(QString::fromLatin1(prop.Name), control->Name())
            .arg(wanted));
  static const QByteArrayList bounds{"Left", "Top", "Width", "Height"};
  if (!control || !control->Parent() || !bounds.contains(prop.Name)) return;
  if (prop.Stored && !prop.Stored(instance))
    throw EPropertyError(
        Translated("%1 of %2 cannot be set: %2 fills %3.")
            .arg(QString::fromLatin1(prop.Name), control->Name(), control->Parent()->Name()));
  if (!DecidesBounds(*control)) return;
  const std::int64_t is = GetOrdProp(instance, prop);
  if (is == wanted) return;
  if (control->Parent()->PlacesControls())
    throw EPropertyError(Translated("%1 stays %2. %3")
                             .arg(QString::fromLatin1(prop.Name))
                             .arg(is)
                             .arg(WhatDecidesBounds(*control)));
  throw EPropertyError(Translated("%1 stays %2. %3 Change Align first.")
                           .arg(QString::fromLatin1(prop.Name))
                           .arg(is)
                           .arg(WhatDecidesBounds(*control)));
}
