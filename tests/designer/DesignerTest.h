// The real main window with a form in it, and short cuts for working in it.
#pragma once
#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

#include "dclstd/StandardEditors.h"
#include "designer/FormSurface.h"
#include "designer/InspectorPane.h"
#include "designer/MainWindow.h"
#include "designer/PalettePane.h"
#include "designer/StructurePane.h"
#include "designer/ValueEditor.h"
#include "designintf/DesignIntf.h"
#include "library/controls/LEDLabel.h"
#include "package/dialogs/pVRXLEDEditorDlg.h"
#include "package/registration/VRX_RegMain.h"
#include "tests/support/Modal.h"
#include "tests/support/Waiting.h"
#include "vcl/Button.h"
#include "vcl/Label.h"
#include "vcl/Panel.h"
#include "vcl/Prompts.h"
#include "vcl/Timer.h"

namespace designer {

inline const QByteArray Sample = R"(object Main: TMain
  Left = 0
  Top = 0
  Caption = 'Main'
  ClientHeight = 320
  ClientWidth = 480
  object Panel1: TPanel
    Left = 16
    Top = 16
    Width = 200
    Height = 120
    Caption = ''
    TabOrder = 0
    object Inner: TButton
      Left = 16
      Top = 48
      Width = 80
      Height = 24
      Anchors = [akLeft, akTop, akRight]
      Caption = 'Inner'
      TabOrder = 0
    end
  end
  object Button1: TButton
    Left = 240
    Top = 16
    Width = 80
    Height = 24
    Caption = 'One'
    TabOrder = 1
    OnClick = Button1Click
  end
  object Button2: TButton
    Left = 336
    Top = 16
    Width = 80
    Height = 24
    Caption = 'Two'
    TabOrder = 2
  end
  object Led: TVRXLEDLabel
    Left = 240
    Top = 64
    Width = 160
    Height = 40
    AutoSize = False
    Caption = '88:88'
    LED.HorzSize = 12
  end
  object Timer1: TTimer
    Left = 40
    Top = 200
  end
end
)";

// Answers for the person at the screen.
class FakePrompts : public IPrompts {
 public:
  FakePrompts() { SetPrompts(this); }
  ~FakePrompts() override { SetPrompts(nullptr); }
  void Inform(QWidget*, const QString&, const QString& text) override { informed << text; }
  void Warn(QWidget*, const QString&, const QString& text) override { warnings << text; }
  TAnswer AskToSave(QWidget*, const QString& text) override {
    questions << text;
    return answer;
  }
  TFileAnswer AskFileChanged(QWidget*, const QString&, const QString& text) override {
    questions << text;
    if (whileAsking) whileAsking();
    return fileAnswers.isEmpty() ? TFileAnswer::Cancel : fileAnswers.takeFirst();
  }
  bool Confirm(QWidget*, const QString&, const QString& text) override {
    confirmations << text;
    return confirm;
  }
  QString OpenFileName(QWidget*, const QString&, const QString&, const QString&) override { return fileName; }
  QString SaveFileName(QWidget*, const QString&, const QString&, const QString&) override {
    ++saveNames;
    return fileName;
  }
  QStringList informed, warnings, questions, confirmations;
  bool confirm = true;
  TAnswer answer = TAnswer::Cancel;
  QList<TFileAnswer> fileAnswers;     // in turn; then Cancel
  std::function<void()> whileAsking;  // what happens before the person answers
  QString fileName;
  int saveNames = 0;
};

// The palette's button of a class, on whatever page it is.
inline QToolButton& ButtonOf(MainWindow& window, const char* cls) {
  PalettePane& palette = window.Palette();
  auto* tabs = palette.findChild<QTabBar*>();
  for (int i = 0; i < tabs->count() && !palette.ButtonOf(cls); ++i) tabs->setCurrentIndex(i);
  return *palette.ButtonOf(cls);
}

