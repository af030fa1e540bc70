// Fields for words: one that completes what is typed, one whose words stand as tags, one that opens a form.
#pragma once
#include "library/controls/DropDownBox.h"
#include "rtl/Strings.h"

enum class TVRXCompleteMode : std::uint8_t { cmInline, cmList, cmBoth };
VRX_ENUM(TVRXCompleteMode, {"cmInline", "cmList", "cmBoth"})

class TVRXEditAutoComplete : public TVRXCustomDropDownBox {
  VRX_CLASS(TVRXEditAutoComplete)
 public:
  explicit TVRXEditAutoComplete(TComponent* owner);
  static constexpr TKept<bool> CaseSensitive{"CaseSensitive", false};
  static constexpr TKept<TVRXCompleteMode> CompleteMode{"CompleteMode", TVRXCompleteMode::cmBoth};
  static constexpr TKept<int> DropDownCount{"DropDownCount", 8};
  // Letters that must be typed before words are offered.
  static constexpr TKept<int> MinLength{"MinLength", 1};
  static constexpr TKept<bool> Sorted{"Sorted", true};
  static constexpr TKept<TStrings*> Words{"Words"};

  // The words that begin with what is typed; of no use and so not among them is the typed word itself.
  QStringList Suggestions() const;
  // What the first of them adds behind the typed letters; empty unless it is shown in the field.
  QString Completion() const;
  std::unique_ptr<TControl> MakeDropDown() const override;

 protected:
  bool HasKnob() const override { return false; }
  void PaintText(TCanvas& canvas, const QRect& room) const override;
};

// Words as tags, each with a mark that takes it away.
class TVRXTagEditor : public TCustomEdit {
  VRX_CLASS(TVRXTagEditor)
 public:
  explicit TVRXTagEditor(TComponent* owner);
  static constexpr TKept<bool> AllowDuplicates{"AllowDuplicates", false};
  // A mark behind the tags that adds one.
  static constexpr TKept<bool> ShowAddMark{"ShowAddMark", true};
  static constexpr TKept<bool> ShowCloseMarks{"ShowCloseMarks", true};
  static constexpr TKept<int> Spacing{"Spacing", 4};
  static constexpr TKept<TColor> TagBorderColor{"TagBorderColor", clGrayText};
  static constexpr TKept<TColor> TagColor{"TagColor", clBtnFace};
  static constexpr TKept<int> TagRadius{"TagRadius", 4};
  static constexpr TKept<TColor> TagTextColor{"TagTextColor", clBtnText};
  static constexpr TKept<TStrings*> Tags{"Tags"};
  // In rows, else in one line.
  static constexpr TKept<bool> WrapTags{"WrapTags", true};

  // As they are shown: no empty ones, and none twice unless that is allowed.
  QStringList ShownTags() const;
  QRect TagRect(int index) const;
  QRect CloseRect(int index) const;  // empty when there is no mark
  QRect AddRect() const;
  // The tag at the point, -1 for none.
  int TagAt(QPoint point) const;
  // Takes the one away; false for an index that is not there.
  bool DeleteTag(int index);

  void Paint(TCanvas& canvas) override;

 protected:
  QSize AutoSizeHint() const override;

 private:
  QRect Room() const;
  int TagHeight() const;
  // One behind the last tag is the mark that adds.
  std::vector<QRect> Places() const;
  QRect CloseIn(const QRect& tag) const;
  // An empty one is the mark that adds.
  void PaintTag(TCanvas& canvas, const QRect& rect, const QString& tag) const;
};

// A form, or a panel of this form, drops down.
class TVRXFormComboBox : public TVRXCustomDropDownBox {
  VRX_CLASS(TVRXFormComboBox)
 public:
  explicit TVRXFormComboBox(TComponent* owner);
  static constexpr TKept<TWinControl*> DropDownControl{"DropDownControl"};

  std::unique_ptr<TControl> MakeDropDown() const override { return nullptr; }
  QSize DropDownSize() const override;
  void PaintDropDown(TCanvas& canvas, const QRect& rect) const override;

 private:
  TWinControl* Shown() const;
};
