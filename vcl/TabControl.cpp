#include "vcl/TabControl.h"

#include <algorithm>
#include <climits>

#include "rtl/Class.h"
#include "vcl/Painters.h"
#include "vcl/PropertyGroups.h"
#include "vcl/ShownText.h"

namespace {
constexpr int Border = 4;  // between the frame and the page
constexpr int Start = 2;   // before the first tab
constexpr int Arrows = 36;
}  // namespace

const TClass& TCustomTabControl::StaticClass() {
  static const TClass cls(
      DescribeClass<TCustomTabControl>("TCustomTabControl", TWinControl::StaticClass())
          .DeclaredAll(Images, MultiLine, ShowTabs, Style, TabHeight, TabPosition, TabWidth)
          .DeclaredPassive("HotTrack", false)
          .DeclaredPassive("MultiSelect", false)
          .DeclaredPassive("OwnerDraw", false)
          .DeclaredPassive("RaggedRight", false)
          .DeclaredPassive("ScrollOpposite", false)
          .DeclaredEvent("OnChange")
          .DeclaredEvent("OnChanging", "TTabChangingEvent")
          .DeclaredEvent("OnDrawTab", "TDrawTabEvent")
          .DeclaredEvent("OnGetImageIndex", "TTabGetImageEvent"));
  return cls;
}

TCustomTabControl::TCustomTabControl(TComponent* owner) : TWinControl(owner) {
  tabStop_ = true;
  SetBounds(0, 0, 289, 193);
}

bool TCustomTabControl::IsUpright() const {
  return Get(TabPosition) == TTabPosition::tpLeft || Get(TabPosition) == TTabPosition::tpRight;
}

// The tabs as if the edge were a line: how far along it each begins and ends, and in which row.
struct TCustomTabControl::TStrip {
  struct Span {
    int from = 0, length = 0, row = 0;
  };
  std::vector<Span> tabs;
  int rows = 1, thickness = 0, room = 0;
  bool cut = false;  // not all of them fit
  int beyond = 0;    // of what does not fit, before the first that is seen
};

TCustomTabControl::TStrip TCustomTabControl::Strip() const {
  TStrip strip;
  const std::vector<TTab> tabs = TabList();
  constexpr int padding = 7, most = 1000;
  const int usual = std::max(TextExtent(QStringLiteral("Wg"), *Font()).height() + padding, 20);
  strip.thickness = Get(TabHeight) > 0 ? std::min<int>(Get(TabHeight), most) : usual;
  strip.room = std::max((IsUpright() ? Height() : Width()) - Start, 0);
  int at = Start, row = 0;
  for (const TTab& tab : tabs) {
    int length = 0;
    if (tab.shown) {
      const TCustomImageList* images = Get(Images);
      const QImage image = images ? images->Image(tab.image) : QImage();
      length = Get(TabWidth) > 0 ? Get(TabWidth)
                                 : TextExtent(tab.text, *Font(), Qt::TextShowMnemonic).width() + 2 * padding +
                                       (image.isNull() ? 0 : image.width() + 4);
    }
    if (Get(MultiLine) && at > Start && at + length > strip.room) {
      at = Start;
      ++row;
    }
    strip.tabs.push_back({at, length, row});
    at += length;
  }
  strip.rows = row + 1;
  strip.cut = !Get(MultiLine) && at > strip.room;
  const int front = FrontTab(), sight = strip.room - Arrows;
  const bool any = front >= 0 && front < static_cast<int>(strip.tabs.size());
  const TStrip::Span chosen = any ? strip.tabs[static_cast<std::size_t>(front)] : TStrip::Span{};
  // The tab in front can be seen, unless somebody looks for another one.
  if (strip.cut && scrolled_ && scrolled_->front == front)
    strip.beyond = std::clamp(scrolled_->by, 0, std::max(at - sight, 0));
  else if (strip.cut && any)
    strip.beyond = std::clamp(chosen.from + chosen.length - sight, 0, std::max(chosen.from - Start, 0));
  for (TStrip::Span& span : strip.tabs) {
    // Its row is the one beside the page.
    if (any) span.row = (span.row - chosen.row - 1 + 2 * strip.rows) % strip.rows;
    span.from -= strip.beyond;
  }
  return strip;
}

