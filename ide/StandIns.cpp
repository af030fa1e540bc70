#include "ide/StandIns.h"

#include <algorithm>
#include <span>

#include "ide/Unknown.h"
#include "rtl/ClassRegistry.h"
#include "vcl/PageControl.h"
#include "vcl/Picture.h"

namespace {
using enum TStandInLook;

struct NameRow {
  const char* ending;
  TStandInLook look;
};
// The first that fits counts.
constexpr NameRow NameRows[] = {
    // What is no control, though it may have a caption or a width.
    {"Menu", Component},
    {"Item", Component},
    {"Dialog", Component},
    {"Timer", Component},
    {"Action", Component},
    {"ActionList", Component},
    {"ActionManager", Component},
    {"ImageList", Component},
    {"ImageCollection", Component},
    {"DataSource", Component},
    {"DataSet", Component},
    {"Query", Component},
    {"Table", Component},
    {"StoredProc", Component},
    {"Connection", Component},
    {"Database", Component},
    {"Transaction", Component},
    {"Field", Component},
    {"Series", Component},
    {"Notifier", Component},
    {"TrayIcon", Component},
    // Controls.
    {"CheckListBox", List},
    {"CheckGroup", CheckGroup},
    {"RadioGroup", RadioGroup},
    {"CheckBox", Check},
    {"RadioButton", Radio},
    {"ComboBox", Combo},
    {"ComboBoxEx", Combo},
    {"ComboEdit", Combo},
    {"ComboEditBox", Combo},
    {"DateEdit", Combo},
    {"TimePicker", Combo},
    {"DatePicker", Combo},
    {"SpinEdit", Spin},
    {"UpDown", Spin},
    {"SpinButton", Spin},
    {"HotKey", Field},
    {"SynEdit", Memo},
    {"RichEdit", Memo},
    {"Memo", Memo},
    {"Browser", Memo},
    {"MaskEdit", Field},
    {"Edit", Field},
    {"Navigator", Buttons},
    {"DBText", Label},
    {"LinkLabel", Label},
    {"StaticText", Label},
    {"Label", Label},
    {"ButtonPanel", Buttons},
    {"DividerBevel", Divider},
    {"Button", Button},
    {"BitBtn", Button},
    {"Btn", Button},
    {"ListBox", List},
    {"ListView", List},
    {"TreeView", List},
    {"StringTree", List},
    {"DrawTree", List},
    {"Grid", Grid},
    {"ValueListEditor", Grid},
    {"GroupBox", Group},
    {"PageControl", Tabs},
    {"TabControl", Tabs},
    {"TabSet", Tabs},
    {"Notebook", Tabs},
    {"Wizard", Tabs},
    {"TabSheet", Page},
    {"Page", Page},
    {"ToolBar", ToolBar},
    {"CoolBar", ToolBar},
    {"ControlBar", ToolBar},
    {"StatusBar", StatusBar},
    {"TrackBar", Slider},
    {"ScrollBar", Slider},
    {"ProgressBar", Progress},
    {"Gauge", Progress},
    {"Splitter", Splitter},
    {"Image", Image},
    {"PaintBox", Image},
    {"Shape", Image},
    {"Chart", Image},
    {"Panel", Panel},
    {"PanelSimple", Panel},
    {"ScrollBox", Panel},
    {"Frame", Panel},
};

struct AlignRow {
  const char* ending;
  TAlign align;
};
constexpr AlignRow AlignRows[] = {{"ToolBar", TAlign::alTop},
                                  {"CoolBar", TAlign::alTop},
                                  {"MenuBar", TAlign::alTop},
                                  {"StatusBar", TAlign::alBottom},
                                  {"Splitter", TAlign::alLeft}};

struct SizeRow {
  TStandInLook look;
  QSize size;
};
constexpr SizeRow SizeRows[] = {
    {Panel, {185, 41}},    {Group, {185, 105}},  {Label, {65, 17}},        {Field, {121, 23}},
    {Memo, {185, 89}},     {Combo, {145, 23}},   {Spin, {121, 23}},        {Button, {75, 25}},
    {Check, {97, 17}},     {Radio, {113, 17}},   {RadioGroup, {185, 105}}, {CheckGroup, {185, 105}},
    {List, {121, 97}},     {Grid, {320, 120}},   {Image, {105, 105}},      {Tabs, {289, 193}},
    {Page, {281, 165}},    {ToolBar, {150, 29}}, {StatusBar, {150, 19}},   {Slider, {150, 33}},
    {Progress, {150, 17}}, {Splitter, {3, 3}},   {Divider, {150, 17}},     {Buttons, {240, 34}},
};

constexpr const char* StandInPictures[] = {"Picture.Data", "Glyph.Data", "Bitmap.Data"};
constexpr const char* PlaceProperties[] = {"Left", "Top", "Width", "Height"};
// Only controls have these, whatever their class.
constexpr const char* ControlProperties[] = {"TabOrder",         "TabStop",          "Align",
                                             "Anchors",          "AlignWithMargins", "ParentFont",
                                             "ParentColor",      "ParentCtl3D",      "ExplicitWidth",
                                             "ExplicitTop",      "ExplicitHeight",   "AnchorSideLeft.Control",
                                             "ParentBackground", "ClientWidth",      "ClientHeight",
                                             "FocusControl",     "DesignSize"};
// Only forms have these at their root.
constexpr const char* FormProperties[] = {
    "Caption",    "BorderStyle",    "BorderIcons",    "FormStyle",    "Position",  "WindowState",
    "KeyPreview", "TextHeight",     "ActiveControl",  "Menu",         "OnShow",    "OnActivate",
    "OnClose",    "OnCloseQuery",   "OnDeactivate",   "OnHide",       "Icon.Data", "AlphaBlend",
    "ScreenSnap", "DefaultMonitor", "AllowDropFiles", "ShowInTaskBar"};
// Frames are controls: they have what forms at the root leave out.
constexpr const char* FrameProperties[] = {"TabOrder",   "TabStop",   "ParentBackground",
                                           "DesignLeft", "DesignTop", "ParentColor"};
// A data module has its place and size, and hardly anything else.
constexpr const char* ModuleProperties[] = {
    "OldCreateOrder",   "OnCreate",       "OnDestroy",     "Left", "Top", "Width",     "Height",
    "HorizontalOffset", "VerticalOffset", "PixelsPerInch", "PPI",  "Tag", "LCLVersion"};

bool HasAny(const forms::Object& object, std::span<const char* const> names) {
  return std::any_of(names.begin(), names.end(), [&](const char* n) { return object.Says(n); });
}
bool EndsWith(QByteArrayView name, QByteArrayView ending) {
  return name.size() >= ending.size() && name.last(ending.size()).compare(ending, Qt::CaseInsensitive) == 0;
}
const NameRow* RowOf(QByteArrayView className) {
  for (const NameRow& row : NameRows)
    if (EndsWith(className, row.ending)) return &row;
  return nullptr;
}
// "TForm1", "TMainForm".
bool IsCalledForm(QByteArrayView name) {
  while (!name.isEmpty() && name.back() >= '0' && name.back() <= '9') name.chop(1);
  return EndsWith(name, "Form");
}
bool HasVisualChild(const forms::Object& object) {
  return std::any_of(object.children.begin(), object.children.end(),
                     [](const auto& child) { return IsVisual(*child); });
}
bool HasSize(const forms::Object& object) { return object.Says("Width") && object.Says("Height"); }

// A part of a larger control that the file gives no place of its own: the pages of wizards and the like.
bool FillsItsParent(const forms::Object& object) {
  return object.kind == forms::ObjectKind::Object && object.parent && object.parent->parent &&
         !object.Find("Left") && !object.Find("Width") && !object.Find("Height") && !object.Find("Align") &&
         !FindClass(object.parent->className) && HasVisualChild(object);
}
}  // namespace

