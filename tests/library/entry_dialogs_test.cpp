// Dialogs that ask for a value, as a person uses them by keys and sees them on the screen.
#include "library/components/EntryDialogs.h"

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

#include "rtl/DateText.h"
#include "tests/support/AnsweredDialog.h"
#include "tests/support/Contrast.h"
#include "tests/support/Fields.h"
#include "tests/support/Prompted.h"
#include "tests/support/Waiting.h"
#include "vcl/Theme.h"

TEST(CalculatorDialog, CountsEveryKeyAtAnySpeed) {
  constexpr std::pair<const char*, const char*> rows[] = {
      {"1122", "1122"}, {"9999999999", "9999999999"}, {"0.1+0.2=", "0.3"}, {"50--8*11=", "462"}};
  for (const int pause : {0, 30})
    for (const auto& row : rows) {
      const char *const typed = row.first, *const shown = row.second;
      TVRXCalculatorDlg dlg(nullptr);
      Answered(dlg, QDialog::Accepted, [&](QDialog& dialog) {
        fields::ShowActive(dialog);
        auto& display = In<QLineEdit>(dialog, "display");
        QTest::keyClicks(&display, QString::fromLatin1(typed), Qt::NoModifier, pause);
        EXPECT_EQ(display.text().toStdString(), shown) << typed << " every " << pause << " ms";
      });
      EXPECT_EQ(dlg.Get(TVRXCalculatorDlg::Value), QString::fromLatin1(shown).toDouble());
    }
}

TEST(CalculatorDialog, ShowsForAMomentWhichKeyWasTyped) {
  TVRXCalculatorDlg dlg(nullptr);
  Answered(dlg, QDialog::Accepted, [&](QDialog& dialog) {
    fields::ShowActive(dialog);
    const auto& seven = In<QPushButton>(dialog, "7");
    QTest::keyClick(&In<QLineEdit>(dialog, "display"), Qt::Key_7);
    EXPECT_TRUE(seven.isDown());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !seven.isDown(); }));
    QTest::keyClick(&In<QLineEdit>(dialog, "display"), Qt::Key_8);
  });
  EXPECT_EQ(dlg.Get(TVRXCalculatorDlg::Value), 78) << "showing it presses nothing";
}

// --- Days

namespace {
TDateTime Moment(QDate date) { return JoinDateTime(QDateTime(date, QTime(0, 0), Qt::UTC)); }

class CalendarDialog : public testing::Test {
 protected:
  void TearDown() override { ApplyTheme(TTheme::Light); }
  // The picture of a day's cell in the month of the page.
  static QImage Cell(QDialog& dialog, int day) {
    auto& days = In<QTableView>(dialog, "qt_calendar_calendarview");
    bool inMonth = false;
    for (int row = 1; row < days.model()->rowCount(); ++row)
      for (int column = 0; column < days.model()->columnCount(); ++column) {
        const QModelIndex index = days.model()->index(row, column);
        // Week numbers stand in the first column, and selecting them is nothing.
        if (days.isColumnHidden(column) || column == 0) continue;
        if (index.data().toInt() == 1) inMonth = true;
        if (inMonth && index.data().toInt() == day)
          return days.viewport()->grab(days.visualRect(index)).toImage();
      }
    return {};
  }
  TVRXCalendarDlg dlg_{nullptr};
};
}  // namespace

