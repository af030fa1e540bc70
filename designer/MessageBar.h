// A line above the form that tells something and offers what can be done, without standing in the way.
#pragma once
#include <QFrame>
#include <functional>

class QBoxLayout;
class QLabel;

class MessageBar : public QFrame {
  Q_OBJECT
 public:
  struct Choice {
    QString text;
    const char* name;  // of the button
    std::function<void()> run;
  };

  explicit MessageBar(QWidget* parent = nullptr);
  // Replaces what was shown. A choice hides the bar before it runs; the cross on the right only hides it.
  void Tell(const QString& text, const std::vector<Choice>& choices = {});
  QString Text() const;

 signals:
  void Dismissed();

 protected:
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void TakeIcon();

  QLabel* icon_;
  QLabel* text_;
  QBoxLayout* buttons_;
};
