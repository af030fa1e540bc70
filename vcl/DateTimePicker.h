// Fields for a day or a time of day.
#pragma once
#include "vcl/Calendar.h"

enum class TDateTimeKind : std::uint8_t { dtkDate, dtkTime, dtkDateTime };
VRX_ENUM(TDateTimeKind, {"dtkDate", "dtkTime", "dtkDateTime"})
enum class TDTDateMode : std::uint8_t { dmComboBox, dmUpDown, dmNone };
VRX_ENUM(TDTDateMode, {"dmComboBox", "dmUpDown", "dmNone"})
enum class TDTDateFormat : std::uint8_t { dfShort, dfLong };
VRX_ENUM(TDTDateFormat, {"dfShort", "dfLong"})
enum class TDTCalAlignment : std::uint8_t { dtaLeft, dtaRight, dtaDefault };
VRX_ENUM(TDTCalAlignment, {"dtaLeft", "dtaRight", "dtaDefault"})
enum class TTimeDisplay : std::uint8_t { tdHM, tdHMS, tdHMSMs };
VRX_ENUM(TTimeDisplay, {"tdHM", "tdHMS", "tdHMSMs"})
enum class TTimeFormat : std::uint8_t { tf12, tf24 };
VRX_ENUM(TTimeFormat, {"tf12", "tf24"})
enum class TDateDisplayOrder : std::uint8_t { ddoDMY, ddoMDY, ddoYMD, ddoTryDefault };
VRX_ENUM(TDateDisplayOrder, {"ddoDMY", "ddoMDY", "ddoYMD", "ddoTryDefault"})
enum class TArrowShape : std::uint8_t {
  asClassicSmaller,
  asClassicLarger,
  asModernSmaller,
  asModernLarger,
  asYetAnotherShape,
  asTheme
};
VRX_ENUM(TArrowShape, {"asClassicSmaller", "asClassicLarger", "asModernSmaller", "asModernLarger",
                       "asYetAnotherShape", "asTheme"})

enum class TDateTimePart : std::uint8_t {
  dtpDay,
  dtpMonth,
  dtpYear,
  dtpHour,
  dtpMinute,
  dtpSecond,
  dtpMiliSec,
  dtpAMPM
};
VRX_ENUM(TDateTimePart,
         {"dtpDay", "dtpMonth", "dtpYear", "dtpHour", "dtpMinute", "dtpSecond", "dtpMiliSec", "dtpAMPM"})
using TDateTimeParts = TSet<TDateTimePart>;
VRX_SET(TDateTimeParts, TDateTimePart)
enum class TDateTimePickerOption : std::uint8_t {
  dtpoDoChangeOnSetDateTime,
  dtpoEnabledIfUnchecked,
  dtpoAutoCheck,
  dtpoFlatButton,
  dtpoResetSelection
};
VRX_ENUM(TDateTimePickerOption, {"dtpoDoChangeOnSetDateTime", "dtpoEnabledIfUnchecked", "dtpoAutoCheck",
                                 "dtpoFlatButton", "dtpoResetSelection"})
using TDateTimePickerOptions = TSet<TDateTimePickerOption>;
VRX_SET(TDateTimePickerOptions, TDateTimePickerOption)

class TDateTimePicker : public TWinControl {
  VRX_CLASS(TDateTimePicker)
 public:
  explicit TDateTimePicker(TComponent* owner);
  static constexpr TKept<bool> Checked{"Checked", true};
  static constexpr TKept<TDateTime> Date{"Date"};
  static constexpr TKept<TDTDateFormat> DateFormat{"DateFormat", TDTDateFormat::dfShort};
  static constexpr TKept<TDTDateMode> DateMode{"DateMode", TDTDateMode::dmComboBox};
  // Letters as the platform has them: dd.MM.yyyy, HH:mm, 'quoted'. Empty: as the country has it.
  static constexpr TKept<QString> Format{"Format"};
  static constexpr TKept<TDateTimeKind> Kind{"Kind", TDateTimeKind::dtkDate};
  static constexpr TKept<bool> ShowCheckbox{"ShowCheckbox", false};
  static constexpr TKept<TDateTime> Time{"Time"};

  // What the field shows.
  QString ShownText() const;
  void Paint(TCanvas& canvas) override;
};
