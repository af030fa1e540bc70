// Markup in lines: wrapping, places, links, pictures, colours, and the same as a QTextDocument makes of it.
#include <gtest/gtest.h>

#include <QTextBlock>
#include <QTextDocument>
#include <random>

#include "library/html/HtmlText.h"
#include "tests/library/LibraryTest.h"
#include "tests/support/Contrast.h"

using namespace html;
using Settings = html::Setup;  // a test has one of that name

namespace {
QFont Letters(int height = 16) {
  TFont font;
  font.SetHeight(-height);
  return ToQFont(font);
}
Settings Wide(int width) {
  TFont font;
  font.SetHeight(-16);
  return SetupFor(font, true, width, nullptr);
}
std::vector<Line> LinesOf(const char* markup, const Settings& setup) {
  const Text text(QString::fromUtf8(markup));
  return text.Laid(setup).Lines();
}
QString Clean(QString text) { return text.remove(QChar::LineSeparator).simplified(); }

QImage Drawn(const QString& markup, const Settings& setup, QSize size,
             const TCustomImageList* images = nullptr, QColor ground = Qt::white) {
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  image.fill(ground);
  QPainter painter(&image);
  TCanvas canvas(painter);
  Draw(canvas, image.rect(), Qt::AlignTop, markup, setup, images);
  return image;
}
QImage Drawn(const char* markup, const Settings& setup, QSize size,
             const TCustomImageList* images = nullptr) {
  return Drawn(QString::fromUtf8(markup), setup, size, images);
}
QRect Ink(const QImage& image) { return Inked(image, Qt::white); }

struct Pictures : TImageList {
  Pictures() : TImageList(nullptr) {
    Set(Width, 14);
    Set(Height, 31);
    QImage red(14, 31, QImage::Format_ARGB32), blue(14, 31, QImage::Format_ARGB32);
    red.fill(QColor(255, 0, 0));
    blue.fill(QColor(0, 0, 255));
    SetPictures({red, blue});
  }
};

const char* const Samples[] = {
    "plain text that goes on and on until it no longer fits into one line",
    "<b>bold</b> and <i>italic</i> and <u>underlined</u> and <s>struck</s> words in one line",
    "<b>all of this is bold and goes over the end of the line</b> and this is not",
    "one<br>two<br>three and more words behind it",
    "one<br><br>two",
    "<p>first paragraph with words</p><p>second paragraph with other words</p>",
    "<p align=right>stands on the right side of what there is</p>",
    "<p align=center>stands in the middle of what there is</p>before the end",
    "<font color=red>red words</font> and <font color=#0000ff>blue words</font> alternate",
    "<font size=5>large words</font> beside usual ones and <font size=1>small ones</font>",
    "<font size=+1>larger</font> <font size=-1>smaller</font> <font size=7>largest of all</font>",
    "<font face='DejaVu Serif'>another face</font> for some of the words in here",
    "H<sub>2</sub>O and x<sup>2</sup> + y<sup>2</sup> = z<sup>2</sup> in a formula",
    "<a href=x>a link with several words</a> and text behind it that goes on",
    "<ul><li>one item<li>another item that is so long that it needs more lines<li>three</ul>",
    "<ol><li>one item</li><li>another item that is so long that it needs more lines</li></ol>",
    "<ul><li>outer<ul><li>inner item with some words</ul><li>outer again</ul>",
    "before<ul><li>item</ul>after the list there are more words",
    "&lt;b&gt; is written with entities &amp; so on &mdash; &quot;quoted&quot;",
    "a&nbsp;b&nbsp;c&nbsp;d e&nbsp;f&nbsp;g&nbsp;h i&nbsp;j&nbsp;k",
    "  many   blanks \n and \t tabs   between  words  ",
    "a<b> b </b>c <i> d</i> e",
    "aVeryLongWordThatDoesNotFitIntoAnyOfTheLinesAndHasToBeBrokenSomewhere",
    "short aVeryLongWordThatDoesNotFitIntoAnyOfTheLinesAndHasToBeBroken short",
    "hyphen-ated words-with several-hyphens-in them",
    "numbers 1,234.56 and 7/8 and 100% of $5.00 (or more)",
    "\u00e4\u00f6\u00fc\u00df \u00e9\u00e8\u00ea accented \u00f1and others\u00e7",
    "\u0433\u0440\u0443\u043f\u043f\u0430 \u0441\u043b\u043e\u0432 \u0437\u0434\u0435\u0441\u044c",
    "\u03b1\u03b2\u03b3 \u03b4\u03b5\u03b6 \u03b7\u03b8\u03b9 \u03ba\u03bb\u03bc",
    "<b><i>both looks</i> then one</b> then none at all of them",
    "<b>bo<i>ld it</i>alic</b>s within words",
    "w<b>o</b>r<i>d</i>s of several pieces that be<u>long</u> to<s>geth</s>er",
    "<p>one</p>two<p>three</p>four",
    "<p></p><p>after an empty one</p>",
    "<font color=red size=4>nested <font color=blue>inner words</font> outer words</font>",
    "<b>never closed and long enough to need another line of text",
    "a</b>closed but never opened</i> and so on",
    "<p>never closed<p>nor this one<p>nor that",
    "x<br/>y<br />z",
    "<B>BIG</B> <FONT COLOR=RED>TAGS</FONT> ARE THE SAME",
    "quotes \"here\" and 'there' with punctuation, everywhere; yes: really!",
    "one two three four five six seven eight nine ten eleven twelve thirteen",
    "<i>one two three</i> four five <i>six seven eight</i> nine ten",
    "<u>one two three four five six seven eight nine ten eleven</u>",
    "<font size=2>one two three four five six seven eight nine ten eleven twelve</font>",
    "<font size=6>one two three four five</font>",
    "<ul><li><b>Bold item</b> with more</li><li><font color=green>Green item</font> with more</li></ul>",
    "<ol><li>1<li>2<li>3<li>4<li>5<li>6<li>7<li>8<li>9<li>10</ol>",
    "<a href='one'>one</a>, <a href='two'>two</a>, <a href='three'>three</a> and no link",
    "<p align=justify>words that are spread over the line so that both of its ends are straight</p>",
    "&#72;&#101;&#x6C;&#x6c;&#111; &copy; 2031 &euro;5",
    "tab\there <b>\n</b> end",
};
}  // namespace

