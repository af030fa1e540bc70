// Menus as they look: where their items stand, and what is open.
#include <gtest/gtest.h>

#include <QPainter>
#include <memory>

#include "vcl/Form.h"
#include "vcl/MenuLook.h"

namespace {
struct Sample {
  TForm form{nullptr};
  TMainMenu menu{&form};
  TMenuItem &file = Add(menu, "&File"), &edit = Add(menu, "&Edit"), &open = Add(file, "&Open"),
            &line = Add(file, "-"), &recent = Add(file, "&Recent"), &first = Add(recent, "first");

  TMenuItem& Add(TNestedComponent& level, const char* caption) {
    auto* item = new TMenuItem(&form);
    item->Set(TMenuItem::Caption, QString::fromLatin1(caption));
    item->SetAround(&level);
    return *item;
  }
  QRect In(const TMenuLook& look, TMenuItem& item) const { return look.RectOf({item.Around(), &item}); }
};
}  // namespace

TEST(MenuLook, TheBarStandsAloneUntilSomethingIsOpen) {
  Sample s;
  TMenuLook look(s.menu, 300);
  ASSERT_EQ(look.Panes().size(), 1u);
  EXPECT_EQ(s.In(look, s.edit).left(), s.In(look, s.file).right() + 1);
  EXPECT_TRUE(s.In(look, s.open).isNull());
  look.Open({&s.file, &s.recent});
  ASSERT_EQ(look.Panes().size(), 3u);
  EXPECT_EQ(s.In(look, s.open).top(), s.In(look, s.file).bottom() + 4);
  EXPECT_LT(s.In(look, s.line).height(), s.In(look, s.open).height());
  EXPECT_GE(s.In(look, s.first).left(), s.In(look, s.recent).right());
  EXPECT_EQ(look.At(s.In(look, s.first).center()).Item, &s.first);
  EXPECT_EQ(look.At(QPoint(290, 200)).Level, nullptr);
}

TEST(MenuLook, AnItemWithNothingBelowOpensNothingButInTheDesignedBar) {
  Sample s;
  TMenuLook look(s.menu, 300);
  look.Open({&s.menu, &s.edit});
  EXPECT_EQ(look.Panes().size(), 1u);
  TMenuLook designed = TMenuLook::Designed(s.menu, 300);
  designed.Open({&s.menu, &s.edit});
  ASSERT_EQ(designed.Panes().size(), 2u);
  EXPECT_FALSE(designed.RectOf({&s.edit, nullptr}).isNull()) << "a place for the first item";
  EXPECT_FALSE(designed.RectOf({&s.menu, nullptr}).isNull());
  TMenuLook below = TMenuLook::Designed(s.menu, 300);
  below.Open({&s.open, nullptr});
  EXPECT_FALSE(below.RectOf({&s.open, nullptr}).isNull());
}

TEST(MenuLook, WhatIsNotVisibleHasRoomOnlyWhereItIsDesigned) {
  Sample s;
  s.edit.Set(TMenuItem::Visible, false);
  EXPECT_TRUE(s.In(TMenuLook(s.menu, 300), s.edit).isNull());
  EXPECT_FALSE(s.In(TMenuLook::Designed(s.menu, 300), s.edit).isNull());
  s.file.Set(TMenuItem::Visible, false);
  EXPECT_EQ(MenuBarHeight(s.menu, 300), 0);
}

TEST(MenuLook, ANarrowBarGoesOnInASecondLine) {
  Sample s;
  const int one = MenuBarHeight(s.menu, 300);
  EXPECT_EQ(MenuBarHeight(s.menu, 50), 2 * one);
}

TEST(MenuLook, TheMarkedItemAndTheWayToItLookDifferent) {
  Sample s;
  TMenuLook look(s.menu, 300);
  look.Open({&s.file, &s.recent});
  const auto picture = [&](const TMenuLook::Place& current) {
    QImage image(look.Size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    look.Paint(p, current);
    return image;
  };
  const QImage plain = picture({}), marked = picture({&s.recent, &s.first});
  for (TMenuItem* item : {&s.file, &s.recent, &s.first})
    EXPECT_NE(plain.copy(s.In(look, *item)), marked.copy(s.In(look, *item)))
        << item->Get(TMenuItem::Caption).toStdString();
  for (TMenuItem* item : {&s.edit, &s.open, &s.line})
    EXPECT_EQ(plain.copy(s.In(look, *item)), marked.copy(s.In(look, *item)));
}

TEST(Form, ItsMenuAddsToTheFrameAndNotToTheClientArea) {
  Sample s;
  const QSize client = s.form.ClientRect().size(), outer = s.form.OuterSize();
  const int height = s.form.Height();
  s.form.Set(TForm::Menu, &s.menu);
  EXPECT_EQ(s.form.ClientRect().size(), client);
  EXPECT_EQ(s.form.Height(), height);
  ASSERT_GT(s.form.MenuBarHeight(), 0);
  EXPECT_EQ(s.form.OuterSize(), outer + QSize(0, s.form.MenuBarHeight()));
  s.form.SetKind(TFormKind::Frame);
  EXPECT_EQ(s.form.MenuBarHeight(), 0);
}
