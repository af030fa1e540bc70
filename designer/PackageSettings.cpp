#include "designer/PackageSettings.h"

#include "designer/DesignerSettings.h"

namespace {
struct Setting {
  TEditorOption option;
  const char* name;
};
constexpr Setting Settings[] = {{TEditorOption::LabeledVariants, "LabeledVariants"}};
}  // namespace

void RestoreEditorOptions() {
  for (const Setting& s : Settings)
    if (const QString kept = DesignerSetting(s.name); !kept.isEmpty())
      SetEditorOption(s.option, kept == QStringLiteral("1"));
}

void ChooseEditorOption(TEditorOption option, bool on) {
  SetEditorOption(option, on);
  for (const Setting& s : Settings)
    if (s.option == option) KeepDesignerSetting(s.name, on ? QStringLiteral("1") : QStringLiteral("0"));
}
