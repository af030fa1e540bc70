// Alarms, the clipboard, what slides out, keys for every program, menus with pictures.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QPainter>
#include <QUrl>
#include <random>

#include "library/components/Alarm.h"
#include "library/components/ClipboardMonitor.h"
#include "library/components/FlyoutController.h"
#include "library/components/GlobalHotKey.h"
#include "library/components/PopupMenu.h"
#include "rtl/Clock.h"
#include "rtl/Exceptions.h"
#include "vcl/Form.h"
#include "vcl/MenuLook.h"
#include "vcl/Panel.h"

// --- Alarms

TEST(Alarm, TheNextOneIsTheFirstMinuteThatFits) {
  std::mt19937 random(7);
  for (int i = 0; i < 300; ++i) {
    TVRXAlarmComponent alarm(nullptr);
    const int minute = static_cast<int>(random() % 1440);
    TVRXWeekdays days;
    for (int day = 0; day < 7; ++day)
      if (random() % 3 == 0) days.Include(static_cast<TVRXWeekday>(day));
    alarm.Set(TVRXAlarmComponent::Days, days);
    alarm.Set(TVRXAlarmComponent::AlarmTime, TDateTime{minute / 1440.0});
    const QDateTime from(QDate(2025, 2, 20).addDays(static_cast<int>(random() % 20)),
                         QTime(static_cast<int>(random() % 24), static_cast<int>(random() % 60)));
    QDateTime wanted;
    const int start = from.time().hour() * 60 + from.time().minute();
    for (int at = start + 1; at <= start + 7 * 1440 && !wanted.isValid(); ++at) {
      const int weekday = (from.date().dayOfWeek() - 1 + at / 1440) % 7;
      if (at % 1440 == minute && days.Contains(static_cast<TVRXWeekday>(weekday)))
        wanted = QDateTime(from.date().addDays(at / 1440), QTime(minute / 60, minute % 60));
    }
    ASSERT_EQ(alarm.NextAfter(from), wanted) << i;
  }
}

TEST(Alarm, OneThatIsOffNeverTells) {
  TVRXAlarmComponent alarm(nullptr);
  const QDateTime now(QDate(2025, 3, 4), QTime(5, 6));
  EXPECT_TRUE(alarm.NextAfter(now).isValid());
  const QDateTime midnight(QDate(2025, 3, 4), QTime(0, 0));
  EXPECT_EQ(alarm.NextAfter(midnight), midnight.addDays(1)) << "not that moment itself";
  EXPECT_EQ(alarm.PutOff(now), now.addSecs(300));
  alarm.Set(TVRXAlarmComponent::SnoozeMinutes, -3);
  EXPECT_EQ(alarm.PutOff(now), now);
  alarm.Set(TVRXAlarmComponent::Days, TVRXWeekdays());
  EXPECT_FALSE(alarm.NextAfter(now).isValid());
  alarm.Set(TVRXAlarmComponent::Enabled, false);
  EXPECT_FALSE(alarm.PutOff(now).isValid());
}

