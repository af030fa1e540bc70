#include "library/html/HtmlText.h"

#include <QCache>

namespace html {

namespace {
using Kept = std::shared_ptr<const Text>;
constexpr int MostCharacters = 1 << 19, RoomOfAny = 64;

// Never freed: fonts would go after the application that made them.
QCache<QString, Kept>& Texts() {
  static auto* cache = new QCache<QString, Kept>(MostCharacters);
  return *cache;
}

QPoint PlaceIn(const QRect& rect, Qt::Alignment vertical, const Layout& layout) {
  const int spare = std::max(rect.height() - layout.Size().height(), 0);
  return rect.topLeft() + QPoint(0, vertical & Qt::AlignVCenter  ? spare / 2
                                    : vertical & Qt::AlignBottom ? spare
                                                                 : 0);
}
}  // namespace

const Layout& Text::Laid(const Setup& setup) const {
  if (!last_ || last_->first != setup) {
    last_.reset();
    last_.emplace(setup, Layout(document_, setup));
  }
  return last_->second;
}

Kept TextOf(const QString& markup) {
  if (const Kept* kept = Texts().object(markup)) return *kept;
  const Kept made = std::make_shared<Text>(markup);
  Texts().insert(markup, new Kept(made),
                 static_cast<int>(std::min<qsizetype>(markup.size(), MostCharacters)) + RoomOfAny);
  return made;
}

void ForgetTexts() { Texts().clear(); }

void Draw(TCanvas& canvas, const QRect& rect, Qt::Alignment vertical, const QString& markup,
          const Setup& setup, const TCustomImageList* images) {
  if (rect.width() <= 0 || rect.height() <= 0 || markup.isEmpty()) return;
  const Kept text = TextOf(markup);
  const Layout& layout = text->Laid(setup);
  QPainter& painter = canvas.Painter();
  const QPoint at = PlaceIn(rect, vertical, layout);
  painter.save();
  painter.setClipRect(rect, Qt::IntersectClip);
  painter.translate(at);
  layout.Draw(painter, QRectF(rect.translated(-at)), images);
  painter.restore();
}

QString LinkAt(const QRect& rect, Qt::Alignment vertical, const QString& markup, const Setup& setup,
               QPoint point) {
  if (!rect.contains(point)) return {};
  const Kept text = TextOf(markup);
  const Layout& layout = text->Laid(setup);
  const int link = layout.LinkAt(QPointF(point - PlaceIn(rect, vertical, layout)) + QPointF(0.5, 0.5));
  return link < 0 ? QString() : text->Document().links[link];
}

}  // namespace html
