// An open form beyond single commands: errors, saving, unknown classes, selection, listeners.
#include "forms/FormFile.h"
#include "forms/SafeFile.h"
#include "ide/Unknown.h"
#include "tests/ide/SessionTest.h"

#include <QTemporaryDir>

using namespace ide;

namespace {
struct Stop : std::runtime_error {
  Stop() : std::runtime_error("stop") {}
};

class Recorder : public IDesignNotification {
 public:
  Recorder() { RegisterDesignNotification(this); }
  void ItemInserted(IDesigner*, TPersistent* p) override { Note("inserted", p); }
  void ItemDeleted(IDesigner*, TPersistent* p) override { Note("deleted", p); }
  void ItemsModified(IDesigner*) override { log << QStringLiteral("modified"); }
  void DesignerOpened(IDesigner*) override { log << QStringLiteral("opened"); }
  void DesignerClosed(IDesigner*) override { log << QStringLiteral("closed"); }
  void SelectionChanged(IDesigner*, const TDesignerSelections& list) override {
    QStringList names;
    for (TPersistent* p : list) names << As<TComponent>(p)->Name();
    log << QStringLiteral("selected ") + names.join(u'+');
  }
  QString Take() { return std::exchange(log, {}).join(u','); }
  QStringList log;

 private:
  void Note(const char* what, TPersistent* p) {
    log << QStringLiteral("%1 %2").arg(QLatin1StringView(what), As<TComponent>(p)->Name());
  }
};

QStringList NamesOf(const std::vector<TComponent*>& components) {
  QStringList names;
  for (const TComponent* c : components) names << c->Name();
  return names;
}

QByteArray FileBytes(const QString& name) {
  QFile file(name);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}
}  // namespace

// --- Actions that fail

TEST_F(SessionTest, AnActionThatThrowsIsRolledBackCompletely) {
  session_->Select({&Get("Label1"), &Get("Led")});
  const auto action = [&] {
    Get("Button1").SetCaption(QStringLiteral("changed"));
    Get("Panel1").SetAlign(TAlign::alTop);
    Get<TVRXLEDLabel>("Led").LED()->SetSize(2, 9);
    session_->Rename(Get("Button1"), QStringLiteral("Other"));
    session_->CreateComponent(TButton::StaticClass(), &Get("Panel1"), QRect(0, 0, 20, 20));
    session_->CreateComponent(TTimer::StaticClass(), nullptr, {});
    session_->DeleteComponents({&Get("Inner"), session_->GetComponent(QStringLiteral("Mystery"))});
    throw Stop();
  };
  EXPECT_THROW(session_->Run(QStringLiteral("Fails"), {&Get("Button1"), &Get("Panel1"), &Get("Led")}, action),
               Stop);
  EXPECT_EQ(session_->Bytes(), Sample);
  EXPECT_EQ(StateOf(*session_), state_);
  EXPECT_FALSE(session_->CanUndo());
  EXPECT_FALSE(session_->IsModified());
  EXPECT_EQ(NamesOf(session_->SelectedComponents()).join(u'+'), QStringLiteral("Label1+Led"));
}

TEST_F(SessionTest, AFailedActionKeepsWhatWasDoneBefore) {
  auto& button = Get("Button1");
  session_->Run(QStringLiteral("First"), {&button}, [&] { button.SetCaption(QStringLiteral("one")); });
  const QByteArray bytes = session_->Bytes();
  EXPECT_THROW(session_->Run(QStringLiteral("Second"), {&button},
                             [&] {
                               button.SetCaption(QStringLiteral("two"));
                               throw Stop();
                             }),
               Stop);
  EXPECT_EQ(session_->Bytes(), bytes);
  EXPECT_EQ(button.Caption(), QStringLiteral("one"));
  EXPECT_EQ(session_->UndoText(), QStringLiteral("First"));
  session_->Undo();
  EXPECT_EQ(session_->Bytes(), Sample);
}

TEST_F(SessionTest, AFailedActionKeepsWhatCanBeRedone) {
  auto& button = Get("Button1");
  session_->Run(QStringLiteral("First"), {&button}, [&] { button.SetCaption(QStringLiteral("one")); });
  session_->Undo();
  EXPECT_THROW(session_->Run(QStringLiteral("Second"), {&button},
                             [&] {
                               button.SetCaption(QStringLiteral("two"));
                               throw Stop();
                             }),
               Stop);
  EXPECT_EQ(session_->RedoText(), QStringLiteral("First"));
}

TEST_F(SessionTest, ACreatedComponentThatFailsIsNotSelected) {
  EXPECT_THROW(session_->Run(QStringLiteral("Fails"), {},
                             [&] {
                               session_->CreateComponent(TButton::StaticClass(), nullptr, QRect(0, 0, 9, 9));
                               throw Stop();
                             }),
               Stop);
  EXPECT_EQ(NamesOf(session_->SelectedComponents()), QStringList(QStringLiteral("Main")));
}

