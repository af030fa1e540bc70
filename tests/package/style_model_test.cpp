// The style editor's model: the registry of properties, the rules of the tree, what it says, and the store
// that follows. Worked-out cases beside cases of its own.
#include <deque>
#include <random>

#include "ide/FormSession.h"
#include "library/values/FaceStates.h"
#include "package/styles/StyleTree.h"
#include "package/styles/pVRXCstMain.h"
#include "rtl/ClassRegistry.h"
#include "rtl/Exceptions.h"
#include "rtl/Strings.h"
#include "tests/support/Vectors.h"
#include "vcl/Bitmap.h"
#include "vcl/Button.h"
#include "vcl/Edit.h"
#include "vcl/Form.h"
#include "vcl/ImageList.h"
#include "vcl/Memo.h"
#include "vcl/Picture.h"

namespace {
QString Q(const char* text) { return QString::fromUtf8(text); }
QString Text(const QJsonValue& value) {
  QString text = value.toString();
  for (std::size_t i = 0; i < StateStyleNames.size(); ++i)
    text.replace(QStringLiteral("{S%1}").arg(i), Q(StateStyleNames[i]));
  return text;
}
QStringList Texts(const QJsonValue& values) {
  QStringList texts;
  for (const auto& value : values.toArray()) texts << Text(value);
  return texts;
}

TTypeKind KindOf(const QString& name) {
  static const QHash<QString, TTypeKind> kinds{{Q("integer"), TTypeKind::tkInteger},
                                               {Q("char"), TTypeKind::tkChar},
                                               {Q("enumeration"), TTypeKind::tkEnumeration},
                                               {Q("float"), TTypeKind::tkFloat},
                                               {Q("short string"), TTypeKind::tkString},
                                               {Q("long string"), TTypeKind::tkString},
                                               {Q("wide string"), TTypeKind::tkString},
                                               {Q("unicode string"), TTypeKind::tkString},
                                               {Q("set"), TTypeKind::tkSet},
                                               {Q("class"), TTypeKind::tkClass},
                                               {Q("method"), TTypeKind::tkMethod},
                                               {Q("64-bit integer"), TTypeKind::tkInt64},
                                               {Q("int64"), TTypeKind::tkInt64}};
  return kinds.value(name, TTypeKind::tkUnknown);
}

// --- Classes that exist for a case

constexpr std::size_t SlotCount = 64;
const TClass* Slots[SlotCount];
template <std::size_t I>
const TClass& InSlot() {
  return *Slots[I];
}
template <std::size_t... I>
constexpr auto Functions(std::index_sequence<I...>) {
  return std::array<const TClass& (*)(), sizeof...(I)>{&InSlot<I>...};
}
constexpr auto SlotFunctions = Functions(std::make_index_sequence<SlotCount>());

class Made {
 public:
  explicit Made(const QJsonArray& classes) {
    for (const auto& value : classes)
      described_.insert(value.toObject()[Q("name")].toString(), value.toObject());
  }
  const TClass& Class(const QString& name) { return *Slots[SlotOf(name)]; }

 private:
  std::size_t SlotOf(const QString& name) {
    if (slots_.contains(name)) return slots_[name];
    const std::size_t slot = static_cast<std::size_t>(slots_.size());
    slots_.insert(name, slot);
    Slots[slot] = Make(name);
    return slot;
  }
  const TClass* Make(const QString& name) {
    static const QHash<QString, const TClass*> real{{Q("TPersistent"), &TPersistent::StaticClass()},
                                                    {Q("TStrings"), &TStrings::StaticClass()},
                                                    {Q("TImageList"), &TImageList::StaticClass()},
                                                    {Q("TBitmap"), &TBitmap::StaticClass()},
                                                    {Q("TIcon"), &TIcon::StaticClass()}};
    if (real.contains(name)) return real[name];
    const QJsonObject described = described_[name];
    const QStringList ancestors =
        described_.contains(name) ? Texts(described[Q("ancestors")]) : QStringList{Q("TPersistent")};
    const TClass* parent = ancestors.isEmpty() ? nullptr : &Class(ancestors[0]);
    TClassBuilder builder(name.toLatin1(), parent);
    for (const auto& value : described[Q("properties")].toArray()) {
      const QStringList row = Texts(value);
      types_.push_back({.Kind = KindOf(row[1]), .Name = row[2].toLatin1()});
      TTypeInfo& type = types_.back();
      if (type.Kind == TTypeKind::tkClass) type.ClassType = SlotFunctions[SlotOf(row[2])];
      names_.push_back(row[0].toLatin1());
      static_cast<void>(std::move(builder).Passive<int>(names_.back().constData()).Type(type));
    }
    classes_.push_back(std::make_unique<TClass>(std::move(builder)));
    return classes_.back().get();
  }
  QHash<QString, QJsonObject> described_;
  QHash<QString, std::size_t> slots_;
  std::deque<TTypeInfo> types_;
  std::deque<QByteArray> names_;
  std::deque<std::unique_ptr<TClass>> classes_;
};

std::unique_ptr<TVRXPropListItem> ItemOf(const QStringList& row) {
  return std::make_unique<TVRXPropListItem>(
      TVRXPropListItem{row[0], KindOf(row[1]), row[2], row[3], row[4], nullptr});
}
QStringList Rows(const TVRXPropList& list) {
  QStringList rows;
  for (int i = 0; i < list.GetCount(); ++i) {
    const auto& item = *list.GetItems(i);
    rows << QStringLiteral("%1 %2 %3 %4 %5")
                .arg(item.Name)
                .arg(static_cast<int>(item.Kind))
                .arg(item.TypeName, item.ClassName, item.Parent);
  }
  rows.sort();
  return rows;
}
}  // namespace

// --- The registry

