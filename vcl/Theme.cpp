#include "vcl/Theme.h"

#include <QApplication>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>

namespace {
struct Shades {
  const char *window, *text, *base, *alternate, *button, *mid, *dark, *light, *disabled, *highlight, *tip,
      *link;
};
constexpr Shades LightShades{"#f3f4f6", "#1e2227", "#ffffff", "#f7f8fa", "#eceef1", "#c3c8cf",
                             "#9aa1ab", "#ffffff", "#9aa1ab", "#2f6fd6", "#fffbe6", "#1d5dc4"};
constexpr Shades DarkShades{"#2b2e33", "#e4e6ea", "#1f2226", "#26292e", "#363a40", "#4a4f57",
                            "#17191c", "#4d535c", "#7d838d", "#4a86e8", "#3a3d43", "#78a9f5"};

QPalette Palette(const Shades& s) {
  QPalette p;
  const auto set = [&](QPalette::ColorRole role, const char* colour) {
    p.setColor(role, QColor(QLatin1StringView(colour)));
  };
  set(QPalette::Window, s.window);
  set(QPalette::WindowText, s.text);
  set(QPalette::Base, s.base);
  set(QPalette::AlternateBase, s.alternate);
  set(QPalette::Text, s.text);
  set(QPalette::Button, s.button);
  set(QPalette::ButtonText, s.text);
  set(QPalette::BrightText, "#ff5050");
  set(QPalette::Light, s.light);
  set(QPalette::Midlight, s.mid);
  set(QPalette::Mid, s.mid);
  set(QPalette::Dark, s.dark);
  set(QPalette::Shadow, "#101214");
  set(QPalette::Highlight, s.highlight);
  set(QPalette::HighlightedText, "#ffffff");
  set(QPalette::ToolTipBase, s.tip);
  set(QPalette::ToolTipText, s.text);
  set(QPalette::PlaceholderText, s.disabled);
  set(QPalette::Link, s.link);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    p.setColor(QPalette::Disabled, role, QColor(QLatin1StringView(s.disabled)));
  p.setColor(QPalette::Disabled, QPalette::Highlight, QColor(QLatin1StringView(s.mid)));
  return p;
}
// Fusion draws the outlines of boxes and fields darker than the window, which disappears in a dark theme.
// There they are drawn as if the window were lighter.
class OutlinedFusion : public QProxyStyle {
 public:
  OutlinedFusion() : QProxyStyle(QStringLiteral("Fusion")) { setObjectName(QStringLiteral("orlenvo")); }

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    const bool outlined =
        element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton || element == PE_FrameLineEdit;
    const Lightened with(outlined ? option : nullptr);
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override {
    const Lightened with(control == CC_SpinBox || control == CC_ComboBox ? option : nullptr);
    QProxyStyle::drawComplexControl(control, option, painter, widget);
  }
  // Drop-down lists open below their field and keep to the number of rows they are given.
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
  }

 private:
  // Changes the option's palette while it lives.
  class Lightened {
   public:
    explicit Lightened(const QStyleOption* option)
        : option_(option && option->palette.color(QPalette::Window).lightness() < 128
                      ? const_cast<QStyleOption*>(option)
                      : nullptr) {
      if (!option_) return;
      before_ = option_->palette;
      option_->palette.setColor(QPalette::Window, before_.color(QPalette::Window).lighter(230));
    }
    ~Lightened() {
      if (option_) option_->palette = before_;
    }
    Lightened(const Lightened&) = delete;
    Lightened& operator=(const Lightened&) = delete;

   private:
    QStyleOption* option_;
    QPalette before_;
  };
};
}  // namespace

void ApplyTheme(TTheme theme) {
  if (!QApplication::style() || QApplication::style()->objectName() != QStringLiteral("orlenvo"))
    QApplication::setStyle(new OutlinedFusion);
  if (theme != TTheme::System) QApplication::setPalette(ThemePalette(theme));
}

QPalette ThemePalette(TTheme theme) {
  static const QPalette light = Palette(LightShades), dark = Palette(DarkShades);
  return theme == TTheme::System ? QGuiApplication::palette() : theme == TTheme::Dark ? dark : light;
}

bool IsDarkTheme() { return IsDark(QGuiApplication::palette()); }

bool IsDark(const QPalette& p) {
  return p.color(QPalette::WindowText).lightness() > p.color(QPalette::Window).lightness();
}
