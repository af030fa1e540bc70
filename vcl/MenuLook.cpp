#include "vcl/MenuLook.h"

#include <QApplication>
#include <QPainter>

#include "rtl/PropAccess.h"
#include "vcl/Action.h"
#include "vcl/FormColors.h"
#include "vcl/LineRect.h"
#include "vcl/ShownText.h"

namespace {
constexpr int RowHeight = 22, BarHeight = 20, SeparatorHeight = 7, Gutter = 26, Arrow = 20, Gap = 24;
constexpr int BarPadding = 8, Least = 72;
constexpr int GapWidth = TMenuLook::LeastTyped + 2;

QFont MenuFont(bool bold = false) {
  QFont font = QApplication::font();
  font.setPixelSize(12);
  font.setBold(bold);
  return font;
}
int WidthOf(const QString& text, bool bold) {
  return QFontMetrics(MenuFont(bold)).size(Qt::TextShowMnemonic, ShownText(text)).width();
}

TShortCut ShortCutOfItem(const TMenuItem& item) {
  const auto* action = As<TCustomAction>(item.Get(TMenuItem::Action));
  const TShortCut own = item.Get(TMenuItem::ShortCut);
  return own == TShortCut{} && action ? action->Get(TCustomAction::ShortCut) : own;
}
int ImageIndexOf(const TMenuItem& item) {
  const auto* action = As<TCustomAction>(item.Get(TMenuItem::Action));
  const int own = item.Get(TMenuItem::ImageIndex);
  return own < 0 && action ? action->Get(TCustomAction::ImageIndex) : own;
}
// That of the menu, under the name that its class has for it.
const TCustomImageList* ImagesOf(const TMenu& menu) {
  if (const TCustomImageList* images = menu.Get(TMenu::Images)) return images;
  const TPropInfo* own = menu.ClassType().FindProp("ImageList");
  return own && IsComponentRef(*own) ? As<TCustomImageList>(GetObjectProp(const_cast<TMenu&>(menu), *own))
                                     : nullptr;
}
// Its own picture, or that of the list that the menu or the item around it has.
QImage PictureOf(const TMenuItem& item, const TMenu& menu) {
  if (item.IsKept(&TMenuItem::Bitmap) && !item.Get(TMenuItem::Bitmap)->Empty())
    return item.Get(TMenuItem::Bitmap)->Transparent();
  const auto* around = As<TMenuItem>(item.Around());
  const TCustomImageList* own = around ? around->Get(TMenuItem::SubMenuImages) : nullptr;
  const TCustomImageList* images = own ? own : ImagesOf(menu);
  return images ? images->Image(ImageIndexOf(item)) : QImage();
}
QColor Mixed(const QColor& a, const QColor& b) {
  return QColor((a.red() + b.red()) / 2, (a.green() + b.green()) / 2, (a.blue() + b.blue()) / 2);
}
}  // namespace

TMenu* MenuOf(const TComponent& component) {
  const TComponent* at = &component;
  while (const auto* nested = As<TNestedComponent>(at)) {
    if (const auto* menu = As<TMenu>(nested)) return const_cast<TMenu*>(menu);
    at = nested->Around();
  }
  return nullptr;
}

int MenuBarHeight(const TMainMenu& menu, int width) {
  const TMenuLook look(menu, width);
  return look.Panes().front().Cells.empty() ? 0 : look.Panes().front().Rect.height();
}

TMenuLook::TMenuLook(const TMenu& menu, int width) : TMenuLook(menu, width, false, {}) {}
TMenuLook TMenuLook::Designed(const TMenu& menu, int width, const Place& gap) {
  return TMenuLook(menu, width, true, gap);
}
TMenuLook::TMenuLook(const TMenu& menu, int width, bool designed, const Place& gap)
    : menu_(const_cast<TMenu&>(menu)), designed_(designed), gap_(gap) {
  if (As<TMainMenu>(&menu))
    AddBar(width);
  else
    AddDropDown(menu_, {0, 0});
}

std::vector<TMenuItem*> TMenuLook::ItemsOf(const TNestedComponent& level) const {
  std::vector<TMenuItem*> items;
  for (TNestedComponent* c : level.Nested())
    if (auto* item = As<TMenuItem>(c); item && (designed_ || item->Get(TMenuItem::Visible)))
      items.push_back(item);
  return items;
}

