// Dialogs that can be looked at while a form is designed.
#pragma once

class IPreviewed {
 public:
  virtual ~IPreviewed() = default;
  // Shows the dialog as it would be; nothing that is entered or chosen is kept.
  virtual void Preview() = 0;
};

// For dialogs that keep what was chosen in themselves.
template <class T>
void PreviewCopyOf(const T& dialog) {
  T copy(nullptr);
  copy.Assign(&dialog);
  copy.Execute();
}
