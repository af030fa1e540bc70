#include "designer/FormColorsMenu.h"

#include <QActionGroup>
#include <QMenu>

#include "rtl/Registry.h"
#include "vcl/FormColors.h"

namespace {
struct Row {
  TFormColors colors;
  const char* setting;
  const char* text;
  const char* name;
};
constexpr Row Rows[] = {
    {TFormColors::Light, "light", QT_TRANSLATE_NOOP("FormColors", "&Light"), "formLight"},
    {TFormColors::Dark, "dark", QT_TRANSLATE_NOOP("FormColors", "&Dark"), "formDark"},
    {TFormColors::Designer, "designer", QT_TRANSLATE_NOOP("FormColors", "&As the designer"), "formDesigner"},
};
TRegIniFile Settings() { return TRegIniFile(QStringLiteral("SOFTWARE\\Orlenvo\\Orlenvo-Kit 2025")); }
QString Section() { return QStringLiteral("Designer"); }
QString Value() { return QStringLiteral("FormColors"); }
}  // namespace

void RestoreFormColors() {
  const QString setting = Settings().ReadString(Section(), Value(), {});
  for (const Row& row : Rows)
    if (setting == QLatin1StringView(row.setting)) SetFormColors(row.colors);
}

void ChooseTheme(TTheme theme) {
  ApplyTheme(theme);
  Settings().WriteString(Section(), QStringLiteral("Theme"),
                         theme == TTheme::Dark ? QStringLiteral("dark") : QStringLiteral("light"));
}

void RestoreTheme() {
  const QString setting = Settings().ReadString(Section(), QStringLiteral("Theme"), {});
  if (setting == QStringLiteral("dark")) ApplyTheme(TTheme::Dark);
  if (setting == QStringLiteral("light")) ApplyTheme(TTheme::Light);
}

void AddFormColorsMenu(QMenu& view) {
  QMenu* menu = view.addMenu(QMenu::tr("Form &colours"));
  auto* group = new QActionGroup(menu);
  for (const Row& row : Rows) {
    QAction* action = menu->addAction(QCoreApplication::translate("FormColors", row.text));
    action->setObjectName(QLatin1StringView(row.name));
    action->setCheckable(true);
    action->setChecked(FormColors() == row.colors);
    group->addAction(action);
    QObject::connect(action, &QAction::triggered, menu, [&row] {
      SetFormColors(row.colors);
      Settings().WriteString(Section(), Value(), QLatin1StringView(row.setting));
    });
  }
}