TEST(HtmlLayout, HasTheWordsAndTheLinesOfATextDocument) {
  EXPECT_GE(std::size(Samples), 50u);
  int lines = 0;
  for (const char* sample : Samples)
    for (const int width : {90, 150, 260, 2000}) {
      QTextDocument other;
      other.setDefaultFont(Letters());
      other.setDocumentMargin(0);
      other.setIndentWidth(20);
      other.setHtml(QString::fromUtf8(sample));
      other.setTextWidth(width);
      other.size();  // so that it is laid out
      QStringList expected, got;
      for (QTextBlock block = other.begin(); block.isValid(); block = block.next())
        for (int i = 0; i < block.layout()->lineCount(); ++i) {
          const QTextLine line = block.layout()->lineAt(i);
          expected << Clean(block.text().mid(line.textStart(), line.textLength()));
        }
      for (const Line& line : LinesOf(sample, Wide(width))) got << Clean(line.text);
      expected.removeAll(QString());
      got.removeAll(QString());
      lines += static_cast<int>(got.size());
      EXPECT_EQ(got.join(u'|').toStdString(), expected.join(u'|').toStdString()) << sample << " in " << width;
    }
  EXPECT_GT(lines, 500);
}

TEST(HtmlLayout, LinesEndBetweenWordsAndFitIn) {
  for (int width = 60; width < 400; width += 17) {
    const auto lines = LinesOf("one <b>two three</b> four <i>five</i> six seven eight nine ten", Wide(width));
    QStringList words;
    for (const Line& line : lines) {
      EXPECT_LE(line.place.right(), width);
      words << Clean(line.text).split(u' ');
    }
    EXPECT_EQ(words.join(u' ').toStdString(), "one two three four five six seven eight nine ten") << width;
  }
}

TEST(HtmlLayout, WithoutWrappingThereIsOneLineForEachBreak) {
  Settings setup = Wide(60);
  setup.wrap = false;
  EXPECT_EQ(LinesOf("one two three four five six seven", setup).size(), 1u);
  EXPECT_EQ(LinesOf("one two three<br>four five six<p>seven", setup).size(), 3u);
}

