// The tree of styles that the style editor shows, without its window: styles and their properties, what may
// be done to them, and the store kept in step. Refusals and questions are shown through a function.
//
// A node lives until it is deleted, moved nodes included; Rebuild makes all of them anew.
#pragma once
#include "library/styles/StyleManager.h"
#include "package/styles/StyleMessages.h"
#include "package/styles/StyleValues.h"

// The code of a style's kind, which is its picture in the tree, too.
enum class TVRXStyleKind : std::uint8_t { Class = 1, Named = 2, State = 3, Property = 4 };
TVRXStyleKind VRXStyleKindOf(const QString& name);

struct TVRXStyleNode {
  QString Name;  // of a property the whole path of it ("Font.Color")
  TVRXStyleKind Kind = TVRXStyleKind::Named;
  TVRXStyleNode* Parent = nullptr;
  std::vector<std::unique_ptr<TVRXStyleNode>> Children;  // sorted
  QString TypeName;                                      // of a property
  TVRXPropListItem* Item = nullptr;                      // of a property that is registered

  bool IsRoot() const { return !Parent; }
  bool IsProperty() const { return Kind == TVRXStyleKind::Property; }
  // Of a property its style's; of the root empty.
  QString StylePath() const;
  // The style itself, or the one that a property stands in.
  TVRXStyleNode* Style() { return IsProperty() ? Parent : this; }
  const TVRXStyleNode* Style() const { return IsProperty() ? Parent : this; }
  TVRXStyleNode* Child(const QString& name, bool property) const;
  bool IsWithin(const TVRXStyleNode& other) const;  // itself included
};

class TVRXStyleTree {
 public:
  TVRXStyleTree(TVRXStyleManager& manager, TVRXPropList& registry, TVRXShowStyleBox show);

  TVRXStyleNode& Root() { return *root_; }
  TVRXStyleManager& Manager() const { return manager_; }
  // By its path; the root for the empty one, null when there is none.
  TVRXStyleNode* Find(const QString& stylePath) const;
  // From the styles of the manager, after those were changed by somebody else.
  void Rebuild();

  // Called when the children of a node are others or in another order, and when text, kind or value of one
  // have changed.
  std::function<void(TVRXStyleNode&)> ChildrenChanged = [](TVRXStyleNode&) {};
  std::function<void(TVRXStyleNode&)> NodeChanged = [](TVRXStyleNode&) {};
  // A node, with everything below it, is about to go.
  std::function<void(TVRXStyleNode&)> Removing = [](TVRXStyleNode&) {};

  // --- Rules. An empty box means yes.
  using Refusal = std::optional<TVRXStyleBox>;
  static Refusal Placement(const TVRXStyleNode* target, const QString& name);
  static bool IsValidStylePlacement(const TVRXStyleNode* target, const QString& name, QString& message);
  // Of every style below the node, where the node is now.
  static Refusal SubStyles(const TVRXStyleNode& node);
  static bool AllSubStylesValid(const TVRXStyleNode& node, QString& message);
  // The name of the nearest class style, the node's own included; empty when there is none.
  static QString FindAncestorStyle(const TVRXStyleNode* node);

  // --- What a person does. `at` null means nothing is selected or pointed at: the root, but for Delete. What
  // is refused is shown, changes nothing and gives null or false.
  TVRXStyleNode* AddStyle(TVRXStyleNode* at, const QString& name, bool withStates);
  TVRXStyleNode* DropClass(const QString& className, TVRXStyleNode* at, bool groupedByType, bool withStates);
  // A property of the property view with its whole path ("Font", "Font.Color"). An object brings those of
  // its properties that are none.
  bool DropProperty(const TVRXPropListItem& item, const QString& path, TVRXStyleNode* at);
  // Moves a style or a property; a property can be copied.
  bool Drop(TVRXStyleNode& dragged, TVRXStyleNode* at, bool copy);
  bool Delete(TVRXStyleNode* node, bool confirm);
  bool Rename(TVRXStyleNode& style, const QString& name);
  bool AddStateStyles(TVRXStyleNode& style);
  // Registers a class by name, with its parent and grandparent.
  bool AddComponent(const QString& className);
  // A style of the class, and below it one for each component with what that has. An empty class means that
  // none is selected.
  bool CreateStyles(const QString& className, const std::vector<const TComponent*>& components);
  void SavePropsToStyle(const TComponent& component, const QString& stylePath);

  // --- Values of properties. Null while nothing is stored.
  const TVRXStyleValue* Value(const TVRXStyleNode& property) const;
  void SetValue(TVRXStyleNode& property, TVRXStyleValue value);
  void ClearValue(TVRXStyleNode& property);
  QString DisplayValue(const TVRXStyleNode& property) const;
  // How the property is edited, and what its type is; the type may be unknown.
  TTypeKind KindOf(const TVRXStyleNode& property) const;
  const TTypeInfo* TypeOf(const TVRXStyleNode& property) const;
  TVRXStyleEditor EditorOf(const TVRXStyleNode& property) const;

 private:
  bool Refuse(TVRXStyleMessage message, const QStringList& names = {}) const;
  bool Allowed(const Refusal& refusal) const;
  TVRXStyleNode& Target(TVRXStyleNode* at) { return at ? *at->Style() : *root_; }
  TVRXStyleNode& Insert(TVRXStyleNode& parent, const QString& name, TVRXStyleKind kind,
                        const QString& typeName = {});
  TVRXStyleNode& InsertStyle(TVRXStyleNode& parent, const QString& name);
  std::unique_ptr<TVRXStyleNode> TakeOut(TVRXStyleNode& node);
  void PutIn(TVRXStyleNode& parent, std::unique_ptr<TVRXStyleNode> node);
  void Sort(TVRXStyleNode& parent);
  void SortAround(TVRXStyleNode& node);
  void WriteKind(const TVRXStyleNode& style);
  void KeepInStore(const TVRXStyleNode& style);
  TVRXPropListItem* ItemOf(const TVRXStyleNode& property) const;
  bool DropStyle(TVRXStyleNode& style, TVRXStyleNode& target);
  bool DropOwnProperty(TVRXStyleNode& property, TVRXStyleNode& target, bool copy);
  bool MayHave(const TVRXStyleNode& target, const QString& path) const;
  void SaveProps(const TComponent& component, const QString& stylePath, const QString& className,
                 const QString& parent, const QString& prefix, int depth);

  TVRXStyleManager& manager_;
  TVRXPropList& registry_;
  TVRXShowStyleBox show_;
  std::unique_ptr<TVRXStyleNode> root_;
};
