// The surface paints only what a change touches. What stands on the screen after it is compared with the
// whole surface painted anew.
#include <QRandomGenerator>

#include "library/controls/CustomLabel.h"
#include "library/controls/MMButton.h"
#include "rtl/PropAccess.h"
#include "tests/designer/DesignerTest.h"

using namespace designer;

namespace {
class RepaintTest : public DesignerTest {
 protected:
  // What the screen shows of the surface, against a painting of all of it.
  void ExpectAllPainted(const QString& after) {
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
    QWidget& view = *Surface().parentWidget();
    const QRect place(view.mapTo(window_.get(), QPoint()), view.size());
    const QImage shown =
        window_->screen()
            ->grabWindow(window_->winId(), place.x(), place.y(), place.width(), place.height())
            .toImage()
            .convertToFormat(QImage::Format_RGB32);
    const QImage fresh = view.grab().toImage().convertToFormat(QImage::Format_RGB32);
    ASSERT_EQ(shown.size(), fresh.size());
    ASSERT_FALSE(shown.isNull());
    if (shown == fresh) return;
    QRect differing;
    for (int y = 0; y < shown.height(); ++y)
      for (int x = 0; x < shown.width(); ++x)
        if (shown.pixel(x, y) != fresh.pixel(x, y)) differing |= QRect(x, y, 1, 1);
    EXPECT_TRUE(differing.isNull()) << "not painted after: " << after.toStdString() << ", at "
                                    << differing.x() << "," << differing.y() << " " << differing.width()
                                    << "x" << differing.height();
  }
};
}  // namespace

TEST_F(RepaintTest, AShorterCaptionTakesItsOldTextAway) {
  auto* label = As<TLabel>(Session().CreateComponent(TLabel::StaticClass(), nullptr, QRect(16, 200, 0, 0)));
  Session().Run(QStringLiteral("long"), {}, [&] {
    label->SetCaption(QStringLiteral("a caption that goes on for a while"));
    label->SetBounds(16, 200, 20, 17);  // as a form from elsewhere may have it
  });
  ExpectAllPainted(QStringLiteral("long"));
  Session().Run(QStringLiteral("short"), {}, [&] { label->SetCaption(QStringLiteral("a")); });
  ExpectAllPainted(QStringLiteral("short"));
}

TEST_F(RepaintTest, MarksOfTheSelectionMoveWithAContainer) {
  Session().Select({&Get("Inner"), &Get("Led")});
  ExpectAllPainted(QStringLiteral("selection"));
  Session().Run(QStringLiteral("move"), {}, [&] {
    auto& panel = *As<TControl>(&Get("Panel1"));
    panel.SetBounds(panel.Left() + 5, panel.Top() + 90, panel.Width(), panel.Height());
  });
  ExpectAllPainted(QStringLiteral("move"));
}

TEST_F(RepaintTest, ControlsFollowTheirFaceController) {
  auto* text = As<TVRXStaticText>(
      Session().CreateComponent(TVRXStaticText::StaticClass(), nullptr, QRect(16, 200, 90, 20)));
  auto* face = As<TVRXFaceController>(
      Session().CreateComponent(TVRXFaceController::StaticClass(), nullptr, QRect(300, 250, 0, 0)));
  Session().Run(QStringLiteral("refer"), {}, [&] { text->Set(VRXFaceControllerRef, face); });
  ExpectAllPainted(QStringLiteral("refer"));
  Session().Run(QStringLiteral("color"), {}, [&] {
    face->AddSettingObject(TVRXCFCSettingObjectKind::okColor);
    face->States()->Add()->Add(face->SettingObjects()->Items(0), true);
  });
  ExpectAllPainted(QStringLiteral("color"));
  Session().Run(QStringLiteral("another color"), {}, [&] {
    As<TVRXColorObject>(face->SettingObjects()->Items(0))->Set(TVRXColorObject::Color, clRed);
  });
  ExpectAllPainted(QStringLiteral("another color"));
  Session().Undo();
  ExpectAllPainted(QStringLiteral("undo"));
}

