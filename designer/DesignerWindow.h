// What the window's commands ask of the window.
#pragma once
#include <QString>

#include "designintf/EditorOptions.h"

class FormSession;

enum class WindowPane : std::uint8_t { Structure, Inspector, Problems };

class IDesignerWindow {
 public:
  virtual ~IDesignerWindow() = default;

  // The open form; null when there is none.
  virtual FormSession* Session() const = 0;
  virtual bool HasUnsaved() const = 0;
  // As menus do it: what is not saved is asked for first.
  virtual void AskForNewForm() = 0;
  virtual void AskForForm() = 0;
  // False when the form was not written. A file that another program changed is replaced only on demand.
  virtual bool Save() = 0;
  virtual bool SaveAs() = 0;
  virtual void Quit() = 0;

  virtual double Zoom() const = 0;
  virtual void SetZoom(double factor) = 0;
  virtual bool ShowsPane(WindowPane pane) const = 0;
  virtual void ShowPane(WindowPane pane, bool shown) = 0;
  // The packages are loaded again, so that the palette follows.
  virtual void ChoosePackageOption(TEditorOption option, bool on) = 0;
  virtual void GoToFormOrInspector() = 0;
  virtual void GoToPalette() = 0;
  // Everything that can be done, to be searched.
  virtual void ShowCommands() = 0;
  virtual void TellAbout() = 0;
};
