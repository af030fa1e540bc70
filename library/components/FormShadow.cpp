#include "library/components/FormShadow.h"

const TClass& TVRXFormShadow::StaticClass() {
  static const TClass cls(DescribeClass<TVRXFormShadow>("TVRXFormShadow", TFormDecor::StaticClass())
                              .Published(Enabled)
                              .Doc(QStringLiteral("Whether the form has a shadow."))
                              .Published(ShadowPart)
                              .Doc(QStringLiteral("Color and depth of the shadow."))
                              .Published(ShowInActive)
                              .Doc(QStringLiteral("Whether the shadow stays while another form is active."))
                              .ClassDoc(QStringLiteral("Gives the form a shadow."),
                                        "pen none brush accent box 7 8 14.5 13 2 pen line 1.5 brush fill box "
                                        "3 4 15 13 2 path 3 8 18 8"));
  return cls;
}

TVRXFormShadow::TVRXFormShadow(TComponent* owner) : TFormDecor(owner) {}

// One that somebody puts on a form is there to be seen.
void TVRXFormShadow::NameChanged(const QString& oldName) {
  TFormDecor::NameChanged(oldName);
  if (!oldName.isEmpty() || !IsDesigning() || IsLoading()) return;
  Shadow()->Set(TVRXShadow::Style, TVRXShadowStyle::hssSolid);
  Shadow()->Set(TVRXShadow::Color, clGrayText);  // stands out from a dark desk, too
}

QMargins TVRXFormShadow::Around(bool active) const { return Shows(active) ? Shadow()->Room() : QMargins(); }

void TVRXFormShadow::PaintAround(TCanvas& canvas, const QPainterPath& outline, bool active) const {
  if (Shows(active)) Shadow()->Draw(canvas, outline);
}
