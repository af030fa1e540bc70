// The style editor: its views, what is dragged, typed and undone in it, its preview, and its messages.

#include <QTemporaryDir>

#include "dclstd/ColorComboBox.h"
#include "dclstd/SpinEdit.h"
#include "package/styles/StylePreview.h"
#include "package/styles/pVRXCstMain.h"
#include "rtl/ClassRegistry.h"
#include "tests/package/StyleDialogTest.h"
#include "vcl/Edit.h"
#include "vcl/PictureFile.h"

using namespace style_dialog;

namespace {
using StyleDialog = StyleDialogTest;

class TBaseThing : public TButton {
  VRX_CLASS(TBaseThing)
 public:
  using TButton::TButton;
};
const TClass& TBaseThing::StaticClass() {
  static const TClass cls(DescribeClass<TBaseThing>("TBaseThing", TButton::StaticClass()));
  return cls;
}

const QByteArray FormText =
    "  object Button1: TButton\n    Left = 8\n    Top = 8\n    Width = 75\n    Height = 25\n"
    "    Caption = 'One'\n    TabOrder = 0\n  end\n"
    "  object Styler: TVRXStyleManager\n    Left = 40\n    Top = 48\n  end\n";
}  // namespace

TEST_F(StyleDialog, LooksAsItIsSpecified) {
  const Dlg d(nullptr);
  EXPECT_EQ(S(d.windowTitle()), "Orlenvo-Kit Style Editor");
  EXPECT_GE(d.width(), 692);
  EXPECT_GE(d.height(), 532);
  EXPECT_LE(d.width(), 760);
  EXPECT_TRUE(d.isSizeGripEnabled());
  EXPECT_EQ(S(d.PVGrouping->title()), "Group properties by");
  EXPECT_EQ(S(d.byType->text() + u'|' + d.byComponent->text()), "Type|Component");
  EXPECT_TRUE(d.byComponent->isChecked());
  EXPECT_EQ(S(d.fltEdit->placeholderText()), "Set filter here");
  EXPECT_EQ(S(d.fltClear->text()), "Clear");
  EXPECT_FALSE(d.fltClear->isEnabled());
  EXPECT_EQ(S(d.PropTree->toolTip()), "Drag&drop properties to the style tree from here");
  EXPECT_EQ(S(d.Label1->text()), "Selected property is used  in:");
  EXPECT_EQ(S(d.Label2->text()), "Preview control with applied style");
  QStringList titles;
  for (int i = 0; i < 3; ++i) titles << d.PropView->headerItem()->text(i);
  for (int i = 0; i < 2; ++i)
    titles << d.Styles->model()->headerData(i, Qt::Horizontal, Qt::DisplayRole).toString();
  EXPECT_EQ(S(titles.join(u'|')), "Class|Property type|Container|Style/Property|Value");
  QStringList buttons;
  for (const QToolButton* button : {d.bttLoadFromFile, d.btnSaveToFile, d.btnAddStyle, d.btnDeleteStyle,
                                    d.btnAddComponent, d.btnCreateStyle})
    buttons << button->text() + u'=' + button->toolTip();
  EXPECT_EQ(
      S(buttons.join(u'|')),
      "Load from file=Load styles from file|Save to file=Save styles to file|Add style=Add style to style "
      "tree|Delete style/prop=Delete style or property from style tree|Add component=Add component to "
      "property tree|Create style=Add component to property tree");
  QStringList boxes;
  for (const QCheckBox* box :
       {d.cbStateStyles, d.cbConfirmDeletion, d.cbCtlXp, d.cbAlign, d.cbUseBgr, d.cbCascade})
    boxes << box->text() + u'=' + box->toolTip() + u'=' + QString::number(box->isChecked());
  EXPECT_EQ(
      S(boxes.join(u'|')),
      "Add state styles automatically==1|Confirm style/property deletion==1|Use XP themes=Override CtlXP "
      "property value (VRX controls only)=0|Align to panel=Align preview control to the panel=0|Use "
      "background=Make preview panel backgrounded=1|Cascade styles=Apply all ancestor styles=1");
}

TEST_F(StyleDialog, FromTheVerbToTheSavedForm) {
  const auto session = FormWith(FormText, registry);
  const QByteArray before = session->Bytes();
  const auto run = [&](const std::function<void(Dlg&)>& act) {
    modal::NextOf<Dlg>([&](Dlg& d) { act(d); });
    TComponent& styler = *session->GetComponent(Q("Styler"));
    const auto editor = registry.GetComponentEditor(&styler, session.get());
    EXPECT_EQ(S(editor->GetVerb(0)), "Style Designer...");
    session->Run(Q("verb"), {&styler}, [&] { editor->ExecuteVerb(0); });
  };
  run([](Dlg& d) { Click(d.OkBtn); });
  EXPECT_EQ(session->Bytes(), before) << "an untouched OK";
  EXPECT_FALSE(session->CanUndo());
  const auto edit = [](Dlg& d) {
    EXPECT_NE(Property(d, "TButton", "Width"), nullptr) << "the form's classes are there";
    DragProperty(d, Property(d, "TButton"), &d.Tree().Root());
    DragProperty(d, Property(d, "TButton", "Width"), Find(d, "TButton"));
    Select(d, "TButton", "Width");
    Press(d, Qt::Key_F2);
    Type(d, "123");
    Press(d, Qt::Key_Return);
  };
  run([&](Dlg& d) {
    edit(d);
    Click(d.CancelBtn);
  });
  EXPECT_EQ(session->Bytes(), before) << "cancelled";
  EXPECT_FALSE(session->CanUndo());
  run([&](Dlg& d) {
    edit(d);
    Click(d.OkBtn);
  });
  std::int64_t width = 0;
  const auto styler = [&]() -> TVRXStyleManager& {
    return dynamic_cast<TVRXStyleManager&>(*session->GetComponent(Q("Styler")));
  };
  EXPECT_TRUE(styler().ReadPropValue(Q("TButton"), Q("Width"), width, Q("Integer")));
  EXPECT_EQ(width, 123);
  EXPECT_TRUE(session->Bytes().contains("123"));
  session->Undo();
  EXPECT_EQ(session->Bytes(), before);
  EXPECT_FALSE(session->CanUndo());
}

