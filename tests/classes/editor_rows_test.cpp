// Every property editor that the package registers, opened from the inspector on a component of its class:
// what a person confirms is one command, and Cancel writes nothing.
#include <QApplication>
#include <QtWidgets>

#include "dclstd/StandardEditors.h"
#include "ide/InspectorModel.h"
#include "package/experts/pVRXRegOS.h"
#include "package/registration/VRX_RegMain.h"
#include "package/registration/VRX_RegMainEditors.h"
#include "rtl/ClassRegistry.h"
#include "rtl/PropAccess.h"
#include "rtl/Strings.h"
#include "tests/ide/SessionTest.h"
#include "vcl/ImageList.h"
#include "vcl/Prompts.h"

namespace {
DesignRegistry& PackageRegistry() {
  static DesignRegistry registry;
  [[maybe_unused]] static const bool once = [] {
    RegisterStandard(registry);
    static const int package = 0;
    const RegistrationScope scope(registry, &package, {});
    pVRXRegOS::Register();
    VRX_RegMainEditors::Register();
    VRX_RegMain::Register();
    return true;
  }();
  return registry;
}

struct Row {
  std::string name;
  const TRegistration* row;
};
void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
std::vector<Row> Rows() {
  std::vector<Row> rows;
  for (const TRegistration& row : PackageRegistry().Rows())
    if (row.Package && row.Kind == TRegistrationKind::PropertyEditor && row.PropertyEditor) {
      QByteArray name = row.PropertyType->Name;
      if (row.ComponentClass) name += '_' + row.ComponentClass->ClassName();
      if (!row.PropertyName.isEmpty()) name += '_' + row.PropertyName;
      // No component publishes one so far.
      if (name != "TVRXPointList") rows.push_back({name.toStdString(), &row});
    }
  return rows;
}

// Where a property that the row serves is found from a component of the class; empty when it has none.
QString PathFrom(const TClass& cls, const TRegistration& row, std::set<const TClass*>& seen) {
  if (!seen.insert(&cls).second) return {};
  for (const TPropInfo* prop : cls.Properties()) {
    if (prop->Visibility != TPropVisibility::Published) continue;
    const QString name = QString::fromLatin1(prop->Name);
    const bool fits = (row.PropertyName.isEmpty() || row.PropertyName == prop->Name) &&
                      (!row.ComponentClass || cls.InheritsFrom(*row.ComponentClass));
    const auto editor = PackageRegistry().PropertyEditorOf(cls, *prop);
    if (fits && editor && editor->Name == row.PropertyEditor->Name) return name;
    if (!prop->IsPart() || !prop->PropType->ClassType) continue;
    if (const QString below = PathFrom(prop->PropType->ClassType(), row, seen); !below.isEmpty())
      return name + u'.' + below;
  }
  return {};
}

// A cell that can be typed into gets a text; else the last row is selected, what is inside it before.
void TouchView(QAbstractItemView& view) {
  const QAbstractItemModel& model = *view.model();
  QModelIndex at = model.index(model.rowCount() - 1, 0);
  if (auto* tree = qobject_cast<QTreeView*>(&view); tree && model.rowCount(at) > 0) {
    tree->expand(at);
    at = model.index(0, 0, at);
  }
  view.setFocus();
  if (!(at.flags() & Qt::ItemIsEditable)) return view.setCurrentIndex(at);
  for (int column = 0; column < model.columnCount(); ++column) {
    view.setCurrentIndex(model.index(0, column));
    QTest::keyClicks(&view, QStringLiteral("S"));
    QWidget* const field = QApplication::focusWidget();
    if (!field || field == &view) continue;
    QTest::keyClicks(field, QStringLiteral("even"));
    QTest::keyClick(field, Qt::Key_Return);
  }
}

bool IsEnding(const QAbstractButton& button) {
  const auto* box = button.parentWidget();
  return qobject_cast<const QDialogButtonBox*>(box) ||
         QStringList({QStringLiteral("OK"), QStringLiteral("Cancel")})
             .contains(QString(button.text()).remove(u'&'));
}
// What a person may do to a control of a dialog; false when there is nothing to do.
bool Touch(QWidget& widget) {
  if (auto* spin = qobject_cast<QAbstractSpinBox*>(&widget)) {
    const QString before = spin->text();
    spin->stepUp();
    if (spin->text() == before) spin->stepDown();
    return spin->text() != before;
  }
  if (auto* combo = qobject_cast<QComboBox*>(&widget)) {
    if (combo->count() < 2) return false;
    combo->setFocus();
    QTest::keyClick(combo, combo->currentIndex() + 1 < combo->count() ? Qt::Key_Down : Qt::Key_Up);
    return true;
  }
  if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
    if (IsEnding(*button)) return false;
    button->click();
    return true;
  }
  if (auto* line = qobject_cast<QLineEdit*>(&widget)) {
    if (line->isReadOnly()) return false;
    line->setFocus();
    line->selectAll();
    QTest::keyClicks(line, QStringLiteral("7"));
    return true;
  }
  return false;
}
// Touches all lists, and the n-th control that can be touched; false when there are fewer.
bool TouchOne(QDialog& dialog, int n) {
  for (auto* view : dialog.findChildren<QAbstractItemView*>())
    if (view->isVisible() && view->isEnabled() && view->model() && view->model()->rowCount() > 0)
      TouchView(*view);
  if (n-- == 0) return true;
  for (QWidget* widget : dialog.findChildren<QWidget*>()) {
    const bool inner =
        qobject_cast<QAbstractSpinBox*>(widget->parentWidget()) ||
        qobject_cast<QComboBox*>(widget->parentWidget()) ||
        (widget->parentWidget() && qobject_cast<QAbstractItemView*>(widget->parentWidget()->parentWidget()));
    if (!inner && widget->isVisible() && widget->isEnabled() && Touch(*widget) && n-- == 0) return true;
  }
  return false;
}

