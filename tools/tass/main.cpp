// The cross assembler as builds call it: with the source and the output file. 64tass does the work: the one beside this
// program, else the one on the search path.
#include <windows.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "app/path_text.h"
#include "arguments/program_arguments.h"

namespace {

namespace fs = std::filesystem;

constexpr const wchar_t* kAssembler = L"64tass.exe";
// With -a a path may hold any characters.
constexpr const wchar_t* kOptions = L" -a -q -C -B --cbm-prg -Wno-portable -o ";

constexpr DWORD kLongestPath = 32768;

// No file name holds a quote.
std::wstring Quoted(const fs::path& file) {
  return L"\"" + file.native() + L"\"";
}

// Empty when there is none.
fs::path Assembler() {
  std::wstring path(kLongestPath, L'\0');
  GetModuleFileNameW(nullptr, path.data(), kLongestPath);
  fs::path beside = fs::path(path.c_str()).parent_path() / kAssembler;
  if (fs::exists(beside)) return beside;
  path.resize(SearchPathW(nullptr, kAssembler, nullptr, kLongestPath, path.data(), nullptr));
  return path;
}

int Run(std::wstring line) {
  STARTUPINFOW start{};
  start.cb = sizeof(start);
  PROCESS_INFORMATION process{};
  if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &process)) return 1;
  WaitForSingleObject(process.hProcess, INFINITE);
  DWORD code = 1;
  GetExitCodeProcess(process.hProcess, &code);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return static_cast<int>(code);
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> words = kelvo::ProgramArguments(argc, argv);
  if (words.size() != 2) {
    std::fputs("usage: tass SOURCE OUTPUT\n", stderr);
    return 2;
  }
  const fs::path assembler = Assembler();
  if (assembler.empty()) {
    std::fputs("64tass is missing: put 64tass.exe into the SYSTEM folder\n", stderr);
    return 1;
  }
  const fs::path source = kelvo::app::PathFromText(words[0]), output = kelvo::app::PathFromText(words[1]);
  return Run(Quoted(assembler) + kOptions + Quoted(output) + L" " + Quoted(source));
}
