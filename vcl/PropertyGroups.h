// Properties and events that controls publish together, for PublishAll.
#pragma once

inline constexpr const char* Placing[] = {"Align", "Anchors"};
inline constexpr const char* Look[] = {"Color", "Enabled", "Font"};
// Of what has a colour of its own.
inline constexpr const char* Lettering[] = {"Enabled", "Font", "ParentFont"};
inline constexpr const char* ParentLook[] = {"ParentColor", "ParentFont"};
inline constexpr const char* Hints[] = {"ParentShowHint", "ShowHint"};
inline constexpr const char* MouseEvents[] = {"OnClick",      "OnDblClick",  "OnMouseDown", "OnMouseEnter",
                                              "OnMouseLeave", "OnMouseMove", "OnMouseUp"};
inline constexpr const char* MouseButtonEvents[] = {"OnMouseDown", "OnMouseMove", "OnMouseUp"};
inline constexpr const char* KeyEvents[] = {"OnKeyDown", "OnKeyPress", "OnKeyUp"};
inline constexpr const char* FocusEvents[] = {"OnEnter", "OnExit"};
inline constexpr const char* Placement[] = {"AlignWithMargins", "Constraints", "CustomHint", "Margins",
                                            "ParentCustomHint"};
inline constexpr const char* Direction[] = {"BiDiMode", "ParentBiDiMode"};
inline constexpr const char* Dragging[] = {"DragCursor", "DragKind", "DragMode", "Touch"};
inline constexpr const char* DragEvents[] = {"OnContextPopup", "OnDragDrop", "OnDragOver",  "OnEndDock",
                                             "OnEndDrag",      "OnGesture",  "OnStartDock", "OnStartDrag"};
inline constexpr const char* WheelEvents[] = {"OnMouseActivate", "OnMouseWheel", "OnMouseWheelDown",
                                              "OnMouseWheelUp"};
inline constexpr const char* Help[] = {"HelpContext", "HelpKeyword", "HelpType"};
inline constexpr const char* Styling[] = {"StyleElements", "StyleName"};
// What every control has that is a window.
inline constexpr const char* Windowed[] = {
    "Ctl3D", "DoubleBuffered", "ParentCtl3D", "ParentDoubleBuffered", "PopupMenu", "TabOrder", "Visible"};
inline constexpr const char* Bevels[] = {"BevelEdges", "BevelInner", "BevelKind", "BevelOuter", "BevelWidth"};
inline constexpr const char* Input[] = {"ImeMode", "ImeName"};
inline constexpr const char* Docking[] = {"DockSite",   "UseDockManager", "OnDockDrop",
                                          "OnDockOver", "OnGetSiteInfo",  "OnUnDock"};
inline constexpr const char* ResizeEvents[] = {"OnCanResize", "OnConstrainedResize", "OnResize"};
inline constexpr const char* Container[] = {"Padding", "ParentBackground"};
