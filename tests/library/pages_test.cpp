// Wizards, notebooks, panels that fold, headers: what stands where, and what is to be seen of it.
#include "library/controls/Assist.h"
#include "library/controls/CaptionPanel.h"
#include "library/controls/HeaderPanel.h"
#include "library/controls/NoteBook.h"
#include "rtl/PropAccess.h"
#include "tests/library/VisibleProperties.h"
#include "vcl/Button.h"
#include "vcl/Form.h"

namespace {
struct Stage {
  TForm form{nullptr};
  Stage() {
    form.SetSizeIsClient(true);
    form.SetBounds(0, 0, 640, 480);
  }
  template <class C>
  C& Put(TWinControl& parent, const char* name) {
    auto* control = new C(&form);
    control->SetName(QString::fromLatin1(name));
    control->SetParent(&parent);
    return *control;
  }
};
QRect Of(const TControl& c) { return c.BoundsRect(); }
}  // namespace

TEST(Assist, ItsPagesFillWhatStepsHeaderAndButtonsLeave) {
  Stage s;
  auto& assist = s.Put<TVRXAssist>(s.form, "Assist");
  auto& one = s.Put<TVRXAssistPage>(assist, "One");
  auto& two = s.Put<TVRXAssistPage>(assist, "Two");
  EXPECT_EQ(one.AssistControl(), &assist);
  EXPECT_EQ(assist.FrontPage(), &one);
  const QRect area = assist.DisplayRect();
  EXPECT_EQ(Of(one), area);
  EXPECT_EQ(area.left(), 136);
  EXPECT_EQ(area.right(), assist.Width() - 1);
  EXPECT_GT(area.top(), 30);
  EXPECT_EQ(area.bottom() + 1, assist.Height() - 49);
  EXPECT_LT(two.Left(), 0);
  assist.SetActivePage(&two);
  EXPECT_EQ(Of(two), area);
  assist.Set(TVRXAssist::ShowSteps, false);
  assist.Set(TVRXAssist::ShowHeader, false);
  assist.Set(TVRXAssist::Buttons, {});
  EXPECT_EQ(Of(two), assist.ClientRect());
  one.SetAssistControl(nullptr);
  EXPECT_EQ(one.AssistControl(), nullptr);
  EXPECT_EQ(assist.Pages().size(), 1u);
  one.SetAssistControl(&assist);
  EXPECT_EQ(assist.Pages()[1], &one) << "it comes last";
}

TEST(Assist, TheUsualTitleOfAPageIsReadWhole) {
  Stage s;
  auto& assist = s.Put<TVRXAssist>(s.form, "VRXAssist1");
  s.Put<TVRXAssistPage>(assist, "VRXAssistPage1").SetCaption(QStringLiteral("VRXAssistPage1"));
  TFont bold;
  bold.Assign(assist.Font());
  bold.SetStyle({TFontStyle::fsBold});
  EXPECT_LE(QFontMetrics(ToQFont(bold)).horizontalAdvance(QStringLiteral("VRXAssistPage1")),
            assist.TabRects()[0].width() - 16);
}

TEST(Assist, ItsStepsLeadToTheirPages) {
  Stage s;
  auto& assist = s.Put<TVRXAssist>(s.form, "Assist");
  for (const char* name : {"One", "Two", "Three"}) s.Put<TVRXAssistPage>(assist, name);
  const auto rects = assist.TabRects();
  ASSERT_EQ(rects.size(), 3u);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(assist.TabAt(rects[static_cast<std::size_t>(i)].center()), i);
  EXPECT_EQ(assist.TabAt(assist.DisplayRect().center()), -1);
  assist.ChooseTab(2);
  EXPECT_EQ(assist.ActivePage(), assist.Pages()[2]);
  assist.Set(TVRXAssist::ShowSteps, false);
  EXPECT_EQ(assist.TabAt(rects[1].center()), -1);
}