// Every refusal and question, from where a person meets it.
TEST_F(StyleDialog, SaysEveryMessage) {
  const auto d = Shown();
  DragStyle(*d, &d->Tree().Root(), Find(*d, "TButton"));
  EXPECT_EQ(answers.Said(), "Cannot move default style!");
  Select(*d, "");
  Click(d->btnDeleteStyle);
  EXPECT_EQ(answers.Said(), "Cannot delete default style!");
  d->Styles->selectionModel()->clear();
  Click(d->btnDeleteStyle);
  EXPECT_EQ(answers.Said(), "Please select style or property first!");
  Select(*d, "TButton", "Width");
  Click(d->btnDeleteStyle);
  EXPECT_EQ(answers.Said(), "Delete property 'Width'?");
  EXPECT_NE(Find(*d, "TButton", "Width"), nullptr) << "no";
  Select(*d, "TButton|.Big");
  Press(*d, Qt::Key_Delete);
  EXPECT_EQ(answers.Said(), "Delete style '.Big'?");
  AddStyle(*d, "TButton", ".Big");
  EXPECT_EQ(answers.Said(), "Substyle '.Big' already exists in destination style!");
  AddStyle(*d, "", "a|b");
  EXPECT_EQ(answers.Said(), "Invalid style name!");
  Rename(*d, ".Body", "");
  EXPECT_EQ(answers.Said(), "Invalid style name!");
  EXPECT_NE(Find(*d, ".Body"), nullptr) << "keeps its name";
  DragProperty(*d, Property(*d, "TButton", "Width"), Find(*d, "TButton"));
  EXPECT_EQ(answers.Said(), "Property 'Width' already included in destination style!");
  DragProperty(*d, Property(*d, "TVRXLEDLabel", "Transparent"), Find(*d, "TButton"));
  EXPECT_EQ(answers.Said(), "Component 'TButton' doesn't have property 'Transparent'!");
  EXPECT_EQ(Find(*d, "TButton", "Transparent"), nullptr);
  answers.yes = true;
  DragProperty(*d, Property(*d, "TVRXLEDLabel", "Transparent"), Find(*d, "TButton"));
  EXPECT_EQ(answers.Said(), "Component 'TButton' doesn't have property 'Transparent'!");
  ASSERT_NE(Find(*d, "TButton", "Transparent"), nullptr) << "yes";
  DragStyle(*d, Find(*d, "TButton", "Transparent"), Find(*d, ".Body"));
  EXPECT_EQ(answers.Said(), "Cannot move property with undefined value!");
  DragStyle(*d, Find(*d, "TButton"), Find(*d, "TButton|.Big"));
  EXPECT_EQ(answers.Said(), "Cannot move style into its own substyle!");
  AddStyle(*d, "TButton|.Big", ".Big");
  EXPECT_EQ(answers.Said(), "Style cannot have ancestor style with the same name!");
  Select(*d, ".Body");
  d->mnuAddStates->trigger();
  const QString state = d->Tree().Root().Child(Q(".Body"), false)->Children.front()->Name;
  AddStyle(*d, S(Q(".Body|") + state).c_str(), ".Inner");
  EXPECT_EQ(answers.Said(), "State style cannot have substyles!");
  AddStyle(*d, "TButton", "TCheckBox");
  EXPECT_EQ(answers.Said(),
            "Style 'TCheckBox' cannot be inherited from style 'TButton', because class 'TCheckBox' not "
            "inherited from "
            "class 'TButton'!");
  d->byType->click();
  QTreeWidgetItem* type = Property(*d, "Integer");
  DragProperty(*d, type, &d->Tree().Root());
  EXPECT_EQ(answers.Said(), "Cannot create default style for non-TComponent descendants!");
  Click(d->btnCreateStyle);
  EXPECT_EQ(answers.Said(), "Please select component class first!");
  Enter("TNowhere");
  Click(d->btnAddComponent);
  EXPECT_EQ(answers.Said(), "Cannot find component class 'TNowhere'!");
}

