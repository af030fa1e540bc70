// Windows beside the form in which what stands inside of one component is edited: a window for each
// component, in step with whatever happens to it, gone with it.
#pragma once
#include <QToolButton>

#include "designintf/DesignWindow.h"

class ComponentWindow : public TDesignWindow {
  Q_OBJECT
 public:
  ComponentWindow(IDesigner& designer, TComponent& component);

  TComponent& Component() const { return *component_; }
  // The window about the component, in front of the others; a new one when there is none.
  template <class W, class C, class... A>
  static W& Show(IDesigner& designer, C& component, A&&... arguments) {
    W* window = nullptr;
    for (ComponentWindow* open : All())
      if (auto* same = dynamic_cast<W*>(open); same && same->IsAbout(designer, component, arguments...))
        window = same;
    if (!window) {
      window = new W(designer, component, arguments...);
      static_cast<ComponentWindow*>(window)->Load();
    }
    window->ToFront();
    return *window;
  }
  static QList<ComponentWindow*> All();
  bool IsAbout(const IDesigner& designer, const TComponent& component) const {
    return Designer() == &designer && component_ == &component;
  }

  void ItemDeleted(IDesigner* designer, TPersistent* item) override;
  void ItemsModified(IDesigner* designer) override;
  void DesignerClosed(IDesigner* designer) override;

 protected:
  // Shows what is there now.
  virtual void Load() = 0;
  // What is now the component that was known by that name: itself, renamed or not, or the one that was made
  // in its place. Null for none. `known` may be gone.
  TComponent* Present(const TComponent* known, const QString& name) const;
  // The component was made anew. False: what the window is about is no longer there.
  virtual bool Rebound() { return true; }
  // A small button of the window with its icon, a drawing of words (ComponentIcons.h).
  template <class F>
  QToolButton* Button(const char* name, const QString& text, const QString& hint, QByteArrayView drawing,
                      F clicked) {
    QToolButton* button = NewButton(name, text, hint, drawing);
    connect(button, &QToolButton::clicked, this, clicked);
    return button;
  }
  void closeEvent(QCloseEvent* event) override;
  // Escape closes the window, unless something in it has a use for it.
  void keyPressEvent(QKeyEvent* event) override;
  // Closes the window, from inside of a notification, too.
  void Leave();
  // One step that can be undone; what it throws is told.
  void Do(const QString& text, const std::function<void()>& action);

 private:
  QToolButton* NewButton(const char* name, const QString& text, const QString& hint, QByteArrayView drawing);
  void ToFront();
  void PlaceBeside();
  // Whether the component is still on the form, the same or one in its place.
  bool Find();
  TComponent* component_;
  QString name_;
};
