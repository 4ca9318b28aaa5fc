// A picture's program, made as the builder makes it: with the templates, 64tass and crush.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "app/whole_file.h"
#include "files/picture_format.h"
#include "model/picture_image.h"
#include "support/pictures.h"

namespace kelvo::support {

// Where the program will be started: by RUN, or over the network, with the template lines that are meant for it.
enum class StartedBy { kRun, kNetwork };

inline int RunTool(const std::string& command) {
  return std::system(command.c_str());
}

// Whether 64tass is there.
inline bool HasAssembler() {
#ifdef _WIN32
  return RunTool("64tass --version >NUL 2>&1") == 0;
#else
  return RunTool("64tass --version >/dev/null 2>&1") == 0;
#endif
}

inline void Replace(std::string& text, std::string_view what, const std::string& by) {
  for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size())) {
    text.replace(at, what.size(), by);
  }
}

// `path` as one word of a shell's command line.
inline std::string Quoted(const std::filesystem::path& path) {
  std::string text = path.string();
#ifdef _WIN32
  return "\"" + text + "\"";
#else
  Replace(text, "'", "'\\''");
  return "'" + text + "'";
#endif
}

// Assembles a template, with `placeholder` replaced, to `object`. True when the assembler was content.
inline bool Assemble(std::string_view name, std::string_view placeholder, const std::string& replacement,
                     std::string_view colour, StartedBy start, const std::filesystem::path& object) {
  std::filesystem::path filled = object;
  filled += ".tmp";
  std::ifstream source(std::filesystem::path(KELVO_SYSTEM_ASSETS) / name);
  std::ofstream out(filled);
  for (std::string line; std::getline(source, line);) {
    if (start == StartedBy::kRun && line.find("<CC>") != std::string::npos) continue;
    Replace(line, placeholder, replacement);
    Replace(line, "[screencolor]", std::string(colour));
    Replace(line, "<CC>", "");
    out << line << "\r\n";
  }
  out.close();
  return RunTool("64tass -a -q -C -B --cbm-prg -Wno-portable -o " + Quoted(object) + " " + Quoted(filled)) == 0;
}

// The program of `picture`, made in `folder`; empty when a tool failed.
inline app::Bytes BuildPictureProgram(const std::filesystem::path& folder, const model::PictureImage& picture,
                                      StartedBy start = StartedBy::kRun) {
  const auto saved = folder / "temp picture.kvp", object = folder / "bmpshow.obj", packed = folder / "bmpshow.pak",
             program = folder / "bmpshow.prg";
  WriteFile(saved, files::Encode(picture));
  const char digit = "0123456789ABCDEF"[picture.BackgroundColour.Number()];
  const bool made = Assemble("bmpshow.src", "[bitmap]", saved.string(), std::string{'0', digit}, start, object) &&
                    RunTool(Quoted(KELVO_CRUSH) + " 6 " + Quoted(object) + " " + Quoted(packed)) == 0 &&
                    Assemble("decrush.tas", "[packedfile]", packed.string(), "", start, program);
  return made ? ReadFile(program) : app::Bytes{};
}

}  // namespace kelvo::support
