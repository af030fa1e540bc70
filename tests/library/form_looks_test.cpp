// Components that change how their form looks: what they do to the picture of the form.
#include "library/components/FormComponent.h"
#include "library/components/FormFill.h"
#include "library/components/FormShadow.h"
#include "library/components/FormShape.h"
#include "library/components/FormStyler.h"
#include "library/components/TitleItems.h"
#include "tests/library/VisibleProperties.h"
#include "vcl/FormFrame.h"

namespace {
constexpr int Room = 24;

QImage Picture(TForm& form, bool active = true) {
  QImage image(form.OuterSize() + QSize(2 * Room, 2 * Room), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::magenta);
  QPainter painter(&image);
  painter.translate(Room, Room);
  PaintFormWindow(form, painter, active);
  return image;
}
std::unique_ptr<TForm> NewForm() {
  auto form = std::make_unique<TForm>(nullptr);
  form->SetBounds(0, 0, 251, 163);
  form->SetCaption(QStringLiteral("Press"));
  return form;
}
// A form with a component of the class.
template <class C>
struct Decorated {
  explicit Decorated(const QString& values = {}) : form(NewForm()), decor(new C(form.get())) {
    visible::Apply(*decor, values);
  }
  QImage Look(bool active = true) { return Picture(*form, active); }
  QRect Client() const {
    const QMargins m = form->FrameMargins();
    return QRect(QPoint(Room + m.left(), Room + m.top()), form->ClientRect().size());
  }
  QRect Bar() const { return QRect(Room, Room, form->OuterSize().width(), form->FrameMargins().top()); }
  std::unique_ptr<TForm> form;
  C* decor;
};

template <class C>
void ExpectSeen(std::initializer_list<visible::Row> rows, bool active = true) {
  for (const visible::Row& row : rows) {
    SCOPED_TRACE(std::string(row.look) + " | " + row.change);
    Decorated<C> d(QString::fromLatin1(row.look));
    const QImage before = d.Look(active);
    EXPECT_EQ(d.Look(active), before);
    visible::Apply(*d.decor, QString::fromLatin1(row.change));
    EXPECT_NE(d.Look(active), before);
  }
}
// Where two pictures of one size differ.
QRect Difference(const QImage& a, const QImage& b) {
  QRect box;
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x)
      if (a.pixel(x, y) != b.pixel(x, y)) box |= QRect(x, y, 1, 1);
  return box;
}
class RepaintHost : public IControlHost {
 public:
  void ControlChanged(TControl& control) override {
    ++changes;
    last = &control;
  }
  int changes = 0;
  TControl* last = nullptr;
};
}  // namespace

TEST(FormLooks, AFillCoversTheGroundOfTheFormAndNothingElse) {
  const auto plain = NewForm();
  Decorated<TVRXFormFill> d(QStringLiteral("FillObject.Kind=fkSolid FillObject.Color=clRed"));
  EXPECT_EQ(Difference(Picture(*plain), d.Look()), d.Client());
  EXPECT_EQ(CountPixels(d.Look(), Qt::red), d.Client().width() * d.Client().height());
  for (const char* off : {"Enabled=False", "DefaultFill=False"}) {
    Decorated<TVRXFormFill> without(QStringLiteral("FillObject.Kind=fkSolid ") + QString::fromLatin1(off));
    EXPECT_EQ(without.Look(), Picture(*plain)) << off;
  }
}

TEST(FormLooks, TheFirstFillOfTheFormCountsThatIsOn) {
  Decorated<TVRXFormFill> d(QStringLiteral("FillObject.Kind=fkSolid FillObject.Color=clRed"));
  auto* second = new TVRXFormFill(d.form.get());
  visible::Apply(*second, QStringLiteral("FillObject.Kind=fkSolid FillObject.Color=clBlue"));
  EXPECT_EQ(CountPixels(d.Look(), Qt::blue), 0);
  d.decor->Set(TVRXFormFill::Enabled, false);
  EXPECT_GT(CountPixels(d.Look(), Qt::blue), 1000);
  delete second;
  EXPECT_EQ(d.Look(), Picture(*NewForm()));
}