TEST(StyleRegistry, FindsExcludesAndOrdersAsWorkedOut) {
  for (const auto& value : Vectors("prop_list.json")[Q("cases")].toArray()) {
    const QJsonObject one = value.toObject();
    TVRXPropList list;
    QHash<const TVRXPropListItem*, int> ids;
    for (const auto& step : one[Q("ops")].toArray()) {
      const QJsonObject op = step.toObject();
      const QString name = op[Q("op")].toString(), arg = op[Q("name")].toString();
      const std::string what = QJsonDocument(op).toJson().toStdString();
      const auto found = [&](const TVRXPropListItem* item) {
        const QJsonArray oneOf = op[Q("oneOf")].toArray();
        if (oneOf.isEmpty())
          EXPECT_EQ(item, nullptr) << what;
        else
          EXPECT_TRUE(item && oneOf.contains(ids.value(item, -1))) << what;
      };
      if (name == Q("add")) {
        auto item = ItemOf(Texts(op[Q("item")]));
        ids.insert(item.get(), op[Q("id")].toInt());
        list.AddProperty(std::move(item));
        EXPECT_EQ(list.GetCount(), op[Q("count")].toInt()) << what;
      } else if (name == Q("clear")) {
        list.Clear();
        ids.clear();
        EXPECT_EQ(list.GetCount(), op[Q("count")].toInt(0)) << what;
      } else if (name == Q("exclude")) {
        list.ExcludeProperty(arg);
        EXPECT_EQ(list.ExcludedNames().size(), op[Q("excludedCount")].toInt()) << what;
      } else if (name == Q("excluded?")) {
        EXPECT_EQ(list.PropertyExcluded(arg), op[Q("result")].toBool()) << what;
      } else if (name == Q("FindItemByName")) {
        found(list.FindItemByName(arg));
      } else if (name == Q("FindItemByNameAndClassName")) {
        found(
            list.FindItemByNameAndClassName(arg, op[Q("className")].toString(), op[Q("parent")].toString()));
      } else if (name == Q("FindItemByNameAndTypeName")) {
        found(list.FindItemByNameAndTypeName(arg, op[Q("typeName")].toString(), op[Q("parent")].toString()));
      } else {
        ADD_FAILURE() << what;
      }
    }
    QStringList names;
    for (int i = 0; i < list.GetCount(); ++i) names << list.GetItems(i)->Name;
    EXPECT_EQ(names, Texts(one[Q("names")]));
    QStringList excluded = Texts(one[Q("excluded")]);
    excluded.sort();
    EXPECT_EQ(list.ExcludedNames(), excluded);
  }
}

TEST(StyleRegistry, RegistersClassesAsWorkedOut) {
  const QJsonObject vectors = Vectors("register.json");
  QStringList names;
  for (const char* name : VRXExcludedStyleProperties()) names << Q(name);
  EXPECT_EQ(names, Texts(vectors[Q("excluded55")]));
  EXPECT_EQ(names.size(), 55);
  int cases = 0;
  for (const char* key : {"cases", "reading"})
    for (const auto& value : vectors[Q(key)].toArray()) {
      const QJsonObject one = value.toObject();
      ++cases;
      Made made(one[Q("classes")].toArray());
      TVRXPropList list;
      for (const QString& name : one[Q("excluded")].isString() ? names : Texts(one[Q("excluded")]))
        list.ExcludeProperty(name);
      QList<int> added;
      for (const auto& call : one[Q("calls")].toArray()) {
        const int before = list.GetCount();
        RegisterStyleMgrClass(made.Class(call.toArray()[0].toString()), call.toArray()[1].toString(), list);
        added << list.GetCount() - before;
      }
      QList<int> expected;
      for (const auto& count : one[Q("added")].toArray()) expected << count.toInt();
      EXPECT_EQ(added, expected) << QJsonDocument(one).toJson().toStdString();
      QStringList rows;
      for (const auto& item : one[Q("items")].toArray()) {
        const QStringList row = Texts(item);
        rows << QStringLiteral("%1 %2 %3 %4 %5")
                    .arg(row[0])
                    .arg(static_cast<int>(KindOf(row[1])))
                    .arg(row[2], row[3], row[4]);
      }
      rows.sort();
      EXPECT_EQ(Rows(list), rows) << QJsonDocument(one).toJson().toStdString();
    }
  EXPECT_GT(cases, 40);
}

TEST(StyleRegistry, LeavesOutListsAndDoesNotLookIntoPictures) {
  TVRXPropList list;
  RegisterStyleMgrClass(TMemo::StaticClass(), {}, list);
  EXPECT_EQ(list.FindItemByNameAndClassName(Q("Lines"), Q("TMemo"), {}), nullptr);
  EXPECT_NE(list.FindItemByNameAndClassName(Q("Font"), Q("TMemo"), {}), nullptr);
  const auto* color = list.FindItemByNameAndClassName(Q("color"), Q("TFont"), Q("Font"));
  ASSERT_TRUE(color);
  EXPECT_EQ(color->Parent, Q("Font"));
  EXPECT_EQ(color->TypeName, Q("TColor"));
  EXPECT_EQ(list.FindItemByName(Q("OnClick")), nullptr);
  EXPECT_EQ(list.FindItemByNameAndClassName(Q("Color"), Q("TFont"), Q("Brush")), nullptr);
}

TEST(StyleRegistry, RegistersAClassOnceWhateverStoodThereBefore) {
  TVRXPropList list;
  RegisterStyleMgrFamily(TEdit::StaticClass(), list);
  const QStringList once = Rows(list);
  EXPECT_GT(once.size(), 50);
  RegisterStyleMgrFamily(TEdit::StaticClass(), list);
  EXPECT_EQ(Rows(list), once);
  // One of the items as somebody else would add it, and a class of the same name that came anew.
  TVRXPropList other;
  other.AddProperty(
      std::make_unique<TVRXPropListItem>(*list.FindItemByNameAndClassName(Q("MaxLength"), Q("TEdit"), {})));
  RegisterStyleMgrFamily(TEdit::StaticClass(), other);
  EXPECT_EQ(Rows(other), once);
  const TClass again(DescribeClass<TEdit>("TEdit", TCustomEdit::StaticClass()).Publish("MaxLength"));
  RegisterStyleMgrClass(again, {}, other);
  EXPECT_EQ(Rows(other), once);
  other.SetItems(0,
                 std::make_unique<TVRXPropListItem>(TVRXPropListItem{Q("zz"), {}, {}, Q("X"), {}, nullptr}));
  EXPECT_EQ(other.GetItems(other.GetCount() - 1)->Name, Q("zz"));
  other.Clear();
  EXPECT_EQ(other.GetCount(), 0);
  RegisterStyleMgrFamily(TEdit::StaticClass(), other);
  EXPECT_EQ(Rows(other), once);
}

