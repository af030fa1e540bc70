// What is to be seen of wizards, notebooks, panels that fold and headers, and where.
#include "library/controls/Assist.h"
#include "library/controls/CaptionPanel.h"
#include "library/controls/HeaderPanel.h"
#include "library/controls/NoteBook.h"
#include "tests/library/VisibleProperties.h"
#include "vcl/Button.h"

using enum TVRXCaptionPosition;

namespace {
template <class C>
C& Put(TWinControl& parent) {
  auto* control = new C(&parent);
  control->SetParent(&parent);
  return *control;
}
int ColorsIn(const QImage& image, const QRect& rect) {
  QSet<QRgb> colors;
  for (int y = rect.top(); y <= rect.bottom(); ++y)
    for (int x = rect.left(); x <= rect.right(); ++x) colors.insert(image.pixel(x, y));
  return static_cast<int>(colors.size());
}
// The smallest rectangle with everything of the colour.
QRect Painted(const QImage& image, QColor color) {
  QRect box;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixelColor(x, y) == color) box |= QRect(x, y, 1, 1);
  return box;
}
struct RedPictures : TImageList {
  explicit RedPictures(QSize size) : TImageList(nullptr) {
    Set(TCustomImageList::Width, size.width());
    Set(TCustomImageList::Height, size.height());
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    SetPictures({image});
  }
};
const QString LongText = QString(60, u'M');

// A title that is plain white, and black on it what stands there.
struct WhitePanel : TVRXCaptionPanel {
  explicit WhitePanel(TVRXCaptionPosition position) : TVRXCaptionPanel(nullptr) {
    SetBounds(0, 0, 141, 127);
    visible::Apply(*this, QStringLiteral("Color=clLime Font.Color=clBlack CaptionObject.Size=20 "
                                         "CaptionObject.FillObject.Kind=fkSolid "
                                         "CaptionObject.FillObject.Color=clWhite"));
    CaptionObject()->Set(TVRXPanelCaptionObject::Position, position);
  }
  QRect Title() const {
    switch (CaptionObject()->Get(TVRXPanelCaptionObject::Position)) {
      case cpBottom:
        return {0, Height() - 20, Width(), 20};
      case cpLeft:
        return {0, 0, 20, Height()};
      case cpRight:
        return {Width() - 20, 0, 20, Height()};
      default:
        return {0, 0, Width(), 20};
    }
  }
  QImage TitlePicture() { return Draw(*this, Qt::magenta).copy(Title()); }
};
}  // namespace

TEST(Assist, BackAndNextStandTogetherAndTheOthersApart) {
  TVRXAssist assist(nullptr);
  const auto places = assist.ButtonPlaces();
  ASSERT_EQ(places.size(), 3u);
  EXPECT_EQ(places[1].rect.left(), places[0].rect.right() + 1);
  EXPECT_EQ(places[2].rect.left(), places[1].rect.right() + 1 + 8);
}

TEST(Assist, ItsStepsEndAboveTheButtonsAndShowWhichPageIsInFront) {
  TVRXAssist assist(nullptr);
  visible::Apply(assist, QStringLiteral("StepsColor=clYellow Color=clAqua"));
  for (int i = 0; i < 3; ++i) Put<TVRXAssistPage>(assist);
  for (const int front : {1, 2, 0}) {
    SCOPED_TRACE(front);
    assist.ChooseTab(front);
    const QImage picture = Draw(assist, Qt::magenta);
    const int buttons = assist.ButtonPlaces()[0].rect.top() - 12;
    EXPECT_EQ(Painted(picture, Qt::yellow).bottom() + 1, buttons);
    for (int i = 0; i < 3; ++i)
      EXPECT_EQ(picture.pixelColor(2, assist.TabRects()[static_cast<std::size_t>(i)].center().y()),
                QColor(i == front ? Qt::cyan : Qt::yellow))
          << i;
  }
}

TEST(Assist, TheTitleOfAPageStandsBesideItsPicture) {
  RedPictures images({24, 30});
  TVRXAssist assist(nullptr);
  auto& page = Put<TVRXAssistPage>(assist);
  page.SetCaption(LongText);
  page.Set(TVRXAssistPage::Description, LongText);
  page.Set(TVRXAssistPage::ImageIndex, 0);
  assist.Set(TVRXAssist::Images, &images);
  const QImage picture = Draw(assist, Qt::magenta);
  EXPECT_EQ(CountPixels(picture, Qt::red), 24 * 30);
  EXPECT_EQ(Painted(picture, Qt::red).right(), assist.Width() - 1 - 12);
}

