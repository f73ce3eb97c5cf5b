// The game's pictures, by id: "<images folder>/<id>.png", and "<id>@2x.png" on screens whose
// pixels are denser than the desktop's units, so that cards and chips stay crisp. A missing file
// is an empty picture, which draws nothing.
#pragma once

#include <QPixmap>
#include <QSize>
#include <QString>
#include <string>

namespace front {

// The folder beside the program's: "<program folder>/../images", unless set.
QString ImageFolder();
void SetImageFolder(const QString& folder);  // empties the cache

// `ratio` is the device pixel ratio of the widget that draws it.
QPixmap Picture(const std::string& id, qreal ratio);

// The size of a picture in desktop units (what it covers at ratio 1); empty when missing.
QSize PictureSize(const std::string& id);

}  // namespace front
