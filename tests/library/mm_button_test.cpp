// Multimedia buttons: faces and their synchronisation, containers of image lists, and what is painted in each
// state.
#include "library/controls/MMButton.h"

#include "tests/library/VisibleProperties.h"

namespace {
using enum TVRXButtonState;
using B = TVRXCustomMMButton;

constexpr std::size_t Place(TVRXButtonState state) { return static_cast<std::size_t>(state); }
// Pictures of one colour each; the last two pixels of the first row are transparent.
QImage Picture(QSize size, QColor color) {
  QImage image(size, QImage::Format_ARGB32);
  image.fill(color);
  image.setPixelColor(size.width() - 1, 0, Qt::transparent);
  image.setPixelColor(size.width() - 2, 0, Qt::transparent);
  return image;
}
const QColor Colors[] = {QColor(200, 10, 10),  QColor(10, 200, 10),  QColor(10, 10, 200),
                         QColor(200, 200, 10), QColor(10, 200, 200), QColor(200, 10, 200),
                         QColor(90, 90, 20),   QColor(20, 90, 90),   QColor(90, 20, 90)};
std::unique_ptr<TImageList> ListOf(QSize size, int count) {
  auto list = std::make_unique<TImageList>(nullptr);
  list->Set(TImageList::Width, size.width());
  list->Set(TImageList::Height, size.height());
  QList<QImage> images;
  for (int i = 0; i < count; ++i) images << Picture(size, Colors[i]);
  list->SetPictures(images);
  return list;
}
TVRXButtonFaceIndices AllStates() {
  TVRXButtonFaceIndices face;
  for (std::size_t i = 0; i < face.size(); ++i) face[i] = {1, static_cast<std::uint16_t>(i)};
  return face;
}
QString Text(const TVRXButtonFaceIndices& face) {
  QStringList parts;
  for (const auto& index : face) parts << QStringLiteral("%1:%2").arg(index.ListIndex).arg(index.ImageIndex);
  return parts.join(u' ');
}
}  // namespace

TEST(MMFace, IsSynchronisedFromTwoOrThreeStates) {
  TVRXButtonFaceIndices face{};
  face[Place(bsUp)] = {1, 4};
  face[Place(bsDown)] = {2, 5};
  face[Place(bsMouseOver)] = {3, 6};
  face[Place(bsCheckedOver)] = {9, 9};
  TVRXButtonFaceIndices plain = face, hot = face;
  VRXMMSynchronize(plain, false);
  EXPECT_EQ(Text(plain).toStdString(), "1:4 2:5 1:4 1:4 1:4 2:5 2:5 2:5 2:5");
  VRXMMSynchronize(hot, true);
  EXPECT_EQ(Text(hot).toStdString(), "1:4 2:5 3:6 1:4 3:6 2:5 2:5 3:6 2:5");
  TVRXButtonFaceIndices copy;
  VRXMMCopyFace(hot, copy);
  EXPECT_EQ(copy, hot);
  VRXMMInitFace(copy);
  EXPECT_EQ(copy, TVRXButtonFaceIndices{});
}

TEST(MMFace, IsKeptAsNumbersOfWhichNoneIsTrusted) {
  TVRXMMButtonFace face;
  EXPECT_EQ(face.Indices(), TVRXButtonFaceIndices{});
  face.SetIndices(AllStates());
  EXPECT_EQ(face.Indices(), AllStates());
  EXPECT_EQ(face.Get(TVRXMMButtonFace::Numbers)->Items().size(), 18u);
  face.SetIndices({});
  EXPECT_TRUE(face.Get(TVRXMMButtonFace::Numbers)->ContentEmpty()) << "nothing is nothing in the file";
  face.Get(TVRXMMButtonFace::Numbers)
      ->SetItems(
          {std::int64_t{1}, QStringLiteral("x"), std::int64_t{-4}, std::int64_t{70000}, std::int64_t{65535}});
  EXPECT_EQ(Text(face.Indices()).section(u' ', 0, 3).toStdString(), "1:0 0:0 65535:0 0:0");
}