TEST_F(SessionTest, TheSelectionIsNeverEmptyWhileListenersHearOfAnUndo) {
  session_->CreateComponent(TButton::StaticClass(), nullptr, QRect(0, 0, 9, 9));
  bool heard = false;
  QObject::connect(session_.get(), &FormSession::Changed, session_.get(), [&] {
    heard = true;
    EXPECT_FALSE(session_->SelectedComponents().empty());
  });
  session_->Undo();
  EXPECT_TRUE(heard);
}

// --- The modified mark

TEST_F(SessionTest, TheModifiedMarkFollowsTheSavedState) {
  const QTemporaryDir folder;
  auto& button = Get("Button1");
  const auto caption = [&](const char* text) {
    session_->Run(QStringLiteral("Change"), {&button}, [&] { button.SetCaption(QString::fromLatin1(text)); });
  };
  caption("a");
  EXPECT_TRUE(session_->IsModified());
  session_->Undo();
  EXPECT_FALSE(session_->IsModified());
  session_->Redo();
  EXPECT_TRUE(session_->IsModified());
  session_->SaveAs(folder.filePath(QStringLiteral("form.dfm")));
  EXPECT_FALSE(session_->IsModified());
  session_->Undo();
  EXPECT_TRUE(session_->IsModified());
  session_->Redo();
  EXPECT_FALSE(session_->IsModified());
  session_->Undo();
  caption("b");  // the saved state is out of reach now
  EXPECT_TRUE(session_->IsModified());
  session_->Undo();
  EXPECT_TRUE(session_->IsModified());
  session_->Redo();
  EXPECT_TRUE(session_->IsModified());
  session_->Save();
  EXPECT_FALSE(session_->IsModified());
}

TEST_F(SessionTest, SavingWritesTheFormsBytes) {
  const QTemporaryDir folder;
  const QString name = folder.filePath(QStringLiteral("form.dfm"));
  session_->SaveAs(name);
  EXPECT_EQ(FileBytes(name), Sample);
  session_->Rename(Get("Led"), QStringLiteral("Clock"));
  session_->Save();
  EXPECT_EQ(FileBytes(name), session_->Bytes());
  EXPECT_EQ(session_->FileName(), name);
  EXPECT_EQ(StateOf(*FormSession::Open(name)), StateOf(*session_));
}

TEST_F(SessionTest, SaveReplacesOnlyWhatWasReadOrWrittenHere) {
  QTemporaryDir folder;
  const QString name = folder.filePath(QStringLiteral("form.dfm"));
  const auto put = [&](const QByteArray& bytes) {
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  };
  session_->SaveAs(name);
  EXPECT_EQ(session_->StateOnDisk(), DiskState::Same);
  put("theirs");
  EXPECT_EQ(session_->StateOnDisk(), DiskState::Changed);
  EXPECT_THROW(session_->Save(), forms::EFileChanged);
  EXPECT_EQ(forms::ReadFile(name), "theirs");
  session_->AcceptOnDisk("theirs");
  session_->Save();
  EXPECT_EQ(forms::ReadFile(name), session_->Bytes());
  ASSERT_TRUE(QFile::remove(name));
  EXPECT_EQ(session_->StateOnDisk(), DiskState::Gone);
  EXPECT_THROW(session_->Save(), forms::EFileChanged);
  const auto opened = (session_->SaveAs(name), FormSession::Open(name));
  EXPECT_EQ(opened->StateOnDisk(), DiskState::Same);
  put("theirs");
  EXPECT_THROW(opened->Save(), forms::EFileChanged);
}

TEST_F(SessionTest, ASaveThatFailsKeepsOldFileAndModifiedMark) {
  const QTemporaryDir folder;
  const QString name = folder.filePath(QStringLiteral("form.dfm"));
  session_->SaveAs(name);
  session_->Rename(Get("Led"), QStringLiteral("Clock"));
  EXPECT_THROW(session_->SaveAs(folder.filePath(QStringLiteral("gone/form.dfm"))), Exception);
  EXPECT_TRUE(session_->IsModified());
  EXPECT_EQ(session_->FileName(), name);
  EXPECT_EQ(FileBytes(name), Sample);
  EXPECT_THROW(session_->SaveAs(folder.path()), Exception);
  EXPECT_TRUE(session_->IsModified());
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList(QStringLiteral("form.dfm")));
}

