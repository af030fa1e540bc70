// Files, undo, questions, errors and looks of the main window.
#include "designer/DesignerSettings.h"
#include "designer/LookSettings.h"
#include "designer/MessageBar.h"
#include "rtl/Exceptions.h"
#include "tests/designer/DesignerTest.h"
#include "tests/support/Contrast.h"
#include "vcl/FormColors.h"
#include "vcl/PageControl.h"
#include "vcl/Theme.h"

using namespace designer;

namespace {
class ThrowingEditor : public TComponentEditor {
 public:
  using TComponentEditor::TComponentEditor;
  void Edit() override {
    As<TControl>(GetComponent())->SetCaption(QStringLiteral("half done"));
    GetDesigner()->CreateComponent(TButton::StaticClass(), nullptr, QRect(0, 0, 8, 8));
    throw Exception(QStringLiteral("The editor gave up."));
  }
  int GetVerbCount() const override { return 1; }
  QString GetVerb(int) const override { return QStringLiteral("&Break"); }
  void ExecuteVerb(int) override { Edit(); }
};

// While it lives, buttons have an editor that throws.
class WithThrowingEditor {
 public:
  WithThrowingEditor() {
    const RegistrationScope scope(this, "test");
    RegisterComponentEditor(TButton::StaticClass(), VRX_COMPONENT_EDITOR(ThrowingEditor));
  }
  ~WithThrowingEditor() { DesignRegistry::Current().UnregisterPackage(this); }
};

class Window : public DesignerTest {
 protected:
  void Change() {
    Select("Button1");
    Key(Qt::Key_Right);
    ASSERT_TRUE(Session().IsModified());
  }
};
}  // namespace

TEST_F(Window, UndoAndRedoFollowTheCommands) {
  EXPECT_FALSE(Action("undo").isEnabled());
  EXPECT_FALSE(Action("redo").isEnabled());
  Change();
  EXPECT_TRUE(Action("undo").isEnabled());
  EXPECT_EQ(Action("undo").text(), QStringLiteral("&Undo Move"));
  Action("undo").trigger();
  EXPECT_EQ(Bounds("Button1").left(), 240);
  EXPECT_FALSE(Action("undo").isEnabled());
  EXPECT_EQ(Action("redo").text(), QStringLiteral("&Redo Move"));
  Action("redo").trigger();
  EXPECT_EQ(Bounds("Button1").left(), 248);
}

TEST_F(Window, UndoingACreationWithEverythingShownIsHarmless) {
  Session().CreateComponent(TPanel::StaticClass(), nullptr, QRect(8, 200, 40, 40));
  Action("undo").trigger();
  Action("redo").trigger();
  EXPECT_EQ(Selected(), "Panel2");
  Action("undo").trigger();
  ExpectUntouched();
}

TEST_F(Window, TheModifiedMarkFollowsTheForm) {
  EXPECT_FALSE(window_->isWindowModified());
  EXPECT_FALSE(Action("save").isEnabled());
  Change();
  EXPECT_TRUE(window_->isWindowModified());
  EXPECT_TRUE(Action("save").isEnabled());
  Action("undo").trigger();
  EXPECT_FALSE(window_->isWindowModified());
}

TEST_F(Window, SaveWritesTheFileAndTakesTheMarkAway) {
  Change();
  Action("save").trigger();
  EXPECT_EQ(Read(file_).toStdString(), Session().Bytes().toStdString());
  EXPECT_NE(Read(file_), Sample);
  EXPECT_FALSE(window_->isWindowModified());
}

TEST_F(Window, SaveAsTakesTheNewName) {
  Change();
  prompts_.fileName = folder_.filePath(QStringLiteral("other.dfm"));
  Action("saveAs").trigger();
  EXPECT_EQ(Read(prompts_.fileName), Session().Bytes());
  EXPECT_EQ(Read(file_), Sample);
  EXPECT_TRUE(window_->windowTitle().startsWith(QStringLiteral("other.dfm")));
  EXPECT_FALSE(window_->isWindowModified());
}