TEST_F(StyleDialog, EveryKindHasItsEditor) {
  static const TTypeInfo types[] = {TTypeInfo{TTypeKind::tkInteger, "TColor"},
                                    OrdinalType("Integer", INT32_MIN, INT32_MAX),
                                    TTypeInfo{TTypeKind::tkChar, "Char"},
                                    StringType("string"),
                                    EnumType("TKind", {"kA", "kB"}),
                                    FloatTypeInfo("TDateTime", TFloatType::ftDateTime),
                                    FloatTypeInfo("Double", TFloatType::ftDouble)};
  static const TTypeInfo set = SetType("TKinds", types[4]);
  const QMap<QString, const char*> widgets{{Q("colour combo box"), "ColorComboBox"},
                                           {Q("spin edit"), "SpinEdit"},
                                           {Q("edit box"), "QLineEdit"},
                                           {Q("list combo box"), "QComboBox"},
                                           {Q("calendar combo box"), "QDateTimeEdit"},
                                           {Q("float spin edit"), "QDoubleSpinBox"},
                                           {Q("check-list combo box"), "QComboBox"}};
  const QMap<QString, const TTypeInfo*> kinds{{Q("integer"), &types[1]},
                                              {Q("char"), &types[2]},
                                              {Q("enumeration"), &types[4]},
                                              {Q("float"), &types[6]},
                                              {Q("set"), &set}};
  int rows = 0;
  for (const QJsonValue& row : Vectors("style_values.json")[Q("editors")].toArray()) {
    const QString kind = row[Q("kind")].toString(), typeName = row[Q("type")].toString(),
                  control = row[Q("control")].toString();
    SCOPED_TRACE(S(kind + u' ' + typeName));
    const TTypeInfo* type = typeName == Q("TColor")      ? &types[0]
                            : typeName == Q("TDateTime") ? &types[5]
                                                         : kinds.value(kind, &types[3]);
    const TTypeKind code = kind == Q("class") ? TTypeKind::tkClass : type->Kind;
    const TVRXStyleEditor editor = VRXStyleEditorOf(code, typeName == Q("*") ? Q("Other") : typeName);
    QWidget parent;
    QWidget* widget = VRXNewValueEditor(editor, type, nullptr, &parent);
    ++rows;
    if (!widgets.contains(control)) {
      EXPECT_EQ(widget, nullptr);
      EXPECT_EQ(editor, control.isEmpty() ? TVRXStyleEditor::None : TVRXStyleEditor::PictureChooser);
      continue;
    }
    ASSERT_NE(widget, nullptr);
    EXPECT_TRUE(widget->inherits(widgets[control])) << widget->metaObject()->className();
    const QString stored = row[Q("stored")].toString();
    if (auto* combo = qobject_cast<QComboBox*>(widget); combo && stored == Q("the ordinal"))
      combo->setCurrentIndex(1);
    VRXTouch(*widget);
    const auto value = VRXEditedValue(*widget);
    ASSERT_TRUE(value.has_value());
    EXPECT_EQ(std::holds_alternative<QString>(*value),
              stored == Q("the text") || stored == Q("the set text"));
    EXPECT_EQ(std::holds_alternative<long double>(*value), stored.contains(Q("float")));
  }
  EXPECT_EQ(rows, 13);
}

TEST_F(StyleDialog, ShowsValuesInTheSecondColumn) {
  static std::deque<TTypeInfo> types;
  const QMap<QString, TTypeKind> kinds{
      {Q("integer"), TTypeKind::tkInteger}, {Q("set"), TTypeKind::tkSet}, {Q("char"), TTypeKind::tkChar}};
  int number = 0;
  QStringList wanted;
  for (const QJsonValue& row : Vectors("style_values.json")[Q("display")].toArray()) {
    const QString name = Q("P%1").arg(number++, 3, 10, QChar(u'0')), typeName = row[Q("type")].toString();
    const QJsonValue stored = row[Q("stored")];
    TTypeInfo& type = types.emplace_back();
    type.Name = typeName.toLatin1();
    type.Kind = kinds.value(row[Q("kind")].toString(), TTypeKind::tkString);
    Item(S(name).c_str(), type);
    if (stored.isNull()) continue;
    if (stored.isDouble())
      manager.WritePropValue(Q("TButton"), name, static_cast<std::int64_t>(stored.toDouble()), typeName);
    else
      manager.WritePropValue(Q("TButton"), name, stored.toString(), typeName);
    wanted << name + u'=' + row[Q("text")].toString();
  }
  EXPECT_GE(wanted.size(), 15);
  const auto d = Shown(nullptr);
  for (const QString& line : wanted) {
    const Node* node = Find(*d, "TButton", S(line.section(u'=', 0, 0)).c_str());
    ASSERT_NE(node, nullptr) << S(line);
    EXPECT_EQ(S(static_cast<StyleModel*>(d->Styles->model())->IndexOf(node, 1).data().toString()),
              S(line.section(u'=', 1)));
  }
}

TEST_F(StyleDialog, AColourHasASwatch) {
  manager.WritePropValue(Q("TButton"), Q("Font.Color"), std::int64_t{0x0000FF}, Q("TColor"));
  const auto d = Shown();
  auto* model = static_cast<StyleModel*>(d->Styles->model());
  const QModelIndex value = model->IndexOf(Find(*d, "TButton", "Font.Color"), 1);
  EXPECT_EQ(S(value.data().toString()), "clRed");
  const QImage swatch = value.data(Qt::DecorationRole).value<QIcon>().pixmap(28, 14).toImage();
  EXPECT_EQ(swatch.pixelColor(14, 7), QColor(Qt::red));
}

