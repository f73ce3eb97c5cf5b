// The headless check of the picture files: a whole PNG or SVG passes, anything cut, changed or
// missing is named.
#include "platform/picture_files.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace {

std::string Bytes(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

TEST(PictureFiles, AWholePictureAndWhatIsWrongWithOthers) {
  const std::string png = Bytes(POKERZEVA_SOURCE_DIR "/assets/images/barajas/AC.png");
  ASSERT_GT(png.size(), 100u);
  std::string flipped = png;
  flipped[png.size() / 2] = static_cast<char>(flipped[png.size() / 2] ^ 0x10);
  struct Case {
    const char* name;
    std::string content;
    const char* fault;  // "" for none
  };
  const Case cases[] = {
      {"AC.png", png, ""},
      {"cut.png", png.substr(0, png.size() - 20), "cut short"},
      {"flipped.png", flipped, "damaged"},
      {"text.png", "not a picture at all", "not a PNG picture"},
      {"empty.png", "", "not a PNG picture"},
      {"drawn.svg", "<?xml version=\"1.0\"?>\n<svg width=\"2\"><rect/></svg>\n", ""},
      {"half.svg", "<svg width=\"2\"><rect/>", "not an SVG picture"},
  };
  const auto dir = std::filesystem::temp_directory_path() / "pokerzeva-picture-files-test";
  std::filesystem::remove_all(dir);
  std::filesystem::create_directories(dir);
  for (const Case& c : cases) {
    const std::string path = (dir / c.name).string();
    std::ofstream(path, std::ios::binary) << c.content;
    EXPECT_EQ(vb::PictureFault(path).substr(0, std::string(c.fault).size()), c.fault) << c.name;
    EXPECT_EQ(vb::PictureFault(path).empty(), *c.fault == 0) << c.name;
  }
  EXPECT_EQ(vb::PictureFault((dir / "none.png").string()), "missing");
  EXPECT_EQ(vb::PictureFault(dir.string()), "not a file");
  // The id finds the PNG, else the SVG of that name.
  EXPECT_EQ(vb::PictureFile(dir.string(), "AC"), (dir / "AC.png").string());
  EXPECT_EQ(vb::PictureFile(dir.string(), "drawn"), (dir / "drawn.svg").string());
  EXPECT_EQ(vb::PictureFile(dir.string(), "none"), (dir / "none.png").string());
  // With the denser drawings that exist.
  std::ofstream((dir / "AC@4x.png").string(), std::ios::binary) << png;
  EXPECT_EQ(vb::PictureFiles(dir.string(), "AC"),
            (std::vector<std::string>{(dir / "AC.png").string(), (dir / "AC@4x.png").string()}));
  std::filesystem::remove_all(dir);
}

}  // namespace
