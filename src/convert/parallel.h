// Work on all cores whose result does not depend on how many there are.
#pragma once

#include <functional>

namespace kelvo::convert {

// Calls `work` for 0..count - 1, each once, in any order and at the same time, and returns after the last. The calls
// do not share what they change; they do not throw.
void InParallel(int count, const std::function<void(int)>& work);

// The same for rows of cells of which two at the same time must not be neighbours, nor next but one: bands of three
// rows, from the top down, first every other one, then those between. `work` gets the first row and the one behind the
// last.
void InBands(int rows, const std::function<void(int, int)>& work);

}  // namespace kelvo::convert
