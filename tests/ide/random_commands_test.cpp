// Long random sequences of commands: every state on the way comes back, forwards and backwards.
#include <random>

#include "tests/ide/SessionTest.h"

using namespace ide;

namespace {
class Monkey {
 public:
  explicit Monkey(unsigned seed) : random_(seed) {
    RegisterAll();
    session_ = FormSession::FromBytes(MakeForm());
  }
  FormSession& Session() { return *session_; }

  // One random command; sometimes none, when there was nothing to change.
  void Step() {
    const auto all = session_->AllComponents();
    TComponent& c = *all[Below(all.size())];
    auto* control = As<TControl>(&c);
    auto* label = As<TLabel>(&c);
    auto* led = As<TVRXLEDLabel>(&c);
    switch (Below(18)) {
      case 0:
      case 1:
        return Run(c, [&] { Move(c); });
      case 2:
        return Several([&](TComponent& each) { Move(each); });
      case 3:
        return Run(c, [&] {
          if (control) control->SetCaption(Text());
        });
      case 4:
        return Run(c, [&] { c.SetTag(static_cast<int>(Below(3))); });
      case 5:
        return Run(c, [&] {
          if (control) control->SetAlign(static_cast<TAlign>(Below(6)));
        });
      case 6:
        return Run(c, [&] {
          if (control) control->SetAnchors(TAnchors::FromBits(Below(16)));
        });
      case 7:
        return Run(c, [&] {
          if (control && c.ClassType().FindProp("Font"))
            control->Font()->SetColor(TColor(static_cast<unsigned>(Below(0xFFFFFF))));
        });
      case 8:
        return Run(c, [&] {
          if (led) led->LED()->SetSize(1 + static_cast<int>(Below(3)), static_cast<std::uint8_t>(Below(30)));
        });
      case 9:
        return Run(c, [&] {
          if (label) label->SetFocusControl(AnyButton());
        });
      case 10:
        return Rename(c);
      case 11:
      case 12:
        return Create();
      case 13:
        return Delete();
      case 14:
        return Unannounced(c);
      case 15:
        return MakeAndFree(c);
      case 16:
        return Run(c, [&] {
          if (!control || !control->Parent()) return;
          if (Below(2))
            control->BringToFront();
          else
            control->SendToBack();
        });
      default:
        return Fail(c);
    }
  }

 private:
  std::size_t Below(std::size_t n) { return random_() % n; }
  int Number(int below) { return static_cast<int>(Below(static_cast<std::size_t>(below))); }
  QString Text() { return QStringLiteral("t%1 '\u00FC'").arg(Below(9)); }

  QByteArray MakeForm() {
    QByteArray text =
        "object Root: TRoot\n  Left = 0\n  Top = 0\n  ClientHeight = 400\n  ClientWidth = 600\n";
    int number = 0;
    std::function<void(int)> fill = [&](int level) {
      const QByteArray in(2 * level, ' ');
      for (std::size_t i = 0, n = 2 + Below(3); i < n; ++i) {
        const std::size_t kind = level < 3 ? Below(5) : 1 + Below(4);
        static constexpr const char* classes[] = {"TPanel", "TButton", "TLabel", "TVRXLEDLabel",
                                                  "TUnheardOf"};
        text += in + "object C" + QByteArray::number(++number) + ": " + classes[kind] + '\n';
        for (const char* name : {"Left", "Top", "Width", "Height"})
          text += in + "  " + name + " = " + QByteArray::number(Number(80)) + '\n';
        if (kind >= 2 && kind <= 3 && Below(2)) text += in + "  AutoSize = False\n";
        if (Below(2)) text += in + "  Caption =  'c" + QByteArray::number(number) + "'\n";
        if (kind == 4) text += in + "  Odd.Thing = <\n" + in + "    item\n" + in + "    end>\n";
        if (kind == 0) fill(level + 1);
        text += in + "end\n";
      }
    };
    fill(1);
    text += "  object Clock: TTimer\n    Left = 10\n    Top = 10\n  end\nend\n";
    // What the components make of the text is the starting point, so that sizes agree with captions.
    return text;
  }

