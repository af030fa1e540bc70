// A change of one node changes the lines of that node and no others.
#include "tests/forms/FormTest.h"

using namespace formtest;

namespace {
struct Sample {
  const char* name;
  QByteArray text;
};

// The same form in both layouts, with both line ends.
std::vector<Sample> Samples() {
  const QByteArray vcl =
      "object Main: TMain [1]\n  Left = 10\n  Caption = 'Tom'#39's'\n  Lines.Strings = (\n    'a'\n    'b')\n"
      "  Items = <\n    item\n      Text = 'x'\n    end\n    item\n    end>\n  Data = {\n"
      "    000102030405060708090A0B0C0D0E0F101112131415161718191A1B1C1D1E1F\n    20}\n  Visible = True\n"
      "  object B: TB\n    Tag = 1\n  end\n  object C: TC\n  end\nend\n";
  const QByteArray lcl =
      "object Main: TMain[1]\n  Left = 10\n  Caption = 'Tom''s'\n  Lines.Strings = (\n    'a'\n    'b'\n  )\n"
      "  Items = <  \n    item\n      Text = 'x'\n    end  \n    item\n    end>\n  Data = {\n"
      "    000102030405060708090A0B0C0D0E0F101112131415161718191A1B1C1D1E1F\n    20\n  }\n  Visible = True\n"
      "  object B: TB\n    Tag = 1\n  end\n  object C: TC\n  end\nend\n";
  return {{"vcl", vcl},
          {"lcl", lcl},
          {"vcl with CR LF", QByteArray(vcl).replace("\n", "\r\n")},
          {"lcl with CR LF", QByteArray(lcl).replace("\n", "\r\n")}};
}

QByteArray Eol(const Sample& s) { return s.text.contains('\r') ? "\r\n" : "\n"; }
}  // namespace

TEST(Edit, ReplacingAPropertyChangesItsLinesOnly) {
  for (const Sample& s : Samples()) {
    Document doc = Document::Parse(s.text);
    Replace(doc, doc.Root(), "Left", Value::Integer(300));
    const Difference d = DifferenceOf(s.text, doc.Write());
    EXPECT_EQ(d.before, "  Left = 10" + Eol(s)) << s.name;
    EXPECT_EQ(d.after, "  Left = 300" + Eol(s)) << s.name;
  }
}

TEST(Edit, ReplacingEveryPropertyByItselfChangesNothingInACanonicalFile) {
  for (const Sample& s : Samples()) {
    Document doc = Document::Parse(s.text);
    for (Property& p : doc.Root().properties) p = doc.MakeProperty(p.Name(), doc.Read(p));
    EXPECT_EQ(doc.Write().toStdString(), s.text.toStdString()) << s.name;
  }
}

TEST(Edit, RemovingAPropertyRemovesItsLinesOnly) {
  for (const Sample& s : Samples()) {
    Document doc = Document::Parse(s.text);
    Remove(doc.Root(), "Lines.Strings");
    const Difference d = DifferenceOf(s.text, doc.Write());
    EXPECT_EQ(d.after, "") << s.name;
    EXPECT_TRUE(d.before.startsWith("  Lines.Strings = (")) << s.name;
    EXPECT_EQ(d.before.count('\n'), s.text.contains("'b')") ? 3 : 4) << s.name;
  }
}

TEST(Edit, InsertingAPropertyAddsItsLineOnly) {
  for (const Sample& s : Samples()) {
    const std::size_t count = Document::Parse(s.text).Root().properties.size();
    for (std::size_t place = 0; place <= count; ++place) {
      Document doc = Document::Parse(s.text);
      InsertAt(doc, doc.Root(), place, "Hint", doc.MakeText(QStringLiteral("new")));
      const Difference d = DifferenceOf(s.text, doc.Write());
      EXPECT_EQ(d.before, "") << s.name << place;
      EXPECT_EQ(d.after, "  Hint = 'new'" + Eol(s)) << s.name << place;
    }
  }
}

