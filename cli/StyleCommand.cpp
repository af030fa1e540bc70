// vrx style: what style managers of forms hold, to files and back, and onto components of many forms.
#include <sys/prctl.h>
#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <QThread>
#include <csignal>

#include "cli/Commands.h"
#include "cli/OpenForm.h"
#include "cli/Suggest.h"
#include "designintf/PackageCall.h"
#include "forms/FormFile.h"
#include "ide/LineDiff.h"
#include "library/styles/StyleManager.h"
#include "rtl/ClassRegistry.h"
#include "rtl/Exceptions.h"
#include "rtl/Printable.h"

namespace {
const QString ManagerOption = QStringLiteral("--manager"), StyleOption = QStringLiteral("--style"),
              ClassOption = QStringLiteral("--class"), FromOption = QStringLiteral("--from"),
              OutOption = QStringLiteral("-o"), DryRun = QStringLiteral("--dry-run"),
              Here = QStringLiteral("--one-process");

struct StyleJob {
  Console& console;
  Arguments args;
  QString style;
  std::optional<TVRXStyleManager> from;  // a style file

  QString Option(const QString& name) const { return args.options.value(name); }
};

std::vector<TVRXStyleManager*> ManagersOf(FormSession& session) {
  std::vector<TVRXStyleManager*> managers;
  for (TComponent* component : session.AllComponents())
    if (auto* manager = As<TVRXStyleManager>(component)) managers.push_back(manager);
  return managers;
}

TVRXStyleManager& ManagerOf(FormSession& session, const QString& wanted) {
  QStringList names;
  const auto managers = ManagersOf(session);
  for (TVRXStyleManager* manager : managers) {
    names << manager->Name();
    const bool chosen =
        wanted.isEmpty() ? managers.size() == 1 : manager->Name().compare(wanted, Qt::CaseInsensitive) == 0;
    if (!chosen) continue;
    if (!manager->Problem().isEmpty())
      throw Exception(QStringLiteral("%1: the styles of %2 cannot be read: %3")
                          .arg(session.FileName(), manager->Name(), manager->Problem()));
    return *manager;
  }
  if (managers.empty()) throw Exception(QStringLiteral("%1 has no style manager.").arg(session.FileName()));
  if (wanted.isEmpty())
    throw Exception(QStringLiteral("%1 has several style managers: %2. Choose one with --manager.")
                        .arg(session.FileName(), names.join(QStringLiteral(", "))));
  throw Exception(QStringLiteral("%1 has no style manager named \"%2\".").arg(session.FileName(), wanted) +
                  DidYouMean(wanted, names));
}

// The style and what is below it; everything without a path.
TVRXStyles Part(const TVRXStyles& styles, const QString& path, const QString& source) {
  if (path.isEmpty()) return styles;
  TVRXStyles part;
  QStringList known;
  for (const auto& [at, values] : styles.All()) {
    known << at;
    if (at != path && !at.startsWith(path + VRXStyleSeparator)) continue;
    part.Add(at);
    for (const auto& [key, value] : values) part.Write(at, key, value);
  }
  if (!styles.Has(path))
    throw Exception(QStringLiteral("%1 has no style \"%2\".").arg(source, path) + DidYouMean(path, known));
  return part;
}

// What differs, as lines of form text; or the file with them.
void Finish(StyleJob& job, FormSession& session, const QByteArray& before) {
  const QByteArray after = session.Bytes();
  if (after == before) return;
  if (!job.args.Has(DryRun)) return session.Save();
  const QStringList left = LinesToRead(before, session.FileName()),
                    right = LinesToRead(after, session.FileName());
  const auto print = [&](char sign, const QStringList& lines, int line) {
    if (line >= 0)
      job.console.out << Printable(session.FileName()) << ':' << line + 1 << ": " << sign << ' '
                      << Printable(lines[line].trimmed()) << '\n';
  };
  for (const DiffRow& row : CompareLines(left, right)) {
    if (row.kind == DiffRow::Kind::Same) continue;
    print('-', left, row.left);
    print('+', right, row.right);
  }
}

bool List(StyleJob& job, const QString& file) {
  const auto session = OpenForm(file);
  const auto managers = ManagersOf(*session);
  const QString wanted = job.Option(ManagerOption);
  if (!wanted.isEmpty()) ManagerOf(*session, wanted);
  for (const TVRXStyleManager* manager : managers) {
    if (!wanted.isEmpty() && manager->Name().compare(wanted, Qt::CaseInsensitive) != 0) continue;
    const QString where = QStringLiteral("%1: %2: ").arg(file, manager->Name());
    if (!manager->Problem().isEmpty()) throw Exception(where + manager->Problem());
    const TVRXStyles styles = Part(manager->Styles(), job.style, where.trimmed().chopped(1));
    QStringList lines;
    for (const auto& [path, values] : styles.All()) lines << where + path;
    if (!job.style.isEmpty()) lines = styles.Lines();
    for (const QString& line : lines) job.console.out << Printable(line) << '\n';
  }
  return true;
}

bool Export(StyleJob& job, const QString& file) {
  const auto session = OpenForm(file);
  const TVRXStyles styles =
      Part(ManagerOf(*session, job.Option(ManagerOption)).Styles(), job.style, session->FileName());
  forms::WriteFile(job.Option(OutOption), styles.Text());
  return true;
}

bool Import(StyleJob& job, const QString& file) {
  const auto session = OpenForm(file);
  const QByteArray before = session->Bytes();
  TVRXStyleManager& manager = ManagerOf(*session, job.Option(ManagerOption));
  TVRXStyles styles = manager.Styles();
  styles.Merge(Part(job.from->Styles(), job.style, job.Option(FromOption)));
  session->Run(QStringLiteral("import styles"), {&manager}, [&] { manager.SetStyles(styles); });
  Finish(job, *session, before);
  return true;
}

// The class that the style is for: the one that is named, else the last one in the style's path.
QString ClassNameFor(const Arguments& args) {
  const QString named = args.options.value(ClassOption);
  if (!named.isEmpty()) return named;
  QString last;
  for (const QString& part : args.options.value(StyleOption).split(VRXStyleSeparator))
    if (part.startsWith(u'T')) last = part;
  if (last.isEmpty())
    throw UsageError{QStringLiteral("no class is in the path \"%1\"; say --class CLASS")
                         .arg(args.options.value(StyleOption))};
  return last;
}
const TClass& ClassFor(const Arguments& args) {
  const QString name = ClassNameFor(args);
  if (const TClass* cls = FindClass(name.toLatin1())) return *cls;
  // What several classes have in common is registered by none.
  QStringList known;
  for (const TClass* cls : RegisteredClasses()) {
    known << QString::fromLatin1(cls->ClassName());
    for (const TClass* at = cls; at; at = at->ClassParent())
      if (name.compare(QString::fromLatin1(at->ClassName()), Qt::CaseInsensitive) == 0) return *at;
  }
  throw Exception(QStringLiteral("There is no class %1.").arg(name) + DidYouMean(name, known));
}

bool Apply(StyleJob& job, const QString& file) {
  const TClass& cls = ClassFor(job.args);
  const auto session = OpenForm(file);
  const QByteArray before = session->Bytes();
  const TVRXStyleManager& manager = job.from ? *job.from : ManagerOf(*session, job.Option(ManagerOption));
  Part(manager.Styles(), job.style, job.from ? job.Option(FromOption) : file);
  std::vector<TComponent*> components;
  for (TComponent* component : session->AllComponents())
    if (component->InheritsFrom(cls)) components.push_back(component);
  bool fits = true;
  session->Run(QStringLiteral("apply style"), components, [&] {
    for (TComponent* component : components)
      for (const TVRXStyleMisfit& misfit : manager.ApplyStyle(*component, job.style)) {
        job.console.Tell(QStringLiteral("%1: %2: %3").arg(file, component->Name(), misfit.Text()));
        fits = false;
      }
  });
  Finish(job, *session, before);
  return fits;
}

struct Action {
  const char* name;
  bool (*run)(StyleJob& job, const QString& file);
  QStringList (*needs)();
  QStringList (*takes)();  // besides, and besides the manager and the style
  bool changes = false;
};
const Action Actions[] = {
    {"list", List, [] { return QStringList(); }, [] { return QStringList(); }},
    {"export", Export, [] { return QStringList{OutOption}; }, [] { return QStringList(); }},
    {"import", Import, [] { return QStringList{FromOption}; },
     [] {
       return QStringList{DryRun, Here};
     },
     true},
    {"apply", Apply, [] { return QStringList{StyleOption}; },
     [] {
       return QStringList{FromOption, ClassOption, DryRun, Here};
     },
     true},
};

int RunHere(const Action& action, StyleJob& job, const QStringList& files) {
  int code = ExitOk;
  for (const QString& file : files) try {
      if (!action.run(job, file)) code = ExitFindings;
    } catch (...) {
      job.console.Tell(QStringLiteral("vrx style: ") + CurrentExceptionMessage());
      code = ExitFindings;
    }
  job.console.out.flush();
  return code;
}

// Forms and fonts belong to one thread, so the cores get processes of their own, each with a share of the
// files. They end with this one, whatever ends it.
int RunInProcesses(const QStringList& words, const QStringList& files, int count, Console& console) {
  std::vector<std::unique_ptr<QProcess>> workers;
  const qsizetype share = (files.size() + count - 1) / count;
  for (qsizetype from = 0; from < files.size(); from += share) {
    workers.push_back(std::make_unique<QProcess>());
    QProcess& worker = *workers.back();
    worker.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
    worker.start(QCoreApplication::applicationFilePath(), QStringList{QStringLiteral("style")} + words +
                                                              QStringList{Here, QStringLiteral("--")} +
                                                              files.mid(from, share));
  }
  int code = ExitOk;
  for (const auto& worker : workers) {
    worker->waitForFinished(-1);
    console.out << QString::fromUtf8(worker->readAllStandardOutput());
    console.err << QString::fromUtf8(worker->readAllStandardError());
    if (worker->exitStatus() != QProcess::NormalExit || worker->error() == QProcess::FailedToStart) {
      console.Tell(QStringLiteral("vrx style: a process that worked on some of the forms has ended: %1")
                       .arg(worker->errorString()));
      code = ExitFindings;
    } else if (worker->exitCode() != ExitOk) {
      code = worker->exitCode();
    }
  }
  console.out.flush();
  console.err.flush();
  return code;
}
}  // namespace

