#include "vcl/ListItems.h"

#include "rtl/Class.h"
#include "vcl/ItemStream.h"

namespace {
TStreamText TextOf(TListItemsKey key) {
  return key == TListItemsKey::Data       ? TStreamText::Short
         : key == TListItemsKey::ItemData ? TStreamText::Wide
                                          : TStreamText::Counted;
}

// What no list has tells that the layout is another one.
bool IsLikely(const TListViewItem& item) {
  const auto text = [](const QString& t) { return !t.contains(QChar(u'\0')); };
  return item.ImageIndex >= -1 && item.StateIndex >= -1 && item.OverlayIndex >= -1 && text(item.Caption) &&
         std::all_of(item.SubItems.begin(), item.SubItems.end(), text) &&
         std::all_of(item.SubItemImages.begin(), item.SubItemImages.end(), [](int i) { return i >= -1; });
}

bool ReadAs(const TListItemsLayout& layout, QByteArrayView bytes, QList<TListViewItem>& items) {
  TItemReader in(bytes);
  const TStreamText text = TextOf(layout.key);
  if (layout.key == TListItemsKey::ItemData) in.Byte();
  in.Number();  // the size; writers do not agree what it counts
  const std::int32_t count = in.Number();
  if (count < 0) return false;
  for (std::int32_t i = 0; i < count && in.Fits(); ++i) {
    TListViewItem item;
    item.ImageIndex = in.Number();
    item.StateIndex = in.Number();
    if (layout.overlay) item.OverlayIndex = in.Number();
    const std::int32_t subItems = in.Number();
    if (layout.group) item.GroupID = in.Number();
    item.Data = in.Bits(layout.data);
    item.Caption = in.Text(text);
    if (subItems < 0) return false;
    for (std::int32_t s = 0; s < subItems && in.Fits(); ++s) {
      item.SubItems << in.Text(text);
      if (const quint64 data = in.Bits(layout.pointer); data != 0) {
        item.SubItemData.resize(s);
        item.SubItemData << data;
      }
    }
    items << item;
  }
  if (layout.images > 0)
    for (TListViewItem& item : items)
      for (qsizetype s = 0; s < item.SubItems.size() && in.Fits(); ++s)
        item.SubItemImages << (layout.images == 2 ? in.Small() : in.Number());
  return in.AtEnd() && std::all_of(items.begin(), items.end(), IsLikely);
}

// Those that may be, the likeliest first.
std::vector<TListItemsLayout> LayoutsOf(TListItemsKey key, std::uint8_t version) {
  using Sizes = std::initializer_list<std::uint8_t>;
  std::vector<TListItemsLayout> all;
  const auto add = [&](bool overlay, bool group, Sizes data, Sizes pointer, Sizes images) {
    for (const std::uint8_t d : data)
      for (const std::uint8_t p : pointer)
        for (const std::uint8_t i : images) all.push_back({key, version, overlay, group, d, p, i});
  };
  if (key == TListItemsKey::Data) {
    add(true, false, {4}, {0}, {4, 0});
  } else if (key == TListItemsKey::ItemData) {
    // What hangs on subitems came with a later version than groups.
    constexpr std::uint8_t WithPointers = 3;
    for (const bool group : {version > 1, version <= 1})
      add(true, group, {4, 8}, version < WithPointers ? Sizes{0} : Sizes{4, 8, 0}, {2, 4, 0});
  } else {
    add(true, false, {0, 4, 8}, {0}, {0, 4});
    add(false, false, {0, 4, 8}, {0}, {0, 4});
  }
  return all;
}

// Whether every text can be kept in one byte a letter.
bool IsPlain(const QList<TListViewItem>& items) {
  const auto plain = [](const QString& text) {
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
  };
  return std::all_of(items.begin(), items.end(), [&](const TListViewItem& item) {
    return plain(item.Caption) && std::all_of(item.SubItems.begin(), item.SubItems.end(), plain);
  });
}
bool HasImages(const QList<TListViewItem>& items) {
  return std::any_of(items.begin(), items.end(), [](const TListViewItem& item) {
    return std::any_of(item.SubItemImages.begin(), item.SubItemImages.end(), [](int i) { return i >= 0; });
  });
}
}  // namespace