TEST(PageBooks, WithoutPagesSayOnFormsOnlyWhatTheyAreFor) {
  TVRXAssist assist(nullptr);
  TVRXNoteBook book(nullptr);
  for (TPageBook* each : {static_cast<TPageBook*>(&assist), static_cast<TPageBook*>(&book)}) {
    each->SetBounds(0, 0, 440, 296);
    const QRect room = each->DisplayRect().adjusted(3, 3, -3, -3);
    EXPECT_EQ(ColorsIn(Draw(*each, Qt::magenta), room), 1);
    each->SetDesigning(true);
    EXPECT_GT(ColorsIn(Draw(*each, Qt::magenta), room), 1);
  }
}

TEST(NoteBook, APageHasItsColourUntilItIsToldToBeFilled) {
  TVRXNoteBookPage page(nullptr);
  page.SetBounds(0, 0, 41, 33);
  EXPECT_EQ(ColorsIn(Draw(page, Qt::magenta), page.ClientRect()), 1);
  page.Set(TVRXNoteBookPage::Filled, true);
  EXPECT_GT(ColorsIn(Draw(page, Qt::magenta), page.ClientRect()), 1);
}

TEST(CaptionPanel, IsNeverSmallerThanItsTitle) {
  for (const auto position : {cpTop, cpRight}) {
    WhitePanel panel(position);
    panel.SetExpanded(false);
    const QRect folded = panel.BoundsRect();
    panel.SetExpandedSize(7);
    panel.SetExpanded(true);
    EXPECT_EQ(panel.BoundsRect(), folded);
  }
}

TEST(CaptionPanel, ItsTitleStandsAtItsEdge) {
  for (const auto position : {cpTop, cpBottom, cpLeft, cpRight}) {
    SCOPED_TRACE(static_cast<int>(position));
    WhitePanel panel(position);
    panel.CaptionObject()->Set(TVRXPanelCaptionObject::Buttons, {});
    const QImage picture = Draw(panel, Qt::magenta);
    EXPECT_EQ(Painted(picture, Qt::white), panel.Title());
    EXPECT_EQ(CountPixels(picture, Qt::white), panel.Title().width() * panel.Title().height());
    panel.Set(TVRXCaptionPanel::Transparent, true);
    EXPECT_EQ(CountPixels(Draw(panel, Qt::magenta), Qt::magenta), panel.Width() * panel.Height());
  }
}

TEST(CaptionPanel, ItsMarkPointsWhereItFolds) {
  // Where the two arms meet there is less of them than at their ends.
  const auto points = [](QImage title, bool upright) {
    if (upright) title = title.transformed(QTransform().rotate(90));
    const QRect ink = Inked(title, Qt::white);
    // How far out it is.
    const auto out = [&](int y) {
      double far = 0;
      for (int x = ink.left(); x <= ink.right(); ++x)
        if (qGray(title.pixel(x, y)) < 160) far = std::max(far, std::abs(x - QRectF(ink).center().x()));
      return far;
    };
    EXPECT_GT(ink.height(), 3);
    const bool first = out(ink.top() + 1) < out(ink.bottom() - 1);
    return upright ? (first ? "left" : "right") : (first ? "up" : "down");
  };
  struct Row {
    TVRXCaptionPosition position;
    const char *open, *folded;
  };
  for (const Row& row : {Row{cpTop, "up", "down"},
                         {cpBottom, "down", "up"},
                         {cpLeft, "left", "right"},
                         {cpRight, "right", "left"}}) {
    SCOPED_TRACE(static_cast<int>(row.position));
    WhitePanel panel(row.position);
    const bool upright = panel.FoldsAcross();
    EXPECT_STREQ(points(panel.TitlePicture(), upright), row.open);
    panel.SetExpanded(false);
    EXPECT_STREQ(points(panel.TitlePicture(), upright), row.folded);
  }
}

TEST(CaptionPanel, ItsMarksStandInItsTitleAndTheTextBeforeThem) {
  for (const auto position : {cpTop, cpBottom, cpLeft, cpRight}) {
    SCOPED_TRACE(static_cast<int>(position));
    WhitePanel panel(position);
    visible::Apply(panel, QStringLiteral("CaptionObject.Buttons=[pbExpand,pbMenu,pbHelp,pbClose]"));
    const QImage marks = panel.TitlePicture();
    const QRect ink = Inked(marks, Qt::white);
    EXPECT_GE(std::max(ink.width(), ink.height()), 3 * 20) << "four of them";
    EXPECT_LE(std::min(ink.width(), ink.height()), 14);
    const QRect end = position == cpLeft    ? QRect(0, 0, 20, 80)
                      : position == cpRight ? QRect(0, marks.height() - 80, 20, 80)
                                            : QRect(marks.width() - 80, 0, 80, 20);
    EXPECT_TRUE(end.contains(ink));
    panel.SetCaption(LongText);
    EXPECT_NE(panel.TitlePicture(), marks);
    EXPECT_EQ(panel.TitlePicture().copy(end), marks.copy(end));
  }
}