TEST(StyleRegistry, MakesClassesKnownByNameForAsLongAsItLives) {
  const TClass mine(DescribeClass<TButton>("TStyleRegistryTestButton", TButton::StaticClass()));
  {
    TVRXPropList list;
    RegisterStyleMgrClass(mine, {}, list);
    EXPECT_EQ(FindClass("TStyleRegistryTestButton"), &mine);
  }
  EXPECT_EQ(FindClass("TStyleRegistryTestButton"), nullptr);
}

TEST(StyleRegistry, ExcludesOnlyTheTypeThatStandsBehindAColon) {
  TVRXPropList list;
  list.ExcludeProperty(Q("lines:TSTRINGS"));
  EXPECT_TRUE(list.PropertyExcluded(Q("Lines:TStrings")));
  EXPECT_FALSE(list.PropertyExcluded(Q("Lines")));
  list.ExcludeProperty(Q("Caption:TCaption"));
  list.ExcludeProperty(Q("Hint:TCaption"));
  RegisterStyleMgrClass(TButton::StaticClass(), {}, list);
  EXPECT_EQ(list.FindItemByNameAndClassName(Q("Caption"), Q("TButton"), {}), nullptr);
  EXPECT_NE(list.FindItemByNameAndClassName(Q("Hint"), Q("TButton"), {}), nullptr);
}

// --- What is said

TEST(StyleMessages, StandAsTheirTable) {
  using enum TVRXStyleMessage;
  struct Row {
    TVRXStyleMessage message;
    const char* text;
    bool question, yesNo;
  };
  const Row rows[] = {
      {CannotMoveDefault, "Cannot move default style!", false, false},
      {CannotDeleteDefault, "Cannot delete default style!", false, false},
      {SubstyleExists, "Substyle 'a' already exists in destination style!", false, false},
      {PropertyIncluded, "Property 'a' already included in destination style!", false, false},
      {NoSuchProperty, "Component 'a' doesn't have property 'b'!", false, true},
      {NoComponentClass, "Cannot create default style for non-TComponent descendants!", false, false},
      {UndefinedValue, "Cannot move property with undefined value!", false, false},
      {OwnSubstyle, "Cannot move style into its own substyle!", false, false},
      {StateHasNoSubstyles, "State style cannot have substyles!", false, false},
      {StateHasNoStateAncestors, "State style cannot have state style ancestors!", false, false},
      {SameNameAbove, "Style cannot have ancestor style with the same name!", false, false},
      {NotInherited,
       "Style 'a' cannot be inherited from style 'b', because class 'c' not inherited from class '%s'!",
       false, false},
      {InvalidName, "Invalid style name!", false, false},
      {NothingSelected, "Please select style or property first!", false, false},
      {DeleteStyle, "Delete style 'a'?", true, true},
      {DeleteProperty, "Delete property 'a'?", true, true},
      {NoSuchClass, "Cannot find component class 'a'!", false, false},
      {NoClassSelected, "Please select component class first!", false, false},
      {ClearBitmap, "No bitmap was chosen. Clear current bitmap?", true, true},
  };
  EXPECT_EQ(std::size(rows), static_cast<std::size_t>(VRXStyleMessageCount));
  for (const Row& row : rows) {
    const TVRXStyleBox box = VRXStyleBox(row.message, {Q("a"), Q("b"), Q("c"), Q("%s")});
    EXPECT_EQ(box.Text, Q(row.text));
    EXPECT_EQ(box.Icon == TVRXStyleBoxIcon::Question, row.question) << row.text;
    EXPECT_EQ(box.Buttons == TVRXStyleBoxButtons::YesNo, row.yesNo) << row.text;
    EXPECT_EQ(box.Message, row.message);
  }
  EXPECT_STREQ(VRXStyleEditorTitle, "Orlenvo-Kit Style Editor");
}

// --- The tree

namespace {
const QString Integer = QStringLiteral("Integer"), Color = QStringLiteral("TColor"),
              String = QStringLiteral("string");

class StyleTree : public testing::Test {
 protected:
  ~StyleTree() override { UnRegisterClasses(this); }
  // The styles of the paths, each with its kind; what stands above them, too.
  void Fill(const QStringList& paths) {
    manager.Clear();
    for (const QString& path : paths)
      for (const QString& at : VRXStyleLine(path))
        manager.WritePropValue(at, Q("_StyleKind"),
                               std::int64_t{static_cast<int>(VRXStyleKindOf(VRXStyleName(at)))}, Integer);
    tree.Rebuild();
    boxes.clear();
  }
  TVRXStyleNode& At(const char* path) { return *tree.Find(Q(path)); }
  QString Boxes() { return std::exchange(boxes, {}).join(u'\n'); }
  static QString Dump(const TVRXStyleNode& node) {
    QStringList parts;
    for (const auto& child : node.Children) {
      EXPECT_EQ(child->Parent, &node);
      parts << (child->IsProperty()
                    ? child->Name + u':' + child->TypeName
                    : QStringLiteral("%1 %2").arg(child->Name).arg(static_cast<int>(child->Kind))) +
                   Dump(*child);
    }
    return parts.isEmpty() ? QString() : u'(' + parts.join(u' ') + u')';
  }
  // The tree is what anybody would make of the store, but for properties without a value.
  void ExpectInStep() {
    TVRXStyleTree fresh(manager, registry, [](const auto&) { return false; });
    EXPECT_EQ(Dump(tree.Root()), Dump(fresh.Root()));
    TVRXStyleManager read(nullptr);
    read.SetStyles(TVRXStyles::FromText(manager.Styles().Text()));
    EXPECT_TRUE(read.Styles() == manager.Styles());
  }
  TVRXPropListItem& Item(const char* name, const char* cls, const char* parent = "") {
    return *registry.FindItemByNameAndClassName(Q(name), Q(cls), Q(parent));
  }

