// The style editor on styles of its own, its trees filled, its messages kept.
#pragma once
#include "library/controls/LEDLabel.h"
#include "package/styles/StyleDialogs.h"
#include "package/styles/StyleEditors.h"
#include "package/styles/StylesView.h"
#include "package/styles/pVRXStyleManProp.h"
#include "tests/package/ListEditorTest.h"
#include "vcl/Button.h"
#include "vcl/CheckBox.h"

namespace style_dialog {
using Dlg = TfrmVRXStyleManProp;
using Node = TVRXStyleNode;
inline QString Q(const char* text) { return QString::fromUtf8(text); }
inline std::string S(const QString& text) { return text.toStdString(); }
inline void Click(QAbstractButton* button) { QTest::mouseClick(button, Qt::LeftButton); }

// Answers file dialogs and questions, and keeps what was asked.
class StyleAnswers : public ScriptedPrompts {
 public:
  bool Confirm(QWidget*, const QString& title, const QString& text) override {
    EXPECT_EQ(title, Q("Orlenvo-Kit Style Editor"));
    asked << text;
    seen();
    return yes;
  }
  void Warn(QWidget*, const QString& title, const QString& text) override {
    EXPECT_EQ(title, Q("Orlenvo-Kit Style Editor"));
    warned << text;
    seen();
  }
  QString SaveFileName(QWidget*, const QString&, const QString&, const QString&) override { return file; }
  // The only thing that was said since the last call.
  std::string Said() {
    const QString all = (asked + warned).join(u'|');
    asked.clear();
    warned.clear();
    return S(all);
  }
  bool yes = false;
  std::function<void()> seen = [] {};  // while it is up
  QStringList asked;
};

class StyleDialogTest : public ListEditors {
 protected:
  void SetUp() override {
    ListEditors::SetUp();
    SetPrompts(&answers);
    VRXFreeStyleRegistry();
    for (const TClass* cls :
         {&TButton::StaticClass(), &TCheckBox::StaticClass(), &TVRXLEDLabel::StaticClass()})
      RegisterStyleMgrClass(*cls, {});
    pVRXStyleManProp::Initialization();
  }
  void TearDown() override { pVRXStyleManProp::Finalization(); }

