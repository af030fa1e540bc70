#include "library/controls/Clock.h"

#include "library/values/DateTimeFormat.h"
#include "library/values/LEDSegments.h"
#include "rtl/Clock.h"
#include "rtl/Exceptions.h"
#include "vcl/PropertyGroups.h"

const TClass& TVRXClock::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXClock>("TVRXClock", TGraphicControl::StaticClass())
          .PublishAll(Placing)
          .Published(BevelPart)
          .Doc(QStringLiteral("The edge around the clock."))
          .PublishAll("Color")
          .Published(CustomDateTimeFormat)
          .Type(TVRXDateTimeFormat())
          .Doc(QStringLiteral("What the segment letters show, as dd, mm, hh, nn, ss; empty for the time."))
          .Published(DigitalPart)
          .Doc(QStringLiteral("Size and colors of the segment letters."))
          .Published(DigitalColor)
          .Doc(QStringLiteral("Color behind the segment letters; clNone is none."))
          .Published(DigitalOnly)
          .Doc(QStringLiteral("Shows the segment letters alone."))
          .PublishAll("Enabled")
          .Published(FaceColor)
          .Doc(QStringLiteral("Color of the clock's face."))
          .PublishAll("Font", Hints)
          .Published(HourColor)
          .Doc(QStringLiteral("Color of the hour hand."))
          .Published(MarkColor)
          .Doc(QStringLiteral("Color of marks and numerals."))
          .Published(MinuteColor)
          .Doc(QStringLiteral("Color of the minute hand."))
          .Published(Numerals)
          .Doc(QStringLiteral("What stands around the face."))
          .PublishAll(ParentLook)
          .Published(SecondColor)
          .Doc(QStringLiteral("Color of the second hand."))
          .Published(ShowSeconds)
          .Doc(QStringLiteral("Whether there is a second hand, and seconds behind the time."))
          .Published(Transparent)
          .Doc(QStringLiteral("Lets what is behind the clock show through."))
          .PublishAll("Visible", MouseEvents)
          .ClassDoc(
              QStringLiteral("A clock with hands, in segment letters, or both."),
              "pen line 1.5 brush fill oval 3.5 3.5 17 17 path 12 5 12 6.5 path 19 12 17.5 12 path 12 19 "
              "12 17.5 path 5 12 6.5 12 pen accent 2 path 12 8 12 12 15 14"));
  return cls;
}

TVRXClock::TVRXClock(TComponent* owner) : TGraphicControl(owner) { SetBounds(0, 0, 121, 145); }

QString TVRXClock::Format() const {
  if (const QString own = Get(CustomDateTimeFormat); !own.isEmpty()) return own;
  return Get(ShowSeconds) ? QStringLiteral("hh:nn:ss") : QStringLiteral("hh:nn");
}

QString TVRXClock::DigitalText() const {
  try {
    return VRXFormatDateTime(Format(), ClockDateTime());
  } catch (const EConvertError&) {
    return Format();
  }
}

int TVRXClock::NextPicture() const {
  const QTime now = ClockDateTime().time();
  const bool seconds = Get(ShowSeconds) && !Get(DigitalOnly);
  const int unit = seconds ? 1000 : 60 * 1000, hands = unit - now.msecsSinceStartOfDay() % unit;
  // Nobody reads milliseconds.
  constexpr int Least = 100;
  try {
    const int letters = std::max(Least, VRXNextDateTimeText(Format(), now));
    return Get(DigitalOnly) ? letters : std::min(hands, letters);
  } catch (const EConvertError&) {
    return hands;
  }
}

void TVRXClock::Paint(TCanvas& canvas) {
  timer_.PaintAgainIn(NextPicture());
  if (!Get(Transparent)) canvas.FillRect(ClientRect(), Color());
  QRect room = Bevel()->Draw(canvas, ClientRect());
  if (Get(DigitalOnly)) return PaintDigital(canvas, room);
  QRect below = room;
  below.setTop(room.bottom() + 1 - LEDTextSize(DigitalText(), *Digital()).height() - 4);
  // The letters only where they leave room for the hands.
  if (below.height() * 3 <= room.height()) {
    PaintDigital(canvas, below);
    room.setBottom(below.top() - 1);
  }
  PaintHands(canvas, room);
}

