// Fields with something that drops down: what they show of it, and what drops down.
#include "library/controls/Calculator.h"
#include "library/controls/Calendar.h"
#include "library/controls/HTMLComboBox.h"
#include "library/controls/HTMLHeaderControl.h"
#include "library/controls/HTMLListBox.h"
#include "library/controls/LabeledBoxes.h"
#include "library/controls/ListBoxes.h"
#include "library/controls/TextBoxes.h"
#include "library/controls/ValueListBox.h"
#include "rtl/Clock.h"
#include "tests/library/VisibleProperties.h"
#include "vcl/Form.h"
#include "vcl/ListBox.h"
#include "vcl/Panel.h"
#include "vcl/TreeView.h"

namespace {
const QStringList FieldsKnow{QStringLiteral("Font."),       QStringLiteral("ParentFont"),
                             QStringLiteral("AutoSize"),    QStringLiteral("BorderStyle"),
                             QStringLiteral("DropDown"),    QStringLiteral("CalColors."),
                             QStringLiteral("MaxLength"),   QStringLiteral("ShowToday"),
                             QStringLiteral("WeekNumbers"), QStringLiteral("FirstDayOfWeek")};
QStringList Without(const QStringList& more) { return FieldsKnow + more; }

QImage DrawnDown(const IDropDown& field) {
  const QSize size = field.DropDownSize();
  QImage image(size.expandedTo({1, 1}), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::magenta);
  QPainter painter(&image);
  TCanvas canvas(painter);
  field.PaintDropDown(canvas, QRect({0, 0}, size));
  return image;
}
TTreeNodeList SomeNodes() {
  return {{.Text = QStringLiteral("Europe"),
           .Children = {{.Text = QStringLiteral("Austria"), .Children = {{.Text = QStringLiteral("Graz")}}},
                        {.Text = QStringLiteral("Italy")}}},
          {.Text = QStringLiteral("Asia")}};
}
template <class C>
struct OnForm {
  OnForm() : box(new C(&form)) {
    box->SetParent(&form);
    box->SetBounds(8, 8, 160, 23);
  }
  TForm form{nullptr};
  C* box;
};
// A value that what drops down shows, and the field perhaps not.
void ExpectSeenBelow(TVRXCustomDropDownBox& box, const char* change) {
  SCOPED_TRACE(change);
  const QImage before = DrawnDown(box);
  EXPECT_EQ(DrawnDown(box), before);
  visible::Apply(box, QString::fromLatin1(change));
  EXPECT_NE(DrawnDown(box), before);
}
}  // namespace

TEST(DropDown, IsAsWideAsTheFieldAndAsHighAsItNeedsUnlessItIsTold) {
  OnForm<TVRXListComboBox> s;
  s.box->Get(TVRXListComboBox::Items)->SetLines({QStringLiteral("One"), QStringLiteral("Two")});
  const QSize two = s.box->DropDownSize();
  EXPECT_EQ(two.width(), 160);
  s.box->Get(TVRXListComboBox::Items)->Add(QStringLiteral("Three"));
  const int line = s.box->DropDownSize().height() - two.height();
  EXPECT_GE(line, 8);
  EXPECT_LE(line, 40);
  s.box->Set(TVRXListComboBox::DropDownCount, 2);
  EXPECT_EQ(s.box->DropDownSize(), two);
  s.box->Set(TVRXListComboBox::DropDownWidth, 211);
  s.box->Set(TVRXListComboBox::DropDownHeight, 77);
  EXPECT_EQ(s.box->DropDownSize(), QSize(211, 77));
  s.box->Set(TVRXListComboBox::DropDownHeight, INT32_MAX);
  EXPECT_EQ(s.box->DropDownSize().height(), 2000);
}

