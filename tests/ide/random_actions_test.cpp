// Long random sequences of the table's actions: the file says what is on the form, and everything comes back.
#include <random>

#include "tests/ide/OperationTest.h"

using namespace ide;

namespace {
class RandomActions : public OperationTest, public testing::WithParamInterface<unsigned> {
 protected:
  std::size_t Below(std::size_t n) { return random_() % n; }
  QByteArray Number(std::size_t below) { return QByteArray::number(static_cast<qlonglong>(Below(below))); }

  QByteArray MakeForm() {
    static constexpr const char* classes[] = {"TPanel",       "TButton", "TLabel",   "TVRXLEDLabel",
                                              "TStrangerBox", "TEdit",   "TNewGrid", "TGroupBox"};
    static constexpr const char* aligns[] = {"alNone", "alNone", "alNone", "alTop", "alLeft", "alBottom"};
    QByteArray text = "object Root: TRoot\n  ClientHeight = 400\n  ClientWidth = 600\n";
    int number = 0;
    std::function<void(int)> fill = [&](int level) {
      const QByteArray in(2 * level, ' ');
      for (std::size_t i = 0, n = 2 + Below(3); i < n; ++i) {
        const std::size_t kind = level < 3 ? Below(std::size(classes)) : 1 + Below(3);
        text += in + "object C" + QByteArray::number(++number) + ": " + classes[kind] + '\n';
        text += in + "  Left = " + Number(300) + '\n' + in + "  Top = " + Number(200) + '\n';
        text += in + "  Width = " + Number(180) + '\n' + in + "  Height = " + Number(120) + '\n';
        if (kind == 0) text += in + "  Align = " + aligns[Below(std::size(aligns))] + '\n';
        if (kind == 2) text += in + "  FocusControl = C" + Number(12) + '\n';
        if (kind == 4)
          text += in + "  Link =  c" + Number(12) + '\n' + in + "  Odd = <\n    item\n    end>\n";
        if (Below(2)) text += in + "  Anchors = [akLeft, akTop, akRight]\n";
        if (kind == 0 || kind == 7) fill(level + 1);
        text += in + "end\n";
      }
    };
    fill(1);
    return text + "  object Clock: TTimer\n    Left = 10\n    Top = 10\n  end\nend\n";
  }

  void SelectSome() {
    std::vector<TComponent*> chosen;
    const auto all = session_->AllComponents();
    for (std::size_t i = 0, n = 1 + Below(4); i < n; ++i) {
      TComponent* c = all[Below(all.size())];
      if (std::find(chosen.begin(), chosen.end(), c) == chosen.end()) chosen.push_back(c);
    }
    session_->Select(chosen);
  }

  // True when it was done; a refusal leaves everything as it is.
  bool Step() {
    SelectSome();
    const QByteArray bytes = session_->Bytes();
    try {
      if (Below(5) == 0) {
        const auto chosen = Outermost(*session_, Chosen(*session_));
        const auto all = session_->AllComponents();
        auto* container = dynamic_cast<TWinControl*>(all[Below(all.size())]);
        if (!container || chosen.empty()) return false;
        MoveInto(*session_, chosen, *container);
        return true;
      }
      // On an empty form there would be nothing to do any more.
      if (session_->AllComponents().size() < 4) {
        session_->CreateComponent(TButton::StaticClass(), nullptr,
                                  QRect(static_cast<int>(Below(200)), static_cast<int>(Below(200)), 75, 25));
        return true;
      }
      const auto& row = ActionTable()[2 + Below(ActionTable().size() - 2)];
      // The form would grow without end.
      if (session_->AllComponents().size() > 120 &&
          (row.group == ActionGroup::Clipboard && QByteArray(row.id) != "delete"))
        Run("delete");
      else
        Run(row.id);
      return true;
    } catch (const Exception&) {
      EXPECT_EQ(session_->Bytes(), bytes);
      return false;
    }
  }
  std::mt19937 random_{GetParam()};
};
}  // namespace

TEST_P(RandomActions, TheFileSaysWhatIsOnTheFormAndEverythingComesBack) {
  Open(MakeForm());
  struct Stage {
    QByteArray bytes;
    std::string state;
  };
  std::vector<Stage> stages{{session_->Bytes(), state_}};
  for (int i = 0; i < 240; ++i) {
    const QByteArray before = session_->Bytes();
    Step();
    if (session_->Bytes() == before) continue;
    stages.push_back({session_->Bytes(), StateOf(*session_)});
    ASSERT_EQ(StateOf(session_->Bytes()), stages.back().state)
        << i << " " << session_->UndoText().toStdString() << " "
        << ChangedLines(before, stages.back().bytes).join('|').toStdString();
    QSet<QString> names;
    for (const TComponent* c : session_->AllComponents()) {
      EXPECT_FALSE(c->Name().isEmpty());
      EXPECT_FALSE(names.contains(c->Name().toLower())) << c->Name().toStdString();
      names << c->Name().toLower();
    }
  }
  ASSERT_GT(stages.size(), 15u);
  for (std::size_t i = stages.size() - 1; i > 0; --i) {
    const QString text = session_->UndoText();
    session_->Undo();
    ASSERT_EQ(session_->Bytes(), stages[i - 1].bytes) << text.toStdString();
    ASSERT_EQ(StateOf(*session_), stages[i - 1].state) << text.toStdString();
  }
  EXPECT_FALSE(session_->CanUndo());
  EXPECT_EQ(session_->Bytes(), first_);
  for (std::size_t i = 1; i < stages.size(); ++i) {
    session_->Redo();
    ASSERT_EQ(session_->Bytes(), stages[i].bytes);
    ASSERT_EQ(StateOf(*session_), stages[i].state) << session_->UndoText().toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomActions, testing::Range(1u, 31u));
