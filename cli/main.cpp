#include <QApplication>
#include <cstring>

#include "cli/Commands.h"
#include "rtl/OwnMessages.h"
#include "rtl/Printable.h"
#include "vcl/Theme.h"

int main(int argc, char** argv) {
  // Pictures and text measures need no display; editors do.
  const bool display = !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") ||
                       !qEnvironmentVariableIsEmpty("DISPLAY") ||
                       !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
  const bool edits = argc > 1 && std::strcmp(argv[1], "edit") == 0;
  if (!edits || !display) qputenv("QT_QPA_PLATFORM", "offscreen");
  // Remarks of the platform about its folders do not belong between the findings.
  std::FILE* const messages = TakeStandardError();
  qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtCriticalMsg || type == QtFatalMsg)
      std::fprintf(TakeStandardError(), "vrx: %s\n", qPrintable(Printable(text)));
  });
  QApplication app(argc, argv);
  app.setProperty("vrxNoDisplay", !display);
  ApplyTheme(TTheme::Light);
  QTextStream out(stdout);
  QTextStream err(messages);
  Console console{out, err};
  return RunVrx(app.arguments().mid(1), console);
}
