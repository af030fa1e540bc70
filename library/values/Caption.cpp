#include "library/values/Caption.h"

#include "library/values/TextDraw.h"
#include "rtl/Class.h"
#include "rtl/PropAccess.h"

const TClass& TVRXCaption::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXCaption>("TVRXCaption", TPersistent::StaticClass())
          .Published("Alignment", &TVRXCaption::Alignment, &TVRXCaption::SetAlignment,
                     TVRXAlignment::agCenter)
          .Doc(QStringLiteral("Where the text stands in the object it is embedded in."))
          .Published("Caption", &TVRXCaption::Caption, &TVRXCaption::SetCaption)
          .Doc(QStringLiteral("The text."))
          .Published("Font", &TVRXCaption::Font, &TVRXCaption::SetFont)
          .StoredIf(&TVRXCaption::FontStored)
          .Published("FontFX", &TVRXCaption::FontFX, &TVRXCaption::SetFontFX)
          .Doc(QStringLiteral("Direction, spacing and 3D effect of the letters."))
          .Published("MultiLine", &TVRXCaption::MultiLine, &TVRXCaption::SetMultiLine, false)
          .Doc(QStringLiteral("Wraps words at the end of a line.")));
  return cls;
}

TVRXCaption::TVRXCaption(TPersistent* owner)
    : TOwnedPersistent(owner),
      font_(std::make_unique<TFont>(this)),
      fontFx_(std::make_unique<TVRXFxCaption>(this)) {}
TVRXCaption::~TVRXCaption() = default;

bool TVRXCaption::FontStored() const {
  static const TFont plain;
  return !SameValues(*font_, plain);
}

bool TVRXCaption::ContentEmpty() const {
  for (const TPropInfo* prop : ClassType().Properties())
    if (IsStoredProp(*this, *prop)) return false;
  return true;
}

void TVRXCaption::ClearContent() {
  const TFont plain;
  font_->Assign(&plain);
}

unsigned VRXAlignmentFlags(TVRXAlignment alignment) {
  static constexpr unsigned flags[] = {0,
                                       tfCenter,
                                       tfRight,
                                       tfVCenter,
                                       tfVCenter | tfCenter,
                                       tfVCenter | tfRight,
                                       tfBottom,
                                       tfBottom | tfCenter,
                                       tfBottom | tfRight};
  return flags[static_cast<std::size_t>(alignment)];
}

unsigned TVRXCaption::TextFlags() const {
  unsigned flags = VRXAlignmentFlags(alignment_) | tfWordBreak | tfExpandTabs;
  if (!multiLine_ || fontFx_->Angle() != 0) flags |= tfSingleLine;
  if (fontFx_->Angle() > 0) flags |= tfNoPrefix;
  return flags;
}

void TVRXCaption::Draw(TCanvas& canvas, const QRect& rect, bool enabled, TColor behind) const {
  TVRXTextOptions options;
  if (!enabled) options.Include(TVRXTextOption::Disabled);
  VRXDrawTextExt(canvas, caption_, *fontFx_, *font_, rect, options, TextFlags(), {}, behind);
}
