// The program's folder, its version and the working folder, as the old runtime kept them. The
// working folder is only a text here: the sound player resolves the paths of its commands against
// it.
#pragma once

#include <string>

namespace vb {

const std::string& AppPath();

// The program's version numbers, from the build's project version.
struct Version {
  int Major, Minor, Revision;
};
Version AppVersion();

void SetAppPath(std::string path);
const std::string& CurDir();
void ChDir(std::string path);

// A path of the old platform ("C:\x\..\MUSICAS\A.WAV" style separators) as a Linux path,
// resolved against the working folder when relative.
std::string ResolvePath(const std::string& path);

}  // namespace vb
