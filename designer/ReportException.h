#pragma once
#include <exception>

class QWidget;

// Shows what a handler threw; the process goes on.
void ReportException(QWidget* parent, const std::exception& error);
