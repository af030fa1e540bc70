// The designer with the real package: what the person chooses for it, and its coming and going under an open
// form.
#include "designer/DesignerSettings.h"
#include "designer/PackageSettings.h"
#include "rtl/ClassRegistry.h"
#include "tests/designer/DesignerTest.h"

using namespace designer;

namespace {
// The designer with the real package, loaded as its program does.
class RealPackage : public testing::Test {
 protected:
  RealPackage() {
    SetEditorOption(TEditorOption::LabeledVariants, false);
    RegisterStandard(registry_);
    packages_.Load(PackageManager::DefaultPackage());
    window_ = std::make_unique<MainWindow>(packages_);
    window_->show();
    window_->NewForm();
    QCoreApplication::processEvents();
  }
  ~RealPackage() override {
    SetEditorOption(TEditorOption::LabeledVariants, false);
    KeepDesignerSetting("LabeledVariants", {});
  }
  QStringList Pages() const {
    const auto* tabs = window_->Palette().findChild<QTabBar*>();
    QStringList pages;
    for (int i = 0; i < tabs->count(); ++i) pages << tabs->tabText(i);
    return pages;
  }
  QAction& Choice() const { return *window_->findChild<QAction*>(QStringLiteral("labeledVariants")); }

  FakePrompts prompts_;
  DesignRegistry registry_;
  PackageManager packages_{
      {QStringLiteral(VRX_BINARY_DIR "/packages"), QStringLiteral(VRX_BINARY_DIR "/lib")}, registry_};
  std::unique_ptr<MainWindow> window_;
};
const QString kLabeled = QStringLiteral("VRX Labeled");
}  // namespace

TEST_F(RealPackage, ShowsLabeledVariantsOnTheirPageWhereTheyAreWanted) {
  const QStringList without = Pages();
  EXPECT_FALSE(without.contains(kLabeled));
  EXPECT_FALSE(Choice().isChecked());
  Choice().trigger();
  EXPECT_TRUE(Choice().isChecked());
  QStringList with = Pages();
  EXPECT_EQ(with.indexOf(kLabeled), with.indexOf(QStringLiteral("VRX Edit")) + 1)
      << with.join(u'|').toStdString();
  auto* tabs = window_->Palette().findChild<QTabBar*>();
  tabs->setCurrentIndex(static_cast<int>(with.indexOf(kLabeled)));
  EXPECT_NE(window_->Palette().ButtonOf("TVRXLabeledTreeComboBox"), nullptr);
  with.removeAll(kLabeled);
  EXPECT_EQ(with, without);
  Choice().trigger();
  EXPECT_FALSE(Choice().isChecked());
  EXPECT_EQ(Pages(), without);
  EXPECT_TRUE(prompts_.warnings.isEmpty()) << prompts_.warnings.join(u'\n').toStdString();
}

TEST_F(RealPackage, RemembersWhatIsWantedForTheNextStart) {
  Choice().trigger();
  SetEditorOption(TEditorOption::LabeledVariants, false);
  RestoreEditorOptions();
  EXPECT_TRUE(EditorOption(TEditorOption::LabeledVariants));
  Choice().trigger();
  SetEditorOption(TEditorOption::LabeledVariants, true);
  RestoreEditorOptions();
  EXPECT_FALSE(EditorOption(TEditorOption::LabeledVariants));
}

