// Keys and wheel in dialogs, and handlers that throw.
#include "dclstd/DialogInput.h"

#include "dclstd/EditValue.h"
#include "dclstd/ModalDialog.h"
#include "dclstd/OneShotComboBox.h"
#include "rtl/Exceptions.h"
#include "tests/support/Fields.h"
#include "tests/support/Modal.h"
#include "tests/support/Prompted.h"

using namespace fields;

namespace {
class SmallDialog : public ModalDialog {
 public:
  SmallDialog() : ModalDialog(QStringLiteral("Small"), nullptr) {
    auto* box = new QVBoxLayout(this);
    list->addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    oneShot->addItems({QStringLiteral("x"), QStringLiteral("y")});
    oneShot->setCurrentIndex(-1);
    for (QWidget* w : std::initializer_list<QWidget*>{spin, list, oneShot, text, action, tool, ok, cancel})
      box->addWidget(w);
    for (QPushButton* b : {action, ok, cancel}) b->setAutoDefault(false);
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(action, &QPushButton::clicked, this, [this] { ++actions; });
    connect(tool, &QToolButton::clicked, this, [this] { ++actions; });
    connect(spin, &QSpinBox::valueChanged, this, [this](int v) {
      Guarded([&] {
        if (throws) throw Exception(QStringLiteral("No room for %1.").arg(v));
        written = v;
      });
    });
    connect(oneShot, &QComboBox::currentIndexChanged, this, [this](int i) { shot << i; });
  }
  void FormClose() override {
    if (closeThrows) throw Exception(QStringLiteral("No place to keep it."));
  }
  void LoadControls() override { spin->setValue(7); }

  QSpinBox* spin = new QSpinBox;
  QComboBox* list = new QComboBox;
  OneShotComboBox* oneShot = new OneShotComboBox;
  QLineEdit* text = new QLineEdit;
  QPushButton* action = new QPushButton(QStringLiteral("Act"));
  QToolButton* tool = new QToolButton;
  QPushButton* ok = new QPushButton(QStringLiteral("OK"));
  QPushButton* cancel = new QPushButton(QStringLiteral("Cancel"));
  int actions = 0;
  int written = -1;
  QList<int> shot;
  bool throws = false, closeThrows = false;
};

int ResultOf(SmallDialog& dlg, std::function<void()> act) {
  modal::NextOf<SmallDialog>([&dlg, act = std::move(act)](auto&) {
    act();
    if (dlg.isVisible()) {
      ADD_FAILURE() << "still open";
      dlg.reject();
    }
  });
  return dlg.ShowModal();
}
}  // namespace

TEST(Dialog, ReturnOnAFocusedButtonIsThatButton) {
  for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
    SmallDialog dlg;
    EXPECT_EQ(ResultOf(dlg,
                       [&] {
                         for (QWidget* button : std::initializer_list<QWidget*>{dlg.action, dlg.tool}) {
                           button->setFocus();
                           QTest::keyClick(button, key);
                         }
                         EXPECT_EQ(dlg.actions, 2);
                         EXPECT_TRUE(dlg.isVisible());
                         dlg.cancel->setFocus();
                         QTest::keyClick(dlg.cancel, key);
                       }),
              mrCancel);
  }
}

TEST(Dialog, ReturnElsewhereIsTheDefaultButton) {
  for (int i = 0; i < 4; ++i) {
    SmallDialog dlg;
    QWidget* const fieldsOf[] = {dlg.spin, dlg.list, dlg.oneShot, dlg.text};
    EXPECT_EQ(ResultOf(dlg,
                       [&] {
                         fieldsOf[i]->setFocus();
                         QTest::keyClick(fieldsOf[i], Qt::Key_Return);
                       }),
              mrOk)
        << i;
  }
}

TEST(Dialog, TheWheelOverAFieldWithoutTheFocusIsLeftToWhatIsAround) {
  SmallDialog dlg;
  dlg.spin->setValue(5);
  dlg.list->setCurrentIndex(1);
  ShowActive(dlg);
  for (QWidget* field : std::initializer_list<QWidget*>{dlg.spin, dlg.list, dlg.oneShot}) {
    dlg.text->setFocus();
    EXPECT_FALSE(Wheel(*field)) << field->metaObject()->className();
    EXPECT_EQ(QApplication::focusWidget(), dlg.text);
    EXPECT_NE(field->focusPolicy(), Qt::WheelFocus);
  }
  EXPECT_EQ(dlg.spin->value(), 5);
  EXPECT_EQ(dlg.list->currentIndex(), 1);
  EXPECT_EQ(dlg.oneShot->currentIndex(), -1);
}

