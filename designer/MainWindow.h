// The designer's main window: palette, structure, inspector and the surface of the open form.
#pragma once
#include <QMainWindow>
#include <array>

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

enum class WindowPane : std::uint8_t { Structure, Inspector, Problems };

class MainWindow : public QMainWindow {
  Q_OBJECT
 public:
  explicit MainWindow(PackageManager& packages);
  ~MainWindow() override;

  // False, with a message, when the file cannot be opened; the form that was open stays.
  bool OpenForm(const QString& fileName);
  // The file once more, with the same selection; what was changed here is given up.
  bool Reload();
  void NewForm();
  // False when the form was not written. A file that another program changed is replaced only on demand.
  bool Save();
  bool SaveAs();
  // Asks when there are changes; false when the person wants to stay.
  bool MayClose();
  bool HasUnsaved() const;
  // As menus do it: what is not saved is asked for first.
  void AskForNewForm();
  void AskForForm();

  double Zoom() const;
  void SetZoom(double factor);
  bool ShowsPane(WindowPane pane) const;
  void ShowPane(WindowPane pane, bool shown);
  void GoToFormOrInspector();
  void GoToPalette();
  // Everything that can be done, to be searched.
  void ShowCommands();
  void TellAbout();

  FormSession* Session() const { return session_.get(); }
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
  void UpdateProblems();
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

// Shows what a handler threw; the process goes on.
void ReportException(QWidget* parent, const std::exception& error);
