#include "library/controls/AniCtrl.h"

#include "rtl/Clock.h"
#include "vcl/DesignMarks.h"
#include "vcl/PropertyGroups.h"

const TClass& TVRXCustomLImage::StaticClass() {
  static const TClass cls(DescribeClass<TVRXCustomLImage>("TVRXCustomLImage", TGraphicControl::StaticClass())
                              .Declared(BitmapPart)
                              .Doc(QStringLiteral("The pictures side by side, where there is no image list."))
                              .Declared(FrameCount)
                              .Doc(QStringLiteral("How many pictures the bitmap holds."))
                              .Declared(ImageIndex)
                              .Doc(QStringLiteral("The picture that is shown at rest."))
                              .Declared(ImageList)
                              .Doc(QStringLiteral("The pictures."))
                              .Declared(Stretch)
                              .Doc(QStringLiteral("The picture fills the control."))
                              .Declared(Transparent)
                              .Doc(QStringLiteral("Lets what is behind the picture show around it.")));
  return cls;
}

const TClass& TVRXAniCtrl::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXAniCtrl>("TVRXAniCtrl", TVRXCustomLImage::StaticClass())
          .PublishAll(Placing)
          .Published(Animate)
          .Doc(QStringLiteral("Whether the pictures run."))
          .Publish("AutoSize", false)
          .PublishAll("Bitmap", "Color", "Enabled", "FrameCount", Hints, "ImageIndex", "ImageList")
          .Published(Interval)
          .Doc(QStringLiteral("Milliseconds that a picture is shown."))
          .PublishAll("ParentColor", "Stretch", "Transparent", "Visible", MouseEvents)
          .ClassDoc(
              QStringLiteral("Shows pictures one after the other."),
              "pen line 1.3 brush fill box 7.5 3.5 13 11 1 box 5.25 6.5 13 11 1 box 3 9.5 13 11 1 pen none "
              "brush accent shape 7.5 12 12.5 15 7.5 18"));
  return cls;
}

TVRXCustomLImage::TVRXCustomLImage(TComponent* owner) : TGraphicControl(owner) { SetBounds(0, 0, 64, 64); }

int TVRXCustomLImage::Frames() const {
  if (const auto* images = Get(ImageList)) return images->Count();
  return Bitmap()->Image().isNull() ? 0 : std::clamp(Get(FrameCount), 1, Bitmap()->Image().width());
}

QSize TVRXCustomLImage::FrameSize() const {
  if (const auto* images = Get(ImageList))
    return {images->Get(TCustomImageList::Width), images->Get(TCustomImageList::Height)};
  if (Frames() == 0) return {};
  return {Bitmap()->Image().width() / Frames(), Bitmap()->Image().height()};
}

QSize TVRXCustomLImage::AutoSizeHint() const {
  return Frames() == 0 ? QSize(Width(), Height()) : FrameSize();
}

void TVRXCustomLImage::Paint(TCanvas& canvas) {
  QPainter& p = canvas.Painter();
  if (!Get(Transparent)) canvas.FillRect(ClientRect(), Color());
  const int frame = Current();
  if (Frames() == 0) {
    if (IsDesigning()) PaintDesignFrame(canvas, ClientRect());
    PaintDesignName(canvas, ClientRect(), *this);
    return;
  }
  if (frame < 0 || frame >= Frames()) return;
  const QSize size = FrameSize();
  const auto* images = Get(ImageList);
  const QImage image =
      images ? images->Image(frame) : Bitmap()->Image().copy(QRect(QPoint(frame * size.width(), 0), size));
  QRect place(QPoint((Width() - size.width()) / 2, (Height() - size.height()) / 2), size);
  if (Get(Stretch)) place = ClientRect();
  p.save();
  p.setClipRect(ClientRect(), Qt::IntersectClip);
  p.setRenderHint(QPainter::SmoothPixmapTransform);
  if (!Enabled()) p.setOpacity(0.4);
  p.drawImage(place, image);
  p.restore();
}

int TVRXAniCtrl::Current() const {
  if (!Runs()) return Get(ImageIndex);
  return static_cast<int>(ClockMilliseconds() / std::max(1, Get(Interval)) % Frames());
}

void TVRXAniCtrl::Paint(TCanvas& canvas) {
  if (Runs()) {
    const int interval = std::max(1, Get(Interval));
    timer_.PaintAgainIn(interval - ClockMilliseconds() % interval);
  }
  TVRXCustomLImage::Paint(canvas);
}
