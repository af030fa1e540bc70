// Errors of the whole system. Every one carries a complete sentence for a person: what happened, to what,
// with the values that caused it. They are caught at the edges (designer, command line), never in between.
#pragma once
#include <QByteArray>
#include <QString>
#include <exception>
#include <utility>

class Exception : public std::exception {
 public:
  explicit Exception(QString message) : message_(std::move(message)), utf8_(message_.toUtf8()) {}
  const QString& Message() const { return message_; }
  const char* what() const noexcept override { return utf8_.constData(); }

 private:
  QString message_;
  QByteArray utf8_;
};

// A published property refused a value or was used with the wrong kind of access.
class EPropertyError : public Exception {
 public:
  using Exception::Exception;
};
// A text could not be turned into a value.
class EConvertError : public Exception {
 public:
  using Exception::Exception;
};
// Names, ownership and registration of components.
class EComponentError : public Exception {
 public:
  using Exception::Exception;
};
// A class name that no loaded package registered.
class EClassNotFound : public Exception {
 public:
  using Exception::Exception;
};

// The text of any exception, for the edges that show it.
QString ExceptionMessage(const std::exception& error);
