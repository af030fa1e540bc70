#include "library/components/ShapeHint.h"

#include "rtl/PropAccess.h"

const TClass& TVRXCustomShapeHint::StaticClass() {
  static const TClass cls(DescribeClass<TVRXCustomShapeHint>("TVRXCustomShapeHint", TComponent::StaticClass())
                              .Declared(BorderColor)
                              .Doc(QStringLiteral("Color of the outline."))
                              .Declared(Color)
                              .Doc(QStringLiteral("Color of the ground."))
                              .Declared(Enabled)
                              .Doc(QStringLiteral("Whether hints look like this."))
                              .Declared("Font", &TVRXCustomShapeHint::Font, &TVRXCustomShapeHint::SetFont)
                              .StoredIf(&TVRXCustomShapeHint::FontStored)
                              .Declared(Font3DPart)
                              .Doc(QStringLiteral("Light and shadow of the letters."))
                              .Declared(ShadowPart)
                              .Doc(QStringLiteral("The shadow of the hint.")));
  return cls;
}
TVRXCustomShapeHint::TVRXCustomShapeHint(TComponent* owner)
    : TComponent(owner), font_(std::make_unique<TFont>(this)) {}

bool TVRXCustomShapeHint::FontStored() const {
  static const TFont plain;
  return !SameValues(*font_, plain);
}

const TClass& TVRXShapeHint::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXShapeHint>("TVRXShapeHint", TVRXCustomShapeHint::StaticClass())
          .PublishAll("BorderColor", "Color", "Enabled", "Font", "Font3D", "Shadow")
          .ClassDoc(
              QStringLiteral("Gives the application's hints an outline and a shadow."),
              "pen line 1.5 brush fill shape 3 5 21 5 21 15 12 15 8 20 8 15 3 15 pen accent 1.8 path 6.5 8.5 "
              "17.5 8.5 path 6.5 11.5 14 11.5"));
  return cls;
}
