#include "library/styles/StylePlan.h"

#include "rtl/Exceptions.h"
#include "rtl/PropAccess.h"
#include "rtl/PropText.h"

namespace {
QString Latin(const QByteArray& text) { return QString::fromLatin1(text); }
[[noreturn]] void Misfit(const QString& why) { throw EPropertyError(why); }

// What the value object streams as its bytes ("Data" of a picture); null when it has nothing like that.
const TPropInfo* DataOf(const TClass& cls) {
  for (const TPropInfo* prop : cls.Properties())
    if (prop->Is<QByteArray>()) return prop;
  return nullptr;
}

std::int64_t Ordinal(const TPropInfo& prop, const TVRXStyleValue& value) {
  const TTypeInfo& type = *prop.PropType;
  std::int64_t ordinal = 0;
  if (const auto* number = std::get_if<std::int64_t>(&value)) {
    ordinal = *number;
    if (ordinal < type.MinValue || ordinal > type.MaxValue)
      Misfit(QStringLiteral("%1 is outside of %2 to %3").arg(ordinal).arg(type.MinValue).arg(type.MaxValue));
  } else if (const auto* text = std::get_if<QString>(&value)) {
    if (type.Kind == TTypeKind::tkChar && text->size() <= 1)
      ordinal = text->isEmpty() ? 0 : text->front().unicode();
    else
      ordinal = TextToOrd(type, *text);
  } else {
    Misfit(QStringLiteral("%1 is kept as a number or a text").arg(Latin(type.Name)));
  }
  return ordinal;
}

TPropValue Converted(const TPropInfo& prop, const TVRXStyleValue& value) {
  if (prop.IsOrdinal()) return Ordinal(prop, value);
  if (prop.Is<long double>()) {
    if (const auto* number = std::get_if<long double>(&value)) return *number;
    if (const auto* number = std::get_if<std::int64_t>(&value)) return static_cast<long double>(*number);
  }
  if (const auto* text = std::get_if<QString>(&value); text && (prop.Is<QString>() || prop.Is<TReference>()))
    return *text;
  if (const auto* bytes = std::get_if<QByteArray>(&value); bytes && prop.Is<QByteArray>()) return *bytes;
  Misfit(QStringLiteral("%1 is not kept in this way").arg(Latin(prop.PropType->Name)));
}

// Where a control stands comes behind what may change its size.
int PlaceOf(const TClass& cls, const TPropInfo& prop) {
  static constexpr const char* bounds[] = {"Left", "Top", "Width", "Height", "ClientWidth", "ClientHeight"};
  const auto& all = cls.Properties();
  const bool last = std::find(std::begin(bounds), std::end(bounds), prop.Name) != std::end(bounds);
  return static_cast<int>(std::find(all.begin(), all.end(), &prop) - all.begin() + (last ? all.size() : 0));
}
}  // namespace

QString TVRXStyleMisfit::Text() const {
  return QStringLiteral("Style %1, %2: %3").arg(Style, Property, Reason);
}

TVRXStylePlan::TVRXStylePlan(const TVRXStyles& styles, const TClass& cls, const QString& path, bool cascade)
    : line_(cascade ? VRXStyleLine(path) : QStringList{path}) {
  for (auto style = line_.crbegin(); style != line_.crend(); ++style)
    if (const auto* values = styles.Find(*style))
      for (const auto& [key, value] : *values) try {
          if (key.Name != QStringLiteral("_StyleKind")) Add(cls, *style, key, value);
        } catch (const Exception& e) {
          misfits_.push_back({*style, key.Name, e.Message()});
        }
  std::stable_sort(steps_.begin(), steps_.end(),
                   [](const Step& a, const Step& b) { return a.Order < b.Order; });
}

