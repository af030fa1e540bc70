// Context menus of wizards, notebooks and panels that fold, in every state; what each verb does to the
// component, the selection and the designer; the lists of pages in the inspector.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QListWidget>

#include "library_design/LookDialogs.h"
#include "library_design/ValueDialogs.h"
#include "package/component_editors/pVRXCEPages.h"
#include "package/property_editors/pVRXPeMain.h"
#include "package/registration/VRX_RegMain.h"
#include "package/registration/VRX_RegMainEditors.h"
#include "tests/designintf/DesignTest.h"
#include "tests/support/Modal.h"
#include "vcl/Form.h"

namespace {
QJsonArray Cases(const char* list) {
  QFile file(QStringLiteral(VRX_SOURCE_DIR "/tests/package/cases/verbs.json"));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  const QJsonArray cases = QJsonDocument::fromJson(file.readAll()).object()[QLatin1String(list)].toArray();
  EXPECT_FALSE(cases.isEmpty()) << list;
  return cases;
}
void ExpectMenu(const TComponentEditor& editor, const QJsonValue& verbs) {
  QStringList menu, wanted;
  for (int i = 0; i < editor.GetVerbCount(); ++i) menu << editor.GetVerb(i);
  for (const QJsonValue& verb : verbs.toArray())
    wanted << verb.toString()
                  .replace(QStringLiteral("{True}"), QString::fromUtf8(BoolStr[1]))
                  .replace(QStringLiteral("{False}"), QString::fromUtf8(BoolStr[0]));
  EXPECT_EQ(menu.join(u'|').toStdString(), wanted.join(u'|').toStdString());
  for (const int i : {-1, editor.GetVerbCount(), 1000}) EXPECT_EQ(editor.GetVerb(i), QString());
}

// Makes components on a form, and remembers what is selected.
class Designer : public FakeDesigner {
 public:
  explicit Designer(TForm& form) : FakeDesigner(&form) {}
  TComponent* CreateComponent(const TClass& cls, TComponent* parent, const QRect&) override {
    TComponent* component = cls.NewComponent(root);
    component->SetName(QStringLiteral("New%1").arg(++made));
    component->SetParentComponent(parent);
    return component;
  }
  void SelectComponent(TPersistent* instance) override { SetSelections({instance}); }
  void SetSelections(const TDesignerSelections& list) override {
    QStringList names;
    for (TPersistent* p : list) names << As<TComponent>(p)->Name();
    selected = names.join(u'+').toStdString();
  }
  int made = 0;
  std::string selected;
};

class PagesVerbs : public testing::Test {
 protected:
  template <class C>
  C& Put(TWinControl& parent, const QString& name) {
    auto* control = new C(&form);
    control->SetName(name);
    control->SetParent(&parent);
    return *control;
  }
  TVRXAssist& Assist(int pages) {
    auto& assist = Put<TVRXAssist>(form, QStringLiteral("Assist%1").arg(form.Components().size()));
    for (int i = 0; i < pages; ++i)
      Put<TVRXAssistPage>(assist, QStringLiteral("%1Page%2").arg(assist.Name()).arg(i));
    return assist;
  }
  static int IndexOf(const TComponentEditor& editor, const QString& verb) {
    for (int i = 0; i < editor.GetVerbCount(); ++i)
      if (editor.GetVerb(i) == verb) return i;
    return -1;
  }
  // Of the editor that the package registers for the component.
  void Run(TComponent& component, const char* verb) {
    const Scope scope("VRX_RegMain");
    VRX_RegMain::Register();
    const auto editor = scope.registry.GetComponentEditor(&component, &designer);
    const int index = IndexOf(*editor, QString::fromLatin1(verb));
    ASSERT_GE(index, 0) << verb;
    designer.modified = 0;
    designer.selected.clear();
    editor->ExecuteVerb(index);
  }
  TForm form{nullptr};
  Designer designer{form};
};
}  // namespace

