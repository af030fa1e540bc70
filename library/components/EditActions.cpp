#include "library/components/EditActions.h"

#include <QClipboard>
#include <QGuiApplication>

namespace {
struct Preset {
  const char* name;
  const char16_t* caption;
  const char16_t* shortCut;
  const char16_t* hint;
  const char* icon;
};
// In the order of the commands.
constexpr Preset Presets[] = {
    {"TVRXEditCut", u"Cu&t", u"Ctrl+X", u"Moves the selected text to the clipboard.",
     "pen line 1.6 path 8.5 14.5 16 3.5 path 15.5 14.5 8 3.5 pen accent 2 brush none oval 4.5 14.5 5 5 oval "
     "14.5 "
     "14.5 5 5"},
    {"TVRXEditCopy", u"&Copy", u"Ctrl+C", u"Copies the selected text to the clipboard.",
     "pen line 1.5 brush fill box 4.5 3.5 10 13 1 box 9.5 7.5 10 13 1 pen accent 1.8 path 12 12 17 12 path "
     "12 15.5 "
     "16 15.5"},
    {"TVRXEditPaste", u"&Paste", u"Ctrl+V", u"Inserts what is on the clipboard.",
     "pen line 1.5 brush fill box 4.5 4.5 12 16 2 pen none brush accent box 7.5 3 6 3.5 1 pen line 1.5 brush "
     "fill "
     "box 10.5 10.5 9 10 1 pen accent 1.6 path 12.5 14 17 14 path 12.5 17 15.5 17"},
    {"TVRXEditSelectAll", u"Select &All", u"Ctrl+A", u"Selects the whole text.",
     "pen none brush accent+20 box 5.5 6 13 12 0 pen line 1.5 1 brush none box 3.5 3.5 17 17 0 pen line 1.6 "
     "path 8 "
     "9 16 9 path 8 12 16 12 path 8 15 13 15"},
    {"TVRXEditUndo", u"&Undo", u"Ctrl+Z", u"Takes the last change of the text back.",
     "pen accent 2.2 brush none path 9 4.5 4.5 9 9 13.5 path 4.5 9 14 9 17.5 10.5 19 14 17.5 17.5 14 19 9 "
     "19"},
    {"TVRXEditRedo", u"&Redo", u"Shift+Ctrl+Z", u"Makes a change again that was taken back.",
     "pen accent 2.2 brush none path 15 4.5 19.5 9 15 13.5 path 19.5 9 10 9 6.5 10.5 5 14 6.5 17.5 10 19 15 "
     "19"},
    {"TVRXEditDelete", u"&Delete", u"Del", u"Deletes the selected text.",
     "pen line 1.6 path 3.5 9 13 9 path 3.5 13 10 13 path 3.5 17 8 17 pen accent 2.2 path 13 13 20 20 path "
     "20 13 13 "
     "20"},
    {"TVRXEditFind", u"&Find...", u"Ctrl+F", u"Selects the next place where a text stands.",
     "pen line 1.6 path 3.5 6 10 6 path 3.5 10 8 10 pen accent 2 brush none oval 9.5 8.5 8 8 path 16.5 15.5 "
     "20.5 "
     "19.5"},
    {"TVRXEditReplace", u"R&eplace...", u"Ctrl+H", u"Puts a text in the place of another one.",
     "pen line 1.6 path 3.5 5.5 12 5.5 path 3.5 19 12 19 pen accent 2 brush none path 16.5 5.5 16.5 15 path "
     "13 11.5 "
     "16.5 15.5 20 11.5"},
};
const Preset& PresetOf(TVRXEditCommand command) { return Presets[static_cast<std::size_t>(command)]; }
QString CaptionFor(TVRXEditCommand command) { return QString::fromUtf16(PresetOf(command).caption); }
QString HintFor(TVRXEditCommand command) { return QString::fromUtf16(PresetOf(command).hint); }
TShortCut KeysFor(TVRXEditCommand command) {
  return TextToShortCut(QString::fromUtf16(PresetOf(command).shortCut));
}
}  // namespace

const TClass& TVRXCustomEditAction::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXCustomEditAction>("TVRXCustomEditAction", TAction::StaticClass())
          .Published(EditControl)
          .Doc(QStringLiteral("The edit that it works on; without one, that with the keyboard."))
          .Declared(CaseSensitive)
          .Doc(QStringLiteral("Tells small letters from big ones."))
          .Declared(FindText)
          .Doc(QStringLiteral("The text to look for."))
          .Declared(ReplaceAll)
          .Doc(QStringLiteral("Replaces it wherever it stands, not only where it is selected."))
          .Declared(ReplaceText)
          .Doc(QStringLiteral("The text to put in its place.")));
  return cls;
}