  TVRXStyleManager manager{nullptr};
  TVRXPropList registry;
  QStringList boxes;
  bool answer = false;
  TVRXStyleTree tree{manager, registry, [this](const TVRXStyleBox& box) {
                       boxes << box.Text;
                       return box.Buttons == TVRXStyleBoxButtons::YesNo && answer;
                     }};
};

class StylePlacement : public StyleTree {
 protected:
  void SetUp() override {
    vectors_ = Vectors("placement.json");
    for (const auto& value : vectors_[Q("classes")].toArray()) {
      const QJsonObject cls = value.toObject();
      const QString parent = cls[Q("parent")].toString();
      classes_.push_back(std::make_unique<TClass>(
          TClassBuilder(cls[Q("name")].toString().toLatin1(),
                        parent.isEmpty() ? &TComponent::StaticClass() : FindClass(parent.toLatin1()))));
      RegisterClass(*classes_.back(), this);
    }
    for (const auto& value : vectors_[Q("trees")].toArray())
      trees_.insert(value.toObject()[Q("tree")].toInt(), Texts(value.toObject()[Q("leaves")]));
  }
  void TearDown() override { UnRegisterClasses(this); }
  TVRXStyleNode& NodeOf(const QJsonObject& one, const char* key) {
    TVRXStyleNode* node = tree.Find(Text(one[Q(key)]));
    EXPECT_TRUE(node) << Text(one[Q(key)]).toStdString();
    return *node;
  }
  template <class F>
  void ForEachCase(const char* key, F check) {
    int count = 0;
    for (const auto& value : vectors_[Q(key)].toArray()) {
      const QJsonObject one = value.toObject();
      Fill(trees_[one[Q("tree")].toInt()]);
      check(one, QJsonDocument(one).toJson().toStdString());
      ++count;
    }
    EXPECT_GT(count, 50);
  }
  QJsonObject vectors_;
  std::vector<std::unique_ptr<TClass>> classes_;
  QHash<int, QStringList> trees_;
};
}  // namespace

TEST_F(StylePlacement, OfANameBelowAStyleIsAsWorkedOut) {
  ForEachCase("placement", [&](const QJsonObject& one, const std::string& what) {
    QString message;
    EXPECT_EQ(TVRXStyleTree::IsValidStylePlacement(&NodeOf(one, "target"), Text(one[Q("name")]), message),
              Text(one[Q("message")]).isEmpty())
        << what;
    EXPECT_EQ(message, Text(one[Q("message")])) << what;
  });
}

TEST_F(StylePlacement, OfAMovedStyleAndItsSubstylesIsAsWorkedOut) {
  ForEachCase("moves", [&](const QJsonObject& one, const std::string& what) {
    const QString before = Dump(tree.Root()), message = Text(one[Q("message")]);
    TVRXStyleNode& style = NodeOf(one, "style");
    EXPECT_EQ(tree.Drop(style, &NodeOf(one, "target"), false), message.isEmpty()) << what;
    EXPECT_EQ(Boxes(), message) << what;
    if (message.isEmpty())
      EXPECT_EQ(style.StylePath(), VRXStylePath(Text(one[Q("target")]), VRXStyleName(Text(one[Q("style")]))));
    else
      EXPECT_EQ(Dump(tree.Root()), before) << what;
    ExpectInStep();
  });
}

TEST_F(StylePlacement, FindsTheNearestClassStyleAsWorkedOut) {
  ForEachCase("ancestor", [&](const QJsonObject& one, const std::string& what) {
    EXPECT_EQ(TVRXStyleTree::FindAncestorStyle(&NodeOf(one, "style")), Text(one[Q("class")])) << what;
  });
}

TEST_F(StyleTree, RulesHoldAtTheirEdges) {
  QString message;
  const auto valid = [&](const char* target, const char* name) {
    return TVRXStyleTree::IsValidStylePlacement(&At(target), Q(name), message);
  };
  RegisterClass(TEdit::StaticClass(), this);
  RegisterClass(TButton::StaticClass(), this);
  Fill({Q(".Header|.Body"), Q("TEdit|Plain"), Q("TNobodyKnows"), Q(".Pressed")});
  EXPECT_FALSE(valid(".Header", ".Header"));
  EXPECT_FALSE(valid(".Header|.Body", ".Header"));
  EXPECT_TRUE(valid(".Header", "TButton"));
  EXPECT_TRUE(valid("TNobodyKnows", "TButton"));
  EXPECT_TRUE(valid("TEdit", "TNobodyKnows"));
  EXPECT_TRUE(valid("TEdit|Plain", "Plain"));
  EXPECT_FALSE(valid("TEdit|Plain", "TButton"));
  EXPECT_EQ(
      message,
      Q("Style 'TButton' cannot be inherited from style 'TEdit', because class 'TButton' not inherited from "
        "class 'TEdit'!"));
  EXPECT_FALSE(valid(".Pressed", ".Focused"));
  EXPECT_EQ(message, Q("State style cannot have substyles!"));
  EXPECT_TRUE(TVRXStyleTree::IsValidStylePlacement(nullptr, Q("TButton"), message));
  EXPECT_EQ(message, QString());
}

TEST_F(StyleTree, IsSortedAsWorkedOut) {
  const QJsonObject vectors = Vectors("style_sort.json");
  for (const char* key : {"children", "childlessStyles"})
    for (const auto& value : vectors[Q(key)].toArray()) {
      std::vector<TVRXStyleSortKey> keys;
      for (const auto& row : value.toObject()[Q("in")].toArray())
        keys.push_back({row.toArray()[0].toString(), row.toArray()[1].toBool()});
      std::stable_sort(keys.begin(), keys.end(), VRXStyleBefore);
      QStringList names;
      for (const auto& sorted : keys) names << sorted.Name;
      EXPECT_EQ(names, Texts(value.toObject()[Q("out")]));
    }
  for (const auto& value : vectors[Q("paths")].toArray()) {
    QStringList paths = Texts(value.toObject()[Q("in")]);
    std::stable_sort(paths.begin(), paths.end(), VRXPropertyPathBefore);
    EXPECT_EQ(paths, Texts(value.toObject()[Q("out")]));
  }
}

TEST_F(StyleTree, KeepsItsChildrenSortedWhateverIsDone) {
  Fill({Q("TZ|.x"), Q("TA"), Q("TCustomZ|.y"), Q(".a")});
  EXPECT_EQ(Dump(tree.Root()), Q("(TCustomZ 1(.y 2) TZ 1(.x 2) .a 2 TA 1)"));
  tree.AddStyle(&At("TA"), Q(".b"), false);
  EXPECT_EQ(Dump(tree.Root()), Q("(TCustomZ 1(.y 2) TA 1(.b 2) TZ 1(.x 2) .a 2)"));
  tree.Rename(At("TA"), Q("TBaseQ"));
  EXPECT_EQ(Dump(tree.Root()), Q("(TBaseQ 1(.b 2) TCustomZ 1(.y 2) TZ 1(.x 2) .a 2)"));
  tree.Drop(At("TCustomZ|.y"), &At("TZ"), false);
  EXPECT_EQ(Dump(tree.Root()), Q("(TBaseQ 1(.b 2) TZ 1(.x 2 .y 2) .a 2 TCustomZ 1)"));
  ExpectInStep();
}