TEST_F(PagesVerbs, OfAWizardFollowTheNumberOfItsPages) {
  for (const QJsonValue& c : Cases("assist")) {
    const QJsonObject state = c[QStringLiteral("state")].toObject();
    const bool isPage = state[QStringLiteral("component")] == QStringLiteral("page");
    if (state[QStringLiteral("pages")].isNull()) {
      TVRXAssistPage alone(nullptr);
      TVRXAssistComponentEditor editor(&alone, &designer);
      ExpectMenu(editor, c[QStringLiteral("verbs")]);
      editor.ExecuteVerb(0);
      EXPECT_EQ(designer.made + designer.modified, 0) << "there is no wizard to make it for";
      continue;
    }
    TVRXAssist& assist = Assist(state[QStringLiteral("pages")].toInt());
    TComponent* subject = isPage ? static_cast<TComponent*>(assist.Pages().back()) : &assist;
    ExpectMenu(TVRXAssistComponentEditor(subject, &designer), c[QStringLiteral("verbs")]);
  }
}

TEST_F(PagesVerbs, OfAWizardGoRoundAndRound) {
  for (const QJsonValue& c : Cases("assistActivates"))
    for (const bool fromPage : {false, true}) {
      TVRXAssist& assist = Assist(c[QStringLiteral("pages")].toInt());
      const int active = c[QStringLiteral("active")].toInt();
      const QJsonObject activates = c[QStringLiteral("activates")].toObject();
      EXPECT_EQ(activates.size(), 4);
      for (auto it = activates.begin(); it != activates.end(); ++it) {
        SCOPED_TRACE(it.key().toStdString());
        assist.SetActivePage(assist.Pages()[static_cast<std::size_t>(active)]);
        Run(fromPage ? static_cast<TComponent&>(*assist.ActivePage()) : assist,
            it.key().toLatin1().constData());
        EXPECT_EQ(assist.ActivePage()->PageIndex(), it.value().toInt());
        EXPECT_EQ(designer.modified, 1);
        EXPECT_EQ(designer.selected, fromPage ? assist.ActivePage()->Name().toStdString() : "");
      }
    }
}

TEST_F(PagesVerbs, ANewPageOfAWizardIsTheFormsAndStandsLast) {
  TVRXAssist& assist = Assist(2);
  for (TComponent* from : {static_cast<TComponent*>(&assist), static_cast<TComponent*>(assist.Pages()[0])}) {
    Run(*from, "&New Page");
    EXPECT_EQ(designer.modified, 1);
    const TVRXAssistPage* page = assist.Pages().back();
    EXPECT_EQ(page->Name(), QStringLiteral("New%1").arg(designer.made));
    EXPECT_EQ(page->GetOwner(), &form);
    EXPECT_EQ(page->AssistControl(), &assist);
  }
  EXPECT_EQ(assist.Pages().size(), 4u);
}

TEST_F(PagesVerbs, OfANotebookNameItsSheets) {
  for (const QJsonValue& c : Cases("noteBook")) {
    TForm own(nullptr);
    auto* book = new TVRXNoteBook(&own);
    book->SetParent(&own);
    TVRXNoteBookPage* last = nullptr;
    for (const QJsonValue& name : c[QStringLiteral("state")][QStringLiteral("sheets")].toArray()) {
      last = new TVRXNoteBookPage(&own);
      last->SetName(name.toString());
      last->SetParent(book);
    }
    ExpectMenu(TVRXNoteBookComponentEditor(book, &designer), c[QStringLiteral("verbs")]);
    if (last) ExpectMenu(TVRXNoteBookComponentEditor(last, &designer), c[QStringLiteral("verbs")]);
  }
}

TEST_F(PagesVerbs, OfANotebookSelectWhatTheyLeadTo) {
  auto& book = Put<TVRXNoteBook>(form, QStringLiteral("Book"));
  auto& zeta = Put<TVRXNoteBookPage>(book, QStringLiteral("Zeta"));
  Put<TVRXNoteBookPage>(book, QStringLiteral("Alpha"));
  Run(zeta, "Select Control");
  EXPECT_EQ(designer.selected, "Book");
  Run(book, "Display Page Alpha");
  EXPECT_EQ(book.ActivePage()->Name(), QStringLiteral("Alpha"));
  EXPECT_EQ(designer.selected, "Alpha");
  EXPECT_EQ(designer.modified, 1);
  Run(zeta, "Display Page Zeta");
  EXPECT_EQ(book.ActivePage(), &zeta);
  EXPECT_EQ(designer.selected, "Zeta");
  Run(zeta, "&New Page");
  EXPECT_EQ(designer.selected, "New1");
  EXPECT_EQ(book.ActivePage()->Name(), QStringLiteral("New1"));
  EXPECT_EQ(book.ActivePage()->SheetControl(), &book);
  EXPECT_EQ(book.ActivePage()->GetOwner(), &form);
  EXPECT_EQ(designer.modified, 1);
  // Shown for the moment only, the active one comes to the front again.
  book.ShowPage(zeta);
  Run(book, "Display Page New1");
  EXPECT_EQ(book.FrontPage()->Name(), QStringLiteral("New1"));
  TVRXNoteBookPage alone(nullptr);
  TVRXNoteBookComponentEditor editor(&alone, &designer);
  EXPECT_EQ(editor.GetVerbCount(), 3);
  designer.modified = designer.made = 0;
  for (const int i : {0, 1, 2, 3}) editor.ExecuteVerb(i);
  EXPECT_EQ(designer.modified + designer.made, 0);
}