TEST(FormLooks, AFillShowsPicturesOfItsImageList) {
  for (const bool back : {true, false}) {
    const auto form = NewForm();
    auto* images = new TImageList(form.get());
    QImage picture(16, 16, QImage::Format_ARGB32);
    picture.fill(Qt::yellow);
    images->SetPictures({picture});
    TVRXCustomFormFill* fill =
        back ? static_cast<TVRXCustomFormFill*>(new TVRXBack(form.get())) : new TVRXFormFill(form.get());
    visible::Apply(*fill, back ? QStringLiteral("ImageIndex=0 BitmapPlace=bpCenter Color=clRed")
                               : QStringLiteral("FillObject.Kind=fkBitmap FillObject.ImageIndex=0 "
                                                "FillObject.BitmapPlace=bpCenter FillObject.Color=clRed"));
    fill->Set(TVRXCustomFormFill::ImageList, images);
    EXPECT_EQ(CountPixels(Picture(*form), Qt::yellow), 256);
    EXPECT_GT(CountPixels(Picture(*form), Qt::red), 1000);
    delete images;
    EXPECT_EQ(CountPixels(Picture(*form), Qt::yellow), 0);
  }
}

TEST(FormLooks, EveryChangePaintsTheFormAgain) {
  Decorated<TVRXFormFill> d;
  RepaintHost host;
  d.form->SetHost(&host);
  d.decor->FillObject()->Set(TVRXFillObject::Color, clRed);
  EXPECT_EQ(host.changes, 1);
  EXPECT_EQ(host.last, d.form.get());
  auto* shape = new TVRXFormShape(d.form.get());
  const int before = host.changes;
  EXPECT_GT(before, 1);
  shape->PaintBorder();
  EXPECT_EQ(host.changes, before + 1);
  d.form->SetHost(nullptr);
}

TEST(FormLooks, TheStylerChangesTheTitleBarOnly) {
  Decorated<TVRXFormStyler> d;
  const QRect changed = Difference(Picture(*NewForm()), d.Look());
  EXPECT_TRUE(d.Bar().contains(changed));
  EXPECT_GT(changed.width(), d.Bar().width() - 20);
  Decorated<TVRXFormStyler> off(QStringLiteral("Enabled=False"));
  EXPECT_EQ(off.Look(), Picture(*NewForm()));
}

TEST(FormLooks, EveryPropertyOfTheStylerIsSeen) {
  ExpectSeen<TVRXFormStyler>(
      {{"", "Alignment=taCenter"},
       {"", "StartColor=clRed"},
       {"", "EndColor=clRed"},
       {"", "Font.Color=clRed"},
       {"", "Font3D.Style=tdShadow"},
       {"Options=[foAdjustRect]", "Caption=Hg"},
       {"Font.Height=-18", "Options=[foAdjustRect,foUseDefaultFont,foUseFormCaption]"},
       {"", "Options=[foAdjustRect,foInactiveGradient,foUseFormCaption]"},
       {"", "Options=[foAdjustRect,foActiveGradient,foInactiveGradient]"},
       {"",
        "Options=[foAdjustRect,foActiveGradient,foInactiveGradient,foUseFormCaption,"
        "foDrawCaptionEvent]"},
       {"Alignment=taRightJustify", "Options=[foActiveGradient,foInactiveGradient,foUseFormCaption]"}});
  ExpectSeen<TVRXFormStyler>({{"", "InactiveColor=clRed"},
                              {"", "InactiveEndColor=clRed"},
                              {"", "Options=[foAdjustRect,foActiveGradient,foUseFormCaption]"}},
                             false);
  Decorated<TVRXFormStyler> d;
  const QImage before = d.Look();
  d.decor->Set(TVRXFormStyler::InactiveColor, clRed);
  EXPECT_EQ(d.Look(), before) << "of an active form it shows nothing";
}

TEST(FormLooks, TheShadowFallsBesideTheFrame) {
  Decorated<TVRXFormShadow> d(QStringLiteral("Shadow.Style=hssSolid Shadow.Color=clRed Shadow.Depth=9"));
  const QRect window(QPoint(Room, Room), d.form->OuterSize());
  const QRect changed = Difference(Picture(*NewForm()), d.Look());
  EXPECT_EQ(changed, QRect(window.right() + 1, window.bottom() + 1, 9, 9) |
                         QRect(window.right() + 1, window.top() + 9, 9, 1) |
                         QRect(window.left() + 9, window.bottom() + 1, 1, 9));
  EXPECT_EQ(d.Look().pixelColor(window.right() + 5, window.bottom() - 20), QColor(Qt::red));
  EXPECT_EQ(d.Look(false), Picture(*NewForm(), false)) << "an inactive form has none";
  d.decor->Set(TVRXFormShadow::ShowInActive, true);
  EXPECT_NE(d.Look(false), Picture(*NewForm(), false));
  d.decor->Set(TVRXFormShadow::Enabled, false);
  EXPECT_EQ(d.Look(), Picture(*NewForm()));
}