TEST_F(StyleTree, AddsStylesAndRefusesWhatCannotStandThere) {
  TVRXStyleNode* header = tree.AddStyle(nullptr, Q(".Header"), true);
  ASSERT_TRUE(header);
  EXPECT_EQ(Dump(tree.Root()), Q("(.Header 2)"));
  TVRXStyleNode* button = tree.AddStyle(header, Q("TButton"), true);
  ASSERT_TRUE(button);
  EXPECT_EQ(button->Children.size(), 7u);
  EXPECT_EQ(Boxes(), QString());
  std::int64_t kind = 0;
  EXPECT_TRUE(manager.ReadPropValue(Q(".Header|TButton|.Pressed"), Q("_StyleKind"), kind, Integer));
  EXPECT_EQ(kind, 3);
  EXPECT_TRUE(manager.ReadPropValue(Q(".Header|TButton"), Q("_StyleKind"), kind, Integer));
  EXPECT_EQ(kind, 1);
  const QString before = Dump(tree.Root());
  EXPECT_FALSE(tree.AddStyle(nullptr, Q(".Header"), true));
  EXPECT_EQ(Boxes(), Q("Substyle '.Header' already exists in destination style!"));
  EXPECT_FALSE(tree.AddStyle(nullptr, Q("a|b"), true));
  EXPECT_EQ(Boxes(), Q("Invalid style name!"));
  EXPECT_FALSE(tree.AddStyle(button, Q(".Header"), true));
  EXPECT_EQ(Boxes(), Q("Style cannot have ancestor style with the same name!"));
  EXPECT_FALSE(tree.AddStyle(button->Child(Q(".Pressed"), false), Q(".x"), true));
  EXPECT_EQ(Boxes(), Q("State style cannot have substyles!"));
  EXPECT_FALSE(tree.DropClass(Q("TEdit"), nullptr, true, true));
  EXPECT_EQ(Boxes(), Q("Cannot create default style for non-TComponent descendants!"));
  EXPECT_EQ(Dump(tree.Root()), before);
  EXPECT_TRUE(tree.DropClass(Q("TEdit"), nullptr, false, false));
  EXPECT_TRUE(At("TEdit").Children.empty());
  ExpectInStep();
}

TEST_F(StyleTree, AddsTheStateStylesThatAreLackingInTheirOrder) {
  for (const auto& value : Vectors("style_values.json")[Q("stateStyles")].toArray()) {
    QStringList paths{Q("A")};
    for (const QString& child : Texts(value.toObject()[Q("children")])) paths << VRXStylePath(Q("A"), child);
    Fill(paths);
    QStringList before;
    for (const auto& child : At("A").Children) before << child->Name;
    const QStringList expected = Texts(value.toObject()[Q("added")]);
    EXPECT_EQ(tree.AddStateStyles(At("A")), !expected.isEmpty());
    QStringList added;
    for (const char* state : StateStyleNames)
      if (At("A").Child(Q(state), false) && !before.contains(Q(state))) added << Q(state);
    EXPECT_EQ(added, expected);
    EXPECT_EQ(At("A").Children.size(), static_cast<std::size_t>(before.size() + added.size()));
    ExpectInStep();
  }
}

TEST_F(StyleTree, TellsAStylesKindByItsName) {
  for (const auto& value : Vectors("style_values.json")[Q("kinds")].toArray())
    EXPECT_EQ(static_cast<int>(VRXStyleKindOf(Text(value.toObject()[Q("name")]))),
              value.toObject()[Q("kind")].toInt());
}

TEST_F(StyleTree, RenamesAStyleInThePlaceOfItsOldName) {
  Fill({Q("TEdit|.a|.b"), Q(".c"), Q("TEdit|.Pressed")});
  manager.WritePropValue(Q("TEdit|.a"), Q("Tag"), std::int64_t{4}, Integer);
  tree.Rebuild();
  EXPECT_TRUE(tree.Rename(At("TEdit|.a"), Q("Plain")));
  EXPECT_EQ(Dump(At("TEdit")), Q("(Plain 1(.b 2 Tag:Integer) .Pressed 3)"));
  ExpectInStep();
  const QString before = Dump(tree.Root());
  const auto refused = [&](const char* path, const char* name) {
    EXPECT_FALSE(tree.Rename(At(path), Q(name))) << name;
    EXPECT_EQ(Dump(tree.Root()), before);
    return Boxes();
  };
  EXPECT_EQ(refused("TEdit|Plain", "x|y"), Q("Invalid style name!"));
  EXPECT_EQ(refused("TEdit|Plain", ""), Q("Invalid style name!"));
  EXPECT_EQ(refused("TEdit|Plain", ".Pressed"),
            Q("Substyle '.Pressed' already exists in destination style!"));
  EXPECT_EQ(refused("TEdit|Plain", "TEdit"), Q("Style cannot have ancestor style with the same name!"));
  EXPECT_EQ(refused("TEdit|Plain", ".b"), Q("Style cannot have ancestor style with the same name!"));
  EXPECT_EQ(refused("TEdit|Plain", ".Focused"), Q("State style cannot have substyles!"));
  EXPECT_EQ(refused("", "x"), QString());
  EXPECT_TRUE(tree.Rename(At("TEdit|Plain"), Q("Plain")));
  EXPECT_TRUE(tree.Rename(At("TEdit|Plain|.b"), Q(".Checked")));
  EXPECT_EQ(At("TEdit|Plain|.Checked").Kind, TVRXStyleKind::State);
  ExpectInStep();
}

