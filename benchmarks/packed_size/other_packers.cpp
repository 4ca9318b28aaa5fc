#include "other_packers.h"

#include <algorithm>
#include <stdexcept>

#include "app/path_text.h"
#include "app/whole_file.h"
#include "support/files.h"
#include "support/run_tool.h"

namespace kelvo::bench {
namespace {

const OtherPacker kOtherPackers[] = {
    {"exomizer", {"raw", "-q", "-o", "OUT", "IN"}},
    {"zx0", {"-f", "IN", "OUT"}},
    {"salvador", {"IN", "OUT"}},
};

}  // namespace

std::span<const OtherPacker> OtherPackers() {
  return kOtherPackers;
}

std::optional<std::size_t> PackedSizeBy(const OtherPacker& packer, const app::Bytes& image,
                                        const std::filesystem::path& folder) {
  if (!support::IsInstalled(packer.name)) return std::nullopt;
  const std::filesystem::path in = folder / "image", out = folder / "packed";
  support::WriteFile(in, image);
  remove(out);
  std::vector<std::string> arguments = packer.arguments;
  std::ranges::replace(arguments, std::string("IN"), app::TextFromPath(in));
  std::ranges::replace(arguments, std::string("OUT"), app::TextFromPath(out));
  const support::ToolRun run = support::RunTool(packer.name, arguments);
  if (run.exit_code != 0 || !exists(out)) throw std::runtime_error(packer.name + " fails: " + run.errors);
  return app::FileSize(out);
}

}  // namespace kelvo::bench
