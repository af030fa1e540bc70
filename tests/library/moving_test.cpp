// What moves on a form: clocks, running texts, pictures one after the other. The test's clock is the only
// one there is.
#include "library/controls/AniCtrl.h"
#include "library/controls/Clock.h"
#include "library/controls/ScrollText.h"
#include "rtl/Clock.h"
#include "tests/library/VisibleProperties.h"
#include "vcl/Form.h"

namespace {
constexpr std::int64_t Hour = 3'600'000, Minute = 60'000;

class Moving : public testing::Test {
 protected:
  std::int64_t now_ = 10 * Hour + 8 * Minute + 42'300;

 private:
  TClockOverride clock_{[this] { return now_; }};
};

class RepaintHost : public IControlHost {
 public:
  void ControlChanged(TControl& control) override { repainted.push_back(&control); }
  std::vector<TControl*> repainted;
};

// A form with a control on it that is in sight until somebody hides it.
template <class C>
struct Shown {
  Shown() : control(new C(&form)), other(new TVRXClock(&form)) {
    control->SetParent(&form);
    other->SetParent(&form);
    other->SetBounds(0, 0, 40, 40);
    form.SetHost(&host);
  }
  ~Shown() { form.SetHost(nullptr); }
  QImage Look() { return Draw(*control, Qt::white); }
  TForm form{nullptr};
  C* control;
  TVRXClock* other;
  RepaintHost host;
};

TVRXAniCtrl* WithStrip(TVRXAniCtrl* control) {
  QImage strip(36, 9, QImage::Format_RGB32);
  QPainter p(&strip);
  p.fillRect(0, 0, 12, 9, Qt::red);
  p.fillRect(12, 0, 12, 9, Qt::green);
  p.fillRect(24, 0, 12, 9, Qt::blue);
  p.end();
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  strip.save(&buffer, "PNG");
  control->Bitmap()->SetFileBytes(bytes);
  control->Set(TVRXAniCtrl::FrameCount, 3);
  control->SetBounds(0, 0, 20, 15);
  return control;
}
}  // namespace

TEST_F(Moving, AClockShowsTheTimeOfTheClock) {
  TVRXClock clock(nullptr);
  EXPECT_EQ(clock.DigitalText(), QStringLiteral("10:08:42"));
  clock.Set(TVRXClock::ShowSeconds, false);
  EXPECT_EQ(clock.DigitalText(), QStringLiteral("10:08"));
  clock.SetDateTimeFormat(QStringLiteral("d.m.yy h"));
  EXPECT_EQ(clock.DigitalText(), QStringLiteral("1.1.00 10"));
  now_ += 24 * Hour;
  EXPECT_EQ(clock.DigitalText(), QStringLiteral("2.1.00 10"));
  clock.SetDateTimeFormat(QStringLiteral("hh 'x"));
  EXPECT_EQ(clock.DigitalText(), QStringLiteral("hh 'x")) << "what is no format is shown as it stands";
}

TEST_F(Moving, AClockIsPaintedAgainWhenItsPictureChangesAndNothingElseIs) {
  Shown<TVRXClock> s;
  EXPECT_EQ(TRepaintTimer::RunDue(), 0) << "nobody has painted it";
  const QImage before = s.Look();
  EXPECT_EQ(s.Look(), before);
  now_ += 699;
  EXPECT_EQ(TRepaintTimer::RunDue(), 0);
  EXPECT_EQ(s.Look(), before);
  now_ += 1;
  EXPECT_EQ(TRepaintTimer::RunDue(), 1);
  EXPECT_EQ(s.host.repainted, std::vector<TControl*>{s.control});
  EXPECT_NE(s.Look(), before);
}

TEST_F(Moving, WhatIsNotPaintedCostsNothing) {
  Shown<TVRXClock> s;
  s.Look();
  now_ += Minute;
  EXPECT_EQ(TRepaintTimer::RunDue(), 1);
  now_ += Minute;
  EXPECT_EQ(TRepaintTimer::RunDue(), 0);
  s.Look();
  s.Look();
  now_ += Minute;
  EXPECT_EQ(TRepaintTimer::RunDue(), 1) << "painted twice, asked once";
  {
    Shown<TVRXClock> gone;
    gone.Look();
  }
  now_ += Minute;
  EXPECT_EQ(TRepaintTimer::RunDue(), 0) << "the one that is freed is forgotten";
}

