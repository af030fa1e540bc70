#include "library_design/DateTimeFormatDialog.h"

#include <QtWidgets>

#include "dclstd/EditValue.h"
#include "library/values/DateTimeFormat.h"
#include "library_design/Named.h"
#include "library_design/pVRXCommon.h"
#include "rtl/Exceptions.h"

namespace {
// Every part of it tells which it is: the day is no month, the hour is another one in halves of a day.
QDateTime Sample() { return QDateTime(QDate(2031, 7, 24), QTime(17, 5, 9, 42)); }
constexpr const char* UsualFormats[] = {"hh:nn",
                                        "hh:nn:ss",
                                        "h:nn am/pm",
                                        "dd.mm.yyyy",
                                        "yyyy-mm-dd",
                                        "dd.mm.yy hh:nn",
                                        "yyyy-mm-dd hh:nn:ss",
                                        "ddd, d mmm yyyy",
                                        "dddd, d mmmm yyyy",
                                        "hh:nn:ss.zzz"};
}  // namespace

TVRXDateTimeFormatDlg::TVRXDateTimeFormatDlg(QWidget* owner)
    : EditorDialog(QStringLiteral("DateTimeFormat Editor"), QSize(533, 318), owner) {
  Preview(test, "Shows a moment in this format.");
  test->SetAutoSize(false);
  test->Set(TVRXCustomLabel::Alignment, TAlignment::taCenter);
  test->Set(TVRXCustomLabel::Layout, TTextLayout::tlCenter);
  test->Set(TVRXCustomLabel::WordWrap, true);
  test->Set(TVRXCustomLabel::ShowAccelChar, false);
  test->Font()->SetHeight(-16);
  Row(edformat, "edformat", "", "&Format:",
      "d, dd, ddd, dddd: day; m to mmmm: month; yy, yyyy: year; h, hh: hour; n, nn: minute; s, ss: second;\n"
      "z, zzz: millisecond; am/pm, a/p: half of the day. Text stands in quotes.")
      .Changes(&TVRXDateTimeFormatDlg::formatChange);
  usual = Named(new QListWidget(this), "usual", "Formats that are often used.");
  usual->setAccessibleName(QStringLiteral("Usual formats"));
  for (const char* format : UsualFormats) {
    const QString text = QString::fromLatin1(format);
    auto* item =
        new QListWidgetItem(text + QStringLiteral("     ") + VRXFormatDateTime(text, Sample()), usual);
    item->setData(Qt::UserRole, text);
  }
  usual->setMinimumWidth(usual->sizeHintForColumn(0) + 2 * usual->frameWidth() +
                         style()->pixelMetric(QStyle::PM_ScrollBarExtent));
  Wide({usual});
  Follows(usual);
  problem = QuietLine(this, "problem");
  problem->setWordWrap(true);
  Wide({problem});
  connect(usual, &QListWidget::currentRowChanged, this, [this] { Guarded([this] { usualChange(); }); });
  Buttons({ok, "ok"}, {cancel, "cancel"});
  VRXSetThemeMode(*this, 1);
  Finish();
  formatChange();
}

void TVRXDateTimeFormatDlg::SetFormat(const QString& format) {
  edformat->setText(format);
  formatChange();
}

// A text that is no format says why, and cannot be taken.
void TVRXDateTimeFormatDlg::formatChange() {
  QString wrong, sample;
  try {
    sample = VRXFormatDateTime(Format(), Sample());
  } catch (const EConvertError& error) {
    wrong = error.Message();
  }
  test->SetCaption(sample);
  problem->setText(wrong);
  ok->setEnabled(wrong.isEmpty());
  const QSignalBlocker quiet(usual);
  usual->setCurrentRow(-1);
  for (int i = 0; i < usual->count(); ++i)
    if (usual->item(i)->data(Qt::UserRole) == Format()) usual->setCurrentRow(i);
}

void TVRXDateTimeFormatDlg::usualChange() {
  if (const QListWidgetItem* item = usual->currentItem())
    edformat->setText(item->data(Qt::UserRole).toString());
}

bool TVRXDateTimeFormatDlg::ReturnConfirms() const { return ok->isEnabled(); }

bool VRXCPGetDateTimeFormat(QString& format) {
  TVRXDateTimeFormatDlg dialog(ApplicationOwner());
  dialog.SetFormat(format);
  dialog.SetLabels();
  if (dialog.ShowModal() != mrOk) return false;
  format = dialog.Format();
  return true;
}
