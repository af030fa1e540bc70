// Lists, combo box and headings whose texts are markup.
#include <gtest/gtest.h>

#include "library/controls/HTMLComboBox.h"
#include "library/controls/HTMLHeaderControl.h"
#include "library/controls/HTMLListBox.h"
#include "tests/library/VisibleProperties.h"
#include "tests/support/Contrast.h"
#include "vcl/FormColors.h"

namespace {
const QStringList Rows{QStringLiteral("first row"),
                       QStringLiteral("<b>bold</b> and <font color=red>red</font> row"),
                       QStringLiteral("a row with so many words that it needs several lines of the list"),
                       QStringLiteral("Another <a href='over there'>link to follow</a>")};

template <class C>
struct Filled : C {
  explicit Filled(TComponent* owner) : C(owner) { C::Get(TCustomListBox::Items)->SetLines(Rows); }
};
struct FilledCombo : TVRXHTMLComboBox {
  explicit FilledCombo(TComponent* owner) : TVRXHTMLComboBox(owner) {
    Get(Items)->SetLines(Rows);
    Set(TextHint, QStringLiteral("choose <i>one</i>"));
    SetAutoSize(false);  // so that a change is seen by what is drawn
  }
};

struct Pictures : TImageList {
  Pictures() : TImageList(nullptr) {
    Set(Width, 23);
    Set(Height, 37);
    QImage blue(23, 37, QImage::Format_ARGB32);
    blue.fill(QColor(0, 0, 255));
    SetPictures({blue});
  }
};
constexpr int BluePixels = 23 * 37;

// What is not drawn: how it is used at run time, what the window around it shows.
const QStringList Unseen{QStringLiteral("AutoComplete"),
                         QStringLiteral("AutoSize"),
                         QStringLiteral("Bevel"),
                         QStringLiteral("BiDiMode"),
                         QStringLiteral("ClickOnSelChange"),
                         QStringLiteral("Constraints"),
                         QStringLiteral("Ctl3D"),
                         QStringLiteral("DoubleBuffered"),
                         QStringLiteral("Drag"),
                         QStringLiteral("DropDownCount"),
                         QStringLiteral("ExtendedSelect"),
                         QStringLiteral("Font"),
                         QStringLiteral("HelpType"),
                         QStringLiteral("Ime"),
                         QStringLiteral("IntegralHeight"),
                         QStringLiteral("Margins"),
                         QStringLiteral("MultiSelect"),
                         QStringLiteral("Parent"),
                         QStringLiteral("Style"),
                         QStringLiteral("Touch"),
                         QStringLiteral("AutoDropDownWidth"),
                         QStringLiteral("AlignWithMargins"),
                         QStringLiteral("DesignSize")};
}  // namespace

TEST(HtmlLists, EveryPropertyShows) {
  visible::ExpectAll<Filled<TVRXHTMLListBox>>({{"", "AutoItemHeight=False"},
                                               {"AutoItemHeight=False", "ItemHeight=31"},
                                               {"", "BorderStyle=bsNone"},
                                               {"", "Color=clYellow"},
                                               {"", "Enabled=False"},
                                               {"", "ItemIndex=1"},
                                               {"", "Sorted=True"},
                                               {"", "TopIndex=2"},
                                               {"", "WordWrap=False"}},
                                              {150, 90}, Unseen);
  visible::ExpectAll<Filled<TVRXHTMLExtListBox>>({{"", "AlternateColor=clYellow"},
                                                  {"", "AutoItemHeight=False"},
                                                  {"AutoItemHeight=False", "ItemHeight=31"},
                                                  {"", "BorderStyle=bsNone"},
                                                  {"", "Color=clYellow"},
                                                  {"", "Enabled=False"},
                                                  {"", "ItemIndex=1"},
                                                  {"ShowLines=True", "LineColor=clRed"},
                                                  {"", "RowSpacing=7"},
                                                  {"ItemIndex=1", "SelectedColor=clGreen"},
                                                  {"ItemIndex=1", "SelectedTextColor=clYellow"},
                                                  {"", "ShowLines=True"},
                                                  {"", "Sorted=True"},
                                                  {"", "Title=Heading"},
                                                  {"Title=Heading", "Title=<b>Heading</b>"},
                                                  {"Title=Heading", "TitleAlignment=taCenter"},
                                                  {"Title=Heading", "TitleColor=clRed"},
                                                  {"", "TopIndex=2"},
                                                  {"", "WordWrap=False"}},
                                                 {150, 90}, Unseen);
  visible::ExpectAll<FilledCombo>({{"", "Color=clYellow"},
                                   {"ItemIndex=0", "Enabled=False"},
                                   {"", "ItemIndex=1"},
                                   {"ItemIndex=1", "Sorted=True"},
                                   {"", "TextHint=other"},
                                   {"AutoSize=True", "ItemHeight=31"}},
                                  {150, 25}, Unseen);
}

