#include "designintf/IdeTheme.h"

#include <QApplication>
#include <QVariant>
#include <QWidget>

namespace {
constexpr char Themed[] = "ideThemed";

void Apply(QWidget& widget, const std::function<bool(const QWidget&)>& needTheme) {
  if (needTheme && !needTheme(widget)) {
    widget.setProperty(Themed, false);
    // Palettes are handed down to children; the ones it has now become its own.
    widget.setPalette(QApplication::style()->standardPalette());
    return;
  }
  widget.setProperty(Themed, true);
  for (QObject* child : widget.children())
    if (auto* inner = qobject_cast<QWidget*>(child); inner && !inner->isWindow()) Apply(*inner, needTheme);
}
}  // namespace

void ApplyIDETheme(QWidget& window, const std::function<bool(const QWidget&)>& needTheme) { Apply(window, needTheme); }

bool IsIDEThemed(const QWidget& widget) { return widget.property(Themed).toBool(); }
