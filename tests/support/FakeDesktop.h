// A desktop that does what a test says.
#pragma once
#include <QSemaphore>
#include <QStringList>
#include <atomic>

#include "library/keys/DesktopMaker.h"

struct Scene {
  std::vector<TVRXDesktopWindow> windows{{7, QStringLiteral("Fake"), 0}};
  QStringList done;  // "down a", "a", "up a"; written by one thread at a time
  std::function<void(const QByteArray&)> press;
  std::atomic<bool> keyboard = true;
  bool locked = false;
  QSemaphore gone;  // whenever nobody works on it any more
};

class FakeDesktop : public IDesktop {
 public:
  explicit FakeDesktop(Scene& scene) : scene_(scene) {}
  ~FakeDesktop() override { scene_.gone.release(); }
  FakeDesktop(const FakeDesktop&) = delete;
  FakeDesktop& operator=(const FakeDesktop&) = delete;
  std::vector<TVRXDesktopWindow> Windows() override { return scene_.windows; }
  void Activate(std::uint64_t) override {}
  bool HasKeyboard(std::uint64_t) override { return scene_.keyboard; }
  bool ProgramHasKeyboard(std::uint64_t) override { return scene_.keyboard; }
  bool ReleaseHeldKeys(bool lockToo) override { return lockToo && scene_.locked; }
  void Press(const QByteArray& key, int) override {
    if (scene_.press) scene_.press(key);
    scene_.done << QString::fromLatin1(key);
  }
  void Hold(const QByteArray& key, int) override { scene_.done << QStringLiteral("down ") + key; }
  void Release(const QByteArray& key, int) override { scene_.done << QStringLiteral("up ") + key; }

 private:
  Scene& scene_;
};
