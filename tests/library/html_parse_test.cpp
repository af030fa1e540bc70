// Markup taken apart: looks, paragraphs, entities, and that nothing is lost of anything.
#include <gtest/gtest.h>

#include <QRegularExpression>
#include <random>

#include "library/html/Markup.h"

using namespace html;

namespace {
// A piece is its look and its text: "b(bold)", "i^(raised)", "=5#0000FF@0(a large blue link)". Paragraphs
// stand between bars; in front are ">" for each list, the mark, an alignment, "*" for a gap and "--" for a
// rule.
std::string Told(const Document& document) {
  QStringList paragraphs;
  for (const Paragraph& p : document.paragraphs) {
    QString all = QStringLiteral(">").repeated(p.indent) + p.mark;
    if (p.apart) all += u'*';
    if (p.rule) all += QStringLiteral("--");
    if (p.alignment)
      all += p.alignment == Qt::AlignRight ? u'R' : p.alignment == Qt::AlignHCenter ? u'C' : u'L';
    for (std::size_t i = p.firstPiece; i < p.firstPiece + p.pieces; ++i) {
      const Piece& piece = document.pieces[i];
      const Look& look = piece.look;
      if (piece.image >= 0) {
        all += QStringLiteral("[%1]").arg(piece.image);
        continue;
      }
      if (look.bold) all += u'b';
      if (look.italic) all += u'i';
      if (look.underline) all += u'u';
      if (look.strikeOut) all += u's';
      if (look.script) all += look.script < 0 ? u'_' : u'^';
      if (look.size != 3) all += u'=' + QString::number(look.size);
      if (look.color != clDefault) all += u'#' + QString::number(static_cast<uint>(look.color), 16);
      if (!look.face.isEmpty()) all += u'~' + look.face;
      if (look.link >= 0) all += u'@' + document.links[look.link];
      all += u'(' +
             document.text.mid(piece.start, piece.length)
                 .replace(QChar::LineSeparator, u'/')
                 .remove(PictureEdge) +
             u')';
    }
    paragraphs << all;
  }
  return paragraphs.join(u'|').toStdString();
}
std::string Told(const char* markup) { return Told(Parse(QString::fromUtf8(markup))); }
std::string Plain(const QString& markup) { return Parse(markup).PlainText().toStdString(); }
}  // namespace

TEST(HtmlParse, EveryTagOfTheSubset) {
  struct Row {
    const char* markup;
    const char* told;
  };
  constexpr Row rows[] = {
      {"", ""},
      {"plain", "(plain)"},
      {"a <b>b</b> c", "(a )b(b)( c)"},
      {"<i>i</i><u>u</u><s>s</s>", "i(i)u(u)s(s)"},
      {"<B>x</B>", "b(x)"},
      {"<b><i>both</i></b>", "bi(both)"},
      {"H<sub>2</sub>O, x<sup>2</sup>", "(H)_(2)(O, x)^(2)"},
      {"<font color=red>r</font>", "#ff(r)"},
      {"<font color='#102030'>r</font>", "#302010(r)"},
      {"<font color=\"clNavy\">r</font>", "#800000(r)"},
      {"<font color=clHighlight>r</font>", "#ff00000d(r)"},
      {"<font color=nocolour>r</font>", "(r)"},
      {"<font size=5>x</font>", "=5(x)"},
      {"<font size=+2>x</font><font size=-1>y</font>", "=5(x)=2(y)"},
      {"<font size=99>x</font><font size=0>y</font><font size=-9>z</font>", "=7(x)=1(yz)"},
      {"<font size=two>x</font>", "(x)"},
      {"<font face='Courier New'>x</font>", "~Courier New(x)"},
      {"<font color=red size=5>a<font face=X>b</font>c</font>d", "=5#ff(a)=5#ff~X(b)=5#ff(c)(d)"},
      {"one<br>two<br/>three<br />four", "(one/two/three/four)"},
      {"one<br>", "(one)"},
      {"one<br><br>", "(one/)"},
      {"<br>", ""},
      {"one<p><br><p>two", "(one)|*|*(two)"},
      {"a <u>b</u> <i>c</i>", "(a )u(b)( )i(c)"},
      {"one</br>two", "(onetwo)"},
      {"<p>one<p>two</p>three", "(one)|*(two)|*(three)"},
      {"<p align=right>r</p><p align=Center>c</p><p align=left>l</p>", "R(r)|*C(c)|*L(l)"},
      {"<p align=middle>x</p>", "(x)"},
      {"above<hr>below", "(above)|--|(below)"},
      {"<hr>", "--"},
      {"<ul><li>one<li>two</ul>after", ">\u2022(one)|>\u2022(two)|(after)"},
      {"<ol><li>one</li><li>two</li></ol>", ">1.(one)|>2.(two)"},
      {"<ol><li>one<ul><li>in</ul><li>two</ol>", ">1.(one)|>>\u2022(in)|>2.(two)"},
      {"<li>alone", ">\u2022(alone)"},
      {"<ul><li></ul>", ">\u2022"},
      {"<a href='x.htm'>go</a> on", "@x.htm(go)( on)"},
      {"<a href='?a=1&amp;b=2'>go</a>", "@?a=1&b=2(go)"},
      {"<a>bare</a>", "@(bare)"},
      {"x<img index=3>y", "(x)[3](y)"},
      {"<img src='2'/><img index=1 src=5>", "[2][1]"},
      {"<b>x<img index=0>y</b>", "b(x)[0]b(y)"},
      {"<img>", "[2147483647]"},
  };
  for (const Row& row : rows) {
    std::string told = Told(row.markup);
    while (told.find("()") != std::string::npos) told.erase(told.find("()"), 2);  // edges of pictures
    EXPECT_EQ(told, row.told) << row.markup;
  }
}

