// Edits that complete words, and words as tags.
#include "library/controls/TextBoxes.h"
#include "tests/library/VisibleProperties.h"

namespace {
const QStringList Others{QStringLiteral("Font."),    QStringLiteral("ParentFont"),
                         QStringLiteral("AutoSize"), QStringLiteral("BorderStyle"),
                         QStringLiteral("DropDown"), QStringLiteral("MaxLength")};
const QStringList Fruit{QStringLiteral("banana"), QStringLiteral("Apricot"), QStringLiteral("apple"),
                        QStringLiteral("Appleseed"), QStringLiteral("apple")};

std::unique_ptr<TVRXEditAutoComplete> Typed(const char* text) {
  auto edit = std::make_unique<TVRXEditAutoComplete>(nullptr);
  edit->SetBounds(0, 0, 151, 27);
  edit->Get(TVRXEditAutoComplete::Words)->SetLines(Fruit);
  edit->SetText(QString::fromLatin1(text));
  return edit;
}
std::unique_ptr<TVRXTagEditor> Tagged(const QStringList& tags, int width = 151) {
  auto edit = std::make_unique<TVRXTagEditor>(nullptr);
  edit->SetBounds(0, 0, width, 81);
  edit->Get(TVRXTagEditor::Tags)->SetLines(tags);
  return edit;
}
}  // namespace

TEST(Completing, OffersTheWordsThatBeginWithWhatIsTyped) {
  const auto edit = Typed("AP");
  EXPECT_EQ(edit->Suggestions().join(u' '), QStringLiteral("apple Appleseed Apricot"));
  EXPECT_EQ(edit->Completion(), QStringLiteral("ple"));
  edit->Set(TVRXEditAutoComplete::Sorted, false);
  EXPECT_EQ(edit->Suggestions().join(u' '), QStringLiteral("Apricot apple Appleseed"));
  edit->Set(TVRXEditAutoComplete::CaseSensitive, true);
  EXPECT_TRUE(edit->Suggestions().isEmpty());
  edit->SetText(QStringLiteral("Ap"));
  EXPECT_EQ(edit->Suggestions().join(u' '), QStringLiteral("Apricot Appleseed"));
  edit->Set(TVRXEditAutoComplete::MinLength, 3);
  EXPECT_TRUE(edit->Suggestions().isEmpty());
}

TEST(Completing, AWholeWordAndAnEmptyFieldAreOfferedNothingOfThemselves) {
  EXPECT_EQ(Typed("apple")->Suggestions().join(u' '), QStringLiteral("Appleseed"));
  EXPECT_TRUE(Typed("")->Suggestions().isEmpty());
  const auto edit = Typed("b");
  EXPECT_EQ(edit->Completion(), QStringLiteral("anana"));
  edit->Set(TVRXEditAutoComplete::ReadOnly, true);
  EXPECT_EQ(edit->Completion(), QString());
}

TEST(Completing, IsDoneInTheFieldBelowItOrBoth) {
  for (const auto mode : {TVRXCompleteMode::cmInline, TVRXCompleteMode::cmList, TVRXCompleteMode::cmBoth}) {
    const auto edit = Typed("ap");
    edit->Set(TVRXEditAutoComplete::CompleteMode, mode);
    EXPECT_EQ(edit->DropDownSize().isEmpty(), mode == TVRXCompleteMode::cmInline);
    EXPECT_EQ(edit->Completion().isEmpty(), mode == TVRXCompleteMode::cmList);
  }
  EXPECT_TRUE(Typed("x")->DropDownSize().isEmpty());
}

TEST(Tags, AreShownOnceAndWithoutEmptyOnes) {
  const auto edit =
      Tagged({QStringLiteral("red"), QString(), QStringLiteral(" blue "), QStringLiteral("red")});
  EXPECT_EQ(edit->ShownTags().join(u'|'), QStringLiteral("red|blue"));
  edit->Set(TVRXTagEditor::AllowDuplicates, true);
  EXPECT_EQ(edit->ShownTags().join(u'|'), QStringLiteral("red|blue|red"));
}

