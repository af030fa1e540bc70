// The one way into the code of a package. A package is foreign code and may throw anything; what it throws
// comes out as an EPackageError that names package and call, but for values that a SetValue refuses.
#pragma once
#include <functional>

#include "rtl/Exceptions.h"

// Whose code is called, and by which call ("Register of Second", "TGaugeEditor.ExecuteVerb"). No package: the
// host's own.
struct TPackageCall {
  QString Package;
  QString Call;
};

class EPackageError : public Exception {
 public:
  EPackageError(const TPackageCall& where, const QString& reason);
  const TPackageCall& Where() const { return where_; }
  // What the package said.
  const QString& Reason() const { return reason_; }

 private:
  TPackageCall where_;
  QString reason_;
};

// The text of the exception that is being handled, of whatever kind.
QString CurrentExceptionMessage();
// Inside of a catch: throws EPackageError instead. The host's own Exceptions go on as they are.
[[noreturn]] void RethrowFrom(const TPackageCall& where);

// `where` gives the TPackageCall; it is asked only when something was thrown.
template <class Where, class F>
decltype(auto) PackageCall(const Where& where, F&& f) {
  try {
    return f();
  } catch (const EPackageError&) {
    throw;  // a call inside of this one knows better
  } catch (...) {
    RethrowFrom(where());
  }
}

// Told of what a package threw where the host goes on without it, each message once. Without a listener it is
// a warning.
void SetPackageProblemListener(std::function<void(const QString& message)> listener);
void TellPackageProblem(const QString& message);

// For questions that something can be answered to without the package.
template <class Where, class T, class F>
T AskPackage(const Where& where, T otherwise, F&& f) {
  try {
    return PackageCall(where, std::forward<F>(f));
  } catch (const EPackageError& e) {
    TellPackageProblem(e.Message());
  }
  return otherwise;
}
