// The window that hides icons, on open forms.
#include <QtTest>
#include <QtWidgets>
#include <random>

#include "SessionTest.h"
#include "designintf/ComponentEditor.h"
#include "package/component_editors/pVRXCEForms.h"
#include "package/experts/pVRXHideNonVC.h"
#include "rtl/ClassRegistry.h"
#include "tests/support/Prompted.h"
#include "vcl/Form.h"
#include "vcl/Menu.h"

using namespace ide;

namespace {
const QByteArray Form = R"(object Main: TMain
  ClientHeight = 300
  ClientWidth = 400
  object Button1: TButton
    Left = 8
    Top = 8
    Width = 75
    Height = 25
    TabOrder = 0
  end
  object Timer1: TTimer
    Interval = 250
    Left = 320
    Top = 200
  end
  object Hide1: TVRXHideNonVC
    Left = 40
    Top = 40
  end
  object beep: TTimer
    Left = 80
    Top = 40
  end
  object Menu1: TPopupMenu
    Left = 120
    Top = 40
    object Item1: TMenuItem
      Caption = 'Item'
    end
  end
  object Data: TMysteryData
    Left = 160
    Top = 40
  end
end
)";

class HideWindow : public testing::Test {
 protected:
  HideWindow() {
    RegisterAll();
    [[maybe_unused]] static const bool once = [] {
      RegisterComponents(QStringLiteral("VRX Sys"), {&TVRXHideNonVC::StaticClass()});
      PromiseTelling(TVRXHideNonVC::StaticClass());
      RegisterComponentEditor(TVRXHideNonVC::StaticClass(), VRX_COMPONENT_EDITOR(TVRXHideNonVCEditor));
      return true;
    }();
    session_ = FormSession::FromBytes(Form);
  }
  ~HideWindow() override {
    TVRXHideNonVCfrm::Free();
    session_.reset();
    EXPECT_EQ(prompts_.warned.join(u'\n').toStdString(), expected_.toStdString());
  }

  static TVRXHideNonVCfrm& OpenOn(FormSession& session, const char* name = "Hide1") {
    TComponent* hide = session.GetComponent(QLatin1StringView(name));
    session.Run(QStringLiteral("Editor"), {hide},
                [&] { session.Registry().GetComponentEditor(hide, &session)->ExecuteVerb(0); });
    return *TVRXHideNonVCfrm::Instance();
  }
  TVRXHideNonVCfrm& Open() { return OpenOn(*session_); }
  TVRXHideNonVCfrm& Window() { return *TVRXHideNonVCfrm::Instance(); }
  static void Settle() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

  template <class T = TComponent>
  T& Get(const char* name) {
    return dynamic_cast<T&>(*session_->GetComponent(QLatin1StringView(name)));
  }
  std::string Rows() {
    QStringList rows;
    for (int i = 0; i < Window().cbList->count(); ++i) {
      const QListWidgetItem* item = Window().cbList->item(i);
      rows << (item->isSelected() ? u'*' + item->text() : item->text());
    }
    return rows.join(u'|').toStdString();
  }
  std::string Selected() {
    QStringList names;
    for (const TComponent* c : session_->SelectedComponents()) names << c->Name();
    return names.join(u'+').toStdString();
  }
  void Pick(std::initializer_list<int> rows) {
    QListWidget& list = *Window().cbList;
    Qt::KeyboardModifiers keys;
    for (const int row : rows) {
      QTest::mouseClick(list.viewport(), Qt::LeftButton, keys, list.visualItemRect(list.item(row)).center());
      keys = Qt::ControlModifier;
    }
  }
  static void Press(QPushButton* button) { QTest::mouseClick(button, Qt::LeftButton); }
  std::string State() { return Window().d->text().toStdString(); }
  QByteArray Changes() const { return ChangedLines(Form, session_->Bytes()).join('|'); }
  // One command was recorded; undone, everything is as it was.
  void ExpectOneStep() {
    const std::string rows = Rows(), selected = Selected();
    const QByteArray edited = session_->Bytes();
    ASSERT_TRUE(session_->CanUndo());
    session_->Undo();
    EXPECT_FALSE(session_->CanUndo());
    EXPECT_EQ(session_->Bytes(), Form);
    session_->Redo();
    EXPECT_EQ(session_->Bytes(), edited);
    EXPECT_EQ(Rows(), rows);
    EXPECT_EQ(Selected(), selected);
  }

