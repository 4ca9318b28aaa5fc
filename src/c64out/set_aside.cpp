#include "c64out/set_aside.h"

#include <stdexcept>

#include "app/file_name.h"
#include "app/path_text.h"

namespace kelvo::c64out {

namespace fs = std::filesystem;

SetAside::SetAside(const fs::path& file) : file_(file) {
  if (!fs::exists(file)) return;
  if (!fs::is_regular_file(file)) throw std::runtime_error(app::TextFromPath(file) + ": this is no file");
  aside_ = app::FreeNameBeside(file);
  fs::rename(file, aside_);
}

SetAside::~SetAside() {
  if (!is_pending_) return;
  std::error_code ignored;
  fs::remove(file_, ignored);
  if (!aside_.empty()) fs::rename(aside_, file_, ignored);
}

void SetAside::Drop() {
  is_pending_ = false;
  std::error_code ignored;
  if (!aside_.empty()) fs::remove(aside_, ignored);
}

}  // namespace kelvo::c64out