TEST(HtmlParse, BlanksAreOneAndStandBetweenWordsOnly) {
  struct Row {
    const char* markup;
    const char* plain;
  };
  constexpr Row rows[] = {
      {"  a \n\t b  ", "a b"},  {"a<b> </b>b", "a b"},        {"a <b> b</b>", "a b"},
      {"a <br> b", "a\nb"},     {"<p> a </p> <p> b", "a\nb"}, {"a&nbsp;&nbsp;b", "a\u00A0\u00A0b"},
      {"a&#32;&#10; b", "a b"}, {" <i> </i> ", ""},
  };
  for (const Row& row : rows) EXPECT_EQ(Plain(QString::fromUtf8(row.markup)), row.plain) << row.markup;
}

TEST(HtmlParse, WhatIsNoTagIsText) {
  constexpr const char* rows[] = {"<x>",
                                  "</x>",
                                  "a < b",
                                  "a<b",
                                  "a <b c",
                                  "<b",
                                  "<",
                                  "</",
                                  "</>",
                                  "<>",
                                  "< b>",
                                  "<bb>x",
                                  "<b1>",
                                  "1<2>3",
                                  "<div>",
                                  "<!-- x -->",
                                  "<b title=\"x>y",
                                  "<foo bar='<b'>",
                                  "<strong>x</strong>",
                                  "<script>alert(1)</script>"};
  for (const char* row : rows) EXPECT_EQ(Plain(QString::fromUtf8(row)), row);
  EXPECT_EQ(Told("<x><b>y</b>"), "(<x>)b(y)");
  EXPECT_EQ(Told("<b <i>x"), "(<b )i(x)");
  EXPECT_EQ(Told("<font color='>'>x</font>"), "(x)") << "a sign in quotes ends no tag";
}

TEST(HtmlParse, CrossedAndUnclosedTagsAreNoErrors) {
  EXPECT_EQ(Told("<b><i>x</b>y</i>z"), "bi(x)i(y)(z)");
  EXPECT_EQ(Told("<b>x<p>y"), "b(x)|*b(y)");
  EXPECT_EQ(Told("</b></font></a></ul>x</sub>"), "(x)");
  EXPECT_EQ(Told("<b><b>x</b>y</b>z"), "b(xy)(z)");
  EXPECT_EQ(Told("<font color=red>x"), "#ff(x)");
}

TEST(HtmlParse, Entities) {
  struct Row {
    const char* markup;
    const char* plain;
  };
  constexpr Row rows[] = {
      {"&amp;&lt;&gt;&quot;&apos;", "&<>\"'"},
      {"&auml;&Auml;&szlig;&euro;&mdash;&hellip;", "\u00e4\u00c4\u00df\u20ac\u2014\u2026"},
      {"&#65;&#x41;&#X41;", "AAA"},
      {"&#128512;", "\U0001F600"},
      {"&#0;&#xD800;&#1114112;&#x110000;", "\uFFFD\uFFFD\uFFFD\uFFFD"},
      {"&amp;lt;", "&lt;"},
      {"&amp", "&amp"},
      {"& ;", "& ;"},
      {"&;", "&;"},
      {"&nosuch;", "&nosuch;"},
      {"&AMP;", "&AMP;"},
      {"&#;&#x;&#-5;&#+5;&#1z;", "&#;&#x;&#-5;&#+5;&#1z;"},
      {"&#99999999999999;", "&#99999999999999;"},
      {"&lt;b&gt;x", "<b>x"},
  };
  for (const Row& row : rows) EXPECT_EQ(Plain(QString::fromUtf8(row.markup)), row.plain) << row.markup;
}

TEST(HtmlParse, OfSeveralAttributesOfOneNameTheFirstCounts) {
  EXPECT_EQ(Told("<font color=red color=blue>x</font>"), "#ff(x)");
  EXPECT_EQ(Told("<font COLOR = \"red\" >x</font>"), "#ff(x)");
  EXPECT_EQ(Told("<font colour=red>x</font>"), "(x)");
  EXPECT_EQ(Told("<font color>x</font>"), "(x)");
  EXPECT_EQ(Told("<a title='href=y' href=z>x</a>"), "@z(x)");
}