  ScriptedPrompts prompts_;
  QString expected_;
  std::unique_ptr<FormSession> session_;
};
constexpr char Listed[] = "beep [TTimer]|Data [TMysteryData]|Menu1 [TPopupMenu]|Timer1 [TTimer]";
}  // namespace

TEST_F(HideWindow, TheEditorsOneVerbOpensItOnTheForm) {
  TVRXHideNonVCEditor editor(&Get("Hide1"), session_.get());
  EXPECT_EQ(editor.GetVerbCount(), 1);
  EXPECT_EQ(editor.GetVerb(0), QStringLiteral("Editor"));
  EXPECT_EQ(editor.GetVerb(1), QString());
  editor.ExecuteVerb(1);
  EXPECT_EQ(TVRXHideNonVCfrm::Instance(), nullptr);
  const TVRXHideNonVCfrm& window = Open();
  EXPECT_TRUE(window.isVisible());
  EXPECT_FALSE(window.isModal());
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Main.Hide1"));
  EXPECT_EQ(Rows(), Listed);
  EXPECT_EQ(State(), "---");
  EXPECT_FALSE(session_->CanUndo());
  EXPECT_FALSE(session_->IsModified());
}

TEST_F(HideWindow, ItHasTheTextsAndTheSizeThatWereAgreedOn) {
  TVRXHideNonVCfrm window;
  EXPECT_EQ(window.size(), QSize(368, 310));
  EXPECT_EQ(window.lbl->text(), QStringLiteral("&Nonvisual Components:"));
  EXPECT_EQ(window.lbl->buddy(), window.cbList);
  EXPECT_EQ(window.d->text(), QStringLiteral("0"));
  const std::pair<const QPushButton*, const char*> buttons[] = {
      {window.btHide, "&Hide"},       {window.btShow, "&Show"},     {window.btHideAll, "Hide All"},
      {window.btshowall, "Show All"}, {window.btDelete, "&Delete"}, {window.CloseButton, "&Close"}};
  for (const auto& [button, text] : buttons) EXPECT_EQ(button->text(), QLatin1StringView(text));
  EXPECT_EQ(window.cbList->selectionMode(), QAbstractItemView::ExtendedSelection);
  EXPECT_EQ(window.cbList->frameShape(), QFrame::NoFrame);
  for (const auto& [button, text] : buttons) EXPECT_EQ(button->isEnabled(), button == window.CloseButton);
}

TEST_F(HideWindow, ButtonsFollowTheSelection) {
  const TVRXHideNonVCfrm& w = Open();
  const auto expect = [&](bool selected) {
    for (const QPushButton* b : {w.btHide, w.btShow, w.btDelete}) EXPECT_EQ(b->isEnabled(), selected);
    for (const QPushButton* b : {w.btHideAll, w.btshowall}) EXPECT_TRUE(b->isEnabled());
  };
  expect(false);
  Pick({1});
  expect(true);
  session_->Select({&Get("Button1")});
  expect(false);
  session_->Select({&Get("Button1"), &Get("Menu1")});
  expect(true);
  for (const char* name : {"beep", "Data", "Menu1", "Timer1"}) session_->DeleteComponents({&Get(name)});
  EXPECT_FALSE(w.btHideAll->isEnabled());
  EXPECT_FALSE(w.btshowall->isEnabled());
  EXPECT_FALSE(w.btHide->isEnabled());
}

