#include "library/controls/NoteBook.h"

#include "rtl/Class.h"
#include "vcl/DesignMarks.h"
#include "vcl/PropertyGroups.h"

const TClass& TVRXCustomSheet::StaticClass() {
  static const TClass cls(
      WithPagePlace(DescribeClass<TVRXCustomSheet>("TVRXCustomSheet", TWinControl::StaticClass()))
          .Declared(ImageIndex)
          .Doc(QStringLiteral("The picture on the tab, out of the notebook's images."))
          .Declared(TabVisible)
          .Doc(QStringLiteral("Whether the page has a tab."))
          .DeclaredEvent("OnHide")
          .DeclaredEvent("OnShow"));
  return cls;
}

TVRXCustomSheetControl* TVRXCustomSheet::SheetControl() const {
  return static_cast<TVRXCustomSheetControl*>(Book());
}
void TVRXCustomSheet::SetSheetControl(TVRXCustomSheetControl* control) { SetParent(control); }

const TClass& TVRXCustomSheetControl::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXCustomSheetControl>("TVRXCustomSheetControl", TCustomTabControl::StaticClass()));
  return cls;
}

const TClass& TVRXNoteBookPage::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXNoteBookPage>("TVRXNoteBookPage", TVRXCustomSheet::StaticClass())
          .PublishAll("Caption", Look)
          .Published(Filled)
          .Doc(QStringLiteral("Fills the page; else it has its color."))
          .Published(FillPart)
          .Doc(QStringLiteral("What the page is filled with."))
          .PublishAll(Hints, "ImageIndex", ParentLook, "PopupMenu", "TabVisible", FocusEvents, MouseEvents,
                      "OnHide", "OnShow")
          .ClassDoc(
              QStringLiteral("A page of a notebook."),
              "pen line 1.5 brush fill box 4 6.5 14.5 13 1 brush accent shape 18.5 8.5 21.5 8.5 21.5 13 "
              "18.5 13"));
  return cls;
}

void TVRXNoteBookPage::Paint(TCanvas& canvas) {
  TVRXCustomSheet::Paint(canvas);
  if (!Get(Filled)) return;
  QPainterPath area;
  area.addRect(ClientRect());
  FillObject()->Draw(canvas, area, nullptr);
}

const TClass& TVRXNoteBook::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXNoteBook>("TVRXNoteBook", TVRXCustomSheetControl::StaticClass())
          .Published("ActivePage", &TVRXNoteBook::ActivePage, &TVRXNoteBook::SetActivePage)
          .Doc(QStringLiteral("The page in front."))
          .PublishAll(Placing, Lettering, Hints, "HotTrack", "Images", "MultiLine", "PopupMenu", "ShowTabs",
                      "TabHeight", "TabOrder", "TabPosition")
          .Publish("TabStop", true)
          .PublishAll("TabWidth", "Visible", "OnChange", "OnChanging", FocusEvents, MouseEvents)
          .ClassDoc(
              QStringLiteral("Pages behind tabs, as in a notebook."),
              "pen line 1.5 brush fill box 3.5 4.5 15 15 1 brush accent shape 18.5 6 21.5 6 21.5 10 18.5 "
              "10 brush line shape 18.5 11.5 21.5 11.5 21.5 15.5 18.5 15.5 pen line 1.2 path 6.5 8.5 "
              "15.5 8.5 path 6.5 12 15.5 12 path 6.5 15.5 12 15.5"));
  return cls;
}

void TVRXNoteBook::Paint(TCanvas& canvas) {
  TVRXCustomSheetControl::Paint(canvas);
  if (IsDesigning() && SheetCount() == 0)
    PaintDesignHint(canvas, DisplayRect(), *Font(),
                    QObject::tr("No pages yet: New Page in the context menu"));
}
