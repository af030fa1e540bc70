#include "library/controls/DlgButtonPanel.h"

#include <QPainter>

#include "library/controls/RowPlaces.h"
#include "rtl/Class.h"
#include "vcl/DesignMarks.h"
#include "vcl/PropertyGroups.h"

const TClass& TVRXButton::StaticClass() {
  static const TClass cls(DescribeClass<TVRXButton>("TVRXButton", TButton::StaticClass())
                              .ClassDoc(QStringLiteral("A push button of the library.")));
  return cls;
}

const TClass& TVRXDlgButtonPanel::StaticClass() {
  static const TTypeInfo distance = OrdinalType("TVRXDistance", 0, 1000);
  static const TClass cls(
      DescribeClass<TVRXDlgButtonPanel>("TVRXDlgButtonPanel", TVRXSimplePanel::StaticClass())
          .Publish("Align", TAlign::alBottom)
          .PublishAll("Anchors", "Bevel")
          .Published(BorderSpacing)
          .Type(distance)
          .Doc(QStringLiteral("What is kept free between the buttons and the panel's edges."))
          .Published(ButtonAlignment)
          .Doc(QStringLiteral("Where the row of buttons stands: at its beginning, its end or in the middle."))
          .Published(ButtonGap)
          .Type(distance)
          .Doc(QStringLiteral("The distance in front of a button whose Tag is 10."))
          .Published(ButtonSpacing)
          .Type(distance)
          .Doc(QStringLiteral("The distance between two buttons."))
          .PublishAll(Look, ParentLook, Hints)
          .Published(Orientation)
          .Doc(QStringLiteral("Whether the buttons stand side by side or one below the other."))
          .PublishAll("PopupMenu", "TabOrder", "Transparent", "Visible", MouseEvents, FocusEvents)
          .ClassDoc(
              QStringLiteral("Puts the buttons of a dialog in a row."),
              "pen line 1.5 brush fill box 2.5 7.5 19 10 1.5 pen none brush accent box 5 10.5 4 4 1 brush "
              "line box 10.5 10.5 4 4 1 box 16 10.5 3.5 4 1"));
  return cls;
}

TVRXDlgButtonPanel::TVRXDlgButtonPanel(TComponent* owner) : TVRXSimplePanel(owner) {
  SetBounds(0, 0, 320, 41);
  SetQuiet(true);
  SetAlign(TAlign::alBottom);
  SetQuiet(false);
}

namespace {
using Placed = Placements::value_type;
}
std::vector<TButton*> TVRXDlgButtonPanel::Buttons() const {
  std::vector<TButton*> buttons;
  for (TControl* c : Controls())
    if (auto* button = As<TButton>(c)) buttons.push_back(button);
  return buttons;
}

void TVRXDlgButtonPanel::ArrangeControls(Placements& all, const QRect& client, const QMargins& insets,
                                         const Placements* before) const {
  Placements aligned;
  std::vector<Placed*> row;
  const auto known = [this](const Placed& p) {
    return std::find(known_.begin(), known_.end(), p.control) != known_.end();
  };
  for (Placed& p : all) {
    const bool button = known(p) || dynamic_cast<const TButton*>(p.control);
    if (!button && p.align != TAlign::alNone)
      aligned.push_back(p);
    else if (button && p.takesPart)
      row.push_back(&p);
    else
      PlaceAt(p, p.stands.topLeft());
  }
  Arrange(aligned, client, insets, before);
  auto next = aligned.cbegin();
  for (Placed& p : all)
    if (next != aligned.cend() && p.control == next->control) p = *next++;

  const bool across = Get(Orientation) == TVRXPanelOrientation::poHorizontal;
  const auto along = [across](QSize size) { return across ? size.width() : size.height(); };
  const auto gapBefore = [&](const Placed* p) {
    return p == row.front() ? 0 : p->control->Tag() == GapTag ? Get(ButtonGap) : Get(ButtonSpacing);
  };
  int length = 0;
  for (const Placed* p : row) length += gapBefore(p) + along(p->stands.size());
  const int border = Get(BorderSpacing);
  const QRect inside = client.marginsRemoved(insets),
              room = inside.adjusted(border, border, -border, -border);
  const int left = along(room.size()) - length;
  int at = 0;
  // Where there is no room for all, the first are seen.
  if (Get(ButtonAlignment) == TVRXButtonAlignment::baRightBottom) at = std::max(left, 0);
  if (Get(ButtonAlignment) == TVRXButtonAlignment::baCenter) at = std::max(left / 2, 0);
  for (Placed* p : row) {
    at += gapBefore(p);
    // A low panel keeps them in its middle rather than away from its edges.
    const QPoint middle((inside.width() - p->stands.width()) / 2, (inside.height() - p->stands.height()) / 2);
    PlaceAt(*p, across ? QPoint(room.left() + at, inside.top() + middle.y())
                       : QPoint(inside.left() + middle.x(), room.top() + at));
    at += along(p->stands.size());
  }
  if (!before) return;
  std::vector<const Placed*> was;
  for (const Placed& p : *before)
    if (p.takesPart && known(p)) was.push_back(&p);
  StandAsBefore(row, was, !across);
}

void TVRXDlgButtonPanel::ControlsListed() {
  TVRXSimplePanel::ControlsListed();
  const std::vector<TButton*> buttons = Buttons();
  known_.assign(buttons.begin(), buttons.end());
}

void TVRXDlgButtonPanel::Paint(TCanvas& canvas) {
  TVRXSimplePanel::Paint(canvas);
  if (!IsDesigning() || !Buttons().empty()) return;
  // Without buttons there is nothing to be seen when the program runs; on the form it says what it is for.
  const bool across = Get(Orientation) == TVRXPanelOrientation::poHorizontal;
  const QRect room = ClientRect().marginsRemoved(Insets());
  const QSize size(75, 25);
  const int step = (across ? size.width() : size.height()) + Get(ButtonSpacing);
  const int length = 2 * step - Get(ButtonSpacing), border = Get(BorderSpacing);
  const int all = (across ? room.width() : room.height()) - 2 * border;
  int at = 0;
  if (Get(ButtonAlignment) == TVRXButtonAlignment::baRightBottom) at = std::max(all - length, 0);
  if (Get(ButtonAlignment) == TVRXButtonAlignment::baCenter) at = std::max((all - length) / 2, 0);
  QPainter& p = canvas.Painter();
  p.save();
  p.setClipRect(room, Qt::IntersectClip);
  QRect rest = room;
  for (int i = 0; i < 2; ++i) {
    const QPoint corner = across ? QPoint(border + at + i * step, (room.height() - size.height()) / 2)
                                 : QPoint((room.width() - size.width()) / 2, border + at + i * step);
    const QRect button(room.topLeft() + corner, size);
    PaintDesignFrame(canvas, button);
    // The name stands on the larger side.
    const QRect before = across ? QRect(rest.topLeft(), QPoint(button.left() - 1, rest.bottom())) & rest
                                : QRect(rest.topLeft(), QPoint(rest.right(), button.top() - 1)) & rest;
    const QRect behind = across ? QRect(QPoint(button.right() + 1, rest.top()), rest.bottomRight())
                                : QRect(QPoint(rest.left(), button.bottom() + 1), rest.bottomRight());
    rest = across ? (before.width() > behind.width() ? before : behind)
                  : (before.height() > behind.height() ? before : behind);
  }
  PaintDesignName(canvas, rest, *this);
  p.restore();
}
