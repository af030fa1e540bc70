// Asks for paper: its size, how it lies, what stays free at its edges.
#pragma once
#include <QPageLayout>
#include <QWidget>

class QComboBox;
class QDoubleSpinBox;
class QRadioButton;

class PaperPage : public QWidget {
 public:
  struct Offer {
    bool inches = false;
    bool paper = true, orientation = true, margins = true;  // what can be changed
    QMarginsF least{};                                      // of the margins, in the unit
  };
  PaperPage(const QPageLayout& layout, const Offer& offer);

  // What is chosen, in the unit.
  QPageLayout Layout() const;
  // Why that will not do; empty when it will.
  QString WhyNot() const;

 private:
  void AddSizes(const QPageSize& now);
  QPageLayout::Unit unit_;
  QMarginsF least_;
  QComboBox* sizes_;
  QRadioButton *portrait_, *landscape_;
  QDoubleSpinBox* margins_[4];  // left, top, right, bottom
};
