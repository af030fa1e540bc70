// Custom colours, the look of the IDE, notifications and package records.
#include <gtest/gtest.h>

#include <QApplication>
#include <QJsonDocument>
#include <QPainter>

#include "DesignTest.h"
#include "designintf/ComponentIcons.h"
#include "designintf/CustomColors.h"
#include "designintf/DesignWindow.h"
#include "designintf/IdeTheme.h"
#include "designintf/Package.h"
#include "rtl/Registry.h"
#include "vcl/Theme.h"

TEST(CustomColors, AreKeptInOrder) {
  std::vector<TColor> colors;
  for (unsigned i = 0; i < 16; ++i) colors.push_back(TColor(i * 0x010203));
  const QStringList entries = CustomColorEntries(colors);
  ASSERT_EQ(entries.size(), 16);
  EXPECT_EQ(entries[0], QStringLiteral("ColorA=00000000"));
  EXPECT_EQ(entries[1], QStringLiteral("ColorB=00010203"));
  EXPECT_EQ(entries[15], QStringLiteral("ColorP=000F1E2D"));
  SaveIDECustomColors(entries);
  EXPECT_EQ(LoadIDECustomColors(), entries);
  EXPECT_EQ(CustomColorValues(LoadIDECustomColors()), colors);
  const QStringList fewer = entries.mid(0, 3);
  SaveIDECustomColors(fewer);
  EXPECT_EQ(LoadIDECustomColors(), fewer) << "the others are gone";
  SaveIDECustomColors({});
  EXPECT_TRUE(LoadIDECustomColors().isEmpty());
}

TEST(CustomColors, AreSixteenAtMost) {
  const std::vector<TColor> many(20, clRed);
  EXPECT_EQ(CustomColorEntries(many).size(), 16);
  EXPECT_EQ(CustomColorValues(QStringList(20, QStringLiteral("ColorA=000000FF"))).size(), 16u);
}

TEST(CustomColors, EntriesThatAreNoColorAreLeftOut) {
  EXPECT_EQ(CustomColorValues({QStringLiteral("ColorA=000000FF"), QStringLiteral("ColorB=red"),
                               QStringLiteral("ColorC="), QStringLiteral("ColorD=00FF0000")}),
            (std::vector<TColor>{clRed, clBlue}));
}

namespace {
struct Window {
  QWidget window;
  QWidget* outer = new QWidget(&window);
  QWidget* inner = new QWidget(outer);
  QWidget* other = new QWidget(&window);
};
}  // namespace

TEST(IdeTheme, ReachesEverythingWithoutAFilter) {
  Window w;
  EXPECT_FALSE(IsIDEThemed(w.window));
  ApplyIDETheme(w.window);
  for (const QWidget* widget : {&w.window, w.outer, w.inner, w.other}) EXPECT_TRUE(IsIDEThemed(*widget));
}

TEST(IdeTheme, LeavesOutWhatTheFilterRefusesAndAllInside) {
  const QPalette before = QApplication::palette();
  ApplyTheme(TTheme::Dark);
  Window w;
  ApplyIDETheme(w.window);
  ApplyIDETheme(w.window, [&](const QWidget& widget) { return &widget != w.outer; });
  EXPECT_TRUE(IsIDEThemed(w.window));
  EXPECT_TRUE(IsIDEThemed(*w.other));
  EXPECT_FALSE(IsIDEThemed(*w.outer));
  EXPECT_FALSE(IsIDEThemed(*w.inner)) << "not in the last theming";
  EXPECT_NE(w.inner->palette().color(QPalette::Window), w.other->palette().color(QPalette::Window));
  ApplyIDETheme(w.window);
  EXPECT_TRUE(IsIDEThemed(*w.inner));
  EXPECT_EQ(w.inner->palette().color(QPalette::Window), w.other->palette().color(QPalette::Window))
      << "it has the IDE's again";
  QApplication::setPalette(before);
}

