#include "package/styles/StyleEditors.h"

#include <QtWidgets>
#include <cfloat>

#include "dclstd/ColorComboBox.h"
#include "dclstd/SpinEdit.h"
#include "rtl/Clock.h"
#include "rtl/DateText.h"

namespace {
// Goes with its editor. An editor over no value shows one all the same; that is the person's only after they
// have typed or chosen something.
class Reader : public QObject {
 public:
  Reader(QWidget* editor, std::function<TVRXStyleValue()> readFrom, bool isStored)
      : QObject(editor), read(std::move(readFrom)), shown(read()), stored(isStored) {}
  const std::function<TVRXStyleValue()> read;
  const TVRXStyleValue shown;
  const bool stored;
  bool touched = false;
};

std::int64_t IntegerIn(const TVRXStyleValue* value) {
  const auto* number = value ? std::get_if<std::int64_t>(value) : nullptr;
  return number ? *number : 0;
}
long double FloatIn(const TVRXStyleValue* value) {
  const auto* number = value ? std::get_if<long double>(value) : nullptr;
  return number ? *number : static_cast<long double>(IntegerIn(value));
}
QString TextIn(const TVRXStyleValue* value) {
  const auto* text = value ? std::get_if<QString>(value) : nullptr;
  return text ? *text : QString();
}

// --- Numbers

// Any float, in as few digits as tell it from all others; an exponent can be typed.
class ExactSpin : public QDoubleSpinBox {
 public:
  explicit ExactSpin(QWidget* parent) : QDoubleSpinBox(parent) {
    constexpr int all = 323;
    setDecimals(all);
    setRange(-DBL_MAX, DBL_MAX);
  }

 protected:
  QString textFromValue(double value) const override {
    return locale().toString(value, 'g', QLocale::FloatingPointShortest);
  }
  double valueFromText(const QString& text) const override { return locale().toDouble(text); }
  QValidator::State validate(QString& text, int&) const override {
    static const QRegularExpression part(QStringLiteral("^\\s*[+-]?[\\d.,\\s]*([eE][+-]?\\d*)?\\s*$"));
    bool isNumber = false;
    locale().toDouble(text, &isNumber);
    return isNumber                      ? QValidator::Acceptable
           : part.match(text).hasMatch() ? QValidator::Intermediate
                                         : QValidator::Invalid;
  }
};

// Integers that have more than 31 bits. What is too large becomes the largest.
class WideSpin : public QDoubleSpinBox {
 public:
  explicit WideSpin(QWidget* parent) : QDoubleSpinBox(parent) { setDecimals(0); }

 protected:
  double valueFromText(const QString& text) const override { return text.toDouble(); }
  QValidator::State validate(QString& text, int&) const override {
    static const QRegularExpression whole(QStringLiteral("^-?\\d+$"));
    return whole.match(text).hasMatch()     ? QValidator::Acceptable
           : text.isEmpty() || text == u'-' ? QValidator::Intermediate
                                            : QValidator::Invalid;
  }
  QString textFromValue(double value) const override {
    return QString::number(static_cast<std::int64_t>(value));
  }
};

// --- Sets

// A list that stays open while its entries are checked.
class SetCombo : public QComboBox {
 public:
  SetCombo(const QStringList& elements, const QStringList& checked, QWidget* parent)
      : QComboBox(parent), elements_(elements) {
    setEditable(true);
    setInsertPolicy(NoInsert);
    lineEdit()->setReadOnly(true);
    auto* items = new QStandardItemModel(this);
    for (const QString& element : elements) {
      auto* item = new QStandardItem(element);
      item->setFlags(Qt::ItemIsUserCheckable | Qt::ItemIsEnabled | Qt::ItemIsSelectable);
      item->setCheckState(checked.contains(element, Qt::CaseInsensitive) ? Qt::Checked : Qt::Unchecked);
      items->appendRow(item);
    }
    setModel(items);
    // None is the current one: what is shown are all that are checked.
    setCurrentIndex(-1);
    connect(items, &QStandardItemModel::itemChanged, this, [this] { ShowText(); });
    connect(this, &QComboBox::currentIndexChanged, this, [this] {
      const QSignalBlocker quiet(this);
      setCurrentIndex(-1);
      ShowText();
    });
    view()->viewport()->installEventFilter(this);
    ShowText();
  }
  QString Text() const {
    const auto* items = static_cast<const QStandardItemModel*>(model());
    QStringList checked;
    for (int i = 0; i < items->rowCount(); ++i)
      if (items->item(i)->checkState() == Qt::Checked) checked << items->item(i)->text();
    return VRXSetText(elements_, checked);
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == view()->viewport() && event->type() == QEvent::MouseButtonRelease) {
      const QModelIndex at = view()->indexAt(static_cast<QMouseEvent*>(event)->pos());
      if (at.isValid())
        model()->setData(at, at.data(Qt::CheckStateRole).toInt() == Qt::Checked ? Qt::Unchecked : Qt::Checked,
                         Qt::CheckStateRole);
      return true;
    }
    return QComboBox::eventFilter(watched, event);
  }

