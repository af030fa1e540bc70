// Starts the designer as its program does, with the library's package or without it, until its window has
// been painted; prints what that took: processor time in nanoseconds and resident memory in bytes.
#include <QFile>
#include <cstring>
#include <ctime>

#include "dclstd/StandardEditors.h"
#include "designer/Application.h"
#include "designer/MainWindow.h"
#include "vcl/Theme.h"

namespace {
// Of the whole process: what is mapped and linked at its start counts, too.
double ProcessorTime() {
  timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) * 1e9 + static_cast<double>(now.tv_nsec);
}

double ResidentMemory() {
  QFile status(QStringLiteral("/proc/self/status"));
  if (!status.open(QIODevice::ReadOnly)) qFatal("Cannot read /proc/self/status");
  for (const QByteArray& line : status.readAll().split('\n'))
    if (line.startsWith("VmRSS:")) return line.mid(6).trimmed().split(' ').first().toDouble() * 1024;
  return 0;
}
}  // namespace

int main(int argc, char** argv) {
  const bool withPackage = argc > 1 && std::strcmp(argv[1], "with") == 0;
  DesignerApplication app(argc, argv);
  ApplyTheme(TTheme::Light);
  UseThemeIcons();
  DesignRegistry registry;
  RegisterStandard(registry);
  PackageManager packages(PackageManager::DefaultFolders(), registry);
  if (withPackage) packages.Load(PackageManager::DefaultPackage());
  MainWindow window(packages);
  window.show();
  window.NewForm();
  for (int i = 0; i < 5; ++i) {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
  }
  printf("time %.0f\nmemory %.0f\n", ProcessorTime(), ResidentMemory());
  return 0;
}
