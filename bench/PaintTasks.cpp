#include "bench/PaintTasks.h"

#include <QtWidgets>

#include "bench/Measure.h"
#include "library/controls/ButtonBar.h"
#include "vcl/Button.h"
#include "vcl/CheckBox.h"
#include "vcl/ComboBox.h"
#include "vcl/Edit.h"
#include "vcl/Form.h"
#include "vcl/FormColors.h"
#include "vcl/GroupBox.h"
#include "vcl/Label.h"
#include "vcl/ListBox.h"
#include "vcl/Memo.h"

namespace {
constexpr int Count = 500, Columns = 25;
constexpr QSize Picture(1920, 1080), Cell(76, 53);

const QString Text = QStringLiteral("Text");
const QStringList Lines{QStringLiteral("One"), QStringLiteral("Two"), QStringLiteral("Three")};

// A form made by hand knows no file; every control stands in a cell of its own.
template <class C>
C* Put(TForm& form, const QRect& place) {
  auto* control = new C(&form);
  control->SetParent(&form);
  control->SetAutoSize(false);
  control->SetCaption(Text);
  control->SetBounds(place.left(), place.top(), place.width(), place.height());
  return control;
}

template <class Option>
Option At(const QRect& place) {
  Option option;
  option.rect = place;
  option.palette = FormPalette();
  option.state = QStyle::State_Enabled | QStyle::State_Active;
  return option;
}
QStyle& Style() { return *QApplication::style(); }

void DrawField(QPainter& p, const QRect& place, int flags, const QString& text) {
  auto frame = At<QStyleOptionFrame>(place);
  frame.lineWidth = 1;
  frame.state |= QStyle::State_Sunken;
  Style().drawPrimitive(QStyle::PE_PanelLineEdit, &frame, &p);
  p.drawText(place.adjusted(5, 2, -4, -2), flags, text);
}
void DrawMark(QPainter& p, const QRect& place, QStyle::ControlElement element) {
  auto option = At<QStyleOptionButton>(place);
  option.text = Text;
  option.state |= QStyle::State_On;
  Style().drawControl(element, &option, &p);
}

// One kind of control: put on the form, and drawn by hand.
struct Row {
  void (*put)(TForm&, const QRect&);
  void (*draw)(QPainter&, const QRect&);
};
constexpr int Middle = Qt::AlignLeft | Qt::AlignVCenter;
const Row Rows[] = {
    {[](TForm& f, const QRect& r) { Put<TLabel>(f, r); },
     [](QPainter& p, const QRect& r) { p.drawText(r, Qt::AlignLeft | Qt::AlignTop, Text); }},
    {[](TForm& f, const QRect& r) { Put<TEdit>(f, r); },
     [](QPainter& p, const QRect& r) { DrawField(p, r, Middle, Text); }},
    {[](TForm& f, const QRect& r) { Put<TMemo>(f, r)->Get(TMemo::Lines)->SetLines(Lines); },
     [](QPainter& p, const QRect& r) {
       DrawField(p, r, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, Lines.join(u'\n'));
     }},
    {[](TForm& f, const QRect& r) { Put<TButton>(f, r); },
     [](QPainter& p, const QRect& r) {
       auto option = At<QStyleOptionButton>(r);
       option.text = Text;
       option.state |= QStyle::State_Raised;
       Style().drawControl(QStyle::CE_PushButton, &option, &p);
     }},
    {[](TForm& f, const QRect& r) { Put<TCheckBox>(f, r)->SetChecked(true); },
     [](QPainter& p, const QRect& r) { DrawMark(p, r, QStyle::CE_CheckBox); }},
    {[](TForm& f, const QRect& r) { Put<TRadioButton>(f, r)->SetChecked(true); },
     [](QPainter& p, const QRect& r) { DrawMark(p, r, QStyle::CE_RadioButton); }},
    {[](TForm& f, const QRect& r) { Put<TListBox>(f, r)->Get(TListBox::Items)->SetLines(Lines); },
     [](QPainter& p, const QRect& r) {
       DrawField(p, r, Qt::AlignLeft | Qt::AlignTop, {});
       for (int i = 0; i < 3; ++i)
         p.drawText(r.adjusted(5, 2 + 16 * i, -4, 0), Qt::AlignLeft | Qt::AlignTop, Lines[i]);
     }},
    {[](TForm& f, const QRect& r) { Put<TComboBox>(f, r); },
     [](QPainter& p, const QRect& r) {
       auto option = At<QStyleOptionComboBox>(r);
       option.editable = true;
       Style().drawComplexControl(QStyle::CC_ComboBox, &option, &p);
       p.drawText(r.adjusted(5, 2, -20, -2), Middle, Text);
     }},
    {[](TForm& f, const QRect& r) { Put<TGroupBox>(f, r); },
     [](QPainter& p, const QRect& r) {
       auto option = At<QStyleOptionGroupBox>(r);
       option.text = Text;
       option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
       Style().drawComplexControl(QStyle::CC_GroupBox, &option, &p);
     }},
};

QRect PlaceOf(int i) {
  return {QPoint(10 + i % Columns * Cell.width(), 10 + i / Columns * Cell.height()), Cell - QSize(6, 4)};
}
const Row& RowOf(int i) { return Rows[static_cast<std::size_t>(i) % std::size(Rows)]; }

double TimeOf(const std::function<void(QPainter&)>& paint) {
  QImage image(Picture, QImage::Format_ARGB32_Premultiplied);
  image.fill(FormPalette().color(QPalette::Window));
  QPainter painter(&image);
  const Stopwatch watch;
  paint(painter);
  return watch.Elapsed();
}
}  // namespace