TEST(ImageListContainer, CountsListsFromOneAndAPlainListIsOne) {
  const auto small = ListOf({7, 5}, 2), large = ListOf({20, 33}, 3);
  EXPECT_EQ(VRXIMLListCount(small.get()), 1);
  EXPECT_TRUE(VRXIMLIsValidItem(small.get(), 1, 1));
  for (const auto& [list, image] : {std::pair(0, 0), {1, 2}, {1, -1}, {2, 0}, {-1, 0}})
    EXPECT_FALSE(VRXIMLIsValidItem(small.get(), list, image)) << list << ' ' << image;
  EXPECT_FALSE(VRXIMLIsValidItem(nullptr, 1, 0));
  EXPECT_EQ(VRXIMLItemHeight(small.get(), 1), 5);
  EXPECT_EQ(VRXIMLItemHeight(small.get(), 2), 0);
  TVRXImageListContainer container(nullptr);
  EXPECT_EQ(VRXIMLListCount(&container), 0);
  const auto add = [&](TCustomImageList* list) {
    auto* item = static_cast<TVRXImageListItem*>(container.Get(TVRXImageListContainer::Lists)->Add());
    item->Set(TVRXImageListItem::ImageList, list);
  };
  add(small.get());
  add(nullptr);
  add(large.get());
  EXPECT_EQ(VRXIMLListCount(&container), 3);
  EXPECT_EQ(VRXIMLItemHeight(&container, 3), 33);
  EXPECT_TRUE(VRXIMLIsValidItem(&container, 3, 2));
  EXPECT_FALSE(VRXIMLIsValidItem(&container, 2, 0));
  EXPECT_EQ(VRXIMLImage(&container, 1, 1).pixelColor(0, 4), Colors[1]);
}

TEST(ImageListContainer, DrawsPicturesByFlags) {
  const auto list = ListOf({30, 60}, 1);
  const auto drawn = [&](unsigned flags) {
    QImage paper(64, 64, QImage::Format_ARGB32);
    paper.fill(Qt::white);
    QPainter p(&paper);
    VRXIMLDrawExt(list.get(), 1, 0, p, QRect(4, 2, 50, 40), flags);
    p.end();
    return Inked(paper, Qt::white);
  };
  EXPECT_EQ(drawn(0), QRect(4, 2, 30, 60)) << "in its own size";
  EXPECT_EQ(drawn(idClip), QRect(4, 2, 30, 40));
  EXPECT_EQ(VRXIMLFitFlags, 1552u);
  EXPECT_EQ(drawn(VRXIMLFitFlags), QRect(4, 2, 20, 40)) << "all of it, in its proportions";
  const auto small = ListOf({7, 5}, 1);
  QImage paper(64, 64, QImage::Format_ARGB32);
  paper.fill(Qt::white);
  QPainter p(&paper);
  VRXIMLDrawExt(small.get(), 1, 0, p, QRect(4, 2, 50, 40), VRXIMLFitFlags);
  VRXIMLDrawExt(small.get(), 1, 9, p, QRect(0, 50, 50, 40), 0);
  p.end();
  EXPECT_EQ(Inked(paper, Qt::white), QRect(4, 2, 7, 5)) << "none is made larger, none that is not there";
}

