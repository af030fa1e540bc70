// The dialogs of shadows, bevels, teeth, figures, light colours and fills, each on its live preview.
#include "dclstd/PictureEditor.h"
#include "library_design/ColorDialogs.h"
#include "library_design/FillDialog.h"
#include "library_design/LookDialogs.h"
#include "library_design/pVRXCommon.h"
#include "package/dialogs/pVRXLightEditorDlg.h"
#include "package/dialogs/pVRXShadowEditorDlg.h"
#include "package/dialogs/pVRXShapeEditorDlg.h"
#include "package/dialogs/pVRXSimpleBevelEditorDlg.h"
#include "package/dialogs/pVRXTeethEditorDlg.h"
#include "package/property_editors/pVRXCPGetMain.h"
#include "tests/package/PixelDialogTest.h"
#include "tests/support/Fields.h"
#include "vcl/PictureFile.h"
#include "vcl/Theme.h"

#include <QListWidget>

using namespace pixeltest;

namespace {
// Opens a launcher's dialog, does something in it, and says what the launcher returned.
template <class D, class F>
auto Launch(F launcher, std::function<void(D&)> act) {
  bool came = false;
  modal::NextOf<D>([&came, act = std::move(act)](D& dialog) {
    came = true;
    act(dialog);
    if (dialog.isVisible()) dialog.reject();
  });
  const auto result = launcher();
  EXPECT_TRUE(came);
  return result;
}
void SetColor(TVRXColorComboBox* combo, TColor color) {
  combo->SetSelected(color);
  emit combo->Change();
}
QStringList ColorsOf(const QListWidget& list) {
  QStringList texts;
  for (int i = 0; i < list.count(); ++i) texts << list.item(i)->text();
  return texts;
}
class LookDialogs : public testing::Test {
 protected:
  void SetUp() override { SaveIDECustomColors({}); }
  void TearDown() override { ApplyTheme(TTheme::Light); }
  ScriptedPrompts prompts;
};
}  // namespace

TEST_F(LookDialogs, ShadowOkWritesAllOfItAndCancelNothing) {
  TVRXShadow shadow;
  const auto change = [](TVRXShadowEditorDlg& dlg) {
    Choose(dlg.cmbstyle, QStringLiteral("hssTracing"));
    SetColor(dlg.cmbS, clRed);
    fields::Type(*dlg.spind, QStringLiteral("9"));
    EXPECT_EQ(dlg.test->Shadow()->Description(), QStringLiteral("Tracing, clRed, depth 9"));
  };
  EXPECT_FALSE(Launch<TVRXShadowEditorDlg>([&] { return VRXCPGetShadow(shadow); },
                                           [&](auto& dlg) {
                                             change(dlg);
                                             Click(dlg.Button1);
                                           }));
  EXPECT_EQ(shadow.Description(), QStringLiteral("None"));
  EXPECT_TRUE(Launch<TVRXShadowEditorDlg>([&] { return VRXCPGetShadow(shadow); },
                                          [&](auto& dlg) {
                                            change(dlg);
                                            Click(dlg.ok);
                                          }));
  EXPECT_EQ(shadow.Description(), QStringLiteral("Tracing, clRed, depth 9"));
}

TEST_F(LookDialogs, AShadowsDepthOf200IsMinus56AndShownSo) {
  TVRXShadow shadow;
  EXPECT_TRUE(Launch<TVRXShadowEditorDlg>([&] { return VRXCPGetShadow(shadow); },
                                          [](auto& dlg) {
                                            fields::Type(*dlg.spind, QStringLiteral("200"));
                                            EXPECT_EQ(dlg.test->Shadow()->Get(TVRXShadow::Depth), -56);
                                            EXPECT_EQ(dlg.spind->text(), QStringLiteral("-56"));
                                            fields::Type(*dlg.spind, QStringLiteral("300"));
                                            EXPECT_EQ(dlg.spind->text(), QStringLiteral("44"));
                                            fields::Type(*dlg.spind, QStringLiteral("999"));
                                            EXPECT_EQ(dlg.spind->text(), QStringLiteral("-25"));
                                            fields::Type(*dlg.spind, QStringLiteral("200"));
                                            Click(dlg.ok);
                                          }));
  EXPECT_EQ(shadow.Get(TVRXShadow::Depth), -56);
}

