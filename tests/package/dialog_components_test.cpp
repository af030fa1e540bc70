// Dialogs that a program opens: what they show, what they keep, and what their editors offer.
#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

#include "library/components/EntryDialogs.h"
#include "library/components/TellingDialogs.h"
#include "package/component_editors/pVRXCEDialogs.h"
#include "rtl/Clock.h"
#include "tests/package/ListEditorTest.h"
#include "tests/support/AnsweredDialog.h"
#include "vcl/Calendar.h"

namespace {
constexpr int Ok = QDialog::Accepted, Cancelled = QDialog::Rejected;
}  // namespace

TEST(DialogComponents, AreConfirmedByOkAndCancelledByCancel) {
  TVRXInputDlg input(nullptr);
  input.Set(TVRXBaseDialog::Caption, QStringLiteral("Who"));
  input.Set(TVRXBaseDialog::Prompt, QStringLiteral("Your &name:"));
  for (const bool ok : {true, false}) {
    const TVRXDialogAnswers answers([&](QDialog& dialog) {
      EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Who"));
      EXPECT_EQ(In<QLabel>(dialog, "prompt").text(), QStringLiteral("Your &name:"));
      EXPECT_EQ(In<QLabel>(dialog, "prompt").buddy(), &In<QLineEdit>(dialog, "value"));
      auto* buttons = dialog.findChild<QDialogButtonBox*>();
      dialog.show();
      buttons->button(ok ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel)->click();
      return dialog.result();
    });
    EXPECT_EQ(input.Execute(), ok);
  }
}

TEST(DialogComponents, ALineIsKeptWhenItIsConfirmed) {
  TVRXInputDlg input(nullptr);
  input.Set(TVRXInputDlg::Value, QStringLiteral("before"));
  input.Set(TVRXInputDlg::MaxLength, 7);
  input.Set(TVRXInputDlg::Password, true);
  const auto type = [](QDialog& dialog) {
    auto& edit = In<QLineEdit>(dialog, "value");
    EXPECT_EQ(edit.text(), QStringLiteral("before"));
    EXPECT_EQ(edit.maxLength(), 7);
    EXPECT_EQ(edit.echoMode(), QLineEdit::Password);
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Input"));
    edit.setText(QStringLiteral("after"));
  };
  EXPECT_FALSE(Answered(input, Cancelled, type));
  EXPECT_EQ(input.Get(TVRXInputDlg::Value), QStringLiteral("before"));
  {
    const TVRXDialogAnswers answers([&](QDialog& dialog) {
      type(dialog);
      return Ok;
    });
    input.Preview();
  }
  EXPECT_EQ(input.Get(TVRXInputDlg::Value), QStringLiteral("before")) << "a preview keeps nothing";
  EXPECT_TRUE(Answered(input, Ok, type));
  EXPECT_EQ(input.Get(TVRXInputDlg::Value), QStringLiteral("after"));
}

TEST(DialogComponents, ATextKeepsItsLines) {
  TVRXTextEditDlg text(nullptr);
  const QStringList lines{QStringLiteral("one"), QString(), QStringLiteral("two\nhalves")};
  text.Get(TVRXTextEditDlg::Lines)->SetLines(lines);
  text.Set(TVRXTextEditDlg::WordWrap, false);
  EXPECT_TRUE(Answered(text, Ok, [](QDialog& dialog) {
    EXPECT_EQ(In<QPlainTextEdit>(dialog, "text").lineWrapMode(), QPlainTextEdit::NoWrap);
  }));
  EXPECT_EQ(text.Get(TVRXTextEditDlg::Lines)->Lines(), lines) << "nobody touched it";
  EXPECT_TRUE(Answered(text, Ok, [](QDialog& dialog) {
    QTest::keyClicks(&In<QPlainTextEdit>(dialog, "text"), QStringLiteral("x"));
  }));
  EXPECT_EQ(text.Get(TVRXTextEditDlg::Lines)->Lines().first(), QStringLiteral("xone"));
  text.Set(TVRXTextEditDlg::ReadOnly, true);
  Answered(text, Ok, [](QDialog& dialog) {
    EXPECT_TRUE(In<QPlainTextEdit>(dialog, "text").isReadOnly());
    EXPECT_EQ(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel), nullptr);
  });
}

