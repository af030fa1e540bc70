#include "library/controls/ButtonBar.h"

#include "rtl/Class.h"
#include "vcl/AsGiven.h"
#include "vcl/PropertyGroups.h"

const TClass& TVRXButtonBar::StaticClass() {
  static const TTypeInfo size = OrdinalType("TVRXBarSize", 0, 5000);
  static const TTypeInfo steps = OrdinalType("TVRXBarSteps", 1, 1000);
  static const TClass cls(
      DescribeClass<TVRXButtonBar>("TVRXButtonBar", TWinControl::StaticClass())
          .PublishAll(Placing)
          .Published(BevelPart)
          .Doc(QStringLiteral("The edge around the bar."))
          .PublishAll("Color", "Enabled")
          .Published(FillPart)
          .Doc(QStringLiteral("What the bar is filled with."))
          .Published(FillSelectedItem)
          .Doc(QStringLiteral("Whether the selected item has the ground of selections."))
          .Published(FixedSectionLeftBorder)
          .Type(size)
          .Doc(QStringLiteral("What headings keep free at their left."))
          .Published(FixedSectionRightBorder)
          .Type(size)
          .Doc(QStringLiteral("What headings keep free at their right."))
          .Published(FocusStyle)
          .Doc(QStringLiteral("The edge of the selected item."))
          .PublishAll("Font")
          .Published(Font3DPart)
          .Doc(QStringLiteral("Light and shadow of the items' letters."))
          .PublishAll(Hints)
          .Passive<QString>("IniKey")
          .Passive("IniSaveOptions", TVRXIniSaveOptions{TVRXIniSaveOption::isoSection})
          .Doc(QStringLiteral("What SaveAndRestore keeps."))
          .Passive<QString>("IniSection")
          .Published(ItemIndex)
          .Doc(QStringLiteral("The selected item of the open section; -1 is none."))
          .Published(LargeImageList)
          .Doc(QStringLiteral("The items' large pictures."))
          .Published(LargeItemHeight)
          .Type(size)
          .Doc(QStringLiteral("How high items with large pictures are; wide in a horizontal bar."))
          .Published(Orientation)
          .Doc(QStringLiteral("Whether the sections stand below or beside each other."))
          .PublishAll(ParentLook, "PopupMenu")
          .Passive("SaveAndRestore", false)
          .Doc(QStringLiteral("Keeps the person's settings of the bar until the program runs again."))
          .Published(ScrollDelay)
          .Doc(QStringLiteral("Milliseconds between two steps of scrolling while the button is held."))
          .Published(ScrollStep)
          .Type(steps)
          .Doc(QStringLiteral("How many items one step of scrolling is."))
          .Published(SectionBtnSize)
          .Type(size)
          .Doc(QStringLiteral("How high headings are; wide in a horizontal bar."))
          .Published(SectionIndex)
          .Doc(QStringLiteral("The section that is open."))
          .Published(SectionsPart)
          .Published(SingleSectionMode)
          .Doc(QStringLiteral("Shows the heading of the open section only."))
          .Published(SmallImageList)
          .Doc(QStringLiteral("The items' small pictures, and those of headings."))
          .Published(SmallItemHeight)
          .Type(size)
          .Doc(QStringLiteral("How high items with small pictures are; wide in a horizontal bar."))
          .Passive("SoftScroll", true)
          .Doc(QStringLiteral("Opens sections in a movement."))
          .PublishAll("TabOrder")
          .Publish("TabStop", true)
          .Published(Transparent)
          .Doc(QStringLiteral("Lets what is behind the bar show through."))
          .Published(TransparentButtons)
          .Doc(QStringLiteral("Headings have no ground of their own."))
          .PublishAll("Visible", MouseEvents, KeyEvents, FocusEvents)
          .Event("OnItemClick", "TVRXBarItemEvent")
          .Event("OnSectionChange")
          .ClassDoc(
              QStringLiteral("A bar of sections that open one at a time, with pictured items in them."),
              "pen line 1.5 brush fill box 4.5 2.5 15 19 1 path 4.5 6.5 19.5 6.5 path 4.5 17.5 19.5 17.5 "
              "pen none brush accent box 10 8.5 4 3.5 0.8 brush line box 8.5 13.5 7 1.5 0.5"));
  return cls;
}

TVRXButtonBar::TVRXButtonBar(TComponent* owner) : TWinControl(owner) {
  tabStop_ = true;
  SetBounds(0, 0, 120, 240);
}