namespace {
class Listener : public IDesignNotification {
 public:
  explicit Listener(std::function<void()> then = {}) : then_(std::move(then)) {
    RegisterDesignNotification(this);
  }
  void ItemsModified(IDesigner* d) override {
    ++heard;
    designer = d;
    if (then_) then_();
  }
  int heard = 0;
  IDesigner* designer = nullptr;

 private:
  std::function<void()> then_;
};
void Modify(IDesigner* d) {
  NotifyDesign([d](IDesignNotification& n) { n.ItemsModified(d); });
}
}  // namespace

TEST(Notifications, ReachEveryListenerOnce) {
  FakeDesigner designer;
  Listener a, b;
  RegisterDesignNotification(&a);
  Modify(&designer);
  EXPECT_EQ(a.heard, 1);
  EXPECT_EQ(b.heard, 1);
  EXPECT_EQ(b.designer, &designer);
  UnregisterDesignNotification(&a);
  Modify(&designer);
  EXPECT_EQ(a.heard, 1);
  EXPECT_EQ(b.heard, 2);
}

TEST(Notifications, AListenerMayGoWhileItIsTold) {
  FakeDesigner designer;
  Listener first([&] { UnregisterDesignNotification(&first); });
  auto doomed = std::make_unique<Listener>();
  Listener killer([&] { doomed.reset(); });
  auto later = std::make_unique<Listener>();
  Listener laterKiller([&] { later.reset(); });
  Listener last;
  // Whoever is gone before its turn is not told.
  UnregisterDesignNotification(doomed.get());
  RegisterDesignNotification(doomed.get());
  Modify(&designer);
  EXPECT_EQ(doomed, nullptr);
  EXPECT_EQ(later, nullptr);
  EXPECT_EQ(first.heard, 1);
  EXPECT_EQ(last.heard, 1);
  Modify(&designer);
  EXPECT_EQ(first.heard, 1);
  EXPECT_EQ(killer.heard, 2);
}

TEST(Notifications, ANewListenerHearsFromTheNextOn) {
  FakeDesigner designer;
  std::unique_ptr<Listener> added;
  Listener adder([&] {
    if (!added) added = std::make_unique<Listener>();
  });
  Modify(&designer);
  EXPECT_EQ(added->heard, 0);
  Modify(&designer);
  EXPECT_EQ(added->heard, 1);
}

TEST(DesignWindow, ForgetsADesignerThatCloses) {
  FakeDesigner mine, other;
  TDesignWindow window;
  window.SetDesigner(&mine);
  NotifyDesign([&](IDesignNotification& n) { n.DesignerClosed(&other); });
  EXPECT_EQ(window.Designer(), &mine);
  NotifyDesign([&](IDesignNotification& n) { n.DesignerClosed(&mine); });
  EXPECT_EQ(window.Designer(), nullptr);
}

TEST(PackageRecord, SurvivesJson) {
  TPackageRecord r;
  r.Name = QStringLiteral("dclsample");
  r.Description = QStringLiteral("A \"sample\" \u2013 package");
  r.NeverBuild = true;
  r.RunOnly = true;
  r.Requires = {QStringLiteral("rtl"), QStringLiteral("vcl")};
  r.Provides = {QStringLiteral("one"), QStringLiteral("two")};
  r.Contains = {{QStringLiteral("Main"), true, true},
                {QStringLiteral("Unit"), false, false},
                {QStringLiteral("P"), false, true}};
  const auto back =
      TPackageRecord::FromJson(QJsonDocument::fromJson(QJsonDocument(r.ToJson()).toJson()).object());
  EXPECT_EQ(back.Name, r.Name);
  EXPECT_EQ(back.Description, r.Description);
  EXPECT_TRUE(back.NeverBuild);
  EXPECT_FALSE(back.DesignOnly);
  EXPECT_TRUE(back.RunOnly);
  EXPECT_EQ(back.Requires, r.Requires);
  EXPECT_EQ(back.Provides, r.Provides);
  ASSERT_EQ(back.Contains.size(), 3u);
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(back.Contains[i].Name, r.Contains[i].Name);
    EXPECT_EQ(back.Contains[i].MainUnit, r.Contains[i].MainUnit);
    EXPECT_EQ(back.Contains[i].PackageUnit, r.Contains[i].PackageUnit);
  }
}

