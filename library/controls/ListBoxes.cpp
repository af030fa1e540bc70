#include "library/controls/ListBoxes.h"

#include "rtl/PropAccess.h"
#include "vcl/FormColors.h"
#include "vcl/ItemPainting.h"
#include "vcl/ListBox.h"
#include "vcl/PropertyGroups.h"
#include "vcl/TreeView.h"

namespace {
constexpr int IconWidth = 20;
QString Or(const QString& text, const char16_t* usual) {
  return text.isEmpty() ? QString::fromUtf16(usual) : text;
}

QStringList SortedIf(bool sorted, QStringList lines) {
  if (sorted) lines.sort(Qt::CaseInsensitive);
  return lines;
}

// A case with what tells one kind of drive from the others.
void PaintDrive(TCanvas& canvas, const QRect& place, TVRXDriveType type, bool enabled) {
  QRect icon(0, 0, 16, 12);
  icon.moveCenter(QRect(place.left(), place.top(), IconWidth, place.height()).center());
  QPainter& p = canvas.Painter();
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  p.setOpacity(enabled ? 1 : 0.4);
  const QColor line = ToQColor(clWindowText), fill = ToQColor(clBtnFace), accent = ToQColor(clHighlight);
  p.setPen(QPen(line, 1));
  p.setBrush(fill);
  const QRectF body = QRectF(icon).adjusted(0.5, 4.5, -0.5, -0.5);
  if (type == TVRXDriveType::dtCDROM) {
    p.drawEllipse(QPointF(icon.center()) + QPointF(0.5, -0.5), 6, 6);
    p.setBrush(accent);
    p.drawEllipse(QPointF(icon.center()) + QPointF(0.5, -0.5), 1.5, 1.5);
  } else if (type == TVRXDriveType::dtRAM) {
    p.drawRect(body.adjusted(0, -2, 0, -2));
    for (int i = 0; i < 4; ++i) {
      p.fillRect(QRect(icon.left() + 2 + 4 * i, icon.top() + 5, 2, 2), accent);
      p.fillRect(QRect(icon.left() + 2 + 4 * i, icon.bottom() - 1, 1, 2), line);
    }
  } else {
    p.drawRoundedRect(body, 1.5, 1.5);
    p.fillRect(QRect(icon.right() - 4, icon.bottom() - 4, 2, 2), accent);
    if (type == TVRXDriveType::dtRemovable) p.fillRect(QRect(icon.left() + 3, icon.top() + 6, 8, 2), line);
    if (type == TVRXDriveType::dtNetwork) {
      p.drawLine(QPointF(icon.left() + 7.5, icon.top() + 4), QPointF(icon.left() + 7.5, icon.top() + 0.5));
      p.drawLine(QPointF(icon.left() + 3, icon.top() + 0.5), QPointF(icon.left() + 12, icon.top() + 0.5));
    }
  }
  p.restore();
}

class DriveList final : public TCustomListBox {
 public:
  using TCustomListBox::TCustomListBox;
  std::vector<TVRXDriveComboBox::Line> drives;
  bool icons = true;

 protected:
  QRect PaintItemMark(TCanvas& canvas, const QRect& line, int index) const override {
    if (!icons) return line;
    PaintDrive(canvas, line, drives[static_cast<std::size_t>(index)].type, Enabled());
    return line.adjusted(IconWidth, 0, 0, 0);
  }
};
}  // namespace

const TClass& TVRXDriveComboBox::StaticClass() {
  static const TClass cls(
      AsBox(DescribeClass<TVRXDriveComboBox>("TVRXDriveComboBox", TVRXCustomDropDownBox::StaticClass())
                .Published(Drive)
                .Doc(QStringLiteral("The letter of the chosen drive; empty is the first one."))
                .Published(DriveTypes)
                .Doc(QStringLiteral("The kinds of drives that the list offers."))
                .Published(ShowIcons)
                .Doc(QStringLiteral("Pictures of the kinds of drives."))
                .Published(ShowVolumeNames)
                .Doc(QStringLiteral("The drives' names behind their letters."))
                .Published(TextCase)
                .Doc(QStringLiteral("Small or big letters.")))
          .ClassDoc(QStringLiteral("A field with a list of the computer's drives."),
                    "pen line 1.5 brush fill box 2.5 7.5 19 9 2 box 5 11.5 7 3 0.5 pen none brush accent box "
                    "9.8 12.4 1.4 1.4 0 brush none pen accent 2 path 14.5 11 17 13.5 19.5 11"));
  return cls;
}

