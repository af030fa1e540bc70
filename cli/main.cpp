#include <QApplication>

#include "cli/Commands.h"
#include "vcl/Theme.h"

int main(int argc, char** argv) {
  // Pictures and text measures need no display.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
  if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR")) qputenv("XDG_RUNTIME_DIR", "/tmp");
  QApplication app(argc, argv);
  ApplyTheme(TTheme::Light);
  QTextStream out(stdout);
  QTextStream err(stderr);
  Console console{out, err};
  return RunVrx(app.arguments().mid(1), console);
}
