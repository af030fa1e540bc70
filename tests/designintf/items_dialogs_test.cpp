// The dialogs of tree-view and list-view items, of cells and of edit masks: what they take over, and that
// they take nothing else.
#include <QClipboard>

#include "dclstd/CellsDialog.h"
#include "dclstd/CellsModel.h"
#include "dclstd/DateTimeDialog.h"
#include "dclstd/EditMaskDialog.h"
#include "dclstd/ItemsDialog.h"
#include "dclstd/SeparatedText.h"
#include "tests/designintf/StandardDialogTest.h"
#include "vcl/Calendar.h"
#include "vcl/DateTimePicker.h"
#include "vcl/Edit.h"
#include "vcl/Form.h"
#include "vcl/TreeView.h"

using namespace fields;

namespace {
QString L(const char* text) { return QString::fromUtf8(text); }

// "first[second third] fourth", the selected one marked.
std::string Outline(QTreeWidget& tree, QTreeWidgetItem* around) {
  QStringList names;
  for (int i = 0; i < around->childCount(); ++i) {
    const std::string below = Outline(tree, around->child(i));
    QString name = around->child(i)->text(0);
    if (around->child(i) == tree.currentItem()) name.prepend(u'*');
    names << name + (below.empty() ? QString() : u'[' + QString::fromStdString(below) + u']');
  }
  return names.join(u' ').toStdString();
}
std::string Outline(const ItemsDialog& dialog) {
  return Outline(*dialog.tree, dialog.tree->invisibleRootItem());
}

QTreeWidgetItem* Find(const ItemsDialog& dialog, const char* text) {
  return dialog.tree->findItems(L(text), Qt::MatchExactly | Qt::MatchRecursive).value(0);
}
void Pick(const ItemsDialog& dialog, const char* text) { dialog.tree->setCurrentItem(Find(dialog, text)); }
// A share of the height of the target says where on it the mouse lets go.
void Drag(const ItemsDialog& dialog, const char* from, const char* to, double share) {
  QWidget* area = dialog.tree->viewport();
  const QPoint start = dialog.tree->visualItemRect(Find(dialog, from)).center();
  const QRect rect = dialog.tree->visualItemRect(Find(dialog, to));
  const QPoint end(rect.center().x(), rect.top() + static_cast<int>(rect.height() * share));
  QTest::mousePress(area, Qt::LeftButton, {}, start);
  QTest::mouseMove(area, start + QPoint(0, 3));
  QMouseEvent move(QEvent::MouseMove, end, area->mapToGlobal(end), Qt::NoButton, Qt::LeftButton, {});
  QCoreApplication::sendEvent(area, &move);
  QCoreApplication::sendEvent(area, &move);
  QTest::mouseRelease(area, Qt::LeftButton, {}, end);
}

TTreeNode Node(const char* text, std::vector<TTreeNode> children = {}) {
  TTreeNode node{.Text = L(text), .ImageIndex = 3, .SelectedIndex = 4, .StateIndex = 1, .OverlayIndex = 2};
  node.ExpandedImageIndex = 6;
  node.Enabled = false;
  node.Data = 0xCAFE;
  node.Children = std::move(children);
  return node;
}
}  // namespace

// --- Trees

class TreeEditor : public StandardDialogs {
 protected:
  TreeEditor() {
    tree.Get(TTreeView::Items)->SetNodes({Node("a", {Node("b"), Node("c", {Node("d")})}), Node("e")});
  }
  void Run(std::function<void(TreeItemsDialog&)> act) {
    modal::NextOf<TreeItemsDialog>([act = std::move(act)](TreeItemsDialog& dialog) {
      act(dialog);
      if (dialog.isVisible()) dialog.ok->click();
    });
    Of({&tree}, "Items")->Edit();
  }
  const TTreeNodeList& Nodes() { return tree.Get(TTreeView::Items)->Nodes(); }
  TTreeView tree{nullptr};
};

