// Lines of text on pages: broken where they are full, with a line at the head and the foot of each page.
#pragma once
#include <QColor>
#include <QFont>
#include <QMargins>
#include <QPageSize>
#include <QStringList>
#include <functional>
#include <vector>

#include "rtl/TypeInfo.h"

class QPagedPaintDevice;
class QPaintDevice;
class TFont;

enum class TVRXPrintOrientation : std::uint8_t { poPortrait, poLandscape };
VRX_ENUM(TVRXPrintOrientation, {"poPortrait", "poLandscape"})

// Millimetres, within what a page can have.
QMargins VRXTextMargins(int left, int top, int right, int bottom);

struct TVRXTextPages {
  QStringList lines{};
  // "{page}", "{pages}", "{title}", "{date}" and "{time}" stand for what they say.
  QString header{}, footer{}, title{};
  QFont font{};
  QColor ink = Qt::black;
  bool lineNumbers = false;
  bool pageNumbers = true;
  bool wordWrap = true;
  int tabWidth = 8;                  // letters from one tab stop to the next, counted from where texts begin
  QPageSize paper{};                 // that of the device when it is none
  QMargins margins{20, 20, 20, 20};  // millimetres
  TVRXPrintOrientation orientation = TVRXPrintOrientation::poPortrait;

  // Letters are as large on paper as on a screen, and black where they have a colour of the system.
  void SetFont(const TFont& value);
  // A line of a page. What goes on below, or on another page, has no number.
  struct Line {
    QString number{}, text{};
  };
  using Page = std::vector<Line>;
  // The lines as they stand on each page. A form feed begins a new page. At least one page, and one line on
  // each.
  std::vector<Page> Break(const QFont& with, QPaintDevice* device, QSizeF room) const;

  struct Run {
    int copies = 1;
    bool collate = true;
    int from = 0, to = 0;  // pages, counted from 1; 0 is the first, or the last
    // Before each page; false ends printing.
    std::function<bool(int page, int pages)> next{};
  };
  // Returns the number of pages that were printed. Throws EComponentError, with `who` at the start, when the
  // device takes nothing or the margins leave nothing.
  int Print(QPagedPaintDevice& device, const QString& who, const Run& run) const;
  // How many pages it has there.
  int Count(QPagedPaintDevice& device, const QString& who) const;

 private:
  struct Sheet;
  // Numbers end where the widest of them would, and all texts begin behind them.
  struct Columns {
    double numbers = 0, text = 0, tab = 0;
  };
  Columns ColumnsOf(const QFont& with, QPaintDevice* device) const;
  Sheet MakeSheet(QPagedPaintDevice& device, const QString& who) const;
  QString Filled(const QString& text, int page, int pages) const;
};