int TVRXButtonBar::CurrentIndex() const { return std::clamp(Get(SectionIndex), -1, SectionCount() - 1); }
TVRXBarSection* TVRXButtonBar::Current() const {
  const int index = CurrentIndex();
  return index < 0 ? nullptr : &Sections()->At(index);
}

TVRXBarSection* TVRXButtonBar::AddNamedSection(const QString& caption) {
  const TUpdateLock lock(*this);
  auto* section = static_cast<TVRXBarSection*>(Sections()->Add());
  section->Set(TVRXBarSection::Caption, caption);
  Open(SectionCount() - 1);
  return section;
}
TVRXBarItem* TVRXButtonBar::AddNamedItem(const QString& caption) {
  TVRXBarSection* section = Current();
  if (!section) return nullptr;
  const TUpdateLock lock(*this);
  auto* item = static_cast<TVRXBarItem*>(section->Items()->Add());
  item->Set(TVRXBarItem::Caption, caption);
  Set(ItemIndex, section->ItemCount() - 1);
  ScrollIntoView(section->ItemCount() - 1);
  return item;
}
void TVRXButtonBar::AddSection() { AddNamedSection(QStringLiteral("Section %1").arg(SectionCount())); }
void TVRXButtonBar::AddItem() {
  if (const TVRXBarSection* section = Current())
    AddNamedItem(QStringLiteral("Item %1").arg(section->ItemCount()));
}

void TVRXButtonBar::RenSection(int index, const QString& caption) {
  if (index < 0) index = CurrentIndex();
  if (index >= 0 && index < SectionCount()) Sections()->At(index).Set(TVRXBarSection::Caption, caption);
}
void TVRXButtonBar::RenItem(int index, const QString& caption) {
  const TVRXBarSection* section = Current();
  if (index < 0) index = Get(ItemIndex);
  if (section && index >= 0 && index < section->ItemCount())
    section->Items()->At(index).Set(TVRXBarItem::Caption, caption);
}
void TVRXButtonBar::DelSection(int index) {
  if (index < 0) index = CurrentIndex();
  if (index < 0 || index >= SectionCount()) return;
  const TUpdateLock lock(*this);
  const int current = CurrentIndex();
  Sections()->Delete(index);
  if (index < current || current == SectionCount()) Set(SectionIndex, std::max(current - 1, 0));
  if (index == current) Set(ItemIndex, -1);
}
void TVRXButtonBar::DelItem(int index) {
  const TVRXBarSection* section = Current();
  if (index < 0) index = Get(ItemIndex);
  if (!section || index < 0 || index >= section->ItemCount()) return;
  const TUpdateLock lock(*this);
  section->Items()->Delete(index);
  const int selected = Get(ItemIndex);
  if (index < selected || selected == section->ItemCount()) Set(ItemIndex, selected - 1);
}

void TVRXButtonBar::MoveSection(int from, int to) {
  const TVRXBarSection* open = Current();
  if (from == to || std::min(from, to) < 0 || std::max(from, to) >= SectionCount()) return;
  const TUpdateLock lock(*this);
  Sections()->Move(from, to);
  if (Current() != open) Set(SectionIndex, open->Index());
}
void TVRXButtonBar::MoveItem(int from, int to) {
  const TVRXBarSection* section = Current();
  if (!section || from == to || std::min(from, to) < 0 || std::max(from, to) >= section->ItemCount()) return;
  const int selected = Get(ItemIndex);
  const bool any = selected >= 0 && selected < section->ItemCount();
  const TVRXBarItem* item = any ? &section->Items()->At(selected) : nullptr;
  const TUpdateLock lock(*this);
  section->Items()->Move(from, to);
  if (item) Set(ItemIndex, item->Index());
}

void TVRXButtonBar::Open(int section) {
  if (section < 0 || section >= SectionCount() || section == CurrentIndex()) return;
  const TUpdateLock lock(*this);
  Set(SectionIndex, section);
  Set(ItemIndex, -1);
  topItem_ = 0;
}

void TVRXButtonBar::ScrollTo(int item) {
  topItem_ = std::clamp(item, 0, MostTop());
  Invalidate();
}
void TVRXButtonBar::ScrollIntoView(int item) {
  const Shape shape = Measure();
  if (item < TopItem()) ScrollTo(item);
  if (item >= TopItem() + FittingItems(shape)) ScrollTo(item - FittingItems(shape) + 1);
}

