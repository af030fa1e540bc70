// Cases that were worked out beforehand, as JSON.
#pragma once
#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

inline QJsonObject Vectors(const char* name) {
  QFile file(QStringLiteral(VRX_SOURCE_DIR "/tests/vectors/") + QString::fromLatin1(name));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
  return QJsonDocument::fromJson(file.readAll()).object();
}
