// The context menu of button bars: what a person may do to sections and items, before the entries of its own.
#pragma once
#include "library/controls/ButtonBar.h"
#include "vcl/Menu.h"

enum class TVRXBarCommand : std::uint8_t {
  bcLargeImages,
  bcSmallImages,
  bcAddSection,
  bcRenameSection,
  bcDeleteSection,
  bcAddItem,
  bcRenameItem,
  bcDeleteItem
};
VRX_ENUM(TVRXBarCommand, {"bcLargeImages", "bcSmallImages", "bcAddSection", "bcRenameSection",
                          "bcDeleteSection", "bcAddItem", "bcRenameItem", "bcDeleteItem"})
using TVRXBarCommands = TSet<TVRXBarCommand>;
VRX_SET(TVRXBarCommands, TVRXBarCommand)

class TVRXButtonBarPopupMenu : public TPopupMenu {
  VRX_CLASS(TVRXButtonBarPopupMenu)
 public:
  using TPopupMenu::TPopupMenu;
  static constexpr TKept<TVRXBarCommands> Commands{
      "Commands",
      {TVRXBarCommand::bcLargeImages, TVRXBarCommand::bcSmallImages, TVRXBarCommand::bcAddSection,
       TVRXBarCommand::bcRenameSection, TVRXBarCommand::bcDeleteSection, TVRXBarCommand::bcAddItem,
       TVRXBarCommand::bcRenameItem, TVRXBarCommand::bcDeleteItem}};

  struct Entry {
    TVRXBarCommand Command;
    QString Text;
    bool Enabled = true;
    bool Checked = false;
    bool BeginsGroup = false;  // a line stands in front
  };
  // For the selected item of the open section.
  std::vector<Entry> Entries(const TVRXButtonBar& bar) const;
  // Not for what asks for a text first: that is up to whoever shows the bar.
  static void Execute(TVRXButtonBar& bar, TVRXBarCommand command);
};
