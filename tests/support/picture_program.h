// A picture's program, made by the builder with the shipped templates and the real tools.
#pragma once

#include <filesystem>

#include "app/whole_file.h"
#include "model/picture_image.h"

namespace kelvo::support {

// How the program will be started: by RUN, or over the network, with the template lines that are meant for it.
enum class StartedBy { kRun, kNetwork };

// The program of `picture`, made in `folder`, which keeps the work files; empty when the build failed.
app::Bytes BuildPictureProgram(const std::filesystem::path& folder, const model::PictureImage& picture,
                               StartedBy start = StartedBy::kRun);

}  // namespace kelvo::support
