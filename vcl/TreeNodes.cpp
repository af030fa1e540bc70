#include "vcl/TreeNodes.h"

#include "rtl/Class.h"
#include "rtl/Exceptions.h"
#include "vcl/ItemStream.h"

namespace {
// What the other family's data starts with: no number of nodes.
constexpr std::int32_t LclMark = -7;
constexpr std::int16_t LclVersion = 2;
// Nobody nests deeper; a stranger's file may.
constexpr int DeepestNode = 500;

using enum TTreeNodesKey;

TStreamText TextOf(TTreeNodesKey key) {
  return key == Data ? TStreamText::Short : key == NodeData ? TStreamText::Wide : TStreamText::Counted;
}

// The likeliest first.
constexpr TTreeNodesLayout Layouts[] = {
    {Data, 0, false, 4, false},     {Data, 0, false, 8, false},     {NodeData, 3, true, 4, true},
    {NodeData, 4, true, 8, true},   {NodeData, 2, true, 4, false},  {NodeData, 2, true, 8, false},
    {NodeData, 1, false, 4, false}, {NodeData, 1, false, 8, false}, {LclData, 2, false, 0, false},
    {LclData, 1, false, 4, false},  {LclData, 1, false, 8, false}};

class NodeReader {
 public:
  NodeReader(const TTreeNodesLayout& layout, QByteArrayView bytes) : layout_(layout), in_(bytes) {}
  bool Read(TTreeNodeList& nodes) {
    if (layout_.key == NodeData) in_.Byte();
    if (layout_.key == LclData) {
      if (in_.Number() != LclMark) return false;
      in_.Small();
    }
    return ReadList(nodes, in_.Number(), 0) && in_.AtEnd();
  }

 private:
  bool ReadList(TTreeNodeList& nodes, std::int32_t count, int depth) {
    if (count < 0 || depth > DeepestNode) return false;
    for (std::int32_t i = 0; i < count; ++i)
      if (!ReadNode(nodes.emplace_back(), depth)) return false;
    return true;
  }
  bool ReadNode(TTreeNode& node, int depth) {
    const bool lcl = layout_.key == LclData;
    const std::int32_t size = lcl ? 0 : in_.Number();
    const qsizetype before = in_.Left();
    node.ImageIndex = in_.Number();
    node.SelectedIndex = in_.Number();
    node.StateIndex = in_.Number();
    node.OverlayIndex = in_.Number();
    if (layout_.expandedImage) node.ExpandedImageIndex = in_.Number();
    node.Data = in_.Bits(layout_.data);
    const std::int32_t children = in_.Number();
    if (lcl) {
      node.Height = in_.Number();
      node.Expanded = in_.Byte() != 0;
    }
    if (layout_.enabled) node.Enabled = in_.Byte() != 0;
    node.Text = in_.Text(TextOf(layout_.key));
    if (!in_.Fits() || (!lcl && before - in_.Left() != size)) return false;
    return ReadList(node.Children, children, depth + 1);
  }

  const TTreeNodesLayout& layout_;
  TItemReader in_;
};

void WriteList(TItemWriter& out, const TTreeNodesLayout& layout, const TTreeNodeList& nodes);

void WriteNode(TItemWriter& out, const TTreeNodesLayout& layout, const TTreeNode& node) {
  const bool lcl = layout.key == LclData;
  const qsizetype start = out.Bytes().size();
  if (!lcl) out.Number(0);
  const qsizetype inside = out.Bytes().size();
  for (const int index : {node.ImageIndex, node.SelectedIndex, node.StateIndex, node.OverlayIndex})
    out.Number(index);
  if (layout.expandedImage) out.Number(node.ExpandedImageIndex);
  out.Bits(layout.data, node.Data);
  out.Number(static_cast<std::int32_t>(node.Children.size()));
  if (lcl) {
    out.Number(node.Height);
    out.Byte(node.Expanded);
  }
  if (layout.enabled) out.Byte(node.Enabled);
  out.Text(TextOf(layout.key), node.Text);
  if (!lcl) out.PutNumberAt(start, static_cast<std::int32_t>(out.Bytes().size() - inside));
  WriteList(out, layout, node.Children);
}

void WriteList(TItemWriter& out, const TTreeNodesLayout& layout, const TTreeNodeList& nodes) {
  for (const TTreeNode& node : nodes) WriteNode(out, layout, node);
}

bool IsPlain(const TTreeNodeList& nodes) {
  return std::all_of(nodes.begin(), nodes.end(), [](const TTreeNode& node) {
    return std::all_of(node.Text.begin(), node.Text.end(), [](QChar c) { return c.unicode() < 0x80; }) &&
           IsPlain(node.Children);
  });
}

int DepthOf(const TTreeNodeList& nodes) {
  int deepest = 0;
  for (const TTreeNode& node : nodes) deepest = std::max(deepest, 1 + DepthOf(node.Children));
  return deepest;
}
}  // namespace

