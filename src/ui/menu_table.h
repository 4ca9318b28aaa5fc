// Every menu and every plain menu entry of the main window, as rows of two tables.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace kelvo::ui {

class MainFrame;

// The menus that the main window fills.
inline constexpr const char* kRecentMenu = "mnuRecent";
inline constexpr const char* kToolsMenu = "mnuTools";
inline constexpr const char* kBackgroundMenu = "mnuBG";
inline constexpr const char* kGridMenu = "mnuGrid";
inline constexpr const char* kBorderMenu = "mnuZB";
inline constexpr const char* kPaletteMenu = "mnuPalette";
inline constexpr const char* kPlayMenu = "mnuPlay";
inline constexpr const char* kOnionFramesMenu = "mnuOnionFrames";
inline constexpr const char* kOnionStrengthMenu = "mnuOnionStrength";
inline constexpr const char* kFullViewMenu = "mnuFullViewScale";

struct MenuRow {
  const char* name;    // objectName
  const char* parent;  // the menu that holds it; null: the menu bar
  const char* text;
  const char* tip;  // status text; for a menu of choices, that of each choice
};

// An entry, a separator (no name), or the place of a submenu (no text).
struct MenuEntry {
  const char* name;
  const char* menu;
  const char* text;
  const char* key;  // a shortcut, or a letter that acts when it is let go outside text fields; empty: none
  const char* tip;
  void (*run)(MainFrame&);
  bool (*can)(const MainFrame&) = nullptr;              // null: always
  bool (*is_checked)(const MainFrame&) = nullptr;       // null: the entry carries no check mark
  const char* icon = nullptr;                           // its file's name; null: none
  const char* lack = nullptr;                           // said while it cannot be chosen; null: nothing
  std::string (*text_now)(const MainFrame&) = nullptr;  // null: always `text`
};

// A key that is no shortcut: a shortcut of a plain letter would take it from the prompt's line.
constexpr bool IsLetter(std::string_view key) {
  return key.size() == 1;
}

std::span<const MenuRow> Menus();
std::span<const MenuEntry> MenuEntries();

}  // namespace kelvo::ui
