#include "bench/Generate.h"

#include <random>

namespace {
constexpr int Columns = 40;  // components side by side
constexpr int Cell = 100;    // pixels

class Designer {
 public:
  explicit Designer(int count) : left_(count) {}

  std::vector<Item> Run() {
    std::vector<Item> design;
    while (left_ > 0) design.push_back(Bits() % 5 == 0 ? Panel(design.size()) : Leaf(design.size()));
    return design;
  }

 private:
  Item Make(Kind kind, std::size_t place, int width, int height) {
    --left_;
    const int at = static_cast<int>(place);
    return {kind, ++number_, at % Columns * Cell, at / Columns * Cell, width, height, Bits(), {}};
  }
  Item Leaf(std::size_t place) {
    switch (Bits() % 5) {
      case 0:
      case 1:
        return Make(Kind::Label, place, 80, 17);
      case 2:
      case 3:
        return Make(Kind::Button, place, 75, 25);
      default:
        return Make(Kind::LED, place, 90, 28);
    }
  }
  Item Panel(std::size_t place) {
    Item panel = Make(Kind::Panel, place, 360, 240);
    while (left_ > 0 && panel.children.size() < 8) panel.children.push_back(Leaf(panel.children.size()));
    return panel;
  }
  unsigned Bits() { return static_cast<unsigned>(random_()); }

  std::mt19937 random_{20240607};
  int left_;
  int number_ = 0;
};

class FormWriter {
 public:
  QByteArray Run(const std::vector<Item>& design) {
    out_ =
        "object BenchForm: TBenchForm\n"
        "  Left = 0\n  Top = 0\n  Caption = 'Bench'\n  ClientHeight = 900\n  ClientWidth = 1600\n"
        "  Color = clBtnFace\n  Font.Charset = DEFAULT_CHARSET\n  Font.Color = clWindowText\n"
        "  Font.Height = -11\n  Font.Name = 'Tahoma'\n  Font.Style = []\n  PixelsPerInch = 96\n";
    for (const Item& item : design) Object(item, 2);
    out_ += "end\n";
    return out_;
  }

 private:
  void Line(const char* name, const QByteArray& value) {
    out_ += QByteArray(indent_ + 2, ' ') + name + " = " + value + '\n';
  }
  static QByteArray Flag(bool v) { return v ? "True" : "False"; }
  static QByteArray Text(const char* what, const Item& item) {
    return QByteArray("'") + what + ' ' + QByteArray::number(item.number) + '\'';
  }
  void Place(const Item& item) {
    Line("Left", QByteArray::number(item.left));
    Line("Top", QByteArray::number(item.top));
    Line("Width", QByteArray::number(item.width));
    Line("Height", QByteArray::number(item.height));
    Line("Hint", Text("Explains component", item));
  }
  void Font(const Item& item) {
    Line("Font.Charset", "DEFAULT_CHARSET");
    Line("Font.Color", item.variant & 1u ? "clNavy" : "clWindowText");
    Line("Font.Height", item.variant & 2u ? "-13" : "-11");
    Line("Font.Name", item.variant & 4u ? "'Verdana'" : "'Tahoma'");
    Line("Font.Style", item.variant & 8u ? "[fsBold]" : "[]");
    Line("ParentFont", "False");
  }
  void Object(const Item& item, int indent) {
    static constexpr const char* classes[] = {"TPanel", "TLabel", "TButton", "TVRXLEDLabel"};
    const char* cls = classes[static_cast<int>(item.kind)];
    indent_ = indent;
    out_ +=
        QByteArray(indent, ' ') + "object " + (cls + 1) + QByteArray::number(item.number) + ": " + cls + '\n';
    Place(item);
    Rest(item);
    for (const Item& child : item.children) Object(child, indent + 2);
    out_ += QByteArray(indent, ' ') + "end\n";
  }
  void Rest(const Item& item) {
    const bool odd = item.variant & 16u;
    const QByteArray anchors = odd ? "[akTop, akRight]" : "[akLeft, akTop, akRight]";
    switch (item.kind) {
      case Kind::Panel:
        Line("Alignment", odd ? "taLeftJustify" : "taRightJustify");
        Line("Anchors", anchors);
        Line("BevelInner", "bvLowered");
        Line("BevelOuter", odd ? "bvNone" : "bvSpace");
        Line("BevelWidth", "2");
        Line("BorderWidth", "3");
        Line("Caption", Text("Panel", item));
        Line("Color", odd ? "clSilver" : "4009240");
        Line("Enabled", Flag(odd));
        Line("ParentShowHint", "False");
        Line("ShowHint", "True");
        Line("TabOrder", QByteArray::number(item.number % 1000));
        Line("Tag", QByteArray::number(item.number));
        return;
      case Kind::Label:
        Line("Alignment", odd ? "taCenter" : "taRightJustify");
        Line("Anchors", anchors);
        Line("AutoSize", Flag(false));
        Line("Caption", Text("Some label with text", item));
        Font(item);
        if (item.refers) Line("FocusControl", "Button1");
        Line("Layout", "tlCenter");
        Line("Transparent", Flag(odd));
        Line("WordWrap", Flag(true));
        return;
      case Kind::Button:
        Line("Anchors", anchors);
        Line("Caption", Text("Press", item));
        Line("Enabled", Flag(odd));
        Font(item);
        Line("ModalResult", QByteArray::number(item.variant % 12));
        Line("ShowHint", "True");
        Line("TabOrder", QByteArray::number(item.number % 1000));
        Line("OnClick", "ButtonClick");
        return;
      case Kind::LED:
        Line("Alignment", odd ? "taCenter" : "taRightJustify");
        Line("Anchors", anchors);
        Line("AutoSize", Flag(false));
        Line("Caption", Text("LED", item));
        Line("Color", odd ? "clBlack" : "clNavy");
        Line("LED.ActiveColor", odd ? "clAqua" : "clRed");
        Line("LED.HorzSize", "7");
        Line("LED.InActiveColor", "4009240");
        Line("LED.Thickness", "3");
        Line("LED.VertSize", "9");
        Line("ShowHint", "True");
        Line("Transparent", Flag(odd));
        Line("OnClick", "DisplayClick");
        return;
    }
  }

  QByteArray out_;
  int indent_ = 0;
};
}  // namespace

std::vector<Item> MakeLabels(int count, bool referring) {
  std::vector<Item> design{{Kind::Button, 1, 200, 200, 75, 25, 0}};
  for (int i = 0; i < count; ++i)
    design.push_back({Kind::Label,
                      i + 2,
                      i % Columns * Cell,
                      i / Columns * 20,
                      80,
                      17,
                      static_cast<unsigned>(i) * 2654435761u >> 7,
                      {},
                      referring});
  return design;
}

std::vector<Item> MakeDesign(int count) { return Designer(count).Run(); }
QByteArray FormText(const std::vector<Item>& design) { return FormWriter().Run(design); }
