// A row of the object inspector's tree, and what its editor says of itself. An editor that throws is reported
// and says the least there is.
#pragma once
#include <optional>

#include "designintf/PropertyEditor.h"

namespace inspector {
QString NameOf(const TPropertyEditor& editor);
QIcon IconOf(const TPropertyEditor& editor, const QString& value);
bool Has(const TPropertyEditor& editor, TPropertyAttribute attribute);
// Empty when the selected components differ.
QString TextOf(const TPropertyEditor& editor);
bool IsNotDefault(const TPropertyEditor& editor);
}  // namespace inspector

struct InspectorNode {
  InspectorNode* parent = nullptr;
  int row = 0;  // among those that are shown
  std::unique_ptr<TPropertyEditor> editor;
  QString category;
  bool loaded = false;
  bool above = false;  // the filter finds something below
  // What views were told; nothing when they did not ask since it changed.
  std::optional<QString> toldText;
  std::optional<bool> toldNotDefault;
  std::optional<QString> toldProblem;
  std::vector<TPersistent*> objects;  // whose properties the rows below are
  std::vector<std::unique_ptr<InspectorNode>> all;
  std::vector<InspectorNode*> shown;  // those that the filter leaves

  InspectorNode& Add(std::unique_ptr<TPropertyEditor> e) {
    auto node = std::make_unique<InspectorNode>();
    node->parent = this;
    node->editor = std::move(e);
    all.push_back(std::move(node));
    return *all.back();
  }
  void ShowAll() {
    shown.clear();
    for (const auto& node : all) Show(*node);
  }
  void Show(InspectorNode& node) {
    node.row = static_cast<int>(shown.size());
    shown.push_back(&node);
  }
  QString Name() const { return editor ? inspector::NameOf(*editor) : category; }
  // "LED.ActiveColor", wherever it stands.
  QByteArray Property() const {
    const QByteArray around = parent && parent->editor ? parent->Property() + '.' : QByteArray();
    return editor ? around + editor->GetPropInfo().Name : around;
  }
  QString Path() const { return parent && parent->parent ? parent->Path() + u'.' + Name() : Name(); }
};
