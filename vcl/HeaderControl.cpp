#include "vcl/HeaderControl.h"

#include <algorithm>

#include "rtl/Class.h"
#include "vcl/ItemPainting.h"
#include "vcl/PropertyGroups.h"

const TClass& THeaderSection::StaticClass() {
  static const TClass cls(DescribeClass<THeaderSection>("THeaderSection", TCollectionItem::StaticClass())
                              .PublishedAll(Alignment, AutoSize, CheckBox, Checked, ImageIndex, MaxWidth,
                                            MinWidth, Text, Visible, Width)
                              .Passive("AllowClick", true)
                              .Passive("BiDiMode", TBiDiMode::bdLeftToRight)
                              .Passive("FixedWidth", false)
                              .Passive("OriginalIndex", 0)
                              .Passive("ParentBiDiMode", true)
                              .Passive("Style", THeaderSectionStyle::hsText)
                              .Alphabetical());
  return cls;
}

QString THeaderSection::DisplayName() const {
  const QString text = Get(Text);
  return text.isEmpty() ? TCollectionItem::DisplayName() : text;
}

const TClass& THeaderSections::StaticClass() {
  static const TClass cls(DescribeClass<THeaderSections>("THeaderSections", TCollection::StaticClass()));
  return cls;
}

const TClass& THeaderControl::StaticClass() {
  static const TClass cls(
      DescribeClass<THeaderControl>("THeaderControl", TWinControl::StaticClass())
          .PublishAll("Anchors", Lettering, Hints, Placement, Direction, Dragging, "BevelEdges", "BevelInner",
                      "BevelKind", "BevelOuter", "BevelWidth", "DoubleBuffered", "ParentDoubleBuffered",
                      "PopupMenu", "TabOrder", "TabStop", "Visible", Help, Styling, WheelEvents, MouseEvents,
                      DragEvents, "OnResize")
          .PublishedAll(BorderWidth, CheckBoxes, Images, Sections, Style)
          .Publish("Align", TAlign::alTop)
          .Passive("DragReorder", false)
          .Passive("FullDrag", true)
          .Passive("HotTrack", false)
          .Passive("NoSizing", false)
          .Passive("OverFlow", false)
          .Event("OnDrawSection", "TDrawSectionEvent")
          .Event("OnSectionClick", "TSectionNotifyEvent")
          .Event("OnSectionDrag", "TSectionDragEvent")
          .Event("OnSectionEndDrag")
          .Event("OnSectionResize", "TSectionNotifyEvent")
          .Event("OnSectionSeparatorDblClick", "TCustomSectionNotifyEvent")
          .Event("OnSectionTrack", "TSectionTrackEvent")
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("A row of headings above columns."),
              "pen line 1.5 brush fill box 2.5 6.5 19 6 0 path 9 6.5 9 12.5 path 15.5 6.5 15.5 12.5 pen "
              "accent 1.5 path 5 16 7 16 path 11 16 13.5 16 path 17.5 16 19.5 16"));
  return cls;
}

THeaderControl::THeaderControl(TComponent* owner) : TWinControl(owner) {
  SetAlign(TAlign::alTop);
  SetBounds(0, 0, 185, 17);
}

QRect THeaderControl::Room() const {
  const int border = std::clamp(Get(BorderWidth), 0, std::min(Width(), Height()) / 2);
  return ClientRect().adjusted(border, border, -border, -border);
}

std::vector<QRect> THeaderControl::SectionRects() const {
  const THeaderSections& sections = *Get(Sections);
  const auto limited = [](const THeaderSection& s, std::int64_t width) {
    return static_cast<int>(std::clamp<std::int64_t>(
        width, std::max(s.Get(THeaderSection::MinWidth), 0),
        std::max({s.Get(THeaderSection::MaxWidth), s.Get(THeaderSection::MinWidth), 0})));
  };
  const QRect room = Room();
  std::int64_t fixed = 0;
  int sharing = 0;
  for (int i = 0; i < sections.Count(); ++i) {
    const THeaderSection& s = sections.Section(i);
    if (!s.Get(THeaderSection::Visible)) continue;
    if (s.Get(THeaderSection::AutoSize))
      ++sharing;
    else
      fixed += limited(s, s.Get(THeaderSection::Width));
  }
  std::vector<QRect> rects;
  int left = room.left();
  for (int i = 0; i < sections.Count(); ++i) {
    const THeaderSection& s = sections.Section(i);
    int width = 0;
    if (s.Get(THeaderSection::Visible))
      width = s.Get(THeaderSection::AutoSize) ? limited(s, (room.width() - fixed) / sharing)
                                              : limited(s, s.Get(THeaderSection::Width));
    width = std::clamp(width, 0, std::max(room.right() + 1 - left, 0));
    rects.emplace_back(left, room.top(), width, room.height());
    left += width;
  }
  return rects;
}

// A flat heading is a ground with a line below and one behind it.
void THeaderControl::PaintCell(TCanvas& canvas, const QRect& rect) const {
  if (Get(Style) == THeaderStyle::hsButtons) return PaintHeaderCell(canvas, rect, PartStates(), {}, *Font());
  canvas.FillRect(rect, Color());
  canvas.FillRect({rect.left(), rect.bottom(), rect.width(), 1}, clBtnShadow);
  canvas.FillRect({rect.right(), rect.top(), 1, rect.height()}, clBtnShadow);
}

void THeaderControl::Paint(TCanvas& canvas) {
  canvas.FillRect(ClientRect(), Color());
  PaintCell(canvas, Room());
  const auto rects = SectionRects();
  const THeaderSections& sections = *Get(Sections);
  if (sections.Count() == 0 && IsDesigning())
    PaintPlainText(canvas, Room().adjusted(5, 0, -5, 0), Qt::AlignLeft, Name(), *Font(), Enabled());
  for (int i = 0; i < sections.Count(); ++i) {
    const QRect& rect = rects[static_cast<std::size_t>(i)];
    if (rect.isEmpty()) continue;
    const THeaderSection& section = sections.Section(i);
    PaintCell(canvas, rect);
    QRect text = rect.adjusted(5, 0, -5, 0);
    if (Get(CheckBoxes) && section.Get(THeaderSection::CheckBox)) {
      QRect mark(QPoint(), CheckMarkSize());
      mark.moveCenter({text.left() + mark.width() / 2, text.center().y()});
      PaintCheckMark(
          canvas, mark, PartStates(),
          section.Get(THeaderSection::Checked) ? TCheckBoxState::cbChecked : TCheckBoxState::cbUnchecked);
      text.setLeft(mark.right() + 4);
    }
    const TCustomImageList* images = Get(Images);
    if (const QImage image = images ? images->Image(section.Get(THeaderSection::ImageIndex)) : QImage();
        !image.isNull()) {
      canvas.Painter().drawImage(text.left(), rect.center().y() - (image.height() - 1) / 2, image);
      text.setLeft(text.left() + image.width() + 3);
    }
    PaintSectionText(canvas, text, section);
  }
}

void THeaderControl::PaintSectionText(TCanvas& canvas, const QRect& rect,
                                      const THeaderSection& section) const {
  PaintPlainText(canvas, rect, AlignmentFlag(section.Get(THeaderSection::Alignment)),
                 section.Get(THeaderSection::Text), *Font(), Enabled());
}
