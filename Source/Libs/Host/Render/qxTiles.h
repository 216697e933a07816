#pragma once

#include <functional>

/// Does `work` for 0 to `count` - 1 in several threads, the calling one among them; 0 `threads` for
/// one per processor. `progress` hears in the calling thread how many are done, and answers false
/// to leave the rest undone; then the result is false. What `work` throws in any thread ends all
/// and is thrown here.
bool qxForAllTiles(int count, int threads, const std::function<void(int)> &work,
                   const std::function<bool(int done)> &progress);
