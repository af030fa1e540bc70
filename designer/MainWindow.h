// The designer's main window: palette, structure, inspector and the surface of the open form.
#pragma once
#include <QMainWindow>
#include <array>

#include "designer/DesignerWindow.h"
#include "ide/FormSession.h"
#include "ide/PackageManager.h"

class Desk;
class DiskChanges;
class FormActions;
class FormSurface;
class InspectorPane;
class PalettePane;
class ProblemsList;
class QDockWidget;
class QShortcut;
class StatusLine;
class StructurePane;
class WindowCommands;
struct ActionRow;

class MainWindow : public QMainWindow, public IDesignerWindow {
  Q_OBJECT
 public:
  explicit MainWindow(PackageManager& packages);
  ~MainWindow() override;

  // False, with a message, when the file cannot be opened; the form that was open stays.
  bool OpenForm(const QString& fileName);
  // The file once more, with the same selection; what was changed here is given up.
  bool Reload();
  void NewForm();
  bool Save() override;
  bool SaveAs() override;
  void Quit() override { close(); }
  // Asks when there are changes; false when the person wants to stay.
  bool MayClose();
  bool HasUnsaved() const override;
  void AskForNewForm() override;
  void AskForForm() override;

  double Zoom() const override;
  void SetZoom(double factor) override;
  bool ShowsPane(WindowPane pane) const override;
  void ShowPane(WindowPane pane, bool shown) override;
  void ChoosePackageOption(TEditorOption option, bool on) override;
  void GoToFormOrInspector() override;
  void GoToPalette() override;
  void ShowCommands() override;
  void TellAbout() override;

  FormSession* Session() const override { return session_.get(); }
  FormSurface& Surface() { return *surface_; }
  InspectorPane& Inspector() { return *inspector_; }
  PalettePane& Palette() { return *palette_; }
  StructurePane& Structure() { return *structure_; }

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  bool CommitTyping();
  void PlaceOne(const TClass& cls);
  void Run(const ActionRow& row);
  void ShowTool();
  void BuildPanes();
  void ConnectPanes();
  void BuildMenus();
  void SetSession(std::unique_ptr<FormSession> session);
  QString ShownName() const;
  void UpdateActions();
  void UpdateStatus();
  void ShowProblems(bool more);
  void RunVerb(const std::function<void()>& run);
  void ShowContextMenu(const QPoint& pos);
  bool SaveTo(const QString& fileName);

  PackageManager& packages_;
  std::unique_ptr<FormSession> session_;
  DiskChanges* disk_ = nullptr;
  FormSurface* surface_ = nullptr;
  InspectorPane* inspector_ = nullptr;
  PalettePane* palette_ = nullptr;
  StructurePane* structure_ = nullptr;
  ProblemsList* problems_ = nullptr;
  std::array<QDockWidget*, 3> docks_{};  // by WindowPane
  Desk* desk_ = nullptr;
  StatusLine* status_ = nullptr;
  QShortcut* putDown_ = nullptr;
  WindowCommands* commands_ = nullptr;
  FormActions* form_ = nullptr;
};