std::vector<QRect> TCustomTabControl::TabRects() const {
  if (!Get(ShowTabs)) return std::vector<QRect>(TabList().size());
  const TStrip strip = Strip();
  std::vector<QRect> rects;
  for (const TStrip::Span& span : strip.tabs) {
    const int depth = span.row * strip.thickness + Start;
    const int size = strip.thickness;
    if (span.length == 0) {
      rects.emplace_back();
      continue;
    }
    switch (Get(TabPosition)) {
      case TTabPosition::tpTop:
        rects.emplace_back(span.from, depth, span.length, size);
        break;
      case TTabPosition::tpBottom:
        rects.emplace_back(span.from, Height() - depth - size, span.length, size);
        break;
      case TTabPosition::tpLeft:
        rects.emplace_back(depth, span.from, size, span.length);
        break;
      case TTabPosition::tpRight:
        rects.emplace_back(Width() - depth - size, span.from, size, span.length);
        break;
    }
  }
  return rects;
}

std::array<QRect, 2> TCustomTabControl::ArrowRects() const {
  if (!Get(ShowTabs) || !Strip().cut) return {};
  constexpr int side = Arrows / 2;
  const QRect all(0, 0, Width(), Height());
  const bool far = Get(TabPosition) == TTabPosition::tpRight || Get(TabPosition) == TTabPosition::tpBottom;
  const int across = far ? (IsUpright() ? Width() : Height()) - Start - side : Start;
  const auto arrow = [&](int fromEnd) {
    return IsUpright() ? QRect(across, Height() - fromEnd, side, side).intersected(all)
                       : QRect(Width() - fromEnd, across, side, side).intersected(all);
  };
  return {arrow(Arrows), arrow(side)};
}

int TCustomTabControl::ArrowAt(QPoint point) const {
  const auto arrows = ArrowRects();
  return arrows[0].contains(point) ? -1 : arrows[1].contains(point) ? 1 : 0;
}

// To the next tab that would be the first to be seen.
void TCustomTabControl::ScrollTabs(int by) {
  const TStrip strip = Strip();
  if (!strip.cut || by == 0) return;
  int to = by < 0 ? 0 : INT_MAX;
  for (const TStrip::Span& span : strip.tabs) {
    const int begin = span.from + strip.beyond - Start;
    if (span.length > 0 && by < 0 && begin < strip.beyond) to = std::max(to, begin);
    if (span.length > 0 && by > 0 && begin > strip.beyond) to = std::min(to, begin);
  }
  if (to == INT_MAX) return;
  scrolled_ = TScrolled{FrontTab(), to};
  // Not beyond the last one, from where the way back would begin out of sight.
  scrolled_->by = Strip().beyond;
  Invalidate();
}

int TCustomTabControl::TabAt(QPoint point) const {
  const QRect arrow = ArrowRects()[0];
  if (!arrow.isEmpty() && (IsUpright() ? point.y() >= arrow.top() : point.x() >= arrow.left())) return -1;
  const auto rects = TabRects();
  const auto hit =
      std::find_if(rects.begin(), rects.end(), [&](const QRect& r) { return r.contains(point); });
  return hit == rects.end() ? -1 : static_cast<int>(hit - rects.begin());
}

QMargins TCustomTabControl::Insets() const {
  QMargins m(Border, Border, Border, Border);
  if (Get(ShowTabs)) {
    const TStrip strip = Strip();
    // What is not there is never wider than the control.
    const int depth = std::min(strip.rows * strip.thickness, IsUpright() ? Width() : Height());
    switch (Get(TabPosition)) {
      case TTabPosition::tpTop:
        m.setTop(m.top() + depth);
        break;
      case TTabPosition::tpBottom:
        m.setBottom(m.bottom() + depth);
        break;
      case TTabPosition::tpLeft:
        m.setLeft(m.left() + depth);
        break;
      case TTabPosition::tpRight:
        m.setRight(m.right() + depth);
        break;
    }
  }
  return TWinControl::Insets() + m;
}