// Of a row in a drop-down; the bar takes the width of the text only.
QSize TMenuLook::CellSize(const TMenuItem* item) const {
  if (!item) return {Least, RowHeight};
  if (item->IsSeparator()) return {Least, SeparatorHeight};
  const QString keys = ShortCutToText(ShortCutOfItem(*item));
  const bool bold = item->Get(TMenuItem::Default);
  const int text = WidthOf(item->ShownCaption(), bold) + (keys.isEmpty() ? 0 : Gap + WidthOf(keys, bold));
  return {std::max(Least, Gutter + text + Arrow), std::max(RowHeight, PictureOf(*item, menu_).height() + 4)};
}

void TMenuLook::AddBar(int width) {
  TMenuPane pane{&menu_, true, {0, 0, width, BarHeight}, {}};
  int x = 0, y = 0;
  const auto add = [&](TMenuItem* item, int wide) {
    if (x > 0 && x + wide > width) {
      x = 0;
      y += BarHeight;
    }
    pane.Cells.push_back({item, QRect(x, y, wide, BarHeight)});
    x += wide;
  };
  for (TMenuItem* item : ItemsOf(menu_)) {
    if (IsGap(menu_, item)) add(nullptr, GapWidth);
    add(item, WidthOf(item->ShownCaption(), false) + 2 * BarPadding);
  }
  if (designed_) add(nullptr, Least);
  pane.Rect.setHeight(y + BarHeight);
  panes_.push_back(std::move(pane));
}

void TMenuLook::AddDropDown(TNestedComponent& level, QPoint at) {
  TMenuPane pane{&level, false, {}, {}};
  constexpr int Edge = 3;
  int x = at.x() + Edge, y = at.y() + Edge, bottom = y, wide = Least;
  std::size_t column = 0;  // where it begins
  const auto endColumn = [&] {
    for (; column < pane.Cells.size(); ++column) pane.Cells[column].Rect.setWidth(wide);
    bottom = std::max(bottom, y);
  };
  const auto add = [&](TMenuItem* item) {
    if (item && item->Get(TMenuItem::Break) != TMenuBreak::mbNone && !pane.Cells.empty()) {
      endColumn();
      x += wide + Edge;
      y = at.y() + Edge;
      wide = Least;
    }
    if (item && IsGap(level, item)) {
      pane.Cells.push_back({nullptr, QRect(x, y, GapWidth, RowHeight)});
      wide = std::max(wide, GapWidth);
      y += RowHeight;
    }
    const QSize size = CellSize(item);
    pane.Cells.push_back({item, QRect(QPoint(x, y), size)});
    wide = std::max(wide, size.width());
    y += size.height();
  };
  for (TMenuItem* item : ItemsOf(level)) add(item);
  if (designed_) add(nullptr);
  if (pane.Cells.empty()) return;
  endColumn();
  pane.Rect = QRect(at, QPoint(x + wide + Edge - 1, bottom + Edge - 1));
  panes_.push_back(std::move(pane));
}

void TMenuLook::Open(const Place& place) {
  std::vector<TMenuItem*> path;  // from the inside
  if (place.Item && !place.Item->IsSeparator()) path.push_back(place.Item);
  for (auto* c = As<TMenuItem>(place.Item ? place.Item->Around() : place.Level); c;
       c = As<TMenuItem>(c->Around()))
    path.push_back(c);
  for (auto it = path.rbegin(); it != path.rend(); ++it) {
    const QRect cell = RectOf({(*it)->Around(), *it});
    if (cell.isNull()) return;
    const bool bar = panes_.back().Bar;
    if (*it == place.Item && (*it)->Nested().empty() && !bar) return;
    AddDropDown(**it, bar ? cell.bottomLeft() + QPoint(0, 1) : cell.topRight() + QPoint(0, -3));
  }
}

TMenuLook::Place TMenuLook::At(QPoint point) const {
  for (auto pane = panes_.rbegin(); pane != panes_.rend(); ++pane) {
    for (const TMenuCell& cell : pane->Cells)
      if (cell.Rect.contains(point)) return {pane->Level, cell.Item};
    if (pane->Rect.contains(point) && !pane->Bar) return {};
  }
  return {};
}

QRect TMenuLook::RectOf(const Place& place) const {
  for (const TMenuPane& pane : panes_)
    if (pane.Level == place.Level)
      for (const TMenuCell& cell : pane.Cells)
        if (cell.Item == place.Item) return cell.Rect;
  return {};
}

QSize TMenuLook::Size() const {
  QRect all;
  for (const TMenuPane& pane : panes_) all |= pane.Rect;
  return {all.right() + 1, all.bottom() + 1};
}

void TMenuLook::Paint(QPainter& painter, const Place& current) const {
  for (const TMenuPane& pane : panes_) PaintPane(painter, pane, current);
}
void TMenuLook::PaintDropDowns(QPainter& painter, const Place& current) const {
  for (const TMenuPane& pane : panes_)
    if (!pane.Bar) PaintPane(painter, pane, current);
}