TEST(CaptionPanel, ItsTitleBeginsWithItsPicture) {
  RedPictures images({18, 14});
  for (const auto position : {cpTop, cpBottom, cpLeft, cpRight}) {
    SCOPED_TRACE(static_cast<int>(position));
    WhitePanel panel(position);
    panel.SetCaption(LongText);
    panel.Set(TVRXCaptionPanel::ImageList, &images);
    panel.CaptionObject()->Set(TVRXPanelCaptionObject::ImageIndex, 0);
    const QImage title = panel.TitlePicture();
    EXPECT_EQ(CountPixels(title, Qt::red), 18 * 14) << "nothing stands on it";
    const QRect place = Painted(title, Qt::red);
    // Titles at the left run upwards, those at the right downwards.
    EXPECT_EQ(position == cpLeft    ? title.height() - 1 - place.bottom()
              : position == cpRight ? place.top()
                                    : place.left(),
              8);
  }
}

TEST(CaptionPanel, ItsTitleIsAsThickAsItsPictureNeeds) {
  RedPictures images({18, 45});
  WhitePanel panel(cpTop);
  panel.CaptionObject()->Set(TVRXPanelCaptionObject::Size, 0);
  panel.Set(TVRXCaptionPanel::ImageList, &images);
  panel.CaptionObject()->Set(TVRXPanelCaptionObject::ImageIndex, 0);
  panel.SetExpanded(false);
  EXPECT_EQ(panel.Height(), 45 + 4);
}

TEST(CaptionPanelGroup, TheTabKeyFollowsTheOrderOfThePanels) {
  TVRXCaptionPanelGroup group(nullptr);
  std::vector<TVRXCaptionPanel*> panels;
  for (int i = 0; i < 4; ++i) panels.push_back(&Put<TVRXCaptionPanel>(group));
  for (int i = 0; i < 4; ++i) panels[static_cast<std::size_t>(i)]->SetTabOrder(i);
  panels[1]->SetTabOrder(-1);
  const auto turns = [&] {
    QStringList all;
    for (const TVRXCaptionPanel* p : group.PanelList()) all << QString::number(p->TabOrder());
    return all.join(u' ').toStdString();
  };
  const std::string before = turns();
  panels[3]->SetIndex(0);
  EXPECT_EQ(group.PanelList()[0], panels[3]);
  QStringList inTurn;
  for (const TVRXCaptionPanel* p : group.PanelList())
    if (p->TabOrder() >= 0) inTurn << QString::number(p->TabOrder());
  QStringList sorted = inTurn;
  sorted.sort();
  EXPECT_EQ(inTurn, sorted) << turns() << ", before " << before;
  EXPECT_EQ(inTurn.size(), 3);
  EXPECT_EQ(panels[1]->TabOrder(), -1) << "it has no turn";
}

TEST(CaptionPanelGroup, OfAPanelWithoutRoomTheBeginningIsSeen) {
  TVRXCaptionPanelGroup group(nullptr);
  group.SetBounds(0, 0, 200, 208);
  Put<TVRXCaptionPanel>(group).SetHeight(90);
  auto& high = Put<TVRXCaptionPanel>(group);
  high.SetHeight(350);
  group.ScrollInView(high);
  EXPECT_EQ(high.Top(), 4);
}

TEST(CaptionPanelGroup, APanelThatIsFoldedAcrossTheGroupStaysSo) {
  TVRXCaptionPanelGroup group(nullptr);
  group.SetBounds(0, 0, 220, 300);
  auto& panel = Put<TVRXCaptionPanel>(group);
  visible::Apply(panel, QStringLiteral("CaptionObject.Position=cpLeft CaptionObject.Size=23"));
  EXPECT_EQ(panel.Width(), 212);
  panel.SetExpanded(false);
  EXPECT_EQ(panel.Width(), 23);
  panel.SetExpanded(true);
  EXPECT_EQ(panel.Width(), 212);
}

TEST(CaptionPanelGroup, ItsMarkIsThatOfThePanelsThatAreSeen) {
  const auto picture = [](bool third, bool hidden) {
    TVRXCaptionPanelGroup group(nullptr);
    group.SetBounds(0, 0, 200, 208);
    for (int i = 0; i < (third ? 3 : 2); ++i) {
      auto& panel = Put<TVRXCaptionPanel>(group);
      panel.SetHeight(90);
      panel.SetVisible(i < 2 || !hidden);
    }
    return Draw(group, Qt::magenta);
  };
  EXPECT_EQ(picture(true, true), picture(false, false));
  EXPECT_NE(picture(true, false), picture(false, false)) << "there is more than there is room for";
}

