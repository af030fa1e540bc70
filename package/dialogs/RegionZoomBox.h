// What is under the mouse in the region dialog.
#pragma once
#include <QWidget>
#include <array>
#include <optional>

#include "vcl/Bitmap.h"

// A square part of a picture, enlarged.
class ZoomBox : public QWidget {
  Q_OBJECT
 public:
  static constexpr int Cells = 20;
  explicit ZoomBox(QWidget* parent);
  // Shows the pixels from `origin` on; where the picture has none, they are clInvalid.
  void ShowPart(const TBitmap& picture, QPoint origin);
  // Shows nothing.
  void Clear();
  // The colour at a place; nothing before a part is shown.
  std::optional<TColor> ColorAt(QPoint place) const;
  QSize sizeHint() const override { return {Cells * 8 + 1, Cells * 8 + 1}; }
  QSize minimumSizeHint() const override { return sizeHint(); }

 signals:
  void MouseDown(Qt::MouseButton button, QPoint place);
  void MouseMove(QPoint place);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  QRect CellRect(int column, int row) const;
  std::array<std::array<TColor, Cells>, Cells> cells_{};  // [row][column]
  bool filled_ = false;
};
