#include "library/components/EditControlPrintTask.h"

#include <QPainter>
#include <QPdfWriter>
#include <QTextLayout>
#include <QtPrintSupport/QPrinter>

#include "rtl/Exceptions.h"
#include "vcl/Memo.h"

const TClass& TVRXEditControlPrintTask::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXEditControlPrintTask>("TVRXEditControlPrintTask", TComponent::StaticClass())
          .Published(EditControl)
          .Doc(QStringLiteral("The edit whose text is printed."))
          .Published("Font", &TVRXEditControlPrintTask::Font, &TVRXEditControlPrintTask::SetFont)
          .Doc(QStringLiteral("The font of the pages, unless they have the edit's."))
          .Published(FooterText)
          .Doc(QStringLiteral("A line at the foot of each page."))
          .Published(HeaderText)
          .Doc(QStringLiteral("A line at the head of each page."))
          .Published(LineNumbers)
          .Doc(QStringLiteral("The number of each line in front of it."))
          .Published(MarginBottom)
          .Doc(QStringLiteral("Millimetres that stay free at the foot of the page."))
          .Published(MarginLeft)
          .Doc(QStringLiteral("Millimetres that stay free at the left edge."))
          .Published(MarginRight)
          .Doc(QStringLiteral("Millimetres that stay free at the right edge."))
          .Published(MarginTop)
          .Doc(QStringLiteral("Millimetres that stay free at the head of the page."))
          .Published(Orientation)
          .Doc(QStringLiteral("Upright pages, or pages across."))
          .Published(ShowPageNumbers)
          .Doc(QStringLiteral("The number of the page at its foot."))
          .Published(Title)
          .Doc(QStringLiteral("The name of the document, as print queues show it."))
          .Published(UseControlFont)
          .Doc(QStringLiteral("Prints in the edit's own font."))
          .Published(WordWrap)
          .Doc(QStringLiteral("Goes on in a new line where one is full; else it is cut off."))
          .Event("OnAfterPrint")
          .Event("OnBeforePrint")
          .ClassDoc(
              QStringLiteral("Prints the text of an edit."),
              "pen line 1.5 brush fill box 6.5 3 11 6 0 box 3 8.5 18 8.5 2 box 6.5 13.5 11 7.5 0 pen accent "
              "1.8 path 9 16.2 15 16.2 path 9 18.8 13 18.8"));
  return cls;
}

TVRXEditControlPrintTask::TVRXEditControlPrintTask(TComponent* owner)
    : TComponent(owner), font_(std::make_unique<TFont>(this)) {}

const TFont& TVRXEditControlPrintTask::PrintFont() const {
  const TCustomEdit* edit = Get(EditControl);
  return edit && Get(UseControlFont) ? *edit->Font() : *font_;
}

QStringList TVRXEditControlPrintTask::Lines() const {
  const TCustomEdit* edit = Get(EditControl);
  if (!edit) return {};
  if (const auto* memo = As<TCustomMemo>(edit)) return memo->Get(TCustomMemo::Lines)->Lines();
  QString text = edit->Text();
  if (edit->Get(TCustomEdit::EchoMode) == TEchoMode::emNone) text.clear();
  if (edit->Get(TCustomEdit::PasswordChar) != TPasswordChar{} ||
      edit->Get(TCustomEdit::EchoMode) == TEchoMode::emPassword)
    text.fill(u'*');
  return text.split(u'\n');
}

std::vector<QStringList> TVRXEditControlPrintTask::Pages(const QFont& font, QPaintDevice* device,
                                                         QSizeF room) const {
  const QFontMetricsF metrics(font, device);
  const auto most = static_cast<qsizetype>(std::max(1.0, std::floor(room.height() / metrics.lineSpacing())));
  std::vector<QStringList> pages(1);
  const auto add = [&](const QString& line) {
    if (pages.back().size() >= most) pages.emplace_back();
    pages.back() << line;
  };
  int number = 0;
  for (QString line : Lines()) {
    if (Get(LineNumbers)) line.prepend(QStringLiteral("%1  ").arg(number + 1, 4));
    ++number;
    line.replace(u'\t', QStringLiteral("    "));
    QTextLayout layout(line, font, device);
    layout.beginLayout();
    QTextLine piece = layout.createLine();
    if (!piece.isValid()) add(line);
    for (; piece.isValid(); piece = layout.createLine()) {
      piece.setLineWidth(std::max(room.width(), 1.0));
      add(line.mid(piece.textStart(), piece.textLength()));
      if (!Get(WordWrap)) break;
    }
    layout.endLayout();
  }
  return pages;
}

int TVRXEditControlPrintTask::Print(QPagedPaintDevice& device) const {
  if (!Get(EditControl)) throw EComponentError(QStringLiteral("%1 has no edit to print.").arg(Name()));
  const auto margin = [](int v) { return std::clamp(v, 0, 150) * 1.0; };
  const bool upright = Get(Orientation) == TVRXPrintOrientation::poPortrait;
  device.setPageOrientation(upright ? QPageLayout::Portrait : QPageLayout::Landscape);
  device.setPageMargins(
      {margin(Get(MarginLeft)), margin(Get(MarginTop)), margin(Get(MarginRight)), margin(Get(MarginBottom))},
      QPageLayout::Millimeter);
  QPainter painter;
  if (!painter.begin(&device)) throw EComponentError(QStringLiteral("%1 cannot print there.").arg(Name()));
  // Letters are as large on paper as on a screen of 96 dpi.
  QFont font = ToQFont(PrintFont());
  constexpr double inch = 72, screen = 96;
  if (font.pixelSize() > 0) font.setPointSizeF(font.pixelSize() * inch / screen);
  painter.setFont(font);
  const double line = QFontMetricsF(font, &device).lineSpacing();
  QRectF room(0, 0, device.width(), device.height());
  const QRectF all = room;
  if (!Get(HeaderText).isEmpty()) room.setTop(room.top() + 2 * line);
  if (!Get(FooterText).isEmpty() || Get(ShowPageNumbers)) room.setBottom(room.bottom() - 2 * line);
  const auto pages = Pages(font, &device, room.size());
  for (std::size_t i = 0; i < pages.size(); ++i) {
    if (i > 0) device.newPage();
    painter.drawText(all, Qt::AlignTop | Qt::AlignHCenter | Qt::TextSingleLine, Get(HeaderText));
    painter.drawText(all, Qt::AlignBottom | Qt::AlignLeft | Qt::TextSingleLine, Get(FooterText));
    if (Get(ShowPageNumbers))
      painter.drawText(all, Qt::AlignBottom | Qt::AlignRight,
                       QStringLiteral("%1 / %2").arg(i + 1).arg(pages.size()));
    for (qsizetype k = 0; k < pages[i].size(); ++k)
      painter.drawText(QRectF(room.left(), room.top() + static_cast<double>(k) * line, room.width(), line),
                       Qt::AlignLeft | Qt::TextSingleLine, pages[i][k]);
  }
  return static_cast<int>(pages.size());
}

int TVRXEditControlPrintTask::PrintToPdf(QIODevice& device) const {
  QPdfWriter writer(&device);
  writer.setTitle(Get(Title));
  return Print(writer);
}

int TVRXEditControlPrintTask::PrintToPrinter() const {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(Get(Title));
  return Print(printer);
}