TEST(MMButton, ShowsThePictureOfEachOfItsStates) {
  const auto list = ListOf({13, 9}, 9);
  TVRXFaceController designer(nullptr);
  using Kinds = TVRXStateKinds;
  using enum TVRXStateKind;
  const std::pair<Kinds, TVRXButtonState> rows[] = {
      {{}, bsUp},
      {{skPressed}, bsDown},
      {{skMouseOver}, bsMouseOver},
      {{skMouseOver, skPressed}, bsDown},
      {{skDisabled, skPressed}, bsDisabled},
      {{skFocused}, bsFocused},
      {{skChecked, skFocused}, bsChecked},
      {{skChecked, skPressed}, bsCheckedDown},
      {{skChecked, skMouseOver}, bsCheckedOver},
      {{skChecked, skDisabled}, bsCheckedDisabled},
  };
  const auto expect = [&](TVRXCustomMMButton& button) {
    button.Set(B::ButtonFaceImageList, list.get());
    button.SetButtonFaceIndices(AllStates());
    button.SetDesigning(true);
    button.Set(VRXFaceControllerRef, &designer);
    button.SetBounds(0, 0, 61, 33);
    for (const auto& [kinds, state] : rows) {
      designer.Set(TVRXFaceController::DesignStates, kinds);
      EXPECT_EQ(button.State(), state);
      const QImage drawn = Draw(button, Qt::white);
      for (std::size_t i = 0; i < 9; ++i)
        EXPECT_EQ(CountPixels(drawn, Colors[i]), i == Place(state) ? 13 * 9 - 2 : 0) << i;
    }
    designer.Set(TVRXFaceController::DesignStates, {});
    // The same from values of its own.
    button.SetEnabled(false);
    EXPECT_EQ(button.State(), bsDisabled);
    button.Set(B::Checked, true);
    EXPECT_EQ(button.State(), bsCheckedDisabled);
    button.SetEnabled(true);
    EXPECT_EQ(button.State(), bsChecked);
    button.Set(B::Down, true);
    EXPECT_EQ(button.State(), bsCheckedDown);
    button.Set(B::Checked, false);
    EXPECT_EQ(button.State(), bsDown);
  };
  TVRXMMButton button(nullptr);
  expect(button);
  TVRXShapeButton shape(nullptr);
  expect(shape);
}

TEST(MMButton, WithoutAPictureForItsStateShowsThatOfTheNearest) {
  const auto list = ListOf({13, 9}, 9);
  TVRXMMButton button(nullptr);
  button.Set(B::ButtonFaceImageList, list.get());
  TVRXButtonFaceIndices face{};
  EXPECT_TRUE(button.PictureOf(bsUp).isNull());
  face[Place(bsUp)] = {1, 0};
  button.SetButtonFaceIndices(face);
  for (std::size_t i = 0; i < 9; ++i)
    EXPECT_EQ(button.PictureOf(static_cast<TVRXButtonState>(i)).pixelColor(0, 0), Colors[0]) << i;
  face[Place(bsDown)] = {1, 1};
  button.SetButtonFaceIndices(face);
  EXPECT_EQ(button.PictureOf(bsCheckedOver).pixelColor(0, 0), Colors[1]);
  EXPECT_EQ(button.PictureOf(bsFocused).pixelColor(0, 0), Colors[0]);
  face[Place(bsChecked)] = {1, 5};
  face[Place(bsCheckedDown)] = {7, 7};  // of a list that is not there
  button.SetButtonFaceIndices(face);
  EXPECT_EQ(button.PictureOf(bsCheckedDown).pixelColor(0, 0), Colors[5]);
  // It stands one pixel to the right and down, and what is disabled is faint.
  button.SetCaption(QString());
  button.SetBounds(0, 0, 41, 29);
  const QImage up = Draw(button, Qt::white);
  face[Place(bsDown)] = {};
  button.SetButtonFaceIndices(face);
  button.Set(B::Down, true);
  const QImage down = Draw(button, Qt::white);
  const auto place = [](const QImage& image) {
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        if (image.pixelColor(x, y) == Colors[0]) return QPoint(x, y);
    return QPoint(-1, -1);
  };
  EXPECT_EQ(place(down), place(up) + QPoint(1, 1));
  button.Set(B::Down, false);
  button.SetEnabled(false);
  EXPECT_EQ(CountPixels(Draw(button, Qt::white), Colors[0]), 0);
}

TEST(MMButton, TakesFaceAndListFromItsController) {
  const auto own = ListOf({13, 9}, 2), common = ListOf({13, 9}, 9);
  TVRXMMButtonFaceController controller(nullptr);
  controller.Set(TVRXMMButtonFaceController::ButtonFaceImageList, common.get());
  controller.SetButtonFaceIndices({TVRXButtonFaceIndex{1, 7}});
  TVRXMMButton button(nullptr);
  button.Set(B::ButtonFaceImageList, own.get());
  button.SetButtonFaceIndices({TVRXButtonFaceIndex{1, 1}});
  EXPECT_EQ(button.PictureOf(bsUp).pixelColor(0, 0), Colors[1]);
  button.Set(B::ButtonFaceController, &controller);
  EXPECT_EQ(button.PictureOf(bsUp).pixelColor(0, 0), Colors[7]);
  button.Set(B::ButtonFaceController, nullptr);
  EXPECT_EQ(button.PictureOf(bsUp).pixelColor(0, 0), Colors[1]);
}

