// Texts on paper: what is on the pages, read back from the PDF.
#include "library/components/TxtPrinter.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "library/components/PrinterSetup.h"
#include "rtl/Clock.h"
#include "rtl/Exceptions.h"
#include "tests/support/PdfText.h"

namespace {
using P = TVRXTxtPrinter;

class TxtPrinter : public testing::Test {
 protected:
  void SetUp() override {
    printer_.SetName(QStringLiteral("Paper"));
    printer_.Font()->SetName(QStringLiteral("DejaVu Sans"));
  }
  void TearDown() override { VRXPrinterSetup() = {}; }
  PdfText Printed() {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    printed_ = printer_.PrintToPdf(buffer);
    return PdfText(buffer.data());
  }
  void Write(const QStringList& lines) { printer_.Get(P::Lines)->SetLines(lines); }
  void WriteMany(int count) {
    QStringList lines;
    for (int i = 1; i <= count; ++i) lines << QStringLiteral("Line %1").arg(i);
    Write(lines);
  }
  template <class F>
  std::string Refusal(F&& act) {
    try {
      act();
    } catch (const EComponentError& error) {
      return error.what();
    }
    return {};
  }
  P printer_{nullptr};
  int printed_ = 0;
};
}  // namespace

TEST_F(TxtPrinter, PutsAllLinesOnPagesInTheirOrder) {
  WriteMany(140);
  printer_.Set(P::Title, QStringLiteral("Lines \u00E9"));
  const PdfText pdf = Printed();
  EXPECT_EQ(pdf.Title, QStringLiteral("Lines \u00E9"));
  ASSERT_GT(pdf.Pages.size(), 1u);
  EXPECT_EQ(printed_, static_cast<int>(pdf.Pages.size()));
  EXPECT_EQ(printer_.PageCount(), printed_);
  int line = 0;
  for (std::size_t i = 0; i < pdf.Pages.size(); ++i) {
    double y = 0;
    for (const PdfRun& run : pdf.Pages[i].runs) {
      if (!run.text.startsWith(u'L')) {
        EXPECT_EQ(run.text, QStringLiteral("%1 / %2").arg(i + 1).arg(pdf.Pages.size()));
        continue;
      }
      EXPECT_EQ(run.text, QStringLiteral("Line %1").arg(++line));
      EXPECT_GT(run.y, y);
      y = run.y;
    }
  }
  EXPECT_EQ(line, 140);
}

TEST_F(TxtPrinter, KeepsMarginsPaperAndOrientation) {
  Write({QStringLiteral("x")});
  printer_.Set(P::MarginLeft, 50);
  printer_.Set(P::MarginTop, 30);
  constexpr double mm = 72 / 25.4;
  struct {
    TVRXPaperSize paper;
    TVRXPrintOrientation orientation;
    QSizeF size;
  } const rows[] = {{TVRXPaperSize::ppA5, TVRXPrintOrientation::poPortrait, {420, 595}},
                    {TVRXPaperSize::ppA4, TVRXPrintOrientation::poLandscape, {842, 595}},
                    {TVRXPaperSize::ppLegal, TVRXPrintOrientation::poPortrait, {612, 1008}},
                    {TVRXPaperSize::ppTabloid, TVRXPrintOrientation::poLandscape, {1224, 792}}};
  for (const auto& row : rows) {
    printer_.Set(P::PaperSize, row.paper);
    printer_.Set(P::Orientation, row.orientation);
    const PdfText pdf = Printed();
    ASSERT_EQ(pdf.Pages.size(), 1u);
    EXPECT_NEAR(pdf.Pages[0].size.width(), row.size.width(), 1);
    EXPECT_NEAR(pdf.Pages[0].size.height(), row.size.height(), 1);
    const auto& runs = pdf.Pages[0].runs;
    const auto text = std::find_if(runs.begin(), runs.end(), [](const PdfRun& r) { return r.text == u"x"; });
    ASSERT_NE(text, runs.end());
    EXPECT_NEAR(text->x, 50 * mm, 1);
    EXPECT_GT(text->y, 30 * mm + 5);
    EXPECT_LT(text->y, 30 * mm + 20);
  }
  VRXPrinterSetup().Layout.setPageSize(QPageSize(QPageSize::A3));
  printer_.Set(P::PaperSize, TVRXPaperSize::ppDefault);
  EXPECT_NEAR(Printed().Pages.at(0).size.width(), 1191, 1) << "that of the program, across";
}