QString TVRXDriveComboBox::TextOf(char16_t letter, const QString& volume) const {
  QString text = QString(QChar(letter)) + u':';
  if (Get(ShowVolumeNames) && !volume.isEmpty()) text += QStringLiteral(" [") + volume + u']';
  return Get(TextCase) == TVRXTextCase::tcUpperCase ? text.toUpper() : text.toLower();
}

std::vector<TVRXDriveComboBox::Line> TVRXDriveComboBox::Drives() const {
  struct Usual {
    char16_t letter;
    const char16_t* volume;
    TVRXDriveType type;
  };
  static constexpr Usual usual[] = {{u'a', u"removable", TVRXDriveType::dtRemovable},
                                    {u'c', u"system", TVRXDriveType::dtFixed},
                                    {u'd', u"disc", TVRXDriveType::dtCDROM},
                                    {u'n', u"network", TVRXDriveType::dtNetwork},
                                    {u'r', u"memory", TVRXDriveType::dtRAM}};
  std::vector<Line> lines;
  for (const Usual& drive : usual)
    if (Get(DriveTypes).Contains(drive.type))
      lines.push_back({TextOf(drive.letter, QString::fromUtf16(drive.volume)), drive.type, drive.letter});
  return lines;
}

// The first fixed one where nobody has chosen: that is where programs run.
TVRXDriveComboBox::Line TVRXDriveComboBox::Chosen() const {
  const QString drive = Get(Drive).trimmed().left(1).toLower();
  const auto lines = Drives();
  for (const Line& line : lines)
    if (drive.isEmpty() ? line.type == TVRXDriveType::dtFixed : drive[0] == QChar(line.letter)) return line;
  if (!drive.isEmpty()) return {TextOf(drive[0].unicode(), {}), TVRXDriveType::dtFixed, drive[0].unicode()};
  return lines.empty() ? Line{{}, TVRXDriveType::dtFixed, 0} : lines.front();
}

QString TVRXDriveComboBox::ShownText() const { return Chosen().text; }

QRect TVRXDriveComboBox::PaintMark(TCanvas& canvas, const QRect& line) const {
  if (!Get(ShowIcons) || Chosen().text.isEmpty()) return line;
  PaintDrive(canvas, line, Chosen().type, Enabled());
  return line.adjusted(IconWidth + 2, 0, 0, 0);
}

std::unique_ptr<TControl> TVRXDriveComboBox::MakeDropDown() const {
  auto list = Dropped<DriveList>({});
  list->drives = Drives();
  list->icons = Get(ShowIcons);
  QStringList texts;
  for (const Line& line : list->drives) texts << line.text;
  list->Get(TCustomListBox::Items)->SetLines(texts);
  list->Set(TCustomListBox::ItemIndex, static_cast<int>(texts.indexOf(ShownText())));
  list->SetHeight(RowsHeight(static_cast<int>(texts.size())));
  return list;
}

const TClass& TVRXListComboBox::StaticClass() {
  static const TClass cls(
      AsBox(DescribeClass<TVRXListComboBox>("TVRXListComboBox", TVRXCustomDropDownBox::StaticClass())
                .Published(DropDownCount)
                .Doc(QStringLiteral("Items that the open list shows."))
                .Published(ItemIndex)
                .Doc(QStringLiteral("The chosen item; -1 is none."))
                .Published(Items)
                .Doc(QStringLiteral("What can be chosen."))
                .Published(Sorted)
                .Doc(QStringLiteral("Shows the items in the order of the alphabet.")))
          .ClassDoc(
              QStringLiteral("A field with a list of texts."),
              "pen line 1.5 brush fill box 2.5 3.5 19 7 2 box 2.5 10.5 19 10 1 path 6 14 15 14 path 6 17 "
              "12 17 pen accent 2 brush none path 14.5 6 17 8.5 19.5 6"));
  return cls;
}

QString TVRXListComboBox::ShownText() const {
  return SortedIf(Get(Sorted), Get(Items)->Lines()).value(Get(ItemIndex));
}

