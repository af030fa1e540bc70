#include "library/styles/StyleManager.h"

#include "rtl/Exceptions.h"

const TClass& TVRXStyleManager::StaticClass() {
  using C = TVRXStyleManager;
  static const TClass cls(
      DescribeClass<C>("TVRXStyleManager", TComponent::StaticClass())
          .Streamed("Styles", &C::Lines, nullptr)
          .ClassDoc(QStringLiteral("Keeps named styles: values that controls of the form take over."),
                    "pen line 1.5 brush fill box 2.5 3.5 8 6 1.5 box 13.5 9.5 8 5 1.5 box 13.5 16.5 8 5 1.5 "
                    "brush none path 6.5 9.5 6.5 19 13.5 19 path 6.5 12 13.5 12 "
                    "pen none brush accent+50 box 4.5 5.5 4 2 0.5 box 15.5 11 4 2 0.5 "
                    "pen accent 1.5 path 15.5 19 19.5 19"));
  return cls;
}

void TVRXStyleLines::Show(const QStringList& lines) {
  showing_ = true;
  SetLines(lines);
  showing_ = false;
}
void TVRXStyleLines::DoChanging() {
  if (!showing_) TStrings::DoChanging();
}
void TVRXStyleLines::DoChanged() {
  if (!showing_) TStrings::DoChanged();
}
QString TVRXStyleLines::ContentProblem() const {
  const QString& problem = static_cast<const TVRXStyleManager*>(GetOwner())->Problem();
  return problem.isEmpty()
             ? QString()
             : QStringLiteral("the styles cannot be read and are kept as they are: %1").arg(problem);
}

TVRXStyleManager::TVRXStyleManager(TComponent* owner) : TComponent(owner) {}
TVRXStyleManager::~TVRXStyleManager() = default;

TStrings* TVRXStyleManager::Lines() const {
  if (std::exchange(linesBehind_, false)) lines_.Show(styles_.Lines());
  return &lines_;
}

void TVRXStyleManager::PartChanged(TPersistent& part) {
  if (&part == &lines_) {
    stylesBehind_ = true;
    linesBehind_ = false;
    Forget();
  }
  TComponent::PartChanged(part);
}

const TVRXStyles& TVRXStyleManager::Styles() const {
  if (std::exchange(stylesBehind_, false)) try {
      problem_.clear();
      styles_ = TVRXStyles::FromLines(lines_.Lines());
    } catch (const Exception& error) {
      styles_ = {};
      problem_ = error.Message();
    }
  return styles_;
}

const QString& TVRXStyleManager::Problem() const {
  Styles();
  return problem_;
}

// What throws does so before it changes anything.
void TVRXStyleManager::Edit(const std::function<void(TVRXStyles&)>& edit) {
  if (!Problem().isEmpty())
    throw Exception(
        QStringLiteral("The styles of %1 cannot be read and are kept as they are: %2. Load a style "
                       "file to replace them.")
            .arg(Name(), problem_));
  Changing();
  edit(styles_);
  linesBehind_ = true;
  Forget();
  Changed();
}

void TVRXStyleManager::SetStyles(const TVRXStyles& styles) {
  if (Problem().isEmpty() && styles_ == styles) return;
  Changing();
  TVRXStyles taken = styles;  // it may be a part of what is replaced
  styles_ = std::move(taken);
  problem_.clear();
  linesBehind_ = true;
  Forget();
  Changed();
}

void TVRXStyleManager::WritePropValue(const QString& stylePath, const QString& propName, TVRXStyleValue value,
                                      const QString& typeName) {
  const TVRXStyleKey key{propName, typeName};
  if (const TVRXStyleValue* now = Styles().Find(stylePath, key); now && *now == value) return;
  Edit([&](TVRXStyles& styles) { styles.Write(stylePath, key, std::move(value)); });
}

void TVRXStyleManager::GetStyleNames(QStringList& list) const {
  list.clear();
  for (const auto& [path, values] : Styles().All()) list << path;
}
void TVRXStyleManager::GetProperties(const QString& stylePath, QStringList& list) const {
  list.clear();
  if (const auto* values = Styles().Find(stylePath))
    for (const auto& [key, value] : *values) list << key.Name + u':' + key.TypeName;
}

void TVRXStyleManager::EraseProperty(const QString& stylePath, const QString& propName,
                                     const QString& typeName) {
  const TVRXStyleKey key{propName, typeName};
  if (Styles().Find(stylePath, key)) Edit([&](TVRXStyles& styles) { styles.Erase(stylePath, key); });
}
void TVRXStyleManager::EraseStyle(const QString& stylePath) {
  if (Styles().Has(stylePath)) Edit([&](TVRXStyles& styles) { styles.EraseStyle(stylePath); });
}
void TVRXStyleManager::RenameStyle(const QString& oldPath, const QString& newPath) {
  if (oldPath != newPath && Styles().Has(oldPath))
    Edit([&](TVRXStyles& styles) { styles.Rename(oldPath, newPath); });
}

void TVRXStyleManager::Forget() {
  plans_.clear();
  names_.clear();
  ++revision_;
}

QString TVRXStyleManager::PathNamed(const QString& name) const {
  if (names_.isEmpty())
    for (const auto& [path, values] : Styles().All())
      for (const QString& at : VRXStyleLine(path))  // what is above a style need not be kept itself
        if (const QString last = VRXStyleName(at); !names_.contains(last)) names_.insert(last, at);
  return names_.value(name);
}
QString TVRXStyleManager::PathOfClass(const TClass& cls) const {
  for (const TClass* at = &cls; at; at = at->ClassParent())
    if (QString path = PathNamed(QString::fromLatin1(at->ClassName())); !path.isEmpty()) return path;
  return {};
}
QString TVRXStyleManager::PathOf(const QString& base, const QString& style) const {
  if (style.isEmpty()) return {};
  for (const QString& path : {VRXStylePath(base, style), style})
    if (Styles().Has(path)) return path;
  return PathNamed(style);
}

const TVRXStylePlan& TVRXStyleManager::PlanFor(const TClass& cls, const QString& stylePath,
                                               bool cascade) const {
  const TVRXStyles& styles = Styles();
  auto& plan = plans_[{&cls, (cascade ? QStringLiteral("+") : QStringLiteral("-")) + stylePath}];
  if (!plan) plan = std::make_shared<const TVRXStylePlan>(styles, cls, stylePath, cascade);
  return *plan;
}

std::vector<TVRXStyleMisfit> TVRXStyleManager::ApplyStyle(TComponent& component, const QString& stylePath,
                                                          bool cascade) const {
  return PlanFor(component.ClassType(), stylePath, cascade).Apply(component);
}

void TVRXStyleManager::Assign(const TPersistent* source) {
  const TUpdateLock lock(*this);
  TComponent::Assign(source);
  const auto* other = As<TVRXStyleManager>(source);
  if (!other || other == this) return;
  if (other->Problem().isEmpty())
    SetStyles(other->Styles());
  else
    Lines()->SetLines(other->Lines()->Lines());
}
