#include "vcl/DesignMarks.h"
#include "vcl/ItemPainting.h"
#include "vcl/ListView.h"

namespace {
constexpr int Gap = 3;              // around texts
constexpr int Checked = 1;          // the state of an item with a mark
constexpr int ListColumn = 120;     // of small icons side by side
constexpr QSize IconCell(75, 75);   // as lists of icons have it
constexpr QSize UsualIcon(32, 32);  // where there are no pictures

QImage ImageOf(const TCustomImageList* images, int index) { return images ? images->Image(index) : QImage(); }
QSize SizeOf(const TCustomImageList* images) {
  return images ? QSize(images->Get(TCustomImageList::Width), images->Get(TCustomImageList::Height))
                : QSize(0, 0);
}
}  // namespace

const TCustomImageList* TCustomListView::Images() const {
  return Get(ViewStyle) == TViewStyle::vsIcon ? Get(LargeImages) : Get(SmallImages);
}

int TCustomListView::LineHeight() const {
  return std::max(TextExtent(QStringLiteral("Wg"), *Font()).height() + 2, SizeOf(Get(SmallImages)).height());
}

int TCustomListView::MarksWidth() const {
  return (Get(Checkboxes) ? CheckMarkSize().width() + 2 * Gap : 0) + SizeOf(Get(StateImages)).width() +
         SizeOf(Images()).width();
}

QRect TCustomListView::PaintMarks(TCanvas& canvas, const QRect& line, const TListViewItem& item) const {
  QRect left = line;
  if (Get(Checkboxes)) {
    const int mark = CheckMarkSize().width();
    PaintCheckMark(canvas, QRect(left.left() + Gap, left.top(), mark, left.height()), PartStates(),
                   item.StateIndex == Checked ? TCheckBoxState::cbChecked : TCheckBoxState::cbUnchecked);
    left.setLeft(left.left() + mark + 2 * Gap);
  }
  for (const auto& [images, index] :
       {std::pair(Get(StateImages), item.StateIndex), std::pair(Get(SmallImages), item.ImageIndex)})
    if (images) left = PaintItemImage(canvas, left, ImageOf(images, index), SizeOf(images), Enabled());
  return left;
}

void TCustomListView::Paint(TCanvas& canvas) {
  QRect inside = ClientRect();
  if (Get(BorderStyle) == TBorderStyle::bsSingle) inside = PaintListFrame(canvas, inside, PartStates());
  canvas.FillRect(inside, Color());
  canvas.Painter().save();
  canvas.Painter().setClipRect(inside, Qt::IntersectClip);
  switch (Get(ViewStyle)) {
    case TViewStyle::vsReport:
      PaintReport(canvas, inside);
      break;
    case TViewStyle::vsIcon:
      PaintIcons(canvas, inside);
      break;
    default:
      PaintInColumns(canvas, inside);
  }
  if (Get(Items)->Items().isEmpty()) PaintDesignName(canvas, inside, *this);
  canvas.Painter().restore();
}

void TCustomListView::PaintReport(TCanvas& canvas, QRect inside) const {
  struct Shown {
    const TListColumn* column;
    int text;  // 0: the caption; else a subitem
    int left, width;
  };
  std::vector<Shown> shown;
  const TListColumns* columns = IsKept(&Columns) ? Get(Columns) : nullptr;
  int across = 0;
  for (int i = 0; columns && i < columns->Count(); ++i) {
    const TListColumn* c = columns->Column(i);
    if (!c->Get(TListColumn::Visible)) continue;
    shown.push_back({c, i, across, c->ShownWidth()});
    across += std::min(c->ShownWidth(), 0x7FFF);
  }
  // The captions of the items stand left whatever their column says.
  const auto alignmentOf = [](const Shown& s) {
    return AlignmentFlag(s.text == 0 ? TAlignment::taLeftJustify : s.column->Get(TListColumn::Alignment));
  };
  const QList<TListViewItem>& items = Get(Items)->Items();
  const int line = LineHeight(), head = Get(ShowColumnHeaders) ? line + 4 : 0;
  const auto count = static_cast<int>(std::min<qsizetype>(items.size(), 0xFFFF));
  inside = PaintItemBars(canvas, inside, PartStates(), {across, head + count * line});
  canvas.Painter().setClipRect(inside, Qt::IntersectClip);
  if (head > 0) {
    const QRect bar(inside.left(), inside.top(), inside.width(), head);
    for (const Shown& s : shown)
      if (const QRect cell(bar.left() + s.left, bar.top(), s.width, head); cell.intersects(bar)) {
        PaintHeaderCell(canvas, cell & bar, PartStates(), {}, *Font());
        PaintPlainText(canvas, cell.adjusted(Gap, 0, -Gap, 0), alignmentOf(s),
                       s.column->Get(TListColumn::Caption), *Font(), Enabled());
      }
    if (across < bar.width())
      PaintHeaderCell(canvas, bar.adjusted(across, 0, 0, 0), PartStates(), {}, *Font());
  }
  const QRect body = inside.adjusted(0, head, 0, 0);
  for (int i = 0; i < count; ++i) {
    const QRect row(body.left(), body.top() + i * line, body.width(), line);
    if (row.top() > body.bottom()) break;
    for (const Shown& s : shown) {
      QRect cell(row.left() + s.left, row.top(), s.width, line);
      if (!cell.intersects(body)) continue;
      if (s.text == 0) cell = PaintMarks(canvas, cell, items[i]);
      const QString text = s.text == 0                          ? items[i].Caption
                           : s.text <= items[i].SubItems.size() ? items[i].SubItems[s.text - 1]
                                                                : QString();
      PaintPlainText(canvas, cell.adjusted(Gap, 0, -Gap, 0), alignmentOf(s), text, *Font(), Enabled());
    }
  }
  if (!Get(GridLines)) return;
  for (int y = body.top() + line; y <= body.bottom(); y += line)
    canvas.FillRect(QRect(body.left(), y - 1, body.width(), 1), clBtnFace);
  for (const Shown& s : shown)
    canvas.FillRect(QRect(body.left() + s.left + s.width - 1, body.top(), 1, body.height()), clBtnFace);
}

