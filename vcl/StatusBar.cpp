#include "vcl/StatusBar.h"

#include <algorithm>

#include "rtl/Class.h"
#include "vcl/Painters.h"
#include "vcl/PropertyGroups.h"

const TClass& TStatusPanel::StaticClass() {
  static const TClass cls(DescribeClass<TStatusPanel>("TStatusPanel", TCollectionItem::StaticClass())
                              .PublishedAll(Alignment, Bevel, Text, Width)
                              .Passive("BiDiMode", TBiDiMode::bdLeftToRight)
                              .Passive("ParentBiDiMode", true)
                              .Passive("Style", TStatusPanelStyle::psText)
                              .Alphabetical());
  return cls;
}

QString TStatusPanel::DisplayName() const {
  const QString text = Get(Text);
  return text.isEmpty() ? TCollectionItem::DisplayName() : text;
}

const TClass& TStatusPanels::StaticClass() {
  static const TClass cls(DescribeClass<TStatusPanels>("TStatusPanels", TCollection::StaticClass()));
  return cls;
}

const TClass& TStatusBar::StaticClass() {
  static const TClass cls(
      DescribeClass<TStatusBar>("TStatusBar", TWinControl::StaticClass())
          .PublishAll("Anchors", Look, ParentLook, Hints, Placement, Direction, Dragging, "DoubleBuffered",
                      "ParentDoubleBuffered", "PopupMenu", "TabOrder", "TabStop", "Visible", Help, Styling,
                      "AutoSize", "Action", WheelEvents, MouseEvents, DragEvents, "OnResize")
          .PublishedAll(Panels, SimpleText, SizeGrip)
          .Published(SimplePanel)
          .OtherDefault(true)
          .Publish("Align", TAlign::alBottom)
          .Passive("AutoHint", false)
          .Passive("BorderWidth", 0)
          .Passive("UseSystemFont", true)
          .Event("OnCreatePanelClass", "TSBCreatePanelClassEvent")
          .Event("OnDrawPanel", "TDrawPanelEvent")
          .Event("OnHint")
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("A bar at the lower edge of a form that tells what is going on."),
              "pen line 1.5 brush fill box 2.5 13.5 19 6 0 path 13.5 13.5 13.5 19.5 pen accent 1.8 path 5 "
              "16.5 10.5 16.5 pen line 1.5 brush none path 2.5 10 2.5 4.5 21.5 4.5 21.5 10"));
  return cls;
}

TStatusBar::TStatusBar(TComponent* owner) : TWinControl(owner) {
  SetAlign(TAlign::alBottom);
  SetBounds(0, 0, 150, 19);
}

std::vector<QRect> TStatusBar::PanelRects() const {
  const TStatusPanels& panels = *Get(Panels);
  std::vector<QRect> rects;
  constexpr int gap = 2;
  int left = 0;
  for (int i = 0; i < panels.Count(); ++i) {
    const int room = std::max(Width() - left, 0);
    const int width =
        i + 1 == panels.Count() ? room : std::clamp(panels.Panel(i).Get(TStatusPanel::Width), 0, room);
    rects.emplace_back(left, gap, width, std::max(Height() - gap, 0));
    left += width + gap;
  }
  return rects;
}

void TStatusBar::Paint(TCanvas& canvas) {
  canvas.FillRect(ClientRect(), Color());
  canvas.FillRect(QRect(0, 0, Width(), std::min(Height(), 1)), clBtnShadow);
  const TStatusPanels& panels = *Get(Panels);
  const QRect room = ClientRect().adjusted(4, 1, -4, 0);
  if (Get(SimplePanel) || panels.Count() == 0) {
    if (room.isValid())
      canvas.TextRect(room, Qt::AlignLeft | Qt::AlignVCenter, Get(SimpleText), *Font(), Enabled());
  } else {
    const auto rects = PanelRects();
    for (int i = 0; i < panels.Count(); ++i) {
      const TStatusPanel& panel = panels.Panel(i);
      QRect rect = rects[static_cast<std::size_t>(i)];
      if (rect.width() < 3 || rect.height() < 3) continue;
      if (panel.Get(TStatusPanel::Bevel) == TStatusPanelBevel::pbLowered)
        rect = canvas.Frame3D(rect, clBtnShadow, clBtnHighlight, 1);
      else if (panel.Get(TStatusPanel::Bevel) == TStatusPanelBevel::pbRaised)
        rect = canvas.Frame3D(rect, clBtnHighlight, clBtnShadow, 1);
      if (const QRect text = rect.adjusted(3, 0, -3, 0); text.isValid())
        canvas.TextRect(text, AlignmentFlag(panel.Get(TStatusPanel::Alignment)) | Qt::AlignVCenter,
                        panel.Get(TStatusPanel::Text), *Font(), Enabled());
    }
  }
  constexpr int grip = 13;
  if (Get(SizeGrip) && Width() > 3 * grip && Height() >= grip)
    PaintSizeGrip(canvas, QRect(Width() - grip, Height() - grip, grip, grip));
}
