#include "library/controls/HTMLListBox.h"

#include "vcl/ItemPainting.h"
#include "vcl/PropertyGroups.h"

namespace {
constexpr int Side = 3, Bar = 17, LowestRow = 4, HighestRow = 1'000'000;

// What all three publish.
constexpr const char* ListProperties[] = {
    "AutoComplete",     "AutoCompleteDelay", "AutoItemHeight", "BorderStyle",
    "ClickOnSelChange", "ExtendedSelect",    "Images",         "IntegralHeight",
    "ItemHeight",       "ItemIndex",         "Items",          "MultiSelect",
    "Sorted",           "TopIndex",          "WordWrap"};
constexpr const char* ListEvents[] = {"OnLinkClick", "OnSelectionChange"};

TClassBuilder&& Publishing(TClassBuilder&& list) {
  return std::move(list)
      .PublishAll(Placing, Lettering, Hints, Placement, Direction, Dragging, Bevels, Windowed, Help, Input,
                  Styling, WheelEvents, ListProperties, ListEvents, MouseEvents, KeyEvents, FocusEvents,
                  DragEvents)
      .Publish("Color", clWindow)
      .Publish("ParentColor", false)
      .Publish("TabStop", true);
}
}  // namespace

const TClass& TVRXCustomHTMLListBox::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXCustomHTMLListBox>("TVRXCustomHTMLListBox", TCustomListBox::StaticClass())
          .Declared(AutoItemHeight)
          .Doc(QStringLiteral("Whether each row is as high as its markup."))
          .Declared(Images)
          .Doc(QStringLiteral("The pictures that <img index=...> shows."))
          .Declared(WordWrap)
          .Doc(QStringLiteral("Whether long texts go on in the next line."))
          .DeclaredEvent("OnLinkClick", "TVRXHTMLLinkEvent"));
  return cls;
}

QStringList TVRXCustomHTMLListBox::Shown() const {
  QStringList items = Get(Items)->Lines();
  if (Get(Sorted)) items.sort(Qt::CaseInsensitive);
  return items;
}

html::Setup TVRXCustomHTMLListBox::SetupOf(int width, bool selected) const {
  html::Setup setup = html::SetupFor(*Font(), Enabled(), width, Get(Images));
  setup.wrap = Get(WordWrap);
  if (selected) {
    setup.color = ToQColor(SelectedLetters());
    setup.ground = ToQColor(SelectedGround());
  }
  return setup;
}

QRect TVRXCustomHTMLListBox::Inside() const {
  return Get(BorderStyle) == TBorderStyle::bsSingle ? ClientRect().adjusted(2, 2, -2, -2) : ClientRect();
}

int TVRXCustomHTMLListBox::RowHeight(const QString& item, int width) const {
  const int line = TextExtent(QStringLiteral("Wg"), *Font()).height(), around = 2 * Spacing();
  if (!Get(AutoItemHeight))
    return std::clamp(Get(ItemHeight) > 0 ? Get(ItemHeight) : line + around, LowestRow, HighestRow);
  const int height = html::TextOf(item)->Laid(SetupOf(width)).Size().height();
  return std::clamp(std::max(height, line) + around, LowestRow, HighestRow);
}

QRect TVRXCustomHTMLListBox::TextOfRow(const QRect& row) const {
  return row.adjusted(Side, Spacing(), -Side, -Spacing());
}

TVRXCustomHTMLListBox::Arrangement TVRXCustomHTMLListBox::ArrangedIn(const QStringList& items,
                                                                     const QRect& room) const {
  Arrangement all;
  int y = room.top();
  for (int i = std::max(Get(TopIndex), 0); i < items.size() && y <= room.bottom(); ++i) {
    const QRect row(room.left(), y, room.width(), RowHeight(items[i], TextOfRow(room).width()));
    y += row.height();
    all.whole += y <= room.bottom() + 1;
    all.rows.push_back({i, row});
  }
  all.scrolls = all.whole < items.size();
  return all;
}

