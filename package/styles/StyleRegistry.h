// Which properties styles can set: the registry of component classes and what they publish, for the style
// manager's editor.
#pragma once
#include <QHash>
#include <QSet>
#include <memory>
#include <span>
#include <vector>

#include "rtl/Component.h"

// One property of one class.
struct TVRXPropListItem {
  QString Name;
  TTypeKind Kind = TTypeKind::tkUnknown;
  QString TypeName;
  QString ClassName;
  // The property through which the class was reached; empty for a class that was registered by itself.
  QString Parent;
  const TTypeInfo* Type = nullptr;
};

// In order of the names; several items may have one name. Names are found without regard to case.
class TVRXPropList {
 public:
  TVRXPropList();
  ~TVRXPropList();

  void AddProperty(std::unique_ptr<TVRXPropListItem> item);
  int GetCount() const { return static_cast<int>(items_.size()); }
  TVRXPropListItem* GetItems(int index) const;
  void SetItems(int index, std::unique_ptr<TVRXPropListItem> item);

  // Null when there is none. An empty parent accepts any.
  TVRXPropListItem* FindItemByName(const QString& name) const;
  TVRXPropListItem* FindItemByNameAndClassName(const QString& name, const QString& className,
                                               const QString& parent) const;
  TVRXPropListItem* FindItemByNameAndTypeName(const QString& name, const QString& typeName,
                                              const QString& parent) const;
  // All of a name; of a class reached through `parent` (exactly); of a type; by name.
  std::vector<TVRXPropListItem*> ItemsOf(const QString& name) const;
  std::vector<TVRXPropListItem*> ItemsOfClass(const QString& className, const QString& parent) const;
  std::vector<TVRXPropListItem*> ItemsOfType(const QString& typeName) const;
  // Of items that were registered by themselves; in order.
  QStringList ClassNames() const;
  QStringList TypeNames() const;

  // Names, or "Name:TypeName", compared without regard to case.
  void ExcludeProperty(const QString& name);
  bool PropertyExcluded(const QString& name) const { return excluded_.contains(name.toUpper()); }
  QStringList ExcludedNames() const;
  void Clear();

 private:
  friend void RegisterStyleMgrClass(const TClass& cls, const QString& parent, TVRXPropList& list);
  void Register(const TClass& cls, const QString& parent);
  struct Word {
    QString text;
    bool excluded = false;  // as a name
    bool typed = false;     // with some of its types
  };
  Word WordOf(const QByteArray& name);
  bool IsThere(const QString& name, const QString& className, const QString& parent);
  void Forget();
  void Sort() const;
  const std::vector<TVRXPropListItem*>& Named(const QString& name) const;

  QSet<QString> excluded_;
  mutable std::vector<std::unique_ptr<TVRXPropListItem>> items_;
  mutable bool sorted_ = true;
  mutable QHash<QString, std::vector<TVRXPropListItem*>> byName_;  // in small letters; in order of creation
  mutable std::size_t entered_ = 0;                                // of the items, in byName_
  QSet<QPair<const TClass*, QString>> seen_;  // registered, and nobody has touched the items since
  QSet<QPair<QString, QString>> seenNames_;   // the same by name, for a class that came anew
  bool foreign_ = false;                      // items that no class has brought
  QSet<QString> exact_;                       // items by all that tells them apart; made when needed
  QHash<QByteArray, Word> words_;             // names occur many times
  QSet<QString> typed_;                       // names that are excluded with a type
};

// The one of the loaded package. It is made when the package's unit starts, or when somebody asks for it.
TVRXPropList& VRXStyleRegistry();
void VRXCreateStyleRegistry();
// Takes back the classes that it made known, too.
void VRXFreeStyleRegistry();

// Registers what the class publishes, and the classes of its value objects with the property's name as their
// parent. A second time adds nothing.
void RegisterStyleMgrClass(const TClass& cls, const QString& parent, TVRXPropList& list = VRXStyleRegistry());
// A class, its parent and its grandparent.
void RegisterStyleMgrFamily(const TClass& cls, TVRXPropList& list = VRXStyleRegistry());
// Those of all components of the form but the manager.
void RegisterStyleMgrForm(const TComponent& root, const TComponent* manager,
                          TVRXPropList& list = VRXStyleRegistry());

// The names that are excluded the first time the editor runs.
std::span<const char* const> VRXExcludedStyleProperties();
void VRXExcludeStylePropertiesOnce();
