// The editor of graphic labels, its verb and the others of the label.
#include <QTabWidget>

#include "designintf/DesignRegistry.h"
#include "library_design/FillDialog.h"
#include "package/component_editors/pVRXCEForms.h"
#include "package/dialogs/pVRXGraphicLabelEditorDlg.h"
#include "package/property_editors/pVRXCPGetMain.h"
#include "rtl/PropAccess.h"
#include "rtl/PropText.h"
#include "tests/designintf/DesignTest.h"
#include "tests/library/VisibleProperties.h"
#include "tests/support/Fields.h"
#include "tests/support/Modal.h"

using G = TVRXGraphicLabel;
using D = TVRXGraphicLabelEditorDlg;

namespace {
QStringList ValuesOf(const TPersistent& value) {
  QStringList values;
  for (const TPropInfo* prop : value.ClassType().Properties()) {
    if (As<TComponent>(&value) && prop->Name == "Name") continue;
    if (prop->IsPart())
      values << ValuesOf(*GetObjectProp(value, *prop));
    else
      values << QString::fromLatin1(prop->Name) + u'=' + GetPropText(value, *prop);
  }
  return values;
}
// What became another value, "Name=new".
std::string Changed(const QStringList& before, const QStringList& after) {
  QStringList changed;
  for (qsizetype i = 0; i < before.size(); ++i)
    if (before[i] != after[i]) changed << after[i];
  return changed.join(u' ').toStdString();
}

class GraphicLabelEditor : public testing::Test {
 protected:
  void SetUp() override {
    label.SetCaption(QStringLiteral("Agiv"));
    visible::Apply(label,
                   QStringLiteral("Transform=tmChair Factor=2500 Toggle=-7 PerspectiveDepth=120 "
                                  "Perspective=tpBird TransAttr=[taPerspective,taEqualLetters] "
                                  "FontFX.Angle=15 FontFX.Tracing=3 FontFX.Style=tdRaised "
                                  "FontFX.LightDepth=2 FontFX.ShadowDepth=4 FontFX.LightColor=clYellow "
                                  "FontFX.ShadowColor=clNavy Font.Name=Courier Font.Color=clMaroon"));
    label.Font()->SetSize(21);
  }
  TVRXGraphicLabel label{nullptr};
};
}  // namespace

TEST_F(GraphicLabelEditor, BeginsWithItsSample) {
  const D dialog(nullptr);
  EXPECT_EQ(dialog.test->Caption(), QStringLiteral("Aaaaaaaaaaaaaaa"));
  EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Graphic Label Editor"));
}

TEST_F(GraphicLabelEditor, ShowsEveryValueOfTheLabel) {
  label.SetAutoSize(false);
  D dialog(nullptr);
  dialog.SetValue(label);
  EXPECT_EQ(Changed(ValuesOf(label), ValuesOf(*dialog.test)), "Caption=Aaaaaaaaaaaaaaa")
      << "a sample in place of the label's own caption";
  EXPECT_EQ(dialog.ComboBoxTransform->currentText(), QStringLiteral("tmChair"));
  EXPECT_EQ(dialog.ComboBoxTransform->currentIndex(), 7);
  EXPECT_EQ(dialog.ComboBoxTransform->count(), 18);
  EXPECT_EQ(dialog.VRXSpinEditFactor->value(), 2500);
  EXPECT_EQ(dialog.ComboBoxStyle->currentIndex(), 2);
  EXPECT_EQ(dialog.VRXSpinEditLightDepth->value(), 2);
  EXPECT_EQ(dialog.VRXSpinEditShadowDepth->value(), 4);
  EXPECT_EQ(dialog.VRXSpinEditAngle->value(), 15);
  EXPECT_EQ(dialog.VRXSpinEditTracing->value(), 3);
  EXPECT_EQ(dialog.VRXLightColorComboBox->Selected(), clYellow);
  EXPECT_EQ(dialog.VRXShadowColorComboBox->Selected(), clNavy);
  EXPECT_EQ(dialog.VRXFontComboBox->currentText(), QStringLiteral("Courier"));
  EXPECT_EQ(dialog.VRXColorComboBox->Selected(), clMaroon);
  EXPECT_EQ(dialog.VRXFontSizeComboBox->currentText(), QStringLiteral("21"));
  EXPECT_EQ(dialog.VRXSpinEditToggle->Shown(), -7);
  EXPECT_EQ(dialog.ComboBoxPerspective->currentText(), QStringLiteral("Bird"));
  EXPECT_EQ(dialog.VRXSpinEditPerspectiveDepth->value(), 120);
  EXPECT_TRUE(dialog.CheckBoxEqualLetters->isChecked());
  EXPECT_FALSE(dialog.CheckBoxAutoToggle->isChecked());
  EXPECT_FALSE(dialog.CheckBoxToggled->isChecked());
}

