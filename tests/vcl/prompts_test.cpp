#include <gtest/gtest.h>

#include <QMessageBox>

#include "tests/support/Modal.h"
#include "vcl/Prompts.h"

TEST(Prompts, ANameOutOfAFileIsNoMarkup) {
  const QString text = QStringLiteral("<b>Button1</b> & <img src='/etc/hostname'>");
  const auto look = [&](const std::function<void()>& ask) {
    bool seen = false;
    modal::NextOf<QMessageBox>([&](QMessageBox& box) {
      EXPECT_EQ(box.textFormat(), Qt::PlainText);
      EXPECT_EQ(box.text(), text);
      seen = true;
      box.reject();
    });
    ask();
    EXPECT_TRUE(seen);
  };
  look([&] { Prompts().Inform(nullptr, QStringLiteral("t"), text); });
  look([&] { Prompts().Warn(nullptr, QStringLiteral("t"), text); });
  look([&] { EXPECT_EQ(Prompts().AskToSave(nullptr, text), TAnswer::Cancel); });
  look([&] { EXPECT_EQ(Prompts().AskFileChanged(nullptr, QStringLiteral("t"), text), TFileAnswer::Cancel); });
  look([&] { EXPECT_FALSE(Prompts().Confirm(nullptr, QStringLiteral("t"), text)); });
}
