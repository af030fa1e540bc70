#include "library/keys/KeyWorker.h"

#include <QCoreApplication>
#include <condition_variable>
#include <deque>
#include <future>
#include <mutex>
#include <thread>

// Shared with the thread, which may outlive the worker by one call into the window system.
struct KeyWorker::State {
  struct Job {
    Work work;
    std::function<void(const QString&)> done;
  };
  mutable std::mutex guard;
  std::condition_variable changed;
  std::deque<Job> jobs;
  bool running = false;  // a job
  bool stop = false;     // it
  bool quit = false;     // everything
  std::thread thread;
  bool ended = false;

  bool PauseFor(int milliseconds) {
    std::unique_lock lock(guard);
    changed.wait_for(lock, std::chrono::milliseconds(milliseconds), [this] { return stop || quit; });
    return stop || quit;
  }
};

KeyWorker::KeyWorker() : state_(std::make_shared<State>()) {}

KeyWorker::~KeyWorker() {
  std::unique_lock lock(state_->guard);
  state_->quit = true;
  state_->jobs.clear();
  state_->changed.notify_all();
  if (!state_->thread.joinable()) return;
  // A window system that does not answer is not waited for.
  constexpr std::chrono::milliseconds patience{300};
  const bool ended = state_->changed.wait_for(lock, patience, [this] { return state_->ended; });
  lock.unlock();
  ended ? state_->thread.join() : state_->thread.detach();
}

void KeyWorker::Begin(Work work, Done done) {
  const std::weak_ptr<State> weak = state_;
  const auto tell = [weak, done = std::move(done)](const QString& error) {
    if (!QCoreApplication::instance()) return;
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [weak, done, error] {
          const auto state = weak.lock();
          if (!state) return;
          {
            const std::lock_guard lock(state->guard);
            if (state->quit) return;
          }
          done(error);
        },
        Qt::QueuedConnection);
  };
  const std::lock_guard lock(state_->guard);
  state_->jobs.push_back({std::move(work), tell});
  if (!state_->thread.joinable()) state_->thread = std::thread(&KeyWorker::Run, state_);
  state_->changed.notify_all();
}

void KeyWorker::Do(const Work& work) {
  std::promise<QString> promise;
  {
    const std::lock_guard lock(state_->guard);
    state_->jobs.push_back({work, [&promise](const QString& error) { promise.set_value(error); }});
    if (!state_->thread.joinable()) state_->thread = std::thread(&KeyWorker::Run, state_);
    state_->changed.notify_all();
  }
  const QString error = promise.get_future().get();
  if (!error.isEmpty()) throw ESendKeysError(error);
}

void KeyWorker::Stop() {
  std::deque<State::Job> dropped;
  {
    const std::lock_guard lock(state_->guard);
    dropped.swap(state_->jobs);
    state_->stop = state_->running;
    state_->changed.notify_all();
  }
  for (const State::Job& job : dropped) job.done(QCoreApplication::translate("QObject", "It was stopped."));
}

bool KeyWorker::IsBusy() const {
  const std::lock_guard lock(state_->guard);
  return state_->running || !state_->jobs.empty();
}

void KeyWorker::Run(const std::shared_ptr<State>& given) {
  const std::shared_ptr<State> state = given;
  {
    KeyWork desk([&state](int milliseconds) { return state->PauseFor(milliseconds); });
    std::unique_lock lock(state->guard);
    for (;;) {
      state->changed.wait(lock, [&] { return state->quit || !state->jobs.empty(); });
      if (state->quit) break;
      const State::Job job = std::move(state->jobs.front());
      state->jobs.pop_front();
      state->running = true;
      state->stop = false;
      lock.unlock();
      QString error;
      try {
        job.work(desk);
      } catch (const std::exception& e) {
        error = ExceptionMessage(e);
        desk.Forget();
      }
      job.done(error);
      lock.lock();
      state->running = false;
      if (state->quit) break;
    }
  }
  const std::lock_guard lock(state->guard);
  state->ended = true;
  state->changed.notify_all();
}
