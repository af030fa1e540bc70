#include "dclstd/ComponentWindow.h"

#include <QApplication>

#include "designintf/ComponentIcons.h"
#include "designintf/IdeTheme.h"
#include "rtl/Exceptions.h"
#include "vcl/Prompts.h"

// A tool window of the window that it was opened from: that one's keys (undo, save) work in it, too.
ComponentWindow::ComponentWindow(IDesigner& designer, TComponent& component)
    : TDesignWindow(QApplication::activeWindow()), component_(&component), name_(component.Name()) {
  const QWidget* owner = parentWidget();
  setWindowFlags(owner ? Qt::Tool : Qt::Window);
  setAttribute(Qt::WA_DeleteOnClose);
  SetDesigner(&designer);
}

QList<ComponentWindow*> ComponentWindow::All() {
  QList<ComponentWindow*> all;
  for (QWidget* widget : QApplication::topLevelWidgets())
    if (auto* window = qobject_cast<ComponentWindow*>(widget); window && window->Designer()) all << window;
  return all;
}

QToolButton* ComponentWindow::NewButton(const char* name, const QString& text, const QString& hint,
                                        QByteArrayView drawing) {
  auto* button = new QToolButton(this);
  button->setObjectName(QLatin1StringView(name));
  button->setText(text);
  button->setToolTip(hint);
  button->setAccessibleName(text);
  button->setIcon(DrawnIcon(drawing));
  button->setIconSize({16, 16});
  button->setAutoRaise(true);
  return button;
}

void ComponentWindow::ToFront() {
  ApplyIDETheme(*this);
  show();
  raise();
  activateWindow();
}

void ComponentWindow::Leave() { close(); }

// Nothing is asked of the form any more, which may be gone before the window is.
void ComponentWindow::closeEvent(QCloseEvent* event) {
  SetDesigner(nullptr);
  TDesignWindow::closeEvent(event);
}

void ComponentWindow::ItemDeleted(IDesigner* designer, TPersistent* item) {
  if (Designer() == designer && item == component_) Leave();
}

void ComponentWindow::DesignerClosed(IDesigner* designer) {
  if (Designer() == designer) Leave();
}

// When all are made anew, another one may come to stand at the old address: the name goes first.
TComponent* ComponentWindow::Present(const TComponent* known, const QString& name) const {
  TComponent* root = Designer()->GetRoot();
  if (!root) return nullptr;
  if (TComponent* named = name.isEmpty() ? nullptr : Designer()->GetComponent(name)) return named;
  if (known == root) return root;
  const auto& all = root->Components();
  const auto it = std::find(all.begin(), all.end(), known);
  return it == all.end() ? nullptr : *it;
}

bool ComponentWindow::Find() {
  TComponent* present = Present(component_, name_);
  if (!present) return false;
  name_ = present->Name();
  return std::exchange(component_, present) == present || Rebound();
}

void ComponentWindow::ItemsModified(IDesigner* designer) {
  if (Designer() != designer) return;
  if (Find())
    Load();
  else
    Leave();
}

void ComponentWindow::Do(const QString& text, const std::function<void()>& action) {
  if (!Designer()) return;
  try {
    Designer()->Perform(text, action);
  } catch (const std::exception& error) {
    Prompts().Warn(this, windowTitle(), ExceptionMessage(error));
  }
}
