#include "ide/LostAction.h"

#include <algorithm>

#include "forms/Binding.h"
#include "rtl/Exceptions.h"
#include "rtl/PropAccess.h"

namespace {
// Buttons that stay pressed have another word for it.
constexpr std::pair<const char*, const char*> Shown[] = {
    {"Caption", "Caption"}, {"Checked", "Checked"},       {"Checked", "Down"},      {"Enabled", "Enabled"},
    {"Hint", "Hint"},       {"ImageIndex", "ImageIndex"}, {"ShortCut", "ShortCut"}, {"Visible", "Visible"}};
}  // namespace

QString LostAction(const TComponent& client, const forms::Snapshot& before) {
  const TPropInfo* property = client.ClassType().FindProp("Action");
  if (!property || !IsComponentRef(*property) || GetObjectProp(client, *property)) return {};
  const auto was =
      std::find_if(before.begin(), before.end(), [](const auto& v) { return v.path == "Action"; });
  return was != before.end() && was->value.type == forms::ValueType::Ident
             ? QString::fromUtf8(was->value.bytes)
             : QString();
}

void KeepActionValues(TComponent& client, const forms::Object& own, const forms::Object& action,
                      const forms::Document& document, TComponent& root) {
  for (const auto& [path, clientPath] : Shown) {
    const forms::Property* value = action.Find(path);
    const forms::PropertyTarget target = forms::FindTarget(client, clientPath);
    if (!value || !target.prop || own.Find(clientPath) || IsStoredProp(*target.instance, *target.prop))
      continue;
    try {
      forms::ApplyNow(root, target, document.Read(*value), document);
    } catch (const Exception&) {
      // A value of another kind than the action's.
    }
  }
}
