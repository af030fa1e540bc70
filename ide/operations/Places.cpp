#include "ide/operations/Places.h"

#include <QCoreApplication>

#include "ide/BoundsCheck.h"
#include "ide/Tiles.h"
#include "ide/Unknown.h"
#include "rtl/ClassRegistry.h"
#include "rtl/Exceptions.h"
#include "rtl/HiddenIcon.h"
#include "vcl/GridPanel.h"
#include "vcl/PageBook.h"

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
  if (auto* control = As<TControl>(&c)) {
    control->SetBounds(r.left(), r.top(), r.width(), r.height());
    if (auto* grid = As<TGridPanel>(control->Parent())) grid->MoveToCellAt(*control, r.center());
    return;
  }
  // Nothing is hidden by being moved.
  const auto word = [](int v) {
    return static_cast<std::int16_t>(std::clamp<int>(v, HiddenIconAt + 1, INT16_MAX));
  };
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

namespace {
// A stand-in takes what it has already.
bool TakesPages(const TControl& control, const TClass& cls) {
  if (const auto* book = dynamic_cast<const TPageBook*>(&control)) return book->TakesAsPage(cls);
  const auto* other = dynamic_cast<const TUnknownControl*>(&control);
  return other && std::any_of(other->Controls().begin(), other->Controls().end(),
                              [&](const TControl* c) { return c->StreamClassName() == cls.ClassName(); });
}

bool MayGetChildren(const FormSession& session, const TComponent& container) {
  const forms::Object* object = session.ObjectOf(container);
  return object && (!object->parent || (!object->IsFrame() && !FrameAround(*object)));
}
}  // namespace

bool CanHold(const FormSession& session, const TComponent& container) {
  const auto* control = As<TWinControl>(&container);
  return control && control->AcceptsControls() && MayGetChildren(session, container);
}

TWinControl& ContainerAround(const FormSession& session, const TComponent& component) {
  for (auto* at = As<TControl>(const_cast<TComponent*>(&component)); at; at = at->Parent()) {
    if (CanHold(session, *at)) return *As<TWinControl>(at);
    const auto* book = dynamic_cast<TPageBook*>(at);
    if (TBookPage* front = book ? book->FrontPage() : nullptr; front && CanHold(session, *front))
      return *front;
  }
  return session.Form();
}

TWinControl& ContainerAround(const FormSession& session, const TComponent& component,
                             const forms::Object& comes) {
  const TClass* cls = FindClass(comes.className);
  const bool page =
      cls && cls->InheritsFrom(TWinControl::StaticClass()) && cls->FindProp("PageIndex") != nullptr;
  if (!page) return ContainerAround(session, component);
  for (auto* at = As<TControl>(const_cast<TComponent*>(&component)); at; at = at->Parent())
    if (TakesPages(*at, *cls) && MayGetChildren(session, *at)) return *As<TWinControl>(at);
  throw EComponentError(
      OperationText("%1 is a page. Select the control first whose page it is to become, or one of its pages.")
          .arg(QString::fromUtf8(comes.name)));
}