TEST_F(GraphicLabelEditor, EachControlWritesItsValueAtOnceAndNoOther) {
  struct Row {
    std::function<void(D&)> change;
    const char* value;
  };
  const Row rows[] = {
      {[](D& d) { d.ComboBoxTransform->setCurrentIndex(4); }, "Transform=tmSpeaker"},
      {[](D& d) { d.VRXSpinEditFactor->setValue(9999); }, "Factor=9999"},
      {[](D& d) { d.ComboBoxStyle->setCurrentIndex(7); }, "Style=tdShadow"},
      {[](D& d) { d.VRXSpinEditLightDepth->setValue(1); }, "LightDepth=1"},
      {[](D& d) { d.VRXSpinEditShadowDepth->setValue(6); }, "ShadowDepth=6"},
      {[](D& d) { d.VRXSpinEditAngle->setValue(90); }, "Angle=90"},
      {[](D& d) { d.VRXSpinEditTracing->setValue(5); }, "Tracing=5"},
      {[](D& d) {
         d.VRXLightColorComboBox->SetSelected(clRed);
         emit d.VRXLightColorComboBox->Change();
       },
       "LightColor=clRed"},
      {[](D& d) {
         d.VRXShadowColorComboBox->SetSelected(clLime);
         emit d.VRXShadowColorComboBox->Change();
       },
       "ShadowColor=clLime"},
      {[](D& d) {
         d.pages->setCurrentIndex(2);
         d.VRXFontComboBox->setFocus();
         d.VRXFontComboBox->lineEdit()->selectAll();
         QTest::keyClicks(d.VRXFontComboBox->lineEdit(), QStringLiteral("Sans"));
       },
       "Name=Sans"},
      {[](D& d) {
         d.VRXColorComboBox->SetSelected(clGreen);
         emit d.VRXColorComboBox->Change();
       },
       "Color=clGreen"},
      {[](D& d) { d.VRXFontSizeComboBox->setEditText(QStringLiteral("33")); }, "Height=-44 Size=33"},
      {[](D& d) { d.VRXSpinEditToggle->setValue(44); }, "Toggle=44"},
      {[](D& d) { d.ComboBoxPerspective->setCurrentText(QStringLiteral("Frog")); }, "Perspective=tpFrog"},
      {[](D& d) { d.ComboBoxPerspective->setCurrentText(QStringLiteral("None")); },
       "TransAttr=[taEqualLetters]"},
      {[](D& d) { d.VRXSpinEditPerspectiveDepth->setValue(10); }, "PerspectiveDepth=10"},
      {[](D& d) { d.CheckBoxEqualLetters->click(); }, "TransAttr=[taPerspective]"},
      {[](D& d) { d.CheckBoxAutoToggle->click(); }, "TransAttr=[taPerspective,taAutoToggled,taEqualLetters]"},
      {[](D& d) { d.CheckBoxToggled->click(); }, "TransAttr=[taPerspective,taToggled,taEqualLetters]"},
  };
  label.SetAutoSize(false);
  const QStringList own = ValuesOf(label);
  for (const Row& row : rows) {
    SCOPED_TRACE(row.value);
    D dialog(nullptr);
    dialog.SetValue(label);
    fields::ShowActive(dialog);
    const QStringList before = ValuesOf(*dialog.test);
    const QImage picture = Draw(*dialog.test, Qt::white);
    row.change(dialog);
    QString changed = QString::fromStdString(Changed(before, ValuesOf(*dialog.test)));
    changed.remove(QStringLiteral(" Size=33")).remove(QStringLiteral("Size=33 "));
    EXPECT_EQ(changed.toStdString(),
              QString::fromLatin1(row.value).remove(QStringLiteral(" Size=33")).toStdString());
    // Of what is switched off, and of fonts that may not be installed, nothing is seen.
    if (!QByteArray(row.value).startsWith("Toggle") && !QByteArray(row.value).startsWith("Name")) {
      EXPECT_NE(Draw(*dialog.test, Qt::white), picture);
    }
    EXPECT_EQ(ValuesOf(label), own) << "the label itself is left alone";
  }
}

