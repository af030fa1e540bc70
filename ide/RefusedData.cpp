#include "ide/RefusedData.h"

#include "rtl/Exceptions.h"

void RequireAllData(const FormSession& session) {
  for (const forms::Finding& f : session.Findings()) {
    if (!f.refusedData) continue;
    if (f.where.line > 0)
      throw Exception(QStringLiteral("%1:%2:%3: %4")
                          .arg(session.FileName())
                          .arg(f.where.line)
                          .arg(f.where.column)
                          .arg(f.text));
    throw Exception(QStringLiteral("%1: %2 (byte %3)").arg(session.FileName(), f.text).arg(f.where.offset));
  }
}
