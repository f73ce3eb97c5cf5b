#include "platform/app_path.h"

#include <filesystem>

namespace vb {
namespace {
std::string g_app_path = ".";
std::string g_cur_dir = ".";
}  // namespace

const std::string& AppPath() {
  return g_app_path;
}

Version AppVersion() {
  return {POKERZEVA_VERSION_MAJOR, POKERZEVA_VERSION_MINOR, POKERZEVA_VERSION_PATCH};
}
void SetAppPath(std::string path) {
  g_app_path = std::move(path);
  g_cur_dir = g_app_path;
}
const std::string& CurDir() {
  return g_cur_dir;
}
void ChDir(std::string path) {
  g_cur_dir = std::move(path);
}

std::string ResolvePath(const std::string& path) {
  auto slashes = [](std::string s) {
    for (char& c : s)
      if (c == '\\') c = '/';
    return s;
  };
  std::filesystem::path p = slashes(path);
  if (p.is_relative()) p = std::filesystem::path(slashes(g_cur_dir)) / p;
  return p.lexically_normal().string();
}

}  // namespace vb
