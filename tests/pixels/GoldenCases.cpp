#include "GoldenCases.h"

#include <QFile>
#include <QJsonDocument>
#include <stdexcept>

namespace {
QString DataFolder(const QString& folder) {
  return QStringLiteral(VRX_SOURCE_DIR "/tests/pixels/data/") + folder + u'/';
}

[[noreturn]] void Fail(const QString& what) { throw std::runtime_error(what.toStdString()); }

TColor ParseColor(const QJsonValue& value) {
  bool ok = false;
  const unsigned bits = value.toString().toUInt(&ok, 0);
  if (!ok) Fail(QStringLiteral("not a colour: %1").arg(value.toString()));
  return TColor(bits);
}
}  // namespace

void PrintTo(const GoldenCase& golden, std::ostream* out) {
  *out << qPrintable(golden.Id()) << ' ' << qPrintable(golden["note"].toString());
}

int GoldenCase::Int(const char* key) const {
  const QJsonValue value = (*this)[key];
  if (!value.isDouble()) Fail(QStringLiteral("%1 has no number %2").arg(Id(), QLatin1String(key)));
  return value.toInt();
}

TColor GoldenCase::Color(const char* key) const { return ParseColor((*this)[key]); }

std::vector<TColor> GoldenCase::Colors(const char* key) const {
  std::vector<TColor> colors;
  for (const QJsonValue& value : (*this)[key].toArray()) colors.push_back(ParseColor(value));
  return colors;
}

TBitmap GoldenCase::Picture(const char* key) const {
  const QJsonObject picture = (*this)[key].toObject();
  const int width = picture[QStringLiteral("w")].toInt(-1), height = picture[QStringLiteral("h")].toInt(-1);
  if (width < 0 || height < 0) Fail(QStringLiteral("%1 has no picture %2").arg(Id(), QLatin1String(key)));
  const QJsonValue file = picture[QStringLiteral("file")];
  if (file.isNull()) return TBitmap(width, height);
  const QImage image(DataFolder(Folder) + file.toString());
  if (image.width() != width || image.height() != height)
    Fail(QStringLiteral("%1 is missing or of another size").arg(file.toString()));
  return TBitmap::FromImage(image);
}

std::vector<GoldenCase> GoldenCases(const char* folder, const char* kind) {
  const QString name = QString::fromLatin1(folder);
  QFile file(DataFolder(name) + QStringLiteral("index.json"));
  if (!file.open(QIODevice::ReadOnly)) Fail(QStringLiteral("cannot read %1").arg(file.fileName()));
  std::vector<GoldenCase> cases;
  const QJsonObject index = QJsonDocument::fromJson(file.readAll()).object();
  for (const QJsonValue& value : index[QStringLiteral("cases")].toArray()) {
    GoldenCase golden{name, value.toObject()};
    if (!kind || golden.Kind() == QLatin1String(kind)) cases.push_back(golden);
  }
  return cases;
}

std::string GoldenName(const testing::TestParamInfo<GoldenCase>& info) {
  std::string name = info.param.Id().toStdString();
  for (char& c : name)
    if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
  return name;
}

PercentRuns RunsOf(const QJsonValue& list) {
  PercentRuns runs;
  for (const QJsonValue& value : list.toArray()) {
    const QJsonArray pair = value.toArray();
    const PercentRun run =
        value.isArray() ? PercentRun{pair[0].toInt(-1), pair[1].toInt(-1)} : PercentRun{value.toInt(-1), 1};
    runs = Joined(std::move(runs), {run});
  }
  return runs;
}

std::vector<TRect> RectsOf(const QJsonValue& list) {
  std::vector<TRect> rects;
  for (const QJsonValue& value : list.toArray()) {
    const QJsonArray r = value.toArray();
    rects.push_back({r[0].toInt(), r[1].toInt(), r[2].toInt(), r[3].toInt()});
  }
  return rects;
}