void TVRXClock::PaintDigital(TCanvas& canvas, const QRect& rect) const {
  const QString text = DigitalText();
  const QSize size = LEDTextSize(text, *Digital());
  QPainter& p = canvas.Painter();
  p.save();
  p.setClipRect(rect, Qt::IntersectClip);
  canvas.FillRect(rect, Get(DigitalColor));
  DrawLEDText(canvas,
              rect.topLeft() + QPoint((rect.width() - size.width()) / 2, (rect.height() - size.height()) / 2),
              text, *Digital(), Enabled() || !Digital()->DisabledDigits());
  p.restore();
}

void TVRXClock::PaintFace(QPainter& p, double radius) const {
  static constexpr const char* roman[] = {"XII", "I",   "II",   "III", "IV", "V",
                                          "VI",  "VII", "VIII", "IX",  "X",  "XI"};
  p.setPen(QPen(ToQColor(Get(MarkColor)), 1.5));
  p.setBrush(Get(FaceColor) == clNone ? QBrush(Qt::NoBrush) : QBrush(ToQColor(Get(FaceColor))));
  p.drawEllipse(QPointF(), radius - 1, radius - 1);
  const TVRXClockNumerals numerals = Get(Numerals);
  if (numerals == TVRXClockNumerals::cnNone) return;
  if (numerals == TVRXClockNumerals::cnMarks) {
    for (int minute = 0; minute < 60; ++minute) {
      p.save();
      p.rotate(6 * minute);
      const bool hour = minute % 5 == 0;
      p.setPen(QPen(ToQColor(Get(MarkColor)), hour ? radius / 28 : radius / 70));
      p.drawLine(QPointF(0, -radius * 0.93), QPointF(0, -radius * (hour ? 0.8 : 0.88)));
      p.restore();
    }
    return;
  }
  QFont font = ToQFont(*Font());
  font.setPixelSize(std::max(4, qRound(radius * 0.2)));
  p.setFont(font);
  p.setPen(ToQColor(Get(MarkColor)));
  for (int hour = 0; hour < 12; ++hour) {
    QTransform turn;
    turn.rotate(30 * hour);
    const QPointF at = turn.map(QPointF(0, -radius * 0.8));
    const QString text = numerals == TVRXClockNumerals::cnArabic ? QString::number(hour == 0 ? 12 : hour)
                                                                 : QString::fromLatin1(roman[hour]);
    const double half = radius * 0.25;
    p.drawText(QRectF(at - QPointF(half, half), QSizeF(2 * half, 2 * half)), Qt::AlignCenter, text);
  }
}

void TVRXClock::PaintHands(TCanvas& canvas, const QRect& rect) const {
  const double radius = std::min(rect.width(), rect.height()) / 2.0;
  if (radius < 4) return;
  const QTime now = ClockDateTime().time();
  QPainter& p = canvas.Painter();
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  p.translate(QRectF(rect).center());
  PaintFace(p, radius);
  const auto hand = [&](double degrees, double length, double width, TColor color) {
    p.save();
    p.rotate(degrees);
    p.setPen(QPen(ToQColor(Enabled() ? color : clGrayText), width, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(0, radius * 0.12), QPointF(0, -radius * length));
    p.restore();
  };
  const double minutes = now.minute() + now.second() / 60.0;
  hand(30 * (now.hour() % 12 + minutes / 60), 0.5, radius / 14, Get(HourColor));
  hand(6 * minutes, 0.74, radius / 22, Get(MinuteColor));
  if (Get(ShowSeconds)) hand(6 * now.second(), 0.8, radius / 50, Get(SecondColor));
  p.restore();
}
