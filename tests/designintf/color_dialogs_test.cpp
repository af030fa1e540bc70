// The drop-down list of colours, and the colour dialog behind it.
#include "dclstd/ColorDialog.h"

#include <gtest/gtest.h>

#include "dclstd/ColorComboBox.h"
#include "dclstd/LinesDialog.h"
#include "dclstd/StandardEditors.h"
#include "designintf/CustomColors.h"
#include "rtl/Registry.h"
#include "rtl/Strings.h"
#include "tests/designintf/DesignTest.h"
#include "tests/support/Fields.h"
#include "tests/support/Modal.h"
#include "tests/support/Prompted.h"
#include "vcl/Label.h"

using namespace fields;

namespace {
void AddCustom(QColorDialog& dialog, const QColor& color) {
  dialog.setCurrentColor(color);
  for (QPushButton* button : dialog.findChildren<QPushButton*>())
    if (button->text().remove(u'&').contains(QStringLiteral("Custom Colors"))) return button->click();
  ADD_FAILURE() << "no button for custom colours";
}
std::vector<TColor> CustomAfterAdding(std::vector<TColor> colors, const std::vector<QColor>& added) {
  QStringList entries = CustomColorEntries(colors);
  TColor color = clRed;
  modal::NextOf<QColorDialog>([&](QColorDialog& dialog) {
    for (const QColor& c : added) AddCustom(dialog, c);
    dialog.reject();
  });
  EXPECT_FALSE(ChooseColor(nullptr, color, entries));
  EXPECT_EQ(color, clRed);
  return CustomColorValues(entries);
}
using Colors = std::vector<TColor>;
}  // namespace

TEST(ColorDialog, AnAddedColourStandsBehindTheOthers) {
  EXPECT_EQ(CustomAfterAdding({}, {QColor(1, 2, 3)}), (Colors{RGBColor(1, 2, 3)}));
  EXPECT_EQ(CustomAfterAdding({clNavy, clBtnFace, clNavy}, {QColor(1, 2, 3), QColor(Qt::white)}),
            (Colors{clNavy, clBtnFace, clNavy, RGBColor(1, 2, 3), clWhite}));
  EXPECT_EQ(CustomAfterAdding({clNavy, clWhite}, {}), (Colors{clNavy, clWhite}));
}

TEST(ColorDialog, AnAddedColourDoesNotReplaceTheOneThatIsSelected) {
  QStringList entries = CustomColorEntries({TColor(0x00112233u), clNavy});
  TColor color = TColor(0x00112233u);
  modal::NextOf<QColorDialog>([&](QColorDialog& dialog) {
    AddCustom(dialog, QColor(0x44, 0x55, 0x66));
    dialog.reject();
  });
  EXPECT_FALSE(ChooseColor(nullptr, color, entries));
  const Colors after = CustomColorValues(entries);
  EXPECT_EQ(after.size(), 3u);
  for (const TColor wanted : {TColor(0x00112233u), clNavy, RGBColor(0x44, 0x55, 0x66)})
    EXPECT_NE(std::find(after.begin(), after.end(), wanted), after.end());
}

TEST(ColorDialog, OnlyAFullListGivesItsFirstPlaceAway) {
  Colors colors;
  for (unsigned i = 0; i < 16; ++i) colors.push_back(TColor(i * 0x030201));
  Colors fifteen(colors.begin(), colors.end() - 1), expected = fifteen;
  expected.push_back(clAqua);
  EXPECT_EQ(CustomAfterAdding(fifteen, {QColor(Qt::cyan)}), expected);
  expected = colors;
  expected[0] = clAqua;
  EXPECT_EQ(CustomAfterAdding(colors, {QColor(Qt::cyan)}), expected);
}

TEST(ColorDialog, ConfirmedAsItWasEveryColourStays) {
  for (const TColor color : {clBtnFace, clNone, clDefault, TColor(0x80000099u), TColor(0x02123456u), clRed}) {
    TColor edited = color;
    QStringList custom{QStringLiteral("ColorC=0000ff00")};
    const QStringList before = custom;
    modal::NextOf<QColorDialog>([](QColorDialog& dialog) { dialog.accept(); });
    EXPECT_TRUE(ChooseColor(nullptr, edited, custom));
    EXPECT_EQ(edited, color);
    EXPECT_EQ(custom, before);
  }
}

TEST(ColorDialog, TheColourPropertyStaysWhenNothingWasChosen) {
  TLabel a(nullptr), b(nullptr);
  a.SetColor(clHighlight);
  b.SetColor(clRed);
  const TPropInfo& prop = TLabel::StaticClass().GetProp("Color");
  TColorProperty editor(nullptr, {{&a, &prop}, {&b, &prop}});
  modal::NextOf<QColorDialog>([](QColorDialog& dialog) { dialog.accept(); });
  editor.Edit();
  EXPECT_EQ(a.Color(), clHighlight);
  EXPECT_EQ(b.Color(), clRed);
  modal::NextOf<QColorDialog>([](QColorDialog& dialog) {
    dialog.setCurrentColor(QColor(1, 2, 3));
    dialog.accept();
  });
  editor.Edit();
  EXPECT_EQ(a.Color(), RGBColor(1, 2, 3));
  EXPECT_EQ(b.Color(), RGBColor(1, 2, 3));
}

