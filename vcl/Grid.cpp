#include "vcl/Grid.h"

#include "rtl/Class.h"
#include "rtl/Exceptions.h"
#include "vcl/AsGiven.h"
#include "vcl/ItemPainting.h"
#include "vcl/PropertyGroups.h"

const TClass& TFontChanges::StaticClass() {
  static const TClass cls(DescribeClass<TFontChanges>("TFontChanges", TPersistent::StaticClass())
                              .Passive("Charset", TFontCharset{1})
                              .Passive("Color", clDefault)
                              .Passive("Height", 0)
                              .Passive<QString>("Name")
                              .Passive("Orientation", 0)
                              .Passive("Pitch", TFontPitch::fpDefault)
                              .Passive("Quality", TFontQuality::fqDefault)
                              .Passive("Style", TFontStyles{}));
  return cls;
}

const TClass& TGridColumnTitle::StaticClass() {
  static const TClass cls(DescribeClass<TGridColumnTitle>("TGridColumnTitle", TPersistent::StaticClass())
                              .Published(Alignment)
                              .Published(Caption)
                              .Passive("Color", clBtnFace)
                              .Passive<TFontChanges*>("Font")
                              .Passive("ImageIndex", -1)
                              .Passive("Layout", TTextLayout::tlCenter)
                              .Passive("MultiLine", false));
  return cls;
}

const TClass& TGridColumn::StaticClass() {
  static const TClass cls(DescribeClass<TGridColumn>("TGridColumn", TCollectionItem::StaticClass())
                              .Published(Alignment)
                              .Passive("ButtonStyle", TColumnButtonStyle::cbsAuto)
                              .Passive("Color", clWindow)
                              .Passive("DropDownRows", 7)
                              .Passive("Expanded", true)
                              .Passive<TFontChanges*>("Font")
                              .Passive("Layout", TTextLayout::tlCenter)
                              .Passive("MaxSize", 200)
                              .Passive("MinSize", 10)
                              .Passive<TStrings*>("PickList")
                              .Passive("ReadOnly", false)
                              .Passive("SizePriority", 1)
                              .Passive("Tag", 0)
                              .Published(Title)
                              .Passive<QString>("ValueChecked")
                              .Passive<QString>("ValueUnchecked")
                              .PublishedAll(Visible, Width));
  return cls;
}

QString TGridColumn::DisplayName() const {
  const QString title = Get(Title)->Get(TGridColumnTitle::Caption);
  return title.isEmpty() ? TCollectionItem::DisplayName() : title;
}

const TClass& TGridColumns::StaticClass() {
  static const TClass cls(DescribeClass<TGridColumns>("TGridColumns", TCollection::StaticClass()));
  return cls;
}

