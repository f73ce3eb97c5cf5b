// The game's pictures, by id: "<images folder>/<id>.png", and "<id>@2x.png" on screens whose
// pixels are denser than the desktop's units, so that cards and chips stay crisp. A missing file
// is an empty picture, which draws nothing.
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

// `ratio` is the device pixel ratio of the widget that draws it.
QPixmap Picture(const std::string& id, qreal ratio);

// The size of a picture in desktop units (what it covers at ratio 1); empty when missing.
QSize PictureSize(const std::string& id);

// The file a picture is read from.
QString PictureFile(const std::string& id);

// Reads every picture of `ids` now, for screens of `ratio`, so that no file is read while the game
// runs. Returns the first id that cannot be read (missing, damaged, not a picture), or "".
std::string LoadPictures(const std::vector<std::string>& ids, qreal ratio);

// The message of a picture that cannot be read: the file and the folder where it was looked for.
QString PictureFaultText(const std::string& id);

}  // namespace front
