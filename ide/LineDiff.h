// Two texts side by side, line by line.
#pragma once
#include <QByteArray>
#include <QStringList>
#include <vector>

struct DiffRow {
  enum class Kind : std::uint8_t { Same, Changed, Removed, Added, Gap };
  Kind kind;
  int left, right;  // line numbers from 0; -1 where that side has none
  int count = 1;    // lines that a gap stands for; `left` and `right` are its first
  bool operator==(const DiffRow&) const = default;
};

// As few changes as possible; texts that have too little in common are one block of changes. A changed line
// stands beside the one that took its place.
std::vector<DiffRow> CompareLines(const QStringList& left, const QStringList& right);
// Leaves `context` unchanged lines around every change; the others become gaps.
std::vector<DiffRow> FoldSameLines(const std::vector<DiffRow>& rows, int context);

// The lines of a form file for a person: of a binary form, those of its text form.
QStringList LinesToRead(const QByteArray& bytes, const QString& fileName);
