// The designer's own application object, so that what handlers throw takes the way it takes there.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "designer/Application.h"
#include "rtl/Registry.h"
#include "vcl/Theme.h"

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  DesignerApplication app(argc, argv);
  QTemporaryDir settings;
  TRegistry::SetStorageFile(settings.filePath(QStringLiteral("settings.ini")));
  ApplyTheme(TTheme::Light);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