TEST(DropDown, PaintsNothingBesideItsPlace) {
  OnForm<TVRXCalendarComboBox> s;
  QImage image(400, 300, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::magenta);
  QPainter painter(&image);
  TCanvas canvas(painter);
  const QRect place(31, 17, 203, 149);
  s.box->PaintDropDown(canvas, place);
  painter.end();
  EXPECT_EQ(Inked(image, Qt::magenta), place);
  QImage corner(place.size(), QImage::Format_ARGB32_Premultiplied);
  corner.fill(Qt::magenta);
  QPainter there(&corner);
  TCanvas small(there);
  s.box->PaintDropDown(small, QRect({0, 0}, place.size()));
  there.end();
  EXPECT_EQ(image.copy(place), corner) << "the same at any place";
}

TEST(ListField, ShowsTheChosenItemAndTheListMarksIt) {
  OnForm<TVRXListComboBox> s;
  s.box->Get(TVRXListComboBox::Items)
      ->SetLines({QStringLiteral("pear"), QStringLiteral("Apple"), QStringLiteral("fig")});
  EXPECT_EQ(s.box->FieldText(), QString());
  s.box->Set(TVRXListComboBox::ItemIndex, 0);
  EXPECT_EQ(s.box->FieldText(), QStringLiteral("pear"));
  s.box->Set(TVRXListComboBox::Sorted, true);
  EXPECT_EQ(s.box->FieldText(), QStringLiteral("Apple"));
  s.box->Set(TVRXListComboBox::ItemIndex, 7);
  EXPECT_EQ(s.box->FieldText(), QString());
  s.box->Set(TVRXListComboBox::ItemIndex, 2);
  s.box->Set(TVRXListComboBox::DropDownCount, 1);
  const auto list = s.box->MakeDropDown();
  const auto& shown = dynamic_cast<TListBox&>(*list);
  EXPECT_EQ(shown.Get(TCustomListBox::ItemIndex), 2);
  EXPECT_EQ(shown.Get(TCustomListBox::TopIndex), 2) << "the chosen one is in sight";
}

TEST(TreeField, ShowsThePathAndTheTreeIsOpenUpToIt) {
  OnForm<TVRXTreeComboBox> s;
  s.box->Get(TVRXTreeComboBox::Items)->SetNodes(SomeNodes());
  const char* paths[] = {"Europe", "Europe/Austria", "Europe/Austria/Graz", "Europe/Italy", "Asia", "", ""};
  for (int i = 0; i < 7; ++i) {
    s.box->Set(TVRXTreeComboBox::ItemIndex, i == 6 ? -1 : i);
    EXPECT_EQ(s.box->FieldText().toStdString(), paths[i]) << i;
  }
  s.box->Set(TVRXTreeComboBox::ItemIndex, 2);
  s.box->Set(TVRXTreeComboBox::PathSeparator, QStringLiteral(" > "));
  EXPECT_EQ(s.box->FieldText(), QStringLiteral("Europe > Austria > Graz"));
  s.box->Set(TVRXTreeComboBox::FullPath, false);
  EXPECT_EQ(s.box->FieldText(), QStringLiteral("Graz"));
  const auto dropped = s.box->MakeDropDown();
  const TTreeNodeList& open = dynamic_cast<TTreeView&>(*dropped).Get(TCustomTreeView::Items)->Nodes();
  EXPECT_TRUE(open[0].Expanded);
  EXPECT_TRUE(open[0].Children[0].Expanded);
  EXPECT_FALSE(s.box->Get(TVRXTreeComboBox::Items)->Nodes()[0].Expanded)
      << "the field's own stay as they are";
  // The mark is on the row that the node stands in: those of a closed one have none.
  const int row = TextExtent(QStringLiteral("Wg"), *s.box->Font()).height() + 2;
  const QColor mark = ToQColor(clHighlight);
  for (const auto& [index, place] : {std::pair(2, 2), std::pair(4, 1)}) {
    s.box->Set(TVRXTreeComboBox::ItemIndex, index);
    const QImage down = DrawnDown(*s.box);
    for (int i = 0; i < 4; ++i)
      EXPECT_EQ(down.pixelColor(100, 2 + i * row) == mark, i == place) << index << ' ' << i;
  }
}