const TClass& TCustomGrid::StaticClass() {
  static const TTypeInfo count = OrdinalType("Longint", 0, INT32_MAX);
  static const TClass cls(
      DescribeClass<TCustomGrid>("TCustomGrid", TWinControl::StaticClass())
          .Declared(BorderStyle)
          .Declared("ColCount", &TCustomGrid::Cols, &TCustomGrid::SetCols, 5)
          .Type(count)
          .DeclaredAll(Columns, DefaultColWidth, DefaultRowHeight, FixedColor)
          .Declared("FixedCols", &TCustomGrid::ColsFixed, &TCustomGrid::FixCols, 1)
          .Declared("FixedRows", &TCustomGrid::RowsFixed, &TCustomGrid::FixRows, 1)
          .Declared(GridLineWidth)
          .Declared(Options)
          .OtherDefault(TGridOptions{TGridOption::goFixedVertLine, TGridOption::goFixedHorzLine,
                                     TGridOption::goVertLine, TGridOption::goHorzLine,
                                     TGridOption::goRangeSelect, TGridOption::goSmoothScroll})
          .Declared("RowCount", &TCustomGrid::Rows, &TCustomGrid::SetRows, 5)
          .Type(count)
          .Declared(ScrollBars)
          .OtherDefault(TScrollStyle::ssAutoBoth)
          .DeclaredPassive("AllowOutboundEvents", true)
          .DeclaredPassive("AlternateColor", clWindow)
          .DeclaredPassive("AutoAdvance", TAutoAdvance::aaRight)
          .DeclaredPassive("AutoEdit", true)
          .DeclaredPassive("AutoFillColumns", false)
          .DeclaredPassive("DefaultDrawing", true)
          .DeclaredPassive("DrawingStyle", TGridDrawingStyle::gdsThemed)
          .DeclaredPassive("ColumnClickSorts", false)
          .DeclaredPassive("ExtendedSelect", true)
          .DeclaredPassive("FadeUnfocusedSelection", false)
          .DeclaredPassive("MouseWheelOption", TMouseWheelOption::mwCursor)
          .DeclaredPassive("Options2", TGridOptions2{})
          .DeclaredPassive("RangeSelectMode", TRangeSelectMode::rsmSingle)
          .DeclaredPassive("TitleImageListWidth", 0)
          .DeclaredPassive("Flat", false)
          .DeclaredPassive("GradientEndColor", clBtnShadow)
          .DeclaredPassive("GradientStartColor", clBtnFace)
          .DeclaredPassive("HeaderHotZones", TGridZoneSet{TGridZone::gzFixedCols})
          .DeclaredPassive("HeaderPushZones", TGridZoneSet{TGridZone::gzFixedCols})
          .DeclaredPassive("TabAdvance", TAutoAdvance::aaRightDown)
          .DeclaredPassive<TFontChanges*>("TitleFont")
          .DeclaredPassive<TCustomImageList*>("TitleImageList")
          .DeclaredPassive("TitleStyle", TTitleStyle::tsLazarus)
          .DeclaredPassive("UseXORFeatures", false)
          .DeclaredPassive("VisibleColCount", 0)
          .DeclaredPassive("VisibleRowCount", 0)
          .DeclaredEvent("OnAfterSelection", "TOnSelectEvent")
          .DeclaredEvent("OnBeforeSelection", "TOnSelectEvent")
          .DeclaredEvent("OnButtonClick", "TOnSelectEvent")
          .DeclaredEvent("OnCheckboxToggled", "TToggledCheckboxEvent")
          .DeclaredEvent("OnColRowDeleted", "TGridOperationEvent")
          .DeclaredEvent("OnColRowExchanged", "TGridOperationEvent")
          .DeclaredEvent("OnColRowInserted", "TGridOperationEvent")
          .DeclaredEvent("OnColRowMoved", "TGridOperationEvent")
          .DeclaredEvent("OnColumnMoved", "TMovedEvent")
          .DeclaredEvent("OnCompareCells", "TOnCompareCells")
          .DeclaredEvent("OnDrawCell", "TDrawCellEvent")
          .DeclaredEvent("OnEditButtonClick")
          .DeclaredEvent("OnEditingDone")
          .DeclaredEvent("OnFixedCellClick", "TFixedCellClickEvent")
          .DeclaredEvent("OnGetCellHint", "TGetCellHintEvent")
          .DeclaredEvent("OnGetCheckboxState", "TGetCheckboxStateEvent")
          .DeclaredEvent("OnGetEditMask", "TGetEditEvent")
          .DeclaredEvent("OnGetEditText", "TGetEditEvent")
          .DeclaredEvent("OnHeaderClick", "THdrEvent")
          .DeclaredEvent("OnHeaderSized", "THdrEvent")
          .DeclaredEvent("OnPickListSelect")
          .DeclaredEvent("OnPrepareCanvas", "TOnPrepareCanvasEvent")
          .DeclaredEvent("OnRowMoved", "TMovedEvent")
          .DeclaredEvent("OnSelectCell", "TSelectCellEvent")
          .DeclaredEvent("OnSelectEditor", "TSelectEditorEvent")
          .DeclaredEvent("OnSelection", "TOnSelectEvent")
          .DeclaredEvent("OnSetCheckboxState", "TSetCheckboxStateEvent")
          .DeclaredEvent("OnSetEditText", "TSetEditEvent")
          .DeclaredEvent("OnTopLeftChanged")
          .DeclaredEvent("OnUserCheckboxBitmap", "TUserCheckBoxBitmapEvent")
          .DeclaredEvent("OnValidateEntry", "TValidateEntryEvent")
          .Streamed(ColWidths)
          .Streamed(RowHeights));
  return cls;
}

TCustomGrid::TCustomGrid(TComponent* owner) : TWinControl(owner) {
  tabStop_ = true;
  StartWith(clWindow);
  SetBounds(0, 0, 320, 120);
}

