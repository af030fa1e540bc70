// The list of points: its dialog, and what a form keeps.
#include "library/values/PointList.h"

#include <QSignalSpy>

#include "package/dialogs/LinesTable.h"
#include "package/dialogs/pVRXPointListEditorDlg.h"
#include "package/property_editors/pVRXCPGetMain.h"
#include "rtl/ClassRegistry.h"
#include "tests/package/ListEditorTest.h"
#include "tests/support/Waiting.h"

namespace {
class TPath : public TComponent {
  VRX_CLASS(TPath)
 public:
  using TComponent::TComponent;
  static constexpr TKept<TVRXPointList*> Points{"Points"};
};
const TClass& TPath::StaticClass() {
  static const TClass cls(DescribeClass<TPath>("TPath", TComponent::StaticClass()).Published(Points));
  return cls;
}
using PointDialog = ListEditors;

void Fill(TVRXPointList& list, const QJsonArray& points) {
  for (const auto& p : points) list.AddPoint({p[0].toInt(), p[1].toInt()});
}
void Do(TfrmTVRXPointListEditor& d, const QJsonArray& op) {
  const QString name = op[0].toString();
  const int number = op[1].toInt();
  if (name == QStringLiteral("add")) d.AddBtn->click();
  if (name == QStringLiteral("select")) d.Select(number);
  if (name == QStringLiteral("up")) d.UpBtn->click();
  if (name == QStringLiteral("down")) d.DownBtn->click();
  if (name == QStringLiteral("delete")) d.DelBtn->click();
  if (name != QStringLiteral("x") && name != QStringLiteral("y")) return;
  TVRXSpinEdit* edit = name == QStringLiteral("x") ? d.XVal : d.YVal;
  edit->isEnabled() ? fields::Type(*edit, QString::number(number)) : edit->setValue(number);
}
QString Text(const TVRXPointList& list) {
  QString text;
  for (const QPoint p : list.Points()) text += QStringLiteral("%1,%2 ").arg(p.x()).arg(p.y());
  return text.trimmed();
}
}  // namespace

TEST_F(PointDialog, DoesWhatTheTableSays) {
  int cases = 0;
  for (const auto& value : Vectors("point_ops.json")[u"cases"].toArray()) {
    const QJsonObject c = value.toObject();
    SCOPED_TRACE(QJsonDocument(c).toJson(QJsonDocument::Compact).toStdString());
    TVRXPointList list, expected;
    Fill(list, c[u"points"].toArray());
    Fill(expected, c[u"result"].toArray());
    TfrmTVRXPointListEditor dialog(nullptr);
    dialog.SetPointList(list);
    fields::ShowActive(dialog);
    for (const auto& op : c[u"ops"].toArray()) Do(dialog, op.toArray());
    QStringList lines;
    for (const auto& line : c[u"lines"].toArray()) lines << line.toString();
    EXPECT_EQ(dialog.Lines(), lines);
    for (int row = 0; row < lines.size(); ++row)
      for (int part : {0, 1})
        EXPECT_EQ(dialog.plb->model()->index(row, part).data().toString(),
                  lines[row].section(u';', part, part));
    if (!c[u"selected"].isNull()) {
      EXPECT_EQ(dialog.CurrentRow(), c[u"selected"].toInt());
    }
    dialog.GetPointList(list);
    EXPECT_EQ(list.Points(), expected.Points());
    ++cases;
  }
  EXPECT_GE(cases, 150);
}

TEST_F(PointDialog, LimitsWhatIsTypedAndNotWhatIsLoaded) {
  TVRXPointList list;
  list.AddPoint({5000, -7});
  TfrmTVRXPointListEditor dialog(nullptr);
  dialog.SetPointList(list);
  fields::ShowActive(dialog);
  dialog.Select(0);
  EXPECT_EQ(dialog.XVal->text(), QStringLiteral("5000"));
  fields::TabThrough(dialog);
  EXPECT_EQ(dialog.Lines(), QStringList{QStringLiteral("5000;-7;")});
  fields::Type(*dialog.YVal, QStringLiteral("1001"));
  EXPECT_EQ(dialog.Lines(), QStringList{QStringLiteral("5000;1000;")});
  fields::Type(*dialog.XVal, QStringLiteral("1000"));
  EXPECT_EQ(dialog.Lines(), QStringList{QStringLiteral("1000;1000;")});
}

