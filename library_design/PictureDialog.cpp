#include "library_design/PictureDialog.h"

#include <QFileInfo>
#include <QObject>

#include "vcl/PictureFile.h"
#include "vcl/Prompts.h"

bool VRXCPGetPicture(QWidget* parent, TBitmap& picture) {
  static QString folder;  // where the last one was found
  const QString file = Prompts().OpenFileName(parent, QObject::tr("Open picture"), folder, PictureFilter());
  if (file.isEmpty()) return false;
  folder = QFileInfo(file).path();
  try {
    const TBitmap loaded = LoadPicture(file);
    picture.Assign(&loaded);
  } catch (const EInvalidPicture& e) {
    Prompts().Warn(parent, QObject::tr("Open picture"), e.Message());
    return false;
  }
  return true;
}
