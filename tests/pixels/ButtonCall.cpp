#include "ButtonCall.h"

ButtonPictures ButtonPictures::Before() {
  ButtonPictures pictures{TBitmap(3, 2), TBitmap(1, 5), TBitmap(4, 4)};
  pictures.Up.Fill(TColor(0x123456));
  pictures.Down.Fill(TColor(0x654321));
  pictures.Disabled.Fill(TColor(0xABCDE));
  return pictures;
}

void CallButton3D(const TBitmap& source, ButtonPictures& results, const ButtonRun& run,
                  IVRXProgress* progress) {
  const ButtonColors& c = run.Colors;
  VRXDrawButton3D(source, results.Up, results.Down, results.Disabled, c.T, c.L, c.S, c.DC, c.P, c.K, c.BC,
                  run.Semi, run.Width, progress);
}

testing::AssertionResult Untouched(const ButtonPictures& results) {
  const ButtonPictures before = ButtonPictures::Before();
  if (auto same = Same(before.Up, results.Up); !same) return same << "in Up";
  if (auto same = Same(before.Down, results.Down); !same) return same << "in Down";
  if (auto same = Same(before.Disabled, results.Disabled); !same) return same << "in Disabled";
  return testing::AssertionSuccess();
}

testing::AssertionResult SameAsOracle(const TBitmap& source, const ButtonRun& run, bool withProgress,
                                      std::int64_t abortAt, bool abortBefore) {
  const OraclePicture picture(source);
  RecordingProgress slow(abortAt), fast(abortAt);
  OracleButtonResult expected;
  ButtonPictures actual = ButtonPictures::Before();
  bool flagAfter[2];
  {
    const AbortFlag flag(abortBefore);
    expected = OracleButton3D(picture, run, withProgress ? &slow : nullptr);
    flagAfter[0] = VRX3DEffectAbort;
  }
  {
    const AbortFlag flag(abortBefore);
    CallButton3D(source, actual, run, withProgress ? &fast : nullptr);
    flagAfter[1] = VRX3DEffectAbort;
  }
  if (auto same = Same(picture, source); !same) return same << "in the source, which was to stay as it is";
  if (!expected.Done) {
    if (auto same = Untouched(actual); !same) return same;
  } else {
    if (auto same = Same(expected.Up, actual.Up); !same) return same << "in Up";
    if (auto same = Same(expected.Down, actual.Down); !same) return same << "in Down";
    if (auto same = Same(expected.Disabled, actual.Disabled); !same) return same << "in Disabled";
  }
  if (slow.Percents() != fast.Percents())
    return testing::AssertionFailure() << "percents " << testing::PrintToString(fast.Percents())
                                       << " instead of " << testing::PrintToString(slow.Percents());
  if (slow.Pumps() != fast.Pumps())
    return testing::AssertionFailure() << fast.Pumps() << " pumps instead of " << slow.Pumps();
  if (slow.PumpsAtReports() != fast.PumpsAtReports())
    return testing::AssertionFailure()
           << "reports come after the pumps " << testing::PrintToString(fast.PumpsAtReports())
           << " instead of " << testing::PrintToString(slow.PumpsAtReports());
  if (flagAfter[0] != flagAfter[1]) return testing::AssertionFailure() << "the abort flag was changed";
  return testing::AssertionSuccess();
}
