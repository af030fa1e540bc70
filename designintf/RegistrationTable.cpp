#include "designintf/RegistrationTable.h"

namespace registration {
namespace {
// Classes describe themselves on first use: not when the table is made, but when the call is.
std::vector<const TClass*> Described(const std::vector<ClassFunction>& functions) {
  std::vector<const TClass*> classes;
  for (const ClassFunction function : functions) classes.push_back(&function());
  return classes;
}
}  // namespace

void MakeCalls(std::span<const Row> rows) {
  for (const Row& row : rows) row.Call();
}

Row Page(const char* name, std::vector<ClassFunction> classes) {
  return Row([=] { RegisterComponents(QString::fromLatin1(name), Described(classes)); });
}
Row Actions(const char* category, std::vector<ClassFunction> classes) {
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