TEST_F(HideWindow, HidingAndShowingAreOneStepEach) {
  Open();
  Pick({0, 3});
  EXPECT_EQ(Selected(), "beep+Timer1");
  Press(Window().btHide);
  EXPECT_EQ(Changes(),
            "-Left = 320|-Top = 200|+Left = -32768|+Top = -32768|-Left = 80|-Top = 40|+Left = -32768|"
            "+Top = -32768");
  EXPECT_EQ(State(), "[Hidden]");
  ExpectOneStep();
  session_->Undo();
  EXPECT_EQ(State(), "[Visible]");
  EXPECT_EQ(session_->RedoText(), QStringLiteral("Hide 2 components"));
  session_->Redo();
  EXPECT_EQ(State(), "[Hidden]");
  Pick({3});
  Press(Window().btShow);
  EXPECT_EQ(session_->UndoText(), QStringLiteral("Show Timer1"));
  EXPECT_EQ(Get("Timer1").DesignInfo(), 0);
  EXPECT_EQ(Get("beep").DesignInfo(), defHideX);
  EXPECT_EQ(State(), "[Visible]");
}

TEST_F(HideWindow, PositionsAreRememberedInTheFormWhenTheComponentSaysSo) {
  Get<TVRXHideNonVC>("Hide1").Set(TVRXHideNonVC::RememberPosition, true);
  session_->Modified();
  Open();
  Pick({3});
  Press(Window().btHide);
  const int word = DesignWordOf({320, 200});
  EXPECT_TRUE(session_->Bytes().contains("    Tag = " + QByteArray::number(word) + '\n'));
  const auto again = FormSession::FromBytes(session_->Bytes());
  EXPECT_EQ(again->GetComponent(QStringLiteral("Timer1"))->DesignInfo(), defHideX);
  EXPECT_EQ(again->GetComponent(QStringLiteral("Timer1"))->Tag(), word);
  EXPECT_TRUE(
      As<TVRXHideNonVC>(again->GetComponent(QStringLiteral("Hide1")))->Get(TVRXHideNonVC::RememberPosition));
  Press(Window().btShow);
  EXPECT_EQ(Changes(), "+RememberPosition = True");
}

TEST_F(HideWindow, AllAreHiddenAndShownAgain) {
  Open();
  Press(Window().btHideAll);
  EXPECT_EQ(Selected(), "beep+Data+Menu1+Timer1");
  for (const char* name : {"beep", "Data", "Menu1", "Timer1"}) EXPECT_EQ(Get(name).DesignInfo(), defHideX);
  EXPECT_NE(Get("Hide1").DesignInfo(), defHideX);
  EXPECT_EQ(Get("Item1").DesignInfo(), 0);
  ExpectOneStep();
  Press(Window().btHideAll);
  session_->Undo();
  EXPECT_EQ(session_->Bytes(), Form) << "hiding what is hidden is no step";
  session_->Redo();
  Press(Window().btshowall);
  for (const char* name : {"beep", "Data", "Menu1", "Timer1"}) EXPECT_EQ(Get(name).DesignInfo(), 0);
}

TEST_F(HideWindow, TheColorsTellTheState) {
  Open();
  const auto ink = [&] { return Window().d->palette().color(QPalette::WindowText).rgb(); };
  EXPECT_EQ(ink(), qRgb(0, 0, 0));
  Pick({0});
  EXPECT_EQ(State(), "[Visible]");
  EXPECT_EQ(ink(), qRgb(0, 0, 128));
  Press(Window().btHide);
  EXPECT_EQ(ink(), qRgb(128, 0, 0));
}

