#include "dclstd/ImageListDialog.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <QMimeData>
#include <QPainter>

#include "dclstd/CheckedGround.h"
#include "dclstd/EditValue.h"
#include "vcl/PictureFile.h"
#include "vcl/PixelPicture.h"
#include "vcl/Prompts.h"
#include "vcl/UserFile.h"

namespace {
constexpr int MostSide = 256;

QImage WithoutColor(QImage image, TColor color) {
  image = image.convertToFormat(QImage::Format_ARGB32);
  const auto pixel = ExactPixelOf(color);
  if (!pixel) return image;
  for (int y = 0; y < image.height(); ++y) {
    auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x)
      if (row[x] == *pixel) row[x] = 0;
  }
  return image;
}
// Whether anything of it is transparent; one that could have it may still be opaque.
bool HasHoles(const QImage& image) {
  if (!image.hasAlphaChannel()) return false;
  const QImage plain = image.convertToFormat(QImage::Format_ARGB32);
  for (int y = 0; y < plain.height(); ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(plain.constScanLine(y));
    if (std::any_of(row, row + plain.width(), [](QRgb pixel) { return qAlpha(pixel) != 0xFF; })) return true;
  }
  return false;
}
// Of a picture that says nothing itself, the lower left pixel's, unless nothing would be left of it.
TColor TransparentOf(const QImage& image) {
  if (HasHoles(image)) return clNone;
  const QRgb corner = image.pixel(0, image.height() - 1);
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixel(x, y) != corner) return ColorOfPixel(corner | 0xFF000000);
  return clNone;
}
// As it is, with what may be transparent in it.
QImage ReadImage(const QString& file) {
  const TBitmap checked = LoadPicture(file);
  try {
    return PixelPictureFromBytes(ReadUserFile(file), QFileInfo(file).fileName());
  } catch (const EInvalidPicture&) {
    return checked.Image();  // a drawing
  }
}
QStringList FilesIn(const QMimeData& data) {
  QStringList files;
  for (const QUrl& url : data.urls())
    if (url.isLocalFile()) files << url.toLocalFile();
  return files;
}
}  // namespace

ImageListDialog::ImageListDialog(QWidget* owner) : RowDialog(tr("Image List Editor"), owner) {
  setAcceptDrops(true);
  strip = new QListWidget(this);
  strip->setObjectName(QStringLiteral("strip"));
  strip->setAccessibleName(tr("Pictures"));
  strip->setViewMode(QListView::IconMode);
  strip->setResizeMode(QListView::Adjust);
  strip->setMovement(QListView::Snap);
  strip->setSelectionMode(QAbstractItemView::ExtendedSelection);
  strip->setDragDropMode(QAbstractItemView::NoDragDrop);
  strip->setSpacing(4);
  strip->installEventFilter(this);
  facts = new QLabel(this);
  facts->setObjectName(QStringLiteral("facts"));
  Follows(strip);

  auto* grid = new QGridLayout;
  RowsInto(*grid);
  Row(transparent, "transparent", "", "&Transparent:", "The color that the selected pictures leave out")
      .Changes(&ImageListDialog::transparentChange);
  Row(width, "width", "", "&Width:", "Of every picture; they are scaled")
      .Range(1, MostSide, 3)
      .Changes(&ImageListDialog::sizeChange);
  Row(height, "height", "", "&Height:", "Of every picture; they are scaled")
      .Range(1, MostSide, 3)
      .Changes(&ImageListDialog::sizeChange);
  Button(add, "add", "&Add...", &ImageListDialog::addClick, "Pictures from files (Ins)");
  Button(replace, "replace", "&Replace...", &ImageListDialog::replaceClick,
         "A picture of a file in place of the selected one");
  Button(remove, "remove", "&Delete", &ImageListDialog::removeClick, "The selected pictures (Del)");
  Button(clear, "clear", "Cl&ear", &ImageListDialog::clearClick, "All pictures");
  Button(back, "back", "Move &Back", &ImageListDialog::backClick, "Towards the first (Ctrl+Left)");
  Button(on, "on", "Move &On", &ImageListDialog::onClick, "Towards the last (Ctrl+Right)");
  Button(exportAll, "exportAll", "E&xport...", &ImageListDialog::exportClick,
         "All pictures side by side as one file");
  OkButton(ok, "ok");
  CancelButton(cancel, "cancel");

  auto* left = new QVBoxLayout;
  left->addWidget(strip, 1);
  left->addWidget(facts);
  left->addLayout(grid);
  connect(strip, &QListWidget::itemSelectionChanged, this, &ImageListDialog::SetLabels);
  new RowDrag(*strip, [this](const RowDrag::Target& target) {
    Guarded([&] { Move(MovesTo(Selected(), target.Row(static_cast<int>(entries_.size())))); });
  });
  FinishBeside(left, {add, replace, remove, clear, back, on, exportAll}, {ok, cancel}, {480, 380});
}

