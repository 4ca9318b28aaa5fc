// Names on a C64's disk.
#pragma once

#include <string>
#include <string_view>

namespace kelvo::c64out {

// Whether a disk holds a file of that name, as the disk tool is given it: ASCII without what c1541 or the C64's disk
// system acts upon.
bool FitsDisk(std::string_view name);

// A name that fits, as much like `name` as it can be: letters with marks by their base letters, German ones as they are
// told apart (ae, oe, ue, ss), and "-" for what has no likeness. Empty when nothing is left.
std::string ProposedDiskName(std::string_view name);

}  // namespace kelvo::c64out
