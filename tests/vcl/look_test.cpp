// Colours and fonts handed down from the parent, texts that size their control, names and captions.
#include "VclTest.h"
#include "rtl/PropAccess.h"
#include "vcl/Button.h"
#include "vcl/ComboBox.h"
#include "vcl/Edit.h"
#include "vcl/Form.h"
#include "vcl/Label.h"
#include "vcl/ListBox.h"
#include "vcl/Panel.h"

namespace {
struct Nest {
  TForm form{nullptr};
  TPanel panel{&form};
  TLabel label{&form};
  Nest() {
    panel.SetParent(&form);
    label.SetParent(&panel);
  }
};
}  // namespace

TEST(ParentColor, ReachesEveryLevel) {
  Nest n;
  n.form.SetColor(clRed);
  EXPECT_EQ(n.panel.Color(), clRed);
  EXPECT_EQ(n.label.Color(), clRed);
  EXPECT_TRUE(n.panel.ParentColor());
}

TEST(ParentColor, AColorOfItsOwnEndsIt) {
  Nest n;
  n.panel.SetColor(clBlue);
  EXPECT_FALSE(n.panel.ParentColor());
  EXPECT_EQ(n.label.Color(), clBlue);
  n.form.SetColor(clRed);
  EXPECT_EQ(n.panel.Color(), clBlue);
  EXPECT_EQ(n.label.Color(), clBlue);
  n.panel.SetParentColor(true);
  EXPECT_EQ(n.panel.Color(), clRed);
  EXPECT_EQ(n.label.Color(), clRed);
}

TEST(ParentColor, TheSameColorGivenOnPurposeEndsItToo) {
  Nest n;
  n.form.SetColor(clRed);
  ASSERT_EQ(n.panel.Color(), clRed);
  CountingHost host;
  n.form.SetHost(&host);
  n.panel.SetColor(clRed);
  EXPECT_EQ(host.changes, 1);
  n.panel.SetColor(clRed);
  EXPECT_EQ(host.changes, 1) << "now nothing changes any more";
  n.form.SetHost(nullptr);
  EXPECT_FALSE(n.panel.ParentColor());
  n.form.SetColor(clBlue);
  EXPECT_EQ(n.panel.Color(), clRed);
}

TEST(ParentColor, IsTakenWhenTheParentChanges) {
  Nest n;
  n.form.SetColor(clYellow);
  n.panel.SetColor(clBlue);
  n.label.SetParent(&n.form);
  EXPECT_EQ(n.label.Color(), clYellow);
  n.label.SetColor(clLime);
  n.label.SetParent(&n.panel);
  EXPECT_EQ(n.label.Color(), clLime);
}

TEST(ParentColor, DecidesWhetherTheColorIsStored) {
  Nest n;
  const TPropInfo& color = TPanel::StaticClass().GetProp("Color");
  EXPECT_FALSE(IsStoredProp(n.panel, color));
  n.panel.SetColor(clBlue);
  EXPECT_TRUE(IsStoredProp(n.panel, color));
  n.panel.SetParentColor(true);
  EXPECT_FALSE(IsStoredProp(n.panel, color));
}

TEST(ParentFont, ReachesEveryLevelAndEndsWithAFontOfItsOwn) {
  Nest n;
  n.form.Font()->SetHeight(-20);
  EXPECT_EQ(n.panel.Font()->Height(), -20);
  EXPECT_EQ(n.label.Font()->Height(), -20);
  n.panel.Font()->SetColor(clRed);
  EXPECT_FALSE(n.panel.ParentFont());
  EXPECT_TRUE(n.label.ParentFont());
  EXPECT_EQ(n.label.Font()->Color(), clRed);
  n.form.Font()->SetHeight(-30);
  EXPECT_EQ(n.panel.Font()->Height(), -20);
  EXPECT_EQ(n.label.Font()->Height(), -20);
  n.panel.SetParentFont(true);
  EXPECT_EQ(n.panel.Font()->Height(), -30);
  EXPECT_EQ(n.label.Font()->Height(), -30);
  EXPECT_EQ(n.label.Font()->Color(), clWindowText);
}

