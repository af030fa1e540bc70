#include <unistd.h>
#include <QDir>

#include "cli/PixelCommands.h"
#include "library/pixels/Button3D.h"
#include "rtl/Exceptions.h"
#include "vcl/PictureFile.h"

namespace {
struct Effect {
  std::optional<TColor> transparent;
  TColor light = clWhite, shadow = clGray, dither = clWhite, bevel = clBlack;
  int width = 2;
  bool semi = false;
  TColor semiKey = clNone, semiSecond = clNone;
};
struct Results {
  TBitmap up, down, disabled;
};

// A bar on a terminal; nothing where the output goes elsewhere.
class TerminalProgress : public IVRXProgress {
 public:
  explicit TerminalProgress(QTextStream& out) : out_(out) {}
  ~TerminalProgress() override {
    if (shown_ >= 0) out_ << "\r" << QString(Width + 8, u' ') << "\r" << Qt::flush;
  }
  void Report(int percent, std::int64_t) override {
    if (percent == shown_) return;
    shown_ = percent;
    const int full = std::min(percent, 100) * Width / 100;
    out_ << "\r[" << QString(full, u'#') << QString(Width - full, u' ') << "] "
         << QStringLiteral("%1%").arg(percent, 3) << Qt::flush;
  }
  void ProcessMessages(std::int64_t) override {}

 private:
  static constexpr int Width = 40;
  QTextStream& out_;
  int shown_ = -1;
};

Results Draw(const QString& file, const Effect& e, IVRXProgress* progress) {
  const TBitmap source = LoadPicture(file);
  const TColor transparent = e.transparent.value_or(source.Pixel(0, source.Height() - 1));
  RequireButton3DSize(QStringLiteral("%1: with a bevel of %2, each of the pictures").arg(file).arg(e.width),
                      source, e.width);
  Results r;
  VRXDrawButton3D(source, r.up, r.down, r.disabled, transparent, e.light, e.shadow, e.dither, e.semiSecond,
                  e.semiKey, e.bevel, e.semi, e.width, progress);
  return r;
}

Effect ReadOptions(const Arguments& args) {
  Effect e;
  const auto color = [&](const char* name, auto&& set) {
    const QString option = QString::fromLatin1(name);
    if (args.Has(option)) set(ColorOption(option, args.options[option]));
  };
  // What is only drawn is resolved here, once; what is compared stays as it is.
  color("--transparent", [&](TColor c) { e.transparent = c; });
  color("--light", [&](TColor c) { e.light = ColorToRGB(c); });
  color("--shadow", [&](TColor c) { e.shadow = ColorToRGB(c); });
  color("--dither", [&](TColor c) { e.dither = ColorToRGB(c); });
  color("--bevel", [&](TColor c) { e.bevel = ColorToRGB(c); });
  if (args.Has(QStringLiteral("--width"))) {
    bool ok = false;
    const QString text = args.options[QStringLiteral("--width")];
    e.width = text.toInt(&ok);
    if (!ok || e.width < 0 || e.width > 255)
      throw UsageError{QStringLiteral("--width takes a number from 0 to 255, not \"%1\"").arg(text)};
  }
  if (args.Has(QStringLiteral("--semi"))) {
    const QStringList parts = args.options[QStringLiteral("--semi")].split(u',');
    if (parts.size() != 2) throw UsageError{QStringLiteral("--semi takes two colors, KEY,SECOND")};
    e.semi = true;
    e.semiKey = ColorOption(QStringLiteral("--semi"), parts[0]);
    e.semiSecond = ColorToRGB(ColorOption(QStringLiteral("--semi"), parts[1]));
  }
  return e;
}
}  // namespace

int Effect3DCommand(const QStringList& list, Console& console) {
  const QStringList outputs{QStringLiteral("--up"), QStringLiteral("--down"), QStringLiteral("--disabled")};
  const Arguments args = ParseArguments(
      list,
      outputs + QStringList{QStringLiteral("--transparent"), QStringLiteral("--light"),
                            QStringLiteral("--shadow"), QStringLiteral("--dither"), QStringLiteral("--bevel"),
                            QStringLiteral("--width"), QStringLiteral("--semi"), QStringLiteral("--out-dir")},
      {});
  if (args.values.isEmpty()) throw UsageError{QStringLiteral("a SOURCE picture is needed")};
  const Effect effect = ReadOptions(args);
  const bool named =
      std::any_of(outputs.begin(), outputs.end(), [&](const QString& o) { return args.Has(o); });
  if (args.Has(QStringLiteral("--out-dir"))) {
    if (named)
      throw UsageError{
          QStringLiteral("--out-dir names the pictures itself; leave --up, --down and --disabled out")};
    const QString folder = args.options[QStringLiteral("--out-dir")];
    CheckDistinct(args.values);
    if (!QDir().mkpath(folder)) throw Exception(QStringLiteral("The folder %1 cannot be made").arg(folder));
    return RunOnAllCores(args.values, console, QStringLiteral("effect3d"), [&](const QString& source) {
      const Results r = Draw(source, effect, nullptr);
      WritePng(OutputFile(folder, source, QStringLiteral("up.png")), r.up);
      WritePng(OutputFile(folder, source, QStringLiteral("down.png")), r.down);
      WritePng(OutputFile(folder, source, QStringLiteral("disabled.png")), r.disabled);
    });
  }
  if (args.values.size() != 1) throw UsageError{QStringLiteral("several sources need --out-dir DIR")};
  if (!named) throw UsageError{QStringLiteral("at least one of --up, --down and --disabled is needed")};
  Results r;
  {
    std::optional<TerminalProgress> bar;
    if (isatty(STDERR_FILENO)) bar.emplace(console.err);
    VRX3DEffectAbort = false;
    r = Draw(args.values[0], effect, bar ? &*bar : nullptr);
  }
  const TBitmap* const pictures[] = {&r.up, &r.down, &r.disabled};
  for (qsizetype i = 0; i < outputs.size(); ++i)
    if (args.Has(outputs[i])) WritePng(args.options[outputs[i]], *pictures[i]);
  return ExitOk;
}