TEST_F(CalendarDialog, ReturnTakesTheDay) {
  dlg_.Set(TVRXCalendarDlg::Date, Moment(QDate(2024, 5, 15)));
  const TVRXDialogAnswers answers([](QDialog& dialog) {
    fields::ShowActive(dialog);
    auto& days = In<QTableView>(dialog, "qt_calendar_calendarview");
    days.setFocus();
    QTest::keyClick(&days, Qt::Key_Right);
    EXPECT_TRUE(dialog.isVisible());
    QTest::keyClick(&days, Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
    return dialog.result();
  });
  EXPECT_TRUE(dlg_.Execute());
  EXPECT_EQ(dlg_.Get(TVRXCalendarDlg::Date), Moment(QDate(2024, 5, 16)));
}

TEST_F(CalendarDialog, DaysThatCannotBePickedAreGreyAndAllOthersCanBeRead) {
  dlg_.Set(TVRXCalendarDlg::Date, Moment(QDate(2024, 5, 15)));
  dlg_.Set(TVRXCalendarDlg::MinDate, Moment(QDate(2024, 5, 8)));
  dlg_.Set(TVRXCalendarDlg::MaxDate, Moment(QDate(2024, 5, 27)));
  constexpr double readable = 4.5;
  for (const TTheme theme : {TTheme::Light, TTheme::Dark}) {
    ApplyTheme(theme);
    SCOPED_TRACE(theme == TTheme::Dark ? "dark" : "light");
    Answered(dlg_, QDialog::Rejected, [&](QDialog& dialog) {
      fields::ShowActive(dialog);
      const auto colorOf = [](const QImage& cell) { return cell.pixelColor(1, 1); };
      // 4, 11, 18 and 25 are Saturdays.
      for (const int day : {8, 10, 11, 12, 18, 25, 26, 27})
        EXPECT_GE(Contrast(Cell(dialog, day)), readable) << day;
      for (const int day : {1, 4, 5, 7, 28, 31}) {
        EXPECT_LT(Contrast(Cell(dialog, day)), readable) << day;
        EXPECT_GT(Contrast(Cell(dialog, day)), 1.5) << day << " is there";
        EXPECT_NE(colorOf(Cell(dialog, day)), colorOf(Cell(dialog, 8))) << day;
      }
    });
  }
}

// --- Folders

TEST(FolderTree, ShowsADeepFolderInSightWithItsWholeName) {
  const QTemporaryDir root;
  QString path = root.path();
  for (int level = 1; level <= 12; ++level) {
    const QDir above(path);
    for (int i = 0; i < 15; ++i) above.mkdir(QStringLiteral("neighbor %1").arg(i));
    path += QStringLiteral("/zone of level %1").arg(level);
    ASSERT_TRUE(above.mkpath(path));
  }
  TVRXDirDlg dlg(nullptr);
  dlg.Set(TVRXDirDlg::Directory, path);
  Answered(dlg, QDialog::Accepted, [&](QDialog& dialog) {
    fields::ShowActive(dialog);
    auto& tree = In<QTreeView>(dialog, "tree");
    const auto name = [&] {
      QRect rect = tree.visualRect(tree.currentIndex());
      rect.setWidth(std::min(rect.width(), tree.sizeHintForIndex(tree.currentIndex()).width()));
      return rect;
    };
    const auto inSight = [&] {
      return tree.currentIndex().data().toString() == u"zone of level 12" &&
             name().width() >= tree.sizeHintForIndex(tree.currentIndex()).width() &&
             tree.viewport()->rect().contains(name());
    };
    // All levels are read, and it is still there.
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return inSight() && tree.verticalScrollBar()->maximum() > 100; }, WaitLimit));
    QTest::qWait(300);
    EXPECT_TRUE(inSight());
    EXPECT_GT(tree.horizontalScrollBar()->maximum(), 0);
    EXPECT_TRUE(tree.horizontalScrollBar()->isVisible());
    // The person looks somewhere else; what is read meanwhile takes nobody back.
    const QModelIndex above = tree.currentIndex().parent();
    QTest::keyClick(&tree, Qt::Key_PageUp);
    tree.verticalScrollBar()->setValue(0);
    ASSERT_TRUE(QDir(path).mkpath(QStringLiteral("../new")));
    EXPECT_TRUE(QTest::qWaitFor([&] { return tree.model()->rowCount(above) == 17; }, WaitLimit));
    EXPECT_EQ(tree.verticalScrollBar()->value(), 0);
  });
}

namespace {
// Does that, presses OK, and says what was warned of. Where OK is refused nothing is kept.
template <class D>
std::string Refused(D& component, const std::function<void(QDialog&)>& act) {
  ScriptedPrompts prompts;
  const TVRXDialogAnswers answers([&](QDialog& dialog) {
    fields::ShowActive(dialog);
    act(dialog);
    return Press(dialog, QDialogButtonBox::Ok);
  });
  const bool confirmed = component.Execute();
  EXPECT_EQ(confirmed, prompts.warned.isEmpty());
  return prompts.warned.join(u'|').toStdString();
}
}  // namespace