TEST_F(Window, SaveAsThatIsCancelledSavesNothing) {
  Change();
  Action("saveAs").trigger();
  EXPECT_EQ(prompts_.saveNames, 1);
  EXPECT_EQ(Read(file_), Sample);
  EXPECT_TRUE(window_->isWindowModified());
}

TEST_F(Window, ASaveThatFailsTellsAndKeepsTheMark) {
  Change();
  prompts_.fileName = folder_.filePath(QStringLiteral("gone/other.dfm"));
  EXPECT_FALSE(window_->SaveAs());
  ASSERT_EQ(prompts_.warnings.size(), 1);
  EXPECT_TRUE(prompts_.warnings[0].contains(prompts_.fileName));
  EXPECT_TRUE(window_->isWindowModified());
  EXPECT_EQ(Session().FileName(), file_);
  expectedWarnings_ = prompts_.warnings;
}

TEST_F(Window, ANewFormAsksForANameWhenItIsSaved) {
  window_->NewForm();
  EXPECT_EQ(Session().Form().Name(), QStringLiteral("Form1"));
  prompts_.fileName = folder_.filePath(QStringLiteral("new.dfm"));
  EXPECT_TRUE(window_->Save());
  EXPECT_EQ(prompts_.saveNames, 1);
  EXPECT_TRUE(Read(prompts_.fileName).startsWith("object Form1: TForm1"));
}

TEST_F(Window, AnUnchangedFormClosesWithoutAQuestion) {
  EXPECT_TRUE(window_->close());
  EXPECT_TRUE(prompts_.questions.isEmpty());
}

TEST_F(Window, CancelKeepsTheWindowAndTheChanges) {
  Change();
  prompts_.answer = TAnswer::Cancel;
  EXPECT_FALSE(window_->close());
  EXPECT_TRUE(window_->isVisible());
  EXPECT_TRUE(Session().IsModified());
  EXPECT_EQ(Read(file_), Sample);
  ASSERT_EQ(prompts_.questions.size(), 1);
  EXPECT_TRUE(prompts_.questions[0].contains(QStringLiteral("main.dfm")));
}

TEST_F(Window, DiscardClosesWithoutSaving) {
  Change();
  prompts_.answer = TAnswer::No;
  EXPECT_TRUE(window_->close());
  EXPECT_EQ(Read(file_), Sample);
}

TEST_F(Window, SaveSavesAndCloses) {
  Change();
  prompts_.answer = TAnswer::Yes;
  EXPECT_TRUE(window_->close());
  EXPECT_EQ(Read(file_), Session().Bytes());
}

TEST_F(Window, SaveThatFailsKeepsTheWindow) {
  Change();
  ASSERT_TRUE(QDir(folder_.path()).removeRecursively());
  prompts_.answer = TAnswer::Yes;
  EXPECT_FALSE(window_->close());
  EXPECT_TRUE(Session().IsModified());
  EXPECT_EQ(prompts_.warnings.size(), 1);
  expectedWarnings_ = prompts_.warnings;
}

TEST_F(Window, NewAndOpenAskFirstAndCancelKeepsTheForm) {
  Change();
  prompts_.answer = TAnswer::Cancel;
  prompts_.fileName = file_;
  FormSession* before = window_->Session();
  Action("new").trigger();
  Action("open").trigger();
  EXPECT_EQ(window_->Session(), before);
  EXPECT_EQ(prompts_.questions.size(), 2);
  EXPECT_TRUE(Session().IsModified());
}

TEST_F(Window, OpeningABrokenFileTellsAndKeepsTheForm) {
  Change();
  const QString broken = folder_.filePath(QStringLiteral("broken.dfm"));
  Write(broken, "object A: TA\n  Left = \nend\n");
  FormSession* before = window_->Session();
  EXPECT_FALSE(window_->OpenForm(broken));
  EXPECT_EQ(window_->Session(), before);
  EXPECT_TRUE(Session().IsModified());
  ASSERT_EQ(prompts_.warnings.size(), 1);
  EXPECT_TRUE(prompts_.warnings[0].contains(QStringLiteral("broken.dfm")));
  expectedWarnings_ = prompts_.warnings;
}

