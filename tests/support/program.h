// The program below its windows: real folders and files, and ports that remember what they were told and answer what a
// test wants.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "app/clock.h"
#include "app/error_log.h"
#include "app/long_work.h"
#include "app/messages.h"
#include "app/path_text.h"
#include "app/program_folders.h"
#include "app/settings_store.h"
#include "files/picture_files.h"
#include "model/picture_views.h"
#include "support/files.h"

namespace kelvo::support {

using Lines = std::vector<std::string>;

class MapSettings final : public app::SettingsStore {
 public:
  std::string Read(const app::Setting& setting) const override {
    const auto found = values.find(NameOf(setting));
    return found == values.end() ? std::string(setting.default_value) : found->second;
  }
  void Write(const app::Setting& setting, std::string_view value) override { values[NameOf(setting)] = value; }

  static std::string NameOf(const app::Setting& setting) {
    return std::string(setting.section) + "/" + std::string(setting.key);
  }
  std::map<std::string, std::string> values;
};

class FixedClock final : public app::Clock {
 public:
  std::tm Now() const override { return time; }
  std::tm time = [] {
    std::tm made{};  // 2026-02-03 09:07:05; systems have further members of their own
    std::tie(made.tm_sec, made.tm_min, made.tm_hour) = std::tuple(5, 7, 9);
    std::tie(made.tm_mday, made.tm_mon, made.tm_year) = std::tuple(3, 1, 126);
    return made;
  }();
};

class RecordingMessages : public app::Messages {
 public:
  void Inform(std::string_view text) override { shown.emplace_back(text); }
  void InformWithMore(std::string_view text, std::string_view added) override {
    Inform(text);
    more = added;
  }
  bool InformWithChoice(std::string_view text, std::string_view) override {
    Inform(text);
    return ticks;
  }
  void Warn(std::string_view text) override { shown.emplace_back(text); }
  void Tell(std::string_view text) override { shown.emplace_back(text); }
  bool Ask(std::string_view text) override {
    shown.emplace_back(text);
    return yes;
  }
  app::UnsavedAnswer AskUnsaved(std::string_view text) override {
    shown.emplace_back(text);
    return unsaved;
  }
  Lines shown;
  std::string more;  // below the last text
  bool ticks = false;
  bool yes = false;
  app::UnsavedAnswer unsaved = app::UnsavedAnswer::kCancel;
};

class RecordingStatus final : public app::StatusLine {
 public:
  void Tell(std::string_view text) override { words.emplace_back(text); }
  void Warn(std::string_view text) override { words.emplace_back(text); }
  Lines words;
};

class RecordingPrompt final : public app::PromptOutput {
 public:
  void CommandPromptList(std::string_view line) override { lines.emplace_back(line); }
  Lines lines;
};

class RecordingViews final : public model::PictureViews {
 public:
  void PixelChanged(int x, int y) override { pixels.push_back({x, y}); }
  void CellChanged(int cell) override { cells.push_back(cell); }
  void PictureChanged() override { ++pictures; }
  void FullCellMet(int cell, model::FullCellFate fate) override {
    full_cells += std::to_string(cell) + (fate == model::FullCellFate::kRecoloured ? "+ " : "- ");
  }
  std::vector<std::pair<int, int>> pixels;
  std::vector<int> cells;
  int pictures = 0;
  std::string full_cells;  // "7+ ": cell 7 was recoloured, "7- ": it was refused
};

class NoWaitPointer final : public app::WaitPointer {
 public:
  void Show() override {}
  void Hide() override {}
};

class PlannedDialogs final : public files::FileDialogs {
 public:
  std::optional<files::ChosenFile> SelectFile(const std::filesystem::path& folder, files::FormatType type) override {
    filters.push_back(type);
    folders.push_back(app::TextFromPath(folder));
    return open;
  }
  std::optional<std::filesystem::path> SaveAs(const std::filesystem::path& path) override {
    proposals.push_back(app::TextFromPath(path));
    return save;
  }
  std::optional<files::ChosenFile> open;
  std::optional<std::string> save;
  Lines folders, proposals;
  std::vector<files::FormatType> filters;
};

class RecordingDisplay final : public files::FileDisplay {
 public:
  void ShowFile(const files::CurrentFile& file) override { title = files::WindowTitle(file); }
  void PictureReplaced() override { ++replaced; }
  void PictureSaved() override { ++saved; }
  void FilesMoved(const files::WhereNow& now) override { where_now = now(followed); }
  std::string title;
  int replaced = 0, saved = 0;
  std::filesystem::path followed, where_now;  // a file's path, and the one that it was moved to last
};

struct Program {
  Program() { folders.Create(); }
  // The path of something in the folder, as the program's texts have it.
  std::string Text(std::string_view name) const { return app::TextFromPath(folder / app::PathFromText(name)); }

  TempFolder folder;
  app::ProgramFolders folders{folder / "program"};
  MapSettings settings;
  FixedClock clock;
  app::ErrorLog log{folders.ErrorLogFile(), clock};
  RecordingMessages messages;
  RecordingPrompt prompt;
  NoWaitPointer pointer;
  PlannedDialogs dialogs;
  RecordingDisplay display;
  RecordingViews views;
  RecordingStatus status;
  files::Document document;
  files::PictureFiles files{
      document, {{folders, settings, clock, log, messages, prompt}, pointer, dialogs, display, views, status}};
  // What the parts of the program that work with the picture are given.
  files::PictureSurroundings surroundings{{folders, settings, clock, log, messages, prompt}, document, files};
};

}  // namespace kelvo::support
