#include "ui/menu_table.h"

#include <iterator>

#include "c64out/compo_pic_choice.h"
#include "files/load_picture.h"
#include "ui/desks/animation_desk.h"
#include "ui/desks/build_desk.h"
#include "ui/desks/called_windows.h"
#include "ui/desks/cell_use_desk.h"
#include "ui/desks/command_desk.h"
#include "ui/desks/export_desk.h"
#include "ui/desks/history_desk.h"
#include "ui/desks/import_desk.h"
#include "ui/desks/painting_desk.h"
#include "ui/desks/release_desk.h"
#include "ui/desks/window_desk.h"
#include "ui/help_pages.h"
#include "ui/main_frame.h"

namespace kelvo::ui {
namespace {

constexpr MenuRow kMenus[] = {
    {"mnuFile", nullptr, "&File", ""},
    {kRecentMenu, "mnuFile", "Load r&ecent...", "Open this picture"},
    {"mnuLimPaint", nullptr, "&Paint", ""},
    {kBackgroundMenu, "mnuLimPaint", "&Background color", "Show this color wherever the picture's background shows"},
    {kToolsMenu, nullptr, "&Tools", ""},
    {"mnuViewMenu", nullptr, "&Show", ""},
    {kFullViewMenu, "mnuViewMenu", "Full &view scale", "How large the full view shows the picture"},
    {kGridMenu, "mnuViewMenu", "Zoom &grid", "Draw the grid of the zoom window in this color"},
    {kBorderMenu, "mnuViewMenu", "Zoom &border", "How the border of the zoom window looks"},
    {kPaletteMenu, "mnuViewMenu", "Pale&tte", "Show everything in these colors"},
    {"mnuFunctions", nullptr, "F&unctions", ""},
    {"mnuAnim", nullptr, "&Animation", ""},
    {kPlayMenu, "mnuAnim", "Pla&y", "What follows the last frame, here and in C64 programs"},
    {kOnionFramesMenu, "mnuAnim", "&Onion skin", "Which frames shine through while onion skin is on"},
    {kOnionStrengthMenu, "mnuAnim", "Onion skin &strength", "How strongly other frames shine through"},
    {"mnuVICE", nullptr, "&VICE", ""},
    {"mnuCodenet", nullptr, "&Codenet", ""},
    {"mnuHelp", nullptr, "&Help", ""},
};

template <ChildWindowId id>
constexpr MenuEntry ShowEntry(const char* name, const char* text, const char* tip) {
  return {name,    "mnuViewMenu",
          text,    "",
          tip,     [](MainFrame& f) { f.Windows().Toggle(id); },
          nullptr, [](const MainFrame& f) { return f.Windows().IsShown(id); }};
}

template <const app::Setting& setting>
constexpr MenuEntry SettingEntry(const char* name, const char* menu, const char* text, const char* tip) {
  return {name,    menu,
          text,    "",
          tip,     [](MainFrame& f) { f.ToggleSetting(setting); },
          nullptr, [](const MainFrame& f) { return f.IsOn(setting); }};
}

template <int magnification>
constexpr MenuEntry ZoomEntry(const char* name, const char* text, const char* key, const char* tip) {
  return {name,    "mnuViewMenu",
          text,    key,
          tip,     [](MainFrame& f) { f.SetMagnification(magnification); },
          nullptr, [](const MainFrame& f) { return f.Zoom().Area().Magnification() == magnification; }};
}

// Builds for the network need no emulator.
template <const c64out::CompoPicChoice& choice>
constexpr MenuEntry BuildEntry(const char* name, const char* text, const char* key, const char* tip) {
  return {name,
          choice.ViaCodenet ? "mnuCodenet" : "mnuVICE",
          text,
          key,
          tip,
          [](MainFrame& f) { f.Builds().BuildCompoPic(choice); },
          [](const MainFrame& f) { return f.Builds().IsFree() && (f.Builds().IsViceReady() || choice.ViaCodenet); },
          nullptr,
          nullptr,
          choice.ViaCodenet ? "Not while a build is at work"
                            : "It needs VICE, set in VICE settings, and no other build at work"};
}

template <const c64out::CompoPicChoice& choice>
constexpr MenuEntry AnimationBuildEntry(const char* name, const char* text, const char* key, const char* tip) {
  MenuEntry entry = BuildEntry<choice>(name, text, key, tip);
  entry.menu = "mnuAnim";
  entry.run = [](MainFrame& f) { f.Releases().Build(choice); };
  return entry;
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
    Submenu(kRecentMenu, "mnuFile"),
    Separator("mnuFile"),
    {"mnuSave", "mnuFile", "&Save", "Ctrl+S", "Save the picture under its name", [](MainFrame& f) { f.Files().Save(); },
     nullptr, nullptr, "save"},
    {"mnuSaveAs", "mnuFile", "Save &As...", "Ctrl+Shift+S", "Save the picture under another name",
     [](MainFrame& f) { f.Files().SaveAs(); }},
    {"mnuSaveJPG", "mnuFile", "Save picture as screens&hot...", "", "Save the full view as an image",
     [](MainFrame& f) { f.Called().SaveScreenshot(); }},
    {"mnuImport", "mnuFile", "&Import...", "Ctrl+I", "Make a picture of any image",
     [](MainFrame& f) { f.Imports().Import(); }},
    {"mnuExport", "mnuFile", "Ex&port...", "", "Write the picture in another format, or as a PNG image",
     [](MainFrame& f) { f.Exports().Export(); }},
    SettingEntry<files::kReadFilesExactly>("mnuReadExactly", "mnuFile", "Read &files exactly",
                                           "Read the last byte and each format's own background too"),
    Separator("mnuFile"),
    {"mnuExit", "mnuFile", "E&xit", "Ctrl+Q", "End the program", [](MainFrame& f) { f.close(); }},

    {"mnuUndo", "mnuLimPaint", "&Undo", "Ctrl+Z", "Take back the last action", [](MainFrame& f) { f.Desk().Undo(); },
     [](const MainFrame& f) { return f.Desk().Painting().UndoData().CanUndo(); }, nullptr, "undo", nullptr,
     [](const MainFrame& f) { return "&" + f.Desk().Painting().UndoData().Caption(); }},
    {"mnuStepBack", "mnuLimPaint", "Step bac&k", "Ctrl+Alt+Z", "Back to the step before this one",
     [](MainFrame& f) { f.History().StepBack(); }, [](const MainFrame& f) { return f.History().CanStepBack(); }},
    {"mnuStepForward", "mnuLimPaint", "Step &forward", "Ctrl+Alt+Y", "On to the step that followed this one",
     [](MainFrame& f) { f.History().StepForward(); }, [](const MainFrame& f) { return f.History().CanStepForward(); }},
    {"mnuCopyImage", "mnuLimPaint", "&Copy as image", "Ctrl+C", "Put the picture on the clipboard as an image",
     [](MainFrame& f) { f.Exports().CopyImage(); }},
    {"mnuPasteImage", "mnuLimPaint", "Paste i&mage...", "Ctrl+V", "Make a picture of the image on the clipboard",
     [](MainFrame& f) { f.Imports().Paste(); }},
    {"mnuSwapPens", "mnuLimPaint", "&Swap pens", "X", "Each button takes the other's color",
     [](MainFrame& f) { f.Desk().SwapPens(); }},
    Separator("mnuLimPaint"),
    Submenu(kBackgroundMenu, "mnuLimPaint"),
    {"mnuWhatIf", "mnuLimPaint", "&What if the background were...", "",
     "How many cells would gain room or clash with each background color", [](MainFrame& f) { f.ShowWhatIf(); }},
    {"mnuRepeatCommand", "mnuLimPaint", "&Repeat last command", "F3", "Give the last command of the prompt again",
     [](MainFrame& f) { f.RepeatLastCommand(); }, [](const MainFrame& f) { return f.Commands().HasLast(); }},
    {"mnuPreferences", "mnuLimPaint", "&Preferences...", "", "How painting treats full cells",
     [](MainFrame& f) { f.ChangePreferences(); }},

    ShowEntry<ChildWindowId::kFullView>("mnuView_0", "&Full view", "Show or hide the whole picture"),
    ShowEntry<ChildWindowId::kColors>("mnuView_1", "&Colors", "Show or hide the sixteen colors"),
    ShowEntry<ChildWindowId::kCharData>("mnuView_2", "Char &data", "Show or hide the cell under the pointer"),
    ShowEntry<ChildWindowId::kPrompt>("mnuView_3", "Command pro&mpt", "Show or hide the command prompt"),
    ShowEntry<ChildWindowId::kZoom>("mnuView_4", "&Zoom window", "Show or hide the zoom window"),
    ShowEntry<ChildWindowId::kPens>("mnuPens", "&Pens", "Show or hide the two pens"),
    ShowEntry<ChildWindowId::kHistory>("mnuHistory", "&History", "Show or hide the steps of this session"),
    Separator("mnuViewMenu"),
    ZoomEntry<4>("mnuZoom_4X", "Zoom &4:1", "Ctrl+4", "Show pixels four times as large"),
    ZoomEntry<8>("mnuZoom_8X", "Zoom &8:1", "Ctrl+8", "Show pixels eight times as large"),
    {"mnuZoomLarge", "mnuViewMenu", "&Enlarge zoom window", "Ctrl+E", "Give the zoom window all room beside the others",
     [](MainFrame& f) { f.Windows().ToggleLargeZoom(); }, nullptr,
     [](const MainFrame& f) { return f.Windows().IsZoomLarge(); }},
    {"mnuCellUse", "mnuViewMenu", "Ce&ll use", "", "Tint cells by how many colors of their own are free",
     [](MainFrame& f) { f.CellUse().Toggle(); }, nullptr, [](const MainFrame& f) { return f.CellUse().IsShown(); }},
    Submenu(kGridMenu, "mnuViewMenu"),
    Submenu(kBorderMenu, "mnuViewMenu"),
    Submenu(kPaletteMenu, "mnuViewMenu"),
    Separator("mnuViewMenu"),
    Submenu(kFullViewMenu, "mnuViewMenu"),
    {"mnuFullViewPal", "mnuViewMenu", "Pixels as on a PAL &screen", "",
     "Show the full view in the proportions of a PAL screen", [](MainFrame& f) { f.Windows().TogglePal(); }, nullptr,
     [](const MainFrame& f) { return f.FullView().IsPal(); }},
    Separator("mnuViewMenu"),
    {"mnuFullscreenView", "mnuViewMenu", "F&ullscreen view", "F11", "The picture alone, over the whole screen",
     [](MainFrame& f) { f.Called().mnuFullscreenView_Click(); }, nullptr, nullptr, "fullscreen"},
    {"mnuArrange", "mnuViewMenu", "&Arrange windows", "", "Put every window back to its place",
     [](MainFrame& f) { f.ArrangeWindows(); }},

    {"mnuOptimizeBackgroundColor", "mnuFunctions", "Optimize &background color", "",
     "Draw every pixel that shows the background color with the background",
     [](MainFrame& f) { f.Desk().OptimizeBackgroundColor(); }},
    {"mnuOptimizeForEORVector", "mnuFunctions", "Optimize for &EOR vectors", "", "Tells its rule and visits every cell",
     [](MainFrame& f) { f.Desk().OptimizeForEORVector(); }},
    {"mnuOptimizeForPacking", "mnuFunctions", "Optimize for &packing", "",
     "Put the colors of each cell where the picture packs best; it looks the same",
     [](MainFrame& f) { f.Desk().OptimizeForPacking(); }},
    Separator("mnuFunctions"),
    {"mnuBMP2Sprite", "mnuFunctions", "Bitmap to &sprite converter", "", "Make sprite data of parts of a picture",
     [](MainFrame& f) { f.Called().ShowSpriteConverter(); }},

    {"mnuAnimMode", "mnuAnim", "Animation &mode", "", "Numbered pictures of a folder are frames",
     [](MainFrame& f) { f.Animation().Mode().ToggleAnimMode(); }, nullptr,
     [](const MainFrame& f) { return f.Animation().Mode().IsAnimModeChecked(); }},
    {"mnuAnimProperties", "mnuAnim", "Animation &properties...", "", "Where the frames are and how they are named",
     [](MainFrame& f) { f.Animation().ShowProperties(); }},
    Separator("mnuAnim"),
    {"mnuFrames", "mnuAnim", "&Frame strip", "Ctrl+F", "Show or hide all frames in a row, to go to and to put in order",
     [](MainFrame& f) { f.Windows().Toggle(ChildWindowId::kFrames); }, nullptr,
     [](const MainFrame& f) { return f.Windows().IsShown(ChildWindowId::kFrames); }},
    {"mnuChangedCells", "mnuAnim", "&Tint changed cells", "", "Tint cells that differ from the frame before",
     [](MainFrame& f) { f.Animation().ToggleChangedCells(); }, nullptr,
     [](const MainFrame& f) { return f.Animation().TintsChangedCells(); }},
    Submenu(kPlayMenu, "mnuAnim"),
    Submenu(kOnionFramesMenu, "mnuAnim"),
    Submenu(kOnionStrengthMenu, "mnuAnim"),
    Separator("mnuAnim"),
    AnimationBuildEntry<c64out::kCreatePrg>("mnuCreatePRGAnimation", "Create animation executable as P&RG...",
                                            "Ctrl+F6", "Make a C64 program that plays the frames, beside the frames"),
    AnimationBuildEntry<c64out::kCreateD64>(
        "mnuCreateD64Animation", "Create animation executable as &D64...", "",
        "Make a disk image with a program that plays the frames, beside the frames"),
    AnimationBuildEntry<c64out::kPreviewInVice>("mnuShowAnimationInVICE", "Show animation in &VICE...", "Ctrl+F5",
                                                "Make the disk image and start VICE on it"),
    AnimationBuildEntry<c64out::kPreviewOnC64>("mnuSendAnimationToC64", "S&end animation to C64...", "",
                                               "Send the frames to a C64 and play them there"),
    Separator("mnuAnim"),
    {"mnuExportAnimationGif", "mnuAnim", "Export animation as &GIF...", "", "Write the frames as one GIF that moves",
     [](MainFrame& f) { f.Releases().ExportGif(); }},
    {"mnuExportAnimationPngs", "mnuAnim", "Export animation as PNG &images...", "",
     "Write each frame as a PNG image, numbered as the frames are", [](MainFrame& f) { f.Releases().ExportPngs(); }},

    BuildEntry<c64out::kCreatePrg>("mnuCreatePRGCompopic", "Create compopic executable as &PRG", "F6",
                                   "Make a C64 program that shows the picture, beside the picture"),
    BuildEntry<c64out::kCreateD64>("mnuCreateD64CompoPic", "Create &D64 containing compopic PRG", "",
                                   "Make a disk image with a program that shows the picture, beside the picture"),
    BuildEntry<c64out::kPreviewInVice>("mnuPreviewCompopicInVICE", "Show preview in &VICE", "F5",
                                       "Make the disk image and start VICE on it"),
    Separator("mnuVICE"),
    {"mnuViceSettings", "mnuVICE", "VICE &settings...", "", "Where VICE is, and the program's name on a disk",
     [](MainFrame& f) { f.Builds().ShowViceSettings(); }},
    {"mnuStopBuild", "mnuVICE", "S&top build", "", "End the build that is at work (Escape)",
     [](MainFrame& f) { f.Builds().Stop(); }, [](const MainFrame& f) { return f.Builds().IsBuilding(); }},

    BuildEntry<c64out::kPreviewOnC64>("mnuShowPreviewOnC64", "Show &preview on C64", "",
                                      "Send the picture to a C64 and show it there"),
    BuildEntry<c64out::kSaveOn15x1>("mnuSaveCompopicOn15x1", "&Save compopic on 15x1", "",
                                    "Send the picture to a C64 and save it on that machine's disk drive"),
    {"mnuCodenetGUI", "mnuCodenet", "Codenet &GUI", "", "Send any file to a C64",
     [](MainFrame& f) { f.Called().ShowCodenetGui(); }},
    Separator("mnuCodenet"),
    {"mnuCodenetSettings", "mnuCodenet", "&Codenet settings...", "",
     "Where the C64 is, and the program's name on its disk", [](MainFrame& f) { f.Builds().ShowCodenetSettings(); }},

    {"mnuGuide", "mnuHelp", "&Guide", "F1", "A tour of the program", [](MainFrame& f) { ShowGuide(f); }},
    {"mnuKeys", "mnuHelp", "&Keys", "", "All keys on one page", [](MainFrame& f) { ShowKeys(f); }},
    Separator("mnuHelp"),
    {"mnuAbout", "mnuHelp", "&About Kelvo", "", "What this program is", [](MainFrame& f) { f.Called().ShowAbout(); }},
};

}  // namespace

std::span<const MenuRow> Menus() {
  return kMenus;
}

std::span<const MenuEntry> MenuEntries() {
  return kEntries;
}

}  // namespace kelvo::ui