TEST_F(HideWindow, SelectionGoesBothWays) {
  Open();
  EXPECT_EQ(Selected(), "Main");
  Pick({2});
  EXPECT_EQ(Selected(), "Menu1");
  Pick({0, 2});
  EXPECT_EQ(Selected(), "beep+Menu1");
  EXPECT_EQ(Window().cbList->currentRow(), 2) << "the focus stays where the person put it";
  QTest::keyClick(Window().cbList, Qt::Key_End);
  EXPECT_EQ(Selected(), "Timer1");
  session_->Select({&Get("Data"), &Get("Button1"), &Get("Timer1")});
  EXPECT_EQ(Selected(), "Data+Button1+Timer1") << "the echo is not taken for a choice";
  EXPECT_EQ(Rows(), "beep [TTimer]|*Data [TMysteryData]|Menu1 [TPopupMenu]|*Timer1 [TTimer]");
  EXPECT_EQ(State(), "[Visible]");
  session_->Select({&Get("Hide1")});
  EXPECT_EQ(Rows(), Listed);
  Pick({1, 3});
  session_->Select({&Get("Button1")});
  Window().Activated();
  EXPECT_EQ(Selected(), "Main");
}

TEST_F(HideWindow, NamesFollow) {
  Open();
  Pick({3});
  session_->Rename(Get("Timer1"), QStringLiteral("Alarm"));
  EXPECT_EQ(Rows(), "*Alarm [TTimer]|beep [TTimer]|Data [TMysteryData]|Menu1 [TPopupMenu]");
  EXPECT_EQ(Selected(), "Alarm");
  session_->Rename(session_->Form(), QStringLiteral("Desk"));
  EXPECT_EQ(Window().windowTitle(), QStringLiteral("Desk.Hide1"));
  session_->Rename(Get("Hide1"), QStringLiteral("Cover"));
  EXPECT_EQ(Window().windowTitle(), QStringLiteral("Desk.Cover"));
  session_->Undo();
  session_->Undo();
  session_->Undo();
  EXPECT_EQ(Window().windowTitle(), QStringLiteral("Main.Hide1"));
  EXPECT_EQ(Rows(), "beep [TTimer]|Data [TMysteryData]|Menu1 [TPopupMenu]|*Timer1 [TTimer]");
  EXPECT_EQ(TVRXHideNonVCfrm::GetAddStringName(QStringLiteral("Timer1 [TTimer]")), QStringLiteral("Timer1"));
}

TEST_F(HideWindow, WhatComesIsListedHoweverItComes) {
  Open();
  session_->CreateComponent(TTimer::StaticClass(), nullptr, {});
  EXPECT_EQ(Rows(), std::string("beep [TTimer]|Data [TMysteryData]|Menu1 [TPopupMenu]|Timer1 [TTimer]|"
                                "*Timer2 [TTimer]"));
  session_->Undo();
  EXPECT_EQ(Rows(), Listed);
  // Several at once, as they are pasted.
  const forms::Document other = forms::Document::Parse(
      "object X: TX\n  object B: TTimer\n  end\n  object A: TPopupMenu\n    object I: TMenuItem\n    end\n"
      "  end\nend\n",
      {});
  forms::Object* root = session_->ObjectOf(session_->Form());
  session_->Insert(other, {{other.Root().children[0].get(), root}, {other.Root().children[1].get(), root}});
  EXPECT_EQ(Rows(), "A [TPopupMenu]|B [TTimer]|" + std::string(Listed));
  session_->Undo();
  EXPECT_EQ(Rows(), Listed);
  session_->Redo();
  EXPECT_EQ(Rows(), "A [TPopupMenu]|B [TTimer]|" + std::string(Listed));
  // By plain code, with others going in the same step.
  session_->Run(QStringLiteral("x"), {}, [&] {
    (new TTimer(&session_->Form()))->SetName(QStringLiteral("C"));
    delete &Get("A");
    EXPECT_EQ(Window().cbList->count(), 6);
  });
  EXPECT_EQ(Rows(), "B [TTimer]|" + QByteArray(Listed).replace("|Data", "|C [TTimer]|Data").toStdString());
}