 private:
  void ShowText() { lineEdit()->setText(Text()); }
  QStringList elements_;
};
QStringList ElementsOf(const TTypeInfo* type) {
  QStringList names;
  if (type && type->CompType) type = type->CompType;
  if (type)
    for (const QByteArray& name : type->Elements) names << QString::fromLatin1(name);
  return names;
}

// --- One function an editor

using Read = std::function<TVRXStyleValue()>;
struct Made {
  QWidget* widget;
  Read read;
};

Made MakeColor(const TTypeInfo*, const TVRXStyleValue* value, QWidget* parent) {
  auto* combo = new ColorComboBox(parent);
  if (value) combo->SetSelected(TColor(static_cast<std::uint32_t>(IntegerIn(value))));
  return {combo, [combo] { return static_cast<std::int64_t>(static_cast<std::int32_t>(combo->Selected())); }};
}
Made MakeWideSpin(const TTypeInfo& type, const TVRXStyleValue* value, QWidget* parent) {
  auto* edit = new WideSpin(parent);
  edit->setRange(static_cast<double>(type.MinValue), static_cast<double>(type.MaxValue));
  edit->setValue(static_cast<double>(IntegerIn(value)));
  return {edit, [edit] {
            edit->interpretText();
            return static_cast<std::int64_t>(edit->value());
          }};
}
Made MakeSpin(const TTypeInfo* type, const TVRXStyleValue* value, QWidget* parent) {
  if (type && type->MaxValue > INT32_MAX) return MakeWideSpin(*type, value, parent);
  auto* edit = new SpinEdit(parent);
  const auto limit = [](std::int64_t v) {
    return static_cast<int>(std::clamp<std::int64_t>(v, INT32_MIN, INT32_MAX));
  };
  constexpr int longest = 11;
  edit->SetLimits(type ? limit(type->MinValue) : INT32_MIN, type ? limit(type->MaxValue) : INT32_MAX,
                  longest);
  edit->Show(limit(IntegerIn(value)));
  return {edit, [edit] {
            edit->EndTyping();
            return std::int64_t{edit->Shown()};
          }};
}
Made MakeEdit(const TTypeInfo*, const TVRXStyleValue* value, QWidget* parent) {
  auto* edit = new QLineEdit(parent);
  edit->setMaxLength(INT_MAX);
  edit->setText(TextIn(value));
  return {edit, [edit] { return edit->text(); }};
}
Made MakeList(const TTypeInfo* type, const TVRXStyleValue* value, QWidget* parent) {
  auto* combo = new QComboBox(parent);
  combo->addItems(ElementsOf(type));
  const std::int64_t ordinal = IntegerIn(value);
  combo->setCurrentIndex(ordinal >= 0 && ordinal < combo->count() ? static_cast<int>(ordinal) : -1);
  return {combo, [combo] { return std::int64_t{combo->currentIndex()}; }};
}
Made MakeCalendar(const TTypeInfo*, const TVRXStyleValue* value, QWidget* parent) {
  auto* edit = new QDateTimeEdit(parent);
  edit->setTimeSpec(Qt::UTC);
  edit->setCalendarPopup(true);
  edit->setDisplayFormat(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
  // Day and time as they are, wherever the clocks go.
  const auto utc = [](const QDateTime& moment) { return QDateTime(moment.date(), moment.time(), Qt::UTC); };
  edit->setDateTime(utc(value ? SplitDateTime({static_cast<double>(FloatIn(value))})
                              : QDateTime(ClockDateTime().date(), QTime(0, 0))));
  return {edit, [edit] { return static_cast<long double>(JoinDateTime(edit->dateTime()).Days); }};
}
Made MakeFloat(const TTypeInfo*, const TVRXStyleValue* value, QWidget* parent) {
  auto* edit = new ExactSpin(parent);
  edit->setValue(static_cast<double>(FloatIn(value)));
  return {edit, [edit] {
            edit->interpretText();
            return static_cast<long double>(edit->value());
          }};
}
Made MakeChecks(const TTypeInfo* type, const TVRXStyleValue* value, QWidget* parent) {
  QStringList checked;
  for (const QString& name : TextIn(value).remove(u'[').remove(u']').split(u',')) checked << name.trimmed();
  auto* combo = new SetCombo(ElementsOf(type), checked, parent);
  return {combo, [combo] { return combo->Text(); }};
}

struct EditorRow {
  TVRXStyleEditor kind;
  Made (*make)(const TTypeInfo*, const TVRXStyleValue*, QWidget*);
};
using enum TVRXStyleEditor;
constexpr EditorRow Editors[] = {
    {ColorCombo, MakeColor},       {Spin, MakeSpin},       {Edit, MakeEdit},        {ListCombo, MakeList},
    {CalendarCombo, MakeCalendar}, {FloatSpin, MakeFloat}, {CheckCombo, MakeChecks}};
}  // namespace