TEST_F(StyleTree, DeletesWhenItIsConfirmed) {
  Fill({Q("A|b|c"), Q("A|d")});
  manager.WritePropValue(Q("A"), Q("Tag"), std::int64_t{4}, Integer);
  tree.Rebuild();
  EXPECT_FALSE(tree.Delete(nullptr, true));
  EXPECT_EQ(Boxes(), Q("Please select style or property first!"));
  EXPECT_FALSE(tree.Delete(&tree.Root(), false));
  EXPECT_EQ(Boxes(), Q("Cannot delete default style!"));
  EXPECT_FALSE(tree.Delete(&At("A|b"), true));
  EXPECT_EQ(Boxes(), Q("Delete style 'b'?"));
  EXPECT_FALSE(tree.Delete(At("A").Child(Q("Tag"), true), true));
  EXPECT_EQ(Boxes(), Q("Delete property 'Tag'?"));
  answer = true;
  EXPECT_TRUE(tree.Delete(At("A").Child(Q("Tag"), true), true));
  EXPECT_TRUE(tree.Delete(&At("A|b"), true));
  boxes.clear();
  EXPECT_EQ(Dump(tree.Root()), Q("(A 1(d 1))"));
  EXPECT_TRUE(tree.Delete(&At("A|d"), false));
  EXPECT_EQ(Boxes(), QString());
  ExpectInStep();
}

TEST_F(StyleTree, TakesPropertiesOfTheRegistry) {
  RegisterStyleMgrClass(TEdit::StaticClass(), {}, registry);
  Fill({Q("TEdit|.a"), Q("TButton")});
  EXPECT_TRUE(tree.DropProperty(Item("Color", "TEdit"), Q("Color"), &At("TEdit|.a")));
  TVRXStyleNode* color = At("TEdit|.a").Child(Q("Color"), true);
  ASSERT_TRUE(color);
  EXPECT_EQ(color->TypeName, Color);
  EXPECT_EQ(color->Item, &Item("Color", "TEdit"));
  EXPECT_EQ(tree.Value(*color), nullptr);
  EXPECT_EQ(tree.DisplayValue(*color), QString());
  EXPECT_EQ(tree.EditorOf(*color), TVRXStyleEditor::ColorCombo);
  tree.SetValue(*color, std::int64_t{255});
  EXPECT_EQ(tree.DisplayValue(*color), Q("clRed"));
  ExpectInStep();
  // A property stands for its style.
  EXPECT_TRUE(tree.DropProperty(Item("MaxLength", "TEdit"), Q("MaxLength"), color));
  EXPECT_FALSE(tree.DropProperty(Item("Color", "TEdit"), Q("Color"), color));
  EXPECT_EQ(Boxes(), Q("Property 'Color' already included in destination style!"));
  // The whole of an object, but for what is there and what is an object itself.
  EXPECT_TRUE(tree.DropProperty(Item("Color", "TFont", "Font"), Q("Font.Color"), &At("TEdit")));
  EXPECT_TRUE(tree.DropProperty(Item("Font", "TEdit"), Q("Font"), &At("TEdit")));
  EXPECT_TRUE(At("TEdit").Child(Q("Font.Style"), true));
  EXPECT_FALSE(At("TEdit").Child(Q("Font"), true));
  const std::size_t count = At("TEdit").Children.size();
  EXPECT_FALSE(tree.DropProperty(Item("Font", "TEdit"), Q("Font"), &At("TEdit")));
  EXPECT_EQ(At("TEdit").Children.size(), count);
  EXPECT_EQ(Boxes(), QString());
  // A class that has nothing of the name: the person decides.
  EXPECT_FALSE(tree.DropProperty(Item("MaxLength", "TEdit"), Q("MaxLength"), &At("TButton")));
  EXPECT_EQ(Boxes(), Q("Component 'TButton' doesn't have property 'MaxLength'!"));
  EXPECT_FALSE(tree.DropProperty(Item("Color", "TFont", "Font"), Q("Font.Color"), &At("TButton")));
  EXPECT_EQ(Boxes(), Q("Component 'TButton' doesn't have property 'Font.Color'!"));
  answer = true;
  EXPECT_TRUE(tree.DropProperty(Item("MaxLength", "TEdit"), Q("MaxLength"), &At("TButton")));
  EXPECT_TRUE(At("TButton").Child(Q("MaxLength"), true));
  EXPECT_FALSE(tree.DropProperty(Item("MaxLength", "TEdit"), Q("MaxLength"), nullptr));
}

TEST_F(StyleTree, MovesAndCopiesPropertiesWithTheirValues) {
  RegisterStyleMgrClass(TEdit::StaticClass(), {}, registry);
  Fill({Q(".a"), Q(".b"), Q("TButton")});
  EXPECT_TRUE(tree.DropProperty(Item("Hint", "TEdit"), Q("Hint"), &At(".a")));
  TVRXStyleNode& hint = *At(".a").Child(Q("Hint"), true);
  EXPECT_FALSE(tree.Drop(hint, &At(".b"), false));
  EXPECT_EQ(Boxes(), Q("Cannot move property with undefined value!"));
  tree.SetValue(hint, Q("here"));
  EXPECT_TRUE(tree.Drop(hint, &At(".b"), true));
  QString text;
  EXPECT_TRUE(manager.ReadPropValue(Q(".a"), Q("Hint"), text, String));
  EXPECT_TRUE(manager.ReadPropValue(Q(".b"), Q("Hint"), text, String));
  EXPECT_EQ(text, Q("here"));
  ExpectInStep();
  EXPECT_FALSE(tree.Drop(hint, &At(".b"), false));
  EXPECT_EQ(Boxes(), Q("Property 'Hint' already included in destination style!"));
  EXPECT_FALSE(tree.Drop(hint, &At("TButton"), false));
  EXPECT_EQ(Boxes(), Q("Component 'TButton' doesn't have property 'Hint'!"));
  answer = true;
  EXPECT_TRUE(tree.Drop(hint, &At("TButton"), false));
  EXPECT_EQ(hint.Parent, &At("TButton"));
  EXPECT_FALSE(manager.ReadPropValue(Q(".a"), Q("Hint"), text, String));
  EXPECT_TRUE(manager.ReadPropValue(Q("TButton"), Q("Hint"), text, String));
  EXPECT_EQ(At(".a").Children.size(), 0u);
  boxes.clear();
  EXPECT_FALSE(tree.Drop(tree.Root(), &At(".a"), false));
  EXPECT_EQ(Boxes(), Q("Cannot move default style!"));
  EXPECT_FALSE(tree.Drop(At(".a"), &At(".a"), false));
  EXPECT_EQ(Boxes(), Q("Cannot move style into its own substyle!"));
  ExpectInStep();
}