TEST_F(HideWindow, DeletingIsOneStepAndComesBackSelected) {
  Open();
  Pick({0, 2});
  Press(Window().btDelete);
  EXPECT_EQ(Rows(), "Data [TMysteryData]|Timer1 [TTimer]");
  EXPECT_EQ(Selected(), "Main");
  EXPECT_EQ(session_->GetComponent(QStringLiteral("Item1")), nullptr);
  ExpectOneStep();
  session_->Undo();
  EXPECT_EQ(Rows(), "*beep [TTimer]|Data [TMysteryData]|*Menu1 [TPopupMenu]|Timer1 [TTimer]");
  EXPECT_EQ(QString::fromStdString(Selected()).split(u'+').size(), 2);
  Window().cbList->setFocus();
  QTest::keyClick(Window().cbList, Qt::Key_Delete);
  EXPECT_EQ(Rows(), "Data [TMysteryData]|Timer1 [TTimer]");
}

TEST_F(HideWindow, WhatIsDeletedElsewhereGoesFromTheList) {
  Open();
  session_->Select({&Get("Button1"), &Get("Timer1"), &Get("beep")});
  session_->Run(QStringLiteral("x"), {}, [&] { delete &Get("beep"); });
  EXPECT_EQ(Rows(), "Data [TMysteryData]|Menu1 [TPopupMenu]|*Timer1 [TTimer]");
  EXPECT_EQ(Selected(), "Button1+Timer1") << "what else is selected stays so";
}

TEST_F(HideWindow, DeletingTheComponentClosesItAndTheNextOpeningMakesAnother) {
  const QPointer<TVRXHideNonVCfrm> window = &Open();
  session_->DeleteComponents({&Get("Hide1")});
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(TVRXHideNonVCfrm::Instance(), nullptr);
  Settle();
  EXPECT_TRUE(window.isNull());
  session_->Undo();
  EXPECT_EQ(Open().windowTitle(), QStringLiteral("Main.Hide1"));
  EXPECT_EQ(Rows(), Listed);
}

TEST_F(HideWindow, ItGoesAtOnceWithTheComponent) {
  const QPointer<TVRXHideNonVCfrm> window = &Open();
  session_->Run(QStringLiteral("x"), {}, [&] {
    session_->DeleteComponents({&Get("Hide1")});
    EXPECT_EQ(TVRXHideNonVCfrm::Instance(), nullptr);
    EXPECT_FALSE(window->isVisible());
  });
}

TEST_F(HideWindow, WhatIsMadeAndSelectedInOneStepIsSelectedInTheList) {
  Open();
  session_->Run(QStringLiteral("x"), {}, [&] {
    session_->CreateComponent(TTimer::StaticClass(), nullptr, {});
    session_->CreateComponent(TTimer::StaticClass(), nullptr, {});
    session_->Select({&Get("Timer2"), &Get("beep")});
  });
  EXPECT_EQ(Rows(),
            "*beep [TTimer]|Data [TMysteryData]|Menu1 [TPopupMenu]|Timer1 [TTimer]|*Timer2 [TTimer]|"
            "Timer3 [TTimer]");
}

TEST_F(HideWindow, TheComponentThatGoesWhileAnotherComesClosesItToo) {
  const QPointer<TVRXHideNonVCfrm> window = &Open();
  session_->Run(QStringLiteral("x"), {}, [&] {
    new TTimer(&session_->Form());
    delete &Get("Hide1");
  });
  Settle();
  EXPECT_TRUE(window.isNull());
}

TEST_F(HideWindow, CloseOnlyHidesItAndOpeningShowsTheSame) {
  TVRXHideNonVCfrm* window = &Open();
  Press(window->CloseButton);
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(TVRXHideNonVCfrm::Instance(), window);
  session_->DeleteComponents({&Get("beep")});
  session_->CreateComponent(TTimer::StaticClass(), nullptr, {});
  session_->Rename(Get("Hide1"), QStringLiteral("Cover"));
  EXPECT_EQ(&OpenOn(*session_, "Cover"), window);
  EXPECT_EQ(window->windowTitle(), QStringLiteral("Main.Cover"));
  EXPECT_EQ(Rows(), "Data [TMysteryData]|Menu1 [TPopupMenu]|Timer1 [TTimer]|Timer2 [TTimer]");
  QTest::keyClick(window->cbList, Qt::Key_Escape);
  EXPECT_FALSE(window->isVisible());
}

