#include "library/pixels/BevelMasks.h"

#include <algorithm>
#include <utility>

using Word = BevelMasks::Word;

void BevelMasks::Plane::Resize(int height, std::size_t words) {
  stride_ = words + 2;
  bits_.assign(static_cast<std::size_t>(height + 2 * Margin) * stride_, 0);
}

BevelMasks::BevelMasks(int width, int height, bool hasKey)
    : height_(height),
      words_((static_cast<std::size_t>(width) + 63) / 64),
      hasKey_(hasKey),
      valid_(words_ + 2) {
  for (Plane* plane : {&Background, &Light, &Shadow, &Bevel, &DownLight, &DownShadow, &DownBevel})
    plane->Resize(height, words_);
  if (hasKey) Key.Resize(height, words_);
  if (words_ == 0) return;
  std::fill_n(valid_.begin() + 1, words_, ~Word{0});
  valid_[words_] = ~Word{0} >> (64 * words_ - static_cast<std::size_t>(width));
}

namespace {
// A row of bits moved so that every pixel sees its neighbour on the left or on the right.
Word FromLeft(Word before, Word here, int by = 1) { return here << by | before >> (64 - by); }
Word FromRight(Word here, Word after) { return here >> 1 | after << 63; }
Word LeftOf(const Word* row, std::size_t w) {
  return FromLeft(row[static_cast<std::ptrdiff_t>(w) - 1], row[w]);
}
Word RightOf(const Word* row, std::size_t w) { return FromRight(row[w], row[w + 1]); }
}  // namespace

template <bool HasKey>
BevelMasks::Fires BevelMasks::FiresAt(int y, std::size_t w) const {
  const Word *row = Background.Row(y), *rowAbove = Background.Row(y - 1), *rowBelow = Background.Row(y + 1);
  const Word content = Valid(w) & ~row[w];
  Fires f;
  if (content == 0) return f;
  const Word left = LeftOf(row, w), right = RightOf(row, w), above = rowAbove[w], below = rowBelow[w];
  if ((left | right | above | below) == 0) return f;
  f.A = content & below & LeftOf(rowBelow, w);
  f.B = content & ~left & ~above & RightOf(rowBelow, w) & below & right;
  f.C = content & right & RightOf(rowAbove, w);
  f.D = content & above;
  f.E = content & left;
  f.F = content & ~right & ~below & LeftOf(rowAbove, w) & above & left;
  if constexpr (HasKey) {
    f.D &= ~Key.Row(y - 1)[w];
    f.E &= ~LeftOf(Key.Row(y), w);
  }
  return f;
}

template <BevelMasks::PassKind Kind>
Word BevelMasks::Write(int y, std::size_t w, const Nearby& n, const Invisible& invisible) {
  using enum PassKind;
  const auto left = [](const Fires* f, Word Fires::*rule, int by = 1) {
    return FromLeft(f[-1].*rule, f[0].*rule, by);
  };
  const auto right = [](const Fires* f, Word Fires::*rule) { return FromRight(f[0].*rule, f[1].*rule); };
  const Word valid = Valid(w);
  const Word corners = n.here->F | left(n.here, &Fires::F) | n.above->F;
  if constexpr (Kind == Final) {
    DownBevel.Row(y)[w] |= (n.here->D | n.here->E | corners) & valid;
    return 0;
  }
  // Each line beats the ones below it.
  const Word light2 = n.below->D | n.below->F | right(n.below, &Fires::F);
  const Word shadow2 = left(n.below, &Fires::C);
  const Word light1 = right(n.here, &Fires::E) | right(n.here, &Fires::F);
  const Word shadow1 =
      left(n.above, &Fires::B) | n.above->B | right(n.above, &Fires::A) | left(n.here, &Fires::B);
  Word added;
  if constexpr (Kind == Outline) {
    DownBevel.Row(y)[w] |= (left(n.here, &Fires::D) | n.above->E | corners) & valid;
    added = invisible.Bevel ? 0 : light2 | shadow2 | light1 | shadow1;
    Bevel.Row(y)[w] |= added;
  } else {
    const Word lit = invisible.Light ? 0 : light2 | (light1 & ~shadow2);
    const Word shaded = invisible.Shadow ? 0 : ~light2 & (shadow2 | (shadow1 & ~light1));
    Light.Row(y)[w] |= lit;
    Shadow.Row(y)[w] |= shaded;
    added = lit | shaded;

    const Word downShadow2 = n.here->F | left(n.here, &Fires::D) | left(n.here, &Fires::F);
    const Word downLight2 = left(n.here, &Fires::C, 2);
    const Word downShadow1 = n.above->E | n.above->F;
    const Word downLight1 =
        left(n.above2, &Fires::B, 2) | left(n.above2, &Fires::B) | n.above2->A | left(n.above, &Fires::B, 2);
    const Word shade = (downShadow2 | (downShadow1 & ~downLight2)) & valid;
    const Word light = ~downShadow2 & (downLight2 | (downLight1 & ~downShadow1)) & valid;
    Word& downLight = DownLight.Row(y)[w];
    Word& downShadow = DownShadow.Row(y)[w];
    downLight = (downLight & ~shade) | light;
    downShadow = (downShadow & ~light) | shade;
  }
  return added;
}

