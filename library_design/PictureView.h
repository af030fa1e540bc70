// Shows a picture pixel by pixel, in the middle of the room it has.
#pragma once
#include <QWidget>

#include "vcl/Bitmap.h"

class PictureView : public QWidget {
  Q_OBJECT
 public:
  explicit PictureView(QWidget* parent = nullptr);
  // Keeps a copy, which shares the pixels.
  void SetPicture(const TBitmap& picture);
  const TBitmap& Picture() const { return picture_; }
  // Something that is only to be looked at and may be transparent; null is nothing.
  void SetImage(const QImage& image);
  // The pixel at a place of the widget; it may lie outside of the picture.
  QPoint PixelAt(QPoint place) const { return place - Origin(); }
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 signals:
  // At a pixel, which may lie outside of the picture.
  void MouseDown(Qt::MouseButton button, QPoint pixel);
  void MouseMove(QPoint pixel);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  QPoint Origin() const;
  TBitmap picture_;
  QImage shown_;
};