TEST_F(TxtPrinter, FillsInHeadAndFoot) {
  const TClockOverride clock([] { return std::int64_t{13} * 3600 * 1000 + 5 * 60 * 1000; });
  WriteMany(70);
  printer_.Set(P::Title, QStringLiteral("My {page}"));
  printer_.Set(P::HeaderText, QStringLiteral("{title}: {page} of {pages}"));
  printer_.Set(P::FooterText, QStringLiteral("{date} {time}"));
  printer_.Set(P::ShowPageNumbers, false);
  const PdfText pdf = Printed();
  ASSERT_EQ(pdf.Pages.size(), 2u);
  const QLocale locale;
  const QString when = locale.toString(QDate(2000, 1, 1), QLocale::ShortFormat) + u' ' +
                       locale.toString(QTime(13, 5), QLocale::ShortFormat);
  for (int page = 1; page <= 2; ++page) {
    const QStringList texts = pdf.Pages[static_cast<std::size_t>(page) - 1].Texts();
    EXPECT_TRUE(texts.contains(QStringLiteral("My {page}: %1 of 2").arg(page)))
        << texts.join(u'|').toStdString();
    EXPECT_TRUE(texts.contains(when)) << texts.join(u'|').toStdString();
    EXPECT_FALSE(texts.contains(QStringLiteral("%1 / 2").arg(page)));
  }
  const auto& runs = pdf.Pages[0].runs;
  const auto y = [&](QStringView text) {
    return std::find_if(runs.begin(), runs.end(), [&](const PdfRun& r) { return r.text == text; })->y;
  };
  EXPECT_LT(y(u"My {page}: 1 of 2"), y(u"Line 1"));
  EXPECT_GT(y(when), y(u"Line 2"));
}

TEST_F(TxtPrinter, PrintsInItsFontAndColor) {
  WriteMany(40);
  printer_.Font()->SetStyle({TFontStyle::fsBold});
  printer_.Font()->SetColor(TColor(0x2040C0));
  const int few = static_cast<int>(Printed().Pages.size());
  const PdfRun run = Printed().Pages.at(0).runs.back();
  EXPECT_EQ(run.font, QStringLiteral("DejaVuSans-Bold"));
  EXPECT_EQ(run.color.name(), QStringLiteral("#c04020"));
  printer_.Font()->SetSize(40);
  EXPECT_GT(static_cast<int>(Printed().Pages.size()), few);
  printer_.Font()->SetColor(clWindowText);
  EXPECT_EQ(Printed().Pages.at(0).runs.back().color, QColor(Qt::black)) << "whatever forms look like";
}

TEST_F(TxtPrinter, BreaksLinesTabsAndPages) {
  const QString words = QStringLiteral("word ").repeated(60).trimmed(), letters = QString(300, u'w');
  Write({words, letters, QStringLiteral("a\tbc\td"), QStringLiteral("one\ftwo"), QStringLiteral("end\f")});
  printer_.Set(P::ShowPageNumbers, false);
  printer_.Set(P::TabWidth, 6);
  const PdfText pdf = Printed();
  ASSERT_EQ(pdf.Pages.size(), 2u);
  const QString first = pdf.Pages[0].Texts().join(u'|');
  EXPECT_TRUE(first.endsWith(QStringLiteral("|a|bc|d|one"))) << first.toStdString();
  EXPECT_EQ(first.count(QStringLiteral("word")), 60);
  EXPECT_EQ(QString(first).remove(u'|').count(u'w'), 360) << "no letter is lost";
  EXPECT_FALSE(first.contains(QStringLiteral("wo|rd")));
  EXPECT_EQ(pdf.Pages[1].Texts().join(u'|'), QStringLiteral("two|end"));
  printer_.Set(P::WordWrap, false);
  printer_.Set(P::LineNumbers, true);
  const QStringList cut = Printed().Pages.at(0).Texts();
  EXPECT_EQ(cut.filter(QStringLiteral("word")).size(), 1);
  EXPECT_EQ(cut.mid(cut.size() - 2).join(u'|'), QStringLiteral("4|one"));
}