QSize UsualSize(TStandInLook look) {
  for (const SizeRow& row : SizeRows)
    if (row.look == look) return row.size;
  return {121, 41};
}

TStandInLook LookOf(const forms::Object& object) {
  const NameRow* row = RowOf(object.className);
  if (row && row->look == Page) return object.parent && object.parent->parent ? Page : Panel;
  if (row && row->look != Component) return row->look;
  const bool control = object.IsFrame() || HasAny(object, ControlProperties) ||
                       (!row && (HasSize(object) || HasVisualChild(object)));
  if (!control) return Component;
  if (FillsItsParent(object)) return Page;
  return object.IsFrame() || HasVisualChild(object) ? Panel : Plain;
}

bool IsVisual(const forms::Object& object) {
  const TClass* cls = FindClass(object.className);
  return cls && !cls->IsAbstract() ? cls->InheritsFrom(TControl::StaticClass()) : LookOf(object) != Component;
}

bool RootHasProperty(TFormKind kind, QByteArrayView property) {
  static constexpr const char* module[] = {"Name",  "Tag",    "Left",     "Top",
                                           "Width", "Height", "OnCreate", "OnDestroy"};
  static constexpr const char* formEvents[] = {"OnCreate", "OnDestroy", "OnPaint"};
  const auto among = [&](std::span<const char* const> names) {
    return std::any_of(names.begin(), names.end(), [&](const char* n) {
      return property.compare(QByteArrayView(n), Qt::CaseInsensitive) == 0;
    });
  };
  if (kind == TFormKind::DataModule) return among(module);
  return kind == TFormKind::Form || !(among(FormProperties) || among(formEvents));
}