TEST(HtmlLists, RowsAreAsHighAsTheirMarkup) {
  Filled<TVRXHTMLListBox> list(nullptr);
  list.SetBounds(0, 0, 190, 300);
  const auto rows = list.VisibleRows();
  ASSERT_EQ(rows.size(), 4u);
  EXPECT_EQ(rows[0].rect.height(), rows[1].rect.height());
  EXPECT_GT(rows[2].rect.height(), rows[0].rect.height() * 3 / 2);
  EXPECT_EQ(rows[3].rect.top(), rows[2].rect.bottom() + 1);
  list.Set(TVRXHTMLListBox::WordWrap, false);
  EXPECT_EQ(list.VisibleRows()[2].rect.height(), rows[0].rect.height());
  list.Set(TVRXHTMLListBox::AutoItemHeight, false);
  list.Set(TCustomListBox::ItemHeight, 41);
  for (const auto& row : list.VisibleRows()) EXPECT_EQ(row.rect.height(), 41);
}

TEST(HtmlLists, OnlyWhatIsInSightIsLookedAt) {
  TVRXHTMLListBox list(nullptr);
  QStringList many;
  for (int i = 0; i < 100'000; ++i) many << QStringLiteral("<b>row</b> %1").arg(i);
  list.Get(TCustomListBox::Items)->SetLines(many);
  list.SetBounds(0, 0, 140, 103);
  html::ForgetTexts();
  EXPECT_LT(list.VisibleRows().size(), 12u);
  list.Set(TCustomListBox::TopIndex, 99'000);
  const auto rows = list.VisibleRows();
  EXPECT_EQ(rows.front().index, 99'000);
  EXPECT_LT(rows.size(), 12u);
  EXPECT_LT(rows.front().rect.right(), 125) << "a bar stands beside them";
  const QImage atEnd = Draw(list, Qt::white);
  list.Set(TCustomListBox::TopIndex, 0);
  EXPECT_NE(Draw(list, Qt::white), atEnd);
}

TEST(HtmlLists, TheSelectedRowCanBeReadWhateverItsColours) {
  for (const auto scheme : {TFormColors::Light, TFormColors::Dark}) {
    const FormColorScope scope(scheme);
    const QColor ground = ToQColor(clHighlight);
    for (const QColor& color :
         {ground, ground.lighter(110), ground.darker(110), QColor(Qt::white), QColor(Qt::black)}) {
      TVRXHTMLListBox list(nullptr);
      list.SetBounds(0, 0, 190, 60);
      list.Font()->SetHeight(-30);
      list.Get(TCustomListBox::Items)
          ->Add(QStringLiteral("<font color=%1>\u2588\u2588</font>").arg(color.name()));
      list.Set(TCustomListBox::ItemIndex, 0);
      const QRect row = list.VisibleRows()[0].rect;
      const QImage image = Draw(list, Qt::white).copy(row);
      EXPECT_GT(CountPixels(image, ground), 300);
      EXPECT_GE(Contrast(image), 3) << color.name().toStdString();
    }
  }
}

TEST(HtmlLists, PicturesComeFromTheListOfTheControl) {
  Pictures images;
  auto* pictures = &images;
  TVRXHTMLListBox list(nullptr);
  list.SetBounds(0, 0, 190, 90);
  list.Get(TCustomListBox::Items)->Add(QStringLiteral("see <img index=0>"));
  EXPECT_EQ(CountPixels(Draw(list, Qt::white), QColor(0, 0, 255)), 0);
  list.Set(TVRXHTMLListBox::Images, pictures);
  EXPECT_EQ(CountPixels(Draw(list, Qt::white), QColor(0, 0, 255)), BluePixels);
  TVRXHTMLComboBox combo(nullptr);
  combo.Get(TCustomComboBox::Items)->Add(QStringLiteral("see <img src=0>"));
  combo.Set(TCustomComboBox::ItemIndex, 0);
  combo.SetAutoSize(false);
  combo.SetBounds(0, 0, 190, 90);
  combo.Set(TVRXHTMLComboBox::Images, pictures);
  EXPECT_EQ(CountPixels(Draw(combo, Qt::white), QColor(0, 0, 255)), BluePixels);
  TVRXHTMLHeaderControl header(nullptr);
  header.SetBounds(0, 0, 190, 90);
  header.Set(THeaderControl::Images, pictures);
  auto* section = static_cast<THeaderSection*>(header.Get(THeaderControl::Sections)->Add());
  section->Set(THeaderSection::Width, 150);
  section->Set(THeaderSection::Text, QStringLiteral("<b>see</b> <img index=0>"));
  EXPECT_EQ(CountPixels(Draw(header, Qt::white), QColor(0, 0, 255)), BluePixels);
}

TEST(HtmlLists, LinksAreFoundInRowsAndTitle) {
  Filled<TVRXHTMLExtListBox> list(nullptr);
  list.SetBounds(0, 0, 230, 200);
  list.Set(TVRXHTMLExtListBox::Title, QStringLiteral("<a href='above'>Title</a>"));
  QSet<QString> found;
  int inRows = 0;
  for (int y = 0; y < 200; ++y)
    for (int x = 0; x < 230; ++x) {
      const QString link = list.LinkAt({x, y});
      if (link.isEmpty()) continue;
      found << link;
      inRows += link == u"over there";
      if (link == u"over there") {
        EXPECT_TRUE(list.VisibleRows()[3].rect.contains(x, y));
      }
      if (link == u"above") {
        EXPECT_LT(y, list.VisibleRows()[0].rect.top());
      }
    }
  EXPECT_EQ(found, QSet<QString>({QStringLiteral("above"), QStringLiteral("over there")}));
  EXPECT_GT(inRows, 300);
}

TEST(HtmlLists, AnEmptyListShowsItsText) {
  TVRXHTMLExtListBox list(nullptr);
  list.SetBounds(0, 0, 190, 60);
  const QImage empty = Draw(list, Qt::white);
  list.Set(TVRXHTMLExtListBox::EmptyText, QStringLiteral("<i>nothing here</i>"));
  EXPECT_NE(Draw(list, Qt::white), empty);
  list.Get(TCustomListBox::Items)->Add(QStringLiteral(" "));
  EXPECT_EQ(Draw(list, Qt::white), empty);
}

TEST(HtmlLists, HostileSizesDoNoHarm) {
  for (const char* values :
       {"RowSpacing=2147483647", "RowSpacing=-5", "ItemHeight=-9 AutoItemHeight=False",
        "ItemHeight=2147483647 AutoItemHeight=False", "TopIndex=2147483647", "TopIndex=-9",
        "ItemIndex=2147483647", "Width=1", "Height=1", "Width=0 Height=0", "Font.Height=-900"}) {
    Filled<TVRXHTMLExtListBox> list(nullptr);
    list.SetBounds(0, 0, 90, 60);
    list.Set(TVRXHTMLExtListBox::Title, QStringLiteral("<ul><li>title"));
    visible::Apply(list, QString::fromLatin1(values));
    EXPECT_FALSE(Draw(list, Qt::white).isNull()) << values;
    list.LinkAt({5, 5});
  }
}

TEST(HtmlHeader, SectionsShowTheirMarkupWhereTheyAreAligned) {
  const auto drawn = [](const char* text, TAlignment alignment) {
    TVRXHTMLHeaderControl header(nullptr);
    header.SetBounds(0, 0, 200, 21);
    auto* section = static_cast<THeaderSection*>(header.Get(THeaderControl::Sections)->Add());
    section->Set(THeaderSection::Width, 190);
    section->Set(THeaderSection::Alignment, alignment);
    section->Set(THeaderSection::Text, QString::fromLatin1(text));
    return Draw(header, Qt::white);
  };
  const auto red = [&](TAlignment alignment) {
    TVRXHTMLHeaderControl header(nullptr);
    header.SetBounds(0, 0, 200, 21);
    auto* section = static_cast<THeaderSection*>(header.Get(THeaderControl::Sections)->Add());
    section->Set(THeaderSection::Width, 190);
    section->Set(THeaderSection::Alignment, alignment);
    section->Set(THeaderSection::Text, QStringLiteral("<font color=red>\u2588\u2588</font>"));
    const QImage image = Draw(header, Qt::white);
    QRect place;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        if (image.pixelColor(x, y) == QColor(Qt::red)) place |= QRect(x, y, 1, 1);
    return place;
  };
  EXPECT_LT(red(TAlignment::taLeftJustify).left(), 12);
  EXPECT_GT(red(TAlignment::taRightJustify).right(), 178);
  EXPECT_NEAR(red(TAlignment::taCenter).center().x(), 95, 3);
  EXPECT_NE(drawn("text", TAlignment::taLeftJustify), drawn("<b>text</b>", TAlignment::taLeftJustify));
}