TEST_F(Window, OpeningAFileThatIsNotThereTells) {
  EXPECT_FALSE(window_->OpenForm(folder_.filePath(QStringLiteral("none.dfm"))));
  EXPECT_EQ(prompts_.warnings.size(), 1);
  expectedWarnings_ = prompts_.warnings;
  ExpectUntouched();
}

TEST_F(Window, AReferenceToNobodyIsListedAsAProblem) {
  const QString odd = folder_.filePath(QStringLiteral("odd.dfm"));
  Write(odd, "object A: TA\n  object B: TLabel\n    FocusControl = NobodyKnows\n  end\nend\n");
  ASSERT_TRUE(window_->OpenForm(odd));
  QString texts;
  for (const QDockWidget* dock : window_->findChildren<QDockWidget*>())
    if (dock->windowTitle() == QStringLiteral("Problems (1)")) {
      EXPECT_TRUE(dock->isVisible());
      const auto* list = dock->findChild<QListWidget*>();
      for (int i = 0; i < list->count(); ++i) texts += list->item(i)->text();
    }
  EXPECT_TRUE(texts.contains(QStringLiteral("NobodyKnows"))) << texts.toStdString();
}

TEST_F(Window, AnEditorThatThrowsOnADoubleClickTellsAndChangesNothing) {
  const WithThrowingEditor editor;
  Select("Led");
  QTest::mouseDClick(&Surface(), Qt::LeftButton, {}, At("Button1"));
  expectedWarnings_ = QStringList(QStringLiteral("The editor gave up."));
  ExpectUntouched();
  EXPECT_EQ(dynamic_cast<TControl&>(Get("Button1")).Caption(), QStringLiteral("One"));
  Click(At("Button2"));  // the designer goes on
  EXPECT_EQ(Selected(), "Button2");
}

TEST_F(Window, AVerbThatCannotBeRunIsGreyAndSaysWhy) {
  auto& book = dynamic_cast<TPageControl&>(
      *Session().CreateComponent(TPageControl::StaticClass(), nullptr, QRect(16, 160, 200, 100)));
  QStringList enabled, grey;
  QTimer::singleShot(0, [&] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    for (QAction* action : menu->actions().first(4)) {
      (action->isEnabled() ? enabled : grey) << action->text();
      EXPECT_EQ(action->isEnabled(), action->statusTip().isEmpty());
    }
    menu->close();
  });
  emit Surface().ContextMenuWanted(Surface().mapToGlobal(QPoint(20, 20)));
  EXPECT_EQ(enabled, QStringList(QStringLiteral("New Page")));
  EXPECT_EQ(grey.join(u'|'), QStringLiteral("Next Page|Previous Page|Delete Page"));
  EXPECT_TRUE(book.Pages().empty());
}

TEST_F(Window, AVerbThatThrowsTellsAndChangesNothing) {
  const WithThrowingEditor editor;
  Select("Button1");
  bool found = false;
  QTimer::singleShot(0, [&] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    ASSERT_FALSE(menu->actions().isEmpty());
    found = menu->actions().front()->text() == QStringLiteral("&Break");
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
  });
  emit Surface().ContextMenuWanted(Surface().mapToGlobal(At("Button1")));
  EXPECT_TRUE(found);
  expectedWarnings_ = QStringList(QStringLiteral("The editor gave up."));
  ExpectUntouched();
}

TEST_F(Window, TheStatusBarTellsTheSelectionAndItsPlace) {
  Select("Button1");
  QStringList texts;
  for (const QLabel* label : window_->statusBar()->findChildren<QLabel*>()) texts << label->text();
  const QString all = texts.join(u'|');
  EXPECT_TRUE(all.contains(QStringLiteral("Button1: TButton"))) << all.toStdString();
  EXPECT_TRUE(all.contains(QStringLiteral("240, 16   80 x 24"))) << all.toStdString();
  EXPECT_TRUE(all.contains(QStringLiteral("100 %"))) << all.toStdString();
}