TEST_F(PointDialog, WorksByKeysAlone) {
  TVRXPointList list;
  for (int i = 0; i < 3; ++i) list.AddPoint({i, 10 * i});
  TfrmTVRXPointListEditor dialog(nullptr);
  dialog.SetPointList(list);
  fields::ShowActive(dialog);
  EXPECT_EQ(QApplication::focusWidget(), dialog.plb);
  EXPECT_EQ(dialog.CurrentRow(), 0);
  QTest::keyClick(dialog.plb, Qt::Key_Down);
  EXPECT_EQ(dialog.CurrentRow(), 1);
  EXPECT_EQ(dialog.YVal->value(), 10);
  QTest::keyClick(dialog.plb, Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), dialog.XVal);
  QTest::keyClicks(dialog.XVal, QStringLiteral("77"));
  dialog.DownBtn->setFocus();
  QTest::keyClick(dialog.DownBtn, Qt::Key_Space);
  EXPECT_EQ(dialog.Lines().join(u' '), QStringLiteral("0;0; 2;20; 77;10;"));
  dialog.AddBtn->setFocus();
  QTest::keyClick(dialog.AddBtn, Qt::Key_Return);
  EXPECT_EQ(dialog.Lines().last(), QStringLiteral("0;0;"));
  QTest::keyClick(dialog.plb, Qt::Key_Return);
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST_F(PointDialog, AShortcutInTheMiddleOfTypingLeadsToTheOtherPoint) {
  TVRXPointList list;
  for (int i = 0; i < 3; ++i) list.AddPoint({2 * i + 1, 2 * i + 2});
  TfrmTVRXPointListEditor dialog(nullptr);
  dialog.SetPointList(list);
  fields::ShowActive(dialog);
  const auto key = [&](Qt::Key letter) {
    QTest::keyClick(QApplication::focusWidget(), letter, Qt::AltModifier);
  };
  key(Qt::Key_Y);
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("77"));
  // Buttons show for a moment that a key pressed them, and only then do what they do.
  const auto press = [&](Qt::Key letter, const QPushButton* button) {
    QSignalSpy clicked(button, &QPushButton::clicked);
    key(letter);
    EXPECT_TRUE(!clicked.isEmpty() || clicked.wait(WaitLimit));
  };
  press(Qt::Key_D, dialog.DownBtn);
  EXPECT_EQ(QApplication::focusWidget(), dialog.YVal);
  EXPECT_EQ(dialog.YVal->text(), QStringLiteral("4"));
  EXPECT_EQ(dialog.Lines().join(u' '), QStringLiteral("3;4; 1;77; 5;6;"));
  press(Qt::Key_A, dialog.AddBtn);
  EXPECT_EQ(dialog.YVal->text(), QStringLiteral("0"));
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("5"));
  EXPECT_EQ(dialog.Lines().join(u' '), QStringLiteral("3;4; 1;77; 5;6; 0;5;"));
}

TEST_F(PointDialog, FieldsReadTheNumbersOfTheCountry) {
  for (const char* country : {"sv_SE", "nb_NO", "de_DE"}) {
    SCOPED_TRACE(country);
    const QLocale locale(QString::fromLatin1(country));
    QLocale::setDefault(locale);
    const auto usual = qScopeGuard([] { QLocale::setDefault(QLocale::c()); });
    TVRXPointList list;
    list.AddPoint({-50, 0});
    TfrmTVRXPointListEditor dialog(nullptr);
    dialog.SetPointList(list);
    fields::ShowActive(dialog);
    dialog.XVal->setFocus();
    QTest::keyClick(dialog.XVal, Qt::Key_End);
    for (int i = 0; i < 2; ++i)
      QTest::sendKeyEvent(QTest::Click, dialog.XVal, Qt::Key_unknown, locale.toString(0), Qt::NoModifier);
    QTest::keyClick(dialog.XVal, Qt::Key_Tab);
    EXPECT_EQ(dialog.XVal->value(), -1000);
    EXPECT_EQ(dialog.Lines().value(0), QStringLiteral("-1000;0;"));
  }
}

TEST_F(PointDialog, TheLauncherWritesIntoTheListOnOkOnly) {
  for (const bool ok : {false, true}) {
    TVRXPointList list;
    list.AddPoint({3, 4});
    modal::NextOf<TfrmTVRXPointListEditor>([&](auto& d) {
      d.AddBtn->click();
      EXPECT_EQ(list.Count(), 1) << "a copy";
      ok ? d.accept() : d.reject();
    });
    EXPECT_EQ(VRXCPGetPointList(list), ok);
    EXPECT_EQ(Text(list), ok ? QStringLiteral("3,4 0,0") : QStringLiteral("3,4"));
  }
}

TEST_F(PointDialog, OfAFormEditsTheListItselfAndUndoBringsItBack) {
  RegisterComponents(QStringLiteral("Paths"), {&TPath::StaticClass()});
  const auto session = FormWith(
      "  object P: TPath\n    Points = (\n      10\n      -20\n      30\n      40)\n  end\n", registry);
  EXPECT_TRUE(session->Findings().empty());
  const QByteArray before = session->Bytes();
  TComponent& path = *session->GetComponent(QStringLiteral("P"));
  EXPECT_EQ(Of({&path}, "Points")->GetAttributes(), TPropertyAttributes{TPropertyAttribute::paDialog});
  for (const bool ok : {false, true}) {
    Edit<TfrmTVRXPointListEditor>(*session, path, "Points", [&](auto& d) {
      d.Select(0);
      d.DelBtn->click();
      ok ? d.accept() : d.reject();
    });
    EXPECT_EQ(session->CanUndo(), ok);
  }
  EXPECT_EQ(session->Bytes(), QByteArray(before).replace("      10\n      -20\n", ""));
  session->Undo();
  EXPECT_EQ(session->Bytes(), before);
  EXPECT_EQ(Text(*As<TPath>(&path)->Get(TPath::Points)), QStringLiteral("10,-20 30,40"));
  Edit<TfrmTVRXPointListEditor>(*session, path, "Points", [](auto& d) { d.accept(); });
  EXPECT_FALSE(session->CanUndo()) << "confirmed as it was";
}

TEST_F(PointDialog, WhatIsNoListOfPointsIsRefusedAndKept) {
  TVRXPointList list;
  for (const std::vector<TValueList::TItem>& items :
       {std::vector<TValueList::TItem>{std::int64_t{1}},
        std::vector<TValueList::TItem>{std::int64_t{1}, QStringLiteral("2")},
        std::vector<TValueList::TItem>{std::int64_t{1}, std::int64_t{1} << 40}}) {
    list.SetItems(items);
    EXPECT_THROW(VRXCPGetPointList(list), EConvertError);
    EXPECT_EQ(list.Items(), items);
  }
}
