#include "library/components/ButtonBarPopupMenu.h"

#include "rtl/Class.h"

const TClass& TVRXButtonBarPopupMenu::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXButtonBarPopupMenu>("TVRXButtonBarPopupMenu", TPopupMenu::StaticClass())
          .Published(Commands)
          .Doc(QStringLiteral("What the menu offers to do to the bar that it belongs to."))
          .ClassDoc(
              QStringLiteral("The context menu of a button bar, with what can be done to its sections."),
              "pen line 1.5 brush fill box 2.5 2.5 9 19 1 path 2.5 6.5 11.5 6.5 path 2.5 17.5 11.5 17.5 "
              "brush fill box 9.5 6.5 12 12 1 pen accent 1.8 path 12 10 19 10 pen line 1.5 path 12 13 18 "
              "13 path 12 16 17 16"));
  return cls;
}

namespace {
using enum TVRXBarCommand;
struct Row {
  TVRXBarCommand command;
  const char* text;
  int group;
};
constexpr Row Rows[] = {
    {bcLargeImages, "&Large images", 0},     {bcSmallImages, "&Small images", 0},
    {bcAddSection, "&Add section", 1},       {bcRenameSection, "&Rename section", 1},
    {bcDeleteSection, "&Delete section", 1}, {bcAddItem, "Add &item", 2},
    {bcRenameItem, "Rena&me item", 2},       {bcDeleteItem, "Dele&te item", 2},
};
}  // namespace

std::vector<TVRXButtonBarPopupMenu::Entry> TVRXButtonBarPopupMenu::Entries(const TVRXButtonBar& bar) const {
  const TVRXBarSection* section = bar.Current();
  const int item = bar.Get(TVRXButtonBar::ItemIndex);
  const bool hasItem = section && item >= 0 && item < section->ItemCount();
  std::vector<Entry> entries;
  int group = 0;
  for (const Row& row : Rows) {
    if (!Get(Commands).Contains(row.command)) continue;
    Entry entry{row.command, QString::fromLatin1(row.text)};
    entry.Enabled = row.command == bcAddSection                                  ? true
                    : row.command == bcRenameItem || row.command == bcDeleteItem ? hasItem
                                                                                 : section != nullptr;
    if (section && row.group == 0)
      entry.Checked = section->Get(TVRXBarSection::SmallImages) == (row.command == bcSmallImages);
    entry.BeginsGroup = !entries.empty() && row.group != group;
    group = row.group;
    entries.push_back(std::move(entry));
  }
  return entries;
}

void TVRXButtonBarPopupMenu::Execute(TVRXButtonBar& bar, TVRXBarCommand command) {
  TVRXBarSection* section = bar.Current();
  if (command == bcAddSection) bar.AddSection();
  if (!section) return;
  if (command == bcLargeImages || command == bcSmallImages)
    section->Set(TVRXBarSection::SmallImages, command == bcSmallImages);
  if (command == bcDeleteSection) bar.DelSection();
  if (command == bcAddItem) bar.AddItem();
  if (command == bcDeleteItem) bar.DelItem();
}
