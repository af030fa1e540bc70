// The bytes in which form files keep the items of lists and trees: every layout comes back as it was, byte
// for byte, and damage is told and kept.
#include <gtest/gtest.h>

#include <random>

#include "rtl/PropAccess.h"
#include "vcl/Form.h"
#include "vcl/ItemStream.h"
#include "vcl/ListItems.h"
#include "vcl/TreeNodes.h"

namespace {
int Below(std::mt19937& random, int limit) {
  return static_cast<int>(random() % static_cast<unsigned>(limit));
}

QString Word(std::mt19937& random, bool plain) {
  QString text;
  for (int n = Below(random, 9); n > 0; --n)
    text += plain ? QChar(u'a' + Below(random, 26)) : QChar(0x3B1 + Below(random, 20));
  return text;
}

QList<TListViewItem> SomeItems(unsigned seed, const TListItemsLayout& layout) {
  std::mt19937 random(seed);
  const bool plain = layout.key == TListItemsKey::Data;
  QList<TListViewItem> items;
  for (int n = 1 + Below(random, 5); n > 0; --n) {
    TListViewItem item{.Caption = Word(random, plain), .ImageIndex = Below(random, 9) - 1};
    item.StateIndex = Below(random, 3);
    if (layout.overlay) item.OverlayIndex = Below(random, 3) + 4;
    if (layout.group) item.GroupID = Below(random, 3) + 7;
    if (layout.data > 0) item.Data = static_cast<quint64>(Below(random, 90000));
    for (int s = Below(random, 4); s > 0; --s) {
      item.SubItems << Word(random, plain);
      if (layout.images > 0) item.SubItemImages << Below(random, 5) - 1;
      if (layout.pointer > 0) item.SubItemData << static_cast<quint64>(Below(random, 900) + 1);
    }
    items << item;
  }
  return items;
}

TTreeNodeList SomeNodes(std::mt19937& random, const TTreeNodesLayout& layout, int depth) {
  TTreeNodeList nodes;
  for (int n = (depth == 0) + Below(random, 4); n > 0; --n) {
    TTreeNode node{.Text = Word(random, layout.key == TTreeNodesKey::Data)};
    node.ImageIndex = Below(random, 9);
    node.SelectedIndex = Below(random, 9);
    node.StateIndex = Below(random, 9);
    if (layout.expandedImage) node.ExpandedImageIndex = Below(random, 9);
    if (layout.enabled) node.Enabled = Below(random, 2) != 0;
    if (layout.data > 0) node.Data = static_cast<quint64>(Below(random, 90000));
    if (layout.key == TTreeNodesKey::LclData) {
      node.Expanded = Below(random, 2) != 0;
      node.Height = 18;
    }
    if (depth < 3) node.Children = SomeNodes(random, layout, depth + 1);
    nodes.push_back(node);
  }
  return nodes;
}

QByteArray Hex(const char* hex) { return QByteArray::fromHex(hex); }
}  // namespace

TEST(ListItems, EveryLayoutComesBackAsItWas) {
  using enum TListItemsKey;
  for (const TListItemsLayout& layout : {TListItemsLayout{}, TListItemsLayout{Data, 0, true, false, 4, 0, 4},
                                         TListItemsLayout{ItemData, 1, true, false, 4, 0, 2},
                                         TListItemsLayout{LazData, 0, true, false, 0, 0, 4}})
    for (unsigned seed = 0; seed < 200; ++seed) {
      const QList<TListViewItem> items = SomeItems(seed, layout);
      const QByteArray bytes = WriteListItems(layout, items);
      const auto read = ReadListItems(layout.key, bytes);
      ASSERT_TRUE(read) << seed;
      EXPECT_EQ(read->items, items) << seed;
      EXPECT_EQ(WriteListItems(read->layout, read->items), bytes) << seed;
    }
}

TEST(ListItems, AreReadFromTheBytesOfAForm) {
  // Two items, one with a subitem and its picture.
  const auto read = ReadListItems(TListItemsKey::ItemData,
                                  Hex("05620000000200000000000000FFFFFFFFFFFFFFFF01000000FFFFFFFF0000"
                                      "00000341004200E9000158000000000001000000FFFFFFFFFFFFFFFF000000"
                                      "00FFFFFFFF000000000142000700"));
  ASSERT_TRUE(read);
  ASSERT_EQ(read->items.size(), 2);
  EXPECT_EQ(read->items[0].Caption, QStringLiteral("AB\u00E9"));
  EXPECT_EQ(read->items[0].ImageIndex, 0);
  EXPECT_EQ(read->items[0].SubItems, QStringList{QStringLiteral("X")});
  EXPECT_EQ(read->items[0].SubItemImages, QList<int>{7});
  EXPECT_EQ(read->items[1].Caption, QStringLiteral("B"));
  EXPECT_EQ(read->items[1].ImageIndex, 1);
}

