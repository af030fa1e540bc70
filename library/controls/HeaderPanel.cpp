#include "library/controls/HeaderPanel.h"

#include <algorithm>

#include "rtl/Class.h"
#include "vcl/AsGiven.h"
#include "vcl/DesignMarks.h"
#include "vcl/PropertyGroups.h"

const TClass& TVRXCustomHeader::StaticClass() {
  static const TClass cls(DescribeClass<TVRXCustomHeader>("TVRXCustomHeader", TWinControl::StaticClass())
                              .PublishAll(Placing)
                              .Published(Alignment)
                              .Published(BevelPart)
                              .Doc(QStringLiteral("The edge around the control."))
                              .Published(Bold)
                              .Doc(QStringLiteral("Whether the title is bold."))
                              .PublishAll("Caption", Look)
                              .Published(Filled)
                              .Doc(QStringLiteral("Fills the header; else it has its color."))
                              .Published(FillPart)
                              .Doc(QStringLiteral("What the header is filled with."))
                              .PublishAll(Hints)
                              .Published(ImageIndex)
                              .Doc(QStringLiteral("The picture before the title."))
                              .Published(ImageList)
                              .Doc(QStringLiteral("Where pictures are found."))
                              .PublishAll(ParentLook, "PopupMenu", "Visible", MouseEvents));
  return cls;
}

int TVRXCustomHeader::NeededThickness() const {
  return StripThickness(*Font(), Get(ImageList), Get(ImageIndex));
}

void TVRXCustomHeader::PaintHeader(TCanvas& canvas, const QRect& rect, int atEnd) {
  TVRXStrip strip;
  strip.Text = Caption();
  strip.Font = Font();
  strip.Bold = Get(Bold);
  strip.Alignment = Get(Alignment);
  strip.Fill = Get(Filled) ? FillObject() : nullptr;
  strip.Images = Get(ImageList);
  strip.Image = Get(ImageIndex);
  strip.Enabled = Enabled();
  strip.AtEnd = atEnd;
  PaintStrip(canvas, rect, strip);
}

const TClass& TVRXHeader::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXHeader>("TVRXHeader", TVRXCustomHeader::StaticClass())
          .Publish("Align", TAlign::alTop)
          .Published(Description)
          .Doc(QStringLiteral("A second line, below the title."))
          .ClassDoc(QStringLiteral("A strip with a title, above what it is the title of."),
                    "pen line 1.5 brush fill box 2.5 6.5 19 11 1 pen accent 2 path 5.5 10.5 14 10.5 pen line "
                    "1.2 path 5.5 14 17 14"));
  return cls;
}

TVRXHeader::TVRXHeader(TComponent* owner) : TVRXCustomHeader(owner) {
  captionFollowsName_ = true;
  SetAlign(TAlign::alTop);
  SetBounds(0, 0, 200, 41);
}

void TVRXHeader::Paint(TCanvas& canvas) {
  canvas.FillRect(ClientRect(), Color());
  const QRect inside = Bevel()->Draw(canvas, ClientRect());
  const QString about = Get(Description);
  if (about.isEmpty()) return PaintHeader(canvas, inside, 0);
  // The ground under both, and the title in the upper part of it.
  if (Get(Filled)) {
    QPainterPath area;
    area.addRect(inside);
    FillObject()->Draw(canvas, area, Get(ImageList));
  }
  TVRXStrip strip;
  strip.Text = Caption();
  strip.Font = Font();
  strip.Bold = Get(Bold);
  strip.Alignment = Get(Alignment);
  strip.Images = Get(ImageList);
  strip.Image = Get(ImageIndex);
  strip.Enabled = Enabled();
  const int upper = (inside.height() + 1) / 2;
  PaintStrip(canvas, QRect(inside.left(), inside.top(), inside.width(), upper), strip);
  strip.Text = about;
  strip.Bold = false;
  strip.Image = -1;
  PaintStrip(canvas, QRect(inside.left(), inside.top() + upper, inside.width(), inside.height() - upper),
             strip);
}

const TClass& TVRXHeaderPanel::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXHeaderPanel>("TVRXHeaderPanel", TVRXCustomHeader::StaticClass())
          .Published(HeaderHeight)
          .Doc(QStringLiteral("How high the header is; 0 is what the text needs."))
          .PublishAll("TabOrder", "TabStop", FocusEvents)
          .ClassDoc(
              QStringLiteral("A panel with a header, in which buttons can stand."),
              "pen line 1.5 brush fill box 2.5 4.5 19 15 1 pen none brush accent+50 box 3.3 5.3 17.4 4.4 "
              "0 brush line box 13.5 6.2 2.6 2.6 0 box 17 6.2 2.6 2.6 0"));
  return cls;
}

TVRXHeaderPanel::TVRXHeaderPanel(TComponent* owner) : TVRXCustomHeader(owner) {
  captionFollowsName_ = true;
  SetBounds(0, 0, 200, 121);
}

QRect TVRXHeaderPanel::HeaderRect() const {
  const int room = Bevel()->Room();
  const int height = Get(HeaderHeight) > 0 ? Get(HeaderHeight) : NeededThickness();
  return {room, room, Width() - 2 * room, std::clamp(height, 0, std::max(Height() - 2 * room, 0))};
}

QMargins TVRXHeaderPanel::Insets() const {
  const int room = Bevel()->Room();
  return {room, room + HeaderRect().height(), room, room};
}

