#include "package/component_editors/pVRXCEPages.h"

#include "library_design/LookDialogs.h"
#include "library_design/ValueDialogs.h"
#include "rtl/Exceptions.h"

namespace {
using C = TWinControl;

TVRXAssist* AssistOf(const C& c) {
  if (const auto* page = As<TVRXAssistPage>(&c)) return page->AssistControl();
  return const_cast<TVRXAssist*>(As<TVRXAssist>(&c));
}
bool HasPages(const C& c) {
  const TVRXAssist* assist = AssistOf(c);
  return assist && assist->Pages().size() > 1;
}
// The page that a place among the pages leads to, round and round. A selected page would come to the front
// again, so the new one is selected in its place.
VerbOf<C> PageVerb(const char* caption, int (*placeOf)(int front, int count)) {
  return VerbOf<C>(caption,
                   [placeOf](C& c, IDesigner& designer) {
                     TVRXAssist& assist = *AssistOf(c);
                     const int count = static_cast<int>(assist.Pages().size());
                     assist.ChooseTab((placeOf(assist.FrontTab(), count) + count) % count);
                     if (&c != &assist) designer.SelectComponent(assist.ActivePage());
                   })
      .When(HasPages);
}

// A page of the class in that book, made by the designer: owned by the form, under a name of its own.
template <class Page>
Page& NewPage(IDesigner& designer, const TClass& cls, TPageBook& book) {
  auto* page = As<Page>(designer.CreateComponent(cls, &book, {}));
  if (!page) throw EComponentError(QObject::tr("A page cannot be added here."));
  return *page;
}
}  // namespace

const TVRXAssistComponentEditor::Verbs TVRXAssistComponentEditor::Table = {
    PageVerb("Ne&xt Page", [](int front, int) { return front + 1; }),
    PageVerb("&Previous Page", [](int front, int) { return front - 1; }),
    PageVerb("&First Page", [](int, int) { return 0; }),
    PageVerb("&Last Page", [](int, int count) { return count - 1; }),
    {"&New Page",
     [](C& c, IDesigner& designer) {
       TVRXAssist* assist = AssistOf(c);
       if (!assist) return false;
       NewPage<TVRXAssistPage>(designer, TVRXAssistPage::StaticClass(), *assist).SetAssistControl(assist);
       return true;
     }},
};

namespace {
TVRXCustomSheetControl* SheetControlOf(const C& c) {
  if (const auto* sheet = As<TVRXCustomSheet>(&c)) return sheet->SheetControl();
  return const_cast<TVRXCustomSheetControl*>(As<TVRXCustomSheetControl>(&c));
}
void DisplaySheet(TVRXCustomSheetControl& control, int index, IDesigner& designer) {
  control.ChooseTab(index);
  designer.SelectComponent(control.ActiveSheet());
}
}  // namespace

const TVRXNoteBookComponentEditor::Verbs TVRXNoteBookComponentEditor::Table = {
    {"Select Control",
     [](C& c, IDesigner& designer) {
       TVRXCustomSheetControl* control = SheetControlOf(c);
       if (control) designer.SelectComponent(control);
       return control != nullptr;
     }},
    {"&New Page",
     [](C& c, IDesigner& designer) {
       TVRXCustomSheetControl* control = SheetControlOf(c);
       if (!control) return false;
       auto& sheet = NewPage<TVRXCustomSheet>(designer, control->SheetClass(), *control);
       sheet.SetSheetControl(control);
       DisplaySheet(*control, sheet.PageIndex(), designer);
       return true;
     }},
    {"-"},
    Verb(
        [](const C& c, int i) -> QString {
          return QStringLiteral("Display Page ") +
                 SheetControlOf(c)->Sheets()[static_cast<std::size_t>(i)]->Name();
        },
        [](C& c, IDesigner& designer, int i) { DisplaySheet(*SheetControlOf(c), i, designer); })
        .Times([](const C& c) {
          const TVRXCustomSheetControl* control = SheetControlOf(c);
          return control && control->SheetCount() > 1 ? control->SheetCount() : 0;
        }),
};

