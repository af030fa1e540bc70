#include "ide/operations/Arrange.h"

#include <cmath>

#include "rtl/Exceptions.h"

namespace {
// Where one goes, the others would go along.
void RequireSideBySide(const FormSession& session, const std::vector<TComponent*>& components) {
  for (const TComponent* c : components)
    if (const TComponent* around = StandsIn(session, *c, components))
      throw EComponentError(OperationText("%1 stands on %2, which is selected, too. Select only one of them.")
                                .arg(c->Name(), around->Name()));
}

std::vector<TComponent*> Placed(const FormSession& session) {
  const auto chosen = Chosen(session);
  for (const TComponent* c : chosen)
    if (!HasPlace(session, *c))
      throw EComponentError(OperationText("%1 has no place of its own.").arg(c->Name()));
  return chosen;
}

std::vector<TComponent*> Sized(const FormSession& session) {
  const auto chosen = Placed(session);
  for (const TComponent* c : chosen)
    if (!As<TControl>(c))
      throw EComponentError(OperationText("%1 is no control and has no size.").arg(c->Name()));
  return chosen;
}

// Moves `place` so that its edge stands where that of `measure` does.
QPoint StepToEdge(const QRect& place, const QRect& measure, TEdge edge) {
  switch (edge) {
    case TEdge::Left:
      return {measure.left() - place.left(), 0};
    case TEdge::Center:
      return {measure.left() - place.left() + (measure.width() - place.width()) / 2, 0};
    case TEdge::Right:
      return {measure.right() - place.right(), 0};
    case TEdge::Top:
      return {0, measure.top() - place.top()};
    case TEdge::Middle:
      return {0, measure.top() - place.top() + (measure.height() - place.height()) / 2};
    case TEdge::Bottom:
      return {0, measure.bottom() - place.bottom()};
  }
  return {};
}

int Snap(int v, int grid) { return static_cast<int>(std::lround(static_cast<double>(v) / grid)) * grid; }
}  // namespace

void AlignEdges(FormSession& session, const QString& text, TEdge edge) {
  const auto chosen = Placed(session);
  RequireSideBySide(session, chosen);
  const QRect measure = FormPlaceOf(*chosen.front());
  std::vector<WantedPlace> wanted;
  for (TComponent* c : chosen)
    wanted.push_back({c, PlaceOf(*c).translated(StepToEdge(FormPlaceOf(*c), measure, edge))});
  Place(session, text, wanted);
}

void MakeSameSize(FormSession& session, const QString& text, bool width, bool height) {
  const auto chosen = Sized(session);
  const QSize measure = PlaceOf(*chosen.front()).size();
  std::vector<WantedPlace> wanted;
  for (TComponent* c : chosen) {
    QRect r = PlaceOf(*c);
    if (width) r.setWidth(measure.width());
    if (height) r.setHeight(measure.height());
    wanted.push_back({c, r});
  }
  Resize(session, text, wanted);
}

void SpaceEqually(FormSession& session, const QString& text, Qt::Orientation direction) {
  auto chosen = Placed(session);
  RequireSideBySide(session, chosen);
  const bool across = direction == Qt::Horizontal;
  const auto from = [&](const TComponent* c) {
    const QRect r = FormPlaceOf(*c);
    return across ? r.left() : r.top();
  };
  const auto size = [&](const TComponent* c) {
    const QRect r = PlaceOf(*c);
    return across ? r.width() : r.height();
  };
  std::stable_sort(chosen.begin(), chosen.end(),
                   [&](const TComponent* a, const TComponent* b) { return from(a) < from(b); });
  // What is left of the way from the first to the last; less than nothing where they overlap.
  int room = from(chosen.back()) - from(chosen.front());
  for (std::size_t i = 0; i + 1 < chosen.size(); ++i) room -= size(chosen[i]);
  const double gap = static_cast<double>(room) / static_cast<double>(chosen.size() - 1);
  std::vector<WantedPlace> wanted;
  double at = from(chosen.front());
  for (TComponent* c : chosen) {
    const int step = static_cast<int>(std::lround(at)) - from(c);
    wanted.push_back({c, PlaceOf(*c).translated(across ? step : 0, across ? 0 : step)});
    at += size(c) + gap;
  }
  Place(session, text, wanted);
}

void AlignToGrid(FormSession& session, const QString& text, int grid) {
  std::vector<WantedPlace> wanted;
  for (TComponent* c : Placed(session)) {
    QRect r = PlaceOf(*c);
    r.moveTo(Snap(r.left(), grid), Snap(r.top(), grid));
    wanted.push_back({c, r});
  }
  Place(session, text, wanted);
}

// Among each other they keep their order.
void ChangeOrder(FormSession& session, const QString& text, bool toFront) {
  std::vector<TControl*> controls;
  QHash<const TControl*, int> places;
  for (TComponent* c : Sized(session)) {
    RequireOwn(session, *c, OperationText("given another place in the order"));
    controls.push_back(As<TControl>(c));
    const auto& siblings = controls.back()->Parent()->Controls();
    if (places.contains(controls.back())) continue;
    for (std::size_t i = 0; i < siblings.size(); ++i) places.insert(siblings[i], static_cast<int>(i));
  }
  std::stable_sort(controls.begin(), controls.end(),
                   [&](const TControl* a, const TControl* b) { return places.value(a) < places.value(b); });
  session.Run(text, {}, [&] {
    if (toFront)
      for (TControl* c : controls) c->BringToFront();
    else
      for (auto it = controls.rbegin(); it != controls.rend(); ++it) (*it)->SendToBack();
  });
}