TEST(Assist, ItsButtonsFollowThePage) {
  using enum TVRXAssistButton;
  Stage s;
  auto& assist = s.Put<TVRXAssist>(s.form, "Assist");
  for (const char* name : {"One", "Two"}) s.Put<TVRXAssistPage>(assist, name);
  const auto words = [&] {
    QString all;
    int right = 0;
    for (const auto& place : assist.ButtonPlaces()) {
      EXPECT_TRUE(assist.ClientRect().contains(place.rect));
      EXPECT_GE(place.rect.left(), right);
      right = place.rect.right() + 1;
      all += (place.enabled ? u'+' : u'-') + place.text + u' ';
    }
    return all.toStdString();
  };
  EXPECT_EQ(words(), "-< &Back +&Next > +Cancel ");
  assist.ChooseTab(1);
  EXPECT_EQ(words(), "+< &Back +&Finish +Cancel ") << "there is nothing to go on to";
  assist.Set(TVRXAssist::Buttons, {abHelp, abBack, abNext, abFinish, abCancel});
  EXPECT_EQ(words(), "+&Help +< &Back +&Next > +&Finish +Cancel ");
  assist.Pages()[1]->Set(TVRXAssistPage::EnableBack, false);
  assist.Pages()[1]->Set(TVRXAssistPage::EnableNext, false);
  EXPECT_EQ(words(), "+&Help -< &Back -&Next > +&Finish +Cancel ");
  SetStrProp(assist, assist.ClassType().GetProp("CancelCaption"), QStringLiteral("Enough"));
  EXPECT_EQ(words(), "+&Help -< &Back -&Next > +&Finish +Enough ");
  assist.SetEnabled(false);
  EXPECT_EQ(words(), "-&Help -< &Back -&Next > -&Finish -Enough ");
}

TEST(NoteBook, HasPagesOfItsOwnClassOnly) {
  Stage s;
  auto& book = s.Put<TVRXNoteBook>(s.form, "Book");
  auto& one = s.Put<TVRXNoteBookPage>(book, "One");
  auto& other = s.Put<TVRXAssistPage>(book, "Other");
  auto& two = s.Put<TVRXNoteBookPage>(book, "Two");
  EXPECT_EQ(book.Sheets(), (std::vector<TVRXCustomSheet*>{&one, &two}));
  EXPECT_EQ(book.SheetCount(), 2);
  EXPECT_EQ(other.Book(), nullptr);
  EXPECT_EQ(one.SheetControl(), &book);
  EXPECT_EQ(book.TabRects().size(), 2u);
  EXPECT_EQ(Of(one), book.DisplayRect());
  book.SetActiveSheet(&two);
  EXPECT_EQ(book.ActivePage(), &two);
  EXPECT_EQ(Of(two), book.DisplayRect());
  two.SetSheetControl(nullptr);
  EXPECT_EQ(book.FrontPage(), &one);
  two.Set(TVRXNoteBookPage::Filled, true);
  two.SetBounds(0, 0, 40, 30);
  const QImage filled = Draw(two, Qt::white);
  EXPECT_NE(filled.pixel(20, 1), filled.pixel(20, 28)) << "a gradient";
}

TEST(CaptionPanel, FoldsToItsTitleAndBack) {
  using enum TVRXCaptionPosition;
  for (const auto position : {cpTop, cpBottom, cpLeft, cpRight}) {
    SCOPED_TRACE(static_cast<int>(position));
    Stage s;
    auto& panel = s.Put<TVRXCaptionPanel>(s.form, "Panel");
    panel.SetBounds(10, 20, 211, 133);
    panel.Bevel()->Set(TVRXBevel::Outer, TBevelCut::bvRaised);
    panel.Bevel()->Set(TVRXBevel::Width, 2);
    panel.CaptionObject()->Set(TVRXPanelCaptionObject::Position, position);
    panel.CaptionObject()->Set(TVRXPanelCaptionObject::Size, 21);
    auto& filling = s.Put<TButton>(panel, "Filling");
    filling.SetAlign(TAlign::alClient);
    auto& tied = s.Put<TButton>(panel, "Tied");
    tied.SetBounds(20, 30, 40, 30);
    tied.SetAnchors({TAnchorKind::akRight, TAnchorKind::akBottom, TAnchorKind::akTop});
    const QRect client = panel.ClientRect(), inside = Of(filling), there = Of(tied), open = Of(panel);
    const bool across = position == cpLeft || position == cpRight;
    EXPECT_EQ(client.size(), across ? QSize(211 - 4 - 21, 133 - 4) : QSize(211 - 4, 133 - 4 - 21));
    EXPECT_EQ(client.topLeft(), QPoint(position == cpLeft ? 23 : 2, position == cpTop ? 23 : 2));
    panel.SetExpanded(false);
    EXPECT_EQ(Of(panel), across ? QRect(10, 20, 25, 133) : QRect(10, 20, 211, 25));
    EXPECT_EQ(panel.ExpandedSize(), across ? 211 : 133);
    EXPECT_EQ(Of(filling), inside) << "what stands in it stays as it is";
    EXPECT_EQ(Of(tied), there);
    panel.SetExpanded(true);
    EXPECT_EQ(Of(panel), open);
    EXPECT_EQ(panel.ExpandedSize(), 0);
    EXPECT_EQ(Of(filling), inside);
    EXPECT_EQ(Of(tied), there);
    panel.SetBounds(10, 20, 221, 143);
    EXPECT_EQ(Of(filling).size(), inside.size() + QSize(10, 10));
  }
}

