#include "library/values/TextPages.h"

#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QTextLayout>

#include "rtl/Clock.h"
#include "rtl/Exceptions.h"
#include "vcl/Font.h"

void TVRXTextPages::SetFont(const TFont& value) {
  constexpr double inch = 72, screen = 96;
  font = ToQFont(value);
  if (font.pixelSize() > 0) font.setPointSizeF(font.pixelSize() * inch / screen);
  const auto color = static_cast<std::uint32_t>(value.Color());
  ink = color < 0x01000000u ? ToQColor(value.Color()) : QColor(Qt::black);
}

QMargins VRXTextMargins(int left, int top, int right, int bottom) {
  const auto kept = [](int v) { return std::clamp(v, 0, 150); };
  return {kept(left), kept(top), kept(right), kept(bottom)};
}

namespace {
QTextOption WithTabs(double tab, QTextOption::WrapMode wrap) {
  QTextOption option;
  option.setTabStopDistance(tab);
  option.setWrapMode(wrap);
  return option;
}

// What makes a layout set tab stops that far apart, and never farther: a text that ends at one goes on at the
// next. Layouts count in pixels of a screen of their own, whatever device they are for.
double TabDistance(double wanted, const QFont& font, QPaintDevice* device) {
  constexpr double probe = 1000, step = 64;  // lengths of layouts are multiples of a step
  QTextLayout layout(QStringLiteral("\t"), font, device);
  layout.setTextOption(WithTabs(probe, QTextOption::NoWrap));
  layout.beginLayout();
  QTextLine line = layout.createLine();
  layout.endLayout();
  return std::floor(wanted * probe / line.cursorToX(1) * step) / step;
}

// The letters of a line with their tabs, standing on the same ground line as any other text of the font.
void DrawLine(QPainter& painter, QPointF at, const QString& text, const QFont& font, double tab) {
  if (text.isEmpty()) return;
  QTextLayout layout(text, font, painter.device());
  layout.setTextOption(WithTabs(tab, QTextOption::NoWrap));
  layout.beginLayout();
  QTextLine line = layout.createLine();
  line.setLineWidth(painter.device()->width());
  layout.endLayout();
  layout.draw(&painter, at + QPointF(0, QFontMetricsF(font, painter.device()).ascent() - line.ascent()));
}
}  // namespace

TVRXTextPages::Columns TVRXTextPages::ColumnsOf(const QFont& with, QPaintDevice* device) const {
  constexpr int gap = 2;  // letters between the numbers and the texts
  const QFontMetricsF metrics(with, device);
  double digit = 0;
  for (char16_t c = u'0'; c <= u'9'; ++c) digit = std::max(digit, metrics.horizontalAdvance(QChar(c)));
  Columns columns{.tab = TabDistance(std::max(1, tabWidth) * digit, with, device)};
  if (!lineNumbers) return columns;
  columns.numbers = static_cast<double>(QString::number(lines.size()).size()) * digit;
  columns.text = columns.numbers + gap * digit;
  return columns;
}

std::vector<TVRXTextPages::Page> TVRXTextPages::Break(const QFont& with, QPaintDevice* device,
                                                      QSizeF room) const {
  const double height = QFontMetricsF(with, device).lineSpacing();
  const auto most = static_cast<std::size_t>(std::max(1.0, std::floor(room.height() / height)));
  const Columns columns = ColumnsOf(with, device);
  std::vector<Page> pages(1);
  const auto add = [&](const QString& number, const QString& text) {
    if (pages.back().size() >= most) pages.emplace_back();
    pages.back().push_back({number, text});
  };
  const auto addWrapped = [&](QString number, const QString& line) {
    QTextLayout layout(line, with, device);
    layout.setTextOption(WithTabs(columns.tab, QTextOption::WrapAtWordBoundaryOrAnywhere));
    layout.beginLayout();
    QTextLine piece = layout.createLine();
    if (!piece.isValid()) add(number, line);
    for (; piece.isValid(); piece = layout.createLine()) {
      piece.setLineWidth(std::max(room.width() - columns.text, 1.0));
      add(std::exchange(number, QString()), line.mid(piece.textStart(), piece.textLength()));
      if (!wordWrap) break;
    }
    layout.endLayout();
  };
  for (qsizetype number = 0; number < lines.size(); ++number) {
    const QStringList parts = lines[number].split(u'\f');
    for (qsizetype i = 0; i < parts.size(); ++i) {
      // Nothing follows the last form feed of all.
      if (i > 0 && i + 1 == parts.size() && number + 1 == lines.size() && parts[i].isEmpty()) break;
      if (i > 0) pages.emplace_back();
      addWrapped(lineNumbers && i == 0 ? QString::number(number + 1) : QString(), parts[i]);
    }
  }
  return pages;
}