TEST_F(LookDialogs, ADepthThatDoesNotFitTheFieldIsShownAndStays) {
  TVRXShadow shadow;
  shadow.Set(TVRXShadow::Depth, -128);
  EXPECT_TRUE(Launch<TVRXShadowEditorDlg>([&] { return VRXCPGetShadow(shadow); },
                                          [](auto& dlg) {
                                            EXPECT_EQ(dlg.spind->text(), QStringLiteral("-128"));
                                            Choose(dlg.cmbstyle, QStringLiteral("hssSolid"));
                                            Click(dlg.ok);
                                          }));
  EXPECT_EQ(shadow.Get(TVRXShadow::Depth), -128);
}

TEST_F(LookDialogs, ShadowResetIsANewShadowAndCancelStillLeavesTheOld) {
  TVRXShadow shadow;
  shadow.Set(TVRXShadow::Style, TVRXShadowStyle::hssSolid);
  shadow.Set(TVRXShadow::Depth, 40);
  EXPECT_FALSE(Launch<TVRXShadowEditorDlg>(
      [&] { return VRXCPGetShadow(shadow); },
      [](auto& dlg) {
        EXPECT_EQ(dlg.spind->text(), QStringLiteral("40"));
        Click(dlg.reset);
        EXPECT_TRUE(dlg.isVisible());
        EXPECT_EQ(dlg.test->Shadow()->Description(), TVRXShadow().Description());
        EXPECT_EQ(dlg.cmbstyle->currentIndex(), 0);
        EXPECT_EQ(dlg.spind->text(), QString::number(TVRXShadow().Get(TVRXShadow::Depth)));
      }));
  EXPECT_EQ(shadow.Get(TVRXShadow::Depth), 40);
}

TEST_F(LookDialogs, CustomColoursAreSavedOnCancelToo) {
  TVRXShadow shadow;
  const QStringList colors = CustomColorEntries({TColor(0x112233)});
  Launch<TVRXShadowEditorDlg>([&] { return VRXCPGetShadow(shadow); },
                              [&](auto& dlg) { dlg.cmbS->SetCustomColors(colors); });
  EXPECT_EQ(LoadIDECustomColors(), colors);
}

TEST_F(LookDialogs, TheShadowsColourButtonOpensTheColourDialog) {
  TVRXShadow shadow;
  Launch<TVRXShadowEditorDlg>([&] { return VRXCPGetShadow(shadow); },
                              [](auto& dlg) {
                                modal::NextOf<QColorDialog>([](auto& colors) {
                                  colors.setCurrentColor(Qt::yellow);
                                  colors.accept();
                                });
                                Click(dlg.dlgl);
                                EXPECT_EQ(dlg.test->Shadow()->Get(TVRXShadow::Color), clYellow);
                              });
}

TEST_F(LookDialogs, BevelOkWritesAllOfItAndCancelNothing) {
  const auto change = [](TVRXSimpleBevelEditorDlg& dlg) {
    Choose(dlg.cmbstyle, QStringLiteral("sbOffset"));
    fields::Type(*dlg.spind, QStringLiteral("7"));
    SetColor(dlg.cmbL, clRed);
    SetColor(dlg.cmbs, clLime);
    SetColor(dlg.cmbn, clBlue);
  };
  for (const bool ok : {false, true}) {
    TVRXSimpleBevel bevel;
    EXPECT_EQ(Launch<TVRXSimpleBevelEditorDlg>([&] { return VRXCPGetSimpleBevel(bevel); },
                                               [&](auto& dlg) {
                                                 change(dlg);
                                                 Click(ok ? dlg.ok : dlg.Button1);
                                               }),
              ok);
    EXPECT_EQ(bevel.Get(TVRXSimpleBevel::Style) == TVRXSimpleBevelStyle::sbOffset, ok);
    EXPECT_EQ(bevel.Get(TVRXSimpleBevel::Width) == 7, ok);
    EXPECT_EQ(bevel.Get(TVRXSimpleBevel::LightColor) == clRed, ok);
    EXPECT_EQ(bevel.Get(TVRXSimpleBevel::ShadowColor) == clLime, ok);
    EXPECT_EQ(bevel.Get(TVRXSimpleBevel::NormalColor) == clBlue, ok);
  }
}

