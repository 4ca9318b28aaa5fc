// The words that a program was started with.
#pragma once

#include <string>
#include <vector>

namespace kelvo {

// As UTF-8, without the program's own name, whatever the system's encoding.
std::vector<std::string> ProgramArguments(int argc, char** argv);

}  // namespace kelvo
