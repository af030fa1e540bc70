// Prints what is in an edit, on as many pages as it takes.
#pragma once
#include "library/components/PrintedText.h"
#include "vcl/Edit.h"

class QIODevice;

class TVRXEditControlPrintTask : public TVRXPrintedText {
  VRX_CLASS(TVRXEditControlPrintTask)
 public:
  using TVRXPrintedText::TVRXPrintedText;
  static constexpr TKept<TCustomEdit*> EditControl{"EditControl"};
  static constexpr TKept<bool> UseControlFont{"UseControlFont", true};

  // What will be printed, a password as the edit shows it.
  QStringList Lines() const;
  // Those lines, and how they stand on pages.
  TVRXTextPages Pages() const { return PagesOf(Lines(), PrintFont()); }

  // Returns the number of pages. Throws EComponentError when there is no edit or the device takes nothing.
  int Print(QPagedPaintDevice& device) const;
  int PrintToPdf(QIODevice& device) const;
  // To the printer of the program (PrinterSetup.h).
  int PrintToPrinter() const;

 private:
  const TFont& PrintFont() const;
};
