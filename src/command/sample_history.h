// What the command prompt's history holds before the first command: samples of the language, some of them yet to come.
#pragma once

#include <array>
#include <string_view>

namespace kelvo::command {

inline constexpr std::array<std::string_view, 6> kSampleHistory{
    ">Fill 5800 5c00 0f", ">Transfer 6000 6140 6140", ">Swap Colors 0e 0a", ">LOAD phantom,8,1", ">DIR", ">@8!"};

}  // namespace kelvo::command
