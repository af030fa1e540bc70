#include "library/controls/ScrollText.h"

#include "rtl/Clock.h"
#include "vcl/DesignMarks.h"
#include "vcl/PropertyGroups.h"

const TClass& TVRXScrollText::StaticClass() {
  static const TClass cls(DescribeClass<TVRXScrollText>("TVRXScrollText", TGraphicControl::StaticClass())
                              .PublishAll(Placing)
                              .Published(Alignment)
                              .Published(BevelPart)
                              .Doc(QStringLiteral("The edge around the text."))
                              .PublishAll("Color")
                              .Published(Direction)
                              .Doc(QStringLiteral("Where the lines run to."))
                              .PublishAll("Enabled", "Font")
                              .Published(Font3DPart)
                              .Doc(QStringLiteral("Light and shadow of the letters."))
                              .PublishAll(Hints)
                              .Published(Interval)
                              .Doc(QStringLiteral("Milliseconds between two steps."))
                              .Published(LinesPart)
                              .Doc(QStringLiteral("The text."))
                              .PublishAll(ParentLook)
                              .Published(Scroll)
                              .Doc(QStringLiteral("Whether the lines run."))
                              .Published(Step)
                              .Doc(QStringLiteral("Pixels of a step."))
                              .Published(Transparent)
                              .Doc(QStringLiteral("Lets what is behind the letters show through."))
                              .PublishAll("Visible", MouseEvents)
                              .ClassDoc(QStringLiteral("Lines of text that run through the control."),
                                        "pen line 1.5 brush fill box 3 4 18 16 1 pen accent 1.8 path 6 9 12 "
                                        "9 path 6 12.5 13 12.5 path 6 "
                                        "16 11 16 pen line 1.5 path 17 17 17 7.5 path 15 9.5 17 7.5 19 9.5"));
  return cls;
}

TVRXScrollText::TVRXScrollText(TComponent* owner) : TGraphicControl(owner) { SetBounds(0, 0, 160, 80); }

int TVRXScrollText::Offset(int way) const {
  const std::int64_t steps = ClockMilliseconds() / std::max(1, Get(Interval));
  return way <= 0 ? 0 : static_cast<int>(steps % way * Get(Step) % way + way) % way;
}

void TVRXScrollText::Paint(TCanvas& canvas) {
  if (!Get(Transparent)) canvas.FillRect(ClientRect(), Color());
  if (IsDesigning() && Lines()->Lines().isEmpty()) {
    PaintDesignFrame(canvas, ClientRect());
    PaintDesignName(canvas, ClientRect(), *this);
  }
  const QRect room = Bevel()->Draw(canvas, ClientRect());
  if (room.isEmpty()) return;
  const TVRXScrollDirection to = Get(Direction);
  const bool across = to == TVRXScrollDirection::sdLeft || to == TVRXScrollDirection::sdRight;
  const QString text = Lines()->Lines().join(across ? u' ' : u'\n');
  const int flags = AlignmentFlag(Get(Alignment)) | Qt::AlignTop | (across ? int{Qt::TextSingleLine} : 0);
  QRect place = room;
  if (Get(Scroll) && !text.isEmpty()) {
    timer_.PaintAgainIn(std::max(1, Get(Interval)));
    // From beyond one edge to beyond the other.
    const QSize size = TextExtent(text, *Font(), flags).grownBy(Font3D()->Room());
    place.setSize(across ? QSize(size.width(), room.height()) : QSize(room.width(), size.height()));
    const int from = across ? room.width() : room.height();
    const int run = Offset(across ? from + size.width() : from + size.height());
    switch (to) {
      case TVRXScrollDirection::sdUp:
        place.moveTop(room.top() + from - run);
        break;
      case TVRXScrollDirection::sdDown:
        place.moveTop(room.top() - size.height() + run);
        break;
      case TVRXScrollDirection::sdLeft:
        place.moveLeft(room.left() + from - run);
        break;
      case TVRXScrollDirection::sdRight:
        place.moveLeft(room.left() - size.width() + run);
        break;
    }
  }
  QPainter& p = canvas.Painter();
  p.save();
  p.setClipRect(room, Qt::IntersectClip);
  Font3D()->Draw(canvas, place, flags, text, *Font(), Enabled(), Color());
  p.restore();
}
