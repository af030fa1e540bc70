// What forms of both families say of standard components is known, with the values it begins with.
#include "VclTest.h"
#include "rtl/Class.h"
#include "rtl/PropAccess.h"
#include "rtl/PropText.h"
#include "vcl/Action.h"
#include "vcl/CheckBox.h"
#include "vcl/ComboBox.h"
#include "vcl/ControlBar.h"
#include "vcl/DateTimePicker.h"
#include "vcl/Dialogs.h"
#include "vcl/Form.h"
#include "vcl/GlyphButton.h"
#include "vcl/Grid.h"
#include "vcl/Image.h"
#include "vcl/Label.h"
#include "vcl/LabeledEdit.h"
#include "vcl/ListBox.h"
#include "vcl/ListView.h"
#include "vcl/Memo.h"
#include "vcl/Menu.h"
#include "vcl/PageControl.h"
#include "vcl/Shape.h"
#include "vcl/StandardActions.h"
#include "vcl/ToolBar.h"
#include "vcl/TreeView.h"
#include "vcl/UpDown.h"

namespace {
// The last of the names, each a part of the one before; null when one is not known.
const TPropInfo* Known(const TClass& cls, const QByteArray& path) {
  const TClass* at = &cls;
  const TPropInfo* found = nullptr;
  for (const QByteArray& name : path.split('.')) {
    found = at ? at->FindProp(name) : nullptr;
    if (!found) return nullptr;
    at = found->PropType->ClassType ? &found->PropType->ClassType() : nullptr;
  }
  return found;
}
void ExpectKnown(const TClass& cls, const char* names) {
  for (const QByteArray& path : QByteArray(names).split(' '))
    EXPECT_NE(Known(cls, path), nullptr) << cls.ClassName().constData() << '.' << path.constData();
}
QString Begins(const TClass& cls, const char* path) {
  const TPropInfo* prop = Known(cls, path);
  if (!prop || !prop->Default) return QStringLiteral("unknown");
  return OrdToText(*prop->PropType, *prop->Default);
}
const TClass& StandardAction(const char* name) {
  for (const auto& cls : StandardActionClasses())
    if (cls().ClassName() == name) return cls();
  throw std::runtime_error(name);
}
}  // namespace

TEST(KnownNames, OfAllControls) {
  for (const TClass* cls :
       {&TForm::StaticClass(), &TEdit::StaticClass(), &TMemo::StaticClass(), &TLabel::StaticClass(),
        &TSpeedButton::StaticClass(), &TToolButton::StaticClass(), &TImage::StaticClass(),
        &TPaintBox::StaticClass(), &TShape::StaticClass(), &TButton::StaticClass(), &TListBox::StaticClass(),
        &TTreeView::StaticClass(), &TStringGrid::StaticClass(), &TCheckBox::StaticClass()})
    ExpectKnown(*cls,
                "HelpContext HelpKeyword HelpType CustomHint ParentCustomHint OnGesture Touch.GestureManager "
                "Touch.InteractiveGestures Touch.InteractiveGestureOptions Touch.ParentTabletOptions "
                "Touch.TabletOptions OnEditingDone OnResize OnChangeBounds OnMouseWheelHorz OnShowHint");
}

TEST(KnownNames, OfSingleClasses) {
  ExpectKnown(TListGroup::StaticClass(), "State SubsetTitle TopDescription BottomDescription ExtendedImage");
  ExpectKnown(TDateTimePicker::StaticClass(), "MonthNames HideDateTimeParts Options AutoButtonSize");
  ExpectKnown(TLabeledEdit::StaticClass(),
              "EditLabel.ParentColor EditLabel.Color EditLabel.Layout EditLabel.Transparent "
              "EditLabel.WordWrap EditLabel.OnClick EditLabel.ShowAccelChar EditLabel.Visible");
  for (const TClass* cls : {&TListBox::StaticClass(), &TCheckListBox::StaticClass()})
    ExpectKnown(*cls,
                "OnDrawItem OnMeasureItem OnData OnDataFind OnDataObject AutoCompleteDelay OnSelectionChange "
                "ClickOnSelChange Options TopIndex");
  ExpectKnown(TPopupMenu::StaticClass(), "MenuAnimation ImagesWidth");
  ExpectKnown(TMenuItem::StaticClass(), "RightJustify ShowAlwaysCheckable GlyphShowMode");
  ExpectKnown(TCheckBox::StaticClass(), "Action");
  ExpectKnown(TRadioButton::StaticClass(), "Action");
  ExpectKnown(TSpeedButton::StaticClass(),
              "Images ImageIndex ImageName HotImageIndex HotImageName PressedImageName ShowCaption");
  ExpectKnown(TButton::StaticClass(), "HotImageName DisabledImageName PressedImageName SelectedImageName");
  ExpectKnown(TAction::StaticClass(), "DisableIfNoHandler");
  ExpectKnown(TImage::StaticClass(),
              "AntialiasingMode StretchInEnabled StretchOutEnabled PopupMenu OnPictureChanged");
  ExpectKnown(TPageControl::StaticClass(), "Options OnCloseTabClicked ImagesWidth");
  ExpectKnown(TStringGrid::StaticClass(), "MouseWheelOption RangeSelectMode Options2 OnBeforeSelection");
  ExpectKnown(TComboBox::StaticClass(), "AutoCompleteText AutoSelect ItemWidth AutoSize");
  ExpectKnown(TOpenDialog::StaticClass(), "Ctl3D Width Height");
  ExpectKnown(TShape::StaticClass(), "OnMouseEnter OnShapeClick PopupMenu");
}

