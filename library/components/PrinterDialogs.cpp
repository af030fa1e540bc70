#include "library/components/PrinterDialogs.h"

#include <QtPrintSupport/QPrintDialog>
#include <QtPrintSupport/QPrinter>
#include <QtPrintSupport/QPrinterInfo>
#include <QtWidgets>

#include "library/components/DialogFrame.h"
#include "library/components/PaperPage.h"
#include "library/components/PrinterSetup.h"
#include "vcl/Prompts.h"

const TClass& TVRXFormPageSetupDialog::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXFormPageSetupDialog>("TVRXFormPageSetupDialog", TPageSetupDialog::StaticClass())
          .ClassDoc(QStringLiteral("Asks for paper and margins."),
                    "pen line 1.5 brush fill box 3 4 18 16 2 path 3 8 21 8 box 8 10 8 8.5 0 pen accent 1.5 "
                    "dots brush none box 9.8 11.8 4.4 4.9 0"));
  return cls;
}

const TClass& TVRXFormPrinterSetupDialog::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXFormPrinterSetupDialog>("TVRXFormPrinterSetupDialog",
                                                TPrinterSetupDialog::StaticClass())
          .ClassDoc(QStringLiteral("Asks for a printer."),
                    "pen line 1.5 brush fill box 3 4 18 16 2 path 3 8 21 8 box 6 12.5 12 5 1 path 8.5 12.5 "
                    "8.5 10 15.5 10 15.5 12.5 pen accent 2 path 15.5 15 15.7 15"));
  return cls;
}

const TClass& TVRXFormPrintCommDialog::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXFormPrintCommDialog>("TVRXFormPrintCommDialog", TPrintDialog::StaticClass())
          .ClassDoc(
              QStringLiteral("Asks what to print, where and how often."),
              "pen line 1.5 brush fill box 3 3 18 18 2 path 3 7 21 7 box 5.8 11.5 12.4 5 1 path 8.5 11.5 "
              "8.5 9.2 15.5 9.2 15.5 11.5 pen accent 1.6 box 8.6 14.2 6.8 4.8 0"));
  return cls;
}

namespace {
using Setup = TPageSetupDialog;

// As the country measures.
bool UsesInches() { return QLocale().measurementSystem() != QLocale::MetricSystem; }
bool InInches(const TPageSetupDialog& dialog) {
  const TPageMeasureUnits units = dialog.Get(Setup::Units);
  return units == TPageMeasureUnits::pmDefault ? UsesInches() : units == TPageMeasureUnits::pmInches;
}

// The page as the component has it; what it does not say is the program's.
QPageLayout LayoutOf(const TPageSetupDialog& dialog, bool inches, double unit) {
  QPageLayout layout = VRXPrinterSetup().Layout;
  layout.setMode(QPageLayout::FullPageMode);
  // Converted by the toolkit, thousandths of an inch get lost.
  const bool converted = inches && layout.units() == QPageLayout::Millimeter;
  const QMarginsF exact = converted ? layout.margins() / 25.4 : layout.margins();
  layout.setUnits(inches ? QPageLayout::Inch : QPageLayout::Millimeter);
  if (converted) layout.setMargins(exact);
  const QSizeF size = QSizeF(dialog.Get(Setup::PageWidth), dialog.Get(Setup::PageHeight)) / unit;
  if (!size.isEmpty()) {
    const bool across = size.width() > size.height();
    layout.setOrientation(across ? QPageLayout::Landscape : QPageLayout::Portrait);
    layout.setPageSize(
        QPageSize(across ? size.transposed() : size, inches ? QPageSize::Inch : QPageSize::Millimeter));
  }
  if (dialog.Get(Setup::Options).Contains(TPageSetupDialogOption::psoMargins))
    layout.setMargins(QMarginsF(dialog.Get(Setup::MarginLeft), dialog.Get(Setup::MarginTop),
                                dialog.Get(Setup::MarginRight), dialog.Get(Setup::MarginBottom)) /
                      unit);
  return layout;
}

void TakeOver(TPageSetupDialog& dialog, const QPageLayout& layout, double unit) {
  const auto whole = [unit](double value) { return static_cast<int>(std::lround(value * unit)); };
  const QRectF paper = layout.fullRect();
  const QMarginsF margins = layout.margins();
  dialog.Set(Setup::PageWidth, whole(paper.width()));
  dialog.Set(Setup::PageHeight, whole(paper.height()));
  dialog.Set(Setup::MarginLeft, whole(margins.left()));
  dialog.Set(Setup::MarginTop, whole(margins.top()));
  dialog.Set(Setup::MarginRight, whole(margins.right()));
  dialog.Set(Setup::MarginBottom, whole(margins.bottom()));
  VRXPrinterSetup().Layout = layout;
}
}  // namespace

