// Distances from the four edges: what a control keeps to its neighbours (TMargins), and what a container
// keeps to what stands in it (TPadding). Pixels at 96 dpi.
#pragma once
#include <QMargins>

#include "rtl/Persistent.h"

class TEdges : public TOwnedPersistent {
  VRX_CLASS(TEdges)
 public:
  explicit TEdges(TPersistent* owner = nullptr, int each = 0)
      : TOwnedPersistent(owner), left_(each), top_(each), right_(each), bottom_(each) {}

  int Left() const { return left_; }
  void SetLeft(int v) { Change(left_, v); }
  int Top() const { return top_; }
  void SetTop(int v) { Change(top_, v); }
  int Right() const { return right_; }
  void SetRight(int v) { Change(right_, v); }
  int Bottom() const { return bottom_; }
  void SetBottom(int v) { Change(bottom_, v); }
  QMargins ToQMargins() const { return {left_, top_, right_, bottom_}; }

 private:
  int left_, top_, right_, bottom_;
};

class TMargins : public TEdges {
  VRX_CLASS(TMargins)
 public:
  explicit TMargins(TPersistent* owner = nullptr) : TEdges(owner, 3) {}
};

class TPadding : public TEdges {
  VRX_CLASS(TPadding)
 public:
  explicit TPadding(TPersistent* owner = nullptr) : TEdges(owner, 0) {}
};