TEST_F(TreeEditor, ShowsTheNodesAndChangesNothingUntouchedOrCancelled) {
  const TTreeNodeList before = Nodes();
  Run([](TreeItemsDialog& dialog) {
    EXPECT_EQ(Outline(dialog), "*a[b c[d]] e");
    EXPECT_EQ(dialog.text->text(), L("a"));
    EXPECT_EQ(dialog.image->value(), 3);
    EXPECT_EQ(dialog.selected->value(), 4);
    EXPECT_EQ(dialog.state->value(), 1);
    Pick(dialog, "d");
  });
  EXPECT_EQ(designer.modified, 0);
  Run([](TreeItemsDialog& dialog) {
    Click(dialog.newItem);
    Pick(dialog, "e");
    Click(dialog.remove);
    dialog.cancel->click();
  });
  EXPECT_EQ(Nodes(), before);
  EXPECT_EQ(designer.modified, 0);
}

TEST_F(TreeEditor, AClickBelowTheItemsLeavesNoneSelectedSoThatANewOneComesToTheEnd) {
  Run([](TreeItemsDialog& dialog) {
    Pick(dialog, "d");
    const QWidget& area = *dialog.tree->viewport();
    QTest::mouseClick(dialog.tree->viewport(), Qt::LeftButton, {}, QPoint(20, area.height() - 5));
    EXPECT_EQ(Outline(dialog), "a[b c[d]] e");
    EXPECT_FALSE(dialog.text->isEnabled());
    EXPECT_FALSE(dialog.newSubItem->isEnabled());
    Click(dialog.newItem);
    QTest::keyClicks(dialog.text, L("last"));
    EXPECT_EQ(Outline(dialog), "a[b c[d]] e *last");
    dialog.cancel->click();
  });
}

TEST_F(TreeEditor, TakesWhatIsTypedAndKeepsWhatItDoesNotShow) {
  TTreeNodeList wanted = Nodes();
  Run([](TreeItemsDialog& dialog) {
    Pick(dialog, "c");
    dialog.text->selectAll();
    QTest::keyClicks(dialog.text, L("cherry"));
    EXPECT_EQ(Outline(dialog), "a[b *cherry[d]] e");
    dialog.image->setValue(7);
    dialog.selected->setValue(8);
    dialog.state->setValue(-1);
  });
  TTreeNode& c = wanted[0].Children[1];
  c.Text = L("cherry");
  c.ImageIndex = 7;
  c.SelectedIndex = 8;
  c.StateIndex = -1;
  EXPECT_EQ(Nodes(), wanted);
  EXPECT_EQ(Nodes()[0].Children[1].Data, 0xCAFEu);
  EXPECT_EQ(designer.modified, 1);
}

// Longer than most forms can keep.
TEST_F(TreeEditor, ALongTextLosesOnlyWhatIsTakenFromIt) {
  const QString text(300, u'x');
  TTreeNode node = Node("");
  node.Text = text + u'y';
  TreeItemsDialog dialog(nullptr);
  dialog.SetNodes({node});
  dialog.show();
  dialog.text->end(false);
  QTest::keyClick(dialog.text, Qt::Key_Backspace);
  EXPECT_EQ(dialog.Nodes()[0].Text.toStdString(), text.toStdString());
}

TEST_F(TreeEditor, MakesAndDeletesItems) {
  Run([](TreeItemsDialog& dialog) {
    Pick(dialog, "b");
    Click(dialog.newItem);
    EXPECT_EQ(dialog.focusWidget(), dialog.text);
    QTest::keyClicks(dialog.text, L("f"));
    EXPECT_EQ(Outline(dialog), "a[b *f c[d]] e");
    Click(dialog.newSubItem);
    QTest::keyClicks(dialog.text, L("g"));
    QTest::keyClick(dialog.tree, Qt::Key_Insert);
    QTest::keyClicks(dialog.text, L("h"));
    QTest::keyClick(dialog.tree, Qt::Key_Insert, Qt::ShiftModifier);
    QTest::keyClicks(dialog.text, L("i"));
    EXPECT_EQ(Outline(dialog), "a[b f[g h[*i]] c[d]] e");
    Pick(dialog, "c");
    QTest::keyClick(dialog.tree, Qt::Key_Delete);
    EXPECT_EQ(Outline(dialog), "a[b *f[g h[i]]] e") << "the one before the last one";
  });
  ASSERT_EQ(Nodes()[0].Children.size(), 2u);
  const TTreeNode& made = Nodes()[0].Children[1];
  EXPECT_EQ(made.Children[1].Children[0].Text, L("i"));
  EXPECT_EQ(made.ImageIndex, 0);
  EXPECT_EQ(made.StateIndex, -1);
  Run([](TreeItemsDialog& dialog) {
    while (dialog.remove->isEnabled()) Click(dialog.remove);
    EXPECT_EQ(Outline(dialog), "");
    EXPECT_FALSE(dialog.text->isEnabled());
    EXPECT_FALSE(dialog.newSubItem->isEnabled());
    Click(dialog.newItem);
    QTest::keyClicks(dialog.text, L("new"));
  });
  ASSERT_EQ(Nodes().size(), 1u);
  EXPECT_EQ(Nodes()[0].Text, L("new"));
}

