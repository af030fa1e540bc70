#include "designer/DesignerSettings.h"

#include "rtl/Registry.h"

namespace {
TRegIniFile Settings() { return TRegIniFile(QStringLiteral("SOFTWARE\\Orlenvo\\Orlenvo-Kit 2025")); }
QString Section() { return QStringLiteral("Designer"); }
}  // namespace

QString DesignerSetting(const char* name) {
  return Settings().ReadString(Section(), QLatin1StringView(name), {});
}

void KeepDesignerSetting(const char* name, const QString& value) {
  Settings().WriteString(Section(), QLatin1StringView(name), value);
}