TEST_F(SessionTest, ASaveIntoARemovedFolderCanBeRepeatedElsewhere) {
  const QTemporaryDir folder;
  ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("sub")));
  session_->SaveAs(folder.filePath(QStringLiteral("sub/form.dfm")));
  session_->Rename(Get("Led"), QStringLiteral("Clock"));
  ASSERT_TRUE(QDir(folder.filePath(QStringLiteral("sub"))).removeRecursively());
  EXPECT_THROW(session_->Save(), Exception);
  EXPECT_TRUE(session_->IsModified());
  session_->SaveAs(folder.filePath(QStringLiteral("other.dfm")));
  EXPECT_FALSE(session_->IsModified());
}

// --- Inherited and unknown

TEST_F(SessionTest, InheritedComponentsCannotBeDeleted) {
  const QByteArray bytes =
      "inherited Child: TChild\n  inherited Base: TButton\n    Caption = 'x'\n  end\n  object Own: TButton\n "
      "   Left = 1\n"
      "  end\nend\n";
  session_ = FormSession::FromBytes(bytes);
  EXPECT_THROW(session_->DeleteComponents({&Get("Own"), &Get("Base")}), EComponentError);
  EXPECT_EQ(session_->Bytes(), bytes);
  EXPECT_NE(session_->GetComponent(QStringLiteral("Own")), nullptr);
  session_->DeleteComponents({&Get("Own")});
  EXPECT_EQ(session_->GetComponent(QStringLiteral("Own")), nullptr);
}

TEST_F(SessionTest, UnknownClassesSurviveEverything) {
  auto& mystery = Get("Mystery");
  EXPECT_TRUE(mystery.InheritsFrom(TUnknownControl::StaticClass()));
  session_->Run(QStringLiteral("Move"), {&mystery}, [&] { mystery.SetBounds(0, 140, 50, 50); });
  EXPECT_EQ(Changes(), "-Left = 240|+Left = 0");
  session_->Rename(mystery, QStringLiteral("Riddle"));
  session_->DeleteComponents({&Get("Panel1")});
  session_->Rebuild();
  EXPECT_TRUE(session_->Bytes().contains("      item\n        Text = 'two'\n      end>"));
  EXPECT_TRUE(session_->Bytes().contains("      Deep = (\n        1\n        2.500000000000000000)"));
  EXPECT_TRUE(session_->Bytes().contains("  Strange.Property = {\n    00FF}"));
  while (session_->CanUndo()) session_->Undo();
  EXPECT_EQ(session_->Bytes(), Sample);
}

// --- Rebuild and selection

TEST_F(SessionTest, RebuildKeepsSelectionHistoryAndBytes) {
  session_->Rename(Get("Led"), QStringLiteral("Clock"));
  session_->Select({&Get("Inner"), session_->GetComponent(QStringLiteral("Timer1"))});
  const std::string state = StateOf(*session_);
  session_->Rebuild();
  EXPECT_EQ(NamesOf(session_->SelectedComponents()).join(u'+'), QStringLiteral("Inner+Timer1"));
  EXPECT_EQ(StateOf(*session_), state);
  session_->Undo();
  EXPECT_EQ(session_->Bytes(), Sample);
  EXPECT_EQ(StateOf(*session_), state_);
}

TEST_F(SessionTest, TheFormIsSelectedAloneAndWhenNothingElseIs) {
  session_->Select({&session_->Form(), &Get("Led")});
  EXPECT_EQ(NamesOf(session_->SelectedComponents()), QStringList(QStringLiteral("Led")));
  session_->Select({});
  EXPECT_EQ(NamesOf(session_->SelectedComponents()), QStringList(QStringLiteral("Main")));
}

TEST_F(SessionTest, UndoAndRedoBringTheirSelectionsBack) {
  session_->Select({&Get("Led")});
  session_->CreateComponent(TButton::StaticClass(), nullptr, QRect(0, 0, 20, 20));
  session_->Undo();
  EXPECT_EQ(NamesOf(session_->SelectedComponents()), QStringList(QStringLiteral("Led")));
  session_->Redo();
  EXPECT_EQ(NamesOf(session_->SelectedComponents()), QStringList(QStringLiteral("Button2")));
  session_->DeleteSelection();
  EXPECT_EQ(NamesOf(session_->SelectedComponents()), QStringList(QStringLiteral("Main")));
  session_->Undo();
  EXPECT_EQ(NamesOf(session_->SelectedComponents()), QStringList(QStringLiteral("Button2")));
}

// --- Listeners and design windows

