#include "vcl/Theme.h"

#include <QApplication>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>

namespace {
struct Shades {
  const char *window, *text, *base, *alternate, *button, *mid, *dark, *light, *disabled, *quiet, *highlight,
      *unfocused, *tip, *link;
};
constexpr Shades LightShades{"#f3f4f6", "#1e2227", "#ffffff", "#f7f8fa", "#eceef1", "#c3c8cf", "#9aa1ab",
                             "#ffffff", "#9aa1ab", "#5f6672", "#2f6fd6", "#6a7587", "#fffbe6", "#1d5dc4"};
constexpr Shades DarkShades{"#2b2e33", "#e4e6ea", "#1f2226", "#26292e", "#363a40", "#4a4f57", "#17191c",
                            "#4d535c", "#7d838d", "#a3a9b3", "#3a72cf", "#4a5568", "#3a3d43", "#78a9f5"};

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
  set(QPalette::PlaceholderText, s.quiet);
  set(QPalette::Link, s.link);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    p.setColor(QPalette::Disabled, role, QColor(QLatin1StringView(s.disabled)));
  p.setColor(QPalette::Disabled, QPalette::Highlight, QColor(QLatin1StringView(s.mid)));
  p.setColor(QPalette::Inactive, QPalette::Highlight, QColor(QLatin1StringView(s.unfocused)));
  return p;
}
// Fusion draws the outlines of boxes and fields a little darker than the window. They disappear in a dark
// theme, and those of check marks are faint in any: there they are drawn as if the window had another shade.
// The default button of a dark theme would be too light for its text.
class OutlinedFusion : public QProxyStyle {
 public:
  OutlinedFusion() : QProxyStyle(QStringLiteral("Fusion")) { setObjectName(QStringLiteral("orlenvo")); }

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    const bool dark = option && IsDark(option->palette);
    const bool mark = element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
    const bool frame = element == PE_FrameLineEdit || element == PE_Frame;
    const Recolored outline(mark || (dark && frame) ? option : nullptr, QPalette::Window,
                            [&](const QPalette& p) {
                              return !dark  ? p.color(QPalette::Window).darker(130)
                                     : mark ? p.color(QPalette::WindowText).darker(140)
                                            : p.color(QPalette::Window).lighter(230);
                            });
    const Recolored face(dark && element == PE_PanelButtonCommand ? option : nullptr, QPalette::Highlight,
                         [](const QPalette& p) { return p.color(QPalette::Highlight).darker(150); });
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override {
    const bool field = control == CC_SpinBox || control == CC_ComboBox;
    const Recolored outline(field && IsDark(option->palette) ? option : nullptr, QPalette::Window,
                            [](const QPalette& p) { return p.color(QPalette::Window).lighter(230); });
    QProxyStyle::drawComplexControl(control, option, painter, widget);
  }
  // Drop-down lists open below their field and keep to the number of rows they are given. The lines of a
  // table are darker than the window, which a dark table hides.
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    if (hint == SH_ComboBox_Popup) return 0;
    if (hint == SH_Table_GridLineColor && option && IsDark(option->palette))
      return static_cast<int>(option->palette.color(QPalette::Mid).rgb());
    if (hint == SH_ItemView_ChangeHighlightOnFocus) return IsLeft(widget);
    return QProxyStyle::styleHint(hint, option, widget, data);
  }

  // Fusion's rows are as high as their marks, which then touch each other.
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override {
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    const auto* row =
        type == CT_ItemViewItem ? qstyleoption_cast<const QStyleOptionViewItem*>(option) : nullptr;
    if (row && row->features.testFlag(QStyleOptionViewItem::HasCheckIndicator))
      size.setHeight(std::max(size.height(), pixelMetric(PM_IndicatorHeight, option, widget) + 4));
    return size;
  }

  // Fusion greys a disabled icon towards the light: in a dark theme it stands out more than before.
  QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap,
                              const QStyleOption* option) const override {
    // A color is what it is on a selected row, too.
    if (mode == QIcon::Selected) return pixmap;
    if (mode != QIcon::Disabled || !option || !IsDark(option->palette))
      return QProxyStyle::generatedIconPixmap(mode, pixmap, option);
    QImage faint = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < faint.height(); ++y)
      for (QRgb *p = reinterpret_cast<QRgb*>(faint.scanLine(y)), *end = p + faint.width(); p != end; ++p) {
        const int grey = qGray(*p);
        *p = qRgba(grey, grey, grey, qAlpha(*p) * 3 / 10);
      }
    return QPixmap::fromImage(faint);
  }

 private:
  // Of several lists in a window the one with the keys has the accent. Lists that open below a field belong
  // to it, and an open editor to its list.
  static bool IsLeft(const QWidget* list) {
    return list && !list->isAncestorOf(QApplication::focusWidget()) &&
           list->window()->windowType() != Qt::Popup;
  }

  // Another colour for a role of the option's palette while it lives; nothing without an option.
  class Recolored {
   public:
    template <class F>
    Recolored(const QStyleOption* option, QPalette::ColorRole role, F color)
        : option_(const_cast<QStyleOption*>(option)) {
      if (!option_) return;
      before_ = option_->palette;
      option_->palette.setColor(role, color(before_));
    }
    ~Recolored() {
      if (option_) option_->palette = before_;
    }
    Recolored(const Recolored&) = delete;
    Recolored& operator=(const Recolored&) = delete;

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