class DesignerTest : public testing::Test {
 protected:
  explicit DesignerTest(const QByteArray& form = Sample) : form_(form) {
    RegisterStandard(registry_);
    VRX_RegMain::Register();
    file_ = folder_.filePath(QStringLiteral("main.dfm"));
    Write(file_, form_);
    window_ = std::make_unique<MainWindow>(packages_);
  }
  void SetUp() override {
    window_->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get(), WaitLimit));
    ASSERT_TRUE(window_->OpenForm(file_));
    QCoreApplication::processEvents();
    Surface().setFocus();
  }
  void TearDown() override { EXPECT_EQ(prompts_.warnings.join(u'\n'), expectedWarnings_.join(u'\n')); }

  static void Write(const QString& name, const QByteArray& bytes) {
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  static QByteArray Read(const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
  }

  FormSession& Session() { return *window_->Session(); }
  FormSurface& Surface() { return window_->Surface(); }
  InspectorPane& Inspector() { return window_->Inspector(); }
  ValueEditor& Editor() { return Inspector().Editor(); }
  QAction& Action(const char* name) { return *window_->findChild<QAction*>(QLatin1StringView(name)); }

  TComponent& Get(const char* name) { return *Session().GetComponent(QLatin1StringView(name)); }
  QRect Bounds(const char* name) { return dynamic_cast<TControl&>(Get(name)).BoundsRect(); }
  std::string Selected() {
    QStringList names;
    for (const TComponent* c : Session().SelectedComponents()) names << c->Name();
    return names.join(u'+').toStdString();
  }
  void Select(const char* name) { Session().Select({&Get(name)}); }

  // Where things are on the surface.
  QPoint At(const char* name) { return Surface().WidgetRect(Get(name)).center(); }
  QPoint FormPoint(int x, int y) {
    const QRect panel = Surface().WidgetRect(Get("Button1"));
    return panel.topLeft() + QPoint(x - 240, y - 16);
  }
  void Click(QPoint at, Qt::KeyboardModifiers keys = {}) {
    QTest::mouseClick(&Surface(), Qt::LeftButton, keys, at);
  }
  void Press(QPoint at) { QTest::mousePress(&Surface(), Qt::LeftButton, {}, at); }
  void MoveTo(QPoint at, Qt::KeyboardModifiers keys = {}) {
    QMouseEvent move(QEvent::MouseMove, QPointF(at), QPointF(Surface().mapToGlobal(at)), Qt::NoButton,
                     Qt::LeftButton, keys);
    QCoreApplication::sendEvent(&Surface(), &move);
  }
  void Release(QPoint at) { QTest::mouseRelease(&Surface(), Qt::LeftButton, {}, at); }
  void Drag(QPoint from, QPoint to) {
    Press(from);
    MoveTo((from + to) / 2);
    MoveTo(to);
    Release(to);
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers keys = {}) { QTest::keyClick(&Surface(), key, keys); }

  // Exactly one command was recorded; undoing it gives the file back.
  void ExpectOneCommand() {
    ASSERT_TRUE(Session().CanUndo());
    Session().Undo();
    EXPECT_FALSE(Session().CanUndo());
    EXPECT_EQ(Session().Bytes().toStdString(), form_.toStdString());
    Session().Redo();
  }
  void ExpectUntouched() {
    EXPECT_FALSE(Session().CanUndo());
    EXPECT_EQ(Session().Bytes().toStdString(), form_.toStdString());
  }

  QByteArray form_;
  QTemporaryDir folder_;
  QString file_;
  FakePrompts prompts_;
  QStringList expectedWarnings_;
  DesignRegistry registry_;
  PackageManager packages_{
      {QStringLiteral(VRX_BINARY_DIR "/tests/packages"), QStringLiteral(VRX_BINARY_DIR "/lib")}};
  std::unique_ptr<MainWindow> window_;
};

}  // namespace designer
