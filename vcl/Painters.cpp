#include "vcl/Painters.h"

#include <QApplication>
#include <QSlider>
#include <QStyle>
#include <QStyleOption>
#include <QTabBar>

#include "vcl/Canvas.h"
#include "vcl/FormColors.h"
#include "vcl/LineRect.h"
#include "vcl/ShownText.h"

using enum TPartState;

namespace {
QStyle& Style() { return *QApplication::style(); }

QStyle::State StateOf(TPartStates states) {
  QStyle::State state = QStyle::State_None;
  if (!states.Contains(Disabled)) state |= QStyle::State_Enabled | QStyle::State_Active;
  if (states.Contains(Hot)) state |= QStyle::State_MouseOver;
  if (states.Contains(Focused)) state |= QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
  if (states.Contains(ReadOnly)) state |= QStyle::State_ReadOnly;
  return state;
}

// Styles draw widgets, whose origin is at their corner; some take that for granted.
QRect Local(const QRect& rect) { return {QPoint(0, 0), rect.size()}; }

// What every part has in common.
template <class Option>
Option OptionFor(const QRect& rect, TPartStates states) {
  Option option;
  option.rect = Local(rect);
  option.palette = FormPalette();
  option.palette.setCurrentColorGroup(states.Contains(Disabled) ? QPalette::Disabled : QPalette::Active);
  option.state = StateOf(states);
  return option;
}

// Seen on light and on dark ground, without calling for attention.
QColor FaintInk(const QPalette& palette) {
  QColor ink = palette.color(QPalette::WindowText);
  constexpr int alpha = 130;
  ink.setAlpha(alpha);
  return ink;
}

template <class Option>
void SetText(Option& option, TCanvas& canvas, const QString& text, const TFont& font, TPartStates states) {
  const QFont face = ToQFont(font);
  const TColor color = font.Color() == clDefault ? clWindowText : font.Color();
  const QColor ink = ToQColor(states.Contains(Disabled) ? clGrayText : color);
  for (const auto role : {QPalette::ButtonText, QPalette::WindowText, QPalette::Text})
    option.palette.setColor(role, ink);
  option.fontMetrics = QFontMetrics(face);
  option.text = ShownText(text);
  canvas.Painter().setFont(face);
}

// The painter at the corner of the rectangle and cut to it; leaves it as it was.
class Inside {
 public:
  Inside(TCanvas& canvas, const QRect& rect) : painter_(canvas.Painter()) {
    painter_.save();
    painter_.setClipRect(rect, Qt::IntersectClip);
    painter_.translate(rect.topLeft());
  }
  ~Inside() { painter_.restore(); }
  operator QPainter*() const { return &painter_; }

 private:
  QPainter& painter_;
};
}  // namespace

void PaintButton(TCanvas& canvas, const QRect& rect, TPartStates states, const QString& text,
                 const TFont* font) {
  Inside p(canvas, rect);
  auto option = OptionFor<QStyleOptionButton>(rect, states);
  option.state |= states.Contains(Down) ? QStyle::State_Sunken : QStyle::State_Raised;
  if (states.Contains(Default)) option.features |= QStyleOptionButton::DefaultButton;
  if (font) SetText(option, canvas, text, *font, states);
  Style().drawControl(QStyle::CE_PushButton, &option, p);
}

QRect PaintEditFrame(TCanvas& canvas, const QRect& rect, TPartStates states, TColor ground) {
  Inside p(canvas, rect);
  auto option = OptionFor<QStyleOptionFrame>(rect, states);
  option.lineWidth = Style().pixelMetric(QStyle::PM_DefaultFrameWidth, &option);
  option.state |= QStyle::State_Sunken;
  if (ground != clWindow)
    option.palette.setColor(QPalette::Base, ToQColor(ground));
  else if (states.Contains(ReadOnly) || states.Contains(Disabled))
    option.palette.setBrush(QPalette::Base, option.palette.window());
  Style().drawPrimitive(QStyle::PE_PanelLineEdit, &option, p);
  const QRect inside = Style().subElementRect(QStyle::SE_LineEditContents, &option);
  constexpr int margin = 3;  // between the frame and the text, as fields of the toolkit have it
  return inside.translated(rect.topLeft()).adjusted(margin, 0, -margin, 0);
}

