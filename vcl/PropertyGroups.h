// Properties and events that controls publish together, for PublishAll.
#pragma once

inline constexpr const char* Placing[] = {"Align", "Anchors"};
inline constexpr const char* Look[] = {"Color", "Enabled", "Font"};
inline constexpr const char* ParentLook[] = {"ParentColor", "ParentFont"};
inline constexpr const char* Hints[] = {"ParentShowHint", "ShowHint"};
inline constexpr const char* MouseEvents[] = {"OnClick",      "OnDblClick",  "OnMouseDown", "OnMouseEnter",
                                              "OnMouseLeave", "OnMouseMove", "OnMouseUp"};
inline constexpr const char* MouseButtonEvents[] = {"OnMouseDown", "OnMouseMove", "OnMouseUp"};
inline constexpr const char* KeyEvents[] = {"OnKeyDown", "OnKeyPress", "OnKeyUp"};
inline constexpr const char* FocusEvents[] = {"OnEnter", "OnExit"};
