#include <gtest/gtest.h>

#include "rtl/Component.h"
#include "rtl/Exceptions.h"
#include "rtl/PropAccess.h"

TEST(Component, NamesAreUniqueWithinTheOwnerWithoutRegardToCase) {
  TComponent root(nullptr);
  auto* a = new TComponent(&root);
  auto* b = new TComponent(&root);
  a->SetName(QStringLiteral("Clock"));
  EXPECT_THROW(b->SetName(QStringLiteral("CLOCK")), EComponentError);
  EXPECT_EQ(b->Name(), QString());
  a->SetName(QStringLiteral("Other"));
  b->SetName(QStringLiteral("Clock"));
  EXPECT_EQ(root.FindComponent(QStringLiteral("clock")), b);
}
