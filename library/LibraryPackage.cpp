#include <QObject>
#include <QtPlugin>

#include "rtl/PackageIds.h"

// Lets a package loader see which required packages this library stands for, without running it.
class LibraryPackage : public QObject {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID VRX_LIBRARY_PACKAGE_IID FILE "library.json")
};

#include "LibraryPackage.moc"
