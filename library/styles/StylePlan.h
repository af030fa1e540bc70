// What a style comes to for components of one class: names are looked up and values converted once, however
// many components take it.
#pragma once
#include <optional>
#include <vector>

#include "library/styles/Styles.h"
#include "rtl/Component.h"

// A value that did not fit: which style says it, of which property, and why not.
struct TVRXStyleMisfit {
  QString Style, Property, Reason;
  // "Style .Header, Font.Color: ..."
  QString Text() const;
};

class TVRXStylePlan {
 public:
  // With `cascade` the styles above it, too, the furthest first: what a nearer one says of a property counts.
  TVRXStylePlan(const TVRXStyles& styles, const TClass& cls, const QString& path, bool cascade);

  // As one change of the component, in the order in which a form file would set the properties. A value that
  // does not fit is left out, and that of a style above it counts.
  std::vector<TVRXStyleMisfit> Apply(TComponent& component) const { return Run(component, {}); }
  // The same for one part of the component, given as an object of the part's class ("Font").
  std::vector<TVRXStyleMisfit> ApplyToPart(TPersistent& part, const QByteArray& property) const;
  // Whether it sets the property or a part of it, and to what an ordinal one.
  bool Sets(const QByteArray& property) const;
  std::optional<std::int64_t> OrdinalOf(const QByteArray& property) const;

 private:
  struct Candidate {
    const QString* Style;
    TPropValue Value;
    bool ByName = false;  // a reference, looked up where the component stands
  };
  struct Step {
    QString Name;
    std::vector<int> Order;  // places among the published properties
    std::vector<const TPropInfo*> Path;
    std::vector<Candidate> Candidates;  // the nearest style's first
  };
  void Add(const TClass& cls, const QString& style, const TVRXStyleKey& key, const TVRXStyleValue& value);
  std::vector<TVRXStyleMisfit> Run(TPersistent& object, const QByteArray& inside) const;

  QStringList line_;
  std::vector<Step> steps_;
  std::vector<TVRXStyleMisfit> misfits_;  // of every component of the class
};

// What the component has now, as a style would keep it; nothing for what styles cannot keep.
std::optional<TVRXStyleValue> VRXStyleValueOf(const TComponent& component, const QString& propertyPath);