TEST_F(GraphicLabelEditor, WithoutAPerspectiveTheStoredOneStays) {
  D dialog(nullptr);
  dialog.SetValue(label);
  fields::ShowActive(dialog);
  dialog.ComboBoxPerspective->setCurrentText(QStringLiteral("None"));
  EXPECT_EQ(dialog.test->Get(G::Perspective), TVRXPerspective::tpBird);
  EXPECT_FALSE(dialog.test->Get(G::TransAttr).Contains(TVRXTransAttr::taPerspective));
  EXPECT_TRUE(dialog.test->Get(G::TransAttr).Contains(TVRXTransAttr::taEqualLetters));
  dialog.ComboBoxPerspective->setCurrentText(QStringLiteral("Frog"));
  EXPECT_EQ(dialog.test->Get(G::Perspective), TVRXPerspective::tpFrog);
  EXPECT_TRUE(dialog.test->Get(G::TransAttr).Contains(TVRXTransAttr::taPerspective));
}

TEST_F(GraphicLabelEditor, NumbersEndAtTheirLimits) {
  D dialog(nullptr);
  dialog.VRXSpinEditAngle->setValue(1000);
  dialog.VRXSpinEditFactor->setValue(99999);
  EXPECT_EQ(dialog.VRXSpinEditAngle->value(), 360);
  EXPECT_EQ(dialog.VRXSpinEditFactor->value(), 10000);
  EXPECT_EQ(dialog.VRXSpinEditFactor->minimum(), 0);
  fields::ShowActive(dialog);
  dialog.VRXFontSizeComboBox->setEditText(QString());
  dialog.VRXFontSizeComboBox->setEditText(QStringLiteral("0"));
  EXPECT_NE(dialog.test->Font()->Size(), 0);
}

TEST_F(GraphicLabelEditor, ASizeThatIsLeftEmptyComesBack) {
  D dialog(nullptr);
  dialog.SetValue(label);
  fields::ShowActive(dialog);
  dialog.pages->setCurrentIndex(2);
  QLineEdit* field = dialog.VRXFontSizeComboBox->lineEdit();
  const int height = dialog.test->Font()->Height();
  for (const char* text : {"", "-", "0"}) {
    dialog.VRXFontSizeComboBox->setFocus();
    field->selectAll();
    QTest::keyClick(field, Qt::Key_Delete);
    QTest::keyClicks(field, QString::fromLatin1(text));
    EXPECT_EQ(field->text(), QString::fromLatin1(text));
    QTest::keyClick(field, Qt::Key_Tab);
    EXPECT_FALSE(dialog.VRXFontSizeComboBox->hasFocus());
    EXPECT_EQ(field->text(), QStringLiteral("21")) << text;
    EXPECT_EQ(dialog.test->Font()->Height(), height);
  }
}

TEST_F(GraphicLabelEditor, AnAngleOverItsLimitBecomesTheLimit) {
  D dialog(nullptr);
  dialog.SetValue(label);
  fields::ShowActive(dialog);
  dialog.pages->setCurrentIndex(1);
  fields::Type(*dialog.VRXSpinEditAngle, QStringLiteral("400"));
  EXPECT_EQ(dialog.VRXSpinEditAngle->text(), QStringLiteral("360"));
  EXPECT_EQ(dialog.test->FontFX()->Angle(), 360);
  dialog.pages->setCurrentIndex(3);
  fields::Type(*dialog.VRXSpinEditPerspectiveDepth, QStringLiteral("7777"));
  EXPECT_EQ(dialog.test->Get(G::PerspectiveDepth), 1000);
}