std::optional<TTreeNodesRead> ReadTreeNodes(TTreeNodesKey key, const QByteArray& bytes) {
  if (bytes.isEmpty()) return TTreeNodesRead{};
  // Files that say which version they are of are believed first.
  for (const bool told : {true, false})
    for (const TTreeNodesLayout& layout : Layouts) {
      if (layout.key != key || told != (key != NodeData || layout.version == bytes[0])) continue;
      TTreeNodesRead read{layout, {}};
      if (!NodeReader(layout, bytes).Read(read.nodes)) continue;
      if (key == NodeData) read.layout.version = static_cast<std::uint8_t>(bytes[0]);
      return read;
    }
  return {};
}

QByteArray WriteTreeNodes(const TTreeNodesLayout& layout, const TTreeNodeList& nodes) {
  if (nodes.empty()) return {};
  TItemWriter out;
  if (layout.key == NodeData) out.Byte(layout.version);
  if (layout.key == LclData) {
    out.Number(LclMark);
    out.Small(LclVersion);
  }
  out.Number(static_cast<std::int32_t>(nodes.size()));
  WriteList(out, layout, nodes);
  return out.Bytes();
}

const TClass& TTreeNodes::StaticClass() {
  static const TClass cls(DescribeClass<TTreeNodes>("TTreeNodes", TPersistent::StaticClass())
                              .Streamed("Data", &TTreeNodes::Data, &TTreeNodes::SetData)
                              .Streamed("NodeData", &TTreeNodes::NodeData, &TTreeNodes::SetNodeData));
  return cls;
}

// Both families call it Data; the first number tells them apart.
void TTreeNodes::SetData(const QByteArray& bytes) {
  if (bytes == Data()) return;
  Keep(TItemReader(bytes).Number() == LclMark ? TTreeNodesKey::LclData : TTreeNodesKey::Data, bytes);
}

void TTreeNodes::SetNodeData(const QByteArray& bytes) {
  if (bytes != NodeData()) Keep(TTreeNodesKey::NodeData, bytes);
}

void TTreeNodes::Keep(TTreeNodesKey key, const QByteArray& bytes) {
  Changing();
  key_ = key;
  bytes_ = bytes;
  decoded_ = false;
  Changed();
}

void TTreeNodes::Decode() const {
  if (std::exchange(decoded_, true)) return;
  problem_.clear();
  read_ = {};
  if (auto read = ReadTreeNodes(key_, bytes_))
    read_ = std::move(*read);
  else
    problem_ =
        QStringLiteral("The nodes of the tree (%1 bytes) are damaged or of a layout that is not known.")
            .arg(bytes_.size());
}

const TTreeNodeList& TTreeNodes::Nodes() const {
  Decode();
  return read_.nodes;
}

const QString& TTreeNodes::Problem() const {
  Decode();
  return problem_;
}

void TTreeNodes::SetNodes(const TTreeNodeList& nodes) {
  Decode();
  if (nodes == read_.nodes) return;
  if (DepthOf(nodes) > DeepestNode)
    throw EComponentError(QStringLiteral("A tree cannot be deeper than %1 levels.").arg(DeepestNode));
  TTreeNodesLayout layout = read_.layout;
  if (bytes_.isEmpty() && IsOfOtherFamily()) layout = {LclData, 2, false, 0, false};
  if (layout.key == TTreeNodesKey::Data && !IsPlain(nodes)) layout = {};
  Keep(layout.key, WriteTreeNodes(layout, nodes));
}
