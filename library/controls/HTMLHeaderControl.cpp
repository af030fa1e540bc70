#include "library/controls/HTMLHeaderControl.h"

#include "library/html/HtmlText.h"

const TClass& TVRXHTMLHeaderControl::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXHTMLHeaderControl>("TVRXHTMLHeaderControl", THeaderControl::StaticClass())
          .Event("OnLinkClick", "TVRXHTMLLinkEvent")
          .Alphabetical()
          .ClassDoc(QStringLiteral("A row of headings above columns, their texts with markup."),
                    "pen line 1.5 brush fill box 2.5 6.5 19 6 0 path 9 6.5 9 12.5 path 15.5 6.5 15.5 12.5 "
                    "pen accent 2.4 "
                    "path 4.5 9.5 7 9.5 pen accent 1.5 path 11 16 13.5 16 path 17.5 16 19.5 16 pen line 1.5 "
                    "path 5 16 7 "
                    "16"));
  return cls;
}

void TVRXHTMLHeaderControl::PaintSectionText(TCanvas& canvas, const QRect& rect,
                                             const THeaderSection& section) const {
  html::Setup setup = html::SetupFor(*Font(), Enabled(), rect.width(), Get(Images));
  setup.wrap = false;
  setup.alignment = Qt::Alignment(AlignmentFlag(section.Get(THeaderSection::Alignment)));
  html::Draw(canvas, rect, Qt::AlignVCenter, section.Get(THeaderSection::Text), setup, Get(Images));
}