TEST_F(RealPackage, GoesAndComesWithAnOpenFormWhole) {
  Choice().trigger();
  FormSession& session = *window_->Session();
  session.CreateComponent(GetClass("TVRXLabeledCalendarEdit"), nullptr, QRect(24, 40, 141, 23));
  session.CreateComponent(GetClass("TVRXLEDLabel"), nullptr, QRect(24, 90, 150, 37));
  const QByteArray bytes = session.Bytes();
  session.Select({session.GetComponent(QStringLiteral("VRXLEDLabel1")),
                  session.GetComponent(QStringLiteral("VRXLabeledCalendarEdit1"))});
  Choice().trigger();
  QStringList selected;
  for (const TComponent* c : session.SelectedComponents()) selected << c->Name();
  EXPECT_EQ(selected.join(u' ').toStdString(), "VRXLEDLabel1 VRXLabeledCalendarEdit1");
  const auto pages = DesignRegistry::Current().PalettePages();
  EXPECT_TRUE(std::none_of(pages.begin(), pages.end(), [](const TPalettePage& page) {
    return page.Name == QStringLiteral("VRX Labeled");
  }));
  EXPECT_EQ(session.GetComponent(QStringLiteral("VRXLabeledCalendarEdit1"))->ClassType().ClassName(),
            "TVRXLabeledCalendarEdit")
      << "a form has what it has, whatever the palette offers";
  EXPECT_EQ(session.Bytes().toStdString(), bytes.toStdString());
  EXPECT_EQ(session.GetComponent(QStringLiteral("VRXLEDLabel1"))->ClassType().ClassName(), "TVRXLEDLabel");
  Choice().trigger();
  EXPECT_EQ(session.GetComponent(QStringLiteral("VRXLabeledCalendarEdit1"))->ClassType().ClassName(),
            "TVRXLabeledCalendarEdit");
  EXPECT_EQ(session.Bytes().toStdString(), bytes.toStdString());
  session.Undo();
  session.Undo();
  EXPECT_FALSE(session.CanUndo());
  EXPECT_FALSE(session.Bytes().contains("VRX"));
}

namespace {
// What a package may leave behind in the process.
struct Traces {
  std::size_t rows, dialogs, classes;
  qsizetype windows;
  QStringList pages;
  bool operator==(const Traces&) const = default;
};
}  // namespace

TEST_F(RealPackage, LoadedAndUnloadedAgainAndAgainItLeavesNothingBehind) {
  const auto traces = [&] {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    return Traces{registry_.Rows().size(), registry_.Dialogs().size(), RegisteredClasses().size(),
                  QApplication::topLevelWidgets().size(), Pages()};
  };
  FormSession& session = *window_->Session();
  for (const TPalettePage& page : registry_.PalettePages())
    for (const TClass* cls : page.Classes) session.CreateComponent(*cls, nullptr, QRect(16, 16, 0, 0));
  const QByteArray bytes = session.Bytes();
  const std::size_t components = session.AllComponents().size();
  EXPECT_GT(components, 160u);
  const Traces with = traces();
  packages_.Unload(PackageManager::DefaultPackage());
  const Traces without = traces();
  EXPECT_LT(without.rows, with.rows - 80);
  EXPECT_LT(without.classes, with.classes);
  EXPECT_TRUE(without.pages.filter(QStringLiteral("VRX ")).isEmpty());
  for (int round = 0; round < 3; ++round) {
    packages_.Load(PackageManager::DefaultPackage());
    EXPECT_EQ(session.Bytes(), bytes) << round;
    EXPECT_EQ(session.AllComponents().size(), components) << round;
    // A window of the package that is open goes with it.
    TComponent* hider = session.GetComponent(QStringLiteral("VRXHideNonVC1"));
    registry_.GetComponentEditor(hider, &session)->ExecuteVerb(0);
    QCoreApplication::processEvents();
    EXPECT_GT(QApplication::topLevelWidgets().size(), without.windows) << round;
    packages_.Unload(PackageManager::DefaultPackage());
    EXPECT_EQ(session.Bytes(), bytes) << round;
    const Traces now = traces();
    EXPECT_EQ(now.rows, without.rows) << round;
    EXPECT_EQ(now.dialogs, without.dialogs) << round;
    EXPECT_EQ(now.classes, without.classes) << round;
    EXPECT_EQ(now.windows, without.windows) << round;
    EXPECT_EQ(now.pages, without.pages) << round;
  }
}