TEST(CaptionPanelGroup, KeepsItsPanelsInAColumnOrARow) {
  Stage s;
  auto& group = s.Put<TVRXCaptionPanelGroup>(s.form, "Group");
  group.SetBounds(0, 0, 220, 400);
  std::vector<TVRXCaptionPanel*> panels;
  for (const char* name : {"One", "Two", "Three"}) {
    panels.push_back(&s.Put<TVRXCaptionPanel>(group, name));
    panels.back()->SetHeight(60);
  }
  const auto rows = [&] {
    QStringList all;
    for (const TVRXCaptionPanel* p : group.PanelList())
      all << QStringLiteral("%1 %2,%3 %4x%5")
                 .arg(p->Name())
                 .arg(p->Left())
                 .arg(p->Top())
                 .arg(p->Width())
                 .arg(p->Height());
    return all.join(QStringLiteral("; ")).toStdString();
  };
  EXPECT_EQ(rows(), "One 4,4 212x60; Two 4,68 212x60; Three 4,132 212x60");
  panels[0]->CaptionObject()->Set(TVRXPanelCaptionObject::Size, 20);
  panels[0]->SetExpanded(false);
  EXPECT_EQ(rows(), "One 4,4 212x20; Two 4,28 212x60; Three 4,92 212x60");
  panels[2]->SetIndex(0);
  EXPECT_EQ(rows(), "Three 4,4 212x60; One 4,68 212x20; Two 4,92 212x60");
  EXPECT_EQ(panels[2]->Index(), 0);
  panels[2]->SetIndex(7);
  panels[2]->SetIndex(-1);
  EXPECT_EQ(panels[2]->Index(), 0);
  group.CollapseAll();
  group.ExpandAll();
  EXPECT_EQ(rows(), "Three 4,4 212x60; One 4,68 212x60; Two 4,132 212x60");
  group.Set(TVRXCaptionPanelGroup::Distance, 10);
  EXPECT_EQ(rows(), "Three 4,4 212x60; One 4,74 212x60; Two 4,144 212x60");
  group.SetBounds(0, 0, 240, 400);
  EXPECT_EQ(panels[1]->Width(), 232);
  group.SetOrientation(TVRXGroupOrientation::goHorizontal);
  EXPECT_EQ(rows(), "Three 4,4 232x392; One 246,4 232x392; Two 488,4 232x392");
  panels[0]->SetExpanded(false);
  EXPECT_EQ(panels[0]->Height(), 20) << "folded downwards it keeps its height";
  group.SetOrientation(TVRXGroupOrientation::goVertical);
  panels[1]->SetParent(&s.form);
  EXPECT_EQ(group.PanelList().size(), 2u);
  EXPECT_EQ(panels[1]->Index(), -1);
}

TEST(CaptionPanelGroup, ScrollsAsFarAsItTakes) {
  Stage s;
  auto& group = s.Put<TVRXCaptionPanelGroup>(s.form, "Group");
  group.SetBounds(0, 0, 200, 208);
  std::vector<TVRXCaptionPanel*> panels;
  for (const char* name : {"One", "Two", "Three"}) {
    panels.push_back(&s.Put<TVRXCaptionPanel>(group, name));
    panels.back()->SetHeight(100);
  }
  EXPECT_EQ(panels[2]->Top(), 212);
  group.ScrollInView(*panels[2]);
  EXPECT_EQ(group.Get(TVRXCaptionPanelGroup::ScrollPos), 108);
  EXPECT_EQ(panels[2]->Top(), 104);
  EXPECT_EQ(panels[0]->Top(), -104);
  group.ScrollInView(*panels[1]);
  EXPECT_EQ(panels[1]->Top(), 4);
  group.ScrollInView(*panels[0]);
  EXPECT_EQ(group.Get(TVRXCaptionPanelGroup::ScrollPos), 0);
  group.ScrollInView(*panels[1]);
  EXPECT_EQ(panels[1]->Top(), 104) << "no more than it takes";
}