void ImageListDialog::SetImages(const QList<QImage>& images, QSize size) {
  entries_.clear();
  for (const QImage& image : images) entries_.append({image, clNone});
  size_ = size;
  changed_ = false;
  stripStale_ = true;
  SetLabels();
  if (entries_.isEmpty()) return;
  Select({0});
  SetLabels();
}

// Whole and undistorted, in the middle of what it leaves free.
QImage ImageListDialog::Shown(const Entry& entry) const {
  const QImage image = WithoutColor(entry.original, entry.transparent);
  if (image.size() == size_) return image;
  const QImage scaled = image.scaled(size_, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  QImage fitted(size_, QImage::Format_ARGB32);
  fitted.fill(Qt::transparent);
  QPainter p(&fitted);
  p.setCompositionMode(QPainter::CompositionMode_Source);
  p.drawImage((size_.width() - scaled.width()) / 2, (size_.height() - scaled.height()) / 2, scaled);
  return fitted;
}
QList<QImage> ImageListDialog::Images() const {
  QList<QImage> images;
  for (const Entry& entry : entries_) images.append(Shown(entry));
  return images;
}
QSize ImageListDialog::ImageSize() const { return size_; }

// At least as large as its pixels; small ones are enlarged so that they can be told apart.
QIcon ImageListDialog::IconOf(const Entry& entry) const {
  const QImage image = Shown(entry);
  const int factor = std::max(1, 32 / std::max(size_.width(), size_.height()));
  QPixmap pixmap(size_ * factor);
  QPainter p(&pixmap);
  PaintCheckedGround(p, pixmap.rect(), 4);
  p.drawImage(QRect(QPoint(0, 0), pixmap.size()), image);
  p.end();
  QIcon icon(pixmap);
  icon.addPixmap(pixmap, QIcon::Selected);
  return icon;
}

void ImageListDialog::LoadControls() {
  RowDialog::LoadControls();
  const int factor = std::max(1, 32 / std::max(size_.width(), size_.height()));
  strip->setIconSize(size_ * factor);
  while (strip->count() > entries_.size()) delete strip->takeItem(strip->count() - 1);
  for (int i = strip->count(); i < entries_.size(); ++i) strip->addItem(QString::number(i));
  if (stripStale_)
    for (int i = 0; i < entries_.size(); ++i) strip->item(i)->setIcon(IconOf(entries_[i]));
  stripStale_ = false;
  const std::vector<int> rows = Selected();
  const int count = static_cast<int>(rows.size());
  facts->setText((entries_.size() == 1 ? tr("%1 picture of %2 x %3") : tr("%1 pictures of %2 x %3"))
                     .arg(entries_.size())
                     .arg(size_.width())
                     .arg(size_.height()));
  width->Show(size_.width());
  height->Show(size_.height());
  transparent->setEnabled(count > 0);
  transparent->SetSelected(count > 0 ? entries_[rows.front()].transparent : clNone);
  replace->setEnabled(count == 1);
  remove->setEnabled(count > 0);
  for (QPushButton* button : {clear, exportAll}) button->setEnabled(!entries_.isEmpty());
  back->setEnabled(count > 0 && rows.back() >= count);
  on->setEnabled(count > 0 && rows.front() < entries_.size() - count);
}

std::vector<int> ImageListDialog::Selected() const {
  std::vector<int> rows;
  for (const QModelIndex& index : strip->selectionModel()->selectedIndexes())
    if (index.row() < entries_.size()) rows.push_back(index.row());
  std::sort(rows.begin(), rows.end());
  return rows;
}

void ImageListDialog::Select(const std::vector<int>& rows) {
  const QSignalBlocker quiet(strip);
  strip->clearSelection();
  for (const int row : rows)
    if (QListWidgetItem* item = strip->item(row)) item->setSelected(true);
  if (!rows.empty()) strip->setCurrentRow(rows.back(), QItemSelectionModel::NoUpdate);
}

void ImageListDialog::Change(const std::vector<int>& selected) {
  changed_ = stripStale_ = true;
  SetLabels();
  Select(selected);
  SetLabels();
}

// --- From files

QList<ImageListDialog::Entry> ImageListDialog::EntriesOf(const QString& file) {
  const QImage image = ReadImage(file);
  const int across = image.width() / size_.width(), down = image.height() / size_.height();
  const bool fits =
      across > 0 && down > 0 && image.width() % size_.width() == 0 && image.height() % size_.height() == 0;
  if (!fits || across * down == 1 ||
      !Prompts().Confirm(
          this, windowTitle(),
          tr("%1 is %2 x %3. Cut it into %4 pictures of %5 x %6? Otherwise it is made smaller.")
              .arg(QFileInfo(file).fileName())
              .arg(image.width())
              .arg(image.height())
              .arg(across * down)
              .arg(size_.width())
              .arg(size_.height())))
    return {{image, TransparentOf(image)}};
  QList<Entry> pieces;
  for (int y = 0; y < down; ++y)
    for (int x = 0; x < across; ++x) {
      const QImage piece = image.copy(QRect({x * size_.width(), y * size_.height()}, size_));
      pieces.append({piece, TransparentOf(piece)});
    }
  return pieces;
}

void ImageListDialog::AddFiles(const QStringList& files) {
  QList<Entry> added;
  for (const QString& file : files) added += EntriesOf(file);
  if (added.isEmpty()) return;
  const std::vector<int> before = Selected();
  int at = before.empty() ? static_cast<int>(entries_.size()) : before.back() + 1;
  std::vector<int> rows;
  for (const Entry& entry : added) {
    entries_.insert(at, entry);
    rows.push_back(at++);
  }
  Change(rows);
}

void ImageListDialog::addClick() {
  AddFiles(Prompts().OpenFileNames(this, tr("Add pictures"), {}, PictureFilter()));
}

void ImageListDialog::replaceClick() {
  const std::vector<int> rows = Selected();
  const QString file = Prompts().OpenFileName(this, tr("Replace picture"), {}, PictureFilter());
  if (rows.empty() || file.isEmpty()) return;
  const QImage image = ReadImage(file);
  entries_[rows.front()] = {image, TransparentOf(image)};
  Change(rows);
}

void ImageListDialog::exportClick() {
  const QString file = Prompts().SaveFileName(this, tr("Export pictures"), QStringLiteral("pictures.png"),
                                              QStringLiteral("*.png"));
  if (file.isEmpty()) return;
  const auto count = static_cast<int>(entries_.size());
  QImage all(size_.width() * count, size_.height(), QImage::Format_ARGB32);
  all.fill(Qt::transparent);
  for (int i = 0; i < count; ++i) {
    const QImage image = Shown(entries_[i]);
    for (int y = 0; y < image.height(); ++y)
      std::memcpy(all.scanLine(y) + 4 * i * size_.width(), image.constScanLine(y),
                  static_cast<std::size_t>(4 * size_.width()));
  }
  WriteUserFile(file, PictureToBytes(all, "png"));
}

// --- What is there

void ImageListDialog::sizeChange() {
  const QSize size(width->value(), height->value());
  if (size == size_) return;
  size_ = size;
  Change(Selected());
}

void ImageListDialog::transparentChange() {
  const std::vector<int> rows = Selected();
  for (const int row : rows) entries_[row].transparent = transparent->Selected();
  if (!rows.empty()) Change(rows);
}

void ImageListDialog::removeClick() {
  const std::vector<int> rows = Selected();
  if (rows.empty()) return;
  for (auto row = rows.rbegin(); row != rows.rend(); ++row) entries_.removeAt(*row);
  const int next = std::min(rows.front(), static_cast<int>(entries_.size()) - 1);
  Change(next < 0 ? std::vector<int>() : std::vector<int>{next});
}

void ImageListDialog::clearClick() {
  entries_.clear();
  Change({});
}

void ImageListDialog::Move(const RowMoves& moves) {
  if (!MovesAny(moves)) return;
  for (const RowMove& move : moves) entries_.move(move.from, move.to);
  Change(Landed(moves));
}

bool ImageListDialog::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return RowDialog::eventFilter(watched, event);
  const auto* key = static_cast<QKeyEvent*>(event);
  const bool control = key->modifiers() == Qt::ControlModifier;
  const bool towardsFirst = key->key() == Qt::Key_Left || key->key() == Qt::Key_Up;
  const bool towardsLast = key->key() == Qt::Key_Right || key->key() == Qt::Key_Down;
  QPushButton* button = key->key() == Qt::Key_Insert   ? add
                        : key->key() == Qt::Key_Delete ? remove
                        : control && towardsFirst      ? back
                        : control && towardsLast       ? on
                                                       : nullptr;
  if (!button) return false;
  button->click();
  return true;
}

void ImageListDialog::dragEnterEvent(QDragEnterEvent* event) {
  if (!FilesIn(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}
void ImageListDialog::dropEvent(QDropEvent* event) {
  event->acceptProposedAction();
  Guarded([&] { AddFiles(FilesIn(*event->mimeData())); });
}

bool EditImageList(TCustomImageList& list) {
  ImageListDialog dialog(ApplicationOwner());
  dialog.SetImages(list.Pictures().images,
                   {list.Get(TCustomImageList::Width), list.Get(TCustomImageList::Height)});
  if (dialog.ShowModal() != mrOk || !dialog.Changed()) return false;
  list.Set(TCustomImageList::Width, dialog.ImageSize().width());
  list.Set(TCustomImageList::Height, dialog.ImageSize().height());
  list.SetPictures(dialog.Images());
  return true;
}