TEST(ParentFont, IsTakenAfterLoading) {
  Nest n;
  n.label.BeginLoading();
  n.panel.BeginLoading();
  n.panel.Font()->SetHeight(-40);
  EXPECT_NE(n.label.Font()->Height(), -40);
  n.panel.Loaded();
  n.label.Loaded();
  EXPECT_EQ(n.label.Font()->Height(), -40);
}

TEST(ShowHint, AValueOfItsOwnIsNotTheParents) {
  TPanel p(nullptr);
  const TPropInfo& prop = TPanel::StaticClass().GetProp("ShowHint");
  EXPECT_TRUE(p.ParentShowHint());
  EXPECT_FALSE(IsStoredProp(p, prop));
  p.SetShowHint(true);
  EXPECT_FALSE(p.ParentShowHint());
  EXPECT_TRUE(IsStoredProp(p, prop));
}

TEST(AutoSize, TheLabelFollowsTextAndFont) {
  TLabel label(nullptr);
  label.SetCaption(QStringLiteral("Hi"));
  const QSize small = label.BoundsRect().size();
  EXPECT_EQ(small, TextExtent(QStringLiteral("Hi"), *label.Font()));
  label.SetCaption(QStringLiteral("Hi, a much longer text"));
  EXPECT_GT(label.Width(), small.width());
  EXPECT_EQ(label.Height(), small.height());
  label.SetCaption(QStringLiteral("Hi"));
  EXPECT_EQ(label.BoundsRect().size(), small);
  label.Font()->SetHeight(-40);
  EXPECT_GT(label.Width(), small.width());
  EXPECT_GT(label.Height(), small.height());
}

TEST(AutoSize, OffKeepsTheSizeAndOnTakesItUpAgain) {
  TLabel label(nullptr);
  label.SetAutoSize(false);
  label.SetBounds(5, 6, 200, 90);
  label.SetCaption(QStringLiteral("Hi"));
  EXPECT_EQ(label.BoundsRect(), QRect(5, 6, 200, 90));
  label.SetAutoSize(true);
  EXPECT_EQ(label.BoundsRect(), QRect(QPoint(5, 6), TextExtent(QStringLiteral("Hi"), *label.Font())));
}

TEST(AutoSize, AWrappedLabelGrowsDownwards) {
  TLabel label(nullptr);
  label.SetWordWrap(true);
  label.SetWidth(60);
  label.SetCaption(QStringLiteral("word"));
  const int one = label.Height();
  label.SetCaption(QStringLiteral("several words that do not fit into one line of this label"));
  EXPECT_EQ(label.Width(), 60);
  EXPECT_GE(label.Height(), 2 * one - 2);
}

TEST(AutoSize, AcceleratorMarksTakeNoRoom) {
  TFont font;
  EXPECT_EQ(TextExtent(QStringLiteral("&File"), font, Qt::TextShowMnemonic),
            TextExtent(QStringLiteral("File"), font));
  TLabel plain(nullptr), marked(nullptr);
  plain.SetCaption(QStringLiteral("File"));
  marked.SetCaption(QStringLiteral("&File"));
  EXPECT_EQ(marked.Width(), plain.Width());
}

TEST(AutoSize, AnEmptyLabelKeepsItsHeight) {
  TLabel label(nullptr);
  label.SetCaption(QStringLiteral("x"));
  const int height = label.Height();
  label.SetCaption(QString());
  EXPECT_EQ(label.Width(), 0);
  EXPECT_EQ(label.Height(), height);
}

TEST(Caption, FollowsTheNameInTheDesignerUntilItIsChanged) {
  TForm form(nullptr);
  form.SetDesigning(true);
  auto* button = new TButton(&form);
  button->SetName(QStringLiteral("Button1"));
  EXPECT_EQ(button->Caption(), QStringLiteral("Button1"));
  button->SetName(QStringLiteral("StartButton"));
  EXPECT_EQ(button->Caption(), QStringLiteral("StartButton"));
  button->SetCaption(QStringLiteral("Start"));
  button->SetName(QStringLiteral("GoButton"));
  EXPECT_EQ(button->Caption(), QStringLiteral("Start"));
  TButton running(nullptr);
  running.SetName(QStringLiteral("Running"));
  EXPECT_EQ(running.Caption(), QString());
}