// One of the two families wants a cell that is not fixed.
int TCustomGrid::LeastFree() const { return IsOfOtherFamily() ? 0 : 1; }

void TCustomGrid::SetCount(const TKept<int>& count, const TKept<int>& fixed, int v) {
  if (v == Get(count)) return;
  if (TakesAsGiven(*this)) return Set(count, v);
  const int least = LeastFree();
  if (v < least)
    throw EPropertyError(QStringLiteral("%1 of %2 cannot be %3. Use %4 or more.")
                             .arg(QLatin1StringView(count.Name), Name())
                             .arg(v)
                             .arg(least));
  const TUpdateLock once(*this);
  Set(fixed, std::min(Get(fixed), v - least));
  Set(count, v);
}

void TCustomGrid::SetFixed(const TKept<int>& count, const TKept<int>& fixed, int v) {
  if (v == Get(fixed)) return;
  const int most = Get(count) - LeastFree();
  const bool described = &count == &ColCount && IsKept(&Columns) && Get(Columns)->Count() > 0;
  if (!TakesAsGiven(*this) && !described && (v < 0 || v > most))
    throw EPropertyError(QStringLiteral("%1 of %2 cannot be %3: %4 is %5. Use 0 to %6.")
                             .arg(QLatin1StringView(fixed.Name), Name())
                             .arg(v)
                             .arg(QLatin1StringView(count.Name))
                             .arg(Get(count))
                             .arg(std::max(most, 0)));
  Set(fixed, v);
}

const TGridColumn* TCustomGrid::DescribedColumn(int col) const {
  const TGridColumns* columns = IsKept(&Columns) ? Get(Columns) : nullptr;
  int at = col - ShownFixedCols();
  for (int i = 0; columns && at >= 0 && i < columns->Count(); ++i)
    if (columns->Column(i)->Get(TGridColumn::Visible) && at-- == 0) return columns->Column(i);
  return nullptr;
}

int TCustomGrid::ShownCols() const {
  int described = 0;
  if (const TGridColumns* columns = IsKept(&Columns) ? Get(Columns) : nullptr)
    for (int i = 0; i < columns->Count(); ++i) described += columns->Column(i)->Get(TGridColumn::Visible);
  return described > 0 ? ShownFixedCols() + described : std::max(Get(ColCount), 0);
}

int TCustomGrid::ColWidth(int col) const {
  if (const TGridColumn* column = DescribedColumn(col)) return std::max(column->Get(TGridColumn::Width), 0);
  const int width = Get(DefaultColWidth);
  return std::max(IsKept(&ColWidths) ? Get(ColWidths)->NumberAt(static_cast<std::size_t>(col), width) : width,
                  0);
}

int TCustomGrid::RowHeight(int row) const {
  const int height = Get(DefaultRowHeight);
  return std::max(
      IsKept(&RowHeights) ? Get(RowHeights)->NumberAt(static_cast<std::size_t>(row), height) : height, 0);
}

QString TCustomGrid::CellText(int col, int row) const {
  const TGridColumn* column = row == 0 && ShownFixedRows() > 0 ? DescribedColumn(col) : nullptr;
  return column ? column->Get(TGridColumn::Title)->Get(TGridColumnTitle::Caption) : QString();
}

void TCustomGrid::PaintCell(TCanvas& canvas, const QRect& cell, int col, int row) const {
  using enum TGridOption;
  const bool fixed = col < ShownFixedCols() || row < ShownFixedRows();
  const TGridOptions options = Get(Options);
  canvas.FillRect(cell, fixed ? Get(FixedColor) : Color());
  const int line = std::max(Get(GridLineWidth), 0);
  const TColor ink = fixed ? clBtnShadow : cl3DLight;
  if (options.Contains(fixed ? goFixedVertLine : goVertLine))
    canvas.FillRect(QRect(cell.right() + 1, cell.top(), line, cell.height() + line), ink);
  if (options.Contains(fixed ? goFixedHorzLine : goHorzLine))
    canvas.FillRect(QRect(cell.left(), cell.bottom() + 1, cell.width() + line, line), ink);
  const TGridColumn* column = DescribedColumn(col);
  const TAlignment alignment = !column ? TAlignment::taLeftJustify
                               : fixed ? column->Get(TGridColumn::Title)->Get(TGridColumnTitle::Alignment)
                                       : column->Get(TGridColumn::Alignment);
  PaintPlainText(canvas, cell.adjusted(3, 0, -2, 0), AlignmentFlag(alignment), CellText(col, row), *Font(),
                 Enabled());
}

