// Actions on an open form, run as the designer runs them.
#pragma once
#include "ide/operations/Actions.h"
#include "ide/operations/Containers.h"
#include "tests/ide/SessionTest.h"

namespace ide {

class FakeClipboard : public IClipboard {
 public:
  QString Text() const override { return text; }
  void SetText(const QString& t) override { text = t; }
  QString text;
};

class OperationTest : public testing::Test {
 protected:
  void SetUp() override { Open(Sample); }
  void Open(const QByteArray& bytes) {
    RegisterAll();
    first_ = bytes;
    session_ = FormSession::FromBytes(bytes);
    state_ = StateOf(*session_);
  }
  TComponent& Get(const char* name) {
    TComponent* c = session_->GetComponent(QString::fromLatin1(name));
    if (!c) throw Exception(QStringLiteral("no %1").arg(QString::fromLatin1(name)));
    return *c;
  }
  template <class T>
  T& As(const char* name) {
    return dynamic_cast<T&>(Get(name));
  }
  QRect Bounds(const char* name) { return PlaceOf(Get(name)); }
  void Select(std::initializer_list<const char*> names) {
    std::vector<TComponent*> all;
    for (const char* n : names) all.push_back(&Get(n));
    session_->Select(all);
  }
  std::string Selected() {
    QStringList names;
    for (const TComponent* c : session_->SelectedComponents()) names << c->Name();
    return names.join(u'+').toStdString();
  }
  void Run(const char* id) {
    ActionContext context{*session_, clipboard_};
    RunAction(*FindAction(QString::fromLatin1(id)), context);
  }
  void Run(const char* id, std::initializer_list<const char*> names) {
    Select(names);
    Run(id);
  }
  // The reason; nothing of the form has changed.
  std::string Refusal(const char* id) {
    const QByteArray bytes = session_->Bytes();
    const std::string state = StateOf(*session_), selected = Selected();
    const bool undo = session_->CanUndo();
    std::string reason;
    try {
      Run(id);
    } catch (const Exception& e) {
      reason = e.Message().toStdString();
    }
    EXPECT_NE(reason, "") << id;
    EXPECT_EQ(session_->Bytes(), bytes);
    EXPECT_EQ(StateOf(*session_), state);
    EXPECT_EQ(Selected(), selected);
    EXPECT_EQ(session_->CanUndo(), undo);
    return reason;
  }
  std::string Refusal(const char* id, std::initializer_list<const char*> names) {
    Select(names);
    return Refusal(id);
  }
  // One command since the form was opened; a fresh reader sees what is here; undo gives the bytes back.
  void ExpectOneCommand() {
    ASSERT_TRUE(session_->CanUndo());
    const QByteArray edited = session_->Bytes();
    const std::string state = StateOf(*session_), selected = Selected();
    EXPECT_NE(edited, first_);
    EXPECT_EQ(StateOf(edited), state);
    for (int round = 0; round < 2; ++round) {
      session_->Undo();
      EXPECT_FALSE(session_->CanUndo());
      EXPECT_EQ(session_->Bytes(), first_);
      EXPECT_EQ(StateOf(*session_), state_);
      session_->Redo();
      EXPECT_EQ(session_->Bytes(), edited);
      EXPECT_EQ(StateOf(*session_), state);
      EXPECT_EQ(Selected(), selected);
    }
  }
  std::string Changes() const { return ChangedLines(first_, session_->Bytes()).join('|').toStdString(); }
  QByteArray PropertyOf(const char* component, const char* path) {
    const forms::Property* p = session_->ObjectOf(Get(component))->Find(path);
    return p ? forms::ValueToText(session_->Document().Read(*p)) : QByteArray("-");
  }

  QByteArray first_;
  std::unique_ptr<FormSession> session_;
  std::string state_;
  FakeClipboard clipboard_;
};

}  // namespace ide
