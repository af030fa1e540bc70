#include "OracleButton3D.h"

namespace {
bool OddSum(int x, int y) { return (x % 2 == 0) != (y % 2 == 0); }

class OracleDrawing {
 public:
  OracleDrawing(const OraclePicture& source, const ButtonRun& run)
      : source_(source), c_(run.Colors), semi_(run.Semi), bw_(run.Width) {}
  OracleButtonResult Run(IVRXProgress* progress);

 private:
  enum class PassKind { Rings, Outline, Final };
  bool T(int x, int y) const { return e_.Is(x, y, c_.T); }
  bool SourceIsKey(int x, int y) const { return semi_ && source_.Is(x - bw_, y - bw_, c_.K); }
  // Up and Disabled always get the same ring pixels.
  void Ring(int x, int y, TColor color) {
    u_.Set(x, y, color);
    d_.Set(x, y, color);
  }

  void Rules(int x, int y);
  void LowerEdge(int x, int y);
  void LowerRightCorner(int x, int y);
  void RightEdge(int x, int y);
  void UpperEdge(int x, int y);
  void LeftEdge(int x, int y);
  void UpperLeftCorner(int x, int y);

  const OraclePicture& source_;
  const ButtonColors c_;
  const bool semi_;
  const int bw_;
  int pass_ = 0;
  PassKind kind_ = PassKind::Rings;
  OraclePicture e_, u_, n_, d_;
};

void OracleDrawing::LowerEdge(int x, int y) {
  if (!T(x, y + 1) || !T(x - 1, y + 1)) return;
  if (kind_ == PassKind::Rings) {
    Ring(x - 1, y + 1, c_.S);
    n_.Set(x, y + 2, c_.L);
  } else {
    Ring(x - 1, y + 1, c_.BC);
  }
}

void OracleDrawing::LowerRightCorner(int x, int y) {
  if (T(x - 1, y) || T(x, y - 1)) return;
  if (!T(x + 1, y + 1) || !T(x, y + 1) || !T(x + 1, y)) return;
  const TColor ring = kind_ == PassKind::Rings ? c_.S : c_.BC;
  Ring(x + 1, y + 1, ring);
  Ring(x, y + 1, ring);
  Ring(x + 1, y, ring);
  if (kind_ == PassKind::Rings) {
    n_.Set(x + 2, y + 2, c_.L);
    n_.Set(x + 1, y + 2, c_.L);
    n_.Set(x + 2, y + 1, c_.L);
  }
}

void OracleDrawing::RightEdge(int x, int y) {
  if (!T(x + 1, y) || !T(x + 1, y - 1)) return;
  if (kind_ == PassKind::Rings) {
    Ring(x + 1, y - 1, c_.S);
    n_.Set(x + 2, y, c_.L);
  } else {
    Ring(x + 1, y - 1, c_.BC);
  }
}

void OracleDrawing::UpperEdge(int x, int y) {
  if (y == 0 || !T(x, y - 1) || SourceIsKey(x, y - 1)) return;
  if (kind_ == PassKind::Rings) {
    Ring(x, y - 1, c_.L);
    n_.Set(x + 1, y, c_.S);
  } else if (kind_ == PassKind::Outline) {
    Ring(x, y - 1, c_.BC);
    n_.Set(x + 1, y, c_.BC);
  } else {
    n_.Set(x, y, c_.BC);
  }
}

void OracleDrawing::LeftEdge(int x, int y) {
  if (x == 0 || !T(x - 1, y) || SourceIsKey(x - 1, y)) return;
  if (kind_ == PassKind::Rings) {
    Ring(x - 1, y, c_.L);
    n_.Set(x, y + 1, c_.S);
  } else if (kind_ == PassKind::Outline) {
    Ring(x - 1, y, c_.BC);
    n_.Set(x, y + 1, c_.BC);
  } else {
    n_.Set(x, y, c_.BC);
  }
}

void OracleDrawing::UpperLeftCorner(int x, int y) {
  if (x == 0 || y == 0) return;
  if (T(x + 1, y) || T(x, y + 1)) return;
  if (!T(x - 1, y - 1) || !T(x, y - 1) || !T(x - 1, y)) return;
  if (kind_ != PassKind::Final) {
    const TColor ring = kind_ == PassKind::Rings ? c_.L : c_.BC;
    Ring(x - 1, y - 1, ring);
    Ring(x, y - 1, ring);
    Ring(x - 1, y, ring);
  }
  const TColor pressed = kind_ == PassKind::Rings ? c_.S : c_.BC;
  n_.Set(x, y, pressed);
  n_.Set(x + 1, y, pressed);
  n_.Set(x, y + 1, pressed);
}

void OracleDrawing::Rules(int x, int y) {
  if (kind_ != PassKind::Final) {
    LowerEdge(x, y);
    LowerRightCorner(x, y);
    RightEdge(x, y);
  }
  UpperEdge(x, y);
  LeftEdge(x, y);
  UpperLeftCorner(x, y);
  if (pass_ == 1 && OddSum(x, y)) d_.Set(x, y, c_.DC);
}

OracleButtonResult OracleDrawing::Run(IVRXProgress* progress) {
  const OraclePicture g = semi_ ? OracleSemiTransparent(source_, c_.T, c_.K, c_.P) : source_;
  u_ = OraclePicture(g.Width() + 2 * bw_, g.Height() + 2 * bw_, c_.T);
  n_ = u_;
  u_.Draw(bw_, bw_, g);
  n_.Draw(bw_ + 1, bw_ + 1, g);
  d_ = u_;
  const int passes = bw_ + 2;
  if (passes <= 0) return {};
  int told = 0;
  for (pass_ = 1; pass_ <= passes; ++pass_) {
    kind_ = pass_ <= bw_ ? PassKind::Rings : pass_ == bw_ + 1 ? PassKind::Outline : PassKind::Final;
    e_ = u_;
    for (int y = 0; y < e_.Height(); ++y)
      for (int x = 0; x < e_.Width(); ++x) {
        if (!T(x, y)) Rules(x, y);
        if (!progress) continue;
        progress->ProcessMessages(1);
        if (VRX3DEffectAbort) return {};
        const int percent =
            OracleRound(100LL * ((pass_ - 1LL) * e_.Height() + y), 1LL * e_.Height() * passes);
        if (percent != told) progress->Report(percent, 1);
        told = percent;
      }
  }
  return {true, u_, n_, d_};
}
}  // namespace

OraclePicture OracleSemiTransparent(const OraclePicture& picture, TColor colorOdd, TColor keyColor,
                                    TColor colorEven) {
  OraclePicture w = picture;
  for (int y = 0; y < picture.Height(); ++y)
    for (int x = 0; x < picture.Width(); ++x)
      if (picture.Is(x, y, keyColor)) w.Set(x, y, OddSum(x, y) ? colorOdd : colorEven);
  return w;
}

OracleButtonResult OracleButton3D(const OraclePicture& source, const ButtonRun& run, IVRXProgress* progress) {
  return OracleDrawing(source, run).Run(progress);
}
