#include <windows.h>

#include <array>

#include "app/path_text.h"
#include "support/run_tool.h"

namespace kelvo::support {
namespace {

std::wstring Wide(const std::string& text) {
  return app::PathFromText(text).native();
}

// No word of the tests holds a quote, or a backslash at its end.
std::wstring Quoted(const std::string& word) {
  return L"\"" + Wide(word) + L"\"";
}

HANDLE Handle(std::intptr_t number) {
  return reinterpret_cast<HANDLE>(number);
}

std::intptr_t Number(HANDLE handle) {
  return reinterpret_cast<std::intptr_t>(handle);
}

}  // namespace

RunningTool::RunningTool(const std::string& program, const std::vector<std::string>& arguments) {
  std::wstring line = Quoted(program);
  for (const std::string& argument : arguments) line += L" " + Quoted(argument);
  SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
  HANDLE read_end = nullptr, write_end = nullptr;
  if (!CreatePipe(&read_end, &write_end, &inherited, 0)) return;
  SetHandleInformation(read_end, HANDLE_FLAG_INHERIT, 0);
  HANDLE nothing = CreateFileW(L"NUL", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                               OPEN_EXISTING, 0, nullptr);
  STARTUPINFOW start{};
  start.cb = sizeof(start);
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdInput = start.hStdOutput = nothing;
  start.hStdError = write_end;
  PROCESS_INFORMATION process{};
  if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &process)) {
    process_ = Number(process.hProcess);
    CloseHandle(process.hThread);
  }
  CloseHandle(write_end);
  CloseHandle(nothing);
  errors_ = Number(read_end);
}

RunningTool::~RunningTool() {
  Signal(0);
  Wait();
}

void RunningTool::Signal(int) const {
  if (process_ != -1) TerminateProcess(Handle(process_), 1);
}

ToolRun RunningTool::Wait() {
  ToolRun run;
  if (errors_ != -1) {
    std::array<char, 512> buffer;
    for (DWORD size = 0; ReadFile(Handle(errors_), buffer.data(), buffer.size(), &size, nullptr) && size > 0;) {
      run.errors.append(buffer.data(), size);
    }
    CloseHandle(Handle(errors_));
    errors_ = -1;
  }
  if (process_ != -1) {
    WaitForSingleObject(Handle(process_), INFINITE);
    DWORD code = 0;
    if (GetExitCodeProcess(Handle(process_), &code)) run.exit_code = static_cast<int>(code);
    CloseHandle(Handle(process_));
    process_ = -1;
  }
  return run;
}

ToolRun RunTool(const std::string& program, const std::vector<std::string>& arguments) {
  return RunningTool(program, arguments).Wait();
}

bool IsInstalled(const std::string& tool) {
  std::array<wchar_t, MAX_PATH> found{};
  return SearchPathW(nullptr, Wide(tool).c_str(), L".exe", found.size(), found.data(), nullptr) > 0;
}

}  // namespace kelvo::support