TEST_F(RepaintTest, ControlsFollowTheirStyles) {
  auto* text = As<TVRXStaticText>(
      Session().CreateComponent(TVRXStaticText::StaticClass(), nullptr, QRect(16, 200, 90, 20)));
  auto* styles = As<TVRXStyleManager>(
      Session().CreateComponent(TVRXStyleManager::StaticClass(), nullptr, QRect(300, 250, 0, 0)));
  Session().Run(QStringLiteral("refer"), {}, [&] { text->Set(VRXStyleManagerRef, styles); });
  ExpectAllPainted(QStringLiteral("refer"));
  for (const TColor color : {clRed, clBlue}) {
    Session().Run(QStringLiteral("color"), {}, [&] {
      styles->WritePropValue(QStringLiteral("TVRXStaticText"), QStringLiteral("Color"),
                             static_cast<std::int64_t>(color), QStringLiteral("TColor"));
    });
    ExpectAllPainted(QStringLiteral("color"));
  }
  Session().Undo();
  ExpectAllPainted(QStringLiteral("undo"));
}

TEST_F(RepaintTest, ButtonsFollowThePicturesThatTheirControllerRefersTo) {
  auto* images =
      As<TImageList>(Session().CreateComponent(TImageList::StaticClass(), nullptr, QRect(340, 250, 0, 0)));
  auto* faces = As<TVRXMMButtonFaceController>(
      Session().CreateComponent(TVRXMMButtonFaceController::StaticClass(), nullptr, QRect(300, 250, 0, 0)));
  auto* button = As<TVRXMMButton>(
      Session().CreateComponent(TVRXMMButton::StaticClass(), nullptr, QRect(16, 200, 120, 40)));
  Session().Run(QStringLiteral("refer"), {}, [&] {
    faces->Set(TVRXMMButtonFaceController::ButtonFaceImageList, images);
    faces->SetButtonFaceIndices({TVRXButtonFaceIndex{1, 0}});
    button->Set(TVRXMMButton::ButtonFaceController, faces);
  });
  ExpectAllPainted(QStringLiteral("refer"));
  QImage picture(16, 16, QImage::Format_ARGB32);
  picture.fill(Qt::magenta);
  Session().Run(QStringLiteral("pictures"), {}, [&] { images->SetPictures({picture}); });
  ExpectAllPainted(QStringLiteral("pictures"));
  Session().Undo();
  ExpectAllPainted(QStringLiteral("undo"));
}

TEST_F(RepaintTest, WhateverIsDoneTheWholeSurfaceIsRight) {
  for (const double zoom : {1.0, 1.5}) {
    Surface().SetZoom(zoom);
    for (quint32 seed = 1; seed <= 5; ++seed) {
      QRandomGenerator random(seed);
      for (int step = 0; step < 25; ++step) {
        std::vector<TComponent*> all = Session().AllComponents();
        TComponent* c = all[static_cast<std::size_t>(random.bounded(static_cast<int>(all.size())))];
        auto* control = As<TControl>(c);
        const int what = random.bounded(10);
        const QString name = c->Name();  // it may be gone afterwards
        const auto run = [&](const std::function<void()>& action) {
          Session().Run(QStringLiteral("step"), {c}, action);
        };
        if (what == 0) Session().Undo();
        if (what == 1) Session().Redo();
        if (what == 2) Session().Select({c, all.back()});
        if (what == 3)
          Session().CreateComponent(step % 2 ? TLabel::StaticClass() : TPanel::StaticClass(), nullptr,
                                    QRect(random.bounded(300), random.bounded(200), 70, 40));
        if (what == 4 && c != Session().GetRoot()) Session().DeleteComponents({c});
        if (control && what == 5 && c != Session().GetRoot())
          run([&] {
            control->SetBounds(random.bounded(400), random.bounded(250), 20 + random.bounded(90),
                               10 + random.bounded(60));
          });
        if (control && what == 6) run([&] { control->SetCaption(QString(random.bounded(30), u'W')); });
        if (control && what == 7) run([&] { control->Font()->SetHeight(-8 - random.bounded(20)); });
        if (control && what == 8) run([&] { control->SetColor(TColor(random.bounded(0x1000000))); });
        if (control && what == 9) run([&] { step % 2 ? control->BringToFront() : control->SendToBack(); });
        if (!control && what >= 5)
          run([&] { c->SetDesignInfo(DesignWordOf({static_cast<std::int16_t>(random.bounded(300)), 60})); });
        ExpectAllPainted(
            QStringLiteral("seed %1, step %2: %3 of %4").arg(seed).arg(step).arg(what).arg(name));
        if (HasFailure()) return;
      }
    }
  }
}