TEST(TableField, ShowsTheTextsOfItsColumns) {
  OnForm<TVRXHeaderListComboBox> s;
  for (const int width : {90, 70, 60}) {
    auto* column = static_cast<TListColumn*>(s.box->Get(TVRXHeaderListComboBox::Columns)->Add());
    column->Set(TListColumn::Width, width);
  }
  s.box->Get(TVRXHeaderListComboBox::Items)
      ->SetItems(
          {{.Caption = QStringLiteral("Bolt"), .SubItems = {QStringLiteral("M6"), QStringLiteral("12")}},
           {.Caption = QStringLiteral("Nut"), .SubItems = {QString(), QStringLiteral("7")}}});
  EXPECT_EQ(s.box->FieldText(), QString());
  s.box->Set(TVRXHeaderListComboBox::ItemIndex, 0);
  EXPECT_EQ(s.box->FieldText(), QStringLiteral("Bolt, M6, 12"));
  s.box->Set(TVRXHeaderListComboBox::Separator, QStringLiteral(" | "));
  s.box->Set(TVRXHeaderListComboBox::ItemIndex, 1);
  EXPECT_EQ(s.box->FieldText(), QStringLiteral("Nut | 7")) << "no sign for what is empty";
  s.box->Set(TVRXHeaderListComboBox::ItemIndex, 0);
  s.box->Get(TVRXHeaderListComboBox::Columns)->Column(1)->Set(TListColumn::Visible, false);
  EXPECT_EQ(s.box->FieldText(), QStringLiteral("Bolt | 12"));
  s.box->Set(TVRXHeaderListComboBox::TextColumn, 1);
  EXPECT_EQ(s.box->FieldText(), QStringLiteral("M6"));
  s.box->Set(TVRXHeaderListComboBox::TextColumn, -1);
  s.box->Set(TVRXHeaderListComboBox::ItemIndex, 1);
  EXPECT_EQ(s.box->FieldText(), QStringLiteral("Nut | 7"));
  s.box->Set(TVRXHeaderListComboBox::ItemIndex, 2);
  EXPECT_EQ(s.box->FieldText(), QString());
  EXPECT_EQ(s.box->DropDownSize().width(), 90 + 60 + 17 + 4);
  s.box->Get(TVRXHeaderListComboBox::Columns)->Clear();
  s.box->Set(TVRXHeaderListComboBox::ItemIndex, 1);
  EXPECT_EQ(s.box->FieldText(), QStringLiteral("Nut"));
}

TEST(CheckField, ShowsTheCheckedItemsInTheirOrder) {
  OnForm<TVRXCheckListComboBox> s;
  s.box->Get(TVRXCheckListComboBox::Items)
      ->SetLines({QStringLiteral("Tea"), QStringLiteral("Milk"), QStringLiteral("Coffee")});
  s.box->Get(TVRXCheckListComboBox::CheckedItems)
      ->SetLines({QStringLiteral("Coffee"), QStringLiteral("Beer"), QStringLiteral("Tea")});
  EXPECT_EQ(s.box->FieldText(), QStringLiteral("Tea, Coffee"));
  s.box->Set(TVRXCheckListComboBox::Sorted, true);
  s.box->Set(TVRXCheckListComboBox::Delimiter, QStringLiteral(";"));
  EXPECT_EQ(s.box->FieldText(), QStringLiteral("Coffee;Tea"));
  const auto dropped = s.box->MakeDropDown();
  const auto& list = dynamic_cast<TCheckListBox&>(*dropped);
  EXPECT_TRUE(list.Checked(0));
  EXPECT_FALSE(list.Checked(1));
  EXPECT_TRUE(list.Checked(2));
}

