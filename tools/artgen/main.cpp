// pokerzeva-artgen: paints every picture of PokerZEVA and writes them as PNG files.
//
//   pokerzeva-artgen --out assets/images [--sheet contact_sheet.png] [--zoom N]
//                    [--only PREFIX] [--icon assets/icon]
//   pokerzeva-artgen --check assets/images
//
// --check paints every picture and compares it with the files in the folder, pixel by pixel:
// antialiased edges come out a shade different on another processor, so a channel may differ by
// a few levels, but no picture may be missing, change its size or change what it shows.
//
// Each picture is painted three times from the same vector drawing: at 1x into
// <name>.png, at 2x into <name>@2x.png and at 4x into <name>@4x.png. The output is deterministic:
// no timestamps or text chunks are written and nothing random is used.
// --icon writes the application icon as pokerzeva.svg and as
// pokerzeva-48.png, -128.png and -256.png for the desktop's icon theme.
#include <QDir>
#include <QFileInfo>
#include <QFont>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QImage>
#include <QImageWriter>
#include <QStringList>
#include <QSvgGenerator>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "art.h"

namespace {

// The densities each picture is painted at: the screen makes any size from the nearest one above.
struct Density {
  int factor;
  const char* suffix;
};
constexpr Density kDensities[] = {{1, ".png"}, {2, "@2x.png"}, {4, "@4x.png"}};

QImage render(const artgen::Art& art, int scale) {
  QImage img(art.width * scale, art.height * scale, QImage::Format_ARGB32_Premultiplied);
  img.fill(Qt::transparent);
  {
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing, true);
    p.setRenderHint(QPainter::TextAntialiasing, true);
    p.setRenderHint(QPainter::SmoothPixmapTransform, true);
    p.scale(scale, scale);
    art.draw(p);
  }
  QImage out = img.convertToFormat(QImage::Format_ARGB32);
  // Fixed resolution so nothing about the machine leaks into the file.
  out.setDotsPerMeterX(2835);
  out.setDotsPerMeterY(2835);
  return out;
}

bool save(const QImage& img, const QString& path) {
  QDir().mkpath(QFileInfo(path).absolutePath());
  QImageWriter writer(path, "png");
  // For PNG a quality of 0 means the strongest zlib compression (the separate
  // "compression" setting turns compression off in Qt's PNG writer).
  writer.setQuality(0);
  if (!writer.write(img)) {
    std::fprintf(stderr, "cannot write %s: %s\n", qPrintable(path),
                 qPrintable(writer.errorString()));
    return false;
  }
  return true;
}

// The application icon: the SVG from the same drawing the PNG sizes are painted from.
bool writeIcon(const QString& dir) {
  QDir().mkpath(dir);
  const QString svgPath = dir + QStringLiteral("/pokerzeva.svg");
  {
    QSvgGenerator svg;
    svg.setFileName(svgPath);
    svg.setSize(QSize(artgen::kIconSize, artgen::kIconSize));
    svg.setViewBox(QRect(0, 0, artgen::kIconSize, artgen::kIconSize));
    svg.setResolution(96);
    svg.setTitle(QStringLiteral("PokerZEVA"));
    svg.setDescription(QStringLiteral("PokerZEVA"));
    QPainter p;
    if (!p.begin(&svg)) {
      std::fprintf(stderr, "cannot write %s\n", qPrintable(svgPath));
      return false;
    }
    p.setRenderHint(QPainter::Antialiasing, true);
    artgen::paintIcon(p);
  }
  for (int size : {48, 128, 256}) {
    QImage img(size, size, QImage::Format_ARGB32_Premultiplied);
    img.fill(Qt::transparent);
    {
      QPainter p(&img);
      p.setRenderHint(QPainter::Antialiasing, true);
      p.scale(size / double(artgen::kIconSize), size / double(artgen::kIconSize));
      artgen::paintIcon(p);
    }
    QImage out = img.convertToFormat(QImage::Format_ARGB32);
    out.setDotsPerMeterX(2835);
    out.setDotsPerMeterY(2835);
    if (!save(out, dir + QStringLiteral("/pokerzeva-%1.png").arg(size))) return false;
  }
  return true;
}