void MeasurePaint(const QString&, const QString&) {
  TForm window(nullptr);
  window.SetBounds(0, 0, Picture.width(), Picture.height());
  for (int i = 0; i < Count; ++i) RowOf(i).put(window, PlaceOf(i));
  const auto ours = [&](QPainter& p) {
    for (TControl* c : window.Controls()) {
      p.save();
      p.translate(c->Left(), c->Top());
      PaintControl(*c, p);
      p.restore();
    }
  };
  const auto plain = [&](QPainter& p) {
    p.setFont(ToQFont(*window.Font()));
    p.setPen(FormPalette().color(QPalette::WindowText));
    for (int i = 0; i < Count; ++i) RowOf(i).draw(p, PlaceOf(i));
  };
  TimeOf(ours), TimeOf(plain);
  constexpr int Rounds = 15;
  Pairs pairs;
  for (int i = 0; i < Rounds; ++i) {
    const double form = TimeOf(ours);
    pairs.Add(form, TimeOf(plain));
  }
  Report("paint", pairs);
}

namespace {
// What is seen of both is the same.
std::unique_ptr<TForm> FormWithBar(int count) {
  auto form = std::make_unique<TForm>(nullptr);
  auto* bar = new TVRXButtonBar(form.get());
  bar->SetBounds(0, 0, 160, 400);
  for (int s = 0; s < count; ++s) {
    auto* section = static_cast<TVRXBarSection*>(bar->Sections()->Add());
    section->Set(TVRXBarSection::Caption, QStringLiteral("Section"));
    for (int i = 0; i < count; ++i)
      static_cast<TVRXBarItem*>(section->Items()->Add())->Set(TVRXBarItem::Caption, QStringLiteral("Item"));
  }
  bar->SetParent(form.get());
  return form;
}
// Each time another section in the middle, so that as many headings are seen.
double TimeOfOpening(TForm& form, int round) {
  auto& bar = dynamic_cast<TVRXButtonBar&>(*form.Controls().front());
  const int section = bar.SectionCount() / 2 + round % 2;
  return TimeOf([&](QPainter& p) {
    constexpr int times = 50;
    for (int i = 0; i < times; ++i) {
      bar.Open(section + (i % 2 == 0 ? 0 : -1));
      PaintControl(bar, p);
    }
  });
}
}  // namespace

void MeasureBars(const QString&, const QString&) {
  const auto large = FormWithBar(200), small = FormWithBar(10);
  TimeOfOpening(*large, 0), TimeOfOpening(*small, 0);
  constexpr int Rounds = 15;
  Pairs pairs;
  for (int i = 0; i < Rounds; ++i) {
    const double time = TimeOfOpening(*large, i);
    pairs.Add(time, TimeOfOpening(*small, i));
  }
  Report("bars", pairs);
}
