// pokerzeva-replay [--seed N] [--effects] [--music] [--cards N] [--chips N] [--exchange N]
//                  [--no-limit] [--full-beats-flush] [--straight-beats-trips] SCRIPT
#include <filesystem>
#include <fstream>
#include <iostream>
#include <system_error>

#include "platform/picture_files.h"
#include "replay.h"
#include "table/image_stores.h"

namespace {

// The pictures are looked for where the desktop program looks: "images" beside the program's
// folder. A game the desktop would refuse to start is not played here either.
bool PicturesAtHand() {
  std::error_code ec;
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", ec);
  const std::string folder =
      (program.parent_path().parent_path() / "images").lexically_normal().string();
  for (const std::string& id : PicturesDoJogo()) {
    for (const std::string& file : vb::PictureFiles(folder, id)) {
      const std::string fault = vb::PictureFault(file);
      if (!fault.empty()) {
        std::cerr << "pokerzeva-replay: the picture " << file << " (" << fault
                  << "); pictures are looked for in " << folder << "\n";
        return false;
      }
    }
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<std::string> args(argv + 1, argv + argc);
  replay::Options options;
  std::string error;
  if (!options.Parse(args, error) || args.size() != 1) {
    std::cerr << (error.empty() ? "" : error + "\n")
              << "usage: pokerzeva-replay [--seed N] [--effects] [--music] [--cards N] "
                 "[--chips N] [--exchange N] [--no-limit] [--full-beats-flush] "
                 "[--straight-beats-trips] SCRIPT\n";
    return 2;
  }
  std::ifstream script(args[0]);
  if (!script) {
    std::cerr << "cannot read " << args[0] << "\n";
    return 2;
  }
  if (!PicturesAtHand()) return 1;
  replay::Session session(options, &std::cout);
  session.Start();
  session.PlayScript(script);
  return 0;
}