void TCustomGrid::Paint(TCanvas& canvas) {
  QRect inside = ClientRect();
  if (Get(BorderStyle) == TBorderStyle::bsSingle) inside = PaintListFrame(canvas, inside, PartStates());
  canvas.FillRect(inside, Color());
  const int line = std::max(Get(GridLineWidth), 0), cols = ShownCols(), rows = ShownRows();
  QPainter& p = canvas.Painter();
  p.save();
  p.setClipRect(inside, Qt::IntersectClip);
  // Only what is in sight costs anything, however many there are.
  for (int row = 0, y = inside.top(); row < rows && y <= inside.bottom(); ++row) {
    const int height = std::min(RowHeight(row), inside.bottom() - y + 1);
    for (int col = 0, x = inside.left(); col < cols && x <= inside.right(); ++col) {
      const int width = std::min(ColWidth(col), inside.right() - x + 1);
      PaintCell(canvas, QRect(x, y, width, height), col, row);
      x += width + line;
      if (width + line == 0 && col > inside.width()) break;
    }
    y += height + line;
    if (height + line == 0 && row > inside.height()) break;
  }
  p.restore();
}

namespace {
// What all grids publish.
constexpr const char* GridEvents[] = {
    "OnAfterSelection",   "OnBeforeSelection",  "OnButtonClick", "OnCheckboxToggled", "OnColRowDeleted",
    "OnColRowExchanged",  "OnColRowInserted",   "OnColRowMoved", "OnColumnMoved",     "OnCompareCells",
    "OnDrawCell",         "OnEditButtonClick",  "OnEditingDone", "OnFixedCellClick",  "OnGetCellHint",
    "OnGetCheckboxState", "OnGetEditMask",      "OnGetEditText", "OnHeaderClick",     "OnHeaderSized",
    "OnPickListSelect",   "OnPrepareCanvas",    "OnRowMoved",    "OnSelectCell",      "OnSelectEditor",
    "OnSelection",        "OnSetCheckboxState", "OnSetEditText", "OnTopLeftChanged",  "OnUserCheckboxBitmap",
    "OnValidateEntry"};
constexpr const char* GridProperties[] = {"AlternateColor",   "AutoAdvance",
                                          "AutoEdit",         "AutoFillColumns",
                                          "BorderStyle",      "DefaultColWidth",
                                          "DefaultDrawing",   "DefaultRowHeight",
                                          "DrawingStyle",     "ExtendedSelect",
                                          "FixedColor",       "Flat",
                                          "GradientEndColor", "GradientStartColor",
                                          "GridLineWidth",    "HeaderHotZones",
                                          "HeaderPushZones",  "Options",
                                          "ScrollBars",       "TabAdvance",
                                          "TitleFont",        "TitleImageList",
                                          "TitleStyle",       "UseXORFeatures",
                                          "ColumnClickSorts", "FadeUnfocusedSelection",
                                          "MouseWheelOption", "Options2",
                                          "RangeSelectMode",  "TitleImageListWidth"};

template <class T>
TClassBuilder DescribeGrid(const char* name) {
  return DescribeClass<T>(name, TCustomDrawGrid::StaticClass())
      .PublishAll(Placing, Lettering, Hints, Placement, Direction, Dragging, Bevels, Windowed, Help, Input,
                  Styling, WheelEvents, MouseEvents, KeyEvents, FocusEvents, DragEvents, GridProperties,
                  GridEvents)
      .Publish("Color", clWindow)
      .Publish("ParentColor", false)
      .Publish("TabStop", true);
}
}  // namespace

const TClass& TCustomDrawGrid::StaticClass() {
  static const TClass cls(DescribeClass<TCustomDrawGrid>("TCustomDrawGrid", TCustomGrid::StaticClass()));
  return cls;
}