namespace {
void PaintMark(TCanvas& canvas, const QRect& rect, TPartStates states, QStyle::PrimitiveElement mark,
               QStyle::State state) {
  Inside p(canvas, rect);
  auto option = OptionFor<QStyleOptionButton>(rect, states);
  option.rect = QRect(QPoint(0, 0), CheckMarkSize());
  option.rect.moveCenter(Local(rect).center());
  option.state |= state;
  if (states.Contains(Down)) option.state |= QStyle::State_Sunken;
  Style().drawPrimitive(mark, &option, p);
}
}  // namespace

QSize CheckMarkSize() {
  return {Style().pixelMetric(QStyle::PM_IndicatorWidth), Style().pixelMetric(QStyle::PM_IndicatorHeight)};
}

void PaintCheckMark(TCanvas& canvas, const QRect& rect, TPartStates states, TCheckBoxState state) {
  static constexpr QStyle::StateFlag shown[] = {QStyle::State_Off, QStyle::State_On, QStyle::State_NoChange};
  PaintMark(canvas, rect, states, QStyle::PE_IndicatorCheckBox, shown[static_cast<int>(state)]);
}

void PaintRadioMark(TCanvas& canvas, const QRect& rect, TPartStates states, bool checked) {
  PaintMark(canvas, rect, states, QStyle::PE_IndicatorRadioButton,
            checked ? QStyle::State_On : QStyle::State_Off);
}

void PaintArrowButton(TCanvas& canvas, const QRect& rect, TPartStates states, Qt::ArrowType arrow) {
  static constexpr QStyle::PrimitiveElement arrows[] = {
      QStyle::PE_IndicatorArrowUp, QStyle::PE_IndicatorArrowUp, QStyle::PE_IndicatorArrowDown,
      QStyle::PE_IndicatorArrowLeft, QStyle::PE_IndicatorArrowRight};
  PaintButton(canvas, rect, states, {}, nullptr);
  Inside p(canvas, rect);
  constexpr int largest = 10;
  const int side = std::min({largest, rect.width() - 4, rect.height() - 1});
  if (side <= 0) return;
  auto option = OptionFor<QStyleOption>(rect, states);
  option.rect = QRect(0, 0, side, side);
  option.rect.moveCenter(Local(rect).center());
  Style().drawPrimitive(arrows[arrow], &option, p);
}

void PaintDropButton(TCanvas& canvas, const QRect& rect, TPartStates states) {
  PaintArrowButton(canvas, rect, states, Qt::DownArrow);
}

void PaintSpinButtons(TCanvas& canvas, const QRect& rect, TPartStates states, Qt::Orientation orientation) {
  const bool upright = orientation == Qt::Vertical;
  QRect up = rect, down = rect;
  if (upright) {
    up.setHeight(rect.height() / 2);
    down.setTop(up.top() + up.height());
  } else {
    down.setWidth(rect.width() / 2);
    up.setLeft(down.left() + down.width());
  }
  PaintArrowButton(canvas, up, states, upright ? Qt::UpArrow : Qt::RightArrow);
  PaintArrowButton(canvas, down, states, upright ? Qt::DownArrow : Qt::LeftArrow);
}

void PaintSizeGrip(TCanvas& canvas, const QRect& rect) {
  Inside p(canvas, rect);
  auto option = OptionFor<QStyleOptionSizeGrip>(rect, {});
  option.corner = Qt::BottomRightCorner;
  const QColor dots = FaintInk(option.palette);
  for (int row = 0; row < 3; ++row)
    for (int i = 0; i <= row; ++i)
      canvas.Painter().fillRect(
          QRect(option.rect.right() - 2 - i * 4, option.rect.bottom() - 10 + row * 4, 2, 2), dots);
}

void PaintHeaderCell(TCanvas& canvas, const QRect& rect, TPartStates states, const QString& text,
                     const TFont& font) {
  Inside p(canvas, rect);
  auto option = OptionFor<QStyleOptionHeader>(rect, states);
  option.state |= states.Contains(Down) ? QStyle::State_Sunken : QStyle::State_Raised;
  option.state |= QStyle::State_Horizontal;
  option.position = QStyleOptionHeader::Middle;
  option.textAlignment = Qt::AlignLeft | Qt::AlignVCenter;
  if (states.Contains(Down))  // not every style shows it
    option.palette.setColor(QPalette::Button, option.palette.color(QPalette::Midlight));
  SetText(option, canvas, text, font, states);
  Style().drawControl(QStyle::CE_Header, &option, p);
}

