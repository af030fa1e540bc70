// Rows of headings that stand above columns.
#pragma once
#include "rtl/Collection.h"
#include "vcl/Control.h"
#include "vcl/ImageList.h"

enum class THeaderStyle : std::uint8_t { hsButtons, hsFlat };
VRX_ENUM(THeaderStyle, {"hsButtons", "hsFlat"})
enum class THeaderSectionStyle : std::uint8_t { hsText, hsOwnerDraw };
VRX_ENUM(THeaderSectionStyle, {"hsText", "hsOwnerDraw"})

class THeaderSection : public TCollectionItem {
  VRX_CLASS(THeaderSection)
 public:
  using TCollectionItem::TCollectionItem;
  static constexpr TKept<TAlignment> Alignment{"Alignment", TAlignment::taLeftJustify};
  // Those that do share what the others leave.
  static constexpr TKept<bool> AutoSize{"AutoSize", false};
  static constexpr TKept<bool> CheckBox{"CheckBox", false};
  static constexpr TKept<bool> Checked{"Checked", false};
  static constexpr TKept<int> ImageIndex{"ImageIndex", -1};
  static constexpr TKept<int> MaxWidth{"MaxWidth", 10000};
  static constexpr TKept<int> MinWidth{"MinWidth", 0};
  static constexpr TKept<QString> Text{"Text"};
  static constexpr TKept<bool> Visible{"Visible", true};
  static constexpr TKept<int> Width{"Width", 50};

  QString DisplayName() const override;
};

class THeaderSections : public TCollection {
  VRX_CLASS(THeaderSections)
 public:
  explicit THeaderSections(TPersistent* owner) : TCollection(THeaderSection::StaticClass(), owner) {}
  const THeaderSection& Section(int index) const { return static_cast<const THeaderSection&>(*Item(index)); }
};

class THeaderControl : public TWinControl {
  VRX_CLASS(THeaderControl)
 public:
  explicit THeaderControl(TComponent* owner);
  static constexpr TKept<int> BorderWidth{"BorderWidth", 0};
  static constexpr TKept<bool> CheckBoxes{"CheckBoxes", false};
  static constexpr TKept<TCustomImageList*> Images{"Images"};
  static constexpr TKept<THeaderStyle> Style{"Style", THeaderStyle::hsButtons};
  static constexpr TKept<THeaderSections*> Sections{"Sections"};

  // Where the sections stand, one after the other, inside of the border.
  std::vector<QRect> SectionRects() const;
  void Paint(TCanvas& canvas) override;

 protected:
  QRect Room() const;
  void PaintCell(TCanvas& canvas, const QRect& rect) const;
  virtual void PaintSectionText(TCanvas& canvas, const QRect& rect, const THeaderSection& section) const;
};