// Dialogs that want a picture before they give anything; tests of their own choose one.
std::vector<Row> RowsWithoutPictures() {
  std::vector<Row> rows = Rows();
  std::erase_if(rows,
                [](const Row& row) { return row.name == "TVRXRegionMask" || row.name == "TVRXButtonFace"; });
  return rows;
}
}  // namespace

class EditorRow : public testing::TestWithParam<Row>, private IPrompts {
 protected:
  EditorRow() { SetPrompts(this); }
  ~EditorRow() override {
    SetPrompts(nullptr);
    for (QWidget* window : QApplication::topLevelWidgets())
      if (window->isVisible()) window->close();
  }
  void SetUp() override {
    const TRegistration& row = *GetParam().row;
    const TClass* found = nullptr;
    for (const TClass* cls : RegisteredClasses()) {
      std::set<const TClass*> seen;
      if (cls->IsAbstract() || !cls->InheritsFrom(TComponent::StaticClass())) continue;
      if (row.ComponentClass && !cls->InheritsFrom(*row.ComponentClass) &&
          row.ComponentClass->InheritsFrom(TComponent::StaticClass()))
        continue;
      path_ = PathFrom(*cls, row, seen);
      if (!path_.isEmpty()) {
        found = cls;
        break;
      }
    }
    ASSERT_NE(found, nullptr);
    session_ = FormSession::NewForm(QStringLiteral("Form1"), PackageRegistry());
    session_->CreateComponent(GetClass("TImageList"), nullptr, QRect(8, 8, 0, 0));
    TComponent* subject = session_->CreateComponent(*found, nullptr, QRect(40, 40, 150, 90));
    // What a list of components can be chosen from.
    if (row.PropertyType->ClassType && row.PropertyType->ClassType().InheritsFrom(TControl::StaticClass()))
      for (int i = 0; i < 2; ++i)
        session_->CreateComponent(row.PropertyType->ClassType(), subject, QRect(0, 0, 0, 0));
    for (const char* lines : {"Items", "Values"})
      if (const TPropInfo* prop = found->FindProp(lines); prop && prop->IsPart())
        if (auto* strings = As<TStrings>(GetObjectProp(*subject, *prop)))
          session_->Run(QStringLiteral("Fill"), {subject},
                        [&] { strings->SetText(QStringLiteral("One\nTwo\n")); });
    session_->Select({subject});
    model_.SetSession(session_.get());
    ASSERT_TRUE(Index().isValid()) << path_.toStdString();
    before_ = session_->Bytes();
    command_ = session_->UndoText();
  }
  void TearDown() override { model_.SetSession(nullptr); }

