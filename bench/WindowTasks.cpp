#include "bench/WindowTasks.h"

#include <QApplication>
#include <QKeyEvent>

#include "bench/Measure.h"
#include "dclstd/StandardEditors.h"
#include "designer/FormSurface.h"
#include "designer/MainWindow.h"
#include "vcl/Button.h"

namespace {
// Until everything that follows has been done and painted.
void Settle() {
  for (int i = 0; i < 3; ++i) {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
  }
}

template <class F>
double TimeOf(F&& run) {
  const Stopwatch time;
  run();
  Settle();
  return time.Elapsed();
}

// A control that nothing hides, in the part of the form that is in sight.
TControl* InSight(FormSession& session) {
  if (auto* target = As<TControl>(session.GetComponent(QStringLiteral("Button1")));
      target && target->Left() == 200)
    return target;  // what all labels refer to
  for (TControl* c : session.Form().Controls())
    if (!As<TWinControl>(c) && c->Left() > 100 && c->Top() > 100 && c->Left() < 700) return c;
  return session.Form().Controls().front();
}
}  // namespace

void MeasureWindow(const QString& file, const QString&) {
  DesignRegistry registry;
  RegisterStandard(registry);
  PackageManager packages(PackageManager::DefaultFolders(), registry);
  packages.Load(PackageManager::DefaultPackage());
  MainWindow window(packages);
  window.resize(1280, 800);
  window.show();
  if (!window.OpenForm(file)) qFatal("Cannot open %s", qPrintable(file));
  Settle();
  FormSession& session = *window.Session();
  TControl* control = InSight(session);
  QList<double> edit, undo, select, nudge, place;
  for (int i = 0; i < 15; ++i) {
    // There and back: the form's rows and marks cost more than a control's.
    select << TimeOf([&] { session.Select({session.GetRoot()}); }) +
                  TimeOf([&] { session.Select({control}); });
    Settle();
    edit << TimeOf(
        [&] { session.Run(QStringLiteral("Change"), {}, [&] { control->SetCaption(QString::number(i)); }); });
    nudge << TimeOf([&] {
      QKeyEvent press(QEvent::KeyPress, Qt::Key_Right, Qt::ControlModifier);
      QCoreApplication::sendEvent(&window.Surface(), &press);
    });
    undo << TimeOf([&] { session.Undo(); });
    session.Undo();
    Settle();
    place << TimeOf(
        [&] { session.CreateComponent(TButton::StaticClass(), nullptr, QRect(120, 300, 75, 25)); });
    session.Undo();
    Settle();
  }
  Report("edit", Median(edit));
  Report("undo", Median(undo));
  Report("select", Median(select));
  Report("nudge", Median(nudge));
  Report("place", Median(place));
}
