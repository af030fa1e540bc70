#include "library/values/TextSession.h"

#include "vcl/Memo.h"

QString TVRXTextSession::Text() const {
  const auto* memo = As<TCustomMemo>(&edit_);
  return memo ? memo->Get(TCustomMemo::Lines)->Text() : edit_.Text();
}

void TVRXTextSession::SetText(const QString& text) {
  if (auto* memo = As<TCustomMemo>(&edit_))
    memo->Get(TCustomMemo::Lines)->SetLines(text.isEmpty() ? QStringList() : text.split(u'\n'));
  else
    edit_.SetText(text);
}

// The edit may have another text by now.
int TVRXTextSession::SelStart() const { return std::min(start_, static_cast<int>(Text().size())); }
int TVRXTextSession::SelLength() const {
  return std::min(length_, static_cast<int>(Text().size()) - SelStart());
}

void TVRXTextSession::Select(int start, int length) {
  const int size = static_cast<int>(Text().size());
  start_ = std::clamp(start, 0, size);
  length_ = std::clamp(length, 0, size - start_);
}

bool TVRXTextSession::CanChange() const { return edit_.Enabled() && !edit_.Get(TCustomEdit::ReadOnly); }
bool TVRXTextSession::CanCopy() const {
  return edit_.Get(TCustomEdit::PasswordChar) == TPasswordChar{} &&
         edit_.Get(TCustomEdit::EchoMode) == TEchoMode::emNormal;
}

void TVRXTextSession::Replace(const QString& text) {
  if (!CanChange()) return;
  const QString before = Text();
  const int start = SelStart(), length = SelLength();
  QString added = text;
  added.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  if (!As<TCustomMemo>(&edit_))
    added.truncate(added.indexOf(u'\n') < 0 ? added.size() : added.indexOf(u'\n'));
  if (edit_.Get(TCustomEdit::NumbersOnly)) added.removeIf([](QChar c) { return !c.isDigit(); });
  if (const int most = edit_.Get(TCustomEdit::MaxLength); most > 0)
    added.truncate(std::max<qsizetype>(0, most - (before.size() - length)));
  if (length == 0 && added.isEmpty()) return;
  undo_.push_back({before, start, length});
  redo_.clear();
  QString after = before;
  SetText(after.replace(start, length, added));
  Select(start + static_cast<int>(added.size()), 0);
}

bool TVRXTextSession::Find(const QString& text, Qt::CaseSensitivity sensitive) {
  if (text.isEmpty()) return false;
  const QString all = Text();
  qsizetype at = all.indexOf(text, SelStart() + SelLength(), sensitive);
  if (at < 0) at = all.indexOf(text, 0, sensitive);
  if (at < 0) return false;
  Select(static_cast<int>(at), static_cast<int>(text.size()));
  return true;
}

void TVRXTextSession::Step(std::vector<State>& from, std::vector<State>& to) {
  if (from.empty() || !CanChange()) return;
  const State state = from.back();
  from.pop_back();
  to.push_back({Text(), SelStart(), SelLength()});
  SetText(state.text);
  Select(state.start, state.length);
}
