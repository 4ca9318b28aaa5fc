// The cruncher: packs what an assembler made for the C64, and unpacks it.
//
// Made for the program that shows a picture, it takes any bytes. It tells what came before as copies (an LZ77 scheme
// that can use the offset of the copy before again) and finds the shortest way to tell all. A picture is cut into
// sections, so that bitmap, screen and colours each have the code for offsets that suits them, and its bitmap may be
// turned by a quarter: bytes that stand below each other on the screen then follow one another.
//
// The packed format, for whoever writes a depacker:
//
//     file     = layout byte, then sections
//     layout   = 0: one section, the bytes themselves
//                1: a picture of 10001 bytes in four sections: bitmap 8000, screen 1000, colours 1000, background
//                2: a program of two bytes load address, a picture and code: bitmap, screen, colours, and a section of
//                   the load address and what stands behind the colours
//                plus 64 for colours in bytes, which are nibbles else
//                plus 128 for a bitmap in columns: byte 8 * (40 * row + column) + line stands at
//                200 * column + 8 * row + line
//
// section.h tells what a section is, stream.h how bits and bytes lie in the stream; bits go on from section to section.
// What is no picture by its size is layout 0; a program's code may be 6000 bytes long.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace kelvo::crunch {

inline constexpr int kFirstLevel = 1, kLastLevel = 9;
inline constexpr std::size_t kMostBytesToCrunch = 1 << 18;

// `bytes` packed. A higher `level` (kFirstLevel..kLastLevel) takes longer and packs better. Throws std::runtime_error
// for more than kMostBytesToCrunch bytes or another level.
std::vector<std::uint8_t> Crunch(std::span<const std::uint8_t> bytes, int level);

// What Crunch() packed. Throws std::runtime_error for bytes that it did not make.
std::vector<std::uint8_t> Decrunch(std::span<const std::uint8_t> packed);

}  // namespace kelvo::crunch
