// Components that are no controls and whose icon a designer does not show.
//
// It is kept in the position word, which the form file has anyway: hidden is what stands at a place that no
// icon can have.
#pragma once
#include "rtl/Component.h"

constexpr std::int16_t HiddenIconAt = INT16_MIN;  // both left and top
constexpr std::int32_t HiddenIconWord = static_cast<std::int32_t>(0x80008000u);

inline bool HasHiddenIcon(const TComponent& component) { return component.DesignInfo() == HiddenIconWord; }