TEST_F(PagesVerbs, OfPanelsFollowWhereTheyStandAndHow) {
  for (const QJsonValue& c : Cases("captionPanelGroup")) {
    const QJsonObject state = c[QStringLiteral("state")].toObject();
    const QString component = state[QStringLiteral("component")].toString();
    TForm own(nullptr);
    auto* group = new TVRXCaptionPanelGroup(&own);
    group->SetParent(&own);
    auto* panel = new TVRXCaptionPanel(&own);
    panel->SetParent(component == QStringLiteral("lone panel") ? static_cast<TWinControl*>(&own) : group);
    group->Set(TVRXCaptionPanelGroup::Transparent, state[QStringLiteral("groupTransparent")].toBool());
    if (state.contains(QStringLiteral("orientation")))
      group->SetOrientation(static_cast<TVRXGroupOrientation>(state[QStringLiteral("orientation")].toInt()));
    panel->Set(TVRXCaptionPanel::Transparent, state[QStringLiteral("transparent")].toBool());
    panel->SetExpanded(state[QStringLiteral("expanded")].toBool(true));
    TComponent* subject = component == QStringLiteral("group") ? static_cast<TComponent*>(group) : panel;
    ExpectMenu(TVRXCaptionPanelGroupEditor(subject, &designer), c[QStringLiteral("verbs")]);
  }
}

TEST_F(PagesVerbs, OfAGroupDoWhatTheySay) {
  auto& group = Put<TVRXCaptionPanelGroup>(form, QStringLiteral("Group"));
  auto& one = Put<TVRXCaptionPanel>(group, QStringLiteral("One"));
  auto& two = Put<TVRXCaptionPanel>(group, QStringLiteral("Two"));
  group.SetBounds(0, 0, 200, 150);
  one.SetHeight(60);
  two.SetHeight(60);
  const auto order = [&] {
    QStringList names;
    for (const TVRXCaptionPanel* p : group.PanelList()) names << p->Name();
    return names.join(u' ').toStdString();
  };
  Run(two, "Select PanelGroup");
  EXPECT_EQ(designer.selected, "Group");
  Run(one, "Select all Panels");
  EXPECT_EQ(designer.selected, "One+Two");
  Run(group, "Collapse all Panels");
  EXPECT_FALSE(one.Expanded() || two.Expanded());
  Run(two, "Expand all Panels");
  EXPECT_TRUE(one.Expanded() && two.Expanded());
  EXPECT_EQ(designer.modified, 1);
  Run(two, "Move Up");
  EXPECT_EQ(order(), "Two One");
  Run(two, "Move Up");
  EXPECT_EQ(order(), "Two One") << "it is the first one";
  Run(two, "Move Down");
  EXPECT_EQ(order(), "One Two");
  Run(two, "Transparent: False");
  EXPECT_TRUE(group.Get(TVRXCaptionPanelGroup::Transparent)) << "that of the group";
  EXPECT_FALSE(two.Get(TVRXCaptionPanel::Transparent));
  Run(group, "Change Orientation to horizontal");
  EXPECT_EQ(group.Get(TVRXCaptionPanelGroup::Orientation), TVRXGroupOrientation::goHorizontal);
  Run(group, "Change Orientation to vertical");
  EXPECT_EQ(group.Get(TVRXCaptionPanelGroup::Orientation), TVRXGroupOrientation::goVertical);
  Run(one, "Add Panel");
  EXPECT_EQ(order(), "One Two New1");
  EXPECT_EQ(group.PanelList()[2]->GetOwner(), &form);
  EXPECT_LE(group.PanelList()[2]->Top() + group.PanelList()[2]->Height(), 146) << "scrolled to";
  EXPECT_EQ(designer.modified, 1);
  for (const bool ok : {false, true}) {
    modal::NextOf<TVRXBevelEditorDlg>(
        [ok](TVRXBevelEditorDlg& dialog) { ok ? dialog.accept() : dialog.reject(); });
    Run(two, "Bevel");
    EXPECT_EQ(designer.modified, ok ? 1 : 0);
  }
}

