#include "ide/RefusedData.h"

#include "forms/KeptValues.h"
#include "designintf/PartPath.h"
#include "rtl/Exceptions.h"

void RequireAllData(const FormSession& session) {
  for (const forms::Finding& f : session.Findings()) {
    if (!f.refusedData) continue;
    if (f.where.line > 0)
      throw Exception(QStringLiteral("%1:%2:%3: %4")
                          .arg(session.FileName())
                          .arg(f.where.line)
                          .arg(f.where.column)
                          .arg(f.text));
    throw Exception(QStringLiteral("%1: %2 (byte %3)").arg(session.FileName(), f.text).arg(f.where.offset));
  }
}

namespace {
void AddComponent(const FormSession& session, const TComponent& component, std::vector<RefusedValue>& out) {
  const forms::Object* object = session.ObjectOf(component);
  for (const forms::Finding& f : session.Findings())
    if (object && f.object == object && !f.property.isEmpty()) out.push_back({f.property, f.text});
}

// Items keep what they do not take.
void AddPart(TPersistent& part, std::vector<RefusedValue>& out) {
  const PartPath place(part);
  if (!place.Component()) return;
  const QByteArray path = place.Text().toUtf8().mid(place.Component()->Name().toUtf8().size() + 1);
  const qsizetype bracket = path.indexOf('[');
  if (bracket < 0) return;
  const forms::PropertyTarget collection =
      forms::FindTarget(*place.Component(), QByteArrayView(path).first(bracket));
  for (const forms::UnreadValue& v : forms::UnreadValues(collection)) {
    if (!v.refused || !v.path.startsWith(path + '.')) continue;
    try {
      std::rethrow_exception(v.refused);
    } catch (const Exception& e) {
      out.push_back({v.path.mid(path.size() + 1), e.Message()});
    }
  }
}
}  // namespace

std::vector<RefusedValue> RefusedValues(const FormSession& session, const TDesignerSelections& inspected) {
  std::vector<RefusedValue> all;
  for (TPersistent* p : inspected)
    if (const auto* component = As<TComponent>(p))
      AddComponent(session, *component, all);
    else
      AddPart(*p, all);
  return all;
}
