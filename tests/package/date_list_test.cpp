// The list of dates: its dialog, its lines in five countries, and what a form keeps.
#include "library/values/DateList.h"

#include <QCalendarWidget>
#include <random>

#include "library/components/SpecialDates.h"
#include "package/dialogs/LinesTable.h"
#include "package/dialogs/pVRXDateListEditorDlg.h"
#include "package/property_editors/pVRXCPGetMain.h"
#include "rtl/Clock.h"
#include "tests/package/ListEditorTest.h"

namespace {
constexpr const char* Countries[] = {"en_US", "de_DE", "sv_SE", "ja_JP", "ar_EG"};

class DateDialog : public ListEditors {
 protected:
  void TearDown() override { QLocale::setDefault(QLocale::c()); }
};
// A country, and the texts of dates and times there that stand for the cases' names.
class InCountry : public DateDialog, public testing::WithParamInterface<const char*> {
 protected:
  void SetUp() override {
    DateDialog::SetUp();
    QLocale::setDefault(QLocale(QString::fromLatin1(GetParam())));
    for (int i = 1; i <= 9; ++i) {
      const QDate date(1990 + 7 * i, i, 3 * i);
      const QTime time((5 * i) % 24, (13 * i) % 60, (17 * i) % 60);
      names_.insert(QStringLiteral("{D%1}").arg(i), DateToStr(Moment(date, QTime(0, 0))));
      names_.insert(QStringLiteral("{T%1}").arg(i), TimeToStr(Moment(QDate(2000, 1, 1), time)));
    }
    const TDateTime now = JoinDateTime(ClockDateTime());
    names_.insert(QStringLiteral("{today}"), DateToStr(now));
    names_.insert(QStringLiteral("{now}"), TimeToStr(now));
    names_.insert(QStringLiteral("{bad date}"), QStringLiteral("no date"));
    names_.insert(QStringLiteral("{bad time}"), QStringLiteral("99:99"));
  }
  static TDateTime Moment(QDate date, QTime time) { return JoinDateTime(QDateTime(date, time, Qt::UTC)); }
  QString Text(const QJsonValue& value) const {
    QString text = value.toString();
    for (auto it = names_.begin(); it != names_.end(); ++it) text.replace(it.key(), it.value());
    return text;
  }
  QStringList Texts(const QJsonValue& values) const {
    QStringList texts;
    for (const auto& value : values.toArray()) texts << Text(value);
    return texts;
  }
  static QStringList LinesOf(const DateLines& lines) {
    QStringList texts;
    for (int row = 0; row < lines.rowCount(); ++row) texts << JoinDateLine(lines.Line(row));
    return texts;
  }
  static void Fill(DateLines& lines, const QStringList& texts) {
    for (const QString& text : texts) lines.Append(SplitDateLine(text));
  }
  const TClockOverride still_{[] { return std::int64_t{47'000'000}; }};

 private:
  QHash<QString, QString> names_;
};

std::vector<TVRXDateEntry> Entries(const TVRXDateList& list) {
  const auto entries = list.Entries();
  return {entries.begin(), entries.end()};
}
}  // namespace

TEST_P(InCountry, ALineIsSplitAtItsFirstTwoSemicolons) {
  const QJsonArray cases = Vectors("date_lines.json")[u"split"].toArray();
  EXPECT_GE(cases.size(), 60);
  for (const auto& c : cases) {
    const TVRXDateLine line = SplitDateLine(Text(c[u"line"]));
    EXPECT_EQ(line, (TVRXDateLine{Text(c[u"date"]), Text(c[u"time"]), Text(c[u"description"])}));
    EXPECT_EQ(JoinDateLine(line), Text(c[u"line"]));
  }
}

TEST_P(InCountry, AChangedFieldChangesItsPartOfTheLine) {
  for (const auto& c : Vectors("date_lines.json")[u"change"].toArray()) {
    SCOPED_TRACE(Text(c[u"line"]).toStdString());
    TVRXDateListEditorDlg dialog(nullptr);
    Fill(dialog.Lines(), {Text(c[u"line"])});
    dialog.DList->Select(0);
    const QString part = c[u"part"].toString(), value = Text(c[u"value"]);
    if (part == QStringLiteral("date"))
      dialog.DateEdit->setDate(SplitDateTime(StrToDate(value)).date());
    else if (part == QStringLiteral("time"))
      dialog.TimeEdit->setTime(SplitDateTime(StrToTime(value)).time());
    else
      dialog.Des->setText(value);
    EXPECT_EQ(LinesOf(dialog.Lines()), QStringList{Text(c[u"result"])});
  }
}