TEST(HtmlLayout, AlignmentMovesTheLines) {
  constexpr int width = 300;
  const double left = LinesOf("<p align=left>word</p>", Wide(width))[0].place.left();
  const QRectF right = LinesOf("<p align=right>word</p>", Wide(width))[0].place;
  const QRectF middle = LinesOf("<p align=center>word</p>", Wide(width))[0].place;
  EXPECT_EQ(left, 0);
  EXPECT_NEAR(right.right(), width, 1);
  EXPECT_NEAR(middle.center().x(), width / 2, 1);
  Settings byControl = Wide(width);
  byControl.alignment = Qt::AlignRight;
  EXPECT_NEAR(LinesOf("word", byControl)[0].place.right(), width, 1);
  EXPECT_EQ(LinesOf("<p align=left>word", byControl)[0].place.left(), 0);
}

TEST(HtmlLayout, LettersOfAllSizesStandOnOneLine) {
  const QImage image = Drawn("H<font size=7>H</font>", Wide(200), {200, 80});
  const QRect small = Ink(image.copy(0, 0, 11, 80)), large = Ink(image.copy(16, 0, 60, 80));
  EXPECT_EQ(small.bottom(), large.bottom());
  EXPECT_GT(large.height(), small.height() * 3 / 2);
}

TEST(HtmlLayout, ScriptsAreSmallerAndStandHigherAndLower) {
  const QRect usual = Ink(Drawn("H", Wide(100), {100, 40}));
  const QRect raised = Ink(Drawn("<sup>H</sup>", Wide(100), {100, 40}));
  const QRect lowered = Ink(Drawn("<sub>H</sub>", Wide(100), {100, 40}));
  EXPECT_LT(raised.height(), usual.height());
  EXPECT_LT(raised.bottom(), usual.bottom());
  EXPECT_LT(lowered.height(), usual.height());
  EXPECT_GT(lowered.bottom(), usual.bottom());
}

TEST(HtmlLayout, EveryLookChangesThePicture) {
  const QImage plain = Drawn("word", Wide(200), {200, 60});
  QList<QImage> all{plain};
  for (const char* look :
       {"<b>word</b>", "<i>word</i>", "<u>word</u>", "<s>word</s>", "<font color=red>word</font>",
        "<font size=6>word</font>", "<font face='DejaVu Sans Mono'>word</font>", "<sub>word</sub>",
        "<sup>word</sup>", "<a href=x>word</a>", "<ul><li>word</ul>", "<ol><li>word</ol>", "word<hr>",
        "<p align=right>word</p>", "<img index=0>word", "<br>word", "a<p>word"}) {
    const QImage image = Drawn(look, Wide(200), {200, 60});
    EXPECT_FALSE(all.contains(image)) << look;
    all << image;
  }
}

TEST(HtmlLayout, PicturesStandOnTheLineWithTheLetters) {
  const Pictures images;
  Settings setup = Wide(300);
  setup.picture = {14, 31};
  const QImage image = Drawn("H<img index=1>H", setup, {120, 50}, &images);
  EXPECT_EQ(CountPixels(image, QColor(0, 0, 255)), 14 * 31);
  EXPECT_EQ(CountPixels(image, QColor(255, 0, 0)), 0);
  QRect blue;
  for (int y = 0; y < 50; ++y)
    for (int x = 0; x < 120; ++x)
      if (image.pixelColor(x, y) == QColor(0, 0, 255)) blue |= QRect(x, y, 1, 1);
  EXPECT_EQ(blue.size(), QSize(14, 31));
  const QRect letter = Ink(image.copy(0, 0, blue.left(), 50));
  EXPECT_EQ(letter.bottom(), blue.bottom());
  const QRect behind = Ink(image.copy(blue.right() + 1, 0, 50, 50));
  EXPECT_LE(behind.left(), 6) << "the text goes on behind it";
  EXPECT_GT(behind.width(), 4);
  EXPECT_EQ(Text(QStringLiteral("H<img index=1>")).Laid(setup).Size().height(),
            Text(QStringLiteral("H<img index=1>")).Laid(setup).Lines()[0].place.height() > 31
                ? Text(QStringLiteral("H<img index=1>")).Laid(setup).Size().height()
                : std::ceil(31 + QFontMetricsF(setup.font).descent()));
}