TEST(DialogComponents, AListKeepsWhatIsChecked) {
  TVRXCheckListDlg list(nullptr);
  list.Get(TVRXCheckListDlg::Items)
      ->SetLines({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
  list.Get(TVRXCheckListDlg::Checked)->SetLines({QStringLiteral("c"), QStringLiteral("gone")});
  const auto check = [](QDialog& dialog) {
    auto& items = In<QListWidget>(dialog, "items");
    ASSERT_EQ(items.count(), 3);
    EXPECT_EQ(items.item(0)->checkState(), Qt::Unchecked);
    EXPECT_EQ(items.item(2)->checkState(), Qt::Checked);
    items.item(0)->setCheckState(Qt::Checked);
  };
  Answered(list, Cancelled, check);
  EXPECT_EQ(list.Get(TVRXCheckListDlg::Checked)->Lines().size(), 2);
  Answered(list, Ok, check);
  EXPECT_EQ(list.Get(TVRXCheckListDlg::Checked)->Lines(),
            (QStringList{QStringLiteral("a"), QStringLiteral("c")}));
}

TEST(DialogComponents, ACalendarGivesTheDayWithinItsLimits) {
  const TClockOverride clock([] { return std::int64_t{0}; });
  TVRXCalendarDlg dlg(nullptr);
  Answered(dlg, Ok, [](QDialog& dialog) {
    EXPECT_EQ(In<QCalendarWidget>(dialog, "calendar").selectedDate(), QDate(2000, 1, 1)) << "today";
  });
  EXPECT_EQ(DayOf(dlg.Get(TVRXCalendarDlg::Date)), QDate(2000, 1, 1));
  dlg.Set(TVRXCalendarDlg::MaxDate, TDateTime{45000});
  dlg.Set(TVRXCalendarDlg::MinDate, TDateTime{44000});
  dlg.Set(TVRXCalendarDlg::Date, TDateTime{44500.75});
  Answered(dlg, Ok, [](QDialog& dialog) {
    auto& calendar = In<QCalendarWidget>(dialog, "calendar");
    EXPECT_EQ(calendar.selectedDate(), DayOf(TDateTime{44500}));
    EXPECT_EQ(calendar.minimumDate(), DayOf(TDateTime{44000}));
    EXPECT_EQ(calendar.maximumDate(), DayOf(TDateTime{45000}));
    calendar.setSelectedDate(DayOf(TDateTime{44711}));
  });
  EXPECT_EQ(dlg.Get(TVRXCalendarDlg::Date), TDateTime{44711});
}

TEST(DialogComponents, ACalculatorGivesWhatComesOut) {
  TVRXCalculatorDlg dlg(nullptr);
  dlg.Set(TVRXCalculatorDlg::Value, 2.5);
  const auto press = [](std::initializer_list<const char*> keys) {
    return [keys = std::vector<const char*>(keys)](QDialog& dialog) {
      for (const char* key : keys) In<QPushButton>(dialog, key).click();
    };
  };
  Answered(dlg, Cancelled, press({"C", "7"}));
  EXPECT_EQ(dlg.Get(TVRXCalculatorDlg::Value), 2.5);
  Answered(dlg, Ok, press({"*", "4", "+", "1"}));
  EXPECT_EQ(dlg.Get(TVRXCalculatorDlg::Value), 11) << "what is pending is reckoned";
  Answered(dlg, Ok, press({"/", "0"}));
  EXPECT_EQ(dlg.Get(TVRXCalculatorDlg::Value), 11) << "an error is no number";
  Answered(dlg, Ok, [&](QDialog& dialog) {
    press({"C", "9", "5"})(dialog);
    EXPECT_EQ(In<QLineEdit>(dialog, "display").text(), QStringLiteral("95"));
  });
}

TEST(DialogComponents, AFolderIsPickedInTheTreeOrTyped) {
  const QTemporaryDir folder;
  TVRXDirDlg dlg(nullptr);
  dlg.Set(TVRXDirDlg::Directory, folder.path());
  Answered(dlg, Ok, [&](QDialog& dialog) {
    auto& edit = In<QLineEdit>(dialog, "directory");
    EXPECT_EQ(edit.text(), folder.path());
    auto& tree = In<QTreeView>(dialog, "tree");
    auto& model = dynamic_cast<QFileSystemModel&>(*tree.model());
    tree.setCurrentIndex(model.index(QDir::tempPath()));
    EXPECT_EQ(edit.text(), QDir::tempPath());
  });
  EXPECT_EQ(dlg.Get(TVRXDirDlg::Directory), QDir::tempPath());
}

TEST(DialogComponents, AboutShowsWhatThereIs) {
  TVRXAboutDlg about(nullptr);
  about.Set(TVRXAboutDlg::ProgramName, QStringLiteral("Loom"));
  about.Set(TVRXAboutDlg::Copyright, QStringLiteral("<b>me</b>"));
  Answered(about, Ok, [](QDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("About Loom"));
    EXPECT_EQ(In<QLabel>(dialog, "programName").text(), QStringLiteral("Loom"));
    EXPECT_EQ(In<QLabel>(dialog, "copyright").textFormat(), Qt::PlainText);
    EXPECT_EQ(dialog.findChild<QLabel*>(QStringLiteral("version")), nullptr);
    EXPECT_EQ(dialog.findChild<QDialogButtonBox*>()->buttons().size(), 1);
  });
}

TEST(DialogComponents, AnEmptyAboutSaysInAPreviewWhatToSet) {
  TVRXAboutDlg about(nullptr);
  const auto shown = [&](bool preview) {
    QString text;
    const TVRXDialogAnswers answers([&](QDialog& dialog) {
      if (const auto* nothing = dialog.findChild<QLabel*>(QStringLiteral("nothing"))) text = nothing->text();
      return Ok;
    });
    preview ? about.Preview() : static_cast<void>(about.Execute());
    return text;
  };
  EXPECT_TRUE(shown(true).contains(QStringLiteral("ProgramName")));
  EXPECT_EQ(shown(false), QString()) << "the program's own users can set nothing";
  about.Set(TVRXAboutDlg::Version, QStringLiteral("2.5"));
  EXPECT_EQ(shown(true), QString());
}

TEST(DialogComponents, TipsGoOnWhereTheyWere) {
  TVRXTipDlg tips(nullptr);
  Answered(tips, Ok, [](QDialog& dialog) { EXPECT_FALSE(In<QPushButton>(dialog, "next").isEnabled()); });
  EXPECT_EQ(tips.Get(TVRXTipDlg::TipIndex), 0);
  tips.Get(TVRXTipDlg::Tips)->SetLines({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
  tips.Set(TVRXTipDlg::TipIndex, -2);
  Answered(tips, Ok, [](QDialog& dialog) {
    EXPECT_EQ(In<QLabel>(dialog, "tip").text(), QStringLiteral("b"));
    In<QPushButton>(dialog, "next").click();
    EXPECT_EQ(In<QLabel>(dialog, "tip").text(), QStringLiteral("c"));
    In<QPushButton>(dialog, "next").click();
    EXPECT_EQ(In<QLabel>(dialog, "tip").text(), QStringLiteral("a"));
    EXPECT_TRUE(In<QCheckBox>(dialog, "atStart").isChecked());
    In<QCheckBox>(dialog, "atStart").setChecked(false);
  });
  EXPECT_EQ(tips.Get(TVRXTipDlg::TipIndex), 1);
  EXPECT_FALSE(tips.Get(TVRXTipDlg::ShowAtStart));
}

TEST(DialogComponents, AMessageSaysWhichButtonWasPressed) {
  using enum TVRXMsgDlgBtn;
  TVRXMessageBoxDlg box(nullptr);
  const auto pressed = [&](QMessageBox::StandardButton button) {
    const TVRXDialogAnswers answers([&](QDialog&) { return static_cast<int>(button); });
    return box.Execute(QStringLiteral("?"));
  };
  EXPECT_EQ(pressed(QMessageBox::Ok), 1);
  EXPECT_EQ(pressed(QMessageBox::Cancel), 2);
  EXPECT_EQ(pressed(QMessageBox::Abort), 3);
  EXPECT_EQ(pressed(QMessageBox::Retry), 4);
  EXPECT_EQ(pressed(QMessageBox::Ignore), 5);
  EXPECT_EQ(pressed(QMessageBox::Yes), 6);
  EXPECT_EQ(pressed(QMessageBox::No), 7);
  EXPECT_EQ(pressed(QMessageBox::NoButton), 2);
  box.Set(TVRXMessageBoxDlg::Buttons, {mbYes, mbNo, mbCancel});
  box.Set(TVRXMessageBoxDlg::DefaultButton, mbNo);
  box.Set(TVRXMessageBoxDlg::DlgType, TVRXMsgDlgType::mtConfirmation);
  const TVRXDialogAnswers answers([&](QDialog& dialog) {
    auto& message = dynamic_cast<QMessageBox&>(dialog);
    EXPECT_EQ(message.standardButtons(), QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    EXPECT_EQ(message.defaultButton(), message.button(QMessageBox::No));
    EXPECT_EQ(message.icon(), QMessageBox::Question);
    EXPECT_EQ(message.text(), QStringLiteral("<i>Go</i>"));
    EXPECT_EQ(message.textFormat(), Qt::PlainText);
    return 0;
  });
  box.Execute(QStringLiteral("<i>Go</i>"));
}

TEST(DialogEditors, OfferWhatTheyAreSupposedTo) {
  TVRXInputDlg input(nullptr);
  TVRXExtDlgEditor editor(&input, nullptr);
  EXPECT_EQ(editor.GetVerbCount(), 2);
  EXPECT_EQ(editor.GetVerb(1), QStringLiteral("ImageList"));
  int shown = 0;
  const TVRXDialogAnswers answers([&](QDialog& dialog) {
    ++shown;
    if (auto* message = dynamic_cast<QMessageBox*>(&dialog))
      EXPECT_EQ(message->text(), QStringLiteral("Test - Message"));
    else
      In<QLineEdit>(dialog, "value").setText(QStringLiteral("changed"));
    return 1;
  });
  editor.ExecuteVerb(0);
  EXPECT_EQ(shown, 1);
  EXPECT_EQ(input.Get(TVRXInputDlg::Value), QString());
  TVRXMessageBoxDlg box(nullptr);
  TVRXMessageBoxComponentEditor demo(&box, nullptr);
  EXPECT_EQ(demo.GetVerbCount(), 1);
  EXPECT_EQ(demo.GetVerb(0), QStringLiteral("Demo"));
  EXPECT_EQ(demo.GetVerb(1), QString());
  demo.ExecuteVerb(0);
  EXPECT_EQ(shown, 2);
}

namespace {
class DialogVerbs : public ListEditors {};
}  // namespace

// A dialog that is confirmed while somebody looks at it leaves no trace on the form.
TEST_F(DialogVerbs, ADoubleClickShowsEveryDialogOfThePage) {
  SetPrompts(&prompts);
  const auto pages = registry.PalettePages();
  const auto page = std::find_if(pages.begin(), pages.end(),
                                 [](const TPalettePage& p) { return p.Name == QStringLiteral("VRX Dlg"); });
  ASSERT_NE(page, pages.end());
  ASSERT_EQ(page->Classes.size(), 20u);
  for (const TClass* cls : page->Classes) {
    SCOPED_TRACE(cls->ClassName().constData());
    const auto session = FormWith("  object Dialog1: " + cls->ClassName() + "\n  end\n", registry);
    TComponent* dialog = session->GetComponent(QStringLiteral("Dialog1"));
    ASSERT_NE(dialog, nullptr);
    const QByteArray before = session->Bytes();
    int shown = 0;
    const TVRXDialogAnswers answers([&](QDialog&) {
      ++shown;
      return Ok;
    });
    const auto editor = registry.GetComponentEditor(dialog, session.get());
    EXPECT_TRUE(
        QStringList({QStringLiteral("Preview..."), QStringLiteral("Demo")}).contains(editor->GetVerb(0)));
    editor->Edit();
    EXPECT_EQ(shown, 1);
    editor->ExecuteVerb(0);
    EXPECT_EQ(shown, 2);
    EXPECT_EQ(session->Bytes(), before);
    EXPECT_FALSE(session->CanUndo());
  }
}
