#include "library/controls/Calculator.h"

#include "vcl/ItemPainting.h"
#include "vcl/PropertyGroups.h"

const TClass& TVRXCalculator::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXCalculator>("TVRXCalculator", TWinControl::StaticClass())
          .PublishAll(Placing)
          .Published(BorderStyle)
          .PublishAll("Color")
          .Published(DigitColor)
          .Doc(QStringLiteral("Color of the digits on their keys."))
          .Published(DisplayColor)
          .Doc(QStringLiteral("Color behind the number."))
          .Published(DisplayTextColor)
          .Doc(QStringLiteral("Color of the number."))
          .PublishAll("Enabled", "Font", Hints)
          .Published(KeySpacing)
          .Doc(QStringLiteral("Pixels between the keys."))
          .Published("Memory", &TVRXCalculator::MemoryOf, &TVRXCalculator::SetMemory)
          .Doc(QStringLiteral("The number in the memory; 0 is none."))
          .Published(MemoryColor)
          .Doc(QStringLiteral("Color of what stands on the keys of the memory."))
          .Published(OperatorColor)
          .Doc(QStringLiteral("Color of what stands on the other keys."))
          .PublishAll(ParentLook, "PopupMenu")
          .Published(Precision)
          .Doc(QStringLiteral("Digits that the display shows, 15 at most."))
          .Published(ShowDisplay)
          .Doc(QStringLiteral("Shows the number above the keys."))
          .Published(ShowMemory)
          .Doc(QStringLiteral("Shows the keys of the memory."))
          .PublishAll("TabOrder")
          .Publish("TabStop", true)
          .Published("Value", &TVRXCalculator::ValueOf, &TVRXCalculator::SetValue)
          .Doc(QStringLiteral("The number that the display shows."))
          .PublishAll("Visible", MouseEvents, KeyEvents, FocusEvents)
          .Event("OnChange")
          .Event("OnResult")
          .ClassDoc(
              QStringLiteral("A calculator with a display, keys and a memory."),
              "pen line 1.5 brush fill box 4.5 2.5 15 19 2 pen none brush accent box 7 5 10 3.5 0 brush line "
              "box 7 11 2.5 2.5 0 box 10.8 11 2.5 2.5 0 box 14.5 11 2.5 2.5 0 box 7 15.5 2.5 2.5 0 box 10.8 "
              "15.5 2.5 2.5 0 brush accent box 14.5 15.5 2.5 2.5 0"));
  return cls;
}

TVRXCalculator::TVRXCalculator(TComponent* owner) : TWinControl(owner) {
  tabStop_ = true;
  SetBounds(0, 0, 216, 176);
}

void TVRXCalculator::SetMemory(double v) {
  engine_.SetMemory(v);
  Set(Memory, v);
}

void TVRXCalculator::SetValue(double v) {
  if (v != Get(Value)) engine_ = TVRXCalculatorEngine(v, Get(Memory));
  Set(Value, v);
}

bool TVRXCalculator::Press(QStringView key) {
  if (!engine_.Press(key)) return false;
  const TUpdateLock once(*this);
  Set(Value, engine_.Value());
  Set(Memory, engine_.Memory());
  Invalidate();  // "3." is no other number than "3"
  return true;
}

namespace {
enum class Kind { Memory, Digit, Operator };
// Columns are halves of a key's width, counted from the first digit; those of the memory stand left of them.
struct Key {
  const char16_t* name;
  const char16_t* text;
  Kind kind;
  int row, column, width;
};
constexpr int MemoryColumn = -2, Columns = 10, Rows = 5;
constexpr Key AllKeys[] = {
    {u"back", u"\u2190", Kind::Operator, 0, 0, 4},
    {u"CE", u"CE", Kind::Operator, 0, 4, 3},
    {u"C", u"C", Kind::Operator, 0, 7, 3},
    {u"MC", u"MC", Kind::Memory, 1, MemoryColumn, 2},
    {u"7", u"7", Kind::Digit, 1, 0, 2},
    {u"8", u"8", Kind::Digit, 1, 2, 2},
    {u"9", u"9", Kind::Digit, 1, 4, 2},
    {u"/", u"\u00F7", Kind::Operator, 1, 6, 2},
    {u"sqrt", u"\u221A", Kind::Operator, 1, 8, 2},
    {u"MR", u"MR", Kind::Memory, 2, MemoryColumn, 2},
    {u"4", u"4", Kind::Digit, 2, 0, 2},
    {u"5", u"5", Kind::Digit, 2, 2, 2},
    {u"6", u"6", Kind::Digit, 2, 4, 2},
    {u"*", u"\u00D7", Kind::Operator, 2, 6, 2},
    {u"%", u"%", Kind::Operator, 2, 8, 2},
    {u"MS", u"MS", Kind::Memory, 3, MemoryColumn, 2},
    {u"1", u"1", Kind::Digit, 3, 0, 2},
    {u"2", u"2", Kind::Digit, 3, 2, 2},
    {u"3", u"3", Kind::Digit, 3, 4, 2},
    {u"-", u"\u2212", Kind::Operator, 3, 6, 2},
    {u"1/x", u"1/x", Kind::Operator, 3, 8, 2},
    {u"M+", u"M+", Kind::Memory, 4, MemoryColumn, 2},
    {u"0", u"0", Kind::Digit, 4, 0, 2},
    {u"+/-", u"\u00B1", Kind::Digit, 4, 2, 2},
    {u".", u".", Kind::Digit, 4, 4, 2},
    {u"+", u"+", Kind::Operator, 4, 6, 2},
    {u"=", u"=", Kind::Operator, 4, 8, 2},
};
}  // namespace

