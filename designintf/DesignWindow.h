// Non-modal windows that follow what happens on forms.
#pragma once
#include <QWidget>

#include "designintf/Designer.h"

class IDesignNotification {
 public:
  virtual ~IDesignNotification();
  virtual void ItemInserted(IDesigner*, TPersistent*) {}
  virtual void ItemDeleted(IDesigner*, TPersistent*) {}
  virtual void ItemsModified(IDesigner*) {}
  virtual void DesignerOpened(IDesigner*) {}
  virtual void DesignerClosed(IDesigner*) {}
  virtual void SelectionChanged(IDesigner*, const TDesignerSelections&) {}
};

// A listener hears every open form until it is unregistered; it may do that from inside a notification.
void RegisterDesignNotification(IDesignNotification* listener);
void UnregisterDesignNotification(IDesignNotification* listener);
// Called by designers.
void NotifyDesign(const std::function<void(IDesignNotification&)>& call);

enum class TEditState : std::uint8_t {
  esCanUndo,
  esCanRedo,
  esCanCut,
  esCanCopy,
  esCanPaste,
  esCanDelete,
  esCanSelectAll
};
using TEditStates = TSet<TEditState>;
enum class TEditAction : std::uint8_t { eaUndo, eaRedo, eaCut, eaCopy, eaPaste, eaDelete, eaSelectAll };

class TDesignWindow : public QWidget, public IDesignNotification {
  Q_OBJECT
 public:
  explicit TDesignWindow(QWidget* parent = nullptr);
  ~TDesignWindow() override;

  IDesigner* Designer() const { return designer_; }
  void SetDesigner(IDesigner* designer) { designer_ = designer; }

  // The window came to the front.
  virtual void Activated() {}
  virtual TEditStates GetEditState() const { return {}; }
  virtual void EditAction(TEditAction) {}
  void DesignerClosed(IDesigner* designer) override;

 protected:
  bool event(QEvent* event) override;

 private:
  IDesigner* designer_ = nullptr;
};
