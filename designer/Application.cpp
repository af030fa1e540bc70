#include "designer/Application.h"

#include <QIcon>

#include "designer/ReportException.h"
#include "designintf/PackageCall.h"
#include "vcl/Theme.h"

void UseThemeIcons() {
  QIcon::setFallbackSearchPaths({QStringLiteral("/usr/share/icons")});
  QIcon::setThemeSearchPaths({QStringLiteral("/usr/share/icons"), QStringLiteral(":/icons")});
  QIcon::setThemeName(IsDarkTheme() ? QStringLiteral("breeze-dark") : QStringLiteral("breeze"));
}

DesignerApplication::DesignerApplication(int& argc, char** argv) : QApplication(argc, argv) {
  setApplicationName(QStringLiteral("Orlenvo-Kit designer"));
  setApplicationVersion(QStringLiteral(VRX_VERSION));
}

bool DesignerApplication::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::exception& e) {
    ReportException(activeWindow(), e);
    return true;
  } catch (...) {
    ReportException(activeWindow(), Exception(CurrentExceptionMessage()));
    return true;
  }
}

bool DesignerApplication::event(QEvent* event) {
  const bool handled = QApplication::event(event);
  if (event->type() == QEvent::ApplicationPaletteChange) UseThemeIcons();
  return handled;
}