TEST(ListItems, AListThatHasNoneIsEmpty) {
  const auto read = ReadListItems(TListItemsKey::ItemData, Hex("050000000000000000"));
  ASSERT_TRUE(read);
  EXPECT_TRUE(read->items.isEmpty());
}

TEST(ListItems, WhatIsCutOffOrTooLongIsNotRead) {
  const TListItemsLayout layout;
  const QList<TListViewItem> items{
      {.Caption = QStringLiteral("a word"), .SubItems = {QStringLiteral("another")}},
      {.Caption = QStringLiteral("more")}};
  const QByteArray bytes = WriteListItems(layout, items);
  // The picture of the one subitem at the end may be missing.
  for (qsizetype size = 1; size < bytes.size() - 2; ++size)
    EXPECT_FALSE(ReadListItems(layout.key, bytes.first(size))) << size;
  EXPECT_FALSE(ReadListItems(layout.key, bytes + "more"));
  // More items than there are bytes for.
  EXPECT_FALSE(ReadListItems(layout.key, Hex("0500000000FFFFFF7F")));
  EXPECT_FALSE(ReadListItems(layout.key, Hex("0500000000FFFFFFFF")));
}

TEST(ListItems, DamagedBytesAreKeptAndTold) {
  TListItems items;
  const TPropInfo& data = TListItems::StaticClass().GetProp("ItemData");
  const QByteArray damaged = Hex("0512000000030000");
  SetBinaryProp(items, data, damaged);
  EXPECT_TRUE(items.Items().isEmpty());
  EXPECT_TRUE(items.Problem().contains(QStringLiteral("8 bytes"))) << items.Problem().toStdString();
  EXPECT_EQ(GetBinaryProp(items, data), damaged);
}

TEST(ListItems, NewOnesAreKeptAsTheFormsOfTheirFamilyDo) {
  for (const bool client : {false, true}) {
    TForm form(nullptr);
    form.SetSizeIsClient(client);
    TListItems items(&form);
    items.SetItems({{.Caption = QStringLiteral("one")}});
    EXPECT_EQ(GetBinaryProp(items, TListItems::StaticClass().GetProp("LazData")).isEmpty(), !client);
    EXPECT_EQ(GetBinaryProp(items, TListItems::StaticClass().GetProp("ItemData")).isEmpty(), client);
    EXPECT_EQ(items.Items()[0].Caption, QStringLiteral("one"));
  }
}

TEST(ListItems, TextsThatAnOldLayoutCannotKeepMoveToTheNewOne) {
  TListItems items;
  const TPropInfo& old = TListItems::StaticClass().GetProp("Data");
  SetBinaryProp(
      items, old,
      WriteListItems({TListItemsKey::Data, 0, true, false, 4, 0, 4}, {{.Caption = QStringLiteral("a")}}));
  items.SetItems({{.Caption = QStringLiteral("b")}});
  EXPECT_FALSE(GetBinaryProp(items, old).isEmpty());
  items.SetItems({{.Caption = QStringLiteral("\u03B2")}});
  EXPECT_TRUE(GetBinaryProp(items, old).isEmpty());
  EXPECT_EQ(items.Items()[0].Caption, QStringLiteral("\u03B2"));
}

TEST(TreeNodes, EveryLayoutComesBackAsItWas) {
  using enum TTreeNodesKey;
  for (const TTreeNodesLayout& layout :
       {TTreeNodesLayout{}, TTreeNodesLayout{Data, 0, false, 4, false},
        TTreeNodesLayout{NodeData, 1, false, 4, false}, TTreeNodesLayout{NodeData, 2, true, 4, false},
        TTreeNodesLayout{NodeData, 4, true, 8, true}, TTreeNodesLayout{LclData, 2, false, 0, false}})
    for (unsigned seed = 0; seed < 100; ++seed) {
      std::mt19937 random(seed);
      const TTreeNodeList nodes = SomeNodes(random, layout, 0);
      const QByteArray bytes = WriteTreeNodes(layout, nodes);
      const auto read = ReadTreeNodes(layout.key, bytes);
      ASSERT_TRUE(read) << seed;
      EXPECT_EQ(read->nodes, nodes) << seed;
      EXPECT_EQ(WriteTreeNodes(read->layout, read->nodes), bytes) << seed;
    }
}