TEST(PackageRecord, ReadsUnitsWithoutFlagsAndMissingParts) {
  const auto r = TPackageRecord::FromJson(
      QJsonDocument::fromJson(
          R"({"name":"p","flags":["design-only","strange"],"contains":["A",{"unit":"B","flags":["main-unit"]}]})")
          .object());
  EXPECT_EQ(r.Name, QStringLiteral("p"));
  EXPECT_TRUE(r.DesignOnly);
  EXPECT_FALSE(r.NeverBuild);
  EXPECT_TRUE(r.Requires.isEmpty());
  ASSERT_EQ(r.Contains.size(), 2u);
  EXPECT_EQ(r.Contains[0].Name, QStringLiteral("A"));
  EXPECT_FALSE(r.Contains[0].MainUnit);
  EXPECT_EQ(r.Contains[1].Name, QStringLiteral("B"));
  EXPECT_TRUE(r.Contains[1].MainUnit);
  EXPECT_FALSE(r.ToJson().contains(QStringLiteral("provides"))) << "only when there are any";
}

TEST(ComponentIcons, AreTheNearestAncestors) {
  const auto picture = [](const TClass& cls) { return ComponentPixmap(cls, 24).toImage(); };
  const QImage plain = picture(TComponent::StaticClass());
  EXPECT_EQ(plain.size(), QSize(24, 24));
  EXPECT_NE(picture(TBigIce::StaticClass()), plain);
  EXPECT_EQ(picture(TBigIce::StaticClass()), picture(TIce::StaticClass()));
  EXPECT_EQ(ComponentIcon(TIce::StaticClass()).pixmap(48, 48).size(), QSize(48, 48));
}

TEST(ComponentIcons, ADrawingIsReadWordByWord) {
  for (const char* right : {"", "pen line 1.5 path 1 1 2 2", "pen none brush accent+50 box 1 1 9 9 2",
                            "pen #ff0000 1 dots oval 1 1 5 5", "text 12 12 9 Ab pen line shape 1 1 5 1 3 9"})
    EXPECT_EQ(UnknownWordOf(right), QByteArray()) << right;
  EXPECT_EQ(UnknownWordOf("pen line 1 circle 1 1 2"), "circle");
  EXPECT_EQ(UnknownWordOf("pen nocolour box 1 1 2 2 0"), "nocolour");
  EXPECT_EQ(UnknownWordOf("box 1 1 x"), "x");
}

TEST(ComponentIcons, APageHasItsAccent) {
  const auto accents = [](const QColor& color) {
    const QImage picture = ComponentPixmap(TComponent::StaticClass(), 48).toImage();
    int count = 0;
    for (int y = 0; y < 48; ++y)
      for (int x = 0; x < 48; ++x) count += picture.pixelColor(x, y) == color;
    return count;
  };
  const QColor theme = QApplication::palette().color(QPalette::Highlight), teal(0xFF14868C);
  EXPECT_GT(accents(theme), 0);
  EXPECT_EQ(accents(teal), 0);
  DesignRegistry registry;
  const RegistrationScope scope(registry, nullptr, "Unit");
  RegisterComponents(QStringLiteral("VRX Form"), {&TComponent::StaticClass()});
  EXPECT_EQ(accents(theme), 0);
  EXPECT_GT(accents(teal), 0);
}

TEST(ComponentIcons, AreReadableInSelectedRows) {
  const QIcon icon = ComponentIcon(TComponent::StaticClass());
  const auto accents = [&](QIcon::Mode mode) {
    const QImage picture = icon.pixmap(QSize(48, 48), mode).toImage();
    int count = 0;
    for (int y = 0; y < 48; ++y)
      for (int x = 0; x < 48; ++x)
        count += picture.pixelColor(x, y) == QApplication::palette().color(QPalette::Highlight);
    return count;
  };
  EXPECT_GT(accents(QIcon::Normal), 0);
  EXPECT_EQ(accents(QIcon::Selected), 0) << "the accent on a ground of the accent";
}