TEST(HtmlParse, HostileMarkupTakesTimeByItsLength) {
  // As long as anything that is shown; what is behind is not looked at.
  constexpr int most = 1 << 18;
  const auto filled = [](const QString& part) { return part.repeated(most / part.size()); };
  for (const char* part : {"<b>",        "</b>",
                           "<b></i>",    "<font color=red>",
                           "<font>",     "</font>",
                           "<a href=x>", "<ul>",
                           "<ul><ol>",   "<li>",
                           "<p>",        "<br>",
                           "<hr>",       "<img index=1>",
                           "<sub><sup>", "<",
                           "<b",         "<b ",
                           "<a \"",      "<a '<a \"",
                           "&",          "&#",
                           "&amp",       "<b x='",
                           "</ul>"}) {
    const Document document = Parse(filled(QString::fromLatin1(part)) + QStringLiteral("end"));
    EXPECT_LE(document.text.size(), most + 3) << part;
    EXPECT_LE(document.pieces.size(), static_cast<std::size_t>(most)) << part;
  }
  EXPECT_EQ(Told(Parse(QStringLiteral("<b ") + filled(QStringLiteral("a=b ")).left(most - 100) +
                       QStringLiteral(">x</b>y"))),
            "b(x)(y)");
  EXPECT_EQ(Parse(filled(QStringLiteral("x")) + filled(QStringLiteral("y"))).text.size(), most);
}

// Words and tags in any order: every word is there, in its place.
TEST(HtmlParse, NothingIsLost) {
  constexpr const char* tags[] = {"<b>",     "</b>",  "<i>",      "</i>",          "<font color=red>",
                                  "</font>", "<br>",  "<p>",      "</p>",          "<hr>",
                                  "<ul>",    "</ul>", "<ol>",     "<li>",          "<a href=x>",
                                  "</a>",    "<sub>", "</sup>",   "<img index=0>", "<nosuch>",
                                  "<",       "&",     "&amp;",    "<b ",           "\"",
                                  "' ",      "</",    "<a href='"};
  std::mt19937 random(11);
  for (int round = 0; round < 3000; ++round) {
    QString markup;
    QStringList words;
    for (auto n = 1 + random() % 12; n > 0; --n) {
      const auto tag = QString::fromLatin1(tags[random() % std::size(tags)]);
      // What stands between "<b " or a quote and a ">" is a tag and no text.
      if (random() % 2 && !markup.contains(QStringLiteral("<b ")) && !markup.contains(u"href='")) {
        words << QStringLiteral("w%1").arg(words.size());
        markup += u' ' + words.last() + u' ';
      }
      markup += tag;
    }
    static const QRegularExpression word(QStringLiteral("\\bw\\d+\\b"));
    QStringList found;
    for (auto all = word.globalMatch(Parse(markup).PlainText()); all.hasNext();)
      found << all.next().captured();
    EXPECT_EQ(found.join(u' ').toStdString(), words.join(u' ').toStdString()) << markup.toStdString();
  }
}

TEST(HtmlParse, AnyTextThatIsEscapedIsItself) {
  std::mt19937 random(12);
  for (int round = 0; round < 2000; ++round) {
    QString text;
    for (auto n = random() % 40; n > 0; --n)
      text += QStringLiteral("ab<>&;#\"'/=pi \u00e4\u20ac")[static_cast<int>(random() % 17)];
    const QString simple = text.simplified();
    EXPECT_EQ(Plain(text.toHtmlEscaped()), simple.toStdString());
  }
}

TEST(HtmlParse, PiecesCoverTheTextInOrder) {
  std::mt19937 random(13);
  for (int round = 0; round < 3000; ++round) {
    QString markup;
    for (auto n = random() % 60; n > 0; --n)
      markup += QStringLiteral("<><>/bipas uldofnt=\"' &;#1x\n")[static_cast<int>(random() % 28)];
    const Document document = Parse(markup);
    qsizetype at = 0;
    std::size_t piece = 0;
    for (const Paragraph& p : document.paragraphs) {
      EXPECT_EQ(p.start, at);
      EXPECT_EQ(p.firstPiece, piece);
      for (std::size_t i = 0; i < p.pieces; ++i, ++piece) {
        ASSERT_LT(piece, document.pieces.size());
        EXPECT_EQ(document.pieces[piece].start, at) << markup.toStdString();
        EXPECT_GT(document.pieces[piece].length, 0);
        at += document.pieces[piece].length;
      }
      EXPECT_EQ(p.start + p.length, at);
    }
    EXPECT_EQ(document.text.size(), at);
    EXPECT_EQ(document.pieces.size(), piece);
  }
}
