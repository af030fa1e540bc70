// The parts that controls are made of, drawn in the current style with the colours of forms (FormColors). A
// control says what it shows; how a style is set up is known here only. Nothing is painted outside of the
// rectangle.
#pragma once
#include <QImage>
#include <QRect>

#include "rtl/TypeInfo.h"
#include "vcl/Colors.h"

class QString;
class TCanvas;
class TFont;

enum class TPartState : std::uint8_t {
  Disabled,
  Down,      // pressed; of a tab or a header cell: the chosen one
  Hot,       // the mouse is over it
  Focused,   // has the keyboard
  Default,   // the button that Enter presses
  ReadOnly,  // a field that shows, but takes no text
};
using TPartStates = TSet<TPartState>;
enum class TCheckBoxState : std::uint8_t { cbUnchecked, cbChecked, cbGrayed };
VRX_ENUM(TCheckBoxState, {"cbUnchecked", "cbChecked", "cbGrayed"})

void PaintButton(TCanvas& canvas, const QRect& rect, TPartStates states, const QString& text,
                 const TFont* font);
// The frame and ground of an edit; returns where the text is. The window's colour is another one of what is
// disabled or only read.
QRect PaintEditFrame(TCanvas& canvas, const QRect& rect, TPartStates states, TColor ground = clWindow);
// The box or circle itself, in the middle of the rectangle, as large as the style has it.
void PaintCheckMark(TCanvas& canvas, const QRect& rect, TPartStates states, TCheckBoxState state);
void PaintRadioMark(TCanvas& canvas, const QRect& rect, TPartStates states, bool checked);
QSize CheckMarkSize();
// The button with an arrow that opens a list.
void PaintDropButton(TCanvas& canvas, const QRect& rect, TPartStates states);
void PaintHeaderCell(TCanvas& canvas, const QRect& rect, TPartStates states, const QString& text,
                     const TFont& font);
// A tab at that edge of its page; on the sides the text runs along the edge.
void PaintTab(TCanvas& canvas, const QRect& rect, TPartStates states, const QString& text, const TFont& font,
              Qt::Edge edge = Qt::TopEdge, const QImage& image = {});
// The frame around the page.
void PaintTabPane(TCanvas& canvas, const QRect& rect, TPartStates states);
// What a scroll bar shows, in the units of what is scrolled.
struct TScrollRange {
  int Min = 0, Max = 100, Position = 0, Page = 10;
};
void PaintScrollBar(TCanvas& canvas, const QRect& rect, TPartStates states, const TScrollRange& range,
                    Qt::Orientation orientation);
// How far something has come; `text` stands in the middle of it.
void PaintProgress(TCanvas& canvas, const QRect& rect, TPartStates states, const TScrollRange& range,
                   Qt::Orientation orientation, const QString& text = {});
// A handle on a track. Ticks stand on the sides that are asked for, `frequency` apart.
struct TTicks {
  bool Near = false, Far = true;  // above or left of the track, and at its other side
  int Frequency = 1;
};
void PaintSlider(TCanvas& canvas, const QRect& rect, TPartStates states, const TScrollRange& range,
                 Qt::Orientation orientation, const TTicks& ticks);
// Two buttons that count up and down, one above the other or side by side.
void PaintSpinButtons(TCanvas& canvas, const QRect& rect, TPartStates states,
                      Qt::Orientation orientation = Qt::Vertical);
// A button with an arrow.
void PaintArrowButton(TCanvas& canvas, const QRect& rect, TPartStates states, Qt::ArrowType arrow);
// The corner that a window is sized by.
void PaintSizeGrip(TCanvas& canvas, const QRect& rect);
// The frame of a group with its title; returns the room inside.
QRect PaintGroupFrame(TCanvas& canvas, const QRect& rect, TPartStates states, const QString& title,
                      const TFont& font);
void PaintFocus(TCanvas& canvas, const QRect& rect);
