#include "library/components/FormComponent.h"

const TClass& TVRXForm::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXForm>("TVRXForm", TFormDecor::StaticClass())
          .Passive("AlwaysOnTop", false)
          .Doc(QStringLiteral("The form stays above all other windows."))
          .Passive("ClientMove", false)
          .Doc(QStringLiteral("The form can be moved by its client area."))
          .Published(FrameColor)
          .Doc(QStringLiteral("Color of a line along the frame; clNone is none."))
          .Published(FrameWidth)
          .Doc(QStringLiteral("Width of the line along the frame, in pixels."))
          .Passive("KeepOnScreen", false)
          .Doc(QStringLiteral("No part of the form leaves the screen."))
          .Passive("Magnetic", false)
          .Doc(QStringLiteral("The form snaps to the edges of the screen."))
          .Event("OnEnterSizeMove")
          .Event("OnExitSizeMove")
          .Event("OnMove")
          .ClassDoc(
              QStringLiteral("Says how the form behaves as a window of the application."),
              "pen line 1.5 brush fill box 3 4 18 16 2 path 3 9 21 9 pen accent 1.8 path 12 11.5 12 18 path "
              "8.5 14.75 15.5 14.75"));
  return cls;
}

void TVRXForm::PaintBorder(TCanvas& canvas, const QPainterPath& outline, bool) const {
  const int width = Get(FrameWidth);
  if (width <= 0 || Get(FrameColor) == clNone) return;
  QPainter& p = canvas.Painter();
  p.setClipPath(outline, Qt::IntersectClip);
  // The outer half of the line is cut off.
  p.strokePath(outline, QPen(ToQColor(Get(FrameColor)), 2.0 * width));
}
