#include "library/components/ColorFontDialogs.h"

#include <QtWidgets>

#include "library/components/DialogFrame.h"
#include "vcl/Prompts.h"

const TClass& TVRXFormColorDialog::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXFormColorDialog>("TVRXFormColorDialog", TColorDialog::StaticClass())
          .ClassDoc(QStringLiteral("Asks for a color."),
                    "pen line 1.5 brush fill box 3 4 18 16 2 path 3 8 21 8 brush accent box 6 11 4 3.5 0 "
                    "brush none box 13 11 5 6.5 0 path 6 17.5 10 17.5"));
  return cls;
}

const TClass& TVRXFormFontDialog::StaticClass() {
  static const TClass cls(DescribeClass<TVRXFormFontDialog>("TVRXFormFontDialog", TFontDialog::StaticClass())
                              .ClassDoc(QStringLiteral("Asks for a font."),
                                        "pen line 1.5 brush fill box 3 4 18 16 2 path 3 8 21 8 pen accent 2 "
                                        "path 7.5 17.5 12 10 16.5 17.5 path 9.2 15 14.8 15"));
  return cls;
}

namespace {
// The colours that a person keeps beside the others. The toolkit has them for the whole program; those of a
// component are there while its dialog is open.
class OwnColors {
 public:
  OwnColors() {
    for (int i = 0; i < Count; ++i) before_ << QColorDialog::customColor(i);
  }
  ~OwnColors() {
    for (int i = 0; i < Count; ++i) QColorDialog::setCustomColor(i, before_[i]);
  }
  OwnColors(const OwnColors&) = delete;
  OwnColors& operator=(const OwnColors&) = delete;

  static void Show(const QStringList& lines) {
    for (int i = 0; i < Count; ++i) {
      const qsizetype at = LineOf(lines, i);
      bool number = false;
      const unsigned value = at < 0 ? 0 : lines[at].section(u'=', 1).trimmed().toUInt(&number, 16);
      QColorDialog::setCustomColor(i, number ? ToQColor(TColor(value & 0xFFFFFF)) : QColor(Qt::white));
    }
  }
  // The lines with what was changed; others are left alone.
  static QStringList Taken(QStringList lines) {
    for (int i = 0; i < Count; ++i) {
      const QColor color = QColorDialog::customColor(i);
      const QString text = QStringLiteral("%1=%2").arg(
          KeyOf(i),
          QStringLiteral("%1").arg(static_cast<unsigned>(FromQColor(color)), 6, 16, QChar(u'0')).toUpper());
      const qsizetype at = LineOf(lines, i);
      if (at >= 0)
        lines[at] = text;
      else if (color.rgb() != qRgb(255, 255, 255))
        lines << text;
    }
    return lines;
  }

 private:
  static constexpr int Count = 16;
  static QString KeyOf(int index) { return QStringLiteral("Color") + QChar(u'A' + index); }
  static qsizetype LineOf(const QStringList& lines, int index) {
    for (qsizetype i = 0; i < lines.size(); ++i)
      if (lines[i].section(u'=', 0, 0).trimmed().compare(KeyOf(index), Qt::CaseInsensitive) == 0) return i;
    return -1;
  }
  QList<QColor> before_;
};
}  // namespace

bool TVRXFormColorDialog::Execute() {
  const OwnColors others;
  OwnColors::Show(Get(TColorDialog::CustomColors)->Lines());
  const QColor before = ToQColor(Get(Color));
  QColorDialog dialog(before, QApplication::activeWindow());
  dialog.setObjectName(Name());
  if (!Get(Title).isEmpty()) dialog.setWindowTitle(Get(Title));
  if (VRXRunDialog(dialog) != QDialog::Accepted) return false;
  // A colour of the system that nobody has changed goes on following the system.
  if (dialog.currentColor() != before) Set(Color, FromQColor(dialog.currentColor()));
  auto* lines = Get(TColorDialog::CustomColors);
  lines->SetLines(OwnColors::Taken(lines->Lines()));
  return true;
}

namespace {
using enum TFontDialogOption;

QFont InPoints(const TFont& font) {
  QFont result = ToQFont(font);
  result.setPointSize(std::max(1, std::abs(font.Size())));
  return result;
}

TFontStyles StylesOf(const QFont& font) {
  const std::pair<TFontStyle, bool> rows[] = {{TFontStyle::fsBold, font.bold()},
                                              {TFontStyle::fsItalic, font.italic()},
                                              {TFontStyle::fsUnderline, font.underline()},
                                              {TFontStyle::fsStrikeOut, font.strikeOut()}};
  TFontStyles styles;
  for (const auto& [style, has] : rows)
    if (has) styles.Include(style);
  return styles;
}

void Prepare(QFontDialog& dialog, const TFontDialog& component) {
  const TFontDialogOptions options = component.Get(TFontDialog::Options);
  dialog.setObjectName(component.Name());
  if (const QString title = component.Get(TFontDialog::Title); !title.isEmpty()) dialog.setWindowTitle(title);
  // The platform's own has none of what follows.
  dialog.setOption(QFontDialog::DontUseNativeDialog);
  dialog.setOption(QFontDialog::MonospacedFonts, options.Contains(fdFixedPitchOnly));
  dialog.setOption(QFontDialog::ScalableFonts,
                   options.Contains(fdTrueTypeOnly) || options.Contains(fdScalableOnly));
  if (!options.Contains(fdEffects))
    for (QCheckBox* effect : dialog.findChildren<QCheckBox*>()) effect->parentWidget()->hide();
  const QString sample = component.Get(TFontDialog::PreviewText);
  auto* shown = dialog.findChild<QLineEdit*>(QStringLiteral("qt_fontDialog_sampleEdit"));
  if (shown && !sample.isEmpty()) shown->setText(sample);
}
}  // namespace

bool TVRXFormFontDialog::Execute() {
  QFontDialog dialog(InPoints(*Font()), QApplication::activeWindow());
  Prepare(dialog, *this);
  const QFont before = dialog.currentFont();
  const bool limited = Get(Options).Contains(fdLimitSize) && Get(MaxFontSize) >= Get(MinFontSize);
  QFont font;
  for (;;) {
    if (VRXRunDialog(dialog) != QDialog::Accepted) return false;
    font = dialog.currentFont();
    const int size = font.pointSize();
    if (!limited || (size >= Get(MinFontSize) && size <= Get(MaxFontSize))) break;
    Prompts().Warn(&dialog, dialog.windowTitle(),
                   QObject::tr("The size is %1 points. Choose one from %2 to %3 points.")
                       .arg(size)
                       .arg(Get(MinFontSize))
                       .arg(Get(MaxFontSize)));
  }
  const TUpdateLock lock(*Font());
  if (font.family() != before.family()) Font()->SetName(font.family());
  if (font.pointSize() != before.pointSize()) Font()->SetSize(font.pointSize());
  const std::uint64_t changed = StylesOf(font).Bits() ^ StylesOf(before).Bits();
  Font()->SetStyle(TFontStyles::FromBits(Font()->Style().Bits() ^ changed));
  return true;
}