QString TVRXTextPages::Filled(const QString& text, int page, int pages) const {
  const QDateTime now = ClockDateTime();
  const QLocale locale;
  const std::pair<QLatin1StringView, QString> fields[] = {
      {QLatin1StringView("{page}"), QString::number(page)},
      {QLatin1StringView("{pages}"), QString::number(pages)},
      {QLatin1StringView("{date}"), locale.toString(now.date(), QLocale::ShortFormat)},
      {QLatin1StringView("{time}"), locale.toString(now.time(), QLocale::ShortFormat)},
      // Last: what stands in a title is no field.
      {QLatin1StringView("{title}"), title}};
  QString filled = text;
  for (const auto& [field, value] : fields) filled.replace(field, value);
  return filled;
}

struct TVRXTextPages::Sheet {
  QFont font;
  QRectF all{}, room{};
  double line = 0;
  Columns columns{};
  std::vector<Page> pages{};
};

TVRXTextPages::Sheet TVRXTextPages::MakeSheet(QPagedPaintDevice& device, const QString& who) const {
  QPageLayout layout = device.pageLayout();
  if (paper.isValid()) layout.setPageSize(paper);
  layout.setOrientation(orientation == TVRXPrintOrientation::poPortrait ? QPageLayout::Portrait
                                                                        : QPageLayout::Landscape);
  const QSizeF size = layout.fullRect(QPageLayout::Millimeter).size();
  const bool fits =
      margins.left() + margins.right() < size.width() && margins.top() + margins.bottom() < size.height();
  // A printer that cannot print so near to the edge keeps the margins that it needs.
  device.setPageLayout(layout);
  if (fits) device.setPageMargins(margins, QPageLayout::Millimeter);
  if (!fits)
    throw EComponentError(
        QStringLiteral("%1: the margins leave nothing of the page (%2 x %3 mm). Make them smaller.")
            .arg(who)
            .arg(std::lround(size.width()))
            .arg(std::lround(size.height())));
  Sheet sheet{.font = font};
  sheet.line = QFontMetricsF(font, &device).lineSpacing();
  sheet.all = sheet.room = QRectF(0, 0, device.width(), device.height());
  if (!header.isEmpty()) sheet.room.setTop(2 * sheet.line);
  if (!footer.isEmpty() || pageNumbers) sheet.room.setBottom(sheet.all.bottom() - 2 * sheet.line);
  sheet.columns = ColumnsOf(font, &device);
  sheet.pages = Break(font, &device, sheet.room.size());
  return sheet;
}

int TVRXTextPages::Count(QPagedPaintDevice& device, const QString& who) const {
  return static_cast<int>(MakeSheet(device, who).pages.size());
}

namespace {
// The pages of all copies, in the order of printing.
std::vector<int> Order(const TVRXTextPages::Run& run, int pages) {
  const int from = std::max(1, run.from), to = run.to > 0 ? std::min(run.to, pages) : pages;
  const int copies = std::max(1, run.copies);
  std::vector<int> order;
  for (int outer = 0; outer < (run.collate ? copies : 1); ++outer)
    for (int page = from; page <= to; ++page)
      for (int inner = 0; inner < (run.collate ? 1 : copies); ++inner) order.push_back(page);
  return order;
}
}  // namespace

int TVRXTextPages::Print(QPagedPaintDevice& device, const QString& who, const Run& run) const {
  // The layout of the page is the device's before anything is painted.
  const Sheet sheet = MakeSheet(device, who);
  const int pages = static_cast<int>(sheet.pages.size());
  const std::vector<int> order = Order(run, pages);
  if (order.empty())
    throw EComponentError(
        QStringLiteral("%1: the text has %2 pages; none of them is to be printed.").arg(who).arg(pages));
  QPainter painter;
  if (!painter.begin(&device)) throw EComponentError(QStringLiteral("%1 cannot print there.").arg(who));
  painter.setFont(sheet.font);
  painter.setPen(ink);
  const QFontMetricsF metrics(sheet.font, &device);
  int printed = 0;
  for (const int page : order) {
    if (run.next && !run.next(page, pages)) break;
    if (printed > 0 && !device.newPage())
      throw EComponentError(QStringLiteral("%1: the printer takes no more pages.").arg(who));
    ++printed;
    painter.drawText(sheet.all, Qt::AlignTop | Qt::AlignHCenter | Qt::TextSingleLine,
                     Filled(header, page, pages));
    painter.drawText(sheet.all, Qt::AlignBottom | Qt::AlignLeft | Qt::TextSingleLine,
                     Filled(footer, page, pages));
    if (pageNumbers)
      painter.drawText(sheet.all, Qt::AlignBottom | Qt::AlignRight,
                       QStringLiteral("%1 / %2").arg(page).arg(pages));
    QPointF at = sheet.room.topLeft();
    for (const Line& line : sheet.pages[static_cast<std::size_t>(page) - 1]) {
      const auto numberAt = sheet.columns.numbers - metrics.horizontalAdvance(line.number);
      DrawLine(painter, at + QPointF(numberAt, 0), line.number, sheet.font, sheet.columns.tab);
      DrawLine(painter, at + QPointF(sheet.columns.text, 0), line.text, sheet.font, sheet.columns.tab);
      at.ry() += sheet.line;
    }
  }
  return printed;
}
