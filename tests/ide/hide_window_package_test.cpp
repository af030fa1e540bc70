// The window that hides icons, of the package as it is loaded: it goes with the package.
#include <gtest/gtest.h>

#include <QApplication>
#include <QWidget>

#include "dclstd/StandardEditors.h"
#include "ide/FormSession.h"
#include "ide/PackageManager.h"

TEST(HideWindowOfThePackage, IsFreedWhenThePackageIsUnloaded) {
  DesignRegistry registry;
  RegisterStandard(registry);
  PackageManager packages({QStringLiteral(VRX_BINARY_DIR "/packages"), QStringLiteral(VRX_BINARY_DIR "/lib")},
                          registry);
  packages.Load(PackageManager::DefaultPackage());
  const QByteArray form =
      "object Main: TMain\n  object Hide1: TVRXHideNonVC\n  end\n  object T: TTimer\n"
      "  end\nend\n";
  const auto session = FormSession::FromBytes(form, {}, registry);
  QObject::connect(&packages, &PackageManager::ClassesChanged, session.get(), &FormSession::Rebuild);
  TComponent* hide = session->GetComponent(QStringLiteral("Hide1"));
  const auto windows = [] {
    int count = 0;
    for (const QWidget* w : QApplication::topLevelWidgets())
      count += w->objectName() == QStringLiteral("TVRXHideNonVCfrm");
    return count;
  };
  for (int round = 0; round < 2; ++round) {
    registry.GetComponentEditor(hide, session.get())->ExecuteVerb(0);
    EXPECT_EQ(windows(), 1);
  }
  packages.Unload(PackageManager::DefaultPackage());
  EXPECT_EQ(windows(), 0);
  EXPECT_EQ(session->Bytes(), form);
  packages.Load(PackageManager::DefaultPackage());
  hide = session->GetComponent(QStringLiteral("Hide1"));
  registry.GetComponentEditor(hide, session.get())->ExecuteVerb(0);
  EXPECT_EQ(windows(), 1);
  packages.Unload(PackageManager::DefaultPackage());
  EXPECT_EQ(windows(), 0);
}
