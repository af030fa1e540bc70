// The window of a collection's items, on an open form.
#include <QtTest>
#include <QtWidgets>

#include "SessionTest.h"
#include "dclstd/CollectionWindow.h"
#include "designintf/ComponentEditor.h"
#include "ide/InspectorModel.h"
#include "rtl/Collection.h"

using namespace ide;

namespace {
class TPearl : public TCollectionItem {
  VRX_CLASS(TPearl)
 public:
  using TCollectionItem::TCollectionItem;
  static constexpr TKept<int> Size{"Size", 3};
  static constexpr TKept<QString> Title{"Title"};
  QString DisplayName() const override {
    return Get(Title).isEmpty() ? TCollectionItem::DisplayName() : Get(Title);
  }
};
const TClass& TPearl::StaticClass() {
  static const TClass cls(
      DescribeClass<TPearl>("TPearl", TCollectionItem::StaticClass()).PublishedAll(Size, Title));
  return cls;
}

class TString : public TComponent {
  VRX_CLASS(TString)
 public:
  using TComponent::TComponent;
  TCollection* Pearls() const { return pearls_.get(); }

 private:
  std::unique_ptr<TCollection> pearls_ = std::make_unique<TCollection>(TPearl::StaticClass(), this);
};
const TClass& TString::StaticClass() {
  static const TClass cls(DescribeClass<TString>("TString", TComponent::StaticClass())
                              .Published("Pearls", &TString::Pearls, nullptr));
  return cls;
}

const QByteArray Form = R"(object Main: TMain
  ClientHeight = 300
  ClientWidth = 400
  object String1: TString
    Pearls = <
      item
        Size = 5
        Title = 'white'
      end
      item
      end
      item
        Title = 'black'
      end>
    Left = 20
    Top = 30
  end
end
)";

class CollectionWindowTest : public testing::Test {
 protected:
  CollectionWindowTest() {
    RegisterAll();
    [[maybe_unused]] static const bool once = [] {
      RegisterClass(TString::StaticClass());
      return true;
    }();
    session_ = FormSession::FromBytes(Form);
    inspector_.SetSession(session_.get());
    session_->Select({&Get()});
    // As the inspector's button does it.
    EXPECT_EQ(inspector_.RunDialog(inspector_.IndexOfPath(QStringLiteral("Pearls"))).toStdString(), "");
    EXPECT_EQ(ComponentWindow::All().size(), 1);
    window_ = qobject_cast<CollectionWindow*>(ComponentWindow::All().value(0));
  }
  ~CollectionWindowTest() override { delete window_; }

  TString& Get() { return dynamic_cast<TString&>(*session_->GetComponent(QStringLiteral("String1"))); }
  std::string Rows() const {
    QStringList rows;
    for (int i = 0; i < window_->items->count(); ++i) {
      const QListWidgetItem* item = window_->items->item(i);
      rows << (item->isSelected() ? u'*' + item->text() : item->text());
    }
    return rows.join(u'|').toStdString();
  }
  void Pick(std::initializer_list<int> rows) {
    window_->items->clearSelection();
    for (const int row : rows) window_->items->item(row)->setSelected(true);
  }
  std::string Inspected(const char* path) {
    return inspector_.ValueText(inspector_.IndexOfPath(QLatin1StringView(path))).toStdString();
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers keys = {}) { QTest::keyClick(window_->items, key, keys); }

  std::unique_ptr<FormSession> session_;
  InspectorModel inspector_;
  QPointer<CollectionWindow> window_;
};
}  // namespace

TEST_F(CollectionWindowTest, ListsTheItemsWithIndexAndName) {
  EXPECT_EQ(Rows(), "0 - white|1 - TPearl|2 - black");
  EXPECT_TRUE(window_->isVisible());
  EXPECT_EQ(window_->windowTitle(), QStringLiteral("Editing String1.Pearls"));
  EXPECT_FALSE(session_->CanUndo());
  EXPECT_FALSE(window_->remove->isEnabled());
}

TEST_F(CollectionWindowTest, OpenedAgainTheSameWindowComes) {
  EditCollection(*session_, *Get().Pearls());
  EXPECT_EQ(ComponentWindow::All().size(), 1);
}

