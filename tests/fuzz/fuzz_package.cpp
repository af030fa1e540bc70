// Fuzz target: the record in a plug-in's metadata, as JSON and as the binary form that plug-ins keep it in.
#include <QCborMap>
#include <QCborValue>
#include <QJsonDocument>

#include "designintf/Package.h"
#include "rtl/Printable.h"
#include "tests/fuzz/Target.h"

namespace {
bool Harmless(const QString& text) {
  const QString shown = Printable(text);
  return std::none_of(shown.begin(), shown.end(), IsControl) && Printable(shown) == shown;
}

void Check(const QJsonObject& meta) {
  const TPackageRecord record = TPackageRecord::FromJson(meta);
  const QJsonObject once = record.ToJson();
  const TPackageRecord again = TPackageRecord::FromJson(once);
  Require(again.ToJson() == once, "a record that was written is read alike");
  Require(again.Name == record.Name && again.Requires == record.Requires &&
              again.Contains.size() == record.Contains.size(),
          "nothing of a record is lost");
  Require(Harmless(record.Name) && Harmless(record.Description), "texts of a record can be shown");
  for (const QString& name : record.Requires + record.Provides)
    Require(Harmless(name), "names of a record can be shown");
  for (const TPackageUnit& unit : record.Contains) Require(Harmless(unit.Name), "units can be shown");
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const QJsonDocument json = QJsonDocument::fromJson(bytes);
  if (json.isObject()) Check(json.object());
  const QCborValue cbor = QCborValue::fromCbor(bytes);
  if (cbor.isMap()) Check(cbor.toMap().toJsonObject());
  return 0;
}
