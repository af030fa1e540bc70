// A window system of a test's own, without a window manager. While it lives DISPLAY leads to it.
#pragma once
#include <gtest/gtest.h>

#include <QProcess>
#include <QStandardPaths>

#include "tests/support/Waiting.h"

class OwnXServer {
 public:
  static bool IsInstalled() { return !Program().isEmpty(); }
  OwnXServer() {
    server_.start(Program(), {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                              QStringLiteral("0"), QStringLiteral("640x480x24"), QStringLiteral("-nolisten"),
                              QStringLiteral("tcp")});
    QByteArray number;
    while (!number.endsWith('\n') && server_.waitForReadyRead(WaitLimit))
      number += server_.readAllStandardOutput();
    EXPECT_FALSE(number.trimmed().isEmpty()) << "Xvfb did not start";
    before_ = qgetenv("DISPLAY");
    qputenv("DISPLAY", ":" + number.trimmed());
  }
  ~OwnXServer() {
    before_.isEmpty() ? qunsetenv("DISPLAY") : qputenv("DISPLAY", before_);
    End();
  }
  OwnXServer(const OwnXServer&) = delete;
  OwnXServer& operator=(const OwnXServer&) = delete;
  // As if it had crashed: DISPLAY leads nowhere.
  void End() {
    server_.terminate();
    server_.waitForFinished(WaitLimit);
  }

 private:
  static QString Program() { return QStandardPaths::findExecutable(QStringLiteral("Xvfb")); }
  QProcess server_;
  QByteArray before_;
};
