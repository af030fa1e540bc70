// The designer's main window: palette, structure, inspector and the surface of the open form.
#pragma once
#include <QMainWindow>

#include "ide/FormSession.h"
#include "ide/PackageManager.h"

class DiskChanges;
class FormActions;
class FormSurface;
class InspectorPane;
class PalettePane;
class QLabel;
class QListWidget;
class QShortcut;
class StructurePane;
struct ActionRow;

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
  void BuildActions();
  void BuildPanes();
  void SetSession(std::unique_ptr<FormSession> session);
  void UpdateActions();
  void UpdateStatus();
  void UpdateProblems();
  void ShowContextMenu(const QPoint& pos);
  void SetZoom(double factor);
  bool SaveTo(const QString& fileName);
  QAction* AddAction(QWidget* menu, const QString& text, const QString& icon, const QKeySequence& keys,
                     const std::function<void()>& run, const char* name);

  PackageManager& packages_;
  std::unique_ptr<FormSession> session_;
  DiskChanges* disk_ = nullptr;
  FormSurface* surface_ = nullptr;
  InspectorPane* inspector_ = nullptr;
  PalettePane* palette_ = nullptr;
  StructurePane* structure_ = nullptr;
  QListWidget* problems_ = nullptr;
  class QDockWidget* problemsDock_ = nullptr;
  QLabel* selectionLabel_ = nullptr;
  QLabel* boundsLabel_ = nullptr;
  QLabel* zoomLabel_ = nullptr;
  QLabel* modifiedLabel_ = nullptr;
  QShortcut* putDown_ = nullptr;
  QAction* save_ = nullptr;
  FormActions* form_ = nullptr;
};

// Shows what a handler threw; the process goes on.
void ReportException(QWidget* parent, const std::exception& error);
