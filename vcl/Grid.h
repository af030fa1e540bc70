// Grids: cells in columns and rows, the first ones fixed as titles.
#pragma once
#include <map>

#include "rtl/Collection.h"
#include "rtl/Strings.h"
#include "rtl/ValueList.h"
#include "vcl/ImageList.h"
#include "vcl/Label.h"
#include "vcl/Memo.h"

enum class TGridOption : std::uint8_t {
  goFixedVertLine,
  goFixedHorzLine,
  goVertLine,
  goHorzLine,
  goRangeSelect,
  goDrawFocusSelected,
  goRowSizing,
  goColSizing,
  goRowMoving,
  goColMoving,
  goEditing,
  goTabs,
  goRowSelect,
  goAlwaysShowEditor,
  goThumbTracking,
  goFixedColClick,
  goFixedRowClick,
  goFixedHotTrack,
  goFixedRowDefAlign,
  goAutoAddRows,
  goAutoAddRowsSkipContentCheck,
  goCellEllipsis,
  goCellHints,
  goColSpanning,
  goDblClickAutoSize,
  goDontScrollPartCell,
  goFixedRowNumbering,
  goHeaderHotTracking,
  goHeaderPushedLook,
  goRelaxedRowSelect,
  goRowHighlight,
  goScrollKeepVisible,
  goSelectionActive,
  goSmoothScroll,
  goTruncCellHints
};
VRX_ENUM(TGridOption, {"goFixedVertLine",
                       "goFixedHorzLine",
                       "goVertLine",
                       "goHorzLine",
                       "goRangeSelect",
                       "goDrawFocusSelected",
                       "goRowSizing",
                       "goColSizing",
                       "goRowMoving",
                       "goColMoving",
                       "goEditing",
                       "goTabs",
                       "goRowSelect",
                       "goAlwaysShowEditor",
                       "goThumbTracking",
                       "goFixedColClick",
                       "goFixedRowClick",
                       "goFixedHotTrack",
                       "goFixedRowDefAlign",
                       "goAutoAddRows",
                       "goAutoAddRowsSkipContentCheck",
                       "goCellEllipsis",
                       "goCellHints",
                       "goColSpanning",
                       "goDblClickAutoSize",
                       "goDontScrollPartCell",
                       "goFixedRowNumbering",
                       "goHeaderHotTracking",
                       "goHeaderPushedLook",
                       "goRelaxedRowSelect",
                       "goRowHighlight",
                       "goScrollKeepVisible",
                       "goSelectionActive",
                       "goSmoothScroll",
                       "goTruncCellHints"})
using TGridOptions = TSet<TGridOption>;
VRX_SET(TGridOptions, TGridOption)
enum class TGridDrawingStyle : std::uint8_t { gdsClassic, gdsThemed, gdsGradient };
VRX_ENUM(TGridDrawingStyle, {"gdsClassic", "gdsThemed", "gdsGradient"})
enum class TAutoAdvance : std::uint8_t {
  aaNone,
  aaDown,
  aaRight,
  aaLeft,
  aaRightDown,
  aaLeftDown,
  aaRightUp,
  aaLeftUp
};
VRX_ENUM(TAutoAdvance,
         {"aaNone", "aaDown", "aaRight", "aaLeft", "aaRightDown", "aaLeftDown", "aaRightUp", "aaLeftUp"})
enum class TGridZone : std::uint8_t { gzNormal, gzFixedCols, gzFixedRows, gzFixedCells, gzInvalid };
VRX_ENUM(TGridZone, {"gzNormal", "gzFixedCols", "gzFixedRows", "gzFixedCells", "gzInvalid"})
using TGridZoneSet = TSet<TGridZone>;
VRX_SET(TGridZoneSet, TGridZone)
enum class TTitleStyle : std::uint8_t { tsLazarus, tsStandard, tsNative };
VRX_ENUM(TTitleStyle, {"tsLazarus", "tsStandard", "tsNative"})
enum class TColumnButtonStyle : std::uint8_t {
  cbsAuto,
  cbsEllipsis,
  cbsNone,
  cbsPickList,
  cbsCheckboxColumn,
  cbsButton,
  cbsButtonColumn
};
VRX_ENUM(TColumnButtonStyle, {"cbsAuto", "cbsEllipsis", "cbsNone", "cbsPickList", "cbsCheckboxColumn",
                              "cbsButton", "cbsButtonColumn"})

