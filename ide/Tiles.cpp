#include "ide/Tiles.h"

#include "designintf/ComponentTile.h"
#include "rtl/HiddenIcon.h"
#include "vcl/FormFrame.h"

bool HasTile(const FormSession& session, const TComponent& component) {
  if (As<TControl>(&component) || HasHiddenIcon(component)) return false;
  const forms::Object* object = session.ObjectOf(component);
  return object && object->parent && !object->parent->parent;
}

const TComponent& ShownFor(const FormSession& session, const TComponent& component) {
  const forms::Object* object = session.ObjectOf(component);
  for (; object; object = object->parent)
    if (const TComponent* c = session.ComponentOf(*object); c && (As<TControl>(c) || HasTile(session, *c)))
      return *c;
  return component;
}

QRect TileRect(const TComponent& component) {
  const TDesignPoint at = DesignPointOf(component.DesignInfo());
  return {at.Left, at.Top, ComponentTileSize, ComponentTileSize};
}

QSize DeskSize(const FormSession& session) {
  const TForm& form = session.Form();
  QSize size = form.ClientRect().size();
  if (form.Kind() != TFormKind::DataModule) return size;
  constexpr int Name = 40;  // room for half a name beside and a line below
  constexpr int Most = 10000;
  for (const TComponent* c : form.Components())
    if (HasTile(session, *c)) {
      const QRect r = TileRect(*c).adjusted(0, 0, Name, Name);
      size = size.expandedTo({std::min(r.right() + 1, Most), std::min(r.bottom() + 1, Most)});
    }
  return size;
}

QImage RenderRoot(FormSession& session, double scale) {
  TForm& form = session.Form();
  if (form.Kind() != TFormKind::DataModule) return RenderForm(form, scale);
  const QSize size = DeskSize(session);
  QImage image(QSize(std::max(1, qRound(size.width() * scale)), std::max(1, qRound(size.height() * scale))),
               QImage::Format_ARGB32_Premultiplied);
  if (image.isNull()) return image;
  image.fill(ToQColor(clWindow));
  QPainter painter(&image);
  painter.scale(scale, scale);
  for (const TComponent* c : form.Components())
    if (HasTile(session, *c)) PaintComponentTile(painter, *c, TileRect(*c).topLeft(), scale);
  return image;
}