const TClass& TDrawGrid::StaticClass() {
  static const TClass cls(
      DescribeGrid<TDrawGrid>("TDrawGrid")
          .PublishAll("ColCount", "Columns", "FixedCols", "FixedRows", "RowCount")
          .Alphabetical()
          .ClassDoc(QStringLiteral("A grid whose cells the program draws."),
                    "pen line 1.5 brush fill box 3.5 4.5 17 15 0 pen accent 1.5 path 3.5 9.5 20.5 9.5 path 9 "
                    "4.5 9 19.5 pen line 1.5 path 9 14.5 20.5 14.5 path 14.5 9.5 14.5 19.5"));
  return cls;
}

const TClass& TStringGrid::StaticClass() {
  static const TClass cls(
      DescribeGrid<TStringGrid>("TStringGrid")
          .PublishAll("ColCount", "Columns", "FixedCols", "FixedRows", "RowCount")
          .Alphabetical()
          .Streamed(Cells)
          .ClassDoc(
              QStringLiteral("A grid of texts."),
              "pen line 1.5 brush fill box 3.5 4.5 17 15 0 path 3.5 9.5 20.5 9.5 path 9 4.5 9 19.5 path "
              "9 14.5 20.5 14.5 pen accent 2 path 11.5 12 18 12 path 11.5 17 16 17"));
  return cls;
}

namespace {
// Where the texts of a grid stand: the index of the column of one; -1 when there is none.
int TripleOf(const TValueList& cells, int col, int row) {
  constexpr int Triple = 3;
  const auto size = static_cast<int>(cells.Items().size());
  for (int i = 1; i + Triple <= size; i += Triple)
    if (cells.NumberAt(static_cast<std::size_t>(i), -1) == col &&
        cells.NumberAt(static_cast<std::size_t>(i) + 1, -1) == row)
      return i;
  return -1;
}
std::pair<int, int> PlaceOf(const TValueList& cells, std::size_t triple) {
  return {cells.NumberAt(triple, -1), cells.NumberAt(triple + 1, -1)};
}
}  // namespace

QString TStringGrid::Cell(int col, int row) const {
  if (!IsKept(&Cells)) return {};
  const int at = TripleOf(*Get(Cells), col, row);
  return at < 0 ? QString() : Get(Cells)->TextAt(static_cast<std::size_t>(at) + 2);
}

void TStringGrid::SetCell(int col, int row, const QString& text) {
  if (Cell(col, row) == text) return;
  std::vector<TValueList::TItem> items = Get(Cells)->Items();
  if (items.empty()) items.emplace_back(std::int64_t{0});
  const int at = TripleOf(*Get(Cells), col, row);
  if (at < 0) {
    items.insert(items.end(), {std::int64_t{col}, std::int64_t{row}, text});
  } else if (text.isEmpty()) {
    items.erase(items.begin() + at, items.begin() + at + 3);
  } else {
    items[static_cast<std::size_t>(at) + 2] = text;
  }
  items[0] = static_cast<std::int64_t>((items.size() - 1) / 3);
  if (items.size() == 1) items.clear();
  Get(Cells)->SetItems(std::move(items));
}

TStringGrid::TTexts TStringGrid::Texts() const {
  TTexts texts;
  const std::vector<TValueList::TItem> items =
      IsKept(&Cells) ? Get(Cells)->Items() : std::vector<TValueList::TItem>();
  bool sound = items.empty() || items.size() % 3 == 1;
  for (std::size_t i = 1; sound && i < items.size(); i += 3) {
    sound = std::holds_alternative<std::int64_t>(items[i]) &&
            std::holds_alternative<std::int64_t>(items[i + 1]) &&
            std::holds_alternative<QString>(items[i + 2]);
    if (sound) texts.emplace(PlaceOf(*Get(Cells), i), std::get<QString>(items[i + 2]));
  }
  if (!sound)
    throw EComponentError(
        QStringLiteral("The cells of %1 are no list of columns, rows and texts.").arg(Name()));
  return texts;
}