enum class TMouseWheelOption : std::uint8_t { mwCursor, mwGrid };
VRX_ENUM(TMouseWheelOption, {"mwCursor", "mwGrid"})
enum class TRangeSelectMode : std::uint8_t { rsmSingle, rsmMulti };
VRX_ENUM(TRangeSelectMode, {"rsmSingle", "rsmMulti"})
enum class TGridOption2 : std::uint8_t {
  goScrollToLastCol,
  goScrollToLastRow,
  goEditorParentColor,
  goEditorParentFont,
  goCopyWithoutTrailingLinebreak
};
VRX_ENUM(TGridOption2, {"goScrollToLastCol", "goScrollToLastRow", "goEditorParentColor", "goEditorParentFont",
                        "goCopyWithoutTrailingLinebreak"})
using TGridOptions2 = TSet<TGridOption2>;
VRX_SET(TGridOptions2, TGridOption2)

// A font that says only in what it differs from the one around it.
class TFontChanges : public TKeptPart {
  VRX_CLASS(TFontChanges)
 public:
  using TKeptPart::TKeptPart;
};

class TGridColumnTitle : public TKeptPart {
  VRX_CLASS(TGridColumnTitle)
 public:
  using TKeptPart::TKeptPart;
  static constexpr TKept<TAlignment> Alignment{"Alignment", TAlignment::taLeftJustify};
  static constexpr TKept<QString> Caption{"Caption"};
};

// A column that one of the two families of forms describes.
class TGridColumn : public TCollectionItem {
  VRX_CLASS(TGridColumn)
 public:
  using TCollectionItem::TCollectionItem;
  static constexpr TKept<TAlignment> Alignment{"Alignment", TAlignment::taLeftJustify};
  static constexpr TKept<TGridColumnTitle*> Title{"Title"};
  static constexpr TKept<bool> Visible{"Visible", true};
  static constexpr TKept<int> Width{"Width", 64};
  QString DisplayName() const override;
};
class TGridColumns : public TCollection {
  VRX_CLASS(TGridColumns)
 public:
  explicit TGridColumns(TPersistent* owner = nullptr) : TCollection(TGridColumn::StaticClass(), owner) {}
  TGridColumn* Column(int index) const { return static_cast<TGridColumn*>(Item(index)); }
};

class TCustomGrid : public TWinControl {
  VRX_CLASS(TCustomGrid)
 public:
  explicit TCustomGrid(TComponent* owner);
  static constexpr TKept<TBorderStyle> BorderStyle{"BorderStyle", TBorderStyle::bsSingle};
  static constexpr TKept<int> ColCount{"ColCount", 5};
  static constexpr TKept<TGridColumns*> Columns{"Columns"};
  static constexpr TKept<TValueList*> ColWidths{"ColWidths"};
  static constexpr TKept<int> DefaultColWidth{"DefaultColWidth", 64};
  static constexpr TKept<int> DefaultRowHeight{"DefaultRowHeight", 24};
  static constexpr TKept<TColor> FixedColor{"FixedColor", clBtnFace};
  static constexpr TKept<int> FixedCols{"FixedCols", 1};
  static constexpr TKept<int> FixedRows{"FixedRows", 1};
  static constexpr TKept<int> GridLineWidth{"GridLineWidth", 1};
  static constexpr TKept<TGridOptions> Options{
      "Options",
      {TGridOption::goFixedVertLine, TGridOption::goFixedHorzLine, TGridOption::goVertLine,
       TGridOption::goHorzLine, TGridOption::goRangeSelect}};
  static constexpr TKept<int> RowCount{"RowCount", 5};
  static constexpr TKept<TValueList*> RowHeights{"RowHeights"};
  static constexpr TKept<TScrollStyle> ScrollBars{"ScrollBars", TScrollStyle::ssBoth};