void PaintTab(TCanvas& canvas, const QRect& rect, TPartStates states, const QString& text, const TFont& font,
              Qt::Edge edge, const QImage& image) {
  Inside p(canvas, rect);
  auto option = OptionFor<QStyleOptionTab>(rect, states);
  if (states.Contains(Down)) option.state |= QStyle::State_Selected;
  const int overlap = Style().pixelMetric(QStyle::PM_TabBarBaseOverlap);
  option.shape = QTabBar::RoundedNorth;
  option.position = QStyleOptionTab::OnlyOneTab;  // others reach over to the next
  QPainter& painter = canvas.Painter();
  if (edge == Qt::LeftEdge || edge == Qt::RightEdge) option.rect = option.rect.transposed();
  if (edge == Qt::LeftEdge) painter.setTransform(QTransform(0, -1, 1, 0, 0, rect.height()), true);
  if (edge == Qt::RightEdge) painter.setTransform(QTransform(0, 1, -1, 0, rect.width(), 0), true);
  const QRect face = option.rect.adjusted(2, 0, -2, 0);
  option.rect.setHeight(option.rect.height() - overlap);
  // The tab of the upper edge, turned or mirrored; what stands on it is not mirrored.
  painter.save();
  if (edge == Qt::BottomEdge) painter.setTransform(QTransform(1, 0, 0, -1, 0, rect.height()), true);
  Style().drawControl(QStyle::CE_TabBarTabShape, &option, p);
  painter.restore();
  const QSize size = image.isNull() ? QSize(0, 0) : image.size() / image.devicePixelRatio();
  constexpr int gap = 4;
  const int length =
      TextExtent(text, font, Qt::TextShowMnemonic).width() + (image.isNull() ? 0 : size.width() + gap);
  QRect label(face.left() + std::max((face.width() - length) / 2, 0), face.top(), length, face.height());
  label = label.intersected(face);
  if (!image.isNull()) {
    painter.drawImage(QRect(QPoint(label.left(), face.top() + (face.height() - size.height()) / 2), size),
                      image);
    label.setLeft(label.left() + size.width() + gap);
  }
  if (label.isValid())
    canvas.TextRect(label, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, text, font,
                    !states.Contains(Disabled));
}

void PaintTabPane(TCanvas& canvas, const QRect& rect, TPartStates states) {
  Inside p(canvas, rect);
  const auto option = OptionFor<QStyleOption>(rect, states);
  QPainter& painter = canvas.Painter();
  painter.fillRect(option.rect, option.palette.window());
  painter.setPen(option.palette.color(QPalette::Mid));
  painter.setBrush(Qt::NoBrush);
  if (rect.width() > 1 && rect.height() > 1) painter.drawRect(LineRect(option.rect));
}

void PaintProgress(TCanvas& canvas, const QRect& rect, TPartStates states, const TScrollRange& range,
                   Qt::Orientation orientation, const QString& text) {
  Inside p(canvas, rect);
  auto option = OptionFor<QStyleOptionProgressBar>(rect, states);
  if (orientation == Qt::Horizontal) option.state |= QStyle::State_Horizontal;
  option.bottomToTop = true;
  option.minimum = range.Min;
  option.maximum = std::max(range.Max, range.Min + 1);
  option.progress = std::clamp(range.Position, option.minimum, option.maximum);
  option.text = text;
  option.textVisible = !text.isEmpty();
  option.textAlignment = Qt::AlignCenter;
  constexpr int least = 6;
  if (std::min(rect.width(), rect.height()) < least)
    return canvas.Painter().fillRect(option.rect, option.palette.button());
  Style().drawControl(QStyle::CE_ProgressBar, &option, p);
}

