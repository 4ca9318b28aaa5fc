// External tools as child processes, for a program without windows.
#pragma once

#include <atomic>

#include "c64out/tool_runner.h"

namespace kelvo {

// May be asked by several threads at a time. A tool gets no input. Once the user wants to stop, each that runs is
// ended, and no more are started.
class ToolRunner final : public c64out::ToolRunner {
 public:
  explicit ToolRunner(const std::atomic<bool>& stop_wanted) : stop_wanted_(stop_wanted) {}

  bool CanRun() const override { return true; }
  // What the tool prints is kept for its failure.
  c64out::ToolResult RunAndWait(const c64out::ToolCommand& command) override;
  // The tool prints to the user.
  c64out::ToolResult ShowAndWait(const c64out::ToolCommand& command) override;

 private:
  const std::atomic<bool>& stop_wanted_;
};

}  // namespace kelvo
