#include "library/html/HtmlLayout.h"

#include <QFontMetricsF>
#include <cmath>

namespace html {

namespace {
constexpr int Indent = 20, DeepestIndent = 10, RuleHeight = 9, MarkGap = 6;
constexpr double Factors[] = {0.7, 0.8, 1, 1.2, 1.5, 2, 2.4};  // of sizes 1 to 7
constexpr double LeastContrast = 3, Largest = 1'000'000;

// As accessibility guidelines reckon it: 1 for none, 21 for black on white.
double Contrast(const QColor& a, const QColor& b) {
  const auto light = [](const QColor& c) {
    const auto part = [](double v) { return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
    return 0.2126 * part(c.redF()) + 0.7152 * part(c.greenF()) + 0.0722 * part(c.blueF()) + 0.05;
  };
  return std::max(light(a), light(b)) / std::min(light(a), light(b));
}
}  // namespace

Setup SetupFor(const TFont& font, bool enabled, int width, const TCustomImageList* images) {
  const TColor color = !enabled ? clGrayText : font.Color() == clDefault ? clWindowText : font.Color();
  Setup setup{.font = ToQFont(font),
              .color = ToQColor(color),
              .link = ToQColor(SysColor(26)),
              .window = ToQColor(clWindow),
              .width = width,
              .plain = !enabled};
  if (images) setup.picture = {images->Get(TCustomImageList::Width), images->Get(TCustomImageList::Height)};
  setup.picture = setup.picture.expandedTo({1, 1}).boundedTo({1024, 1024});
  return setup;
}

struct Layout::Block {
  std::unique_ptr<QTextLayout> text;  // null: a line across
  const Paragraph* paragraph = nullptr;
  double left = 0, top = 0, height = 0, baseline = 0;  // of the first line
  // Pictures of the paragraph: their place, and which they are.
  std::vector<std::pair<QRectF, int>> pictures;
};

Layout::Layout(Layout&&) noexcept = default;
Layout::~Layout() = default;

QColor Layout::Readable(const QColor& color) const {
  return setup_.ground.isValid() && Contrast(color, setup_.ground) < LeastContrast ? setup_.color : color;
}

QTextLayout::FormatRange Layout::FormatOf(const Piece& piece, qsizetype start) const {
  const Look& look = piece.look;
  QFont font = setup_.font;
  if (!look.face.isEmpty()) font.setFamilies({look.face, font.family()});
  if (look.size != 3)
    font.setPixelSize(
        std::max(1, int(std::lround(font.pixelSize() * Factors[std::clamp(look.size, 1, 7) - 1]))));
  if (look.bold) font.setBold(true);
  if (look.italic) font.setItalic(true);
  if (look.underline || look.link >= 0) font.setUnderline(true);
  if (look.strikeOut) font.setStrikeOut(true);
  if (piece.image >= 0) {
    font.setUnderline(false);
    font.setStrikeOut(false);
    const double blank = QFontMetricsF(font).horizontalAdvance(PictureCharacter);
    font.setLetterSpacing(QFont::AbsoluteSpacing, setup_.picture.width() - blank);
  }
  QTextCharFormat format;
  format.setFont(font);
  if (look.script != 0)
    format.setVerticalAlignment(look.script < 0 ? QTextCharFormat::AlignSubScript
                                                : QTextCharFormat::AlignSuperScript);
  if (!setup_.plain) {
    if (look.color != clDefault)
      format.setForeground(Readable(ToQColor(look.color)));
    else if (look.link >= 0)
      format.setForeground(Readable(setup_.link));
  }
  return {static_cast<int>(piece.start - start), static_cast<int>(piece.length), format};
}

Layout::Layout(const Document& document, const Setup& setup) : document_(document), setup_(setup) {
  const double line = QFontMetricsF(setup_.font).height();
  double y = 0, width = 0;
  blocks_.reserve(document.paragraphs.size());
  for (const Paragraph& paragraph : document.paragraphs) {
    Block& block = blocks_.emplace_back();
    block.paragraph = &paragraph;
    if (paragraph.apart) y += std::round(line / 2);
    block.top = y;
    Set(paragraph, block);
    y += block.height;
    if (!block.text) continue;
    for (int i = 0; i < block.text->lineCount(); ++i)
      width = std::max(width, block.left + block.text->lineAt(i).naturalTextWidth());
  }
  if (blocks_.empty()) y = line;
  size_ = QSize(static_cast<int>(std::ceil(std::min(width, Largest))),
                static_cast<int>(std::ceil(std::min(y, Largest))));
}

void Layout::Set(const Paragraph& paragraph, Block& block) {
  // Half of the room is left for the text, however deep it stands.
  block.left = std::min(Indent * std::min(paragraph.indent, DeepestIndent), std::max(setup_.width / 2, 0));
  if (paragraph.rule) {
    block.height = RuleHeight;
    return;
  }
  block.text =
      std::make_unique<QTextLayout>(document_.text.mid(paragraph.start, paragraph.length), setup_.font);
  block.text->setCacheEnabled(true);
  QTextOption option(paragraph.alignment ? paragraph.alignment : setup_.alignment);
  option.setWrapMode(setup_.wrap ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
  block.text->setTextOption(option);
  QList<QTextLayout::FormatRange> formats;
  for (std::size_t i = 0; i < paragraph.pieces; ++i) {
    const Piece& piece = document_.pieces[paragraph.firstPiece + i];
    if (piece.look != Look() || piece.image >= 0) formats << FormatOf(piece, paragraph.start);
  }
  block.text->setFormats(formats);
  SetLines(paragraph, block, block.left, std::max(setup_.width - block.left, 1.0));
}

void Layout::SetLines(const Paragraph& paragraph, Block& block, double left, double width) {
  QTextLayout& text = *block.text;
  std::size_t next = 0;  // piece that was not looked at yet
  const auto piece = [&](std::size_t i) -> const Piece& {
    return document_.pieces[paragraph.firstPiece + i];
  };
  double y = 0;
  text.beginLayout();
  for (QTextLine line = text.createLine(); line.isValid(); line = text.createLine()) {
    line.setLineWidth(width);
    double ascent = line.ascent();
    const qsizetype end = paragraph.start + line.textStart() + line.textLength();
    const std::size_t first = next;
    for (; next < paragraph.pieces && piece(next).start < end; ++next)
      if (piece(next).image >= 0) ascent = std::max<double>(ascent, setup_.picture.height());
    line.setPosition({left, y + ascent - line.ascent()});
    for (std::size_t i = first; i < next; ++i)
      if (const Piece& p = piece(i); p.image >= 0) {
        const double x = line.cursorToX(static_cast<int>(p.start - paragraph.start));
        block.pictures.emplace_back(
            QRectF(QPointF(x, y + ascent - setup_.picture.height()), QSizeF(setup_.picture)), p.image);
      }
    if (y == 0) block.baseline = ascent;
    y += std::ceil(ascent + line.descent());
  }
  text.endLayout();
  block.height = y;
}

void Layout::DrawPictures(QPainter& painter, const Block& block, const TCustomImageList* images) const {
  for (const auto& [place, index] : block.pictures) {
    const QImage image = images ? images->Image(index) : QImage();
    const QRect at = place.translated(0, block.top).toRect();
    if (image.isNull()) {  // told by an empty frame
      painter.setPen(ToQColor(clGrayText));
      painter.setBrush(Qt::NoBrush);
      painter.drawRect(at.adjusted(1, 1, -2, -2));
    } else {
      painter.setOpacity(setup_.plain ? 0.4 : 1);
      painter.drawImage(at.topLeft(), image);
      painter.setOpacity(1);
    }
  }
}

void Layout::Draw(QPainter& painter, const QRectF& clip, const TCustomImageList* images) const {
  painter.save();
  for (const Block& block : blocks_) {
    if (block.top > clip.bottom()) break;
    if (block.top + block.height < clip.top()) continue;
    painter.setPen(setup_.color);
    if (!block.text) {
      const int y = static_cast<int>(block.top) + RuleHeight / 2;
      QColor faint = setup_.color;  // seen on any ground that letters are
      faint.setAlphaF(0.4F);
      painter.fillRect(QRectF(block.left, y, std::max(setup_.width - block.left, 0.0), 1), faint);
      continue;
    }
    if (const QString& mark = block.paragraph->mark; !mark.isEmpty()) {
      painter.setFont(setup_.font);
      const double x = block.left - MarkGap - QFontMetricsF(setup_.font).horizontalAdvance(mark);
      painter.drawText(QPointF(x, block.top + block.baseline), mark);
    }
    block.text->draw(&painter, QPointF(0, block.top), {}, clip);
    DrawPictures(painter, block, images);
  }
  painter.restore();
}

int Layout::LinkAt(QPointF point) const {
  for (const Block& block : blocks_) {
    if (!block.text || point.y() < block.top || point.y() >= block.top + block.height) continue;
    const QPointF inside = point - QPointF(0, block.top);
    for (int i = 0; i < block.text->lineCount(); ++i) {
      const QTextLine line = block.text->lineAt(i);
      const QRectF letters = line.naturalTextRect();
      if (inside.y() < letters.top() || inside.y() >= letters.bottom() || inside.x() < letters.left() ||
          inside.x() >= letters.right())
        continue;
      const qsizetype at = block.paragraph->start + line.xToCursor(inside.x(), QTextLine::CursorOnCharacter);
      const auto from = document_.pieces.begin() + static_cast<std::ptrdiff_t>(block.paragraph->firstPiece);
      const auto to = from + static_cast<std::ptrdiff_t>(block.paragraph->pieces);
      const auto behind =
          std::upper_bound(from, to, at, [](qsizetype a, const Piece& p) { return a < p.start; });
      if (behind != from) return std::prev(behind)->look.link;
    }
  }
  return -1;
}

std::vector<Line> Layout::Lines() const {
  std::vector<Line> lines;
  for (const Block& block : blocks_)
    for (int i = 0; block.text && i < block.text->lineCount(); ++i) {
      const QTextLine line = block.text->lineAt(i);
      lines.push_back({block.text->text().mid(line.textStart(), line.textLength()),
                       line.naturalTextRect().translated(0, block.top)});
    }
  return lines;
}

}  // namespace html
