#include "cli/PictureOptions.h"

double ScaleOption(const Arguments& args) {
  bool ok = true;
  const QString text = args.options.value(QStringLiteral("--scale"), QStringLiteral("1"));
  const double scale = text.toDouble(&ok);
  if (!ok || !(scale >= 0.05 && scale <= 20))
    throw UsageError{QStringLiteral("--scale takes a number from 0.05 to 20, not \"%1\"").arg(text)};
  return scale;
}

TFormColors ThemeOption(const Arguments& args) {
  const QString theme = args.options.value(QStringLiteral("--theme"), QStringLiteral("light"));
  if (theme != QStringLiteral("light") && theme != QStringLiteral("dark"))
    throw UsageError{QStringLiteral("--theme takes light or dark, not \"%1\"").arg(theme)};
  return theme == QStringLiteral("dark") ? TFormColors::Dark : TFormColors::Light;
}