TFormKind KindOfRoot(const forms::Object& root) {
  if (root.origin) return KindOfRoot(*root.origin->object);
  if (HasAny(root, FormProperties)) return TFormKind::Form;
  if (HasAny(root, FrameProperties)) return TFormKind::Frame;
  if (HasVisualChild(root))
    // An inherited form always says something of a form again.
    return root.kind == forms::ObjectKind::Inherited || EndsWith(root.className, "Frame") ? TFormKind::Frame
                                                                                          : TFormKind::Form;
  const bool plain =
      std::all_of(root.properties.begin(), root.properties.end(), [](const forms::Property& p) {
        return std::any_of(std::begin(ModuleProperties), std::end(ModuleProperties), [&](const char* name) {
          return p.Name().compare(QByteArrayView(name), Qt::CaseInsensitive) == 0;
        });
      });
  if (plain && !IsCalledForm(root.className) && (!root.children.empty() || root.Find("OldCreateOrder")))
    return TFormKind::DataModule;
  return EndsWith(root.className, "Frame") ? TFormKind::Frame : TFormKind::Form;
}

namespace {
// What the file says about the looks of an object of an unknown class.
class Reader {
 public:
  Reader(const forms::Document& document, const forms::Object& object)
      : document_(document), object_(object) {}

  QString Text(QByteArrayView name) const {
    const auto [v, document] = Read(name);
    return v.IsString()                        ? document->Decode(v)
           : v.type == forms::ValueType::Ident ? QString::fromUtf8(v.bytes)
                                               : QString();
  }
  QStringList Lines(QByteArrayView name) const {
    QStringList lines;
    const auto [value, document] = Read(name);
    for (const forms::Value& v : value.items)
      if (v.IsString()) lines << document->Decode(v);
    return lines;
  }
  std::optional<int> Number(QByteArrayView name) const {
    const forms::Value v = Read(name).value;
    if (!v.IsInteger() || v.integer < INT16_MIN || v.integer > INT16_MAX) return {};
    return static_cast<int>(v.integer);
  }
  // Captions and widths of a collection of columns, whichever framework wrote it.
  std::vector<TStandInColumn> Columns(QByteArrayView name) const {
    std::vector<TStandInColumn> columns;
    const auto [value, document] = Read(name);
    for (const forms::CollectionItem& item : value.collection) {
      TStandInColumn column;
      for (const forms::NamedValue& v : item.properties) {
        const bool caption = v.path == "Caption" || v.path == "Title.Caption" || v.path == "Text";
        if (caption || (v.path == "FieldName" && column.text.isEmpty()))
          if (v.value.IsString()) column.text = document->Decode(v.value);
        if (v.path == "Width" && v.value.IsInteger())
          column.width = static_cast<int>(std::clamp<std::int64_t>(v.value.integer, 0, INT16_MAX));
      }
      columns.push_back(std::move(column));
    }
    return columns;
  }
  std::shared_ptr<const TPicture> Picture(QByteArrayView name) const {
    forms::Value v = Read(name).value;
    if (v.type != forms::ValueType::Binary) return {};
    v.Own();
    auto picture = std::make_shared<TPicture>();
    picture->SetData(v.bytes);
    return picture;
  }
  QStringList Elements(QByteArrayView name, const QStringList& otherwise) const {
    if (!Has(name)) return otherwise;
    QStringList elements;
    const forms::Value v = Read(name).value;
    for (const QByteArray& e : v.elements) elements << QString::fromUtf8(e);
    return elements;
  }
  bool True(QByteArrayView name) const { return Read(name).value.type == forms::ValueType::True; }
  std::optional<TColor> Color(QByteArrayView name) const {
    if (!Has(name)) return {};
    const forms::Value v = Read(name).value;
    std::int64_t color = v.integer;
    if (!v.IsInteger() && !(v.type == forms::ValueType::Ident && IdentToColor(v.bytes, color))) return {};
    const TColor result{static_cast<std::uint32_t>(color)};
    return result == clDefault || result == clNone ? std::nullopt : std::optional(result);
  }
  bool Has(QByteArrayView name) const { return object_.Says(name); }
  bool IsCalled(QByteArrayView ending) const { return EndsWith(object_.className, ending); }

