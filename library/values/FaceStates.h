// The states a control can be in, alone and together, by which a face controller gives it its looks.
#pragma once
#include <QString>
#include <array>

#include "rtl/TypeInfo.h"

enum class TVRXStateKind : std::uint8_t {
  skDisabled,
  skFocused,
  skMouseOver,
  skPressed,
  skChecked,
  skDefault,
  skReadOnly
};
VRX_ENUM(TVRXStateKind,
         {"skDisabled", "skFocused", "skMouseOver", "skPressed", "skChecked", "skDefault", "skReadOnly"})
using TVRXStateKinds = TSet<TVRXStateKind>;
VRX_SET(TVRXStateKinds, TVRXStateKind)

constexpr std::size_t VRXStateKindCount = 7;
// A byte for each kind: 1 when it is part of the combination, else 0.
using TVRXCFCStateKind = std::array<std::uint8_t, VRXStateKindCount>;
// Any byte but 0 counts.
TVRXStateKinds VRXKindsOf(const TVRXCFCStateKind& kind);
TVRXCFCStateKind VRXCFCKindOf(TVRXStateKinds kinds);

// The combinations that controls can be in and that are offered: none at all, each kind alone, and two kinds
// that do not rule each other out.
int VRXCFCGetAvailableStatesCount();
// Empty for an index or a combination that is not among them.
QString VRXCFCGetStateDescription(int index);
QString VRXCFCGetStateDescription(const TVRXCFCStateKind& kind);
// False, and `kind` stays, when none is described like that.
bool VRXCFCGetStateByDescription(const QString& description, TVRXCFCStateKind& kind);

// How much a combination says: one of more kinds before one of fewer, then by what a person sees first.
int VRXRankOf(TVRXStateKinds kinds);

// Names of the styles for the states of a control, in the order of the kinds.
extern const std::array<const char*, VRXStateKindCount> StateStyleNames;