TEST(MMButton, LeavesTheColourOfTheLowerLeftPixelOutOfOpaquePictures) {
  TImageList list(nullptr);
  list.Set(TImageList::Width, 6);
  list.Set(TImageList::Height, 4);
  QImage opaque(6, 4, QImage::Format_ARGB32);
  opaque.fill(Qt::yellow);
  opaque.setPixelColor(2, 1, Qt::blue);
  opaque.setPixelColor(0, 0, Qt::red);
  list.SetPictures({opaque, Picture({6, 4}, Colors[0])});
  TVRXMMButton button(nullptr);
  button.Set(B::ButtonFaceImageList, &list);
  button.SetButtonFaceIndices({TVRXButtonFaceIndex{1, 0}, TVRXButtonFaceIndex{1, 1}});
  EXPECT_EQ(button.PictureOf(bsUp).pixelColor(0, 3), QColor(Qt::yellow));
  button.SetTransparent(true);
  EXPECT_EQ(qAlpha(button.PictureOf(bsUp).pixel(0, 3)), 0);
  EXPECT_EQ(qAlpha(button.PictureOf(bsUp).pixel(5, 0)), 0);
  EXPECT_EQ(button.PictureOf(bsUp).pixelColor(0, 0), QColor(Qt::red));
  EXPECT_EQ(button.PictureOf(bsUp).pixelColor(2, 1), QColor(Qt::blue));
  EXPECT_EQ(button.PictureOf(bsDown).pixelColor(0, 0), Colors[0]) << "it has transparent pixels of its own";
}

TEST(ShapeButton, HasTheAreaOfItsPicturesOpaquePart) {
  TImageList list(nullptr);
  list.Set(TImageList::Width, 7);
  list.Set(TImageList::Height, 5);
  QImage picture(7, 5, QImage::Format_ARGB32);
  picture.fill(Qt::transparent);
  for (int x = 1; x < 4; ++x) picture.setPixelColor(x, 2, Qt::red);
  picture.setPixelColor(6, 4, Qt::red);
  picture.setPixelColor(0, 0, QColor(255, 0, 0, 100));
  list.SetPictures({picture});
  TVRXShapeButton button(nullptr);
  button.SetBounds(30, 40, 21, 15);
  EXPECT_TRUE(button.Contains({10, 7}));
  EXPECT_FALSE(button.Contains({0, 0})) << "an oval, as long as it has no picture";
  button.Set(B::ButtonFaceImageList, &list);
  button.SetButtonFaceIndices({TVRXButtonFaceIndex{1, 0}});
  EXPECT_EQ(button.Area(), QRegion(QRect(8, 7, 3, 1)) + QRect(13, 9, 1, 1));
  EXPECT_TRUE(button.Contains({8, 7}));
  EXPECT_FALSE(button.Contains({11, 7}));
  button.Set(B::ShowCaption, false);
  EXPECT_EQ(Inked(Draw(button, Qt::white), Qt::white), QRect(7, 5, 7, 5));
  button.SetAutoSize(true);
  EXPECT_EQ(button.BoundsRect().size(), QSize(7, 5));
}

TEST(ShapeButton, IsFilledUntilItHasAPicture) {
  TVRXShapeButton button(nullptr);
  button.Set(B::ShowCaption, false);
  button.ShapeFill()->Set(TVRXShapeFill::Kind, TVRXFillKind::fkSolid);
  button.ShapeFill()->Set(TVRXShapeFill::Color, clFuchsia);
  const QImage drawn = Draw(button, Qt::white);
  EXPECT_EQ(drawn.pixelColor(52, 28), QColor(Qt::magenta));
  EXPECT_EQ(drawn.pixelColor(1, 1), QColor(Qt::white));
  const auto list = ListOf({9, 9}, 2);
  button.ShapeFill()->Set(TVRXShapeFill::Kind, TVRXFillKind::fkBitmap);
  button.ShapeFill()->Set(TVRXShapeFill::ImageIndex, 1);
  button.Set(TVRXCustomShapeButton::ShapeFillImageList, list.get());
  EXPECT_GT(CountPixels(Draw(button, Qt::white), Colors[1]), 500);
}

