#include "front/names.h"

#include <QRegularExpression>

namespace front {
namespace {

// The last part of a picture id: "barajas/AC" -> "AC".
QString Shown(const std::string& picture) {
  const QString id = QString::fromStdString(picture);
  return id.mid(id.lastIndexOf(QLatin1Char('/')) + 1);
}

// Piles of chips are stored as "F<denomination>_<count>".
QString PileName(const QString& key) {
  static const QRegularExpression pile(QStringLiteral("^F(\\d\\d)_(\\d\\d)$"));
  const auto m = pile.match(key);
  if (!m.hasMatch()) return QString();
  const int value = m.captured(1).toInt();
  const int count = m.captured(2).toInt();
  if (count == 0) return QStringLiteral("Sem fichas de %1").arg(value);
  return QStringLiteral("%1 %2 de %3")
      .arg(count)
      .arg(count == 1 ? QStringLiteral("ficha") : QStringLiteral("fichas"))
      .arg(value);
}

}  // namespace

QString WithoutAccelerator(const std::string& caption) {
  const QString text = QString::fromStdString(caption);
  QString out;
  for (qsizetype i = 0; i < text.size(); ++i) {
    // "&x" is x underlined, "&&" a plain "&".
    if (text[i] == QLatin1Char('&') && i + 1 < text.size()) ++i;
    out += text[i];
  }
  return out;
}

QString AccessibleName(const vb::Control& c) {
  switch (c.kind()) {
    case vb::Kind::CommandButton:
      return WithoutAccelerator(c.Caption);
    case vb::Kind::Label:
      return QString::fromStdString(c.Caption).remove(QLatin1Char('\r'));
    case vb::Kind::Form:
      return QString::fromStdString(c.Caption);
    case vb::Kind::PictureBox: {
      // The chip places and the key places over the player's cards.
      static const int kChipValues[] = {1, 5, 10, 50};
      if ((c.Name() == "PicFichasPlayer" || c.Name() == "PicFichasPoker") && c.Index() >= 0 &&
          c.Index() < 4)
        return QStringLiteral("Ficha de %1").arg(kChipValues[c.Index()]);
      if (c.Name() == "PicCartasPlayer" && c.Index() >= 0)
        return QStringLiteral("Carta %1").arg(c.Index() + 1);
      if (!c.Picture.get().empty()) return Shown(c.Picture);
      return QString::fromStdString(c.Id());
    }
    case vb::Kind::TextBox:
    case vb::Kind::Frame:
    default:
      return QString::fromStdString(c.Id());
  }
}

QString ButtonName(vb::Control& toolbar, const vb::ToolbarButton& button) {
  const std::string& key = button.ImageKey();
  if (!key.empty()) {
    const QString pile = PileName(QString::fromStdString(key));
    return pile.isEmpty() ? QString::fromStdString(key) : pile;
  }
  if (!button.Key().empty()) return QString::fromStdString(button.Key());
  return QStringLiteral("%1 %2").arg(QString::fromStdString(toolbar.Id())).arg(button.Index());
}

}  // namespace front
