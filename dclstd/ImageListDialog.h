// The pictures of an image list, all of one size: added from files, replaced, moved, written to a file.
#pragma once
#include "dclstd/ColorComboBox.h"
#include "dclstd/RowDialog.h"
#include "dclstd/RowDrag.h"
#include "vcl/ImageList.h"

class QListWidget;

// Writes into the list only when the user changed something and confirms, and is true then. Throws
// EInvalidPicture when the pictures are more than can be read again.
bool EditImageList(TCustomImageList& list);

class ImageListDialog : public RowDialog {
  Q_OBJECT
 public:
  explicit ImageListDialog(QWidget* owner);
  void SetImages(const QList<QImage>& images, QSize size);
  // As they will be in the list: with alpha, each of the size.
  QList<QImage> Images() const;
  QSize ImageSize() const;
  bool Changed() const { return changed_; }
  // Behind the selected one. A larger picture is cut into pieces, when the user says so, or made smaller.
  // Throws EInvalidPicture and adds nothing when one of the files is no picture.
  void AddFiles(const QStringList& files);

  QListWidget* strip = nullptr;
  QLabel* facts = nullptr;
  SpinEdit *width = nullptr, *height = nullptr;
  ColorComboBox* transparent;
  QPushButton *add = nullptr, *replace = nullptr, *remove = nullptr, *clear = nullptr, *back = nullptr,
              *on = nullptr, *exportAll = nullptr, *ok = nullptr, *cancel = nullptr;

 protected:
  void LoadControls() override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Entry {
    QImage original;
    TColor transparent = clNone;
  };
  void sizeChange();
  void transparentChange();
  void addClick();
  void replaceClick();
  void removeClick();
  void clearClick();
  void backClick() { Move(MovesBy(Selected(), -1, static_cast<int>(entries_.size()))); }
  void onClick() { Move(MovesBy(Selected(), 1, static_cast<int>(entries_.size()))); }
  void exportClick();
  void Move(const RowMoves& moves);
  // Pieces of the list's size, or the whole.
  QList<Entry> EntriesOf(const QString& file);
  QImage Shown(const Entry& entry) const;
  QIcon IconOf(const Entry& entry) const;
  std::vector<int> Selected() const;
  void Select(const std::vector<int>& rows);
  // Something is another; these are selected afterwards.
  void Change(const std::vector<int>& selected);

  QList<Entry> entries_;
  QSize size_{16, 16};
  bool changed_ = false;
  bool stripStale_ = true;  // it shows what the pictures were before
};