TEST(MMButton, EveryPropertyIsSeen) {
  visible::ExpectAll<TVRXMMButton>(
      {{"", "Checked=True"},
       {"", "Down=True"},
       {"", "Enabled=False"},
       {"", "Flat=True"},
       {"Caption=Go", "ShowCaption=False"},
       {"Caption=Go", "Margin=2"}},
      {97, 41},
      {QStringLiteral("AutoSize"), QStringLiteral("Font"), QStringLiteral("ParentFont"),
       QStringLiteral("AllowAllUp"), QStringLiteral("GroupIndex"),
       // With a picture only: below.
       QStringLiteral("Layout"), QStringLiteral("Spacing"), QStringLiteral("Transparent")});
  const auto list = ListOf({13, 9}, 1);
  for (const char* change : {"Layout=blGlyphBottom", "Spacing=19"}) {
    TVRXMMButton button(nullptr);
    button.Set(B::ButtonFaceImageList, list.get());
    button.SetButtonFaceIndices({TVRXButtonFaceIndex{1, 0}});
    button.SetCaption(QStringLiteral("Go"));
    const QImage before = Draw(button, Qt::white);
    visible::Apply(button, QString::fromLatin1(change));
    EXPECT_NE(Draw(button, Qt::white), before) << change;
  }
}

TEST(MMButton, ACaptionWithoutRoomShowsItsBeginning) {
  const auto pictures = ListOf({13, 9}, 1);
  for (const bool glyph : {false, true}) {
    TVRXMMButton button(nullptr);
    if (glyph) {
      button.Set(B::ButtonFaceImageList, pictures.get());
      button.SetButtonFaceIndices(AllStates());
    }
    button.SetBounds(0, 0, 90, 27);
    const auto shown = [&](const char* caption) {
      button.SetCaption(QString::fromLatin1(caption));
      return Draw(button, Qt::white);
    };
    const QImage picture = shown("Beginning and more of the same, up to the end");
    EXPECT_EQ(shown("Beginning and more of the same, but with another and much longer end"), picture);
    EXPECT_NE(shown("beginning and more of the same, up to the end"), picture);
    EXPECT_NE(shown("Begin"), picture);
    EXPECT_NE(shown("Begin\nand end"), shown("Begin\n")) << "each line by itself";
    // The edge stays free.
    const QImage empty = shown("");
    shown("Beginning and more of the same, up to the end");
    const QImage again = Draw(button, Qt::white);
    for (int y = 0; y < again.height(); ++y)
      for (const int x : {0, 1, 2, 87, 88, 89}) EXPECT_EQ(again.pixel(x, y), empty.pixel(x, y));
  }
}

TEST(MMButton, NewOnesHaveRoomForTheirNames) {
  const auto expectRoom = [](TVRXCustomMMButton& button, const char* name) {
    EXPECT_LE(TextExtent(QString::fromLatin1(name), *button.Font()).width(), button.Width() * 9 / 10) << name;
  };
  TVRXMMButton button(nullptr);
  TVRXShapeButton shape(nullptr);
  expectRoom(button, "VRXMMButton1");
  expectRoom(shape, "VRXShapeButton1");
}

TEST(MMButton, SizesItselfByPictureAndCaption) {
  const auto list = ListOf({50, 31}, 1);
  TVRXMMButton button(nullptr);
  button.SetCaption(QString());
  button.Set(B::ButtonFaceImageList, list.get());
  button.SetButtonFaceIndices({TVRXButtonFaceIndex{1, 0}});
  button.Set(B::Flat, true);
  button.SetAutoSize(true);
  EXPECT_EQ(button.BoundsRect().size(), QSize(50, 31));
  button.Set(B::Flat, false);
  EXPECT_EQ(button.BoundsRect().size(), QSize(62, 43));
  button.SetCaption(QStringLiteral("Play"));
  const int across = button.Width();
  EXPECT_GT(across, 70);
  button.Set(B::Layout, TButtonLayout::blGlyphTop);
  EXPECT_LT(button.Width(), across);
  EXPECT_GT(button.Height(), 50);
}
