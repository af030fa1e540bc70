// The dialog of fonts: it works on the value, whatever is installed here and whatever its controls can show.
#include "dclstd/FontDialog.h"

#include "dclstd/StandardEditors.h"
#include "designintf/CustomColors.h"
#include "rtl/PropText.h"
#include "tests/designintf/DesignTest.h"
#include "tests/support/Fields.h"
#include "tests/support/Modal.h"
#include "vcl/Label.h"

using namespace fields;

namespace {
QStringList TextsOf(const TFont& font) {
  QStringList texts;
  for (const TPropInfo* p : TFont::StaticClass().Properties())
    texts << QString::fromLatin1(p->Name) + u'=' + GetPropText(font, *p);
  return texts;
}

class FontEditor : public testing::Test {
 protected:
  FontEditor() {
    font.SetName(QStringLiteral("Tahoma"));
    font.SetHeight(-18);
    font.SetStyle({TFontStyle::fsBold});
  }
  void SetUp() override { SaveIDECustomColors({}); }
  bool Run(std::function<void(FontDialog&)> act) {
    modal::NextOf<FontDialog>([act = std::move(act)](FontDialog& dlg) {
      act(dlg);
      if (dlg.isVisible()) dlg.ok->click();
    });
    return EditFont(font);
  }
  // What is different after the dialog, which is the text of one property.
  QStringList Changed(std::function<void(FontDialog&)> act) {
    const QStringList before = TextsOf(font);
    EXPECT_TRUE(Run(std::move(act)));
    QStringList changed = TextsOf(font);
    for (const QString& text : before) changed.removeAll(text);
    return changed;
  }
  TFont font;
};
}  // namespace

TEST_F(FontEditor, ShowsTheNameThatIsStoredWhateverIsInstalled) {
  for (const char* name :
       {"Tahoma", "No Such Family At All", "tahoma ", "X", "dejavu sans", "DEJAVU SERIF"}) {
    font.SetName(QString::fromLatin1(name));
    EXPECT_EQ(Changed([&](FontDialog& dlg) {
                EXPECT_EQ(dlg.cmbname->currentText(), font.Name());
                EXPECT_EQ(dlg.edheight->text(), QStringLiteral("-18"));
                EXPECT_TRUE(dlg.styles[0]->isChecked());
                TabThrough(dlg);
                EXPECT_EQ(dlg.cmbname->currentText(), font.Name());
              }),
              QStringList());
  }
}

TEST_F(FontEditor, ConfirmedAsItWasChangesNothingWhatsoever) {
  for (const int height : {-18, -17, -1, 0, 1, 17, 18, 1333, -1333, 32768, INT_MAX, INT_MIN, INT_MIN + 1}) {
    font.SetHeight(height);
    EXPECT_EQ(Changed([](FontDialog& dlg) { TabThrough(dlg); }), QStringList()) << height;
  }
  font.SetHeight(-31);
  for (const int odd : {0, 1, 3, 204, 254, 255}) {
    font.SetCharset(static_cast<TFontCharset>(odd));
    font.SetOrientation(odd - 100);
    font.SetColor(TColor(0x80000000u + static_cast<unsigned>(odd)));
    font.SetPitch(static_cast<TFontPitch>(odd % 3));
    font.SetQuality(static_cast<TFontQuality>(odd % 7));
    font.SetStyle(TFontStyles::FromBits(static_cast<unsigned>(odd) % 16));
    EXPECT_EQ(Changed([](FontDialog& dlg) { TabThrough(dlg); }), QStringList()) << odd;
  }
}

