#include "dclstd/Icons.h"

#include <QPainter>

#include "designintf/ComponentIcons.h"
#include "vcl/ExtCtrls.h"
#include "vcl/Form.h"
#include "vcl/StdCtrls.h"

void RegisterStandardIcons() {
  RegisterComponentIcon(TForm::StaticClass(), [](QPainter& p, const TIconInk& ink) {
    p.setPen(QPen(ink.Line, 1.5));
    p.setBrush(ink.Fill);
    p.drawRoundedRect(QRectF(3, 4, 18, 16), 2, 2);
    p.setPen(Qt::NoPen);
    p.setBrush(ink.Accent);
    p.drawRect(QRectF(3.75, 4.75, 16.5, 3.5));
  });
  RegisterComponentIcon(TLabel::StaticClass(), [](QPainter& p, const TIconInk& ink) {
    p.setPen(QPen(ink.Line, 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawPolyline(QPolygonF({{5, 19}, {12, 4.5}, {19, 19}}));
    p.setPen(QPen(ink.Accent, 2.2, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(8, 14), QPointF(16, 14));
  });
  RegisterComponentIcon(TButton::StaticClass(), [](QPainter& p, const TIconInk& ink) {
    p.setPen(QPen(ink.Line, 1.5));
    p.setBrush(ink.Fill);
    p.drawRoundedRect(QRectF(2.5, 6.5, 19, 11), 3, 3);
    p.setPen(QPen(ink.Accent, 2, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(7, 12), QPointF(17, 12));
  });
  RegisterComponentIcon(TPanel::StaticClass(), [](QPainter& p, const TIconInk& ink) {
    p.setPen(QPen(ink.Line, 1.5));
    p.setBrush(ink.Fill);
    p.drawRect(QRectF(3.5, 5.5, 17, 13));
    p.setPen(QPen(ink.Accent, 1.5));
    p.drawPolyline(QPolygonF({{6, 16}, {6, 8}, {18, 8}}));
  });
  RegisterComponentIcon(TTimer::StaticClass(), [](QPainter& p, const TIconInk& ink) {
    p.setPen(QPen(ink.Line, 1.5));
    p.setBrush(ink.Fill);
    p.drawEllipse(QRectF(4, 5, 16, 16));
    p.drawLine(QPointF(10, 2.5), QPointF(14, 2.5));
    p.setPen(QPen(ink.Accent, 2, Qt::SolidLine, Qt::RoundCap));
    p.drawPolyline(QPolygonF({{12, 8.5}, {12, 13}, {15.5, 15}}));
  });
}
