#include "library/components/PrintedText.h"

TClassBuilder VRXWithPrintedText(TClassBuilder builder, const QString& fontDoc) {
  using P = TVRXPrintedText;
  return std::move(builder)
      .Published("Font", &P::Font, &P::SetFont)
      .Doc(fontDoc)
      .Published(P::FooterText)
      .Doc(QStringLiteral(
          "A line at the foot of each page; {page}, {pages}, {title}, {date} and {time} are filled in."))
      .Published(P::HeaderText)
      .Doc(QStringLiteral("A line at the head of each page, filled in like that at the foot."))
      .Published(P::LineNumbers)
      .Doc(QStringLiteral("The number of each line in front of it."))
      .Published(P::MarginBottom)
      .Doc(QStringLiteral("Millimetres that stay free at the foot of the page."))
      .Published(P::MarginLeft)
      .Doc(QStringLiteral("Millimetres that stay free at the left edge."))
      .Published(P::MarginRight)
      .Doc(QStringLiteral("Millimetres that stay free at the right edge."))
      .Published(P::MarginTop)
      .Doc(QStringLiteral("Millimetres that stay free at the head of the page."))
      .Published(P::Orientation)
      .Doc(QStringLiteral("Upright pages, or pages across."))
      .Published(P::ShowPageNumbers)
      .Doc(QStringLiteral("The number of the page at its foot."))
      .Published(P::Title)
      .Doc(QStringLiteral("The name of the document, as print queues show it."))
      .Published(P::WordWrap)
      .Doc(QStringLiteral("Goes on in a new line where one is full; else it is cut off."));
}

TVRXTextPages TVRXPrintedText::PagesOf(const QStringList& lines, const TFont& font) const {
  TVRXTextPages pages{
      .lines = lines,
      .header = Get(HeaderText),
      .footer = Get(FooterText),
      .title = Get(Title),
      .lineNumbers = Get(LineNumbers),
      .pageNumbers = Get(ShowPageNumbers),
      .wordWrap = Get(WordWrap),
      .margins = VRXTextMargins(Get(MarginLeft), Get(MarginTop), Get(MarginRight), Get(MarginBottom)),
      .orientation = Get(Orientation)};
  pages.SetFont(font);
  return pages;
}