TVRXButtonBar::Shape TVRXButtonBar::Measure() const {
  Shape s;
  const int edge = IsKept(&BevelPart) ? Bevel()->Room() : 0;
  s.room = ClientRect().adjusted(edge, edge, -edge, -edge);
  s.current = CurrentIndex();
  s.heading = std::max(Get(SectionBtnSize), 1);
  const TVRXBarSection* section = Current();
  s.step = std::max(
      section && section->Get(TVRXBarSection::SmallImages) ? Get(SmallItemHeight) : Get(LargeItemHeight), 1);
  const int length = std::max(Down() ? s.room.height() : s.room.width(), 0), count = SectionCount();
  // Items keep half of the bar; the headings near the open one share the other half.
  const int most = std::clamp(length / 2 / s.heading, 1, std::max(count, 1));
  const int shown = Get(SingleSectionMode) ? std::min(count, 1) : std::min(count, most);
  s.first = Get(SingleSectionMode) ? std::max(s.current, 0)
                                   : std::clamp(s.current - shown / 2, 0, std::max(count - shown, 0));
  s.last = s.first + shown - 1;
  s.begin = std::min((s.current - s.first + 1) * s.heading, length);
  s.end = std::max(length - (s.last - s.current) * s.heading, s.begin);
  if (s.current < 0) s.begin = s.end = count > 0 ? 0 : length;
  return s;
}

QRect TVRXButtonBar::Strip(const Shape& s, int from, int size) const {
  return Down() ? QRect(s.room.left(), s.room.top() + from, s.room.width(), size)
                : QRect(s.room.left() + from, s.room.top(), size, s.room.height());
}

QRect TVRXButtonBar::HeadingRect(const Shape& s, int index) const {
  if (index < s.first || index > s.last) return {};
  const int from =
      index <= s.current ? (index - s.first) * s.heading : s.end + (index - s.current - 1) * s.heading;
  const int left = Get(FixedSectionLeftBorder), right = Get(FixedSectionRightBorder);
  const QRect strip = Strip(s, from, s.heading);
  const QRect rect = Down() ? strip.adjusted(left, 0, -right, 0) : strip.adjusted(0, left, 0, -right);
  return rect.isValid() ? rect : QRect();
}

QRect TVRXButtonBar::RectOfItem(const Shape& s, int index) const {
  const TVRXBarSection* section = Current();
  const int top = std::clamp(topItem_, 0, MostTop(s));
  if (!section || index < top || index >= section->ItemCount()) return {};
  const std::int64_t from = s.begin + std::int64_t{index - top} * s.step;
  return from >= s.end ? QRect() : Strip(s, static_cast<int>(from), s.step);
}

int TVRXButtonBar::MostTop(const Shape& s) const {
  const TVRXBarSection* section = Current();
  return section ? std::max(section->ItemCount() - FittingItems(s), 0) : 0;
}
int TVRXButtonBar::MostTop() const { return MostTop(Measure()); }

bool TVRXButtonBar::CanScroll(const Shape& s, bool down) const {
  const int top = std::clamp(topItem_, 0, MostTop(s));
  return down ? top < MostTop(s) : top > 0;
}

QRect TVRXButtonBar::ArrowRect(const Shape& s, bool down) const {
  constexpr int size = 16, edge = 4;
  if (!CanScroll(s, down) || s.end - s.begin < 2 * size) return {};
  const int along = down ? s.end - size - edge : s.begin + edge;
  return Down() ? QRect(s.room.right() - size - edge + 1, s.room.top() + along, size, size)
                : QRect(s.room.left() + along, s.room.bottom() - size - edge + 1, size, size);
}

QRect TVRXButtonBar::SectionRect(int index) const { return HeadingRect(Measure(), index) & ClientRect(); }
QRect TVRXButtonBar::ItemRect(int index) const {
  const Shape s = Measure();
  return RectOfItem(s, index) & Strip(s, s.begin, s.end - s.begin);
}

TVRXBarPlace TVRXButtonBar::PlaceAt(QPoint point) const {
  const Shape s = Measure();
  for (int i = s.first; i <= s.last; ++i)
    if (HeadingRect(s, i).contains(point)) return {TVRXBarPlace::Section, i};
  if (ArrowRect(s, false).contains(point)) return {TVRXBarPlace::ScrollUp};
  if (ArrowRect(s, true).contains(point)) return {TVRXBarPlace::ScrollDown};
  if (!Strip(s, s.begin, s.end - s.begin).contains(point)) return {};
  const int along = (Down() ? point.y() - s.room.top() : point.x() - s.room.left()) - s.begin;
  const int index = std::clamp(topItem_, 0, MostTop(s)) + along / s.step;
  return index < Current()->ItemCount() ? TVRXBarPlace{TVRXBarPlace::Item, index} : TVRXBarPlace{};
}
