#include "vcl/Painters.h"

#include <QApplication>
#include <QStyle>
#include <QStyleOption>

#include "vcl/Canvas.h"
#include "vcl/FormColors.h"
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

QRect PaintEditFrame(TCanvas& canvas, const QRect& rect, TPartStates states) {
  Inside p(canvas, rect);
  auto option = OptionFor<QStyleOptionFrame>(rect, states);
  option.lineWidth = Style().pixelMetric(QStyle::PM_DefaultFrameWidth, &option);
  option.state |= QStyle::State_Sunken;
  if (states.Contains(ReadOnly) || states.Contains(Disabled))
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

void PaintDropButton(TCanvas& canvas, const QRect& rect, TPartStates states) {
  PaintButton(canvas, rect, states, {}, nullptr);
  Inside p(canvas, rect);
  const QSize arrow = QSize(10, 10).boundedTo(rect.size() - QSize(4, 4));
  if (arrow.isEmpty()) return;
  auto option = OptionFor<QStyleOption>(rect, states);
  option.rect = QRect(QPoint(0, 0), arrow);
  option.rect.moveCenter(Local(rect).center());
  Style().drawPrimitive(QStyle::PE_IndicatorArrowDown, &option, p);
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

void PaintTab(TCanvas& canvas, const QRect& rect, TPartStates states, const QString& text,
              const TFont& font) {
  Inside p(canvas, rect);
  auto option = OptionFor<QStyleOptionTab>(rect, states);
  if (states.Contains(Down)) option.state |= QStyle::State_Selected;
  option.shape = QTabBar::RoundedNorth;
  option.rect.setHeight(rect.height() - Style().pixelMetric(QStyle::PM_TabBarBaseOverlap));
  option.position = QStyleOptionTab::OnlyOneTab;  // others reach over to the next
  SetText(option, canvas, text, font, states);
  Style().drawControl(QStyle::CE_TabBarTab, &option, p);
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