TEST(DriveField, ShowsALetterAndOffersTheKindsItIsTold) {
  OnForm<TVRXDriveComboBox> s;
  EXPECT_EQ(s.box->FieldText(), QStringLiteral("c: [system]"));
  s.box->Set(TVRXDriveComboBox::Drive, QStringLiteral("N:"));
  EXPECT_EQ(s.box->FieldText(), QStringLiteral("n: [network]"));
  s.box->Set(TVRXDriveComboBox::TextCase, TVRXTextCase::tcUpperCase);
  EXPECT_EQ(s.box->FieldText(), QStringLiteral("N: [NETWORK]"));
  s.box->Set(TVRXDriveComboBox::Drive, QStringLiteral("x"));
  EXPECT_EQ(s.box->FieldText(), QStringLiteral("X:"));
  s.box->Set(TVRXDriveComboBox::Drive, QStringLiteral("d"));
  s.box->Set(TVRXDriveComboBox::ShowVolumeNames, false);
  EXPECT_EQ(s.box->FieldText(), QStringLiteral("D:"));
  s.box->Set(TVRXDriveComboBox::DriveTypes, {TVRXDriveType::dtRemovable, TVRXDriveType::dtCDROM});
  s.box->Set(TVRXDriveComboBox::Drive, QString());
  EXPECT_EQ(s.box->FieldText(), QStringLiteral("A:"));
  const auto dropped = s.box->MakeDropDown();
  EXPECT_EQ(dynamic_cast<TCustomListBox&>(*dropped).Get(TCustomListBox::Items)->Lines().join(u' '),
            QStringLiteral("A: D:"));
  s.box->Set(TVRXDriveComboBox::DriveTypes, {});
  EXPECT_EQ(s.box->FieldText(), QString());
  DrawnDown(*s.box);
}

TEST(NumberField, WritesItsNumber) {
  for (const bool edit : {false, true}) {
    OnForm<TVRXCalculatorEdit> e;
    OnForm<TVRXCalculatorComboBox> c;
    TVRXCustomCalculatorBox& box = edit ? static_cast<TVRXCustomCalculatorBox&>(*e.box) : *c.box;
    EXPECT_EQ(box.FieldText(), QStringLiteral("0"));
    box.Set(TVRXCustomCalculatorBox::Value, 1234567.26);
    EXPECT_EQ(box.FieldText(), QStringLiteral("1234567.26"));
    box.Set(TVRXCustomCalculatorBox::Decimals, 1);
    box.Set(TVRXCustomCalculatorBox::ThousandSeparator, true);
    box.Set(TVRXCustomCalculatorBox::Prefix, QStringLiteral("+"));
    box.Set(TVRXCustomCalculatorBox::Suffix, QStringLiteral(" EUR"));
    EXPECT_EQ(box.FieldText(), QStringLiteral("+1,234,567.3 EUR"));
    const auto dropped = box.MakeDropDown();
    EXPECT_EQ(dynamic_cast<TVRXCalculator&>(*dropped).ValueOf(), 1234567.26);
    box.Set(TVRXCustomCalculatorBox::Decimals, INT32_MAX);
    EXPECT_LE(box.FieldText().size(), 40);
    box.Set(TVRXCustomCalculatorBox::Value, std::numeric_limits<double>::infinity());
    EXPECT_EQ(box.FieldText(), QStringLiteral("Error"));
  }
}

