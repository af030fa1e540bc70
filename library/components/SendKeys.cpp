#include "library/components/SendKeys.h"

#include "rtl/Class.h"

namespace {
// "+ Shift, ^ Control, ... {F1} F1, ..."
QString KeyList() {
  QStringList keys;
  for (const TVRXSupportedKey& key : VRXSupportedKeys()) keys << key.Key + u' ' + key.Description;
  return keys.join(QStringLiteral(", "));
}
}  // namespace

const TClass& TVRXSendKeys::StaticClass() {
  static const TTypeInfo delay = OrdinalType("TVRXKeyDelay", 0, 10'000);
  static const TTypeInfo timeout = OrdinalType("TVRXKeyTimeout", 0, 600'000);
  static const TClass cls(
      DescribeClass<TVRXSendKeys>("TVRXSendKeys", TComponent::StaticClass())
          .Published(Delay)
          .Type(delay)
          .Doc(QStringLiteral("Milliseconds that each key takes. Slow programs need more."))
          .Published(KeepTarget)
          .Doc(QStringLiteral("Stops sending when the keyboard goes to another program."))
          .Published(Keys)
          .Doc(QStringLiteral(
                   "What is typed. Groups in parentheses are held together: +(ab). A number repeats "
                   "a key: {LEFT 3}. Braces take a character as it is: {+}. Keys: ") +
               KeyList() + u'.')
          .Published(RaiseException)
          .Doc(QStringLiteral("Whether a failure raises an exception or is only returned."))
          .Published(Timeout)
          .Type(timeout)
          .Doc(QStringLiteral("Milliseconds to wait for a window to open or to take the keyboard."))
          .Published(WindowCaption)
          .Doc(QStringLiteral("The window that the keys are for: its caption, or how that begins."))
          .ClassDoc(QStringLiteral("Sends keys to the window of another program, as if somebody typed."),
                    "pen line 1.5 brush fill box 2.5 9.5 19 10 2 pen none brush line box 5 12 2 2 0.5 box 9 "
                    "12 2 2 0.5 box 13 12 2 2 0.5 box 17 12 2 2 0.5 box 7 15.5 10 1.8 0.5 pen accent 2 path "
                    "12 7.5 12 2.5 path 9.5 4.8 12 2.3 14.5 4.8"));
  return cls;
}

KeyWorker& TVRXSendKeys::Worker() {
  if (!worker_) worker_ = std::make_unique<KeyWorker>();
  return *worker_;
}
KeyWork::Sending TVRXSendKeys::How() const { return {Get(Delay), Get(Timeout), Get(KeepTarget)}; }

bool TVRXSendKeys::Try(const std::function<void()>& action) {
  lastError_.clear();
  try {
    action();
    return true;
  } catch (const ESendKeysError& error) {
    lastError_ = error.Message();
    if (Get(RaiseException)) throw;
    return false;
  }
}

bool TVRXSendKeys::Shell(const QString& file) {
  return Try([&] {
    TVRXDesktopWindow window;
    Worker().Do([&](KeyWork& work) { window = work.Shell(file, Get(Timeout)); });
    fileName_ = file;
    caption_ = window.Caption;
  });
}
bool TVRXSendKeys::AppActivate(const QString& caption) {
  return Try([&] { Worker().Do([&](KeyWork& work) { work.AppActivate(caption, Get(Timeout)); }); });
}
bool TVRXSendKeys::SendKeys(const QString& text, bool wait) {
  return Try([&] {
    const KeyWorker::Work send = [steps = VRXReadKeyMacro(text), how = How()](KeyWork& work) {
      work.Send(steps, how);
    };
    if (wait) return Worker().Do(send);
    Worker().Begin(send, [this](const QString& error) { lastError_ = error; });
  });
}

void TVRXSendKeys::BeginShell(const QString& file, Done done) {
  const auto window = std::make_shared<TVRXDesktopWindow>();
  Worker().Begin([=, patience = Get(Timeout)](KeyWork& work) { *window = work.Shell(file, patience); },
                 [=, this, done = std::move(done)](const QString& error) {
                   if (error.isEmpty()) {
                     fileName_ = file;
                     caption_ = window->Caption;
                   }
                   done(error);
                 });
}

void TVRXSendKeys::BeginSend(const QString& caption, const QString& text, Done done) {
  Worker().Begin(
      [=, steps = VRXReadKeyMacro(text), how = How()](KeyWork& work) {
        work.AppActivate(caption, how.patience);
        work.Send(steps, how);
      },
      std::move(done));
}

void TVRXSendKeys::BeginWindows(WindowsDone done) {
  const auto captions = std::make_shared<QStringList>();
  Worker().Begin(
      [captions](KeyWork& work) {
        for (const TVRXDesktopWindow& window : work.Windows()) *captions << window.Caption;
      },
      [captions, done = std::move(done)](const QString& error) { done(*captions, error); });
}

void TVRXSendKeys::Stop() {
  if (worker_) worker_->Stop();
}