TEST(Tags, StandBesideEachOtherInRowsWithinTheField) {
  QStringList words;
  for (int i = 0; i < 9; ++i) words << QStringLiteral("word%1").arg(i * 111);
  const auto edit = Tagged(words);
  QRegion all;
  int rows = 0;
  for (int i = 0; i < 9; ++i) {
    const QRect rect = edit->TagRect(i);
    EXPECT_FALSE(all.intersects(rect.adjusted(-4, -4, 3, 3))) << i;
    all += rect;
    EXPECT_GE(rect.left(), 3);
    EXPECT_LE(rect.right(), 151 - 4);
    rows += rect.left() == 3;
    EXPECT_EQ(edit->TagAt(rect.topLeft()), i);
    EXPECT_EQ(edit->TagAt(rect.bottomRight()), i);
    EXPECT_TRUE(rect.contains(edit->CloseRect(i)));
  }
  EXPECT_GT(rows, 1);
  EXPECT_FALSE(all.intersects(edit->AddRect()));
  EXPECT_EQ(edit->TagAt(edit->AddRect().center()), -1);
  EXPECT_TRUE(edit->TagRect(9).isEmpty());
  edit->Set(TVRXTagEditor::WrapTags, false);
  EXPECT_EQ(edit->TagRect(8).top(), edit->TagRect(0).top());
  edit->Set(TVRXTagEditor::ShowCloseMarks, false);
  EXPECT_TRUE(edit->CloseRect(0).isEmpty());
}

TEST(Tags, OneIsTakenAwayWithAllThatIsNotShownBecauseOfIt) {
  const auto edit =
      Tagged({QStringLiteral("red"), QString(), QStringLiteral("blue"), QStringLiteral("red ")});
  EXPECT_FALSE(edit->DeleteTag(2));
  EXPECT_FALSE(edit->DeleteTag(-1));
  EXPECT_TRUE(edit->DeleteTag(0));
  EXPECT_EQ(edit->Get(TVRXTagEditor::Tags)->Lines(), (QStringList{QString(), QStringLiteral("blue")}));
  const auto twice = Tagged({QStringLiteral("red"), QStringLiteral("blue"), QStringLiteral("red")});
  twice->Set(TVRXTagEditor::AllowDuplicates, true);
  EXPECT_TRUE(twice->DeleteTag(2));
  EXPECT_EQ(twice->ShownTags().join(u'|'), QStringLiteral("red|blue"));
}

TEST(Tags, TheFieldIsAsHighAsItsRows) {
  const auto edit = Tagged({QStringLiteral("one")});
  edit->SetAutoSize(true);
  const int one = edit->Height();
  edit->Get(TVRXTagEditor::Tags)
      ->SetLines({QStringLiteral("a long word"), QStringLiteral("another long one")});
  EXPECT_GT(edit->Height(), one + 8);
  edit->Get(TVRXTagEditor::Tags)->SetLines({QStringLiteral("one")});
  EXPECT_EQ(edit->Height(), one);
}

TEST(EveryProperty, OfEditsForWordsIsSeen) {
  visible::ExpectAll<TVRXEditAutoComplete>(
      {{"Text=ab", "Alignment=taCenter"},
       {"Text=ab", "CharCase=ecUpperCase"},
       {"", "Color=clYellow"},
       {"", "Enabled=False"},
       {"", "ReadOnly=True"},
       {"", "Text=ab"},
       {"", "TextHint=Hg"}},
      {151, 27},
      Others + QStringList{QStringLiteral("CaseSensitive"), QStringLiteral("CompleteMode"),
                           QStringLiteral("MinLength"), QStringLiteral("Sorted")});
  for (const char* change : {"CaseSensitive=True", "CompleteMode=cmList", "MinLength=3", "Sorted=False",
                             "Enabled=False", "Alignment=taCenter", "ReadOnly=True"}) {
    SCOPED_TRACE(change);
    const auto edit = Typed("aP");
    const QImage before = Draw(*edit, Qt::white);
    visible::Apply(*edit, QString::fromLatin1(change));
    EXPECT_NE(Draw(*edit, Qt::white), before);
  }
  visible::ExpectAll<TVRXTagEditor>(
      {{"", "Color=clYellow"},
       {"", "Enabled=False"},
       {"", "ReadOnly=True"},
       {"", "ShowAddMark=False"},
       {"", "TagBorderColor=clRed"},
       {"", "TagRadius=9"},
       {"", "TextHint=Hg"}},
      {151, 81},
      Others + QStringList{QStringLiteral("AllowDuplicates"), QStringLiteral("ShowCloseMarks"),
                           QStringLiteral("Spacing"), QStringLiteral("TagColor"),
                           QStringLiteral("TagTextColor"), QStringLiteral("WrapTags")});
  for (const char* change : {"AllowDuplicates=True", "ShowCloseMarks=False", "Spacing=9", "TagColor=clRed",
                             "TagTextColor=clRed", "WrapTags=False"}) {
    SCOPED_TRACE(change);
    const auto edit = Tagged({QStringLiteral("first"), QStringLiteral("second"), QStringLiteral("third"),
                              QStringLiteral("first"), QStringLiteral("fourth")});
    const QImage before = Draw(*edit, Qt::white);
    visible::Apply(*edit, QString::fromLatin1(change));
    EXPECT_NE(Draw(*edit, Qt::white), before);
  }
}
