// The items of a list view, which form files keep as bytes.
//
// The bytes are those of the file until the items are edited; then they are written in the layout that they
// had. What cannot be read is kept all the same, shows nothing, and Problem says so.
#pragma once
#include <QList>
#include <QStringList>
#include <optional>

#include "rtl/Persistent.h"

struct TListViewItem {
  QString Caption{};
  int ImageIndex = -1;
  int StateIndex = -1;
  int OverlayIndex = -1;
  int GroupID = -1;
  QStringList SubItems{};
  QList<int> SubItemImages{};    // of the first subitems; the others have none
  quint64 Data = 0;              // what the program hangs on it
  QList<quint64> SubItemData{};  // the same on the first subitems
  bool operator==(const TListViewItem&) const = default;
};

// The property that holds the bytes: one of the older files, one of today's, one of the other family.
enum class TListItemsKey : std::uint8_t { Data, ItemData, LazData };

// How the items stand in the bytes.
struct TListItemsLayout {
  TListItemsKey key = TListItemsKey::ItemData;
  std::uint8_t version = 5;  // the first byte of ItemData
  bool overlay = true, group = true;
  std::uint8_t data = 4;     // bytes of what the program hangs on an item
  std::uint8_t pointer = 4;  // the same on a subitem
  std::uint8_t images = 2;   // bytes of a subitem's image, behind all items
  bool operator==(const TListItemsLayout&) const = default;
};

// Nothing where no layout fits.
struct TListItemsRead {
  TListItemsLayout layout;
  QList<TListViewItem> items;
};
std::optional<TListItemsRead> ReadListItems(TListItemsKey key, const QByteArray& bytes);
QByteArray WriteListItems(const TListItemsLayout& layout, const QList<TListViewItem>& items);

class TListItems : public TOwnedPersistent {
  VRX_CLASS(TListItems)
 public:
  using TOwnedPersistent::TOwnedPersistent;

  const QList<TListViewItem>& Items() const;
  const QString& Problem() const;
  int Count() const { return static_cast<int>(Items().size()); }
  // All of them at once.
  void SetItems(const QList<TListViewItem>& items);

 private:
  template <TListItemsKey Key>
  QByteArray Bytes() const {
    return key_ == Key ? bytes_ : QByteArray();
  }
  template <TListItemsKey Key>
  void SetBytes(const QByteArray& bytes) {
    if (bytes.isEmpty() ? key_ == Key : key_ != Key || bytes != bytes_) Keep(Key, bytes);
  }
  void Keep(TListItemsKey key, const QByteArray& bytes);
  void Decode() const;

  TListItemsKey key_ = TListItemsKey::ItemData;
  QByteArray bytes_;
  mutable TListItemsRead read_{};
  mutable QString problem_;
  mutable bool decoded_ = true;
};
