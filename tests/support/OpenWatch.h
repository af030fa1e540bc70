// Sees every file of a folder that any program opens.
#pragma once
#include <sys/inotify.h>
#include <unistd.h>

#include <QFile>
#include <QStringList>

class OpenWatch {
 public:
  explicit OpenWatch(const QString& folder) : queue_(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
    watching_ = inotify_add_watch(queue_, QFile::encodeName(folder).constData(), IN_OPEN) >= 0;
  }
  ~OpenWatch() { close(queue_); }
  OpenWatch(const OpenWatch&) = delete;
  OpenWatch& operator=(const OpenWatch&) = delete;
  bool Watching() const { return watching_; }
  // The names of what was opened since the last call; the folder itself has none.
  QStringList Opened() {
    QStringList names;
    alignas(inotify_event) char events[4096];
    for (ssize_t size; (size = read(queue_, events, sizeof(events))) > 0;)
      for (ssize_t at = 0; at < size;) {
        const auto* event = reinterpret_cast<const inotify_event*>(events + at);
        if (event->len > 0) names << QFile::decodeName(event->name);
        at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
      }
    return names;
  }

 private:
  int queue_;
  bool watching_ = false;
};
