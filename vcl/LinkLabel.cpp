#include "vcl/LinkLabel.h"

#include "vcl/PropertyGroups.h"

const TClass& TCustomLinkLabel::StaticClass() {
  static const TClass cls(
      DescribeClass<TCustomLinkLabel>("TCustomLinkLabel", TWinControl::StaticClass()).Declared(Alignment));
  return cls;
}

TCustomLinkLabel::TCustomLinkLabel(TComponent* owner) : TWinControl(owner) {
  captionFollowsName_ = true;
  autoSize_ = true;
  SetBounds(0, 0, 53, 17);
}

std::vector<TCustomLinkLabel::Piece> TCustomLinkLabel::Pieces() const {
  std::vector<Piece> pieces;
  const QString text = Caption();
  bool link = false;
  for (qsizetype at = 0; at < text.size();) {
    const qsizetype tag = text.indexOf(u'<', at), end = tag < 0 ? -1 : text.indexOf(u'>', tag);
    const qsizetype upTo = end < 0 ? text.size() : tag;
    if (upTo > at) pieces.push_back({text.mid(at, upTo - at), link});
    if (end < 0) break;
    const QStringView word = QStringView(text).mid(tag + 1, end - tag - 1);
    if (word.compare(u"/a", Qt::CaseInsensitive) == 0)
      link = false;
    else if (word.startsWith(u"a ", Qt::CaseInsensitive) || word.compare(u"a", Qt::CaseInsensitive) == 0)
      link = true;
    else
      pieces.push_back({text.mid(tag, end - tag + 1), link});  // no link: it stands as it is
    at = end + 1;
  }
  return pieces;
}

QSize TCustomLinkLabel::AutoSizeHint() const {
  QSize size(0, TextExtent(QStringLiteral("Wg"), *Font()).height());
  for (const Piece& piece : Pieces()) {
    const QSize text = TextExtent(piece.text, *Font(), Qt::TextShowMnemonic);
    size = QSize(size.width() + text.width(), std::max(size.height(), text.height()));
  }
  return size + QSize(0, 4);
}

void TCustomLinkLabel::Paint(TCanvas& canvas) {
  if (!ParentColor()) canvas.FillRect(ClientRect(), Color());
  TFont linked;
  linked.Assign(Font());
  linked.SetColor(SysColor(26));  // the colour of links
  const int width = AutoSizeHint().width(), room = std::max(Width() - width, 0);
  int x = Get(Alignment) == TAlignment::taLeftJustify ? 0
          : Get(Alignment) == TAlignment::taCenter    ? room / 2
                                                      : room;
  for (const Piece& piece : Pieces()) {
    const int advance = TextExtent(piece.text, *Font(), Qt::TextShowMnemonic).width();
    const QRect place(x, 0, advance + 1, Height());
    canvas.TextRect(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, piece.text,
                    piece.link ? linked : *Font(), Enabled());
    if (piece.link) {
      const int under = Height() / 2 + TextExtent(piece.text, *Font(), Qt::TextShowMnemonic).height() / 2 - 2;
      canvas.FillRect(QRect(x, under, advance, 1), Enabled() ? SysColor(26) : clGrayText);
    }
    x += advance;
  }
}

const TClass& TLinkLabel::StaticClass() {
  static const TClass cls(
      DescribeClass<TLinkLabel>("TLinkLabel", TCustomLinkLabel::StaticClass())
          .PublishAll(Placing, Look, ParentLook, Hints, Placement, Direction, Dragging, Bevels, Windowed,
                      Help, Styling, WheelEvents, "Alignment", "Caption", MouseEvents, KeyEvents, FocusEvents,
                      DragEvents)
          .Passive("UseVisualStyle", false)
          .Publish("AutoSize", true)
          .Publish("TabStop")
          .Event("OnLinkClick", "TSysLinkEvent")
          .Alphabetical()
          .ClassDoc(QStringLiteral("A text with links in it."),
                    "pen line 1.5 path 4 8 20 8 path 4 17 9 17 pen accent 2 path 11 16 20 16 path 11 19 20 "
                    "19"));
  return cls;
}