  template <class F>
  void Run(TComponent& c, F&& action) {
    // Whether the command says what it is going to change makes no difference.
    session_->Run(QStringLiteral("step"),
                  Below(2) ? std::vector<TComponent*>{&c} : std::vector<TComponent*>(), action);
  }
  void Move(TComponent& c) {
    if (auto* control = As<TControl>(&c))
      control->SetBounds(Number(200), Number(200), Number(200), Number(200));
    else
      c.SetDesignInfo(
          DesignWordOf({static_cast<std::int16_t>(Number(300)), static_cast<std::int16_t>(Number(300))}));
  }
  void Several(const std::function<void(TComponent&)>& change) {
    std::vector<TComponent*> chosen;
    for (TComponent* c : session_->AllComponents())
      if (c != session_->GetRoot() && Below(3) == 0) chosen.push_back(c);
    session_->Select(chosen);
    chosen = session_->SelectedComponents();
    session_->Run(QStringLiteral("several"), {}, [&] {
      for (TComponent* c : chosen) change(*c);
    });
  }
  TWinControl* AnyButton() {
    std::vector<TWinControl*> buttons{nullptr};
    for (TComponent* c : session_->AllComponents())
      if (auto* b = As<TButton>(c)) buttons.push_back(b);
    return buttons[Below(buttons.size())];
  }
  void Rename(TComponent& c) {
    const QString name = QStringLiteral("N%1").arg(Below(40));
    if (session_->GetComponent(name) && session_->GetComponent(name) != &c)
      EXPECT_THROW(session_->Rename(c, name), Exception);
    else
      session_->Rename(c, name);
  }
  void Create() {
    static const TClass* const classes[] = {&TPanel::StaticClass(), &TButton::StaticClass(),
                                            &TLabel::StaticClass(), &TVRXLEDLabel::StaticClass(),
                                            &TTimer::StaticClass()};
    const auto all = session_->AllComponents();
    TComponent* parent = all[Below(all.size())];
    if (auto* control = As<TControl>(parent); !control || !control->AcceptsControls()) parent = nullptr;
    session_->CreateComponent(*classes[Below(5)], parent,
                              QRect(Number(90), Number(90), Number(60), Number(60)));
  }
  void Delete() {
    std::vector<TComponent*> doomed;
    for (TComponent* c : session_->AllComponents())
      if (c != session_->GetRoot() && Below(8) == 0) doomed.push_back(c);
    session_->DeleteComponents(doomed);
  }
  // By plain code, without the designer's routines.
  void MakeAndFree(TComponent& c) {
    session_->Run(QStringLiteral("plain"), {}, [&] {
      if (&c != session_->GetRoot() && Below(2)) {
        delete &c;
      } else {
        auto* panel = new TPanel(session_->GetRoot());
        panel->SetParent(&session_->Form());
        auto* label = new TLabel(session_->GetRoot());
        label->SetParent(panel);
        label->SetCaption(Text());
      }
    });
  }
  void Unannounced(TComponent& c) {
    c.SetTag(static_cast<int>(Below(100)));
    if (!As<TControl>(&c)) Move(c);
    session_->Modified();
  }
  void Fail(TComponent& c) {
    const QByteArray bytes = session_->Bytes();
    const std::string state = StateOf(*session_);
    EXPECT_THROW(Run(c,
                     [&] {
                       Move(c);
                       Create();
                       Delete();
                       throw Exception(QStringLiteral("no"));
                     }),
                 Exception);
    EXPECT_EQ(session_->Bytes(), bytes);
    EXPECT_EQ(StateOf(*session_), state);
  }

  std::mt19937 random_;
  std::unique_ptr<FormSession> session_;
};

class RandomCommands : public testing::TestWithParam<unsigned> {};
}  // namespace

TEST_P(RandomCommands, EveryStateComesBackForwardsAndBackwards) {
  Monkey monkey(GetParam());
  FormSession& session = monkey.Session();
  struct Stage {
    QByteArray bytes;
    std::string state;
  };
  std::vector<Stage> stages{{session.Bytes(), StateOf(session)}};
  const QByteArray original = session.Bytes();
  for (int i = 0; i < 60; ++i) {
    const QByteArray before = session.Bytes();
    monkey.Step();
    if (session.Bytes() == before) continue;
    stages.push_back({session.Bytes(), StateOf(session)});
    ASSERT_EQ(StateOf(session.Bytes()), stages.back().state)
        << "a fresh reader sees something else after step " << i;
  }
  ASSERT_GT(stages.size(), 20u);
  for (int round = 0; round < 2; ++round) {
    for (std::size_t i = stages.size() - 1; i > 0; --i) {
      session.Undo();
      ASSERT_EQ(session.Bytes(), stages[i - 1].bytes) << i;
      ASSERT_EQ(StateOf(session), stages[i - 1].state)
          << "undoing " << ChangedLines(stages[i - 1].bytes, stages[i].bytes).join('|').toStdString();
    }
    EXPECT_FALSE(session.CanUndo());
    EXPECT_FALSE(session.IsModified());
    EXPECT_EQ(session.Bytes(), original);
    for (std::size_t i = 1; i < stages.size(); ++i) {
      session.Redo();
      ASSERT_EQ(session.Bytes(), stages[i].bytes) << i;
      ASSERT_EQ(StateOf(session), stages[i].state)
          << "redoing " << ChangedLines(stages[i - 1].bytes, stages[i].bytes).join('|').toStdString();
    }
    EXPECT_FALSE(session.CanRedo());
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomCommands, testing::Range(1u, 25u));