TEST(DayField, WritesItsDayAndTheCalendarHasIt) {
  const TClockOverride clock([] { return 0; });
  OnForm<TVRXCalendarComboBox> s;
  s.box->Set(TVRXCustomCalendarBox::DateFormat, QStringLiteral("yyyy-mm-dd"));
  EXPECT_EQ(s.box->FieldText(), QStringLiteral("2000-01-01"));
  s.box->SetDate({45000});
  EXPECT_EQ(s.box->FieldText(), QStringLiteral("2023-03-15"));
  s.box->Set(TVRXCustomCalendarBox::DateFormat, QStringLiteral("hh 'x"));
  EXPECT_EQ(s.box->FieldText(), QStringLiteral("hh 'x"));
  s.box->Set(TVRXCustomCalendarBox::DateFormat, QString());
  EXPECT_TRUE(s.box->FieldText().contains(QStringLiteral("15"))) << s.box->FieldText().toStdString();
  s.box->SetMaxDate({44990});
  const auto dropped = s.box->MakeDropDown();
  const auto& calendar = dynamic_cast<TVRXCalendar&>(*dropped);
  EXPECT_EQ(calendar.Day(), QDate(2023, 3, 5));
  EXPECT_FALSE(calendar.IsInRange({2023, 3, 6}));
  s.box->SetDate({});
  s.box->Set(TVRXCustomCalendarBox::AllowEmpty, true);
  EXPECT_EQ(s.box->FieldText(), QString());
}

TEST(DayField, TakesEndsThatAFileGivesInAnyOrder) {
  OnForm<TVRXCalendarEdit> s;
  s.box->BeginLoading();
  s.box->SetMinDate({45000});
  s.box->SetMaxDate({44000});
  s.box->Loaded();
  EXPECT_FALSE(DrawnDown(*s.box).isNull());
  OnForm<TVRXTrackBarComboBox> t;
  t.box->SetMin(-20);
  t.box->SetMax(-10);
  EXPECT_EQ(t.box->PositionOf(), -10);
  EXPECT_FALSE(DrawnDown(*t.box).isNull());
}

TEST(MomentField, ShowsDayTimeOrBothAndOpensACalendarForDays) {
  const TClockOverride clock([] { return 0; });
  OnForm<TVRXDateTimePicker> s;
  s.box->SetDate({45000});
  s.box->Set(TVRXDateTimePicker::Time, {0.75});
  const QString day = s.box->FieldText();
  s.box->Set(TVRXDateTimePicker::Kind, TDateTimeKind::dtkTime);
  EXPECT_EQ(s.box->FieldText(), QStringLiteral("18:00:00"));
  EXPECT_TRUE(s.box->DropDownSize().isEmpty());
  s.box->Set(TVRXDateTimePicker::Kind, TDateTimeKind::dtkDateTime);
  EXPECT_EQ(s.box->FieldText(), day + QStringLiteral(" 18:00:00"));
  EXPECT_FALSE(s.box->DropDownSize().isEmpty());
  s.box->Set(TVRXCustomCalendarBox::DateFormat, QStringLiteral("hh:nn dd/mm"));
  EXPECT_EQ(s.box->FieldText(), QStringLiteral("18:00 15/03"));
  for (const auto mode : {TDTDateMode::dmUpDown, TDTDateMode::dmNone}) {
    s.box->Set(TVRXDateTimePicker::DateMode, mode);
    EXPECT_TRUE(s.box->DropDownSize().isEmpty());
  }
}

TEST(TrackField, ShowsItsPositionAndKeepsItBetweenItsEnds) {
  OnForm<TVRXTrackBarComboBox> s;
  s.box->SetMax(200);
  s.box->SetPosition(300);
  s.box->Set(TVRXTrackBarComboBox::Suffix, QStringLiteral(" %"));
  EXPECT_EQ(s.box->FieldText(), QStringLiteral("200 %"));
  s.box->SetMin(-100);
  s.box->SetPosition(-100);
  const QColor done = ToQColor(clHighlight);
  EXPECT_EQ(CountPixels(Draw(*s.box, Qt::white), done), 0) << "at its beginning";
  s.box->SetPosition(50);
  const int half = CountPixels(Draw(*s.box, Qt::white), done);
  s.box->SetPosition(200);
  const int all = CountPixels(Draw(*s.box, Qt::white), done);
  EXPECT_GT(all, 200);
  EXPECT_NEAR(half, all / 2.0, 4);
  EXPECT_THROW(s.box->SetMax(-101), Exception);
}