TEST_F(Moving, AClockWithoutSecondsSleepsToTheNextMinute) {
  TVRXClock clock(nullptr);
  EXPECT_EQ(clock.NextPicture(), 700);
  clock.Set(TVRXClock::ShowSeconds, false);
  EXPECT_EQ(clock.NextPicture(), 17'700);
  clock.SetDateTimeFormat(QStringLiteral("nn:ss"));
  EXPECT_EQ(clock.NextPicture(), 700);
  clock.SetDateTimeFormat(QStringLiteral("zzz"));
  EXPECT_EQ(clock.NextPicture(), 100);
  clock.SetDateTimeFormat(QStringLiteral("dd"));
  EXPECT_EQ(clock.NextPicture(), 17'700);
  clock.Set(TVRXClock::DigitalOnly, true);
  EXPECT_EQ(clock.NextPicture(), 24 * Hour - now_);
}

TEST_F(Moving, EveryPropertyOfAClockIsSeen) {
  visible::ExpectAll<TVRXClock>(
      {{"", "DigitalOnly=True"},
       {"", "FaceColor=clYellow"},
       {"", "DigitalColor=clYellow"},
       {"", "HourColor=clRed"},
       {"", "MinuteColor=clRed"},
       {"", "SecondColor=clBlue"},
       {"", "MarkColor=clRed"},
       {"", "Numerals=cnNone"},
       {"", "Numerals=cnArabic"},
       {"Numerals=cnArabic", "Numerals=cnRoman"},
       {"", "ShowSeconds=False"},
       {"", "Transparent=True"},
       {"", "Color=clYellow"},
       {"", "Enabled=False"},
       {"", "CustomDateTimeFormat=hh"},
       {"", "Bevel.Outer=bvRaised"},
       {"", "Digital.ActiveColor=clRed"},
       {"", "Digital.InActiveColor=clRed"},
       {"", "Digital.HorzSize=5"},
       {"", "Digital.VertSize=5"},
       {"", "Digital.Thickness=1"},
       {"Enabled=False", "Digital.DisabledDigits=True"}},
      {141, 163}, {QStringLiteral("Bevel."), QStringLiteral("Font."), QStringLiteral("ParentFont")});
}

TEST_F(Moving, TheHandsPointToTheTime) {
  TVRXClock clock(nullptr);
  clock.SetBounds(0, 0, 121, 121);
  visible::Apply(clock, QStringLiteral("Numerals=cnNone FaceColor=clWhite HourColor=clRed MinuteColor=clLime "
                                       "ShowSeconds=False Transparent=True Digital.VertSize=90"));
  now_ = 3 * Hour;
  const QImage three = Draw(clock, Qt::white);
  EXPECT_EQ(three.pixelColor(80, 60), QColor(Qt::red));
  EXPECT_EQ(three.pixelColor(60, 25), QColor(Qt::green));
  now_ = 6 * Hour + 15 * Minute;
  const QImage six = Draw(clock, Qt::white);
  EXPECT_EQ(six.pixelColor(95, 60), QColor(Qt::green));
  EXPECT_NE(six.pixelColor(80, 40), QColor(Qt::red));
}

TEST_F(Moving, LinesRunByTheClockAndOnlyWhileTheyAreToldTo) {
  Shown<TVRXScrollText> s;
  s.control->Lines()->SetLines({QStringLiteral("Hg"), QStringLiteral("Second")});
  const QImage still = s.Look();
  now_ += 400;
  EXPECT_EQ(s.Look(), still);
  EXPECT_EQ(TRepaintTimer::RunDue(), 0);
  s.control->Set(TVRXScrollText::Scroll, true);
  now_ = 40 * 60;
  const QImage first = s.Look();
  now_ += 39;
  EXPECT_EQ(TRepaintTimer::RunDue(), 0);
  EXPECT_EQ(s.Look(), first);
  now_ += 40;
  s.host.repainted.clear();
  EXPECT_EQ(TRepaintTimer::RunDue(), 1);
  EXPECT_EQ(s.host.repainted, std::vector<TControl*>{s.control});
  EXPECT_NE(s.Look(), first);
}

TEST_F(Moving, LinesEnterAtOneEdgeAndLeaveAtTheOther) {
  struct Row {
    const char* direction;
    Qt::Edge enters;
  };
  for (const Row& row : {Row{"sdUp", Qt::BottomEdge}, Row{"sdDown", Qt::TopEdge},
                         Row{"sdLeft", Qt::RightEdge}, Row{"sdRight", Qt::LeftEdge}}) {
    SCOPED_TRACE(row.direction);
    TVRXScrollText text(nullptr);
    text.SetBounds(0, 0, 90, 50);
    text.Lines()->SetLines({QStringLiteral("HHHHHHHHHHHH")});
    visible::Apply(
        text, QStringLiteral("Scroll=True Transparent=True Direction=") + QString::fromLatin1(row.direction));
    now_ = 0;
    EXPECT_TRUE(Inked(Draw(text, Qt::white), Qt::white).isEmpty());
    now_ = 40 * 8;
    const QRect ink = Inked(Draw(text, Qt::white), Qt::white);
    ASSERT_FALSE(ink.isEmpty());
    const QRect room(0, 0, 90, 50);
    EXPECT_LE(row.enters == Qt::BottomEdge  ? room.bottom() - ink.bottom()
              : row.enters == Qt::TopEdge   ? ink.top()
              : row.enters == Qt::RightEdge ? room.right() - ink.right()
                                            : ink.left(),
              6);
  }
}

TEST_F(Moving, EveryPropertyOfARunningTextIsSeen) {
  now_ = 40 * 30 + 7;
  for (const char* change :
       {"Scroll=False", "Direction=sdDown", "Direction=sdLeft", "Alignment=taLeftJustify", "Interval=30",
        "Step=2", "Transparent=True", "Color=clYellow", "Enabled=False", "Bevel.Outer=bvRaised",
        "Font.Color=clRed", "Font3D.Style=tdRaised"}) {
    SCOPED_TRACE(change);
    TVRXScrollText text(nullptr);
    text.SetBounds(0, 0, 90, 50);
    text.Lines()->SetLines({QStringLiteral("Hg"), QStringLiteral("Second")});
    visible::Apply(text, QStringLiteral("Scroll=True"));
    const QImage before = Draw(text, Qt::white);
    visible::Apply(text, QString::fromLatin1(change));
    EXPECT_NE(Draw(text, Qt::white), before);
  }
}

TEST_F(Moving, PicturesRunOnlyWhileTheyAreToldTo) {
  Shown<TVRXAniCtrl> s;
  WithStrip(s.control);
  const QImage rest = s.Look();
  EXPECT_EQ(CountPixels(rest, Qt::red), 108);
  now_ = 0;
  EXPECT_EQ(s.Look(), rest);
  now_ += Hour;
  EXPECT_EQ(TRepaintTimer::RunDue(), 0) << "at rest nothing is waited for";
  s.control->Set(TVRXAniCtrl::Animate, true);
  s.host.repainted.clear();
  for (const QColor color : {QColor(Qt::red), QColor(Qt::green), QColor(Qt::blue), QColor(Qt::red)}) {
    EXPECT_EQ(CountPixels(s.Look(), color), 108) << color.name().toStdString();
    now_ += 99;
    EXPECT_EQ(TRepaintTimer::RunDue(), 0);
    now_ += 1;
    EXPECT_EQ(TRepaintTimer::RunDue(), 1);
  }
  EXPECT_EQ(s.host.repainted.size(), 4u);
}

TEST_F(Moving, PicturesComeFromTheBitmapOrTheImageList) {
  TForm form(nullptr);
  auto* images = new TImageList(&form);
  QImage picture(16, 16, QImage::Format_ARGB32);
  picture.fill(Qt::yellow);
  images->SetPictures({picture});
  auto* control = WithStrip(new TVRXAniCtrl(&form));
  control->SetParent(&form);
  control->Set(TVRXAniCtrl::ImageIndex, 2);
  EXPECT_EQ(CountPixels(Draw(*control, Qt::white), Qt::blue), 108);
  control->Set(TVRXAniCtrl::ImageIndex, 3);
  EXPECT_TRUE(Inked(Draw(*control, Qt::white), Qt::white).isEmpty()) << "there is no such picture";
  control->Set(TVRXAniCtrl::ImageIndex, 0);
  control->Set(TVRXAniCtrl::ImageList, images);
  EXPECT_EQ(CountPixels(Draw(*control, Qt::white), Qt::yellow), 16 * 15);
  control->Set(TVRXAniCtrl::Stretch, true);
  EXPECT_EQ(CountPixels(Draw(*control, Qt::white), Qt::yellow), 20 * 15);
  control->Set(TVRXAniCtrl::ImageList, nullptr);
  control->Set(TVRXAniCtrl::Stretch, false);
  control->SetAutoSize(true);
  EXPECT_EQ(control->BoundsRect().size(), QSize(12, 9));
}
