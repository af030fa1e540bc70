#include "ide/UndoStack.h"

Command& UndoStack::Push(std::unique_ptr<Command> command) {
  ForgetUndone();
  commands_.push_back(std::move(command));
  ++position_;
  return *commands_.back();
}

void UndoStack::ForgetUndone() {
  if (saved_ > position_) saved_ = -1;
  commands_.resize(static_cast<std::size_t>(position_));
}
