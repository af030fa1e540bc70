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
QString WithoutTabs(const QString& line, int width) {
  QString text;
  for (const QChar c : line) {
    if (c != u'\t')
      text += c;
    else
      do text += u' ';
      while (width > 0 && text.size() % width != 0);
  }
  return text;
}
}  // namespace

std::vector<QStringList> TVRXTextPages::Break(const QFont& with, QPaintDevice* device, QSizeF room) const {
  const double height = QFontMetricsF(with, device).lineSpacing();
  const auto most = static_cast<qsizetype>(std::max(1.0, std::floor(room.height() / height)));
  std::vector<QStringList> pages(1);
  const auto add = [&](const QString& line) {
    if (pages.back().size() >= most) pages.emplace_back();
    pages.back() << line;
  };
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  const auto addWrapped = [&](const QString& line) {
    QTextLayout layout(line, with, device);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine piece = layout.createLine();
    if (!piece.isValid()) add(line);
    for (; piece.isValid(); piece = layout.createLine()) {
      piece.setLineWidth(std::max(room.width(), 1.0));
      add(line.mid(piece.textStart(), piece.textLength()));
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
      QString line = WithoutTabs(parts[i], tabWidth);
      if (lineNumbers && i == 0) line.prepend(QStringLiteral("%1  ").arg(number + 1, 4));
      addWrapped(line);
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
  std::vector<QStringList> pages{};
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
    const QStringList& text = sheet.pages[static_cast<std::size_t>(page) - 1];
    for (qsizetype k = 0; k < text.size(); ++k)
      painter.drawText(QRectF(sheet.room.left(), sheet.room.top() + static_cast<double>(k) * sheet.line,
                              sheet.room.width(), sheet.line),
                       Qt::AlignLeft | Qt::TextSingleLine, text[k]);
  }
  return printed;
}
