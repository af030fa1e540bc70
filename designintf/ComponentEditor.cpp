#include "designintf/ComponentEditor.h"

#include "designintf/EditorSource.h"

void TComponentEditor::Edit() {
  if (GetVerbCount() > 0) ExecuteVerb(0);
}
void TComponentEditor::ExecuteVerb(int) {}
QString TComponentEditor::GetVerb(int) const { return {}; }

bool TDefaultEditor::EditProperty(const TPropertyEditor& property) const {
  const QString name = property.GetName();
  return name == QStringLiteral("OnCreate") || name == QStringLiteral("OnChange") ||
         name == QStringLiteral("OnClick");
}

void TDefaultEditor::Edit() {
  if (!Source()) return;
  std::unique_ptr<TPropertyEditor> first;
  std::unique_ptr<TPropertyEditor> best;
  Source()->GetComponentProperties({GetComponent()}, GetDesigner(),
                                   [&](std::unique_ptr<TPropertyEditor> editor) {
                                     if (best) return;
                                     if (EditProperty(*editor))
                                       best = std::move(editor);
                                     else if (!first && editor->GetPropInfo().IsEvent())
                                       first = std::move(editor);
                                   });
  TPropertyEditor* editor = best ? best.get() : first.get();
  if (!editor) return;
  // What it does may take the component away.
  PackageCall([call = CallOf(*editor, "Edit")] { return call; }, [&] { editor->Edit(); });
}
