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
  // Qt takes options of its own out of the words ("--style"); all of ours are ours.
  QStringList words;
  for (int i = 1; i < argc; ++i) words << QString::fromLocal8Bit(argv[i]);
  int own = 1;
  QApplication app(own, argv);
  app.setProperty("vrxNoDisplay", !display);
  ApplyTheme(TTheme::Light);
  QTextStream out(stdout);
  QTextStream err(messages);
  Console console{out, err};
  return RunVrx(words, console);
}
