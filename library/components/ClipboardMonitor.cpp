#include "library/components/ClipboardMonitor.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

const TClass& TVRXClipboardMonitor::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXClipboardMonitor>("TVRXClipboardMonitor", TComponent::StaticClass())
          .Published(Enabled)
          .Doc(QStringLiteral("Whether it tells of changes."))
          .Published(Formats)
          .Doc(QStringLiteral("The kinds of content that it tells of."))
          .Event("OnChange")
          .ClassDoc(
              QStringLiteral("Raises an event when something else comes to the clipboard."),
              "pen line 1.5 brush fill box 5 4 14 17.5 2 box 9 2.5 6 3.5 1 pen accent 1.8 brush none path "
              "6.8 13.5 9.5 10.6 14.5 10.6 17.2 13.5 14.5 16.4 9.5 16.4 6.8 13.5 pen none brush accent oval "
              "10.4 11.9 3.2 3.2"));
  return cls;
}

TVRXClipboardFormats VRXClipboardFormatsOf(const QMimeData& data) {
  using enum TVRXClipboardFormat;
  TVRXClipboardFormats formats;
  if (data.hasUrls()) formats.Include(cfFiles);
  if (data.hasText() && !data.hasUrls()) formats.Include(cfText);
  if (data.hasHtml()) formats.Include(cfHTML);
  if (data.hasImage()) formats.Include(cfPicture);
  if (formats == TVRXClipboardFormats() && !data.formats().isEmpty()) formats.Include(cfOther);
  return formats;
}

void TVRXClipboardMonitor::Start(Changed changed) {
  connection_ = std::make_unique<QObject>();
  const QClipboard* clipboard = QGuiApplication::clipboard();
  QObject::connect(
      clipboard, &QClipboard::dataChanged, connection_.get(), [this, changed = std::move(changed)] {
        const QMimeData* data = QGuiApplication::clipboard()->mimeData();
        if (!data || !Get(Enabled)) return;
        const TVRXClipboardFormats there = VRXClipboardFormatsOf(*data);
        bool wanted = false;
        for (const auto format :
             {TVRXClipboardFormat::cfText, TVRXClipboardFormat::cfHTML, TVRXClipboardFormat::cfPicture,
              TVRXClipboardFormat::cfFiles, TVRXClipboardFormat::cfOther})
          wanted = wanted || (there.Contains(format) && Get(Formats).Contains(format));
        // What hears of it may stop it.
        if (!wanted) return;
        const Changed call = changed;
        call(there);
      });
}
