// Measures loading, saving and editing of large forms and prints the ratios as a table. Slow results are no
// error.
#include <QApplication>
#include <QTemporaryDir>
#include <QTextStream>
#include <span>

#include "bench/DialogTasks.h"
#include "bench/Generate.h"
#include "bench/HtmlTasks.h"
#include "bench/LabelTasks.h"
#include "bench/Measure.h"
#include "bench/PaintTasks.h"
#include "bench/PixelTasks.h"
#include "bench/StyleTasks.h"
#include "bench/Tasks.h"
#include "bench/WindowTasks.h"

namespace {
const std::map<QString, void (*)(const QString&, const QString&)>& TaskTable() {
  static const std::map<QString, void (*)(const QString&, const QString&)> table{
      {QStringLiteral("load-form"), MeasureFormLoad}, {QStringLiteral("load-ui"), MeasureUiLoad},
      {QStringLiteral("save-form"), MeasureFormSave}, {QStringLiteral("edit-form"), MeasureEdit},
      {QStringLiteral("modified"), MeasureModified},  {QStringLiteral("pixels"), MeasurePixels},
      {QStringLiteral("window"), MeasureWindow},      {QStringLiteral("paint"), MeasurePaint},
      {QStringLiteral("html"), MeasureHtml},          {QStringLiteral("dates"), MeasureDates},
      {QStringLiteral("bars"), MeasureBars},          {QStringLiteral("label"), MeasureGraphicLabel},
      {QStringLiteral("styles"), MeasureStyles},
  };
  return table;
}

// The measured files, made when they are needed.
class Files {
 public:
  QString Form(int count) { return File(count, QStringLiteral("dfm"), FormText); }
  QString Labels(int count, bool referring) {
    return File(count, referring ? QStringLiteral("referring.dfm") : QStringLiteral("labels.dfm"), FormText,
                [&] { return MakeLabels(count, referring); });
  }
  QString Ui(int count) { return File(count, QStringLiteral("ui"), UiText); }

 private:
  using Design = std::vector<Item>;
  QString File(int count, const QString& suffix, QByteArray (*text)(const Design&),
               const std::function<Design()>& design = {}) {
    const QString name = folder_.filePath(QStringLiteral("%1.%2").arg(count).arg(suffix));
    QFile file(name);
    if (!file.exists() &&
        (!file.open(QIODevice::WriteOnly) || file.write(text(design ? design() : MakeDesign(count))) < 0))
      qFatal("Cannot write %s", qPrintable(name));
    return name;
  }
  QTemporaryDir folder_;
};

// A pair of times that a task of its own measures.
struct PairRow {
  const char* key;
  const char* what;
  const char* target;
};
constexpr PairRow PaintRows[] = {
    {"paint", "Paint a form of 500 mixed standard controls / the same by plain calls of the style",
     "at most 3"},
};
constexpr PairRow HtmlRows[] = {
    {"cold", "Draw 1,000 rows of markup: time / the same by QTextDocument", "at most 1"},
    {"warm", "Draw 1,000 rows of markup again: time / the same by QTextDocument", "at most 1"},
};
constexpr PairRow BarRows[] = {
    {"bars", "Open a section of a button bar and paint it: 200 sections of 200 items / 10 of 10", "about 1"},
};
constexpr PairRow LabelRows[] = {
    {"label", "Paint a bent text with fill, line and shadow: time / its outline filled once", "at most 3"},
};
constexpr PairRow StyleRows[] = {
    {"register", "Register the classes of 5,000 components / walk their published properties once",
     "at most 2"},
    {"apply", "Apply a style of six values to 10,000 fields / call the setters", "at most 2"},
    {"open", "Open the style editor on 1,000 styles of 20 values / fill a tree of as many items",
     "at most 2"},
};
constexpr PairRow DateRows[] = {
    {"dates", "Open the list of 100,000 dates / fill a standard item model with their texts", "at most 3"},
};
constexpr PairRow PixelRows[] = {
    {"region", "Region of a picture: time / copying its pixels and rectangles", "at most 4"},
    {"pixman", "Region: time of pixman / ours", "at least 4"},
    {"many", "Region: 500 transparent colours / one", "at most 2.5"},
    {"border", "Region border: membership tests of every point / ours", "at least 50"},
    {"button", "3D button: time / copying its four pictures", "at most 3.5"},
    {"progress", "3D button: with progress / without", "at most 3"},
    {"wide", "3D button: bevel of 20 / of 2", "follows the rings"},
};

class Bench {
 public:
  // One part alone, "--styles", "--start" or "--pixels"; all without one.
  explicit Bench(QString only) : only_(std::move(only)) {}