// The bar takes room from the rows. That they are too many for the height can mostly be told without setting
// any of them.
TVRXCustomHTMLListBox::Arrangement TVRXCustomHTMLListBox::Arranged(const QStringList& items) const {
  const QRect room = BelowTitle(Inside());
  if (room.width() <= Bar || items.isEmpty()) return ArrangedIn(items, room);
  if (items.size() <= room.height() / LowestRow)
    if (const Arrangement all = ArrangedIn(items, room); !all.scrolls) return all;
  Arrangement all = ArrangedIn(items, room.adjusted(0, 0, -Bar, 0));
  all.scrolls = true;
  return all;
}

// While a form is designed, a list that says nothing has its name there.
void TVRXCustomHTMLListBox::PaintNothing(TCanvas& canvas, const QRect& room) const {
  const QString words = EmptyWords();
  const QRect text = TextOfRow(room);
  html::Draw(canvas, text, Qt::AlignTop, words.isEmpty() && IsDesigning() ? Name().toHtmlEscaped() : words,
             SetupOf(text.width()), Get(Images));
}

void TVRXCustomHTMLListBox::Paint(TCanvas& canvas) {
  if (Get(BorderStyle) == TBorderStyle::bsSingle) PaintListFrame(canvas, ClientRect(), PartStates());
  const QRect inside = Inside(), room = BelowTitle(inside);
  canvas.FillRect(inside, Color());
  QPainter& painter = canvas.Painter();
  painter.save();
  painter.setClipRect(inside, Qt::IntersectClip);
  PaintTitle(canvas, inside);
  painter.setClipRect(room, Qt::IntersectClip);
  const QStringList items = Shown();
  if (items.isEmpty()) PaintNothing(canvas, room);

  const Arrangement all = Arranged(items);
  const QRectF seen = painter.clipBoundingRect();
  for (const auto& [index, rect] : all.rows) {
    if (!seen.intersects(QRectF(rect))) continue;
    const bool selected = index == Get(ItemIndex) && Enabled();
    canvas.FillRect(rect, selected ? SelectedGround() : RowGround(index));
    const QRect text = TextOfRow(rect);
    html::Draw(canvas, text, Qt::AlignVCenter, items[index], SetupOf(text.width(), selected), Get(Images));
    PaintRowEnd(canvas, rect);
  }
  if (all.scrolls)
    PaintScrollBar(canvas, QRect(room.right() - Bar + 1, room.top(), Bar, room.height()), PartStates(),
                   {.Max = static_cast<int>(items.size()),
                    .Position = std::clamp(Get(TopIndex), 0, static_cast<int>(items.size())),
                    .Page = std::max(all.whole, 1)},
                   Qt::Vertical);
  painter.restore();
}

QString TVRXCustomHTMLListBox::LinkAt(QPoint point) const {
  if (!BelowTitle(Inside()).contains(point)) return {};
  const QStringList items = Shown();
  for (const auto& [index, rect] : Arranged(items).rows)
    if (rect.contains(point)) {
      const QRect text = TextOfRow(rect);
      return html::LinkAt(text, Qt::AlignVCenter, items[index], SetupOf(text.width()), point);
    }
  return {};
}

const TClass& TVRXHTMLListBox::StaticClass() {
  static const TClass cls(
      Publishing(DescribeClass<TVRXHTMLListBox>("TVRXHTMLListBox", TVRXCustomHTMLListBox::StaticClass()))
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("A list of texts with markup: bold, colors, pictures, links."),
              "pen line 1.5 brush fill box 3.5 3.5 17 17 2 pen accent 2.4 path 6.5 8 11 8 pen line 1.5 path "
              "13 8 17 8 path 6.5 12 17 12 pen accent 1.5 path 6.5 16 13 16 path 6.5 18 13 18"));
  return cls;
}

