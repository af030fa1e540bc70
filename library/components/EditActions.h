// Actions that do to the text of an edit what menus call cut, copy, paste and so on. They come with text,
// keys and hint, which a form file holds only where they were changed.
#pragma once
#include "library/values/TextSession.h"
#include "vcl/Action.h"

enum class TVRXEditCommand : std::uint8_t { Cut, Copy, Paste, SelectAll, Undo, Redo, Delete, Find, Replace };

class TVRXCustomEditAction : public TAction {
  VRX_CLASS(TVRXCustomEditAction)
 public:
  TVRXCustomEditAction(TComponent* owner, TVRXEditCommand command);
  // The edit that it works on; null: the one that has the keyboard.
  static constexpr TKept<TCustomEdit*> EditControl{"EditControl"};
  // Of those that look for something.
  static constexpr TKept<bool> CaseSensitive{"CaseSensitive", false};
  static constexpr TKept<QString> FindText{"FindText"};
  static constexpr TKept<bool> ReplaceAll{"ReplaceAll", false};
  static constexpr TKept<QString> ReplaceText{"ReplaceText"};

  virtual TVRXEditCommand Command() const = 0;
  // Whether there is anything to do it to just now.
  bool CanExecute(const TVRXTextSession& session) const;
  // Does nothing where it cannot.
  void Execute(TVRXTextSession& session) const;

  // An empty text is the usual one.
  QString CaptionOf() const { return Get(Caption); }
  void SetCaption(const QString& v);
  QString HintOf() const { return Get(Hint); }
  void SetHint(const QString& v);

 private:
  bool CaptionStored() const;
  bool HintStored() const;
  friend TClassBuilder DescribeEditAction(TClassBuilder builder, TVRXEditCommand command);
  Qt::CaseSensitivity Sensitivity() const;
  void ReplaceIn(TVRXTextSession& session) const;
  TVRXEditCommand command_;
};

QByteArray EditActionName(TVRXEditCommand command);
TClassBuilder DescribeEditAction(TClassBuilder builder, TVRXEditCommand command);

template <TVRXEditCommand C>
class TVRXEditActionClass final : public TVRXCustomEditAction {
 public:
  explicit TVRXEditActionClass(TComponent* owner) : TVRXCustomEditAction(owner, C) {}
  TVRXEditCommand Command() const override { return C; }
  static const TClass& StaticClass() {
    static const TClass cls(
        DescribeEditAction(DescribeClass<TVRXEditActionClass>(EditActionName(C).constData(),
                                                              TVRXCustomEditAction::StaticClass()),
                           C));
    return cls;
  }
  const TClass& ClassType() const override { return StaticClass(); }
};
using TVRXEditCut = TVRXEditActionClass<TVRXEditCommand::Cut>;
using TVRXEditCopy = TVRXEditActionClass<TVRXEditCommand::Copy>;
using TVRXEditPaste = TVRXEditActionClass<TVRXEditCommand::Paste>;
using TVRXEditSelectAll = TVRXEditActionClass<TVRXEditCommand::SelectAll>;
using TVRXEditUndo = TVRXEditActionClass<TVRXEditCommand::Undo>;
using TVRXEditRedo = TVRXEditActionClass<TVRXEditCommand::Redo>;
using TVRXEditDelete = TVRXEditActionClass<TVRXEditCommand::Delete>;
using TVRXEditFind = TVRXEditActionClass<TVRXEditCommand::Find>;
using TVRXEditReplace = TVRXEditActionClass<TVRXEditCommand::Replace>;
