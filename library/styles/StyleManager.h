// Keeps named styles of a form: sets of property values that its controls take over.
#pragma once
#include <QHash>
#include <memory>

#include "library/styles/StylePlan.h"
#include "library/styles/Styles.h"
#include "rtl/Component.h"
#include "rtl/ContentProblem.h"
#include "rtl/Strings.h"

// The styles as a form file keeps them: the lines of a style file.
class TVRXStyleLines : public TStrings, public IContentProblem {
 public:
  using TStrings::TStrings;
  QString ContentProblem() const override;

 private:
  friend class TVRXStyleManager;
  void Show(const QStringList& lines);
  void DoChanging() override;
  void DoChanged() override;
  bool showing_ = false;
};

class TVRXStyleManager : public TComponent {
  VRX_CLASS(TVRXStyleManager)
 public:
  explicit TVRXStyleManager(TComponent* owner);
  ~TVRXStyleManager() override;

  bool IsStateStyle(const QString& styleName) const { return VRXIsStateStyle(styleName); }
  bool IsValidStyleName(const QString& name) const { return VRXIsValidStyleName(name); }

  // A text, an integer, a float or a stream; makes the style when there is none. What is no path or no name
  // of a property throws, as does every change while the styles of a form cannot be read (Problem).
  void WritePropValue(const QString& stylePath, const QString& propName, TVRXStyleValue value,
                      const QString& typeName);
  // False, and the value is empty or zero, when nothing is stored in this way.
  template <class T>
  bool ReadPropValue(const QString& stylePath, const QString& propName, T& value,
                     const QString& typeName) const {
    const TVRXStyleValue* found = Styles().Find(stylePath, {propName, typeName});
    const T* stored = found ? std::get_if<T>(found) : nullptr;
    value = stored ? *stored : T();
    return stored != nullptr;
  }
  // All paths; substyles directly behind their style.
  void GetStyleNames(QStringList& list) const;
  // "NAME:TYPE" of each value of a style.
  void GetProperties(const QString& stylePath, QStringList& list) const;
  void EraseProperty(const QString& stylePath, const QString& propName, const QString& typeName);
  // With its substyles.
  void EraseStyle(const QString& stylePath);
  // Moves a style and its substyles. Refuses a path that there is already, or one inside of the style.
  void RenameStyle(const QString& oldPath, const QString& newPath);
  void Clear() { SetStyles({}); }

  // Gives the component what the style says, with `cascade` also what those above it say; what did not fit is
  // told, and the rest is set.
  std::vector<TVRXStyleMisfit> ApplyStyle(TComponent& component, const QString& stylePath,
                                          bool cascade = true) const;
  // Where the class's style is, its own or its nearest ancestor's; empty when there is none.
  QString PathOfClass(const TClass& cls) const;
  // A path as it is; else the style of that name below `base`, at the top, or the first one anywhere; empty
  // when there is none.
  QString PathOf(const QString& base, const QString& style) const;
  const TVRXStylePlan& PlanFor(const TClass& cls, const QString& stylePath, bool cascade) const;

  // What cannot be read throws with line and reason, and the styles stay.
  void LoadFromFile(const QString& fileName) { SetStyles(TVRXStyles::Load(fileName)); }
  void SaveToFile(const QString& fileName) const { Styles().Save(fileName); }

  const TVRXStyles& Styles() const;
  void SetStyles(const TVRXStyles& styles);
  // Why the styles that a form holds cannot be read; they stay as they are there. Empty when they can.
  const QString& Problem() const;
  // Another number after every change.
  int Revision() const { return revision_; }

  void Assign(const TPersistent* source) override;

 protected:
  void PartChanged(TPersistent& part) override;
  // Styles are taken over as they are, not as their lines.
  bool AssignsProperty(const TPropInfo& prop) const override {
    return prop.Name != "Styles" && TComponent::AssignsProperty(prop);
  }

 private:
  TStrings* Lines() const;
  void Forget();
  QString PathNamed(const QString& name) const;
  void Edit(const std::function<void(TVRXStyles&)>& edit);

  // One of the two may be behind the other and follows when somebody asks.
  mutable TVRXStyleLines lines_{this};
  mutable TVRXStyles styles_;
  mutable bool linesBehind_ = false, stylesBehind_ = false;
  mutable QString problem_;
  mutable QHash<QPair<const TClass*, QString>, std::shared_ptr<const TVRXStylePlan>> plans_;
  mutable QHash<QString, QString> names_;  // the first path of each name; made when somebody asks
  int revision_ = 0;
};
