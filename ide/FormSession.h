// An open form: its document and components, its file, the selection and everything that was done to them.
//
// Every change goes through Run as one command. A command knows the documents' nodes before and after, so
// undo gives back the very bytes, and only lines that changed differ in the file. An action that throws is
// rolled back.
#pragma once
#include <QObject>

#include "designintf/Designer.h"
#include "ide/CommandRecorder.h"
#include "ide/FileOnDisk.h"
#include "ide/FormChange.h"
#include "ide/Selection.h"
#include "ide/UndoStack.h"

class FormSession : public QObject, public IDesigner, public IControlHost, private IFormWatcher {
  Q_OBJECT
 public:
  ~FormSession() override;

  // Errors: Exception, EFormError. Findings are not errors. The registry is the host's, which outlives the
  // session.
  static std::unique_ptr<FormSession> Open(const QString& fileName,
                                           DesignRegistry& registry = DesignRegistry::Current());
  static std::unique_ptr<FormSession> FromBytes(QByteArray bytes, const QString& fileName = {},
                                                DesignRegistry& registry = DesignRegistry::Current());
  static std::unique_ptr<FormSession> NewForm(const QString& name,
                                              DesignRegistry& registry = DesignRegistry::Current());
  // Who makes the editors of the form.
  DesignRegistry& Registry() const { return form_.Registry(); }

  TForm& Form() const { return form_.Root(); }
  const forms::Document& Document() const { return form_.Document(); }
  const std::vector<forms::Finding>& Findings() const { return form_.Findings(); }
  // Finds them anew, as if the form were opened as it is now; costs as much. Not while a command is under
  // way.
  void FindAgain();
  forms::Object* ObjectOf(const TComponent& component) const { return form_.ObjectOf(component); }
  TComponent* ComponentOf(const forms::Object& object) const { return form_.ComponentOf(object); }
  // All components in the order of the file, the root first.
  std::vector<TComponent*> AllComponents() const { return form_.AllComponents(); }

  // --- Files
  const QString& FileName() const { return file_.Name(); }
  QByteArray Bytes() const { return Document().Write(); }
  // Both throw and stay modified when the file cannot be written; the old file is then untouched. Save also
  // refuses (EFileChanged) when another program changed or removed the file meanwhile; SaveAs replaces any
  // file.
  void Save();
  void SaveAs(const QString& fileName);
  // Throws when the file cannot be read.
  DiskState StateOnDisk() const { return file_.State(); }
  // The person has seen what another program wrote; the next Save may replace it.
  void AcceptOnDisk(const QByteArray& seen) { file_.Accept(seen); }
  bool IsModified() const { return undo_.IsModified(); }
  // The files that the form inherits from and that another program changed since they were read.
  QStringList ChangedAncestors() const { return form_.ChangedAncestors(); }

  // --- Commands
  // Runs `action`, which changes `touched` (and whatever follows from that), as one command. Nothing changed:
  // no command. Nested calls join the outer command. Whatever the action throws comes out, after everything
  // it did has been taken back.
  // Components tell the session what is about to change in them, so an action may change any component;
  // `touched` are those that are looked at even if they say nothing.
  void Run(const QString& text, const std::vector<TComponent*>& touched, const std::function<void()>& action);
  // Whether a command is under way: an editor's dialog is open, something is dragged. Undo, redo and making
  // the components anew wait until then.
  bool IsBusy() const;

  // A command that goes on while somebody drags: every step starts from the bounds before the first one.
  void BeginLive();
  void RestartLive();
  // Keeps what the last step did as one command, or takes it back.
  void EndLive(const QString& text, bool keep);
  bool IsLive() const;
  bool CanUndo() const { return undo_.CanUndo(); }
  bool CanRedo() const { return undo_.CanRedo(); }
  QString UndoText() const { return undo_.UndoText(); }
  QString RedoText() const { return undo_.RedoText(); }
  void Undo();
  void Redo();

  // A component on the form, as one command; its name is made unique.
  TComponent* CreateComponent(const TClass& cls, TComponent* parent, const QRect& bounds) override;
  // Puts objects of another document, with everything inside them, into objects of this one and makes their
  // components, as one command; all or none. Names are taken as they are. What the command does to the new
  // components afterwards is written into their objects.
  struct Insertion {
    const forms::Object* object;
    forms::Object* parent;
  };
  std::vector<TComponent*> Insert(const forms::Document& from, const std::vector<Insertion>& insertions);
  // Deletes components and everything inside them. The form itself and inherited components are refused.
  void DeleteComponents(const std::vector<TComponent*>& components);
  void Rename(TComponent& component, const QString& name);