TEST_F(HideWindow, ItIsFreedWithItsFormAndWithNoOther) {
  const QPointer<TVRXHideNonVCfrm> window = &Open();
  {
    Pick({1});
    const auto other = FormSession::FromBytes(Form);
    other->Select({other->GetComponent(QStringLiteral("beep"))});
    other->Rename(*other->GetComponent(QStringLiteral("beep")), QStringLiteral("Bell"));
    EXPECT_EQ(Rows(), "beep [TTimer]|*Data [TMysteryData]|Menu1 [TPopupMenu]|Timer1 [TTimer]");
    EXPECT_EQ(&OpenOn(*other), window.data()) << "there is one window";
    EXPECT_TRUE(Rows().starts_with("Bell"));
    EXPECT_EQ(Get<TVRXHideNonVC>("Hide1").NewComponentHandler(), nullptr);
    session_->Rename(Get("beep"), QStringLiteral("Horn"));
    EXPECT_TRUE(Rows().starts_with("Bell"));
    session_->Select({&Get("Timer1")});
    EXPECT_FALSE(QString::fromStdString(Rows()).contains(u'*'));
    OpenOn(*session_);
  }
  EXPECT_TRUE(window && window->isVisible());
  EXPECT_EQ(Rows(), "Data [TMysteryData]|Horn [TTimer]|Menu1 [TPopupMenu]|Timer1 [TTimer]");
  session_ = FormSession::FromBytes(Form);
  Settle();
  EXPECT_TRUE(window.isNull());
  EXPECT_EQ(TVRXHideNonVCfrm::Instance(), nullptr);
}

TEST_F(HideWindow, ComponentsThatAreMadeAnewAreFoundAgain) {
  Open();
  Pick({2});
  session_->Rebuild();
  EXPECT_EQ(Window().Component(), &Get("Hide1"));
  EXPECT_EQ(Rows(), "beep [TTimer]|Data [TMysteryData]|*Menu1 [TPopupMenu]|Timer1 [TTimer]");
  Press(Window().btHide);
  EXPECT_EQ(Get("Menu1").DesignInfo(), defHideX);
}

TEST_F(HideWindow, WhatCannotBeDeletedStaysAndIsToldOf) {
  const QByteArray child =
      "inherited Main: TMain\n  inherited beep: TTimer\n    Interval = 3\n  end\n"
      "  object Hide1: TVRXHideNonVC\n  end\nend\n";
  session_ = FormSession::FromBytes(child);
  Open();
  Pick({0});
  Press(Window().btDelete);
  EXPECT_EQ(Rows(), "*beep [TTimer]");
  EXPECT_EQ(session_->Bytes(), child);
  expected_ = QStringLiteral("beep comes from the ancestor form and cannot be deleted here.");
}

TEST_F(HideWindow, TheMenuHasTheVerbsOfTheEntrysOwnEditor) {
  Open();
  QMenu& menu = *Window().popMenu;
  const auto popUp = [&] {
    emit Window().cbList->customContextMenuRequested(QPoint(3, 3));
    EXPECT_NE(menu.isVisible(), menu.isEmpty());
    QStringList texts;
    for (const QAction* action : menu.actions())
      texts << (action->isSeparator() ? QStringLiteral("-") : action->text());
    menu.close();
    return texts;
  };
  EXPECT_EQ(popUp(), QStringList());
  EXPECT_EQ(popUp(), QStringList()) << "an empty menu is not in the way";
  Pick({2});
  const auto editor = session_->Registry().GetComponentEditor(&Get("Menu1"), session_.get());
  QStringList verbs;
  for (int i = 0; i < editor->GetVerbCount(); ++i) verbs << editor->GetVerb(i);
  ASSERT_FALSE(verbs.isEmpty());
  EXPECT_EQ(popUp(), verbs);
  for (int i = 0; i < verbs.size(); ++i) EXPECT_EQ(menu.actions()[i]->data().toInt(), i);
  EXPECT_EQ(popUp(), verbs) << "old items are gone";
  const auto before = QApplication::topLevelWidgets().size();
  menu.actions()[0]->trigger();
  EXPECT_GT(QApplication::topLevelWidgets().size(), before) << "the menu's own window";
}