 private:
  struct Said {
    forms::Value value;  // of no kind when nobody says it
    const forms::Document* document = nullptr;
  };
  // What the object says, or else the nearest of its origins.
  Said Read(QByteArrayView name) const {
    const forms::Document* document = &document_;
    for (const forms::Object* o = &object_; o; o = o->origin ? o->origin->object : nullptr) {
      if (const forms::Property* p = o->Find(name)) return {document->Read(*p), document};
      if (o->origin) document = o->origin->document;
    }
    return {};
  }
  const forms::Document& document_;
  const forms::Object& object_;
};

// The buttons of a row in their usual order.
QStringList ShownButtons(const Reader& read) {
  struct Row {
    const char* element;
    const char* caption;
  };
  static constexpr Row rows[] = {{"pbHelp", "Help"},     {"pbOK", "OK"},         {"pbClose", "Close"},
                                 {"pbCancel", "Cancel"}, {"nbFirst", "|\u25C0"}, {"nbPrior", "\u25C0"},
                                 {"nbNext", "\u25B6"},   {"nbLast", "\u25B6|"},  {"nbInsert", "+"},
                                 {"nbDelete", "\u2212"}, {"nbEdit", "\u25B2"},   {"nbPost", "\u2713"},
                                 {"nbCancel", "\u2717"}, {"nbRefresh", "\u21BB"}};
  static const QStringList usual{QStringLiteral("pbHelp"), QStringLiteral("pbOK"), QStringLiteral("pbClose"),
                                 QStringLiteral("pbCancel")};
  static const QStringList browsing{QStringLiteral("nbFirst"),  QStringLiteral("nbPrior"),
                                    QStringLiteral("nbNext"),   QStringLiteral("nbLast"),
                                    QStringLiteral("nbInsert"), QStringLiteral("nbDelete"),
                                    QStringLiteral("nbEdit"),   QStringLiteral("nbPost"),
                                    QStringLiteral("nbCancel"), QStringLiteral("nbRefresh")};
  const QStringList shown = read.Elements(
      "ShowButtons", read.Elements("VisibleButtons", read.IsCalled("Navigator") ? browsing : usual));
  QStringList captions;
  for (const Row& row : rows)
    if (shown.contains(QString::fromLatin1(row.element))) captions << QString::fromUtf8(row.caption);
  return captions;
}

void ReadFont(const Reader& read, TFont& font) {
  if (const QString name = read.Text("Font.Name"); !name.isEmpty()) font.SetName(name);
  if (const auto height = read.Number("Font.Height"); height && *height) font.SetHeight(*height);
  if (const auto color = read.Color("Font.Color")) font.SetColor(*color);
}
}  // namespace

