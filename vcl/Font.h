// The font of a control as a property value.
#pragma once
#include <QFont>

#include "rtl/Persistent.h"
#include "vcl/Colors.h"

enum class TFontCharset : std::uint8_t {};
enum class TFontPitch : std::uint8_t { fpDefault, fpVariable, fpFixed };
enum class TFontQuality : std::uint8_t {
  fqDefault,
  fqDraft,
  fqProof,
  fqNonAntialiased,
  fqAntialiased,
  fqClearType,
  fqClearTypeNatural
};
enum class TFontStyle : std::uint8_t { fsBold, fsItalic, fsUnderline, fsStrikeOut };
using TFontStyles = TSet<TFontStyle>;

VRX_ENUM(TFontPitch, {"fpDefault", "fpVariable", "fpFixed"})
VRX_ENUM(TFontQuality, {"fqDefault", "fqDraft", "fqProof", "fqNonAntialiased", "fqAntialiased", "fqClearType",
                        "fqClearTypeNatural"})
VRX_ENUM(TFontStyle, {"fsBold", "fsItalic", "fsUnderline", "fsStrikeOut"})
VRX_SET(TFontStyles, TFontStyle)
template <>
struct TypeInfoOf<TFontCharset> {
  static const TTypeInfo& Get();
};

class TFont : public TOwnedPersistent {
  VRX_CLASS(TFont)
 public:
  explicit TFont(TPersistent* owner = nullptr) : TOwnedPersistent(owner) {}

  TFontCharset Charset() const { return charset_; }
  void SetCharset(TFontCharset v) { Change(charset_, v); }
  TColor Color() const { return color_; }
  void SetColor(TColor v) { Change(color_, v); }
  // Pixels: negative the height of the characters, positive that of the line.
  int Height() const { return height_; }
  void SetHeight(int v) { Change(height_, v); }
  // Points at 96 dpi; the same value as Height in another unit.
  int Size() const;
  void SetSize(int v);
  QString Name() const;
  void SetName(const QString& v) { Change(name_, v); }
  int Orientation() const { return orientation_; }
  void SetOrientation(int v) { Change(orientation_, v); }
  TFontPitch Pitch() const { return pitch_; }
  void SetPitch(TFontPitch v) { Change(pitch_, v); }
  TFontQuality Quality() const { return quality_; }
  void SetQuality(TFontQuality v) { Change(quality_, v); }
  TFontStyles Style() const { return style_; }
  void SetStyle(TFontStyles v) { Change(style_, v); }

  void Assign(const TPersistent* source) override;

 private:
  QString name_;  // null: the default family
  TFontStyles style_;
  int height_ = -12;
  int orientation_ = 0;
  TColor color_ = clWindowText;
  TFontCharset charset_{1};
  TFontPitch pitch_ = TFontPitch::fpDefault;
  TFontQuality quality_ = TFontQuality::fqDefault;
};

QFont ToQFont(const TFont& font);
