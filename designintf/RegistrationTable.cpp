#include "designintf/RegistrationTable.h"

#include "rtl/ClassRegistry.h"

namespace registration {
namespace {
// Classes describe themselves on first use: not when the table is made, but when the call is.
std::vector<const TClass*> Described(const ClassList& list) {
  std::vector<const TClass*> classes;
  for (const ClassFunction function : list.classes) {
    classes.push_back(&function());
    if (list.tell) PromiseTelling(*classes.back());
  }
  return classes;
}
}  // namespace

void MakeCalls(std::span<const Row> rows) {
  for (const Row& row : rows) row.Call();
}

Row Page(const char* name, ClassList classes) {
  return Row([=] { RegisterComponents(QString::fromLatin1(name), Described(classes)); });
}
Row Unplaced(ClassList classes) {
  return Row([=] {
    for (const TClass* cls : Described(classes)) RegisterClass(*cls);
  });
}
Row Actions(const char* category, ClassList classes) {
  return Row([=] { RegisterActions(QString::fromLatin1(category), Described(classes), nullptr); });
}

namespace detail {
Row ComponentRow(ClassFunction cls, TComponentEditorClass editor) {
  return Row([=] { RegisterComponentEditor(cls(), editor); });
}
Row PropertyRow(TypeFunction type, ClassFunction cls, const char* name,
                std::optional<TPropertyEditorClass> editor) {
  return Row([=] { RegisterPropertyEditor(type(), cls ? &cls() : nullptr, name, editor); });
}
Row CategoryRow(std::function<QString()> category, ClassFunction cls, std::vector<const char*> properties) {
  QStringList names;
  for (const char* property : properties) names << QString::fromLatin1(property);
  return Row([=] { RegisterPropertiesInCategory(category(), cls(), names); });
}
}  // namespace detail
}  // namespace registration
