#include "ide/Unknown.h"

const TClass& TUnknownControl::StaticClass() {
  static const TClass cls(DescribeClass<TUnknownControl>("TUnknownControl", TWinControl::StaticClass())
                              .PublishAll("Align", "Anchors", "Caption", "Enabled", "TabOrder", "Visible")
                              .ClassDoc(QStringLiteral("A control whose package is not loaded.")));
  return cls;
}
const TClass& TUnknownComponent::StaticClass() {
  static const TClass cls(DescribeClass<TUnknownComponent>("TUnknownComponent", TComponent::StaticClass())
                              .ClassDoc(QStringLiteral("A component whose package is not loaded.")));
  return cls;
}

TUnknownControl::TUnknownControl(TComponent* owner) : TWinControl(owner) { SetBounds(0, 0, 121, 25); }

void TUnknownControl::Paint(TCanvas& canvas) {
  QPainter& p = canvas.Painter();
  const QRect r = ClientRect().adjusted(0, 0, -1, -1);
  QColor ink = ToQColor(clWindowText);
  ink.setAlpha(20);
  p.fillRect(r, ink);
  ink.setAlpha(130);
  p.setPen(QPen(ink, 1, Qt::DashLine));
  p.setBrush(Qt::NoBrush);
  p.drawRect(r);
  ink.setAlpha(190);
  p.setPen(ink);
  QFont font = ToQFont(*Font());
  font.setPixelSize(std::min(font.pixelSize(), 12));
  p.setFont(font);
  const QString title = Name().isEmpty()
                            ? QString::fromUtf8(streamClass_)
                            : QStringLiteral("%1: %2").arg(Name(), QString::fromUtf8(streamClass_));
  const QRect inside = r.adjusted(4, 2, -4, -2);
  p.drawText(inside, Controls().empty() ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignLeft | Qt::AlignTop,
             p.fontMetrics().elidedText(title, Qt::ElideRight, inside.width()));
}

bool IsUnknown(const TComponent& component) {
  return component.InheritsFrom(TUnknownControl::StaticClass()) ||
         component.InheritsFrom(TUnknownComponent::StaticClass());
}
