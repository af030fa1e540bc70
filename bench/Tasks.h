// The things that are measured. Each runs in a process of its own and reports its results.
#pragma once
#include <QString>

// Time and peak memory of opening a form file and of a .ui file; the warm-up file is opened first.
void MeasureFormLoad(const QString& file, const QString& warmUp);
void MeasureUiLoad(const QString& file, const QString& warmUp);
// Time of writing the opened form.
void MeasureFormSave(const QString& file, const QString& warmUp);
// Time of changing one property of one component, and of taking it back.
void MeasureEdit(const QString& file, const QString& warmUp);
// Time of a command that changes nothing although its editor says that it did.
void MeasureModified(const QString& file, const QString& warmUp);
