#include "vcl/Image.h"

#include "rtl/Class.h"
#include "vcl/DesignMarks.h"
#include "vcl/ImageList.h"
#include "vcl/PropertyGroups.h"

const TClass& TImage::StaticClass() {
  static const TClass cls(
      DescribeClass<TImage>("TImage", TGraphicControl::StaticClass())
          .PublishAll(Placing, Placement, Dragging, Help, Hints, Styling, "AutoSize", "Enabled", "PopupMenu",
                      "Visible", MouseEvents, WheelEvents, DragEvents)
          .PublishedAll(Center, IncrementalDisplay, Picture, Proportional, Stretch, Transparent)
          .Passive("AntialiasingMode", TAntialiasingMode::amDontCare)
          .Passive("ImageIndex", 0)
          .Passive<TCustomImageList*>("Images")
          .Passive("ImageWidth", 0)
          .Passive("KeepOriginXWhenClipped", false)
          .Passive("KeepOriginYWhenClipped", false)
          .Passive("StretchInEnabled", true)
          .Passive("StretchOutEnabled", true)
          .Event("OnFindClass", "TFindClassEvent")
          .Event("OnPaint")
          .Event("OnPaintBackground", "TImagePaintBackgroundEvent")
          .Event("OnPictureChanged")
          .Event("OnProgress", "TProgressEvent")
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("Shows a picture."),
              "pen line 1.5 brush fill box 3.5 4.5 17 15 2 pen none brush accent oval 6.5 7.5 3.5 3.5 pen "
              "accent 1.8 brush none path 5.5 17 10 12.5 13 15.5 16 11.5 19 15"));
  return cls;
}

TImage::TImage(TComponent* owner) : TGraphicControl(owner) { SetBounds(0, 0, 105, 105); }

QSize TImage::AutoSizeHint() const {
  const QSize size = Get(Picture)->Image().size();
  return size.isEmpty() ? BoundsRect().size() : size;
}

QRect TImage::DestRect() const {
  QSize size = Get(Picture)->Image().size();
  const QSize room = BoundsRect().size();
  const bool larger = size.width() > room.width() || size.height() > room.height();
  if (Get(Proportional) && (Get(Stretch) || larger))
    size.scale(room, Qt::KeepAspectRatio);
  else if (Get(Stretch))
    size = room;
  QRect dest({0, 0}, size);
  if (Get(Center)) dest.moveTopLeft({(room.width() - size.width()) / 2, (room.height() - size.height()) / 2});
  return dest;
}

void TImage::Paint(TCanvas& canvas) {
  const QImage& image = Get(Picture)->Image();
  if (!image.isNull()) {
    canvas.Painter().setRenderHint(QPainter::SmoothPixmapTransform);
    canvas.Painter().drawImage(DestRect(), image);
  }
  if (!IsDesigning()) return;
  PaintDesignFrame(canvas, ClientRect());
  if (const QString& problem = Get(Picture)->Problem(); !problem.isEmpty())
    canvas.TextRect(ClientRect().adjusted(4, 4, -4, -4), Qt::AlignCenter | Qt::TextWordWrap, problem, *Font(),
                    false);
}

const TClass& TPaintBox::StaticClass() {
  static const TClass cls(
      DescribeClass<TPaintBox>("TPaintBox", TGraphicControl::StaticClass())
          .PublishAll(Placing, Placement, Dragging, Help, Look, ParentLook, Hints, Styling, "PopupMenu",
                      "Visible", MouseEvents, WheelEvents, DragEvents)
          .Event("OnPaint")
          .Alphabetical()
          .ClassDoc(QStringLiteral("A place that the program paints on."),
                    "pen line 1.5 dots brush fill box 3.5 4.5 17 15 0 pen accent 2 path 7 16 12 11 16 8"));
  return cls;
}

TPaintBox::TPaintBox(TComponent* owner) : TGraphicControl(owner) { SetBounds(0, 0, 105, 105); }

void TPaintBox::Paint(TCanvas& canvas) {
  if (!ParentColor()) canvas.FillRect(ClientRect(), Color());
  if (IsDesigning()) PaintDesignFrame(canvas, ClientRect());
}