  void Run() {
    out_ << "| What | Target | Of the minima | Median |\n| --- | --- | --- | --- |\n";
    if (only_.isEmpty()) {
      AgainstUiLoader();
      Growth("load-form", QStringLiteral("Load"), QStringLiteral("at most 1.5"));
      Growth("save-form", QStringLiteral("Save"), QStringLiteral("at most 1.3"));
      Edits();
      Modified();
      References();
      Window();
      Paint();
      Bars();
      Html();
      Dates();
      Label();
    }
    if (only_.isEmpty() || only_ == QStringLiteral("--styles")) Styles();
    if (only_.isEmpty() || only_ == QStringLiteral("--start")) Start();
    if (only_.isEmpty() || only_ == QStringLiteral("--pixels")) Pixels();
  }

 private:
  static constexpr int WarmUp = 100;
  static constexpr int Rounds = 9;

  Results Measure(const QString& task, int count) {
    const bool ui = task == QStringLiteral("load-ui");
    const auto file = [&](int n) { return ui ? files_.Ui(n) : files_.Form(n); };
    return Results::RunApart({task, file(count), file(WarmUp)});
  }
  void Row(const QString& what, const QString& target, const Pairs& pairs) {
    const auto number = [](double v) { return QString::number(v, 'f', 2); };
    out_ << "| " << what << " | " << target << " | " << number(pairs.OfMinima()) << " | "
         << number(pairs.MedianRatio()) << " |" << Qt::endl;
  }

  void AgainstUiLoader() {
    constexpr int count = 10'000;
    Pairs time, memory;
    for (int i = 0; i < Rounds; ++i) {
      const Results ui = Measure(QStringLiteral("load-ui"), count);
      const Results form = Measure(QStringLiteral("load-form"), count);
      if (ui.Value("count") != count || form.Value("count") != count) qFatal("Not all components were made");
      time.Add(ui.Value("time"), form.Value("time"));
      memory.Add(form.Value("memory"), ui.Value("memory"));
    }
    Row(QStringLiteral("Load 10,000 components: time of QUiLoader / time of the form"),
        QStringLiteral("at least 15"), time);
    Row(QStringLiteral("Load 10,000 components: peak memory of the form / of QUiLoader"),
        QStringLiteral("at most 0.2"), memory);
  }

  void Growth(const char* name, const QString& verb, const QString& target) {
    constexpr int base = 1'000;
    const QString task = QString::fromLatin1(name);
    for (const int count : {10'000, 100'000}) {
      Pairs each;
      for (int i = 0; i < Rounds; ++i) {
        const double large = Measure(task, count).Value("time") / count;
        each.Add(large, Measure(task, base).Value("time") / base);
      }
      Row(QStringLiteral("%1: time per component at %2,000 / at 1,000").arg(verb).arg(count / 1000), target,
          each);
    }
  }