TEST(FolderDialogs, AreConfirmedOnAFolderOnly) {
  const QTemporaryDir root;
  const QString nowhere = root.filePath(QStringLiteral("nowhere")),
                file = root.filePath(QStringLiteral("file"));
  ASSERT_TRUE(QFile(file).open(QIODevice::WriteOnly));
  TVRXDirDlg dlg(nullptr);
  dlg.Set(TVRXDirDlg::Directory, root.path());
  const auto type = [](const QString& path) {
    return [path](QDialog& dialog) { In<QLineEdit>(dialog, "directory").setText(path); };
  };
  for (const QString& wrong : {nowhere, file}) {
    EXPECT_EQ(Refused(dlg, type(wrong)),
              "There is no folder \"" + wrong.toStdString() + "\". Pick one in the tree.");
    EXPECT_EQ(dlg.Get(TVRXDirDlg::Directory), root.path());
  }
  EXPECT_NE(Refused(dlg, type({})), "");
  EXPECT_EQ(Refused(dlg, type(QDir::rootPath())), "");
  EXPECT_EQ(dlg.Get(TVRXDirDlg::Directory), QDir::rootPath());
  // Looked at only: what is no folder is refused, and nothing changed.
  for (const QString& wrong : {nowhere, nowhere + QStringLiteral("/below"), file}) {
    dlg.Set(TVRXDirDlg::Directory, wrong);
    EXPECT_NE(Refused(dlg,
                      [&](QDialog& dialog) {
                        auto& tree = In<QTreeView>(dialog, "tree");
                        EXPECT_EQ(
                            dynamic_cast<QFileSystemModel&>(*tree.model()).filePath(tree.currentIndex()),
                            root.path())
                            << "where the tree begins";
                        EXPECT_EQ(In<QLineEdit>(dialog, "directory").text(), wrong);
                      }),
              "");
    EXPECT_EQ(dlg.Get(TVRXDirDlg::Directory), wrong);
  }
}

TEST(CalculatorDialog, TakesNoErrorForAResult) {
  TVRXCalculatorDlg dlg(nullptr);
  dlg.Set(TVRXCalculatorDlg::Value, 12.5);
  const auto type = [](const char* keys) {
    return [keys](QDialog& dialog) {
      QTest::keyClicks(&In<QLineEdit>(dialog, "display"), QString::fromLatin1(keys));
    };
  };
  for (const char* keys : {"1/0=", "1/0"}) {
    EXPECT_EQ(Refused(dlg, type(keys)), "The calculation has no result. Press C and begin anew.") << keys;
    EXPECT_EQ(dlg.Get(TVRXCalculatorDlg::Value), 12.5);
  }
  EXPECT_EQ(Refused(dlg, type("1,5+2")), "") << "a comma is a point";
  EXPECT_EQ(dlg.Get(TVRXCalculatorDlg::Value), 3.5);
  for (const auto& [keys, value] : {std::pair{"7+", 7.0}, {"2*", 2.0}, {"3+-", 3.0}, {"2+3=*", 5.0}}) {
    EXPECT_EQ(Refused(dlg, type(keys)), "");
    EXPECT_EQ(dlg.Get(TVRXCalculatorDlg::Value), value) << keys << ": what is shown, nothing is made up";
  }
}

TEST(CalculatorDialog, TakesBackWithTheKeysForThat) {
  TVRXCalculatorDlg dlg(nullptr);
  EXPECT_EQ(Refused(dlg,
                    [](QDialog& dialog) {
                      auto& display = In<QLineEdit>(dialog, "display");
                      QTest::keyClicks(&display, QStringLiteral("1234"));
                      QTest::keyClick(&display, Qt::Key_Backspace);
                      EXPECT_EQ(display.text(), QStringLiteral("123"));
                      QTest::keyClicks(&display, QStringLiteral("+9"));
                      QTest::keyClick(&display, Qt::Key_Delete);
                      QTest::keyClicks(&display, QStringLiteral("7"));
                    }),
            "");
  EXPECT_EQ(dlg.Get(TVRXCalculatorDlg::Value), 130);
}

TEST_F(CalendarDialog, TypedDigitsAreNoDays) {
  TVRXCalendarDlg dlg(nullptr);
  dlg.Set(TVRXCalendarDlg::Date, TDateTime{45351});
  EXPECT_EQ(Refused(dlg,
                    [](QDialog& dialog) {
                      auto& calendar = In<QCalendarWidget>(dialog, "calendar");
                      QTest::keyClicks(calendar.findChild<QAbstractItemView*>(), QStringLiteral("15"));
                      EXPECT_FALSE(calendar.isDateEditEnabled());
                    }),
            "");
  EXPECT_EQ(dlg.Get(TVRXCalendarDlg::Date).Days, 45351);
}