TEST_F(Window, BothThemesReachTheWholeWindowAndLeaveTheFormAlone) {
  const auto lightness = [&](QWidget& w) {
    const QImage picture = w.grab().toImage().convertToFormat(QImage::Format_RGB32);
    qint64 sum = 0;
    for (int y = 0; y < picture.height(); y += 4)
      for (int x = 0; x < picture.width(); x += 4) sum += qGray(picture.pixel(x, y));
    return static_cast<double>(sum) / ((picture.width() / 4.0) * (picture.height() / 4.0));
  };
  Action("light").trigger();
  QCoreApplication::processEvents();
  EXPECT_FALSE(IsDarkTheme());
  const double lightInspector = lightness(Inspector()), lightTree = lightness(window_->Structure());
  // Without the handles and the desk in the round corners, which are the designer's.
  const auto form = [&] {
    return Surface().grab(Surface().WidgetRect(Get("Main")).adjusted(0, 8, -5, -5)).toImage();
  };
  const QImage lightForm = form();
  Action("dark").trigger();
  QCoreApplication::processEvents();
  EXPECT_TRUE(IsDarkTheme());
  EXPECT_LT(lightness(Inspector()), lightInspector / 2);
  EXPECT_LT(lightness(window_->Structure()), lightTree / 2);
  EXPECT_EQ(form(), lightForm);
  ExpectUntouched();
  Action("light").trigger();
}

TEST_F(Window, AMessageCanBeReadAfterTheThemeChanges) {
  MessageBar bar;
  bar.Tell(QStringLiteral("Changed"), {});
  for (const TTheme theme : {TTheme::Dark, TTheme::Light, TTheme::Dark}) {
    ApplyTheme(theme);
    QCoreApplication::processEvents();
    const QPalette shown = bar.findChild<QLabel*>(QStringLiteral("messageText"))->palette();
    const int back = qGray(bar.grab().toImage().pixel(2, bar.height() / 2));
    EXPECT_GT(std::abs(back - qGray(shown.color(QPalette::WindowText).rgb())), 100);
    EXPECT_EQ(back < 128, theme == TTheme::Dark);
  }
  ApplyTheme(TTheme::Light);
}

TEST_F(Window, TheThemeIsRemembered) {
  Action("dark").trigger();
  ApplyTheme(TTheme::Light);
  RestoreTheme();
  EXPECT_TRUE(IsDarkTheme());
  Action("light").trigger();
  ApplyTheme(TTheme::Dark);
  RestoreTheme();
  EXPECT_FALSE(IsDarkTheme());
}

TEST_F(Window, BeforeAThemeIsChosenItIsTheOneThatIsTicked) {
  const QString before = DesignerSetting("Theme");
  KeepDesignerSetting("Theme", {});
  for (const TTheme theme : {TTheme::Dark, TTheme::Light}) {
    QPalette platform = ThemePalette(theme);
    platform.setColor(QPalette::Highlight, QColor(0x30, 0x8C, 0xC6));
    platform.setColor(QPalette::Mid, QColor(0x77, 0x78, 0x79));
    QApplication::setPalette(platform);
    RestoreTheme();
    const QPalette wanted = ThemePalette(theme);
    for (const auto role : {QPalette::Highlight, QPalette::Mid, QPalette::Window})
      EXPECT_EQ(QApplication::palette().color(role), wanted.color(role)) << role;
  }
  KeepDesignerSetting("Theme", before);
}

TEST_F(Window, AFilterCanBeSeenToBeClearedInEveryTheme) {
  auto* button = window_->Palette().findChild<QLineEdit*>()->findChild<QToolButton*>();
  ASSERT_TRUE(button);
  for (const TTheme theme : {TTheme::Dark, TTheme::Light, TTheme::Dark, TTheme::Light}) {
    ApplyTheme(theme);
    QCoreApplication::processEvents();
    QImage shown(16, 16, QImage::Format_RGB32);
    shown.fill(QApplication::palette().color(QPalette::Base));
    QPainter(&shown).drawPixmap(0, 0, button->icon().pixmap(QSize(16, 16), 1.0));
    EXPECT_GE(Contrast(shown), 4.5) << (theme == TTheme::Dark ? "dark" : "light");
  }
}

