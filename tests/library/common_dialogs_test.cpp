// The common dialogs, driven as a person does: OK writes what was chosen, Cancel nothing.
#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QTest>
#include <QtPrintSupport/QPrintDialog>
#include <QtPrintSupport/QPrinterInfo>
#include <QtWidgets>

#include "library/components/ColorFontDialogs.h"
#include "library/components/FileDialogs.h"
#include "library/components/PrinterDialogs.h"
#include "library/components/PrinterSetup.h"
#include "tests/support/AnsweredDialog.h"
#include "tests/support/Prompted.h"
#include "tests/support/Waiting.h"

namespace {
constexpr auto Ok = QDialogButtonBox::Ok, Open = QDialogButtonBox::Open, Save = QDialogButtonBox::Save,
               Cancel = QDialogButtonBox::Cancel;

// Does that to the real dialog and presses the button. One that comes again is cancelled.
template <class C>
bool Executed(C& component, QDialogButtonBox::StandardButton button,
              const std::function<void(QDialog&)>& act) {
  bool again = false;
  const TVRXDialogAnswers answers([&](QDialog& dialog) {
    if (std::exchange(again, true)) return 0;
    dialog.show();
    act(dialog);
    return Press(dialog, button);
  });
  return component.Execute();
}
template <class D>
std::function<void(QDialog&)> With(std::function<void(D&)> act) {
  return [act = std::move(act)](QDialog& dialog) { act(dynamic_cast<D&>(dialog)); };
}
// Names are typed where the keyboard is: the dialog compares what is typed with what is selected.
std::function<void(QDialog&)> Type(const QString& name) {
  return [name](QDialog& dialog) {
    auto& edit = In<QLineEdit>(dialog, "fileNameEdit");
    dialog.activateWindow();
    edit.setFocus();
    ASSERT_TRUE(QTest::qWaitFor([&] { return edit.hasFocus(); }, WaitLimit));
    edit.selectAll();
    QTest::keyClicks(&edit, name);
  };
}

class CommonDialogs : public testing::Test {
 protected:
  void SetUp() override {
    for (const char* name : {"a.txt", "b.txt", "c.md"}) {
      QFile file(Path(name));
      ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
  }
  void TearDown() override { VRXPrinterSetup() = {}; }
  QString Path(const char* name) const { return folder_.filePath(QLatin1StringView(name)); }
  QTemporaryDir folder_;
  ScriptedPrompts prompts_;
};
}  // namespace

// --- Files

TEST(NameFilters, ArePairsOfNameAndPatterns) {
  EXPECT_EQ(VRXNameFilters(QStringLiteral("Texts|*.txt; *.md|Notes (*.md)|*.md|All|*")).join(u'#'),
            QStringLiteral("Texts (*.txt *.md)#Notes (*.md)#All (*)"));
  EXPECT_EQ(VRXNameFilters(QStringLiteral("Everything")).join(u'#'), QStringLiteral("Everything (*)"));
  EXPECT_TRUE(VRXNameFilters({}).isEmpty());
}

TEST_F(CommonDialogs, AFileIsOpened) {
  TVRXFormOpenDialog dlg(nullptr);
  dlg.Set(TOpenDialog::InitialDir, folder_.path());
  dlg.Set(TOpenDialog::Filter, QStringLiteral("Texts|*.txt|Notes|*.md|All|*"));
  dlg.Set(TOpenDialog::FilterIndex, 2);
  dlg.Set(TOpenDialog::Title, QStringLiteral("Which one?"));
  const auto pick = With<QFileDialog>([this](QFileDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Which one?"));
    EXPECT_EQ(dialog.directory().path(), folder_.path());
    EXPECT_EQ(dialog.selectedNameFilter(), QStringLiteral("Notes (*.md)"));
    dialog.selectNameFilter(QStringLiteral("All (*)"));
    Type(Path("b.txt"))(dialog);
  });
  EXPECT_FALSE(Executed(dlg, Cancel, pick));
  EXPECT_EQ(dlg.Get(TOpenDialog::FileName), QString());
  EXPECT_EQ(dlg.Get(TOpenDialog::FilterIndex), 2);
  EXPECT_TRUE(Executed(dlg, Open, pick));
  EXPECT_EQ(dlg.Get(TOpenDialog::FileName), Path("b.txt"));
  EXPECT_EQ(dlg.Get(TOpenDialog::FilterIndex), 3);
  EXPECT_EQ(dlg.Files(), QStringList{Path("b.txt")});
  EXPECT_TRUE(Executed(dlg, Open, With<QFileDialog>([this](QFileDialog& dialog) {
                         EXPECT_EQ(dialog.selectedFiles(), QStringList{Path("b.txt")})
                             << "it begins where it was";
                       })));
}

TEST_F(CommonDialogs, SeveralFilesAreOpenedWhereThatIsWanted) {
  TVRXFormOpenDialog dlg(nullptr);
  dlg.Set(TOpenDialog::InitialDir, folder_.path());
  dlg.Set(TOpenDialog::Options, {TOpenOption::ofAllowMultiSelect, TOpenOption::ofForceShowHidden});
  EXPECT_TRUE(Executed(dlg, Open, With<QFileDialog>([](QFileDialog& dialog) {
                         EXPECT_TRUE(dialog.filter() & QDir::Hidden);
                         Type(QStringLiteral("\"a.txt\" \"c.md\""))(dialog);
                       })));
  EXPECT_EQ(dlg.Files().join(u'|'), Path("a.txt") + u'|' + Path("c.md"));
  EXPECT_EQ(dlg.Get(TOpenDialog::FileName), Path("a.txt"));
  dlg.Set(TOpenDialog::Options, {});
  Executed(dlg, Cancel, With<QFileDialog>([](QFileDialog& dialog) {
             EXPECT_EQ(dialog.fileMode(), QFileDialog::AnyFile);
             EXPECT_FALSE(dialog.filter() & QDir::Hidden);
           }));
}

TEST_F(CommonDialogs, WhatIsNotThereIsOpenedWhenItMayBe) {
  using enum TOpenOption;
  TVRXFormOpenDialog dlg(nullptr);
  dlg.Set(TOpenDialog::InitialDir, folder_.path());
  EXPECT_TRUE(Executed(dlg, Open, Type(Path("new.txt"))));
  dlg.Set(TOpenDialog::Options, {ofCreatePrompt});
  EXPECT_FALSE(Executed(dlg, Open, Type(Path("newer.txt")))) << "nobody wants it created";
  EXPECT_EQ(dlg.Get(TOpenDialog::FileName), Path("new.txt"));
  EXPECT_TRUE(Executed(dlg, Open, Type(Path("a.txt"))));
  dlg.Set(TOpenDialog::Options, {ofPathMustExist});
  EXPECT_FALSE(Executed(dlg, Open, Type(Path("none/new.txt"))));
  ASSERT_EQ(prompts_.warned.size(), 1);
  EXPECT_TRUE(prompts_.warned[0].contains(Path("none"))) << prompts_.warned[0].toStdString();
  dlg.Set(TOpenDialog::Options, {ofFileMustExist});
  Executed(dlg, Cancel, With<QFileDialog>([](QFileDialog& dialog) {
             EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
           }));
}

TEST_F(CommonDialogs, AFileIsSavedWithItsEnding) {
  TVRXFormSaveDialog dlg(nullptr);
  dlg.Set(TOpenDialog::InitialDir, folder_.path());
  dlg.Set(TOpenDialog::DefaultExt, QStringLiteral("txt"));
  EXPECT_FALSE(Executed(dlg, Cancel, Type(QStringLiteral("d"))));
  EXPECT_EQ(dlg.Get(TOpenDialog::FileName), QString());
  EXPECT_TRUE(Executed(dlg, Save, Type(QStringLiteral("d"))));
  EXPECT_EQ(dlg.Get(TOpenDialog::FileName), Path("d.txt"));
  EXPECT_FALSE(dlg.Get(TOpenDialog::Options).Contains(TOpenOption::ofExtensionDifferent));
  EXPECT_TRUE(Executed(dlg, Save, With<QFileDialog>([](QFileDialog& dialog) {
                         EXPECT_TRUE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
                         Type(QStringLiteral("c.md"))(dialog);
                       })));
  EXPECT_EQ(dlg.Get(TOpenDialog::FileName), Path("c.md"));
  EXPECT_TRUE(dlg.Get(TOpenDialog::Options).Contains(TOpenOption::ofExtensionDifferent));
  dlg.Set(TOpenDialog::Options, {TOpenOption::ofOverwritePrompt});
  Executed(dlg, Cancel, With<QFileDialog>([](QFileDialog& dialog) {
             EXPECT_FALSE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
           }));
}

// --- Colours and fonts

TEST_F(CommonDialogs, AColorIsChosen) {
  TVRXFormColorDialog dlg(nullptr);
  dlg.Set(TColorDialog::Color, TColor(0x102030));
  dlg.Get(TColorDialog::CustomColors)->SetLines({QStringLiteral("ColorB=0000FF"), QStringLiteral("Other=1")});
  const QColor before = QColorDialog::customColor(1);
  const auto pick = With<QColorDialog>([](QColorDialog& dialog) {
    EXPECT_EQ(dialog.currentColor(), QColor(0x30, 0x20, 0x10));
    EXPECT_EQ(QColorDialog::customColor(1), QColor(255, 0, 0));
    dialog.setCurrentColor(QColor(1, 2, 3));
    QColorDialog::setCustomColor(2, QColor(10, 11, 12));
  });
  EXPECT_FALSE(Executed(dlg, Cancel, pick));
  EXPECT_EQ(dlg.Get(TColorDialog::Color), TColor(0x102030));
  EXPECT_EQ(dlg.Get(TColorDialog::CustomColors)->Lines().size(), 2);
  EXPECT_TRUE(Executed(dlg, Ok, pick));
  EXPECT_EQ(dlg.Get(TColorDialog::Color), TColor(0x030201));
  EXPECT_EQ(dlg.Get(TColorDialog::CustomColors)->Lines().join(u','),
            QStringLiteral("ColorB=0000FF,Other=1,ColorC=0C0B0A"));
  EXPECT_EQ(QColorDialog::customColor(1), before) << "those of the program are as they were";
}

TEST_F(CommonDialogs, AColorOfTheSystemStaysOne) {
  TVRXFormColorDialog dlg(nullptr);
  dlg.Set(TColorDialog::Color, clHighlight);
  EXPECT_TRUE(Executed(dlg, Ok, [](QDialog&) {}));
  EXPECT_EQ(dlg.Get(TColorDialog::Color), clHighlight);
}

TEST_F(CommonDialogs, AFontIsChosen) {
  TVRXFormFontDialog dlg(nullptr);
  dlg.Font()->SetName(QStringLiteral("No Such Family"));
  dlg.Font()->SetSize(11);
  dlg.Font()->SetColor(clRed);
  dlg.Font()->SetStyle({TFontStyle::fsUnderline});
  dlg.Set(TFontDialog::PreviewText, QStringLiteral("Sphinx"));
  const auto pick = With<QFontDialog>([](QFontDialog& dialog) {
    EXPECT_EQ(In<QLineEdit>(dialog, "qt_fontDialog_sampleEdit").text(), QStringLiteral("Sphinx"));
    QFont font = dialog.currentFont();
    EXPECT_EQ(font.pointSize(), 11);
    EXPECT_TRUE(font.underline());
    font.setPointSize(23);
    font.setStrikeOut(true);
    font.setUnderline(false);
    dialog.setCurrentFont(font);
  });
  EXPECT_FALSE(Executed(dlg, Cancel, pick));
  EXPECT_EQ(dlg.Font()->Size(), 11);
  EXPECT_TRUE(Executed(dlg, Ok, pick));
  EXPECT_EQ(dlg.Font()->Size(), 23);
  EXPECT_EQ(dlg.Font()->Style(), TFontStyles{TFontStyle::fsStrikeOut});
  EXPECT_EQ(dlg.Font()->Color(), clRed);
  EXPECT_EQ(dlg.Font()->Name(), QStringLiteral("No Such Family")) << "nobody chose another one";
  EXPECT_TRUE(Executed(dlg, Ok, With<QFontDialog>([](QFontDialog& dialog) {
                         dialog.setCurrentFont(QFont(QStringLiteral("DejaVu Serif"), 23, QFont::Bold));
                       })));
  EXPECT_EQ(dlg.Font()->Name(), QStringLiteral("DejaVu Serif"));
  EXPECT_EQ(dlg.Font()->Style(), TFontStyles{TFontStyle::fsBold});
}

TEST_F(CommonDialogs, AFontKeepsToItsLimits) {
  TVRXFormFontDialog dlg(nullptr);
  dlg.Set(TFontDialog::MinFontSize, 9);
  dlg.Set(TFontDialog::MaxFontSize, 14);
  const auto pick = [](int size) {
    return With<QFontDialog>([size](QFontDialog& dialog) {
      QFont font = dialog.currentFont();
      font.setPointSize(size);
      dialog.setCurrentFont(font);
    });
  };
  EXPECT_TRUE(Executed(dlg, Ok, pick(20))) << "limits count where they are asked for";
  dlg.Set(TFontDialog::Options, {TFontDialogOption::fdLimitSize, TFontDialogOption::fdFixedPitchOnly});
  EXPECT_FALSE(Executed(dlg, Ok, pick(15)));
  EXPECT_EQ(prompts_.warned,
            QStringList{QStringLiteral("The size is 15 points. Choose one from 9 to 14 points.")});
  EXPECT_EQ(dlg.Font()->Size(), 20);
  EXPECT_TRUE(Executed(dlg, Ok, pick(14)));
  EXPECT_EQ(dlg.Font()->Size(), 14);
  Executed(dlg, Cancel, With<QFontDialog>([](QFontDialog& dialog) {
             EXPECT_TRUE(dialog.testOption(QFontDialog::MonospacedFonts));
             for (const QCheckBox* effect : dialog.findChildren<QCheckBox*>())
               EXPECT_FALSE(effect->isVisible());
           }));
}

// --- Paper and printers

TEST_F(CommonDialogs, PaperAndMarginsAreSet) {
  TVRXFormPageSetupDialog dlg(nullptr);
  using D = TPageSetupDialog;
  dlg.Set(D::Units, TPageMeasureUnits::pmMillimeters);
  dlg.Set(D::PageWidth, 14800);
  dlg.Set(D::PageHeight, 21000);
  dlg.Set(D::MarginLeft, 1250);
  dlg.Set(D::Options, {TPageSetupDialogOption::psoMargins});
  const auto choose = [](QDialog& dialog) {
    EXPECT_EQ(In<QComboBox>(dialog, "paper").currentText(), QPageSize(QPageSize::A5).name());
    EXPECT_TRUE(In<QRadioButton>(dialog, "portrait").isChecked());
    EXPECT_EQ(In<QDoubleSpinBox>(dialog, "left").value(), 12.5);
    EXPECT_EQ(In<QDoubleSpinBox>(dialog, "top").value(), 0);
    auto& paper = In<QComboBox>(dialog, "paper");
    paper.setCurrentIndex(paper.findText(QPageSize(QPageSize::A4).name()));
    In<QRadioButton>(dialog, "landscape").setChecked(true);
    In<QDoubleSpinBox>(dialog, "bottom").setValue(31);
  };
  {
    const TVRXDialogAnswers answers([&](QDialog& dialog) {
      dialog.show();
      choose(dialog);
      return Press(dialog, Ok);
    });
    dlg.Preview();
  }
  EXPECT_EQ(dlg.Get(D::PageWidth), 14800) << "a preview keeps nothing";
  EXPECT_EQ(VRXPrinterSetup().Layout.orientation(), QPageLayout::Portrait);
  EXPECT_FALSE(Executed(dlg, Cancel, choose));
  EXPECT_EQ(dlg.Get(D::PageWidth), 14800);
  EXPECT_EQ(VRXPrinterSetup().Layout.orientation(), QPageLayout::Portrait);
  EXPECT_TRUE(Executed(dlg, Ok, choose));
  EXPECT_EQ(dlg.Get(D::PageWidth), 29700);
  EXPECT_EQ(dlg.Get(D::PageHeight), 21000);
  EXPECT_EQ(dlg.Get(D::MarginLeft), 1250);
  EXPECT_EQ(dlg.Get(D::MarginBottom), 3100);
  EXPECT_EQ(VRXPrinterSetup().Layout.orientation(), QPageLayout::Landscape);
  EXPECT_EQ(VRXPrinterSetup().Layout.pageSize().id(), QPageSize::A4);
  Executed(dlg, Cancel, [](QDialog& dialog) {
    EXPECT_TRUE(In<QRadioButton>(dialog, "landscape").isChecked()) << "it begins as it was left";
    EXPECT_EQ(In<QComboBox>(dialog, "paper").currentText(), QPageSize(QPageSize::A4).name());
  });
}

TEST_F(CommonDialogs, PaperIsMeasuredInInchesWhereThatIsWanted) {
  TVRXFormPageSetupDialog dlg(nullptr);
  using D = TPageSetupDialog;
  dlg.Set(D::Units, TPageMeasureUnits::pmInches);
  EXPECT_TRUE(Executed(dlg, Ok, [](QDialog& dialog) {
    auto& paper = In<QComboBox>(dialog, "paper");
    paper.setCurrentIndex(paper.findText(QPageSize(QPageSize::Letter).name()));
    In<QDoubleSpinBox>(dialog, "right").setValue(1.125);
    EXPECT_TRUE(In<QDoubleSpinBox>(dialog, "right").text().endsWith(QStringLiteral(" in")));
  }));
  EXPECT_EQ(dlg.Get(D::PageWidth), 8500);
  EXPECT_EQ(dlg.Get(D::PageHeight), 11000);
  EXPECT_EQ(dlg.Get(D::MarginRight), 1125);
  EXPECT_EQ(dlg.Get(D::MarginTop), 787) << "20 mm, as the program has it";
}

TEST_F(CommonDialogs, MarginsKeepToWhatIsPossible) {
  using enum TPageSetupDialogOption;
  using D = TPageSetupDialog;
  TVRXFormPageSetupDialog dlg(nullptr);
  dlg.Set(D::Units, TPageMeasureUnits::pmMillimeters);
  dlg.Set(D::MinMarginTop, 1500);
  dlg.Set(D::Options, {psoMinMargins, psoDisablePaper, psoDisableOrientation});
  const auto set = [](const char* side, double value) {
    return [=](QDialog& dialog) {
      EXPECT_FALSE(In<QComboBox>(dialog, "paper").isEnabled());
      EXPECT_FALSE(In<QRadioButton>(dialog, "landscape").isEnabled());
      In<QDoubleSpinBox>(dialog, side).setValue(value);
    };
  };
  EXPECT_FALSE(Executed(dlg, Ok, set("top", 14.5)));
  EXPECT_FALSE(Executed(dlg, Ok, set("left", 195)));
  ASSERT_EQ(prompts_.warned.size(), 2);
  EXPECT_TRUE(prompts_.warned[0].startsWith(QStringLiteral("The top margin is")))
      << prompts_.warned[0].toStdString();
  EXPECT_TRUE(prompts_.warned[1].startsWith(QStringLiteral("The margins leave nothing")));
  EXPECT_EQ(dlg.Get(D::PageWidth), 0);
  EXPECT_TRUE(Executed(dlg, Ok, set("top", 15)));
  EXPECT_EQ(dlg.Get(D::MarginTop), 1500);
  dlg.Set(D::Options, {psoDisableMargins});
  Executed(dlg, Cancel, [](QDialog& dialog) {
    for (const char* side : {"left", "top", "right", "bottom"})
      EXPECT_FALSE(In<QDoubleSpinBox>(dialog, side).isEnabled());
    EXPECT_TRUE(In<QComboBox>(dialog, "paper").isEnabled());
  });
}

TEST_F(CommonDialogs, APrinterOrAFileIsSetUp) {
  TVRXFormPrinterSetupDialog dlg(nullptr);
  const auto choose = [](const QString& file) {
    return [=](QDialog& dialog) {
      auto& printers = In<QComboBox>(dialog, "printers");
      EXPECT_EQ(printers.count(), QPrinterInfo::availablePrinterNames().size() + 1);
      printers.setCurrentIndex(printers.count() - 1);
      EXPECT_TRUE(In<QLineEdit>(dialog, "file").isVisible());
      In<QLineEdit>(dialog, "file").setText(file);
      In<QRadioButton>(dialog, "landscape").setChecked(true);
    };
  };
  const QString file = Path("out.pdf");
  EXPECT_FALSE(Executed(dlg, Cancel, choose(file)));
  EXPECT_EQ(VRXPrinterSetup().OutputFile, QString());
  EXPECT_FALSE(Executed(dlg, Ok, choose({})));
  EXPECT_FALSE(Executed(dlg, Ok, choose(Path("none/out.pdf"))));
  ASSERT_EQ(prompts_.warned.size(), 2);
  EXPECT_TRUE(prompts_.warned[1].contains(Path("none")));
  EXPECT_EQ(VRXPrinterSetup().Layout.orientation(), QPageLayout::Portrait);
  EXPECT_TRUE(Executed(dlg, Ok, choose(file)));
  EXPECT_EQ(VRXPrinterSetup().OutputFile, file);
  EXPECT_EQ(VRXPrinterSetup().Layout.orientation(), QPageLayout::Landscape);
  Executed(dlg, Cancel, [&](QDialog& dialog) { EXPECT_EQ(In<QLineEdit>(dialog, "file").text(), file); });
}

TEST_F(CommonDialogs, WhatIsPrintedIsChosen) {
  using D = TPrintDialog;
  TVRXFormPrintCommDialog dlg(nullptr);
  dlg.Set(D::Title, QStringLiteral("Print it"));
  dlg.Set(D::Options, {TPrintDialogOption::poPageNums, TPrintDialogOption::poPrintToFile});
  dlg.Set(D::MinPage, 1);
  dlg.Set(D::MaxPage, 9);
  dlg.Set(D::Copies, 2);
  VRXPrinterSetup().OutputFile = Path("print.pdf");
  const auto choose = [](QDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Print it"));
    EXPECT_EQ(In<QSpinBox>(dialog, "copies").value(), 2);
    EXPECT_EQ(In<QSpinBox>(dialog, "to").maximum(), 9);
    In<QSpinBox>(dialog, "copies").setValue(5);
    In<QRadioButton>(dialog, "printRange").setChecked(true);
    In<QSpinBox>(dialog, "from").setValue(3);
    In<QSpinBox>(dialog, "to").setValue(7);
  };
  const auto print = [&](bool confirmed) { return Executed(dlg, confirmed ? Ok : Cancel, choose); };
  EXPECT_FALSE(print(false));
  EXPECT_EQ(dlg.Get(D::Copies), 2);
  EXPECT_EQ(dlg.Get(D::PrintRange), TPrintRange::prAllPages);
  EXPECT_TRUE(print(true));
  EXPECT_EQ(dlg.Get(D::Copies), 5);
  EXPECT_EQ(dlg.Get(D::PrintRange), TPrintRange::prPageNums);
  EXPECT_EQ(dlg.Get(D::FromPage), 3);
  EXPECT_EQ(dlg.Get(D::ToPage), 7);
  EXPECT_TRUE(dlg.Get(D::PrintToFile));
  EXPECT_EQ(VRXPrinterSetup().OutputFile, Path("print.pdf"));
}

TEST_F(CommonDialogs, OnlyWhatIsOfferedCanBeChosenForPrinting) {
  using enum TPrintDialogOption;
  using D = TPrintDialog;
  TVRXFormPrintCommDialog dlg(nullptr);
  const auto offered = [&](TPrintDialogOptions options) {
    std::string names;
    dlg.Set(D::Options, options);
    Executed(dlg, Cancel, With<QPrintDialog>([&](QPrintDialog& dialog) {
               if (dialog.testOption(QAbstractPrintDialog::PrintPageRange)) names += "pages ";
               if (dialog.testOption(QAbstractPrintDialog::PrintSelection)) names += "selection ";
             }));
    return names;
  };
  EXPECT_EQ(offered({}), "");
  EXPECT_EQ(offered({poPageNums}), "pages ");
  EXPECT_EQ(offered({poSelection}), "selection ");
  EXPECT_TRUE(prompts_.warned.isEmpty());
  offered({poWarning});
  EXPECT_EQ(prompts_.warned.isEmpty(), !QPrinterInfo::defaultPrinter().isNull());
}
