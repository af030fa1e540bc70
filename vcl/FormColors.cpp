#include "vcl/FormColors.h"

#include <QApplication>
#include <QWidget>

#include "vcl/Theme.h"

namespace {
TFormColors picked = TFormColors::Light;
thread_local const FormColorScope* innermost = nullptr;
}  // namespace

FormColorScope::FormColorScope(TFormColors colors) : outer_(innermost), colors_(colors) { innermost = this; }
FormColorScope::~FormColorScope() { innermost = outer_; }

TFormColors FormColors() { return innermost ? innermost->colors_ : picked; }

void SetFormColors(TFormColors colors) {
  if (std::exchange(picked, colors) == colors || !qobject_cast<QApplication*>(QCoreApplication::instance()))
    return;
  for (QWidget* w : QApplication::allWidgets()) w->update();
}

QPalette FormPalette() {
  switch (FormColors()) {
    case TFormColors::Light:
      return ThemePalette(TTheme::Light);
    case TFormColors::Dark:
      return ThemePalette(TTheme::Dark);
    case TFormColors::Designer:
      break;
  }
  return QGuiApplication::palette();
}
