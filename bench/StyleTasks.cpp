#include "bench/StyleTasks.h"

#include <QCoreApplication>
#include <QTreeWidget>

#include "bench/Measure.h"
#include "dclstd/StandardEditors.h"
#include "designintf/DesignRegistry.h"
#include "library/styles/StyleManager.h"
#include "package/styles/StyleRegistry.h"
#include "package/styles/pVRXStyleManProp.h"
#include "rtl/ClassRegistry.h"
#include "vcl/Edit.h"
#include "vcl/Form.h"

namespace {
std::unique_ptr<TForm> FormOf(int components, int classes) {
  std::vector<const TClass*> makeable;
  for (const TClass* cls : RegisteredClasses())
    if (!cls->IsAbstract() && cls->InheritsFrom(TComponent::StaticClass()) &&
        !cls->InheritsFrom(TForm::StaticClass()) && makeable.size() < static_cast<std::size_t>(classes))
      makeable.push_back(cls);
  if (makeable.size() < static_cast<std::size_t>(classes))
    qFatal("There are only %zu classes", makeable.size());
  auto form = std::make_unique<TForm>(nullptr);
  for (int i = 0; i < components; ++i)
    makeable[static_cast<std::size_t>(i) % makeable.size()]->NewComponent(form.get());
  return form;
}

// What registering has to look at: name, kind and type of each.
std::size_t Walk(const TForm& form) {
  std::size_t sum = 0;
  for (const TComponent* component : form.Components())
    for (const TPropInfo* prop : component->ClassType().Properties())
      if (prop->Visibility == TPropVisibility::Published)
        sum += static_cast<std::size_t>(prop->Name.size() + prop->PropType->Name.size()) +
               static_cast<std::size_t>(prop->Kind());
  return sum;
}

void Registering() {
  const auto form = FormOf(5'000, 60);
  Pairs pairs;
  volatile std::size_t sink = 0;
  constexpr int Rounds = 15;
  for (int i = 0; i < Rounds; ++i) {
    TVRXPropList list;
    for (const char* name : VRXExcludedStyleProperties()) list.ExcludeProperty(QString::fromLatin1(name));
    const Stopwatch ours;
    RegisterStyleMgrForm(*form, nullptr, list);
    const double time = ours.Elapsed();
    sink = sink + static_cast<std::size_t>(list.GetCount());
    const Stopwatch walk;
    sink = sink + Walk(*form);
    pairs.Add(time, walk.Elapsed());
  }
  Report("register", pairs);
}

std::unique_ptr<TForm> Fields() {
  auto form = std::make_unique<TForm>(nullptr);
  for (int i = 0; i < 10'000; ++i) new TEdit(form.get());
  return form;
}

void Applying() {
  TVRXStyleManager manager(nullptr);
  const QString path = QStringLiteral("TEdit"), integer = QStringLiteral("Integer"),
                color = QStringLiteral("TColor"), hint = QStringLiteral("A hint");
  const auto write = [&](const char* name, TVRXStyleValue value, const QString& type) {
    manager.WritePropValue(path, QString::fromLatin1(name), std::move(value), type);
  };
  write("Color", std::int64_t{0xFF}, color);
  write("MaxLength", std::int64_t{12}, integer);
  write("Hint", hint, QStringLiteral("string"));
  write("ShowHint", std::int64_t{1}, QStringLiteral("Boolean"));
  write("Font.Color", std::int64_t{0xFF00}, color);
  write("Font.Height", std::int64_t{-20}, integer);
  Pairs pairs;
  constexpr int Rounds = 15;
  for (int i = 0; i < Rounds; ++i) {
    const auto ours = Fields(), plain = Fields();
    const Stopwatch styled;
    std::size_t misfits = 0;
    for (TComponent* component : ours->Components()) misfits += manager.ApplyStyle(*component, path).size();
    const double time = styled.Elapsed();
    if (misfits > 0) qFatal("The style does not fit");
    const Stopwatch direct;
    for (TComponent* component : plain->Components()) {
      auto& edit = static_cast<TEdit&>(*component);
      const TUpdateLock lock(edit);
      edit.SetColor(TColor(0xFF));
      edit.Set(TEdit::MaxLength, 12);
      edit.SetHint(hint);
      edit.SetShowHint(true);
      edit.Font()->SetColor(TColor(0xFF00));
      edit.Font()->SetHeight(-20);
    }
    pairs.Add(time, direct.Elapsed());
  }
  Report("apply", pairs);
}

// The editor on 1,000 styles of 20 values, all in sight of the tree, and a tree of as many plain items.
void Opening() {
  constexpr int Styles = 1000, Values = 20;
  TVRXStyleManager manager(nullptr);
  TVRXStyles styles;
  for (int i = 0; i < Styles; ++i)
    for (int k = 0; k < Values; ++k)
      styles.Write(QStringLiteral(".Style%1").arg(i),
                   {QStringLiteral("Value%1").arg(k), QStringLiteral("Integer")}, std::int64_t{k});
  manager.SetStyles(styles);
  const auto open = [&] {
    TfrmVRXStyleManProp dialog(nullptr);
    dialog.SetData(manager);
    dialog.show();
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
  };
  const auto fill = [] {
    QTreeWidget tree;
    tree.setColumnCount(2);
    QList<QTreeWidgetItem*> items;
    for (int i = 0; i < Styles; ++i) {
      items << new QTreeWidgetItem({QStringLiteral(".Style%1").arg(i)});
      for (int k = 0; k < Values; ++k)
        new QTreeWidgetItem(items.back(), {QStringLiteral("Value%1").arg(k), QString::number(k)});
    }
    tree.addTopLevelItems(items);
    tree.show();
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
  };
  open(), fill();
  Pairs pairs;
  constexpr int Rounds = 7;
  for (int i = 0; i < Rounds; ++i) {
    const Stopwatch ours;
    open();
    const double time = ours.Elapsed();
    const Stopwatch plain;
    fill();
    pairs.Add(time, plain.Elapsed());
  }
  Report("open", pairs);
}
}  // namespace

void MeasureStyles(const QString&, const QString&) {
  static auto& registry = *new DesignRegistry;
  RegisterStandard(registry);
  Registering();
  Applying();
  Opening();
}
