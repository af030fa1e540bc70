// An edit of an item leaves what it does not say as the file has it: the other items, the order of the
// properties, values that need not be written.
#include <random>

#include "SessionTest.h"
#include "rtl/PropAccess.h"
#include "vcl/StatusBar.h"

namespace {
const char* const Around[] = {R"(object Main: TMain
  Left = 0
  Top = 0
  ClientHeight = 300
  ClientWidth = 400
  object Bar: TStatusBar
    Left = 0
    Top = 281
    Width = 400
    Height = 19
    Panels = <)",
                              R"(>
  end
end
)"};
const QByteArray Three = R"(
      item
        Width = 70
        Text = 'one'
        Style = psText
      end
      item
        Text = 'two'
        Bevel = pbLowered
        Width = 50
      end
      item
        Width = 90
        Alignment = taCenter
        Text = 'three'
      end)";

class CollectionPatch : public testing::Test {
 protected:
  void Open(const QByteArray& items) {
    ide::RegisterAll();
    first_ = Around[0] + items + Around[1];
    session_ = FormSession::FromBytes(first_);
    bar_ = session_->Form().FindComponent(QStringLiteral("Bar"));
    panels_ = dynamic_cast<TStatusBar&>(*bar_).Get(TStatusBar::Panels);
  }
  void SetUp() override { Open(Three); }
  TCollectionItem& Panel(int i) { return *panels_->Item(i); }
  void SetText(int i, const char* text) {
    SetStrProp(Panel(i), Panel(i).ClassType().GetProp("Text"), QString::fromUtf8(text));
  }
  void SetWidth(int i, int width) { SetOrdProp(Panel(i), Panel(i).ClassType().GetProp("Width"), width); }
  // Lines that are gone and have come; undo and redo go the same way.
  QByteArray After(const std::function<void()>& action) {
    session_->Run(QStringLiteral("edit"), {bar_}, action);
    const QByteArray bytes = session_->Bytes();
    session_->Undo();
    EXPECT_EQ(session_->Bytes(), first_);
    session_->Redo();
    EXPECT_EQ(session_->Bytes(), bytes);
    return ide::ChangedLines(first_, bytes).join('|');
  }

  QByteArray first_;
  std::unique_ptr<FormSession> session_;
  TComponent* bar_ = nullptr;
  TStatusPanels* panels_ = nullptr;
};
}  // namespace

TEST_F(CollectionPatch, OneValueIsOneLine) {
  EXPECT_EQ(After([&] { SetWidth(2, 91); }), "-Width = 90|+Width = 91");
  EXPECT_TRUE(session_->Bytes().contains("        Width = 91\n        Alignment = taCenter\n"));
}

TEST_F(CollectionPatch, AValueThatComesToItsDefaultGoes) {
  EXPECT_EQ(After([&] { SetWidth(0, 50); }), "-Width = 70");
}

TEST_F(CollectionPatch, AnExplicitDefaultTakesAnotherValueInItsPlace) {
  EXPECT_EQ(After([&] { SetWidth(1, 51); }), "-Width = 50|+Width = 51");
}

TEST_F(CollectionPatch, ANewValueStandsBehindTheNearestThatIsWrittenBeforeIt) {
  EXPECT_EQ(After([&] { SetOrdProp(Panel(0), Panel(0).ClassType().GetProp("Alignment"), 1); }),
            "+Alignment = taRightJustify");
}

TEST_F(CollectionPatch, AnItemMoreOrLessLeavesTheOthers) {
  EXPECT_EQ(After([&] { panels_->Delete(1); }), "-Text = 'two'|-Bevel = pbLowered|-Width = 50|-end|-item");
  Open(Three);
  EXPECT_EQ(After([&] {
              panels_->Add();
              SetText(3, "four");
            }),
            "+end|+item|+Text = 'four'");
}

TEST_F(CollectionPatch, AMovedItemTakesItsLinesAlong) {
  After([&] { panels_->Move(2, 0); });
  EXPECT_EQ(session_->Bytes(), Around[0] + QByteArray(R"(
      item
        Width = 90
        Alignment = taCenter
        Text = 'three'
      end
      item
        Width = 70
        Text = 'one'
        Style = psText
      end
      item
        Text = 'two'
        Bevel = pbLowered
        Width = 50
      end)") + Around[1]);
}

TEST_F(CollectionPatch, ANewValueStandsBehindWhatIsWrittenBeforeIt) {
  Open("\n      item\n        Style = psOwnerDraw\n        Text = 'one'\n      end");
  After([&] { SetWidth(0, 60); });
  EXPECT_TRUE(session_->Bytes().contains("        Text = 'one'\n        Width = 60\n"))
      << session_->Bytes().toStdString();
}

TEST_F(CollectionPatch, ItemsThatSayTheSameKeepTheirWords) {
  Open(
      "\n      item\n        Text = 'same'\n      end\n      item\n        Width = 50\n        Text = "
      "'same'\n"
      "      end\n      item\n        Text = 'other'\n      end");
  EXPECT_EQ(After([&] { SetText(2, "new"); }), "-Text = 'other'|+Text = 'new'");
}

// Whatever is done to the items: what is written says what stands on the form, and the items that nobody
// touched are in the file as they were.
TEST_F(CollectionPatch, AnyRunOfEditsWritesWhatIsThereAndKeepsWhatWasNotTouched) {
  std::mt19937 random(11);
  const auto upTo = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
  for (int round = 0; round < 60; ++round) {
    QByteArray items;
    QList<QByteArray> texts;
    for (int i = 0; i < 6; ++i) {
      QByteArrayList lines{"        Width = " + QByteArray::number(50 + upTo(3)),
                           "        Text = 'p" + QByteArray::number(i) + "'"};
      if (upTo(2)) lines << "        Style = psText";
      if (upTo(2)) lines << "        Alignment = taCenter";
      if (upTo(2)) lines << "        Foreign = " + QByteArray::number(i);
      std::shuffle(lines.begin(), lines.end(), random);
      texts << "      item\n" + lines.join('\n') + "\n      end";
      items += '\n' + texts.last();
    }
    Open(items);
    QSet<int> untouched{0, 1, 2, 3, 4, 5};
    for (int step = 0; step < 4; ++step) {
      session_->Run(QStringLiteral("edit"), {bar_}, [&] {
        const int i = upTo(panels_->Count());
        const QString text = GetStrProp(Panel(i), Panel(i).ClassType().GetProp("Text"));
        const int which = text.startsWith(u'p') ? text.mid(1).toInt() : -1;
        switch (upTo(4)) {
          case 0:
            SetWidth(i, 200 + step);
            untouched.remove(which);
            break;
          case 1:
            panels_->Move(i, upTo(panels_->Count()));
            break;
          case 2:
            panels_->Delete(i);
            untouched.remove(which);
            break;
          default:
            panels_->Add();
            panels_->Move(panels_->Count() - 1, i);
        }
      });
      const QByteArray bytes = session_->Bytes();
      ASSERT_EQ(ide::StateOf(bytes), ide::StateOf(*session_)) << bytes.toStdString();
      for (const int kept : untouched) ASSERT_TRUE(bytes.contains(texts[kept])) << bytes.toStdString();
    }
    while (session_->CanUndo()) session_->Undo();
    ASSERT_EQ(session_->Bytes(), first_);
  }
}