std::unique_ptr<TControl> TVRXListComboBox::MakeDropDown() const {
  auto list = Dropped<TListBox>(std::to_array({"Color", "Items", "ItemIndex", "Sorted"}));
  const int shown = std::max(1, std::min(Get(DropDownCount), Get(Items)->Count()));
  list->Set(TCustomListBox::TopIndex, std::max(0, std::max(Get(ItemIndex), 0) - shown + 1));
  list->SetHeight(RowsHeight(shown));
  return list;
}

const TClass& TVRXTreeComboBox::StaticClass() {
  static const TClass cls(
      AsBox(DescribeClass<TVRXTreeComboBox>("TVRXTreeComboBox", TVRXCustomDropDownBox::StaticClass())
                .Published(FullPath)
                .Doc(QStringLiteral("Shows the texts from the root to the chosen node, not of that alone."))
                .Published(Images)
                .Doc(QStringLiteral("Pictures of the nodes."))
                .Published(Indent)
                .Doc(QStringLiteral("Pixels from a node to those below it."))
                .Published(ItemIndex)
                .Doc(QStringLiteral("The chosen node, counted from the top through all of them; -1 is none."))
                .Published(Items)
                .Doc(QStringLiteral("The tree to choose from."))
                .Published(PathSeparator)
                .Doc(QStringLiteral("What stands between the texts of a path; empty for a slash."))
                .PublishedAll(ShowButtons, ShowLines, ShowRoot))
          .ClassDoc(
              QStringLiteral("A field with a tree that drops down."),
              "pen line 1.5 brush fill box 2.5 3.5 19 7 2 path 6 13 6 20 11 20 path 6 16 11 16 pen none "
              "brush accent box 4.5 11.8 3 3 0 brush line box 11 14.8 2.6 2.6 0 box 11 18.7 2.6 2.6 0 "
              "pen accent 2 brush none path 14.5 6 17 8.5 19.5 6"));
  return cls;
}

namespace {
bool FindNode(const TTreeNodeList& nodes, int& index, QList<const TTreeNode*>& path) {
  for (const TTreeNode& node : nodes) {
    path << &node;
    if (index-- == 0 || FindNode(node.Children, index, path)) return true;
    path.removeLast();
  }
  return false;
}
// Counts the rows up to the chosen node, and opens what it stands in.
bool OpenTo(TTreeNodeList& nodes, int& index, int& row) {
  for (TTreeNode& node : nodes) {
    ++row;
    if (index-- == 0) return true;
    int below = row;
    if (OpenTo(node.Children, index, below)) {
      node.Expanded = true;
      row = below;
      return true;
    }
    if (node.Expanded) row = below;
  }
  return false;
}
int RowCount(const TTreeNodeList& nodes) {
  int count = 0;
  for (const TTreeNode& node : nodes) count += 1 + (node.Expanded ? RowCount(node.Children) : 0);
  return count;
}
int ImageHeight(const TCustomImageList* images) { return images ? images->Get(TCustomImageList::Height) : 0; }

// Trees and tables mark no row of theirs.
void PaintChosenRow(TCanvas& canvas, const QRect& rect, int top, int height) {
  const QRect row(rect.left() + 2, rect.top() + 2 + top, rect.width() - 4, height);
  if (row.bottom() > rect.bottom() - 2) return;
  canvas.Painter().save();
  canvas.Painter().setOpacity(0.25);
  canvas.FillRect(row, clHighlight);
  canvas.Painter().setOpacity(1);
  canvas.Frame3D(row, clHighlight, clHighlight, 1);
  canvas.Painter().restore();
}
QRect PaintListed(TCanvas& canvas, const QRect& line, const TCustomImageList* images, int index,
                  bool enabled) {
  if (!images) return line;
  return PaintItemImage(canvas, line, images->Image(index),
                        {images->Get(TCustomImageList::Width), images->Get(TCustomImageList::Height)},
                        enabled)
      .adjusted(3, 0, 0, 0);
}
}  // namespace

QList<const TTreeNode*> TVRXTreeComboBox::Path() const {
  QList<const TTreeNode*> path;
  int index = Get(ItemIndex);
  if (index >= 0) FindNode(Get(Items)->Nodes(), index, path);
  return path;
}

