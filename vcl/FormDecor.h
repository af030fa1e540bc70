// Components that change how their form looks: its ground, its frame, its title bar. Whoever draws a form
// asks them, so that the form that is being designed shows what they will do.
#pragma once
#include <QMargins>
#include <QPainterPath>

#include "rtl/Component.h"
#include "vcl/Canvas.h"

class TWinControl;

class TFormDecor : public TComponent {
  VRX_CLASS(TFormDecor)
 public:
  explicit TFormDecor(TComponent* owner);
  ~TFormDecor() override;

  // All that a form has, in the form's order.
  static std::vector<TFormDecor*> Of(const TWinControl& form);
  // The form is painted again.
  void RepaintForm() const;

  // The ground of the client area. False: it is left to the next one, the form in the end.
  virtual bool PaintGround(TCanvas&, const QRect&) const { return false; }
  // The outline that the window gets, of the rectangle that it has; empty for that.
  virtual QPainterPath Outline(const QRect&) const { return {}; }
  // What it paints behind the window, and the room that this takes around it.
  virtual QMargins Around(bool) const { return {}; }
  virtual void PaintAround(TCanvas&, const QPainterPath&, bool) const {}
  // What it paints over everything, along the outline.
  virtual void PaintBorder(TCanvas&, const QPainterPath&, bool) const {}
  // The ground of the title bar.
  virtual void PaintTitle(TCanvas&, const QPainterPath&, bool) const {}
  // What stands in the title bar; returns the room that is left beside it.
  virtual QRect PaintTitleItems(TCanvas&, const QRect& room, const QColor&) const { return room; }
  // The caption in the room that is left of the bar. False: the next one.
  virtual bool PaintCaption(TCanvas&, const QRect&, const QRect&, const QString&, bool) const {
    return false;
  }

 protected:
  void DoChanged() override;
};
