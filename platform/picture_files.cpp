#include "platform/picture_files.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

namespace vb {
namespace {

// No picture of the game comes near this; a file beyond it is not one of ours.
constexpr std::uintmax_t kLargest = 16u << 20;

std::uint32_t Crc32(const unsigned char* data, std::size_t n, std::uint32_t crc = 0xFFFFFFFFu) {
  static const std::array<std::uint32_t, 256> table = [] {
    std::array<std::uint32_t, 256> t{};
    for (std::uint32_t i = 0; i < 256; ++i) {
      std::uint32_t c = i;
      for (int k = 0; k < 8; ++k) c = c & 1 ? 0xEDB88320u ^ (c >> 1) : c >> 1;
      t[i] = c;
    }
    return t;
  }();
  for (std::size_t i = 0; i < n; ++i) crc = table[(crc ^ data[i]) & 0xFF] ^ (crc >> 8);
  return crc;
}

std::uint32_t Big32(const unsigned char* p) {
  return std::uint32_t{p[0]} << 24 | std::uint32_t{p[1]} << 16 | std::uint32_t{p[2]} << 8 | p[3];
}

std::string PngFault(const std::string& bytes) {
  static const unsigned char kSignature[8] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
  const auto* data = reinterpret_cast<const unsigned char*>(bytes.data());
  const std::size_t size = bytes.size();
  if (size < 8 || !std::equal(kSignature, kSignature + 8, data)) return "not a PNG picture";
  std::size_t at = 8;
  bool first = true;
  while (at + 12 <= size) {
    const std::uint32_t length = Big32(data + at);
    if (length > size - at - 12) return "cut short";
    const unsigned char* type = data + at + 4;
    const std::string name(reinterpret_cast<const char*>(type), 4);
    if (Crc32(type, 4 + std::size_t{length}) ^ 0xFFFFFFFFu ^ Big32(type + 4 + length))
      return "damaged (chunk " + name + ")";
    if (first && (name != "IHDR" || length != 13 || Big32(type + 4) == 0 || Big32(type + 8) == 0))
      return "no picture header";
    first = false;
    if (name == "IEND") return std::string();
    at += 12 + std::size_t{length};
  }
  return "cut short";
}

std::string SvgFault(const std::string& text) {
  const auto open = text.find("<svg");
  if (open == std::string::npos || text.find("</svg>", open) == std::string::npos)
    return "not an SVG picture";
  return std::string();
}

}  // namespace

std::string PictureFile(const std::string& folder, const std::string& id) {
  const std::string base = folder + "/" + id;
  std::error_code ec;
  if (!std::filesystem::exists(base + ".png", ec) && std::filesystem::exists(base + ".svg", ec))
    return base + ".svg";
  return base + ".png";
}

std::vector<std::string> PictureFiles(const std::string& folder, const std::string& id) {
  std::vector<std::string> files{PictureFile(folder, id)};
  std::error_code ec;
  for (const char* dense : {"@2x.png", "@4x.png"}) {
    const std::string file = folder + "/" + id + dense;
    if (std::filesystem::exists(file, ec)) files.push_back(file);
  }
  return files;
}

std::string PictureFault(const std::string& path) {
  std::error_code ec;
  if (!std::filesystem::exists(path, ec)) return "missing";
  if (!std::filesystem::is_regular_file(path, ec)) return "not a file";
  const std::uintmax_t size = std::filesystem::file_size(path, ec);
  if (ec || size > kLargest) return "too large";
  std::ifstream in(path, std::ios::binary);
  std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  if (!in.good() && !in.eof()) return "unreadable";
  if (bytes.size() != size) return "unreadable";
  const bool svg = path.size() > 4 && path.compare(path.size() - 4, 4, ".svg") == 0;
  return svg ? SvgFault(bytes) : PngFault(bytes);
}

}  // namespace vb