TEST_F(LookDialogs, ABevelsWidthOf130IsMinus126) {
  TVRXSimpleBevel bevel;
  EXPECT_TRUE(Launch<TVRXSimpleBevelEditorDlg>([&] { return VRXCPGetSimpleBevel(bevel); },
                                               [](auto& dlg) {
                                                 fields::Type(*dlg.spind, QStringLiteral("130"));
                                                 EXPECT_EQ(dlg.spind->text(), QStringLiteral("-126"));
                                                 Click(dlg.ok);
                                               }));
  EXPECT_EQ(bevel.Get(TVRXSimpleBevel::Width), -126);
}

namespace {
// A dialog whose loading is counted.
class CountedBevelDlg : public TVRXSimpleBevelEditorDlg {
 public:
  using TVRXSimpleBevelEditorDlg::TVRXSimpleBevelEditorDlg;
  int loads = 0;

 protected:
  void LoadControls() override {
    ++loads;
    TVRXSimpleBevelEditorDlg::LoadControls();
  }
};
}  // namespace

TEST_F(LookDialogs, BeforeItIsSeenABevelsChangesLoadNothing) {
  CountedBevelDlg dlg(nullptr);
  dlg.activated = true;
  SetColor(dlg.cmbs, clRed);
  dlg.spind->setValue(9);
  dlg.cmbstyle->setCurrentIndex(2);
  EXPECT_EQ(dlg.loads, 0);
  EXPECT_EQ(dlg.test->Bevel()->Get(TVRXSimpleBevel::ShadowColor), clRed);
  EXPECT_EQ(dlg.test->Bevel()->Get(TVRXSimpleBevel::Width), 9);
  EXPECT_EQ(dlg.test->Bevel()->Get(TVRXSimpleBevel::Style), TVRXSimpleBevelStyle::sbOffset);
}

TEST_F(LookDialogs, SeenButNotYetActiveABevelLoadsForColourAndWidthButNotForItsStyle) {
  CountedBevelDlg dlg(nullptr);
  fields::ShowActive(dlg);
  dlg.activated = false;
  dlg.loads = 0;
  dlg.cmbstyle->setCurrentIndex(1);
  EXPECT_EQ(dlg.loads, 0);
  SetColor(dlg.cmbn, clRed);
  EXPECT_EQ(dlg.loads, 1);
  dlg.spind->setValue(5);
  EXPECT_EQ(dlg.loads, 2);
  dlg.activated = true;
  dlg.cmbstyle->setCurrentIndex(2);
  EXPECT_EQ(dlg.loads, 3);
}

TEST_F(LookDialogs, AllThreeColoursOfABevelShareOneListOfCustomColours) {
  TVRXSimpleBevel bevel;
  Launch<TVRXSimpleBevelEditorDlg>(
      [&] { return VRXCPGetSimpleBevel(bevel); },
      [](auto& dlg) {
        EXPECT_EQ(dlg.dlgl->text(), QStringLiteral("..."));
        modal::NextOf<QColorDialog>([](auto& colors) {
          colors.setCurrentColor(Qt::yellow);
          colors.accept();
        });
        Click(dlg.dlgl);
        EXPECT_EQ(dlg.test->Bevel()->Get(TVRXSimpleBevel::LightColor), clYellow);
        for (QToolButton* button : {dlg.dlgs, dlg.dlgn}) {
          const int red = button == dlg.dlgs ? 17 : 23;
          modal::NextOf<ColorEnhDialog>([red](auto& colors) {
            const auto numbers = colors.template findChildren<QSpinBox*>();
            numbers[0]->setValue(red);
            Click(colors.template findChild<QPushButton*>(QStringLiteral("addCustom")));
            colors.accept();
          });
          const QStringList before = dlg.cmbL->CustomColors();
          Click(button);
          EXPECT_NE(dlg.cmbL->CustomColors(), before);
        }
        EXPECT_EQ(ToQColor(dlg.test->Bevel()->Get(TVRXSimpleBevel::NormalColor)).red(), 23);
        EXPECT_EQ(ToQColor(dlg.test->Bevel()->Get(TVRXSimpleBevel::ShadowColor)).red(), 17);
      });
}

