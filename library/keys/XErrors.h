// What goes wrong on an X display must not end the program, which is what X does unless somebody takes its
// errors. Those of other displays go where they went before.
#pragma once

struct _XDisplay;

class XErrors {
 public:
  static void Take(_XDisplay* display);
  static void Leave(_XDisplay* display);
  // The code of the first error since Take, or since this was asked before; 0 for none.
  static int First(_XDisplay* display);
  // Whether the server is gone: it answers nothing any more.
  static bool IsLost(_XDisplay* display);
};