QRect TCustomTabControl::DisplayRect() const {
  const QMargins m = Insets();
  return {m.left(), m.top(), std::max(Width() - m.left() - m.right(), 0),
          std::max(Height() - m.top() - m.bottom(), 0)};
}

void TCustomTabControl::Paint(TCanvas& canvas) {
  static constexpr Qt::Edge edges[] = {Qt::TopEdge, Qt::BottomEdge, Qt::LeftEdge, Qt::RightEdge};
  const QRect all(0, 0, Width(), Height());
  canvas.FillRect(all, clBtnFace);
  const bool tabs = Get(Style) == TTabStyle::tsTabs;
  if (tabs)
    PaintTabPane(canvas, DisplayRect().adjusted(-Border, -Border, Border, Border).intersected(all),
                 PartStates());
  if (!Get(ShowTabs)) return;
  const TStrip strip = Strip();
  const auto list = TabList();
  const auto rects = TabRects();
  const int front = FrontTab();
  QPainter& p = canvas.Painter();
  p.save();
  if (strip.cut)
    p.setClipRect(IsUpright() ? all.adjusted(0, 0, 0, -Arrows) : all.adjusted(0, 0, -Arrows, 0),
                  Qt::IntersectClip);
  const auto paint = [&](int i) {
    const TTab& tab = list[static_cast<std::size_t>(i)];
    const QRect rect = rects[static_cast<std::size_t>(i)].intersected(all);
    if (rect.isEmpty()) return;
    TPartStates states = PartStates();
    if (i == front) states.Include(TPartState::Down);
    const TCustomImageList* images = Get(Images);
    const QImage image = images ? images->Image(tab.image) : QImage();
    if (tabs)
      PaintTab(canvas, rect, states, tab.text, *Font(), edges[static_cast<int>(Get(TabPosition))], image);
    else if (Get(Style) == TTabStyle::tsButtons || i == front)
      PaintButton(canvas, rect.adjusted(1, 1, -1, -1), states, tab.text, Font());
    else
      canvas.TextRect(rect, Qt::AlignCenter | Qt::TextShowMnemonic, tab.text, *Font(), Enabled());
  };
  for (int i = 0; i < static_cast<int>(list.size()); ++i)
    if (i != front) paint(i);
  if (front >= 0 && front < static_cast<int>(list.size())) paint(front);
  p.restore();
  const auto arrows = ArrowRects();
  if (arrows[0].isEmpty()) return;
  PaintArrowButton(canvas, arrows[0], PartStates(), IsUpright() ? Qt::UpArrow : Qt::LeftArrow);
  PaintArrowButton(canvas, arrows[1], PartStates(), IsUpright() ? Qt::DownArrow : Qt::RightArrow);
}

const TClass& TTabControl::StaticClass() {
  static const TClass cls(
      DescribeClass<TTabControl>("TTabControl", TCustomTabControl::StaticClass())
          .PublishAll(Placing, Lettering, Hints, Placement, Direction, Dragging, Windowed, Help, Styling,
                      Docking, ResizeEvents, WheelEvents, "HotTrack", "Images", "MultiLine", "MultiSelect",
                      "OwnerDraw", "RaggedRight", "ScrollOpposite", "Style", "TabHeight", "TabPosition",
                      "TabWidth", "OnChange", "OnChanging", "OnDrawTab", "OnGetImageIndex", MouseEvents,
                      FocusEvents, DragEvents)
          .PublishedAll(TabIndex, Tabs)
          .Publish("TabStop", true)
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("A surface with tabs to choose from."),
              "pen line 1.5 brush fill shape 3 9 21 9 21 19.5 3 19.5 path 10 9 10 5.5 15.5 5.5 15.5 9 pen "
              "accent 1.8 brush none path 3 9 3 4.5 10 4.5 10 9"));
  return cls;
}

int TTabControl::FrontTab() const {
  const int index = Get(TabIndex);
  return index < Get(Tabs)->Count() ? index : -1;
}

std::vector<TCustomTabControl::TTab> TTabControl::TabList() const {
  std::vector<TTab> tabs;
  int i = 0;
  for (const QString& line : Get(Tabs)->Lines()) tabs.push_back({line, i++, true});
  return tabs;
}