TEST(CaptionPanelGroup, HasNoMarkWhenItsPanelsJustFitBetweenItsEdges) {
  TVRXCaptionPanelGroup group(nullptr);
  visible::Apply(group, QStringLiteral("Bevel.Outer=bvRaised Bevel.Width=5 Color=clWhite"));
  group.SetBounds(0, 0, 200, 218);
  for (int i = 0; i < 2; ++i) Put<TVRXCaptionPanel>(group).SetHeight(98);
  const QRect beside(200 - 5 - 4, 9, 4, 200);
  EXPECT_EQ(ColorsIn(Draw(group, Qt::magenta), beside), 1);
  group.SetHeight(217);
  EXPECT_GT(ColorsIn(Draw(group, Qt::magenta), beside.adjusted(0, 0, 0, -1)), 1) << "a pixel too low";
}

TEST(HeaderPanel, ButtonsAtTheLeftStandBesideEachOtherAndHiddenOnesNowhere) {
  TVRXHeaderPanel panel(nullptr);
  panel.Set(TVRXHeaderPanel::HeaderHeight, 30);
  std::vector<TVRXHeaderPanelButton*> buttons;
  for (const auto align : {TAlign::alLeft, TAlign::alLeft, TAlign::alRight, TAlign::alRight}) {
    buttons.push_back(&Put<TVRXHeaderPanelButton>(panel));
    buttons.back()->SetAlign(align);
  }
  const auto lefts = [&] {
    QStringList all;
    for (const auto* b : buttons) all << QString::number(b->Left());
    return all.join(u' ').toStdString();
  };
  EXPECT_EQ(lefts(), "3 21 179 161");
  buttons[0]->SetVisible(false);
  buttons[2]->SetVisible(false);
  EXPECT_EQ(buttons[1]->Left(), 3);
  EXPECT_EQ(buttons[3]->Left(), 179);
}

TEST(HeaderPanel, ItsTitleBeginsBehindTheButtonsAtTheLeft) {
  TVRXHeaderPanel panel(nullptr);
  visible::Apply(panel, QStringLiteral("Filled=False Color=clWhite Font.Color=clBlack HeaderHeight=30"));
  panel.SetCaption(QStringLiteral("H"));
  const int before = Inked(Draw(panel, Qt::white), Qt::white).left();
  std::vector<TVRXHeaderPanelButton*> buttons;
  for (int i = 0; i < 2; ++i) {
    buttons.push_back(&Put<TVRXHeaderPanelButton>(panel));
    buttons.back()->SetAlign(TAlign::alLeft);
    visible::Apply(*buttons.back(), QStringLiteral("Kind=hbCustom"));  // nothing of its own to be seen
  }
  EXPECT_EQ(Inked(Draw(panel, Qt::white), Qt::white).left(), before + 2 * 18);
  buttons[0]->SetVisible(false);
  EXPECT_EQ(Inked(Draw(panel, Qt::white), Qt::white).left(), before + 18)
      << "one that is not seen needs no room";
  buttons[0]->SetDesigning(true);
  EXPECT_EQ(Inked(Draw(panel, Qt::white), Qt::white).left(), before + 2 * 18) << "on a form it is seen";
  buttons[0]->SetAlign(TAlign::alBottom);
  EXPECT_EQ(Inked(Draw(panel, Qt::white), Qt::white).left(), before + 18) << "nor one that stands elsewhere";
}

TEST(Header, HasItsPictureOnceBeforeTheTitle) {
  RedPictures images({14, 12});
  TVRXHeader header(nullptr);
  header.SetBounds(0, 0, 181, 51);
  header.SetCaption(QStringLiteral("Title"));
  header.Set(TVRXHeader::ImageList, &images);
  header.Set(TVRXHeader::ImageIndex, 0);
  EXPECT_EQ(CountPixels(Draw(header, Qt::magenta), Qt::red), 14 * 12);
  header.Set(TVRXHeader::Description, QStringLiteral("What it is about"));
  const QImage picture = Draw(header, Qt::magenta);
  EXPECT_EQ(CountPixels(picture, Qt::red), 14 * 12);
  EXPECT_LT(Painted(picture, Qt::red).bottom(), 26) << "in the upper half";
}

TEST(HeaderPanelButton, AFlatOneThatIsPressedHasAFrame) {
  TVRXHeaderPanelButton button(nullptr);
  visible::Apply(button, QStringLiteral("Flat=True Kind=hbCustom"));
  EXPECT_EQ(ColorsIn(Draw(button, Qt::magenta), button.ClientRect()), 1);
  visible::Apply(button, QStringLiteral("Down=True"));
  EXPECT_GT(ColorsIn(Draw(button, Qt::magenta), button.ClientRect()), 1);
}