TEST_F(StyleDialog, ValuesAreTypedWhereTheyStand) {
  static const TTypeInfo flavour = EnumType("TFlavour9", {"flSweet", "flSour", "flBitter"});
  static const TTypeInfo real = FloatTypeInfo("Double", TFloatType::ftDouble);
  static const TTypeInfo set = SetType("TFlavours9", flavour);
  static const TTypeInfo moment = FloatTypeInfo("TDateTime", TFloatType::ftDateTime);
  for (const TTypeInfo* type : {&flavour, &real, &set, &moment}) Item(type->Name.constData(), *type);
  manager.WritePropValue(Q("TButton"), Q("TFlavour9"), std::int64_t{9}, Q("TFlavour9"));
  manager.WritePropValue(Q("TButton"), Q("Double"), 0.1L, Q("Double"));
  manager.WritePropValue(Q("TButton"), Q("TFlavours9"), Q("[flSour]"), Q("TFlavours9"));
  manager.WritePropValue(Q("TButton"), Q("TDateTime"), 45000.25L, Q("TDateTime"));
  manager.WritePropValue(Q("TButton"), Q("Font.Color"), std::int64_t{0xFF}, Q("TColor"));
  Fill(manager);
  const auto d = Shown();
  const auto value = [&](const char* name) { return *d->Tree().Value(*Find(*d, "TButton", name)); };
  const auto open = [&](const char* name) {
    Select(*d, "TButton", name);
    Press(*d, Qt::Key_F2);
    QWidget* editor = d->Styles->Delegate().Editor();
    EXPECT_NE(editor, nullptr) << name;
    EXPECT_TRUE(!editor || d->GetValueRect(*Find(*d, "TButton", name)).intersects(editor->geometry()))
        << name;
    return editor;
  };
  const TVRXStyles before = d->Manager().Styles();
  // Looked at only.
  for (const char* name : {"Width", "TFlavour9", "Double", "TFlavours9", "TDateTime", "Font.Color"}) {
    open(name);
    Press(*d, Qt::Key_Return);
    EXPECT_TRUE(d->Manager().Styles() == before) << name;
  }
  open("Width");
  Type(*d, "-5");
  Press(*d, Qt::Key_Return);
  EXPECT_EQ(value("Width"), TVRXStyleValue(std::int64_t{-5}));
  EXPECT_TRUE(d->isVisible()) << "Return is the editor's";
  open("Width");
  Type(*d, "6");
  Press(*d, Qt::Key_Escape);
  EXPECT_EQ(value("Width"), TVRXStyleValue(std::int64_t{-5})) << "Escape";
  open("Width");
  Type(*d, "7");
  d->fltEdit->setFocus();
  EXPECT_EQ(value("Width"), TVRXStyleValue(std::int64_t{7})) << "the focus went elsewhere";
  auto* combo = qobject_cast<QComboBox*>(open("TFlavour9"));
  EXPECT_EQ(S(fields::Texts(*combo).join(u'|')), "flSweet|flSour|flBitter");
  combo->setCurrentIndex(2);
  emit combo->activated(2);
  EXPECT_EQ(value("TFlavour9"), TVRXStyleValue(std::int64_t{2})) << "at once";
  Press(*d, Qt::Key_Return);
  open("Double");
  Type(*d, QLocale().toString(2.75).toLatin1().constData());
  Press(*d, Qt::Key_Return);
  EXPECT_EQ(value("Double"), TVRXStyleValue(2.75L));
  combo = qobject_cast<QComboBox*>(open("TFlavours9"));
  combo->model()->setData(combo->model()->index(0, 0), Qt::Checked, Qt::CheckStateRole);
  EXPECT_EQ(S(combo->currentText()), "[flSweet,flSour]");
  Press(*d, Qt::Key_Return);
  EXPECT_EQ(value("TFlavours9"), TVRXStyleValue(Q("[flSweet,flSour]")));
  auto* date = qobject_cast<QDateTimeEdit*>(open("TDateTime"));
  EXPECT_EQ(date->dateTime().time(), QTime(6, 0));
  date->setTime(QTime(12, 0));
  Press(*d, Qt::Key_Return);
  EXPECT_EQ(value("TDateTime"), TVRXStyleValue(45000.5L));
  auto* color = qobject_cast<ColorComboBox*>(open("Font.Color"));
  EXPECT_EQ(color->Selected(), clRed);
  color->SetSelected(clNavy);
  emit color->Change();
  EXPECT_EQ(value("Font.Color"), TVRXStyleValue(static_cast<std::int64_t>(clNavy)));
  Press(*d, Qt::Key_Return);
  Select(*d, "TButton|.Big", "Caption");
  QTest::mouseClick(d->Styles->viewport(), Qt::LeftButton, {},
                    d->GetValueRect(*Find(*d, "TButton|.Big", "Caption")).center());
  Type(*d, "typed");
  d->accept();  // with the focus still in the editor
  TVRXStyleManager taken(nullptr);
  d->GetData(taken);
  QString text;
  EXPECT_TRUE(taken.ReadPropValue(Q("TButton|.Big"), Q("Caption"), text, Q("TCaption")));
  EXPECT_EQ(S(text), "typed") << "an open editor is saved first";
}

TEST_F(StyleDialog, APictureIsChosenAtOnce) {
  static const TTypeInfo bitmap{.Kind = TTypeKind::tkClass, .Name = "TBitmap"};
  Item("Glyph9", bitmap);
  const auto d = Shown();
  DragProperty(*d, Property(*d, "TButton", "Glyph9"), Find(*d, "TButton"));
  QTemporaryDir folder;
  QImage image(5, 3, QImage::Format_RGB32);
  image.fill(Qt::green);
  image.save(folder.filePath(Q("a.png")));
  Select(*d, "TButton", "Glyph9");
  answers.file = folder.filePath(Q("a.png"));
  Press(*d, Qt::Key_F2);
  const TVRXStyleValue* value = d->Tree().Value(*Find(*d, "TButton", "Glyph9"));
  ASSERT_TRUE(value && std::holds_alternative<QByteArray>(*value));
  EXPECT_EQ(ImageFromBytes(std::get<QByteArray>(*value)).size(), QSize(5, 3));
  EXPECT_EQ(answers.Said(), "");
  answers.file.clear();
  Press(*d, Qt::Key_F2);
  EXPECT_EQ(answers.Said(), "No bitmap was chosen. Clear current bitmap?");
  EXPECT_NE(d->Tree().Value(*Find(*d, "TButton", "Glyph9")), nullptr);
  answers.yes = true;
  Press(*d, Qt::Key_F2);
  EXPECT_EQ(d->Tree().Value(*Find(*d, "TButton", "Glyph9")), nullptr);
}

