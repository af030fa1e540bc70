// Every verb that a component of any registered class offers, run as the designer runs it: one command or
// none, the form as its file says, and undo byte for byte. Dialogs are answered by Cancel and by OK.
#include <QApplication>
#include <QDialog>
#include <QTimer>

#include "ClassWalk.h"
#include "tests/ide/SessionTest.h"
#include "vcl/Prompts.h"

namespace {
// Nobody is there: every dialog that comes up gets the same answer.
class Answering : public IPrompts {
 public:
  explicit Answering(bool ok) : ok_(ok) {
    SetPrompts(this);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (!dialog) return;
      ++answered;
      ok_ ? dialog->accept() : dialog->reject();
    });
    timer_.start(0);
  }
  ~Answering() override {
    SetPrompts(nullptr);
    // Windows that stay open.
    for (QWidget* window : QApplication::topLevelWidgets())
      if (window->isVisible()) window->close();
  }
  Answering(const Answering&) = delete;
  Answering& operator=(const Answering&) = delete;
  void Inform(QWidget*, const QString&, const QString&) override { ++answered; }
  void Warn(QWidget*, const QString&, const QString&) override { ++answered; }
  TAnswer AskToSave(QWidget*, const QString&) override { return ok_ ? TAnswer::Yes : TAnswer::Cancel; }
  bool Confirm(QWidget*, const QString&, const QString&) override { return ok_; }
  QString OpenFileName(QWidget*, const QString&, const QString&, const QString&) override { return {}; }
  QString SaveFileName(QWidget*, const QString&, const QString&, const QString&) override { return {}; }
  int answered = 0;

 private:
  bool ok_;
  QTimer timer_;
};

class VerbWalk {
 public:
  // A form with a component of the class on it, and something for it to refer to.
  VerbWalk(const TClass& cls, DesignRegistry& registry)
      : session_(FormSession::NewForm(QStringLiteral("Form1"), registry)) {
    session_->CreateComponent(TButton::StaticClass(), nullptr, QRect(8, 8, 75, 25));
    subject_ = session_->GetRoot();
    if (!cls.InheritsFrom(TForm::StaticClass()))
      subject_ = session_->CreateComponent(cls, nullptr, QRect(96, 40, 120, 56));
  }
  // How many of them were a command.
  int RunAll(bool ok) {
    const Answering answering(ok);
    int commands = 0;
    for (int i = 0; i < Editor()->GetVerbCount(); ++i) commands += RunVerb(i);
    answered = answering.answered;
    return commands;
  }
  int answered = 0;

 private:
  // Editors are made anew for every menu.
  std::unique_ptr<TComponentEditor> Editor() {
    return session_->Registry().GetComponentEditor(subject_, session_.get());
  }
  bool RunVerb(int index) {
    const auto editor = Editor();
    SCOPED_TRACE(editor->GetVerb(index).toStdString());
    const QByteArray before = session_->Bytes();
    const std::string state = ide::StateOf(*session_);
    const QString lastCommand = session_->UndoText();
    session_->Run(QStringLiteral("a verb"), {subject_}, [&] { editor->ExecuteVerb(index); });
    const QByteArray after = session_->Bytes();
    EXPECT_EQ(ide::StateOf(*session_), ide::StateOf(after)) << "the form is not what its file says";
    EXPECT_FALSE(session_->IsBusy());
    if (after == before) {
      EXPECT_EQ(session_->UndoText(), lastCommand) << "a command that changes nothing";
      EXPECT_EQ(ide::StateOf(*session_), state);
      return false;
    }
    EXPECT_EQ(session_->UndoText(), QStringLiteral("a verb"));
    session_->Undo();
    EXPECT_EQ(session_->UndoText(), lastCommand) << "more than one command";
    EXPECT_EQ(session_->Bytes(), before);
    EXPECT_EQ(ide::StateOf(*session_), state);
    session_->Redo();
    EXPECT_EQ(session_->Bytes(), after);
    session_->Undo();
    return true;
  }