  // What is fixed leaves something that is not; what a file says stands as it is.
  int Cols() const { return Get(ColCount); }
  void SetCols(int v) { SetCount(ColCount, FixedCols, v); }
  int Rows() const { return Get(RowCount); }
  void SetRows(int v) { SetCount(RowCount, FixedRows, v); }
  int ColsFixed() const { return Get(FixedCols); }
  void FixCols(int v) { SetFixed(ColCount, FixedCols, v); }
  int RowsFixed() const { return Get(FixedRows); }
  void FixRows(int v) { SetFixed(RowCount, FixedRows, v); }

  // As they are shown: described columns stand behind the fixed ones.
  virtual int ShownCols() const;
  virtual int ShownRows() const { return std::max(Get(RowCount), 0); }
  virtual int ColWidth(int col) const;
  int RowHeight(int row) const;
  // What a cell shows; nothing in a grid that the program draws.
  virtual QString CellText(int col, int row) const;

  void Paint(TCanvas& canvas) override;

 protected:
  virtual int ShownFixedCols() const { return std::max(Get(FixedCols), 0); }
  virtual int ShownFixedRows() const { return std::max(Get(FixedRows), 0); }

 private:
  int LeastFree() const;
  void SetCount(const TKept<int>& count, const TKept<int>& fixed, int v);
  void SetFixed(const TKept<int>& count, const TKept<int>& fixed, int v);
  const TGridColumn* DescribedColumn(int col) const;
  void PaintCell(TCanvas& canvas, const QRect& cell, int col, int row) const;
};

class TCustomDrawGrid : public TCustomGrid {
  VRX_CLASS(TCustomDrawGrid)
 public:
  using TCustomGrid::TCustomGrid;
};

class TDrawGrid : public TCustomDrawGrid {
  VRX_CLASS(TDrawGrid)
 public:
  using TCustomDrawGrid::TCustomDrawGrid;
};

class TStringGrid : public TCustomDrawGrid {
  VRX_CLASS(TStringGrid)
 public:
  using TCustomDrawGrid::TCustomDrawGrid;
  // The number of texts, then column, row and text of each.
  static constexpr TKept<TValueList*> Cells{"Cells"};

  QString Cell(int col, int row) const;
  void SetCell(int col, int row, const QString& text);
  // All texts, by column and row, also those that stand outside of what is shown. Throws EComponentError for
  // what a file has that is no list of texts.
  using TTexts = std::map<std::pair<int, int>, QString>;
  TTexts Texts() const;
  // All of them at once. Those that were there keep their order; new ones stand in that of columns and rows.
  void SetTexts(const TTexts& texts);
  QString CellText(int col, int row) const override;
};

// Names and values in two columns.
class TValueListEditor : public TCustomDrawGrid {
  VRX_CLASS(TValueListEditor)
 public:
  explicit TValueListEditor(TComponent* owner);
  static constexpr TKept<TStrings*> Strings{"Strings"};
  static constexpr TKept<TStrings*> TitleCaptions{"TitleCaptions"};
  enum class TDisplayOption : std::uint8_t { doColumnTitles, doAutoColResize, doKeyColFixed };
  using TDisplayOptions = TSet<TDisplayOption>;
  static constexpr TKept<TDisplayOptions> DisplayOptions{
      "DisplayOptions",
      {TDisplayOption::doColumnTitles, TDisplayOption::doAutoColResize, TDisplayOption::doKeyColFixed}};

  int ShownCols() const override { return 2; }
  int ShownRows() const override;
  int ColWidth(int col) const override;
  QString CellText(int col, int row) const override;

 protected:
  int ShownFixedCols() const override { return 0; }
  int ShownFixedRows() const override;
};
using TValueListDisplayOption = TValueListEditor::TDisplayOption;
VRX_TYPE_INFO(TValueListDisplayOption,
              EnumType("TDisplayOption", {"doColumnTitles", "doAutoColResize", "doKeyColFixed"}))
VRX_TYPE_INFO(TSet<TValueListDisplayOption>,
              SetType("TDisplayOptions", TypeInfoOf<TValueListDisplayOption>::Get()))
enum class TKeyOption : std::uint8_t { keyEdit, keyAdd, keyDelete, keyUnique };
VRX_ENUM(TKeyOption, {"keyEdit", "keyAdd", "keyDelete", "keyUnique"})
using TKeyOptions = TSet<TKeyOption>;
VRX_SET(TKeyOptions, TKeyOption)