TEST(FormField, DropsDownWhatItRefersToUnlessItStandsInThere) {
  OnForm<TVRXFormComboBox> s;
  EXPECT_TRUE(s.box->DropDownSize().isEmpty());
  TPanel panel(nullptr);
  panel.SetBounds(0, 0, 219, 97);
  panel.SetColor(clLime);
  s.box->Set(TVRXFormComboBox::DropDownControl, &panel);
  EXPECT_EQ(s.box->DropDownSize(), QSize(219, 97));
  EXPECT_GT(CountPixels(DrawnDown(*s.box), Qt::green), 219 * 60);
  TForm other(nullptr);
  other.SetClientWidth(301);
  other.SetClientHeight(123);
  s.box->Set(TVRXFormComboBox::DropDownControl, &other);
  EXPECT_EQ(s.box->DropDownSize(), QSize(301, 123));
  s.box->Set(TVRXFormComboBox::DropDownControl, &s.form);
  EXPECT_TRUE(s.box->DropDownSize().isEmpty());
  DrawnDown(*s.box);
}

TEST(LabeledField, IsTheFieldWithALabelBesideIt) {
  OnForm<TVRXLabeledListComboBox> s;
  s.box->Get(TVRXListComboBox::Items)->SetLines({QStringLiteral("One")});
  s.box->Set(TVRXListComboBox::ItemIndex, 0);
  s.box->EditLabel()->SetCaption(QStringLiteral("Choice"));
  EXPECT_EQ(s.box->FieldText(), QStringLiteral("One"));
  EXPECT_FALSE(s.box->DropDownSize().isEmpty());
  EXPECT_LT(s.box->PaintExtent().top(), 0);
  for (const TClass* cls :
       {&TVRXLabeledCalendarEdit::StaticClass(), &TVRXLabeledCalculatorEdit::StaticClass(),
        &TVRXLabeledDriveComboBox::StaticClass(), &TVRXLabeledTreeComboBox::StaticClass(),
        &TVRXLabeledTrackBarComboBox::StaticClass()}) {
    EXPECT_EQ(cls->ClassName(), QByteArray(cls->ClassParent()->ClassName()).replace("TVRX", "TVRXLabeled"));
    EXPECT_NE(cls->FindProp("EditLabel"), nullptr);
  }
}

TEST(EveryProperty, OfFieldsWithAListIsSeen) {
  const QStringList others =
      Without({QStringLiteral("Items."), QStringLiteral("Show"), QStringLiteral("Sorted"),
               QStringLiteral("ItemIndex"), QStringLiteral("GridLines"), QStringLiteral("Indent"),
               QStringLiteral("TextColumn"), QStringLiteral("FullPath"), QStringLiteral("Columns")});
  const std::initializer_list<visible::Row> rows = {{"TextHint=Hg", "Alignment=taCenter"},
                                                    {"", "ButtonWidth=30"},
                                                    {"", "Color=clYellow"},
                                                    {"", "Enabled=False"},
                                                    {"", "ReadOnly=True"},
                                                    {"", "TextHint=Hg"}};
  visible::ExpectAll<TVRXListComboBox>(rows, {151, 27}, others);
  visible::ExpectAll<TVRXTreeComboBox>(rows, {151, 27}, others);
  visible::ExpectAll<TVRXHeaderListComboBox>(rows, {151, 27}, others);
  visible::ExpectAll<TVRXCheckListComboBox>(rows, {151, 27}, others);
  visible::ExpectAll<TVRXDriveComboBox>({{"", "Alignment=taCenter"},
                                         {"", "ButtonWidth=30"},
                                         {"", "Color=clYellow"},
                                         {"", "Enabled=False"},
                                         {"", "ReadOnly=True"},
                                         {"", "Drive=r"},
                                         {"", "DriveTypes=[dtRAM]"},
                                         {"", "ShowIcons=False"},
                                         {"", "ShowVolumeNames=False"},
                                         {"", "TextCase=tcUpperCase"}},
                                        {151, 27}, FieldsKnow);
}