  // What the file says of a component and no class knows, as form text on one line; empty when it says
  // nothing. Setting it refuses (Exception) what is no value; an empty text leaves the property out.
  QString StoredText(const TComponent& component, QByteArrayView name) const;
  void SetStored(TComponent& component, const QByteArray& name, const QString& text);

  // Whether the form itself says something of this property, or a part of it, that an ancestor has too.
  bool SaysItself(const TComponent& component, QByteArrayView path) const;
  // The property and its parts are again what the ancestor says: the form says nothing of them any more.
  void RevertToInherited(const std::vector<TComponent*>& components, const QByteArray& path);

  // Makes all components anew from the document, after classes came or went; while a command is under way,
  // when that has ended.
  void Rebuild();

  // --- Selection
  std::vector<TComponent*> SelectedComponents() const { return selection_.Components(); }
  void Select(const std::vector<TComponent*>& components);
  bool IsSelected(const TComponent& component) const { return selection_.Contains(component); }
  // Whether items inside of the selected components stand in their place, and which:
  // "ListView1.Columns[1]: TListColumn".
  bool HasSelectedParts() const { return !selection_.Parts().empty(); }
  QString SelectedPartsText() const;

  // --- IDesigner
  void Modified() override;
  void Perform(const QString& text, const std::function<void()>& action) override { Run(text, {}, action); }
  TComponent* GetRoot() const override { return form_.RootOrNull(); }
  QString GetRootClassName() const override;
  QString UniqueName(const QString& baseName) const override { return form_.UniqueName(baseName); }
  TComponent* GetComponent(const QString& name) const override { return form_.FindComponent(name); }
  QString GetComponentName(const TComponent& component) const override { return component.Name(); }
  void GetComponentNames(const TClass& cls, const TGetStrProc& proc) const override;
  void SelectComponent(TPersistent* instance) override;
  void SetSelections(const TDesignerSelections& list) override;
  TDesignerSelections GetSelections() const override { return selection_.Inspected(); }
  void DeleteSelection() override;
  void Edit(TComponent& component) override;
  bool MethodExists(const QString& name) const override;
  void GetMethods(const TTypeInfo& eventType, const TGetStrProc& proc) const override;
  void ShowMethod(const QString& name) override;

  // --- IControlHost
  void ControlChanged(TControl& control) override;
  void BoundsChanging(TControl& control) override;
  void ComponentChanging(TComponent& component) override;
  void ComponentListed(TComponent& component, TOperation operation) override;
  void ControlPlaced(TControl& control) override;
  // Undo and redo know every place themselves.
  bool LayoutFrozen() const override { return form_.IsFrozen(); }

 signals:
  void Changed(const FormChange& change);
  void SelectionChanged();
  void ModifiedChanged();
  void FindingsChanged();
  // The control looks different from now on, or is about to.
  void RepaintNeeded(const TControl& control);
  void HandlerShown(const QString& name);

 private:
  FormSession(forms::Document document, FileOnDisk file, DesignRegistry& registry);
  static std::unique_ptr<FormSession> Opened(std::unique_ptr<FormSession> session);
  void Came(TComponent& component) override;
  void Going(TComponent& component) override;
  void Make();
  QByteArray BytesToSave();
  void Saved();

  using Kind = CommandRecorder::Kind;
  bool Is(Kind kind) const { return recorder_ && recorder_->TheKind() == kind; }
  void Begin(Kind kind);
  CommandRecorder& Recorder();
  void SettleStray();
  std::unique_ptr<Command> Take();
  qsizetype Commit(const QString& text);
  void Rollback();
  void Step(Command& command, bool redo);
  void Ended();
  void RequireReadable(qsizetype newData) const;
  void RequireRoomFor(const std::vector<Insertion>& insertions,
                      std::vector<std::unique_ptr<forms::Object>>& objects, qsizetype data);
  void TakeIntoLayout(TComponent& component);
  TWinControl& ContainerFor(TComponent* wanted) const;
  void ShowFirstMenu(TMainMenu& menu);
  void Announce(const FormChange& change);
  void TellSelection();
  FormChange ChangeOf(const Command& command) const;

  BoundForm form_;
  FileOnDisk file_;
  Selection selection_;
  UndoStack undo_;
  std::unique_ptr<CommandRecorder> recorder_;  // while a command is under way
  bool rebuildWanted_ = false;
};
