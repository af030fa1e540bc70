#include "dclstd/DialogDescription.h"

#include <QtWidgets>

#include "rtl/PropAccess.h"
#include "vcl/ControlView.h"

namespace {
// The first one that fits. What is not here and takes no keys only holds others together.
constexpr std::pair<const char*, const char*> Kinds[] = {{"SpinEdit", "spin edit"},
                                                         {"ColorComboBox", "color combo box"},
                                                         {"QFontComboBox", "font combo box"},
                                                         {"QComboBox", "drop-down list"},
                                                         {"QCheckBox", "check box"},
                                                         {"QToolButton", "speed button"},
                                                         {"QPushButton", "button"},
                                                         {"QLineEdit", "edit"},
                                                         {"QPlainTextEdit", "memo"},
                                                         {"QListView", "list box"},
                                                         {"QTreeView", "tree"},
                                                         {"QTableView", "table"},
                                                         {"QRadioButton", "radio button"},
                                                         {"QGroupBox", "group box"},
                                                         {"QSlider", "slider"},
                                                         {"QDateTimeEdit", "date edit"},
                                                         {"QTabWidget", "pages"},
                                                         {"QScrollArea", "scroll box"},
                                                         {"ControlView", "preview"},
                                                         {"PictureView", "picture"},
                                                         {"ZoomBox", "paint box"},
                                                         {"TVRXProgressBar", "progress bar"},
                                                         {"QLabel", "label"}};

QString KindOf(const QWidget& widget) {
  for (const auto& [cls, kind] : Kinds)
    if (widget.inherits(cls)) return QString::fromLatin1(kind);
  return (widget.focusPolicy() & Qt::TabFocus) != 0 ? QStringLiteral("control") : QString();
}
bool IsControl(const QWidget& widget) {
  const bool ofTabs = qobject_cast<const QTabBar*>(widget.parentWidget()) != nullptr;  // their arrows
  return !ofTabs && !widget.objectName().isEmpty() &&
         !widget.objectName().startsWith(QStringLiteral("qt_")) && !KindOf(widget).isEmpty();
}

QString TextOf(const QWidget& widget) {
  if (const auto* view = qobject_cast<const ControlView*>(&widget)) {
    const TPropInfo* caption = view->Control()->ClassType().FindProp("Caption");
    return caption && caption->Kind() == TTypeKind::tkString ? GetStrProp(*view->Control(), *caption)
                                                             : QString();
  }
  // Each country has it in another way, and each machine has fonts of its own.
  if (widget.inherits("QDateTimeEdit") || widget.inherits("QFontComboBox")) return {};
  const QVariant text = widget.property(widget.inherits("QComboBox") ? "currentText" : "text");
  return text.toString();
}

QStringList ItemsOf(const QWidget& widget) {
  QStringList items;
  if (const auto* combo = qobject_cast<const QComboBox*>(&widget); combo && !widget.inherits("QFontComboBox"))
    for (int i = 0; i < combo->count(); ++i) items << combo->itemText(i);
  if (const auto* list = qobject_cast<const QListWidget*>(&widget))
    for (int i = 0; i < list->count(); ++i) items << list->item(i)->text();
  if (const auto* pages = qobject_cast<const QTabWidget*>(&widget))
    for (int i = 0; i < pages->count(); ++i) items << pages->tabText(i);
  return items;
}

// The widgets that Tab goes to, in order; a book of pages is reached through its tabs.
std::vector<QWidget*> TabOrder(QWidget& dialog) {
  std::vector<QWidget*> order;
  for (QWidget* w = dialog.nextInFocusChain(); w && w != &dialog; w = w->nextInFocusChain()) {
    QWidget* const control = qobject_cast<QTabBar*>(w) ? w->parentWidget() : w;
    if ((w->focusPolicy() & Qt::TabFocus) != 0 && !w->focusProxy() && IsControl(*control))
      order.push_back(control);
  }
  return order;
}
}  // namespace

std::vector<ControlDescription> DescribeControls(QWidget& dialog) {
  std::vector<QWidget*> controls = TabOrder(dialog);
  const std::size_t reached = controls.size();
  for (QWidget* widget : dialog.findChildren<QWidget*>())
    if (IsControl(*widget) && std::find(controls.begin(), controls.end(), widget) == controls.end())
      controls.push_back(widget);
  std::vector<ControlDescription> descriptions;
  for (std::size_t i = 0; i < controls.size(); ++i) {
    QWidget& widget = *controls[i];
    ControlDescription& d = descriptions.emplace_back();
    d.name = widget.objectName();
    d.kind = KindOf(widget);
    d.text = TextOf(widget);
    for (const QLabel* label : dialog.findChildren<QLabel*>())
      if (label->buddy() == &widget) d.label = label->text();
    d.hint = widget.toolTip();
    d.items = ItemsOf(widget);
    if (const auto* edit = qobject_cast<const QSpinBox*>(&widget)) {
      d.minimum = edit->minimum();
      d.maximum = edit->maximum();
    }
    if (i < reached) d.tab = static_cast<int>(i);
    d.enabled = widget.isEnabled();
    d.visible = !widget.isHidden();
  }
  return descriptions;
}
