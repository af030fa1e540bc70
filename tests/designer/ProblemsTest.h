// The list of problems of an open form, as it stands in the window; it looks again at once.
#pragma once
#include "designer/ProblemsList.h"
#include "tests/designer/InspectingTest.h"

namespace designer {

constexpr int Patience = 60'000;  // milliseconds

class ListingProblems : public Inspecting {
 protected:
  using Inspecting::Inspecting;
  void SetUp() override {
    Inspecting::SetUp();
    for (QTimer* timer : List().findChildren<QTimer*>()) timer->setInterval(0);
  }
  ProblemsList& List() { return *window_->findChild<ProblemsList*>(); }
  QStringList Texts() {
    QStringList texts;
    for (int i = 0; i < List().count(); ++i) texts << List().item(i)->text();
    return texts;
  }
};

}  // namespace designer
