// The program that makes a C64 save the picture on its own disk drive: its assembler source, filled in.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "c64out/c64_memory.h"

namespace kelvo::c64out {

// Where the C64 is to stop saving, for a program file of that many bytes, its load address included: kProgramStart and
// as many more. That is two bytes past the program's end; the two are saved with it.
constexpr std::uintmax_t SaverEndAddress(std::uintmax_t program_size) {
  return kProgramStart + program_size;
}

// The bytes of the file's name on the C64: "/", "." and digits as they are, each other character's code less 32, so
// that lower-case letters become the C64's own. Other characters may turn into control codes; a character outside
// Latin-1 counts as "?". Throws std::runtime_error for a character with a code below 32.
std::string ToC64FileName(std::string_view name);

// `source` with its placeholders filled in, each line ended by CR LF. A line has all its placeholders of one kind
// replaced, the first that it holds of "[filenamelen]" (two hexadecimal digits, at most 10), "[filename]", "[end_low]",
// "[end_high]" (two hexadecimal digits each) and "[filename_bytes]" (the name on the disk as 16 numbers with commas
// between; those behind its end are $A0). Throws std::runtime_error for a name that ToC64FileName does not take, for a
// "[filename]" that would get a text which FitsLiteral does not take, and for a program that ends past $FFFF.
std::string FilledSaver(std::string_view source, std::string_view name, std::uintmax_t program_size);

// The same from file to file. Throws app::FileError too.
void FillSaverTemplate(const std::filesystem::path& source, const std::filesystem::path& destination,
                       std::string_view name, std::uintmax_t program_size);

}  // namespace kelvo::c64out
