#include "arguments/program_arguments.h"

#ifdef _WIN32
#include <windows.h>
// The system's other headers build on that one.
#include <shellapi.h>

#include <filesystem>

#include "app/path_text.h"
#endif

namespace kelvo {

#ifdef _WIN32

// What main() is given there has lost each character that the system's code page lacks.
std::vector<std::string> ProgramArguments(int, char**) {
  int count = 0;
  wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> words;
  for (int i = 1; i < count; ++i) words.push_back(app::TextFromPath(std::filesystem::path(wide[i])));
  LocalFree(wide);
  return words;
}

#else

std::vector<std::string> ProgramArguments(int argc, char** argv) {
  return {argv + (argc > 0 ? 1 : 0), argv + argc};
}

#endif

}  // namespace kelvo
