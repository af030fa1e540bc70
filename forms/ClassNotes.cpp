#include "forms/ClassNotes.h"

#include "forms/PlainValues.h"
#include "rtl/PropAccess.h"

namespace forms {

namespace {
bool Same(QByteArrayView a, QByteArrayView b) {
  return a.size() == b.size() && std::memcmp(a.data(), b.data(), static_cast<std::size_t>(a.size())) == 0;
}
bool OnlyBlanks(const char* p, const char* end) { return std::all_of(p, end, IsBlank); }
// Empty for what is no name, or nothing but one.
QByteArrayView PlainName(QByteArrayView text) {
  const char *p = text.begin(), *end = text.end();
  if (!IsIdentStart(*p)) return {};
  const char* q = PlainIdent(p, end, nullptr);
  const QByteArrayView name(p, q ? q : p);
  if (!q || !OnlyBlanks(q, end) || Is(name, "nil") || Is(name, "true") || Is(name, "false")) return {};
  return name;
}
// More different strings than this in a row, and the property hardly repeats any.
constexpr int GiveUpAfter = 8;
}  // namespace

KnownProperty::KnownProperty(QByteArrayView path, const TPropInfo* holder, const PropertyTarget& target)
    : path_(path),
      holder_(holder),
      part_(&target.instance->ClassType()),
      prop_(target.prop),
      ordinal_(target.prop->IsOrdinal()) {}

PropertyTarget KnownProperty::TargetIn(TComponent& component) const {
  if (!holder_) return {&component, prop_};
  TPersistent* part = GetObjectProp(component, *holder_);
  return part && &part->ClassType() == part_ ? PropertyTarget{part, prop_} : PropertyTarget{};
}

bool KnownProperty::Apply(TPersistent& instance, QByteArrayView text) {
  if (text.isEmpty()) return false;
  if (ordinal_) return ApplyOrdinal(instance, text);
  const char *p = text.begin(), *end = text.end();
  if (prop_->Is<QString>()) {
    if (*p != '\'') return false;
    const char* q = PlainRunEnd(++p, end);
    if (q == end || !OnlyBlanks(q + 1, end)) return false;
    SetStrProp(instance, *prop_, TextOf({p, q}));
    return true;
  }
  const QByteArrayView name = prop_->IsEvent() ? PlainName(text) : QByteArrayView();
  if (name.isEmpty()) return false;
  SetMethodProp(instance, *prop_, TextOf(name));
  return true;
}

QByteArrayView KnownProperty::Referenced(QByteArrayView text) const {
  return !text.isEmpty() && IsComponentRef(*prop_) ? PlainName(text) : QByteArrayView();
}

bool KnownProperty::ApplyOrdinal(TPersistent& instance, QByteArrayView text) {
  std::int64_t value = 0;
  if (IsDigit(text[0]) || text[0] == '-') {
    if (const char* q = PlainInteger(text.begin(), text.end(), value); !q || !OnlyBlanks(q, text.end()))
      return false;
  } else {
    const auto known =
        std::find_if(ordinals_.begin(), ordinals_.end(), [&](const auto& m) { return Same(m.text, text); });
    if (known == ordinals_.end()) return false;
    value = known->value;
  }
  SetOrdProp(instance, *prop_, value);
  return true;
}

void KnownProperty::Learn(QByteArrayView text, std::int64_t ordinal) {
  if (text.isEmpty()) return;
  ordinals_[oldest_] = {text, ordinal};
  oldest_ = (oldest_ + 1) % ordinals_.size();
}

// Equal strings share their memory.
const QString& KnownProperty::TextOf(QByteArrayView ascii) {
  for (const auto& s : strings_) {
    if (!s.value.isNull() && Same(s.text, ascii)) {
      newStrings_ = 0;
      return s.value;
    }
  }
  ++newStrings_;
  if (newStrings_ < GiveUpAfter) std::swap(strings_[0], strings_[1]);
  strings_[0] = {ascii, QString::fromLatin1(ascii)};
  return strings_[0].value;
}

void ClassNotes::StepTo(std::size_t place) {
  (at_ == NoneYet ? first_ : known_[at_].next_) = place;
  at_ = place;
}

KnownProperty* ClassNotes::Find(QByteArrayView path) {
  const std::size_t likely = at_ == NoneYet ? first_ : known_[at_].next_;
  if (likely < known_.size() && Same(known_[likely].path_, path)) {
    at_ = likely;
    return &known_[likely];
  }
  for (std::size_t i = 0; i < known_.size(); ++i)
    if (Same(known_[i].path_, path)) {
      StepTo(i);
      return &known_[i];
    }
  return nullptr;
}

KnownProperty* ClassNotes::Add(QByteArrayView path, TComponent& component, const PropertyTarget& target) {
  constexpr std::size_t Enough = 256;
  if (!target.prop || known_.size() == Enough) return nullptr;
  const TPropInfo* holder = nullptr;
  if (const qsizetype point = path.indexOf('.'); point >= 0) {
    holder = component.ClassType().FindProp(path.first(point));
    if (!holder || GetObjectProp(component, *holder) != target.instance) return nullptr;
  } else if (target.instance != &component) {
    return nullptr;
  }
  known_.emplace_back(path, holder, target);
  StepTo(known_.size() - 1);
  return &known_.back();
}

}  // namespace forms
