// The game's pictures, by id. The artwork is drawn at 1, 2 and 4 times its size
// ("<images folder>/<id>.png", "<id>@2x.png", "<id>@4x.png"); a picture is made at the exact
// size it covers on the screen, from the smallest drawing at least that dense, so that it stays
// crisp at any scale of the table and any density of the screen. A missing file is an empty
// picture, which draws nothing.
#pragma once

#include <QPixmap>
#include <QSize>
#include <QString>
#include <string>
#include <vector>

namespace front {

// The folder beside the program's: "<program folder>/../images", unless set.
QString ImageFolder();
void SetImageFolder(const QString& folder);  // empties the cache

// The picture at `scale` of the table, for a screen of device pixel ratio `ratio`: it covers its
// natural size times `scale` in desktop units.
QPixmap Picture(const std::string& id, qreal scale, qreal ratio);

// The natural size of a picture in desktop units (what it covers at scale 1); empty when missing.
QSize PictureSize(const std::string& id);

// The file of a picture's natural size, whose name the player is told when it cannot be read.
QString PictureFile(const std::string& id);

// Checks every drawing of every picture of `ids`: the plain one (which gives the picture its size)
// must be there, and each drawing there is must be whole. Returns the first file that cannot be
// read (missing, damaged, not a picture), or an empty text.
QString UnreadablePicture(const std::vector<std::string>& ids);

// The message of a picture file that cannot be read, with the folder where it was looked for.
QString PictureFaultText(const QString& file);

}  // namespace front
