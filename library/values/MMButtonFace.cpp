#include "library/values/MMButtonFace.h"

#include "rtl/Class.h"

const TClass& TVRXMMButtonFace::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXMMButtonFace>("TVRXMMButtonFace", TVRXButtonFace::StaticClass()).Streamed(Numbers));
  return cls;
}

void VRXMMInitFace(TVRXButtonFaceIndices& face) { face = {}; }
void VRXMMCopyFace(const TVRXButtonFaceIndices& from, TVRXButtonFaceIndices& to) { to = from; }

void VRXMMSynchronize(TVRXButtonFaceIndices& face, bool hot) {
  using enum TVRXButtonState;
  struct Row {
    TVRXButtonState state, from, fromHot;
  };
  static constexpr Row rows[] = {
      {bsMouseOver, bsUp, bsMouseOver},    {bsDisabled, bsUp, bsUp},
      {bsFocused, bsUp, bsMouseOver},      {bsChecked, bsDown, bsDown},
      {bsCheckedDown, bsDown, bsDown},     {bsCheckedOver, bsDown, bsMouseOver},
      {bsCheckedDisabled, bsDown, bsDown},
  };
  const auto at = [&face](TVRXButtonState state) -> TVRXButtonFaceIndex& {
    return face[static_cast<std::size_t>(state)];
  };
  for (const Row& row : rows) at(row.state) = at(hot ? row.fromHot : row.from);
}

TVRXButtonFaceIndices TVRXMMButtonFace::Indices() const {
  TVRXButtonFaceIndices face;
  if (!IsKept(&Numbers)) return face;
  const TValueList& numbers = *Get(Numbers);
  const auto number = [&](std::size_t i) {
    const int value = numbers.NumberAt(i, 0);
    return static_cast<std::uint16_t>(value >= 0 && value <= UINT16_MAX ? value : 0);
  };
  for (std::size_t i = 0; i < face.size(); ++i) face[i] = {number(2 * i), number(2 * i + 1)};
  return face;
}

void TVRXMMButtonFace::SetIndices(const TVRXButtonFaceIndices& indices) {
  if (indices == Indices()) return;
  std::vector<TValueList::TItem> numbers;
  for (const TVRXButtonFaceIndex& index : indices) {
    numbers.emplace_back(std::int64_t{index.ListIndex});
    numbers.emplace_back(std::int64_t{index.ImageIndex});
  }
  if (indices == TVRXButtonFaceIndices{}) numbers.clear();
  Get(Numbers)->SetItems(std::move(numbers));
}
