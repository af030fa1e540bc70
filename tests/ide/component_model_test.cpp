// The model against the session after random commands; Qt's own tester watches its manners.
#include "ide/ComponentModel.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QSignalSpy>

#include "tests/ide/SessionTest.h"

using namespace ide;

namespace {
class ComponentModelTest : public testing::Test {
 protected:
  void SetUp() override {
    RegisterAll();
    session_ = FormSession::FromBytes(Sample);
    tree_.SetSession(session_.get());
    list_.SetSession(session_.get());
  }
  void TearDown() override {
    tree_.SetSession(nullptr);
    list_.SetSession(nullptr);
  }
  static void Walk(const ComponentModel& model, const QModelIndex& parent, std::vector<TComponent*>& out) {
    for (int row = 0; row < model.rowCount(parent); ++row) {
      const QModelIndex i = model.index(row, 0, parent);
      TComponent* c = model.ComponentAt(i);
      ASSERT_NE(c, nullptr);
      EXPECT_EQ(model.IndexOf(*c), i);
      EXPECT_EQ(model.parent(i), parent);
      out.push_back(c);
      Walk(model, i, out);
    }
  }
  void ExpectInStep() {
    const std::vector<TComponent*> all = session_->AllComponents();
    std::vector<TComponent*> tree, list, named;
    Walk(tree_, {}, tree);
    EXPECT_EQ(tree, all);
    Walk(list_, {}, list);
    std::copy_if(all.begin(), all.end(), std::back_inserter(named),
                 [](const TComponent* c) { return !c->Name().isEmpty(); });
    EXPECT_EQ(list, named);
    for (const TComponent* c : named)
      EXPECT_EQ(tree_.IndexOf(*c).data().toString(),
                QStringLiteral("%1: %2").arg(c->Name(), QString::fromUtf8(c->StreamClassName())));
  }

  std::unique_ptr<FormSession> session_;
  ComponentModel tree_{ComponentModel::Shape::Tree}, list_{ComponentModel::Shape::List};
};
}  // namespace

TEST_F(ComponentModelTest, FollowsWhateverIsDone) {
  const QAbstractItemModelTester treeTester(&tree_), listTester(&list_);
  for (quint32 seed = 1; seed <= 20; ++seed) {
    QRandomGenerator random(seed);
    for (int step = 0; step < 30; ++step) {
      const auto all = session_->AllComponents();
      TComponent* c = all[static_cast<std::size_t>(random.bounded(static_cast<int>(all.size())))];
      const int what = random.bounded(8);
      if (what <= 1) session_->Undo();
      if (what == 2) session_->Redo();
      if (what == 3 && c != session_->GetRoot()) session_->DeleteComponents({c});
      if (what == 4) session_->CreateComponent(TPanel::StaticClass(), As<TPanel>(c), QRect(1, 2, 30, 20));
      if (what == 5 && !c->Name().isEmpty())
        session_->Rename(*c, QStringLiteral("Renamed%1").arg(random.bounded(100000)));
      if (auto* control = what >= 6 ? As<TControl>(c) : nullptr)
        session_->Run(QStringLiteral("x"), {},
                      [&] { step % 2 ? control->SendToBack() : control->SetCaption(QString::number(step)); });
      ExpectInStep();
      ASSERT_FALSE(HasFailure()) << "seed " << seed << " step " << step;
    }
  }
}

TEST_F(ComponentModelTest, AValueCostsTheViewsNothing) {
  QSignalSpy reset(&tree_, &QAbstractItemModel::modelReset), data(&tree_, &QAbstractItemModel::dataChanged),
      listReset(&list_, &QAbstractItemModel::modelReset);
  auto& label = *As<TLabel>(session_->GetComponent(QStringLiteral("Label1")));
  session_->Run(QStringLiteral("x"), {}, [&] { label.SetCaption(QStringLiteral("other")); });
  EXPECT_EQ(reset.count() + data.count() + listReset.count(), 0);
  session_->Rename(label, QStringLiteral("Other"));
  EXPECT_EQ(reset.count(), 0);
  EXPECT_EQ(data.count(), 1);
  EXPECT_EQ(listReset.count(), 1);
}

TEST_F(ComponentModelTest, ChangesTellWhichComponents) {
  std::vector<FormChange> heard;
  QObject::connect(session_.get(), &FormSession::Changed, session_.get(),
                   [&](const FormChange& change) { heard.push_back(change); });
  TComponent* label = session_->GetComponent(QStringLiteral("Label1"));
  session_->Run(QStringLiteral("x"), {}, [&] { label->SetTag(7); });
  session_->Undo();
  for (const FormChange& change : heard) {
    EXPECT_EQ(change.values, std::vector<TComponent*>{label});
    EXPECT_TRUE(change.renamed.empty());
    EXPECT_FALSE(change.structure);
  }
  EXPECT_EQ(heard.size(), 2u);
  heard.clear();
  session_->Rename(*label, QStringLiteral("Other"));
  EXPECT_EQ(heard.back().renamed, std::vector<TComponent*>{label});
  session_->DeleteComponents({label});
  EXPECT_TRUE(heard.back().structure);
}

TEST_F(ComponentModelTest, HearsNothingOfAFormItNoLongerShows) {
  const auto other = FormSession::FromBytes("object Other: TOther\n  object B: TButton\n  end\nend\n");
  for (ComponentModel* model : {&tree_, &list_}) model->SetSession(other.get());
  QSignalSpy tree(&tree_, &QAbstractItemModel::modelReset), list(&list_, &QAbstractItemModel::modelReset),
      names(&tree_, &QAbstractItemModel::dataChanged);
  session_->Rename(*session_->GetComponent(QStringLiteral("Label1")), QStringLiteral("Renamed"));
  session_->DeleteComponents({session_->GetComponent(QStringLiteral("Panel1"))});
  session_.reset();
  EXPECT_EQ(tree.size() + list.size() + names.size(), 0);
  EXPECT_EQ(tree_.index(0, 0).data().toString(), QStringLiteral("Other: TOther"));
  other->DeleteComponents({other->GetComponent(QStringLiteral("B"))});
  EXPECT_EQ(tree.size(), 1);
  EXPECT_EQ(list.size(), 1);
}

TEST_F(ComponentModelTest, IsEmptyWhenItsFormIsClosed) {
  session_.reset();
  for (const ComponentModel* model : {&tree_, &list_}) {
    EXPECT_EQ(model->rowCount(), 0);
    EXPECT_EQ(model->Session(), nullptr);
  }
}
