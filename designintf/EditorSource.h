// Who makes editors, as an editor that contains others or opens one sees it.
#pragma once
#include "designintf/PackageCall.h"
#include "designintf/PropertyEditor.h"

class IEditorSource {
 public:
  virtual ~IEditorSource() = default;
  // Editors of the properties that all objects have in common and that may be edited together.
  virtual void GetComponentProperties(const TDesignerSelections& objects, IDesigner* designer,
                                      const TGetPropProc& proc) const = 0;
  // Whose code runs when a member of the editor is called.
  virtual TPackageCall CallOf(const TPropertyEditor& editor, const char* member) const = 0;
};

// Whose code runs when a member of the editor is called; the host's own when nobody knows.
TPackageCall CallOf(const TPropertyEditor& editor, const char* member);
// An editor may be a package's; whoever shows a row goes on with what can be said without it.
template <class T, class F>
T AskEditor(const TPropertyEditor& editor, const char* member, T otherwise, F&& f) {
  return AskPackage([&] { return CallOf(editor, member); }, std::move(otherwise), std::forward<F>(f));
}
