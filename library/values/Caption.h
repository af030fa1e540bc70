// A text with its place, font and effects, as shapes, buttons and panels show it.
#pragma once
#include "library/values/FontFx.h"
#include "rtl/Component.h"
#include "rtl/StreamedContent.h"
#include "vcl/Canvas.h"

enum class TVRXAlignment : std::uint8_t {
  agTopLeft,
  agTopCenter,
  agTopRight,
  agCenterLeft,
  agCenter,
  agCenterRight,
  agBottomLeft,
  agBottomCenter,
  agBottomRight
};
VRX_ENUM(TVRXAlignment, {"agTopLeft", "agTopCenter", "agTopRight", "agCenterLeft", "agCenter",
                         "agCenterRight", "agBottomLeft", "agBottomCenter", "agBottomRight"})
// The text-format flags of an alignment.
unsigned VRXAlignmentFlags(TVRXAlignment alignment);

class TVRXCaption : public TOwnedPersistent, public IStreamedContent {
  VRX_CLASS(TVRXCaption)
 public:
  explicit TVRXCaption(TPersistent* owner = nullptr);
  ~TVRXCaption() override;

  TVRXAlignment Alignment() const { return alignment_; }
  void SetAlignment(TVRXAlignment v) { Change(alignment_, v); }
  const QString& Caption() const { return caption_; }
  void SetCaption(const QString& v) { Change(caption_, v); }
  TFont* Font() const { return font_.get(); }
  void SetFont(const TFont* v) { font_->Assign(v); }
  TVRXFxCaption* FontFX() const { return fontFx_.get(); }
  void SetFontFX(const TVRXFxCaption* v) { fontFx_->Assign(v); }
  // Whether words wrap at the end of the room.
  bool MultiLine() const { return multiLine_; }
  void SetMultiLine(bool v) { Change(multiLine_, v); }

  // A font has no defaults of its own; the caption's is the plain one.
  bool ContentEmpty() const override;
  void ClearContent() override;

  // The flags the text is drawn with.
  unsigned TextFlags() const;
  void Draw(TCanvas& canvas, const QRect& rect, bool enabled, TColor behind) const;

 protected:
  void PartChanged(TPersistent&) override { Changed(); }

 private:
  bool FontStored() const;
  std::unique_ptr<TFont> font_;
  std::unique_ptr<TVRXFxCaption> fontFx_;
  QString caption_;
  TVRXAlignment alignment_ = TVRXAlignment::agCenter;
  bool multiLine_ = false;
};
