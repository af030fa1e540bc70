// The designer's application object: theme, icons, and a net under every event handler.
#pragma once
#include <QApplication>

class DesignerApplication : public QApplication {
  Q_OBJECT
 public:
  DesignerApplication(int& argc, char** argv);
  // What a handler throws is shown as a message; the designer goes on.
  bool notify(QObject* receiver, QEvent* event) override;
  bool event(QEvent* event) override;
};

// Tool and menu icons for the current theme.
void UseThemeIcons();