TEST_F(PagesVerbs, OfALonePanelAreItsOwn) {
  auto& panel = Put<TVRXCaptionPanel>(form, QStringLiteral("Panel"));
  Run(panel, "Collapse");
  EXPECT_FALSE(panel.Expanded());
  Run(panel, "Expand");
  EXPECT_TRUE(panel.Expanded());
  Run(panel, "Transparent: False");
  EXPECT_TRUE(panel.Get(TVRXCaptionPanel::Transparent));
  for (const bool ok : {false, true}) {
    modal::NextOf<TVRXTextDlg>([ok](TVRXTextDlg& dialog) {
      dialog.text->setText(QStringLiteral("Tools"));
      ok ? dialog.ok->click() : dialog.cancel->click();
    });
    Run(panel, "Caption");
    EXPECT_EQ(designer.modified, ok ? 1 : 0);
    EXPECT_EQ(panel.Caption() == QStringLiteral("Tools"), ok);
    modal::NextOf<TVRXSelectValueDlg>([ok](TVRXSelectValueDlg& dialog) {
      dialog.names->setCurrentRow(2);
      ok ? dialog.ok->click() : dialog.cancel->click();
    });
    Run(panel, "Caption Position");
    EXPECT_EQ(designer.modified, ok ? 1 : 0);
    EXPECT_EQ(panel.CaptionObject()->Get(TVRXPanelCaptionObject::Position),
              ok ? TVRXCaptionPosition::cpLeft : TVRXCaptionPosition::cpTop);
    modal::NextOf<TVRXSelectValueDlg>([ok](TVRXSelectValueDlg& dialog) {
      dialog.names->item(3)->setCheckState(Qt::Checked);
      ok ? dialog.ok->click() : dialog.cancel->click();
    });
    Run(panel, "Caption Buttons");
    EXPECT_EQ(designer.modified, ok ? 1 : 0);
    EXPECT_EQ(panel.CaptionObject()->Get(TVRXPanelCaptionObject::Buttons).Contains(TVRXPanelButton::pbClose),
              ok);
  }
}

TEST_F(PagesVerbs, TheInspectorListsThePagesByName) {
  const Scope scope("VRX_RegMain");
  VRX_RegMain::Register();
  VRX_RegMainEditors::Register();
  TVRXAssist& assist = Assist(3);
  auto& book = Put<TVRXNoteBook>(form, QStringLiteral("Book"));
  Put<TVRXNoteBookPage>(book, QStringLiteral("Zeta"));
  Put<TVRXNoteBookPage>(book, QStringLiteral("Alpha"));
  auto& other = Put<TVRXNoteBook>(form, QStringLiteral("Other"));
  Put<TVRXNoteBookPage>(other, QStringLiteral("Elsewhere"));
  const auto listed = [&](TComponent& c) {
    const auto editor =
        scope.registry.CreatePropertyEditor(&designer, {{&c, &c.ClassType().GetProp("ActivePage")}});
    EXPECT_EQ(editor->GetAttributes(), (TPropertyAttributes{TPropertyAttribute::paValueList}));
    QStringList names;
    editor->GetValues([&](const QString& name) { names << name; });
    return names.join(u' ').toStdString();
  };
  const QString name = assist.Name();
  EXPECT_EQ(listed(assist), QStringLiteral("%1Page0 %1Page1 %1Page2").arg(name).toStdString());
  EXPECT_EQ(listed(book), "Zeta Alpha") << "in their order, and none of another notebook";
  TVRXCaptionPanel& panel = Put<TVRXCaptionPanel>(form, QStringLiteral("Panel"));
  const auto caption =
      scope.registry.CreatePropertyEditor(&designer, {{&panel, &panel.ClassType().GetProp("CaptionObject")}});
  EXPECT_EQ(caption->GetAttributes(),
            (TPropertyAttributes{TPropertyAttribute::paSubProperties, TPropertyAttribute::paMultiSelect}));
  EXPECT_EQ(
      scope.registry.CreatePropertyEditor(&designer, {{&panel, &panel.ClassType().GetProp("AutoSize")}}),
      nullptr)
      << "the inspector does not show it";
}