template <BevelMasks::PassKind Kind, bool HasKey>
void BevelMasks::FullPass(const Invisible& invisible) {
  // Rules of four rows at a time, with an empty word on either side.
  const std::size_t stride = words_ + 2;
  std::vector<Fires> buffer(stride * 4);
  Fires* rules[4];
  for (std::size_t i = 0; i < 4; ++i) rules[i] = buffer.data() + i * stride + 1;
  const auto fill = [&](int y, Fires* to) {
    for (std::size_t w = 0; w < words_; ++w) to[w] = y < height_ ? FiresAt<HasKey>(y, w) : Fires{};
  };
  const std::size_t limit = words_ * static_cast<std::size_t>(height_) / 32;
  changed_.clear();
  fill(0, rules[3]);
  for (int y = 0; y < height_; ++y) {
    std::rotate(rules, rules + 1, rules + 4);
    fill(y + 1, rules[3]);
    Word* background = Background.Row(y);
    for (std::size_t w = 0; w < words_; ++w) {
      const Word added =
          Write<Kind>(y, w, {rules[0] + w, rules[1] + w, rules[2] + w, rules[3] + w}, invisible);
      if (!added) continue;
      // The rules that read this row are known already.
      background[w] &= ~added;
      if (changed_.size() <= limit) changed_.push_back({y, w});
    }
  }
  local_ = Kind == PassKind::Rings && changed_.size() <= limit;
}

template <bool HasKey>
void BevelMasks::LocalPass(const Invisible& invisible) {
  const auto places = static_cast<std::size_t>(height_) * words_;
  stamps_.resize(places);
  ++stamp_;
  std::vector<std::pair<Place, Word>> added;
  for (const Place& change : std::exchange(changed_, {})) {
    // How far a change reaches: a rule reads one row and word around it and writes up to two rows below.
    const std::size_t lastWord = std::min(change.w + 1, words_ - 1);
    for (int y = std::max(change.y - 2, 0); y <= std::min(change.y + 3, height_ - 1); ++y) {
      for (std::size_t w = change.w == 0 ? 0 : change.w - 1; w <= lastWord; ++w) {
        std::uint32_t& stamp = stamps_[static_cast<std::size_t>(y) * words_ + w];
        if (std::exchange(stamp, stamp_) == stamp_) continue;
        Fires rules[4][3];
        for (int row = 0; row < 4; ++row) {
          const int source = y - 2 + row;
          if (source < 0 || source >= height_) continue;
          for (std::size_t i = 0; i < 3; ++i)
            if (w + i >= 1 && w + i <= words_) rules[row][i] = FiresAt<HasKey>(source, w + i - 1);
        }
        const Word bits =
            Write<PassKind::Rings>(y, w, {&rules[0][1], &rules[1][1], &rules[2][1], &rules[3][1]}, invisible);
        if (bits) added.push_back({{y, w}, bits});
      }
    }
  }
  for (const auto& [place, bits] : added) {
    Background.Row(place.y)[place.w] &= ~bits;
    changed_.push_back(place);
  }
}

template <bool HasKey>
void BevelMasks::RunPass(PassKind kind, const Invisible& invisible) {
  if (kind == PassKind::Final) return FullPass<PassKind::Final, HasKey>(invisible);
  if (kind == PassKind::Outline) return FullPass<PassKind::Outline, HasKey>(invisible);
  if (local_) return LocalPass<HasKey>(invisible);
  FullPass<PassKind::Rings, HasKey>(invisible);
}

void BevelMasks::Pass(PassKind kind, const Invisible& invisible) {
  if (hasKey_)
    RunPass<true>(kind, invisible);
  else
    RunPass<false>(kind, invisible);
}