TEST(Edit, RenamingAnObjectChangesItsHeaderOnly) {
  for (const Sample& s : Samples()) {
    Document doc = Document::Parse(s.text);
    doc.Root().name = "Other";
    doc.Root().headerChanged = true;
    const QByteArray index = doc.Style().lcl ? "[1]" : " [1]";
    Difference d = DifferenceOf(s.text, doc.Write());
    EXPECT_EQ(d.before, "object Main: TMain" + index + Eol(s)) << s.name;
    EXPECT_EQ(d.after, "object Other: TMain" + index + Eol(s)) << s.name;

    doc = Document::Parse(s.text);
    Object& child = *doc.Root().children.at(0);
    child.name = "Renamed";
    child.headerChanged = true;
    d = DifferenceOf(s.text, doc.Write());
    EXPECT_EQ(d.after, "  object Renamed: TB" + Eol(s)) << s.name;
  }
}

TEST(Edit, ANewChildIsWrittenInPlace) {
  for (const Sample& s : Samples()) {
    Document doc = Document::Parse(s.text);
    Object& child = doc.Root().AddChild("TButton", "Button1");
    child.properties.push_back(doc.MakeProperty("Top", Value::Integer(-1)));
    const QByteArray lines =
        QByteArray("  object Button1: TButton\n    Top = -1\n  end\n").replace("\n", Eol(s));
    Difference d = DifferenceOf(s.text, doc.Write());
    EXPECT_EQ(d.before, "") << s.name;
    EXPECT_EQ(d.after, lines) << s.name;
    // Moved to the front, it is the same text in another place.
    doc.Root().Insert(0, doc.Root().Take(2));
    QByteArray expected = s.text;
    expected.insert(expected.indexOf("  object B: TB"), lines);
    EXPECT_EQ(doc.Write().toStdString(), expected.toStdString()) << s.name;
  }
}

TEST(Edit, RemovingAChildRemovesItsLinesOnly) {
  for (const Sample& s : Samples()) {
    Document doc = Document::Parse(s.text);
    EXPECT_EQ(doc.Root().Take(0)->parent, nullptr);
    const Difference d = DifferenceOf(s.text, doc.Write());
    EXPECT_EQ(d.after, "") << s.name;
    EXPECT_EQ(d.before, QByteArray("  object B: TB\n    Tag = 1\n  end\n").replace("\n", Eol(s))) << s.name;
  }
}

TEST(Edit, AByteOrderMarkStaysBeforeARewrittenHeader) {
  Document doc = Document::Parse("\xEF\xBB\xBFobject A: T\n  P = 1\nend\n");
  doc.Root().name = "B";
  doc.Root().headerChanged = true;
  EXPECT_EQ(doc.Write(), "\xEF\xBB\xBFobject B: T\n  P = 1\nend\n");
}

TEST(Edit, TheOtherNodesKeepTheirForeignSpacing) {
  const QByteArray text = "object   A :  T\n\tP=1  \n  Q  =\n  'x'  \n  R = [ a,b ]\n  end  \n";
  Document doc = Document::Parse(text);
  Replace(doc, doc.Root(), "Q", Value::Integer(7));
  EXPECT_EQ(doc.Write(), "object   A :  T\n\tP=1  \n  Q = 7\n  R = [ a,b ]\n  end  \n");
}

TEST(Edit, OldMacLineEndsAreKept) {
  Document doc = Document::Parse("object A: T\r  P = 1\r  Q = 2\rend\r");
  Replace(doc, doc.Root(), "P", Value::Integer(7));
  EXPECT_EQ(doc.Write(), "object A: T\r  P = 7\r  Q = 2\rend\r");
}

