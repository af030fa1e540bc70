// A list of numbers and texts as a property value: column widths, cells, the size a form was designed at.
#pragma once
#include <variant>
#include <vector>

#include "rtl/Persistent.h"
#include "rtl/StreamedContent.h"

class TValueList : public TOwnedPersistent, public IStreamedContent {
  VRX_CLASS(TValueList)
 public:
  using TItem = std::variant<std::int64_t, QString>;
  explicit TValueList(TPersistent* owner = nullptr) : TOwnedPersistent(owner) {}

  const std::vector<TItem>& Items() const { return items_; }
  void SetItems(std::vector<TItem> items) { Change(items_, std::move(items)); }
  void Add(TItem item);
  // The number at that place; `otherwise` where there is none, or none that fits.
  int NumberAt(std::size_t index, int otherwise) const;
  // The text at that place; empty where there is none.
  QString TextAt(std::size_t index) const;

  void Assign(const TPersistent* source) override;
  bool ContentEmpty() const override { return items_.empty(); }
  void ClearContent() override { SetItems({}); }

 private:
  std::vector<TItem> items_;
};
