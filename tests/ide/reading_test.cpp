// A text is read by short cuts that remember what was met before. The same form as a stream, which has no
// text to remember, is the oracle.
#include <QRandomGenerator>

#include "forms/PropertyValues.h"
#include "tests/ide/SessionTest.h"

namespace {
using forms::Document;
using forms::Format;

// Every component with every value, and what was found amiss.
QByteArrayList Read(const QByteArray& form) {
  const auto session = FormSession::FromBytes(form);
  QByteArrayList told;
  for (const TComponent* c : session->AllComponents()) {
    told << c->Name().toUtf8() + ": " + c->ClassType().ClassName();
    for (const forms::StoredValue& v : forms::PropertyValues(*c, session->Document(), true))
      told << "  " + v.path + " = " +
                  (v.value.IsString()
                       ? session->Document().Decode(v.value).toUtf8()
                       : forms::ValueToText(v.value) + ' ' + QByteArray::number(int(v.value.type)));
  }
  for (const forms::Finding& f : session->Findings()) told << f.text.toUtf8();
  return told;
}

void ExpectReadLikeItsStream(const QByteArray& text) {
  const QByteArrayList fast = Read(text), general = Read(Document::Parse(text).WriteAs(Format::Binary));
  EXPECT_GT(fast.size(), 1);
  for (qsizetype i = 0; i < std::max(fast.size(), general.size()); ++i)
    ASSERT_EQ(fast.value(i).toStdString(), general.value(i).toStdString()) << text.toStdString();
}

QByteArray Form(const QByteArray& objects) { return "object F: TF\n" + objects + "end\n"; }
// Components of one class, each with these lines.
QByteArray Each(const QByteArray& cls, const QByteArrayList& bodies) {
  QByteArray text;
  for (qsizetype i = 0; i < bodies.size(); ++i)
    text += "  object C" + QByteArray::number(i) + ": " + cls + "\n    " + bodies[i] + "\n  end\n";
  return Form(text);
}

class Reading : public testing::Test {
 protected:
  void SetUp() override { ide::RegisterAll(); }
};
}  // namespace

TEST_F(Reading, AWrongValueAfterARightOneIsStillWrong) {
  const QByteArray text =
      Each("TPanel", {"Align = alTop", "Align = alTopp", "Align = alTop", "Width = 7", "Width = alTop",
                      "Width = 'x'", "Caption = 'a'", "Caption = 3", "OnClick = Go", "OnClick = 'Go'"});
  ExpectReadLikeItsStream(text);
  EXPECT_EQ(FormSession::FromBytes(text)->Findings().size(), 5u);
}

TEST_F(Reading, AStringGoesOnBehindItsApostrophe) {
  const QByteArray text =
      Each("TLabel", {"Caption = 'one'", "Caption = 'one' +\n      ' more'", "Caption = 'one'#33",
                      "Caption = 'one'\n", "Caption = 'one' + #10"});
  ExpectReadLikeItsStream(text);
  const auto session = FormSession::FromBytes(text);
  EXPECT_EQ(As<TLabel>(session->GetComponent(QStringLiteral("C1")))->Caption(), QStringLiteral("one more"));
  EXPECT_EQ(As<TLabel>(session->GetComponent(QStringLiteral("C2")))->Caption(), QStringLiteral("one!"));
}

TEST_F(Reading, ASetAndANumberMeanTheSameHoweverTheyAreWritten) {
  ExpectReadLikeItsStream(
      Each("TLabel",
           {"Font.Style = [fsBold]", "Font.Style = [ fsBold ]", "Font.Style = [fsbold]", "Font.Style = []",
            "Font.Style = [fsBold, fsItalic]", "Font.Style = [fsBold]", "Font.Color = clRed",
            "Font.Color = $FF", "Font.Color = 255", "Font.Color = CLRED", "Left = -3", "Left = $10",
            "Left = 007", "Tag = 9223372036854775807", "Tag = -9223372036854775808"}));
}

TEST_F(Reading, NamesOfPropertiesAreFoundInAnyOrderAndCase) {
  ExpectReadLikeItsStream(
      Each("TLabel", {"Left = 1\n    Top = 2\n    Width = 3", "Top = 4\n    Left = 5\n    left = 6",
                      "WIDTH = 7\n    Top = 8\n    Width = 9\n    Left = 1",
                      "Top = 2\n    Left = 3\n    Strange = 4\n    Strange.Left = 5"}));
}

TEST_F(Reading, RandomFormsAreReadLikeTheirStreams) {
  const QByteArrayList paths{"Left",  "Top",          "Width",           "Height",       "Caption",
                             "Hint",  "Font.Color",   "Font.Name",       "Font.Style",   "Font.Height",
                             "Color", "Visible",      "Align",           "AutoSize",     "OnClick",
                             "Tag",   "LED.HorzSize", "LED.ActiveColor", "FocusControl", "Nothing"};
  const QByteArrayList values{"0",
                              "1",
                              "-12",
                              "300",
                              "'text'",
                              "'other text'",
                              "'a'#39'b'",
                              "'a' + 'b'",
                              "clRed",
                              "clBtnFace",
                              "alTop",
                              "alClient",
                              "True",
                              "False",
                              "[]",
                              "[fsBold]",
                              "[fsBold, fsUnderline]",
                              "Go",
                              "nil",
                              "C0",
                              "1.5",
                              "$00FF00",
                              "''",
                              "[alTop]",
                              "'\xC3\xA4'"};
  const QByteArrayList classes{"TLabel", "TPanel", "TButton", "TVRXLEDLabel", "TUnheardOf"};
  for (quint32 seed = 1; seed <= 60; ++seed) {
    QRandomGenerator random(seed);
    const auto any = [&](const QByteArrayList& list) { return list[random.bounded(list.size())]; };
    QByteArray text;
    for (int i = 0; i < 40; ++i) {
      text += "  object C" + QByteArray::number(i) + ": " + any(classes) + "\n";
      for (int k = random.bounded(12); k > 0; --k) text += "    " + any(paths) + " = " + any(values) + "\n";
      text += "  end\n";
    }
    ExpectReadLikeItsStream(Form(text));
    if (HasFatalFailure()) FAIL() << "seed " << seed;
  }
}

TEST_F(Reading, AReferenceLeadsToTheFormItselfButToNoWrongClass) {
  const QByteArray text = Form(
      "  object A: TLabel\n    FocusControl = F\n  end\n  object B: TLabel\n    FocusControl = A\n  end\n"
      "  object C: TLabel\n    FocusControl = D\n  end\n  object D: TButton\n  end\n");
  ExpectReadLikeItsStream(text);
  const auto session = FormSession::FromBytes(text);
  const auto focus = [&](const char* name) {
    return As<TLabel>(session->GetComponent(QLatin1StringView(name)))->FocusControl();
  };
  EXPECT_EQ(focus("A"), session->GetRoot());
  EXPECT_EQ(focus("B"), nullptr);
  EXPECT_EQ(focus("C"), session->GetComponent(QStringLiteral("D")));
  ASSERT_EQ(session->Findings().size(), 1u);
  EXPECT_TRUE(session->Findings()[0].text.endsWith(
      QStringLiteral("B.FocusControl refers to A, which is a TLabel and no TWinControl")))
      << qPrintable(session->Findings()[0].text);
  EXPECT_EQ(session->Bytes(), text);
}
