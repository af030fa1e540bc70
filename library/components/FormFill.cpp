#include "library/components/FormFill.h"

const TClass& TVRXCustomFormFill::StaticClass() {
  static const TClass cls(DescribeClass<TVRXCustomFormFill>("TVRXCustomFormFill", TFormDecor::StaticClass())
                              .Declared(DefaultFill)
                              .Doc(QStringLiteral("Fills the form; else a handler of OnFill does."))
                              .Declared(Enabled)
                              .Doc(QStringLiteral("Whether it changes the form."))
                              .Declared(ImageList)
                              .Doc(QStringLiteral("Pictures to fill with."))
                              .DeclaredEvent("OnFill"));
  return cls;
}

const TClass& TVRXFormFill::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXFormFill>("TVRXFormFill", TVRXCustomFormFill::StaticClass())
          .PublishAll("DefaultFill", "Enabled")
          .Published(FillPart)
          .Doc(QStringLiteral("What the form is filled with."))
          .PublishAll("ImageList", "OnFill")
          .ClassDoc(
              QStringLiteral("Fills the form with a gradient, a hatch or a bitmap."),
              "pen line 1.5 brush fill box 3 4 18 16 2 pen accent+50 2 path 5.5 10 18.5 10 pen accent+25 2 "
              "path 5.5 13.5 18.5 13.5 pen accent 2 path 5.5 17 18.5 17"));
  return cls;
}

const TClass& TVRXBack::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXBack>("TVRXBack", TVRXCustomFormFill::StaticClass())
          .Published("Bitmap", &TVRXBack::Bitmap, &TVRXBack::SetBitmap)
          .Doc(QStringLiteral("The picture."))
          .Published("BitmapPlace", &TVRXBack::BitmapPlace, &TVRXBack::SetBitmapPlace,
                     TVRXBitmapPlace::bpTile)
          .Doc(QStringLiteral("Whether the picture stands in the middle, is repeated or stretched."))
          .Published("Color", &TVRXBack::Color, &TVRXBack::SetColor, clBtnFace)
          .Doc(QStringLiteral("Color of what the picture leaves free."))
          .PublishAll("DefaultFill", "Enabled")
          .Published("ImageIndex", &TVRXBack::ImageIndex, &TVRXBack::SetImageIndex, -1)
          .Doc(QStringLiteral("A picture of the image list, in place of the bitmap; -1 is none."))
          .PublishAll("ImageList", "OnFill")
          .ClassDoc(
              QStringLiteral("Covers the form with a picture, as it is or many times."),
              "pen line 1.5 brush fill box 3 4 18 16 2 pen none brush accent oval 6 7 4.5 4.5 oval 13.5 7 "
              "4.5 4.5 oval 6 13 4.5 4.5 oval 13.5 13 4.5 4.5"));
  return cls;
}

TVRXBack::TVRXBack(TComponent* owner) : TVRXCustomFormFill(owner) {
  fill_.Set(TVRXFillObject::Kind, TVRXFillKind::fkBitmap);
  fill_.Set(TVRXFillObject::Color, clBtnFace);
}

bool TVRXCustomFormFill::PaintGround(TCanvas& canvas, const QRect& client) const {
  if (!Get(Enabled) || !Get(DefaultFill)) return false;
  QPainterPath area;
  area.addRect(client);
  Fill().Draw(canvas, area, Get(ImageList));
  return true;
}
