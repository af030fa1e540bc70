// The parts of an open form on their own: what can be undone, what is selected, the file.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "forms/FormError.h"
#include "forms/SafeFile.h"
#include "ide/FileOnDisk.h"
#include "ide/Selection.h"
#include "ide/UndoStack.h"

namespace {
std::unique_ptr<Command> Named(const char* text) {
  auto command = std::make_unique<Command>();
  command->text = QLatin1StringView(text);
  return command;
}

class SelectionTest : public testing::Test {
 protected:
  TComponent form_{nullptr};
  TComponent one_{&form_}, two_{&form_};
  Selection selection_;
};
using List = std::vector<TComponent*>;

class FileOnDiskTest : public testing::Test {
 protected:
  void Write(const QByteArray& bytes) {
    QFile file(name_);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  QByteArray Read(const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
  }
  QTemporaryDir folder_;
  QString name_ = folder_.filePath(QStringLiteral("a.dfm"));
};
}  // namespace

TEST(UndoStack, GoesBackAndForwardInOrder) {
  UndoStack stack;
  EXPECT_TRUE(stack.IsEmpty());
  EXPECT_FALSE(stack.CanUndo());
  EXPECT_EQ(stack.UndoText(), QString());
  stack.Push(Named("first"));
  stack.Push(Named("second"));
  EXPECT_EQ(stack.UndoText(), QStringLiteral("second"));
  EXPECT_EQ(stack.StepBack().text, QStringLiteral("second"));
  EXPECT_EQ(stack.UndoText(), QStringLiteral("first"));
  EXPECT_EQ(stack.RedoText(), QStringLiteral("second"));
  EXPECT_EQ(stack.StepForward().text, QStringLiteral("second"));
  EXPECT_FALSE(stack.CanRedo());
}

TEST(UndoStack, ANewCommandForgetsWhatWasUndone) {
  UndoStack stack;
  stack.Push(Named("first"));
  stack.Push(Named("second"));
  stack.StepBack();
  stack.Push(Named("third"));
  EXPECT_FALSE(stack.CanRedo());
  EXPECT_EQ(stack.StepBack().text, QStringLiteral("third"));
  EXPECT_EQ(stack.StepBack().text, QStringLiteral("first"));
}

TEST(UndoStack, TheSavedStateIsFoundAgainFromBothSides) {
  UndoStack stack;
  EXPECT_FALSE(stack.IsModified());
  stack.Push(Named("first"));
  EXPECT_TRUE(stack.IsModified());
  stack.MarkSaved();
  stack.Push(Named("second"));
  EXPECT_TRUE(stack.IsModified());
  stack.StepBack();
  EXPECT_FALSE(stack.IsModified());
  stack.StepBack();
  EXPECT_TRUE(stack.IsModified());
  stack.StepForward();
  EXPECT_FALSE(stack.IsModified());
}

TEST(UndoStack, ASavedStateThatCannotBeReachedIsNeverFound) {
  UndoStack stack;
  stack.Push(Named("first"));
  stack.MarkSaved();
  stack.StepBack();
  stack.Push(Named("other"));
  EXPECT_TRUE(stack.IsModified());  // as many commands as when it was saved, but not the same
  stack.StepBack();
  EXPECT_TRUE(stack.IsModified());
  stack.Push(Named("saved after that"));
  stack.MarkSaved();
  stack.StepBack();
  stack.ForgetUndone();
  EXPECT_TRUE(stack.IsModified());
  EXPECT_FALSE(stack.CanRedo());
}

TEST_F(SelectionTest, TheFormIsSelectedAloneAndWhenNothingElseIs) {
  selection_.Set({}, form_);
  EXPECT_EQ(selection_.Components(), List{&form_});
  selection_.Set({&one_, &form_, &two_}, form_);
  EXPECT_EQ(selection_.Components(), (List{&one_, &two_}));
  EXPECT_TRUE(selection_.Contains(two_));
  EXPECT_FALSE(selection_.Contains(form_));
  selection_.Set({&form_}, form_);
  EXPECT_EQ(selection_.Components(), List{&form_});
}

TEST_F(SelectionTest, WhatGoesIsNoLongerSelected) {
  selection_.Set({&one_, &two_}, form_);
  selection_.Drop(one_, form_);
  EXPECT_EQ(selection_.Components(), List{&two_});
  selection_.Drop(one_, form_);
  EXPECT_EQ(selection_.Components(), List{&two_});
  selection_.Drop(two_, form_);
  EXPECT_EQ(selection_.Components(), List{&form_});
}

TEST_F(FileOnDiskTest, ItsContentTellsWhatBecameOfIt) {
  Write("abc");
  FileOnDisk file(name_, "abc");
  EXPECT_EQ(file.State(), DiskState::Same);
  Write("abd");
  EXPECT_EQ(file.State(), DiskState::Changed);
  file.Accept("abd");
  EXPECT_EQ(file.State(), DiskState::Same);
  QFile::remove(name_);
  EXPECT_EQ(file.State(), DiskState::Gone);
  EXPECT_EQ(FileOnDisk(QStringLiteral("-"), "x").State(), DiskState::Same);
}

TEST_F(FileOnDiskTest, AnotherProgramsBytesAreNotReplaced) {
  Write("theirs");
  FileOnDisk file(name_, "ours");
  EXPECT_THROW(file.Write("newer"), forms::EFileChanged);
  EXPECT_EQ(Read(name_), "theirs");
  EXPECT_EQ(file.State(), DiskState::Changed);
  file.Accept("theirs");
  file.Write("newer");
  EXPECT_EQ(Read(name_), "newer");
  EXPECT_EQ(file.State(), DiskState::Same);
}

TEST_F(FileOnDiskTest, AnotherNameIsTakenOnlyWhenItWasWritten) {
  Write("abc");
  FileOnDisk file(name_, "abc");
  EXPECT_THROW(file.WriteAs(folder_.filePath(QStringLiteral("none/b.dfm")), "x"), Exception);
  EXPECT_EQ(file.Name(), name_);
  EXPECT_EQ(file.State(), DiskState::Same);
  const QString other = folder_.filePath(QStringLiteral("b.dfm"));
  file.WriteAs(other, "x");
  EXPECT_EQ(file.Name(), other);
  EXPECT_EQ(Read(other), "x");
  EXPECT_EQ(Read(name_), "abc");
  EXPECT_EQ(file.State(), DiskState::Same);
}