TEST_F(LookDialogs, ThePreviewOfABevelKeepsTheGroundOfForms) {
  TVRXSimpleBevelEditorDlg dlg(nullptr);
  fields::ShowActive(dlg);
  auto* panel = dlg.findChild<QWidget*>(QStringLiteral("previewPanel"));
  ASSERT_NE(panel, nullptr);
  const auto ground = [&] { return panel->grab().toImage().pixelColor(4, panel->height() / 2); };
  EXPECT_EQ(ground(), ToQColor(clBtnFace));
  ApplyTheme(TTheme::Dark);
  dlg.FormCreate();
  QCoreApplication::processEvents();
  EXPECT_EQ(ground(), ToQColor(clBtnFace));
  EXPECT_NE(dlg.grab().toImage().pixelColor(3, dlg.height() - 3), ToQColor(clBtnFace));
}

TEST_F(LookDialogs, TeethOkWritesAllOfThemAndCancelNothing) {
  for (const bool ok : {false, true}) {
    TVRXTeeth teeth;
    EXPECT_EQ(Launch<TVRXTeethEditorDlg>([&] { return VRXCPGetTeeth(teeth); },
                                         [&](auto& dlg) {
                                           Choose(dlg.cmb, QStringLiteral("tdUp"));
                                           fields::Type(*dlg.spinc, QStringLiteral("12"));
                                           fields::Type(*dlg.spinW, QStringLiteral("31"));
                                           fields::Type(*dlg.spinh, QStringLiteral("249"));
                                           dlg.chko->click();
                                           Click(ok ? dlg.ok : dlg.Button1);
                                         }),
              ok);
    EXPECT_EQ(teeth.Get(TVRXTeeth::Direction) == TVRXTeethDirection::tdUp, ok);
    EXPECT_EQ(teeth.Get(TVRXTeeth::Count) == 12, ok);
    EXPECT_EQ(teeth.Get(TVRXTeeth::Width) == 31, ok) << "stored though it is set by count";
    EXPECT_EQ(teeth.Get(TVRXTeeth::Height) == 249, ok);
    EXPECT_EQ(teeth.Get(TVRXTeeth::Offset), !ok);
    EXPECT_TRUE(teeth.Get(TVRXTeeth::SetPerCount));
  }
}

TEST_F(LookDialogs, TeethAreDrawnByCountWhateverTheirSize) {
  TVRXTeeth teeth;
  Launch<TVRXTeethEditorDlg>([&] { return VRXCPGetTeeth(teeth); },
                             [](auto& dlg) {
                               EXPECT_TRUE(dlg.chkc->isChecked());
                               EXPECT_TRUE(dlg.chko->isChecked());
                               const QPolygonF byCount = dlg.test->Outline(dlg.test->ClientRect());
                               fields::Type(*dlg.spinW, QStringLiteral("33"));
                               EXPECT_EQ(dlg.test->Outline(dlg.test->ClientRect()), byCount);
                               dlg.chkc->click();
                               EXPECT_NE(dlg.test->Outline(dlg.test->ClientRect()), byCount);
                             });
}

TEST_F(LookDialogs, TeethCannotBeSpunAbove250AndTheCountHasTwoCharacters) {
  TVRXTeethEditorDlg dlg(nullptr);
  fields::ShowActive(dlg);
  for (TVRXSpinEdit* edit : {dlg.spinW, dlg.spinh}) {
    edit->setValue(249);
    for (int i = 0; i < 3; ++i) edit->stepBy(1);
    EXPECT_EQ(edit->value(), 250);
  }
  fields::Type(*dlg.spinc, QStringLiteral("123"));
  EXPECT_EQ(dlg.spinc->text(), QStringLiteral("12"));
}

