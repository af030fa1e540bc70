// Component editors whose context menu is a table: a row a verb, in the order of the menu.
//
//   VRX_VERB_EDITOR(TDialComponentEditor, TDial);             // in the header
//
//   const TDialComponentEditor::Verbs TDialComponentEditor::Table = {
//       Flag("Active").DataAware("[DB] Not available"),
//       {"Needle", Launch(&TDial::Needle, VRXCPGetNeedle)},
//       {"-"},
//       {[](const TDial& d) { return d.Round() ? "Square" : "Round"; }, [](TDial& d) { d.Turn(); }},
//       Verb("Wind up", [](TDial& d) { d.Wind(); }).When([](const TDial& d) { return d.HasSpring(); }),
//   };
//
// An action takes the component and, when it wants them, the designer and the place among a repeated verb's
// entries. It returns whether anything was changed, or nothing when it always changes something; the
// designer's Modified is called accordingly.
#pragma once
#include <concepts>

#include "designintf/ComponentEditor.h"
#include "rtl/PropAccess.h"

// What a flag's caption says after its name.
extern const char* const BoolStr[2];
// Whether the component takes its value from a data source: the class name says so.
bool VRXCPIsDBControl(const TComponent& component);

template <class T>
class VerbOf {
 public:
  // A caption without an action: "-" makes a separator.
  VerbOf(const char* caption) : VerbOf(caption, [](T&) { return false; }) {}
  template <class C, class F>
  VerbOf(C caption, F action)
      : caption_([caption](const T& c, int item) { return CaptionOf(caption, c, item); }),
        action_([action](T& c, IDesigner* designer, int item) { return Run(action, c, designer, item); }) {}

  // Only in the menu while the component says so.
  VerbOf When(std::function<bool(const T&)> condition) && {
    return std::move(*this).Times([condition](const T& c) { return condition(c) ? 1 : 0; });
  }
  // Not to be chosen while there is a reason; empty for none.
  VerbOf Unless(std::function<QString(const T&)> reason) && {
    reason_ = std::move(reason);
    return std::move(*this);
  }
  // So many entries, one behind the other.
  VerbOf Times(std::function<int(const T&)> count) && {
    count_ = std::move(count);
    return std::move(*this);
  }
  // Data-aware components show this instead, and nothing is done.
  VerbOf DataAware(const char* text) && {
    unavailable_ = text;
    return std::move(*this);
  }

  int Count(const T& c) const { return count_ ? count_(c) : 1; }
  QString Caption(const T& c, int item) const {
    return Available(c) ? caption_(c, item) : QString::fromUtf8(unavailable_);
  }
  // Why it cannot be done now; empty when it can.
  QString Problem(const T& c) const {
    if (!Available(c)) return QObject::tr("%1 has this from its data source").arg(c.Name());
    return reason_ ? reason_(c) : QString();
  }
  // Whether the component was changed.
  bool Execute(T& c, IDesigner* designer, int item) const {
    return Problem(c).isEmpty() && action_(c, designer, item);
  }

 private:
  static QString TextOf(const char* text) { return QString::fromUtf8(text); }
  static QString TextOf(const QString& text) { return text; }
  template <class C>
  static QString CaptionOf(const C& caption, const T& c, int item) {
    if constexpr (std::invocable<const C&, const T&>)
      return TextOf(caption(c));
    else if constexpr (std::invocable<const C&, const T&, int>)
      return TextOf(caption(c, item));
    else
      return TextOf(caption);
  }
  template <class F, class... A>
  static bool Changes(const F& action, A&... arguments) {
    if constexpr (std::same_as<std::invoke_result_t<const F&, A&...>, bool>) {
      return action(arguments...);
    } else {
      action(arguments...);
      return true;
    }
  }
  template <class F>
  static bool Run(const F& action, T& c, IDesigner* designer, int item) {
    if constexpr (std::invocable<const F&, T&>)
      return Changes(action, c);
    else if constexpr (std::invocable<const F&, T&, IDesigner&>)
      return designer && Changes(action, c, *designer);
    else
      return designer && Changes(action, c, *designer, item);
  }
  bool Available(const T& c) const { return !unavailable_ || !VRXCPIsDBControl(c); }

