#include "library/components/GlobalHotKey.h"

#include "library/keys/XKeyGrab.h"

const TClass& TVRXGlobalHotKey::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXGlobalHotKey>("TVRXGlobalHotKey", TComponent::StaticClass())
          .Published(Enabled)
          .Doc(QStringLiteral("Whether the program hears the key."))
          .Published(HotKey)
          .Doc(QStringLiteral("The key, with Ctrl or Alt."))
          .Event("OnHotKey")
          .ClassDoc(
              QStringLiteral("Raises an event when a key is pressed in whatever program."),
              "pen line 1.5 brush fill oval 3 3 18 18 brush none path 3 12 21 12 path 12 3 8.5 7 8.5 17 12 "
              "21 path 12 3 15.5 7 15.5 17 12 21 pen accent 1.8 brush fill box 10.5 12.5 11.5 9 2 path 13.5 "
              "18.5 19 18.5"));
  return cls;
}

QString TVRXGlobalHotKey::Problem() const {
  const auto key = static_cast<std::uint16_t>(Get(HotKey));
  if (key == 0) return QStringLiteral("%1 has no key.").arg(Name());
  constexpr std::uint16_t F1 = 0x70, F24 = 0x87;
  const std::uint16_t code = key & 0xFF;
  if ((key & (scCtrl | scAlt)) == 0 && (code < F1 || code > F24))
    return QStringLiteral("%1 would be taken from every program: add Ctrl or Alt.")
        .arg(ShortCutToText(Get(HotKey)));
  return {};
}

TVRXGlobalHotKey::TVRXGlobalHotKey(TComponent* owner) : TComponent(owner) {}
TVRXGlobalHotKey::~TVRXGlobalHotKey() = default;

void TVRXGlobalHotKey::Start(Pressed pressed) {
  Stop();
  if (IsDesigning())
    throw EHotKeyError(
        QStringLiteral("%1 takes its key when the form runs, not while it is designed.").arg(Name()));
  pressed_ = std::move(pressed);
  try {
    Take();
  } catch (...) {
    Stop();
    throw;
  }
}

void TVRXGlobalHotKey::Stop() {
  pressed_ = nullptr;
  grab_.reset();
  lastError_.clear();
}

void TVRXGlobalHotKey::Take() {
  const TShortCut wanted = Get(Enabled) ? Get(HotKey) : TShortCut{};
  if (grab_ && wanted == taken_) return;
  grab_.reset();
  lastError_.clear();
  if (!Get(Enabled)) return;
  if (const QString why = Problem(); !why.isEmpty()) throw EHotKeyError(why);
  grab_ = std::make_unique<XKeyGrab>(wanted, [this] {
    const Pressed call = pressed_;
    call();
  });
  taken_ = wanted;
}

void TVRXGlobalHotKey::DoChanged() {
  TComponent::DoChanged();
  if (!pressed_) return;
  try {
    Take();
  } catch (const EHotKeyError& error) {
    lastError_ = error.Message();
  }
}
