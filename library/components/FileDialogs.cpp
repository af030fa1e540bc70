#include "library/components/FileDialogs.h"

#include <QtWidgets>

#include "library/components/DialogFrame.h"
#include "vcl/Prompts.h"

const TClass& TVRXFormOpenDialog::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXFormOpenDialog>("TVRXFormOpenDialog", TOpenDialog::StaticClass())
          .ClassDoc(
              QStringLiteral("Asks for a file to open; its filters are edited in a grid."),
              "pen line 1.5 brush fill box 3 4 18 16 2 path 3 8 21 8 pen accent 1.8 brush none path 6.5 "
              "17.5 6.5 11 10 11 11.5 12.5 17.5 12.5 17.5 17.5 6.5 17.5"));
  return cls;
}

const TClass& TVRXFormSaveDialog::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXFormSaveDialog>("TVRXFormSaveDialog", TSaveDialog::StaticClass())
          .ClassDoc(
              QStringLiteral("Asks for the name of a file to save; its filters are edited in a grid."),
              "pen line 1.5 brush fill box 3 4 18 16 2 path 3 8 21 8 pen accent 1.8 brush none path 12 10.5 "
              "12 16 path 9 13.5 12 16.5 15 13.5 path 7 18.5 17 18.5"));
  return cls;
}

QStringList VRXNameFilters(const QString& filter) {
  if (filter.isEmpty()) return {};
  const QStringList parts = filter.split(u'|');
  QStringList filters;
  for (qsizetype i = 0; i < parts.size(); i += 2) {
    // A name whose pattern is left out shows every file.
    QString pattern = parts.value(i + 1).simplified().replace(u';', u' ').simplified();
    if (pattern.isEmpty()) pattern = QStringLiteral("*");
    // Many names end with the pattern already.
    const QString shown = QStringLiteral("(%1)").arg(pattern);
    filters << (parts[i].endsWith(shown) ? parts[i] : parts[i] + u' ' + shown);
  }
  return filters;
}

namespace {
using enum TOpenOption;

void Prepare(QFileDialog& dialog, const TOpenDialog& component, QFileDialog::AcceptMode mode) {
  const TOpenOptions options = component.Get(TOpenDialog::Options);
  const bool opens = mode == QFileDialog::AcceptOpen;
  dialog.setObjectName(component.Name());
  if (const QString title = component.Get(TOpenDialog::Title); !title.isEmpty()) dialog.setWindowTitle(title);
  dialog.setAcceptMode(mode);
  dialog.setFileMode(opens && options.Contains(ofAllowMultiSelect) ? QFileDialog::ExistingFiles
                     : opens && options.Contains(ofFileMustExist)  ? QFileDialog::ExistingFile
                                                                   : QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite, !options.Contains(ofOverwritePrompt));
  dialog.setOption(QFileDialog::DontResolveSymlinks, options.Contains(ofNoDereferenceLinks));
  if (options.Contains(ofForceShowHidden)) dialog.setFilter(dialog.filter() | QDir::Hidden);
  if (options.Contains(ofViewDetail)) dialog.setViewMode(QFileDialog::Detail);
  dialog.setDefaultSuffix(component.Get(TOpenDialog::DefaultExt));
  const QStringList filters = VRXNameFilters(component.Get(TOpenDialog::Filter));
  if (!filters.isEmpty()) dialog.setNameFilters(filters);
  const int index = component.Get(TOpenDialog::FilterIndex) - 1;
  if (index >= 0 && index < filters.size()) dialog.selectNameFilter(filters[index]);
  const QString folder = component.Get(TOpenDialog::InitialDir), name = component.Get(TOpenDialog::FileName);
  dialog.setDirectory(folder.isEmpty() ? InPromptFolder({}) : folder);
  if (!name.isEmpty()) dialog.selectFile(name);
}

// Whether the name may be taken; else the person has been told why.
bool MayTake(QFileDialog& dialog, const QString& name, TOpenOptions options) {
  if (options.Contains(ofNoValidate)) return true;
  const QFileInfo info(name);
  if (options.Contains(ofPathMustExist) && !info.dir().exists()) {
    Prompts().Warn(&dialog, dialog.windowTitle(),
                   QObject::tr("There is no folder \"%1\". Choose one that exists.").arg(info.path()));
    return false;
  }
  if (!options.Contains(ofCreatePrompt) || info.exists()) return true;
  return Prompts().Confirm(&dialog, dialog.windowTitle(),
                           QObject::tr("There is no file \"%1\". Create it?").arg(name));
}

// The names that were chosen; none when it was cancelled.
QStringList Ask(TOpenDialog& component, QFileDialog::AcceptMode mode) {
  QFileDialog dialog(QApplication::activeWindow());
  Prepare(dialog, component, mode);
  const TOpenOptions options = component.Get(TOpenDialog::Options);
  QStringList names;
  do {
    if (VRXRunDialog(dialog) != QDialog::Accepted) return {};
    names = dialog.selectedFiles();
  } while (!names.isEmpty() && !MayTake(dialog, names.first(), options));
  if (names.isEmpty()) return {};
  component.Set(TOpenDialog::FileName, names.first());
  const qsizetype filter =
      VRXNameFilters(component.Get(TOpenDialog::Filter)).indexOf(dialog.selectedNameFilter());
  if (filter >= 0) component.Set(TOpenDialog::FilterIndex, static_cast<int>(filter) + 1);
  const QString usual = component.Get(TOpenDialog::DefaultExt);
  const bool different = !usual.isEmpty() && QFileInfo(names.first()).suffix() != usual;
  const std::uint64_t mark = TOpenOptions{ofExtensionDifferent}.Bits();
  component.Set(TOpenDialog::Options,
                TOpenOptions::FromBits((options.Bits() & ~mark) | (different ? mark : 0)));
  return names;
}
}  // namespace

bool TVRXFormOpenDialog::Execute() {
  const QStringList names = Ask(*this, QFileDialog::AcceptOpen);
  if (names.isEmpty()) return false;
  files_ = names;
  return true;
}

bool TVRXFormSaveDialog::Execute() { return !Ask(*this, QFileDialog::AcceptSave).isEmpty(); }
