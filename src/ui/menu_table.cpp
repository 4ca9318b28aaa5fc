#include "ui/menu_table.h"

#include <iterator>

#include "c64out/compo_pic_entries.h"
#include "ui/main_frame.h"

namespace kelvo::ui {
namespace {

constexpr MenuRow kMenus[] = {
    {"mnuFile", nullptr, "&File", ""},
    {"mnuRecent", "mnuFile", "Load r&ecent...", "Open this picture"},
    {"mnuLimPaint", nullptr, "&Paint", ""},
    {"mnuBG", "mnuLimPaint", "&Background color", "Show this color wherever the picture's background shows"},
    {"mnuViewMenu", nullptr, "&Show", ""},
    {"mnuGrid", "mnuViewMenu", "Zoom &grid", "Draw the grid of the zoom window in this color"},
    {"mnuZB", "mnuViewMenu", "Zoom &border", "How the border of the zoom window looks"},
    {"mnuFunctions", nullptr, "F&unctions", ""},
    {"mnuAnim", nullptr, "&Animation", ""},
    {"mnuVICE", nullptr, "&VICE", ""},
    {"mnuCodenet", nullptr, "&Codenet", ""},
    {"mnuHelp", nullptr, "&Help", ""},
};

template <ChildWindowId id>
constexpr MenuEntry ShowEntry(const char* name, const char* text, const char* tip) {
  return {name,    "mnuViewMenu",
          text,    "",
          tip,     [](MainFrame& f) { f.ToggleWindow(id); },
          nullptr, [](const MainFrame& f) { return f.IsWindowShown(id); }};
}

template <int magnification>
constexpr MenuEntry ZoomEntry(const char* name, const char* text, const char* key, const char* tip) {
  return {name,    "mnuViewMenu",
          text,    key,
          tip,     [](MainFrame& f) { f.SetMagnification(magnification); },
          nullptr, [](const MainFrame& f) { return f.Zoom().Area().Magnification() == magnification; }};
}

// Builds for the network need no emulator.
template <std::size_t index>
constexpr MenuEntry BuildEntry(const char* key = "") {
  const c64out::CompoPicEntry& entry = c64out::kCompoPicEntries[index];
  return {entry.name,
          entry.choice.ViaCodenet ? "mnuCodenet" : "mnuVICE",
          entry.text,
          key,
          entry.tip,
          [](MainFrame& f) { f.Builds().BuildCompoPic(c64out::kCompoPicEntries[index].choice); },
          [](const MainFrame& f) {
            return f.Builds().IsFree() &&
                   (f.Builds().IsViceReady() || c64out::kCompoPicEntries[index].choice.ViaCodenet);
          },
          nullptr,
          nullptr,
          entry.choice.ViaCodenet ? "Not while a build is at work"
                                  : "It needs VICE, set in VICE settings, and no other build at work"};
}

constexpr MenuEntry Separator(const char* menu) {
  return {nullptr, menu, nullptr, "", "", nullptr};
}

constexpr MenuEntry Submenu(const char* name, const char* menu) {
  return {name, menu, nullptr, "", "", nullptr};
}

constexpr auto kHasFile = [](const MainFrame& f) { return f.HasFile(); };

constexpr MenuEntry kEntries[] = {
    {"mnuNew", "mnuFile", "&New", "Ctrl+N", "Begin an empty picture", [](MainFrame& f) { f.Files().New(); }, nullptr,
     nullptr, "new"},
    {"mnuLoad", "mnuFile", "&Load...", "Ctrl+O", "Open a picture", [](MainFrame& f) { f.Files().Open(); }, nullptr,
     nullptr, "open"},
    {"mnuReload", "mnuFile", "&Reload", "Ctrl+R", "Open the current picture's file again",
     [](MainFrame& f) { f.Files().Reload(); }, kHasFile, nullptr, "reload"},
    Submenu("mnuRecent", "mnuFile"),
    Separator("mnuFile"),
    {"mnuSave", "mnuFile", "&Save", "Ctrl+S", "Save the picture under its name", [](MainFrame& f) { f.Files().Save(); },
     nullptr, nullptr, "save"},
    {"mnuSaveAs", "mnuFile", "Save &As...", "Ctrl+Shift+S", "Save the picture under another name",
     [](MainFrame& f) { f.Files().SaveAs(); }},
    {"mnuSaveJPG", "mnuFile", "Save picture as screens&hot...", "", "Save the full view as an image",
     [](MainFrame& f) { f.SaveScreenshot(); }},
    Separator("mnuFile"),
    {"mnuExit", "mnuFile", "E&xit", "Ctrl+Q", "End the program", [](MainFrame& f) { f.close(); }},

    {"mnuUndo", "mnuLimPaint", "&Undo", "Ctrl+Z", "Take back the last action", [](MainFrame& f) { f.Desk().Undo(); },
     [](const MainFrame& f) { return f.Desk().Painting().UndoData().CanUndo(); }, nullptr, "undo"},
    Separator("mnuLimPaint"),
    Submenu("mnuBG", "mnuLimPaint"),
    {"mnuRepeatCommand", "mnuLimPaint", "&Repeat last command", "F3", "Give the last command of the prompt again",
     [](MainFrame& f) { f.RepeatLastCommand(); }, [](const MainFrame& f) { return f.HasLastCommand(); }},
    {"mnuPreferences", "mnuLimPaint", "&Preferences...", "", "How painting treats full cells",
     [](MainFrame& f) { f.ShowPreferences(); }},

    ShowEntry<ChildWindowId::kFullView>("mnuView_0", "&Full view", "Show or hide the whole picture"),
    ShowEntry<ChildWindowId::kColors>("mnuView_1", "&Colors", "Show or hide the sixteen colors"),
    ShowEntry<ChildWindowId::kCharData>("mnuView_2", "Char &data", "Show or hide the cell under the pointer"),
    ShowEntry<ChildWindowId::kPrompt>("mnuView_3", "Command pro&mpt", "Show or hide the command prompt"),
    ShowEntry<ChildWindowId::kZoom>("mnuView_4", "&Zoom window", "Show or hide the zoom window"),
    ShowEntry<ChildWindowId::kPens>("mnuPens", "&Pens", "Show or hide the two pens"),
    Separator("mnuViewMenu"),
    ZoomEntry<4>("mnuZoom_4X", "Zoom &4:1", "Ctrl+4", "Show pixels four times as large"),
    ZoomEntry<8>("mnuZoom_8X", "Zoom &8:1", "Ctrl+8", "Show pixels eight times as large"),
    Submenu("mnuGrid", "mnuViewMenu"),
    Submenu("mnuZB", "mnuViewMenu"),
    Separator("mnuViewMenu"),
    {"mnuFullscreenView", "mnuViewMenu", "F&ullscreen view", "F11", "The picture alone, over the whole screen",
     [](MainFrame& f) { f.mnuFullscreenView_Click(); }, nullptr, nullptr, "fullscreen"},
    {"mnuArrange", "mnuViewMenu", "&Arrange windows", "", "Put every window back to its place",
     [](MainFrame& f) { f.ArrangeWindows(); }},

    {"mnuOptimizeBackgroundColor", "mnuFunctions", "Optimize &background color", "",
     "Draw every pixel that shows the background color with the background",
     [](MainFrame& f) { f.Desk().OptimizeBackgroundColor(); }},
    {"mnuOptimizeForEORVector", "mnuFunctions", "Optimize for &EOR vectors", "", "Tells its rule and visits every cell",
     [](MainFrame& f) { f.Desk().OptimizeForEORVector(); }},
    Separator("mnuFunctions"),
    {"mnuBMP2Sprite", "mnuFunctions", "Bitmap to &sprite converter", "", "Make sprite data of parts of a picture",
     [](MainFrame& f) { f.ShowSpriteConverter(); }},

    {"mnuAnimMode", "mnuAnim", "Animation &mode", "", "Numbered pictures of a folder are frames",
     [](MainFrame& f) { f.Animation().Mode().ToggleAnimMode(); }, nullptr,
     [](const MainFrame& f) { return f.Animation().Mode().IsAnimModeChecked(); }},
    {"mnuAnimProperties", "mnuAnim", "Animation &properties...", "", "Where the frames are and how they are named",
     [](MainFrame& f) { f.Animation().ShowProperties(); }},

    BuildEntry<0>("F6"),
    BuildEntry<1>(),
    BuildEntry<2>("F5"),
    Separator("mnuVICE"),
    {"mnuViceSettings", "mnuVICE", "VICE &settings...", "", "Where VICE is, and the program's name on a disk",
     [](MainFrame& f) { f.Builds().ShowViceSettings(); }},
    {"mnuStopBuild", "mnuVICE", "S&top build", "", "End the build that is at work (Escape)",
     [](MainFrame& f) { f.Builds().Stop(); }, [](const MainFrame& f) { return f.Builds().IsBuilding(); }},

    BuildEntry<3>(),
    BuildEntry<4>(),
    {"mnuCodenetGUI", "mnuCodenet", "Codenet &GUI", "", "Send any file to a C64",
     [](MainFrame& f) { f.ShowCodenetGui(); }},
    Separator("mnuCodenet"),
    {"mnuCodenetSettings", "mnuCodenet", "&Codenet settings...", "",
     "Where the C64 is, and the program's name on its disk", [](MainFrame& f) { f.Builds().ShowCodenetSettings(); }},

    {"mnuAbout", "mnuHelp", "&About Kelvo", "", "What this program is", [](MainFrame& f) { f.ShowAbout(); }},
};

}  // namespace

std::span<const MenuRow> Menus() {
  return kMenus;
}

std::span<const MenuEntry> MenuEntries() {
  return kEntries;
}

}  // namespace kelvo::ui