void TVRXStylePlan::Add(const TClass& cls, const QString& style, const TVRXStyleKey& key,
                        const TVRXStyleValue& value) {
  Step step{key.Name, {}, {}, {}};
  const TClass* at = &cls;
  const QStringList names = key.Name.split(u'.');
  for (const QString& name : names) {
    const TPropInfo* prop = at->FindProp(name.toLatin1());
    if (!prop || prop->Visibility != TPropVisibility::Published)
      Misfit(QStringLiteral("%1 has no property %2").arg(Latin(at->ClassName()), name));
    step.Order.push_back(PlaceOf(*at, *prop));
    step.Path.push_back(prop);
    if (step.Path.size() == static_cast<std::size_t>(names.size())) break;
    if (!prop->IsPart()) Misfit(QStringLiteral("%1 has no parts of its own").arg(name));
    at = &prop->PropType->ClassType();
  }
  const TPropInfo* last = step.Path.back();
  if (last->PropType->Name.compare(key.TypeName.toLatin1(), Qt::CaseInsensitive) != 0)
    Misfit(QStringLiteral("its type is %1 here, not %2").arg(Latin(last->PropType->Name), key.TypeName));
  if (last->IsEvent()) Misfit(QStringLiteral("events are nothing of a style"));
  if (names.size() == 1 && last->Name == "Name") Misfit(QStringLiteral("names are a component's own"));
  if (last->IsPart()) {
    last = DataOf(last->PropType->ClassType());
    if (!last) Misfit(QStringLiteral("%1 has no data").arg(key.TypeName));
    step.Path.push_back(last);
  }
  if (!last->IsWritable()) Misfit(QStringLiteral("it is read-only"));
  step.Candidates.push_back({&style, Converted(*last, value), last->Is<TReference>()});
  for (Step& same : steps_)
    if (same.Path == step.Path) {
      same.Candidates.push_back(std::move(step.Candidates.front()));
      return;
    }
  steps_.push_back(std::move(step));
}

bool TVRXStylePlan::Sets(const QByteArray& property) const {
  return std::any_of(steps_.begin(), steps_.end(),
                     [&](const Step& step) { return step.Path.front()->Name == property; });
}
std::optional<std::int64_t> TVRXStylePlan::OrdinalOf(const QByteArray& property) const {
  for (const Step& step : steps_)
    if (step.Path.size() == 1 && step.Path.front()->Name == property && step.Path.front()->IsOrdinal())
      return std::get<std::int64_t>(step.Candidates.front().Value);
  return {};
}

std::vector<TVRXStyleMisfit> TVRXStylePlan::ApplyToPart(TPersistent& part, const QByteArray& property) const {
  return Run(part, property);
}

std::vector<TVRXStyleMisfit> TVRXStylePlan::Run(TPersistent& object, const QByteArray& inside) const {
  std::vector<TVRXStyleMisfit> misfits = inside.isEmpty() ? misfits_ : std::vector<TVRXStyleMisfit>();
  const TUpdateLock lock(object);
  for (const Step& step : steps_) {
    std::size_t from = 0;
    if (!inside.isEmpty()) {
      if (step.Path.size() < 2 || step.Path.front()->Name != inside) continue;
      from = 1;
    }
    TPersistent* at = &object;
    for (std::size_t i = from; at && i + 1 < step.Path.size(); ++i) at = GetObjectProp(*at, *step.Path[i]);
    for (const Candidate& candidate : step.Candidates) try {
        if (!at) Misfit(QStringLiteral("the component has no such part"));
        if (candidate.ByName)
          SetPropText(*at, *step.Path.back(), std::get<QString>(candidate.Value));
        else
          SetProp(*at, *step.Path.back(), candidate.Value);
        break;
      } catch (const Exception& e) {
        misfits.push_back({*candidate.Style, step.Name, e.Message()});
      }
  }
  return misfits;
}

std::optional<TVRXStyleValue> VRXStyleValueOf(const TComponent& component, const QString& propertyPath) {
  const TPersistent* at = &component;
  const QStringList names = propertyPath.split(u'.');
  for (qsizetype i = 0; i < names.size(); ++i) {
    const TPropInfo* prop = at->ClassType().FindProp(names[i].toLatin1());
    if (!prop) return {};
    if (i + 1 < names.size()) {
      if (!prop->IsPart() || !(at = GetObjectProp(*at, *prop))) return {};
      continue;
    }
    if (prop->IsPart()) {
      const TPersistent* part = GetObjectProp(*at, *prop);
      const TPropInfo* data = part ? DataOf(part->ClassType()) : nullptr;
      const QByteArray bytes = data ? GetBinaryProp(*part, *data) : QByteArray();
      return bytes.isEmpty() ? std::nullopt : std::optional<TVRXStyleValue>(bytes);
    }
    if (prop->Kind() == TTypeKind::tkChar) {
      const auto code = static_cast<char16_t>(GetOrdProp(*at, *prop));
      return code ? QString(QChar(code)) : QString();
    }
    if (prop->Kind() == TTypeKind::tkSet) return GetPropText(*at, *prop);
    if (prop->IsOrdinal()) return GetOrdProp(*at, *prop);
    if (prop->Is<long double>()) return GetFloatProp(*at, *prop);
    if (prop->Is<QString>()) return GetStrProp(*at, *prop);
  }
  return {};
}
