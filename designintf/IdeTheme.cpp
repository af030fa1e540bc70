#include "designintf/IdeTheme.h"

#include <QApplication>
#include <QVariant>
#include <QWidget>

namespace {
constexpr char Themed[] = "ideThemed";
constexpr char LeftOut[] = "ideLeftOut";  // has the plain palette because a filter refused it

void Mark(QWidget& widget, const std::function<bool(const QWidget&)>& needTheme, bool parentThemed) {
  const bool themed = parentThemed && (!needTheme || needTheme(widget));
  widget.setProperty(Themed, themed);
  // Palettes are handed down to children, so the outermost one that is left out decides.
  if (parentThemed && !themed) {
    widget.setPalette(QApplication::style()->standardPalette());
    widget.setProperty(LeftOut, true);
  } else if (themed && widget.property(LeftOut).toBool()) {
    widget.setPalette(QPalette());
    widget.setProperty(LeftOut, false);
  }
  for (QObject* child : widget.children())
    if (auto* inner = qobject_cast<QWidget*>(child); inner && !inner->isWindow())
      Mark(*inner, needTheme, themed);
}
}  // namespace

void ApplyIDETheme(QWidget& window, const std::function<bool(const QWidget&)>& needTheme) {
  Mark(window, needTheme, true);
}

bool IsIDEThemed(const QWidget& widget) { return widget.property(Themed).toBool(); }
