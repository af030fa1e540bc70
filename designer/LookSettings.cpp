#include "designer/LookSettings.h"

#include "designer/DesignerSettings.h"

namespace {
template <class T>
struct Setting {
  T look;
  const char* text;
};
constexpr Setting<TFormColors> Colors[] = {
    {TFormColors::Light, "light"}, {TFormColors::Dark, "dark"}, {TFormColors::Designer, "designer"}};
constexpr Setting<TTheme> Themes[] = {{TTheme::Light, "light"}, {TTheme::Dark, "dark"}};

template <class T, std::size_t N>
void Restore(const char* name, const Setting<T> (&settings)[N], void (*apply)(T)) {
  const QString text = DesignerSetting(name);
  for (const Setting<T>& s : settings)
    if (text == QLatin1StringView(s.text)) apply(s.look);
}
template <class T, std::size_t N>
void Choose(const char* name, const Setting<T> (&settings)[N], void (*apply)(T), T look) {
  apply(look);
  for (const Setting<T>& s : settings)
    if (s.look == look) KeepDesignerSetting(name, QLatin1StringView(s.text));
}
}  // namespace

// Before anybody has chosen one it is the one of ours that is nearest to the platform's.
void RestoreTheme() {
  ApplyTheme(IsDarkTheme() ? TTheme::Dark : TTheme::Light);
  Restore("Theme", Themes, &ApplyTheme);
}
void ChooseTheme(TTheme theme) { Choose("Theme", Themes, &ApplyTheme, theme); }
void RestoreFormColors() { Restore("FormColors", Colors, &SetFormColors); }
void ChooseFormColors(TFormColors colors) { Choose("FormColors", Colors, &SetFormColors, colors); }
