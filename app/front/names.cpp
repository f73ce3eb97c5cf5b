#include "front/names.h"

namespace front {

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
  if (std::string name = c.AccessibleName(); !name.empty()) return QString::fromStdString(name);
  switch (c.kind()) {
    case vb::Kind::CommandButton:
    case vb::Kind::Menu:
      return WithoutAccelerator(c.Caption);
    case vb::Kind::Label:
      return QString::fromStdString(c.Caption).remove(QLatin1Char('\r'));
    case vb::Kind::Form:
    case vb::Kind::Frame:
      return QString::fromStdString(c.Caption);
    default:
      return QString();
  }
}

}  // namespace front