TEST_F(Window, FileDialogsStartBesideTheForm) {
  EXPECT_EQ(InPromptFolder({}), QFileInfo(file_).absolutePath());
  EXPECT_EQ(InPromptFolder(QStringLiteral("x.png")),
            QFileInfo(file_).absolutePath() + QStringLiteral("/x.png"));
  EXPECT_EQ(InPromptFolder(QStringLiteral("/tmp/x.png")), QStringLiteral("/tmp/x.png"));
  ASSERT_TRUE(QDir(folder_.path()).mkdir(QStringLiteral("other")));
  prompts_.fileName = folder_.filePath(QStringLiteral("other/copy.dfm"));
  ASSERT_TRUE(window_->SaveAs());
  EXPECT_EQ(InPromptFolder({}), folder_.filePath(QStringLiteral("other")));
}

TEST_F(Window, FormColoursAreOfTheFormAloneAndRemembered) {
  const auto face = [&] {
    QCoreApplication::processEvents();
    return Surface().grab().toImage().pixelColor(FormPoint(471, 311));
  };
  const QColor light = ThemePalette(TTheme::Light).color(QPalette::Window),
               dark = ThemePalette(TTheme::Dark).color(QPalette::Window);
  EXPECT_EQ(face(), light);
  EXPECT_TRUE(Action("formLight").isChecked());
  Action("formDark").trigger();
  EXPECT_EQ(face(), dark);
  EXPECT_FALSE(IsDarkTheme());
  SetFormColors(TFormColors::Light);
  MainWindow later(packages_);
  EXPECT_EQ(FormColors(), TFormColors::Dark);
  EXPECT_TRUE(later.findChild<QAction*>(QStringLiteral("formDark"))->isChecked());
  Action("formDesigner").trigger();
  EXPECT_EQ(face(), light);
  Action("dark").trigger();
  EXPECT_EQ(face(), dark);
  Action("formLight").trigger();
  EXPECT_EQ(face(), light);
  ExpectUntouched();
  Action("light").trigger();
}

TEST_F(Window, ThePackageThatGoesLeavesTheOpenFormWhole) {
  packages_.Load(QStringLiteral("testsample"));
  const QString name = folder_.filePath(QStringLiteral("gauge.dfm"));
  const QByteArray bytes =
      "object A: TA\n  object Gauge1: TSampleGauge\n    Left = 8\n    Top = 8\n    Width = 60\n    Height = "
      "20\n    "
      "Level = 4\n  end\nend\n";
  Write(name, bytes);
  ASSERT_TRUE(window_->OpenForm(name));
  Select("Gauge1");
  const auto typeOfLevel = [this] {
    InspectorModel& model = Inspector().Model();
    const TPropertyEditor* editor = model.EditorAt(model.IndexOfPath(QStringLiteral("Level")));
    return editor ? editor->GetPropType().Name : QByteArray();
  };
  ASSERT_EQ(typeOfLevel(), "Integer");
  packages_.Unload(QStringLiteral("testsample"));
  EXPECT_EQ(typeOfLevel(), "FormText") << "the file still says it";
  EXPECT_EQ(Selected(), "Gauge1");
  packages_.Load(QStringLiteral("testsample"));
  EXPECT_EQ(typeOfLevel(), "Integer");
  EXPECT_EQ(Session().Bytes(), bytes);
}

TEST_F(Window, APackageThatFailsLeavesTheOpenFormWhole) {
  EXPECT_THROW(packages_.Load(QStringLiteral("testthrowing")), Exception);
  ExpectUntouched();
  Click(At("Button1"));
  EXPECT_EQ(Selected(), "Button1");
}

