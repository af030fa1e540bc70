#include "bench/Generate.h"

namespace {
class UiWriter {
 public:
  QByteArray Run(const std::vector<Item>& design) {
    out_ =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ui version=\"4.0\">\n <class>BenchForm</class>\n"
        " <widget class=\"QWidget\" name=\"BenchForm\">\n";
    Property("geometry", Rect(0, 0, 1600, 900));
    Property("windowTitle", "<string>Bench</string>");
    for (const Item& item : design) Widget(item);
    out_ += " </widget>\n <resources/>\n <connections/>\n</ui>\n";
    return out_;
  }

 private:
  static QByteArray Number(int v) { return "<number>" + QByteArray::number(v) + "</number>"; }
  static QByteArray Flag(bool v) { return v ? "<bool>true</bool>" : "<bool>false</bool>"; }
  static QByteArray Enum(const char* v) { return QByteArray("<enum>") + v + "</enum>"; }
  static QByteArray Text(const char* what, const Item& item) {
    return QByteArray("<string>") + what + ' ' + QByteArray::number(item.number) + "</string>";
  }
  static QByteArray Rect(int x, int y, int width, int height) {
    const auto part = [](const char* tag, int v) {
      return QByteArray("<") + tag + '>' + QByteArray::number(v) + "</" + tag + '>';
    };
    return "<rect>" + part("x", x) + part("y", y) + part("width", width) + part("height", height) + "</rect>";
  }
  void Property(const char* name, const QByteArray& value) {
    out_ += QByteArray("<property name=\"") + name + "\">" + value + "</property>\n";
  }
  // The rectangle and the font count as the four values that each of them holds.
  void Common(const Item& item) {
    Property("geometry", Rect(item.left, item.top, item.width, item.height));
    Property("font", QByteArray("<font><family>") + (item.variant & 4u ? "Verdana" : "Tahoma") +
                         "</family><pointsize>" + (item.variant & 2u ? "10" : "8") + "</pointsize><italic>" +
                         (item.variant & 1u ? "true" : "false") + "</italic><bold>" +
                         (item.variant & 8u ? "true" : "false") + "</bold></font>");
    Property("toolTip", Text("Explains component", item));
    Property("enabled", Flag(item.variant & 16u));
    Property("autoFillBackground", Flag(item.variant & 32u));
  }
  void Widget(const Item& item) {
    static constexpr const char* classes[] = {"QFrame", "QLabel", "QPushButton", "QLCDNumber"};
    const char* cls = classes[static_cast<int>(item.kind)];
    out_ += QByteArray("<widget class=\"") + cls + "\" name=\"" + (cls + 1) +
            QByteArray::number(item.number) + "\">\n";
    Common(item);
    Rest(item);
    for (const Item& child : item.children) Widget(child);
    out_ += "</widget>\n";
  }
  void Frame(bool odd) {
    Property("frameShape", Enum(odd ? "QFrame::NoFrame" : "QFrame::Panel"));
    Property("frameShadow", Enum("QFrame::Raised"));
    Property("lineWidth", Number(2));
  }
  void Rest(const Item& item) {
    const bool odd = item.variant & 16u;
    switch (item.kind) {
      case Kind::Panel:
        Frame(odd);
        Property("midLineWidth", Number(3));
        Property("focusPolicy", Enum("Qt::NoFocus"));
        Property("statusTip", Text("Panel", item));
        Property("accessibleName", Text("Panel", item));
        return;
      case Kind::Label:
        Property("text", Text("Some label with text", item));
        Property("alignment", QByteArray("<set>Qt::AlignVCenter|") +
                                  (odd ? "Qt::AlignHCenter" : "Qt::AlignRight") + "</set>");
        Property("wordWrap", Flag(true));
        Property("indent", Number(1));
        Property("margin", Number(2));
        Property("textFormat", Enum("Qt::PlainText"));
        Property("openExternalLinks", Flag(odd));
        return;
      case Kind::Button:
        Property("text", Text("Press", item));
        Property("default", Flag(false));
        Property("autoDefault", Flag(odd));
        Property("flat", Flag(odd));
        Property("checkable", Flag(true));
        Property("focusPolicy", Enum("Qt::StrongFocus"));
        Property("accessibleName", Text("Button", item));
        return;
      case Kind::LED:
        Frame(odd);
        Property("smallDecimalPoint", Flag(odd));
        Property("digitCount", Number(8));
        Property("segmentStyle", Enum("QLCDNumber::Flat"));
        Property("intValue", Number(item.number % 1000));
        return;
    }
  }

  QByteArray out_;
};
}  // namespace

QByteArray UiText(const std::vector<Item>& design) { return UiWriter().Run(design); }
