// The parts of controls: each paints inside its rectangle, shows its states, and follows the colours of
// forms.
#include "vcl/Painters.h"
#include "VclTest.h"
#include "tests/support/Contrast.h"
#include "vcl/FormColors.h"

namespace {
using enum TPartState;

struct Part {
  const char* name;
  // What it can show: the first row is the part at rest, every other one must look different.
  std::vector<std::function<void(TCanvas&, const QRect&)>> looks;
};

// A painter with its states.
template <class F>
std::vector<std::function<void(TCanvas&, const QRect&)>> Looks(F paint,
                                                               std::initializer_list<TPartStates> all) {
  std::vector<std::function<void(TCanvas&, const QRect&)>> looks;
  for (const TPartStates states : all)
    looks.push_back([=](TCanvas& canvas, const QRect& rect) { paint(canvas, rect, states); });
  return looks;
}

const TFont& Face() {
  static const TFont font;
  return font;
}

std::vector<Part> Parts() {
  const QString text = QStringLiteral("Ok");
  std::vector<Part> parts{
      {"button", Looks([=](auto& c, auto& r, auto s) { PaintButton(c, r, s, text, &Face()); },
                       {{}, {Disabled}, {Down}, {Hot}, {Default}})},
      {"edit", Looks([](auto& c, auto& r, auto s) { PaintEditFrame(c, r, s); }, {{}, {ReadOnly}, {Focused}})},
      {"check", Looks([](auto& c, auto& r, auto s) { PaintCheckMark(c, r, s, TCheckBoxState::cbUnchecked); },
                      {{}, {Down}})},
      {"radio", Looks([](auto& c, auto& r, auto s) { PaintRadioMark(c, r, s, false); }, {{}, {Down}})},
      {"drop button",
       Looks([](auto& c, auto& r, auto s) { PaintDropButton(c, r, s); }, {{}, {Down}, {Disabled}})},
      {"header", Looks([=](auto& c, auto& r, auto s) { PaintHeaderCell(c, r, s, text, Face()); },
                       {{}, {Down}, {Disabled}})},
      {"tab",
       Looks([=](auto& c, auto& r, auto s) { PaintTab(c, r, s, text, Face()); }, {{}, {Down}, {Disabled}})},
      {"group",
       Looks([=](auto& c, auto& r, auto s) { PaintGroupFrame(c, r, s, text, Face()); }, {{}, {Disabled}})},
      {"pane", Looks([](auto& c, auto& r, auto s) { PaintTabPane(c, r, s); }, {{}})},
      {"arrow button", Looks([](auto& c, auto& r, auto s) { PaintArrowButton(c, r, s, Qt::LeftArrow); },
                             {{}, {Down}, {Disabled}})},
      {"spin buttons",
       Looks([](auto& c, auto& r, auto s) { PaintSpinButtons(c, r, s); }, {{}, {Down}, {Disabled}})},
      {"size grip", Looks([](auto& c, auto& r, auto) { PaintSizeGrip(c, r); }, {{}})},
      {"focus", Looks([](auto& c, auto& r, auto) { PaintFocus(c, r); }, {{}})},
  };
  for (const auto state : {TCheckBoxState::cbChecked, TCheckBoxState::cbGrayed})
    parts[2].looks.push_back([=](TCanvas& c, const QRect& r) { PaintCheckMark(c, r, {}, state); });
  parts[3].looks.push_back([](TCanvas& c, const QRect& r) { PaintRadioMark(c, r, {}, true); });
  Part bar{"scroll bar", {}};
  for (const TScrollRange range :
       {TScrollRange{0, 100, 0, 10}, TScrollRange{0, 100, 50, 10}, TScrollRange{0, 100, 0, 60}})
    bar.looks.push_back([=](TCanvas& c, const QRect& r) { PaintScrollBar(c, r, {}, range, Qt::Horizontal); });
  bar.looks.push_back([](TCanvas& c, const QRect& r) {
    PaintScrollBar(c, r, {}, {0, 100, 0, 10}, Qt::Vertical);
  });
  bar.looks.push_back([](TCanvas& c, const QRect& r) {
    PaintScrollBar(c, r, {Down}, {0, 100, 0, 10}, Qt::Horizontal);
  });
  parts.push_back(std::move(bar));
  for (const Qt::Edge edge : {Qt::LeftEdge, Qt::RightEdge, Qt::BottomEdge})
    parts[6].looks.push_back([=](TCanvas& c, const QRect& r) { PaintTab(c, r, {}, text, Face(), edge, {}); });
  parts[4].looks.push_back([](TCanvas& c, const QRect& r) { PaintArrowButton(c, r, {}, Qt::RightArrow); });
  Part progress{"progress", {}};
  for (const int position : {0, 30, 60})
    progress.looks.push_back([=](TCanvas& c, const QRect& r) {
      PaintProgress(c, r, {}, {0, 100, position, 0}, Qt::Horizontal);
    });
  progress.looks.push_back([](TCanvas& c, const QRect& r) {
    PaintProgress(c, r, {}, {0, 100, 30, 0}, Qt::Vertical, QStringLiteral("30"));
  });
  parts.push_back(std::move(progress));
  Part slider{"slider", {}};
  for (const TTicks ticks : {TTicks{}, TTicks{true, false, 1}, TTicks{false, true, 40}})
    for (const int position : {0, 60})
      slider.looks.push_back([=](TCanvas& c, const QRect& r) {
        PaintSlider(c, r, {}, {0, 100, position, 0}, Qt::Horizontal, ticks);
      });
  slider.looks.push_back([](TCanvas& c, const QRect& r) {
    PaintSlider(c, r, {}, {0, 100, 0, 0}, Qt::Vertical, {});
  });
  slider.looks.push_back([](TCanvas& c, const QRect& r) {
    PaintSlider(c, r, {Disabled}, {0, 100, 0, 0}, Qt::Horizontal, {});
  });
  parts.push_back(std::move(slider));
  return parts;
}

constexpr QRect Place(7, 5, 83, 27);
const QColor Ground(1, 254, 3);

QImage Painted(const std::function<void(TCanvas&, const QRect&)>& look, qreal scale,
               const QRect& place = Place) {
  QImage image(QSize(97, 41) * scale, QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(scale);
  image.fill(Ground);
  QPainter painter(&image);
  TCanvas canvas(painter);
  look(canvas, place);
  return image;
}

class Painters : public testing::Test {
 protected:
  ThemeScope theme_{TTheme::Light};  // whatever the designer looks like
};
}  // namespace

TEST_F(Painters, PaintInsideTheirRectangleAndSomethingThere) {
  for (const auto colors : {TFormColors::Light, TFormColors::Dark}) {
    const FormColorScope scope(colors);
    for (const qreal scale : {1.0, 2.0}) {
      const QRect inside(Place.topLeft() * scale, Place.size() * scale);
      for (const Part& part : Parts()) {
        for (std::size_t i = 0; i < part.looks.size(); ++i) {
          const QImage picture = Painted(part.looks[i], scale);
          int painted = 0, beside = 0;
          for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
              if (picture.pixelColor(x, y) != Ground) ++(inside.contains(x, y) ? painted : beside);
          EXPECT_EQ(beside, 0) << part.name << " " << i << " at " << scale;
          EXPECT_GT(painted, 20 * scale) << part.name << " " << i << " at " << scale;
        }
      }
    }
  }
}

TEST_F(Painters, ShowEveryState) {
  for (const auto colors : {TFormColors::Light, TFormColors::Dark}) {
    const FormColorScope scope(colors);
    for (const qreal scale : {1.0, 2.0})
      for (const Part& part : Parts())
        for (std::size_t i = 1; i < part.looks.size(); ++i)
          EXPECT_NE(Painted(part.looks[i], scale), Painted(part.looks[0], scale))
              << part.name << " " << i << " at " << scale;
  }
}

TEST_F(Painters, HaveTheColorsOfForms) {
  for (const Part& part : Parts()) {
    const auto in = [&](TFormColors colors) {
      const FormColorScope scope(colors);
      return Painted(part.looks[0], 1);
    };
    EXPECT_NE(in(TFormColors::Light), in(TFormColors::Dark)) << part.name;
  }
}

TEST_F(Painters, LeaveThePainterAsItWas) {
  for (const Part& part : Parts()) {
    QImage image(97, 41, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    const QFont font = painter.font();
    TCanvas canvas(painter);
    for (const auto& look : part.looks) look(canvas, Place);
    EXPECT_FALSE(painter.hasClipping()) << part.name;
    EXPECT_EQ(painter.font(), font) << part.name;
  }
}

TEST_F(Painters, TakeAnyRectangle) {
  for (const QRect& place : {QRect(3, 3, 0, 0), QRect(3, 3, 1, 1), QRect(3, 3, 4, 3), QRect(3, 3, 5, 30)})
    for (const Part& part : Parts())
      for (const auto& look : part.looks) {
        const QImage picture = Painted(look, 1, place);
        for (int y = 0; y < picture.height(); ++y)
          for (int x = 0; x < picture.width(); ++x)
            if (!place.contains(x, y)) {
              ASSERT_EQ(picture.pixelColor(x, y), Ground) << part.name;
            }
      }
}

TEST_F(Painters, TellTheRoomInside) {
  QImage image(97, 41, QImage::Format_ARGB32_Premultiplied);
  QPainter painter(&image);
  TCanvas canvas(painter);
  const QRect text = PaintEditFrame(canvas, Place, {});
  EXPECT_TRUE(Place.contains(text));
  EXPECT_LT(text.height(), Place.height());
  EXPECT_GT(text.left(), Place.left() + 1);
  EXPECT_LT(text.right(), Place.right() - 1);
  const QRect room = PaintGroupFrame(canvas, QRect(0, 0, 90, 40), {}, QStringLiteral("Title"), Face());
  EXPECT_GT(room.top(), 8) << "below the title";
  EXPECT_TRUE(QRect(0, 0, 90, 40).contains(room));
}

TEST_F(Painters, MarksAndTicksStandOutFromLightAndDarkGround) {
  for (const auto colors : {TFormColors::Light, TFormColors::Dark}) {
    const FormColorScope scope(colors);
    const QColor ground = FormPalette().color(QPalette::Window);
    const auto strongest = [&](const auto& paint) {
      QImage image(97, 41, QImage::Format_ARGB32_Premultiplied);
      image.fill(ground);
      QPainter painter(&image);
      TCanvas canvas(painter);
      paint(canvas);
      return Contrast(image);
    };
    constexpr double clear = 2;
    const int dark = colors == TFormColors::Dark;
    EXPECT_GT(strongest([](TCanvas& c) { PaintSizeGrip(c, Place); }), clear) << dark;
    EXPECT_GT(strongest([](TCanvas& c) { PaintCheckMark(c, Place, {}, TCheckBoxState::cbUnchecked); }), clear)
        << dark;
    EXPECT_GT(strongest([](TCanvas& c) { PaintRadioMark(c, Place, {}, false); }), clear) << dark;
  }
}

TEST_F(Painters, TicksStandAtTheHandleHoweverTallTheSliderIs) {
  constexpr QRect tall(10, 5, 61, 120);  // more than the picture shows
  const auto lowest = [&](bool ticks) {
    const QImage picture = Painted(
        [=](TCanvas& c, const QRect& r) {
          PaintSlider(c, r, {}, {0, 100, 0, 1}, Qt::Horizontal, {false, ticks, 50});
        },
        1, tall);
    int last = 0;
    for (int y = 0; y < picture.height(); ++y)
      for (int x = 0; x < picture.width(); ++x)
        if (picture.pixelColor(x, y) != Ground) last = y;
    return last;
  };
  const int handle = lowest(false);
  EXPECT_LT(handle, 36);
  EXPECT_GT(lowest(true), handle - 12);
  EXPECT_LT(lowest(true), handle + 12);
}