TEST_F(FontEditor, EveryControlChangesItsOwnValueOnly) {
  font.SetQuality(TFontQuality::fqProof);
  font.SetOrientation(450);
  using Texts = QStringList;
  EXPECT_EQ(Changed([](FontDialog& dlg) {
              dlg.cmbname->setFocus();
              dlg.cmbname->lineEdit()->selectAll();
              QTest::keyClicks(dlg.cmbname->lineEdit(), QStringLiteral("Segoe UI"));
            }),
            Texts{QStringLiteral("Name=Segoe UI")});
  EXPECT_EQ(Changed([](FontDialog& dlg) { dlg.styles[1]->click(); }),
            Texts{QStringLiteral("Style=[fsBold,fsItalic]")});
  EXPECT_EQ(Changed([](FontDialog& dlg) { Type(*dlg.edheight, QStringLiteral("20")); }),
            (Texts{QStringLiteral("Height=20"), QStringLiteral("Size=-15")}));
  EXPECT_EQ(Changed([](FontDialog& dlg) {
              Type(*dlg.edsize, QStringLiteral("08"));
              EXPECT_EQ(dlg.edheight->text(), QStringLiteral("-11"));
            }),
            (Texts{QStringLiteral("Height=-11"), QStringLiteral("Size=8")}));
  const auto choose = [](QComboBox* combo, const char* text) {
    combo->showPopup();
    combo->view()->setCurrentIndex(combo->model()->index(combo->findText(QLatin1StringView(text)), 0));
    QTest::keyClick(combo->view(), Qt::Key_Return);
  };
  EXPECT_EQ(Changed([&](FontDialog& dlg) { choose(dlg.cmbcolor, "clRed"); }),
            Texts{QStringLiteral("Color=clRed")});
  EXPECT_EQ(Changed([&](FontDialog& dlg) { choose(dlg.cmbcharset, "RUSSIAN_CHARSET"); }),
            Texts{QStringLiteral("Charset=RUSSIAN_CHARSET")});
  EXPECT_EQ(Changed([&](FontDialog& dlg) { choose(dlg.cmbpitch, "fpFixed"); }),
            Texts{QStringLiteral("Pitch=fpFixed")});
}

TEST_F(FontEditor, AChangeLeavesAValueAloneThatItsControlCannotShow) {
  font.SetHeight(INT_MIN);
  font.SetCharset(TFontCharset{3});
  EXPECT_EQ(Changed([](FontDialog& dlg) { dlg.styles[3]->click(); }),
            QStringList{QStringLiteral("Style=[fsBold,fsStrikeOut]")});
}

TEST_F(FontEditor, ANameThatBeginsLikeAnInstalledOneCanBeTyped) {
  const QString installed = QFontDatabase::families().value(0);
  ASSERT_GT(installed.size(), 3);
  const QString name = installed.left(3);
  EXPECT_EQ(Changed([&](FontDialog& dlg) {
              dlg.cmbname->setFocus();
              dlg.cmbname->lineEdit()->selectAll();
              QTest::keyClicks(dlg.cmbname->lineEdit(), name);
            }),
            QStringList{QStringLiteral("Name=") + name});
}

TEST_F(FontEditor, CancelAndResetThenCancelLeaveTheFont) {
  const QStringList before = TextsOf(font);
  EXPECT_FALSE(Run([](FontDialog& dlg) {
    dlg.styles[0]->click();
    dlg.reset->click();
    EXPECT_EQ(TextsOf(dlg.Font()), TextsOf(TFont()));
    EXPECT_EQ(dlg.edsize->text(), QStringLiteral("9"));
    dlg.cancel->click();
  }));
  EXPECT_EQ(TextsOf(font), before);
}

TEST_F(FontEditor, ThePreviewIsAsLargeAsTheFont) {
  Run([](FontDialog& dlg) {
    Type(*dlg.edheight, QStringLiteral("-20"));
    const QSize small = dlg.testView->sizeHint();
    Type(*dlg.edheight, QStringLiteral("-200"));
    QCoreApplication::processEvents();
    EXPECT_GT(dlg.testView->height(), 5 * small.height());
    EXPECT_GT(dlg.testView->width(), dlg.testView->parentWidget()->width()) << "it is scrolled";
    Type(*dlg.edheight, QStringLiteral("-20"));
    EXPECT_EQ(dlg.testView->sizeHint(), small);
  });
}

TEST_F(FontEditor, OpensFromTheFontPropertyOfEverySelectedComponent) {
  TLabel a(nullptr), b(nullptr);
  b.Font()->SetHeight(-40);
  const TPropInfo& prop = TLabel::StaticClass().GetProp("Font");
  TFontProperty editor(nullptr, {{&a, &prop}, {&b, &prop}});
  modal::NextOf<FontDialog>([](FontDialog& dlg) { dlg.ok->click(); });
  editor.Edit();
  EXPECT_EQ(b.Font()->Height(), -40) << "nothing was changed";
  EXPECT_TRUE(a.ParentFont());
  modal::NextOf<FontDialog>([](FontDialog& dlg) {
    dlg.styles[2]->click();
    dlg.ok->click();
  });
  editor.Edit();
  EXPECT_TRUE(a.Font()->Style().Contains(TFontStyle::fsUnderline));
  EXPECT_TRUE(b.Font()->Style().Contains(TFontStyle::fsUnderline));
}