TEST_F(StyleTree, ShowsValuesAsWorkedOut) {
  const QJsonObject vectors = Vectors("style_values.json");
  for (const auto& value : vectors[Q("display")].toArray()) {
    const QJsonObject one = value.toObject();
    const QJsonValue stored = one[Q("stored")];
    TVRXStyleValue kept = stored.isString() ? TVRXStyleValue(stored.toString())
                                            : TVRXStyleValue(std::int64_t{stored.toInteger()});
    EXPECT_EQ(VRXDisplayValue(stored.isNull() ? nullptr : &kept, KindOf(one[Q("kind")].toString()),
                              one[Q("type")].toString(), nullptr),
              one[Q("text")].toString());
  }
  for (const auto& value : vectors[Q("enumerations")].toArray()) {
    const QJsonObject one = value.toObject();
    QByteArrayList elements;
    for (const QString& element : Texts(one[Q("elements")])) elements << element.toLatin1();
    const TTypeInfo type = EnumType("TGold", elements);
    const TVRXStyleValue kept = std::int64_t{one[Q("ordinal")].toInteger()};
    EXPECT_EQ(VRXDisplayValue(&kept, TTypeKind::tkEnumeration, Q("TGold"), &type), one[Q("text")].toString());
  }
  for (const auto& value : vectors[Q("sets")].toArray())
    EXPECT_EQ(VRXSetText(Texts(value.toObject()[Q("elements")]), Texts(value.toObject()[Q("checked")])),
              value.toObject()[Q("text")].toString());
  static const QHash<QString, TVRXStyleEditor> editors{
      {Q("colour combo box"), TVRXStyleEditor::ColorCombo},
      {Q("spin edit"), TVRXStyleEditor::Spin},
      {Q("edit box"), TVRXStyleEditor::Edit},
      {Q("list combo box"), TVRXStyleEditor::ListCombo},
      {Q("calendar combo box"), TVRXStyleEditor::CalendarCombo},
      {Q("float spin edit"), TVRXStyleEditor::FloatSpin},
      {Q("check-list combo box"), TVRXStyleEditor::CheckCombo},
      {Q("picture chooser"), TVRXStyleEditor::PictureChooser},
      {QString(), TVRXStyleEditor::None}};
  for (const auto& value : vectors[Q("editors")].toArray()) {
    const QJsonObject one = value.toObject();
    ASSERT_TRUE(editors.contains(one[Q("control")].toString()));
    EXPECT_EQ(VRXStyleEditorOf(KindOf(one[Q("kind")].toString()), one[Q("type")].toString()),
              editors[one[Q("control")].toString()])
        << QJsonDocument(one).toJson().toStdString();
  }
  EXPECT_TRUE(VRXMatchesFilter(Q("BorderColor"), Q("*Color")));
  EXPECT_FALSE(VRXMatchesFilter(Q("ColorMap"), Q("*Color")));
  EXPECT_TRUE(VRXMatchesFilter(Q("x"), QString()));
  const TVRXStyleValue bytes = QByteArray("x"), nothing = QByteArray();
  EXPECT_EQ(VRXDisplayValue(&bytes, TTypeKind::tkClass, Q("TBitmap"), nullptr), Q("(TBitmap)"));
  EXPECT_EQ(VRXDisplayValue(&nothing, TTypeKind::tkClass, Q("TBitmap"), nullptr), Q("(none)"));
}

TEST_F(StyleTree, MakesStylesOfComponentsThatComponentsCanTakeAgain) {
  TForm form(nullptr);
  TEdit one(&form), two(&form);
  one.SetName(Q("Edit1"));
  one.SetBounds(11, 12, 130, 22);
  one.SetColor(clLime);
  one.Set(TEdit::MaxLength, 17);
  one.Font()->SetColor(clRed);
  one.SetHint(Q("left out"));
  VRXFreeStyleRegistry();
  for (const char* name : VRXExcludedStyleProperties()) registry.ExcludeProperty(Q(name));
  RegisterStyleMgrForm(form, nullptr, registry);
  EXPECT_FALSE(tree.CreateStyles({}, {&one}));
  EXPECT_EQ(Boxes(), Q("Please select component class first!"));
  EXPECT_FALSE(tree.CreateStyles(Q("TEdit"), {}));
  EXPECT_TRUE(manager.Styles().IsEmpty());
  EXPECT_TRUE(tree.CreateStyles(Q("TEdit"), {&one, &two}));
  ASSERT_TRUE(tree.Find(Q("TEdit|.Edit1")));
  EXPECT_EQ(At("TEdit").Kind, TVRXStyleKind::Class);
  EXPECT_EQ(At("TEdit|.Edit1").Kind, TVRXStyleKind::Named);
  EXPECT_FALSE(At("TEdit|.Edit1").Child(Q("Left"), true));
  EXPECT_FALSE(At("TEdit|.Edit1").Child(Q("Hint"), true));
  EXPECT_TRUE(At("TEdit|.Edit1").Child(Q("Font.Color"), true));
  ExpectInStep();
  const auto misfits = manager.ApplyStyle(two, Q("TEdit|.Edit1"));
  EXPECT_TRUE(misfits.empty()) << misfits.front().Text().toStdString();
  EXPECT_EQ(two.Color(), clLime);
  EXPECT_EQ(two.Font()->Color(), clRed);
  EXPECT_EQ(two.Left(), 0);
  EXPECT_FALSE(tree.AddComponent(Q("TNobody")));
  EXPECT_EQ(Boxes(), Q("Cannot find component class 'TNobody'!"));
  RegisterClass(TMemo::StaticClass(), this);
  EXPECT_TRUE(tree.AddComponent(Q("TMemo")));
  EXPECT_TRUE(registry.FindItemByNameAndClassName(Q("WordWrap"), Q("TMemo"), {}));
}