TEST_F(StyleDialog, DragsToStyles) {
  const auto d = Shown();
  DragProperty(*d, Property(*d, "TButton", "Enabled"), Find(*d, "TButton", "Width"));
  EXPECT_NE(Find(*d, "TButton", "Enabled"), nullptr) << "onto a property is into its style";
  DragProperty(*d, Property(*d, "TButton", "Font", "Color"), Find(*d, ".Body"));
  EXPECT_NE(Find(*d, ".Body", "Font.Color"), nullptr);
  DragProperty(*d, Property(*d, "TButton", "Font"), Find(*d, ".Body"));
  EXPECT_NE(Find(*d, ".Body", "Font.Name"), nullptr);
  EXPECT_EQ(Find(*d, ".Body", "Font"), nullptr);
  DragStyle(*d, Find(*d, "TButton", "Width"), Find(*d, "TButton|.Big"));
  EXPECT_EQ(Find(*d, "TButton", "Width"), nullptr);
  std::int64_t width = 0;
  EXPECT_TRUE(d->Manager().ReadPropValue(Q("TButton|.Big"), Q("Width"), width, Q("Integer")));
  EXPECT_EQ(width, 77);
  DragStyle(*d, Find(*d, "TButton|.Big", "Width"), Find(*d, "TButton"), Qt::ControlModifier);
  EXPECT_NE(Find(*d, "TButton|.Big", "Width"), nullptr) << "Ctrl copies";
  EXPECT_NE(Find(*d, "TButton", "Width"), nullptr);
  DragStyle(*d, Find(*d, ".Body"), Find(*d, "TButton"), {}, true);
  EXPECT_NE(Find(*d, ".Body"), nullptr) << "Escape";
  DragStyle(*d, Find(*d, ".Body"), Find(*d, "TButton"));
  EXPECT_EQ(Find(*d, ".Body"), nullptr);
  EXPECT_NE(Find(*d, "TButton|.Body", "Width"), nullptr);
  DragStyle(*d, Find(*d, "TButton|.Body"), nullptr);
  EXPECT_NE(Find(*d, ".Body"), nullptr) << "below all rows is the top";
  DragProperty(*d, Property(*d, "TCheckBox"), nullptr);
  EXPECT_EQ(Find(*d, "TCheckBox")->Children.size(), 7u) << "with its states";
  d->cbStateStyles->setChecked(false);
  DragProperty(*d, Property(*d, "TVRXLEDLabel"), nullptr);
  EXPECT_EQ(Find(*d, "TVRXLEDLabel")->Children.size(), 0u);
  EXPECT_EQ(answers.Said(), "");
}

TEST_F(StyleDialog, KeysDoWhatTheMouseDoes) {
  const auto d = Shown();
  Select(*d, ".Body", "Width");
  d->mnuCopy->trigger();
  Select(*d, "TButton|.Big");
  d->mnuPaste->trigger();
  EXPECT_NE(Find(*d, "TButton|.Big", "Width"), nullptr);
  EXPECT_NE(Find(*d, ".Body", "Width"), nullptr);
  Select(*d, ".Body");
  QTest::keySequence(d->Styles, QKeySequence::Cut);
  Select(*d, "TButton");
  QTest::keySequence(d->Styles, QKeySequence::Paste);
  EXPECT_NE(Find(*d, "TButton|.Body"), nullptr);
  QTest::keySequence(d->Styles, QKeySequence::Undo);
  EXPECT_NE(Find(*d, ".Body"), nullptr);
  Select(*d, ".Body");
  Property(*d, "TButton", "Enabled");
  d->PropTree->setFocus();
  QTest::keyClick(d->PropTree, Qt::Key_Insert);
  EXPECT_NE(Find(*d, ".Body", "Enabled"), nullptr);
  answers.yes = true;
  Select(*d, ".Body", "Enabled");
  Press(*d, Qt::Key_Delete);
  EXPECT_EQ(Find(*d, ".Body", "Enabled"), nullptr);
  EXPECT_EQ(d->Styles->Selected(), Find(*d, ".Body", "Width")) << "the next of the kind";
  Rename(*d, ".Body", ".Foot");
  EXPECT_EQ(Find(*d, ".Body"), nullptr);
  EXPECT_NE(Find(*d, ".Foot", "Width"), nullptr);
  EXPECT_EQ(d->Styles->Selected(), Find(*d, ".Foot"));
  Rename(*d, ".Foot", "TCheckBox");
  EXPECT_EQ(Find(*d, "TCheckBox")->Kind, TVRXStyleKind::Class);
}

