#include "ide/Placing.h"

#include "ide/operations/Places.h"

namespace {
constexpr QSize IconRoom(64, 48);  // an icon with its name under it

TWinControl& ContainerOf(const FormSession& session) {
  const auto selected = session.SelectedComponents();
  return selected.size() == 1 ? ContainerAround(session, *selected[0]) : session.Form();
}

// From the middle of `area` down the diagonal, and on from the other side at an edge.
QPoint FreeSpot(QSize area, QSize size, int grid, const std::function<bool(QPoint)>& taken) {
  const int columns = std::max(0, area.width() - size.width()) / grid + 1;
  const int rows = std::max(0, area.height() - size.height()) / grid + 1;
  const auto spot = [&](int step) {
    // Every way down starts one column further, so that it is another one.
    return QPoint((columns / 2 + step + step / rows) % columns, (rows / 2 + step) % rows) * grid;
  };
  for (int step = 0; step < columns * rows; ++step)
    if (!taken(spot(step))) return spot(step);
  return spot(0);
}
}  // namespace

TComponent* PlaceInMiddle(FormSession& session, const TClass& cls, int grid) {
  TComponent* component = nullptr;
  TWinControl& container = ContainerOf(session);
  session.Run(FormSession::tr("Add %1").arg(QString::fromLatin1(cls.ClassName())), {}, [&] {
    component = session.CreateComponent(cls, &container, QRect(0, 0, 0, 0));
    if (auto* control = As<TControl>(component)) {
      const QSize size(control->Width(), control->Height());
      const QPoint at = FreeSpot(container.ClientRect().size(), size, grid, [&](QPoint p) {
        const auto& controls = container.Controls();
        return std::any_of(controls.begin(), controls.end(),
                           [&](const TControl* c) { return c != control && c->BoundsRect().topLeft() == p; });
      });
      control->SetBounds(at.x(), at.y(), size.width(), size.height());
      return;
    }
    const auto& all = session.Form().Components();
    const QPoint at = FreeSpot(session.Form().ClientRect().size(), IconRoom, grid, [&](QPoint p) {
      return std::any_of(all.begin(), all.end(), [&](const TComponent* c) {
        if (c == component || As<TControl>(c)) return false;
        const TDesignPoint other = DesignPointOf(c->DesignInfo());
        return QRect(p, IconRoom).intersects(QRect(QPoint(other.Left, other.Top), IconRoom));
      });
    });
    component->SetDesignInfo(
        DesignWordOf({static_cast<std::int16_t>(at.x()), static_cast<std::int16_t>(at.y())}));
  });
  return component;
}