int StyleCommand(const QStringList& list, Console& console) {
  Arguments args =
      ParseArguments(list, {ManagerOption, StyleOption, ClassOption, FromOption, OutOption}, {DryRun, Here});
  const QString word = args.values.value(0);
  const auto* action = std::find_if(std::begin(Actions), std::end(Actions),
                                    [&](const Action& row) { return word == QLatin1StringView(row.name); });
  if (action == std::end(Actions))
    throw UsageError{QStringLiteral("list, export, import or apply is needed")};
  const QStringList files = args.values.mid(1);
  if (files.isEmpty()) throw UsageError{QStringLiteral("a form file is missing")};
  for (const QString& option : action->needs())
    if (!args.Has(option)) throw UsageError{QStringLiteral("%1 needs %2").arg(word, option)};
  const QStringList taken = QStringList{ManagerOption, StyleOption} + action->needs() + action->takes();
  for (auto it = args.options.begin(); it != args.options.end(); ++it)
    if (!taken.contains(it.key()))
      throw UsageError{QStringLiteral("%1 cannot be used with %2").arg(it.key(), word)};
  if (args.Has(OutOption) && files.size() > 1) throw UsageError{QStringLiteral("export takes one form")};
  if (action->run == Apply) ClassNameFor(args);
  StyleJob job{console, args, args.options.value(StyleOption), {}};
  constexpr qsizetype worthAProcess = 8;
  const int cores = QThread::idealThreadCount();
  const bool isVrx = QFileInfo(QCoreApplication::applicationFilePath()).fileName() == QStringLiteral("vrx");
  if (action->changes && !args.Has(Here) && isVrx && cores > 1 && files.size() >= worthAProcess) {
    QStringList words{word};
    for (auto it = args.options.begin(); it != args.options.end(); ++it)
      words << it.key() << (it.key() == DryRun ? QStringList() : QStringList{it.value()});
    return RunInProcesses(words, files, cores, console);
  }
  LoadClasses(console);
  if (args.Has(FromOption)) {
    job.from.emplace(nullptr);
    job.from->LoadFromFile(args.options.value(FromOption));
  }
  return RunHere(*action, job, files);
}