// One sheet with every 1x picture and its name underneath, grouped by section.
QImage contactSheet(const artgen::ArtList& list, const std::vector<QImage>& images) {
  const int sheetW = 1240;
  const int margin = 10;
  const int gap = 8;
  QFont labelFont(QStringLiteral("DejaVu Sans"));
  labelFont.setPixelSize(10);
  QFont headFont(QStringLiteral("DejaVu Sans"));
  headFont.setPixelSize(15);
  headFont.setBold(true);
  const QFontMetrics lm(labelFont);
  const int labelH = lm.height() + 2;

  struct Place {
    QPoint pos;
    int cellW;
  };
  std::vector<Place> places(list.size());
  std::vector<std::pair<QString, int>> heads;  // heading text and y
  int x = margin;
  int y = margin;
  int rowH = 0;
  QString section;
  for (std::size_t i = 0; i < list.size(); ++i) {
    const auto& art = list[i];
    if (art.section != section) {
      section = art.section;
      if (rowH > 0 || i > 0) y += rowH + gap;
      heads.emplace_back(section, y);
      y += 22;
      x = margin;
      rowH = 0;
    }
    const QString label = QFileInfo(art.name).fileName();
    const int cellW = std::max(art.width, lm.horizontalAdvance(label)) + gap;
    if (x + cellW > sheetW - margin) {
      x = margin;
      y += rowH + gap;
      rowH = 0;
    }
    places[i] = {QPoint(x, y), cellW};
    x += cellW;
    rowH = std::max(rowH, art.height + labelH);
  }
  const int sheetH = y + rowH + margin;

  QImage sheet(sheetW, sheetH, QImage::Format_ARGB32);
  sheet.fill(QColor(0x1c, 0x5a, 0x36));
  QPainter p(&sheet);
  p.setRenderHint(QPainter::TextAntialiasing, true);
  p.setPen(QColor(0xf0, 0xe6, 0xb4));
  p.setFont(headFont);
  for (const auto& [text, hy] : heads) p.drawText(margin, hy + 16, text);
  p.setFont(labelFont);
  p.setPen(QColor(0xff, 0xff, 0xff));
  for (std::size_t i = 0; i < list.size(); ++i) {
    const auto& art = list[i];
    const QPoint at = places[i].pos;
    const int ix = at.x() + (places[i].cellW - gap - art.width) / 2;
    p.drawImage(ix, at.y(), images[i]);
    const QString label = QFileInfo(art.name).fileName();
    p.drawText(QRect(at.x(), at.y() + art.height + 1, places[i].cellW - gap, labelH),
               Qt::AlignHCenter | Qt::AlignTop, label);
  }
  p.end();
  sheet.setDotsPerMeterX(2835);
  sheet.setDotsPerMeterY(2835);
  return sheet;
}

// How far a committed picture may be from a fresh painting: antialiasing shades only.
constexpr int kShadeTolerance = 4;      // levels of a channel, out of 255
constexpr double kShadedShare = 0.005;  // share of pixels beyond a difference of one level

// Whether the file holds the painting, within antialiasing; prints why not.
bool matches(const QImage& painted, const QString& path) {
  QImage file(path);
  if (file.isNull()) {
    std::fprintf(stderr, "%s: missing or unreadable\n", qPrintable(path));
    return false;
  }
  file = file.convertToFormat(QImage::Format_ARGB32);
  if (file.size() != painted.size()) {
    std::fprintf(stderr, "%s: %dx%d, painted %dx%d\n", qPrintable(path), file.width(),
                 file.height(), painted.width(), painted.height());
    return false;
  }
  int worst = 0;
  long shaded = 0;
  for (int y = 0; y < file.height(); ++y) {
    const auto* a = reinterpret_cast<const QRgb*>(file.constScanLine(y));
    const auto* b = reinterpret_cast<const QRgb*>(painted.constScanLine(y));
    for (int x = 0; x < file.width(); ++x) {
      const int d =
          std::max({std::abs(qRed(a[x]) - qRed(b[x])), std::abs(qGreen(a[x]) - qGreen(b[x])),
                    std::abs(qBlue(a[x]) - qBlue(b[x])), std::abs(qAlpha(a[x]) - qAlpha(b[x]))});
      worst = std::max(worst, d);
      if (d > 1) ++shaded;
    }
  }
  const long pixels = static_cast<long>(file.width()) * file.height();
  if (worst > kShadeTolerance || shaded > kShadedShare * pixels) {
    std::fprintf(stderr, "%s: differs (largest %d levels, %ld of %ld pixels)\n", qPrintable(path),
                 worst, shaded, pixels);
    return false;
  }
  return true;
}