TEST(HeaderPanel, ButtonsStandInItsHeaderAndTheRestBelow) {
  Stage s;
  auto& panel = s.Put<TVRXHeaderPanel>(s.form, "Panel");
  panel.Set(TVRXHeaderPanel::HeaderHeight, 30);
  panel.SetBounds(0, 0, 200, 120);
  auto& first = s.Put<TVRXHeaderPanelButton>(panel, "First");
  auto& second = s.Put<TVRXHeaderPanelButton>(panel, "Second");
  auto& filling = s.Put<TButton>(panel, "Filling");
  filling.SetAlign(TAlign::alClient);
  EXPECT_EQ(Of(first), QRect(179, 6, 18, 18));
  EXPECT_EQ(Of(second), QRect(161, 6, 18, 18));
  EXPECT_EQ(Of(filling), QRect(0, 30, 200, 90));
  second.SetAlign(TAlign::alLeft);
  EXPECT_EQ(Of(second), QRect(3, 6, 18, 18));
  panel.SetBounds(0, 0, 230, 120);
  EXPECT_EQ(Of(first), QRect(209, 6, 18, 18));
  EXPECT_EQ(Of(filling), QRect(0, 30, 230, 90));
  panel.Set(TVRXHeaderPanel::HeaderHeight, 40);
  EXPECT_EQ(Of(first), QRect(209, 11, 18, 18));
  EXPECT_EQ(Of(filling), QRect(0, 40, 230, 80));
}

