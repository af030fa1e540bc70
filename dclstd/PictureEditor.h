// The picture of a component: looked at, loaded, saved, pasted, cleared.
#pragma once
#include "dclstd/RowDialog.h"
#include "vcl/Picture.h"

// Writes into the picture only when the user changed it and confirms, and is true then.
bool EditPicture(TPicture& picture);

// A picture as large as there is room, on a checkered ground that shows where it is transparent.
class PicturePreview : public QWidget {
  Q_OBJECT
 public:
  explicit PicturePreview(QWidget* parent) : QWidget(parent) {}
  void SetImage(const QImage& image);
  const QImage& Image() const { return image_; }
  QSize sizeHint() const override { return {280, 220}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QImage image_;
};

class PictureEditorDialog : public RowDialog {
  Q_OBJECT
 public:
  explicit PictureEditorDialog(QWidget* owner) : PictureEditorDialog(owner, TPicture()) {}
  PictureEditorDialog(QWidget* owner, const TPicture& picture);
  // The copy that is edited; a glyph of a glyph.
  TPicture& Picture() { return *picture_; }
  // Takes the picture of a file, whatever of the readable formats it has. Throws EInvalidPicture.
  void LoadFile(const QString& file);

  PicturePreview* view;
  QLabel *facts, *transparent, *swatch;
  QPushButton *load, *save, *clear, *copy, *paste, *ok, *cancel;

 protected:
  void LoadControls() override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void loadClick();
  void saveClick();
  void clearClick();
  void copyClick();
  void pasteClick();
  std::unique_ptr<TPicture> picture_;
};