void usage() {
  std::fprintf(stderr,
               "usage: pokerzeva-artgen --out DIR [--sheet FILE.png] [--zoom N] [--only PREFIX]\n"
               "       [--icon DIR]\n"
               "       pokerzeva-artgen --check DIR\n");
}

}  // namespace

int main(int argc, char** argv) {
  // Headless: paint without any display.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication app(argc, argv);

  QString outDir;
  QString sheetPath;
  QString only;
  QString checkDir;
  QString iconDir;
  int zoom = 1;
  const QStringList args = app.arguments();
  for (int i = 1; i < args.size(); ++i) {
    const QString& a = args[i];
    const bool hasValue = i + 1 < args.size();
    if (a == QLatin1String("--out") && hasValue) {
      outDir = args[++i];
    } else if (a == QLatin1String("--sheet") && hasValue) {
      sheetPath = args[++i];
    } else if (a == QLatin1String("--zoom") && hasValue) {
      zoom = std::clamp(args[++i].toInt(), 1, 8);
    } else if (a == QLatin1String("--check") && hasValue) {
      checkDir = args[++i];
    } else if (a == QLatin1String("--only") && hasValue) {
      only = args[++i];
    } else if (a == QLatin1String("--icon") && hasValue) {
      iconDir = args[++i];
    } else {
      usage();
      return 2;
    }
  }
  if (outDir.isEmpty() && sheetPath.isEmpty() && checkDir.isEmpty() && iconDir.isEmpty()) {
    usage();
    return 2;
  }
  if (!iconDir.isEmpty()) {
    if (!writeIcon(iconDir)) return 1;
    std::printf("icon written to %s\n", qPrintable(iconDir));
    if (outDir.isEmpty() && sheetPath.isEmpty() && checkDir.isEmpty()) return 0;
  }

  artgen::ArtList all;
  artgen::addCardFaces(all);
  artgen::addCardBacks(all);
  artgen::addChipPiles(all);
  artgen::addExtras(all);
  artgen::addFaces(all);
  artgen::addBalloon(all);
  artgen::addShuffle(all);

  artgen::ArtList list;
  for (auto& art : all) {
    if (only.isEmpty() || art.name.startsWith(only)) list.push_back(std::move(art));
  }

  if (!checkDir.isEmpty()) {
    int bad = 0;
    for (const auto& art : list) {
      const QString base = checkDir + QLatin1Char('/') + art.name;
      for (const Density& d : kDensities)
        bad += !matches(render(art, d.factor), base + QLatin1String(d.suffix));
    }
    std::printf("%d pictures checked, %d files differ\n", static_cast<int>(list.size()), bad);
    if (bad > 0 || sheetPath.isEmpty()) return bad > 0 ? 1 : 0;
  }

  std::vector<QImage> ones;
  ones.reserve(list.size());
  int written = 0;
  for (const auto& art : list) {
    QImage one = render(art, 1);
    if (!outDir.isEmpty()) {
      for (const Density& d : kDensities) {
        const QImage img = d.factor == 1 ? one : render(art, d.factor);
        if (!save(img, outDir + QLatin1Char('/') + art.name + QLatin1String(d.suffix))) return 1;
        ++written;
      }
    }
    ones.push_back(std::move(one));
  }

  if (!sheetPath.isEmpty()) {
    QImage sheet = contactSheet(list, ones);
    if (zoom > 1)
      sheet = sheet.scaled(sheet.size() * zoom, Qt::IgnoreAspectRatio, Qt::FastTransformation);
    if (!save(sheet, sheetPath)) return 1;
  }
  std::printf("%d pictures, %d files written\n", static_cast<int>(list.size()), written);
  return 0;
}
