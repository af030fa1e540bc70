// The looks of what stands in for a class that no loaded package has.
#pragma once
#include <memory>
#include <optional>

#include "vcl/Control.h"
#include "vcl/Picture.h"

// What a stand-in looks like. Component: it is not a control.
enum class TStandInLook : std::uint8_t {
  Component,
  Plain,
  Panel,
  Group,
  Label,
  Field,
  Memo,
  Combo,
  Spin,
  Button,
  Check,
  Radio,
  RadioGroup,
  CheckGroup,
  List,
  Grid,
  Image,
  Tabs,
  Page,
  ToolBar,
  StatusBar,
  Slider,
  Progress,
  Splitter,
  Divider,  // a line with its text
  Buttons   // a row of buttons at the right
};

// A column of a list or grid, as the file has it.
struct TStandInColumn {
  QString text;
  int width = 64;
};

// What the file says about the looks of a stand-in.
struct TStandIn {
  TStandInLook look = TStandInLook::Plain;
  QString text;
  QStringList items;
  int index = -1;
  int columns = 1;
  std::vector<TStandInColumn> headers;
  std::shared_ptr<const TPicture> picture;  // decoded when it is painted
  bool checked = false;
  std::optional<TColor> color;
  QString activePage;
  int activeIndex = 0;
  TAlign usualAlign = TAlign::alNone;  // of a class that is aligned where the file says nothing
  bool hasPlace = true;                // false: a page, which has its place from the control around it
};