void PaintSlider(TCanvas& canvas, const QRect& rect, TPartStates states, const TScrollRange& range,
                 Qt::Orientation orientation, const TTicks& ticks) {
  Inside p(canvas, rect);
  auto option = OptionFor<QStyleOptionSlider>(rect, states);
  option.orientation = orientation;
  if (orientation == Qt::Horizontal) option.state |= QStyle::State_Horizontal;
  option.minimum = range.Min;
  option.maximum = std::max(range.Max, range.Min);
  option.sliderPosition = option.sliderValue = std::clamp(range.Position, option.minimum, option.maximum);
  option.pageStep = range.Page;
  // More ticks than pixels are no ticks.
  const std::int64_t length = std::int64_t{option.maximum} - option.minimum;
  const int room = std::max(1, (orientation == Qt::Horizontal ? rect.width() : rect.height()) / 3);
  const std::int64_t apart = std::max<std::int64_t>({ticks.Frequency, length / room, 1});
  option.tickInterval = static_cast<int>(std::min<std::int64_t>(apart, INT32_MAX / 4));
  option.tickPosition = ticks.Near && ticks.Far ? QSlider::TicksBothSides
                        : ticks.Near            ? QSlider::TicksAbove
                        : ticks.Far             ? QSlider::TicksBelow
                                                : QSlider::NoTicks;
  option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderHandle;
  if (states.Contains(Down)) option.state |= QStyle::State_Sunken;
  if (states.Contains(Down) || states.Contains(Hot)) option.activeSubControls = QStyle::SC_SliderHandle;
  constexpr int least = 6;
  if (std::min(rect.width(), rect.height()) < least)
    return canvas.Painter().fillRect(option.rect, option.palette.mid());
  // Ticks stand at the handle, however much room there is.
  constexpr int tick = 4;
  const bool across = orientation == Qt::Horizontal;
  const int extent = across ? rect.width() : rect.height();
  const int side = std::min(across ? rect.height() : rect.width(),
                            Style().pixelMetric(QStyle::PM_SliderThickness, &option) + 4 * tick);
  option.rect.setSize(across ? QSize(extent, side) : QSize(side, extent));
  if (states.Contains(Disabled)) canvas.Painter().setOpacity(0.5);  // not every style shows it
  Style().drawComplexControl(QStyle::CC_Slider, &option, p);
  if (option.tickPosition == QSlider::NoTicks || length <= 0) return;
  // Styles take their colour from elsewhere.
  const int handle = Style().pixelMetric(QStyle::PM_SliderLength, &option);
  const QColor ink = FaintInk(option.palette);
  for (std::int64_t v = 0; v <= length; v += option.tickInterval) {
    const int at = handle / 2 + static_cast<int>(v * std::max(extent - handle, 0) / length);
    const auto draw = [&](int from) {
      canvas.Painter().fillRect(across ? QRect(at, from, 1, tick) : QRect(from, at, tick, 1), ink);
    };
    if (ticks.Near) draw(0);
    if (ticks.Far) draw(side - tick);
  }
}

void PaintScrollBar(TCanvas& canvas, const QRect& rect, TPartStates states, const TScrollRange& range,
                    Qt::Orientation orientation) {
  // Less than arrows need: styles draw those beside it then.
  constexpr int least = 10;
  if (std::min(rect.width(), rect.height()) < least)
    return canvas.Painter().fillRect(rect, FormPalette().brush(QPalette::Button));
  Inside p(canvas, rect);
  auto option = OptionFor<QStyleOptionSlider>(rect, states);
  option.orientation = orientation;
  if (orientation == Qt::Horizontal) option.state |= QStyle::State_Horizontal;
  option.minimum = range.Min;
  option.maximum = std::max(range.Min, range.Max - range.Page + 1);
  option.pageStep = range.Page;
  option.sliderPosition = option.sliderValue = range.Position;
  option.subControls = QStyle::SC_All;
  if (states.Contains(Down) || states.Contains(Hot)) option.activeSubControls = QStyle::SC_ScrollBarSlider;
  if (states.Contains(Down)) option.state |= QStyle::State_Sunken;
  Style().drawComplexControl(QStyle::CC_ScrollBar, &option, p);
}

QRect PaintGroupFrame(TCanvas& canvas, const QRect& rect, TPartStates states, const QString& title,
                      const TFont& font) {
  Inside p(canvas, rect);
  auto option = OptionFor<QStyleOptionGroupBox>(rect, states);
  option.lineWidth = 1;
  option.textAlignment = Qt::AlignLeft;
  SetText(option, canvas, title, font, states);
  option.textColor = option.palette.color(QPalette::WindowText);
  option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
  Style().drawComplexControl(QStyle::CC_GroupBox, &option, p);
  return Style()
      .subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxContents)
      .translated(rect.topLeft());
}

void PaintFocus(TCanvas& canvas, const QRect& rect) {
  Inside p(canvas, rect);
  auto option = OptionFor<QStyleOptionFocusRect>(rect, {Focused});
  option.backgroundColor = option.palette.color(QPalette::Window);
  Style().drawPrimitive(QStyle::PE_FrameFocusRect, &option, p);
}