TEST(ColorDialog, SettingsThatCannotBeWrittenAreToldOnceAndTheColourIsSet) {
  const QString storage = TRegistry::StorageFile();
  QTemporaryDir folder;
  QFile file(folder.filePath(QStringLiteral("no-folder")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  TRegistry::SetStorageFile(file.fileName() + QStringLiteral("/settings.ini"));
  const auto restore = qScopeGuard([&] { TRegistry::SetStorageFile(storage); });
  ScriptedPrompts prompts;
  TLabel label(nullptr);
  TColorProperty editor(nullptr, {{&label, &TLabel::StaticClass().GetProp("Color")}});
  for (const int shade : {10, 20}) {
    modal::NextOf<QColorDialog>([&](QColorDialog& dialog) {
      AddCustom(dialog, QColor(shade, 0, 0));
      dialog.accept();
    });
    editor.Edit();
    EXPECT_EQ(label.Color(), RGBColor(static_cast<unsigned>(shade), 0, 0));
    ASSERT_EQ(prompts.warned.size(), 1) << shade;
  }
  EXPECT_TRUE(prompts.warned[0].contains(TRegistry::StorageFile())) << prompts.warned[0].toStdString();
  // From the first time on that it works, a failure is news again.
  TRegistry::SetStorageFile(storage);
  SaveIDECustomColors(CustomColorEntries({clRed}));
  SaveIDECustomColors({});
  TRegistry::SetStorageFile(file.fileName() + QStringLiteral("/other.ini"));
  EXPECT_THROW(SaveIDECustomColors(CustomColorEntries({clRed})), ERegistryException);
}

TEST(ColorBox, ArrowsAndLettersNeverOpenTheDialog) {
  ColorComboBox box;
  box.SetSelected(clBlack);
  ShowActive(box);
  box.setFocus();
  const QString first = QStringLiteral("clBlack");
  for (const auto key : {Qt::Key_Up, Qt::Key_Home, Qt::Key_PageUp}) {
    QTest::keyClick(&box, key);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(box.currentText(), first) << key;
  }
  Wheel(box, 1);
  EXPECT_EQ(box.currentText(), first);
  QTest::keyClick(&box, Qt::Key_Down);
  EXPECT_EQ(box.Selected(), clMaroon);
  QTest::keyClicks(&box, QStringLiteral("cu"));
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_TRUE(box.model()->flags(box.model()->index(0, 0)).testFlag(Qt::ItemIsEnabled));
}

TEST(ColorBox, ChosenInTheOpenListTheDialogComesAndItsEntryIsNotKept) {
  ColorComboBox box;
  box.SetSelected(clGreen);
  ShowActive(box);
  int reports = 0;
  QObject::connect(&box, &ColorComboBox::Change, [&] { ++reports; });
  for (const bool confirm : {false, true}) {
    modal::NextOf<QColorDialog>([&](QColorDialog& dialog) {
      dialog.setCurrentColor(QColor(9, 8, 7));
      confirm ? dialog.accept() : dialog.reject();
    });
    box.showPopup();
    box.view()->setCurrentIndex(box.model()->index(0, 0));
    QTest::keyClick(box.view(), Qt::Key_Return);
    EXPECT_EQ(box.Selected(), confirm ? RGBColor(9, 8, 7) : clGreen);
    EXPECT_EQ(box.currentText(), ColorToString(box.Selected()));
    EXPECT_EQ(reports, confirm ? 1 : 0);
  }
}

TEST(ColorBox, ColoursThatAreNotListedDoNotPileUp) {
  ColorComboBox box;
  box.SetCustomColors(CustomColorEntries({TColor(0x112233), clRed}));
  const QStringList listed = Texts(box);
  EXPECT_EQ(listed.count(QStringLiteral("$00112233")), 1);
  EXPECT_EQ(listed.count(QStringLiteral("clRed")), 1);
  for (const unsigned c : {0x1u, 0x2u, 0x3u}) {
    box.SetSelected(TColor(c));
    EXPECT_EQ(Texts(box), listed + QStringList{ColorToString(TColor(c))});
    EXPECT_EQ(box.currentText(), ColorToString(TColor(c)));
  }
  box.SetSelected(clBlue);
  EXPECT_EQ(Texts(box), listed);
  EXPECT_EQ(box.currentText(), QStringLiteral("clBlue"));
}

TEST(LinesDialog, ConfirmedAsTheyWereTheLinesStay) {
  for (const QStringList& lines :
       {QStringList{}, QStringList{QString()}, QStringList{QStringLiteral("a\u00A0b"), QString()},
        QStringList{QStringLiteral("x\ny\r"), QStringLiteral("\u2028\u2029")}}) {
    TStrings strings;
    strings.SetLines(lines);
    modal::Next([](QDialog& dialog) { dialog.accept(); });
    EXPECT_FALSE(EditLines(strings));
    EXPECT_EQ(strings.Text(), lines.join(u'\n'));
    EXPECT_EQ(strings.Count(), lines.size());
  }
}

TEST(LinesDialog, AChangeKeepsTheBlanksOfTheOtherLines) {
  TStrings strings;
  strings.SetLines({QStringLiteral("a\u00A0b"), QStringLiteral("\tc")});
  modal::Next([](QDialog& dialog) {
    auto* text = dialog.findChild<QPlainTextEdit*>();
    text->moveCursor(QTextCursor::End);
    QTest::keyClicks(text, QStringLiteral("d"));
    dialog.accept();
  });
  EXPECT_TRUE(EditLines(strings));
  EXPECT_EQ(strings.Text(), QStringLiteral("a\u00A0b\n\tcd"));
}
