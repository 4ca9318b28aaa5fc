// Packers that others made, to hold Kelvo's own against.
#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "app/bytes.h"

namespace kelvo::bench {

struct OtherPacker {
  std::string name;                    // of the program
  std::vector<std::string> arguments;  // "IN" and "OUT" stand for the files
};

std::span<const OtherPacker> OtherPackers();

// How many bytes the packer makes of `image`; empty when it is not installed. Throws std::runtime_error when it fails.
std::optional<std::size_t> PackedSizeBy(const OtherPacker& packer, const app::Bytes& image,
                                        const std::filesystem::path& folder);

}  // namespace kelvo::bench
