#include "bench/HtmlTasks.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextDocument>
#include <random>

#include "bench/Measure.h"
#include "library/html/HtmlText.h"

namespace {
constexpr int Count = 1000, Width = 320, RowHeight = 54, Columns = 5;

// Words of a fixed seed, with what rows of lists have: emphasis, colours, a link, a list, entities.
QStringList MakeRows() {
  std::mt19937 random(7);
  constexpr const char* words[] = {"valve",   "pressure", "of",    "the",       "left",
                                   "reactor", "is",       "at",    "12.5",      "bar",
                                   "&amp;",   "rising",   "since", "yesterday", "evening"};
  constexpr std::pair<const char*, const char*> looks[] = {{"<b>", "</b>"},
                                                           {"<i>", "</i>"},
                                                           {"<u>", "</u>"},
                                                           {"<font color=\"#c02020\">", "</font>"},
                                                           {"<font size=4>", "</font>"},
                                                           {"<a href=\"more\">", "</a>"}};
  QStringList rows;
  for (int i = 0; i < Count; ++i) {
    QString row = QStringLiteral("<b>Row %1</b><br>").arg(i);
    for (auto n = 6 + random() % 10; n > 0; --n) {
      const auto word = QString::fromLatin1(words[random() % std::size(words)]);
      const auto& [open, close] = looks[random() % std::size(looks)];
      row +=
          random() % 4 ? word + u' ' : QString::fromLatin1(open) + word + QString::fromLatin1(close) + u' ';
    }
    rows << row;
  }
  return rows;
}

QRect PlaceOf(int i) {
  constexpr int shown = 100;  // the rest goes over them again
  return {i % shown % Columns * (Width + 10), i % shown / Columns * RowHeight, Width, RowHeight};
}

class Documents {
 public:
  Documents(const QStringList& rows, const QFont& font) : rows_(rows), font_(font), kept_(Count) {}
  void Forget() {
    for (auto& document : kept_) document.reset();
  }
  void Draw(QPainter& painter, int i) {
    auto& document = kept_[static_cast<std::size_t>(i)];
    if (!document) {
      document = std::make_unique<QTextDocument>();
      document->setUndoRedoEnabled(false);
      document->setDefaultFont(font_);
      document->setDocumentMargin(0);
      document->setHtml(rows_[i]);
      document->setTextWidth(Width);
    }
    const QRect place = PlaceOf(i);
    painter.save();
    painter.setClipRect(place);
    painter.translate(place.topLeft());
    document->drawContents(&painter, QRectF(0, 0, Width, RowHeight));
    painter.restore();
  }

 private:
  const QStringList& rows_;
  QFont font_;
  std::vector<std::unique_ptr<QTextDocument>> kept_;
};

double TimeOf(const std::function<void(QPainter&, int)>& draw) {
  QImage image(Columns * (Width + 10), 20 * RowHeight, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::white);
  QPainter painter(&image);
  const Stopwatch watch;
  for (int i = 0; i < Count; ++i) draw(painter, i);
  return watch.Elapsed();
}
}  // namespace

void MeasureHtml(const QString&, const QString&) {
  const QStringList rows = MakeRows();
  TFont font;
  font.SetHeight(-13);
  const html::Setup setup = html::SetupFor(font, true, Width, nullptr);
  Documents documents(rows, setup.font);
  const auto ours = [&](QPainter& painter, int i) {
    TCanvas canvas(painter);
    html::Draw(canvas, PlaceOf(i), Qt::AlignTop, rows[i], setup, nullptr);
  };
  const auto theirs = [&](QPainter& painter, int i) { documents.Draw(painter, i); };
  TimeOf(ours), TimeOf(theirs);
  constexpr int Rounds = 9;
  Pairs cold, warm;
  for (int i = 0; i < Rounds; ++i) {
    html::ForgetTexts();
    documents.Forget();
    const double first = TimeOf(ours);
    cold.Add(first, TimeOf(theirs));
    const double again = TimeOf(ours);
    warm.Add(again, TimeOf(theirs));
  }
  Report("cold", cold);
  Report("warm", warm);
}
