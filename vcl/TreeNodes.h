// The nodes of a tree view, which form files keep as bytes.
//
// The bytes are those of the file until the nodes are edited; then they are written in the layout that they
// had. What cannot be read is kept all the same, shows nothing, and Problem says so.
#pragma once
#include <QString>
#include <optional>
#include <vector>

#include "rtl/Persistent.h"

struct TTreeNode {
  QString Text{};
  int ImageIndex = 0;
  int SelectedIndex = 0;
  int StateIndex = -1;
  int OverlayIndex = -1;
  int ExpandedImageIndex = 0;
  int Height = 0;
  bool Enabled = true;
  bool Expanded = false;
  quint64 Data = 0;  // what the program hangs on it
  std::vector<TTreeNode> Children{};
  bool operator==(const TTreeNode&) const = default;
};
using TTreeNodeList = std::vector<TTreeNode>;

// The property that holds the bytes, and who wrote it: one of the older files, one of today's, one of the
// other family.
enum class TTreeNodesKey : std::uint8_t { Data, NodeData, LclData };

// What there is of a node besides its four indexes, the number of its children and its text.
struct TTreeNodesLayout {
  TTreeNodesKey key = TTreeNodesKey::NodeData;
  std::uint8_t version = 3;
  bool expandedImage = true;
  std::uint8_t data = 4;  // bytes of what the program hangs on a node
  bool enabled = true;
  bool operator==(const TTreeNodesLayout&) const = default;
};

// Nothing where no layout fits.
struct TTreeNodesRead {
  TTreeNodesLayout layout;
  TTreeNodeList nodes;
};
std::optional<TTreeNodesRead> ReadTreeNodes(TTreeNodesKey key, const QByteArray& bytes);
QByteArray WriteTreeNodes(const TTreeNodesLayout& layout, const TTreeNodeList& nodes);

class TTreeNodes : public TOwnedPersistent {
  VRX_CLASS(TTreeNodes)
 public:
  using TOwnedPersistent::TOwnedPersistent;

  const TTreeNodeList& Nodes() const;
  const QString& Problem() const;
  // All of them at once.
  void SetNodes(const TTreeNodeList& nodes);

 private:
  QByteArray Data() const { return key_ == TTreeNodesKey::NodeData ? QByteArray() : bytes_; }
  QByteArray NodeData() const { return key_ == TTreeNodesKey::NodeData ? bytes_ : QByteArray(); }
  void SetData(const QByteArray& bytes);
  void SetNodeData(const QByteArray& bytes);
  void Keep(TTreeNodesKey key, const QByteArray& bytes);
  void Decode() const;

  TTreeNodesKey key_ = TTreeNodesKey::NodeData;
  QByteArray bytes_;
  mutable TTreeNodesRead read_{};
  mutable QString problem_;
  mutable bool decoded_ = true;
};
