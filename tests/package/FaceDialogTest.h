// What the tests of the editor of face controllers share.
#pragma once
#include "package/dialogs/pVRXControlFaceEditorDlg.h"
#include "package/dialogs/pVRXControlFaceEditorDlgAddState.h"
#include "rtl/Registry.h"
#include "tests/package/ListEditorTest.h"

namespace face_dialog {
using Dlg = TVRXControlFaceEditorDlg;
using AddDlg = TVRXControlFaceEditorDlgAddState;
using enum TVRXStateKind;
using enum TVRXCFCSettingObjectKind;

// Answers file dialogs and questions, and keeps what was asked.
class Answers : public ScriptedPrompts {
 public:
  bool Confirm(QWidget*, const QString&, const QString& text) override {
    asked << text;
    return yes;
  }
  QString OpenFileName(QWidget*, const QString&, const QString& folder, const QString& filter) override {
    asked << QStringLiteral("open ") + folder + u'|' + filter;
    return file;
  }
  QString SaveFileName(QWidget*, const QString&, const QString& folder, const QString& filter) override {
    asked << QStringLiteral("save ") + folder + u'|' + filter;
    return file;
  }
  bool yes = false;
  QStringList asked;
};

class FaceDialog : public testing::Test {
 protected:
  void SetUp() override {
    SaveIDECustomColors({});
    Remember({});
  }
  void TearDown() override { Remember({}); }
  static void Remember(const QString& path) {
    TRegistry registry;
    registry.OpenKey(Key, true);
    registry.WriteString(QStringLiteral("FilePath"), path);
    registry.Flush();
  }
  static QString Remembered() {
    TRegistry registry;
    registry.OpenKey(Key, true);
    return registry.ReadString(QStringLiteral("FilePath"));
  }
  static inline const QString Key = QStringLiteral("SOFTWARE\\Orlenvo\\Orlenvo-Kit 2025\\TVRXFaceController");
  Answers prompts;
};

inline QStringList Rows(const QListWidget* list) {
  QStringList rows;
  for (int i = 0; i < list->count(); ++i) rows << list->item(i)->text();
  return rows;
}
inline QStringList Rows(const QTreeWidget* list, int column = 0) {
  QStringList rows;
  for (int i = 0; i < list->topLevelItemCount(); ++i) rows << list->topLevelItem(i)->text(column);
  return rows;
}
inline std::string Text(const QStringList& rows) { return rows.join(u'|').toStdString(); }

// Two states with an object each, of three.
inline void FillFace(TVRXFaceController& face) {
  face.AddSettingObject(okFont);
  face.AddSettingObject(okColor);
  face.AddSettingObject(okBevel);
  for (const TVRXStateKinds kinds : {TVRXStateKinds{}, TVRXStateKinds{skChecked}}) {
    TVRXCFCStateObject* state = face.States()->Add();
    state->setKind(VRXCFCKindOf(kinds));
    state->Add(face.SettingObjects()->Items(face.States()->Count() - 1), true);
  }
}
inline QByteArray TextOf(const TVRXFaceController& face) {
  return VRXFaceText(*face.SettingObjects(), face.States());
}

inline void Click(QAbstractButton* button) { QTest::mouseClick(button, Qt::LeftButton); }
inline QToolButton* AddButton(Dlg& d, const char* name) {
  auto* button = d.findChild<QToolButton*>(QString::fromLatin1(name));
  EXPECT_NE(button, nullptr) << name;
  return button;
}
inline void Check(AddDlg& d, std::initializer_list<const char*> states) {
  for (const char* state : states)
    for (QListWidgetItem* item : d.notUsedStates->findItems(QString::fromLatin1(state), Qt::MatchExactly))
      item->setCheckState(Qt::Checked);
}
inline void AddStates(Dlg& d, std::initializer_list<const char*> states) {
  modal::NextOf<AddDlg>([=](AddDlg& add) {
    Check(add, states);
    Click(add.btnOk);
  });
  Click(d.btnAddState);
}
inline void Drag(QTreeWidget& list, int row, QWidget& onto, bool escape = false) {
  QWidget* view = list.viewport();
  const QPoint from = list.visualItemRect(list.topLevelItem(row)).center();
  const QPoint to = view->mapFromGlobal(onto.mapToGlobal(onto.rect().center()));
  QTest::mousePress(view, Qt::LeftButton, {}, from);
  const auto move = [&](QPoint at) {
    QMouseEvent event(QEvent::MouseMove, at, view->mapToGlobal(at), Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(view, &event);
  };
  move(from + QPoint(2, 1));
  move((from + to) / 2);
  move(to);
  if (escape) QTest::keyClick(&list, Qt::Key_Escape);
  QMouseEvent release(QEvent::MouseButtonRelease, to, view->mapToGlobal(to), Qt::LeftButton, Qt::NoButton,
                      {});
  QCoreApplication::sendEvent(view, &release);
}
inline void Rename(Dlg& d, int row, const QString& name) {
  QTreeWidget* list = d.controllerObjectsList;
  list->setFocus();
  list->setCurrentItem(list->topLevelItem(row));
  QTest::keyClick(list, Qt::Key_F2);
  auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
  ASSERT_NE(field, nullptr) << "F2 opens the caption";
  EXPECT_EQ(field->text(), list->topLevelItem(row)->text(0));
  field->setText(name);
  QTest::keyClick(field, Qt::Key_Return);
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
}
}  // namespace face_dialog