TEST_F(SessionTest, ListenersHearWhatHappens) {
  Recorder recorder;
  session_->Select({&Get("Led")});
  EXPECT_EQ(recorder.Take(), QStringLiteral("selected Led"));
  session_->CreateComponent(TTimer::StaticClass(), nullptr, {});
  EXPECT_TRUE(recorder.Take().startsWith(QStringLiteral("inserted Timer2,modified")));
  session_->DeleteComponents({&Get("Panel1")});
  const QString deleted = recorder.Take();
  for (const char* name : {"Panel1", "Inner", "InnerLabel"})
    EXPECT_EQ(deleted.count(QStringLiteral("deleted %1,").arg(QLatin1StringView(name))), 1) << name;
  EXPECT_TRUE(deleted.contains(QStringLiteral("modified")));
  session_->Run(QStringLiteral("Change"), {&Get("Led")}, [&] { Get("Led").SetTag(3); });
  EXPECT_EQ(recorder.Take(), QStringLiteral("modified"));
  auto other = FormSession::FromBytes("object O: TO\nend\n");
  EXPECT_EQ(recorder.Take(), QStringLiteral("opened"));
  other.reset();
  EXPECT_EQ(recorder.Take(), QStringLiteral("closed"));
}

TEST_F(SessionTest, ListenersHearOfTheNewSelectionAfterCreatingAndDeleting) {
  Recorder recorder;
  session_->CreateComponent(TTimer::StaticClass(), nullptr, {});
  EXPECT_TRUE(recorder.Take().contains(QStringLiteral("selected Timer2")));
  session_->DeleteSelection();
  EXPECT_TRUE(recorder.Take().contains(QStringLiteral("selected Main")));
}

TEST_F(SessionTest, UndoingADeleteInsertsWithAllItsChildren) {
  session_->DeleteComponents({&Get("Panel1")});
  Recorder recorder;
  session_->Undo();
  EXPECT_TRUE(recorder.Take().contains(QStringLiteral("inserted Panel1")));
}

TEST_F(SessionTest, AListenerMayLeaveDuringANotification) {
  struct Leaver : IDesignNotification {
    Leaver() { RegisterDesignNotification(this); }
    void ItemsModified(IDesigner*) override {
      ++calls;
      UnregisterDesignNotification(this);
    }
    int calls = 0;
  } leaver;
  for (const int tag : {1, 2})
    session_->Run(QStringLiteral("Change"), {&Get("Led")}, [&] { Get("Led").SetTag(tag); });
  EXPECT_EQ(leaver.calls, 1);
}

TEST_F(SessionTest, AnUnannouncedChangeBecomesACommand) {
  auto& timer = Get<TTimer>("Timer1");
  timer.SetTag(7);
  timer.SetDesignInfo(DesignWordOf({-20, 30}));
  Get("Button1").SetCaption(QStringLiteral("told late"));
  session_->Modified();
  EXPECT_EQ(Changes(),
            "-Caption = 'Go'|+Caption = 'told late'|+Tag = 7|-Left = 320|-Top = 200|+Left = -20|+Top = 30");
  ExpectUndoable();
}

TEST_F(SessionTest, ModifiedWithoutAChangeRecordsNothing) {
  session_->Modified();
  EXPECT_FALSE(session_->CanUndo());
  EXPECT_EQ(session_->Bytes(), Sample);
}

TEST_F(SessionTest, ModifiedInsideACommandJoinsIt) {
  auto& led = Get("Led");
  session_->Run(QStringLiteral("Edit"), {&led}, [&] {
    led.SetTag(1);
    session_->Modified();
    led.SetCaption(QStringLiteral("x"));
  });
  EXPECT_EQ(session_->UndoText(), QStringLiteral("Edit"));
  ExpectUndoable();
}

// --- What editors ask

TEST_F(SessionTest, NamesAndMethodsAreFound) {
  EXPECT_EQ(session_->UniqueName(QStringLiteral("TButton")), QStringLiteral("Button2"));
  EXPECT_EQ(session_->UniqueName(QStringLiteral("TVRXLEDLabel")), QStringLiteral("VRXLEDLabel1"));
  QStringList buttons, handlers;
  session_->GetComponentNames(TButton::StaticClass(), [&](const QString& n) { buttons << n; });
  EXPECT_EQ(buttons.join(u' '), QStringLiteral("Inner Button1"));
  session_->GetMethods(*TButton::StaticClass().GetProp("OnClick").PropType,
                       [&](const QString& n) { handlers << n; });
  handlers.sort();
  EXPECT_EQ(handlers.join(u' '), QStringLiteral("Button1Click FormCreate InnerClick Timer1Timer"));
  EXPECT_TRUE(session_->MethodExists(QStringLiteral("INNERCLICK")));
  EXPECT_FALSE(session_->MethodExists(QStringLiteral("Inner")));
}

TEST_F(SessionTest, TheDefaultActionMakesAHandler) {
  session_->Edit(Get("Label1"));
  EXPECT_EQ(Changes(), "+OnClick = Label1Click");
  ExpectUndoable();
}