// Whatever is changed in a form without any line breaks, the result must be the changed form.
TEST(Edit, FormsOnOneLineStayReadableAfterEveryChange) {
  const QByteArray texts[] = {
      "object A:T P='x'R=[a]S=1. U=()V=a.b W=[]object B:TB[0]X='y'end object C:TC end end",
      "object A:T[1]P='x'Q='y'R='z'object B:T X={}Y=2 end object C:T Z=<>end end",
  };
  for (const QByteArray& source : texts) {
    const std::size_t count = Document::Parse(source).Root().properties.size();
    // Every subset of the properties removed.
    for (unsigned mask = 0; mask < (1u << count); ++mask) {
      Document doc = Document::Parse(source);
      auto& properties = doc.Root().properties;
      for (std::size_t i = count; i-- > 0;)
        if (mask >> i & 1) properties.erase(properties.begin() + static_cast<std::ptrdiff_t>(i));
      const Document again = Document::Parse(doc.Write());
      ASSERT_EQ(again.Root().properties.size(), properties.size()) << doc.Write().toStdString();
      for (std::size_t i = 0; i < properties.size(); ++i) {
        EXPECT_EQ(again.Root().properties[i].Name(), properties[i].Name());
        EXPECT_TRUE(again.Read(again.Root().properties[i]) == doc.Read(properties[i]))
            << doc.Write().toStdString();
      }
      EXPECT_EQ(again.Root().children.size(), 2u) << doc.Write().toStdString();
    }
    // Every property replaced; every place inserted at.
    for (std::size_t i = 0; i <= count; ++i) {
      Document doc = Document::Parse(source);
      InsertAt(doc, doc.Root(), i, "New", Value::Identifier("here"));
      EXPECT_EQ(Document::Parse(doc.Write()).Root().properties.at(i).Name(), "New")
          << doc.Write().toStdString();
      if (i == count) break;
      doc = Document::Parse(source);
      doc.Root().properties[i] = doc.MakeProperty(doc.Root().properties[i].Name(), Value::Integer(99));
      const Document again = Document::Parse(doc.Write());
      EXPECT_EQ(again.Read(again.Root().properties.at(i)).integer, 99) << doc.Write().toStdString();
      EXPECT_EQ(again.Root().properties.size(), count);
    }
    // Children taken out, put in another order, renamed.
    Document doc = Document::Parse(source);
    doc.Root().Insert(0, doc.Root().Take(1));
    EXPECT_EQ(Document::Parse(doc.Write()).Root().children.at(0)->name, "C") << doc.Write().toStdString();
    doc.Root().children[0]->name = "D";
    doc.Root().children[0]->headerChanged = true;
    EXPECT_EQ(Document::Parse(doc.Write()).Root().children.at(0)->name, "D") << doc.Write().toStdString();
    doc.Root().Take(0);
    EXPECT_EQ(Document::Parse(doc.Write()).Root().children.size(), 1u) << doc.Write().toStdString();
  }
}

TEST(Edit, ABinaryFormChangesOnlyTheBytesOfTheProperty) {
  const QByteArray source = Document::Parse(Samples()[0].text).WriteAs(Format::Binary);
  Document doc = Document::Parse(source);
  Replace(doc, doc.Root(), "Left", Value::Integer(300));
  QByteArray expected = source;
  expected.replace(QByteArray("\x04Left\x02\x0A"), QByteArray("\x04Left\x03\x2C\x01"));
  EXPECT_EQ(doc.Write().toHex(), expected.toHex());
  EXPECT_NE(expected, source);
}

TEST(Edit, AResourceGetsItsNewSize) {
  const QByteArray source = Document::Parse(Samples()[0].text).WriteAs(Format::Resource) + "xyz";
  Document doc = Document::Parse(source);
  Replace(doc, doc.Root(), "Left", Value::Integer(300));
  const QByteArray changed = doc.Write();
  const qsizetype head = source.indexOf("TPF0");
  EXPECT_EQ(changed.size(), source.size() + 1);
  EXPECT_EQ(changed.first(head - 4), source.first(head - 4));
  EXPECT_TRUE(changed.endsWith("xyz"));
  std::uint32_t size = 0;
  for (int i = 3; i >= 0; --i) size = size << 8 | static_cast<unsigned char>(changed[head - 4 + i]);
  EXPECT_EQ(size, static_cast<std::uint32_t>(changed.size() - head));
}

TEST(Edit, RenamingInAStreamChangesTheHeaderOnly) {
  const QByteArray text = Samples()[0].text;
  for (const Format format : {Format::Binary, Format::Resource}) {
    const QByteArray source = Document::Parse(text).WriteAs(format);
    Document doc = Document::Parse(source);
    doc.Root().name = "Renamed";
    doc.Root().headerChanged = true;
    EXPECT_EQ(Document::Parse(doc.Write()).WriteAs(Format::Text),
              QByteArray(text).replace("Main:", "Renamed:"));
    EXPECT_EQ(doc.Write().size(), source.size() + 3);
  }
}
