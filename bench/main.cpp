// Measures loading, saving and editing of large forms and prints the ratios as a table. Slow results are no
// error.
#include <QApplication>
#include <QTemporaryDir>
#include <QTextStream>

#include "bench/Generate.h"
#include "bench/Measure.h"
#include "bench/PixelTasks.h"
#include "bench/Tasks.h"

namespace {
const std::map<QString, void (*)(const QString&, const QString&)>& TaskTable() {
  static const std::map<QString, void (*)(const QString&, const QString&)> table{
      {QStringLiteral("load-form"), MeasureFormLoad}, {QStringLiteral("load-ui"), MeasureUiLoad},
      {QStringLiteral("save-form"), MeasureFormSave}, {QStringLiteral("edit-form"), MeasureEdit},
      {QStringLiteral("pixels"), MeasurePixels},
  };
  return table;
}

// The measured files, made when they are needed.
class Files {
 public:
  QString Form(int count) { return File(count, QStringLiteral("dfm"), FormText); }
  QString Ui(int count) { return File(count, QStringLiteral("ui"), UiText); }

 private:
  QString File(int count, const QString& suffix, QByteArray (*text)(const std::vector<Item>&)) {
    const QString name = folder_.filePath(QStringLiteral("%1.%2").arg(count).arg(suffix));
    QFile file(name);
    if (!file.exists() && (!file.open(QIODevice::WriteOnly) || file.write(text(MakeDesign(count))) < 0))
      qFatal("Cannot write %s", qPrintable(name));
    return name;
  }
  QTemporaryDir folder_;
};

class Bench {
 public:
  Bench(bool verbose, bool pixelsOnly) : verbose_(verbose), pixelsOnly_(pixelsOnly) {}

  void Run() {
    out_ << "| What | Target | Measured |\n| --- | --- | --- |\n";
    if (!pixelsOnly_) {
      AgainstUiLoader();
      Growth();
      Edits();
    }
    Pixels();
  }
  void Pixels() {
    for (const char* size : {"1920x1080", "4096x4096"})
      for (const auto& [kind, copies] :
           {std::pair("noise", 12), std::pair("blobs", 3), std::pair("text", 5)}) {
        const QString name = QString::fromLatin1(kind), area = QString::fromLatin1(size);
        const Results r = RunApart({QStringLiteral("pixels"), name, area}, 3);
        const auto row = [&](const QString& what, const QString& target, const char* key) {
          if (r.contains(QString::fromLatin1(key)))
            Row(what + QStringLiteral(" (%1, %2)").arg(name, area), target, r[QString::fromLatin1(key)]);
        };
        row(QStringLiteral("Region of a picture: time / copying its pixels"),
            QStringLiteral("at most %1").arg(copies), "region");
        row(QStringLiteral("Region: time of pixman / ours"), QStringLiteral("at least 3"), "pixman");
        row(QStringLiteral("Region: 500 transparent colours / one"), QStringLiteral("at most 3"), "many");
        row(QStringLiteral("Region border: membership tests of every point / ours"),
            QStringLiteral("at least 50"), "border");
        row(QStringLiteral("3D button: time / copying its four pictures"), QStringLiteral("at most 4"),
            "button");
        row(QStringLiteral("3D button: with progress / without"), QStringLiteral("at most 3"), "progress");
        row(QStringLiteral("3D button: bevel of 20 / of 2"), QStringLiteral("follows the rings"), "wide");
      }
  }

 private:
  static constexpr int WarmUp = 100;

  Results Measure(const QString& task, int count, int runs) {
    const bool ui = task == QStringLiteral("load-ui");
    const auto file = [&](int n) { return ui ? files_.Ui(n) : files_.Form(n); };
    const Results results = RunApart({task, file(count), file(WarmUp)}, runs);
    if (verbose_) {
      err_ << task << ' ' << count << ':';
      for (auto it = results.cbegin(); it != results.cend(); ++it)
        err_ << ' ' << it.key() << '=' << it.value() << " (" << it.value() / count << " each)";
      err_ << Qt::endl;
    }
    return results;
  }
  void Row(const QString& what, const QString& target, double measured) {
    out_ << "| " << what << " | " << target << " | " << QString::number(measured, 'f', 2) << " |" << Qt::endl;
  }

  void AgainstUiLoader() {
    constexpr int count = 10'000;
    const Results ui = Measure(QStringLiteral("load-ui"), count, 5);
    const Results form = Measure(QStringLiteral("load-form"), count, 5);
    if (ui[QStringLiteral("count")] != count || form[QStringLiteral("count")] != count)
      qFatal("Not all components were made");
    Row(QStringLiteral("Load 10,000 components: time of QUiLoader / time of the form"),
        QStringLiteral("at least 10"), ui[QStringLiteral("time")] / form[QStringLiteral("time")]);
    Row(QStringLiteral("Load 10,000 components: peak memory of the form / of QUiLoader"),
        QStringLiteral("at most 0.25"), form[QStringLiteral("memory")] / ui[QStringLiteral("memory")]);
  }

  void Growth() {
    for (const char* task : {"load-form", "save-form"}) {
      const auto each = [&](int count, int runs) {
        return Measure(QString::fromLatin1(task), count, runs)[QStringLiteral("time")] / count;
      };
      const double base = each(1'000, 15);
      const QString what =
          QStringLiteral("%1: time per component at %2 / at 1,000")
              .arg(qstrcmp(task, "load-form") == 0 ? QStringLiteral("Load") : QStringLiteral("Save"));
      const QString target = QStringLiteral("at most 1.5");
      Row(what.arg(QStringLiteral("10,000")), target, each(10'000, 9) / base);
      Row(what.arg(QStringLiteral("100,000")), target, each(100'000, 5) / base);
    }
  }

  void Edits() {
    const Results small = Measure(QStringLiteral("edit-form"), 100, 5);
    const Results large = Measure(QStringLiteral("edit-form"), 100'000, 3);
    for (const char* name : {"edit", "undo"}) {
      const QString key = QString::fromLatin1(name);
      Row(QStringLiteral("One property, %1: time on 100,000 components / on 100").arg(key),
          QStringLiteral("about 1"), large[key] / small[key]);
    }
  }

  bool verbose_, pixelsOnly_;
  Files files_;
  QTextStream out_{stdout};
  QTextStream err_{stderr};
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
  Bench(options.contains(QStringLiteral("--verbose")), options.contains(QStringLiteral("--pixels"))).Run();
  return 0;
}
