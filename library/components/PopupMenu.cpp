#include "library/components/PopupMenu.h"

#include "rtl/Class.h"

const TClass& TVRXPopupMenu::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXPopupMenu>("TVRXPopupMenu", TPopupMenu::StaticClass())
          .Published(ImageList)
          .Doc(QStringLiteral("The pictures of the items, where Images has none."))
          .ClassDoc(QStringLiteral("A context menu with pictures of an image list."),
                    "pen line 1.5 brush fill box 4 3 16 18 2 path 9.5 3 9.5 21 pen accent 1.8 path 12 8 17 8 "
                    "pen line 1.5 path 12 12 17 12 path 12 16 15.5 16 pen none brush accent oval 5.6 6.6 2.4 "
                    "2.4 brush line oval 5.6 10.8 2.4 2.4"));
  return cls;
}
