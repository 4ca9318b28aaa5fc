#include "arguments/tool_main.h"

#include <iostream>
#include <string>

namespace kelvo {

ToolExit ToolMain(const ToolAbout& about, int argc, char** argv, const std::function<ToolExit()>& work) {
  if (argc == 2 && std::string_view(argv[1]) == "--help") {
    std::cout << about.help;
    return kToolDone;
  }
  try {
    return work();
  } catch (const WrongUsage& error) {
    std::cerr << about.name << ": " << error.what() << '\n' << about.help;
    return kToolWrongUsage;
  } catch (const std::exception& error) {
    std::cerr << about.name << ": " << error.what() << '\n';
    return kToolFailed;
  }
}

void RefuseWord(std::string_view word) {
  throw WrongUsage("\"" + std::string(word) + "\" is not understood");
}

}  // namespace kelvo
