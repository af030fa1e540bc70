#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <mutex>

#include "cli/PixelCommands.h"
#include "forms/FormFile.h"
#include "library/pixels/RegionFromBitmap.h"
#include "rtl/Exceptions.h"
#include "vcl/PictureFile.h"

namespace {
struct Shape {
  std::vector<TColor> transparent;
  TRegionBorder border = TRegionBorder::None;
  std::optional<TRegionButton> button;
};

template <class E>
E Choice(const QString& option, const QString& text, const QStringList& names) {
  const auto index = names.indexOf(text.toLower());
  if (index < 0)
    throw UsageError{
        QStringLiteral("%1 takes %2, not \"%3\"").arg(option, names.join(QStringLiteral(", ")), text)};
  return static_cast<E>(index);
}

TRegionBuild Build(const QString& file, const Shape& shape) {
  const TBitmap source = LoadPicture(file);
  return shape.button ? BuildButtonRegion(source, shape.transparent, *shape.button, nullptr)
                      : BuildWindowRegion(source, shape.transparent, shape.border, nullptr);
}

QJsonObject ToJson(const QString& source, const TRegionBuild& build) {
  const auto rect = [](const TRect& r) { return QJsonArray{r.Left, r.Top, r.Right, r.Bottom}; };
  const TRegion region = build.Region.value_or(TRegion());
  QJsonArray rects;
  for (const TRect& r : region.Rects()) rects << rect(r);
  return {{QStringLiteral("source"), source},
          {QStringLiteral("bounds"), rect(region.Bounds())},
          {QStringLiteral("count"), static_cast<qint64>(region.Rects().size())},
          {QStringLiteral("rectangles"), rects}};
}

// --transparent may be given several times, each with several colours.
QStringList TakeColors(QStringList& list) {
  const QString option = QStringLiteral("--transparent");
  QStringList colors;
  for (qsizetype i = 0; i < list.size();) {
    if (list[i] == QStringLiteral("--")) break;
    if (list[i] == option) {
      if (i + 1 == list.size()) throw UsageError{QStringLiteral("%1 needs a value").arg(option)};
      colors << list[i + 1].split(u',');
      list.remove(i, 2);
    } else if (list[i].startsWith(option + u'=')) {
      colors << list[i].mid(option.size() + 1).split(u',');
      list.removeAt(i);
    } else {
      ++i;
    }
  }
  return colors;
}

Shape ReadShape(const QStringList& colors, const Arguments& args) {
  Shape shape;
  for (const QString& text : colors)
    shape.transparent.push_back(ColorOption(QStringLiteral("--transparent"), text));
  if (shape.transparent.empty()) throw UsageError{QStringLiteral("--transparent needs at least one color")};
  if (shape.transparent.size() > MaxTransparentColors)
    throw UsageError{QStringLiteral("--transparent takes at most %1 colors").arg(MaxTransparentColors)};
  const QString border = QStringLiteral("--border"), button = QStringLiteral("--button");
  if (args.Has(border) && args.Has(button))
    throw UsageError{QStringLiteral("--border is for windows, --button for buttons; give one")};
  if (args.Has(border))
    shape.border = Choice<TRegionBorder>(
        border, args.options[border],
        {QStringLiteral("none"), QStringLiteral("single"), QStringLiteral("raised"),
         QStringLiteral("lowered"), QStringLiteral("single-raised"), QStringLiteral("single-lowered")});
  if (args.Has(button))
    shape.button =
        Choice<TRegionButton>(button, args.options[button],
                              {QStringLiteral("win31"), QStringLiteral("win40"), QStringLiteral("simple")});
  return shape;
}
}  // namespace

int RegionCommand(const QStringList& arguments, Console& console) {
  QStringList list = arguments;
  const QStringList colors = TakeColors(list);
  const QString first = QStringLiteral("--first"), second = QStringLiteral("--second"),
                region = QStringLiteral("--region"), picture = QStringLiteral("--picture"),
                json = QStringLiteral("--json"), outDir = QStringLiteral("--out-dir");
  const Arguments args = ParseArguments(
      list, {QStringLiteral("--border"), QStringLiteral("--button"), first, second, region, picture, outDir},
      {json});
  if (args.values.isEmpty()) throw UsageError{QStringLiteral("a SOURCE picture is needed")};
  const Shape shape = ReadShape(colors, args);
  if (!shape.button && (args.Has(first) || args.Has(second)))
    throw UsageError{QStringLiteral("--first and --second are the states of a --button")};
  const auto print = [&](const QJsonValue& value) {
    const QJsonDocument document =
        value.isArray() ? QJsonDocument(value.toArray()) : QJsonDocument(value.toObject());
    console.out << QString::fromUtf8(document.toJson(QJsonDocument::Compact)) << Qt::endl;
  };
  if (args.Has(outDir)) {
    for (const QString& option : {first, second, region, picture})
      if (args.Has(option))
        throw UsageError{QStringLiteral("--out-dir names the files itself; leave %1 out").arg(option)};
    const QString folder = args.options[outDir];
    CheckDistinct(args.values);
    if (!QDir().mkpath(folder)) throw Exception(QStringLiteral("The folder %1 cannot be made").arg(folder));
    std::mutex guard;
    QHash<QString, QJsonObject> told;
    const int result =
        RunOnAllCores(args.values, console, QStringLiteral("region"), [&](const QString& source) {
          const TRegionBuild build = Build(source, shape);
          forms::WriteFile(OutputFile(folder, source, QStringLiteral("region.rgn")), build.RegionData());
          WritePng(OutputFile(folder, source, QStringLiteral("border.png")), build.Border);
          if (shape.button) {
            WritePng(OutputFile(folder, source, QStringLiteral("first.png")), build.First);
            WritePng(OutputFile(folder, source, QStringLiteral("second.png")), build.Second);
          }
          if (!args.Has(json)) return;
          const std::lock_guard lock(guard);
          told.insert(source, ToJson(source, build));
        });
    if (args.Has(json)) {
      QJsonArray all;
      for (const QString& source : args.values)
        if (told.contains(source)) all << told[source];
      print(all);
    }
    return result;
  }
  if (args.values.size() != 1) throw UsageError{QStringLiteral("several sources need --out-dir DIR")};
  const TRegionBuild build = Build(args.values[0], shape);
  if (args.Has(region)) forms::WriteFile(args.options[region], build.RegionData());
  if (args.Has(picture)) WritePng(args.options[picture], build.Border);
  if (args.Has(first)) WritePng(args.options[first], build.First);
  if (args.Has(second)) WritePng(args.options[second], build.Second);
  if (args.Has(json)) print(ToJson(args.values[0], build));
  if (!build.Region)
    console.err << "vrx region: " << args.values[0] << ": no pixel is left; there is no region" << Qt::endl;
  return ExitOk;
}
