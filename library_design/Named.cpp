#include "library_design/Named.h"

#include <QLabel>

QLabel* QuietLine(QWidget* parent, const char* name) {
  auto* line = Named(new QLabel(parent), name, "");
  line->setMinimumHeight(line->fontMetrics().height());
  return line;
}
