// The growth of a bevel, on bits instead of pixels.
//
// By definition every pass looks at every pixel of the picture that the pass before left behind, and each
// pixel that is not background may write around itself; of several writes into one pixel the last one stays.
// Here it is turned round: the pixels that write into one pixel are few and their order is fixed (later rows
// before earlier ones, then later columns), so 64 pixels are decided at once from the bits around them. A
// pass then costs a few operations for every 64 pixels, and where the pass before changed nothing nearby the
// next one of the same kind is left out: it would write what is there already.
#pragma once
#include <cstddef>
#include <cstdint>
#include <vector>

class BevelMasks {
 public:
  using Word = std::uint64_t;
  // One bit for each pixel. Some rows and a word on either side can be read beyond the picture, and are 0.
  class Plane {
   public:
    void Resize(int height, std::size_t words);
    Word* Row(int y) { return bits_.data() + Index(y); }
    const Word* Row(int y) const { return bits_.data() + Index(y); }

   private:
    static constexpr int Margin = 3;
    std::size_t Index(int y) const { return static_cast<std::size_t>(y + Margin) * stride_ + 1; }
    std::vector<Word> bits_;
    std::size_t stride_ = 0;
  };

  enum class PassKind { Rings, Outline, Final };
  // Whether a colour is the background's own, so that writing it changes nothing.
  struct Invisible {
    bool Light = false, Shadow = false, Bevel = false;
  };

  // Everything is content until Background is filled in. `hasKey`: Key is used.
  BevelMasks(int width, int height, bool hasKey);
  std::size_t Words() const { return words_; }
  void Pass(PassKind kind, const Invisible& invisible);
  // The bits of a word that are pixels.
  Word Valid(std::size_t w) const { return valid_[w + 1]; }

  // What may still be written to; filled in before the first pass, and less with every pass.
  Plane Background;
  // What the upper and left edges leave alone.
  Plane Key;
  // What is lit, in shadow, of the bevel's colour. No pixel is in two of them.
  Plane Light, Shadow, Bevel;
  // The same for the picture that looks pressed; here Bevel covers the other two.
  Plane DownLight, DownShadow, DownBevel;

 private:
  // Where each rule holds, by the pixel that writes.
  struct Fires {
    Word A = 0, B = 0, C = 0, D = 0, E = 0, F = 0;
  };
  // The rows of rules that write into a row, with the words left and right.
  struct Nearby {
    const Fires *above2, *above, *here, *below;
  };
  struct Place {
    int y;
    std::size_t w;
  };
  template <bool HasKey>
  Fires FiresAt(int y, std::size_t w) const;
  // Writes one word; returns what is background no longer.
  template <PassKind Kind>
  Word Write(int y, std::size_t w, const Nearby& nearby, const Invisible& invisible);
  template <PassKind Kind, bool HasKey>
  void FullPass(const Invisible& invisible);
  template <bool HasKey>
  void LocalPass(const Invisible& invisible);
  template <bool HasKey>
  void RunPass(PassKind kind, const Invisible& invisible);

  int height_;
  std::size_t words_;
  bool hasKey_;
  std::vector<Word> valid_;     // with a 0 on either side
  std::vector<Place> changed_;  // by the pass before
  bool local_ = false;          // changed_ is complete, and that pass was one of rings
  std::vector<std::uint32_t> stamps_;
  std::uint32_t stamp_ = 0;
};
