// External tools as child processes, for a program without windows.
#pragma once

#include "c64out/tool_runner.h"

namespace kelvo {

// May be asked by several threads at a time. A tool gets no input.
class ToolRunner final : public c64out::ToolRunner {
 public:
  bool CanRun() const override { return true; }
  // What the tool prints is kept for its failure.
  c64out::ToolResult RunAndWait(const c64out::ToolCommand& command) override;
  // The tool prints to the user.
  c64out::ToolResult ShowAndWait(const c64out::ToolCommand& command) override;
};

}  // namespace kelvo