  QModelIndex Index() const { return model_.IndexOfPath(path_); }
  bool OpensDialog() const {
    return model_.EditorAt(Index())->GetAttributes().Contains(TPropertyAttribute::paDialog);
  }
  void ExpectNothingWritten() {
    EXPECT_EQ(session_->Bytes(), before_);
    EXPECT_EQ(session_->UndoText(), command_) << "a command that changes nothing";
  }
  void ExpectOneCommand() {
    EXPECT_NE(session_->Bytes(), before_) << path_.toStdString() << ": nothing was written";
    EXPECT_EQ(ide::StateOf(*session_), ide::StateOf(session_->Bytes()));
    session_->Undo();
    EXPECT_EQ(session_->UndoText(), command_) << "more than one command";
    EXPECT_EQ(session_->Bytes(), before_);
  }
  // Whether a dialog came. What it opens itself is given up.
  bool Open(const std::function<void(QDialog&)>& act) {
    bool came = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (!dialog) return;
      if (came) return dialog->reject();
      came = true;
      act(*dialog);
    });
    watch.start(0);
    EXPECT_EQ(model_.RunDialog(Index()), QString());
    return came;
  }
  // The window beside the form that the editor opens instead of a dialog.
  static QWidget* OpenWindow() {
    for (QWidget* window : QApplication::topLevelWidgets())
      if (window->isVisible()) return window;
    return nullptr;
  }
  // The first value of a part that can be another one.
  bool ChangeBelow() {
    for (int i = 0; i < model_.rowCount(Index()); ++i) {
      const QModelIndex at = model_.index(i, 0, Index());
      for (const QString& value : model_.ValueList(at))
        if (value != model_.ValueText(at)) return model_.SetValueText(at, value).isEmpty();
    }
    return false;
  }

  std::unique_ptr<FormSession> session_;
  InspectorModel model_;
  QString path_, command_;
  QByteArray before_;

 private:
  void Inform(QWidget*, const QString&, const QString&) override {}
  void Warn(QWidget*, const QString&, const QString&) override {}
  TAnswer AskToSave(QWidget*, const QString&) override { return TAnswer::Yes; }
  bool Confirm(QWidget*, const QString&, const QString&) override { return true; }
  QString OpenFileName(QWidget*, const QString&, const QString&, const QString&) override { return {}; }
  QString SaveFileName(QWidget*, const QString&, const QString&, const QString&) override { return {}; }
};

TEST_P(EditorRow, OpensFromTheInspectorAndWritesNothingOnCancel) {
  if (!OpensDialog()) {
    EXPECT_TRUE(!model_.ValueList(Index()).isEmpty() || model_.rowCount(Index()) > 0);
    return ExpectNothingWritten();
  }
  const bool came = Open([](QDialog& dialog) {
    TouchOne(dialog, 0);
    dialog.reject();
  });
  EXPECT_TRUE(came || OpenWindow());
  if (!came && OpenWindow()) OpenWindow()->close();
  ExpectNothingWritten();
}

class WritingRow : public EditorRow {};

TEST_P(WritingRow, WritesWhatIsConfirmedAsOneCommand) {
  if (!OpensDialog()) {
    for (const QString& value : model_.ValueList(Index()))
      if (value != model_.ValueText(Index())) {
        EXPECT_EQ(model_.SetValueText(Index(), value), QString());
        return ExpectOneCommand();
      }
    EXPECT_TRUE(ChangeBelow()) << "no other value is offered";
    return ExpectOneCommand();
  }
  bool touched = true;
  for (int n = 0; touched && session_->Bytes() == before_; ++n) {
    const bool came = Open([&](QDialog& dialog) {
      touched = TouchOne(dialog, n);
      dialog.accept();
    });
    if (came) continue;
    QWidget* const window = OpenWindow();
    ASSERT_NE(window, nullptr);
    window->findChild<QToolButton*>(QStringLiteral("add"))->click();
    window->close();
    break;
  }
  ExpectOneCommand();
}

INSTANTIATE_TEST_SUITE_P(Registered, EditorRow, testing::ValuesIn(Rows()),
                         [](const auto& i) { return i.param.name; });
INSTANTIATE_TEST_SUITE_P(Registered, WritingRow, testing::ValuesIn(RowsWithoutPictures()),
                         [](const auto& i) { return i.param.name; });
