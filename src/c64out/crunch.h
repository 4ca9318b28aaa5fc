// The cruncher: packs what an assembler made for the C64, and unpacks it.
//
// Made for the program that shows a picture, it takes any bytes. It repeats what came before (an LZ77 scheme), and
// tells what it cannot repeat in nibbles whose codes follow what came so far in the same context. A picture is cut into
// sections, so that bitmap, screen and colours each have statistics of their own, and its bitmap may be turned by a
// quarter: bytes that stand below each other on the screen then follow one another.
//
// The packed format, for whoever writes a depacker:
//
//     file     = layout byte, then sections
//     layout   = 0: one section, the bytes themselves
//                1: a picture's 10001 bytes in four sections: bitmap 8000, screen 1000, colours 1000, background
//                2: a program of two bytes load address, a picture and code: bitmap, screen, colours, and a section of
//                   the load address, the background and the code
//     section  = kind byte, then tokens to the end mark
//     kind     = Literals (0..3), plus 128 for a bitmap in columns: byte 8 * (40 * row + column) + line stands at
//                200 * column + 8 * row + line
//     token    = nibble in the context of tokens, length's extra bits, then literals or an offset, or nothing for a
//     copy
//                from the offset used last
//     offset   = nibble in the context of offsets, then extra bits; class 15 is the end mark of the section
//
// crunch_stream.h tells how bits and bytes lie in the stream, crunch_model.h how a nibble is coded, crunch_section.h
// what classes, contexts and literals are. The model is new in each section; bits go on through the sections.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace kelvo::c64out {

inline constexpr int kFirstLevel = 1, kLastLevel = 9;
inline constexpr std::size_t kMostBytesToCrunch = 1 << 20;

// `bytes` packed. A higher `level` (kFirstLevel..kLastLevel) takes longer and packs better. Throws std::runtime_error
// for more than kMostBytesToCrunch bytes or another level.
std::vector<std::uint8_t> Crunch(std::span<const std::uint8_t> bytes, int level);

// What Crunch() packed. Throws std::runtime_error for bytes that it did not make.
std::vector<std::uint8_t> Decrunch(std::span<const std::uint8_t> packed);

}  // namespace kelvo::c64out
