// Limits of a control's size; 0 is no limit. Pixels at 96 dpi.
#pragma once
#include <QSize>

#include "rtl/Persistent.h"

class TSizeConstraints : public TOwnedPersistent {
  VRX_CLASS(TSizeConstraints)
 public:
  explicit TSizeConstraints(TPersistent* owner = nullptr) : TOwnedPersistent(owner) {}
  int MaxHeight() const { return maxHeight_; }
  void SetMaxHeight(int v) { Change(maxHeight_, v); }
  int MaxWidth() const { return maxWidth_; }
  void SetMaxWidth(int v) { Change(maxWidth_, v); }
  int MinHeight() const { return minHeight_; }
  void SetMinHeight(int v) { Change(minHeight_, v); }
  int MinWidth() const { return minWidth_; }
  void SetMinWidth(int v) { Change(minWidth_, v); }
  // The nearest size that the limits allow; where they contradict each other, the smallest counts.
  QSize Limit(QSize size) const;

 private:
  int maxHeight_ = 0, maxWidth_ = 0, minHeight_ = 0, minWidth_ = 0;
};