namespace {
// The first day of 2000 was a Saturday.
struct Ticking {
  std::int64_t now = 0;
  TClockOverride clock{[this] { return now; }};
  void Go(std::int64_t milliseconds) {
    now += milliseconds;
    TDueTimer::RunDue();
  }
  void GoMinutes(int minutes) {
    for (int i = 0; i < minutes; ++i) Go(60'000);
  }
};
}  // namespace

TEST(Alarm, RingsAtItsTimeOnItsDays) {
  Ticking time;
  TVRXAlarmComponent alarm(nullptr);
  alarm.Set(TVRXAlarmComponent::AlarmTime, TDateTime{90 / 1440.0});
  alarm.Set(TVRXAlarmComponent::Days, {TVRXWeekday::wdSaturday, TVRXWeekday::wdMonday});
  QStringList rung;
  EXPECT_FALSE(alarm.IsRunning());
  alarm.Start([&] { rung << ClockDateTime().toString(QStringLiteral("ddd HH:mm")); });
  time.GoMinutes(89);
  EXPECT_TRUE(rung.isEmpty());
  time.GoMinutes(1);
  EXPECT_EQ(rung.join(u','), QStringLiteral("Sat 01:30"));
  time.GoMinutes(3 * 1440);
  EXPECT_EQ(rung.join(u','), QStringLiteral("Sat 01:30,Mon 01:30"));
  alarm.Stop();
  EXPECT_FALSE(alarm.Next().isValid());
  time.GoMinutes(7 * 1440);
  EXPECT_EQ(rung.size(), 2);
}

TEST(Alarm, RingsOnceForWhatAMachineSleptThrough) {
  Ticking time;
  int rung = 0;
  TVRXAlarmComponent alarm(nullptr);
  alarm.Set(TVRXAlarmComponent::AlarmTime, TDateTime{0.5});
  alarm.Start([&] { ++rung; });
  time.Go(std::int64_t{50} * 3600 * 1000);
  EXPECT_EQ(rung, 1);
  EXPECT_EQ(alarm.Next().toString(QStringLiteral("yyyy-MM-dd HH:mm")), QStringLiteral("2000-01-03 12:00"));
}

TEST(Alarm, PutOffItRingsOnceMore) {
  Ticking time;
  int rung = 0;
  TVRXAlarmComponent alarm(nullptr);
  alarm.Snooze();
  EXPECT_FALSE(alarm.Next().isValid());
  alarm.Set(TVRXAlarmComponent::AlarmTime, TDateTime{10 / 1440.0});
  alarm.Set(TVRXAlarmComponent::SnoozeMinutes, 7);
  alarm.Start([&] {
    if (++rung == 1) alarm.Snooze();
  });
  time.GoMinutes(16);
  EXPECT_EQ(rung, 1);
  time.GoMinutes(1);
  EXPECT_EQ(rung, 2);
  time.GoMinutes(60);
  EXPECT_EQ(rung, 2);
  alarm.Snooze();
  alarm.Set(TVRXAlarmComponent::Enabled, false);
  time.GoMinutes(60);
  EXPECT_EQ(rung, 2) << "one that is off is put off no more";
}

TEST(Alarm, AnotherTimeCountsAtOnce) {
  Ticking time;
  int rung = 0;
  auto alarm = std::make_unique<TVRXAlarmComponent>(nullptr);
  alarm->Set(TVRXAlarmComponent::AlarmTime, TDateTime{0.9});
  alarm->Start([&] { ++rung; });
  alarm->Set(TVRXAlarmComponent::AlarmTime, TDateTime{5 / 1440.0});
  time.GoMinutes(5);
  EXPECT_EQ(rung, 1);
  alarm->Set(TVRXAlarmComponent::AlarmTime, TDateTime{8 / 1440.0});
  alarm->Set(TVRXAlarmComponent::Enabled, false);
  time.GoMinutes(5);
  EXPECT_EQ(rung, 1);
  alarm->Set(TVRXAlarmComponent::Enabled, true);
  alarm->Set(TVRXAlarmComponent::AlarmTime, TDateTime{12 / 1440.0});
  auto held = std::make_shared<int>(0);
  const std::weak_ptr<int> hearing = held;
  alarm->Start([&, held = std::move(held)] {
    ++rung;
    alarm.reset();
    EXPECT_FALSE(hearing.expired()) << "who hears of it lives until it is done";
  });
  time.GoMinutes(5);
  EXPECT_EQ(rung, 2) << "it may be freed by who hears of it";
  EXPECT_EQ(alarm, nullptr);
}

TEST(Alarm, IsSilentWhileItsFormIsDesigned) {
  TVRXAlarmComponent alarm(nullptr);
  alarm.SetName(QStringLiteral("Lunch"));
  alarm.SetDesigning(true);
  try {
    alarm.Start([] {});
    ADD_FAILURE();
  } catch (const EComponentError& error) {
    EXPECT_TRUE(error.Message().startsWith(QStringLiteral("Lunch")));
  }
  EXPECT_FALSE(alarm.IsRunning());
}

// --- The clipboard

namespace {
using enum TVRXClipboardFormat;
TVRXClipboardFormats Of(const std::function<void(QMimeData&)>& put) {
  QMimeData data;
  put(data);
  return VRXClipboardFormatsOf(data);
}
}  // namespace

TEST(ClipboardMonitor, KnowsWhatIsThere) {
  EXPECT_EQ(Of([](QMimeData&) {}), TVRXClipboardFormats());
  EXPECT_EQ(Of([](QMimeData& d) { d.setText(QStringLiteral("x")); }), (TVRXClipboardFormats{cfText}));
  EXPECT_EQ(Of([](QMimeData& d) { d.setHtml(QStringLiteral("<b>x</b>")); }).Contains(cfHTML), true);
  EXPECT_EQ(Of([](QMimeData& d) { d.setImageData(QImage(3, 2, QImage::Format_ARGB32)); }),
            (TVRXClipboardFormats{cfPicture}));
  EXPECT_EQ(Of([](QMimeData& d) { d.setUrls({QUrl::fromLocalFile(QStringLiteral("/a"))}); }),
            (TVRXClipboardFormats{cfFiles}));
  EXPECT_EQ(Of([](QMimeData& d) { d.setData(QStringLiteral("application/x-own"), "1"); }),
            (TVRXClipboardFormats{cfOther}));
}

TEST(ClipboardMonitor, TellsOfWhatItIsAskedForWhileItIsEnabled) {
  QClipboard& clipboard = *QGuiApplication::clipboard();
  QList<TVRXClipboardFormats> heard;
  auto monitor = std::make_unique<TVRXClipboardMonitor>(nullptr);
  EXPECT_FALSE(monitor->IsRunning());
  monitor->Start([&](TVRXClipboardFormats formats) { heard << formats; });
  clipboard.setText(QStringLiteral("one"));
  ASSERT_EQ(heard.size(), 1);
  EXPECT_EQ(heard[0], (TVRXClipboardFormats{cfText}));
  monitor->Set(TVRXClipboardMonitor::Formats, {cfPicture});
  clipboard.setText(QStringLiteral("two"));
  EXPECT_EQ(heard.size(), 1);
  clipboard.setImage(QImage(3, 2, QImage::Format_ARGB32));
  EXPECT_EQ(heard.size(), 2);
  monitor->Set(TVRXClipboardMonitor::Enabled, false);
  clipboard.setImage(QImage(2, 2, QImage::Format_ARGB32));
  EXPECT_EQ(heard.size(), 2);
  monitor->Set(TVRXClipboardMonitor::Enabled, true);
  monitor->Start([&](TVRXClipboardFormats formats) {
    heard << formats;
    monitor->Stop();
  });
  clipboard.setImage(QImage(4, 2, QImage::Format_ARGB32));
  clipboard.setImage(QImage(5, 2, QImage::Format_ARGB32));
  EXPECT_EQ(heard.size(), 3);
  EXPECT_FALSE(monitor->IsRunning());
  monitor->Start([&](TVRXClipboardFormats formats) { heard << formats; });
  monitor.reset();
  clipboard.setImage(QImage(6, 2, QImage::Format_ARGB32));
  EXPECT_EQ(heard.size(), 3);
}

// --- What slides out

TEST(Flyout, SlidesAfterItsDelayAndBack) {
  TVRXFlyoutController fly(nullptr);
  fly.Set(TVRXFlyoutController::Delay, 100);
  fly.Set(TVRXFlyoutController::Duration, 200);
  const std::pair<int, double> out[] = {{0, 0}, {99, 0}, {100, 0}, {150, 0.25}, {300, 1}, {999, 1}};
  for (const auto& [at, much] : out) {
    EXPECT_DOUBLE_EQ(fly.OutAfter(at, true), much);
    EXPECT_DOUBLE_EQ(fly.OutAfter(at, false), 1 - much);
  }
  fly.Set(TVRXFlyoutController::Duration, 0);
  EXPECT_DOUBLE_EQ(fly.OutAfter(99, true), 0);
  EXPECT_DOUBLE_EQ(fly.OutAfter(100, true), 1);
  fly.Set(TVRXFlyoutController::Pinned, true);
  EXPECT_DOUBLE_EQ(fly.OutAfter(0, true), 1);
  EXPECT_DOUBLE_EQ(fly.OutAfter(999, false), 1);
  fly.Set(TVRXFlyoutController::Pinned, false);
  fly.Set(TVRXFlyoutController::Enabled, false);
  EXPECT_DOUBLE_EQ(fly.OutAfter(0, true), 1);
}

TEST(Flyout, StandsOnItsSideWithTheHandleInSight) {
  TVRXFlyoutController fly(nullptr);
  EXPECT_EQ(fly.PlaceAt(1, {400, 300}), QRect());
  TPanel panel(nullptr);
  panel.SetBounds(7, 9, 110, 60);
  fly.Set(TVRXFlyoutController::Control, &panel);
  fly.Set(TVRXFlyoutController::HandleSize, 10);
  using enum TVRXFlyoutSide;
  struct {
    TVRXFlyoutSide side;
    QPoint in, half, out;
  } rows[] = {{fsLeft, {-100, 9}, {-50, 9}, {0, 9}},
              {fsTop, {7, -50}, {7, -25}, {7, 0}},
              {fsRight, {390, 9}, {340, 9}, {290, 9}},
              {fsBottom, {7, 290}, {7, 265}, {7, 240}}};
  for (const auto& row : rows) {
    fly.Set(TVRXFlyoutController::Side, row.side);
    EXPECT_EQ(fly.PlaceAt(0, {400, 300}), QRect(row.in, QSize(110, 60)));
    EXPECT_EQ(fly.PlaceAt(0.5, {400, 300}), QRect(row.half, QSize(110, 60)));
    EXPECT_EQ(fly.PlaceAt(7, {400, 300}), QRect(row.out, QSize(110, 60)));
  }
  fly.Set(TVRXFlyoutController::HandleSize, 5000);
  EXPECT_EQ(fly.PlaceAt(0, {400, 300}), QRect(7, 240, 110, 60));
}

namespace {
struct Flying {
  Flying() {
    form.SetBounds(0, 0, 400, 300);
    panel.SetParent(&form);
    panel.SetBounds(20, 40, 110, 60);
    fly.SetName(QStringLiteral("Fly"));
    fly.Set(TVRXFlyoutController::Control, &panel);
    fly.Set(TVRXFlyoutController::HandleSize, 10);
    fly.Set(TVRXFlyoutController::Delay, 100);
    fly.Set(TVRXFlyoutController::Duration, 200);
  }
  Ticking time;
  TForm form{nullptr};
  TPanel panel{nullptr};
  TVRXFlyoutController fly{nullptr};
  QByteArrayList heard;
};
constexpr QPoint OnHandle(5, 60), Away(300, 200);
}  // namespace

TEST(Flyout, OpensUnderThePointerAndClosesWhenItGoes) {
  Flying f;
  f.fly.Start([&f](bool open) { f.heard << (open ? "open" : "closed"); });
  EXPECT_EQ(f.panel.BoundsRect(), QRect(-100, 40, 110, 60));
  f.fly.PointerAt(Away);
  f.time.Go(500);
  EXPECT_EQ(f.panel.Left(), -100);
  f.fly.PointerAt(OnHandle);
  f.time.Go(100);
  EXPECT_EQ(f.panel.Left(), -100) << "the delay";
  f.time.Go(100);
  EXPECT_EQ(f.panel.Left(), -50);
  EXPECT_TRUE(f.heard.isEmpty());
  f.time.Go(100);
  EXPECT_EQ(f.panel.Left(), 0);
  EXPECT_EQ(f.heard.join(' '), "open");
  f.fly.PointerAt(QPoint(90, 70));
  f.time.Go(1000);
  EXPECT_EQ(f.panel.Left(), 0) << "the pointer is on it";
  EXPECT_EQ(TDueTimer::RunDue(), 0) << "nothing moves";
  f.fly.PointerAt({});
  f.time.Go(150);
  EXPECT_EQ(f.panel.Left(), -25);
  f.time.Go(150);
  EXPECT_EQ(f.panel.Left(), -100);
  EXPECT_EQ(f.heard.join(' '), "open closed");
  f.fly.Stop();
  EXPECT_EQ(f.panel.BoundsRect(), QRect(20, 40, 110, 60)) << "where it stood";
  f.fly.PointerAt(QPoint(30, 60));
  f.time.Go(1000);
  EXPECT_EQ(f.panel.Left(), 20);
}

TEST(Flyout, TurnsWhereItIs) {
  Flying f;
  f.fly.Start();
  f.fly.PointerAt(OnHandle);
  f.time.Go(200);
  EXPECT_EQ(f.panel.Left(), -50);
  f.fly.PointerAt(Away);
  f.time.Go(150);
  EXPECT_EQ(f.panel.Left(), -75);
  f.fly.PointerAt(OnHandle);
  f.time.Go(100);
  EXPECT_EQ(f.panel.Left(), -75);
  f.time.Go(1000);
  EXPECT_EQ(f.panel.Left(), 0);
}

TEST(Flyout, StaysOutWhilePinnedOrNotEnabled) {
  Flying f;
  f.fly.Set(TVRXFlyoutController::Pinned, true);
  f.fly.Start();
  EXPECT_EQ(f.panel.Left(), 0);
  f.fly.PointerAt(Away);
  f.time.Go(1000);
  EXPECT_EQ(f.panel.Left(), 0);
  f.fly.Set(TVRXFlyoutController::Pinned, false);
  EXPECT_EQ(f.panel.Left(), 0);
  f.time.Go(200);
  EXPECT_EQ(f.panel.Left(), -50);
  f.time.Go(200);
  EXPECT_EQ(f.panel.Left(), -100);
  f.fly.Set(TVRXFlyoutController::Side, TVRXFlyoutSide::fsTop);
  EXPECT_EQ(f.panel.Top(), -50);
  f.fly.Set(TVRXFlyoutController::Enabled, false);
  EXPECT_EQ(f.panel.Top(), 0);
}

TEST(Flyout, NeedsAPanelAndAFormThatRuns) {
  Flying f;
  f.fly.SetDesigning(true);
  EXPECT_THROW(f.fly.Start(), EComponentError);
  f.fly.SetDesigning(false);
  f.panel.SetParent(nullptr);
  EXPECT_THROW(f.fly.Start(), EComponentError);
  EXPECT_FALSE(f.fly.IsRunning());
  EXPECT_EQ(f.panel.BoundsRect(), QRect(20, 40, 110, 60));
  f.panel.SetParent(&f.form);
  {
    TPanel other(nullptr);
    other.SetParent(&f.form);
    other.SetBounds(50, 50, 60, 30);
    f.fly.Set(TVRXFlyoutController::Control, &other);
    f.fly.Start();
    EXPECT_EQ(other.Left(), -50);
    f.fly.PointerAt(QPoint(5, 60));
  }
  f.time.Go(1000);
  EXPECT_EQ(f.fly.Get(TVRXFlyoutController::Control), nullptr);
  f.fly.PointerAt(Away);
}

// --- Keys

TEST(GlobalHotKey, TakesNoKeyThatEverybodyTypes) {
  TVRXGlobalHotKey key(nullptr);
  key.SetName(QStringLiteral("Boss"));
  EXPECT_EQ(key.Problem(), QStringLiteral("Boss has no key."));
  const std::pair<const char*, bool> keys[] = {{"A", false},      {"Shift+A", false}, {"Ctrl+A", true},
                                               {"Alt+Del", true}, {"F12", true},      {"F1", true},
                                               {"Enter", false},  {"Shift+F5", true}};
  for (const auto& [text, good] : keys) {
    key.Set(TVRXGlobalHotKey::HotKey, TextToShortCut(QLatin1StringView(text)));
    ASSERT_NE(key.Get(TVRXGlobalHotKey::HotKey), TShortCut{}) << text;
    EXPECT_EQ(key.Problem().isEmpty(), good) << text;
    EXPECT_EQ(key.Problem().startsWith(QLatin1StringView(text)), !good) << key.Problem().toStdString();
  }
}

// --- Menus

TEST(PopupMenu, ItemsHaveThePicturesOfItsImageList) {
  TVRXPopupMenu menu(nullptr);
  TImageList plain(nullptr), own(nullptr);
  const auto filled = [](TImageList& list, const QColor& color) {
    QImage image(16, 16, QImage::Format_ARGB32);
    image.fill(color);
    list.SetPictures({image});
  };
  filled(plain, QColor(1, 2, 250));
  filled(own, QColor(250, 3, 4));
  auto* item = new TMenuItem(&menu);
  item->SetAround(&menu);
  item->Set(TMenuItem::Caption, QStringLiteral("Go"));
  item->Set(TMenuItem::ImageIndex, 0);
  const auto pixels = [&](const QColor& color) {
    QImage picture(200, 80, QImage::Format_ARGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    TMenuLook(menu, 200).Paint(painter, {});
    painter.end();
    int count = 0;
    for (int y = 0; y < picture.height(); ++y)
      for (int x = 0; x < picture.width(); ++x) count += picture.pixelColor(x, y) == color;
    return count;
  };
  EXPECT_EQ(pixels(QColor(250, 3, 4)), 0);
  menu.Set(TVRXPopupMenu::ImageList, &own);
  EXPECT_GT(pixels(QColor(250, 3, 4)), 200);
  menu.Set(TMenu::Images, &plain);
  EXPECT_EQ(pixels(QColor(250, 3, 4)), 0);
  EXPECT_GT(pixels(QColor(1, 2, 250)), 200);
}