// Small icons row by row; a list column by column.
void TCustomListView::PaintInColumns(TCanvas& canvas, const QRect& inside) const {
  const QList<TListViewItem>& items = Get(Items)->Items();
  const int line = LineHeight();
  int width = ListColumn;
  const bool list = Get(ViewStyle) == TViewStyle::vsList;
  constexpr qsizetype Measured = 200;  // no more can be in sight of any list
  for (qsizetype i = 0; i < std::min(items.size(), Measured); ++i)
    width = std::max(width, MarksWidth() + TextExtent(items[i].Caption, *Font()).width() + 4 * Gap);
  width = std::min(width, std::max(inside.width(), 1));
  const int perColumn = std::max(inside.height() / line, 1), perRow = std::max(inside.width() / width, 1);
  for (int i = 0; i < items.size(); ++i) {
    const QPoint at = list ? QPoint(i / perColumn * width, i % perColumn * line)
                           : QPoint(i % perRow * width, i / perRow * line);
    const QRect place(inside.topLeft() + at, QSize(width, line));
    if (!place.intersects(inside)) break;
    PaintPlainText(canvas, PaintMarks(canvas, place, items[i]).adjusted(Gap, 0, -Gap, 0), Qt::AlignLeft,
                   items[i].Caption, *Font(), Enabled());
  }
}

void TCustomListView::PaintIcons(TCanvas& canvas, const QRect& inside) const {
  const QList<TListViewItem>& items = Get(Items)->Items();
  const TCustomImageList* images = Get(LargeImages);
  const QSize icon = images ? SizeOf(images) : UsualIcon;
  const QSize cell =
      IconCell.expandedTo(icon + QSize(4 * Gap, TextExtent(QStringLiteral("Wg"), *Font()).height() * 2));
  const int perRow = std::max(inside.width() / cell.width(), 1);
  for (int i = 0; i < items.size(); ++i) {
    const QRect place(inside.left() + i % perRow * cell.width(), inside.top() + i / perRow * cell.height(),
                      cell.width(), cell.height());
    if (!place.intersects(inside)) break;
    const QRect picture(place.left() + (cell.width() - icon.width()) / 2, place.top() + Gap, icon.width(),
                        icon.height());
    if (images) PaintItemImage(canvas, picture, ImageOf(images, items[i].ImageIndex), icon, Enabled());
    const int height = TextExtent(QStringLiteral("Wg"), *Font()).height();
    const QRect text(place.left() + 1, images ? picture.bottom() + Gap : place.top() + Gap, cell.width() - 2,
                     height);
    PaintPlainText(canvas, text, Qt::AlignHCenter, items[i].Caption, *Font(), Enabled());
    if (Get(Checkboxes))
      PaintCheckMark(
          canvas,
          QRect(place.left() + 1, picture.bottom() - CheckMarkSize().height(), CheckMarkSize().width(),
                CheckMarkSize().height()),
          PartStates(),
          items[i].StateIndex == Checked ? TCheckBoxState::cbChecked : TCheckBoxState::cbUnchecked);
  }
}
