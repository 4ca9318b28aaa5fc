// Disks with programs on them.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "app/bytes.h"
#include "cli/commands/commands.h"

namespace kelvo::cli {

// What a program is called on a disk, as the editor calls it: by --name, else `otherwise`. Throws UsageError, which
// begins with `operand`, for a name that a disk cannot hold.
std::string NameFor(const std::string& operand, const std::string& otherwise, const Arguments& arguments);

// Where --vice says, else the settings, else on the search path. Throws std::runtime_error.
std::filesystem::path FindDiskTool(const Arguments& arguments, const app::SettingsStore& settings);

// The image with all programs on it, in their order.
app::Bytes DiskWith(const std::vector<app::Bytes>& programs, const std::vector<std::string>& names,
                    const std::filesystem::path& disk_tool, const Ports& ports);

}  // namespace kelvo::cli