TEST_F(HideWindow, LettersOfItsButtonsAreItsOwnAlsoWhereTheMainWindowHasThem) {
  Open();
  Pick({0});
  QWidget* list = Window().cbList;
  const auto taken = [&](Qt::Key key) {
    QKeyEvent event(QEvent::ShortcutOverride, key, Qt::AltModifier);
    event.ignore();
    QApplication::sendEvent(list, &event);
    return event.isAccepted();
  };
  EXPECT_TRUE(taken(Qt::Key_H));
  EXPECT_FALSE(taken(Qt::Key_F));
  const QByteArray before = session_->Bytes();
  QTest::keyClick(list, Qt::Key_H, Qt::AltModifier);
  const QByteArray hidden = session_->Bytes();
  EXPECT_NE(hidden, before);
  QTest::keyClick(Window().btHide, Qt::Key_S, Qt::AltModifier);
  EXPECT_NE(session_->Bytes(), hidden);
  QTest::keyClick(list, Qt::Key_C, Qt::AltModifier);
  EXPECT_FALSE(Window().isVisible());
}

TEST_F(HideWindow, StaysWhereItWasMovedTo) {
  Open();
  const QPoint moved = Window().pos() + QPoint(17, 23);
  Window().move(moved);
  Window().close();
  Open();
  EXPECT_EQ(Window().pos(), moved);
}

TEST_F(HideWindow, EditActionsSelectAndDelete) {
  TVRXHideNonVCfrm& window = Open();
  EXPECT_EQ(window.GetEditState(), (TEditStates{TEditState::esCanSelectAll}));
  window.EditAction(TEditAction::eaSelectAll);
  EXPECT_EQ(Selected(), "beep+Data+Menu1+Timer1");
  EXPECT_EQ(window.GetEditState(), (TEditStates{TEditState::esCanSelectAll, TEditState::esCanDelete}));
  window.EditAction(TEditAction::eaDelete);
  EXPECT_EQ(Rows(), "");
  EXPECT_EQ(window.GetEditState(), TEditStates());
  EXPECT_EQ(State(), "---");
}

// --- Anything in any order

