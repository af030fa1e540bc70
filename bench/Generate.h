// Large forms to measure with: the same design as form text and as a .ui file, with 18 values for every
// component and every widget. The seed is fixed, so that every run measures the same form.
#pragma once
#include <QByteArray>
#include <vector>

constexpr int ValuesPerComponent = 18;

enum class Kind { Panel, Label, Button, LED };

struct Item {
  Kind kind = Kind::Label;
  int number = 0;  // makes the name
  int left = 0, top = 0, width = 0, height = 0;
  unsigned variant = 0;  // random bits that choose the values
  std::vector<Item> children{};
  bool refers = false;  // to the first button
};

// `count` components in all; panels hold eight others.
std::vector<Item> MakeDesign(int count);

// A button and `count` labels, which refer to it or to nothing.
std::vector<Item> MakeLabels(int count, bool referring);

// The design in the text form.
QByteArray FormText(const std::vector<Item>& design);
// The design as QFrame, QLabel, QPushButton and QLCDNumber.
QByteArray UiText(const std::vector<Item>& design);
