// Bytes as files and networks carry them.
#pragma once

#include <cstdint>
#include <vector>

namespace kelvo::app {

using Bytes = std::vector<std::uint8_t>;

}  // namespace kelvo::app