  // A property of a kind that no class here has.
  TVRXPropListItem& Item(const char* name, const TTypeInfo& type) {
    auto item = std::make_unique<TVRXPropListItem>();
    item->Name = Q(name);
    item->Kind = type.Kind;
    item->TypeName = QString::fromLatin1(type.Name);
    item->ClassName = Q("TButton");
    item->Type = &type;
    TVRXPropListItem& made = *item;
    VRXStyleRegistry().AddProperty(std::move(item));
    return made;
  }
  static void Fill(TVRXStyleManager& styles) {
    styles.WritePropValue(Q("TButton"), Q("Width"), std::int64_t{77}, Q("Integer"));
    styles.WritePropValue(Q("TButton|.Big"), Q("Caption"), Q("Hello"), Q("TCaption"));
    styles.WritePropValue(Q(".Body"), Q("Width"), std::int64_t{11}, Q("Integer"));
  }
  std::unique_ptr<Dlg> Shown(const std::function<void(TVRXStyleManager&)>& fill = Fill) {
    if (fill && manager.Styles().IsEmpty()) fill(manager);
    auto dialog = std::make_unique<Dlg>(nullptr);
    dialog->SetData(manager);
    dialog->resize(1100, 900);
    fields::ShowActive(*dialog);
    dialog->Styles->expandAll();
    return dialog;
  }
  static Node* Find(Dlg& d, const char* path, const char* property = nullptr) {
    Node* style = d.FindNodeByFullStyleName(Q(path));
    return style && property ? style->Child(Q(property), true) : style;
  }
  static Node* Select(Dlg& d, const char* path, const char* property = nullptr) {
    Node* node = Find(d, path, property);
    EXPECT_NE(node, nullptr) << path;
    d.Styles->Select(node);
    d.Styles->setFocus();
    return node;
  }
  static QTreeWidgetItem* Property(Dlg& d, const char* group, const char* name = nullptr,
                                   const char* part = nullptr) {
    const auto below = [](QTreeWidgetItem* item, const QString& text) -> QTreeWidgetItem* {
      for (int i = 0; i < item->childCount(); ++i)
        if (item->child(i)->text(0) == text) return item->child(i);
      return nullptr;
    };
    QTreeWidgetItem* item = below(d.PropTree->invisibleRootItem(), Q(group));
    for (const char* step : {name, part}) {
      if (!item || !step) continue;
      item->setExpanded(true);
      item = below(item, Q(step));
    }
    EXPECT_NE(item, nullptr) << group << ' ' << (name ? name : "") << ' ' << (part ? part : "");
    if (item) d.PropTree->setCurrentItem(item);
    return item;
  }
  static void Type(Dlg& d, const char* text) {
    QWidget* editor = d.Styles->Delegate().Editor();
    ASSERT_NE(editor, nullptr);
    if (auto* field = qobject_cast<QLineEdit*>(editor)) field->selectAll();
    if (auto* field = qobject_cast<QAbstractSpinBox*>(editor)) field->selectAll();
    QTest::keyClick(editor, Qt::Key_Backspace);
    QTest::keyClicks(editor, Q(text));
  }
  static void Press(Dlg& d, int key) {
    QTest::keyClick(
        d.Styles->Delegate().Editor() ? d.Styles->Delegate().Editor() : static_cast<QWidget*>(d.Styles),
        static_cast<Qt::Key>(key));
    QCoreApplication::processEvents();
  }
  static void Rename(Dlg& d, const char* path, const char* name) {
    Select(d, path);
    Press(d, Qt::Key_F2);
    Type(d, name);
    Press(d, Qt::Key_Return);
  }
  // Into the next dialog that asks for a name; one that is refused is taken back.
  static void Enter(const char* name) {
    modal::NextOf<StyleInputDialog>([=](StyleInputDialog& input) {
      input.input->setText(Q(name));
      Click(input.OkBtn);
      if (input.isVisible()) Click(input.CancelBtn);
    });
  }
  static void AddStyle(Dlg& d, const char* at, const char* name) {
    Select(d, at);
    Enter(name);
    Click(d.btnAddStyle);
  }
  // What is written in the tree: names, "=value" behind properties, indented.
  static QString Seen(const Dlg& d) {
    QStringList lines;
    const QAbstractItemModel& model = *d.Styles->model();
    const std::function<void(const QModelIndex&, int)> walk = [&](const QModelIndex& at, int depth) {
      const QString value = at.siblingAtColumn(1).data().toString();
      lines << QString(depth, u'.') + at.data().toString() + (value.isEmpty() ? QString() : u'=' + value);
      for (int i = 0; i < model.rowCount(at); ++i) {
        EXPECT_EQ(model.index(i, 0, at).parent(), at);
        walk(model.index(i, 0, at), depth + 1);
      }
    };
    walk(model.index(0, 0), 0);
    return lines.join(u'|');
  }
  static void Drag(QTreeView& from, const QModelIndex& index, QTreeView& to, const QModelIndex& target,
                   Qt::KeyboardModifiers keys = {}, bool escape = false) {
    from.scrollTo(index);
    if (target.isValid()) to.scrollTo(target);
    QWidget* view = from.viewport();
    const QPoint start = from.visualRect(index).center();
    const QPoint place =
        target.isValid() ? to.visualRect(target).center() : QPoint(20, to.viewport()->height() - 3);
    const QPoint end = view->mapFromGlobal(to.viewport()->mapToGlobal(place));
    QTest::mousePress(view, Qt::LeftButton, keys, start);
    for (const QPoint at : {start + QPoint(3, 2), (start + end) / 2, end}) {
      QMouseEvent event(QEvent::MouseMove, at, view->mapToGlobal(at), Qt::NoButton, Qt::LeftButton, keys);
      QCoreApplication::sendEvent(view, &event);
    }
    if (escape) QTest::keyClick(&from, Qt::Key_Escape);
    QMouseEvent release(QEvent::MouseButtonRelease, end, view->mapToGlobal(end), Qt::LeftButton, Qt::NoButton,
                        keys);
    QCoreApplication::sendEvent(view, &release);
  }
  static QModelIndex IndexOf(const Dlg& d, Node* node) {
    return static_cast<StyleModel*>(d.Styles->model())->IndexOf(node);
  }
  static void DragProperty(Dlg& d, QTreeWidgetItem* item, Node* onto) {
    Drag(*d.PropTree, d.PropTree->indexFromItem(item), *d.Styles, IndexOf(d, onto));
  }
  static void DragStyle(Dlg& d, Node* node, Node* onto, Qt::KeyboardModifiers keys = {},
                        bool escape = false) {
    Drag(*d.Styles, IndexOf(d, node), *d.Styles, IndexOf(d, onto), keys, escape);
  }

  StyleAnswers answers;
  TVRXStyleManager manager{nullptr};
};
}  // namespace style_dialog
