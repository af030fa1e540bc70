#include "ide/operations/Places.h"

#include <QCoreApplication>

#include "ide/BoundsCheck.h"
#include "ide/Tiles.h"
#include "rtl/Exceptions.h"

QString OperationText(const char* text, int n) {
  return QCoreApplication::translate("Operations", text, nullptr, n);
}

bool HasPlace(const FormSession& session, const TComponent& c) {
  if (&c == session.GetRoot()) return false;
  const auto* control = As<TControl>(&c);
  return control ? control->HasOwnPlace() : HasTile(session, c);
}

QRect PlaceOf(const TComponent& c) {
  const auto* control = As<TControl>(&c);
  return control ? control->BoundsRect() : TileRect(c);
}

void SetPlace(TComponent& c, const QRect& r) {
  if (auto* control = As<TControl>(&c)) return control->SetBounds(r.left(), r.top(), r.width(), r.height());
  const auto word = [](int v) { return static_cast<std::int16_t>(std::clamp<int>(v, INT16_MIN, INT16_MAX)); };
  c.SetDesignInfo(DesignWordOf({word(r.left()), word(r.top())}));
}

QPoint FormOriginOf(const TWinControl& container) {
  QPoint at;
  for (const TWinControl* p = &container; p && p->Parent(); p = p->Parent())
    at += QPoint(p->Left(), p->Top()) + p->ClientRect().topLeft();
  return at;
}

QRect FormPlaceOf(const TComponent& c) {
  const auto* control = As<TControl>(&c);
  const QRect r = PlaceOf(c);
  return control && control->Parent() ? r.translated(FormOriginOf(*control->Parent())) : r;
}

namespace {
QString WhyNotThere(const TComponent& c) {
  const auto* control = As<TControl>(&c);
  if (control && DecidesBounds(*control) && control->Align() == TAlign::alNone)
    return WhatDecidesBounds(*control);
  if (control && control->Align() != TAlign::alNone)
    return WhatDecidesBounds(*control) + u' ' + OperationText("Change Align first.");
  return OperationText("%1 does not take that place: it follows from something else.").arg(c.Name());
}
}  // namespace

namespace {
void Put(FormSession& session, const QString& text, const std::vector<WantedPlace>& wanted, bool onlySize) {
  session.Run(text, {}, [&] {
    for (const WantedPlace& w : wanted) SetPlace(*w.component, w.place);
    for (const WantedPlace& w : wanted)
      if (const QRect is = PlaceOf(*w.component); onlySize ? is.size() != w.place.size() : is != w.place)
        throw EComponentError(WhyNotThere(*w.component));
  });
}
}  // namespace

void Place(FormSession& session, const QString& text, const std::vector<WantedPlace>& wanted) {
  Put(session, text, wanted, false);
}
void Resize(FormSession& session, const QString& text, const std::vector<WantedPlace>& wanted) {
  Put(session, text, wanted, true);
}

std::vector<TComponent*> Chosen(const FormSession& session) {
  auto selected = session.SelectedComponents();
  std::erase(selected, session.GetRoot());
  return selected;
}

std::vector<TComponent*> Outermost(const FormSession& session, const std::vector<TComponent*>& components) {
  if (components.size() < 2) return components;
  const QSet<const TComponent*> wanted(components.begin(), components.end());
  std::vector<TComponent*> result;
  const std::function<void(const forms::Object&)> walk = [&](const forms::Object& object) {
    TComponent* c = session.ComponentOf(object);
    if (c && wanted.contains(c)) return result.push_back(c);
    for (const auto& child : object.children) walk(*child);
  };
  walk(session.Document().Root());
  return result;
}

const TComponent* StandsIn(const FormSession& session, const TComponent& component,
                           const std::vector<TComponent*>& others) {
  const forms::Object* object = session.ObjectOf(component);
  for (object = object ? object->parent : nullptr; object; object = object->parent)
    if (const auto it = std::find(others.begin(), others.end(), session.ComponentOf(*object));
        it != others.end())
      return *it;
  return nullptr;
}

namespace {
const forms::Object* FrameAround(const forms::Object& object) {
  for (const forms::Object* o = object.parent; o && o->parent; o = o->parent)
    if (o->IsFrame()) return o;
  return nullptr;
}
}  // namespace

void RequireWhole(const FormSession& session, const TComponent& component, const QString& what) {
  const forms::Object* object = session.ObjectOf(component);
  if (!object) throw EComponentError(OperationText("%1 cannot be %2.").arg(component.Name(), what));
  if (const forms::Object* frame = FrameAround(*object))
    throw EComponentError(OperationText("%1 belongs to the frame %2 and cannot be %3 here.")
                              .arg(component.Name(), QString::fromUtf8(frame->name), what));
  if (object->kind == forms::ObjectKind::Inherited && !object->origin)
    throw EComponentError(
        OperationText("%1 comes from the ancestor form, which was not found; it cannot be %2 here.")
            .arg(component.Name(), what));
}

void RequireOwn(const FormSession& session, const TComponent& component, const QString& what) {
  const forms::Object* object = session.ObjectOf(component);
  if (object && object->kind == forms::ObjectKind::Inherited && !FrameAround(*object))
    throw EComponentError(
        OperationText("%1 comes from the ancestor form and cannot be %2 here.").arg(component.Name(), what));
  RequireWhole(session, component, what);
}

bool CanHold(const FormSession& session, const TComponent& container) {
  const auto* control = As<TWinControl>(&container);
  const forms::Object* object = session.ObjectOf(container);
  if (!control || !object || !control->AcceptsControls()) return false;
  return !object->parent || (!object->IsFrame() && !FrameAround(*object));
}

TWinControl& ContainerAround(const FormSession& session, const TComponent& component) {
  auto* at = As<TControl>(const_cast<TComponent*>(&component));
  while (at && !CanHold(session, *at)) at = at->Parent();
  return at ? *As<TWinControl>(at) : session.Form();
}