std::optional<TListItemsRead> ReadListItems(TListItemsKey key, const QByteArray& bytes) {
  if (bytes.isEmpty()) return TListItemsRead{};
  const auto version = static_cast<std::uint8_t>(key == TListItemsKey::ItemData ? bytes[0] : 0);
  for (const TListItemsLayout& layout : LayoutsOf(key, version)) {
    TListItemsRead read{layout, {}};
    if (ReadAs(layout, bytes, read.items)) return read;
  }
  return {};
}

QByteArray WriteListItems(const TListItemsLayout& layout, const QList<TListViewItem>& items) {
  if (items.isEmpty()) return {};
  TItemWriter out;
  const TStreamText text = TextOf(layout.key);
  if (layout.key == TListItemsKey::ItemData) out.Byte(layout.version);
  const qsizetype start = out.Bytes().size();
  out.Number(0);
  out.Number(static_cast<std::int32_t>(items.size()));
  for (const TListViewItem& item : items) {
    out.Number(item.ImageIndex);
    out.Number(item.StateIndex);
    if (layout.overlay) out.Number(item.OverlayIndex);
    out.Number(static_cast<std::int32_t>(item.SubItems.size()));
    if (layout.group) out.Number(item.GroupID);
    out.Bits(layout.data, item.Data);
    out.Text(text, item.Caption);
    for (qsizetype s = 0; s < item.SubItems.size(); ++s) {
      out.Text(text, item.SubItems[s]);
      out.Bits(layout.pointer, item.SubItemData.value(s));
    }
  }
  for (const TListViewItem& item : items)
    for (qsizetype s = 0; s < item.SubItems.size(); ++s) {
      const int image = s < item.SubItemImages.size() ? item.SubItemImages[s] : -1;
      if (layout.images == 2) out.Small(static_cast<std::int16_t>(image));
      if (layout.images == 4) out.Number(image);
    }
  out.PutNumberAt(start, static_cast<std::int32_t>(out.Bytes().size() - start));
  return out.Bytes();
}

const TClass& TListItems::StaticClass() {
  using enum TListItemsKey;
  static const TClass cls(
      DescribeClass<TListItems>("TListItems", TPersistent::StaticClass())
          .Streamed("Data", &TListItems::Bytes<Data>, &TListItems::SetBytes<Data>)
          .Streamed("ItemData", &TListItems::Bytes<ItemData>, &TListItems::SetBytes<ItemData>)
          .Streamed("LazData", &TListItems::Bytes<LazData>, &TListItems::SetBytes<LazData>));
  return cls;
}

void TListItems::Keep(TListItemsKey key, const QByteArray& bytes) {
  if (bytes.isEmpty() && bytes_.isEmpty()) return;
  Changing();
  key_ = key;
  bytes_ = bytes;
  decoded_ = false;
  Changed();
}

void TListItems::Decode() const {
  if (std::exchange(decoded_, true)) return;
  problem_.clear();
  read_ = {};
  if (auto read = ReadListItems(key_, bytes_))
    read_ = std::move(*read);
  else
    problem_ =
        QStringLiteral("The items of the list (%1 bytes) are damaged or of a layout that is not known.")
            .arg(bytes_.size());
}

const QList<TListViewItem>& TListItems::Items() const {
  Decode();
  return read_.items;
}

const QString& TListItems::Problem() const {
  Decode();
  return problem_;
}

void TListItems::SetItems(const QList<TListViewItem>& items) {
  Decode();
  if (items == read_.items) return;
  TListItemsLayout layout = read_.layout;
  if (bytes_.isEmpty() && IsOfOtherFamily())
    layout = {TListItemsKey::LazData, 0, true, false, 0, 0, 4};
  if (layout.key == TListItemsKey::Data && !IsPlain(items)) layout = {};
  if (layout.images == 0 && HasImages(items)) layout.images = layout.key == TListItemsKey::ItemData ? 2 : 4;
  Keep(layout.key, WriteListItems(layout, items));
}
