// The steps that builds of every kind have: how they begin, how a template becomes a program, and how they end.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "app/bytes.h"
#include "c64out/build_job.h"
#include "c64out/build_result.h"
#include "c64out/program_check.h"

namespace kelvo::c64out {

struct BuildSteps {
  std::function<void()> make;  // the program, which they leave in the work files
  std::function<void()> after_sending = [] {};
};

// Says what is made, does the steps, then ends as the choice says: with the program beside the picture, on a disk, or
// sent. Tells how it went; the work files are gone then, but for those of a build that was given up.
BuildResult RunBuild(const BuildJob& job, const BuildSteps& steps);

// Removes the program beside the picture, if there is one. A picture that is called so is kept in BACKUP.
void RemoveOlderProgram(const BuildJob& job);

// For the steps: nothing can be assembled where tools cannot be run. Gives the build up then, and removes `source`.
void RequireInterpreter(const BuildJob& job, const std::filesystem::path& source);

// Assembles the filled template `source`, whose path ends in `ending`, to `output`, whose path ends in `output_ending`
// instead, and removes the source. What is wrong in it is told in terms of `from`, the user's own.
void Assemble(const BuildJob& job, const std::filesystem::path& from, const std::filesystem::path& source,
              std::string_view ending, const std::filesystem::path& output, std::string_view output_ending);

// Tells what came of trying the program; `purpose` is what it is made for, "show the picture". Throws for one that
// crashes.
void TellFinding(const BuildJob& job, const ProgramFinding& finding, const std::string& purpose);

// A program to be started by RUN loads to $0801, and has no more bytes than a C64's memory.
bool IsProgram(const std::filesystem::path& file);

app::Bytes BytesOf(const std::filesystem::path& file);

}  // namespace kelvo::c64out