namespace {
bool StandsInHeader(const TControl& c) {
  return As<TVRXHeaderPanelButton>(&c) && (c.Align() == TAlign::alLeft || c.Align() == TAlign::alRight);
}
}  // namespace

void TVRXHeaderPanel::ArrangeControls(Placements& all, const QRect& client, const QMargins& insets,
                                      const Placements* before) const {
  Placements others;
  for (const auto& p : all)
    if (!StandsInHeader(*p.control)) others.push_back(p);
  Arrange(others, client, insets, before);
  // As the insets say: they may be those of before a change.
  const int edge = insets.left(), height = insets.top() - edge;
  constexpr int gap = 3;
  int left = edge + gap, right = client.width() - edge - gap;
  auto other = others.begin();
  for (auto& p : all) {
    if (!StandsInHeader(*p.control)) {
      p = *other++;
      continue;
    }
    const int width = p.takesPart ? p.stands.width() : 0;
    const int top = edge + (height - p.stands.height()) / 2;
    if (p.align == TAlign::alLeft) {
      PlaceAt(p, {left, top});
      left += width;
    } else {
      right -= width;
      PlaceAt(p, {right, top});
    }
  }
}

void TVRXHeaderPanel::ControlsListed() {
  TVRXCustomHeader::ControlsListed();
  if (IsDestroying() || TakesAsGiven(*this)) return;
  for (TControl* c : Controls())
    if (auto* button = dynamic_cast<TVRXHeaderPanelButton*>(c);
        button && button->Align() == TAlign::alNone && !TakesAsGiven(*button))
      button->SetAlign(TAlign::alRight);
}

void TVRXHeaderPanel::Paint(TCanvas& canvas) {
  const QRect all(0, 0, Width(), Height());
  canvas.FillRect(all, Color());
  if (IsDesigning() && Bevel()->Room() == 0) PaintDesignFrame(canvas, all);
  Bevel()->Draw(canvas, all);
  // The title gives room to the buttons.
  int atStart = 0, atEnd = 0;
  for (const TControl* c : Controls())
    if (StandsInHeader(*c) && (c->Visible() || c->IsDesigning()))
      (c->Align() == TAlign::alLeft ? atStart : atEnd) += c->Width();
  const QRect header = HeaderRect();
  if (Get(Filled) && atStart > 0) {
    QPainterPath area;
    area.addRect(header);
    FillObject()->Draw(canvas, area, Get(ImageList));
  }
  PaintHeader(canvas, header.adjusted(std::min(atStart, header.width()), 0, 0, 0), atEnd);
}

const TClass& TVRXHeaderPanelButton::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXHeaderPanelButton>("TVRXHeaderPanelButton", TGraphicControl::StaticClass())
          .PublishAll(Placing, "Caption")
          .Published(Down)
          .Doc(QStringLiteral("Whether the button is pressed."))
          .PublishAll("Enabled")
          .Published(Flat)
          .Doc(QStringLiteral("Without a frame of its own."))
          .PublishAll("Font", Hints)
          .Published(ImageIndex)
          .Doc(QStringLiteral("The picture, out of the image list of the header panel."))
          .Published(Kind)
          .Doc(QStringLiteral("What the button shows; hbCustom its picture or its text."))
          .PublishAll("ParentFont", "Visible", MouseEvents)
          .ClassDoc(QStringLiteral("A button in the header of a panel."),
                    "pen line 1.5 brush fill box 2.5 6.5 19 11 1 brush accent+25 box 13 8.5 6.5 7 1 pen line "
                    "1.3 path 14.8 10.5 17.7 13.5 path 17.7 10.5 14.8 13.5"));
  return cls;
}

TVRXHeaderPanelButton::TVRXHeaderPanelButton(TComponent* owner) : TGraphicControl(owner) {
  SetBounds(0, 0, 18, 18);
}

void TVRXHeaderPanelButton::Paint(TCanvas& canvas) {
  using enum TVRXHeaderButtonKind;
  const QRect all = ClientRect();
  TPartStates states = PartStates();
  if (Get(Down)) states.Include(TPartState::Down);
  if (Get(Down) || !Get(Flat)) PaintButton(canvas, all, states, {}, nullptr);
  const auto* panel = dynamic_cast<const TVRXHeaderPanel*>(Parent());
  const TCustomImageList* images = panel ? panel->Get(TVRXHeaderPanel::ImageList) : nullptr;
  const QImage picture = images ? images->Image(Get(ImageIndex)) : QImage();
  QPainter& p = canvas.Painter();
  switch (Get(Kind)) {
    case hbClose:
      return PaintStripMark(canvas, all, TVRXStripMark::Close, *Font(), Enabled());
    case hbHelp:
      return PaintStripMark(canvas, all, TVRXStripMark::Help, *Font(), Enabled());
    case hbMenu:
      return PaintStripMark(canvas, all, TVRXStripMark::Menu, *Font(), Enabled());
    case hbExpand:
      return PaintStripMark(canvas, all, TVRXStripMark::Unfold, *Font(), Enabled());
    case hbPin:
      return PaintStripMark(canvas, all, TVRXStripMark::Pin, *Font(), Enabled());
    case hbCustom:
      break;
  }
  if (picture.isNull())
    return canvas.TextRect(all, Qt::AlignCenter | Qt::TextShowMnemonic, Caption(), *Font(), Enabled());
  p.setOpacity(Enabled() ? 1 : 0.5);
  p.drawImage((all.width() - picture.width()) / 2, (all.height() - picture.height()) / 2, picture);
  p.setOpacity(1);
}
