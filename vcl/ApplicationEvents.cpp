#include "vcl/ApplicationEvents.h"

#include "vcl/Colors.h"
#include "vcl/Menu.h"

const TClass& TCustomApplicationEvents::StaticClass() {
  static const TClass cls(
      DescribeClass<TCustomApplicationEvents>("TCustomApplicationEvents", TComponent::StaticClass())
          .Event("OnActionExecute", "TActionEvent")
          .Event("OnActionUpdate", "TActionEvent")
          .Event("OnActivate")
          .Event("OnDeactivate")
          .Event("OnException", "TExceptionEvent")
          .Event("OnHelp", "THelpEvent")
          .Event("OnHint")
          .Event("OnIdle", "TIdleEvent")
          .Event("OnMinimize")
          .Event("OnModalBegin")
          .Event("OnModalEnd")
          .Event("OnRestore")
          .Event("OnShowHint", "TShowHintEvent"));
  return cls;
}

const TClass& TApplicationEvents::StaticClass() {
  static const TClass cls(
      DescribeClass<TApplicationEvents>("TApplicationEvents", TCustomApplicationEvents::StaticClass())
          .Event("OnMessage", "TMessageEvent")
          .Event("OnSettingChange", "TSettingChangeEvent")
          .Event("OnShortCut", "TShortCutEvent")
          .ClassDoc(QStringLiteral("Events of the program as a whole."),
                    "pen line 1.5 brush fill box 3 4.5 18 15 2 path 3 8.5 21 8.5 pen accent 2 path 13.5 10 "
                    "10.5 14 13.5 14 10.5 18"));
  return cls;
}

const TClass& TApplicationProperties::StaticClass() {
  static const TClass cls(
      DescribeClass<TApplicationProperties>("TApplicationProperties", TCustomApplicationEvents::StaticClass())
          .Passive("CaptureExceptions", true)
          .Passive("ExceptionDialogType", TApplicationExceptionDlg::aedOkCancelDialog)
          .Passive<QString>("HelpFile")
          .Passive<QString>("Hint")
          .Passive("HintColor", clInfoBk)
          .Passive("HintHidePause", 2500)
          .Passive("HintPause", 500)
          .Passive("HintShortCuts", true)
          .Passive("HintShortPause", 0)
          .Passive("ShowHint", true)
          .Passive("ShowMainForm", true)
          .Passive<QString>("Title")
          .Event("OnDropFiles", "TDropFilesEvent")
          .Event("OnEndSession")
          .Event("OnIdleEnd")
          .Event("OnQueryEndSession", "TQueryEndSessionEvent")
          .Event("OnUserInput", "TOnUserInputEvent")
          .ClassDoc(
              QStringLiteral("Settings and events of the program as a whole."),
              "pen line 1.5 brush fill box 3 4.5 18 15 2 path 3 8.5 21 8.5 pen accent 2.4 path 6.5 12 7 12 "
              "path 6.5 16 7 16 pen line 1.8 path 10.5 12 17.5 12 path 10.5 16 17.5 16"));
  return cls;
}

const TClass& TTrayIcon::StaticClass() {
  static const TClass cls(DescribeClass<TTrayIcon>("TTrayIcon", TComponent::StaticClass())
                              .Passive("Animate", false)
                              .Passive("AnimateInterval", 1000)
                              .Passive("BalloonFlags", TBalloonFlags::bfNone)
                              .Passive<QString>("BalloonHint")
                              .Passive("BalloonTimeout", 10000)
                              .Passive<QString>("BalloonTitle")
                              .Passive<QString>("Hint")
                              .Published(Icon)
                              .Passive("IconIndex", 0)
                              .Passive<TCustomImageList*>("Icons")
                              .Passive<TPopupMenu*>("PopupMenu")
                              .Passive("ShowIcon", true)
                              .Passive("Visible", false)
                              .Event("OnAnimate")
                              .Event("OnBalloonClick")
                              .Event("OnClick")
                              .Event("OnDblClick")
                              .Event("OnMouseDown", "TMouseEvent")
                              .Event("OnMouseMove", "TMouseMoveEvent")
                              .Event("OnMouseUp", "TMouseEvent")
                              .Event("OnPaint")
                              .ClassDoc(QStringLiteral("A picture in the system's notification area."),
                                        "pen line 1.5 brush fill box 2.5 14.5 19 6 0 pen accent 2 path 15.5 "
                                        "17.5 18.5 17.5 pen line 1.5 path 10 11.5 10 4 16 4 16 9 12.5 9 10 "
                                        "11.5"));
  return cls;
}