TEST_F(StyleDialog, UndoGoesStepByStepToWhatWasShown) {
  const auto d = Shown();
  QStringList seen{Seen(*d)};
  AddStyle(*d, "", ".One");
  seen << Seen(*d);
  DragProperty(*d, Property(*d, "TButton", "Enabled"), Find(*d, ".One"));
  seen << Seen(*d);
  Rename(*d, ".One", ".Two");
  seen << Seen(*d);
  DragStyle(*d, Find(*d, ".Two"), Find(*d, "TButton"));
  seen << Seen(*d);
  for (qsizetype i = seen.size() - 1; i > 0; --i) {
    EXPECT_EQ(S(Seen(*d)), S(seen[i]));
    d->Undo();
  }
  EXPECT_EQ(S(Seen(*d)), S(seen[0]));
  d->Undo();
  for (const QString& wanted : seen.mid(1)) {
    d->Redo();
    EXPECT_EQ(S(Seen(*d)), S(wanted)) << "properties without a value, too";
  }
  d->Redo();
  EXPECT_EQ(S(Seen(*d)), S(seen.last()));
  d->Undo();
  AddStyle(*d, "", ".Other");
  const QString other = Seen(*d);
  d->Redo();
  EXPECT_EQ(S(Seen(*d)), S(other)) << "after another step there is nothing to be done again";
}

