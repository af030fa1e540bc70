#include "library/keys/KeyWork.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QObject>
#include <QProcess>
#include <QScopeGuard>
#include <QSet>

#include "library/keys/DesktopMaker.h"

namespace {
constexpr int Step = 20;  // milliseconds between two questions

// What the system says of a process, behind its name: state, parent ... Empty when it is gone.
QList<QByteArray> StatusOf(qint64 process) {
  QFile file(QStringLiteral("/proc/%1/stat").arg(process));
  if (!file.open(QIODevice::ReadOnly)) return {};
  // The name in parentheses may hold anything.
  const QByteArray line = file.readAll();
  return line.mid(line.lastIndexOf(')') + 1).simplified().split(' ');
}
// One that has ended may still be listed.
bool IsAlive(qint64 process) {
  const QByteArray state = StatusOf(process).value(0);
  return !state.isEmpty() && state != "Z";
}
// Whether the process is the other one or was started by it, by whatever way.
bool DescendsFrom(qint64 process, qint64 other) {
  constexpr int deepest = 64;
  for (int i = 0; i < deepest && process > 1; ++i) {
    if (process == other) return true;
    process = StatusOf(process).value(1).toLongLong();
  }
  return false;
}
}  // namespace

const TVRXDesktopWindow* VRXFindWindow(const std::vector<TVRXDesktopWindow>& windows,
                                       const QString& caption) {
  if (caption.isEmpty()) return nullptr;
  for (const bool whole : {true, false})
    for (const auto sensitivity : {Qt::CaseSensitive, Qt::CaseInsensitive})
      for (const TVRXDesktopWindow& window : windows)
        if (whole ? window.Caption.compare(caption, sensitivity) == 0
                  : window.Caption.startsWith(caption, sensitivity))
          return &window;
  return nullptr;
}

IDesktop& KeyWork::Desktop() {
  if (!desktop_) desktop_ = OpenDesktop();
  return *desktop_;
}

void KeyWork::Wait(int milliseconds) {
  if (pause_(milliseconds)) throw ESendKeysError(QObject::tr("It was stopped."));
}

bool KeyWork::WaitFor(int patience, const std::function<bool()>& fact) {
  QElapsedTimer time;
  for (time.start();;) {
    Wait(0);
    if (fact()) return true;
    if (time.elapsed() >= patience) return false;
    Wait(Step);
  }
}

TVRXDesktopWindow KeyWork::Shell(const QString& file, int patience) {
  const QFileInfo info(file);
  if (!info.isFile()) throw ESendKeysError(QObject::tr("There is no file %1.").arg(file));
  if (!info.isExecutable()) throw ESendKeysError(QObject::tr("%1 is not a program.").arg(file));
  QSet<std::uint64_t> before;
  for (const TVRXDesktopWindow& window : Desktop().Windows()) before << window.Id;
  QProcess program;
  program.setProgram(info.absoluteFilePath());
  program.setWorkingDirectory(info.absolutePath());
  qint64 process = 0;
  if (!program.startDetached(&process))
    throw ESendKeysError(QObject::tr("%1 cannot be started: %2").arg(file, program.errorString()));
  std::optional<TVRXDesktopWindow> found;
  const bool came = WaitFor(patience, [&] {
    // A program that has handed its work over to another one has ended.
    const bool ended = !IsAlive(process);
    for (const TVRXDesktopWindow& window : Desktop().Windows())
      if (!before.contains(window.Id) &&
          (window.Process == 0 || ended || DescendsFrom(window.Process, process)))
        found = window;
    return found.has_value();
  });
  if (!came)
    throw ESendKeysError(IsAlive(process)
                             ? QObject::tr("%1 was started, but opened no window within %2 seconds.")
                                   .arg(file)
                                   .arg(patience / 1000.0)
                             : QObject::tr("%1 was started, but ended and opened no window.").arg(file));
  return *found;
}

void KeyWork::AppActivate(const QString& caption, int patience) {
  target_.reset();
  if (caption.isEmpty()) throw ESendKeysError(QObject::tr("No window is given that the keys are for."));
  const auto windows = Desktop().Windows();
  const TVRXDesktopWindow* window = VRXFindWindow(windows, caption);
  if (!window) {
    QString text = QObject::tr("There is no window \"%1\", and none whose caption begins so.").arg(caption);
    if (qgetenv("XDG_SESSION_TYPE") == "wayland")
      text += QObject::tr(" In a Wayland session only windows of the X window system are seen.");
    throw ESendKeysError(text);
  }
  Desktop().Activate(window->Id);
  if (!WaitFor(patience, [&] { return Desktop().HasKeyboard(window->Id); }))
    throw ESendKeysError(QObject::tr("The window \"%1\" does not take the keyboard.").arg(window->Caption));
  target_ = *window;
}

void KeyWork::RequireTarget(const Sending& how, int sent, int all) {
  if (!target_ || !how.keepTarget) return;
  // A new window of the program has it sooner or later.
  constexpr int most = 1000;
  if (WaitFor(std::min(how.patience, most), [this] { return Desktop().ProgramHasKeyboard(target_->Id); }))
    return;
  throw ESendKeysError(QObject::tr("The keyboard is no longer at the window \"%1\". %2 of %3 keys were sent.")
                           .arg(target_->Caption, QString::number(sent), QString::number(all)));
}

void KeyWork::Send(const TVRXKeySteps& steps, const Sending& how) {
  const int all = VRXKeyCount(steps);
  int sent = 0;
  RequireTarget(how, sent, all);
  // A macro that turns the lock of capitals itself means the one that is there.
  const bool turns = std::any_of(steps.begin(), steps.end(),
                                 [](const TVRXKeyStep& step) { return step.Key == "Caps_Lock"; });
  const bool locked = Desktop().ReleaseHeldKeys(!turns);
  QList<QByteArray> held;
  const auto release = qScopeGuard([&] {
    // Whatever happened: no key stays down.
    try {
      while (!held.isEmpty()) Desktop().Release(held.takeLast(), 0);
      if (locked) Desktop().Press("Caps_Lock", 0);
    } catch (const ESendKeysError&) {
    }
  });
  for (const TVRXKeyStep& step : steps) {
    for (int i = 0; i < step.Count; ++i) {
      Wait(0);
      RequireTarget(how, sent, all);
      if (step.Action == TVRXKeyAction::Press) {
        Desktop().Press(step.Key, how.delay);
        ++sent;
      } else if (step.Action == TVRXKeyAction::Hold) {
        held.append(step.Key);
        Desktop().Hold(step.Key, how.delay);
      } else {
        Desktop().Release(step.Key, how.delay);
        held.removeOne(step.Key);
      }
    }
  }
}