TEST_F(LookDialogs, OpenedOnAStarTheLastShapeIsSelectedAndCancelReturnsIt) {
  using enum TVRXShapeType;
  const auto open = [](TVRXShapeType shape, std::function<void(TVRXShapeEditorDlg&)> act) {
    return Launch<TVRXShapeEditorDlg>([=] { return VRXCPGetShape(shape); }, std::move(act));
  };
  EXPECT_EQ(open(stStar,
                 [](auto& dlg) {
                   EXPECT_TRUE(dlg.activated);
                   EXPECT_EQ(dlg.pred->currentIndex(), 10);
                   EXPECT_EQ(dlg.pred->count(), 11);
                   Choose(dlg.pred, QStringLiteral("stComb"));
                   EXPECT_EQ(dlg.test->Get(TVRXBaseShape::Shape), stComb);
                   Click(dlg.btnCancel);
                 }),
            stStar);
  EXPECT_EQ(open(stStar,
                 [](auto& dlg) {
                   Choose(dlg.pred, QStringLiteral("stDirectLeft"));
                   Click(dlg.btnOK);
                 }),
            stDirectLeft);
}

TEST_F(LookDialogs, TheFirstActivationSelectsWhatThePreviewHas) {
  TVRXShapeEditorDlg shapes(nullptr);
  shapes.test->Set(TVRXBaseShape::Shape, TVRXShapeType::stDiamond);
  shapes.FormActivate();
  EXPECT_EQ(shapes.pred->currentText(), QStringLiteral("stDiamond"));
  shapes.test->Set(TVRXBaseShape::Shape, TVRXShapeType::stComb);
  shapes.FormActivate();
  EXPECT_EQ(shapes.pred->currentText(), QStringLiteral("stDiamond")) << "the first only";
  TVRXLightEditorDlg lights(nullptr);
  lights.test->Set(TVRXCustomLight::LightColor, TVRXLightColor::lcMarine);
  lights.FormActivate();
  EXPECT_EQ(lights.pred->currentText(), QStringLiteral("lcMarine"));
}

TEST_F(LookDialogs, ALightIsPickedAndCancelReturnsWhatWasGiven) {
  using enum TVRXLightColor;
  const auto open = [](TVRXLightColor color, bool ok) {
    return Launch<TVRXLightEditorDlg>([=] { return VRXCPGetLightColor(color); },
                                      [ok](auto& dlg) {
                                        EXPECT_EQ(dlg.pred->currentText(), QStringLiteral("lcMarine"));
                                        Choose(dlg.pred, QStringLiteral("lcPurple"));
                                        EXPECT_EQ(dlg.pred->currentText(), QStringLiteral("lcPurple"));
                                        EXPECT_EQ(dlg.test->Get(TVRXCustomLight::LightColor), lcPurple);
                                        Click(ok ? dlg.btnOK : dlg.btnCancel);
                                      });
  };
  EXPECT_EQ(open(lcMarine, false), lcMarine);
  EXPECT_EQ(open(lcMarine, true), lcPurple);
}

TEST_F(LookDialogs, AClickOnTheLightTurnsItOnAndTheNextOneOff) {
  const TVRXLightColor result =
      Launch<TVRXLightEditorDlg>([] { return VRXCPGetLightColor(TVRXLightColor::lcYellow); },
                                 [](auto& dlg) {
                                   const auto active = [&] { return dlg.test->Get(TVRXCustomLight::Active); };
                                   EXPECT_FALSE(active()) << "the disabled colour at first";
                                   const QImage off = dlg.testView->grab().toImage();
                                   Click(dlg.testView);
                                   EXPECT_TRUE(active());
                                   EXPECT_NE(dlg.testView->grab().toImage(), off);
                                   Click(dlg.testView);
                                   EXPECT_FALSE(active());
                                   EXPECT_EQ(dlg.testView->grab().toImage(), off);
                                   QTest::mouseClick(dlg.testView, Qt::RightButton);
                                   EXPECT_FALSE(active());
                                   QTest::mousePress(dlg.testView, Qt::LeftButton);
                                   QTest::mouseRelease(dlg.testView, Qt::LeftButton, {}, QPoint(-5, 5));
                                   EXPECT_FALSE(active()) << "released elsewhere";
                                   Click(dlg.testView);
                                   Click(dlg.btnOK);
                                 });
  EXPECT_EQ(result, TVRXLightColor::lcYellow);
}