TEST_F(GraphicLabelEditor, ThePagesFillTheirSide) {
  D dialog(nullptr);
  fields::ShowActive(dialog);
  EXPECT_LE(dialog.pages->parentWidget()->height() - dialog.pages->geometry().bottom(), 16);
}

TEST_F(GraphicLabelEditor, BothButtonsOpenTheFill) {
  D dialog(nullptr);
  dialog.SetValue(label);
  fields::ShowActive(dialog);
  int opened = 0;
  for (QPushButton* button : {dialog.ButtonFillObjectDialog, dialog.ButtonFontDialog}) {
    modal::NextOf<TVRXFillEditorDlg>([&](TVRXFillEditorDlg& fill) {
      ++opened;
      fill.test->ShapeFill()->Set(TVRXFillObject::Color, opened == 1 ? clRed : clBlue);
      fill.accept();
    });
    button->click();
  }
  EXPECT_EQ(opened, 2);
  EXPECT_EQ(dialog.test->FillObject()->Get(TVRXFillObject::Color), clBlue);
  EXPECT_NE(label.FillObject()->Get(TVRXFillObject::Color), clBlue);
}

TEST_F(GraphicLabelEditor, OkTakesEverythingAndCancelNothing) {
  const QStringList before = ValuesOf(label);
  for (const bool ok : {false, true}) {
    modal::NextOf<D>([&](D& dialog) {
      dialog.ComboBoxTransform->setCurrentIndex(2);
      dialog.VRXSpinEditFactor->setValue(8000);
      ok ? dialog.ButtonOK->click() : dialog.ButtonCancel->click();
    });
    EXPECT_EQ(VRXCPGetGraphicLabel(label), ok);
    if (!ok) {
      EXPECT_EQ(ValuesOf(label), before);
    }
  }
  EXPECT_EQ(label.Get(G::Transform), TVRXTransform::tmHalfcircle);
  EXPECT_EQ(label.Get(G::Factor), 8000);
  EXPECT_EQ(label.Caption(), QStringLiteral("Agiv"));
  // As large as its letters are now.
  TVRXGraphicLabel other(nullptr);
  other.Assign(&label);
  const QSize size = label.BoundsRect().size();
  other.SetAutoSize(false);
  other.SetAutoSize(true);
  EXPECT_EQ(other.BoundsRect().size(), size);
}

TEST_F(GraphicLabelEditor, WithoutATouchOkChangesNothing) {
  label.SetBounds(17, 23, 99, 44);
  const QStringList before = ValuesOf(label);
  modal::NextOf<D>([&](D& dialog) { dialog.ButtonOK->click(); });
  EXPECT_TRUE(VRXCPGetGraphicLabel(label));
  EXPECT_EQ(ValuesOf(label), before);
  EXPECT_EQ(label.BoundsRect(), QRect(17, 23, 99, 44));
  // The sample is another size, which is the preview's alone.
  for (const bool fits : {true, false}) {
    label.SetAutoSize(fits);
    label.Set(G::Alignment, TAlignment::taRightJustify);
    label.SetAnchors({TAnchorKind::akRight, TAnchorKind::akBottom});
    const QRect bounds = label.BoundsRect();
    const QStringList now = ValuesOf(label);
    modal::NextOf<D>([&](D& dialog) {
      EXPECT_EQ(dialog.test->BoundsRect().size() != bounds.size(), fits);
      dialog.VRXSpinEditAngle->setValue(40);
      dialog.VRXSpinEditAngle->setValue(15);
      dialog.ButtonOK->click();
    });
    EXPECT_TRUE(VRXCPGetGraphicLabel(label));
    EXPECT_EQ(Changed(now, ValuesOf(label)), "");
    EXPECT_EQ(label.BoundsRect(), bounds);
  }
}

namespace {
QStringList Menu(const TComponentEditor& editor) {
  QStringList verbs;
  for (int i = -1; i <= editor.GetVerbCount(); ++i) verbs << editor.GetVerb(i);
  return verbs;
}
}  // namespace

