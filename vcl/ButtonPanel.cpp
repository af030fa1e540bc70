#include "vcl/ButtonPanel.h"

#include "rtl/Class.h"
#include "vcl/Painters.h"
#include "vcl/PropertyGroups.h"

const TClass& TPanelBitBtn::StaticClass() {
  static const TClass cls(DescribeClass<TPanelBitBtn>("TPanelBitBtn", TPersistent::StaticClass())
                              .Published(Caption)
                              .Passive("DefaultCaption", false)
                              .Published(Enabled)
                              .Passive<QString>("Hint")
                              .Passive("ModalResult", 0)
                              .Passive<QString>("Name")
                              .Passive("TabOrder", -1)
                              .Passive("TabStop", true)
                              .Event("OnClick"));
  return cls;
}

const TClass& TButtonPanel::StaticClass() {
  static const TClass cls(
      DescribeClass<TButtonPanel>("TButtonPanel", TWinControl::StaticClass())
          .PublishAll(Look, ParentLook, Hints, Placement, Direction, Dragging, Windowed, Help, Styling,
                      WheelEvents, MouseEvents, FocusEvents, DragEvents, "Anchors", "AutoSize", "OnResize")
          .Publish("Align", TAlign::alBottom)
          .PublishedAll(CancelButton, CloseButton, DefaultButton, HelpButton, OKButton, ShowBevel,
                        ShowButtons, Spacing)
          .Passive("ButtonOrder", TButtonOrder::boDefault)
          .Passive("ShowGlyphs", TPanelButtons{TPanelButton::pbOK, TPanelButton::pbCancel,
                                               TPanelButton::pbClose, TPanelButton::pbHelp})
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("The row of buttons at the lower edge of a dialog."),
              "pen line 1.5 brush fill box 2.5 9.5 19 8 0 pen accent 1.8 box 10 11.5 4 4 0 box 15.5 11.5 "
              "4 4 0"));
  return cls;
}

TButtonPanel::TButtonPanel(TComponent* owner) : TWinControl(owner) {
  SetBounds(0, 0, 320, 42);
  SetQuiet(true);
  SetAlign(TAlign::alBottom);
  SetQuiet(false);
}

namespace {
struct PanelButtonRow {
  TPanelButton button;
  const TKept<TPanelBitBtn*>* part;
  const char* text;
};
// From the right; the help stands at the left.
constexpr PanelButtonRow Buttons[] = {{TPanelButton::pbCancel, &TButtonPanel::CancelButton, "Cancel"},
                                      {TPanelButton::pbOK, &TButtonPanel::OKButton, "&OK"},
                                      {TPanelButton::pbClose, &TButtonPanel::CloseButton, "&Close"},
                                      {TPanelButton::pbHelp, &TButtonPanel::HelpButton, "&Help"}};
}  // namespace

void TButtonPanel::Paint(TCanvas& canvas) {
  canvas.FillRect(ClientRect(), Color());
  const int gap = std::clamp(Get(Spacing), 0, 100);
  // A low panel keeps its buttons readable: they give up their distance from its edges.
  constexpr int readable = 25;
  const int above = std::clamp((Height() - readable) / 2, 0, gap);
  QRect room = ClientRect().adjusted(gap, above, -gap, -above);
  if (Get(ShowBevel)) {
    canvas.FillRect(QRect(0, 0, Width(), 1), clBtnShadow);
    room.setTop(room.top() + 2);
  }
  for (const PanelButtonRow& row : Buttons) {
    if (!Get(ShowButtons).Contains(row.button) || room.height() < 6) continue;
    const TPanelBitBtn* part = IsKept(row.part) ? Get(*row.part) : nullptr;
    const QString own = part ? part->Get(TPanelBitBtn::Caption) : QString();
    const QString text = own.isEmpty() ? QString::fromLatin1(row.text) : own;
    constexpr int Least = 75;
    const int width = std::max(Least, TextExtent(text, *Font()).width() + 20);
    const bool left = row.button == TPanelButton::pbHelp;
    if (width > room.width()) break;
    const QRect place(left ? room.left() : room.right() - width + 1, room.top(), width, room.height());
    TPartStates states = PartStates();
    if (part && !part->Get(TPanelBitBtn::Enabled)) states.Include(TPartState::Disabled);
    if (row.button == Get(DefaultButton)) states.Include(TPartState::Default);
    PaintButton(canvas, place, states, text, Font());
    if (!left) room.setRight(place.left() - gap - 1);
  }
}
