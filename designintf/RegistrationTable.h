// The calls of a Register procedure as a table: one row a call, in call order, classes by their address.
//
//   using namespace registration;
//   const Row kRows[] = {
//       Page("Gauges", TellingClasses<TDial, TClock>()),
//       Component<TDial, TDialEditor>(),
//       Property<TNeedle, TNeedleProperty>(),                 // everywhere
//       Property<TNeedle, TShortNeedleProperty, TDial>("Short"),
//       Hidden<bool, TDial>("AutoSize"),
//   };
//   void Register() { MakeCalls(kRows); }
#pragma once
#include <span>
#include <string_view>

#include "designintf/DesignIntf.h"

namespace registration {
using ClassFunction = const TClass& (*)();

class Row {
 public:
  explicit Row(std::function<void()> call) : call_(std::move(call)) {}
  // Leaves the call out when the condition does not hold at that moment.
  Row OnlyIf(bool (*condition)()) && {
    condition_ = condition;
    return std::move(*this);
  }
  void Call() const {
    if (!condition_ || condition_()) call_();
  }

 private:
  std::function<void()> call_;
  bool (*condition_)() = nullptr;
};
// In order. What a call throws comes out; the calls after it are not made.
void MakeCalls(std::span<const Row> rows);

struct ClassList {
  std::vector<ClassFunction> classes;
  bool tell = false;
};
template <class... T>
ClassList Classes() {
  return {{&T::StaticClass...}};
}
// Classes that promise that their setters tell (PromiseTelling).
template <class... T>
ClassList TellingClasses() {
  return {{&T::StaticClass...}, true};
}
Row Page(const char* name, ClassList classes);
// Known to forms, but on no page.
Row Unplaced(ClassList classes);
Row Actions(const char* category, ClassList classes);

namespace detail {
// The class's own name, without namespaces.
template <class T>
constexpr std::string_view NameOf() {
  std::string_view text = __PRETTY_FUNCTION__;
  text.remove_prefix(text.find("T = ") + 4);
  text = text.substr(0, text.find_first_of(";]"));
  const std::size_t scope = text.rfind("::");
  return scope == std::string_view::npos ? text : text.substr(scope + 2);
}
template <class T>
constexpr ClassFunction ClassOf = &T::StaticClass;
template <>
inline constexpr ClassFunction ClassOf<void> = nullptr;

using TypeFunction = const TTypeInfo& (*)();
template <class T>
constexpr TypeFunction TypeOf() {
  if constexpr (std::derived_from<T, TPersistent>)
    return &T::StaticTypeInfo;
  else
    return &TypeInfoOf<T>::Get;
}
Row PropertyRow(TypeFunction type, ClassFunction cls, const char* name,
                std::optional<TPropertyEditorClass> editor);
template <class Editor>
TPropertyEditorClass PropertyEditor() {
  return PropertyEditorClass<Editor>(std::string(NameOf<Editor>()).c_str());
}
Row ComponentRow(ClassFunction cls, TComponentEditorClass editor);
Row CategoryRow(std::function<QString()> category, ClassFunction cls, std::vector<const char*> properties);
}  // namespace detail

// `Class` and its descendants are edited by `Editor`.
template <class Class, class Editor>
Row Component() {
  return detail::ComponentRow(&Class::StaticClass,
                              ComponentEditorClass<Editor>(std::string(detail::NameOf<Editor>()).c_str()));
}
// Properties of the type, as a rule everywhere; `Class` and `name` say where else.
template <class Type, class Editor, class Class = void>
Row Property(const char* name = "") {
  return detail::PropertyRow(detail::TypeOf<Type>(), detail::ClassOf<Class>, name,
                             detail::PropertyEditor<Editor>());
}
// The same for types that have no C++ type of their own.
template <detail::TypeFunction Type, class Editor, class Class = void>
Row Property(const char* name = "") {
  return detail::PropertyRow(Type, detail::ClassOf<Class>, name, detail::PropertyEditor<Editor>());
}
// Not shown in inspectors.
template <class Type, class Class>
Row Hidden(const char* name) {
  return detail::PropertyRow(detail::TypeOf<Type>(), &Class::StaticClass, name, std::nullopt);
}
template <class Class>
Row Category(const char* category, std::vector<const char*> properties) {
  return detail::CategoryRow([category] { return QString::fromLatin1(category); }, &Class::StaticClass,
                             std::move(properties));
}
template <class Class>
Row Category(TResString category, std::vector<const char*> properties) {
  return detail::CategoryRow([category] { return LoadResString(category); }, &Class::StaticClass,
                             std::move(properties));
}
}  // namespace registration