TEST_P(InCountry, ButtonsAndFieldsDoWhatTheTableSays) {
  for (const auto& c : Vectors("date_lines.json")[u"ops"].toArray()) {
    SCOPED_TRACE(QJsonDocument(c.toObject()).toJson(QJsonDocument::Compact).toStdString());
    TVRXDateListEditorDlg dialog(nullptr);
    Fill(dialog.Lines(), Texts(c[u"lines"]));
    for (const auto& op : c[u"ops"].toArray()) {
      const QString name = op[0].toString();
      if (name == QStringLiteral("add")) dialog.AddBtn->click();
      if (name == QStringLiteral("select")) dialog.DList->Select(op[1].toInt());
      if (name == QStringLiteral("up")) dialog.UpBtn->click();
      if (name == QStringLiteral("down")) dialog.DnButn->click();
      if (name == QStringLiteral("delete")) dialog.DelBtn->click();
      if (name == QStringLiteral("date"))
        dialog.DateEdit->setDate(SplitDateTime(StrToDate(Text(op[1]))).date());
      if (name == QStringLiteral("time"))
        dialog.TimeEdit->setTime(SplitDateTime(StrToTime(Text(op[1]))).time());
      if (name == QStringLiteral("description")) dialog.Des->setText(Text(op[1]));
    }
    EXPECT_EQ(LinesOf(dialog.Lines()), Texts(c[u"result"]));
    if (!c[u"selected"].isNull()) {
      EXPECT_EQ(dialog.DList->CurrentRow(), c[u"selected"].toInt());
    }
  }
}

TEST_P(InCountry, OkReadsEveryLineBackUntilOneIsNoDate) {
  int errors = 0;
  for (const auto& c : Vectors("date_lines.json")[u"readBack"].toArray()) {
    SCOPED_TRACE(QJsonDocument(c.toObject()).toJson(QJsonDocument::Compact).toStdString());
    TVRXDateList list;
    list.AddDate({1.5}, QStringLiteral("what was there before"));
    modal::NextOf<TVRXDateListEditorDlg>([&](auto& d) {
      d.Lines().SetEntries({});
      Fill(d.Lines(), Texts(c[u"lines"]));
      d.accept();
    });
    const bool error = c[u"error"].toBool();
    if (error) {
      EXPECT_THROW(VRXCPGetDateList(list), EConvertError);
    } else {
      EXPECT_TRUE(VRXCPGetDateList(list));
    }
    const QJsonArray expected = c[u"entries"].toArray();
    ASSERT_EQ(list.Count(), expected.size());
    for (int i = 0; i < list.Count(); ++i) {
      EXPECT_EQ(DateToStr(list.Entry(i).Moment), Text(expected[i][0]));
      EXPECT_EQ(TimeToStr(list.Entry(i).Moment), Text(expected[i][1]));
      EXPECT_EQ(list.Entry(i).Description, Text(expected[i][2]));
    }
    errors += error;
  }
  EXPECT_GE(errors, 5);
}

