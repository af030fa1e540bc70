// Which of several states a control's face is that of.
#include "library/components/FaceController.h"

#include <gtest/gtest.h>

using enum TVRXStateKind;

TEST(FaceLook, OfAsManyKindsTheOneThatIsSeenFirstCounts) {
  constexpr TVRXStateKind order[] = {skDisabled, skPressed, skMouseOver, skChecked,
                                     skDefault,  skFocused, skReadOnly};
  constexpr int count = 7;
  for (const bool backwards : {false, true}) {
    TVRXFaceController face(nullptr);
    const auto colorOf = [](int i) { return TColor(static_cast<std::uint32_t>(0x101010 * (i + 1))); };
    for (int n = 0; n < count; ++n) {
      const int i = backwards ? count - 1 - n : n;
      const int index = face.AddSettingObject(TVRXCFCSettingObjectKind::okColor);
      auto* object = As<TVRXColorObject>(face.SettingObjects()->Items(index));
      object->Set(TVRXColorObject::Color, colorOf(i));
      TVRXCFCStateObject* state = face.States()->Add();
      state->setKind(VRXCFCKindOf({order[i]}));
      state->Add(object, true);
    }
    for (int i = 0; i < count; ++i)
      for (int j = i + 1; j < count; ++j)
        EXPECT_EQ(face.LookIn({order[i], order[j]}).Color(clNone), colorOf(i)) << i << ' ' << j;
  }
}

TEST(FaceLook, AStateOfMoreKindsCountsBeforeAnyOfFewer) {
  TVRXFaceController face(nullptr);
  for (const auto& [kinds, color] :
       {std::pair(TVRXStateKinds{skChecked, skFocused}, clLime), {TVRXStateKinds{skDisabled}, clRed}}) {
    auto* object = As<TVRXColorObject>(
        face.SettingObjects()->Items(face.AddSettingObject(TVRXCFCSettingObjectKind::okColor)));
    object->Set(TVRXColorObject::Color, color);
    TVRXCFCStateObject* state = face.States()->Add();
    state->setKind(VRXCFCKindOf(kinds));
    state->Add(object, true);
  }
  EXPECT_EQ(face.LookIn({skDisabled, skChecked, skFocused}).Color(clNone), clLime);
  EXPECT_EQ(face.LookIn({skDisabled, skChecked}).Color(clNone), clRed);
}

TEST(FaceLook, ABrushAloneIsAGround) {
  TVRXFaceController face(nullptr);
  const int index = face.AddSettingObject(TVRXCFCSettingObjectKind::okBrush);
  TVRXCFCStateObject* state = face.States()->Add();
  EXPECT_FALSE(face.LookIn({}).HasGround());
  state->Add(face.SettingObjects()->Items(index), true);
  EXPECT_TRUE(face.LookIn({}).HasGround());
  EXPECT_FALSE(face.LookIn({}).Of(TVRXCFCSettingObjectKind::okColor));
}

TEST(FaceStateObjects, OnceIsOnceInWhateverCaseANameIsWritten) {
  TVRXFaceController face(nullptr);
  TPersistent* font = face.SettingObjects()->Items(face.AddSettingObject(TVRXCFCSettingObjectKind::okFont));
  TVRXCFCStateObject* state = face.States()->Add();
  // As a form or a file may tell it.
  state->Get(TVRXCFCStateObject::Objects)->SetLines({QStringLiteral("FONT1")});
  EXPECT_EQ(state->Items(0), font);
  state->Add(font, true);
  EXPECT_EQ(state->Count(), 1);
  face.RemoveSettingObject(0);
  EXPECT_EQ(state->Count(), 0);
}