TEST(TreeNodes, AreReadFromTheBytesOfAForm) {
  const auto today = ReadTreeNodes(
      TTreeNodesKey::NodeData,
      Hex("0301000000240000000000000000000000FFFFFFFFFFFFFFFF00000000000000"
          "000100000001034100420043002000000002000000030000000000000000000000000000000000000000000000"
          "01015A00"));
  ASSERT_TRUE(today);
  ASSERT_EQ(today->nodes.size(), 1u);
  EXPECT_EQ(today->nodes[0].Text, QStringLiteral("ABC"));
  ASSERT_EQ(today->nodes[0].Children.size(), 1u);
  EXPECT_EQ(today->nodes[0].Children[0].Text, QStringLiteral("Z"));
  EXPECT_EQ(today->nodes[0].Children[0].ImageIndex, 2);
  EXPECT_EQ(today->nodes[0].Children[0].SelectedIndex, 3);

  const auto other = ReadTreeNodes(
      TTreeNodesKey::LclData, Hex("F9FFFFFF020001000000000000000000000000000000FFFFFFFF0000000000000000000500"
                                  "00004E6F646530"));
  ASSERT_TRUE(other);
  ASSERT_EQ(other->nodes.size(), 1u);
  EXPECT_EQ(other->nodes[0].Text, QStringLiteral("Node0"));
}

TEST(TreeNodes, WhatIsCutOffOrNestedWithoutEndIsNotRead) {
  std::mt19937 random(5);
  const TTreeNodesLayout layout;
  const QByteArray bytes = WriteTreeNodes(layout, SomeNodes(random, layout, 0));
  for (qsizetype size = 1; size < bytes.size(); ++size)
    EXPECT_FALSE(ReadTreeNodes(layout.key, bytes.first(size))) << size;
  // Each node says that it has a child, 100,000 times.
  QByteArray deep = Hex("0301000000");
  for (int i = 0; i < 100000; ++i)
    deep += Hex("1E00000000000000000000000000000000000000000000000000000001000000") + Hex("0100");
  EXPECT_FALSE(ReadTreeNodes(layout.key, deep));
}

TEST(TreeNodes, DataIsOfEitherFamily) {
  TTreeNodes nodes;
  const TPropInfo& data = TTreeNodes::StaticClass().GetProp("Data");
  for (const TTreeNodesLayout& layout : {TTreeNodesLayout{TTreeNodesKey::Data, 0, false, 4, false},
                                         TTreeNodesLayout{TTreeNodesKey::LclData, 2, false, 0, false}}) {
    const QByteArray bytes = WriteTreeNodes(layout, {{.Text = QStringLiteral("root")}});
    SetBinaryProp(nodes, data, bytes);
    ASSERT_EQ(nodes.Nodes().size(), 1u);
    EXPECT_EQ(nodes.Nodes()[0].Text, QStringLiteral("root"));
    EXPECT_EQ(GetBinaryProp(nodes, data), bytes);
    nodes.SetNodes({{.Text = QStringLiteral("other")}});
    EXPECT_EQ(GetBinaryProp(nodes, data), WriteTreeNodes(layout, {{.Text = QStringLiteral("other")}}));
  }
}

TEST(TreeNodes, DamagedBytesAreKeptAndTold) {
  TTreeNodes nodes;
  const TPropInfo& data = TTreeNodes::StaticClass().GetProp("NodeData");
  SetBinaryProp(nodes, data, Hex("030200"));
  EXPECT_TRUE(nodes.Nodes().empty());
  EXPECT_FALSE(nodes.Problem().isEmpty());
  EXPECT_EQ(GetBinaryProp(nodes, data), Hex("030200"));
}

TEST(ListItems, AnImageOfASubitemIsKeptWhereTheFileHadNoRoomForOne) {
  using enum TListItemsKey;
  for (const TListItemsLayout& layout : {TListItemsLayout{ItemData, 5, true, true, 4, 4, 0},
                                         TListItemsLayout{LazData, 0, true, false, 0, 0, 0}}) {
    TListItems list;
    QList<TListViewItem> items{{.Caption = QStringLiteral("a"), .SubItems = {QStringLiteral("b")}}};
    const char* name = layout.key == ItemData ? "ItemData" : "LazData";
    SetBinaryProp(list, list.ClassType().GetProp(name), WriteListItems(layout, items));
    items[0].SubItemImages = {3};
    list.SetItems(items);
    const auto read = ReadListItems(layout.key, GetBinaryProp(list, list.ClassType().GetProp(name)));
    ASSERT_TRUE(read) << name;
    EXPECT_EQ(read->items, items) << name;
  }
}
