// Hiding icons: what is hidden, where its position goes, and what comes to the form.
#include "library/components/HideNonVC.h"

#include <gtest/gtest.h>

#include "rtl/PropAccess.h"
#include "vcl/Button.h"
#include "vcl/Form.h"
#include "vcl/Menu.h"
#include "vcl/Timer.h"

namespace {
class HideIcons : public testing::Test {
 protected:
  HideIcons() { timer_.SetDesignInfo(DesignWordOf({320, -200})); }
  void Hide(bool remember) { VRXHideIcon(form_, timer_, remember); }
  void Show(bool remember) { VRXShowIcon(form_, timer_, remember); }

  TForm form_{nullptr};
  TVRXHideNonVC& hide_ = *new TVRXHideNonVC(&form_);
  TTimer& timer_ = *new TTimer(&form_);
};

class TListener : public INewComponentHandler {
 public:
  void NewComponent(TVRXHideNonVC&) override { ++came; }
  void HideComponentFreed(TVRXHideNonVC&) override { ++freed; }
  int came = 0, freed = 0;
};
}  // namespace

TEST_F(HideIcons, WhatCanBeListed) {
  TButton button(&form_);
  button.SetParent(&form_);
  auto* menu = new TPopupMenu(&form_);
  auto* item = new TMenuItem(&form_);
  item->SetAround(menu);
  TTimer alone(nullptr);
  EXPECT_TRUE(VRXCheckValidComponent(timer_, &hide_));
  EXPECT_TRUE(VRXCheckValidComponent(*menu, &hide_));
  EXPECT_FALSE(VRXCheckValidComponent(*item, &hide_));
  EXPECT_FALSE(VRXCheckValidComponent(button, &hide_));
  EXPECT_FALSE(VRXCheckValidComponent(form_, &hide_));
  EXPECT_FALSE(VRXCheckValidComponent(hide_, &hide_));
  EXPECT_TRUE(VRXCheckValidComponent(hide_, new TVRXHideNonVC(&form_))) << "another one can be hidden";
  EXPECT_FALSE(VRXCheckValidComponent(alone, &hide_));
}

TEST_F(HideIcons, ThePositionIsRememberedInTheTag) {
  Hide(true);
  EXPECT_EQ(timer_.DesignInfo(), defHideX);
  EXPECT_EQ(timer_.Tag(), DesignWordOf({320, -200}));
  Show(true);
  EXPECT_EQ(timer_.DesignInfo(), DesignWordOf({320, -200}));
  EXPECT_EQ(timer_.Tag(), 0);
}

TEST_F(HideIcons, WithoutRememberingTheTagIsTheProgramsAndTheIconComesToTheCorner) {
  timer_.SetTag(77);
  Hide(false);
  EXPECT_EQ(timer_.DesignInfo(), defHideX);
  EXPECT_EQ(timer_.Tag(), 77);
  Show(false);
  EXPECT_EQ(timer_.DesignInfo(), 0);
  EXPECT_EQ(timer_.Tag(), 77);
}

TEST_F(HideIcons, HiddenTwiceIsHiddenOnceAndShownTwiceIsShownOnce) {
  Hide(true);
  Hide(true);
  EXPECT_EQ(timer_.Tag(), DesignWordOf({320, -200}));
  Show(true);
  timer_.SetTag(5);
  Show(true);
  EXPECT_EQ(timer_.DesignInfo(), DesignWordOf({320, -200}));
  EXPECT_EQ(timer_.Tag(), 5);
}

TEST_F(HideIcons, ATagOfNothingIsTheCorner) {
  Hide(false);
  Show(true);
  EXPECT_EQ(timer_.DesignInfo(), 0);
}

TEST_F(HideIcons, ATagThatSaysHiddenDoesNotKeepItHidden) {
  Hide(false);
  timer_.SetTag(defHideX);
  Show(true);
  EXPECT_EQ(timer_.DesignInfo(), 0);
  EXPECT_EQ(timer_.Tag(), 0);
}

TEST_F(HideIcons, NoIconCanStandWhereHiddenOnesAre) {
  EXPECT_EQ(DesignPointOf(defHideX).Left, INT16_MIN);
  EXPECT_EQ(DesignPointOf(defHideX).Top, INT16_MIN);
}

TEST_F(HideIcons, WhoListensHearsWhatComesToTheForm) {
  TListener listener;
  hide_.SetNewComponentHandler(&listener);
  new TTimer(&form_);
  EXPECT_EQ(listener.came, 1);
  auto* panel = new TButton(&form_);
  panel->SetParent(&form_);
  EXPECT_EQ(listener.came, 2) << "controls come, too";
  TTimer elsewhere(nullptr);
  new TTimer(panel);
  EXPECT_EQ(listener.came, 2);
  hide_.SetNewComponentHandler(nullptr);
  new TTimer(&form_);
  EXPECT_EQ(listener.came, 2);
}

TEST_F(HideIcons, WhoListensHearsThatTheComponentGoes) {
  TListener listener;
  auto* other = new TVRXHideNonVC(&form_);
  other->SetNewComponentHandler(&listener);
  delete other;
  EXPECT_EQ(listener.freed, 1);
  new TTimer(&form_);
  EXPECT_EQ(listener.came, 0);
  EXPECT_EQ(listener.freed, 1);
}
