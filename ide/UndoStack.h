// What was done to a form and can be taken back, and which of these states is the saved one.
#pragma once
#include "ide/Command.h"

class UndoStack {
 public:
  bool CanUndo() const { return position_ > 0; }
  bool CanRedo() const { return position_ < static_cast<int>(commands_.size()); }
  QString UndoText() const { return CanUndo() ? At(position_ - 1).text : QString(); }
  QString RedoText() const { return CanRedo() ? At(position_).text : QString(); }
  // No command was ever kept.
  bool IsEmpty() const { return commands_.empty(); }

  // What was undone before is forgotten.
  Command& Push(std::unique_ptr<Command> command);
  void ForgetUndone();
  // The command to take back, or to do again, now. There must be one.
  Command& StepBack() { return At(--position_); }
  Command& StepForward() { return At(position_++); }

  // Whether the present state is another than the saved one, the first at the beginning.
  bool IsModified() const { return position_ != saved_; }
  void MarkSaved() { saved_ = position_; }

 private:
  Command& At(int i) const { return *commands_[static_cast<std::size_t>(i)]; }

  std::vector<std::unique_ptr<Command>> commands_;
  int position_ = 0;
  int saved_ = 0;  // -1: that state can no longer be reached
};