TEST_F(GraphicLabelEditor, TheVerbsAreThoseOfItsState) {
  FakeDesigner designer;
  TVRXGraphicLabelComponentEditor editor(&label, &designer);
  const QString most = QStringLiteral("|Editor|-|Wave|Normal|AutoSize [%1]|FillObject|Font|FontFX|");
  EXPECT_EQ(Menu(editor).join(u'|'),
            most.arg(QStringLiteral("True")) + QStringLiteral("Perspective (tpBird)|"));
  EXPECT_EQ(editor.GetVerbCount(), 9);
  editor.ExecuteVerb(8);
  EXPECT_EQ(label.Get(G::Perspective), TVRXPerspective::tpFrog);
  EXPECT_EQ(editor.GetVerb(8), QStringLiteral("Perspective (tpFrog)"));
  editor.ExecuteVerb(8);
  EXPECT_EQ(label.Get(G::Perspective), TVRXPerspective::tpBird);
  editor.ExecuteVerb(2);
  EXPECT_EQ(label.Get(G::Transform), TVRXTransform::tmWave);
  editor.ExecuteVerb(3);
  EXPECT_EQ(label.Get(G::Transform), TVRXTransform::tmNone);
  editor.ExecuteVerb(4);
  EXPECT_FALSE(label.AutoSize());
  EXPECT_EQ(designer.modified, 5);
  // The flag that the last one depends on is that of the perspective alone.
  label.SetTransAttr({TVRXTransAttr::taToggled, TVRXTransAttr::taAutoToggled, TVRXTransAttr::taEqualLetters});
  EXPECT_EQ(Menu(editor).join(u'|'), most.arg(QStringLiteral("False")));
  EXPECT_EQ(editor.GetVerbCount(), 8);
  editor.ExecuteVerb(8);
  editor.ExecuteVerb(1);
  EXPECT_EQ(designer.modified, 5);
  modal::NextOf<D>([](D& dialog) { dialog.reject(); });
  editor.ExecuteVerb(0);
  EXPECT_EQ(designer.modified, 5);
  modal::NextOf<D>([](D& dialog) { dialog.accept(); });
  editor.ExecuteVerb(0);
  EXPECT_EQ(designer.modified, 6);
}

TEST_F(GraphicLabelEditor, TheFillHasThePicturesOfTheLabel) {
  TImageList images(nullptr);
  label.Set(G::ImageList, &images);
  D dialog(nullptr);
  dialog.SetValue(label);
  fields::ShowActive(dialog);
  modal::NextOf<TVRXFillEditorDlg>([&](TVRXFillEditorDlg& fill) {
    EXPECT_EQ(fill.test->Get(TVRXBaseShape::ShapeFillImageList), &images);
    fill.reject();
  });
  dialog.ButtonFillObjectDialog->click();
}

TEST_F(GraphicLabelEditor, AFontWithoutANameHasItsOwnAgain) {
  D dialog(nullptr);
  dialog.SetValue(label);
  fields::ShowActive(dialog);
  dialog.pages->setCurrentIndex(2);
  QLineEdit* field = dialog.VRXFontComboBox->lineEdit();
  dialog.VRXFontComboBox->setFocus();
  field->selectAll();
  QTest::keyClick(field, Qt::Key_Delete);
  EXPECT_EQ(field->text(), QString());
  QTest::keyClick(field, Qt::Key_Tab);
  EXPECT_EQ(field->text(), QStringLiteral("Courier"));
  EXPECT_EQ(dialog.test->Font()->Name(), QStringLiteral("Courier"));
}

TEST_F(GraphicLabelEditor, OffersTheUsualSizesAndAnyColour) {
  D dialog(nullptr);
  dialog.SetValue(label);
  EXPECT_GT(dialog.VRXFontSizeComboBox->count(), 5);
  EXPECT_GE(dialog.VRXFontSizeComboBox->findText(QStringLiteral("24")), 0);
  const QStringList colors = fields::Texts(*dialog.VRXColorComboBox);
  EXPECT_TRUE(colors.contains(QStringLiteral("clMaroon")));
  EXPECT_FALSE(colors.contains(QStringLiteral("clBtnFace"))) << "the system's are not among them";
  EXPECT_TRUE(colors.contains(QStringLiteral("Custom...")));
  dialog.VRXColorComboBox->SetCustomColors({QStringLiteral("ColorA=123456")});
  EXPECT_GE(dialog.VRXColorComboBox->findData(0x123456u), 0) << "one of the person's own";
}
