#include "dclstd/ComponentWindow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QScreen>
#include <QStyle>

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

// On the screen and clear of the panes: right of the main window where there is room, else at the right edge
// of what it has in its middle. Several stand one below the other.
void ComponentWindow::PlaceBeside() {
  const QWidget* owner = parentWidget();
  while (owner && owner->parentWidget()) owner = owner->parentWidget()->window();
  const auto* main = qobject_cast<const QMainWindow*>(owner);
  if (!main || !main->centralWidget()) return;
  constexpr int edge = 12, step = 28;
  const int title = style()->pixelMetric(QStyle::PM_TitleBarHeight);
  const QRect screen = main->screen()->availableGeometry();
  const QRect middle(main->centralWidget()->mapToGlobal(QPoint()), main->centralWidget()->size());
  QPoint at(main->frameGeometry().right() + edge, middle.top() + title + edge);
  if (at.x() + width() + edge > screen.right()) at.setX(middle.right() - width() - edge);
  at.ry() += step * static_cast<int>(std::ranges::count_if(
                        All(), [this](const QWidget* w) { return w != this && w->isVisible(); }));
  at.setX(std::max(screen.left(), std::min(at.x(), screen.right() - width() - edge)));
  at.setY(std::max(screen.top() + title, std::min(at.y(), screen.bottom() - height() - edge)));
  move(at.x(), at.y() - title);
}

void ComponentWindow::ToFront() {
  if (!isVisible()) PlaceBeside();
  ApplyIDETheme(*this);
  show();
  raise();
  activateWindow();
}

// Nothing is asked of the form any more, which may be gone before the window is.
void ComponentWindow::Leave() {
  SetDesigner(nullptr);
  close();
}

void ComponentWindow::closeEvent(QCloseEvent* event) {
  SetDesigner(nullptr);
  TDesignWindow::closeEvent(event);
}

void ComponentWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && !event->modifiers())
    close();
  else
    TDesignWindow::keyPressEvent(event);
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
