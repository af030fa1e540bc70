// The colours that designed forms are painted with. A form has a scheme of its own, so that the designer's
// theme never changes what is designed: system colours (clBtnFace, clWindowText ...), what the style draws
// for a control and the frame around the form all come from here.
#pragma once
#include <QPalette>

enum class TFormColors { Light, Dark, Designer };  // Designer: as the application itself

// Light until somebody picks another.
TFormColors FormColors();
// Picks the scheme of all forms; whatever shows one is painted again.
void SetFormColors(TFormColors colors);
QPalette FormPalette();

// Another scheme while it lives, in this thread: for pictures. The innermost counts.
class FormColorScope {
 public:
  explicit FormColorScope(TFormColors colors);
  ~FormColorScope();
  FormColorScope(const FormColorScope&) = delete;
  FormColorScope& operator=(const FormColorScope&) = delete;

 private:
  const FormColorScope* outer_;
  TFormColors colors_;
  friend TFormColors FormColors();
};
