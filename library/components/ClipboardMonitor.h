// Says what comes to the clipboard, whoever put it there.
#pragma once
#include <QObject>

#include "rtl/Component.h"

class QMimeData;

enum class TVRXClipboardFormat : std::uint8_t { cfText, cfHTML, cfPicture, cfFiles, cfOther };
VRX_ENUM(TVRXClipboardFormat, {"cfText", "cfHTML", "cfPicture", "cfFiles", "cfOther"})
using TVRXClipboardFormats = TSet<TVRXClipboardFormat>;
VRX_SET(TVRXClipboardFormats, TVRXClipboardFormat)
// What is there; cfOther where it is nothing of the others.
TVRXClipboardFormats VRXClipboardFormatsOf(const QMimeData& data);

class TVRXClipboardMonitor : public TComponent {
  VRX_CLASS(TVRXClipboardMonitor)
 public:
  using TComponent::TComponent;
  static constexpr TKept<bool> Enabled{"Enabled", true};
  static constexpr TKept<TVRXClipboardFormats> Formats{
      "Formats",
      {TVRXClipboardFormat::cfText, TVRXClipboardFormat::cfHTML, TVRXClipboardFormat::cfPicture,
       TVRXClipboardFormat::cfFiles, TVRXClipboardFormat::cfOther}};

  // From now on `changed` hears of every change that is of one of the formats, while it is enabled. Ends
  // with the component, or with Stop.
  using Changed = std::function<void(TVRXClipboardFormats formats)>;
  void Start(Changed changed);
  void Stop() { connection_.reset(); }
  bool IsRunning() const { return connection_ != nullptr; }

 private:
  std::unique_ptr<QObject> connection_;  // lives as long as it listens
};