// Of two lists with something selected one is where the keys go.
TEST_F(Window, OfSeveralListsTheOneWithTheKeysHasTheAccent) {
  QWidget dialog;
  auto* line = new QHBoxLayout(&dialog);
  QListWidget* lists[2];
  for (QListWidget*& list : lists) {
    list = new QListWidget(&dialog);
    list->addItem(QStringLiteral("chosen"));
    list->item(0)->setFlags(list->item(0)->flags() | Qt::ItemIsEditable);
    list->setCurrentRow(0);
    line->addWidget(list);
  }
  const auto ground = [](QListWidget& list) {
    const QRect row = list.visualItemRect(list.item(0));
    return QColor(list.viewport()->grab().toImage().pixel(row.right() - 3, row.center().y()));
  };
  const auto distance = [](const QColor& a, const QColor& b) {
    return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue());
  };
  for (const TTheme theme : {TTheme::Dark, TTheme::Light}) {
    ApplyTheme(theme);
    QCoreApplication::processEvents();
    dialog.show();
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    const QPalette palette = ThemePalette(theme);
    const QColor accent = palette.color(QPalette::Active, QPalette::Highlight),
                 left = palette.color(QPalette::Inactive, QPalette::Highlight);
    EXPECT_NE(accent, left);
    for (const QColor& color : {accent, left})
      EXPECT_GE(Contrast(palette.color(QPalette::HighlightedText), color), 4.5);
    for (int i = 0; i < 2; ++i) {
      lists[i]->setFocus();
      // The mark of the focus lies over the accent.
      EXPECT_LT(distance(ground(*lists[i]), accent), distance(ground(*lists[i]), left));
      EXPECT_EQ(ground(*lists[1 - i]), left);
    }
    lists[1]->openPersistentEditor(lists[1]->item(0));
    lists[1]->findChild<QLineEdit*>()->setFocus();
    EXPECT_TRUE(lists[1]->style()->styleHint(QStyle::SH_ItemView_ChangeHighlightOnFocus, nullptr, lists[0]));
    EXPECT_FALSE(lists[1]->style()->styleHint(QStyle::SH_ItemView_ChangeHighlightOnFocus, nullptr, lists[1]))
        << "an editor in it has the keys";
    lists[1]->closePersistentEditor(lists[1]->item(0));
  }
}

TEST_F(Window, TheMenuKeyOpensTheMenuOnWhatIsSelected) {
  for (const char* name : {"Button2", "Led", "Timer1"}) {
    Select(name);
    std::vector<QPoint> opened;
    const auto heard =
        QObject::connect(&Surface(), &FormSurface::ContextMenuWanted, &Surface(),
                         [&](const QPoint& at) { opened.push_back(Surface().mapFromGlobal(at)); });
    QTimer::singleShot(0, [] {
      if (QWidget* menu = QApplication::activePopupWidget()) menu->close();
    });
    QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint(3, 4), Surface().mapToGlobal(QPoint(3, 4)));
    QCoreApplication::sendEvent(&Surface(), &key);
    QObject::disconnect(heard);
    ASSERT_EQ(opened.size(), 1u);
    EXPECT_TRUE(Surface().WidgetRect(Get(name)).contains(opened[0])) << name;
  }
}

// A swatch is looked at for its color.
TEST_F(Window, PicturesOfSelectedRowsKeepTheirColors) {
  QImage swatch(7, 5, QImage::Format_ARGB32);
  swatch.fill(qRgba(255, 0, 0, 255));
  swatch.setPixelColor(1, 1, QColor(255, 255, 0, 90));
  const QIcon icon(QPixmap::fromImage(swatch));
  for (const TTheme theme : {TTheme::Dark, TTheme::Light}) {
    ApplyTheme(theme);
    const QImage selected =
        icon.pixmap(swatch.size(), QIcon::Selected).toImage().convertToFormat(QImage::Format_ARGB32);
    EXPECT_EQ(selected.pixel(3, 3), swatch.pixel(3, 3));
    EXPECT_EQ(qAlpha(selected.pixel(1, 1)), 90);
  }
}
