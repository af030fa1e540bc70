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
