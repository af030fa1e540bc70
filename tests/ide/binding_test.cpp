// Between components and the document: what is written of what a component says, and what is made of what is
// written.
#include "SessionTest.h"
#include "rtl/Collection.h"

using namespace ide;

namespace {
using BindingTest = SessionTest;

class TBead : public TCollectionItem {
  VRX_CLASS(TBead)
 public:
  using TCollectionItem::TCollectionItem;
  int Size() const { return size_; }
  void SetSize(int v) { Change(size_, v); }

 private:
  int size_ = 3;
};
const TClass& TBead::StaticClass() {
  static const TClass cls(DescribeClass<TBead>("TBead", TCollectionItem::StaticClass())
                              .Published("Size", &TBead::Size, &TBead::SetSize, 3));
  return cls;
}

class TNecklace : public TComponent {
  VRX_CLASS(TNecklace)
 public:
  using TComponent::TComponent;
  TCollection* Beads() const { return beads_.get(); }

 private:
  std::unique_ptr<TCollection> beads_ = std::make_unique<TCollection>(TBead::StaticClass(), this);
};
const TClass& TNecklace::StaticClass() {
  static const TClass cls(DescribeClass<TNecklace>("TNecklace", TComponent::StaticClass())
                              .Published("Beads", &TNecklace::Beads, nullptr));
  return cls;
}
}  // namespace

TEST_F(BindingTest, WhatAParentGivesIsNotWrittenWithTheChild) {
  session_->Run(QStringLiteral("font"), {}, [&] { session_->Form().Font()->SetHeight(-31); });
  EXPECT_EQ(Get<TButton>("Inner").Font()->Height(), -31);
  // The form has one now, and the label that had one of its own.
  EXPECT_EQ(session_->Bytes().count("Font.Height = "), 2);
  EXPECT_EQ(session_->Bytes().count("Font.Color = "), 2);
  ExpectUndoable();
}

TEST_F(BindingTest, ItemsOfACollectionAreReplacedNotAdded) {
  const int owner = 0;
  RegisterClass(TNecklace::StaticClass(), &owner);
  const auto gone = qScopeGuard([&] { UnRegisterClasses(&owner); });
  const QByteArray bytes =
      "object Main: TMain\n  Caption = ''\n  object Chain: TNecklace\n    Beads = <\n      item\n        "
      "Size = "
      "7\n      end\n      item\n      end>\n    Left = 5\n  end\nend\n";
  const auto session = FormSession::FromBytes(bytes);
  auto* chain = As<TNecklace>(session->GetComponent(QStringLiteral("Chain")));
  const auto sizes = [&] {
    QList<int> all;
    for (int i = 0; i < chain->Beads()->Count(); ++i)
      all << static_cast<TBead*>(chain->Beads()->Item(i))->Size();
    return all;
  };
  ASSERT_EQ(sizes(), (QList<int>{7, 3}));
  session->Run(QStringLiteral("bead"), {}, [&] { static_cast<TBead*>(chain->Beads()->Add())->SetSize(11); });
  EXPECT_EQ(sizes(), (QList<int>{7, 3, 11}));
  session->Undo();
  EXPECT_EQ(sizes(), (QList<int>{7, 3}));
  EXPECT_EQ(session->Bytes(), bytes);
  session->Redo();
  EXPECT_EQ(sizes(), (QList<int>{7, 3, 11}));
}

TEST_F(BindingTest, AReferenceMayLeadToTheFormItself) {
  const auto session = FormSession::FromBytes(
      "object Main: TMain\n  Caption = ''\n  object Text: TLabel\n    FocusControl = Main\n  end\nend\n");
  EXPECT_EQ(As<TLabel>(session->GetComponent(QStringLiteral("Text")))->FocusControl(), &session->Form());
}