TEST_F(TxtPrinter, KeepsLineNumbersInAColumnOfTheirOwn) {
  // A line that goes on three times, a word that fills more than a line, and lines of two digits.
  QStringList lines{QStringLiteral("word ").repeated(50).trimmed(), QString(130, u'w')};
  for (int i = 3; i <= 12; ++i) lines << QStringLiteral("line");
  Write(lines);
  printer_.Set(P::ShowPageNumbers, false);
  printer_.Set(P::LineNumbers, true);
  for (const char* font : {"DejaVu Sans", "DejaVu Sans Mono"}) {
    SCOPED_TRACE(font);
    printer_.Font()->SetName(QString::fromLatin1(font));
    const PdfPage page = Printed().Pages.at(0);
    double text = 0, one = 0, ten = 0;
    QHash<double, QStringList> rows;
    for (const PdfRun& run : page.runs) {
      rows[run.y] << run.text;
      bool isNumber = false;
      const int number = run.text.toInt(&isNumber);
      if (isNumber && number == 1) one = run.x;
      if (isNumber && number == 10) ten = run.x;
      if (isNumber) {
        EXPECT_NEAR(run.x, number < 10 ? one : ten, 0.1) << number;
        continue;
      }
      if (text == 0) text = run.x;
      EXPECT_NEAR(run.x, text, 0.1) << run.text.toStdString();
    }
    constexpr double mm = 72 / 25.4, digit = 4;
    EXPECT_NEAR(ten, 20 * mm, 1) << "as wide as the largest number";
    EXPECT_GT(one, ten + digit) << "units below each other";
    EXPECT_GT(text, one + 2 * digit);
    EXPECT_LT(text, one + 6 * digit) << "and no wider";
    EXPECT_GT(rows.size(), 14);
    const auto second =
        std::find_if(rows.begin(), rows.end(), [](const auto& row) { return row[0] == u"2"; });
    ASSERT_NE(second, rows.end());
    ASSERT_EQ(second->size(), 2) << "the long word begins beside its number";
    EXPECT_TRUE(second->at(1).startsWith(u"www"));
  }
}

TEST_F(TxtPrinter, LinesTabsUpFromWhereTextsBegin) {
  Write({QStringLiteral("i\tx"), QStringLiteral("WWW\tx"), QStringLiteral("01234\t\tx"),
         QStringLiteral("012345\tx"), QStringLiteral("\t\tx")});
  printer_.Set(P::ShowPageNumbers, false);
  printer_.Set(P::TabWidth, 6);
  for (const bool numbers : {false, true})
    for (const char* font : {"DejaVu Sans", "DejaVu Sans Mono"}) {
      SCOPED_TRACE(font);
      printer_.Set(P::LineNumbers, numbers);
      printer_.Font()->SetName(QString::fromLatin1(font));
      // Of each row, from the top: the number, the text, and what stands behind the tabs.
      std::map<double, std::vector<double>> rows;
      const PdfPage page = Printed().Pages.at(0);
      for (const PdfRun& run : page.runs) rows[run.y].push_back(run.x);
      ASSERT_EQ(rows.size(), 5u);
      const double text = rows.begin()->second.at(numbers ? 1 : 0);
      std::vector<double> stops;
      for (const auto& [y, places] : rows) stops.push_back(places.back() - text);
      EXPECT_GT(stops[0], 20);
      EXPECT_NEAR(stops[1], stops[0], 0.1);
      for (const std::size_t i : {2u, 3u, 4u}) EXPECT_NEAR(stops[i], 2 * stops[0], 0.1) << i;
    }
}

TEST_F(TxtPrinter, PrintsCopiesAndRanges) {
  WriteMany(160);
  ASSERT_EQ(printer_.PageCount(), 3);
  const auto order = [this] {
    QStringList numbers;
    for (const PdfPage& page : Printed().Pages)
      for (const QString& text : page.Texts())
        if (text.contains(u'/')) numbers << text.left(1);
    return numbers.join(QString()).toStdString();
  };
  printer_.Set(P::Copies, 2);
  EXPECT_EQ(order(), "123123");
  EXPECT_EQ(printed_, 6);
  printer_.Set(P::Collate, false);
  EXPECT_EQ(order(), "112233");
  printer_.Set(P::FromPage, 2);
  EXPECT_EQ(order(), "2233");
  printer_.Set(P::ToPage, 2);
  EXPECT_EQ(order(), "22");
  printer_.Set(P::Copies, -1);
  printer_.Set(P::ToPage, 99);
  EXPECT_EQ(order(), "23");
  printer_.Set(P::FromPage, 7);
  EXPECT_EQ(Refusal([this] { Printed(); }), "Paper: the text has 3 pages; none of them is to be printed.");
}