TEST(FormLooks, ANewShadowIsSeenAndOneThatIsReadIsAsItIs) {
  const std::unique_ptr<TForm> form = NewForm();
  form->SetDesigning(true);
  const QImage before = Picture(*form, true);
  TVRXFormShadow read(form.get());
  read.BeginLoading();
  read.SetName(QStringLiteral("Read"));
  read.Loaded();
  EXPECT_EQ(Picture(*form, true), before);
  TVRXFormShadow made(form.get());
  made.SetName(QStringLiteral("Made"));
  EXPECT_NE(Picture(*form, true), before);
  made.Shadow()->Set(TVRXShadow::Style, TVRXShadowStyle::hssNone);
  made.SetName(QStringLiteral("Other"));
  EXPECT_EQ(Picture(*form, true), before);
}

TEST(FormLooks, ThePictureOfAFormHasRoomForItsShadow) {
  Decorated<TVRXFormShadow> d(QStringLiteral("Shadow.Style=hssSolid Shadow.Color=clRed Shadow.Depth=-7"));
  const QSize plain = RenderForm(*NewForm(), 2).size();
  EXPECT_EQ(RenderForm(*d.form, 2).size(), plain + QSize(14, 14));
  EXPECT_EQ(RenderForm(*d.form, 2).pixelColor(4, 40), QColor(Qt::red));
  d.decor->Set(TVRXFormShadow::Enabled, false);
  EXPECT_EQ(RenderForm(*d.form, 2).size(), plain);
}

TEST(FormLooks, TheShapeCutsTheWindowAndTheShadowFollowsIt) {
  Decorated<TVRXFormShape> d(QStringLiteral("Shape=foEllipse BorderColor=clNone"));
  const QRect window(QPoint(Room, Room), d.form->OuterSize());
  const auto at = [&](QPoint p) { return d.Look().pixelColor(p); };
  EXPECT_EQ(at(window.topLeft() + QPoint(4, 4)), QColor(Qt::magenta));
  EXPECT_EQ(at(window.bottomRight() - QPoint(4, 4)), QColor(Qt::magenta));
  EXPECT_NE(at(window.center()), QColor(Qt::magenta));
  auto* shadow = new TVRXFormShadow(d.form.get());
  visible::Apply(*shadow, QStringLiteral("Shadow.Style=hssSolid Shadow.Color=clRed Shadow.Depth=9"));
  EXPECT_EQ(at(window.bottomRight() + QPoint(4, 4)), QColor(Qt::magenta));
  EXPECT_EQ(at(QPoint(window.center().x() + 9, window.bottom() + 6)), QColor(Qt::red));
}

TEST(FormLooks, EveryPropertyOfTheShapeIsSeen) {
  ExpectSeen<TVRXFormShape>({{"", "Enabled=False"},
                             {"", "Shape=foEllipse"},
                             {"", "Shape=foRectangle"},
                             {"", "Radius=40"},
                             {"", "BorderColor=clRed"},
                             {"", "BorderWidth=4"}});
  Decorated<TVRXFormShape> d(QStringLiteral("Shape=foRegion BorderColor=clNone"));
  const QImage whole = d.Look();
  EXPECT_EQ(whole, Picture(*NewForm())) << "without a region the form stays whole";
  d.decor->RegionMask()->SetRegion(TRegion(TRect{20, 10, 120, 90}));
  QImage cut = d.Look();
  EXPECT_EQ(Inked(cut, Qt::magenta), QRect(Room + 20, Room + 10, 100, 80));
}

TEST(FormLooks, ARadiusOfAnySizeIsDrawn) {
  for (const char* radius : {"Radius=-5", "Radius=0", "Radius=2147483647"}) {
    Decorated<TVRXFormShape> d(QString::fromLatin1(radius));
    EXPECT_FALSE(d.Look().isNull());
  }
}