bool TVRXFormPageSetupDialog::Execute() {
  using enum TPageSetupDialogOption;
  const TPageSetupDialogOptions options = Get(Options);
  const bool inches = InInches(*this);
  const double unit = inches ? 1000 : 100;
  PaperPage::Offer offer{.inches = inches,
                         .paper = !options.Contains(psoDisablePaper),
                         .orientation = !options.Contains(psoDisableOrientation),
                         .margins = !options.Contains(psoDisableMargins)};
  if (options.Contains(psoMinMargins))
    offer.least =
        QMarginsF(Get(MinMarginLeft), Get(MinMarginTop), Get(MinMarginRight), Get(MinMarginBottom)) / unit;
  auto* page = new PaperPage(LayoutOf(*this, inches, unit), offer);
  return VRXShowContent({Name(), Get(Title)},
                        {page, [=, this] { TakeOver(*this, page->Layout(), unit); }, true,
                         QObject::tr("Page Setup"), [page] { return page->WhyNot(); }});
}

namespace {
// The printers of the system, what is known of the one that is picked, and its paper.
struct PrinterPage : QWidget {
  PrinterPage() : paper(new PaperPage(VRXPrinterSetup().Layout, {.inches = UsesInches()})) {
    printers->setObjectName(QStringLiteral("printers"));
    file->setObjectName(QStringLiteral("file"));
    place->setObjectName(QStringLiteral("place"));
    place->setTextFormat(Qt::PlainText);
    const QString preferred = QPrinterInfo::defaultPrinterName();
    const QString wanted =
        VRXPrinterSetup().PrinterName.isEmpty() ? preferred : VRXPrinterSetup().PrinterName;
    for (const QString& name : QPrinterInfo::availablePrinterNames()) {
      printers->addItem(name == preferred ? tr("%1 (default)").arg(name) : name, name);
      if (name == wanted) printers->setCurrentIndex(printers->count() - 1);
    }
    printers->addItem(tr("PDF file"));
    if (!VRXPrinterSetup().OutputFile.isEmpty()) printers->setCurrentIndex(printers->count() - 1);
    file->setText(VRXPrinterSetup().OutputFile);
    auto* browse = new QPushButton(tr("Bro&wse..."));
    browse->setObjectName(QStringLiteral("browse"));
    browse->setAutoDefault(false);
    auto* fileRow = new QWidget;
    auto* row = new QHBoxLayout(fileRow);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(file, 1);
    row->addWidget(browse);
    auto* where = new QStackedWidget;
    where->addWidget(place);
    where->addWidget(fileRow);
    where->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto* form = new QFormLayout;
    form->addRow(tr("Pr&inter:"), printers);
    form->addRow(tr("Where:"), where);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(form);
    column->addWidget(paper, 1);
    setFocusProxy(printers);
    const auto show = [this, where] {
      where->setCurrentIndex(ToFile() ? 1 : 0);
      const QPrinterInfo info = QPrinterInfo::printerInfo(printers->currentData().toString());
      place->setText(info.location().isEmpty() ? info.description() : info.location());
    };
    show();
    connect(printers, &QComboBox::currentIndexChanged, this, show);
    connect(browse, &QPushButton::clicked, this, [this] {
      const QString name = Prompts().SaveFileName(window(), tr("PDF file"), file->text(), tr("PDF (*.pdf)"));
      if (!name.isEmpty()) file->setText(name);
    });
  }
  bool ToFile() const { return printers->currentData().isNull(); }
  QString WhyNot() const {
    if (!ToFile()) return paper->WhyNot();
    if (file->text().isEmpty())
      return tr("No file is given. Type the name of the PDF file, or press Browse.");
    if (!QFileInfo(file->text()).dir().exists())
      return tr("There is no folder \"%1\" for the PDF file. Choose one that exists.")
          .arg(QFileInfo(file->text()).path());
    return paper->WhyNot();
  }
  QComboBox* printers = new QComboBox;
  QLabel* place = new QLabel;
  QLineEdit* file = new QLineEdit;
  PaperPage* paper;
};
}  // namespace