TEST_F(CollectionWindowTest, TheInspectorShowsTheSelectedItems) {
  Pick({0});
  EXPECT_EQ(Inspected("Size"), "5");
  EXPECT_EQ(Inspected("Title"), "white");
  EXPECT_EQ(session_->SelectedComponents(), std::vector<TComponent*>{&Get()});
  Pick({1, 2});
  EXPECT_EQ(Inspected("Size"), "3");
  EXPECT_EQ(Inspected("Title"), "") << "they differ";
  EXPECT_EQ(inspector_.SetValueText(inspector_.IndexOfPath(QStringLiteral("Title")), QStringLiteral("grey")),
            QString());
  EXPECT_EQ(Rows(), "0 - white|*1 - grey|*2 - grey");
  session_->Undo();
  EXPECT_EQ(Rows(), "0 - white|*1 - TPearl|*2 - black");
  EXPECT_EQ(session_->Bytes(), Form);
  EXPECT_EQ(Inspected("Size"), "3") << "still the items";
  session_->Select({&session_->Form()});
  EXPECT_EQ(Rows(), "0 - white|1 - TPearl|2 - black");
  EXPECT_EQ(Inspected("Name"), "Main");
}

TEST_F(CollectionWindowTest, AddsWithTheButtonAndTheKeyAndShowsTheNewOne) {
  QTest::mouseClick(window_->add, Qt::LeftButton);
  EXPECT_EQ(Rows(), "0 - white|1 - TPearl|2 - black|*3 - TPearl");
  EXPECT_EQ(Inspected("Size"), "3");
  Key(Qt::Key_Insert);
  EXPECT_EQ(Rows(), "0 - white|1 - TPearl|2 - black|3 - TPearl|*4 - TPearl");
  session_->Undo();
  EXPECT_EQ(Get().Pearls()->Count(), 4);
  session_->Undo();
  EXPECT_EQ(Rows(), "0 - white|1 - TPearl|2 - black");
  EXPECT_EQ(session_->Bytes(), Form);
  EXPECT_FALSE(session_->CanUndo());
  session_->Redo();
  EXPECT_EQ(window_->items->count(), 4);
}

TEST_F(CollectionWindowTest, DeletesWhatIsSelectedAsOneStep) {
  Pick({0, 2});
  Key(Qt::Key_Delete);
  EXPECT_EQ(Rows(), "*0 - TPearl");
  EXPECT_EQ(Inspected("Size"), "3");
  session_->Undo();
  EXPECT_EQ(session_->Bytes(), Form);
  EXPECT_FALSE(session_->CanUndo());
  window_->items->selectAll();
  QTest::mouseClick(window_->remove, Qt::LeftButton);
  EXPECT_EQ(Rows(), "");
  EXPECT_EQ(Inspected("Name"), "String1");
  EXPECT_FALSE(window_->remove->isEnabled());
}

TEST_F(CollectionWindowTest, MovesTheSelectedOnesTogether) {
  Pick({1, 2});
  EXPECT_TRUE(window_->up->isEnabled());
  EXPECT_FALSE(window_->down->isEnabled());
  Key(Qt::Key_Up, Qt::ControlModifier);
  EXPECT_EQ(Rows(), "*0 - TPearl|*1 - black|2 - white");
  EXPECT_EQ(Get().Pearls()->Item(2)->DisplayName(), QStringLiteral("white"));
  const QByteArray moved = session_->Bytes();
  Key(Qt::Key_Up, Qt::ControlModifier);
  EXPECT_EQ(session_->Bytes(), moved) << "they are first already";
  QTest::mouseClick(window_->down, Qt::LeftButton);
  EXPECT_EQ(Rows(), "0 - white|*1 - TPearl|*2 - black");
  session_->Undo();
  session_->Undo();
  EXPECT_EQ(session_->Bytes(), Form);
  EXPECT_FALSE(session_->CanUndo());
}

TEST_F(CollectionWindowTest, AnItemAtTheEndStaysWhenTheOthersMove) {
  Pick({0, 2});
  Key(Qt::Key_Up, Qt::ControlModifier);
  EXPECT_EQ(Rows(), "*0 - white|*1 - black|2 - TPearl");
}

TEST_F(CollectionWindowTest, FollowsWhatOthersDo) {
  session_->Run(QStringLiteral("other"), {}, [&] {
    Get().Pearls()->Delete(0);
    Get().Pearls()->Add();
  });
  EXPECT_EQ(Rows(), "0 - TPearl|1 - black|2 - TPearl");
  session_->Rename(Get(), QStringLiteral("Beads"));
  EXPECT_EQ(window_->windowTitle(), QStringLiteral("Editing Beads.Pearls"));
}