QWidget* VRXNewValueEditor(TVRXStyleEditor kind, const TTypeInfo* type, const TVRXStyleValue* value,
                           QWidget* parent) {
  for (const EditorRow& row : Editors) {
    if (row.kind != kind) continue;
    const Made made = row.make(type, value, parent);
    new Reader(made.widget, made.read, value != nullptr);
    made.widget->setAutoFillBackground(true);
    return made.widget;
  }
  return nullptr;
}

namespace {
Reader* ReaderOf(const QWidget& editor) {
  for (QObject* child : editor.children())
    if (auto* reader = dynamic_cast<Reader*>(child)) return reader;
  return nullptr;
}
}  // namespace

std::optional<TVRXStyleValue> VRXEditedValue(const QWidget& editor) {
  const Reader* reader = ReaderOf(editor);
  if (!reader) return {};
  TVRXStyleValue value = reader->read();
  if (reader->shown == value && (reader->stored || !reader->touched)) return {};
  // An entry of a list that nobody has chosen yet is no value.
  if (const auto* list = qobject_cast<const QComboBox*>(&editor);
      list && value == TVRXStyleValue(std::int64_t{-1}) && !qobject_cast<const ColorComboBox*>(&editor))
    return {};
  return value;
}

void VRXTouch(const QWidget& editor) {
  if (Reader* reader = ReaderOf(editor)) reader->touched = true;
}

void VRXWhenChosen(QWidget& editor, const std::function<void()>& choose) {
  const auto chosen = [&editor, choose] {
    VRXTouch(editor);
    choose();
  };
  if (auto* color = qobject_cast<ColorComboBox*>(&editor))
    QObject::connect(color, &ColorComboBox::Change, color, chosen);
  else if (auto* combo = qobject_cast<QComboBox*>(&editor); combo && !combo->isEditable())
    QObject::connect(combo, &QComboBox::activated, combo, chosen);
}