TEST(FormLooks, TheFormComponentDrawsALineAlongTheFrame) {
  Decorated<TVRXForm> d(QStringLiteral("FrameColor=clRed FrameWidth=3"));
  const QRect window(QPoint(Room, Room), d.form->OuterSize());
  EXPECT_EQ(d.Look().pixelColor(window.left() + 2, window.center().y()), QColor(Qt::red));
  EXPECT_NE(d.Look().pixelColor(window.left() + 3, window.center().y()), QColor(Qt::red));
  EXPECT_EQ(d.Look().pixelColor(window.left() - 1, window.center().y()), QColor(Qt::magenta));
  d.decor->Set(TVRXForm::FrameWidth, 0);
  EXPECT_EQ(d.Look(), Picture(*NewForm()));
}

TEST(FormLooks, TheSystemMenuStandsAtTheLeftAndTheCaptionBehindIt) {
  Decorated<TVRXSysMenu> d;
  const QRect changed = Difference(Picture(*NewForm()), d.Look());
  EXPECT_TRUE(d.Bar().contains(changed));
  const QImage before = d.Look();
  d.decor->Items()->SetLines({QStringLiteral("About")});
  EXPECT_NE(d.Look(), before) << "a mark says that there is a menu";
  for (const char* off : {"Enabled=False", "ShowIcon=False"}) {
    Decorated<TVRXSysMenu> without(QString::fromLatin1(off));
    EXPECT_EQ(without.Look(), Picture(*NewForm())) << off;
  }
}

TEST(FormLooks, CaptionButtonsStandBesideTheWindowsOwn) {
  Decorated<TVRXCaptionButtons> d;
  EXPECT_EQ(d.Look(), Picture(*NewForm()));
  auto& first = static_cast<TVRXCaptionButton&>(*d.decor->Buttons()->Add());
  const QRect one = Difference(Picture(*NewForm()), d.Look());
  EXPECT_TRUE(d.Bar().contains(one));
  EXPECT_GT(one.left(), d.Bar().center().x());
  auto& second = static_cast<TVRXCaptionButton&>(*d.decor->Buttons()->Add());
  const QRect two = Difference(Picture(*NewForm()), d.Look());
  EXPECT_EQ(two.right(), one.right());
  EXPECT_EQ(two.left(), one.left() - 26);
  QImage before = d.Look();
  for (const auto& change : std::initializer_list<std::function<void()>>{
           [&] { first.Set(TVRXCaptionButton::Caption, QStringLiteral("?")); },
           [&] { first.Set(TVRXCaptionButton::Enabled, false); },
           [&] { second.Set(TVRXCaptionButton::Width, 40); },
           [&] { second.Set(TVRXCaptionButton::Visible, false); },
           [&] { d.decor->Set(TVRXCaptionButtons::Enabled, false); }}) {
    change();
    EXPECT_NE(d.Look(), before);
    before = d.Look();
  }
  EXPECT_EQ(d.Look(), Picture(*NewForm()));
}

TEST(FormLooks, AButtonShowsItsPicture) {
  Decorated<TVRXCaptionButtons> d;
  auto* images = new TImageList(d.form.get());
  QImage picture(16, 16, QImage::Format_ARGB32);
  picture.fill(Qt::yellow);
  images->SetPictures({picture});
  auto& button = static_cast<TVRXCaptionButton&>(*d.decor->Buttons()->Add());
  button.Set(TVRXCaptionButton::ImageIndex, 0);
  EXPECT_EQ(CountPixels(d.Look(), Qt::yellow), 0);
  d.decor->Set(TVRXCaptionButtons::ImageList, images);
  EXPECT_GT(CountPixels(d.Look(), Qt::yellow), 100);
}

TEST(FormLooks, AFormThatGoesTakesThemAllWithIt) {
  auto form = NewForm();
  new TVRXFormFill(form.get());
  auto* shape = new TVRXFormShape(form.get());
  new TVRXFormShadow(form.get());
  delete shape;
  EXPECT_EQ(TFormDecor::Of(*form).size(), 2u);
  form.reset();
  TVRXFormStyler loose(nullptr);
  loose.Set(TVRXFormStyler::Enabled, false);
}
