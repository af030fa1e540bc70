#include "designintf/EditorSource.h"

TPackageCall CallOf(const TPropertyEditor& editor, const char* member) {
  return editor.Source() ? editor.Source()->CallOf(editor, member) : TPackageCall();
}
