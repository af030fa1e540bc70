#include "library/controls/FillControl.h"

#include "library/controls/Faced.h"
#include "vcl/ImageList.h"
#include "vcl/PropertyGroups.h"

const TClass& TVRXFill::StaticClass() {
  static const TClass cls(
      VRXWithFace(DescribeClass<TVRXFill>("TVRXFill", TGraphicControl::StaticClass())
                      .PublishAll(Placing)
                      .Published(BevelPart)
                      .Doc(QStringLiteral("The edge around the area."))
                      .Published(CaptionPart)
                      .Doc(QStringLiteral("The text, with its place, font and effects."))
                      .PublishAll("Color", "Enabled"))
          .Published(Filled)
          .Doc(QStringLiteral("Fills the area; else it has its color."))
          .Published(FillPart)
          .Doc(QStringLiteral("What the area is filled with."))
          .PublishAll(Hints)
          .Published(ImageList)
          .Doc(QStringLiteral("Pictures to fill with."))
          .PublishAll("ParentColor", "Visible", MouseEvents)
          .ClassDoc(QStringLiteral("An area filled with a gradient, a hatch or a bitmap."),
                    "pen accent+50 3 path 4.5 7 19.5 7 pen accent+25 3 path 4.5 10.5 19.5 10.5 pen accent 3 "
                    "path 4.5 "
                    "14 19.5 14 path 4.5 17 19.5 17 pen line 1.5 brush none box 3 5 18 14 1"));
  return cls;
}

TVRXFill::TVRXFill(TComponent* owner) : TGraphicControl(owner) { SetBounds(0, 0, 105, 65); }

void TVRXFill::Paint(TCanvas& canvas) {
  const TVRXFaceLook look = VRXFaceOf(*this);
  canvas.FillRect(ClientRect(), Color());
  const QRect room = look.Bevel(*Bevel()).Draw(canvas, ClientRect());
  if (room.isEmpty()) return;
  QPainterPath area;
  area.addRect(room);
  if (look.HasGround())
    look.PaintGround(canvas, area);
  else if (Get(Filled))
    FillObject()->Draw(canvas, area, Get(ImageList));
  QPainter& p = canvas.Painter();
  p.save();
  p.setClipRect(room, Qt::IntersectClip);
  TVRXCaption text;
  text.Assign(Caption());
  text.SetFont(&look.Font(*Caption()->Font()));
  text.SetFontFX(&look.FontFx(*Caption()->FontFX()));
  text.Draw(canvas, room.adjusted(2, 2, -2, -2), look.HasLetters(Enabled()), look.Color(Color()));
  p.restore();
}