  void Edits() {
    Pairs edit, undo;
    for (int i = 0; i < 3; ++i) {
      const Results large = Measure(QStringLiteral("edit-form"), 100'000);
      const Results small = Measure(QStringLiteral("edit-form"), 100);
      edit.Add(large.Value("edit"), small.Value("edit"));
      undo.Add(large.Value("undo"), small.Value("undo"));
    }
    const QString what = QStringLiteral("One property, %1: time on 100,000 components / on 100");
    Row(what.arg(QStringLiteral("edit")), QStringLiteral("about 1"), edit);
    Row(what.arg(QStringLiteral("undo")), QStringLiteral("about 1"), undo);
  }

  void Modified() {
    Pairs modified;
    for (int i = 0; i < 3; ++i) {
      const double large = Measure(QStringLiteral("modified"), 10'000).Value("modified");
      modified.Add(large, Measure(QStringLiteral("modified"), 100).Value("modified"));
    }
    Row(QStringLiteral(
            "An editor says that something changed, and nothing did: time on 10,000 components / on 100"),
        QStringLiteral("about 1"), modified);
  }

  void References() {
    Pairs each;
    for (int i = 0; i < Rounds; ++i) {
      const auto load = [&](bool referring) {
        return Results::RunApart(
                   {QStringLiteral("load-form"), files_.Labels(10'000, referring), files_.Form(WarmUp)})
            .Value("time");
      };
      const double with = load(true);
      each.Add(with, load(false));
    }
    Row(QStringLiteral("Load 10,000 labels: time with references to one button / without"),
        QStringLiteral("at most 1.2"), each);
  }

  // Through the real window, until it is painted.
  void Window() {
    constexpr std::pair<const char*, const char*> steps[] = {{"edit", "at most 1.5"},
                                                             {"undo", "at most 1.5"},
                                                             {"select", "at most 1.5"},
                                                             {"nudge", "at most 1.5"},
                                                             {"place", "follows the tree"}};
    for (const bool referring : {false, true}) {
      const auto file = [&](int n) { return referring ? files_.Labels(n, true) : files_.Form(n); };
      std::map<QByteArray, Pairs> all;
      for (int i = 0; i < 3; ++i) {
        const Results large = Results::RunApart({QStringLiteral("window"), file(10'000), file(WarmUp)});
        const Results small = Results::RunApart({QStringLiteral("window"), file(100), file(WarmUp)});
        for (const auto& [step, target] : steps) all[step].Add(large.Value(step), small.Value(step));
      }
      for (const auto& [step, target] : steps)
        Row(QStringLiteral("Until painted, %1: time on 10,000 components / on 100%2")
                .arg(QString::fromLatin1(step),
                     referring ? QStringLiteral(", all referring to one") : QString()),
            QString::fromLatin1(target), all[step]);
    }
  }

  // Several processes, because where its memory lies stays with a process.
  void Alone(std::span<const PairRow> rows, const QStringList& task, const QString& where = {}) {
    std::map<const char*, Pairs> all;
    for (int i = 0; i < 3; ++i) {
      const Results r = Results::RunApart(task);
      for (const PairRow& row : rows)
        if (r.Has(row.key)) all[row.key].Add(r.ThePairs(row.key));
    }
    for (const PairRow& row : rows)
      if (all.contains(row.key))
        Row(QString::fromLatin1(row.what) + where, QString::fromLatin1(row.target), all[row.key]);
  }
  void Paint() { Alone(PaintRows, {QStringLiteral("paint"), {}, {}}); }
  void Bars() { Alone(BarRows, {QStringLiteral("bars"), {}, {}}); }
  void Html() { Alone(HtmlRows, {QStringLiteral("html"), {}, {}}); }
  void Dates() { Alone(DateRows, {QStringLiteral("dates"), {}, {}}); }
  void Styles() { Alone(StyleRows, {QStringLiteral("styles"), {}, {}}); }
  void Label() { Alone(LabelRows, {QStringLiteral("label"), {}, {}}); }

  // The designer's program in small, which is linked as it is: nothing of the package is in memory before.
  void Start() {
    const QString program = QCoreApplication::applicationDirPath() + QStringLiteral("/start_bench");
    Pairs time, memory;
    for (int i = 0; i < 2 * Rounds; ++i) {
      const Results with = Results::RunApart({QStringLiteral("with")}, program);
      const Results without = Results::RunApart({QStringLiteral("without")}, program);
      time.Add(with.Value("time") / 1e6, without.Value("time") / 1e6);
      memory.Add(with.Value("memory"), without.Value("memory"));
    }
    out_ << "| Start the designer: milliseconds more with the package than without | at most 30 | "
         << QString::number(time.MoreOfMinima(), 'f', 1) << " | "
         << QString::number(time.MedianMore(), 'f', 1) << " |" << Qt::endl;
    Row(QStringLiteral("Designer at rest: resident memory with the package / without"),
        QStringLiteral("at most 1.5"), memory);
  }

  void Pixels() {
    for (const char* size : {"1920x1080", "4096x4096"})
      for (const char* kind : {"noise", "blobs", "text"}) {
        const QString name = QString::fromLatin1(kind), area = QString::fromLatin1(size);
        Alone(PixelRows, {QStringLiteral("pixels"), name, area}, QStringLiteral(" (%1, %2)").arg(name, area));
      }
  }

  QString only_;
  Files files_;
  QTextStream out_{stdout};
};
}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const auto quiet = [](QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtCriticalMsg || type == QtFatalMsg) fprintf(stderr, "form_bench: %s\n", qPrintable(text));
  };
  qInstallMessageHandler(quiet);
  if (argc == 4) {
    QApplication app(argc, argv);
    const QStringList arguments = app.arguments();
    const auto task = TaskTable().find(arguments[1]);
    if (task == TaskTable().end()) qFatal("There is no task \"%s\"", argv[1]);
    task->second(arguments[2], arguments[3]);
    return 0;
  }
  QCoreApplication app(argc, argv);
  const QStringList options = app.arguments();
  Bench(options.value(1)).Run();
  return 0;
}
