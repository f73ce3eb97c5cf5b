// The picture files of the game, checked without drawing them: a program that has no screen (the
// replay tool) still refuses to play with a picture missing or broken, as the desktop does.
#pragma once

#include <string>
#include <vector>

namespace vb {

// The file of a picture id ("barajas/AC") in `folder`: the first of "<id>.png" and "<id>.svg" that
// exists, else the ".png" name.
std::string PictureFile(const std::string& folder, const std::string& id);

// The files of a picture id: its own (as PictureFile gives it) and the denser drawings of it that
// exist ("<id>@2x.png", "<id>@4x.png").
std::vector<std::string> PictureFiles(const std::string& folder, const std::string& id);

// Whether a picture file can be read: a whole PNG (signature, chunks with their checksums, a
// header first and an end last) or an SVG document. Empty when it can, else what is wrong.
std::string PictureFault(const std::string& path);

}  // namespace vb
