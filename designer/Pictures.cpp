#include "designer/Pictures.h"

#include <QtWidgets>

#include "designer/Application.h"
#include "designer/FormSurface.h"
#include "designer/InspectorPane.h"
#include "designer/MainWindow.h"
#include "designer/ValueEditor.h"
#include "forms/FormFile.h"
#include "ide/RefusedData.h"
#include "rtl/Exceptions.h"
#include "vcl/FormColors.h"
#include "vcl/PictureFile.h"
#include "vcl/Prompts.h"
#include "vcl/Theme.h"

namespace {
class Album {
 public:
  explicit Album(const QString& folder) : folder_(folder) {
    if (!QDir().mkpath(folder)) throw Exception(QStringLiteral("The folder %1 cannot be made").arg(folder));
  }
  void Take(QWidget& widget, const QString& name) {
    QCoreApplication::processEvents();
    const QString file = folder_.filePath(name + QStringLiteral(".png"));
    forms::WriteFile(file, PictureToBytes(widget.grab().toImage(), "PNG"));
    files << file;
  }
  QStringList files;

 private:
  QDir folder_;
};

// Nobody is there to answer a box.
class KeptWarnings : public IPrompts {
 public:
  KeptWarnings() { SetPrompts(this); }
  ~KeptWarnings() override { SetPrompts(nullptr); }
  void Inform(QWidget*, const QString&, const QString& text) override { last = text; }
  void Warn(QWidget*, const QString&, const QString& text) override { last = text; }
  TAnswer AskToSave(QWidget*, const QString&) override { return TAnswer::No; }
  bool Confirm(QWidget*, const QString&, const QString&) override { return false; }
  QString OpenFileName(QWidget*, const QString&, const QString&, const QString&) override { return {}; }
  QString SaveFileName(QWidget*, const QString&, const QString&, const QString&) override { return {}; }
  QString last;
};

// The component with the largest LED: the one that shows best.
TComponent* ShowPiece(FormSession& session) {
  TControl* best = nullptr;
  for (TComponent* c : session.AllComponents())
    if (auto* control = As<TControl>(c); control && c->ClassType().FindProp("LED"))
      if (!best || control->Height() > best->Height()) best = control;
  return best;
}
}  // namespace

QStringList TakePictures(PackageManager& packages, const QString& form, const QString& folder) {
  Album album(folder);
  const KeptWarnings warnings;
  const FormColorScope colors(TFormColors::Light);  // whatever this person prefers
  for (const bool dark : {false, true}) {
    ApplyTheme(dark ? TTheme::Dark : TTheme::Light);
    UseThemeIcons();
    const QString suffix = dark ? QStringLiteral("-dark") : QStringLiteral("-light");
    MainWindow window(packages);
    window.show();
    if (!window.OpenForm(form)) throw Exception(warnings.last);
    RequireAllData(*window.Session());
    if (TComponent* led = ShowPiece(*window.Session())) {
      window.Session()->Select({led});
      window.Inspector().ShowProperty(QStringLiteral("LED"));
      window.Inspector().View().setExpanded(window.Inspector().View().currentIndex().siblingAtColumn(0),
                                            true);
      window.Inspector().FocusValue();
      album.Take(window, QStringLiteral("designer") + suffix);
      // The dialog is modal: the picture is taken from inside its event loop.
      QTimer::singleShot(0, &window, [&album, &suffix] {
        if (QWidget* dialog = QApplication::activeModalWidget()) {
          album.Take(*dialog, QStringLiteral("led-editor") + suffix);
          dialog->close();
        }
      });
      emit window.Inspector().Editor().DialogWanted();
    } else {
      album.Take(window, QStringLiteral("designer") + suffix);
    }
  }
  return album.files;
}
