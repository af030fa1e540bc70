// Every test program runs on the offscreen platform and with settings of its own.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

#include "rtl/Registry.h"

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  QTemporaryDir settings;
  TRegistry::SetStorageFile(settings.filePath(QStringLiteral("settings.ini")));
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
