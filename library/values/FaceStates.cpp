#include "library/values/FaceStates.h"

#include <bit>
#include <vector>

namespace {
using enum TVRXStateKind;

struct Kind {
  const char* text;
  int weight;  // of two combinations with as many kinds, the heavier one counts
  TVRXStateKinds excludes;
};
constexpr std::array<Kind, VRXStateKindCount> Kinds{{
    {"Disabled", 64, {skFocused, skMouseOver, skPressed, skDefault}},
    {"Focused", 2, {skDisabled}},
    {"Mouse over", 16, {skDisabled, skPressed}},
    {"Pressed", 32, {skDisabled, skMouseOver, skReadOnly}},
    {"Checked", 8, {skReadOnly}},
    {"Default", 4, {skDisabled, skReadOnly}},
    {"Read only", 1, {skPressed, skChecked, skDefault}},
}};
TVRXStateKind At(std::size_t i) { return static_cast<TVRXStateKind>(i); }

const std::vector<TVRXStateKinds>& Available() {
  static const std::vector<TVRXStateKinds> all = [] {
    std::vector<TVRXStateKinds> states{{}};
    for (std::size_t i = 0; i < Kinds.size(); ++i) states.push_back({At(i)});
    for (std::size_t i = 0; i < Kinds.size(); ++i)
      for (std::size_t j = i + 1; j < Kinds.size(); ++j)
        if (!Kinds[i].excludes.Contains(At(j))) states.push_back({At(i), At(j)});
    return states;
  }();
  return all;
}

QString Describe(TVRXStateKinds kinds) {
  QString text;
  for (std::size_t i = 0; i < Kinds.size(); ++i)
    if (kinds.Contains(At(i)))
      text += (text.isEmpty() ? QString() : QStringLiteral(" + ")) + QString::fromLatin1(Kinds[i].text);
  return text.isEmpty() ? QStringLiteral("Normal") : text;
}
}  // namespace

const std::array<const char*, VRXStateKindCount> StateStyleNames{
    ".Disabled", ".Focused", ".MouseOver", ".Pressed", ".Checked", ".Default", ".ReadOnly"};

TVRXStateKinds VRXKindsOf(const TVRXCFCStateKind& kind) {
  TVRXStateKinds kinds;
  for (std::size_t i = 0; i < kind.size(); ++i)
    if (kind[i] != 0) kinds.Include(At(i));
  return kinds;
}
TVRXCFCStateKind VRXCFCKindOf(TVRXStateKinds kinds) {
  TVRXCFCStateKind kind{};
  for (std::size_t i = 0; i < kind.size(); ++i) kind[i] = kinds.Contains(At(i));
  return kind;
}

int VRXCFCGetAvailableStatesCount() { return static_cast<int>(Available().size()); }

QString VRXCFCGetStateDescription(int index) {
  if (index < 0 || index >= VRXCFCGetAvailableStatesCount()) return {};
  return Describe(Available()[static_cast<std::size_t>(index)]);
}
QString VRXCFCGetStateDescription(const TVRXCFCStateKind& kind) {
  const TVRXStateKinds kinds = VRXKindsOf(kind);
  const auto& all = Available();
  return std::find(all.begin(), all.end(), kinds) == all.end() ? QString() : Describe(kinds);
}
bool VRXCFCGetStateByDescription(const QString& description, TVRXCFCStateKind& kind) {
  for (const TVRXStateKinds kinds : Available())
    if (Describe(kinds) == description) {
      kind = VRXCFCKindOf(kinds);
      return true;
    }
  return false;
}

int VRXRankOf(TVRXStateKinds kinds) {
  constexpr int heavier = 128;  // than all kinds together
  int rank = heavier * std::popcount(kinds.Bits());
  for (std::size_t i = 0; i < Kinds.size(); ++i)
    if (kinds.Contains(At(i))) rank += Kinds[i].weight;
  return rank;
}
