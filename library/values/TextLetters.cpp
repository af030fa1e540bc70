#include "library/values/TextLetters.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QRawFont>
#include <QTextBoundaryFinder>
#include <QTextLayout>
#include <algorithm>

namespace {
// Letters of every size are taken from one of this size: small ones would have the corners of their grid.
constexpr int Original = 512;
// More room between letters than this shows nothing but room.
constexpr int MostTracing = 8;

struct Line {
  std::vector<QPainterPath> letters;
  double width = 0;
};

void SetLine(QTextLayout& layout) {
  QTextOption option;
  option.setWrapMode(QTextOption::NoWrap);
  layout.setTextOption(option);
  layout.setCacheEnabled(true);
  layout.beginLayout();
  layout.createLine().setLineWidth(1e7);
  layout.endLayout();
}

// On a base line at 0.
Line LineOf(const QString& text, const QFont& font) {
  Line line;
  if (text.isEmpty()) return line;
  QTextLayout layout(text, font);
  SetLine(layout);
  const QTextLine set = layout.lineAt(0);
  line.width = set.naturalTextWidth();
  struct Letter {
    double at;
    QPainterPath outline;
  };
  std::vector<Letter> letters;
  const double base = set.ascent();
  for (const QGlyphRun& run : layout.glyphRuns()) {
    const QRawFont raw = run.rawFont();
    const QList<quint32> glyphs = run.glyphIndexes();
    const QList<QPointF> places = run.positions();
    const QList<QPointF> rooms = raw.advancesForGlyphIndexes(glyphs);
    for (qsizetype i = 0; i < glyphs.size(); ++i) {
      QPainterPath outline = raw.pathForGlyph(glyphs[i]);
      if (outline.isEmpty()) continue;
      outline.translate(places[i] - QPointF(0, base));
      const bool accent = rooms[i].x() <= 0 && !letters.empty();
      if (accent)
        letters.back().outline.addPath(outline);
      else
        letters.push_back({places[i].x(), std::move(outline)});
    }
  }
  std::stable_sort(letters.begin(), letters.end(),
                   [](const Letter& a, const Letter& b) { return a.at < b.at; });
  for (Letter& letter : letters) line.letters.push_back(std::move(letter.outline));
  return line;
}

// What a person takes for one letter.
QStringList LettersIn(const QString& text) {
  QStringList letters;
  QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
  for (qsizetype from = 0, to; (to = finder.toNextBoundary()) >= 0; from = to)
    letters << text.mid(from, to - from);
  return letters;
}
bool Grows(const QString& letter) {
  return !letter.isEmpty() && (letter[0].isLetterOrNumber() || letter[0].isSurrogate());
}

// Every letter by itself, in a place of the same width.
Line EqualLine(const QString& text, const QFont& font, double tracing) {
  struct Letter {
    QPainterPath outline;
    double width;
    bool grows;
  };
  std::vector<Letter> letters;
  double room = 0, top = 0, bottom = 0;
  for (const QString& letter : LettersIn(text)) {
    const Line alone = LineOf(letter, font);
    QPainterPath outline;
    for (const QPainterPath& part : alone.letters) outline.addPath(part);
    const QRectF ink = outline.boundingRect();
    room = std::max(room, std::max(alone.width, ink.width()));
    const bool grows = Grows(letter) && ink.height() > 0;
    if (grows) top = std::min(top, ink.top()), bottom = std::max(bottom, ink.bottom());
    letters.push_back({outline, alone.width, grows});
  }
  Line line;
  room += tracing;
  for (const Letter& letter : letters) {
    QTransform place = QTransform::fromTranslate(line.width + (room - letter.width) / 2, 0);
    if (const QRectF ink = letter.outline.boundingRect(); letter.grows) {
      place.translate(0, top);
      place.scale(1, (bottom - top) / ink.height());
      place.translate(0, -ink.top());
    }
    line.width += room;
    if (!letter.outline.isEmpty()) line.letters.push_back(place.map(letter.outline));
  }
  return line;
}

QPainterPath Bar(double from, double width, double middle, double thick) {
  QPainterPath bar;
  bar.addRect(from, middle - thick / 2, width, thick);
  return bar;
}
}  // namespace

TVRXLetters VRXLettersOf(const QString& text, const TVRXLetterStyle& style) {
  TVRXLetters all;
  const int pixels = std::max(1, style.Font.pixelSize());
  QFont font = style.Font;
  font.setPixelSize(Original);
  const double scale = static_cast<double>(pixels) / Original;
  font.setUnderline(false);
  font.setStrikeOut(false);
  font.setHintingPreference(QFont::PreferNoHinting);
  const double tracing =
      std::clamp<double>(style.Tracing, -pixels, static_cast<double>(MostTracing) * pixels) / scale;
  if (!style.Equal) font.setLetterSpacing(QFont::AbsoluteSpacing, tracing);
  const QFontMetricsF metrics(font);

  std::vector<Line> lines;
  double width = 0;
  for (const QString& line : text.split(u'\n')) {
    lines.push_back(style.Equal ? EqualLine(line, font, tracing) : LineOf(line, font));
    width = std::max(width, lines.back().width);
  }
  double base = metrics.ascent();
  for (const Line& line : lines) {
    const double free = width - line.width;
    const double left = style.Alignment & Qt::AlignRight     ? free
                        : style.Alignment & Qt::AlignHCenter ? free / 2
                                                             : 0;
    for (const QPainterPath& letter : line.letters)
      all.Outlines.push_back(QTransform::fromScale(scale, scale).map(letter.translated(left, base)));
    const auto bar = [&](bool wanted, double middle) {
      if (wanted && line.width > 0)
        all.Bars.push_back(
            QTransform::fromScale(scale, scale).map(Bar(left, line.width, middle, metrics.lineWidth())));
    };
    bar(style.Font.underline(), base + metrics.underlinePos());
    bar(style.Font.strikeOut(), base - metrics.strikeOutPos());
    base += metrics.lineSpacing();
  }
  all.Box = QSizeF(width, metrics.lineSpacing() * static_cast<double>(lines.size())) * scale;
  return all;
}
