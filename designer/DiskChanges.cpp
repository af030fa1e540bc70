#include "designer/DiskChanges.h"

#include <QFileInfo>
#include <QWidget>

#include "designer/DifferenceDialog.h"
#include "designer/MessageBar.h"
#include "forms/FormFile.h"
#include "forms/SafeFile.h"
#include "vcl/Prompts.h"

DiskChanges::DiskChanges(QWidget& window, MessageBar& bar) : QObject(&window), window_(window), bar_(bar) {}

void DiskChanges::SetSession(FormSession* session) {
  session_ = session;
  Settle();
}

QString DiskChanges::FileName() const { return QFileInfo(session_->FileName()).fileName(); }

// The file is the one that was read or saved here.
void DiskChanges::Settle() {
  Note(DiskState::Same, {});
  toldAncestors_.clear();
  bar_.hide();
}

bool DiskChanges::Note(DiskState state, const QByteArray& onDisk) {
  std::pair now(state, onDisk);
  if (now == told_) return false;
  told_ = std::move(now);
  emit DiffersChanged();
  return true;
}

bool DiskChanges::Save() {
  for (;;) {
    if (session_->StateOnDisk() == DiskState::Gone) {
      session_->SaveAs(session_->FileName());
      Settle();
      bar_.Tell(tr("%1 had been removed by another program. It has been saved again.").arg(FileName()));
      return true;
    }
    try {
      session_->Save();
      Settle();
      return true;
    } catch (const forms::EFileChanged&) {
      if (session_->StateOnDisk() == DiskState::Gone) continue;
    }
    const QByteArray onDisk = forms::ReadFile(session_->FileName());
    TFileAnswer answer = Prompts().AskFileChanged(
        &window_, tr("Save form"),
        tr("%1 was changed by another program after it had been read or saved here.").arg(FileName()));
    if (answer == TFileAnswer::ShowBoth) answer = ShowBoth(onDisk);
    if (answer == TFileAnswer::Reload) emit ReloadWanted();
    if (answer != TFileAnswer::Overwrite) return false;
    // What was not seen is not overwritten: should the file change once more, the question comes again.
    session_->AcceptOnDisk(onDisk);
  }
}

TFileAnswer DiskChanges::ShowBoth(const QByteArray& onDisk) {
  return DifferenceDialog(session_->FileName(), onDisk, session_->Bytes(), &window_).Ask();
}

void DiskChanges::ReloadOnDemand() {
  const QString question = tr("Reload %1 and give up the changes made here?").arg(FileName());
  if (!session_->IsModified() || Prompts().Confirm(&window_, tr("Reload form"), question)) {
    emit ReloadWanted();
  } else {
    bar_.show();
  }
}

void DiskChanges::Check() {
  if (!session_ || session_->FileName().isEmpty()) return;
  try {
    switch (session_->StateOnDisk()) {
      case DiskState::Same:
        if (Differs()) Settle();
        return CheckAncestors();
      case DiskState::Gone:
        return TellGone();
      case DiskState::Changed:
        return TellChanged(forms::ReadFile(session_->FileName()));
    }
  } catch (const Exception&) {
    // It cannot be read now. Saving will say so; looking at a window is no occasion for a message.
  }
}

// What is inherited is shown as it was read until the form is read again.
void DiskChanges::CheckAncestors() {
  const QStringList changed = session_->ChangedAncestors();
  if (changed == toldAncestors_) return;
  toldAncestors_ = changed;
  if (changed.isEmpty()) return bar_.hide();
  QStringList names;
  for (const QString& file : changed) names << QFileInfo(file).fileName();
  const QString what = tr("%1, which %2 inherits from, was changed by another program.")
                           .arg(names.join(QStringLiteral(", ")), FileName());
  bar_.Tell(session_->IsModified() ? what + u' ' + tr("Reloading gives up the changes made here.") : what,
            {{tr("&Reload"), "reloadAncestor", [this] { ReloadOnDemand(); }}});
}

void DiskChanges::TellGone() {
  if (!Note(DiskState::Gone, {})) return;
  bar_.Tell(tr("%1 was removed by another program. Saving writes it again.").arg(FileName()),
            {{tr("&Save"), "saveAgain", [this] { emit SaveWanted(); }}});
}

void DiskChanges::TellChanged(const QByteArray& onDisk) {
  if (onDisk == session_->Bytes()) {
    session_->AcceptOnDisk(onDisk);
    return Settle();
  }
  if (!Note(DiskState::Changed, onDisk)) return;
  bar_.Tell(
      session_->IsModified()
          ? tr("%1 was changed by another program. Reloading gives up the changes made here.").arg(FileName())
          : tr("%1 was changed by another program.").arg(FileName()),
      {{tr("&Reload"), "reloadChanged", [this] { ReloadOnDemand(); }},
       {tr("S&how both"), "showBoth", [this, onDisk] {
          const TFileAnswer answer = ShowBoth(onDisk);
          if (answer == TFileAnswer::Reload) emit ReloadWanted();
          if (answer != TFileAnswer::Overwrite) return;
          session_->AcceptOnDisk(onDisk);
          emit SaveWanted();
        }}});
}
