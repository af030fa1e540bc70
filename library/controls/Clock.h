// A clock with hands, in segment letters, or both. It runs on the form that is being designed, too.
#pragma once
#include "library/values/Bevels.h"
#include "library/values/LED.h"
#include "vcl/Control.h"
#include "vcl/RepaintTimer.h"

class QTime;

enum class TVRXClockNumerals : std::uint8_t { cnNone, cnMarks, cnArabic, cnRoman };
VRX_ENUM(TVRXClockNumerals, {"cnNone", "cnMarks", "cnArabic", "cnRoman"})

class TVRXClock : public TGraphicControl {
  VRX_CLASS(TVRXClock)
 public:
  explicit TVRXClock(TComponent* owner);
  static constexpr TKept<TVRXBevel*> BevelPart{"Bevel"};
  static constexpr TKept<QString> CustomDateTimeFormat{"CustomDateTimeFormat"};
  static constexpr TKept<TVRXLED*> DigitalPart{"Digital"};
  // Without the hands.
  static constexpr TKept<bool> DigitalOnly{"DigitalOnly", false};
  // Behind the segment letters; clNone is what is behind the clock.
  static constexpr TKept<TColor> DigitalColor{"DigitalColor", clBlack};
  static constexpr TKept<TColor> FaceColor{"FaceColor", clWindow};
  static constexpr TKept<TColor> HourColor{"HourColor", clWindowText};
  static constexpr TKept<TColor> MarkColor{"MarkColor", clGrayText};
  static constexpr TKept<TColor> MinuteColor{"MinuteColor", clWindowText};
  static constexpr TKept<TVRXClockNumerals> Numerals{"Numerals", TVRXClockNumerals::cnMarks};
  static constexpr TKept<TColor> SecondColor{"SecondColor", clRed};
  static constexpr TKept<bool> ShowSeconds{"ShowSeconds", true};
  static constexpr TKept<bool> Transparent{"Transparent", false};

  TVRXBevel* Bevel() const { return Get(BevelPart); }
  TVRXLED* Digital() const { return Get(DigitalPart); }
  void SetDateTimeFormat(const QString& format) { Set(CustomDateTimeFormat, format); }
  // What the segment letters show at the moment. A format that is none is shown as it stands.
  QString DigitalText() const;
  // In how many milliseconds the picture will be another one.
  int NextPicture() const;

  void Paint(TCanvas& canvas) override;

 private:
  QString Format() const;
  void PaintDigital(TCanvas& canvas, const QRect& rect) const;
  void PaintHands(TCanvas& canvas, const QRect& rect) const;
  void PaintFace(QPainter& p, double radius) const;
  TRepaintTimer timer_{*this};
};
