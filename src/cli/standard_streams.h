// Standard input and output, which "-" stands for, and messages.
#pragma once

#include <cstdint>
#include <span>
#include <stdexcept>
#include <string_view>

#include "app/bytes.h"

namespace kelvo::cli {

// Nobody reads standard output any more. There is nothing to say, and nobody to say it to.
class OutputClosed : public std::runtime_error {
 public:
  OutputClosed() : std::runtime_error("nobody reads standard output any more") {}
};

// All of standard input, at most `most` bytes. Throws app::FileError.
app::Bytes ReadStandardInput(std::size_t most);

// Throws OutputClosed, and app::FileError where it cannot be written for another reason.
void WriteStandardOutput(std::span<const std::uint8_t> bytes);
void Print(std::string_view text);

// A line on standard error; nothing for an empty text.
void Complain(std::string_view line);

// Overwrites itself on a terminal, and is silent elsewhere.
void ShowProgress(std::size_t done, std::size_t all);

// The platform's part. Standard input and output carry bytes as they are, without an end of line of the system's own.
void MakeStreamsBinary();
bool IsTerminalWatching();  // standard error
// Whether a write that failed with `error`, a value of errno, means that nobody reads.
bool MeansClosed(int error);

}  // namespace kelvo::cli