TEST_F(LookDialogs, ThoseWithoutResetHaveNoneAndDoNotSwitchTheThemeMode) {
  TVRXShapeEditorDlg shapes(nullptr);
  TVRXLightEditorDlg lights(nullptr);
  for (const QDialog* dialog : std::initializer_list<QDialog*>{&shapes, &lights}) {
    EXPECT_EQ(dialog->findChildren<QPushButton*>().size(), 2);
    EXPECT_EQ(VRXThemeMode(*dialog), 0);
  }
  EXPECT_EQ(VRXThemeMode(TVRXTeethEditorDlg(nullptr)), 1);
  EXPECT_EQ(VRXThemeMode(TVRXShadowEditorDlg(nullptr)), 1);
  EXPECT_EQ(VRXThemeMode(TVRXSimpleBevelEditorDlg(nullptr)), 1);
}

TEST_F(LookDialogs, AShapeFillsDialogHasItsTitleAndTakesEverythingOver) {
  TVRXShapeFill fill;
  EXPECT_TRUE(Launch<TVRXFillEditorDlg>([&] { return VRXCPGetShapeFill(fill); },
                                        [](auto& dlg) {
                                          EXPECT_EQ(dlg.windowTitle(), QStringLiteral("ShapeFill-Editor"));
                                          Choose(dlg.cmbkind, QStringLiteral("fkHatch"));
                                          Choose(dlg.cmbhatch, QStringLiteral("bsCross"));
                                          Choose(dlg.cmbdirection, QStringLiteral("gdRadial"));
                                          Choose(dlg.cmbplace, QStringLiteral("bpStretch"));
                                          SetColor(dlg.cmbcolor, clRed);
                                          SetColor(dlg.cmbend, clBlue);
                                          fields::Type(*dlg.edindex, QStringLiteral("12"));
                                          Click(dlg.ok);
                                        }));
  EXPECT_EQ(fill.Description(), QStringLiteral("Hatch, clRed on clBlue"));
  EXPECT_EQ(fill.Get(TVRXFillObject::Hatch), TBrushStyle::bsCross);
  EXPECT_EQ(fill.Get(TVRXFillObject::Direction), TVRXGradientDirection::gdRadial);
  EXPECT_EQ(fill.Get(TVRXFillObject::BitmapPlace), TVRXBitmapPlace::bpStretch);
  EXPECT_EQ(fill.Get(TVRXFillObject::ImageIndex), 12);
}

TEST_F(LookDialogs, ColoursAreAddedBehindTheTwoOfTheGradientAndTakenAway) {
  TVRXFillObject fill;
  fill.Set(TVRXFillObject::Color, clRed);
  fill.Set(TVRXFillObject::EndColor, clLime);
  const auto add = [](TVRXFillEditorDlg& dlg, const char* color) {
    modal::NextOf<ColorEnhDialog>([color](auto& colors) {
      for (QLineEdit* edit : colors.template findChildren<QLineEdit*>())
        if (edit->toolTip().contains(QStringLiteral("BBGGRR"))) {
          edit->selectAll();
          QTest::keyClicks(edit, QString::fromLatin1(color));
        }
      colors.accept();
    });
    Click(dlg.btnadd);
  };
  EXPECT_TRUE(Launch<TVRXFillEditorDlg>(
      [&] { return VRXCPGetFillObject(fill); },
      [&](auto& dlg) {
        EXPECT_EQ(dlg.windowTitle(), QStringLiteral("Fill-Editor"));
        EXPECT_FALSE(dlg.btndelete->isEnabled());
        add(dlg, "clBlue");
        EXPECT_EQ(ColorsOf(*dlg.colors).join(u' '), QStringLiteral("clRed clLime clBlue"));
        add(dlg, "clAqua");
        dlg.colors->setCurrentRow(1);
        Click(dlg.btndelete);
        EXPECT_EQ(ColorsOf(*dlg.colors).join(u' '), QStringLiteral("clRed clBlue clAqua"));
        Click(dlg.ok);
      }));
  ASSERT_EQ(fill.Colors()->Count(), 3);
  EXPECT_EQ(fill.Colors()->Color(1), clBlue);
  EXPECT_FALSE(Launch<TVRXFillEditorDlg>([&] { return VRXCPGetFillObject(fill); },
                                         [](auto& dlg) {
                                           Click(dlg.reset);
                                           EXPECT_EQ(dlg.colors->count(), 0);
                                         }));
  EXPECT_EQ(fill.Colors()->Count(), 3);
}

