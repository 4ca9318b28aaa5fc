// Work on several inputs at the same time.
#pragma once

#include <cstddef>
#include <functional>

namespace kelvo::cli {

// Calls `work` with each of 0..`count` - 1 on as many threads as the machine has, and `then` in this thread with each
// in turn, once its work is done: so what `then` tells comes in the same order as one by one. What `work` throws is
// thrown here at its turn; the rest is given up then.
void InParallel(std::size_t count, const std::function<void(std::size_t)>& work,
                const std::function<void(std::size_t)>& then);

}  // namespace kelvo::cli
