#include "designintf/ComponentIcons.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>

#include "designintf/DesignRegistry.h"
#include "vcl/Theme.h"

namespace {
// Two tones and the accent, readable on the current theme.
struct Ink {
  QColor line, fill, accent;
  bool onDark = false;
};

// By which the classes of a page are told apart; others have the accent of the theme.
struct PageAccent {
  const char* page;
  QRgb onLight, onDark;
};
constexpr PageAccent PageAccents[] = {
    {"VRX Std", 0xFF5B6B82, 0xFF9FB0C8},      // slate
    {"VRX Ext", 0xFF2F6FDE, 0xFF6AA5FF},      // blue
    {"VRX Cont", 0xFF8A5A34, 0xFFC9986B},     // brown
    {"VRX Dlg", 0xFFC84B78, 0xFFF08AAE},      // rose
    {"VRX Edit", 0xFFC77F0A, 0xFFF0B44C},     // amber
    {"VRX Labeled", 0xFFA88A10, 0xFFE0C64E},  // gold
    {"VRX List", 0xFF2E8B4A, 0xFF6CCB87},     // green
    {"VRX Form", 0xFF14868C, 0xFF4CC7CC},     // teal
    {"VRX MM", 0xFF7A4FC9, 0xFFB394F5},       // violet
    {"VRX Sys", 0xFF707680, 0xFFA6ADB8},      // grey
    {"VRX HTML", 0xFFD9622B, 0xFFFF9660},     // orange
};
const PageAccent* AccentOf(const TClass& cls) {
  const QString page = DesignRegistry::PageOf(cls);
  const auto* found = std::find_if(std::begin(PageAccents), std::end(PageAccents),
                                   [&](const PageAccent& a) { return page == QLatin1StringView(a.page); });
  return found == std::end(PageAccents) ? nullptr : found;
}

Ink InkOn(const QPalette& palette, QIcon::Mode mode, const PageAccent* own = nullptr) {
  if (mode == QIcon::Selected) {  // on a ground of the accent
    const QColor text = palette.color(QPalette::HighlightedText);
    QColor fill = text;
    fill.setAlpha(50);
    return {text, fill, text};
  }
  const bool dark = IsDark(palette);
  const QColor accent = own    ? QColor(dark ? own->onDark : own->onLight)
                        : dark ? palette.color(QPalette::Link)  // the highlight of a dark theme is a ground
                               : palette.color(QPalette::Highlight);
  if (dark) return {QColor(0xC8, 0xCD, 0xD6), QColor(0x4A, 0x51, 0x5C), accent, true};
  return {QColor(0x4A, 0x52, 0x5E), Qt::white, accent};
}

// Reads a drawing and paints it, when there is a painter.
class Drawing {
 public:
  Drawing(QByteArrayView text, const Ink& ink, QPainter* painter)
      : words_(text.toByteArray().split(' ')), ink_(ink), p_(painter) {}

  // The word where it ended; empty at the end.
  QByteArray Run() {
    while (at_ < words_.size())
      if (!Step()) return words_[at_];
    return {};
  }

