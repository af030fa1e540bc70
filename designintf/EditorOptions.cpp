#include "designintf/EditorOptions.h"

#include <QtGlobal>

namespace {
unsigned char BitOf(TEditorOption option) {
  return static_cast<unsigned char>(1u << static_cast<unsigned>(option));
}
}  // namespace

unsigned char& EditorOptions() {
  static auto options = static_cast<unsigned char>(qEnvironmentVariableIntValue("ORLENVOKITEDITOROPTIONS"));
  return options;
}

bool EditorOption(TEditorOption option) { return (EditorOptions() & BitOf(option)) != 0; }

void SetEditorOption(TEditorOption option, bool on) {
  const auto others = static_cast<unsigned char>(EditorOptions() & ~BitOf(option));
  EditorOptions() = static_cast<unsigned char>(others | (on ? BitOf(option) : 0));
}