TEST(EveryProperty, OfFieldsForValuesIsSeen) {
  const std::initializer_list<visible::Row> numbers = {
      {"", "Alignment=taCenter"}, {"", "ButtonWidth=30"}, {"", "Color=clYellow"},
      {"", "Decimals=2"},         {"", "Enabled=False"},  {"", "Prefix=-"},
      {"", "ReadOnly=True"},      {"", "Suffix=m"},       {"Value=1234", "ThousandSeparator=True"},
      {"", "Value=1.5"}};
  visible::ExpectAll<TVRXCalculatorComboBox>(numbers, {151, 27}, Without({QStringLiteral("ShowMemory")}));
  visible::ExpectAll<TVRXCalculatorEdit>(numbers, {151, 27}, Without({QStringLiteral("ShowMemory")}));
  const std::initializer_list<visible::Row> days = {
      {"", "Alignment=taCenter"}, {"", "AllowEmpty=True"},           {"", "ButtonWidth=30"},
      {"", "Color=clYellow"},     {"", "DateFormat=yyyy"},           {"", "Enabled=False"},
      {"", "ReadOnly=True"},      {"AllowEmpty=True", "TextHint=Hg"}};
  visible::ExpectAll<TVRXCalendarComboBox>(days, {151, 27}, FieldsKnow);
  visible::ExpectAll<TVRXCalendarEdit>(days, {151, 27}, FieldsKnow);
  visible::ExpectAll<TVRXDateTimePicker>({{"", "Alignment=taCenter"},
                                          {"", "AllowEmpty=True"},
                                          {"", "ButtonWidth=30"},
                                          {"ShowCheckbox=True", "Checked=False"},
                                          {"", "Color=clYellow"},
                                          {"", "DateMode=dmUpDown"},
                                          {"", "DateMode=dmNone"},
                                          {"", "Enabled=False"},
                                          {"", "Kind=dtkDateTime"},
                                          {"", "Kind=dtkTime"},
                                          {"", "ReadOnly=True"},
                                          {"", "ShowCheckbox=True"}},
                                         {201, 27}, FieldsKnow);
  visible::ExpectAll<TVRXTrackBarComboBox>({{"", "Alignment=taCenter"},
                                            {"", "ButtonWidth=30"},
                                            {"", "Color=clYellow"},
                                            {"", "Enabled=False"},
                                            {"Position=5", "Max=20"},
                                            {"Position=5", "Min=4"},
                                            {"", "Position=3"},
                                            {"", "Prefix=-"},
                                            {"", "ReadOnly=True"},
                                            {"Position=5", "ShowBar=False"},
                                            {"", "Suffix=m"}},
                                           {151, 27},
                                           Without({QStringLiteral("Frequency"), QStringLiteral("Tick")}));
}

