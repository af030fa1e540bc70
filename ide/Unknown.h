// Stand-ins for classes that no loaded package has. They keep their place on the surface and look like the
// common control that their class is named after; everything else about them stays in the document.
#pragma once
#include "ide/StandInLook.h"
#include "vcl/Book.h"

class TUnknownControl : public TWinControl, public IBook {
  VRX_CLASS(TUnknownControl)
 public:
  explicit TUnknownControl(TComponent* owner);
  QByteArray StreamClassName() const override { return streamClass_; }
  void SetStreamClassName(QByteArray name) { streamClass_ = std::move(name); }
  const TStandIn& StandIn() const { return standIn_; }
  void SetStandIn(TStandIn standIn) { standIn_ = std::move(standIn); }

  // That of a group box, as that of known ones.
  QRect ClientRect() const override;
  // What looks like a container holds controls, and what holds some in the file.
  bool AcceptsControls() const override;

  // The children that are pages, in order.
  std::vector<TUnknownControl*> Pages() const;
  bool HasPage(const TControl& control) const override;
  TUnknownControl* FrontPage() const override;
  void ShowPage(const TControl& page) override;
  TUnknownControl* PageAt(QPoint point) const override;
  void PlacePages() override;
  bool HasOwnPlace() const override { return standIn_.hasPlace; }

  // Its caption or text, else its name and class where there is room.
  void Paint(TCanvas& canvas) override;
  // Pages follow at once: nobody else knows their place, and they take no other.
  void SetBounds(int left, int top, int width, int height) override;
  void Loaded() override;

 private:
  bool PlaceStored() const { return standIn_.hasPlace || !dynamic_cast<const TUnknownControl*>(Parent()); }
  bool AlignStored() const { return Align() != standIn_.usualAlign; }
  void TakePlace(const QRect& bounds);
  static constexpr int TabHeight = 24;
  QRect PageArea() const;
  std::vector<QRect> TabRects() const;
  void PaintTabs(TCanvas& canvas) const;
  void PaintChoices(TCanvas& canvas, const QRect& area, bool exclusive) const;
  void PaintText(TCanvas& canvas, const QRect& area, int flags, const QString& text) const;
  void PaintQuiet(TCanvas& canvas) const;
  bool PaintSurface(TCanvas& canvas) const;
  void PaintHeader(TCanvas& canvas) const;
  void PaintButtons(TCanvas& canvas) const;
  void PaintPanels(TCanvas& canvas) const;
  void PaintMark(TCanvas& canvas) const;

  QByteArray streamClass_;
  TStandIn standIn_;
  const TControl* front_ = nullptr;  // compared only
};

class TUnknownComponent : public TComponent {
  VRX_CLASS(TUnknownComponent)
 public:
  using TComponent::TComponent;
  QByteArray StreamClassName() const override { return streamClass_; }
  void SetStreamClassName(QByteArray name) { streamClass_ = std::move(name); }

 private:
  QByteArray streamClass_;
};