QString TVRXTreeComboBox::ShownText() const {
  QStringList texts;
  for (const TTreeNode* node : Path()) texts << node->Text;
  return Get(FullPath) ? texts.join(Or(Get(PathSeparator), u"/")) : texts.value(texts.size() - 1);
}

QRect TVRXTreeComboBox::PaintMark(TCanvas& canvas, const QRect& line) const {
  const auto path = Path();
  return path.isEmpty() ? line : PaintListed(canvas, line, Get(Images), path.last()->ImageIndex, Enabled());
}

std::unique_ptr<TControl> TVRXTreeComboBox::MakeDropDown() const {
  auto tree = Dropped<TTreeView>(
      std::to_array({"Color", "Images", "Indent", "Items", "ShowButtons", "ShowLines", "ShowRoot"}));
  TTreeNodes& nodes = *tree->Get(TCustomTreeView::Items);
  TTreeNodeList open = nodes.Nodes();
  int index = Get(ItemIndex), row = 0;
  // In the one layout that says which nodes are open.
  constexpr TTreeNodesLayout saysOpen{TTreeNodesKey::LclData, 2, false, 0, false};
  if (index >= 0 && OpenTo(open, index, row) && open != nodes.Nodes())
    SetBinaryProp(nodes, nodes.ClassType().GetProp("Data"), WriteTreeNodes(saysOpen, open));
  constexpr int usual = 8;
  tree->SetHeight(std::max(RowsHeight(std::min(RowCount(open), usual)), 24) + 4 * usual);
  return tree;
}

void TVRXTreeComboBox::PaintDropDown(TCanvas& canvas, const QRect& rect) const {
  TVRXCustomDropDownBox::PaintDropDown(canvas, rect);
  TTreeNodeList open = Get(Items)->Nodes();
  int index = Get(ItemIndex), row = 0;
  if (index < 0 || !OpenTo(open, index, row)) return;
  const int height =
      std::max(TextExtent(QStringLiteral("Wg"), *Font()).height() + 2, ImageHeight(Get(Images)));
  PaintChosenRow(canvas, rect, (row - 1) * height, height);
}

const TClass& TVRXHeaderListComboBox::StaticClass() {
  static const TClass cls(
      AsBox(DescribeClass<TVRXHeaderListComboBox>("TVRXHeaderListComboBox",
                                                  TVRXCustomDropDownBox::StaticClass())
                .Published(Columns)
                .Doc(QStringLiteral("The columns of the table."))
                .Published(DropDownCount)
                .Doc(QStringLiteral("Items that the open table shows."))
                .PublishedAll(GridLines)
                .Published(ItemIndex)
                .Doc(QStringLiteral("The chosen item; -1 is none."))
                .Published(Items)
                .Doc(QStringLiteral("What can be chosen: a text for each column."))
                .Published(Separator)
                .Doc(QStringLiteral("What stands between the texts of the columns; empty for a comma."))
                .PublishedAll(ShowColumnHeaders, SmallImages)
                .Published(TextColumn)
                .Doc(QStringLiteral("The column that the field shows; -1 is all of them.")))
          .ClassDoc(
              QStringLiteral("A field with a table that drops down."),
              "pen line 1.5 brush fill box 2.5 3.5 19 7 2 box 2.5 10.5 19 10 1 path 2.5 14 21.5 14 path "
              "9 10.5 9 20.5 path 15.5 10.5 15.5 20.5 pen accent 2 brush none path 14.5 6 17 8.5 19.5 6"));
  return cls;
}

QString TVRXHeaderListComboBox::ShownText() const {
  const QList<TListViewItem>& items = Get(Items)->Items();
  const int index = Get(ItemIndex), only = Get(TextColumn);
  if (index < 0 || index >= items.size()) return {};
  const QStringList texts = QStringList{items[index].Caption} + items[index].SubItems;
  if (only >= 0) return texts.value(only);
  // Those that a column shows; without columns there is the caption.
  QStringList shown;
  const TListColumns& columns = *Get(Columns);
  for (int i = 0; i < columns.Count(); ++i)
    if (columns.Column(i)->Get(TListColumn::Visible) && !texts.value(i).isEmpty()) shown << texts[i];
  return columns.Count() == 0 ? items[index].Caption : shown.join(Or(Get(Separator), u", "));
}

