// What somebody does to the text of an edit: what is selected, and what can be taken back.
#pragma once
#include <vector>

#include "vcl/Edit.h"

class TVRXTextSession {
 public:
  // The edit outlives it.
  explicit TVRXTextSession(TCustomEdit& edit) : edit_(edit) {}
  const TCustomEdit& Edit() const { return edit_; }

  // Of a memo its lines.
  QString Text() const;
  int SelStart() const;
  int SelLength() const;
  QString SelText() const { return Text().mid(SelStart(), SelLength()); }
  // As far as there is text.
  void Select(int start, int length);
  // Whether the text can be changed, and whether it may be read: a password is not.
  bool CanChange() const;
  bool CanCopy() const;
  // In the place of what is selected, as far as the edit takes it: without line ends where there is one line,
  // no longer than its limit. What was put there is not selected.
  void Replace(const QString& text);
  // The next place behind the selection, from the beginning again behind the last one. False for none.
  bool Find(const QString& text, Qt::CaseSensitivity sensitive);

  bool CanUndo() const { return !undo_.empty() && CanChange(); }
  bool CanRedo() const { return !redo_.empty() && CanChange(); }
  void Undo() { Step(undo_, redo_); }
  void Redo() { Step(redo_, undo_); }

 private:
  struct State {
    QString text;
    int start, length;
  };
  void SetText(const QString& text);
  void Step(std::vector<State>& from, std::vector<State>& to);

  TCustomEdit& edit_;
  int start_ = 0, length_ = 0;
  std::vector<State> undo_, redo_;
};
