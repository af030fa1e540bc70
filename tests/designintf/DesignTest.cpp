#include "DesignTest.h"

const TClass& TCone::StaticClass() {
  static const TClass cls(DescribeClass<TCone>("TCone", TPersistent::StaticClass())
                              .Published("Depth", &TCone::Depth, &TCone::SetDepth, 3)
                              .Published("Paper", &TCone::Paper, &TCone::SetPaper));
  return cls;
}

const TClass& TIce::StaticClass() {
  static const TClass cls(
      DescribeClass<TIce>("TIce", TComponent::StaticClass())
          .Icon("pen none brush line shape 4 4 20 4 12 21")
          .Published("Scoops", &TIce::Scoops, &TIce::SetScoops, 1)
          .Published("Flavour", &TIce::Flavour, &TIce::SetFlavour, TFlavour::flSweet)
          .Published("Toppings", &TIce::Toppings, &TIce::SetToppings, TToppings{TTopping::tpCream})
          .Published("Melted", &TIce::Melted, &TIce::SetMelted, false)
          .Published("Weight", &TIce::Weight, &TIce::SetWeight)
          .Published("Label", &TIce::Label, &TIce::SetLabel)
          .Published("Cone", &TIce::Cone, &TIce::SetCone)
          .Published("Spoon", &TIce::Spoon, &TIce::SetSpoon)
          .Event("OnMelt")
          .Event("OnLick", "TLickEvent"));
  return cls;
}

const TClass& TBigIce::StaticClass() {
  static const TClass cls(DescribeClass<TBigIce>("TBigIce", TIce::StaticClass()).Publish("Scoops", 5));
  return cls;
}