 private:
  bool Step() {
    const QByteArray word = words_[at_++];
    if (word == "pen") {
      QPen pen(Color(), 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
      if (const auto width = Numbers(1); !width.empty()) pen.setWidthF(width[0]);
      if (at_ < words_.size() && words_[at_] == "dots") pen.setStyle(Qt::DotLine), ++at_;
      if (p_) p_->setPen(pen.color().alpha() ? pen : QPen(Qt::NoPen));
    } else if (word == "brush") {
      const QColor color = Color();
      if (p_) p_->setBrush(color.alpha() ? QBrush(color) : QBrush(Qt::NoBrush));
    } else if (word == "box") {
      if (const auto n = Numbers(5); p_ && n.size() == 5)
        p_->drawRoundedRect(QRectF(n[0], n[1], n[2], n[3]), n[4], n[4]);
    } else if (word == "oval") {
      if (const auto n = Numbers(4); p_ && n.size() == 4) p_->drawEllipse(QRectF(n[0], n[1], n[2], n[3]));
    } else if (word == "path" || word == "shape") {
      const auto n = Numbers(words_.size());
      QPolygonF points;
      for (std::size_t i = 1; i < n.size(); i += 2) points << QPointF(n[i - 1], n[i]);
      if (p_) word == "path" ? p_->drawPolyline(points) : p_->drawPolygon(points);
    } else if (word == "text") {
      const auto n = Numbers(3);
      if (n.size() == 3 && at_ < words_.size()) Text({n[0], n[1]}, n[2], QString::fromLatin1(words_[at_++]));
    } else {
      --at_;
      return false;
    }
    return true;
  }

  // As many as there are, up to a limit.
  std::vector<qreal> Numbers(qsizetype most) {
    std::vector<qreal> numbers;
    for (bool number = true; at_ < words_.size() && static_cast<qsizetype>(numbers.size()) < most; ++at_) {
      const qreal n = words_[at_].toDouble(&number);
      if (!number) break;
      numbers.push_back(n);
    }
    return numbers;
  }

  QColor Color() {
    if (at_ >= words_.size()) return Qt::transparent;
    const QByteArray word = words_[at_];
    const qsizetype plus = word.indexOf('+');
    const QByteArray name = plus < 0 ? word : word.first(plus);
    QColor color = name == "line"     ? ink_.line
                   : name == "fill"   ? ink_.fill
                   : name == "accent" ? ink_.accent
                   : name == "none"   ? QColor(Qt::transparent)
                                      : QColor(QLatin1StringView(name));
    if (!color.isValid()) return Qt::transparent;  // not taken: Run ends here
    ++at_;
    if (plus < 0) return color;
    // What is lighter still than a color for dark grounds would be white.
    const int factor = 100 + word.mid(plus + 1).toInt();
    return ink_.onDark ? color.darker(factor) : color.lighter(factor);
  }

  void Text(QPointF center, qreal size, const QString& text) {
    if (!p_) return;
    QFont font = p_->font();
    font.setPixelSize(static_cast<int>(size));
    font.setBold(true);
    p_->setFont(font);
    p_->drawText(QRectF(center - QPointF(12, 12), QSizeF(24, 24)), Qt::AlignCenter, text);
  }

  QByteArrayList words_;
  Ink ink_;
  QPainter* p_;
  qsizetype at_ = 0;
};

QByteArrayView DrawingOf(const TClass& cls) {
  constexpr QByteArrayView plain =
      "pen line 1.5 brush fill box 4 4 16 16 3 pen none brush accent oval 9 9 6 6";
  return cls.Icon().isEmpty() ? plain : QByteArrayView(cls.Icon());
}

// A drawing and what it is painted with.
struct Look {
  QByteArrayView drawing;
  const PageAccent* accent = nullptr;
};
Look LookOf(const TClass& cls) { return {DrawingOf(cls), AccentOf(cls)}; }

void Draw(const Look& look, QPainter& painter, const QRectF& rect, const QPalette& palette,
          QIcon::Mode mode = QIcon::Normal) {
  painter.save();
  if (mode == QIcon::Disabled) painter.setOpacity(0.35);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(rect.topLeft());
  painter.scale(rect.width() / 24, rect.height() / 24);
  Drawing(look.drawing, InkOn(palette, mode, look.accent), &painter).Run();
  painter.restore();
}

// Draws when it is shown, so that a change of theme needs no new icons.
class Engine : public QIconEngine {
 public:
  explicit Engine(const Look& look) : look_(look) {}
  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    Draw(look_, *painter, rect, QApplication::palette(), mode);
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    Draw(look_, p, QRectF(QPointF(0, 0), size), QApplication::palette(), mode);
    return pixmap;
  }
  QIconEngine* clone() const override { return new Engine(look_); }

 private:
  Look look_;
};
}  // namespace

QIcon ComponentIcon(const TClass& cls) { return QIcon(new Engine(LookOf(cls))); }
QIcon DrawnIcon(QByteArrayView drawing) { return QIcon(new Engine({drawing})); }

QPixmap ComponentPixmap(const TClass& cls, int pixels, qreal ratio, const QPalette& palette) {
  QPixmap pixmap(QSize(pixels, pixels) * ratio);
  pixmap.setDevicePixelRatio(ratio);
  pixmap.fill(Qt::transparent);
  QPainter p(&pixmap);
  Draw(LookOf(cls), p, QRectF(0, 0, pixels, pixels), palette);
  return pixmap;
}

QByteArray UnknownWordOf(QByteArrayView drawing) {
  return Drawing(drawing, InkOn(QPalette(), QIcon::Normal), nullptr).Run();
}