QRect TVRXCalculator::Room() const {
  const int frame = Get(BorderStyle) == TBorderStyle::bsSingle ? 2 : 0,
            gap = std::clamp(Get(KeySpacing), 0, 100);
  return ClientRect().adjusted(frame + gap, frame + gap, -frame - gap, -frame - gap);
}

QRect TVRXCalculator::DisplayRect() const {
  const QRect room = Room();
  return Get(ShowDisplay) ? QRect(room.left(), room.top(), room.width(), room.height() / (Rows + 1))
                          : QRect();
}

QStringList TVRXCalculator::Keys() const {
  QStringList keys;
  for (const Key& key : AllKeys)
    if (key.kind != Kind::Memory || Get(ShowMemory)) keys << QString::fromUtf16(key.name);
  return keys;
}

QRect TVRXCalculator::KeyRect(QStringView name) const {
  const auto key =
      std::find_if(std::begin(AllKeys), std::end(AllKeys), [&](const Key& k) { return name == k.name; });
  if (key == std::end(AllKeys) || (key->kind == Kind::Memory && !Get(ShowMemory))) return {};
  const int gap = std::clamp(Get(KeySpacing), 0, 100), lead = Get(ShowMemory) ? -MemoryColumn : 0;
  QRect room = Room();
  if (Get(ShowDisplay)) room.setTop(DisplayRect().bottom() + 1 + gap);
  // The gap behind a key is part of its share.
  const auto at = [gap](int from, int length, int i, int count) { return from + i * (length + gap) / count; };
  const int column = key->column + lead, columns = Columns + lead;
  const QPoint begin(at(room.left(), room.width(), column, columns),
                     at(room.top(), room.height(), key->row, Rows));
  const QPoint end(at(room.left(), room.width(), column + key->width, columns),
                   at(room.top(), room.height(), key->row + 1, Rows));
  const QRect rect(begin, end - QPoint(gap + 1, gap + 1));
  return rect.isValid() ? rect : QRect();
}

QString TVRXCalculator::KeyAt(QPoint point) const {
  for (const QString& key : Keys())
    if (KeyRect(key).contains(point)) return key;
  return {};
}

void TVRXCalculator::PaintDisplay(TCanvas& canvas) const {
  QRect room = PaintListFrame(canvas, DisplayRect(), PartStates());
  canvas.FillRect(room, Enabled() ? Get(DisplayColor) : clBtnFace);
  room.adjust(4, 0, -4, 0);
  TFont font;
  font.Assign(Font());
  font.SetColor(Get(DisplayTextColor));
  if (Get(Memory) != 0) {
    const QString mark = QStringLiteral("M");
    PaintPlainText(canvas, room, Qt::AlignLeft, mark, font, Enabled());
    room.setLeft(room.left() + TextExtent(mark, font).width() + 4);
  }
  PaintPlainText(canvas, room, Qt::AlignRight, DisplayText(), font, Enabled());
}

void TVRXCalculator::Paint(TCanvas& canvas) {
  canvas.FillRect(ClientRect(), Color());
  if (Get(BorderStyle) == TBorderStyle::bsSingle) canvas.Frame3D(ClientRect(), clBtnShadow, clBtnShadow, 1);
  if (!DisplayRect().isEmpty()) PaintDisplay(canvas);
  TFont font;
  font.Assign(Font());
  for (const Key& key : AllKeys) {
    const QRect rect = KeyRect(key.name);
    if (rect.isEmpty()) continue;
    font.SetColor(Get(key.kind == Kind::Memory  ? MemoryColor
                      : key.kind == Kind::Digit ? DigitColor
                                                : OperatorColor));
    PaintButton(canvas, rect, PartStates(), QString::fromUtf16(key.text), &font);
  }
}
