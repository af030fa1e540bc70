#include "vcl/Action.h"

#include "rtl/Class.h"

const TClass& TBasicAction::StaticClass() {
  static const TClass cls(DescribeClass<TBasicAction>("TBasicAction", TNestedComponent::StaticClass()));
  return cls;
}
const TClass& TContainedAction::StaticClass() {
  static const TClass cls(DescribeClass<TContainedAction>("TContainedAction", TBasicAction::StaticClass())
                              .Published(Category)
                              .Doc(QStringLiteral("Actions of one category stand together in editors.")));
  return cls;
}
const TClass& TCustomAction::StaticClass() {
  static const TClass cls(DescribeClass<TCustomAction>("TCustomAction", TContainedAction::StaticClass()));
  return cls;
}
const TClass& TAction::StaticClass() {
  static const TClass cls(DescribeClass<TAction>("TAction", TCustomAction::StaticClass())
                              .Passive("AutoCheck", false)
                              .PublishedAll(Caption, Checked)
                              .Passive("DisableIfNoHandler", true)
                              .Published(Enabled)
                              .Passive("GroupIndex", 0)
                              .Passive("HelpContext", 0)
                              .Passive<QString>("HelpKeyword")
                              .Passive("HelpType", THelpType::htKeyword)
                              .PublishedAll(Hint, ImageIndex)
                              .Passive<QString>("ImageName")
                              .Passive<TStrings*>("SecondaryShortCuts")
                              .PublishedAll(ShortCut, Visible)
                              .Event("OnExecute")
                              .Event("OnHint", "THintEvent")
                              .Event("OnUpdate")
                              .ClassDoc(QStringLiteral("A command: its text, picture and keys wherever it is "
                                                       "offered."),
                                        "pen line 1.5 brush fill shape 13.5 3.5 5.5 13.5 11 13.5 9.5 20.5 "
                                        "18.5 9.5 12.5 9.5 13.5 3.5 pen accent 2 path 3 7.5 7 7.5"));
  return cls;
}
const TClass& TActionList::StaticClass() {
  static const TClass cls(
      DescribeClass<TActionList>("TActionList", TNestedComponent::StaticClass())
          .Published(Images)
          .Passive("State", TActionListState::asNormal)
          .Event("OnChange")
          .Event("OnExecute", "TActionEvent")
          .Event("OnStateChange")
          .Event("OnUpdate", "TActionEvent")
          .ClassDoc(QStringLiteral("Holds the commands of a form."),
                    "pen line 1.5 brush fill box 4.5 3.5 15 17 0 pen accent 2 path 8 8 9.5 9.5 12 6.5 path 8 "
                    "15 9.5 16.5 12 13.5 pen line 1.5 path 14 8.5 17 8.5 path 14 15.5 17 15.5"));
  return cls;
}