TEST_F(StyleTree, StaysInStepWithItsStoreInARandomWalk) {
  RegisterStyleMgrClass(TEdit::StaticClass(), {}, registry);
  std::mt19937 random(914);
  const auto below = [&](std::size_t n) { return static_cast<std::size_t>(random() % n); };
  const QStringList names{Q("TEdit"), Q("TButton"),  Q(".a"),  Q(".b"),
                          Q("Plain"), Q(".Pressed"), Q("x|y"), Q("Base")};
  const auto anyNode = [&]() -> TVRXStyleNode& {
    std::vector<TVRXStyleNode*> all{&tree.Root()};
    for (std::size_t i = 0; i < all.size(); ++i)
      for (const auto& child : all[i]->Children) all.push_back(child.get());
    return *all[below(all.size())];
  };
  int done = 0;
  for (int i = 0; i < 700; ++i) {
    answer = below(2) == 0;
    TVRXStyleNode& node = anyNode();
    const QString before = Dump(tree.Root());
    const QByteArray text = manager.Styles().Text();
    const QString name = names[static_cast<qsizetype>(below(static_cast<std::size_t>(names.size())))];
    bool changed = false;
    switch (below(6)) {
      case 0:
      case 1:
        changed = tree.AddStyle(&node, name, below(4) == 0);
        break;
      case 2:
        changed = tree.Rename(node, name) && !node.IsProperty() && node.Name == name;
        break;
      case 3:
        changed = tree.Drop(node, &anyNode(), below(2) == 0);
        break;
      case 4:
        changed = tree.Delete(below(3) == 0 ? &node : nullptr, below(2) == 0);
        break;
      default:
        if (node.IsProperty()) {
          tree.SetValue(node, QString::number(i));
          changed = true;
        } else if ((changed = tree.DropProperty(Item("Hint", "TEdit"), Q("Hint"), &node))) {
          tree.SetValue(*node.Child(Q("Hint"), true), Q("x"));
        }
    }
    done += changed;
    if (!changed) {
      ASSERT_EQ(Dump(tree.Root()), before) << i;
      ASSERT_EQ(manager.Styles().Text(), text) << i;
    }
    ExpectInStep();
    ASSERT_FALSE(HasFailure()) << i;
  }
  EXPECT_GT(done, 100);
}

TEST_F(StyleTree, BuildsFromStylesWhoseParentsAreNotKept) {
  manager.WritePropValue(Q("A|b|c"), Q("Tag"), std::int64_t{1}, Integer);
  manager.WritePropValue(Q("A-x"), Q("Tag"), std::int64_t{1}, Integer);
  manager.WritePropValue(Q("A|b"), Q("Later"), Q("one 2"), Color);
  tree.Rebuild();
  EXPECT_EQ(Dump(tree.Root()), Q("(A 1(b 1(c 1(Tag:Integer) Later:TColor)) A-x 1(Tag:Integer))"));
  EXPECT_EQ(tree.DisplayValue(*At("A|b").Child(Q("Later"), true)), Q("one 2"));
  EXPECT_TRUE(tree.Drop(At("A|b"), nullptr, false));
  ExpectInStep();
  EXPECT_TRUE(tree.Find(Q("A")));
  EXPECT_TRUE(tree.Delete(&At("b|c"), false));
  ExpectInStep();
}

// --- The component editor

namespace {
TVRXStyleManager* edited = nullptr;
bool confirm = false;
bool EditInTest(TVRXStyleManager& m) {
  edited = &m;
  TVRXStyleManager own(nullptr);
  own.Assign(&m);
  own.WritePropValue(Q(".New"), Q("Hint"), Q("h"), String);
  if (confirm) m.Assign(&own);
  return confirm;
}
}  // namespace

TEST(StyleManEditor, EditsACopyAndIsOneStepWhenItIsConfirmed) {
  VRXFreeStyleRegistry();
  for (const TClass* cls : {&TVRXStyleManager::StaticClass(), &TEdit::StaticClass()})
    RegisterClass(*cls, &confirm);
  const auto session = FormSession::FromBytes(
      "object Form1: TForm1\n  object Edit1: TEdit\n  end\n  object Styles1: TVRXStyleManager\n"
      "    Styles.Strings = (\n      'Styles 1'\n      'style \".Old\"'\n      'end')\n  end\nend\n");
  auto* manager = As<TVRXStyleManager>(session->GetComponent(Q("Styles1")));
  ASSERT_TRUE(manager);
  const auto before = VRXEditStyles;
  VRXEditStyles = &EditInTest;
  TVRXStyleManEditor editor(manager, session.get());
  EXPECT_EQ(editor.GetVerbCount(), 1);
  EXPECT_EQ(editor.GetVerb(0), Q("Style Designer..."));
  EXPECT_EQ(editor.GetVerb(1), QString());
  EXPECT_EQ(editor.GetVerb(-1), QString());
  const QByteArray bytes = session->Bytes();
  const auto run = [&](int verb) { session->Run(Q("verb"), {}, [&] { editor.ExecuteVerb(verb); }); };
  confirm = false;
  run(0);
  EXPECT_EQ(edited, manager);
  EXPECT_EQ(session->Bytes(), bytes);
  EXPECT_FALSE(session->CanUndo());
  EXPECT_EQ(VRXStyleRegistry().ExcludedNames().size(), 55);
  const int count = VRXStyleRegistry().GetCount();
  EXPECT_TRUE(VRXStyleRegistry().FindItemByNameAndClassName(Q("ReadOnly"), Q("TEdit"), {}));
  EXPECT_TRUE(VRXStyleRegistry().FindItemByNameAndClassName(Q("Left"), Q("TCustomEdit"), {}));
  EXPECT_FALSE(VRXStyleRegistry().FindItemByNameAndClassName(Q("MaxLength"), Q("TEdit"), {}));
  confirm = true;
  run(7);  // there is one verb, whatever is asked for
  EXPECT_EQ(VRXStyleRegistry().GetCount(), count);
  EXPECT_EQ(VRXStyleRegistry().ExcludedNames().size(), 55);
  EXPECT_EQ(session->Bytes(),
            QByteArray(bytes).replace("      'style \".Old\"'\n",
                                      "      'style \".New\"'\n      '  Hint:string = text \"h\"'\n      "
                                      "'style \".Old\"'\n"));
  session->Undo();
  EXPECT_EQ(session->Bytes(), bytes);
  EXPECT_FALSE(session->CanUndo());
  VRXEditStyles = before;
  UnRegisterClasses(&confirm);
}

TEST(StyleManEditor, OpensOnAFormWithNothingButTheManager) {
  VRXFreeStyleRegistry();
  TForm form(nullptr);
  TVRXStyleManager manager(&form);
  const auto before = VRXEditStyles;
  VRXEditStyles = &EditInTest;
  edited = nullptr;
  confirm = false;
  TVRXStyleManEditor(&manager, nullptr).ExecuteVerb(0);
  EXPECT_EQ(edited, &manager);
  EXPECT_EQ(VRXStyleRegistry().GetCount(), 0);
  EXPECT_TRUE(manager.Styles().IsEmpty());
  VRXEditStyles = before;
}
