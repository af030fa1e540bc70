// What a dialog consists of, for documentation, translation and tests. The dialog need not be on the screen.
#pragma once
#include <QStringList>
#include <optional>
#include <vector>

class QWidget;

struct ControlDescription {
  QString name, kind;
  QString text, label, hint;  // as they stand, with accelerators and line breaks
  QStringList items;
  std::optional<int> minimum, maximum;
  std::optional<int> tab;  // its place in the tab order
  bool enabled = true, visible = true;
};
// Everything that has a name: what the focus goes through in that order, then the rest.
std::vector<ControlDescription> DescribeControls(QWidget& dialog);