TEST(HtmlLayout, PicturesGoToTheNextLineWhenTheyDoNotFit) {
  const Pictures images;
  Settings setup = Wide(40);
  setup.picture = {14, 31};
  const auto lines =
      Text(QStringLiteral("<img index=0><img index=1><img index=0><img index=1>")).Laid(setup).Lines();
  EXPECT_EQ(lines.size(), 2u);
  const QImage image =
      Drawn("<img index=0><img index=1><img index=0><img index=1>", setup, {40, 90}, &images);
  EXPECT_EQ(CountPixels(image, QColor(0, 0, 255)), 2 * 14 * 31);
  EXPECT_EQ(CountPixels(image, QColor(255, 0, 0)), 2 * 14 * 31);
}

TEST(HtmlLayout, APictureThatIsNotThereIsAFrame) {
  const Pictures images;
  Settings setup = Wide(100);
  setup.picture = {14, 31};
  for (const char* markup : {"<img index=7>", "<img>", "<img index=-1>"}) {
    EXPECT_EQ(Ink(Drawn(markup, setup, {60, 50}, &images)).width(), 12) << markup;
  }
}

TEST(HtmlLayout, LinksAreFoundWhereTheirLettersAre) {
  const QString markup =
      QStringLiteral("go <a href='one'>there and then even further</a> or <a href='two'>here</a>");
  const Settings setup = Wide(110);
  const Text text(markup);
  const Layout& layout = text.Laid(setup);
  const QRect all(7, 9, 110, layout.Size().height() + 20);
  int found[3] = {};
  for (int y = 0; y < layout.Size().height(); ++y)
    for (int x = 0; x < 110; ++x) {
      const int link = layout.LinkAt({x + 0.5, y + 0.5});
      ASSERT_GE(link, -1);
      ASSERT_LE(link, 1);
      ++found[link + 1];
      const QString to = LinkAt(all, Qt::AlignTop, markup, setup, QPoint(x + 7, y + 9));
      ASSERT_EQ(to.toStdString(), link < 0 ? "" : link == 0 ? "one" : "two");
    }
  EXPECT_GT(found[1], found[2] * 3);
  EXPECT_GT(found[2], 100);
  EXPECT_EQ(layout.LinkAt({2, 2}), -1) << "in front of it";
  EXPECT_EQ(layout.LinkAt({-5, 30}), -1);
  EXPECT_EQ(layout.LinkAt({50, 5000}), -1);
  // Where underlined letters of the link's colour are is the link.
  const QImage image = Drawn(markup, setup, {110, layout.Size().height()});
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixelColor(x, y) == setup.link) {
        EXPECT_GE(layout.LinkAt({x + 0.5, y + 0.5}), 0) << x << ' ' << y;
      }
}

TEST(HtmlLayout, OnAnotherGroundColoursThatCannotBeReadGiveWay) {
  Settings setup = Wide(300);
  setup.color = Qt::white;
  setup.ground = QColor(30, 60, 160);
  for (const char* color :
       {"blue", "navy", "#203c9f", "purple", "green", "yellow", "white", "red", "#ffcccc"}) {
    const QString markup =
        QStringLiteral("<font color=%1 size=7>\u2588\u2588</font>").arg(QLatin1String(color));
    const QImage image = Drawn(markup, setup, {90, 60}, nullptr, setup.ground);
    EXPECT_GE(Contrast(image), 3) << color;
    const bool own = Contrast(QColor(QLatin1String(color)), setup.ground) >= 3;
    EXPECT_EQ(CountPixels(image, QColor(QLatin1String(color))) > 100, own) << color;
  }
  setup.ground = QColor();
  EXPECT_GT(
      CountPixels(Drawn("<font color=navy size=7>\u2588\u2588</font>", setup, {90, 60}), QColor(0, 0, 128)),
      100)
      << "elsewhere it is as its author wants it";
}

TEST(HtmlLayout, DisabledTextHasOneColour) {
  TFont font;
  font.SetHeight(-30);
  const Settings setup = SetupFor(font, false, 300, nullptr);
  const QImage image = Drawn(
      "<font color=red>\u2588</font><a href=x>\u2588</a><font color=#00ff00>\u2588</font>", setup, {200, 50});
  EXPECT_EQ(CountPixels(image, Qt::red) + CountPixels(image, QColor(0, 255, 0)), 0);
  EXPECT_GT(CountPixels(image, setup.color), 200);
}

