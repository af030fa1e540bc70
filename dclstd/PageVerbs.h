// Verbs of page controls and of their pages: a page made, shown, deleted.
#pragma once
#include "designintf/ComponentEditor.h"

class TPageControl;
class TTabSheet;

class TPageControlEditor : public TDefaultEditor {
 public:
  using TDefaultEditor::TDefaultEditor;
  void ExecuteVerb(int index) override;
  QString GetVerb(int index) const override;
  int GetVerbCount() const override;
  QString GetVerbProblem(int index) const override;

 private:
  // Null for a page that stands anywhere else.
  TPageControl* Book() const;
  // The selected page, or the one in front.
  TTabSheet* Page() const;
  void NewPage();
  void GoOn(int by);
  void DeletePage();
};
