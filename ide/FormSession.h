// An open form: its document, its components, the selection and everything that was done to them.
//
// Every change goes through Run as one command. A command knows the documents' nodes before and after, so
// undo gives back the very bytes, and only lines that changed differ in the file. An action that throws is
// rolled back.
#pragma once
#include <QObject>

#include "designintf/DesignRegistry.h"
#include "designintf/Designer.h"
#include "forms/FormReader.h"
#include "ide/Command.h"
#include "ide/FormChange.h"
#include "vcl/Form.h"

// What became of a file since it was read or written here last. Its content decides.
enum class DiskState { Same, Changed, Gone };

class FormSession : public QObject, public IDesigner, public IControlHost {
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
  DesignRegistry& Registry() const { return registry_; }

  TForm& Form() const { return *root_; }
  const forms::Document& Document() const { return document_; }
  const std::vector<forms::Finding>& Findings() const { return findings_; }
  forms::Object* ObjectOf(const TComponent& component) const { return map_.ObjectOf(component); }
  TComponent* ComponentOf(const forms::Object& object) const { return map_.ComponentOf(object); }
  // All components in the order of the file, the root first.
  std::vector<TComponent*> AllComponents() const;

  // --- Files
  const QString& FileName() const { return fileName_; }
  QByteArray Bytes() const { return document_.Write(); }
  // Both throw and stay modified when the file cannot be written; the old file is then untouched. Save also
  // refuses (EFileChanged) when another program changed or removed the file meanwhile; SaveAs replaces any
  // file.
  void Save();
  void SaveAs(const QString& fileName);
  // Throws when the file cannot be read.
  DiskState StateOnDisk() const;
  // The person has seen what another program wrote; the next Save may replace it.
  void AcceptOnDisk(const QByteArray& seen) { onDisk_ = seen; }
  bool IsModified() const { return position_ != clean_; }

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
  bool CanUndo() const { return position_ > 0; }
  bool CanRedo() const { return position_ < static_cast<int>(commands_.size()); }
  QString UndoText() const;
  QString RedoText() const;
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

  // Makes all components anew from the document, after classes came or went; while a command is under way,
  // when that has ended.
  void Rebuild();

  // --- Selection
  std::vector<TComponent*> SelectedComponents() const { return selection_; }
  void Select(const std::vector<TComponent*>& components);
  bool IsSelected(const TComponent& component) const;

  // --- IDesigner
  void Modified() override;
  TComponent* GetRoot() const override { return root_.get(); }
  QString GetRootClassName() const override;
  QString UniqueName(const QString& baseName) const override;
  TComponent* GetComponent(const QString& name) const override;
  QString GetComponentName(const TComponent& component) const override { return component.Name(); }
  void GetComponentNames(const TClass& cls, const TGetStrProc& proc) const override;
  void SelectComponent(TPersistent* instance) override;
  void SetSelections(const TDesignerSelections& list) override;
  TDesignerSelections GetSelections() const override;
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
  bool LayoutFrozen() const override { return applying_; }

 signals:
  void Changed(const FormChange& change);
  void SelectionChanged();
  void ModifiedChanged();
  // The control looks different from now on, or is about to.
  void RepaintNeeded(const TControl& control);
  void HandlerShown(const QString& name);

 private:
  struct Pending;
  FormSession(forms::Document document, DesignRegistry& registry);
  void Build();
  void Write(const QString& fileName, const QByteArray* expected);
  void Capture(TComponent& component);
  void Begin(int kind);
  void NoteStray();
  void SettleStray();
  void Commit(const QString& text);
  void RequireReadableAfter(const Command& command);
  static void RequireReadable(qsizetype size);
  void Rollback();
  void Ended();
  std::unique_ptr<Command> TakeDifferences();
  void TakeBounds();
  void MarkFollowing(std::vector<forms::ValueChange>& values, const TControl& control) const;
  void TakePlaces();
  void TakeArrivals();
  void Enter(TComponent& component, forms::Object& parent);
  void Adopt(TComponent& component);
  void CaptureAll();
  void Push(std::unique_ptr<Command> command);
  void Apply(Command& command, bool redo);
  void ApplyStructure(StructureChange& change, bool redo);
  void Settle(forms::Object& object);
  void NoteDangling(const std::vector<forms::Finding>& findings);
  void Reconnect();
  void ApplyValues(ComponentChange& change, bool redo);
  void SetObjectName(forms::Object& object, const QString& name);
  void RemoveObject(forms::Object& object);
  void RemoveWithChildren(TComponent& component);
  void InsertObject(StructureChange& change);
  TComponent* MakeComponents(const StructureChange& change);
  void RequireRoomFor(const std::vector<Insertion>& insertions,
                      std::vector<std::unique_ptr<forms::Object>>& objects, qsizetype data);
  void TakeIntoLayout(TComponent& component);
  void MoveObject(StructureChange& change, bool redo);
  void TakeObject(StructureChange& change);
  void Announce(const FormChange& change);
  FormChange ChangeOf(const Command& command) const;
  forms::FormReader MakeReader(forms::Document& document, forms::ObjectMap& map) const;
  std::vector<TComponent*> ComponentsOf(const std::vector<forms::Object*>& objects) const;
  std::vector<forms::Object*> SelectedObjects() const;
  int NewChildIndex(const forms::Object& parent, bool control) const;
  int PlaceAmong(const forms::Object& parent, int index) const;

  DesignRegistry& registry_;
  forms::Document document_;
  forms::ObjectMap map_;
  std::unique_ptr<TForm> root_;
  std::vector<forms::Finding> findings_;
  QString fileName_;
  QByteArray onDisk_;  // what the file held when it was read or written last
  std::vector<TComponent*> selection_;
  std::vector<std::unique_ptr<Command>> commands_;
  int position_ = 0;
  int clean_ = 0;
  std::unique_ptr<Pending> pending_;
  bool applying_ = false;     // an undo, a redo or a rollback is under way
  bool structuring_ = false;  // the session itself makes or frees components
  bool rebuildWanted_ = false;
  bool dangling_ = false;  // a reference in the file names something that was not there
};
