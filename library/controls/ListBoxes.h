// Fields with a list, a tree or a table that drops down.
#pragma once
#include "library/controls/DropDownBox.h"
#include "vcl/ListView.h"
#include "vcl/TreeNodes.h"

enum class TVRXDriveType : std::uint8_t { dtRemovable, dtFixed, dtNetwork, dtCDROM, dtRAM };
VRX_ENUM(TVRXDriveType, {"dtRemovable", "dtFixed", "dtNetwork", "dtCDROM", "dtRAM"})
using TVRXDriveTypes = TSet<TVRXDriveType>;
VRX_SET(TVRXDriveTypes, TVRXDriveType)
enum class TVRXTextCase : std::uint8_t { tcLowerCase, tcUpperCase };
VRX_ENUM(TVRXTextCase, {"tcLowerCase", "tcUpperCase"})

// The drives of the computer that the program runs on. Which those are nobody knows here: it shows one of
// each kind.
class TVRXDriveComboBox : public TVRXCustomDropDownBox {
  VRX_CLASS(TVRXDriveComboBox)
 public:
  using TVRXCustomDropDownBox::TVRXCustomDropDownBox;
  // A letter, with or without a colon; empty: the first drive.
  static constexpr TKept<QString> Drive{"Drive"};
  static constexpr TKept<TVRXDriveTypes> DriveTypes{
      "DriveTypes",
      {TVRXDriveType::dtRemovable, TVRXDriveType::dtFixed, TVRXDriveType::dtNetwork, TVRXDriveType::dtCDROM,
       TVRXDriveType::dtRAM}};
  static constexpr TKept<bool> ShowIcons{"ShowIcons", true};
  static constexpr TKept<bool> ShowVolumeNames{"ShowVolumeNames", true};
  static constexpr TKept<TVRXTextCase> TextCase{"TextCase", TVRXTextCase::tcLowerCase};

  std::unique_ptr<TControl> MakeDropDown() const override;
  // What stands for the drives: lines, and the kind of each.
  struct Line {
    QString text;
    TVRXDriveType type;
    char16_t letter;
  };
  std::vector<Line> Drives() const;

 protected:
  QString ShownText() const override;
  QRect PaintMark(TCanvas& canvas, const QRect& line) const override;

 private:
  Line Chosen() const;
  QString TextOf(char16_t letter, const QString& volume) const;
};

class TVRXListComboBox : public TVRXCustomDropDownBox {
  VRX_CLASS(TVRXListComboBox)
 public:
  using TVRXCustomDropDownBox::TVRXCustomDropDownBox;
  static constexpr TKept<int> DropDownCount{"DropDownCount", 8};
  static constexpr TKept<int> ItemIndex{"ItemIndex", -1};
  static constexpr TKept<TStrings*> Items{"Items"};
  static constexpr TKept<bool> Sorted{"Sorted", false};

  std::unique_ptr<TControl> MakeDropDown() const override;

 protected:
  QString ShownText() const override;
};

class TVRXTreeComboBox : public TVRXCustomDropDownBox {
  VRX_CLASS(TVRXTreeComboBox)
 public:
  using TVRXCustomDropDownBox::TVRXCustomDropDownBox;
  static constexpr TKept<bool> FullPath{"FullPath", true};
  static constexpr TKept<TCustomImageList*> Images{"Images"};
  static constexpr TKept<int> Indent{"Indent", 19};
  // Of all nodes from the top down, those of closed ones among them.
  static constexpr TKept<int> ItemIndex{"ItemIndex", -1};
  static constexpr TKept<TTreeNodes*> Items{"Items"};
  // Empty for a slash.
  static constexpr TKept<QString> PathSeparator{"PathSeparator"};
  static constexpr TKept<bool> ShowButtons{"ShowButtons", true};
  static constexpr TKept<bool> ShowLines{"ShowLines", true};
  static constexpr TKept<bool> ShowRoot{"ShowRoot", true};

  // From the root to the chosen node; empty for none.
  QList<const TTreeNode*> Path() const;
  // The nodes are open as far as it takes to see the chosen one.
  std::unique_ptr<TControl> MakeDropDown() const override;
  void PaintDropDown(TCanvas& canvas, const QRect& rect) const override;

 protected:
  QString ShownText() const override;
  QRect PaintMark(TCanvas& canvas, const QRect& line) const override;
};

class TVRXHeaderListComboBox : public TVRXCustomDropDownBox {
  VRX_CLASS(TVRXHeaderListComboBox)
 public:
  using TVRXCustomDropDownBox::TVRXCustomDropDownBox;
  static constexpr TKept<TListColumns*> Columns{"Columns"};
  static constexpr TKept<int> DropDownCount{"DropDownCount", 8};
  static constexpr TKept<bool> GridLines{"GridLines", false};
  static constexpr TKept<int> ItemIndex{"ItemIndex", -1};
  static constexpr TKept<TListItems*> Items{"Items"};
  // Between the texts of the columns; empty for a comma and a blank.
  static constexpr TKept<QString> Separator{"Separator"};
  static constexpr TKept<bool> ShowColumnHeaders{"ShowColumnHeaders", true};
  static constexpr TKept<TCustomImageList*> SmallImages{"SmallImages"};
  // The column that the field shows; -1 for all of them.
  static constexpr TKept<int> TextColumn{"TextColumn", -1};

  std::unique_ptr<TControl> MakeDropDown() const override;
  void PaintDropDown(TCanvas& canvas, const QRect& rect) const override;

 protected:
  QString ShownText() const override;
  QRect PaintMark(TCanvas& canvas, const QRect& line) const override;
};

class TVRXCheckListComboBox : public TVRXCustomDropDownBox {
  VRX_CLASS(TVRXCheckListComboBox)
 public:
  using TVRXCustomDropDownBox::TVRXCustomDropDownBox;
  // The texts of the items that are checked.
  static constexpr TKept<TStrings*> CheckedItems{"CheckedItems"};
  // Between the checked ones; empty for a comma and a blank.
  static constexpr TKept<QString> Delimiter{"Delimiter"};
  static constexpr TKept<int> DropDownCount{"DropDownCount", 8};
  static constexpr TKept<TStrings*> Items{"Items"};
  static constexpr TKept<bool> Sorted{"Sorted", false};

  bool Checked(const QString& item) const { return Get(CheckedItems)->Lines().contains(item); }
  std::unique_ptr<TControl> MakeDropDown() const override;

 protected:
  // The checked ones in the order of the items.
  QString ShownText() const override;

 private:
  QStringList Ordered() const;
};
