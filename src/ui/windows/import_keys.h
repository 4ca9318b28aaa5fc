// The keys of the import dialog, beside those that letters of it underline.
#pragma once

#include <array>

namespace kelvo::ui {

struct ImportKey {
  const char* keys;
  const char* what;
};

inline constexpr std::array<ImportKey, 6> kImportKeys{{
    {"F2", "Show the image in the picture's place, while it is held"},
    {"+, -", "Zoom both views"},
    {"Arrows", "Scroll both views"},
    {"Shift+Arrows", "In the image: move the frame"},
    {"Ctrl+Arrows", "In the image: make the frame smaller or larger"},
    {"Home", "In the image: take the whole of it again"},
}};

}  // namespace kelvo::ui
