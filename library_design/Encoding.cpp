#include "library_design/Encoding.h"

#include <QProgressDialog>

#include "dclstd/EditValue.h"

bool encoding::Shown(const std::function<bool(const Report&)>& encode) {
  QProgressDialog progress(QObject::tr("The pictures are being compressed..."), QObject::tr("Cancel"), 0, 100,
                           ApplicationOwner());
  progress.setWindowModality(Qt::ApplicationModal);
  progress.setMinimumDuration(0);
  return encode([&](int percent) {
    progress.setValue(percent);
    return !progress.wasCanceled();
  });
}