TEST_F(StyleDialog, ADoubleClickOpensAStyleAndEditsAValue) {
  const auto d = Shown();
  const auto twice = [&](Node* node) {
    const QModelIndex index = IndexOf(*d, node);
    d->Styles->scrollTo(index);
    const QPoint at = d->Styles->visualRect(index).center();
    QTest::mouseClick(d->Styles->viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(d->Styles->viewport(), Qt::LeftButton, {}, at);
  };
  ASSERT_TRUE(d->Styles->isExpanded(IndexOf(*d, Find(*d, "TButton"))));
  twice(Find(*d, "TButton"));
  EXPECT_FALSE(d->Styles->isExpanded(IndexOf(*d, Find(*d, "TButton"))));
  EXPECT_EQ(d->Styles->Delegate().Editor(), nullptr);
  twice(Find(*d, ".Body", "Width"));
  EXPECT_NE(qobject_cast<SpinEdit*>(d->Styles->Delegate().Editor()), nullptr);
}

TEST_F(StyleDialog, TheFilterAndTheGroupingSayWhatIsOffered) {
  const auto d = Shown();
  QTest::keyClicks(d->fltEdit, Q("*olor"));
  EXPECT_TRUE(d->fltClear->isEnabled());
  const auto names = [](const QTreeWidgetItem* item) {
    QStringList all;
    for (int i = 0; i < item->childCount(); ++i) all << item->child(i)->text(0);
    return all.join(u'|');
  };
  EXPECT_EQ(S(names(Property(*d, "TVRXLEDLabel"))), "Color|ParentColor");
  Click(d->fltClear);
  EXPECT_FALSE(d->fltClear->isEnabled());
  EXPECT_TRUE(names(Property(*d, "TVRXLEDLabel")).contains(Q("AutoSize")));
  QTreeWidgetItem* font = Property(*d, "TButton", "Font");
  EXPECT_EQ(S(names(font)), "Dummy");
  font->setExpanded(true);
  EXPECT_TRUE(names(font).contains(Q("Color|")));
  EXPECT_FALSE(names(font).contains(Q("Dummy")));
  Property(*d, "TButton", "Font", "Color");
  QStringList rows;
  for (int i = 0; i < d->PropView->topLevelItemCount(); ++i) {
    const QTreeWidgetItem* row = d->PropView->topLevelItem(i);
    rows << row->text(0) + u'.' + row->text(1) + u'.' + row->text(2);
  }
  EXPECT_TRUE(rows.contains(Q("TFont.TColor.Font"))) << S(rows.join(u'|'));
  EXPECT_TRUE(rows.contains(Q("TVRXLEDLabel.TColor.")));
  d->byType->click();
  EXPECT_NE(Property(*d, "Boolean", "Enabled"), nullptr);
  DragProperty(*d, Property(*d, "TFontName", "Name"), Find(*d, ".Body"));
  EXPECT_NE(Find(*d, ".Body", "Font.Name"), nullptr);
}

TEST_F(StyleDialog, AComponentsClassIsAddedByName) {
  const auto d = Shown();
  d->byType->click();
  modal::NextOf<StyleInputDialog>([](StyleInputDialog& input) {
    EXPECT_EQ(S(input.findChild<QLabel*>(Q("prompt"))->text()), "Please enter component class name:");
    input.input->setText(Q("TEdit"));
    Click(input.OkBtn);
  });
  Click(d->btnAddComponent);
  EXPECT_TRUE(d->byComponent->isChecked());
  EXPECT_NE(Property(*d, "TEdit", "ReadOnly"), nullptr);
}

TEST_F(StyleDialog, StylesAreMadeOfComponents) {
  TForm form(nullptr);
  for (const char* name : {"Ok", "Away"}) {
    auto* button = new TButton(&form);
    button->SetName(Q(name));
    button->SetWidth(name[0] == 'O' ? 90 : 75);
    button->SetEnabled(false);
  }
  (new TEdit(&form))->SetName(Q("Other"));
  auto* own = new TVRXStyleManager(&form);
  Dlg d(nullptr);
  d.SetData(*own);
  fields::ShowActive(d);
  Property(d, "TButton", "Enabled");
  Click(d.btnCreateStyle);
  EXPECT_EQ(answers.Said(), "Please select component class first!");
  Property(d, "TButton");
  modal::NextOf<StyleComponentsDialog>([](StyleComponentsDialog& choose) {
    EXPECT_EQ(choose.list->count(), 2);
    choose.list->item(0)->setCheckState(Qt::Checked);
    Click(choose.OkBtn);
  });
  Click(d.btnCreateStyle);
  ASSERT_NE(Find(d, "TButton|.Ok", "Enabled"), nullptr);
  EXPECT_EQ(Find(d, "TButton|.Away"), nullptr);
  d.Undo();
  EXPECT_EQ(S(Seen(d)), "(Default)");
}

TEST_F(StyleDialog, PreviewsARealControlWithTheStyles) {
  const auto d = Shown();
  const auto width = [&] { return d->PreviewPanel->Control()->Width(); };
  Select(*d, "TButton|.Big", "Caption");
  ASSERT_NE(d->PreviewPanel->Control(), nullptr);
  EXPECT_EQ(S(d->Label2->text()), "Preview control: TButton styled with '.Big'");
  EXPECT_EQ(d->PreviewPanel->Control()->ClassType().ClassName(), "TButton");
  EXPECT_EQ(width(), 77) << "of the style above it";
  d->cbCascade->click();
  EXPECT_NE(width(), 77);
  d->cbCascade->click();
  d->cbAlign->click();
  EXPECT_EQ(d->PreviewPanel->View()->size(), d->PreviewPanel->contentsRect().size());
  EXPECT_EQ(width(), d->PreviewPanel->contentsRect().width());
  d->cbAlign->click();
  EXPECT_EQ(width(), 77);
  Select(*d, "TButton", "Width");
  Press(*d, Qt::Key_F2);
  Type(*d, "55");
  Press(*d, Qt::Key_Return);
  EXPECT_EQ(width(), 55) << "live";
  const QImage with = d->PreviewPanel->grab().toImage();
  d->cbUseBgr->click();
  EXPECT_NE(d->PreviewPanel->grab().toImage(), with);
  Select(*d, ".Body");
  EXPECT_EQ(d->PreviewPanel->Control(), nullptr);
  EXPECT_EQ(S(d->Label2->text()), "Preview control with applied style");
  d->cbStateStyles->setChecked(false);
  AddStyle(*d, "", "TCustomEdit");
  EXPECT_EQ(d->PreviewPanel->Control(), nullptr) << "only there to be inherited from";
  RegisterClass(TBaseThing::StaticClass(), this);
  d->PreviewPanel->ShowControl(Q("TBaseThing"));
  EXPECT_EQ(d->PreviewPanel->Control(), nullptr);
  UnRegisterClasses(this);
}

TEST_F(StyleDialog, StylesGoToAFileAndBack) {
  QTemporaryDir folder;
  const auto d = Shown();
  const QString before = Seen(*d);
  answers.file = folder.filePath(Q("mine"));
  Click(d->btnSaveToFile);
  answers.file += Q(".vrxstyles");
  ASSERT_TRUE(QFile::exists(answers.file));
  answers.yes = true;
  Select(*d, "TButton");
  Click(d->btnDeleteStyle);
  answers.Said();
  const QString without = Seen(*d);
  Click(d->bttLoadFromFile);
  EXPECT_EQ(S(Seen(*d)), S(before));
  d->Undo();
  EXPECT_EQ(S(Seen(*d)), S(without));
  QFile damaged(answers.file);
  ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
  damaged.write("what is this");
  damaged.close();
  Click(d->bttLoadFromFile);
  EXPECT_EQ(answers.warned.size(), 1);
  EXPECT_EQ(S(Seen(*d)), S(without));
}

TEST_F(StyleDialog, UndoAndRedoShowTheStyleThatTheyChange) {
  manager.WritePropValue(Q("TButton|.Big"), Q("Tag"), std::int64_t{1}, Q("NativeInt"));
  manager.WritePropValue(Q("TCheckBox"), Q("Tag"), std::int64_t{2}, Q("NativeInt"));
  const auto d = Shown();
  const auto at = [&] { return d->Styles->Selected() ? S(d->Styles->Selected()->StylePath()) : "nothing"; };
  Select(*d, "TButton|.Big");
  d->Styles->Delegate().Named(*d->Tree().Find(Q("TButton|.Big")), Q(".Tall"));
  Select(*d, "TCheckBox");
  d->Undo();
  EXPECT_EQ(at(), "TButton|.Big");
  Select(*d, "TCheckBox");
  d->Redo();
  EXPECT_EQ(at(), "TButton|.Tall");
}

TEST_F(StyleDialog, ReturnInTheFilterAndOnARowDoesNotEndIt) {
  const auto d = Shown();
  for (QWidget* widget : {static_cast<QWidget*>(d->fltEdit), static_cast<QWidget*>(d->PropTree),
                          static_cast<QWidget*>(d->Styles)}) {
    widget->setFocus();
    QTest::keyClick(widget, Qt::Key_Return);
    EXPECT_TRUE(d->isVisible()) << S(widget->objectName());
  }
  d->OkBtn->setFocus();
  QTest::keyClick(d->OkBtn, Qt::Key_Return);
  EXPECT_FALSE(d->isVisible());
}

TEST_F(StyleDialog, AskingWhetherToGoOnWithoutAPropertyIsAWarning) {
  SetPrompts(nullptr);
  const auto icon = [](TVRXStyleMessage message) {
    QMessageBox::Icon shown = QMessageBox::NoIcon;
    modal::NextOf<QMessageBox>([&](QMessageBox& box) {
      shown = box.icon();
      EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
      box.button(QMessageBox::Yes)->click();
    });
    EXPECT_TRUE(VRXStyleBoxesOf(nullptr)(VRXStyleBox(message, {Q("TButton"), Q("Gone")})));
    return shown;
  };
  EXPECT_EQ(icon(TVRXStyleMessage::NoSuchProperty), QMessageBox::Warning);
  EXPECT_EQ(icon(TVRXStyleMessage::DeleteStyle), QMessageBox::Question);
}

TEST_F(StyleDialog, StylesThatNobodyCanReadAreReplacedOnlyWhenThePersonWantsIt) {
  auto& lines = *As<TStrings>(GetObjectProp(manager, manager.ClassType().GetProp("Styles")));
  lines.SetLines({Q("Styles 1"), Q("style A"), Q("end")});
  EXPECT_FALSE(Dlg::Execute(manager));
  ASSERT_EQ(answers.asked.size(), 1);
  EXPECT_TRUE(
      answers.asked[0].contains(manager.Name() + Q(" cannot be read and are kept as they are: line 2: ")))
      << S(answers.asked[0]);
  EXPECT_EQ(lines.Count(), 3);
  answers.yes = true;
  modal::NextOf<Dlg>([](Dlg& d) { Click(d.OkBtn); });
  EXPECT_TRUE(Dlg::Execute(manager));
  EXPECT_EQ(manager.Problem(), QString());
}

// Drops, names, values, deletions and undo at random; after each, what is seen, the tree, the store and its
// file agree. At the end undo leads back to the beginning, and the manager was never touched.
TEST_F(StyleDialog, RandomStepsKeepTreeStoreAndFileInStep) {
  std::mt19937 random(20261122);
  const auto pick = [&](std::size_t count) {
    return static_cast<std::size_t>(random() % static_cast<unsigned>(count));
  };
  Fill(manager);
  const TVRXStyles untouched = manager.Styles();
  for (int round = 0; round < 6; ++round) {
    const auto d = Shown();
    const QString first = Seen(*d);
    answers.yes = true;
    const auto any = [&](bool property, bool style) -> Node* {
      std::vector<Node*> all;
      const std::function<void(Node&)> walk = [&](Node& node) {
        if (node.IsProperty() ? property : style) all.push_back(&node);
        for (const auto& child : node.Children) walk(*child);
      };
      walk(d->Tree().Root());
      return all.empty() ? &d->Tree().Root() : all[pick(all.size())];
    };
    static const char* const names[] = {".A", ".B", ".C", "TButton", "TCheckBox", "Plain", "a|b", ""};
    static const char* const properties[] = {"Width", "Enabled", "Font", "Caption", "Cursor"};
    for (int step = 0; step < 70; ++step) {
      switch (pick(9)) {
        case 0:
          d->cbStateStyles->setChecked(pick(4) == 0);
          d->DropFromProperties(Property(*d, pick(2) ? "TButton" : "TCheckBox"), any(true, true));
          break;
        case 1:
        case 2:
          d->DropFromProperties(Property(*d, "TButton", properties[pick(5)]), any(true, true));
          break;
        case 3:
        case 4:
          d->DropStyle(any(true, true), any(true, true), pick(2) == 0);
          break;
        case 5: {
          Node* node = any(false, true);
          d->Styles->Delegate().Named(*node, Q(names[pick(8)]));
          break;
        }
        case 6: {
          Node* node = any(true, false);
          if (!node->IsProperty()) break;
          d->Styles->Select(node);
          Press(*d, Qt::Key_F2);
          if (QWidget* editor = d->Styles->Delegate().Editor()) {
            if (qobject_cast<SpinEdit*>(editor) || qobject_cast<QLineEdit*>(editor))
              Type(*d, S(QString::number(pick(500))).c_str());
            Press(*d, pick(4) ? Qt::Key_Return : Qt::Key_Escape);
          }
          break;
        }
        case 7:
          d->Styles->Select(any(true, pick(3) == 0));
          d->btnDeleteStyleClick();
          break;
        default:
          pick(3) ? d->Undo() : d->Redo();
      }
      SCOPED_TRACE(step);
      // What is stored, made into a tree anew, is what is shown, but for what nobody has given a value.
      QStringList shown;
      const std::function<void(const Node&)> walk = [&](const Node& node) {
        if (node.IsProperty() && !d->Tree().Value(node)) return;
        shown << node.StylePath() + u'>' +
                     (node.IsProperty() ? node.Name + u'=' + d->Tree().DisplayValue(node) : QString());
        for (const auto& child : node.Children) walk(*child);
      };
      walk(d->Tree().Root());
      Seen(*d);
      TVRXStyleManager again(nullptr);
      again.SetStyles(TVRXStyles::FromText(d->Manager().Styles().Text()));
      ASSERT_TRUE(again.Styles() == d->Manager().Styles()) << "the file";
      TVRXStyleTree fresh(again, VRXStyleRegistry(), [](const TVRXStyleBox&) { return false; });
      QStringList stored;
      const std::function<void(const Node&)> walkFresh = [&](const Node& node) {
        stored << node.StylePath() + u'>' +
                      (node.IsProperty() ? node.Name + u'=' + fresh.DisplayValue(node) : QString());
        for (const auto& child : node.Children) walkFresh(*child);
      };
      walkFresh(fresh.Root());
      shown.sort();
      stored.sort();
      ASSERT_EQ(S(shown.join(u'\n')), S(stored.join(u'\n')));
    }
    for (int i = 0; i < 80; ++i) d->Undo();
    EXPECT_EQ(S(Seen(*d)), S(first));
    Click(d->CancelBtn);
    EXPECT_TRUE(manager.Styles() == untouched);
  }
}