TEST_F(LookDialogs, ThePreviewOfAFillFindsThePicturesOfTheList) {
  TVRXFillObject fill;
  fill.Set(TVRXFillObject::Kind, TVRXFillKind::fkBitmap);
  fill.Set(TVRXFillObject::ImageIndex, 0);
  TImageList images(nullptr);
  QImage red(16, 16, QImage::Format_ARGB32);
  red.fill(Qt::red);
  images.SetPictures({red});
  Launch<TVRXFillEditorDlg>(
      [&] { return VRXCPGetFillObject(fill, &images); },
      [](auto& dlg) {
        EXPECT_EQ(dlg.testView->grab().toImage().pixelColor(dlg.testView->rect().center()), QColor(Qt::red));
      });
}

TEST_F(LookDialogs, TheBitmapOfAFillIsEditedInThePictureDialog) {
  TVRXFillObject fill;
  QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("flag.png"));
  QImage picture(5, 3, QImage::Format_RGB32);
  picture.fill(Qt::green);
  ASSERT_TRUE(picture.save(file));
  EXPECT_TRUE(Launch<TVRXFillEditorDlg>([&] { return VRXCPGetFillObject(fill); },
                                        [&](auto& dlg) {
                                          modal::NextOf<PictureEditorDialog>([&](auto& pictures) {
                                            pictures.LoadFile(file);
                                            pictures.accept();
                                          });
                                          Click(dlg.btnbitmap);
                                          Click(dlg.ok);
                                        }));
  EXPECT_EQ(fill.Bitmap()->Image().size(), QSize(5, 3));
}

TEST_F(LookDialogs, BevelAndBrushOfControlsAreTakenOverOnOkOnly) {
  for (const bool ok : {false, true}) {
    TVRXBevel bevel;
    EXPECT_EQ(Launch<TVRXBevelEditorDlg>([&] { return VRXCPGetBevel(bevel); },
                                         [&](auto& dlg) {
                                           Choose(dlg.cmbouter, QStringLiteral("bvRaised"));
                                           Choose(dlg.cmbinner, QStringLiteral("bvLowered"));
                                           fields::Type(*dlg.edwidth, QStringLiteral("3"));
                                           fields::Type(*dlg.edborder, QStringLiteral("4"));
                                           Click(ok ? dlg.ok : dlg.cancel);
                                         }),
              ok);
    EXPECT_EQ(bevel.Room(), ok ? 10 : 0);
    TBrush brush;
    EXPECT_EQ(Launch<TVRXBrushEditorDlg>([&] { return VRXCPGetBrush(brush); },
                                         [&](auto& dlg) {
                                           Choose(dlg.cmbstyle, QStringLiteral("bsCross"));
                                           SetColor(dlg.cmbcolor, clRed);
                                           Click(ok ? dlg.ok : dlg.cancel);
                                         }),
              ok);
    EXPECT_EQ(brush.Color(), ok ? clRed : clWhite);
    EXPECT_EQ(brush.Style(), ok ? TBrushStyle::bsCross : TBrushStyle::bsSolid);
  }
}