TEST(Changes, AreToldOnceAndOnlyWhenReal) {
  CountingHost host;
  TPanel panel(nullptr);
  panel.SetHost(&host);
  const auto changes = [&](const std::function<void()>& change) {
    const int before = host.changes;
    change();
    return host.changes - before;
  };
  EXPECT_EQ(changes([&] { panel.SetColor(clRed); }), 1);
  EXPECT_EQ(changes([&] { panel.SetColor(clRed); }), 0);
  EXPECT_EQ(changes([&] { panel.SetCaption(QStringLiteral("x")); }), 1);
  EXPECT_EQ(changes([&] { panel.SetCaption(QStringLiteral("x")); }), 0);
  EXPECT_EQ(changes([&] { panel.SetEnabled(false); }), 1);
  EXPECT_EQ(changes([&] { panel.SetVisible(false); }), 1);
  EXPECT_EQ(changes([&] { panel.Font()->SetHeight(-33); }), 1);
  EXPECT_EQ(changes([&] {
              panel.BeginUpdate();
              panel.SetColor(clBlue);
              panel.SetEnabled(true);
              panel.EndUpdate();
            }),
            1);
  panel.SetHost(nullptr);
}

// --- Disabled pictures

TEST(Look, AFieldHasItsColourUpToItsFrame) {
  const ThemeScope light(TTheme::Light);
  const auto expect = [](TControl& field) {
    SCOPED_TRACE(field.ClassType().ClassName().constData());
    field.SetBounds(0, 0, 90, 24);
    for (const bool enabled : {true, false}) {
      field.SetEnabled(enabled);
      field.SetColor(clYellow);
      const QImage picture = Draw(field);
      for (const QPoint at : {QPoint(2, 12), QPoint(40, 2), QPoint(40, field.Height() - 3)})
        EXPECT_EQ(picture.pixelColor(at), QColor(Qt::yellow)) << at.x() << ' ' << at.y();
    }
  };
  TEdit edit(nullptr);
  TComboBox combo(nullptr);
  TListBox list(nullptr);
  for (TControl* field :
       {static_cast<TControl*>(&edit), static_cast<TControl*>(&combo), static_cast<TControl*>(&list)})
    expect(*field);
}

TEST(Look, ADisabledIconIsFainterThanTheEnabledOneInBothThemes) {
  for (const TTheme theme : {TTheme::Light, TTheme::Dark}) {
    const ThemeScope scope(theme);
    const QColor ground = QGuiApplication::palette().color(QPalette::Window);
    QPixmap drawing(20, 14);
    drawing.fill(Qt::transparent);
    {
      QPainter p(&drawing);
      p.fillRect(2, 3, 12, 6, QGuiApplication::palette().color(QPalette::WindowText));
      p.fillRect(14, 3, 3, 6, QColor(0x3A, 0x72, 0xCF));
    }
    const QIcon icon(drawing);
    // How much it stands out.
    const auto strength = [&](QIcon::Mode mode) {
      QImage image(drawing.size(), QImage::Format_RGB32);
      image.fill(ground);
      QPainter(&image).drawPixmap(0, 0, icon.pixmap(drawing.size(), mode));
      int sum = 0;
      for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
          sum += std::abs(qGray(image.pixel(x, y)) - qGray(ground.rgb()));
      return sum;
    };
    const int enabled = strength(QIcon::Normal), disabled = strength(QIcon::Disabled);
    EXPECT_LT(disabled, enabled * 7 / 10) << "theme " << static_cast<int>(theme);
    EXPECT_GT(disabled, enabled / 8) << "theme " << static_cast<int>(theme);
  }
}