QByteArray EditActionName(TVRXEditCommand command) { return PresetOf(command).name; }

TClassBuilder DescribeEditAction(TClassBuilder builder, TVRXEditCommand command) {
  using A = TVRXCustomEditAction;
  TClassBuilder b = std::move(builder)
                        .Published("Caption", &A::CaptionOf, &A::SetCaption)
                        .StoredIf(&A::CaptionStored)
                        .Published("Hint", &A::HintOf, &A::SetHint)
                        .StoredIf(&A::HintStored)
                        .Publish("ShortCut", KeysFor(command))
                        .ClassDoc(HintFor(command), PresetOf(command).icon);
  if (command == TVRXEditCommand::Find) return std::move(b).PublishAll("CaseSensitive", "FindText");
  if (command == TVRXEditCommand::Replace)
    return std::move(b).PublishAll("CaseSensitive", "FindText", "ReplaceAll", "ReplaceText");
  return b;
}

TVRXCustomEditAction::TVRXCustomEditAction(TComponent* owner, TVRXEditCommand command)
    : TAction(owner), command_(command) {
  Set(Caption, CaptionFor(command));
  Set(Hint, HintFor(command));
  Set(ShortCut, KeysFor(command));
}

void TVRXCustomEditAction::SetCaption(const QString& v) {
  Set(Caption, v.isEmpty() ? CaptionFor(command_) : v);
}
void TVRXCustomEditAction::SetHint(const QString& v) { Set(Hint, v.isEmpty() ? HintFor(command_) : v); }
bool TVRXCustomEditAction::CaptionStored() const { return Get(Caption) != CaptionFor(command_); }
bool TVRXCustomEditAction::HintStored() const { return Get(Hint) != HintFor(command_); }

Qt::CaseSensitivity TVRXCustomEditAction::Sensitivity() const {
  return Get(CaseSensitive) ? Qt::CaseSensitive : Qt::CaseInsensitive;
}

bool TVRXCustomEditAction::CanExecute(const TVRXTextSession& session) const {
  if (!Get(Enabled) || (Get(EditControl) && Get(EditControl) != &session.Edit())) return false;
  const bool selected = session.SelLength() > 0;
  switch (command_) {
    case TVRXEditCommand::Cut:
      return selected && session.CanCopy() && session.CanChange();
    case TVRXEditCommand::Copy:
      return selected && session.CanCopy();
    case TVRXEditCommand::Paste:
      return session.CanChange() && !QGuiApplication::clipboard()->text().isEmpty();
    case TVRXEditCommand::SelectAll:
      return session.SelLength() < session.Text().size();
    case TVRXEditCommand::Undo:
      return session.CanUndo();
    case TVRXEditCommand::Redo:
      return session.CanRedo();
    case TVRXEditCommand::Delete:
      return selected && session.CanChange();
    case TVRXEditCommand::Find:
      return session.CanCopy() && session.Text().contains(Get(FindText), Sensitivity()) &&
             !Get(FindText).isEmpty();
    case TVRXEditCommand::Replace:
      return session.CanCopy() && session.CanChange() && !Get(FindText).isEmpty() &&
             session.Text().contains(Get(FindText), Sensitivity());
  }
  return false;
}

// What is selected when it is the text to look for, and then the next one is; all of them in one step.
void TVRXCustomEditAction::ReplaceIn(TVRXTextSession& session) const {
  const QString find = Get(FindText);
  if (Get(ReplaceAll)) {
    QString text = session.Text();
    session.Select(0, static_cast<int>(text.size()));
    session.Replace(text.replace(find, Get(ReplaceText), Sensitivity()));
    return;
  }
  if (session.SelText().compare(find, Sensitivity()) == 0) session.Replace(Get(ReplaceText));
  session.Find(find, Sensitivity());
}

void TVRXCustomEditAction::Execute(TVRXTextSession& session) const {
  if (!CanExecute(session)) return;
  switch (command_) {
    case TVRXEditCommand::Cut:
      QGuiApplication::clipboard()->setText(session.SelText());
      return session.Replace({});
    case TVRXEditCommand::Copy:
      return QGuiApplication::clipboard()->setText(session.SelText());
    case TVRXEditCommand::Paste:
      return session.Replace(QGuiApplication::clipboard()->text());
    case TVRXEditCommand::SelectAll:
      return session.Select(0, static_cast<int>(session.Text().size()));
    case TVRXEditCommand::Undo:
      return session.Undo();
    case TVRXEditCommand::Redo:
      return session.Redo();
    case TVRXEditCommand::Delete:
      return session.Replace({});
    case TVRXEditCommand::Find:
      session.Find(Get(FindText), Sensitivity());
      return;
    case TVRXEditCommand::Replace:
      return ReplaceIn(session);
  }
}