TEST(Dialog, TheWheelChangesTheFieldThatHasTheFocus) {
  SmallDialog dlg;
  dlg.spin->setValue(5);
  ShowActive(dlg);
  dlg.spin->setFocus();
  Wheel(*dlg.spin, 1);
  EXPECT_EQ(dlg.spin->value(), 6);
}

TEST(Dialog, AClosedOneShotListTakesNoStepsAndNoLetters) {
  SmallDialog dlg;
  ShowActive(dlg);
  dlg.oneShot->setFocus();
  for (const auto key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_End, Qt::Key_PageDown, Qt::Key_Y})
    QTest::keyClick(dlg.oneShot, key);
  Wheel(*dlg.oneShot);
  EXPECT_EQ(dlg.oneShot->currentIndex(), -1);
  EXPECT_TRUE(dlg.shot.isEmpty());
}

TEST(Dialog, AOneShotListOpensByKeyAndReturnChooses) {
  SmallDialog dlg;
  ShowActive(dlg);
  dlg.oneShot->setFocus();
  const std::pair<Qt::Key, Qt::KeyboardModifiers> keys[] = {
      {Qt::Key_Down, Qt::AltModifier}, {Qt::Key_F4, Qt::NoModifier}, {Qt::Key_Space, Qt::NoModifier}};
  for (const auto& [key, modifiers] : keys) {
    dlg.shot.clear();
    QTest::keyClick(dlg.oneShot, key, modifiers);
    ASSERT_TRUE(dlg.oneShot->view()->isVisible()) << key;
    QTest::keyClick(dlg.oneShot->view(), Qt::Key_Down);
    QTest::keyClick(dlg.oneShot->view(), Qt::Key_Down);
    EXPECT_TRUE(dlg.shot.isEmpty());
    QTest::keyClick(dlg.oneShot->view(), Qt::Key_Return);
    EXPECT_EQ(dlg.shot, QList<int>{1});
    dlg.oneShot->setCurrentIndex(-1);
  }
}

TEST(Dialog, NothingIsWrittenWhileTheControlsAreLoaded) {
  SmallDialog dlg;
  dlg.SetLabels();
  EXPECT_EQ(dlg.spin->value(), 7);
  EXPECT_EQ(dlg.written, -1);
  dlg.spin->setValue(8);
  EXPECT_EQ(dlg.written, 8);
}

TEST(Dialog, AHandlerThatThrowsIsToldAndTheDialogStays) {
  ScriptedPrompts prompts;
  SmallDialog dlg;
  EXPECT_EQ(ResultOf(dlg,
                     [&] {
                       dlg.throws = true;
                       dlg.spin->setValue(9);
                       EXPECT_EQ(prompts.warned, QStringList{QStringLiteral("No room for 9.")});
                       EXPECT_TRUE(dlg.isVisible());
                       EXPECT_EQ(dlg.spin->value(), 9);
                       dlg.throws = false;
                       dlg.spin->setValue(10);
                       dlg.ok->click();
                     }),
            mrOk);
  EXPECT_EQ(dlg.written, 10);
  EXPECT_EQ(prompts.warned.size(), 1);
}

TEST(Dialog, WhatCannotBeKeptOnClosingIsToldAndTheResultStands) {
  ScriptedPrompts prompts;
  SmallDialog dlg;
  dlg.closeThrows = true;
  EXPECT_EQ(ResultOf(dlg, [&] { dlg.ok->click(); }), mrOk);
  EXPECT_EQ(prompts.warned, QStringList{QStringLiteral("No place to keep it.")});
}

TEST(DialogOwner, IsTheWindowThatIsWorkedInAndNeverAMenu) {
  QWidget window;
  window.show();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  EXPECT_EQ(ApplicationOwner(), &window);
  // A menu that has closed may be active for a moment still.
  QMenu menu(&window), submenu(&menu), alone;
  for (QMenu* closed : {&menu, &submenu}) {
    QApplication::setActiveWindow(closed);
    EXPECT_EQ(ApplicationOwner(), &window);
  }
  QApplication::setActiveWindow(&alone);
  EXPECT_EQ(ApplicationOwner(), nullptr);
  QApplication::setActiveWindow(&window);
}