const TClass& TVRXHTMLListBoxExt::StaticClass() {
  static const TClass cls(
      Publishing(
          DescribeClass<TVRXHTMLListBoxExt>("TVRXHTMLListBoxExt", TVRXCustomHTMLListBox::StaticClass()))
          .Published(AlternateColor)
          .Doc(QStringLiteral("Ground of every other row; clNone for that of the list."))
          .Published(LineColor)
          .Doc(QStringLiteral("Color of the lines between rows."))
          .Published(RowSpacing)
          .Doc(QStringLiteral("Pixels above and below the text of a row."))
          .Published(SelectedColor)
          .Doc(QStringLiteral("Ground of the selected row."))
          .Published(SelectedTextColor)
          .Doc(QStringLiteral(
              "Letters of the selected row, where they have no color that can be read there."))
          .Published(ShowLines)
          .Doc(QStringLiteral("Whether lines stand between the rows."))
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("A list of texts with markup, with lines and grounds that tell rows apart."),
              "pen line 1.5 brush fill box 3.5 3.5 17 17 2 pen none brush accent box 4.5 9 15 5.5 0 pen line "
              "1.5 path 6.5 6.5 14 6.5 pen accent 1.5 path 6.5 17.5 15 17.5"));
  return cls;
}

void TVRXHTMLListBoxExt::PaintRowEnd(TCanvas& canvas, const QRect& row) const {
  if (Get(ShowLines)) canvas.FillRect(QRect(row.left(), row.bottom(), row.width(), 1), Get(LineColor));
}

const TClass& TVRXHTMLExtListBox::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXHTMLExtListBox>("TVRXHTMLExtListBox", TVRXHTMLListBoxExt::StaticClass())
          .Published(EmptyText)
          .Doc(QStringLiteral("Markup that stands in the list while it has no rows."))
          .Published(Title)
          .Doc(QStringLiteral("Markup that stands above the rows."))
          .Published(TitleAlignment)
          .Doc(QStringLiteral("Where the title stands."))
          .Published(TitleColor)
          .Doc(QStringLiteral("Ground of the title."))
          .ClassDoc(
              QStringLiteral("A list of texts with markup below a title, with a text for when it is empty."),
              "pen line 1.5 brush fill box 3.5 3.5 17 17 2 pen none brush accent box 4.3 4.3 15.4 4.4 1 pen "
              "line "
              "1.5 path 6.5 12 17 12 path 6.5 16 12 16"));
  return cls;
}

html::Setup TVRXHTMLExtListBox::TitleSetup(int width) const {
  html::Setup setup = SetupOf(width);
  constexpr std::pair<TAlignment, Qt::AlignmentFlag> sides[] = {{TAlignment::taLeftJustify, Qt::AlignLeft},
                                                                {TAlignment::taCenter, Qt::AlignHCenter},
                                                                {TAlignment::taRightJustify, Qt::AlignRight}};
  for (const auto& [side, flag] : sides)
    if (Get(TitleAlignment) == side) setup.alignment = flag;
  return setup;
}

QRect TVRXHTMLExtListBox::TitlePlace(const QRect& inside) const {
  const QString title = Get(Title);
  if (title.isEmpty()) return QRect(inside.topLeft(), QSize(inside.width(), 0));
  const int height = html::TextOf(title)->Laid(TitleSetup(inside.width() - 2 * Side)).Size().height();
  return QRect(inside.left(), inside.top(), inside.width(), std::min(height + 6, inside.height()));
}

QRect TVRXHTMLExtListBox::BelowTitle(const QRect& inside) const {
  return inside.adjusted(0, TitlePlace(inside).height(), 0, 0);
}

void TVRXHTMLExtListBox::PaintTitle(TCanvas& canvas, const QRect& inside) const {
  const QRect place = TitlePlace(inside);
  if (place.height() <= 0) return;
  canvas.FillRect(place, Get(TitleColor));
  canvas.FillRect(QRect(place.left(), place.bottom(), place.width(), 1), Get(LineColor));
  const QRect text = place.adjusted(Side, 2, -Side, -3);
  html::Draw(canvas, text, Qt::AlignVCenter, Get(Title), TitleSetup(text.width()), Get(Images));
}

QString TVRXHTMLExtListBox::LinkAt(QPoint point) const {
  const QRect inside = Inside(), title = TitlePlace(inside);
  if (title.contains(point)) {
    const QRect text = title.adjusted(Side, 2, -Side, -3);
    return html::LinkAt(text, Qt::AlignVCenter, Get(Title), TitleSetup(text.width()), point);
  }
  return TVRXHTMLListBoxExt::LinkAt(point);
}
