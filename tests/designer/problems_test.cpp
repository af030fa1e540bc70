// What is wrong with the open form: the list below the surface and the signs in the inspector follow edits.
#include "designer/RowDelegate.h"
#include "ide/operations/FormText.h"
#include "tests/designer/ProblemsTest.h"
#include "vcl/StatusBar.h"

using namespace designer;

namespace {
const QByteArray Form = R"(object Main: TMain
  ClientHeight = 200
  ClientWidth = 300
  object Label1: TLabel
    Left = 8
    Top = 8
    Width = 60
    Height = 15
    Caption = 'Label'
    FocusControl = Nobody
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clStrange
    Font.Height = -12
    Font.Name = 'Tahoma'
    Font.Style = []
    ParentFont = False
  end
  object Button1: TButton
    Left = 8
    Top = 40
    Width = 75
    Height = 25
    Caption = 'Go'
    Enabled = 'perhaps'
    TabOrder = 0
  end
  object Bar: TStatusBar
    Left = 0
    Top = 181
    Width = 300
    Height = 19
    Panels = <
      item
        Width = 50
      end
      item
        Alignment = 'sideways'
        Width = 60
      end>
  end
end
)";

class Problems : public ListingProblems {
 protected:
  explicit Problems(const QByteArray& form = Form) : ListingProblems(form) {}
  QDockWidget& Dock() { return dynamic_cast<QDockWidget&>(*List().parentWidget()); }
  // The line and the word after the last colon but one.
  std::string Told() {
    QStringList told;
    for (const QString& text : Texts()) {
      for (const char* word : {"Nobody", "clStrange", "perhaps", "sideways", "Elsewhere"})
        if (text.contains(QLatin1StringView(word)))
          told << text.section(u':', 0, 0) + u' ' + QLatin1StringView(word);
    }
    EXPECT_EQ(told.size(), List().count());
    return told.join(u'|').toStdString();
  }
  bool TellsNow(const char* told) {
    return QTest::qWaitFor([&] { return Told() == told; }, Patience);
  }
  QString Problem(const char* path) {
    return Inspector()
        .Model()
        .IndexOfPath(QLatin1StringView(path))
        .data(InspectorModel::ProblemRole)
        .toString();
  }
  // Whether the row has a sign where rows without a problem have none.
  bool HasSign(const char* path) {
    const QModelIndex row = Inspector().Model().IndexOfPath(QLatin1StringView(path));
    View().scrollTo(row);
    QCoreApplication::processEvents();
    const QRect sign = RowDelegate::SignRect(View().visualRect(row));
    const QImage image = View().viewport()->grab(sign).toImage();
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) colors.insert(image.pixel(x, y));
    return colors.size() > 4;
  }
};
}  // namespace

TEST_F(Problems, ThatAreMendedGoAndLinesFollow) {
  EXPECT_EQ(Told(), "Line 12 clStrange|Line 24 perhaps|Line 32 sideways|Line 10 Nobody");
  EXPECT_EQ(Dock().windowTitle(), QStringLiteral("Problems (4)"));
  Show("Label1", "FocusControl");
  ASSERT_EQ(
      Inspector().Model().SetValueText(View().currentIndex().siblingAtColumn(0), QStringLiteral("Button1")),
      QString());
  EXPECT_TRUE(TellsNow("Line 12 clStrange|Line 24 perhaps|Line 32 sideways")) << Told();
  EXPECT_EQ(Dock().windowTitle(), QStringLiteral("Problems (3)"));
  // A line less above the others.
  Session().Run(QStringLiteral("edit"), {},
                [&] { dynamic_cast<TLabel&>(Get("Label1")).SetCaption(QString()); });
  EXPECT_TRUE(TellsNow("Line 11 clStrange|Line 23 perhaps|Line 31 sideways")) << Told();
  Session().DeleteComponents({&Get("Label1"), &Get("Bar")});
  EXPECT_TRUE(TellsNow("Line 10 perhaps")) << Told();
  Session().Undo();
  Session().Undo();
  Session().Undo();
  EXPECT_TRUE(TellsNow("Line 12 clStrange|Line 24 perhaps|Line 32 sideways|Line 10 Nobody")) << Told();
}