namespace {
class HideWindowRandom : public HideWindow, public testing::WithParamInterface<unsigned> {
 protected:
  std::size_t Below(std::size_t n) { return random_() % n; }
  // What the list must show, from the form alone.
  std::string Wanted() {
    std::vector<std::pair<QString, TComponent*>> rows;
    for (TComponent* c : session_->Form().Components())
      if (!As<TControl>(c) && c != Window().Component() && session_->ObjectOf(*c)->parent &&
          !session_->ObjectOf(*c)->parent->parent)
        rows.emplace_back(QStringLiteral("%1 [%2]").arg(c->Name(), QString::fromUtf8(c->StreamClassName())),
                          c);
    std::sort(rows.begin(), rows.end(), [](const auto& a, const auto& b) {
      const int order = QString::compare(a.first, b.first, Qt::CaseInsensitive);
      return order ? order < 0 : a.first < b.first;
    });
    QStringList texts;
    for (const auto& [text, c] : rows) texts << (session_->IsSelected(*c) ? u'*' + text : text);
    return texts.join(u'|').toStdString();
  }
  void ExpectInStep() {
    EXPECT_EQ(Rows(), Wanted());
    EXPECT_EQ(Window().windowTitle(), session_->Form().Name() + u'.' + Window().Component()->Name());
    EXPECT_EQ(Window().btHide->isEnabled(), QString::fromStdString(Rows()).contains(u'*'));
    EXPECT_EQ(Window().btHideAll->isEnabled(), Window().cbList->count() > 0);
    const QListWidgetItem* focused = Window().cbList->currentItem();
    std::string state = "---";
    if (focused) {
      const TComponent* c = session_->GetComponent(TVRXHideNonVCfrm::GetAddStringName(focused->text()));
      state = c->DesignInfo() == defHideX ? "[Hidden]" : "[Visible]";
    }
    EXPECT_EQ(State(), state);
    EXPECT_EQ(StateOf(*session_), StateOf(session_->Bytes()));
  }
  void Notify(FormSession& other) {
    const auto all = session_->AllComponents();
    TComponent* c = all[Below(all.size())];
    TComponent* stranger = other.GetComponent(QStringLiteral("beep"));
    NotifyDesign([&, what = Below(9)](IDesignNotification& n) {
      if (what == 0) n.ItemInserted(session_.get(), c);
      if (what == 1) n.ItemDeleted(&other, c);
      if (what == 2) n.ItemDeleted(session_.get(), stranger);
      if (what == 3) n.ItemsModified(&other);
      if (what == 4) n.ItemsModified(session_.get());
      if (what == 5) n.DesignerOpened(&other);
      if (what == 6) n.DesignerClosed(&other);
      if (what == 7) n.SelectionChanged(&other, {stranger, c});
      if (what == 8) n.SelectionChanged(session_.get(), session_->GetSelections());
    });
  }
  void Step(FormSession& other) {
    const auto all = session_->AllComponents();
    TComponent* c = all[Below(all.size())];
    const bool own = c == Window().Component();
    const bool root = c == session_->GetRoot();
    const TVRXHideNonVCfrm& w = Window();
    switch (Below(16)) {
      case 0:
      case 1:
        return session_->Undo();
      case 2:
        return session_->Redo();
      case 3:
        if (!root && !own && all.size() > 4) session_->DeleteComponents({c});
        return;
      case 4:
        session_->CreateComponent(Below(2) ? TTimer::StaticClass() : TPopupMenu::StaticClass(), nullptr, {});
        return;
      case 5:
        return session_->Rename(*c, QStringLiteral("Name%1").arg(Below(100000)));
      case 6: {
        std::vector<TComponent*> some;
        for (TComponent* one : all)
          if (Below(3) == 0) some.push_back(one);
        return session_->Select(some);
      }
      case 7:
        return session_->Rebuild();
      case 8:
        if (w.cbList->count() > 0)
          Pick({static_cast<int>(Below(static_cast<std::size_t>(w.cbList->count())))});
        return;
      case 9:
        return Press(Below(2) ? w.btHide : w.btShow);
      case 10:
        return Press(Below(2) ? w.btHideAll : w.btshowall);
      case 11:
        if (Below(3) == 0) Press(w.btDelete);
        return;
      case 12:
        return session_->Run(QStringLiteral("x"), {}, [&] {
          auto* timer = new TTimer(&session_->Form());
          if (!root && !own && !c->GetParentComponent()->GetParentComponent()) delete c;
          if (Below(2)) delete timer;
        });
      case 13:
        try {
          session_->Run(QStringLiteral("x"), {}, [&] {
            new TTimer(&session_->Form());
            if (!root && !own && !c->GetParentComponent()->GetParentComponent()) delete c;
            throw Exception(QStringLiteral("no"));
          });
        } catch (const Exception&) {
        }
        return;
      default:
        return Notify(other);
    }
  }
  std::mt19937 random_{GetParam()};
};
}  // namespace

TEST_P(HideWindowRandom, TheWindowTheFormAndItsFileAgree) {
  const auto other = FormSession::FromBytes(Form);
  Open();
  for (int step = 0; step < 150; ++step) {
    Step(*other);
    ExpectInStep();
    ASSERT_FALSE(HasFailure()) << "step " << step;
  }
  while (session_->CanUndo()) session_->Undo();
  EXPECT_EQ(session_->Bytes(), Form);
  ExpectInStep();
}
INSTANTIATE_TEST_SUITE_P(Seeds, HideWindowRandom, testing::Range(1u, 21u));