  std::unique_ptr<FormSession> session_;
  TComponent* subject_ = nullptr;
};
class EveryVerb : public testing::TestWithParam<std::string> {};

// A component that tells nobody, whose verbs do what verbs may do.
class TVerbose : public TComponent {
  VRX_CLASS(TVerbose)
 public:
  using TComponent::TComponent;
  int Level() const { return level_; }
  void SetLevel(int v) { level_ = v; }

 private:
  int level_ = 0;
};
const TClass& TVerbose::StaticClass() {
  static const TClass cls(DescribeClass<TVerbose>("TVerbose", TComponent::StaticClass())
                              .Published("Level", &TVerbose::Level, &TVerbose::SetLevel, 0));
  return cls;
}

class TVerboseEditor : public TComponentEditor {
 public:
  using TComponentEditor::TComponentEditor;
  int GetVerbCount() const override { return 4; }
  QString GetVerb(int index) const override { return QStringLiteral("Verb %1").arg(index); }
  void ExecuteVerb(int index) override {
    auto& subject = dynamic_cast<TVerbose&>(*GetComponent());
    QDialog dialog;
    switch (index) {
      case 0:  // nothing, and says that it was something
        break;
      case 1:
        subject.SetLevel(subject.Level() + 1);
        break;
      case 2:
        new TTimer(GetDesigner()->GetRoot());
        subject.SetTag(subject.Tag() + 1);
        break;
      default:
        if (dialog.exec() == QDialog::Accepted) subject.SetLevel(9);
    }
    GetDesigner()->Modified();
  }
};
}  // namespace

TEST_P(EveryVerb, IsOneCommandOrNoneWhenItsDialogIsCancelled) {
  VerbWalk(GetClass(GetParam()), Registrations()).RunAll(false);
}
TEST_P(EveryVerb, IsOneCommandOrNoneWhenItsDialogIsAccepted) {
  VerbWalk(GetClass(GetParam()), Registrations()).RunAll(true);
}

INSTANTIATE_TEST_SUITE_P(Registered, EveryVerb, testing::ValuesIn(ConcreteClasses()),
                         [](const auto& i) { return i.param; });

// The walk is no walk when nothing has verbs, or when nobody answers.
TEST(Verbs, AreOfferedByClassesOfThePackage) {
  int answered = 0;
  for (const std::string& name : ConcreteClasses()) {
    VerbWalk walk(GetClass(name), Registrations());
    walk.RunAll(false);
    answered += walk.answered;
  }
  EXPECT_GE(answered, 2);
}

TEST(Verbs, TheFirstOneOfAShapedButtonMakesItsHandlerAsADoubleClickDoes) {
  for (const bool verb : {true, false}) {
    const auto session = FormSession::NewForm(QStringLiteral("Form1"), Registrations());
    TComponent* const button =
        session->CreateComponent(GetClass("TVRXWndButtonShape"), nullptr, QRect(8, 8, 152, 72));
    if (verb)
      session->Registry().GetComponentEditor(button, session.get())->ExecuteVerb(0);
    else
      session->Edit(*button);
    EXPECT_TRUE(session->Bytes().contains("OnClick = VRXWndButtonShape1Click"))
        << session->Bytes().toStdString();
  }
}

TEST(Verbs, OfAComponentThatTellsNobodyAreCommandsAllTheSame) {
  Registrations();
  DesignRegistry registry;
  const int package = 0;
  const RegistrationScope scope(registry, &package, {});
  RegisterComponents(QStringLiteral("Odd"), {&TVerbose::StaticClass()});
  RegisterComponentEditor(TVerbose::StaticClass(), VRX_COMPONENT_EDITOR(TVerboseEditor));
  VerbWalk cancelled(TVerbose::StaticClass(), registry), accepted(TVerbose::StaticClass(), registry);
  EXPECT_EQ(cancelled.RunAll(false), 2);
  EXPECT_EQ(cancelled.answered, 1);
  EXPECT_EQ(accepted.RunAll(true), 3);
  EXPECT_EQ(accepted.answered, 1);
}