TEST_F(Problems, TheListGoesWithTheLastAndComesWithTheNext) {
  Session().DeleteComponents({&Get("Label1"), &Get("Bar")});
  Session().Run(QStringLiteral("edit"), {},
                [&] { dynamic_cast<TControl&>(Get("Button1")).SetEnabled(false); });
  EXPECT_TRUE(TellsNow("")) << Told();
  EXPECT_TRUE(Dock().isHidden());
  Session().Undo();
  EXPECT_TRUE(TellsNow("Line 10 perhaps")) << Told();
  EXPECT_FALSE(Dock().isHidden());
  // Who closed it is left alone until there is more.
  Dock().hide();
  Session().Run(QStringLiteral("edit"), {},
                [&] { dynamic_cast<TButton&>(Get("Button1")).SetCaption(QString()); });
  EXPECT_TRUE(TellsNow("Line 9 perhaps")) << Told();
  EXPECT_TRUE(Dock().isHidden());
  Session().Undo();
  Session().Undo();
  EXPECT_TRUE(TellsNow("Line 12 clStrange|Line 24 perhaps|Line 32 sideways|Line 10 Nobody")) << Told();
  EXPECT_FALSE(Dock().isHidden());
}

namespace {
class ProblemsOfASoundForm : public Problems {
 protected:
  ProblemsOfASoundForm() : Problems("object Main: TMain\n  ClientHeight = 200\n  ClientWidth = 300\nend\n") {}
};
}  // namespace

TEST_F(ProblemsOfASoundForm, ComeWithWhatIsPasted) {
  EXPECT_TRUE(Dock().isHidden());
  const forms::Document objects =
      ObjectsOfText(QStringLiteral("object Button1: TButton\n  Enabled = 'perhaps'\nend\n"));
  Session().Insert(objects, {{objects.Root().children[0].get(), Session().ObjectOf(Session().Form())}});
  EXPECT_TRUE(TellsNow("Line 5 perhaps")) << Told();
  EXPECT_FALSE(Dock().isHidden());
}

TEST_F(Problems, RefusedValuesHaveASignWithTheReason) {
  Select("Button1");
  const QModelIndex row = Inspector().Model().IndexOfPath(QStringLiteral("Enabled"));
  const QString problem = Problem("Enabled");
  EXPECT_TRUE(problem.contains(QStringLiteral("'perhaps'"))) << problem.toStdString();
  for (int column : {0, 1}) EXPECT_EQ(row.siblingAtColumn(column).data(Qt::ToolTipRole).toString(), problem);
  EXPECT_EQ(row.data(Qt::AccessibleDescriptionRole).toString(), problem);
  EXPECT_EQ(Problem("Caption"), QString());
  EXPECT_TRUE(HasSign("Enabled"));
  EXPECT_FALSE(HasSign("Caption"));
  Show("Button1", "Enabled");
  QStringList texts;
  for (const QLabel* label : Inspector().findChildren<QLabel*>()) texts << label->text();
  EXPECT_TRUE(texts.join(u'|').contains(problem)) << "below the rows, too";
}

TEST_F(Problems, TheSignGoesWithTheRefusedValueAtOnce) {
  Show("Button1", "Enabled");
  ASSERT_NE(Problem("Enabled"), QString());
  ASSERT_EQ(
      Inspector().Model().SetValueText(View().currentIndex().siblingAtColumn(0), QStringLiteral("False")),
      QString());
  EXPECT_EQ(Problem("Enabled"), QString());
  EXPECT_FALSE(HasSign("Enabled"));
  Session().Undo();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !Problem("Enabled").isEmpty(); }, Patience));
  EXPECT_TRUE(HasSign("Enabled"));
}

TEST_F(Problems, RowsAboveARefusedValueAndRowsOfItemsHaveTheSign) {
  Select("Label1");
  EXPECT_TRUE(Problem("Font.Color").contains(QStringLiteral("clStrange")));
  EXPECT_EQ(Problem("Font"), Problem("Font.Color"));
  EXPECT_EQ(Problem("Font.Name"), QString());
  EXPECT_TRUE(Problem("FocusControl").contains(QStringLiteral("Nobody")));
  Select("Bar");
  EXPECT_TRUE(Problem("Panels").contains(QStringLiteral("'sideways'")));
  const auto& panels = *dynamic_cast<TStatusBar&>(Get("Bar")).Get(TStatusBar::Panels);
  Session().SetSelections({panels.Item(1)});
  EXPECT_TRUE(Problem("Alignment").contains(QStringLiteral("'sideways'")));
  EXPECT_EQ(Problem("Width"), QString());
  Session().SetSelections({panels.Item(0)});
  EXPECT_EQ(Problem("Alignment"), QString());
}