TEST_F(TreeEditor, ANumberThatIsBeingTypedBelongsToItsOwnItem) {
  Run([](TreeItemsDialog& dialog) {
    dialog.image->setFocus();
    dialog.image->selectAll();
    QTest::keyClicks(dialog.image, L("42"));
    dialog.newItem->click();  // by its key: the focus stays in the field
    QTest::keyClicks(dialog.text, L("n"));
  });
  EXPECT_EQ(Nodes()[0].ImageIndex, 42);
  EXPECT_EQ(Nodes()[1].Text, L("n"));
  EXPECT_EQ(Nodes()[1].ImageIndex, 0);
}

TEST_F(TreeEditor, MovesItemsWithButtonsAndKeys) {
  Run([](TreeItemsDialog& dialog) {
    EXPECT_FALSE(dialog.up->isEnabled());
    EXPECT_TRUE(dialog.down->isEnabled());
    Click(dialog.down);
    EXPECT_EQ(Outline(dialog), "e *a[b c[d]]");
    EXPECT_FALSE(dialog.down->isEnabled());
    QTest::keyClick(dialog.tree, Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(Outline(dialog), "*a[b c[d]] e");
    Pick(dialog, "c");
    QTest::keyClick(dialog.tree, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(Outline(dialog), "a[b[*c[d]]] e");
    QTest::keyClick(dialog.tree, Qt::Key_Left, Qt::ControlModifier);
    QTest::keyClick(dialog.tree, Qt::Key_Left, Qt::ControlModifier);
    QTest::keyClick(dialog.tree, Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(Outline(dialog), "a[b] *c[d] e");
    EXPECT_TRUE(Find(dialog, "c")->isExpanded());
  });
  EXPECT_EQ(Nodes(), (TTreeNodeList{Node("a", {Node("b")}), Node("c", {Node("d")}), Node("e")}));
}

TEST_F(TreeEditor, AnItemIsDraggedInFrontBehindAndIntoAnother) {
  Run([](TreeItemsDialog& dialog) {
    Drag(dialog, "e", "a", 0.1);
    EXPECT_EQ(Outline(dialog), "*e a[b c[d]]");
    Drag(dialog, "e", "b", 0.5);
    EXPECT_EQ(Outline(dialog), "a[b[*e] c[d]]");
    Drag(dialog, "d", "b", 0.9);
    EXPECT_EQ(Outline(dialog), "a[b[e] *d c]");
    Drag(dialog, "a", "d", 0.5);
    EXPECT_EQ(Outline(dialog), "*a[b[e] d c]") << "not into itself";
    Drag(dialog, "b", "c", 0.9);
    EXPECT_EQ(Outline(dialog), "a[d c *b[e]]");
  });
  EXPECT_EQ(Nodes(), TTreeNodeList{Node("a", {Node("d"), Node("c"), Node("b", {Node("e")})})});
}

TEST_F(TreeEditor, EscapeEndsADragAndNotTheDialog) {
  Run([](TreeItemsDialog& dialog) {
    QWidget* area = dialog.tree->viewport();
    const QPoint start = dialog.tree->visualItemRect(Find(dialog, "e")).center();
    const QPoint end = dialog.tree->visualItemRect(Find(dialog, "a")).center();
    QTest::mousePress(area, Qt::LeftButton, {}, start);
    QMouseEvent move(QEvent::MouseMove, end, area->mapToGlobal(end), Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(area, &move);
    QTest::keyClick(dialog.tree, Qt::Key_Escape);
    QTest::mouseRelease(area, Qt::LeftButton, {}, end);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(Outline(dialog), "a[b c[d]] *e");
  });
  EXPECT_EQ(designer.modified, 0);
}

TEST_F(TreeEditor, WhatCannotBeReadIsNotWrittenOver) {
  TPersistent& items = *tree.Get(TTreeView::Items);
  const TPropInfo& data = items.ClassType().GetProp("NodeData");
  SetBinaryProp(items, data, "damaged");
  EXPECT_THROW(Of({&tree}, "Items")->Edit(), EPropertyError);
  EXPECT_EQ(GetBinaryProp(items, data), "damaged");
}

// --- Lists

class ListEditor : public StandardDialogs {
 protected:
  ListEditor() {
    TListViewItem first{
        .Caption = L("one"), .ImageIndex = 5, .StateIndex = 2, .OverlayIndex = 3, .GroupID = 9};
    first.SubItems = {L("x"), L("y")};
    first.SubItemImages = {4};
    first.Data = 7;
    first.SubItemData = {0, 8};
    list.Get(TListView::Items)->SetItems({first, {.Caption = L("two")}});
  }
  void Run(std::function<void(ListItemsDialog&)> act) {
    modal::NextOf<ListItemsDialog>([act = std::move(act)](ListItemsDialog& dialog) {
      act(dialog);
      if (dialog.isVisible()) dialog.ok->click();
    });
    Of({&list}, "Items")->Edit();
  }
  const QList<TListViewItem>& Items() { return list.Get(TListView::Items)->Items(); }
  TListView list{nullptr};
};

TEST_F(ListEditor, UntouchedAndCancelledItChangesNothing) {
  const QList<TListViewItem> before = Items();
  Run([](ListItemsDialog& dialog) {
    EXPECT_EQ(Outline(dialog), "*one[x y] two");
    EXPECT_EQ(dialog.selected, nullptr);
    EXPECT_EQ(dialog.state->value(), 2);
    Pick(dialog, "y");
    EXPECT_EQ(dialog.image->value(), -1);
    EXPECT_FALSE(dialog.state->isEnabled()) << "subitems have none";
  });
  Run([](ListItemsDialog& dialog) {
    Click(dialog.remove);
    dialog.cancel->click();
  });
  EXPECT_EQ(Items(), before);
  EXPECT_EQ(designer.modified, 0);
}

TEST_F(ListEditor, EditsItemsAndSubitemsAndKeepsTheRest) {
  QList<TListViewItem> wanted = Items();
  Run([](ListItemsDialog& dialog) {
    Pick(dialog, "one");
    dialog.text->setText(L("eins"));
    dialog.state->setValue(6);
    Pick(dialog, "y");
    dialog.image->setValue(11);
    Click(dialog.newItem);
    EXPECT_EQ(Outline(dialog), "eins[x y] * two") << "an item, not a subitem";
    dialog.text->setText(L("three"));
    Click(dialog.newSubItem);
    dialog.text->setText(L("z"));
    Click(dialog.newSubItem);
    dialog.text->setText(L("zz"));
    EXPECT_EQ(Outline(dialog), "eins[x y] three[z *zz] two");
  });
  wanted[0].Caption = L("eins");
  wanted[0].StateIndex = 6;
  wanted[0].SubItemImages = {4, 11};
  wanted.insert(1, {.Caption = L("three"), .SubItems = {L("z"), L("zz")}, .SubItemImages = {-1, -1}});
  EXPECT_EQ(Items(), wanted);
  EXPECT_EQ(designer.modified, 1);
}

TEST_F(ListEditor, SubitemsAreDraggedAmongItemsAndItemsAmongThemselves) {
  Run([](ListItemsDialog& dialog) {
    Drag(dialog, "x", "two", 0.5);
    EXPECT_EQ(Outline(dialog), "one[y] two[*x]");
    Drag(dialog, "two", "y", 0.1);
    EXPECT_EQ(Outline(dialog), "*two[x] one[y]") << "to the place of the item around it";
    Drag(dialog, "y", "two", 0.1);
    EXPECT_EQ(Outline(dialog), "two[x *y] one") << "a subitem stays one";
    Drag(dialog, "one", "two", 0.1);
    EXPECT_EQ(Outline(dialog), "*one two[x y]");
    QTest::keyClick(dialog.tree, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(Outline(dialog), "*one two[x y]");
  });
  ASSERT_EQ(Items().size(), 2);
  EXPECT_EQ(Items()[1].SubItems, (QStringList{L("x"), L("y")}));
  EXPECT_EQ(Items()[1].SubItemImages.value(0), 4);
  EXPECT_EQ(Items()[1].SubItemData.value(1), 8u);
}

// --- Verbs

TEST_F(StandardDialogs, ItemsAndCellsHaveAVerb) {
  TTreeView tree(nullptr);
  TListView list(nullptr);
  TStringGrid grid(nullptr);
  const auto verbs = [&](TComponent& c) {
    QStringList names;
    const auto editor = registry.GetComponentEditor(&c, &designer);
    for (int i = 0; i < editor->GetVerbCount(); ++i) names << editor->GetVerb(i);
    return names.join(u'|').toStdString();
  };
  EXPECT_EQ(verbs(tree), "Items Editor...");
  EXPECT_EQ(verbs(list), "Columns Editor...|Groups Editor...|Items Editor...");
  EXPECT_EQ(verbs(grid), "Columns Editor...|Edit Cells...");
  modal::NextOf<TreeItemsDialog>([](TreeItemsDialog& dialog) {
    Click(dialog.newItem);
    dialog.ok->click();
  });
  registry.GetComponentEditor(&tree, &designer)->Edit();
  EXPECT_EQ(tree.Get(TTreeView::Items)->Nodes().size(), 1u);
}

// --- Cells

class CellsEditor : public StandardDialogs {
 protected:
  CellsEditor() {
    grid.Set(TStringGrid::ColCount, 3);
    grid.Set(TStringGrid::RowCount, 4);
    grid.SetCell(1, 1, L("plum"));
    grid.SetCell(0, 2, L("pear"));
    grid.SetCell(9, 9, L("outside"));
  }
  // As the component's verb does it.
  void Run(std::function<void(CellsDialog&)> act) {
    modal::NextOf<CellsDialog>([act = std::move(act)](CellsDialog& dialog) {
      act(dialog);
      if (dialog.isVisible()) dialog.ok->click();
    });
    const auto editor = registry.GetComponentEditor(&grid, &designer);
    editor->ExecuteVerb(editor->GetVerbCount() - 1);
  }
  static QModelIndex At(CellsDialog& dialog, int column, int row) {
    return dialog.table->model()->index(row, column);
  }
  static void Type(CellsDialog& dialog, int column, int row, const char* text) {
    dialog.table->setCurrentIndex(At(dialog, column, row));
    dialog.table->setFocus();
    dialog.table->edit(At(dialog, column, row));
    auto* field = qobject_cast<QLineEdit*>(dialog.table->indexWidget(At(dialog, column, row)));
    ASSERT_TRUE(field);
    field->setText(L(text));
    QTest::keyClick(field, Qt::Key_Return);
  }
  std::string Texts() {
    QStringList texts;
    for (const auto& [place, text] : grid.Texts())
      texts << QStringLiteral("%1,%2=%3").arg(place.first).arg(place.second).arg(text);
    return texts.join(u' ').toStdString();
  }
  TStringGrid grid{nullptr};
};

TEST_F(CellsEditor, IsATableOfTheGridsSizeAndChangesNothingUntouchedOrCancelled) {
  const auto before = grid.Get(TStringGrid::Cells)->Items();
  Run([](CellsDialog& dialog) {
    EXPECT_EQ(dialog.table->model()->columnCount(), 3);
    EXPECT_EQ(dialog.table->model()->rowCount(), 4);
    EXPECT_EQ(dialog.facts->text(), L("3 columns, 4 rows"));
    EXPECT_EQ(At(dialog, 1, 1).data().toString(), L("plum"));
    EXPECT_TRUE(At(dialog, 0, 3).data(Qt::BackgroundRole).isValid()) << "a fixed one";
    EXPECT_FALSE(At(dialog, 1, 1).data(Qt::BackgroundRole).isValid());
  });
  Run([](CellsDialog& dialog) {
    Type(dialog, 2, 2, "no");
    dialog.cancel->click();
  });
  EXPECT_EQ(grid.Get(TStringGrid::Cells)->Items(), before);
  EXPECT_EQ(designer.modified, 0);
}

TEST_F(CellsEditor, TakesTheTextsAndKeepsTheOthersInTheirOrder) {
  Run([](CellsDialog& dialog) {
    Type(dialog, 1, 1, "cherry");
    Type(dialog, 2, 0, "fig");
    dialog.table->setCurrentIndex(At(dialog, 0, 2));
    QTest::keyClick(dialog.table, Qt::Key_Delete);
  });
  EXPECT_EQ(Texts(), "1,1=cherry 2,0=fig 9,9=outside");
  const auto& items = grid.Get(TStringGrid::Cells)->Items();
  EXPECT_EQ(std::get<std::int64_t>(items[0]), 3);
  EXPECT_EQ(std::get<QString>(items[3]), L("cherry")) << "where it was";
  EXPECT_EQ(std::get<QString>(items[6]), L("fig")) << "before what stands in a later column";
  EXPECT_EQ(designer.modified, 1);
}

TEST_F(CellsEditor, PastesATableFromTheCurrentCellOn) {
  QGuiApplication::clipboard()->setText(L("a\tb\r\n\"c\nd\"\te\tf\n"));
  Run([](CellsDialog& dialog) {
    dialog.table->setCurrentIndex(At(dialog, 1, 2));
    QTest::keyClick(dialog.table, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(dialog.facts->text(), L("3 columns, 4 rows; no cell for 1 of the texts"));
  });
  EXPECT_EQ(Texts(), "0,2=pear 1,1=plum 1,2=a 1,3=c\nd 2,2=b 2,3=e 9,9=outside");
  Run([](CellsDialog& dialog) {
    dialog.table->selectionModel()->select(QItemSelection(At(dialog, 1, 2), At(dialog, 2, 3)),
                                           QItemSelectionModel::ClearAndSelect);
    QTest::keyClick(dialog.table, Qt::Key_C, Qt::ControlModifier);
  });
  EXPECT_EQ(QGuiApplication::clipboard()->text(), L("a\tb\n\"c\nd\"\te\n"));
  Run([](CellsDialog& dialog) {
    auto& selection = *dialog.table->selectionModel();
    selection.select(At(dialog, 1, 2), QItemSelectionModel::ClearAndSelect);
    selection.select(At(dialog, 2, 3), QItemSelectionModel::Select);
    QTest::keyClick(dialog.table, Qt::Key_C, Qt::ControlModifier);
  });
  EXPECT_EQ(QGuiApplication::clipboard()->text(), L("a\t\n\te\n")) << "what is not selected is not copied";
}

TEST_F(CellsEditor, LoadsAndSavesTableFiles) {
  prompts.saveAs = folder.filePath(L("out.csv"));
  prompts.file = FileWith("\xEF\xBB\xBFone;two\r\n;caf\xC3\xA9\r\n", "in.csv");
  Run([](CellsDialog& dialog) {
    dialog.table->setCurrentIndex(At(dialog, 1, 1));  // a file begins at the first cell all the same
    Click(dialog.load);
    Click(dialog.save);
  });
  EXPECT_EQ(Texts(), "0,0=one 0,2=pear 1,0=two 1,1=caf\xC3\xA9 9,9=outside");
  EXPECT_EQ(Read(prompts.saveAs), "one,two,\n,caf\xC3\xA9,\npear,,\n,,\n");
  prompts.file = folder.filePath(L("missing.csv"));
  Run([](CellsDialog& dialog) { Click(dialog.load); });
  EXPECT_EQ(prompts.warned.size(), 1);
}

TEST_F(CellsEditor, IsForFormsThatKeepCells) {
  const auto problem = [&](TComponent& of) {
    const auto editor = registry.GetComponentEditor(&of, &designer);
    return editor->GetVerbProblem(editor->GetVerbCount() - 1);
  };
  EXPECT_EQ(problem(grid), QString()) << "it has some";
  TForm form(nullptr);
  TStringGrid bare(&form);
  bare.SetName(L("Bare"));
  EXPECT_EQ(problem(bare), L("forms of this kind keep no cells; the program fills Bare"));
  form.Set(TForm::LCLVersion, L("2.2"));
  EXPECT_EQ(problem(bare), QString());
}

TEST_F(CellsEditor, WhatIsNoListOfTextsIsNotWrittenOver) {
  grid.Get(TStringGrid::Cells)->SetItems({std::int64_t{1}, L("odd")});
  const auto before = grid.Get(TStringGrid::Cells)->Items();
  const auto editor = registry.GetComponentEditor(&grid, &designer);
  EXPECT_THROW(editor->ExecuteVerb(editor->GetVerbCount() - 1), EComponentError);
  EXPECT_EQ(grid.Get(TStringGrid::Cells)->Items(), before);
}

TEST_F(CellsEditor, AGridOfAnySizeCanBeOpened) {
  grid.Set(TStringGrid::RowCount, INT32_MAX);
  Run([](CellsDialog& dialog) {
    EXPECT_LE(dialog.table->model()->rowCount(), 20000);
    EXPECT_TRUE(dialog.facts->text().contains(L("the grid has more"))) << dialog.facts->text().toStdString();
  });
  EXPECT_EQ(designer.modified, 0);
}

TEST(SeparatedText, ComesBackAsItWasWritten) {
  const QList<QStringList> rows{{L("a"), L("b,c"), L("d\"e")}, {L("f\ng"), QString(), L("h")}};
  for (const QChar separator : {u',', u';', u'\t'})
    EXPECT_EQ(ReadSeparated(WriteSeparated(rows, separator), separator), rows);
  EXPECT_EQ(ReadSeparated(L("a,b"), u','), (QList<QStringList>{{L("a"), L("b")}})) << "no end of line";
  EXPECT_TRUE(ReadSeparated({}, u',').isEmpty());
  EXPECT_EQ(SeparatorOf(L("a;b\nc,d")), u';');
  EXPECT_EQ(SeparatorOf(L("a\tb")), u'\t');
  EXPECT_EQ(SeparatorOf(L("a,b;c")), u',');
}

// --- Masks

class MaskEditor : public StandardDialogs {
 protected:
  void Run(std::function<void(EditMaskDialog&)> act) {
    modal::NextOf<EditMaskDialog>([act = std::move(act)](EditMaskDialog& dialog) {
      act(dialog);
      if (dialog.isVisible()) dialog.ok->click();
    });
    Of({&edit, &other}, "EditMask")->Edit();
  }
  TMaskEdit edit{nullptr}, other{nullptr};
};

TEST_F(MaskEditor, ShowsThePartsAndChangesNothingUntouchedOrCancelled) {
  edit.Set(TMaskEdit::EditMask, L("00-LL;0;*"));
  Run([](EditMaskDialog& dialog) {
    EXPECT_EQ(dialog.mask->text(), L("00-LL"));
    EXPECT_FALSE(dialog.literals->isChecked());
    EXPECT_EQ(dialog.blank->text(), L("*"));
    dialog.test->setCursorPosition(0);
    QTest::keyClicks(dialog.test, L("x1y2ab"));
    EXPECT_EQ(dialog.test->displayText(), L("12-ab"));
  });
  Run([](EditMaskDialog& dialog) {
    dialog.literals->click();
    dialog.cancel->click();
  });
  EXPECT_EQ(edit.Get(TMaskEdit::EditMask), L("00-LL;0;*"));
  EXPECT_EQ(other.Get(TMaskEdit::EditMask), QString());
  EXPECT_EQ(designer.modified, 0);
}

TEST_F(MaskEditor, WritesAllItsParts) {
  edit.Set(TMaskEdit::EditMask, L("00"));
  Run([](EditMaskDialog&) {});
  EXPECT_EQ(edit.Get(TMaskEdit::EditMask), L("00")) << "as it was, short as it is";
  Run([](EditMaskDialog& dialog) {
    dialog.mask->setText(L("000"));
    dialog.literals->click();
    dialog.blank->setText(L("#"));
  });
  EXPECT_EQ(edit.Get(TMaskEdit::EditMask), L("000;0;#"));
  EXPECT_EQ(other.Get(TMaskEdit::EditMask), L("000;0;#"));
  EXPECT_EQ(designer.modified, 1);
  Run([](EditMaskDialog& dialog) { dialog.mask->clear(); });
  EXPECT_EQ(edit.Get(TMaskEdit::EditMask), QString());
}

TEST_F(MaskEditor, AMaskTypedWithAllItsPartsIsThoseParts) {
  Run([](EditMaskDialog& dialog) {
    dialog.mask->clear();
    QTest::keyClicks(dialog.mask, L("!99/99/00;0;*"));
    EXPECT_EQ(dialog.mask->text(), L("!99/99/00"));
    EXPECT_FALSE(dialog.literals->isChecked());
    EXPECT_EQ(dialog.blank->text(), L("*"));
  });
  EXPECT_EQ(edit.Get(TMaskEdit::EditMask), L("!99/99/00;0;*"));
}

TEST_F(MaskEditor, ASampleIsTakenAndCanBeTried) {
  Run([](EditMaskDialog& dialog) {
    const auto rows = dialog.samples->findItems(L("Phone"), Qt::MatchExactly);
    ASSERT_EQ(rows.size(), 1);
    dialog.samples->selectRow(rows.first()->row());
    QTest::keyClicks(dialog.test, L("4155551212"));
    EXPECT_EQ(dialog.test->displayText(), L("(415) 555-1212"));
  });
  EXPECT_EQ(edit.Get(TMaskEdit::EditMask), L("!\\(999\\) 000-0000;1;_"));
}

TEST_F(MaskEditor, TheTestFieldBehavesByTheMask) {
  const auto typed = [&](const char* mask, const char* keys) {
    std::string shown;
    Run([&](EditMaskDialog& dialog) {
      dialog.mask->setText(L(mask));
      dialog.test->clear();
      dialog.test->setCursorPosition(0);
      QTest::keyClicks(dialog.test, L(keys));
      shown = dialog.test->displayText().toStdString();
      dialog.cancel->click();
    });
    return shown;
  };
  EXPECT_EQ(typed(">LL<LL<>Ll", "abCDeF"), "ABcdeF");
  EXPECT_EQ(typed("\\A\\0-00", "12"), "A0-12") << "what stands behind a backslash is no letter of the mask";
  EXPECT_EQ(typed("#00", "-42"), "-42");
  EXPECT_EQ(typed("AA_cc", "a1?!"), "a1 ?!");
  EXPECT_EQ(typed("0000", "1x"), "1___");
  EXPECT_EQ(typed("00/LL", "a1b/cd"), "1_/cd") << "a letter waits for no later place; a literal leads on";
}

// --- Dates and times

TEST_F(StandardDialogs, ADateAndATimeAreShownAndEditedAlone) {
  TDateTimePicker picker(nullptr);
  picker.Set(TDateTimePicker::Date, TDateTime{45360.25});
  picker.Set(TDateTimePicker::Time, TDateTime{45360.25});
  const auto date = Of({&picker}, "Date"), time = Of({&picker}, "Time");
  EXPECT_EQ(date->GetValue(), L("2024-03-09"));
  EXPECT_EQ(time->GetValue(), L("06:00:00"));
  date->SetValue(L("2024-03-10"));
  EXPECT_EQ(picker.Get(TDateTimePicker::Date).Days, 45361.25) << "its time of day stays";
  time->SetValue(L("18:00"));
  EXPECT_EQ(picker.Get(TDateTimePicker::Time).Days, 45360.75);
  time->SetValue(L("00:00:00"));
  EXPECT_EQ(time->GetValue(), L("00:00:00"));
  EXPECT_THROW(date->SetValue(L("12:00:00")), EPropertyError);
  EXPECT_THROW(time->SetValue(L("2024-03-09")), EPropertyError);
  EXPECT_THROW(time->SetValue(L("noon")), EPropertyError);
  EXPECT_EQ(picker.Get(TDateTimePicker::Time).Days, 45360);
  modal::NextOf<DateTimeDialog>([](DateTimeDialog& dialog) {
    EXPECT_TRUE(dialog.calendar->isVisible());
    EXPECT_FALSE(dialog.time->isVisible());
    dialog.calendar->setSelectedDate(QDate(2024, 3, 11));
    dialog.ok->click();
  });
  date->Edit();
  EXPECT_EQ(picker.Get(TDateTimePicker::Date).Days, 45362.25);
  modal::NextOf<DateTimeDialog>([](DateTimeDialog& dialog) {
    EXPECT_FALSE(dialog.calendar->isVisible());
    EXPECT_TRUE(dialog.time->isVisible());
    dialog.time->setTime(QTime(12, 0));
    dialog.ok->click();
  });
  time->Edit();
  EXPECT_EQ(picker.Get(TDateTimePicker::Time).Days, 45360.5);
  modal::NextOf<DateTimeDialog>([](DateTimeDialog& dialog) { dialog.ok->click(); });
  const int before = designer.modified;
  time->Edit();
  EXPECT_EQ(designer.modified, before) << "untouched";
}
