// What commands write.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "app/bytes.h"
#include "cli/commands/commands.h"

namespace kelvo::cli {

// The name of the format that is written: by --to, else by the ending of what is written. Throws UsageError where
// neither tells.
std::string FormatToWrite(const Arguments& arguments);

// Where the outputs of a command go: operands, "-" among them.
//
// One for each input: the output that is named, or a file in the folder that is named, called as the input with
// `ending`
// ("kvp"). Throws UsageError for what goes together in no way: several inputs for one file, two for one name, standard
// input into a folder, an output that is an input.
std::vector<std::string> OutputsFor(const Arguments& arguments, std::string_view ending);

// Throws UsageError where `output` is one of the inputs.
void RequireOtherThanInputs(const Arguments& arguments, const std::vector<std::string>& outputs);

// All of it or nothing. Throws app::FileError, also for what is there and is no ordinary file.
void WriteOutput(const std::string& output, std::span<const std::uint8_t> bytes);
void WriteOutput(const std::string& output, std::string_view text);

// One after the other. When one cannot be written, those that are new are removed again. Throws the same.
void WriteOutputs(const std::vector<std::string>& outputs, const std::vector<app::Bytes>& files);

}  // namespace kelvo::cli
