// The cases with known results in data/: an index of each folder and the pictures beside it.
#pragma once
#include <QJsonArray>
#include <QJsonObject>
#include <string>
#include <vector>

#include "RecordingProgress.h"
#include "vcl/Bitmap.h"
#include "vcl/Region.h"

struct GoldenCase {
  QString Folder;
  QJsonObject Json;
  QString Id() const { return Json[QStringLiteral("id")].toString(); }
  QString Kind() const { return Json[QStringLiteral("kind")].toString(); }
  QJsonValue operator[](const char* key) const { return Json[QLatin1String(key)]; }

  int Int(const char* key) const;
  bool Bool(const char* key) const { return (*this)[key].toBool(); }
  TColor Color(const char* key) const;
  std::vector<TColor> Colors(const char* key) const;
  // A picture that the case must have.
  TBitmap Picture(const char* key) const;
};
void PrintTo(const GoldenCase& golden, std::ostream* out);

// All cases of a folder, of one kind when it is not null.
std::vector<GoldenCase> GoldenCases(const char* folder, const char* kind = nullptr);
// The name of a parameterised test of the case.
std::string GoldenName(const testing::TestParamInfo<GoldenCase>& info);

// [[percent, times], ...], or a plain list of percents.
PercentRuns RunsOf(const QJsonValue& list);
std::vector<TRect> RectsOf(const QJsonValue& list);