TEST_F(TxtPrinter, CanBeEndedBeforeAnyPage) {
  WriteMany(160);
  std::string heard;
  printer_.SetProgress([&](int page, int pages) {
    heard += std::to_string(page) + '/' + std::to_string(pages) + ' ';
    return page < 2;
  });
  EXPECT_EQ(Printed().Pages.size(), 1u);
  EXPECT_EQ(printed_, 1);
  EXPECT_EQ(heard, "1/3 2/3 ");
}

TEST_F(TxtPrinter, WritesItsFileWhereThereIsOne) {
  const QTemporaryDir folder;
  const QString name = folder.filePath(QStringLiteral("out.pdf"));
  const auto texts = [&] {
    QFile file(name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const PdfText pdf(file.readAll());
    return pdf.Pages.empty() ? QString() : pdf.Pages[0].Texts().join(u'|');
  };
  Write({QStringLiteral("to a file")});
  printer_.Set(P::ShowPageNumbers, false);
  printer_.Set(P::OutputFile, name);
  EXPECT_EQ(printer_.Print(), 1);
  EXPECT_EQ(texts(), QStringLiteral("to a file"));
  QFile source(folder.filePath(QStringLiteral("text.txt")));
  ASSERT_TRUE(source.open(QIODevice::WriteOnly));
  source.write("gr\xC3\xBC\xC3\x9F\r\nzwei\n");
  source.close();
  EXPECT_EQ(printer_.PrintFile(source.fileName()), 1);
  EXPECT_EQ(texts(), QStringLiteral("gr\u00FC\u00DF|zwei"));
  ASSERT_TRUE(source.open(QIODevice::WriteOnly));
  source.write("gr\xFC\xDF");
  source.close();
  printer_.PrintFile(source.fileName());
  EXPECT_EQ(texts(), QStringLiteral("gr\u00FC\u00DF")) << "an older file";
  printer_.SetProgress([](int, int) { return false; });
  EXPECT_EQ(printer_.Print(), 0);
  EXPECT_EQ(texts(), QStringLiteral("gr\u00FC\u00DF")) << "nothing was printed";
  printer_.SetProgress({});
  printer_.Set(P::OutputFile, QString());
  VRXPrinterSetup().OutputFile = name;
  printer_.Print();
  EXPECT_EQ(texts(), QStringLiteral("to a file")) << "that of the program";
}

TEST_F(TxtPrinter, SaysWhatIsMissing) {
  Write({QStringLiteral("x")});
  const QTemporaryDir folder;
  const auto refusal = [this](const QString& file, const QString& printer) {
    printer_.Set(P::OutputFile, file);
    printer_.Set(P::PrinterName, printer);
    return Refusal([this] { printer_.Print(); });
  };
  const std::string nowhere = refusal(folder.filePath(QStringLiteral("none/out.pdf")), {});
  EXPECT_NE(nowhere.find("none/out.pdf cannot be written"), std::string::npos) << nowhere;
  const std::string other = refusal({}, QStringLiteral("No such printer"));
  EXPECT_EQ(other.find("Paper: there is no printer \"No such printer\". "), 0u) << other;
  const QString missing = folder.filePath(QStringLiteral("none.txt"));
  EXPECT_EQ(Refusal([&] { printer_.PrintFile(missing); }),
            "Paper: " + missing.toStdString() + " cannot be read: there is no such file.");
  for (const auto* margin : {&P::MarginTop, &P::MarginBottom}) printer_.Set(*margin, 120);
  printer_.Set(P::PaperSize, TVRXPaperSize::ppA5);
  EXPECT_EQ(Refusal([this] { Printed(); }),
            "Paper: the margins leave nothing of the page (148 x 210 mm). Make them smaller.");
}
