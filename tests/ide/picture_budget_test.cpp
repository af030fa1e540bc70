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

TEST(PictureBudget, WhatAStandInShowsCounts) {
  RegisterRegion();
  const QByteArray hex = PngOf(8192, 8192, 1).toHex().toUpper();
  const auto form = [&](int pictures) {
    QByteArray text = "object Main: TMain\n";
    for (int i = 0; i < pictures; ++i)
      text += "  object TStrangeImage\n    Picture.Data = {\n      " + hex + "}\n  end\n";
    return text + "end\n";
  };
  EXPECT_EQ(FormSession::FromBytes(form(1))->Bytes(), form(1));
  EXPECT_THROW(FormSession::FromBytes(form(6)), Exception);
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

namespace {
QByteArray LittleEndian(std::int32_t v) {
  QByteArray bytes;
  for (int i = 0; i < 4; ++i) bytes += static_cast<char>(v >> 8 * i);
  return bytes;
}

// A form with so many components that each keep the bytes.
QByteArray FormKeeping(int count, const QByteArray& component, const QByteArray& property,
                       const QByteArray& bytes) {
  QByteArray form = "object Main: TMain\n";
  for (int i = 0; i < count; ++i)
    form += "  object C" + QByteArray::number(i) + ": " + component + "\n    " + property + " = {\n      " +
            bytes.toHex().toUpper() + "}\n  end\n";
  return form + "end\n";
}

// The line at which the form is refused; 0 when it is opened.
int LineRefused(const QByteArray& form) {
  try {
    FormSession::FromBytes(form);
  } catch (const forms::EFormError& e) {
    return e.Where().line;
  }
  return 0;
}
}  // namespace

TEST(PictureBudget, PicturesBehindAClassNameOrALengthCount) {
  RegisterRegion();
  const QByteArray png = PngOf(8192, 8192, 1);
  const QByteArray name = "\x09TPngImage", length = LittleEndian(static_cast<std::int32_t>(png.size()));
  for (const QByteArray& bytes : {name + png, name + length + png, length + png}) {
    EXPECT_EQ(LineRefused(FormKeeping(3, "TImage", "Picture.Data", bytes)), 0);
    EXPECT_EQ(LineRefused(FormKeeping(4, "TImage", "Picture.Data", bytes)), 3 + 3 * 4);
  }
  EXPECT_EQ(LineRefused(FormKeeping(4, "TSpeedButton", "Glyph.Data", length + png)), 3 + 3 * 4);
}

TEST(PictureBudget, AllPicturesOfAnImageListCount) {
  RegisterRegion();
  // 4 pictures of 2048 x 8192, packed; whether the pixels are there is asked later.
  const QByteArray list =
      "Lz" + LittleEndian(4) + LittleEndian(2048) + LittleEndian(8192) + QByteArray(8, '\0');
  EXPECT_EQ(LineRefused(FormKeeping(3, "TImageList", "Bitmap", list)), 0);
  EXPECT_EQ(LineRefused(FormKeeping(4, "TImageList", "Bitmap", list)), 3 + 3 * 4);
}

TEST(PictureBudget, AnImageListThatIsRefusedAnywayCostsNothing) {
  RegisterRegion();
  const QByteArray list =
      "Li" + LittleEndian(90000) + LittleEndian(8192) + LittleEndian(8192) + QByteArray(8, '\0');
  EXPECT_EQ(LineRefused(FormKeeping(6, "TImageList", "Bitmap", list)), 0);
}