void TStringGrid::SetTexts(const TTexts& texts) {
  const TTexts before = Texts();
  if (texts == before) return;
  const TValueList& cells = *Get(Cells);
  std::vector<TValueList::TItem> items{std::int64_t{0}};
  const auto add = [&](const TTexts::value_type& text) {
    items.insert(items.end(), {std::int64_t{text.first.first}, std::int64_t{text.first.second}, text.second});
  };
  auto next = texts.begin();
  const auto addNewUpTo = [&](const std::pair<int, int>* place) {
    for (; next != texts.end() && (!place || next->first < *place); ++next)
      if (!before.contains(next->first)) add(*next);
  };
  for (std::size_t i = 1; i + 2 < cells.Items().size(); i += 3) {
    const std::pair<int, int> place = PlaceOf(cells, i);
    addNewUpTo(&place);
    if (const auto it = texts.find(place); it != texts.end()) add(*it);
  }
  addNewUpTo(nullptr);
  items[0] = static_cast<std::int64_t>((items.size() - 1) / 3);
  if (items.size() == 1) items.clear();
  Get(Cells)->SetItems(std::move(items));
}

QString TStringGrid::CellText(int col, int row) const {
  const QString own = Cell(col, row);
  return own.isEmpty() ? TCustomDrawGrid::CellText(col, row) : own;
}

namespace {
constexpr int NameWidth = 150, LineHeight = 18;
constexpr TGridOptions EditorOptions{TGridOption::goFixedVertLine,    TGridOption::goFixedHorzLine,
                                     TGridOption::goVertLine,         TGridOption::goHorzLine,
                                     TGridOption::goColSizing,        TGridOption::goEditing,
                                     TGridOption::goAlwaysShowEditor, TGridOption::goThumbTracking};
}  // namespace

const TClass& TValueListEditor::StaticClass() {
  static const TClass cls(
      DescribeGrid<TValueListEditor>("TValueListEditor")
          .PublishedAll(DisplayOptions, Strings, TitleCaptions)
          .Passive("DropDownRows", 8)
          .Passive("KeyOptions", TKeyOptions{})
          .Publish("FixedCols", 0)
          .Publish("DefaultColWidth", NameWidth)
          .Publish("DefaultRowHeight", LineHeight)
          .Publish("Options", EditorOptions)
          .Event("OnStringsChange")
          .Event("OnStringsChanging")
          .Event("OnGetPickList", "TGetPickListEvent")
          .Event("OnValidate", "TOnValidateEvent")
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("Names and their values in two columns."),
              "pen line 1.5 brush fill box 3.5 4.5 17 15 0 path 3.5 9.5 20.5 9.5 path 11 4.5 11 19.5 "
              "path 5.5 12.5 9 12.5 path 5.5 16 8 16 pen accent 2 path 13.5 12.5 18.5 12.5 path 13.5 16 "
              "17 16"));
  return cls;
}

TValueListEditor::TValueListEditor(TComponent* owner) : TCustomDrawGrid(owner) {
  SetBounds(0, 0, 306, 300);
  SetQuiet(true);
  Set(ColCount, 2);
  Set(FixedCols, 0);
  Set(DefaultColWidth, NameWidth);
  Set(DefaultRowHeight, LineHeight);
  Set(Options, EditorOptions);
  SetQuiet(false);
}

// The values have what the names leave.
int TValueListEditor::ColWidth(int col) const {
  const int names = TCustomDrawGrid::ColWidth(0);
  return col == 0 ? names : std::max(ClientRect().width() - names - 6, TCustomDrawGrid::ColWidth(col));
}

int TValueListEditor::ShownFixedRows() const {
  return Get(DisplayOptions).Contains(TDisplayOption::doColumnTitles) ? 1 : 0;
}

int TValueListEditor::ShownRows() const {
  const int lines = IsKept(&Strings) ? Get(Strings)->Count() : 0;
  return ShownFixedRows() + std::max(lines, 1);
}

QString TValueListEditor::CellText(int col, int row) const {
  const int fixed = ShownFixedRows();
  if (row < fixed) {
    const QStringList titles = IsKept(&TitleCaptions) ? Get(TitleCaptions)->Lines() : QStringList();
    if (col < titles.size()) return titles[col];
    return col == 0 ? QStringLiteral("Key") : QStringLiteral("Value");
  }
  const QStringList lines = IsKept(&Strings) ? Get(Strings)->Lines() : QStringList();
  if (row - fixed >= lines.size()) return {};
  const QString& line = lines[row - fixed];
  const qsizetype equals = line.indexOf(u'=');
  if (col == 0) return equals < 0 ? line : line.left(equals);
  return equals < 0 ? QString() : line.mid(equals + 1);
}
