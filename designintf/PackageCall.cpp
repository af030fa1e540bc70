#include "designintf/PackageCall.h"

#include <QCoreApplication>
#include <QDebug>
#include <QSet>
#include <new>

#include "rtl/Printable.h"

namespace {
QString Translated(const char* text) { return QCoreApplication::translate("PackageCall", text); }

struct Problems {
  std::function<void(const QString&)> listener;
  QSet<QString> told;
};
Problems& Told() {
  static Problems problems;
  return problems;
}
}  // namespace

EPackageError::EPackageError(const TPackageCall& where, const QString& reason)
    : Exception(Translated("%1 (%2 of package %3)").arg(reason, where.Call, where.Package)),
      where_(where),
      reason_(reason) {}

QString CurrentExceptionMessage() {
  try {
    throw;
  } catch (const std::bad_alloc&) {
    return Translated("There is not enough memory.");
  } catch (const std::exception& e) {
    return ExceptionMessage(e);
  } catch (...) {
    return Translated("An error of an unknown kind occurred.");
  }
}

namespace {
// A value that is refused is the person's matter, in the setter's words; anything else that a setter throws
// is the package's.
void RethrowRefusal() {
  try {
    throw;
  } catch (const EPropertyError& e) {
    throw EPropertyError(e.Message());
  } catch (const EConvertError& e) {
    throw EConvertError(e.Message());
  } catch (...) {
  }
}
}  // namespace

void RethrowFrom(const TPackageCall& where) {
  if (where.Call.endsWith(QStringLiteral(".SetValue"))) RethrowRefusal();
  if (!where.Package.isEmpty()) throw EPackageError(where, CurrentExceptionMessage());
  try {
    throw;
  } catch (const Exception&) {
    throw;
  } catch (...) {
    throw Exception(CurrentExceptionMessage());
  }
}

void SetPackageProblemListener(std::function<void(const QString& message)> listener) {
  Told().listener = std::move(listener);
  Told().told.clear();
}

void TellPackageProblem(const QString& message) {
  if (Told().told.contains(message)) return;
  Told().told.insert(message);
  if (Told().listener)
    Told().listener(message);
  else
    qWarning().noquote() << Printable(message);
}
