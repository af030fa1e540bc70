// What the list of problems tells of, what it looks like, and that it is that of the open form.
#include "forms/Document.h"
#include "tests/designer/ProblemsTest.h"

namespace designer {
namespace {
const QByteArray Plain = "object Main: TMain\n  ClientHeight = 200\n  ClientWidth = 300\nend\n";
const QByteArray Refused = R"(object Main: TMain
  ClientHeight = 200
  ClientWidth = 300
  object Button1: TButton
    Left = 8
    Top = 40
    Width = 75
    Height = 25
    caption = 'Go'
    enabled = 'perhaps'
    TabOrder = 0
  end
  object Button2: TButton
    Left = 8
    Top = 80
    Width = 75
    Height = 25
    Enabled = 'never'
    TabOrder = 1
  end
  object Label1: TLabel
    Left = 8
    Top = 8
    Width = 60
    Height = 15
    Caption = 'Label'
    FocusControl = Nobody
  end
  object Letters: TVRXGraphicLabel
    Left = 100
    Top = 8
    Width = 160
    Height = 48
    AutoSize = False
    PerspectiveDepth = 'deep'
  end
end
)";

class ProblemsListTest : public ListingProblems {
 protected:
  explicit ProblemsListTest(const QByteArray& form = Refused) : ListingProblems(form) {}
  int RowOf(const char* word) {
    for (int i = 0; i < List().count(); ++i)
      if (List().item(i)->text().contains(QLatin1StringView(word))) return i;
    return -1;
  }
  QString Problem(const char* path) {
    return Inspector()
        .Model()
        .IndexOfPath(QLatin1StringView(path))
        .data(InspectorModel::ProblemRole)
        .toString();
  }
  void Rename(const char* component, const char* caption) {
    Session().Run(QStringLiteral("edit"), {},
                  [&] { dynamic_cast<TControl&>(Get(component)).SetCaption(QString::fromLatin1(caption)); });
  }
  bool Open(const char* name, const QByteArray& form) {
    const QString file = folder_.filePath(QString::fromLatin1(name));
    Write(file, form);
    return window_->OpenForm(file);
  }
};
}  // namespace

TEST_F(ProblemsListTest, TheChosenLineStaysChosen) {
  ASSERT_EQ(List().count(), 4);
  List().setCurrentRow(2);
  QSignalSpy found(&Session(), &FormSession::FindingsChanged);
  Rename("Button2", "Other");
  ASSERT_TRUE(QTest::qWaitFor([&] { return !found.isEmpty(); }, Patience));
  EXPECT_EQ(List().currentRow(), 2);
}

TEST_F(ProblemsListTest, ErrorsAndWarningsLookLikeThat) {
  const auto image = [](const QIcon& icon) { return icon.pixmap(16, 16).toImage(); };
  const auto severity = [&](const char* word) {
    for (const forms::Finding& f : Session().Findings())
      if (f.text.contains(QLatin1StringView(word))) return f.severity;
    return forms::Severity::Note;
  };
  QSet<int> seen;
  for (const char* word : {"perhaps", "Nobody"}) {
    const int row = RowOf(word);
    ASSERT_GE(row, 0) << word;
    const bool error = severity(word) == forms::Severity::Error;
    seen.insert(error);
    EXPECT_EQ(image(List().item(row)->icon()),
              image(List().style()->standardIcon(error ? QStyle::SP_MessageBoxCritical
                                                       : QStyle::SP_MessageBoxWarning)));
  }
  EXPECT_EQ(seen.size(), 2) << "one of each";
}

TEST_F(ProblemsListTest, AFindingIsThatOfOneComponentAndOneProperty) {
  Select("Button1");
  const QString first = Problem("Enabled");
  EXPECT_TRUE(first.contains(QStringLiteral("perhaps")));
  Select("Button2");
  EXPECT_TRUE(Problem("Enabled").contains(QStringLiteral("never")));
  Select("Letters");
  EXPECT_TRUE(Problem("PerspectiveDepth").contains(QStringLiteral("deep")));
  EXPECT_EQ(Problem("Perspective"), QString()) << "a name that only begins so";
  EXPECT_EQ(Problem("Enabled"), QString());
  // Again after the whole form was looked at once more.
  QSignalSpy found(&Session(), &FormSession::FindingsChanged);
  Rename("Button2", "Other");
  ASSERT_TRUE(QTest::qWaitFor([&] { return !found.isEmpty(); }, Patience));
  Select("Button1");
  EXPECT_EQ(Problem("Enabled"), first);
  Select("Label1");
  EXPECT_EQ(Problem("Enabled"), QString());
}

TEST_F(ProblemsListTest, AMendedValueLosesItsSignAtOnceHoweverItsNameIsWritten) {
  Show("Button1", "Enabled");
  ASSERT_NE(Problem("Enabled"), QString());
  ASSERT_EQ(
      Inspector().Model().SetValueText(View().currentIndex().siblingAtColumn(0), QStringLiteral("False")),
      QString());
  EXPECT_EQ(Problem("Enabled"), QString());
  Select("Button2");
  EXPECT_NE(Problem("Enabled"), QString()) << "the other one's stays";
  Select("Button1");
  Session().Undo();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !Problem("Enabled").isEmpty(); }, Patience));
  Session().Redo();
  EXPECT_EQ(Problem("Enabled"), QString()) << "redone, too";
}

TEST_F(ProblemsListTest, UnknownNamesAreNoProblems) {
  ASSERT_TRUE(Open("unknown.dfm", QByteArray(Plain).replace(
                                      "end\n", "  Foreign = 7\n  object Box: TMysteryBox\n  end\nend\n")));
  EXPECT_FALSE(Session().Findings().empty());
  EXPECT_EQ(Texts(), QStringList());
}

TEST_F(ProblemsListTest, AMissingAncestorIsToldAndStaysTold) {
  ASSERT_TRUE(Open("Derived.dfm",
                   "inherited Derived: TDerived\n  Caption = 'Derived'\n  object Extra: TButton\n    Left = "
                   "24\n    Top = 6\n    Width = 80\n    Height = 24\n  end\nend\n"));
  ASSERT_EQ(List().count(), 1);
  const QStringList told = Texts();
  EXPECT_TRUE(told[0].contains(QStringLiteral("Derived"))) << told[0].toStdString();
  QSignalSpy found(&Session(), &FormSession::FindingsChanged);
  Rename("Extra", "Other");
  ASSERT_TRUE(QTest::qWaitFor([&] { return !found.isEmpty(); }, Patience));
  EXPECT_EQ(Texts(), told);
}

TEST_F(ProblemsListTest, OfAFormWithoutLinesNoneAreTold) {
  ASSERT_TRUE(Open("binary.dfm", forms::Document::Parse(Refused).WriteAs(forms::Format::Binary)));
  ASSERT_EQ(List().count(), 4);
  for (const QString& text : Texts())
    EXPECT_FALSE(text.startsWith(QStringLiteral("Line "))) << text.toStdString();
}

TEST_F(ProblemsListTest, AnotherFormHasItsOwn) {
  Rename("Button2", "Other");
  ASSERT_TRUE(Open("plain.dfm", Plain));
  QSignalSpy found(&Session(), &FormSession::FindingsChanged);
  EXPECT_EQ(Texts(), QStringList());
  for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
  EXPECT_TRUE(found.isEmpty()) << "nobody did anything to this one";
  ASSERT_TRUE(window_->OpenForm(file_));
  EXPECT_EQ(List().count(), 4);
}
}  // namespace designer
