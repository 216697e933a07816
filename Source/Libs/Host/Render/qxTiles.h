#pragma once

#include <functional>

/// How many threads work on pictures where it is not said; 0, as at the start, for one per
/// processor. To be set before the first picture.
int &qxProgramThreads();

/// Calls `work` for 0 to `count` - 1 in several threads, including the calling one; `threads` 0
/// means those of the program (qxProgramThreads). `progress` is called in the calling thread with
/// the number done, and returns false to cancel the rest; then the result is false. An exception of
/// `work` in any thread ends all and is rethrown here.
bool qxForAllTiles(int count, int threads, const std::function<void(int)> &work,
                   const std::function<bool(int done)> &progress);