TEST(HtmlLayout, NothingIsDrawnOutsideOfTheRectangle) {
  QImage image(120, 90, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::white);
  {
    QPainter painter(&image);
    TCanvas canvas(painter);
    Draw(canvas, QRect(20, 10, 60, 25), Qt::AlignVCenter,
         QStringLiteral("<font size=7>large letters in a small place</font><hr><ul><li>x</ul>"), Wide(60),
         nullptr);
  }
  EXPECT_TRUE(QRect(20, 10, 60, 25).contains(Ink(image)));
  EXPECT_GT(Ink(image).width(), 30);
}

TEST(HtmlLayout, AClippedPaintingIsThatPartOfTheWhole) {
  const QString markup =
      QStringLiteral("<p>one</p><ul><li>two words<li>three <img index=0></ul><hr><font size=5>four</font>")
          .repeated(5);
  const Settings setup = Wide(140);
  const QSize size(140, Text(markup).Laid(setup).Size().height());
  const QImage whole = Drawn(markup, setup, size);
  for (int top = 0; top < size.height(); top += 37) {
    QImage part(size, QImage::Format_ARGB32_Premultiplied);
    part.fill(Qt::white);
    const QRect strip(0, top, size.width(), 20);
    {
      QPainter painter(&part);
      painter.setClipRect(strip);
      Text(markup).Laid(setup).Draw(painter, QRectF(strip), nullptr);
    }
    EXPECT_EQ(part.copy(strip), whole.copy(strip)) << top;
  }
}

TEST(HtmlLayout, TextsAreKeptAndSetAnewWhenAnythingChanges) {
  const QString markup = QStringLiteral("<b>kept</b> text that is long enough to be wrapped somewhere");
  EXPECT_EQ(TextOf(markup), TextOf(QString(markup)));
  const auto before = TextOf(markup);
  ForgetTexts();
  EXPECT_NE(TextOf(markup), before);
  const QImage wide = Drawn(markup, Wide(300), {300, 90});
  EXPECT_EQ(Drawn(markup, Wide(300), {300, 90}), wide);
  EXPECT_NE(Drawn(markup, Wide(120), {300, 90}), wide);
  Settings other = Wide(300);
  other.color = Qt::red;
  EXPECT_NE(Drawn(markup, other, {300, 90}), wide);
  other = Wide(300);
  other.font.setPixelSize(20);
  EXPECT_NE(Drawn(markup, other, {300, 90}), wide);
  EXPECT_EQ(Drawn(markup, Wide(300), {300, 90}), wide);
}

TEST(HtmlLayout, HostileMarkupIsSetAndDrawn) {
  for (const char* part :
       {"<b>x</b>", "<ul><li>", "<ul>x", "<p>x", "<br>", "<font size=7>x", "<a href=x>x</a>", "<hr>",
        "<img index=0>", "x ", "x", "<sub>x", "\u0301", "\u202e", "&nbsp;", "\u05d0 b "}) {
    const QString piece = QString::fromUtf8(part);
    const QString markup = piece.repeated(20'000 / piece.size());
    for (const int width : {0, 1, 40, 500}) {
      const Text text(markup);
      const Layout& layout = text.Laid(Wide(width));
      EXPECT_GE(layout.Size().height(), 1) << part;
      QImage image(60, 60, QImage::Format_ARGB32_Premultiplied);
      image.fill(Qt::white);
      QPainter painter(&image);
      layout.Draw(painter, QRectF(0, 0, 60, 60), nullptr);
      layout.LinkAt({10, 10});
    }
  }
}

TEST(HtmlLayout, AnyMarkupIsSetWithAllOfItsLetters) {
  std::mt19937 random(21);
  constexpr const char* parts[] = {
      "<b>", "</b>",          "<ul>",    "<li>",       "</ul>", "<p align=right>", "<br>",  "<hr>", "word ",
      "a",   "<font size=6>", "</font>", "<a href=x>", "</a>",  "<img index=0>",   "&amp;", "<"};
  for (int round = 0; round < 400; ++round) {
    QString markup;
    for (auto n = random() % 30; n > 0; --n)
      markup += QString::fromLatin1(parts[random() % std::size(parts)]);
    const Text text(markup);
    QString all;
    for (const Line& line : text.Laid(Wide(static_cast<int>(random() % 200))).Lines()) all += line.text;
    EXPECT_EQ(all.size(), text.Document().text.size()) << markup.toStdString();
  }
}
