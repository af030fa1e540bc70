// Fuzz target: a file of styles.
#include "library/styles/StyleManager.h"
#include "rtl/Exceptions.h"
#include "tests/fuzz/Target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  TVRXStyles styles;
  try {
    styles = TVRXStyles::FromText(bytes);
  } catch (const Exception&) {
    return 0;
  }
  const QByteArray once = styles.Text();
  Require(TVRXStyles::FromText(once) == styles, "what was written is read as it was");
  Require(TVRXStyles::FromText(once).Text() == once, "and written as it was");
  // Whatever a file says can be given to a component, moved and taken out.
  TComponent component(nullptr);
  TVRXStyleManager manager(nullptr);
  manager.SetStyles(styles);
  QStringList names;
  manager.GetStyleNames(names);
  for (const QString& name : names) manager.ApplyStyle(component, name);
  if (names.isEmpty()) return 0;
  manager.RenameStyle(names.front(), QStringLiteral("moved somewhere else"));
  Require(manager.Styles().All().size() == styles.All().size(), "moving loses nothing");
  manager.EraseStyle(QStringLiteral("moved somewhere else"));
  Require(manager.Styles().All().size() < styles.All().size(), "and taking out takes out");
  return 0;
}
