// A second place for what must not be lost when the program folder cannot be written.
#pragma once

#include <filesystem>

namespace kelvo::app {

// A folder for the user alone among the system's temporary ones, the same for a program folder at each start; it may
// lie on another disk, and it may be gone after the machine's next start. Nothing is made. Empty where the system has
// none.
std::filesystem::path OtherFolderFor(const std::filesystem::path& program_folder);

// Makes the folder OtherFolderFor() names, with what it lies in. False where that is another user's already, a link, or
// open to others: whoever made it cannot be trusted with pictures.
bool MakeOtherFolder(const std::filesystem::path& folder);

}  // namespace kelvo::app
