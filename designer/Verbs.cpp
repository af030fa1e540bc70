#include "designer/Verbs.h"

#include "designintf/ComponentEditor.h"
#include "ide/VerbTitle.h"

std::vector<Verb> VerbsOfSelection(FormSession& session) {
  std::vector<Verb> verbs;
  const auto selected = session.SelectedComponents();
  if (selected.size() != 1) return verbs;
  TComponent& component = *selected.front();
  const auto callOf = [&session, &component](const char* member) {
    return [&session, &component, member] { return session.Registry().CallOf(component, member); };
  };
  const std::shared_ptr<TComponentEditor> editor =
      session.Registry().GetComponentEditor(&component, &session);
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
    verbs.push_back({text, problem, [&session, &component, editor, i, text, call = callOf("ExecuteVerb")] {
                       session.Run(VerbTitle(text), {&component}, [&, where = call()] {
                         PackageCall([&] { return where; }, [&] { editor->ExecuteVerb(i); });
                       });
                     }});
  }
  return verbs;
}