TEST_P(InCountry, EveryDayAndSecondComesBackFromItsText) {
  std::mt19937 random(7);
  for (int round = 0; round < 3000; ++round) {
    const QDate date = QDate(1601, 1, 1).addDays(static_cast<int>(random() % 300'000));
    const QTime time = QTime(0, 0).addSecs(static_cast<int>(random() % 86'400));
    const TDateTime moment = Moment(date, time);
    const TDateTime back =
        WithPart(StrToDate(DateToStr(moment)), StrToTime(TimeToStr(moment)), TMomentPart::Time);
    ASSERT_EQ(back, moment) << DateToStr(moment).toStdString() << ' ' << TimeToStr(moment).toStdString();
    ASSERT_FALSE(DateToStr(moment).contains(u';') || TimeToStr(moment).contains(u';'));
  }
}

// What the fields of the dialog are typed in, and the calendar.
TEST_P(InCountry, DatesAreTypedAndPicked) {
  TVRXDateListEditorDlg dialog(nullptr);
  dialog.Lines().SetEntries({{Moment(QDate(2024, 3, 9), QTime(13, 5, 7, 250)), QStringLiteral("x")}});
  fields::ShowActive(dialog);
  EXPECT_EQ(dialog.DateEdit->date(), QDate(2024, 3, 9));
  EXPECT_EQ(dialog.TimeEdit->time(), QTime(13, 5, 7));
  EXPECT_EQ(dialog.DateEdit->displayFormat(), DateFormatOf());
  dialog.DateEdit->setFocus();
  QTest::keyClick(dialog.DateEdit, Qt::Key_Down, Qt::AltModifier);
  auto* calendar = dialog.DateEdit->findChild<QCalendarWidget*>();
  ASSERT_NE(calendar, nullptr);
  ASSERT_TRUE(calendar->isVisible());
  auto* days = calendar->findChild<QTableView*>();
  QTest::keyClick(days, Qt::Key_Right);
  QTest::keyClick(days, Qt::Key_Return);
  EXPECT_EQ(dialog.DateEdit->date(), QDate(2024, 3, 10));
  EXPECT_EQ(dialog.Lines().Entry(0).Moment, Moment(QDate(2024, 3, 10), QTime(13, 5, 7, 250)));
}

INSTANTIATE_TEST_SUITE_P(Five, InCountry, testing::ValuesIn(Countries),
                         [](const auto& i) { return std::string(i.param); });

TEST_F(DateDialog, TakesDatesOfTheseCountriesInTheirOwnWay) {
  const TDateTime moment = JoinDateTime(QDateTime(QDate(2024, 3, 9), QTime(13, 5, 7), Qt::UTC));
  const QStringList expected{QStringLiteral("3/9/2024 1:05:07 PM"), QStringLiteral("09.03.2024 13:05:07"),
                             QStringLiteral("2024-03-09 13:05:07"),
                             QString::fromUtf8("2024/03/09 13\u6642"
                                               "05\u5206"
                                               "07\u79D2")};
  for (int i = 0; i < expected.size(); ++i) {
    const QLocale locale(QString::fromLatin1(Countries[i]));
    EXPECT_EQ(DateToStr(moment, locale) + u' ' + TimeToStr(moment, locale), expected[i]);
  }
  const QLocale egypt(QStringLiteral("ar_EG"));
  EXPECT_TRUE(DateToStr(moment, egypt).contains(QString::fromUtf8("\u0662\u0660\u0662\u0664")));
}

// Every country that the platform knows: what cannot be read again is written in another way.
TEST_F(DateDialog, CanReadAgainWhatItWritesInEveryCountry) {
  const TDateTime moment = JoinDateTime(QDateTime(QDate(2031, 7, 24), QTime(21, 43, 8), Qt::UTC));
  for (const QLocale& locale :
       QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry)) {
    SCOPED_TRACE(locale.name().toStdString());
    EXPECT_EQ(SplitDateTime(StrToDate(DateToStr(moment, locale), locale)).date(), QDate(2031, 7, 24));
    EXPECT_EQ(SplitDateTime(StrToTime(TimeToStr(moment, locale), locale)).time(), QTime(21, 43, 8));
  }
}

TEST_F(DateDialog, KeepsWhatNobodyTouchesToTheLastBit) {
  TVRXDateList list;
  std::mt19937 random(3);
  for (int i = 0; i < 500; ++i)
    list.AddDate({(static_cast<double>(random()) - 2e9) / 37'000.0}, QStringLiteral("n%1;\n").arg(i));
  for (const double odd : {0.0, -0.25, 0.5, 1e9, -400'000.75, 3e6 + 0.1}) list.AddDate({odd}, QString());
  const auto before = Entries(list);
  const auto items = list.Items();
  modal::NextOf<TVRXDateListEditorDlg>([](auto& d) {
    fields::TabThrough(d);
    for (int row = 0; row < d.Lines().rowCount(); ++row) d.DList->Select(row);
    d.accept();
  });
  EXPECT_TRUE(VRXCPGetDateList(list));
  EXPECT_EQ(Entries(list), before);
  EXPECT_EQ(list.Items(), items);
}

// However a file writes a moment; what is edited is written in the usual way.
TEST_F(DateDialog, KeepsTheWordsOfAFileForWhatNobodyEdits) {
  TVRXDateList list;
  const QStringList words{QStringLiteral("-100.25;neg"), QStringLiteral("12:00;"),
                          QStringLiteral("2026-11-22 17:08;a;b"), QStringLiteral("1e300;huge"),
                          QStringLiteral("2.5;x")};
  for (const QString& line : words) list.Add(line);
  const auto items = list.Items();
  modal::NextOf<TVRXDateListEditorDlg>([](auto& d) {
    fields::TabThrough(d);
    d.accept();
  });
  EXPECT_TRUE(VRXCPGetDateList(list));
  EXPECT_EQ(list.Items(), items);
  modal::NextOf<TVRXDateListEditorDlg>([](auto& d) {
    d.DList->Select(4);
    d.TimeEdit->setTime({8, 0});
    d.accept();
  });
  EXPECT_TRUE(VRXCPGetDateList(list));
  auto expected = items;
  expected.back() = QStringLiteral("1900-01-01 08:00:00;x");
  EXPECT_EQ(list.Items(), expected);
}

TEST_F(DateDialog, CutsADescriptionAt255AndNotThroughALetter) {
  TVRXDateList list;
  list.AddDate({2.25}, QString(300, u'd'));
  list.AddDate({3.25}, QString(254, u'e') + QString::fromUtf8("\U0001F384\U0001F384"));
  list.AddDate({4.25}, QString(255, u'f'));
  modal::NextOf<TVRXDateListEditorDlg>([](auto& d) { d.accept(); });
  EXPECT_TRUE(VRXCPGetDateList(list));
  EXPECT_EQ(list.Entry(0).Description, QString(255, u'd'));
  EXPECT_EQ(list.Entry(1).Description, QString(254, u'e'));
  EXPECT_EQ(list.Entry(2).Description, QString(255, u'f'));
}

TEST_F(DateDialog, AnEmptyListOpensEmptyAndStaysEmpty) {
  TVRXDateList list;
  modal::NextOf<TVRXDateListEditorDlg>([](auto& d) {
    EXPECT_EQ(d.Lines().rowCount(), 0);
    d.Des->setText(QStringLiteral("nothing to write to"));
    d.accept();
  });
  EXPECT_TRUE(VRXCPGetDateList(list));
  EXPECT_TRUE(list.ContentEmpty());
}

TEST_F(DateDialog, CancelLeavesTheListAlone) {
  TVRXDateList list;
  list.AddDate({45'000.5}, QStringLiteral("stays"));
  const auto before = list.Items();
  modal::NextOf<TVRXDateListEditorDlg>([](auto& d) {
    d.AddBtn->click();
    d.DList->Select(0);
    d.Des->setText(QStringLiteral("gone"));
    d.reject();
  });
  EXPECT_FALSE(VRXCPGetDateList(list));
  EXPECT_EQ(list.Items(), before);
}

TEST_F(DateDialog, ADescriptionWithSemicolonsSurvivesTheClick) {
  TVRXDateListEditorDlg dialog(nullptr);
  dialog.Lines().SetEntries({{{2.5}, QStringLiteral(";a;;b;")}, {{3.5}, QStringLiteral("other")}});
  dialog.DList->Select(1);
  dialog.DList->Select(0);
  EXPECT_EQ(dialog.Des->text(), QStringLiteral(";a;;b;"));
  dialog.DList->Select(1);
  EXPECT_EQ(dialog.Lines().Line(0).Description, QStringLiteral(";a;;b;"));
}

TEST_F(DateDialog, OfAFormIsOneCommandThatUndoTakesBack) {
  const auto session = FormWith(
      "  object Days: TVRXSpecialDates\n    Dates = (\n      '2024-12-24 18:00:00;Christmas; at home'\n"
      "      '2025-01-01;New Year')\n    Left = 8\n    Top = 8\n  end\n",
      registry);
  EXPECT_TRUE(session->Findings().empty());
  const QByteArray before = session->Bytes();
  auto& days = dynamic_cast<TVRXSpecialDates&>(*session->GetComponent(QStringLiteral("Days")));
  EXPECT_EQ(days.On(QDate(2024, 12, 24)), QStringList{QStringLiteral("Christmas; at home")});
  EXPECT_EQ(days.On(QDate(2024, 12, 25)), QStringList());
  EXPECT_EQ(Of({&days}, "Dates")->GetAttributes(), TPropertyAttributes{TPropertyAttribute::paDialog});
  Edit<TVRXDateListEditorDlg>(*session, days, "Dates", [](auto& d) { d.accept(); });
  EXPECT_EQ(session->Bytes(), before);
  EXPECT_FALSE(session->CanUndo());
  Edit<TVRXDateListEditorDlg>(*session, days, "Dates", [](auto& d) {
    d.DList->Select(1);
    d.DateEdit->setDate(QDate(2026, 1, 1));
    d.accept();
  });
  EXPECT_EQ(session->Bytes(), QByteArray(before).replace("'2025-01-01;", "'2026-01-01;"));
  session->Undo();
  EXPECT_EQ(session->Bytes(), before);
  EXPECT_EQ(days.On(QDate(2025, 1, 1)), QStringList{QStringLiteral("New Year")});
  session->Redo();
  EXPECT_EQ(days.On(QDate(2026, 1, 1)), QStringList{QStringLiteral("New Year")});
}

// The list is rebuilt in part then; the command that did it is taken back.
TEST_F(DateDialog, ALineThatIsNoDateIsRolledBackByTheDesigner) {
  const auto session = FormWith(
      "  object Days: TVRXSpecialDates\n    Dates = (\n      '2024-12-24;a'\n      '2025-01-01;b')\n  end\n",
      registry);
  const QByteArray before = session->Bytes();
  TComponent& days = *session->GetComponent(QStringLiteral("Days"));
  EXPECT_THROW(Edit<TVRXDateListEditorDlg>(*session, days, "Dates",
                                           [](auto& d) {
                                             d.Lines().SetDate(1, QStringLiteral("yesterday"));
                                             d.accept();
                                           }),
               Exception);
  EXPECT_EQ(session->Bytes(), before);
  EXPECT_EQ(dynamic_cast<TVRXSpecialDates&>(*session->GetComponent(QStringLiteral("Days"))).Dates()->Count(),
            2);
}

TEST_F(DateDialog, WhatIsNoDateInAFileIsRefusedAndKept) {
  TVRXDateList list;
  for (const char* text : {"2024-13-01;x", "2024-12-24", ";x", "x;2024-12-24"}) {
    list.SetItems({QString::fromLatin1(text)});
    EXPECT_THROW(VRXCPGetDateList(list), EConvertError) << text;
    EXPECT_EQ(list.Items(), std::vector<TValueList::TItem>{QString::fromLatin1(text)});
  }
}

// No item, no text and no widget for a line that is not seen.
TEST_F(DateDialog, AsksOnlyForTheLinesThatAreSeen) {
  class Counting : public QIdentityProxyModel {
   public:
    QVariant data(const QModelIndex& index, int role) const override {
      asked.insert(index.row());
      return QIdentityProxyModel::data(index, role);
    }
    mutable QSet<int> asked;
  };
  QList<TVRXDateEntry> entries;
  for (int i = 0; i < 100'000; ++i) entries.append({{40'000.5 + i}, QStringLiteral("d%1").arg(i)});
  TVRXDateListEditorDlg dialog(nullptr);
  dialog.Lines().SetEntries(entries);
  Counting counting;
  counting.setSourceModel(&dialog.Lines());
  LinesTable table(&counting, "table", nullptr);
  table.resize(400, 300);
  fields::ShowActive(table);
  table.grab();
  QTest::keyClick(&table, Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(table.CurrentRow(), 99'999);
  table.grab();
  EXPECT_LT(counting.asked.size(), 200);
  EXPECT_TRUE(counting.asked.contains(99'999));
}

TEST_F(DateDialog, WorksByKeysAlone) {
  TVRXDateListEditorDlg dialog(nullptr);
  dialog.Lines().SetEntries({{{2.5}, QStringLiteral("a")}, {{3.5}, QStringLiteral("b")}});
  fields::ShowActive(dialog);
  EXPECT_EQ(QApplication::focusWidget(), dialog.DList);
  QTest::keyClick(dialog.DList, Qt::Key_End);
  EXPECT_EQ(dialog.DList->CurrentRow(), 1);
  QTest::keyClick(dialog.DList, Qt::Key_Home);
  EXPECT_EQ(dialog.DList->CurrentRow(), 0);
  QTest::keyClick(dialog.DList, Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(dialog.DList->CurrentRow(), 1);
  for (QWidget* next : {static_cast<QWidget*>(dialog.DateEdit), static_cast<QWidget*>(dialog.TimeEdit),
                        static_cast<QWidget*>(dialog.Des)}) {
    // Tab goes through the parts of a date first.
    QWidget* const before = QApplication::focusWidget();
    for (int i = 0; i < 5 && QApplication::focusWidget() == before; ++i) QTest::keyClick(before, Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), next);
  }
  QTest::keyClicks(dialog.Des, QStringLiteral("!"));
  EXPECT_EQ(dialog.Lines().Line(1).Description, QStringLiteral("!"));
  const auto press = [](QPushButton* button) {
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Space);
  };
  press(dialog.UpBtn);
  EXPECT_EQ(dialog.DList->CurrentRow(), 0);
  press(dialog.DelBtn);
  EXPECT_EQ(dialog.Lines().rowCount(), 1);
  press(dialog.AddBtn);
  EXPECT_EQ(dialog.Lines().Line(1).Description, QStringLiteral("-"));
  EXPECT_EQ(dialog.DList->CurrentRow(), 1);
}