// Whatever the scale of the screen is, no side of a frame is lost between two pixels.
TEST(FramesOfOnePixel, HaveAllFourSidesAtEveryScale) {
  Stage s;
  auto& book = s.Put<TVRXNoteBook>(s.form, "Book");
  book.SetBounds(16, 16, 289, 100);
  s.Put<TVRXNoteBookPage>(book, "Page").SetCaption(QStringLiteral("Page"));
  auto& header = s.Put<TVRXHeaderPanel>(s.form, "Header");
  header.SetBounds(16, 150, 200, 121);
  for (TControl* c : {static_cast<TControl*>(&book), static_cast<TControl*>(&header)}) c->SetDesigning(true);
  const QPoint origin = s.form.ClientRect().topLeft();
  const QRect pane = book.DisplayRect().adjusted(-4, -4, 4, 4).translated(origin + QPoint(16, 16));
  const QRect dashes = header.BoundsRect().translated(origin).adjusted(0, 30, 0, 0);
  for (const double scale : {1.0, 1.25, 1.302, 1.5, 1.7, 2.0}) {
    QImage image((QSizeF(640, 480) * scale).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    {
      QPainter painter(&image);
      painter.scale(scale, scale);
      PaintControl(s.form, painter);
    }
    const auto at = [&](double v) { return static_cast<int>(v * scale); };
    // Of so many places along the edge, in how many a line is seen that is no thicker than it should be.
    const auto seen = [&](const QRect& r, bool across, bool end) {
      const QRgb ground = image.pixel(at(r.center().x()), at(r.center().y()));
      int count = 0;
      for (int k = 0; k < 30; ++k) {
        const double along = 0.5 + k / 75.0;
        const int edge = at(across ? (end ? r.top() + r.height() - 1 : r.top())
                                   : (end ? r.left() + r.width() - 1 : r.left()));
        bool line = false;
        for (int d = 0; d <= static_cast<int>(scale); ++d)
          line |= ground != (across ? image.pixel(at(r.left() + along * r.width()), edge + d)
                                    : image.pixel(edge + d, at(r.top() + along * r.height())));
        count += line;
      }
      return count;
    };
    for (const bool across : {true, false})
      for (const bool end : {true, false}) {
        EXPECT_EQ(seen(pane, across, end), 30) << scale << across << end;
        EXPECT_GT(across && !end ? 30 : seen(dashes, across, end), 12) << scale << across << end;
      }
  }
}

namespace {
const QStringList Parts{QStringLiteral("Bevel."),      QStringLiteral("Font."),
                        QStringLiteral("FillObject."), QStringLiteral("CaptionObject.FillObject."),
                        QStringLiteral("ParentFont"),  QStringLiteral("Padding"),
                        QStringLiteral("Image"),       QStringLiteral("PageIndex")};
}  // namespace

TEST(EveryProperty, OfWizardsNotebooksAndPanelsIsSeen) {
  visible::ExpectAll<TVRXAssist>({{"", "Buttons=[abNext]"},
                                  {"", "HeaderColor=clYellow"},
                                  {"", "ShowHeader=False"},
                                  {"", "ShowSteps=False"},
                                  {"", "StepsColor=clYellow"},
                                  {"", "StepsWidth=70"},
                                  {"", "Color=clYellow"},
                                  {"", "Enabled=False"}},
                                 {361, 207}, Parts);
  visible::ExpectAll<TVRXCaptionPanel>(
      {{"Caption=Hg CaptionObject.Buttons=[]", "CaptionObject.Alignment=taCenter"},
       {"Caption=Hg", "CaptionObject.Bold=False"},
       {"Caption=Hg", "CaptionObject.Buttons=[pbClose]"},
       {"Caption=Hg", "CaptionObject.Position=cpLeft"},
       {"Caption=Hg", "CaptionObject.Size=40"},
       {"Caption=Hg", "Color=clYellow"},
       {"Caption=Hg", "Enabled=False"},
       {"Caption=Hg", "Expanded=False"},
       {"Caption=Hg", "Transparent=True"},
       {"Caption=Hg", "Bevel.Outer=bvRaised"}},
      {121, 83},
      Parts + QStringList{QStringLiteral("ExpandedSize"), QStringLiteral("CaptionObject.ImageIndex"),
                          QStringLiteral("AutoSize")});
  visible::ExpectAll<TVRXHeader>({{"Caption=Hg", "Alignment=taCenter"},
                                  {"Caption=Hg", "Bold=False"},
                                  {"Caption=Hg", "Filled=False"},
                                  {"Caption=Hg Filled=False", "Color=clYellow"},
                                  {"Caption=Hg", "Enabled=False"},
                                  {"Caption=Hg", "Bevel.Outer=bvRaised"},
                                  {"Caption=Hg", "Description=Hi"}},
                                 {121, 43}, Parts);
  visible::ExpectAll<TVRXHeaderPanel>({{"Caption=Hg", "Alignment=taCenter"},
                                       {"Caption=Hg", "Bold=False"},
                                       {"Caption=Hg", "Filled=False"},
                                       {"Caption=Hg", "Color=clYellow"},
                                       {"Caption=Hg", "Enabled=False"},
                                       {"Caption=Hg", "HeaderHeight=40"}},
                                      {121, 83}, Parts);
  visible::ExpectAll<TVRXHeaderPanelButton>({{"", "Down=True"},
                                             {"", "Flat=False"},
                                             {"", "Kind=hbClose"},
                                             {"", "Kind=hbHelp"},
                                             {"", "Kind=hbPin"},
                                             {"", "Kind=hbExpand"},
                                             {"Kind=hbCustom", "Caption=H"},
                                             {"", "Enabled=False"}},
                                            {23, 21}, Parts);
}

TEST(CaptionPanel, ItsMarksShowWhereItFolds) {
  std::vector<QImage> pictures;
  for (const bool expanded : {true, false})
    for (const auto position : {TVRXCaptionPosition::cpTop, TVRXCaptionPosition::cpBottom,
                                TVRXCaptionPosition::cpLeft, TVRXCaptionPosition::cpRight}) {
      TVRXCaptionPanel panel(nullptr);
      panel.SetBounds(0, 0, 120, 90);
      panel.CaptionObject()->Set(TVRXPanelCaptionObject::Position, position);
      panel.SetExpanded(expanded);
      pictures.push_back(Draw(panel, Qt::magenta));
    }
  EXPECT_NE(pictures[0].copy(95, 0, 25, 20), pictures[4].copy(95, 0, 25, 20));
  EXPECT_NE(pictures[2].copy(0, 0, 20, 25), pictures[6].copy(0, 0, 20, 25));
  EXPECT_EQ(pictures[0].copy(95, 0, 25, 20), pictures[5].copy(95, 0, 25, 20))
      << "up, as from below when folded";
}