bool StandInShowsPicture(QByteArrayView property) {
  return std::any_of(std::begin(StandInPictures), std::end(StandInPictures),
                     [&](const char* name) { return property == name; });
}

namespace {
// Everything that may change while the component stays.
TStandIn ReadLook(const Reader& read, TStandInLook look) {
  TStandIn what;
  what.look = look;
  what.text = read.Text("Text");
  for (const char* lines : {"Lines.Strings", "SQL.Strings"})
    if (what.text.isEmpty()) what.text = read.Lines(lines).join(u'\n');
  for (const char* other : {"Title", "DataField", "FileName", "Directory"})
    if (what.text.isEmpty() && look != Label) what.text = read.Text(other);
  if (what.text.isEmpty() && read.Has("Value") && look == Spin)
    what.text = QString::number(read.Number("Value").value_or(0));
  what.items = read.Lines("Items.Strings");
  if (what.items.isEmpty()) what.items = read.Lines("Tabs.Strings");
  if (look == Buttons) what.items = ShownButtons(read);
  what.index = read.Number("ItemIndex").value_or(-1);
  what.checked = read.True("Checked") || read.Text("State") == QStringLiteral("cbChecked");
  what.columns = std::max(1, read.Number("Columns").value_or(1));
  for (const char* columns : {"Columns", "Header.Columns", "Panels"})
    if (what.headers.empty()) what.headers = read.Columns(columns);
  for (const char* picture : StandInPictures)
    if (!what.picture) what.picture = read.Picture(picture);
  what.activePage = read.Text("ActivePage");
  what.activeIndex = read.Number("PageIndex").value_or(read.Number("ActivePageIndex").value_or(0));
  what.color = read.Color("Color");
  return what;
}
}  // namespace

void LookAgain(TComponent& component, const forms::Document& document, const forms::Object& object) {
  auto* control = dynamic_cast<TUnknownControl*>(&component);
  if (!control) return;
  TStandIn what = ReadLook(Reader(document, object), control->StandIn().look);
  what.hasPlace = control->StandIn().hasPlace;
  what.usualAlign = control->StandIn().usualAlign;
  control->SetStandIn(std::move(what));
  control->Invalidate();
}

bool NeedsStandIn(const TClass& cls, const forms::Object& object) {
  if (!cls.InheritsFrom(TTabSheet::StaticClass())) return false;
  const TClass* book = object.parent ? FindClass(object.parent->className) : nullptr;
  return !book || !book->InheritsFrom(TPageControl::StaticClass());
}

TComponent* MakeStandIn(const forms::Document& document, const forms::Object& object, TComponent* owner) {
  const QByteArray cls(object.className.constData(), object.className.size());
  const TStandInLook look = LookOf(object);
  if (look == Component) {
    auto* component = new TUnknownComponent(owner);
    component->SetStreamClassName(cls);
    return component;
  }
  const Reader read(document, object);
  auto* control = new TUnknownControl(owner);
  control->SetStreamClassName(cls);
  TStandIn what = ReadLook(read, look);
  what.hasPlace = look != Page || HasAny(object, PlaceProperties);
  for (const AlignRow& row : AlignRows)
    if (EndsWith(cls, row.ending) && (object.origin || object.kind != forms::ObjectKind::Inherited))
      what.usualAlign = row.align;
  control->SetAlign(what.usualAlign);
  if (what.color) control->SetColor(*what.color);
  control->SetStandIn(std::move(what));
  if (read.Has("Font.Name") || read.Has("Font.Height") || read.Has("Font.Color"))
    ReadFont(read, *control->Font());
  const QSize usual = UsualSize(look);
  control->SetBounds(
      0, 0, read.Number("ExplicitWidth").value_or(read.Number("ClientWidth").value_or(usual.width())),
      read.Number("ExplicitHeight").value_or(read.Number("ClientHeight").value_or(usual.height())));
  return control;
}