void TMenuLook::PaintPane(QPainter& p, const TMenuPane& pane, const Place& current) const {
  const QPalette palette = FormPalette();
  p.save();
  if (pane.Bar) {
    p.fillRect(pane.Rect, palette.color(QPalette::Window));
  } else {
    p.setPen(palette.color(QPalette::Mid));
    p.setBrush(palette.color(QPalette::Base));
    p.drawRect(LineRect(pane.Rect));
  }
  // What leads to the marked place is marked, too.
  const auto onTheWay = [&](const TMenuCell& cell) {
    if (!cell.Item) return current.Level == pane.Level && !current.Item;
    for (const TNestedComponent* c = current.Item ? current.Item : current.Level; c; c = c->Around())
      if (c == cell.Item) return true;
    return false;
  };
  for (const TMenuCell& cell : pane.Cells) PaintItem(p, pane, cell, onTheWay(cell));
  p.restore();
}

void TMenuLook::PaintItem(QPainter& p, const TMenuPane& pane, const TMenuCell& cell, bool current) const {
  const QPalette palette = FormPalette();
  const QRect r = cell.Rect;
  if (current) p.fillRect(r, palette.color(QPalette::Highlight));
  if (!cell.Item) {
    p.setPen(QPen(palette.color(current ? QPalette::HighlightedText : QPalette::Mid), 1, Qt::DotLine));
    p.setBrush(Qt::NoBrush);
    p.drawRect(r.adjusted(2, 2, -3, -3));
    return;
  }
  const TMenuItem& item = *cell.Item;
  const QColor ground = palette.color(current    ? QPalette::Highlight
                                      : pane.Bar ? QPalette::Window
                                                 : QPalette::Base);
  QColor ink = palette.color(current    ? QPalette::HighlightedText
                             : pane.Bar ? QPalette::WindowText
                                        : QPalette::Text);
  const bool faint = !item.Get(TMenuItem::Enabled) || !item.Get(TMenuItem::Visible);
  if (faint) ink = Mixed(ink, ground);
  p.setPen(ink);
  p.setBrush(Qt::NoBrush);
  if (item.IsSeparator() && !pane.Bar) {
    const int y = r.center().y();
    p.setPen(current ? ink : palette.color(QPalette::Mid));
    return p.drawLine(r.left() + Gutter, y, r.right() - 4, y);
  }
  p.setFont(MenuFont(item.Get(TMenuItem::Default)));
  const QString text = ShownText(item.ShownCaption());
  if (pane.Bar) return p.drawText(r, Qt::AlignCenter | Qt::TextShowMnemonic, text);
  const QRect inside = r.adjusted(Gutter, 0, -Arrow, 0);
  p.drawText(inside, Qt::AlignVCenter | Qt::TextShowMnemonic, text);
  p.drawText(inside, Qt::AlignVCenter | Qt::AlignRight, ShortCutToText(ShortCutOfItem(item)));
  p.setRenderHint(QPainter::Antialiasing);
  const QRectF mark(r.left() + 3, r.center().y() - 9, 20, 20);
  const QPointF middle = mark.center();
  if (const QImage picture = PictureOf(item, menu_); !picture.isNull()) {
    p.setOpacity(faint ? 0.5 : 1);
    p.drawImage(QPoint(qRound(middle.x()) - picture.width() / 2, qRound(middle.y()) - picture.height() / 2),
                picture);
    p.setOpacity(1);
    if (item.Get(TMenuItem::Checked)) p.drawRect(mark.adjusted(0.5, 0.5, -0.5, -0.5));
  } else if (item.Get(TMenuItem::Checked) && item.Get(TMenuItem::RadioItem)) {
    p.setBrush(ink);
    p.drawEllipse(middle, 3, 3);
  } else if (item.Get(TMenuItem::Checked)) {
    p.setPen(QPen(ink, 1.5));
    const QPointF points[] = {middle + QPointF(-4, 0), middle + QPointF(-1, 3), middle + QPointF(4, -3)};
    p.drawPolyline(points, 3);
  }
  if (!item.Nested().empty()) {
    p.setPen(QPen(ink, 1.5));
    p.setBrush(Qt::NoBrush);
    const QPointF tip(r.right() - 7, r.center().y() + 0.5);
    const QPointF points[] = {tip + QPointF(-4, -4), tip, tip + QPointF(-4, 4)};
    p.drawPolyline(points, 3);
  }
  p.setRenderHint(QPainter::Antialiasing, false);
}
