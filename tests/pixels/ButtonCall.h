// One call of the button drawing with results that held something before.
#pragma once
#include "OracleButton3D.h"
#include "RecordingProgress.h"

struct ButtonPictures {
  TBitmap Up, Down, Disabled;
  // Three pictures of different sizes and colours that no run leaves by chance.
  static ButtonPictures Before();
};

void CallButton3D(const TBitmap& source, ButtonPictures& results, const ButtonRun& run,
                  IVRXProgress* progress);
// Whether the three pictures are still those of Before().
testing::AssertionResult Untouched(const ButtonPictures& results);

// The library and the slow reference do the same; each gets an abort flag of its own and, with
// `withProgress`, a progress that sets it at the `abortAt`-th processing of messages.
testing::AssertionResult SameAsOracle(const TBitmap& source, const ButtonRun& run, bool withProgress,
                                      std::int64_t abortAt, bool abortBefore = false);
