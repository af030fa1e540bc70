#include "designintf/ComponentVerbs.h"

#include "designintf/VerbTitle.h"

std::vector<Verb> VerbsOf(const DesignRegistry& registry, TComponent& component, IDesigner& designer,
                          const VerbRunner& runner) {
  std::vector<Verb> verbs;
  const auto callOf = [&registry, &component](const char* member) {
    return [&registry, &component, member] { return registry.CallOf(component, member); };
  };
  const std::shared_ptr<TComponentEditor> editor = registry.GetComponentEditor(&component, &designer);
  const int count = AskPackage(callOf("GetVerbCount"), 0, [&] { return editor->GetVerbCount(); });
  for (int i = 0; i < count; ++i) {
    const QString text =
        AskPackage(callOf("GetVerb"), QStringLiteral("-"), [&] { return editor->GetVerb(i); });
    if (text == QStringLiteral("-")) {
      verbs.push_back({});
      continue;
    }
    const QString problem =
        AskPackage(callOf("GetVerbProblem"), QString(), [&] { return editor->GetVerbProblem(i); });
    verbs.push_back({text, problem, [runner, editor, i, text, call = callOf("ExecuteVerb")] {
                       runner(VerbTitle(text), [&, where = call()] {
                         PackageCall([&] { return where; }, [&] { editor->ExecuteVerb(i); });
                       });
                     }});
  }
  return verbs;
}

const DesignRegistry* RegistryOf(const TComponentEditor& editor) {
  return dynamic_cast<const DesignRegistry*>(editor.Source());
}