bool TVRXFormPrinterSetupDialog::Execute() {
  auto* page = new PrinterPage;
  const auto take = [page] {
    VRXPrinterSetup() = {.PrinterName = page->printers->currentData().toString(),
                         .OutputFile = page->ToFile() ? page->file->text() : QString(),
                         .Layout = page->paper->Layout()};
  };
  return VRXShowContent({Name(), {}},
                        {page, take, true, QObject::tr("Printer Setup"), [page] { return page->WhyNot(); }});
}

namespace {
struct RangeRow {
  TPrintRange range;
  QAbstractPrintDialog::PrintRange shown;
};
constexpr RangeRow Ranges[] = {{TPrintRange::prAllPages, QAbstractPrintDialog::AllPages},
                               {TPrintRange::prSelection, QAbstractPrintDialog::Selection},
                               {TPrintRange::prPageNums, QAbstractPrintDialog::PageRange}};
}  // namespace

bool TVRXFormPrintCommDialog::Execute() {
  using enum TPrintDialogOption;
  const TPrintDialogOptions options = Get(Options);
  QPrinter printer(QPrinter::HighResolution);
  const bool found = VRXPrinterSetup().Apply(printer);
  if (!found && options.Contains(poWarning))
    Prompts().Warn(QApplication::activeWindow(), QObject::tr("Print"),
                   QObject::tr("There is no printer. Install one, or print to a file."));
  printer.setCopyCount(std::max(1, Get(Copies)));
  printer.setCollateCopies(Get(Collate));
  QPrintDialog dialog(&printer, QApplication::activeWindow());
  dialog.setObjectName(Name());
  if (!Get(Title).isEmpty()) dialog.setWindowTitle(Get(Title));
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, options.Contains(poPageNums));
  dialog.setOption(QAbstractPrintDialog::PrintSelection, options.Contains(poSelection));
  // Without a printer there is nothing else to choose.
  dialog.setOption(QAbstractPrintDialog::PrintToFile,
                   !found || (options.Contains(poPrintToFile) && !options.Contains(poDisablePrintToFile)));
  if (Get(MaxPage) > 0) dialog.setMinMax(std::max(1, Get(MinPage)), std::max(Get(MinPage), Get(MaxPage)));
  if (Get(FromPage) > 0) dialog.setFromTo(Get(FromPage), std::max(Get(FromPage), Get(ToPage)));
  for (const RangeRow& row : Ranges)
    if (row.range == Get(PrintRange)) dialog.setPrintRange(row.shown);
  if (VRXRunDialog(dialog) != QDialog::Accepted) return false;
  Set(Copies, printer.copyCount());
  Set(Collate, printer.collateCopies());
  for (const RangeRow& row : Ranges)
    if (row.shown == dialog.printRange()) Set(PrintRange, row.range);
  if (dialog.printRange() == QAbstractPrintDialog::PageRange) {
    Set(FromPage, dialog.fromPage());
    Set(ToPage, dialog.toPage());
  }
  Set(PrintToFile, !printer.outputFileName().isEmpty());
  VRXPrinterSetup().PrinterName = printer.outputFileName().isEmpty() ? printer.printerName() : QString();
  VRXPrinterSetup().OutputFile = printer.outputFileName();
  return true;
}

namespace {
// The program's choice is not the designer's to make.
template <class T>
void PreviewOnPrinters(const T& dialog) {
  const TVRXPrinterSetup setup = VRXPrinterSetup();
  const auto back = qScopeGuard([&] { VRXPrinterSetup() = setup; });
  PreviewCopyOf(dialog);
}
}  // namespace

void TVRXFormPageSetupDialog::Preview() { PreviewOnPrinters(*this); }
void TVRXFormPrinterSetupDialog::Preview() { PreviewOnPrinters(*this); }
void TVRXFormPrintCommDialog::Preview() { PreviewOnPrinters(*this); }