TEST(KnownNames, OfActionsThatAsk) {
  const char* asked = "Dialog.HelpContext BeforeExecute AfterExecute OnAccept OnCancel";
  for (const char* name : {"TFileOpen", "TFileOpenWith", "TFileSaveAs", "TFilePrintSetup", "TFilePageSetup",
                           "TSearchFind", "TSearchReplace", "TColorSelect", "TFontEdit", "TPrintDlg"})
    ExpectKnown(StandardAction(name), asked);
  ExpectKnown(StandardAction("TFileOpen"), "Dialog.Filter Dialog.Options Dialog.OnCanClose UseDefaultApp");
  ExpectKnown(StandardAction("TFileOpenWith"), "FileName AfterOpen UseDefaultApp");
  ExpectKnown(StandardAction("TSearchFind"), "Dialog.FindText");
  ExpectKnown(StandardAction("TSearchReplace"), "Dialog.FindText Dialog.ReplaceText Dialog.OnReplace");
  ExpectKnown(StandardAction("TSearchFindNext"), "SearchFind");
  ExpectKnown(StandardAction("TColorSelect"), "Dialog.Color Dialog.CustomColors");
  ExpectKnown(StandardAction("TFontEdit"), "Dialog.Font.Name Dialog.Device Dialog.MaxFontSize");
  ExpectKnown(StandardAction("TPrintDlg"), "Dialog.Copies Dialog.PrintRange");
  ExpectKnown(StandardAction("TNextTab"), "TabControl LastTabCaption");
  EXPECT_EQ(Known(StandardAction("TEditCut"), "Dialog"), nullptr);
}

TEST(KnownNames, BeginWithTheValuesThatAFileLeavesOut) {
  EXPECT_EQ(Begins(TListGroup::StaticClass(), "State"), QStringLiteral("[lgsNormal]"));
  EXPECT_EQ(Begins(TControlBar::StaticClass(), "CornerEdge"), QStringLiteral("ceSmall"));
  EXPECT_EQ(Begins(TDateTimePicker::StaticClass(), "TrailingSeparator"), QStringLiteral("False"));
  EXPECT_EQ(Begins(TValueListEditor::StaticClass(), "FixedCols"), QStringLiteral("0"));
  EXPECT_EQ(Begins(TAction::StaticClass(), "HelpType"), QStringLiteral("htKeyword"));
  EXPECT_EQ(Begins(TPageSetupDialog::StaticClass(), "Options"), QStringLiteral("[psoDefaultMinMargins]"));
  EXPECT_EQ(TRadioButton(nullptr).BoundsRect(), QRect(0, 0, 113, 17));
  EXPECT_EQ(TUpDown(nullptr).BoundsRect(), QRect(0, 0, 17, 25));
  EXPECT_EQ(TControlBar(nullptr).Width(), 100);
  EXPECT_EQ(TypeInfoOf<TListGroupState>::Get().Elements.indexOf("lgsSubSetLinkFocused"), 8);
  EXPECT_EQ(TypeInfoOf<TCornerEdge>::Get().Elements.join(' '), "ceNone ceSmall ceMedium ceLarge");
}

TEST(KnownNames, EventsOfOneFamilyStayOutOfTheInspector) {
  for (const char* name : {"OnEditingDone", "OnUTF8KeyPress", "OnMouseWheelHorz"})
    EXPECT_EQ(TEdit::StaticClass().GetProp(name).Visibility, TPropVisibility::Streamed) << name;
  EXPECT_EQ(TForm::StaticClass().GetProp("OnResize").Visibility, TPropVisibility::Published);
  EXPECT_EQ(TEdit::StaticClass().GetProp("OnUTF8KeyPress").PropType->Name, "TUTF8KeyPressEvent");
}

TEST(Shape, CornersShowWhichShapeItIs) {
  using enum TShapeType;
  TShape shape(nullptr);
  shape.SetBounds(0, 0, 81, 51);
  std::vector<QImage> seen;
  for (const TShapeType type : {stRectangle, stSquaredDiamond, stDiamond, stTriangle, stTriangleLeft,
                                stTriangleRight, stTriangleDown, stStar, stStarDown}) {
    shape.Set(TShape::Shape, type);
    seen.push_back(Draw(shape));
    for (std::size_t i = 0; i + 1 < seen.size(); ++i) EXPECT_NE(seen[i], seen.back()) << i;
  }
  const QColor ground(1, 254, 3);
  const auto covers = [&](TShapeType type, QPoint at) {
    shape.Set(TShape::Shape, type);
    return Draw(shape).pixelColor(at) != ground;
  };
  EXPECT_TRUE(covers(stTriangle, {5, 49}) && !covers(stTriangle, {5, 2}));
  EXPECT_TRUE(covers(stTriangleDown, {5, 1}) && !covers(stTriangleDown, {5, 48}));
  EXPECT_TRUE(covers(stTriangleLeft, {79, 5}) && !covers(stTriangleLeft, {3, 5}));
  EXPECT_TRUE(covers(stTriangleRight, {1, 5}) && !covers(stTriangleRight, {77, 5}));
  EXPECT_TRUE(covers(stDiamond, {3, 25}) && !covers(stSquaredDiamond, {3, 25}));
}