TEST(EveryProperty, ThatOnlyWhatDropsDownShowsIsSeenThere) {
  const TClockOverride clock([] { return 0; });
  OnForm<TVRXCalendarEdit> day;
  for (const char* change :
       {"CalColors.TitleBackColor=clRed", "FirstDayOfWeek=dowThursday", "ShowTodayCircle=False",
        "WeekNumbers=True", "ShowToday=False", "Font.Height=-17"})
    ExpectSeenBelow(*day.box, change);
  OnForm<TVRXCalculatorComboBox> number;
  ExpectSeenBelow(*number.box, "ShowMemory=False");
  OnForm<TVRXTrackBarComboBox> track;
  for (const char* change :
       {"Position=4", "Frequency=3", "TickMarks=tmTopLeft", "TickStyle=tsNone", "Max=44"})
    ExpectSeenBelow(*track.box, change);
  OnForm<TVRXTreeComboBox> tree;
  tree.box->Get(TVRXTreeComboBox::Items)->SetNodes(SomeNodes());
  for (const char* change : {"ItemIndex=2", "ShowButtons=False", "ShowLines=False", "Indent=30",
                             "ShowRoot=False", "Color=clYellow"})
    ExpectSeenBelow(*tree.box, change);
  OnForm<TVRXHeaderListComboBox> table;
  table.box->Get(TVRXHeaderListComboBox::Columns)->Add();
  table.box->Get(TVRXHeaderListComboBox::Items)->SetItems({{.Caption = QStringLiteral("Bolt")}});
  for (const char* change : {"ItemIndex=0", "GridLines=True", "ShowColumnHeaders=False", "Color=clYellow"})
    ExpectSeenBelow(*table.box, change);
}

// Otherwise a new one could not be told from its neighbours.
TEST(EmptyControls, AreCalledByTheirNamesWhileAFormIsDesigned) {
  const std::pair<const TClass*, const char*> controls[] = {
      {&TListBox::StaticClass(), ""},
      {&TVRXValueListBox::StaticClass(), ""},
      {&TVRXValueComboBox::StaticClass(), "TextHint"},
      {&TVRXHTMLListBox::StaticClass(), ""},
      {&TVRXHTMLExtListBox::StaticClass(), "EmptyText"},
      {&TVRXHTMLComboBox::StaticClass(), "TextHint"},
      {&TVRXListComboBox::StaticClass(), "TextHint"},
      {&TVRXTreeComboBox::StaticClass(), "TextHint"},
      {&TVRXCheckListComboBox::StaticClass(), "TextHint"},
      {&THeaderControl::StaticClass(), ""},
      {&TVRXHTMLHeaderControl::StaticClass(), ""}};
  for (const auto& [cls, words] : controls) {
    SCOPED_TRACE(cls->ClassName().constData());
    for (const bool designing : {true, false}) {
      TForm form(nullptr);
      auto& control = static_cast<TControl&>(*cls->NewComponent(&form));
      control.SetParent(&form);
      control.SetBounds(0, 0, 150, 60);
      control.SetDesigning(designing);
      const auto shows = [&](const QString& name) {
        const QImage before = Draw(control, Qt::magenta);
        control.SetName(name);
        return Draw(control, Qt::magenta) != before;
      };
      EXPECT_EQ(shows(QStringLiteral("Abc")), designing);
      EXPECT_EQ(shows(QStringLiteral("B_i")), designing);
      if (!*words) continue;
      SetProp(control, control.ClassType().GetProp(words), QStringLiteral("Nothing yet"));
      EXPECT_FALSE(shows(QStringLiteral("Cde")));
    }
  }
}

TEST(EmptyControls, TheChosenLineOfADisabledListCanBeRead) {
  TForm form(nullptr);
  TListBox list(&form);
  list.SetParent(&form);
  list.SetBounds(0, 0, 120, 60);
  list.Get(TListBox::Items)->SetLines({QStringLiteral("One"), QStringLiteral("Two")});
  list.Set(TListBox::ItemIndex, 1);
  list.SetEnabled(false);
  const QImage drawn = Draw(list, Qt::magenta);
  EXPECT_EQ(CountPixels(drawn, ToQColor(clHighlight)), 0);
  EXPECT_GT(CountPixels(drawn, ToQColor(clBtnShadow)), 300);
  EXPECT_GT(CountPixels(drawn, ToQColor(clHighlightText)), 0);
  list.Set(TListBox::ItemIndex, -1);
  // One ground up to the frame.
  const QImage empty = Draw(list, Qt::magenta);
  EXPECT_EQ(empty.pixelColor(2, 55), empty.pixelColor(60, 55));
}
