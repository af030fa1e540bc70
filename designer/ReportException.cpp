#include "designer/ReportException.h"

#include <QCoreApplication>

#include "rtl/Exceptions.h"
#include "vcl/Prompts.h"

void ReportException(QWidget* parent, const std::exception& error) {
  Prompts().Warn(parent, QCoreApplication::applicationName(), ExceptionMessage(error));
}
