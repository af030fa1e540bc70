#include "library/controls/SimplePanel.h"

#include "rtl/Class.h"

const TClass& TVRXSimplePanel::StaticClass() {
  static const TClass cls(DescribeClass<TVRXSimplePanel>("TVRXSimplePanel", TWinControl::StaticClass())
                              .Declared(BevelPart)
                              .Doc(QStringLiteral("The edge around the panel."))
                              .Declared(Transparent)
                              .Doc(QStringLiteral("Lets what is behind the panel show through.")));
  return cls;
}

QMargins TVRXSimplePanel::Insets() const {
  const int edge = IsKept(&BevelPart) ? Bevel()->Room() : 0;
  return TWinControl::Insets() + QMargins(edge, edge, edge, edge);
}

void TVRXSimplePanel::Paint(TCanvas& canvas) {
  if (!Get(Transparent)) canvas.FillRect(ClientRect(), Color());
  if (IsKept(&BevelPart)) Bevel()->Draw(canvas, ClientRect());
}
