// Verbs of the standard components: what their published properties can be edited with.
#pragma once
#include "designintf/ComponentEditor.h"

// Serves every class that has no editor of its own. Collections and lists of items have a verb each; a
// double-click opens the first collection, a picture, or else the default event.
class TStandardEditor : public TDefaultEditor {
 public:
  using TDefaultEditor::TDefaultEditor;
  void Edit() override;
  void ExecuteVerb(int index) override;
  QString GetVerb(int index) const override;
  int GetVerbCount() const override { return Previews() + static_cast<int>(Listed().size()); }

 private:
  // Dialogs have a verb to look at them, the first one; else none.
  int Previews() const;
  std::vector<const TPropInfo*> Listed() const;
  void EditProperty(const TPropInfo& property);
  using TDefaultEditor::EditProperty;
};

// One verb, which is what a double-click does, too.
class TOneVerbEditor : public TComponentEditor {
 public:
  using TComponentEditor::TComponentEditor;
  int GetVerbCount() const override { return 1; }
  QString GetVerb(int index) const override { return index == 0 ? Verb() : QString(); }
  void ExecuteVerb(int index) override;

 protected:
  virtual QString Verb() const = 0;
  virtual void Run(IDesigner& designer) = 0;
};

// Behind the other verbs the texts of the cells, which are in no inspector.
class TStringGridEditor : public TStandardEditor {
 public:
  using TStandardEditor::TStandardEditor;
  void ExecuteVerb(int index) override;
  QString GetVerbProblem(int index) const override;
  QString GetVerb(int index) const override;
  int GetVerbCount() const override { return TStandardEditor::GetVerbCount() + 1; }
};

class TMenuEditor : public TOneVerbEditor {
 public:
  using TOneVerbEditor::TOneVerbEditor;

 protected:
  QString Verb() const override;
  void Run(IDesigner& designer) override;
};
class TActionListEditor : public TOneVerbEditor {
 public:
  using TOneVerbEditor::TOneVerbEditor;

 protected:
  QString Verb() const override;
  void Run(IDesigner& designer) override;
};
class TImageListEditor : public TOneVerbEditor {
 public:
  using TOneVerbEditor::TOneVerbEditor;

 protected:
  QString Verb() const override;
  void Run(IDesigner& designer) override;
};