namespace {
using Group = TVRXCaptionPanelGroup;
using Panel = TVRXCaptionPanel;

Group* GroupOf(const C& c) {
  if (const auto* panel = As<Panel>(&c)) return panel->Group();
  return const_cast<Group*>(As<Group>(&c));
}
bool InGroup(const C& c) { return GroupOf(c) != nullptr; }
bool IsLone(const C& c) { return !InGroup(c); }
bool IsGroup(const C& c) { return As<Group>(&c) != nullptr; }
bool IsPanelInGroup(const C& c) { return InGroup(c) && !IsGroup(c); }
Panel& PanelOf(C& c) { return dynamic_cast<Panel&>(c); }
const Panel& PanelOf(const C& c) { return dynamic_cast<const Panel&>(c); }

// What a verb does to the group.
template <class F>
VerbOf<C> GroupVerb(const char* caption, F action) {
  return VerbOf<C>(caption, [action](C& c, IDesigner& designer) { return action(*GroupOf(c), designer); })
      .When(InGroup);
}
template <class F>
VerbOf<C> LoneVerb(const char* caption, F action) {
  return VerbOf<C>(caption, [action](C& c) { return action(PanelOf(c)); }).When(IsLone);
}
VerbOf<C> MoveVerb(const char* caption, int by) {
  return VerbOf<C>(caption, [by](C& c) { PanelOf(c).SetIndex(PanelOf(c).Index() + by); })
      .When(IsPanelInGroup);
}
constexpr TFlagVerb TransparentFlag{"Transparent", "Transparent"};

bool AddPanel(Group& group, IDesigner& designer) {
  auto* panel = As<Panel>(designer.CreateComponent(Panel::StaticClass(), &group, {}));
  if (!panel) throw EComponentError(QObject::tr("A panel cannot be added here."));
  panel->SetParent(&group);
  panel->SetSilentIndex(static_cast<int>(group.PanelList().size()) - 1);
  group.Change();
  group.ScrollInView(*panel);
  return true;
}
bool SelectPanels(Group& group, IDesigner& designer) {
  TDesignerSelections panels;
  for (Panel* panel : group.PanelList()) panels.push_back(panel);
  designer.SetSelections(panels);
  return true;
}
bool SetCaptionOf(Panel& panel) {
  QString caption = panel.Caption();
  if (!VRXCPGetCaption(caption)) return false;
  panel.SetCaption(caption);
  return true;
}
}  // namespace

const TVRXCaptionPanelGroupEditor::Verbs TVRXCaptionPanelGroupEditor::Table = {
    GroupVerb("Select PanelGroup",
              [](Group& group, IDesigner& designer) {
                designer.SelectComponent(&group);
                return true;
              }),
    GroupVerb("Add Panel", AddPanel),
    Verb("-").When(InGroup),
    GroupVerb("Select all Panels", SelectPanels),
    GroupVerb("Expand all Panels", [](Group& group, IDesigner&) { return group.ExpandAll(), true; }),
    GroupVerb("Collapse all Panels", [](Group& group, IDesigner&) { return group.CollapseAll(), true; }),
    Verb("-").When(InGroup),
    GroupVerb("Bevel", [](Group& group, IDesigner&) { return VRXCPGetBevel(*group.Bevel()); }),
    Verb([](const C& c) { return TransparentFlag.Caption(*GroupOf(c)); },
         [](C& c) { TransparentFlag.Toggle(*GroupOf(c)); })
        .When(InGroup),
    Verb("-").When(InGroup),
    Verb(
        [](const C& c) {
          return GroupOf(c)->Get(Group::Orientation) == TVRXGroupOrientation::goVertical
                     ? "Change Orientation to horizontal"
                     : "Change Orientation to vertical";
        },
        [](C& c) {
          using enum TVRXGroupOrientation;
          Group& group = *GroupOf(c);
          const TUpdateLock once(group);
          group.SetOrientation(group.Get(Group::Orientation) == goVertical ? goHorizontal : goVertical);
        })
        .When(IsGroup),
    MoveVerb("Move Up", -1),
    MoveVerb("Move Down", 1),
    // A panel that stands anywhere else.
    LoneVerb("Bevel", [](Panel& panel) { return VRXCPGetBevel(*panel.Bevel()); }),
    LoneVerb("Caption", SetCaptionOf),
    LoneVerb("Caption Position",
             [](Panel& panel) { return VRXCPSelectValueDialog(*panel.CaptionObject(), "Position"); }),
    LoneVerb("Caption Buttons",
             [](Panel& panel) { return VRXCPSelectValueDialog(*panel.CaptionObject(), "Buttons"); }),
    Verb([](const C& c) { return TransparentFlag.Caption(c); }, [](C& c) { TransparentFlag.Toggle(c); })
        .When(IsLone),
    Verb("-").When(IsLone),
    Verb([](const C& c) { return PanelOf(c).Expanded() ? "Collapse" : "Expand"; },
         [](C& c) { PanelOf(c).SetExpanded(!PanelOf(c).Expanded()); })
        .When(IsLone),
};