  std::function<QString(const T&, int)> caption_;
  std::function<bool(T&, IDesigner*, int)> action_;
  std::function<int(const T&)> count_;  // none: one
  std::function<QString(const T&)> reason_;
  const char* unavailable_ = nullptr;
};

// The action that opens a launcher on a part of the component.
template <class Part, class Launcher, class... A>
auto Launch(Part part, Launcher launcher, A... arguments) {
  return [=](auto& c) { return launcher(*std::invoke(part, c), arguments...); };
}

// A Boolean property, or an element of a set, as a caption and an action. A property that the class does not
// have is refused with EPropertyError.
struct TFlagVerb {
  const char* Name;
  const char* Property;
  int Element = -1;  // of a set
  const char* const* Texts = BoolStr;

  QString Caption(const TPersistent& instance) const;
  void Toggle(TPersistent& instance) const;
};

// Whether the table's verbs stand before or behind the base editor's.
enum class TOwnVerbs : std::uint8_t { First, Last };

template <class T, class Base = TComponentEditor, TOwnVerbs Order = TOwnVerbs::First>
class TVerbEditor : public Base {
 public:
  using Verb = VerbOf<T>;
  using Verbs = std::vector<Verb>;

  int GetVerbCount() const override { return OwnCount() + Base::GetVerbCount(); }
  QString GetVerb(int index) const override {
    const Place place = At(index);
    return place.verb ? place.verb->Caption(*Subject(), place.item) : Base::GetVerb(BaseIndex(index));
  }
  QString GetVerbProblem(int index) const override {
    const Place place = At(index);
    return place.verb ? place.verb->Problem(*Subject()) : Base::GetVerbProblem(BaseIndex(index));
  }
  void ExecuteVerb(int index) override {
    const Place place = At(index);
    if (!place.verb) return Base::ExecuteVerb(BaseIndex(index));
    IDesigner* const designer = this->GetDesigner();
    if (place.verb->Execute(*Subject(), designer, place.item) && designer) designer->Modified();
  }

 protected:
  TVerbEditor(TComponent* component, IDesigner* designer, const Verbs& table)
      : Base(component, designer), table_(table) {}

  // What tables are written with. A name with a blank at its end, or of another property, says which it is.
  static Verb Flag(const char* name, const char* property = nullptr) {
    return FlagVerb({name, property ? property : name});
  }
  static Verb ElementFlag(const char* name, const char* set, int element) {
    return FlagVerb({name, set, element});
  }
  // "Name [True]" and "Name [False]".
  static Verb BracketFlag(const char* name, const char* property = nullptr) {
    static const char* const texts[] = {" [False]", " [True]"};
    return FlagVerb({name, property ? property : name, -1, texts});
  }

 private:
  struct Place {
    const Verb* verb = nullptr;
    int item = 0;
  };
  static Verb FlagVerb(TFlagVerb flag) {
    return {[flag](const T& c) { return flag.Caption(c); }, [flag](T& c) { flag.Toggle(c); }};
  }
  // A component of another class has none of the table's verbs.
  T* Subject() const { return dynamic_cast<T*>(this->GetComponent()); }
  int OwnCount() const {
    int count = 0;
    if (const T* subject = Subject())
      for (const Verb& verb : table_) count += verb.Count(*subject);
    return count;
  }
  Place At(int index) const {
    int item = index - (Order == TOwnVerbs::First ? 0 : Base::GetVerbCount());
    const T* subject = Subject();
    if (item < 0 || !subject) return {};
    for (const Verb& verb : table_) {
      const int count = verb.Count(*subject);
      if (item < count) return {&verb, item};
      item -= count;
    }
    return {};
  }
  int BaseIndex(int index) const {
    return Order == TOwnVerbs::First && index >= 0 ? index - OwnCount() : index;
  }

  const Verbs& table_;
};

// A whole editor: its name, the class it edits and, when it is not TComponentEditor, its base.
#define VRX_VERB_EDITOR(Editor, ...)               \
  class Editor : public TVerbEditor<__VA_ARGS__> { \
    VRX_VERB_TABLE(Editor)                         \
  }
// The same for a class that has more to say.
#define VRX_VERB_TABLE(Editor)                                                      \
 public:                                                                            \
  Editor(TComponent* component, IDesigner* d) : TVerbEditor(component, d, Table) {} \
  static const Verbs Table;