TEST_F(CollectionWindowTest, SurvivesThatAllComponentsAreMadeAnew) {
  session_->Rebuild();
  ASSERT_TRUE(window_->isVisible());
  QTest::mouseClick(window_->add, Qt::LeftButton);
  EXPECT_EQ(Get().Pearls()->Count(), 4);
}

TEST_F(CollectionWindowTest, GoesWithItsComponentAndWithTheForm) {
  session_->Run(QStringLiteral("delete"), {}, [&] {
    session_->DeleteComponents({&Get()});
    EXPECT_TRUE(ComponentWindow::All().isEmpty()) << "at once, not when the command is over";
  });
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(window_.isNull());
  session_->Undo();
  EditCollection(*session_, *Get().Pearls());
  window_ = qobject_cast<CollectionWindow*>(ComponentWindow::All().value(0));
  ASSERT_TRUE(window_);
  inspector_.SetSession(nullptr);
  session_.reset();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(window_.isNull());
}

TEST_F(CollectionWindowTest, TheComponentHasAVerbForIt) {
  delete window_;
  const auto editor = session_->Registry().GetComponentEditor(&Get(), session_.get());
  ASSERT_EQ(editor->GetVerbCount(), 1);
  EXPECT_EQ(editor->GetVerb(0), QStringLiteral("Pearls Editor..."));
  editor->Edit();
  ASSERT_EQ(ComponentWindow::All().size(), 1);
  window_ = qobject_cast<CollectionWindow*>(ComponentWindow::All().value(0));
}

namespace {
// To the upper or the lower half of a row, or below the last one.
void Drag(QListWidget& list, int from, int to, bool lower) {
  QWidget* area = list.viewport();
  const QPoint start = list.visualItemRect(list.item(from)).center();
  const QRect target = list.visualItemRect(list.item(to));
  const QPoint end(target.left() + 20, lower ? target.bottom() - 2 : target.top() + 2);
  QTest::mousePress(area, Qt::LeftButton, {}, start);
  QMouseEvent move(QEvent::MouseMove, end, area->mapToGlobal(end), Qt::NoButton, Qt::LeftButton, {});
  QCoreApplication::sendEvent(area, &move);
  QTest::mouseRelease(area, Qt::LeftButton, {}, end);
}
}  // namespace

TEST_F(CollectionWindowTest, DraggedItemsMoveAsOneStep) {
  Drag(*window_->items, 0, 1, true);
  EXPECT_EQ(Rows(), "0 - TPearl|*1 - white|2 - black");
  EXPECT_EQ(Inspected("Title"), "white");
  Drag(*window_->items, 2, 0, false);
  EXPECT_EQ(Rows(), "*0 - black|1 - TPearl|2 - white");
  session_->Undo();
  session_->Undo();
  EXPECT_EQ(session_->Bytes(), Form);
  EXPECT_FALSE(session_->CanUndo());
}

TEST_F(CollectionWindowTest, SelectedItemsAreDraggedTogether) {
  Pick({0, 2});
  Drag(*window_->items, 2, 1, false);
  EXPECT_EQ(Rows(), "*0 - white|*1 - black|2 - TPearl");
  session_->Undo();
  EXPECT_EQ(session_->Bytes(), Form);
  EXPECT_FALSE(session_->CanUndo());
  Pick({0, 1});
  Drag(*window_->items, 0, 2, true);
  EXPECT_EQ(Rows(), "0 - black|*1 - white|*2 - TPearl");
}

TEST_F(CollectionWindowTest, ADragToWhereItIsOrAShortOneChangesNothing) {
  Drag(*window_->items, 1, 1, true);
  Drag(*window_->items, 1, 0, true);
  Drag(*window_->items, 1, 2, false);
  EXPECT_EQ(Rows(), "0 - white|*1 - TPearl|2 - black");
  QTest::mouseClick(window_->items->viewport(), Qt::LeftButton, {},
                    window_->items->visualItemRect(window_->items->item(2)).center());
  EXPECT_EQ(Rows(), "0 - white|1 - TPearl|*2 - black");
  EXPECT_EQ(session_->Bytes(), Form);
  EXPECT_FALSE(session_->CanUndo());
}
