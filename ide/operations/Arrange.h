// Places, sizes and order of the selected components. The first selected one is the measure.
#pragma once
#include "ide/operations/Places.h"

enum class TEdge : std::uint8_t { Left, Center, Right, Top, Middle, Bottom };
// On the form as it is seen, whatever they stand in.
void AlignEdges(FormSession& session, const QString& text, TEdge edge);
void MakeSameSize(FormSession& session, const QString& text, bool width, bool height);
// The first and the last keep their place; all gaps between become the same, as far as whole pixels allow.
void SpaceEqually(FormSession& session, const QString& text, Qt::Orientation direction);
void AlignToGrid(FormSession& session, const QString& text, int grid);
void ChangeOrder(FormSession& session, const QString& text, bool toFront);
