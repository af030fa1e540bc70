// A bar of sections, of which one is open and shows its items between the headings of all.
#pragma once
#include "library/controls/BarSections.h"
#include "library/values/Bevels.h"
#include "library/values/Fill.h"
#include "vcl/Control.h"
#include "vcl/ImageList.h"

enum class TVRXBarOrientation : std::uint8_t { boVertical, boHorizontal };
VRX_ENUM(TVRXBarOrientation, {"boVertical", "boHorizontal"})
enum class TVRXBarFocusStyle : std::uint8_t { fsNone, fsFrame, fsRaised, fsLowered };
VRX_ENUM(TVRXBarFocusStyle, {"fsNone", "fsFrame", "fsRaised", "fsLowered"})
enum class TVRXIniSaveOption : std::uint8_t { isoSection, isoImages, isoCaptions };
VRX_ENUM(TVRXIniSaveOption, {"isoSection", "isoImages", "isoCaptions"})
using TVRXIniSaveOptions = TSet<TVRXIniSaveOption>;
VRX_SET(TVRXIniSaveOptions, TVRXIniSaveOption)

// What stands at a place of the bar.
struct TVRXBarPlace {
  enum Kind : std::uint8_t { Nothing, Section, Item, ScrollUp, ScrollDown };
  Kind What = Nothing;
  int Index = -1;
  bool operator==(const TVRXBarPlace&) const = default;
};

class TVRXButtonBar : public TWinControl {
  VRX_CLASS(TVRXButtonBar)
 public:
  explicit TVRXButtonBar(TComponent* owner);
  static constexpr TKept<TVRXBevel*> BevelPart{"Bevel"};
  static constexpr TKept<TVRXFillObject*> FillPart{"FillObject"};
  static constexpr TKept<bool> FillSelectedItem{"FillSelectedItem", false};
  static constexpr TKept<int> FixedSectionLeftBorder{"FixedSectionLeftBorder", 0};
  static constexpr TKept<int> FixedSectionRightBorder{"FixedSectionRightBorder", 0};
  static constexpr TKept<TVRXBarFocusStyle> FocusStyle{"FocusStyle", TVRXBarFocusStyle::fsFrame};
  static constexpr TKept<TVRXFont3D*> Font3DPart{"Font3D"};
  static constexpr TKept<int> ItemIndex{"ItemIndex", -1};
  static constexpr TKept<TCustomImageList*> LargeImageList{"LargeImageList"};
  static constexpr TKept<int> LargeItemHeight{"LargeItemHeight", 64};
  static constexpr TKept<TVRXBarOrientation> Orientation{"Orientation", TVRXBarOrientation::boVertical};
  static constexpr TKept<std::uint32_t> ScrollDelay{"ScrollDelay", 100};
  static constexpr TKept<int> ScrollStep{"ScrollStep", 1};
  static constexpr TKept<int> SectionBtnSize{"SectionBtnSize", 24};
  static constexpr TKept<int> SectionIndex{"SectionIndex", 0};
  static constexpr TKept<TVRXBarSections*> SectionsPart{"Sections"};
  static constexpr TKept<bool> SingleSectionMode{"SingleSectionMode", false};
  static constexpr TKept<TCustomImageList*> SmallImageList{"SmallImageList"};
  static constexpr TKept<int> SmallItemHeight{"SmallItemHeight", 24};
  static constexpr TKept<bool> Transparent{"Transparent", false};
  static constexpr TKept<bool> TransparentButtons{"TransparentButtons", false};

  TVRXBevel* Bevel() const { return Get(BevelPart); }
  TVRXFillObject* FillObject() const { return Get(FillPart); }
  TVRXFont3D* Font3D() const { return Get(Font3DPart); }
  TVRXBarSections* Sections() const { return Get(SectionsPart); }
  int SectionCount() const { return IsKept(&SectionsPart) ? Sections()->Count() : 0; }
  // The open one; -1 and null when there is none.
  int CurrentIndex() const;
  TVRXBarSection* Current() const;

  // New ones stand behind the others and are selected. An item needs a section.
  TVRXBarSection* AddNamedSection(const QString& caption);
  TVRXBarItem* AddNamedItem(const QString& caption);
  void AddSection();
  void AddItem();
  // -1: the open section, or the selected item of it. What is not there is left alone.
  void RenSection(int index, const QString& caption);
  void RenItem(int index, const QString& caption);
  void DelSection(int index = -1);
  void DelItem(int index = -1);
  // The open section stays open, and the selected item, which is one of it, selected.
  void MoveSection(int from, int to);
  void MoveItem(int from, int to);
  // Up to the last and the first one.
  void NextSection() { Open(CurrentIndex() + 1); }
  void PrevSection() { Open(CurrentIndex() - 1); }
  void Open(int section);

  // The first item that is seen; what there is to scroll is limited to what is out of sight.
  int TopItem() const { return std::clamp(topItem_, 0, MostTop()); }
  void ScrollTo(int item);
  void ScrollIntoView(int item);
  TVRXBarPlace PlaceAt(QPoint point) const;
  // In the bar; empty for what is not seen.
  QRect SectionRect(int index) const;
  QRect ItemRect(int index) const;

  void Paint(TCanvas& canvas) override;

 private:
  // All that is seen follows from these few numbers, however much there is.
  struct Shape {
    QRect room;                // inside of the edge
    int first = 0, last = -1;  // of the headings that have room
    int current = -1;
    int heading = 0;         // how long one is in the direction of the bar
    int begin = 0, end = 0;  // the items' part of that direction
    int step = 1;            // how long an item is there
  };
  Shape Measure() const;
  bool Down() const { return Get(Orientation) == TVRXBarOrientation::boVertical; }
  // A strip across the bar.
  QRect Strip(const Shape& shape, int from, int size) const;
  QRect HeadingRect(const Shape& shape, int index) const;
  QRect RectOfItem(const Shape& shape, int index) const;
  QRect ArrowRect(const Shape& shape, bool down) const;
  int FittingItems(const Shape& shape) const { return std::max(1, (shape.end - shape.begin) / shape.step); }
  int MostTop() const;
  int MostTop(const Shape& shape) const;
  bool CanScroll(const Shape& shape, bool down) const;
  void PaintHeading(TCanvas& canvas, const QRect& rect, int index, const Shape& shape) const;
  void PaintItem(TCanvas& canvas, const QRect& rect, const TVRXBarItem& item, bool selected) const;
  void PaintItems(TCanvas& canvas, const Shape& shape) const;
  void PaintEmpty(TCanvas& canvas, const Shape& shape) const;

  int topItem_ = 0;
};
