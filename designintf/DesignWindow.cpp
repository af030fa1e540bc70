#include "designintf/DesignWindow.h"

#include <QEvent>

#include "designintf/IdeTheme.h"

namespace {
std::vector<IDesignNotification*>& Listeners() {
  static std::vector<IDesignNotification*> listeners;
  return listeners;
}
}  // namespace

IDesignNotification::~IDesignNotification() { UnregisterDesignNotification(this); }

void RegisterDesignNotification(IDesignNotification* listener) {
  auto& all = Listeners();
  if (std::find(all.begin(), all.end(), listener) == all.end()) all.push_back(listener);
}

void UnregisterDesignNotification(IDesignNotification* listener) { std::erase(Listeners(), listener); }

void NotifyDesign(const std::function<void(IDesignNotification&)>& call) {
  const std::vector<IDesignNotification*> now = Listeners();
  for (IDesignNotification* listener : now)
    if (std::find(Listeners().begin(), Listeners().end(), listener) != Listeners().end()) call(*listener);
}

TDesignWindow::TDesignWindow(QWidget* parent) : QWidget(parent, Qt::Window) {
  RegisterDesignNotification(this);
  ApplyIDETheme(*this);
}
TDesignWindow::~TDesignWindow() = default;

void TDesignWindow::DesignerClosed(IDesigner* designer) {
  if (designer_ == designer) designer_ = nullptr;
}

bool TDesignWindow::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) Activated();
  return QWidget::event(event);
}
