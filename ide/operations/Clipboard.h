// Copies of components: by the clipboard, as form text, or at once.
#pragma once
#include "ide/FormSession.h"

// What the person copies to and pastes from; other programs see it, too.
class IClipboard {
 public:
  virtual ~IClipboard() = default;
  virtual QString Text() const = 0;
  virtual void SetText(const QString& text) = 0;
};

void CutSelection(FormSession& session, IClipboard& clipboard);
void CopySelection(const FormSession& session, IClipboard& clipboard);
// Into the selected container, else into what the selected component stands in. What would cover another one
// exactly steps aside by the grid. The new components are selected. EFormError with the place when the text
// is no form text.
void PasteInto(FormSession& session, const IClipboard& clipboard, int grid);
// Every selected component once more, beside itself.
void DuplicateSelection(FormSession& session, int grid);
