#include "cli/commands/picture_input.h"

#include <algorithm>
#include <array>

#include "app/path_text.h"
#include "app/whole_file.h"
#include "cli/commands/picture_formats.h"
#include "cli/standard_streams.h"
#include "files/load_picture.h"
#include "files/picture_content.h"

namespace kelvo::cli {
namespace {

// What images begin with.
constexpr std::array<std::string_view, 9> kSignatures{"\x89PNG", "\xFF\xD8\xFF", "GIF8",  "BM",  "RIFF",
                                                      "II*",     "MM",           "<?xml", "<svg"};
constexpr std::array<std::string_view, 10> kImageEndings{".png",  ".jpg", ".jpeg", ".gif", ".bmp",
                                                         ".webp", ".tif", ".tiff", ".svg", ".ppm"};

files::FormatType TypeFor(const std::string& operand, std::size_t size, const Arguments& arguments) {
  if (arguments.Has(kFrom)) return TypeNamed(arguments.Text(kFrom)).value_or(files::kGeneralType);
  const files::FormatType type = files::TypeOfFile(operand, size);
  return operand == "-" && !files::FormatOf(type).Takes(size) ? files::kByContentType : type;
}

// Formats that only their content tells are always read exactly.
files::Reading ReadingFor(files::FormatType type, const Arguments& arguments, const app::SettingsStore& settings) {
  return arguments.Has(kExact) || type > files::kByContentType ? files::Reading::kExact : files::ReadingBy(settings);
}

PictureInput Decoded(const std::string& operand, const app::Bytes& bytes, const Arguments& arguments,
                     const app::SettingsStore& settings) {
  const files::FormatType type = TypeFor(operand, bytes.size(), arguments);
  const auto background =
      model::C64Colour::FromNumber(arguments.Number(kBackground).value_or(0)).value_or(model::C64Colour());
  PictureInput input{.format = {},
                     .size = bytes.size(),
                     .picture = files::DecodeAny(type, bytes, background, ReadingFor(type, arguments, settings)),
                     .reads_differently = false};
  const bool is_plain = files::FormatOf(type).Takes(bytes.size());
  input.format = FormatNameOf(is_plain ? type : files::ContentOf(bytes).type, bytes.size());
  input.reads_differently = is_plain && files::ReadsDifferently(files::FormatOf(type), bytes, background);
  return input;
}

}  // namespace

std::string NameOfInput(const std::string& operand) {
  return operand == "-" ? "standard input" : operand;
}

app::Bytes ReadInput(const std::string& operand, std::uintmax_t most) {
  if (operand == "-") return ReadStandardInput(static_cast<std::size_t>(most));
  return app::ReadWholeFile(app::PathFromText(operand), most);
}

PictureInput DecodePicture(const std::string& operand, const app::Bytes& bytes, const Arguments& arguments,
                           const app::SettingsStore& settings) {
  try {
    if (!arguments.Has(kFrom) && IsImage(operand, bytes)) {
      throw std::runtime_error("this is an image; kelvo-cli convert makes a picture of it");
    }
    return Decoded(operand, bytes, arguments, settings);
  } catch (const files::FormatError& error) {
    throw std::runtime_error(NameOfInput(operand) + ": " + error.Sizes());
  } catch (const std::runtime_error& error) {
    throw std::runtime_error(NameOfInput(operand) + ": " + error.what());
  }
}

PictureInput ReadPicture(const std::string& operand, const Arguments& arguments, const app::SettingsStore& settings) {
  return DecodePicture(operand, ReadInput(operand, app::kMostBytesToCopy), arguments, settings);
}

bool IsImage(const std::string& operand, const app::Bytes& bytes) {
  if (!FormatByEnding(operand).empty()) return FormatByEnding(operand) == "png";
  if (std::ranges::count(kImageEndings, app::LowerExtension(operand)) > 0) return true;
  return std::ranges::any_of(kSignatures, [&](std::string_view signature) {
    return bytes.size() > signature.size() &&
           std::equal(signature.begin(), signature.end(), bytes.begin(),
                      [](char one, std::uint8_t other) { return static_cast<std::uint8_t>(one) == other; });
  });
}

}  // namespace kelvo::cli