QRect TVRXHeaderListComboBox::PaintMark(TCanvas& canvas, const QRect& line) const {
  const QList<TListViewItem>& items = Get(Items)->Items();
  const int index = Get(ItemIndex);
  if (index < 0 || index >= items.size()) return line;
  return PaintListed(canvas, line, Get(SmallImages), items[index].ImageIndex, Enabled());
}

namespace {
int TableLine(const TControl& box, const TCustomImageList* images) {
  return std::max(TextExtent(QStringLiteral("Wg"), *box.Font()).height() + 2, ImageHeight(images));
}
}  // namespace

std::unique_ptr<TControl> TVRXHeaderListComboBox::MakeDropDown() const {
  auto table = Dropped<TListView>(
      std::to_array({"Color", "Columns", "GridLines", "Items", "ShowColumnHeaders", "SmallImages"}));
  table->Set(TCustomListView::ViewStyle, TViewStyle::vsReport);
  const TListColumns& columns = *Get(Columns);
  constexpr int bar = 17, most = 2000;
  int width = bar + 4;
  for (int i = 0; i < columns.Count() && width < most; ++i)
    if (columns.Column(i)->Get(TListColumn::Visible))
      width += std::min(columns.Column(i)->ShownWidth(), most);
  const int line = TableLine(*this, Get(SmallImages));
  const int rows = std::clamp(std::min(Get(DropDownCount), Get(Items)->Count()), 1, 30);
  table->SetBounds(0, 0, std::max(width, Width()), rows * line + (Get(ShowColumnHeaders) ? line + 4 : 0) + 4);
  return table;
}

void TVRXHeaderListComboBox::PaintDropDown(TCanvas& canvas, const QRect& rect) const {
  TVRXCustomDropDownBox::PaintDropDown(canvas, rect);
  const int line = TableLine(*this, Get(SmallImages)), index = Get(ItemIndex);
  if (index >= 0 && index < Get(Items)->Count() && index < rect.height())
    PaintChosenRow(canvas, rect, index * line + (Get(ShowColumnHeaders) ? line + 4 : 0), line);
}

const TClass& TVRXCheckListComboBox::StaticClass() {
  static const TClass cls(
      AsBox(
          DescribeClass<TVRXCheckListComboBox>("TVRXCheckListComboBox", TVRXCustomDropDownBox::StaticClass())
              .Published(CheckedItems)
              .Doc(QStringLiteral("The items that are checked, by their texts."))
              .Published(Delimiter)
              .Doc(QStringLiteral("What stands between the checked items; empty for a comma."))
              .Published(DropDownCount)
              .Doc(QStringLiteral("Items that the open list shows."))
              .Published(Items)
              .Doc(QStringLiteral("What can be checked."))
              .Published(Sorted)
              .Doc(QStringLiteral("Shows the items in the order of the alphabet.")))
          .ClassDoc(
              QStringLiteral("A field with a list in which any number of items can be checked."),
              "pen line 1.5 brush fill box 2.5 3.5 19 7 2 box 2.5 10.5 19 10 1 path 11 14 17 14 path 11 "
              "17.5 15 17.5 pen accent 1.8 brush none path 5 14 6.5 15.5 9 12.5 path 14.5 6 17 8.5 19.5 "
              "6"));
  return cls;
}

QStringList TVRXCheckListComboBox::Ordered() const { return SortedIf(Get(Sorted), Get(Items)->Lines()); }

QString TVRXCheckListComboBox::ShownText() const {
  QStringList checked = Ordered();
  checked.removeIf([this](const QString& item) { return !Checked(item); });
  return checked.join(Or(Get(Delimiter), u", "));
}

std::unique_ptr<TControl> TVRXCheckListComboBox::MakeDropDown() const {
  auto list = Dropped<TCheckListBox>(std::to_array({"Color"}));
  const QStringList items = Ordered();
  list->Get(TCustomListBox::Items)->SetLines(items);
  for (int i = 0; i < items.size(); ++i)
    if (Checked(items[i])) list->SetState(i, TCheckBoxState::cbChecked);
  list->SetHeight(RowsHeight(std::min(Get(DropDownCount), static_cast<int>(items.size()))));
  return list;
}
