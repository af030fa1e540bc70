#include "designintf/CustomColors.h"

#include "rtl/Registry.h"

namespace {
QString Key() { return QStringLiteral("SOFTWARE\\Orlenvo\\Orlenvo-Kit 2025"); }
QString Section() { return QStringLiteral("CustomColors"); }
QString Name(int slot) { return QStringLiteral("Color") + QChar(u'A' + slot); }
}  // namespace

QStringList LoadIDECustomColors() {
  const TRegIniFile file(Key());
  QStringList colors;
  for (int i = 0; i < MaxCustomColors; ++i)
    if (const QString v = file.ReadString(Section(), Name(i), {}); !v.isEmpty()) colors << Name(i) + u'=' + v;
  return colors;
}

void SaveIDECustomColors(const QStringList& colors) {
  TRegIniFile file(Key());
  if (colors == LoadIDECustomColors()) return;
  file.EraseSection(Section());
  for (const QString& entry : colors) {
    const qsizetype equals = entry.indexOf(u'=');
    if (equals > 0) file.WriteString(Section(), entry.left(equals), entry.mid(equals + 1));
  }
  static bool told = false;
  try {
    file.UpdateFile();
    told = false;
  } catch (const ERegistryException&) {
    if (!std::exchange(told, true)) throw;
  }
}

std::vector<TColor> CustomColorValues(const QStringList& colors) {
  std::vector<TColor> values;
  for (const QString& entry : colors) {
    bool ok = false;
    const uint v = entry.mid(entry.indexOf(u'=') + 1).toUInt(&ok, 16);
    if (ok && values.size() < MaxCustomColors) values.push_back(TColor(v));
  }
  return values;
}

QStringList CustomColorEntries(const std::vector<TColor>& colors) {
  QStringList entries;
  for (std::size_t i = 0; i < colors.size() && i < MaxCustomColors; ++i)
    entries << QStringLiteral("%1=%2").arg(
        Name(static_cast<int>(i)),
        QStringLiteral("%1").arg(static_cast<uint>(colors[i]), 8, 16, QLatin1Char('0')).toUpper());
  return entries;
}
