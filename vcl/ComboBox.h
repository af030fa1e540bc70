// Fields with a list that drops down.
#pragma once
#include "rtl/Strings.h"
#include "vcl/Edit.h"
#include "vcl/ListControl.h"

enum class TComboBoxStyle : std::uint8_t {
  csDropDown,
  csSimple,
  csDropDownList,
  csOwnerDrawFixed,
  csOwnerDrawVariable,
  csOwnerDrawEditableFixed,
  csOwnerDrawEditableVariable
};
VRX_ENUM(TComboBoxStyle, {"csDropDown", "csSimple", "csDropDownList", "csOwnerDrawFixed",
                          "csOwnerDrawVariable", "csOwnerDrawEditableFixed", "csOwnerDrawEditableVariable"})
enum class TComboBoxAutoCompleteTextOption : std::uint8_t {
  cbactEnabled,
  cbactEndOfLineComplete,
  cbactRetainPrefixCase,
  cbactSearchCaseSensitive,
  cbactSearchAscending
};
VRX_ENUM(TComboBoxAutoCompleteTextOption, {"cbactEnabled", "cbactEndOfLineComplete", "cbactRetainPrefixCase",
                                           "cbactSearchCaseSensitive", "cbactSearchAscending"})
using TComboBoxAutoCompleteText = TSet<TComboBoxAutoCompleteTextOption>;
VRX_SET(TComboBoxAutoCompleteText, TComboBoxAutoCompleteTextOption)

class TCustomComboBox : public TCustomListControl {
  VRX_CLASS(TCustomComboBox)
 public:
  explicit TCustomComboBox(TComponent* owner);
  const QString& Text() const { return Caption(); }
  void SetText(const QString& v) { SetCaption(v); }

  static constexpr TKept<TEditCharCase> CharCase{"CharCase", TEditCharCase::ecNormal};
  static constexpr TKept<int> DropDownCount{"DropDownCount", 8};
  static constexpr TKept<int> ItemHeight{"ItemHeight", 0};
  static constexpr TKept<int> ItemIndex{"ItemIndex", -1};
  static constexpr TKept<TStrings*> Items{"Items"};
  static constexpr TKept<int> MaxLength{"MaxLength", 0};
  static constexpr TKept<bool> ReadOnly{"ReadOnly", false};
  static constexpr TKept<bool> Sorted{"Sorted", false};
  static constexpr TKept<TComboBoxStyle> Style{"Style", TComboBoxStyle::csDropDown};
  static constexpr TKept<QString> TextHint{"TextHint"};

  void Paint(TCanvas& canvas) override;

 protected:
  // What the closed field shows: the text, or the chosen item of a style that has no text.
  virtual void PaintField(TCanvas& canvas, const QRect& inside);
};

class TComboBox : public TCustomComboBox {
  VRX_CLASS(TComboBox)
 public:
  explicit TComboBox(TComponent* owner);
  TComboBoxStyle StyleOf() const { return Get(Style); }
  void SetStyle(TComboBoxStyle v);

 protected:
  // The field; a list that is always there keeps its room.
  QSize AutoSizeHint() const override;
};
