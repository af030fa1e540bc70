// Components: named, owned, streamed with a form.
#pragma once
#include <QHash>
#include <new>
#include <utility>
#include <vector>

#include "rtl/Class.h"
#include "rtl/Kept.h"
#include "rtl/NotifyList.h"

// Where a designer shows the icon of a component that is not a control: the design-time position word with
// left in its low and top in its high 16 bits, both signed.
struct TDesignPoint {
  std::int16_t Left = 0;
  std::int16_t Top = 0;
};
TDesignPoint DesignPointOf(std::int32_t word);
std::int32_t DesignWordOf(TDesignPoint point);

enum class TOperation { opInsert, opRemove };

// A component's name as a key: no regard to case, and no copy of the text. Names are plain ASCII.
struct TNameKey {
  QStringView Text;
  static constexpr char16_t Fold(QChar c) {
    return static_cast<char16_t>(c >= u'A' && c <= u'Z' ? c.unicode() + (u'a' - u'A') : c.unicode());
  }
  friend bool operator==(TNameKey a, TNameKey b) {
    return std::equal(a.Text.begin(), a.Text.end(), b.Text.begin(), b.Text.end(),
                      [](QChar x, QChar y) { return Fold(x) == Fold(y); });
  }
  friend std::size_t qHash(TNameKey key, std::size_t seed = 0) {
    std::size_t h = seed ^ 14695981039346656037u;  // FNV-1a
    for (const QChar c : key.Text) h = (h ^ Fold(c)) * 1099511628211u;
    return h ^ h >> 32;
  }
};

class TComponent : public TKeeper {
  VRX_CLASS(TComponent)
 public:
  explicit TComponent(TComponent* owner);
  // Frees the components it owns, last first, tells everyone who asked, and leaves its owner.
  ~TComponent() override;
  // Everyone who asked is told while the component is still of its class: a reference to it is let go before
  // it leads to less than it says.
  void operator delete(TComponent* component, std::destroying_delete_t);
  static void* operator new(std::size_t size);
  static void operator delete(void* memory) noexcept;

  TPersistent* GetOwner() const override { return owner_; }
  TComponent* Owner() const { return owner_; }
  const std::vector<TComponent*>& Components() const { return components_; }
  // The owned component of that name (no regard to case), or null.
  TComponent* FindComponent(const QString& name) const;
  // Position among the owner's components; -1 without an owner.
  int ComponentIndex() const;
  void InsertComponent(TComponent* component);
  void RemoveComponent(TComponent* component);

  const QString& Name() const { return name_; }
  // Empty, or an identifier that no other component of the owner has; otherwise EComponentError.
  void SetName(const QString& name);

  std::int64_t Tag() const { return tag_; }
  void SetTag(std::int64_t tag) { Change(tag_, tag); }
  std::int32_t DesignInfo() const { return designInfo_; }
  void SetDesignInfo(std::int32_t word) { Change(designInfo_, word); }

  // The class name the form file gives this component. Differs from the class for forms (their own
  // descendant) and for stand-ins of classes that are not loaded.
  virtual QByteArray StreamClassName() const { return ClassType().ClassName(); }

  // The container in the form file: the parent of a control, the owner of anything else.
  virtual TComponent* GetParentComponent() const { return owner_; }
  virtual bool HasParent() const { return false; }
  virtual void SetParentComponent(TComponent*) {}
  // The components to be written inside this one, in order.
  virtual std::vector<TComponent*> GetChildren() const;

  bool IsDesigning() const { return designing_; }
  void SetDesigning(bool designing) { designing_ = designing; }
  bool IsLoading() const { return loading_; }
  bool IsDestroying() const { return destroying_; }
  // Called by readers before the first property and after the last one of the whole form.
  virtual void BeginLoading() { SetQuiet(loading_ = true); }
  virtual void Loaded() { SetQuiet(loading_ = false); }
  // For readers: so many components are about to be named.
  void ReserveNames(qsizetype count);

  // From now on the two tell each other when one of them is freed.
  void FreeNotification(TComponent* component);
  void RemoveFreeNotification(TComponent* component);
  const TNotifyList& FreeNotifies() const { return freeNotifies_; }
  // Whether a published reference of this component or of one of its parts leads to the other one.
  bool RefersTo(const TComponent& other) const;
  // `component`, which asked or was asked for a free notification, is going: references to it are dropped.
  virtual void Notification(TComponent* component, TOperation operation);

 protected:
  bool AssignsProperty(const TPropInfo& prop) const override { return prop.Name != "Name"; }
  void DoChanging() override;
  void DoChanged() override {}
  // A component is about to change, or came or went, somewhere below this one; handed upwards until somebody
  // watches. `component` may be half made or half freed when it comes or goes.
  virtual void ComponentChanging(TComponent& component);
  virtual void ComponentListed(TComponent& component, TOperation operation);
  // Keeps free notifications in step with the references that are kept.
  void ReferenceChanged(TPersistent* before, TPersistent* after) override;
  // Called for derived classes after a new name is in place.
  virtual void NameChanged(const QString& oldName);

 private:
  void TellOfRemoval();
  void EnterName(TComponent& component);
  void LeaveName(TComponent& component);
  int DesignLeft() const { return DesignPointOf(designInfo_).Left; }
  int DesignTop() const { return DesignPointOf(designInfo_).Top; }
  void SetDesignLeft(int left);
  void SetDesignTop(int top);
  bool HasDesignPosition() const { return !HasParent() && owner_; }

  TComponent* owner_ = nullptr;
  std::vector<TComponent*> components_;
  TNotifyList freeNotifies_;
  std::unique_ptr<QHash<TNameKey, TComponent*>> names_;  // of owned components; the keys are their names
  QString name_;
  std::int64_t tag_ = 0;
  std::int32_t designInfo_ = 0;
  bool designing_ = false;
  bool loading_ = false;
  bool destroying_ = false;
};

// A letter or underscore, then letters, digits and underscores.
bool IsValidIdent(QStringView name);

// Sets a component-reference member and keeps free notifications in step.
template <class T>
void SetReference(TComponent& holder, T*& member, T* value) {
  if (member == value) return;
  holder.Changing();
  T* const before = std::exchange(member, value);
  if (before && !holder.RefersTo(*before) && !before->RefersTo(holder))
    before->RemoveFreeNotification(&holder);
  if (value) value->FreeNotification(&holder);
}
