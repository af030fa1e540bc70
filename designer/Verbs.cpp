#include "designer/Verbs.h"

std::vector<Verb> VerbsOfSelection(FormSession& session) {
  const auto selected = session.SelectedComponents();
  if (selected.size() != 1) return {};
  TComponent* const component = selected.front();
  return VerbsOf(session.Registry(), *component, session,
                 [&session, component](const QString& text, const std::function<void()>& action) {
                   session.Run(text, {component}, action);
                 });
}
