#include "dclstd/RowKinds.h"

#include <QCheckBox>
#include <QLineEdit>
#include <climits>

#include "dclstd/ColorComboBox.h"
#include "dclstd/SpinEdit.h"
#include "rtl/Exceptions.h"
#include "rtl/IntegerConsts.h"
#include "rtl/PropAccess.h"

namespace {
// A number that the type has no room for loses what is too much of it.
std::int64_t Wrapped(std::int64_t value, const TTypeInfo& type) {
  const std::int64_t room = type.MaxValue - type.MinValue + 1;
  const std::int64_t rest = (value - type.MinValue) % room;
  return type.MinValue + (rest < 0 ? rest + room : rest);
}

struct Spin {
  using Control = SpinEdit;
  static void Prepare(SpinEdit& edit, const TTypeInfo& type) {
    const auto length = [](std::int64_t number) { return QString::number(number).size(); };
    edit.SetLimits(static_cast<int>(type.MinValue), static_cast<int>(type.MaxValue),
                   static_cast<int>(std::max(length(type.MinValue), length(type.MaxValue))));
  }
  static void Load(SpinEdit& edit, const TPersistent& value, const RowProperty& property) {
    edit.Show(static_cast<int>(GetOrdProp(value, *property.Info)));
  }
  static void Write(const SpinEdit& edit, TPersistent& value, const RowProperty& property) {
    SetOrdProp(value, *property.Info, Wrapped(edit.value(), *property.Info->PropType));
  }
  static void Watch(SpinEdit& edit, const std::function<void()>& changed) {
    QObject::connect(&edit, &QSpinBox::valueChanged, &edit, changed);
  }
};

struct Color {
  using Control = ColorComboBox;
  static void Prepare(ColorComboBox&, const TTypeInfo&) {}
  static void Load(ColorComboBox& combo, const TPersistent& value, const RowProperty& property) {
    combo.SetSelected(TColor(static_cast<std::uint32_t>(GetOrdProp(value, *property.Info))));
  }
  static void Write(const ColorComboBox& combo, TPersistent& value, const RowProperty& property) {
    SetOrdProp(value, *property.Info, static_cast<std::int64_t>(combo.Selected()));
  }
  static void Watch(ColorComboBox& combo, const std::function<void()>& changed) {
    QObject::connect(&combo, &ColorComboBox::Change, &combo, changed);
  }
};

// The elements of an enumeration, or the numbers of a small type that have a name.
struct List {
  using Control = QComboBox;
  static QString NameOf(std::int64_t number, const TTypeInfo& type) {
    QByteArray name;
    const TIntegerConsts* consts = FindIntegerConsts(type);
    return consts && consts->IntToIdent(number, name) ? QString::fromLatin1(name) : QString();
  }
  static void Prepare(QComboBox& combo, const TTypeInfo& type) {
    const QSignalBlocker quiet(&combo);
    for (qsizetype i = 0; i < type.Elements.size(); ++i)
      combo.addItem(QString::fromLatin1(type.Elements[i]), static_cast<qlonglong>(i));
    if (type.Kind != TTypeKind::tkInteger || type.MaxValue - type.MinValue > UINT8_MAX) return;
    for (std::int64_t number = type.MinValue; number <= type.MaxValue; ++number)
      if (const QString name = NameOf(number, type); !name.isEmpty())
        combo.addItem(name, static_cast<qlonglong>(number));
  }
  static void Load(QComboBox& combo, const TPersistent& value, const RowProperty& property) {
    const auto number = static_cast<qlonglong>(GetOrdProp(value, *property.Info));
    if (combo.findData(number) < 0) combo.addItem(QString::number(number), number);
    combo.setCurrentIndex(combo.findData(number));
  }
  static void Write(const QComboBox& combo, TPersistent& value, const RowProperty& property) {
    if (const QVariant number = combo.currentData(); number.isValid())
      SetOrdProp(value, *property.Info, number.toLongLong());
  }
  static void Watch(QComboBox& combo, const std::function<void()>& changed) {
    QObject::connect(&combo, &QComboBox::currentIndexChanged, &combo, changed);
  }
};

struct Check {
  using Control = QCheckBox;
  static std::int64_t BitOf(const RowProperty& property) {
    return std::int64_t{1} << std::max(0, property.Element);
  }
  static void Prepare(QCheckBox&, const TTypeInfo&) {}
  static void Load(QCheckBox& box, const TPersistent& value, const RowProperty& property) {
    box.setChecked((GetOrdProp(value, *property.Info) & BitOf(property)) != 0);
  }
  static void Write(const QCheckBox& box, TPersistent& value, const RowProperty& property) {
    const std::int64_t others = GetOrdProp(value, *property.Info) & ~BitOf(property);
    SetOrdProp(value, *property.Info, box.isChecked() ? others | BitOf(property) : others);
  }
  static void Watch(QCheckBox& box, const std::function<void()>& changed) {
    QObject::connect(&box, &QCheckBox::toggled, &box, changed);
  }
};

struct Text {
  using Control = QLineEdit;
  static void Prepare(QLineEdit& edit, const TTypeInfo&) { edit.setMaxLength(INT_MAX); }
  static void Load(QLineEdit& edit, const TPersistent& value, const RowProperty& property) {
    // Setting the text that is there already would move the cursor.
    if (const QString text = GetStrProp(value, *property.Info); edit.text() != text) edit.setText(text);
  }
  static void Write(const QLineEdit& edit, TPersistent& value, const RowProperty& property) {
    SetStrProp(value, *property.Info, edit.text());
  }
  static void Watch(QLineEdit& edit, const std::function<void()>& changed) {
    QObject::connect(&edit, &QLineEdit::textChanged, &edit, changed);
  }
};

template <class K>
RowKind KindOf() {
  using W = typename K::Control;
  return {&W::staticMetaObject,
          [](QWidget& control, const TTypeInfo& type) { K::Prepare(static_cast<W&>(control), type); },
          [](QWidget& control, const TPersistent& value, const RowProperty& property) {
            K::Load(static_cast<W&>(control), value, property);
          },
          [](const QWidget& control, TPersistent& value, const RowProperty& property) {
            K::Write(static_cast<const W&>(control), value, property);
          },
          [](QWidget& control, const std::function<void()>& changed) {
            K::Watch(static_cast<W&>(control), changed);
          }};
}
}  // namespace

const RowKind& RowKindOf(const QWidget& control) {
  // A colour combo is a list, too.
  static const RowKind kinds[] = {KindOf<Spin>(), KindOf<Color>(), KindOf<List>(), KindOf<Check>(),
                                  KindOf<Text>()};
  for (const RowKind& kind : kinds)
    if (control.metaObject()->inherits(kind.Control)) return kind;
  throw Exception(QStringLiteral("A row cannot show its value in a %1.")
                      .arg(QString::fromLatin1(control.metaObject()->className())));
}
