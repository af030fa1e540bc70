#include "library/components/BaseDialog.h"

#include <QScopedValueRollback>

const TClass& TVRXBaseDialog::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXBaseDialog>("TVRXBaseDialog", TComponent::StaticClass())
          .Published(Caption)
          .Doc(QStringLiteral("What stands in the title bar; the usual text when it is empty."))
          .Passive("HelpContext", 0)
          .Published(ImageIndex)
          .Doc(QStringLiteral("The picture beside the content."))
          .Published(ImageList)
          .Doc(QStringLiteral("The list that the picture is in."))
          .Published(Prompt)
          .Doc(QStringLiteral("A line above the content."))
          .Event("OnClose")
          .Event("OnShow"));
  return cls;
}

bool TVRXBaseDialog::Run(bool keep) {
  const QScopedValueRollback<bool> previewing(preview_, !keep);
  const auto* list = Get(ImageList);
  return VRXShowContent({Name(), Get(Caption), Get(Prompt), list ? list->Image(Get(ImageIndex)) : QImage()},
                        MakeContent(), keep);
}
