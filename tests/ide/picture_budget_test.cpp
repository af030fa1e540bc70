// The pictures of a form together: no edit makes a form that could not be opened again.
#include "SessionTest.h"
#include "library/controls/RegionControl.h"
#include "rtl/PropAccess.h"
#include "tests/support/PictureBytes.h"
#include "vcl/PictureHead.h"

namespace {
QByteArray FormWith(int pictures, const QByteArray& picture) {
  QByteArray form = "object Main: TMain\n";
  for (int i = 0; i < 5; ++i) {
    form += "  object R" + QByteArray::number(i) + ": TVRXRegion\n    Width = 30\n    Height = 20\n";
    if (i < pictures) form += "    RegionMask.BorderPicture = {\n      " + picture.toHex().toUpper() + "}\n";
    form += "  end\n";
  }
  return form + "end\n";
}
void RegisterRegion() {
  ide::RegisterAll();
  static const bool once = [] {
    RegisterComponents(QStringLiteral("VRX Ext"), {&TVRXRegion::StaticClass()});
    return true;
  }();
  Q_UNUSED(once)
}
}  // namespace

TEST(PictureBudget, AnEditThatGoesBeyondItIsTakenBack) {
  RegisterRegion();
  const QByteArray large = PngOf(8192, 8192, 1);
  const QByteArray text = FormWith(3, large);
  const auto session = FormSession::FromBytes(text);
  ASSERT_TRUE(session->Findings().empty()) << session->Findings()[0].text.toStdString();
  auto* last = dynamic_cast<TVRXRegion*>(session->GetComponent(QStringLiteral("R3")));
  ASSERT_NE(last, nullptr);
  const TPropInfo& picture = TVRXRegionMask::StaticClass().GetProp("BorderPicture");
  const auto set = [&](const QByteArray& bytes) {
    session->Run(QStringLiteral("picture"), {last},
                 [&] { SetBinaryProp(*last->RegionMask(), picture, bytes); });
  };
  try {
    set(large);
    FAIL();
  } catch (const Exception& e) {
    EXPECT_TRUE(e.Message().contains(QStringLiteral("832 MB"))) << e.what();
  }
  EXPECT_EQ(session->Bytes(), text);
  EXPECT_FALSE(session->CanUndo());
  EXPECT_FALSE(session->CanRedo());
  EXPECT_FALSE(session->IsModified());
  EXPECT_TRUE(GetBinaryProp(*last->RegionMask(), picture).isEmpty());
}

TEST(PictureBudget, WhatNoClassDecodesDoesNotCount) {
  RegisterRegion();
  const QByteArray hex = PngOf(8192, 8192, 1).toHex().toUpper();
  QByteArray form = "object Main: TMain\n";
  for (int i = 0; i < 6; ++i) form += "  object TStrange\n    Data = {\n      " + hex + "}\n  end\n";
  EXPECT_EQ(FormSession::FromBytes(form + "end\n")->Bytes(), form + "end\n");
}

TEST(PictureBudget, TheFirstPictureTooManyIsNamedWithItsLine) {
  RegisterRegion();
  try {
    FormSession::FromBytes(FormWith(5, PngOf(8192, 8192, 1)));
    FAIL();
  } catch (const forms::EFormError& e) {
    EXPECT_EQ(e.Where().line, 5 + 3 * 6);
  }
}
